// The mouse over a labelled text box: hover, its poll, and the focus that holds the colours.
#include "pruebas/nativas/caja_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

/// A control whose surface is green under the mouse and red elsewhere.
std::unique_ptr<CajaDePrueba<Tbox>> Bicolor() {
    auto p = NuevaCaja<Tbox>();
    p->c->PonColorFondo(Color(0xFF));
    p->c->PonColorFondoSobre(Color(0xFF00));
    p->Tomar();
    return p;
}

bool EnVerde(CajaDePrueba<Tbox>& p) {
    return p.e.pantalla.BackColor() == Color(0xFF00);
}

} // namespace

TEST_CASE("the first move colours the control, starts the poll of 1 ms and is told") {
    auto p = Bicolor();
    p->Entrar();
    CHECK(p->Tomar({"superficie.BackColor", "Timer", "evento"}) ==
          Lineas{"superficie.BackColor &HFF00", "Timer.Interval 1", "Timer.Enabled True",
                 "evento MouseMove 0 0 5 6"});
    p->c->MouseMove(1, 2, 7, 8);
    CHECK(p->Tomar() == Lineas{"evento MouseMove 1 2 7 8"});
}

TEST_CASE("the poll looks on while the mouse is over the control or its field") {
    auto p = Bicolor();
    p->Entrar();
    p->Tomar();
    CHECK(p->sondeo().Tic());
    CHECK(p->Tomar() == Lineas{"GetCursorPos", "WindowFromPoint 0,0"});
    p->e.dibujo.ventanaBajoElCursor = p->campo().hWnd();
    CHECK(p->sondeo().Tic());
    CHECK(p->Tomar().size() == 2);
    CHECK(EnVerde(*p));
}

TEST_CASE("the poll stops when the mouse has left: normal colours, then MouseSale") {
    auto p = Bicolor();
    p->Entrar();
    p->Tomar();
    p->e.RatonFuera();
    CHECK(p->sondeo().Tic());
    CHECK(p->Tomar({"Timer", "superficie.BackColor", "evento"}) ==
          Lineas{"Timer.Enabled False", "superficie.BackColor &HFF", "evento MouseSale"});
    CHECK_FALSE(p->sondeo().Tic());
    // And it all begins again.
    p->Entrar();
    CHECK(EnVerde(*p));
    CHECK(p->sondeo().Enabled());
}

TEST_CASE("a point over no window at all is outside, also before there is a window") {
    auto p = Bicolor();
    p->e.pantalla.ventana = 0;
    p->c->MouseMove(0, 0, 1, 1);
    p->e.dibujo.ventanaBajoElCursor = 0;
    p->Tomar();
    p->sondeo().Tic();
    CHECK(p->Eventos() == Lineas{"evento MouseSale"});
}

TEST_CASE("caption and field tell their moves with their own coordinates") {
    auto p = Bicolor();
    p->titulo().oyente->MouseMove(0, 1, 2, 3);
    CHECK(p->Eventos() == Lineas{"evento MouseMove 0 1 2 3"});
    CHECK(EnVerde(*p));
    p->campo().oyente->MouseMove(1, 0, 4, 5);
    CHECK(p->Eventos() == Lineas{"evento MouseMove 1 0 4 5"});
}

TEST_CASE("presses are told on the control's own surface only, releases never") {
    auto p = Bicolor();
    p->c->MouseDown(1, 2, 3, 4);
    CHECK(p->Tomar() == Lineas{"evento MouseDown 1 2 3 4"});
    p->titulo().oyente->MouseDown(1, 0, 1, 1);
    p->campo().oyente->MouseDown(1, 0, 1, 1);
    p->c->MouseUp(1, 2, 3, 4);
    p->titulo().oyente->MouseUp(1, 0, 1, 1);
    p->campo().oyente->MouseUp(1, 0, 1, 1);
    CHECK(p->Tomar().empty());
}

TEST_CASE("a click is told from every part of the control") {
    auto p = Bicolor();
    p->c->Click();
    p->titulo().oyente->Click();
    p->campo().oyente->Click();
    CHECK(p->Tomar() == Lineas{"evento Click", "evento Click", "evento Click"});
}

TEST_CASE("a click ends the hover state without changing colours or poll") {
    auto p = Bicolor();
    p->Entrar();
    p->Tomar();
    p->c->Click();
    CHECK(p->Tomar() == Lineas{"evento Click"});
    CHECK(EnVerde(*p));
    CHECK(p->sondeo().Enabled());
    // The next move enters again.
    p->c->MouseMove(0, 0, 5, 6);
    CHECK(p->Tomar({"superficie.BackColor", "evento"}) ==
          Lineas{"superficie.BackColor &HFF00", "evento MouseMove 0 0 5 6"});
}

TEST_CASE("a disabled control tells no click, press or move, and the mouse changes nothing") {
    auto p = Bicolor();
    p->c->PonEnabled(false);
    p->c->PonFocoConMouse(true);
    p->Tomar();
    p->Entrar();
    p->c->Click();
    p->c->MouseDown(1, 0, 1, 1);
    p->campo().oyente->MouseMove(0, 0, 1, 1);
    p->campo().oyente->Click();
    CHECK(p->Tomar().empty());
    CHECK_FALSE(p->sondeo().Enabled());
}

TEST_CASE("a control disabled under the mouse still notices that it leaves") {
    auto p = Bicolor();
    p->Entrar();
    p->c->PonEnabled(false);
    p->e.RatonFuera();
    p->Tomar();
    p->sondeo().Tic();
    CHECK(p->Eventos() == Lineas{"evento MouseSale"});
    CHECK_FALSE(EnVerde(*p));
}

TEST_CASE("FocoConMouse gives the field the focus before the colours, and needs no poll") {
    auto p = Bicolor();
    p->c->PonFocoConMouse(true);
    p->Tomar();
    p->Entrar();
    CHECK(p->Tomar({"txtTexto.SetFocus", "Timer", "evento"}) ==
          Lineas{"txtTexto.SetFocus", "evento MouseMove 0 0 5 6"});
    CHECK(p->campo().EsActivo());
    CHECK_FALSE(p->sondeo().Enabled());
}

TEST_CASE("the focus alone brings the mouse-over colours") {
    auto p = Bicolor();
    p->Enfocar();
    CHECK(EnVerde(*p));
    CHECK_FALSE(p->sondeo().Enabled());
}

TEST_CASE("a field that loses the focus with the mouse elsewhere turns normal, in silence") {
    auto p = Bicolor();
    p->Enfocar();
    p->Tomar();
    p->Desenfocar();
    CHECK(p->Tomar({"GetCursorPos", "superficie.BackColor", "Timer", "evento"}) ==
          Lineas{"GetCursorPos", "superficie.BackColor &HFF"});
    CHECK_FALSE(p->sondeo().Enabled());
}

TEST_CASE("a field that loses the focus under the mouse leaves the colours to the poll") {
    auto p = Bicolor();
    p->Enfocar();
    p->e.RatonEncima();
    p->Desenfocar();
    CHECK(EnVerde(*p));
    CHECK(p->sondeo().Enabled());
    p->e.RatonFuera();
    p->Tomar();
    p->sondeo().Tic();
    CHECK(p->Eventos() == Lineas{"evento MouseSale"});
    CHECK_FALSE(EnVerde(*p));
    CHECK_FALSE(p->sondeo().Enabled());
}

TEST_CASE("the colours stay while the field has the focus, and no poll runs for that") {
    auto p = Bicolor();
    p->Entrar();
    p->Enfocar();
    p->e.RatonFuera();
    p->Tomar();
    p->sondeo().Tic();
    CHECK(p->Tomar() == Lineas{"Timer.Enabled False"});
    CHECK(EnVerde(*p));
}

TEST_CASE("a mouse that left while the field had the focus is told when it loses it") {
    auto p = Bicolor();
    p->Entrar();
    p->Enfocar();
    p->sondeo().Tic();
    p->e.RatonFuera();
    p->Tomar();
    p->Desenfocar();
    CHECK_FALSE(EnVerde(*p));
    CHECK(p->Eventos().empty());
    CHECK(p->sondeo().Tic());
    CHECK(p->Eventos() == Lineas{"evento MouseSale"});
    CHECK_FALSE(p->sondeo().Enabled());
    // The next visit is a visit again.
    p->Entrar();
    CHECK(EnVerde(*p));
    CHECK(p->sondeo().Enabled());
}

TEST_CASE("the access key gives the focus to the field of an enabled control") {
    auto p = Bicolor();
    p->c->AccessKeyPress(u'n');
    CHECK(p->campo().EsActivo());
    CHECK(p->Eventos().empty());
    p->Desenfocar();
    p->c->PonEnabled(false);
    p->c->AccessKeyPress(u'n');
    CHECK_FALSE(p->campo().EsActivo());
}

TEST_CASE("a form that goes to design mode takes the mouse's colours away and tells nobody") {
    auto p = Bicolor();
    p->Entrar();
    p->Tomar();
    p->c->UserModeChanged();
    CHECK_FALSE(EnVerde(*p));
    CHECK_FALSE(p->sondeo().Tic());
    CHECK(p->Tomar({"evento"}) == Lineas{});
    p->Entrar();
    CHECK(EnVerde(*p));
}

TEST_CASE("a field that keeps the focus keeps its colours when the form goes to design mode") {
    auto p = Bicolor();
    p->campo().SetFocus();
    p->Entrar();
    p->c->UserModeChanged();
    CHECK(EnVerde(*p));
}
