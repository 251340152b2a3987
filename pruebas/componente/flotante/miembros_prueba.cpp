// Every member of every class, with values that don't fit, in hosts that compute in other ways.
#include "anfitrion/bolsa_memoria.h"
#include "pruebas/cada.h"
#include "pruebas/componente/comun/boton.h"
#include "pruebas/componente/comun/lamina.h"
#include "pruebas/componente/flotante/ajena.h"
#include "pruebas/componente/persistencia/flujos.h"

#include <cmath>
#include <limits>
#include <vector>

using namespace publicado;
using namespace flotante;
using anfitrion::Estrechar;
using pincela::pruebas::Cada;

namespace {

std::vector<Variante> Hostiles() {
    using Doble = std::numeric_limits<double>;
    using Simple = std::numeric_limits<float>;
    std::vector<Variante> valores{Doble::quiet_NaN(),
                                  Doble::infinity(),
                                  -Doble::infinity(),
                                  Doble::max(),
                                  Doble::denorm_min(),
                                  Simple::quiet_NaN(),
                                  Simple::infinity(),
                                  Simple::max(),
                                  Simple::denorm_min(),
                                  0.1,
                                  -0.5,
                                  2147483648.5,
                                  -2147483649.0,
                                  L"9e309",
                                  L"1e-400",
                                  L"1e309*0",
                                  L"0.1",
                                  L"123456789.123456789",
                                  L"NaN",
                                  L"&HFFFFFFFF",
                                  0L,
                                  (std::numeric_limits<long>::max)(),
                                  (std::numeric_limits<long>::min)()};
    const auto crudo = [&](VARTYPE tipo) -> VARIANT& {
        valores.emplace_back();
        valores.back().vt = tipo;
        return valores.back();
    };
    crudo(VT_DATE).date = 1e300;
    crudo(VT_DATE).date = 46348.17;
    crudo(VT_CY).cyVal.int64 = (std::numeric_limits<LONGLONG>::max)();
    crudo(VT_I8).llVal = (std::numeric_limits<LONGLONG>::min)();
    crudo(VT_UI8).ullVal = (std::numeric_limits<ULONGLONG>::max)();
    VARIANT& decimal = crudo(VT_DECIMAL);
    decimal.decVal.Hi32 = decimal.decVal.Lo32 = decimal.decVal.Mid32 = 0xFFFFFFFFu;
    decimal.decVal.scale = 0;
    decimal.vt = VT_DECIMAL;
    return valores;
}

/// Everything that can be assigned, in the order of the interface.
std::vector<DISPID> Asignables(IDispatch* objeto) {
    std::vector<DISPID> numeros;
    Puntero<ITypeInfo> tipo;
    anfitrion::Comprobar(objeto->GetTypeInfo(0, 0, tipo.Recibir()), "GetTypeInfo");
    TYPEATTR* rasgos = nullptr;
    anfitrion::Comprobar(tipo->GetTypeAttr(&rasgos), "GetTypeAttr");
    for (UINT i = 0; i < rasgos->cFuncs; ++i) {
        FUNCDESC* funcion = nullptr;
        if (FAILED(tipo->GetFuncDesc(i, &funcion)))
            continue;
        if (funcion->invkind & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF))
            numeros.push_back(funcion->memid);
        tipo->ReleaseFuncDesc(funcion);
    }
    tipo->ReleaseTypeAttr(rasgos);
    return numeros;
}

void Asignar(IDispatch* objeto, DISPID numero, VARIANT& valor) {
    DISPID poner = DISPID_PROPERTYPUT;
    DISPPARAMS uno{&valor, &poner, 1, 1};
    objeto->Invoke(numero, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &uno, nullptr,
                   nullptr, nullptr);
}

void LeerNumero(IDispatch* objeto, DISPID numero) {
    Variante leido;
    DISPPARAMS ninguno{};
    objeto->Invoke(numero, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &ninguno,
                   leido.Recibir(), nullptr, nullptr);
}

const wchar_t* CadaControl() {
    return Cada({L"Botonazo", L"Area", L"Tbox", L"TBoxML", L"TboxSS", L"TboxSSML"});
}

} // namespace

TEST_CASE("No value of any property faults in the host or changes its arithmetic") {
    const Objeto objeto(CadaControl());
    const Palabras palabras = Cada({TodoAbierto, Habitual});
    const Lamina lamina(120, 40);
    const auto vista = objeto.Como<IViewObject>();
    const RECTL lugar{0, 0, 120, 40};
    std::vector<Variante> valores = Hostiles();
    for (const DISPID numero : Asignables(objeto.get())) {
        for (std::size_t i = 0; i < valores.size(); ++i)
            Llamar(palabras,
                   std::to_string(numero) + " <- " + Estrechar(anfitrion::Mostrar(valores[i])),
                   [&] {
                       Asignar(objeto.get(), numero, valores[i]);
                       LeerNumero(objeto.get(), numero);
                   });
        Llamar(palabras, "drawn after " + std::to_string(numero), [&] {
            vista->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, lamina.Hdc(), &lugar,
                        nullptr, nullptr, 0);
        });
    }
}

TEST_CASE("The life of a control outside a window does not touch the arithmetic of its host") {
    const wchar_t* const clase = CadaControl();
    const Palabras palabras = Cada({TodoAbierto, Habitual});
    const SesionOle ole;
    const auto componente = anfitrion::Componente::DeFichero(RutaDelComponente());
    const GUID clsid = Guid(ClaseDe(clase).clase);
    Puntero<IUnknown> objeto;
    Llamar(palabras, "CreateInstance", [&] { objeto = componente.Crear(clsid); });
    REQUIRE(objeto);
    const auto ole2 = objeto.Como<IOleObject>();
    const auto guardable = objeto.Como<IPersistStreamInit>();
    const auto bolsas = objeto.Como<IPersistPropertyBag>();
    const auto datos = objeto.Como<IDataObject>();
    Llamar(palabras, "InitNew", [&] { guardable->InitNew(); });
    for (SIZEL extension : {SIZEL{0, 0}, {1, 1}, {2540, 1270}, {3175, 0}, {7, 30000}})
        Llamar(palabras, "SetExtent", [&] {
            ole2->SetExtent(DVASPECT_CONTENT, &extension);
            FORMATETC formato{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
            STGMEDIUM medio{};
            if (SUCCEEDED(datos->GetData(&formato, &medio)))
                ReleaseStgMedium(&medio);
        });
    const auto flujo = FlujoDe({});
    Llamar(palabras, "Save", [&] { guardable->Save(flujo.get(), TRUE); });
    Llamar(palabras, "Load", [&] {
        flujo->Seek({}, STREAM_SEEK_SET, nullptr);
        guardable->Load(flujo.get());
    });
    const auto bolsa = anfitrion::Hacer<anfitrion::BolsaMemoria>();
    Llamar(palabras, "Save", [&] { bolsas->Save(bolsa.get(), TRUE, TRUE); });
    const auto mala = anfitrion::Hacer<anfitrion::BolsaMemoria>();
    for (const Variante& valor : Hostiles()) {
        for (const auto& [clave, suyo] : bolsa->Valores())
            mala->Poner(clave, valor);
        Llamar(palabras, "Load of a bag", [&] { bolsas->Load(mala.get(), nullptr); });
    }
    Llamar(palabras, "Release", [&] { objeto.Soltar(); });
}

TEST_CASE("A value reads and looks the same whatever the arithmetic of the host") {
    const auto retrato = [](const Palabras& palabras) {
        const Boton boton;
        const Lamina lamina(333, 77);
        const RECTL lugar{0, 0, 333, 77};
        const auto vista = boton.Como<IViewObject>();
        SIZEL extension{333 * 2540 / 96, 77 * 2540 / 96};
        boton.Como<IOleObject>()->SetExtent(DVASPECT_CONTENT, &extension);
        Poner(boton.get(), L"Estilos", 1L);
        Poner(boton.get(), L"EstilosBord", 1L);
        Variante texto(L"0.12345678901234567"), doble(0.7000000000000001);
        const DISPID relX = anfitrion::Numero(boton.get(), L"RelX"),
                     relY = anfitrion::Numero(boton.get(), L"RelY");
        Llamar(palabras, "assigned and drawn", [&] {
            Asignar(boton.get(), relX, texto);
            Asignar(boton.get(), relY, doble);
            vista->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, lamina.Hdc(), &lugar,
                        nullptr, nullptr, 0);
        });
        std::vector<long> visto{
            static_cast<long>(1e9 * anfitrion::Real(Leer(boton.get(), L"RelX"))),
            static_cast<long>(1e9 * anfitrion::Real(Leer(boton.get(), L"RelY")))};
        for (int y = 0; y < 77; ++y)
            for (int x = 0; x < 333; x += 3)
                visto.push_back(static_cast<long>(lamina.Pixel(x, y)));
        return visto;
    };
    const auto usual = retrato(Actuales());
    // Single, double and extended precision, in each direction of rounding.
    for (const std::uint16_t precision : {0x000, 0x200, 0x300})
        for (const std::uint16_t direccion : {0, 1, 2, 3}) {
            CAPTURE(precision);
            CAPTURE(direccion);
            CHECK(retrato({static_cast<std::uint16_t>(0x3F | precision | direccion << 10),
                           0x1F80u | static_cast<std::uint32_t>(direccion) << 13}) == usual);
        }
}
