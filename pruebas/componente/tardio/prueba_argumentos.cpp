// What a caller leaves out, hands over as an object, or gets told when it goes wrong.
#include "pruebas/componente/comun/boton.h"
#include "pruebas/componente/comun/interfaz_boton.h"
#include "pruebas/componente/efectos/interfaz.h"
#include "pruebas/componente/tardio/casos.h"

#include <doctest/doctest.h>

using namespace publicado;

namespace {

std::wstring TextoDe(const VARIANT& v) {
    VARIANT texto;
    VariantInit(&texto);
    REQUIRE(VariantChangeType(&texto, const_cast<VARIANT*>(&v), 0, VT_BSTR) == S_OK);
    Variante duenio;
    static_cast<VARIANT&>(duenio) = texto;
    return texto.bstrVal;
}

/// Somebody's error that nobody has asked for yet.
void DejarErrorAjeno() {
    Puntero<ICreateErrorInfo> creador;
    REQUIRE(CreateErrorInfo(creador.Recibir()) == S_OK);
    creador->SetDescription(const_cast<LPOLESTR>(L"an older error"));
    REQUIRE(SetErrorInfo(0, creador.Como<IErrorInfo>().get()) == S_OK);
}
bool HayErrorInfo() {
    Puntero<IErrorInfo> info;
    return GetErrorInfo(0, info.Recibir()) == S_OK;
}

/// A container's bag that may not be read.
class BolsaCerrada : public anfitrion::ObjetoCom<IPropertyBag> {
    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR, VARIANT*, IErrorLog*) override {
        DejarErrorAjeno();
        return E_ACCESSDENIED;
    }
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR, VARIANT*) override { return E_ACCESSDENIED; }
};

} // namespace

TEST_CASE("An object stands for its default member, and that one for its own") {
    const Boton boton;
    const Objeto caja(L"Tbox");
    Poner(caja.get(), L"Text", L"del campo");
    CHECK(IntentarPoner(boton.get(), L"Caption", Variante(caja.get())) == S_OK);
    CHECK(TextoDe(Leer(boton.get(), L"Caption")) == L"del campo");
    Poner(caja.get(), L"Text", L"12");
    CHECK(IntentarPoner(boton.get(), L"AnchoBorde", Variante(caja.get())) == S_OK);
    CHECK(Leer(boton.get(), L"AnchoBorde").lVal == 12);
    CHECK(IntentarPoner(boton.get(), L"ColorFondo", Variante(caja.get())) == S_OK);
    CHECK(Leer(boton.get(), L"ColorFondo").lVal == 12);
    Variante variable{Variante(caja.get())};
    CHECK(IntentarPoner(boton.get(), L"RelX",
                        Variante::Referencia(static_cast<VARIANT&>(variable))) == S_OK);
    CHECK(Leer(boton.get(), L"RelX").fltVal == 12);
}

TEST_CASE("An object that stands for itself stands for nothing, and is not asked for ever") {
    const Boton boton;
    const Puntero<ConDefecto> circular = anfitrion::Hacer<ConDefecto>();
    circular->esElMismo = true;
    const Variante valor(static_cast<IDispatch*>(circular.get()));
    CHECK(IntentarPoner(boton.get(), L"Caption", valor) == DISP_E_TYPEMISMATCH);
    CHECK(IntentarPoner(boton.get(), L"ColorFondo", valor) == DISP_E_TYPEMISMATCH);
    CHECK(circular->lecturas > 1);
    CHECK(circular->lecturas < 100);
}

TEST_CASE("A default member is read once for each assignment") {
    const Boton boton;
    const Puntero<ConDefecto> objeto = anfitrion::Hacer<ConDefecto>(Variante(2147483663.0));
    const Variante valor(static_cast<IDispatch*>(objeto.get()));
    CHECK(IntentarPoner(boton.get(), L"ColorFondo", valor) == S_OK);
    CHECK(Leer(boton.get(), L"ColorFondo").ulVal == 0x8000000F);
    CHECK(objeto->lecturas == 1);
}

TEST_CASE("An object stands for its default member in an argument of any type, too") {
    const BancoEfectos b;
    const auto canal = [&](const Puntero<ConDefecto>& objeto) {
        const Variante simple(static_cast<IDispatch*>(objeto.get()));
        const HRESULT estado = b.Invocar(DevColor, {simple, Variante(0), Variante(0xFF8040)});
        return estado == S_OK ? b.resultado.iVal : SHORT{-1};
    };
    CHECK(canal(anfitrion::Hacer<ConDefecto>(Variante(true))) == 64);
    CHECK(canal(anfitrion::Hacer<ConDefecto>(Variante(0))) == 16384);
    CHECK(canal(anfitrion::Hacer<ConDefecto>()) == -1); // none to stand for
    LONG color = 0xFF8040, rojo = 0;
    SHORT resultado = 0;
    Variante simple(static_cast<IDispatch*>(anfitrion::Hacer<ConDefecto>(Variante(L"True")).get()));
    CHECK(b.efectos->DevColor(&color, &rojo, &simple, &resultado) == S_OK);
    CHECK(resultado == 64);
}

TEST_CASE("A required argument that is passed as missing is not optional") {
    const BancoEfectos b;
    const Variante falta = Variante::Omitida();
    UINT equivocado = 99;
    CHECK(b.Invocar(DevColor, {Variante(true), Variante(0), falta}, &equivocado) ==
          DISP_E_PARAMNOTOPTIONAL);
    CHECK(equivocado == 2);
    equivocado = 99;
    CHECK(b.Invocar(DevColor, {falta}, &equivocado) == DISP_E_PARAMNOTOPTIONAL);
    CHECK(equivocado == 0);
    Variante variable = falta;
    equivocado = 99;
    CHECK(b.Invocar(InviertoColor, {Variante::Referencia(static_cast<VARIANT&>(variable))},
                    &equivocado) == DISP_E_PARAMNOTOPTIONAL);
    CHECK(equivocado == 0);
    Variante deError;
    deError.vt = VT_BYREF | VT_ERROR;
    deError.pscode = &variable.scode;
    CHECK(b.Invocar(InviertoColor, {deError}) == DISP_E_PARAMNOTOPTIONAL);
    equivocado = 99;
    const Variante uno(1);
    CHECK(b.Invocar(DarForma, {falta, uno, uno, uno, uno}, &equivocado) == DISP_E_PARAMNOTOPTIONAL);
    CHECK(equivocado == 0);
}

TEST_CASE("A null pointer stands for an optional argument that is left out") {
    const BancoEfectos b;
    LONG color = 0xFF8040, canal = 1, ancho = 1;
    Variante simple(true), lista(L"");
    SHORT resultado = 9;
    CHECK(b.efectos->DevColor(&color, &canal, nullptr, &resultado) == S_OK);
    CHECK(resultado == -32768); // not simple
    CHECK(b.efectos->DevColor(&color, nullptr, &simple, &resultado) == S_OK);
    CHECK(resultado == 0); // no channel
    CHECK(b.efectos->Degrade(&ancho, &ancho, &ancho, 1, nullptr, nullptr) == S_OK);
    CHECK(b.efectos->DevColor(nullptr, &canal, &simple, &resultado) == E_POINTER);
    CHECK(b.efectos->Degrade(nullptr, &ancho, &ancho, 1, nullptr, nullptr) == E_POINTER);
}

TEST_CASE("Names and calls are asked through the one interface there is for them") {
    const BancoEfectos b;
    LPOLESTR nombre = const_cast<LPOLESTR>(L"DevColor");
    DISPID numero = 5;
    CHECK(b.tardio->GetIDsOfNames(IID_IDispatch, &nombre, 1, LOCALE_USER_DEFAULT, &numero) ==
          DISP_E_UNKNOWNINTERFACE);
    CHECK(b.tardio->GetIDsOfNames(IID_NULL, &nombre, 1, LOCALE_USER_DEFAULT, &numero) == S_OK);
    CHECK(numero == DevColor);
}

TEST_CASE("A failure does not tell of somebody else's older error") {
    const Boton boton;
    void* dual = nullptr;
    REQUIRE(boton.objeto->QueryInterface(Guid(ClaseDe(L"Botonazo").interfaz), &dual) == S_OK);
    const auto directo = Puntero<_Botonazo>::Adoptar(static_cast<_Botonazo*>(dual));
    DISPPARAMS ninguno{};
    const auto falla = [](HRESULT estado) {
        CHECK(FAILED(estado));
        CHECK_FALSE(HayErrorInfo());
    };
    DejarErrorAjeno();
    falla(directo->put_CambioProgre(nullptr));
    DejarErrorAjeno();
    falla(directo->get_Caption(nullptr));
    DejarErrorAjeno();
    falla(IntentarPoner(boton.get(), L"AnchoBorde", L"azul"));
    DejarErrorAjeno();
    falla(boton.get()->Invoke(5555, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &ninguno,
                              nullptr, nullptr, nullptr));
    DejarErrorAjeno();
    CHECK_FALSE(anfitrion::Tiene(boton.get(), L"ColorDegradeN"));
    CHECK_FALSE(HayErrorInfo());
    falla(boton.Como<IPersistPropertyBag>()->Load(anfitrion::Hacer<BolsaCerrada>().get(), nullptr));
    const BancoEfectos b;
    LONG color = 0;
    DejarErrorAjeno();
    falla(b.efectos->InviertoColor(&color, nullptr));
    DejarErrorAjeno();
    falla(b.efectos->InviertoColor(nullptr, &color));
    const Objeto pagina(L"ProPGeneral");
    DejarErrorAjeno();
    falla(pagina.Como<IPropertyPage>()->SetObjects(1, nullptr));
    DejarErrorAjeno();
    falla(pagina.Como<IPropertyPage>()->Apply());
    // A run-time error of the component's own is told.
    const std::wstring lejos = std::wstring(255, L'x') + L"&y";
    DejarErrorAjeno();
    CHECK(directo->put_Caption(anfitrion::Cadena(lejos).get()) == static_cast<HRESULT>(0x800A0006));
    Puntero<IErrorInfo> info;
    REQUIRE(GetErrorInfo(0, info.Recibir()) == S_OK);
    anfitrion::Cadena descripcion;
    CHECK(info->GetDescription(descripcion.Recibir()) == S_OK);
    CHECK(descripcion.Texto() == L"Desbordamiento");
}

TEST_CASE("The library's own members are unknown names to whoever asks from outside") {
    for (const auto& [clase, nombres] :
         {std::pair{L"Botonazo", std::vector{L"ColorDegradeN", L"ColorDegradeS", L"Angulo"}},
          std::pair{L"Area", std::vector{L"ColorDegradeN", L"Angulo"}}}) {
        const Objeto objeto(clase);
        for (const wchar_t* nombre : nombres) {
            LPOLESTR copia = const_cast<LPOLESTR>(nombre);
            DISPID numero = 5;
            CHECK(objeto.get()->GetIDsOfNames(IID_NULL, &copia, 1, LOCALE_USER_DEFAULT, &numero) ==
                  DISP_E_UNKNOWNNAME);
            CHECK(numero == DISPID_UNKNOWN);
        }
    }
}
