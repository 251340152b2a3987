// Who is told of a change, of what and when.
#include "pruebas/componente/comun/boton.h"
#include "pruebas/componente/comun/sumideros.h"

#include <doctest/doctest.h>

#include <memory>

using namespace publicado;
using anfitrion::Estrechar;
using anfitrion::Hacer;

namespace {

/// Identifier of each property, counted from the last one; two are the platform's own.
DISPID NumeroEsperado(std::wstring_view nombre) {
    if (nombre == L"Caption")
        return -518;
    if (nombre == L"Font")
        return -512;
    DISPID n = 0x6803001B;
    for (const wchar_t* uno : PropiedadesDelBoton) {
        if (nombre == uno)
            return n;
        n -= wcscmp(uno, L"ImagSobre") == 0 ? 2 : 1; // Actualizar stands in between
    }
    return DISPID_UNKNOWN;
}

struct Banco : Boton {
    Banco() : oyente(Hacer<Oyente>()) {
        REQUIRE(Como<IPersistStreamInit>()->InitNew() == S_OK);
        conexion = std::make_unique<Conexion>(objeto.get(), IID_IPropertyNotifySink, oyente.get());
        REQUIRE(conexion->Hecha());
    }
    std::vector<DISPID> Tras(const wchar_t* nombre, const Variante& valor) {
        oyente->oidos.clear();
        Poner(get(), nombre, valor);
        return oyente->oidos;
    }
    Puntero<Oyente> oyente;
    std::unique_ptr<Conexion> conexion;
};

struct Par {
    const wchar_t* nombre;
    Variante valor;
};

std::vector<Par> ConGuarda() {
    return {{L"EfectoBoton", 1},
            {L"AlinText", 7},
            {L"AlinImag", 7},
            {L"EstilosBord", 3},
            {L"EstilosRell", 2},
            {L"Estilos", 1},
            {L"RelX", 0.75f},
            {L"ImagNormal", Variante(MapaDePrueba(3).get())},
            {L"ImagSobre", Variante(MapaDePrueba(3).get())},
            {L"AnchoBorde", 2},
            {L"TipoLetra", 2}};
}

std::vector<Par> SinGuarda() {
    return {{L"RelY", 0.75f},
            {L"Caption", L"hola"},
            {L"Font", Variante(anfitrion::CrearFuente(L"Arial", 10).get())},
            {L"ColorLetra", 255},
            {L"ColorLetraSobre", 255},
            {L"ColorFondo", 255},
            {L"ColorFondoSobre", 255},
            {L"MouseIcon", Variante(IconoDePrueba().get())},
            {L"MousePointer", short{1}},
            {L"ToolTipText", L"hola"},
            {L"Expandir", false},
            {L"Enabled", false},
            {L"FocoVisible", false},
            {L"FocoConMouse", true},
            {L"CambioProgre", true},
            {L"CambioProgrePasos", 4}};
}

} // namespace

TEST_CASE("A change is told once, by its own number, before the assignment returns") {
    Banco b;
    std::vector<Par> todas = ConGuarda();
    for (Par& una : SinGuarda())
        todas.push_back(una);
    CHECK(todas.size() == std::size(PropiedadesDelBoton));
    const auto persistente = b.Como<IPersistStreamInit>();
    for (const Par& una : todas) {
        INFO(Estrechar(una.nombre));
        const Puntero<IStream> flujo;
        Puntero<IStream> papelera;
        REQUIRE(CreateStreamOnHGlobal(nullptr, TRUE, papelera.Recibir()) == S_OK);
        REQUIRE(persistente->Save(papelera.get(), TRUE) == S_OK);
        CHECK(persistente->IsDirty() == S_FALSE);
        HRESULT suciedad = E_FAIL;
        b.oyente->alOir = [&](DISPID) { suciedad = persistente->IsDirty(); };
        const std::vector<DISPID> oidos = b.Tras(una.nombre, una.valor);
        b.oyente->alOir = nullptr;
        REQUIRE(oidos.size() == 1);
        CHECK(oidos[0] == NumeroEsperado(una.nombre));
        CHECK(suciedad == S_OK);
        CHECK(persistente->IsDirty() == S_OK);
    }
}

TEST_CASE("Assigning the same value again is told only where every assignment counts") {
    Banco b;
    for (const Par& una : ConGuarda()) {
        INFO(Estrechar(una.nombre));
        b.Tras(una.nombre, una.valor);
        CHECK(b.Tras(una.nombre, una.valor).empty());
    }
    for (const Par& una : SinGuarda()) {
        INFO(Estrechar(una.nombre));
        b.Tras(una.nombre, una.valor);
        CHECK(b.Tras(una.nombre, una.valor).size() == 1);
    }
}

TEST_CASE("Taking the border away resets the effect, and both are told") {
    Banco b;
    Poner(b.get(), L"EfectoBoton", 2);
    const std::vector<DISPID> oidos = b.Tras(L"EstilosBord", 0);
    REQUIRE(oidos.size() == 2);
    CHECK(oidos[0] == NumeroEsperado(L"EstilosBord"));
    CHECK(oidos[1] == NumeroEsperado(L"EfectoBoton"));
    CHECK(anfitrion::Entero(Leer(b.get(), L"EfectoBoton")) == 0);
}

TEST_CASE("An assignment that is dropped is not told") {
    Banco b;
    Poner(b.get(), L"RelX", 0);
    CHECK(b.Tras(L"RelY", 0.1f).empty());
}

TEST_CASE("Loading tells once that everything may have changed") {
    Banco b;
    Puntero<IStream> flujo;
    REQUIRE(CreateStreamOnHGlobal(nullptr, TRUE, flujo.Recibir()) == S_OK);
    REQUIRE(b.Como<IPersistStreamInit>()->Save(flujo.get(), TRUE) == S_OK);
    flujo->Seek({}, STREAM_SEEK_SET, nullptr);
    b.oyente->oidos.clear();
    REQUIRE(b.Como<IPersistStreamInit>()->Load(flujo.get()) == S_OK);
    CHECK(b.oyente->oidos == std::vector<DISPID>{DISPID_UNKNOWN});
}

TEST_CASE("A handler may change the button again") {
    Banco b;
    b.oyente->alOir = [&](DISPID numero) {
        if (numero == NumeroEsperado(L"AlinText"))
            Poner(b.get(), L"AlinImag", 3);
    };
    const std::vector<DISPID> oidos = b.Tras(L"AlinText", 2);
    CHECK(oidos == std::vector<DISPID>{NumeroEsperado(L"AlinText"), NumeroEsperado(L"AlinImag")});
}

TEST_CASE("Every sink hears, one that fails does not silence the others") {
    Banco b;
    const auto segundo = Hacer<Oyente>();
    const Conexion otra(b.objeto.get(), IID_IPropertyNotifySink, segundo.get());
    REQUIRE(otra.Hecha());
    b.oyente->respuesta = E_FAIL;
    CHECK(b.Tras(L"TipoLetra", 1).size() == 1);
    CHECK(segundo->oidos.size() == 1);
}

TEST_CASE("A sink that leaves while it hears hears no more, and the others go on") {
    Banco b;
    const auto segundo = Hacer<Oyente>();
    Conexion otra(b.objeto.get(), IID_IPropertyNotifySink, segundo.get());
    b.oyente->alOir = [&](DISPID) {
        b.conexion->Cortar();
        otra.Cortar();
    };
    CHECK(b.Tras(L"TipoLetra", 1).size() == 1);
    CHECK(segundo->oidos.empty()); // it left before its turn
    CHECK(b.Tras(L"TipoLetra", 2).empty());
}

TEST_CASE("A sink that comes while others hear waits for the next change") {
    Banco b;
    const auto segundo = Hacer<Oyente>();
    std::unique_ptr<Conexion> otra;
    b.oyente->alOir = [&](DISPID) {
        if (!otra)
            otra =
                std::make_unique<Conexion>(b.objeto.get(), IID_IPropertyNotifySink, segundo.get());
    };
    b.Tras(L"TipoLetra", 1);
    CHECK(segundo->oidos.empty());
    b.Tras(L"TipoLetra", 2);
    CHECK(segundo->oidos.size() == 1);
}

TEST_CASE("A handler may release the last reference of the button") {
    Banco b;
    IDispatch* suelto = b.despacho.Separar();
    b.objeto = nullptr;
    b.oyente->alOir = [&](DISPID) {
        b.conexion.reset();
        suelto->Release();
    };
    Poner(suelto, L"TipoLetra", 1);
    CHECK(b.oyente->oidos.size() == 1);
    CHECK(b.componente.PuedeDescargarse());
}
