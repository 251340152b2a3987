#include "pruebas/componente/tardio/casos.h"

#include "anfitrion/imagenes.h"
#include "anfitrion/tardio.h"
#include "pruebas/componente/comun/boton.h"

#include <climits>
#include <limits>
#include <utility>

namespace publicado {

namespace {

class Lista {
  public:
    std::vector<Caso> casos;

    /// Values of one type, by the field of the VARIANT that carries it.
    template <class T, class... V>
    void Tipo(const char* nombre, VARTYPE tipo, T VARIANT::*campo, V... valores) {
        (Uno(nombre, tipo, campo, static_cast<T>(valores)), ...);
    }
    template <class T>
    void Uno(const char* nombre, VARTYPE tipo, T VARIANT::*campo, T valor) {
        Variante v;
        v.vt = tipo;
        v.*campo = valor;
        Anotar(nombre, std::move(v));
    }
    void Anotar(const std::string& tipo, Variante v) {
        casos.push_back({tipo + " " + anfitrion::Estrechar(anfitrion::Mostrar(v)), std::move(v)});
    }
};

void Enteros(Lista& l) {
    l.Tipo("BOOL", VT_BOOL, &VARIANT::boolVal, -1, 0, 1);
    l.Tipo("UI1", VT_UI1, &VARIANT::bVal, 7, 0, 255);
    l.Tipo("I1", VT_I1, &VARIANT::cVal, -1, 3, 127, -128);
    l.Tipo("I2", VT_I2, &VARIANT::iVal, 5, -1, 300, SHRT_MAX, SHRT_MIN);
    l.Tipo("UI2", VT_UI2, &VARIANT::uiVal, 2, 32768, 65535);
    l.Tipo("I4", VT_I4, &VARIANT::lVal, 1, 0, -1, 256, 40000, 0x336699, -2147483633, INT_MAX,
           INT_MIN);
    l.Tipo("INT", VT_INT, &VARIANT::intVal, 2, -1, 70000);
    l.Tipo("UI4", VT_UI4, &VARIANT::ulVal, 3u, 40000u, 0x7FFFFFFFu, 0x80000000u, 4000000000u,
           0xFFFFFFFFu);
    l.Tipo("UINT", VT_UINT, &VARIANT::uintVal, 4u, 4000000000u);
    l.Tipo("I8", VT_I8, &VARIANT::llVal, 6, -1, 2147483648LL, 2147483663LL, 4294967295LL,
           4294967296LL, 9007199254740993LL, LLONG_MAX, LLONG_MIN);
    l.Tipo("UI8", VT_UI8, &VARIANT::ullVal, 3ull, 2147483663ull, 9223372036854775809ull,
           18446744073709551615ull);
}

void Reales(Lista& l) {
    using Doble = std::numeric_limits<double>;
    l.Tipo("R4", VT_R4, &VARIANT::fltVal, 2.5, 3.5, -0.5, 0.1, 254.5, 3e9, 1e30);
    l.Tipo("R8", VT_R8, &VARIANT::dblVal, 1.0, 0.5, 1.5, 2.5, -2.5, -0.4, 0.1, 254.5, 255.5,
           32767.5, -32768.5, 2147483647.4, 2147483647.5, 2147483663.0, -2147483633.0, 4294967295.0,
           4294967295.4, 4294967295.5, 4294967296.0, -2147483649.0, 1e12, 1e39, -1e300,
           Doble::infinity(), -Doble::infinity(), Doble::quiet_NaN());
    l.Tipo("DATE", VT_DATE, &VARIANT::date, 46348.1741666667, 0.0, 0.5, 2.5, -1.25, 36526.0, 1e300);
    for (const LONGLONG diezmilesimas :
         {25000LL, 35000LL, -10000LL, 1LL, 21474836630000LL, 12345678901234567LL, LLONG_MAX}) {
        Variante v;
        v.vt = VT_CY;
        v.cyVal.int64 = diezmilesimas;
        l.Anotar("CY", v);
    }
    for (const wchar_t* escrito :
         {L"2.5", L"2.5000000000000000000000000001", L"7922816251426433759354395033.5", L"-1",
          L"2147483663", L"0.1", L"254.5"}) {
        Variante v;
        DECIMAL decimal{};
        anfitrion::Comprobar(
            VarDecFromStr(anfitrion::Cadena(escrito).get(), LOCALE_INVARIANT, 0, &decimal),
            "VarDecFromStr");
        v.decVal = decimal;
        v.vt = VT_DECIMAL;
        l.Anotar("DECIMAL", v);
    }
}

void Textos(Lista& l) {
    for (const wchar_t* escrito : {L"3",
                                   L"",
                                   L" ",
                                   L" 42 ",
                                   L"-1",
                                   L"2.5",
                                   L"2,5",
                                   L"2.5000000000000001",
                                   L"3,5000000000000001",
                                   L"1,234",
                                   L"1.234",
                                   L"&HFF",
                                   L"&hffff",
                                   L"&H8000000F",
                                   L"2147483663",
                                   L"4294967295",
                                   L"4294967296",
                                   L"254.5",
                                   L"254,5",
                                   L"32768",
                                   L"1e3",
                                   L"1E400",
                                   L"$2",
                                   L"2 \u20ac",
                                   L"(5)",
                                   L"5-",
                                   L"True",
                                   L"true",
                                   L"False",
                                   L"#TRUE#",
                                   L"Verdadero",
                                   L"Falso",
                                   L"S\u00ed",
                                   L"Yes",
                                   L"azul",
                                   L"16777215*0",
                                   L"12:30",
                                   L"1/2/2003",
                                   L"nan",
                                   L"0x10",
                                   L"1 2"})
        l.Anotar("BSTR", Variante(escrito));
    Variante sinTexto;
    sinTexto.vt = VT_BSTR;
    sinTexto.bstrVal = nullptr;
    l.Anotar("BSTR null", sinTexto);
}

void Objetos(Lista& l) {
    const auto con = [](Variante valor) -> Puntero<IDispatch> {
        return Puntero<IDispatch>(anfitrion::Hacer<ConDefecto>(std::move(valor)).get());
    };
    l.Anotar("DISPATCH", Variante(con(Variante(L"77")).get()));
    l.Anotar("DISPATCH of a number", Variante(con(Variante(2.5)).get()));
    l.Anotar("DISPATCH of an object", Variante(con(Variante(con(Variante(5)).get())).get()));
    l.Anotar("DISPATCH of nothing", Variante(con(Variante()).get()));
    l.Anotar("DISPATCH of null", Variante(con(Variante(static_cast<IDispatch*>(nullptr))).get()));
    l.Anotar("DISPATCH without default",
             Variante(Puntero<IDispatch>(anfitrion::Hacer<ConDefecto>().get()).get()));
    l.Anotar("DISPATCH null", Variante(static_cast<IDispatch*>(nullptr)));
    l.Anotar("DISPATCH font", Variante(anfitrion::CrearFuente(L"Arial", 12).get()));
    l.Anotar("DISPATCH picture", Variante(MapaDePrueba(4).get()));
    l.Anotar("UNKNOWN", Variante(con(Variante(L"77")).Como<IUnknown>().get()));
    l.Anotar("UNKNOWN null", Variante(static_cast<IUnknown*>(nullptr)));
}

void Rarezas(Lista& l) {
    l.Anotar("EMPTY", Variante());
    Variante v;
    v.vt = VT_NULL;
    l.Anotar("NULL", v);
    l.Anotar("ERROR missing", Variante::Omitida());
    v.vt = VT_ERROR;
    v.scode = E_FAIL;
    l.Anotar("ERROR", v);
    Variante lista;
    lista.vt = VT_ARRAY | VT_I4;
    lista.parray = SafeArrayCreateVector(VT_I4, 0, 2);
    l.Anotar("ARRAY", lista);
}

} // namespace

std::vector<Caso> CasosTardios() {
    Lista l;
    Enteros(l);
    Reales(l);
    Textos(l);
    Objetos(l);
    Rarezas(l);
    return std::move(l.casos);
}

} // namespace publicado
