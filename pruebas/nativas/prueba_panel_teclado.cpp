// The keyboard: Enter and Space press the panel, other keys are told.
#include "pruebas/nativas/panel_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("Enter or Space down and up raises Click and no key event") {
    for (std::int16_t tecla : {std::int16_t{13}, std::int16_t{32}}) {
        auto p = PanelNuevo();
        p->KeyDown(tecla);
        CHECK(p->Tomar().empty());
        p->KeyUp(tecla);
        CHECK(p->Tomar() == Lineas{"evento Click"});
        // Over: the next release is one without its press.
        p->KeyUp(tecla, 1);
        CHECK(p->Tomar() == Lineas{"evento SoltoTecla " + std::to_string(tecla) + " 1"});
    }
}

TEST_CASE("a disabled panel tells nothing of its keys but the characters") {
    auto p = PanelNuevo();
    p->a->PonEnabled(false);
    p->Tomar();
    for (std::int16_t tecla : {std::int16_t{13}, std::int16_t{32}, std::int16_t{65}}) {
        p->KeyDown(tecla);
        p->KeyPress(tecla);
        p->KeyUp(tecla);
    }
    CHECK(p->Tomar() ==
          Lineas{"evento TocoTecla 13", "evento TocoTecla 32", "evento TocoTecla 65"});
}

TEST_CASE("the release of Enter or Space without its press is told as a release") {
    auto p = PanelNuevo();
    p->KeyUp(13);
    p->KeyUp(32, 2);
    CHECK(p->Tomar() == Lineas{"evento SoltoTecla 13 0", "evento SoltoTecla 32 2"});
}

TEST_CASE("another key is told on its way down and on its way up") {
    auto p = PanelNuevo();
    p->KeyDown(65, 3);
    p->KeyPress(97);
    p->KeyUp(65, 3);
    CHECK(p->Tomar() ==
          Lineas{"evento PresTecla 65 3", "evento TocoTecla 97", "evento SoltoTecla 65 3"});
}

TEST_CASE("characters are told whatever the state of the panel") {
    auto p = PanelNuevo();
    p->KeyPress(13);
    p->KeyPress(-1);
    CHECK(p->Tomar() == Lineas{"evento TocoTecla 13", "evento TocoTecla -1"});
}

TEST_CASE("another key going down takes the press back") {
    auto p = PanelNuevo();
    p->KeyDown(13);
    p->KeyDown(65);
    p->Tomar();
    p->KeyUp(13);
    CHECK(p->Tomar() == Lineas{"evento SoltoTecla 13 0"});
}

TEST_CASE("the access key clicks only when Enter or Space went down before it comes up") {
    auto p = PanelNuevo();
    p->a->PonCaption(u"uno &dos &tres");
    p->Tomar();
    p->KeyDown(68);
    p->KeyUp(68);
    CHECK(p->Tomar() == Lineas{"evento PresTecla 68 0", "evento SoltoTecla 68 0"});
    for (std::int16_t tecla : {std::int16_t{68}, std::int16_t{84}}) {
        p->KeyDown(32);
        p->KeyUp(tecla);
        CHECK(p->Tomar() == Lineas{"evento Click"});
    }
    p->KeyDown(32);
    p->KeyUp(85); // in the caption, but not after an ampersand
    CHECK(p->Tomar() == Lineas{"evento SoltoTecla 85 0"});
    p->KeyUp(32);
    CHECK(p->Tomar() == Lineas{"evento SoltoTecla 32 0"});
}

TEST_CASE("a key goes up whatever its code") {
    auto p = PanelNuevo();
    p->a->PonCaption(u"&a");
    p->Tomar();
    for (std::int16_t tecla : {INT16_MIN, -191, 0, 321, INT16_MAX}) {
        p->KeyDown(32);
        p->KeyUp(tecla);
        CHECK(p->Tomar() == Lineas{"evento SoltoTecla " + std::to_string(tecla) + " 0"});
    }
}

TEST_CASE("a panel disabled for the press or for the release forgets the press") {
    for (bool alBajar : {true, false}) {
        INFO("disabled for the press: " << alBajar);
        auto p = PanelNuevo();
        p->a->PonEnabled(!alBajar);
        p->KeyDown(13);
        p->a->PonEnabled(alBajar);
        p->Tomar();
        p->KeyUp(13);
        CHECK(p->Tomar() == (alBajar ? Lineas{"evento SoltoTecla 13 0"} : Lineas{}));
        p->a->PonEnabled(true);
        p->Tomar();
        p->KeyUp(13);
        CHECK(p->Tomar() == Lineas{"evento SoltoTecla 13 0"});
    }
}

TEST_CASE("a click takes a key held down back, also on a disabled panel") {
    auto p = PanelNuevo();
    p->KeyDown(13);
    p->a->Click();
    p->KeyUp(13);
    CHECK(p->Tomar() == Lineas{"evento Click", "evento SoltoTecla 13 0"});
}

TEST_CASE("a key held down repeats and clicks once") {
    auto p = PanelNuevo();
    for (int i = 0; i < 5; ++i)
        p->KeyDown(32);
    p->KeyUp(32);
    CHECK(p->Tomar() == Lineas{"evento Click"});
}

TEST_CASE("a handler may change the key that goes on") {
    auto p = PanelNuevo();
    p->a->eventos.PresTecla.Conectar([](std::int16_t& tecla, std::int16_t&) { tecla = 0; });
    p->a->eventos.TocoTecla.Conectar([](std::int16_t& tecla) { tecla = 66; });
    p->a->eventos.SoltoTecla.Conectar([](std::int16_t& tecla, std::int16_t&) { tecla = 67; });
    std::int16_t codigo = 65;
    p->a->KeyDown(codigo, 0);
    CHECK(codigo == 0);
    codigo = 65;
    p->a->KeyPress(codigo);
    CHECK(codigo == 66);
    codigo = 65;
    p->a->KeyUp(codigo, 0);
    CHECK(codigo == 67);
}

TEST_CASE("a release met while the click is handled does not click again") {
    auto p = PanelNuevo();
    int clics = 0;
    p->a->eventos.Click.Conectar([&] {
        if (++clics == 1)
            p->KeyUp(13); // a dialogue of the handler pumps messages
    });
    p->KeyDown(13);
    p->KeyUp(13);
    CHECK(clics == 1);
    CHECK(p->Tomar() == Lineas{"evento SoltoTecla 13 0"});
}

TEST_CASE("a press that begins while a release is handled ends with it") {
    auto p = PanelNuevo();
    p->a->eventos.SoltoTecla.Conectar([&](auto&...) { p->KeyDown(13); });
    p->KeyUp(65);
    p->a->eventos.SoltoTecla.Conectar([](auto&...) {});
    p->KeyUp(13);
    CHECK(p->Tomar({"evento Click"}).empty());
}
