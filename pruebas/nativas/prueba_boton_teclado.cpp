// The keyboard: presses by Space and Enter, access keys and the three key events.
#include "pruebas/nativas/boton_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("Space or Enter down and up raises Click once and no key event") {
    for (std::int16_t tecla : {std::int16_t{32}, std::int16_t{13}}) {
        auto p = Nuevo();
        p->KeyDown(tecla);
        CHECK(p->Tomar({"superficie.Line", "evento"}) == BordeHundido);
        p->KeyUp(tecla);
        CHECK(p->Tomar({"superficie.Line", "evento"}) == BordeLevantado + Lineas{"evento Click"});
    }
}

TEST_CASE("another key raises PresTecla on the way down and SoltoTecla on the way up") {
    auto p = Nuevo();
    p->KeyDown(65, 3);
    CHECK(p->Tomar() == Lineas{"evento PresTecla 65 3"});
    p->KeyUp(65, 3);
    CHECK(p->Tomar() == Lineas{"evento SoltoTecla 65 3"});
}

TEST_CASE("a release without its press is told as a release") {
    auto p = Nuevo();
    p->KeyUp(32);
    CHECK(p->Tomar() == Lineas{"evento SoltoTecla 32 0"});
    p->KeyUp(13);
    CHECK(p->Tomar() == Lineas{"evento SoltoTecla 13 0"});
}

TEST_CASE("another key going down takes the press back") {
    auto p = Nuevo();
    p->KeyDown(32);
    p->KeyDown(65);
    p->Tomar();
    p->KeyUp(32);
    CHECK(p->Tomar() == Lineas{"evento SoltoTecla 32 0"});
}

TEST_CASE("Space down completes with Enter or with the access key going up") {
    auto p = Nuevo();
    p->b->PonCaption(u"&aceptar");
    p->KeyDown(32);
    p->KeyUp(13);
    CHECK(p->Eventos() == Lineas{"evento Click"});
    p->KeyDown(32);
    p->KeyUp(65);
    CHECK(p->Eventos() == Lineas{"evento Click"});
    // Once: the release of Space itself comes later and completes nothing.
    p->KeyUp(32);
    CHECK(p->Eventos() == Lineas{"evento SoltoTecla 32 0"});
    p->KeyDown(32);
    p->KeyUp(66);
    CHECK(p->Eventos() == Lineas{"evento SoltoTecla 66 0"});
}

TEST_CASE("the access key alone completes nothing when it goes up") {
    auto p = Nuevo();
    p->b->PonCaption(u"&aceptar");
    p->KeyDown(65);
    p->KeyUp(65);
    CHECK(p->Eventos() == Lineas{"evento PresTecla 65 0", "evento SoltoTecla 65 0"});
}

TEST_CASE("an access key pressed in the container clicks an enabled button") {
    auto p = Nuevo();
    p->b->AccessKeyPress(u'A');
    CHECK(p->Tomar() == Lineas{"evento Click"});
    p->b->PonEnabled(false);
    p->Tomar();
    p->b->AccessKeyPress(u'A');
    CHECK(p->Tomar().empty());
}

TEST_CASE("a completed press ends the hover state like a click") {
    auto p = Nuevo();
    p->b->PonColorFondoSobre(Color(0xFF));
    p->Entrar();
    p->KeyDown(32);
    p->KeyUp(32);
    p->Tomar();
    p->b->MouseMove(0, 0, 5, 5); // enters again
    CHECK(p->Tomar({"superficie.Cls"}) == Lineas{"superficie.Cls &HFF"});
}

TEST_CASE("every character is told, enabled or not") {
    auto p = Nuevo();
    p->KeyPress(32);
    p->KeyPress(97);
    p->b->PonEnabled(false);
    p->KeyPress(98);
    CHECK(p->Eventos() ==
          Lineas{"evento TocoTecla 32", "evento TocoTecla 97", "evento TocoTecla 98"});
}

TEST_CASE("a disabled button tells nothing of its keys but the characters") {
    auto p = Nuevo();
    p->b->PonEnabled(false);
    p->Tomar();
    p->KeyDown(32);
    p->KeyPress(32);
    p->KeyUp(32);
    p->KeyDown(65);
    p->KeyUp(65);
    CHECK(p->Tomar() == Lineas{"evento TocoTecla 32"});
}

TEST_CASE("a handler may change the key that goes on") {
    auto p = Nuevo();
    p->b->eventos.PresTecla.Conectar([](std::int16_t& tecla, std::int16_t&) { tecla = 0; });
    p->b->eventos.TocoTecla.Conectar([](std::int16_t& tecla) { tecla = 66; });
    p->b->eventos.SoltoTecla.Conectar([](std::int16_t& tecla, std::int16_t&) { tecla = 67; });
    std::int16_t codigo = 65;
    p->b->KeyDown(codigo, 0);
    CHECK(codigo == 0);
    codigo = 65;
    p->b->KeyPress(codigo);
    CHECK(codigo == 66);
    codigo = 65;
    p->b->KeyUp(codigo, 0);
    CHECK(codigo == 67);
}

TEST_CASE("a button disabled with a key down forgets the press") {
    auto p = Nuevo();
    p->KeyDown(32);
    p->b->PonEnabled(false);
    p->KeyUp(32);
    p->b->PonEnabled(true);
    p->Tomar();
    p->KeyUp(32);
    CHECK(p->Tomar() == Lineas{"evento SoltoTecla 32 0"});
}

TEST_CASE("a press that is drawn is let go when the focus leaves with the key down") {
    auto p = Nuevo();
    p->KeyDown(32);
    p->Tomar();
    p->b->ExitFocus();
    CHECK(p->Tomar({"superficie.Line", "evento", "rectFoco"}) ==
          Lineas{"rectFoco.Visible False"} + BordeLevantado);
    p->b->ExitFocus();
    CHECK(p->Tomar() == Lineas{"rectFoco.Visible False"});
}

TEST_CASE("Space held down repeats and still clicks once") {
    auto p = Nuevo();
    for (int i = 0; i < 5; ++i)
        p->KeyDown(32);
    p->KeyUp(32);
    CHECK(p->Eventos() == Lineas{"evento Click"});
}

TEST_CASE("a press that starts while a click is handled is not lost") {
    auto p = Nuevo();
    p->b->eventos.Click.Conectar([&] {
        p->e.registro.Anotar("evento Click");
        p->b->eventos.Click.Conectar([&] { p->e.registro.Anotar("evento Click"); });
        p->KeyDown(32); // a dialogue of the handler pumps messages
    });
    p->KeyDown(32);
    p->KeyUp(32);
    p->KeyUp(32);
    CHECK(p->Eventos() == Lineas{"evento Click", "evento Click"});
}
