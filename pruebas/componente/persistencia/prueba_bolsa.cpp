// The button and its container's property bag.
#include "anfitrion/bolsa_memoria.h"
#include "pruebas/componente/comun/boton.h"

#include <doctest/doctest.h>

using namespace publicado;
using anfitrion::BolsaMemoria;
using anfitrion::Estrechar;
using anfitrion::Hacer;

namespace {

std::vector<std::string> Estrechas(const std::vector<std::wstring>& textos) {
    std::vector<std::string> salida;
    for (const std::wstring& uno : textos)
        salida.push_back(Estrechar(uno));
    return salida;
}

void CompararListas(const std::vector<std::string>& leidas,
                    const std::vector<std::string>& esperadas) {
    CHECK(leidas.size() == esperadas.size());
    for (std::size_t i = 0; i < leidas.size() && i < esperadas.size(); ++i)
        CHECK(leidas[i] == esperadas[i]);
}

Puntero<BolsaMemoria> Guardada(const Boton& boton) {
    const auto bolsa = Hacer<BolsaMemoria>();
    REQUIRE(boton.Como<IPersistPropertyBag>()->Save(bolsa.get(), TRUE, FALSE) == S_OK);
    return bolsa;
}

} // namespace

TEST_CASE("A new button writes only what differs from the defaults") {
    const Boton boton;
    const auto persistente = boton.Como<IPersistPropertyBag>();
    REQUIRE(persistente->InitNew() == S_OK);
    const auto bolsa = Guardada(boton);
    // Its RelY is 1, not the 1.5 of a missing key; its steps are none, not one.
    CompararListas(Estrechas(bolsa->Claves(true)), {"RelY", "CambioProgrePasos"});
    CHECK(anfitrion::Real(*bolsa->Buscar(L"RelY")) == 1.0);
    CHECK(anfitrion::Entero(*bolsa->Buscar(L"CambioProgrePasos")) == 0);
}

TEST_CASE("The keys are written in their order, the pointer's picture is not among them") {
    const Boton boton;
    CambiarTodo(boton.get());
    PonerRef(boton.get(), L"MouseIcon", Variante(IconoDePrueba().get()));
    const auto bolsa = Guardada(boton);
    // The three internal ones can't be changed from here and stay out.
    CompararListas(Estrechas(bolsa->Claves(true)),
                   {"FocoVisible",  "FocoConMouse",     "EfectoBoton", "RelX",
                    "RelY",         "Estilos",          "EstilosBord", "AnchoBorde",
                    "EstilosRell",  "AlinImag",         "AlinText",    "Caption",
                    "ColorLetra",   "ColorLetraSobre",  "ColorFondo",  "ColorFondoSobre",
                    "Font",         "MousePointer",     "ToolTipText", "TipoLetra",
                    "ImagNormal",   "ImagSobre",        "Expandir",    "Enabled",
                    "CambioProgre", "CambioProgrePasos"});
    CHECK(bolsa->Buscar(L"CambioProgrePasos")->vt == VT_UI1);
    CHECK(bolsa->Buscar(L"RelX")->vt == VT_R4);
    CHECK(bolsa->Buscar(L"Enabled")->vt == VT_BOOL);
    CHECK(bolsa->Buscar(L"ColorFondo")->vt == VT_I4);
    CHECK(bolsa->Buscar(L"Caption")->vt == VT_BSTR);
    CHECK(bolsa->Buscar(L"MousePointer")->vt == VT_I2);
}

TEST_CASE("A container that wants all of it gets the values that equal their defaults too") {
    const Boton boton;
    REQUIRE(boton.Como<IPersistPropertyBag>()->InitNew() == S_OK);
    const auto bolsa = Hacer<BolsaMemoria>();
    REQUIRE(boton.Como<IPersistPropertyBag>()->Save(bolsa.get(), TRUE, TRUE) == S_OK);
    CompararListas(Estrechas(bolsa->Claves(true)), {"FocoVisible",
                                                    "FocoConMouse",
                                                    "EfectoBoton",
                                                    "RelX",
                                                    "RelY",
                                                    "Estilos",
                                                    "EstilosBord",
                                                    "AnchoBorde",
                                                    "EstilosRell",
                                                    "Angulo",
                                                    "AlinImag",
                                                    "AlinText",
                                                    "Caption",
                                                    "ColorLetra",
                                                    "ColorLetraSobre",
                                                    "ColorFondo",
                                                    "ColorFondoSobre",
                                                    "ColorDegradeN",
                                                    "ColorDegradeS",
                                                    "Font",
                                                    "MousePointer",
                                                    "ToolTipText",
                                                    "TipoLetra",
                                                    "ImagNormal",
                                                    "ImagSobre",
                                                    "Expandir",
                                                    "Enabled",
                                                    "CambioProgre",
                                                    "CambioProgrePasos"});
    REQUIRE(bolsa->Buscar(L"EstilosBord"));
    CHECK(anfitrion::Entero(*bolsa->Buscar(L"EstilosBord")) == 1);
    const Boton otro;
    REQUIRE(otro.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    CompararListas(Retrato(otro.get()), Retrato(boton.get()));
}

TEST_CASE("A button reads its keys in their order, and defaults stand in for missing ones") {
    const Boton boton;
    CambiarTodo(boton.get()); // what was there before does not shine through
    const auto bolsa = Hacer<BolsaMemoria>();
    REQUIRE(boton.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    CompararListas(Estrechas(bolsa->Claves(false)), {"CambioProgre",  "CambioProgrePasos",
                                                     "FocoVisible",   "FocoConMouse",
                                                     "Caption",       "RelX",
                                                     "RelY",          "Estilos",
                                                     "EstilosBord",   "AnchoBorde",
                                                     "Angulo",        "EstilosRell",
                                                     "EfectoBoton",   "Enabled",
                                                     "AlinText",      "AlinImag",
                                                     "ColorDegradeN", "ColorDegradeS",
                                                     "ColorLetra",    "ColorLetraSobre",
                                                     "ColorFondo",    "ColorFondoSobre",
                                                     "Font",          "MouseIcon",
                                                     "MousePointer",  "ToolTipText",
                                                     "Expandir",      "TipoLetra",
                                                     "ImagNormal",    "ImagSobre"});
    const struct {
        const wchar_t* nombre;
        const char* valor;
    } defectos[] = {{L"EfectoBoton", "0"},
                    {L"AlinText", "4"},
                    {L"Caption", ""},
                    {L"AlinImag", "0"},
                    {L"ColorLetra", "0"},
                    {L"ColorLetraSobre", "0"},
                    {L"ColorFondo", "-2147483633"},
                    {L"ColorFondoSobre", "-2147483633"},
                    {L"MouseIcon", "Nothing"},
                    {L"MousePointer", "0"},
                    {L"ToolTipText", ""},
                    {L"EstilosBord", "1"},
                    {L"EstilosRell", "0"},
                    {L"Estilos", "0"},
                    {L"RelX", "0.33333"},
                    {L"RelY", "1.5"},
                    {L"ImagNormal", "Nothing"},
                    {L"ImagSobre", "Nothing"},
                    {L"Expandir", "True"},
                    {L"Enabled", "True"},
                    {L"FocoVisible", "True"},
                    {L"FocoConMouse", "False"},
                    {L"AnchoBorde", "1"},
                    {L"TipoLetra", "0"},
                    {L"CambioProgre", "False"},
                    {L"CambioProgrePasos", "1"}};
    for (const auto& uno : defectos) {
        INFO(Estrechar(uno.nombre));
        CHECK(Describir(Leer(boton.get(), uno.nombre)) == uno.valor);
    }
}

TEST_CASE("A button loaded from its bag is the same, except that it lost its pointer's picture") {
    const Boton uno;
    CambiarTodo(uno.get());
    const std::vector<std::string> esperado = Retrato(uno.get());
    PonerRef(uno.get(), L"MouseIcon", Variante(IconoDePrueba().get()));
    const auto bolsa = Guardada(uno);
    const Boton otro;
    REQUIRE(otro.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    CompararListas(Retrato(otro.get()), esperado);
}

TEST_CASE("A pointer's picture that stands in the bag all the same is taken") {
    const Boton boton;
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"MouseIcon", Variante(IconoDePrueba().get()));
    REQUIRE(boton.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    CHECK(Describir(Leer(boton.get(), L"MouseIcon")).starts_with("icon"));
}

TEST_CASE("Library-internal values come and go through the bag unseen") {
    const Boton boton;
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"Angulo", short{30});
    bolsa->Poner(L"ColorDegradeN", L"255*0");
    bolsa->Poner(L"ColorDegradeS", L"0*65280*255");
    REQUIRE(boton.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    const auto salida = Guardada(boton);
    CompararListas(Estrechas(salida->Claves(true)), {"Angulo", "ColorDegradeN", "ColorDegradeS"});
    CHECK(anfitrion::Entero(*salida->Buscar(L"Angulo")) == 30);
    CHECK(anfitrion::Texto(*salida->Buscar(L"ColorDegradeS")) == L"0*65280*255");
}

TEST_CASE("Values outside an enumeration are kept and saved as they are") {
    const Boton boton;
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"Estilos", 77);
    bolsa->Poner(L"TipoLetra", -4);
    bolsa->Poner(L"AlinText", 1000000);
    REQUIRE(boton.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    CHECK(anfitrion::Entero(Leer(boton.get(), L"Estilos")) == 77);
    CHECK(anfitrion::Entero(Leer(boton.get(), L"TipoLetra")) == -4);
    const auto salida = Guardada(boton);
    CHECK(anfitrion::Entero(*salida->Buscar(L"AlinText")) == 1000000);
}

TEST_CASE("Values arrive in whatever type a form file gives them") {
    const Boton boton;
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"CambioProgrePasos", L"12");
    bolsa->Poner(L"Enabled", 0);
    bolsa->Poner(L"RelX", L"0.5");
    bolsa->Poner(L"ColorFondo", L"&H00FF00");
    bolsa->Poner(L"Caption", 15);
    bolsa->Poner(L"Angulo", 89.5);
    bolsa->hostilidad = anfitrion::Hostilidad::sinConversion;
    REQUIRE(boton.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    CHECK(Describir(Leer(boton.get(), L"CambioProgrePasos")) == "12");
    CHECK(Describir(Leer(boton.get(), L"Enabled")) == "False");
    CHECK(Describir(Leer(boton.get(), L"RelX")) == "0.5");
    CHECK(Describir(Leer(boton.get(), L"ColorFondo")) == "65280");
    CHECK(Describir(Leer(boton.get(), L"Caption")) == "15");
}

TEST_CASE("Fonts that only share their attributes with the ambient one are not written") {
    const Boton boton;
    REQUIRE(boton.Como<IPersistPropertyBag>()->InitNew() == S_OK);
    const Puntero<IFont> fuente =
        Puntero<IUnknown>(Leer(boton.get(), L"Font").punkVal).Como<IFont>();
    REQUIRE(fuente);
    Puntero<IFont> copia;
    REQUIRE(fuente->Clone(copia.Recibir()) == S_OK);
    PonerRef(boton.get(), L"Font", Variante(copia.Como<IDispatch>().get()));
    CHECK(Guardada(boton)->Buscar(L"Font") == nullptr);
    copia->put_Underline(TRUE);
    CHECK(Guardada(boton)->Buscar(L"Font") != nullptr);
}
