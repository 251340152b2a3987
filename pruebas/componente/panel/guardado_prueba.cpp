// The panel saved and restored: bag, stream, storage.
#include "anfitrion/bolsa_memoria.h"
#include "pruebas/componente/panel/publicada.h"

using namespace publicado;
using anfitrion::BolsaMemoria;
using anfitrion::Estrechar;
using anfitrion::FalloCom;
using anfitrion::Hacer;

namespace {

std::vector<std::string> Claves(BolsaMemoria& bolsa) {
    std::vector<std::string> salida;
    for (const std::wstring& clave : bolsa.Claves(true))
        salida.push_back(Estrechar(clave));
    return salida;
}

Puntero<BolsaMemoria> Guardada(const Panel& panel) {
    const auto bolsa = Hacer<BolsaMemoria>();
    REQUIRE(panel.Como<IPersistPropertyBag>()->Save(bolsa.get(), TRUE, FALSE) == S_OK);
    return bolsa;
}

} // namespace

TEST_CASE("a new panel stores its white, which is no default") {
    const Panel panel;
    REQUIRE(panel.Como<IPersistPropertyBag>()->InitNew() == S_OK);
    const auto bolsa = Guardada(panel);
    // The label's own colour is no default either.
    CHECK(Claves(*bolsa.get()) == std::vector<std::string>{"ColorLetra", "ColorFondo"});
    CHECK(anfitrion::Entero(*bolsa->Buscar(L"ColorFondo")) == 0xFFFFFF);
}

TEST_CASE("a bag without ColorFondo gives a panel the colour of buttons") {
    const Panel panel;
    REQUIRE(panel.Como<IPersistPropertyBag>()->Load(Hacer<BolsaMemoria>().get(), nullptr) == S_OK);
    CHECK(anfitrion::Entero(Leer(panel.get(), L"ColorFondo")) == static_cast<long>(0x8000000F));
    CHECK(anfitrion::Entero(Leer(panel.get(), L"ColorLetra")) == 0);
    // Nothing of it differs from the defaults now.
    CHECK(Claves(*Guardada(panel).get()).empty());
}

TEST_CASE("the keys are written in the panel's own order") {
    const Panel panel;
    CambiarPanel(panel.get());
    CHECK(Claves(*Guardada(panel).get()) ==
          std::vector<std::string>{"BackStyle", "SeparaBorde", "EstilosBord", "AnchoBorde",
                                   "EstilosRell", "AlinText", "Caption", "ColorLetra", "ColorFondo",
                                   "ColorDegrade", "Font", "MouseIcon", "MousePointer",
                                   "ToolTipText", "TipoLetra", "Enabled"});
}

TEST_CASE("a container that wants all of a panel gets what equals its defaults too") {
    const Panel panel;
    const auto bolsa = Hacer<BolsaMemoria>();
    REQUIRE(panel.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    REQUIRE(panel.Como<IPersistPropertyBag>()->Save(bolsa.get(), TRUE, TRUE) == S_OK);
    CHECK(Claves(*bolsa.get()) ==
          std::vector<std::string>{"BackStyle", "SeparaBorde", "EstilosBord", "AnchoBorde",
                                   "EstilosRell", "AlinText", "Caption", "ColorLetra", "ColorFondo",
                                   "ColorDegrade", "Font", "MouseIcon", "MousePointer",
                                   "ToolTipText", "TipoLetra", "Enabled"});
}

TEST_CASE("a panel comes back as it was from a bag, a stream and a storage") {
    const Panel uno, otro;
    CambiarPanel(uno.get());
    SUBCASE("bag") {
        REQUIRE(otro.Como<IPersistPropertyBag>()->Load(Guardada(uno).get(), nullptr) == S_OK);
    }
    SUBCASE("stream") {
        const auto flujo = FlujoDe({});
        REQUIRE(uno.Como<IPersistStreamInit>()->Save(flujo.get(), TRUE) == S_OK);
        flujo->Seek({}, STREAM_SEEK_SET, nullptr);
        REQUIRE(otro.Como<IPersistStreamInit>()->Load(flujo.get()) == S_OK);
    }
    SUBCASE("storage") {
        const auto almacen = AlmacenNuevo();
        REQUIRE(uno.Como<IPersistStorage>()->Save(almacen.get(), FALSE) == S_OK);
        REQUIRE(uno.Como<IPersistStorage>()->SaveCompleted(nullptr) == S_OK);
        REQUIRE(otro.Como<IPersistStorage>()->Load(almacen.get()) == S_OK);
    }
    CHECK(RetratoDelPanel(otro.get()) == RetratoCambiado());
    CHECK(otro.Como<IPersistStreamInit>()->IsDirty() == S_FALSE);
}

TEST_CASE("a panel and a button do not read one another's streams") {
    const Panel panel;
    const Boton boton;
    const auto flujo = FlujoDe({});
    REQUIRE(boton.Como<IPersistStreamInit>()->InitNew() == S_OK);
    REQUIRE(boton.Como<IPersistStreamInit>()->Save(flujo.get(), TRUE) == S_OK);
    CLSID clase{};
    CHECK(panel.Como<IPersistStreamInit>()->GetClassID(&clase) == S_OK);
    CHECK(clase == Guid(ClaseDe(L"Area").clase));
    flujo->Seek({}, STREAM_SEEK_SET, nullptr);
    // Its own keys are not there, or the stream is refused: in no case does it take the button's.
    panel.Como<IPersistStreamInit>()->Load(flujo.get());
    CHECK(anfitrion::Texto(Leer(panel.get(), L"Caption")) == L"");
}

TEST_CASE("a damaged value stops the restoring with its error, and the panel goes on") {
    const Panel panel;
    const auto mala = Hacer<BolsaMemoria>();
    mala->Poner(L"Caption", L"resto");
    mala->Poner(L"AlinText", L"muy arriba");
    CHECK(panel.Como<IPersistPropertyBag>()->Load(mala.get(), nullptr) ==
          static_cast<HRESULT>(0x800A000D)); // type mismatch
    REQUIRE(panel.Como<IPersistPropertyBag>()->InitNew() == S_OK);
    CHECK(anfitrion::Entero(Leer(panel.get(), L"AlinText")) == 4);
}

TEST_CASE("a stream cut anywhere is refused or read, and never the end of the program") {
    const Panel uno;
    CambiarPanel(uno.get());
    const auto flujo = FlujoDe({});
    REQUIRE(uno.Como<IPersistStreamInit>()->Save(flujo.get(), TRUE) == S_OK);
    const BytesDeFlujo bytes = BytesDe(flujo.get());
    for (std::size_t largo = 0; largo < bytes.size(); largo += 7) {
        const Panel otro;
        const BytesDeFlujo corto(bytes.begin(), bytes.begin() + static_cast<long>(largo));
        CHECK(FAILED(otro.Como<IPersistStreamInit>()->Load(FlujoDe(corto).get())));
        CHECK_NOTHROW(Leer(otro.get(), L"Caption"));
    }
}
