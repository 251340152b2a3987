// Values of the button's properties, by both roads.
#include "pruebas/componente/comun/boton.h"
#include "pruebas/componente/comun/interfaz_boton.h"

#include <doctest/doctest.h>

using namespace publicado;
using anfitrion::Cadena;
using anfitrion::Estrechar;

namespace {

/// The same button, early and late bound.
struct Banco : Boton {
    Banco() {
        void* dual = nullptr;
        REQUIRE(objeto->QueryInterface(Guid(ClaseDe(L"Botonazo").interfaz), &dual) == S_OK);
        boton = Puntero<_Botonazo>::Adoptar(static_cast<_Botonazo*>(dual));
    }
    Puntero<_Botonazo> boton;
};

using G = HRESULT (STDMETHODCALLTYPE _Botonazo::*)(LONG*);
using P = HRESULT (STDMETHODCALLTYPE _Botonazo::*)(LONG);

} // namespace

TEST_CASE("Numbers of enumerations go in and out by both roads, in their range or not") {
    const Banco b;
    const struct {
        const wchar_t* nombre;
        G leer;
        P poner;
    } todas[] = {
        {L"EfectoBoton", &_Botonazo::get_EfectoBoton, &_Botonazo::put_EfectoBoton},
        {L"AlinText", &_Botonazo::get_AlinText, &_Botonazo::put_AlinText},
        {L"AlinImag", &_Botonazo::get_AlinImag, &_Botonazo::put_AlinImag},
        {L"EstilosBord", &_Botonazo::get_EstilosBord, &_Botonazo::put_EstilosBord},
        {L"EstilosRell", &_Botonazo::get_EstilosRell, &_Botonazo::put_EstilosRell},
        {L"Estilos", &_Botonazo::get_Estilos, &_Botonazo::put_Estilos},
        {L"AnchoBorde", &_Botonazo::get_AnchoBorde, &_Botonazo::put_AnchoBorde},
        {L"TipoLetra", &_Botonazo::get_TipoLetra, &_Botonazo::put_TipoLetra},
    };
    for (const auto& una : todas) {
        INFO(Estrechar(una.nombre));
        for (const LONG valor : {0L, 1L, 2L, 3L, 4L, 8L, 55L, -7L}) {
            LONG leido = 12345;
            CHECK((b.boton.get()->*una.poner)(valor) == S_OK);
            CHECK((b.boton.get()->*una.leer)(&leido) == S_OK);
            CHECK(leido == valor);
            const Variante tarde = Leer(b.get(), una.nombre);
            CHECK(tarde.vt == VT_I4);
            CHECK(tarde.lVal == valor);
            CHECK(IntentarPoner(b.get(), una.nombre, valor + 1) == S_OK);
            CHECK((b.boton.get()->*una.leer)(&leido) == S_OK);
            CHECK(leido == valor + 1);
        }
        CHECK((b.boton.get()->*una.leer)(nullptr) == E_POINTER);
        CHECK(IntentarPoner(b.get(), una.nombre, L"azul") == DISP_E_TYPEMISMATCH);
        CHECK(IntentarPoner(b.get(), una.nombre, 1e12) == DISP_E_OVERFLOW);
    }
}

TEST_CASE("Texts go in and out whole by both roads") {
    const Banco b;
    const Cadena texto(std::wstring_view(L"uno\0dos ñ €", 11));
    Cadena leido;
    CHECK(b.boton->put_Caption(texto.get()) == S_OK);
    CHECK(b.boton->get_Caption(leido.Recibir()) == S_OK);
    CHECK(leido.Texto() == texto.Texto());
    CHECK(anfitrion::Texto(Leer(b.get(), L"Caption")) == texto.Texto());
    Poner(b.get(), L"Caption", 25);
    CHECK(anfitrion::Texto(Leer(b.get(), L"Caption")) == L"25");
    CHECK(b.boton->put_Caption(nullptr) == S_OK); // a null text is an empty one
    CHECK(b.boton->get_Caption(leido.Recibir()) == S_OK);
    CHECK(leido.Texto().empty());
    CHECK(b.boton->put_ToolTipText(texto.get()) == S_OK);
    CHECK(b.boton->get_ToolTipText(leido.Recibir()) == S_OK);
    CHECK(leido.Texto() == texto.Texto());
    CHECK(b.boton->get_Caption(nullptr) == E_POINTER);
    CHECK(b.boton->get_ToolTipText(nullptr) == E_POINTER);
}

TEST_CASE("Colours go in and out by both roads, system colours as they stand") {
    const Banco b;
    OLE_COLOR leido = 1;
    CHECK(b.boton->put_ColorLetraSobre(0x80000012) == S_OK);
    CHECK(b.boton->get_ColorLetraSobre(&leido) == S_OK);
    CHECK(leido == 0x80000012);
    for (const wchar_t* nombre :
         {L"ColorLetra", L"ColorLetraSobre", L"ColorFondo", L"ColorFondoSobre"}) {
        INFO(Estrechar(nombre));
        Poner(b.get(), nombre, 0xABCDEF);
        const Variante valor = Leer(b.get(), nombre);
        CHECK(valor.vt == VT_I4);
        CHECK(valor.lVal == 0xABCDEF);
        Variante sinSigno;
        sinSigno.vt = VT_UI4;
        sinSigno.ulVal = 0x8000000F;
        CHECK(IntentarPoner(b.get(), nombre, sinSigno) == S_OK);
        CHECK(Leer(b.get(), nombre).ulVal == 0x8000000F);
    }
}

TEST_CASE("Truth values are true for anything but zero") {
    const Banco b;
    VARIANT_BOOL leido = 7;
    CHECK(b.boton->put_Expandir(VARIANT_FALSE) == S_OK);
    CHECK(b.boton->get_Expandir(&leido) == S_OK);
    CHECK(leido == VARIANT_FALSE);
    CHECK(b.boton->put_Expandir(1) == S_OK);
    CHECK(b.boton->get_Expandir(&leido) == S_OK);
    CHECK(leido == VARIANT_TRUE);
    for (const wchar_t* nombre :
         {L"Expandir", L"Enabled", L"FocoVisible", L"FocoConMouse", L"CambioProgre"}) {
        INFO(Estrechar(nombre));
        Poner(b.get(), nombre, false);
        CHECK_FALSE(anfitrion::Logico(Leer(b.get(), nombre)));
        Poner(b.get(), nombre, 2);
        CHECK(Leer(b.get(), nombre).vt == VT_BOOL);
        CHECK(Leer(b.get(), nombre).boolVal == VARIANT_TRUE);
        Poner(b.get(), nombre, L"False");
        CHECK(Leer(b.get(), nombre).boolVal == VARIANT_FALSE);
    }
}

TEST_CASE("The progressive change is assigned by reference, the variable stays as it was") {
    const Banco b;
    VARIANT_BOOL cambio = VARIANT_TRUE, leido = 0;
    BYTE pasos = 200, leidos = 0;
    CHECK(b.boton->put_CambioProgre(&cambio) == S_OK);
    CHECK(b.boton->put_CambioProgrePasos(&pasos) == S_OK);
    CHECK(b.boton->get_CambioProgre(&leido) == S_OK);
    CHECK(b.boton->get_CambioProgrePasos(&leidos) == S_OK);
    CHECK(leido == VARIANT_TRUE);
    CHECK(leidos == 200);
    CHECK(cambio == VARIANT_TRUE);
    CHECK(pasos == 200);
    CHECK(b.boton->put_CambioProgre(nullptr) == E_POINTER);
    CHECK(b.boton->put_CambioProgrePasos(nullptr) == E_POINTER);
    Poner(b.get(), L"CambioProgrePasos", 255);
    CHECK(Leer(b.get(), L"CambioProgrePasos").vt == VT_UI1);
    CHECK(IntentarPoner(b.get(), L"CambioProgrePasos", 256) == DISP_E_OVERFLOW);
    CHECK(IntentarPoner(b.get(), L"CambioProgrePasos", -1) == DISP_E_OVERFLOW);
    CHECK(anfitrion::Entero(Leer(b.get(), L"CambioProgrePasos")) == 255);
    long variable = 9;
    Poner(b.get(), L"CambioProgrePasos", Variante::Referencia(variable));
    CHECK(anfitrion::Entero(Leer(b.get(), L"CambioProgrePasos")) == 9);
}

TEST_CASE("Numbers round half to even and overflow beyond their width") {
    const Banco b;
    SHORT leido = 0;
    CHECK(b.boton->put_MousePointer(11) == S_OK);
    CHECK(b.boton->get_MousePointer(&leido) == S_OK);
    CHECK(leido == 11);
    Poner(b.get(), L"MousePointer", 2.5);
    CHECK(Leer(b.get(), L"MousePointer").iVal == 2);
    Poner(b.get(), L"MousePointer", 3.5);
    CHECK(Leer(b.get(), L"MousePointer").iVal == 4);
    CHECK(IntentarPoner(b.get(), L"MousePointer", 32768) == DISP_E_OVERFLOW);
    FLOAT real = 0;
    CHECK(b.boton->put_RelX(0.125f) == S_OK);
    CHECK(b.boton->get_RelX(&real) == S_OK);
    CHECK(real == 0.125f);
    Poner(b.get(), L"RelY", 0.1);
    CHECK(Leer(b.get(), L"RelY").vt == VT_R4);
    CHECK(Leer(b.get(), L"RelY").fltVal == 0.1f);
    CHECK(IntentarPoner(b.get(), L"RelX", 1e300) == DISP_E_OVERFLOW);
}

TEST_CASE("While RelX is zero, RelY keeps its value") {
    const Banco b;
    Poner(b.get(), L"RelY", 0.5f);
    Poner(b.get(), L"RelX", 0);
    Poner(b.get(), L"RelY", 0.25f);
    CHECK(Leer(b.get(), L"RelY").fltVal == 0.5f);
    Poner(b.get(), L"RelX", 1);
    Poner(b.get(), L"RelY", 0.25f);
    CHECK(Leer(b.get(), L"RelY").fltVal == 0.25f);
}

TEST_CASE("Fonts and pictures are the very objects that were assigned") {
    const Banco b;
    const Puntero<IFontDisp> fuente = anfitrion::CrearFuente(L"Arial", 12);
    CHECK(b.boton->putref_Font(fuente.get()) == S_OK);
    Puntero<IFontDisp> leida;
    CHECK(b.boton->get_Font(leida.Recibir()) == S_OK);
    CHECK(leida.Como<IUnknown>() == fuente.Como<IUnknown>());
    const Puntero<IPictureDisp> imagen = MapaDePrueba(4);
    for (const wchar_t* nombre : {L"ImagNormal", L"ImagSobre", L"MouseIcon"}) {
        INFO(Estrechar(nombre));
        PonerRef(b.get(), nombre, Variante(imagen.get()));
        const Variante valor = Leer(b.get(), nombre);
        CHECK(valor.vt == VT_DISPATCH);
        CHECK(Puntero<IUnknown>(valor.punkVal).Como<IUnknown>() == imagen.Como<IUnknown>());
        PonerRef(b.get(), nombre, Variante(static_cast<IDispatch*>(nullptr)));
        CHECK(Leer(b.get(), nombre).pdispVal == nullptr);
        CHECK(IntentarPoner(b.get(), nombre, 5) == DISP_E_TYPEMISMATCH);
        CHECK(IntentarPoner(b.get(), nombre, Variante(fuente.get())) == DISP_E_TYPEMISMATCH);
    }
    // A plain assignment of an object is taken like one by reference.
    CHECK(IntentarPoner(b.get(), L"ImagNormal", Variante(imagen.get())) == S_OK);
    Puntero<IPictureDisp> leido;
    CHECK(b.boton->get_ImagNormal(leido.Recibir()) == S_OK);
    CHECK(leido.Como<IUnknown>() == imagen.Como<IUnknown>());
    CHECK(b.boton->get_ImagNormal(nullptr) == E_POINTER);
    CHECK(b.boton->get_Font(nullptr) == E_POINTER);
}

TEST_CASE("Lending a font or a picture keeps its count in order") {
    Puntero<IPictureDisp> imagen = MapaDePrueba(4);
    Puntero<IFontDisp> fuente = anfitrion::CrearFuente(L"Arial", 12);
    {
        const Banco b;
        PonerRef(b.get(), L"ImagNormal", Variante(imagen.get()));
        PonerRef(b.get(), L"ImagSobre", Variante(imagen.get()));
        PonerRef(b.get(), L"MouseIcon", Variante(imagen.get()));
        PonerRef(b.get(), L"Font", Variante(fuente.get()));
        for (int i = 0; i < 5; ++i)
            Retrato(b.get());
    }
    CHECK(imagen.Soltar() == 0);
    CHECK(fuente.Soltar() == 0);
}

TEST_CASE("A caption gives its access keys, and none is found beyond a byte") {
    const Banco b;
    const auto control = b.Como<IOleControl>();
    const auto teclas = [&] {
        CONTROLINFO info{};
        info.cb = sizeof info;
        REQUIRE(control->GetControlInfo(&info) == S_OK);
        std::vector<ACCEL> lista(info.cAccel);
        if (info.cAccel)
            CopyAcceleratorTableW(info.hAccel, lista.data(), info.cAccel);
        std::wstring texto;
        for (const ACCEL& una : lista)
            texto += static_cast<wchar_t>(una.key);
        return texto;
    };
    Poner(b.get(), L"Caption", L"&Aceptar");
    CHECK(teclas() == L"Aa");
    Poner(b.get(), L"Caption", L"Salir");
    CHECK(teclas().empty());
    Poner(b.get(), L"Caption", L"uno && dos");
    CHECK(teclas() == L"&&");
    Poner(b.get(), L"Caption", std::wstring(254, L'x') + L"&y");
    CHECK(teclas() == L"Yy");
    const std::wstring lejos = std::wstring(255, L'x') + L"&y";
    CHECK(IntentarPoner(b.get(), L"Caption", lejos) == static_cast<HRESULT>(0x800A0006));
    CHECK(anfitrion::Texto(Leer(b.get(), L"Caption")) == lejos); // the labels had it already
}

TEST_CASE("The button repaints when it is asked to") {
    const Banco b;
    CHECK(b.boton->Actualizar() == S_OK);
    CHECK(anfitrion::Llamar(b.get(), L"Actualizar").vt == VT_EMPTY);
    CHECK_THROWS_AS(anfitrion::Llamar(b.get(), L"Actualizar", {Variante(1)}), anfitrion::FalloCom);
}
