// The four text boxes saved and restored: property bag, stream and storage.
#include "anfitrion/bolsa_memoria.h"
#include "pruebas/cada.h"
#include "pruebas/componente/cajas/retrato.h"
#include "pruebas/componente/persistencia/flujos.h"

#include <doctest/doctest.h>

#include <algorithm>

using namespace cajas;
using anfitrion::BolsaMemoria;
using anfitrion::Estrechar;
using anfitrion::Hacer;
using pincela::pruebas::Cada;

namespace {

const wchar_t* CadaClase() {
    return Cada({L"Tbox", L"TBoxML", L"TboxSS", L"TboxSSML"});
}

std::string Claves(const BolsaMemoria& bolsa, bool escritura) {
    std::string todas;
    for (const std::wstring& clave : bolsa.Claves(escritura))
        todas += (todas.empty() ? "" : " ") + Estrechar(clave);
    return todas;
}

Puntero<BolsaMemoria> Guardada(const Caja& caja) {
    const auto bolsa = Hacer<BolsaMemoria>();
    REQUIRE(caja.Como<IPersistPropertyBag>()->Save(bolsa.get(), TRUE, FALSE) == S_OK);
    return bolsa;
}

/// What a text box is after its restoring: all of it, but for what is not kept on purpose.
std::vector<std::string> Esperado(const Caja& caja) {
    std::vector<std::string> lineas = RetratoDe(caja);
    const auto cambiar = [&](const std::string& nombre, const std::string& valor) {
        for (std::string& linea : lineas)
            if (linea.starts_with(nombre + " = "))
                linea = nombre + " = " + valor;
    };
    if (EsSimple(caja.clase))
        cambiar("Separa", "0");
    else
        cambiar("Text", "");
    return lineas;
}

void Comparar(const std::vector<std::string>& leidas, const std::vector<std::string>& esperadas) {
    REQUIRE(leidas.size() == esperadas.size());
    for (std::size_t i = 0; i < leidas.size(); ++i)
        CHECK(leidas[i] == esperadas[i]);
}

constexpr char LeidasEtiquetada[] =
    "TipoTexto Apariencia BackStyle FocoVisible FocoConMouse Caption SeparaBorde Separa Enabled "
    "MaxText AlinTBox AlinText ColorDegradeN ColorDegradeS ColorLetra ColorLetraSobre ColorFondo "
    "ColorFondoSobre ColorLetraE ColorLetraES ColorFonTexto ColorFonTextoS Tranca Fuente "
    "FuenteEtic MouseIcon MousePointer ToolTipText Expandir TipoLetra TipoSombra";
constexpr char EscritasEtiquetada[] =
    "TipoTexto Apariencia FocoVisible FocoConMouse EstilosBord SeparaBorde Separa AlinTBox "
    "AlinText Caption ColorLetra ColorLetraSobre ColorFondo ColorFondoSobre ColorLetraE "
    "ColorLetraES ColorFonTexto ColorFonTextoS Tranca FuenteEtic Fuente BackStyle MouseIcon "
    "MousePointer ToolTipText TipoLetra TipoSombra Enabled MaxText";
constexpr char LeidasSimple[] =
    "TipoTexto Apariencia BackStyle FocoVisible FocoConMouse SeparaBorde Enabled MaxText AlinTBox "
    "AlinText NavConEnter ColorDegradeN ColorDegradeS ColorLetra ColorLetraSobre SelecConFoco "
    "ColorFondo ColorFondoSobre ColorLetraE ColorLetraES SelStart SelLength ColorFonTexto "
    "ColorFonTextoS Tranca Fuente FuenteEtic MouseIcon MousePointer ToolTipText Expandir "
    "TipoLetra Text";
constexpr char EscritasSimple[] =
    "TipoTexto Apariencia FocoVisible FocoConMouse EstilosBord SeparaBorde AlinTBox AlinText "
    "SelecConFoco NavConEnter SelStart SelLength ColorLetra ColorLetraSobre ColorFondo "
    "ColorFondoSobre ColorLetraE ColorLetraES ColorFonTexto ColorFonTextoS Text Tranca Fuente "
    "BackStyle MouseIcon MousePointer ToolTipText TipoLetra Enabled MaxText";

} // namespace

TEST_CASE("A text box reads its keys in their order, those of the button among them") {
    const Caja caja(CadaClase());
    const auto bolsa = Hacer<BolsaMemoria>();
    REQUIRE(caja.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    CHECK(Claves(*bolsa.get(), false) == (EsSimple(caja.clase) ? LeidasSimple : LeidasEtiquetada));
}

TEST_CASE("A text box writes what differs from its defaults, in order") {
    const Caja caja(CadaClase());
    CambiarTodas(caja);
    CHECK(Claves(*Guardada(caja).get(), true) ==
          (EsSimple(caja.clase) ? EscritasSimple : EscritasEtiquetada));
}

TEST_CASE("A new text box writes only the keys that are empty and, labelled, its place") {
    const CajaNueva caja(CadaClase());
    const auto bolsa = Guardada(caja);
    const std::string claves = Claves(*bolsa.get(), true);
    if (EsSimple(caja.clase))
        CHECK(claves == "FocoVisible EstilosBord ColorLetraE ColorLetraES");
    else
        CHECK(claves == "FocoVisible EstilosBord AlinTBox");
    CHECK(bolsa->Buscar(L"FocoVisible")->vt == VT_EMPTY);
    CHECK(bolsa->Buscar(L"EstilosBord")->vt == VT_EMPTY);
}

TEST_CASE("A text box writes every one of its keys for a container that wants them all") {
    const CajaNueva caja(CadaClase());
    const auto bolsa = Hacer<BolsaMemoria>();
    REQUIRE(caja.Como<IPersistPropertyBag>()->Save(bolsa.get(), TRUE, TRUE) == S_OK);
    const std::string claves = " " + Claves(*bolsa.get(), true) + " ";
    for (const char* clave :
         {"TipoTexto", "Apariencia", "FocoVisible", "EfectoBoton", "Estilos", "EstilosBord",
          "SeparaBorde", "ColorLetraE", "Fuente", "MouseIcon", "Enabled", "MaxText"}) {
        INFO(clave);
        CHECK(claves.find(std::string(" ") + clave + " ") != std::string::npos);
    }
    const Caja otra(caja.clase.c_str());
    REQUIRE(otra.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    Comparar(RetratoDe(otra), RetratoDe(caja));
}

TEST_CASE("A text box comes back from its bag with every property") {
    const Caja una(CadaClase());
    CambiarTodas(una);
    const auto bolsa = Guardada(una);
    const Caja otra(una.clase.c_str());
    REQUIRE(otra.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    Comparar(RetratoDe(otra), Esperado(una));
}

TEST_CASE("A text box comes back from a stream with every property") {
    const Caja una(CadaClase());
    CambiarTodas(una);
    const auto flujo = FlujoDe({});
    REQUIRE(una.Como<IPersistStreamInit>()->Save(flujo.get(), TRUE) == S_OK);
    const auto copia = FlujoDe(BytesDe(flujo.get()));
    const Caja otra(una.clase.c_str());
    REQUIRE(otra.Como<IPersistStreamInit>()->Load(copia.get()) == S_OK);
    Comparar(RetratoDe(otra), Esperado(una));
}

TEST_CASE("A text box comes back from a storage with every property") {
    const Caja una(CadaClase());
    CambiarTodas(una);
    const auto almacen = AlmacenNuevo();
    REQUIRE(una.Como<IPersistStorage>()->Save(almacen.get(), FALSE) == S_OK);
    REQUIRE(una.Como<IPersistStorage>()->SaveCompleted(nullptr) == S_OK);
    const Caja otra(una.clase.c_str());
    REQUIRE(otra.Como<IPersistStorage>()->Load(almacen.get()) == S_OK);
    Comparar(RetratoDe(otra), Esperado(una));
}

TEST_CASE(
    "A bag without keys gives the labelled pair its place beside and the plain pair its looks") {
    const Caja caja(CadaClase());
    const auto bolsa = Hacer<BolsaMemoria>();
    CambiarTodas(caja); // what was there before does not shine through
    REQUIRE(caja.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    CHECK(caja.Valor(L"AlinTBox") == "7");
    CHECK(caja.Valor(L"Enabled") == "True");
    CHECK(caja.Valor(L"Apariencia") == "1");
    CHECK(caja.Valor(L"MaxText") == "0");
    CHECK(caja.Valor(L"MouseIcon") == "Nothing");
    if (EsSimple(caja.clase)) {
        CHECK(caja.Valor(L"BackStyle") == "0");
        CHECK(caja.Valor(L"ColorFonTextoS") == "12648384");
        CHECK(caja.Valor(L"Text") == "");
        CHECK(caja.Valor(L"NavConEnter") == "True");
        CHECK(caja.Valor(L"SelecConFoco") == "True");
    } else {
        CHECK(caja.Valor(L"BackStyle") == "1");
        CHECK(caja.Valor(L"ColorFonTextoS") == "-2147483643");
        CHECK(caja.Valor(L"Separa") == "3");
        CHECK(caja.Valor(L"TipoSombra") == "1");
    }
}

TEST_CASE("Text and selection of the plain pair survive, the whole of it selected included") {
    const Caja una(Cada({L"TboxSS", L"TboxSSML"}));
    const std::wstring largo(70000, L'x');
    Poner(una.get(), L"Text", largo);
    // The methods select all of it, more than 16 bits can tell.
    anfitrion::Llamar(una.get(), L"ActualizarColores", {true});
    const auto bolsa = Guardada(una);
    CHECK(anfitrion::Entero(*bolsa->Buscar(L"SelLength")) == 70000);
    const Caja otra(una.clase.c_str());
    REQUIRE(otra.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    CHECK(anfitrion::Texto(Leer(otra.get(), L"Text")) == largo);
    CHECK(anfitrion::Texto(Leer(otra.get(), L"SelText")) == largo);
}

TEST_CASE("A restored caption is shown without its access key, an assigned one brings it") {
    const Caja una(Cada({L"Tbox", L"TBoxML"}));
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"Caption", L"&Nombre");
    REQUIRE(una.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    CONTROLINFO info{};
    info.cb = sizeof info;
    REQUIRE(una.Como<IOleControl>()->GetControlInfo(&info) == S_OK);
    CHECK(info.cAccel == 0);
    CHECK(una.Valor(L"Caption") == "&Nombre");
    const struct {
        const wchar_t* titulo;
        std::vector<WORD> teclas;
    } casos[] = {
        {L"&Nombre", {'n', 'N'}}, {L"Nombre", {}}, {L"Nombre&", {}}, {L"N&ñ", {0xF1, 0xD1}}};
    for (const auto& caso : casos) {
        Poner(una.get(), L"Caption", caso.titulo);
        REQUIRE(una.Como<IOleControl>()->GetControlInfo(&info) == S_OK);
        REQUIRE(info.cAccel == caso.teclas.size());
        ACCEL lista[4]{};
        CopyAcceleratorTableW(info.hAccel, lista, 4);
        for (std::size_t i = 0; i < caso.teclas.size(); ++i)
            CHECK(lista[i].key == caso.teclas[i]);
    }
}

TEST_CASE("A bag whose values don't convert is refused, and the text box stays as it was") {
    const CajaNueva caja(CadaClase());
    Poner(caja.get(), L"Text", L"sigue aquí");
    Poner(caja.get(), L"ColorFondo", 0x123456);
    const auto antes = RetratoDe(caja);
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"ColorFondo", 0x654321);
    bolsa->Poner(L"AlinText", L"a la izquierda");
    CHECK(FAILED(caja.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr)));
    Comparar(RetratoDe(caja), antes);
}
