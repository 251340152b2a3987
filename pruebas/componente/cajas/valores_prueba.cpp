// What the properties of a text box take, keep and refuse, through the published interface.
#include "pruebas/cada.h"
#include "pruebas/componente/cajas/retrato.h"

#include <doctest/doctest.h>

using namespace cajas;
using anfitrion::Llamar;
using pincela::pruebas::Cada;

namespace {

constexpr HRESULT Error(int numero) {
    return static_cast<HRESULT>(0x800A0000u + static_cast<unsigned>(numero));
}

const wchar_t* CadaClase() {
    return Cada({L"Tbox", L"TBoxML", L"TboxSS", L"TboxSSML"});
}

} // namespace

TEST_CASE("A new labelled text box reads back its first values") {
    const CajaNueva caja(Cada({L"Tbox", L"TBoxML"}));
    const std::pair<const wchar_t*, const char*> esperados[] = {
        {L"AlinTBox", "0"},
        {L"Separa", "3"},
        {L"TipoSombra", "1"},
        {L"SeparaBorde", "1"},
        {L"TipoLetra", "0"},
        {L"Apariencia", "1"},
        {L"Enabled", "True"},
        {L"FocoConMouse", "False"},
        {L"FocoVisible", "False"},
        {L"TipoTexto", "0"},
        {L"Text", ""},
        {L"Caption", ""},
        {L"MaxText", "0"},
        {L"AlinText", "0"},
        {L"Tranca", "False"},
        {L"BackStyle", "1"},
        {L"MousePointer", "0"},
        {L"MouseIcon", "Nothing"},
        {L"ToolTipText", ""},
        {L"ColorLetra", "-2147483640"},
        {L"ColorLetraE", "-2147483640"},
        {L"ColorFonTexto", "-2147483643"},
        {L"ColorFonTextoS", "-2147483643"},
        {L"ColorFondo", "-2147483633"},
        {L"ColorFondoSobre", "-2147483633"}};
    for (const auto& [nombre, valor] : esperados) {
        INFO(anfitrion::Estrechar(nombre));
        CHECK(caja.Valor(nombre) == valor);
    }
}

TEST_CASE("A new plain text box reads back its first values") {
    const CajaNueva caja(Cada({L"TboxSS", L"TboxSSML"}));
    const std::pair<const wchar_t*, const char*> esperados[] = {{L"AlinTBox", "7"},
                                                                {L"Separa", "0"},
                                                                {L"SeparaBorde", "1"},
                                                                {L"BackStyle", "0"},
                                                                {L"SelecConFoco", "True"},
                                                                {L"NavConEnter", "True"},
                                                                {L"FocoVisible", "False"},
                                                                {L"SelStart", "0"},
                                                                {L"SelLength", "0"},
                                                                {L"SelText", ""},
                                                                {L"ColorFonTextoS", "12648384"}};
    for (const auto& [nombre, valor] : esperados) {
        INFO(anfitrion::Estrechar(nombre));
        CHECK(caja.Valor(nombre) == valor);
    }
}

TEST_CASE("Each property is read back as it was assigned") {
    const CajaNueva caja(CadaClase());
    CambiarTodas(caja);
    CHECK(caja.Valor(L"AlinTBox") == "8");
    CHECK(caja.Valor(L"AlinText") == "2");
    CHECK(caja.Valor(L"MaxText") == "60");
    CHECK(anfitrion::Texto(Leer(caja.get(), L"Text")) == L"Ñandú y «pingüino»");
    CHECK(caja.Valor(L"Fuente") == "Arial 142500 B I");
    CHECK(caja.Valor(L"MouseIcon").starts_with("icon"));
    CHECK(caja.Valor(L"Separa") == "7");
    CHECK(caja.Valor(L"FocoVisible") == "False");
    CHECK(caja.Valor(L"Tranca") == "True");
    CHECK(caja.Valor(L"ToolTipText") == "una ayuda");
    CHECK(caja.Valor(L"TipoLetra") == "4");
    CHECK(caja.Valor(L"Apariencia") == "0");
    if (EsSimple(caja.clase))
        CHECK(anfitrion::Texto(Leer(caja.get(), L"SelText")) == L"ndú y");
    else
        CHECK(caja.Valor(L"TipoSombra") == "4");
}

TEST_CASE("DISPID 0 is the text, read and written") {
    const CajaNueva caja(CadaClase());
    anfitrion::Invocar(caja.get(), DISPID_VALUE, DISPATCH_PROPERTYPUT, {L"hola"});
    CHECK(anfitrion::Texto(anfitrion::Invocar(caja.get(), DISPID_VALUE, DISPATCH_PROPERTYGET)) ==
          L"hola");
    CHECK(anfitrion::Texto(Leer(caja.get(), L"Text")) == L"hola");
    CHECK(anfitrion::Numero(caja.get(), L"Text") == DISPID_VALUE);
}

TEST_CASE("Separa takes 2 to 29 and ignores the rest without an error") {
    const CajaNueva caja(CadaClase());
    for (const short valor : {short{2}, short{29}}) {
        CHECK(IntentarPoner(caja.get(), L"Separa", valor) == S_OK);
        CHECK(caja.Valor(L"Separa") == std::to_string(valor));
    }
    for (const short valor : {short{1}, short{30}, short{0}, short{-5}, short{32767}}) {
        CHECK(IntentarPoner(caja.get(), L"Separa", valor) == S_OK);
        CHECK(caja.Valor(L"Separa") == "29");
    }
}

TEST_CASE("A shadow that is none of the four is stored and then fails") {
    const CajaNueva caja(Cada({L"Tbox", L"TBoxML"}));
    for (const int valor : {0, 5, -1}) {
        CHECK(IntentarPoner(caja.get(), L"TipoSombra", valor) == Error(94));
        CHECK(caja.Valor(L"TipoSombra") == std::to_string(valor));
    }
    CHECK(IntentarPoner(caja.get(), L"TipoSombra", 4) == S_OK);
}

TEST_CASE("Values outside their enumeration are kept as they stand") {
    const CajaNueva caja(CadaClase());
    for (const wchar_t* nombre : {L"TipoTexto", L"AlinTBox", L"SeparaBorde", L"TipoLetra"}) {
        INFO(anfitrion::Estrechar(nombre));
        CHECK(IntentarPoner(caja.get(), nombre, 77) == S_OK);
        CHECK(caja.Valor(nombre) == "77");
    }
    CHECK(IntentarPoner(caja.get(), L"BackStyle", 5) == S_OK);
    CHECK(caja.Valor(L"BackStyle") == "0");
}

TEST_CASE("What the edit field can't take is refused with a clear error") {
    const CajaNueva caja(CadaClase());
    CHECK(IntentarPoner(caja.get(), L"AlinText", 3) == Error(380));
    CHECK(IntentarPoner(caja.get(), L"Apariencia", -1) == Error(380));
    CHECK(IntentarPoner(caja.get(), L"MaxText", -1) == Error(380));
    CHECK(IntentarPoner(caja.get(), L"ColorFondo", L"azul") == DISP_E_TYPEMISMATCH);
    CHECK(IntentarPoner(caja.get(), L"Separa", 40000L) == DISP_E_OVERFLOW);
    CHECK(caja.Valor(L"AlinText") == "0");
    CHECK(caja.Valor(L"MaxText") == "0");
    try {
        Poner(caja.get(), L"MaxText", -1);
        FAIL("no error");
    } catch (const anfitrion::FalloCom& fallo) {
        CHECK(fallo.descripcion == L"El valor de la propiedad no es válido");
    }
}

TEST_CASE("A negative selection is refused, and what is selected can't be assigned") {
    const CajaNueva caja(Cada({L"TboxSS", L"TboxSSML"}));
    Poner(caja.get(), L"Text", L"abcdef");
    CHECK(IntentarPoner(caja.get(), L"SelStart", short{-1}) == Error(380));
    CHECK(IntentarPoner(caja.get(), L"SelLength", short{-1}) == Error(380));
    CHECK(FAILED(IntentarPoner(caja.get(), L"SelText", L"x")));
    Poner(caja.get(), L"SelStart", short{2});
    Poner(caja.get(), L"SelLength", short{3});
    CHECK(caja.Valor(L"SelText") == "cde");
}

TEST_CASE("A selection asked for before its text is there is applied when the text comes") {
    const CajaNueva caja(Cada({L"TboxSS", L"TboxSSML"}));
    Poner(caja.get(), L"SelStart", short{3});
    Poner(caja.get(), L"SelLength", short{4});
    CHECK(caja.Valor(L"SelText") == "");
    Poner(caja.get(), L"Text", L"0123456789");
    CHECK(caja.Valor(L"SelText") == "3456");
}

TEST_CASE("MaxText cuts an assigned text") {
    const CajaNueva caja(CadaClase());
    Poner(caja.get(), L"MaxText", 4);
    Poner(caja.get(), L"Text", L"abcdefg");
    CHECK(caja.Valor(L"Text") == "abcd");
}

TEST_CASE("The two methods can be called by name, and the plain pair has no caption") {
    const CajaNueva caja(CadaClase());
    Llamar(caja.get(), L"AjustarTexto");
    Llamar(caja.get(), L"ActualizarColores", {true});
    CHECK(anfitrion::Tiene(caja.get(), L"Caption") == !EsSimple(caja.clase));
    CHECK(anfitrion::Tiene(caja.get(), L"SelText") == EsSimple(caja.clase));
}

TEST_CASE(
    "The multi-line labelled text box names no property pages, the others the platform's two") {
    const CajaNueva caja(CadaClase());
    const auto paginas = caja.Como<ISpecifyPropertyPages>();
    if (caja.clase == L"TBoxML") {
        CHECK_FALSE(paginas);
        return;
    }
    CAUUID lista{};
    REQUIRE(paginas->GetPages(&lista) == S_OK);
    CHECK(lista.cElems == 2);
    CoTaskMemFree(lista.pElems);
}
