// The mouse: clicks, presses, hover entry, polling and exit.
#include "pruebas/nativas/boton_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

/// A button whose two looks differ in colour only.
Puntero DosColores() {
    Puntero p = Nuevo();
    p->b->PonColorFondoSobre(Color(0xFF));
    p->b->PonColorLetraSobre(Color(0xFF0000));
    p->Tomar();
    return p;
}

const std::string Encendido = "Timer.Enabled True";

} // namespace

TEST_CASE("a click raises Click while the button is enabled") {
    auto p = Nuevo();
    p->b->Click();
    CHECK(p->Tomar() == Lineas{"evento Click"});
    p->b->PonEnabled(false);
    p->Tomar();
    p->b->Click();
    CHECK(p->Tomar().empty());
}

TEST_CASE("a press is drawn before it is told") {
    auto p = Nuevo();
    p->b->MouseDown(2, 5, 3.5f, -4);
    Lineas lineas = p->Tomar();
    CHECK(lineas.front() == "GetCursorPos");
    CHECK(lineas.back() == "evento MouseDown 2 5 3.5 -4");
    p->b->MouseUp(2, 5, 3.5f, -4);
    lineas = p->Tomar();
    CHECK(lineas.front() == "GetCursorPos");
    CHECK(lineas.back() == "evento MouseUp 2 5 3.5 -4");
}

TEST_CASE("the state refresh reads the cursor, places, asks the window and draws") {
    auto p = Nuevo();
    p->e.dibujo.cursor = {12, 34};
    p->b->PonImagSobre(ImagenDe("sobre"));
    p->Tomar();
    p->b->MouseDown(1, 0, 1, 1);
    CHECK(p->Tomar() == Lineas{"GetCursorPos", "LblSombra.Caption \"\"", "LblSombra.Font \"Arial\"",
                               "lblSombra2.Caption \"\"", "lblSombra2.Font \"Arial\"",
                               "LblSombra.ForeColor &HFFFFFF", "lblSombra2.ForeColor &H0",
                               "lblSombra2.Move 50,8", "LblSombra.Move 50,8", "lblTitulo.Move 50,8",
                               "WindowFromPoint 12,34", "superficie.Cls &H8000000F",
                               "superficie.PaintPicture sobre 3,3 96x26"} +
                            BordeHundido + Lineas{"evento MouseDown 1 0 1 1"});
}

TEST_CASE("the gradient of a press follows the window under the cursor, not the hover state") {
    auto p = Nuevo();
    p->b->PonEstilosRell(TEstilosR::D_Hori);
    p->b->PonColorDegradeN(u"0*0");
    p->b->PonColorDegradeS(u"255*255");
    const std::string normal = "GradientFill superficie modo 0 figuras 1: 0,0 &H0 100,30 &H0";
    const std::string sobre = "GradientFill superficie modo 0 figuras 1: 0,0 &HFF 100,30 &HFF";
    p->Tomar();
    p->e.RatonEncima();
    p->b->MouseDown(1, 0, 1, 1);
    CHECK(p->Tomar({"GradientFill"}) == Lineas{sobre});
    p->e.RatonFuera();
    p->b->MouseUp(1, 0, 1, 1);
    CHECK(p->Tomar({"GradientFill"}) == Lineas{normal});
    // A key press with the mouse elsewhere, even if the hover state has not noticed.
    p->Entrar();
    p->e.RatonFuera();
    p->Tomar();
    p->KeyDown(32);
    CHECK(p->Tomar({"GradientFill"}) == Lineas{normal});
    // Without a window of its own there is nothing under the cursor.
    p->e.pantalla.ventana = 0;
    p->e.dibujo.ventanaBajoElCursor = 0;
    p->KeyUp(32);
    CHECK(p->Tomar({"GradientFill"}) == Lineas{normal});
}

TEST_CASE("entering colours the caption and its copies, repaints, polls and then tells") {
    auto p = DosColores();
    p->Entrar();
    CHECK(p->Tomar() ==
          Lineas{"lblTitulo.ForeColor &HFF0000", "LblSombra.ForeColor &HFFFFFF",
                 "lblSombra2.ForeColor &H0", "superficie.BackColor &HFF", "superficie.Cls &HFF"} +
              BordeLevantado + Lineas{"Timer.Interval 1", Encendido, "evento MouseMove 0 0 5 5"});
    // Only the first move enters.
    p->b->MouseMove(1, 2, 6, 7);
    CHECK(p->Tomar() == Lineas{"evento MouseMove 1 2 6 7"});
}

TEST_CASE("inverse lettering takes the inverse of the mouse-over colour") {
    auto p = DosColores();
    p->b->PonTipoLetra(TLetra::InvesoL);
    p->Entrar();
    CHECK(p->e.LaEtiqueta("LblSombra").ForeColor() == Color(0x00FFFF));
    CHECK(p->e.LaEtiqueta("lblSombra2").ForeColor() == Color(0x00FFFF));
    p->Salir();
    CHECK(p->e.LaEtiqueta("LblSombra").ForeColor() == Blanco); // inverse of black
}

TEST_CASE("the poll does nothing while the window under the cursor is the button's own") {
    auto p = DosColores();
    p->e.dibujo.cursor = {7, 8};
    p->Entrar();
    p->Tomar();
    CHECK(p->e.ElTemporizador("Timer").Tic());
    CHECK(p->Tomar() == Lineas{"GetCursorPos", "WindowFromPoint 7,8"});
}

TEST_CASE("leaving stops the poll, restores colours and look, and raises MouseSale") {
    auto p = DosColores();
    p->Entrar();
    p->Tomar();
    CHECK(p->Salir());
    CHECK(p->Tomar() == Lineas{"GetCursorPos", "WindowFromPoint 0,0", "Timer.Interval 50",
                               "Timer.Enabled False", "lblTitulo.ForeColor &H0",
                               "LblSombra.ForeColor &HFFFFFF", "lblSombra2.ForeColor &H0",
                               "superficie.BackColor &H8000000F"} +
                            DibujoNormal + Lineas{"evento MouseSale"});
    // The poll has ended.
    CHECK_FALSE(p->Salir());
}

TEST_CASE("when both looks are alike entering and leaving repaint nothing but colour the caption") {
    auto p = Nuevo();
    p->b->PonImagNormal(ImagenDe("normal"));
    p->b->PonColorLetraSobre(Color(0xFF));
    p->Tomar();
    p->Entrar();
    CHECK(p->Tomar() == Lineas{"lblTitulo.ForeColor &HFF", "LblSombra.ForeColor &HFFFFFF",
                               "lblSombra2.ForeColor &H0", "superficie.BackColor &H8000000F",
                               "Timer.Interval 1", Encendido, "evento MouseMove 0 0 5 5"});
    p->Salir();
    CHECK(p->Tomar({"superficie.Cls", "evento", "lblTitulo"}) ==
          Lineas{"lblTitulo.ForeColor &H0", "evento MouseSale"});
}

TEST_CASE("the look changes with the colour of a solid face or the list of a gradient one") {
    auto repinta = [](auto preparar) {
        auto p = Nuevo();
        preparar(*p->b);
        p->Tomar();
        p->Entrar();
        return p->Tomar({"superficie.Cls"}).size() == 1;
    };
    const Imagen una = ImagenDe("una");
    CHECK_FALSE(repinta([](Botonazo&) {}));
    CHECK(repinta([](Botonazo& b) { b.PonColorFondoSobre(Color(1)); }));
    CHECK_FALSE(
        repinta([](Botonazo& b) { b.PonColorDegradeS(u"0*1"); })); // solid: lists don't count
    CHECK(repinta([](Botonazo& b) {
        b.PonEstilosRell(TEstilosR::D_Hori);
        b.PonColorDegradeS(u"0*1");
    }));
    // Gradient: back colours don't count, and lists are compared as text.
    CHECK_FALSE(repinta([](Botonazo& b) {
        b.PonEstilosRell(TEstilosR::D_Hori);
        b.PonColorFondoSobre(Color(1));
    }));
    CHECK(repinta([](Botonazo& b) {
        b.PonEstilosRell(TEstilosR::D_Hori);
        b.PonColorDegradeN(u"0*1");
        b.PonColorDegradeS(u"00*1");
    }));
    CHECK(repinta([&](Botonazo& b) { b.PonImagSobre(una); }));
    CHECK_FALSE(repinta([&](Botonazo& b) { b.PonImagNormal(una); }));
    CHECK_FALSE(repinta([&](Botonazo& b) {
        b.PonImagNormal(una);
        b.PonImagSobre(una);
    }));
    CHECK(repinta([](Botonazo& b) { b.PonEfectoBoton(EfectosBoton::BotOculoSobre); }));
}

TEST_CASE("the mouse-over look has its own image, colours and room for the border") {
    auto p = Nuevo();
    p->b->PonEstilosRell(TEstilosR::D_Hori);
    p->b->PonColorDegradeN(u"0*0");
    p->b->PonColorDegradeS(u"255*255");
    p->b->PonImagNormal(ImagenDe("normal"));
    p->b->PonImagSobre(ImagenDe("sobre"));
    p->Tomar();
    p->Entrar();
    CHECK(p->Tomar({"GradientFill", "superficie.PaintPicture"}) ==
          Lineas{"GradientFill superficie modo 0 figuras 1: 0,0 &HFF 100,30 &HFF",
                 "superficie.PaintPicture sobre 2,2 96x26"});
    p->Salir();
    CHECK(p->Tomar({"GradientFill", "superficie.PaintPicture"}) ==
          Lineas{"GradientFill superficie modo 0 figuras 1: 0,0 &H0 100,30 &H0",
                 "superficie.PaintPicture normal 1,1 98x28"});
}

TEST_CASE("the button takes the focus with the mouse only when asked to, and first of all") {
    auto p = DosColores();
    p->b->PonFocoConMouse(true);
    p->Tomar();
    p->Entrar();
    CHECK(p->Tomar().front() == "superficie.SetFocus");
    p->b->MouseMove(0, 0, 6, 6);
    CHECK(p->Tomar() == Lineas{"evento MouseMove 0 0 6 6"});
}

TEST_CASE("a button disabled by whoever saw it take the focus does not enter the hover state") {
    auto p = DosColores();
    p->b->PonFocoConMouse(true);
    p->e.pantalla.alEnfocar = [&] { p->b->PonEnabled(false); };
    p->Tomar();
    p->Entrar();
    CHECK(p->Tomar({"Timer", "evento", "superficie.BackColor"}).empty());
}

TEST_CASE("a click ends the hover state without colours nor stopping the poll") {
    auto p = DosColores();
    p->Entrar();
    p->Tomar();
    p->b->Click();
    CHECK(p->Tomar() == Lineas{"evento Click"});
    CHECK(p->e.ElTemporizador("Timer").Enabled());
    // The next move enters again.
    p->b->MouseMove(0, 0, 5, 5);
    CHECK(p->Tomar({"superficie.Cls", "evento"}) ==
          Lineas{"superficie.Cls &HFF", "evento MouseMove 0 0 5 5"});
    // And without that move the poll still finds the way out.
    p->b->Click();
    p->Tomar();
    p->Salir();
    CHECK(p->Eventos() == Lineas{"evento MouseSale"});
}

TEST_CASE("leaving releases a press") {
    auto p = DosColores();
    p->Entrar();
    p->b->MouseDown(1, 0, 5, 5);
    p->Tomar();
    p->Salir();
    CHECK(p->Tomar({"superficie.Line"}) == BordeLevantado);
    // The release that comes from outside is told as usual.
    p->b->MouseUp(1, 0, 500, 500);
    CHECK(p->Eventos() == Lineas{"evento MouseUp 1 0 500 500"});
}

TEST_CASE("a disabled button tells nothing of the mouse but that it left") {
    auto p = DosColores();
    p->Entrar();
    p->b->PonEnabled(false);
    p->Tomar();
    p->b->Click();
    p->b->MouseDown(1, 0, 5, 5);
    p->b->MouseMove(1, 0, 6, 5);
    p->b->MouseUp(1, 0, 6, 5);
    CHECK(p->Tomar().empty());
    p->Salir();
    CHECK(p->Tomar({"evento", "superficie.BackColor", "Picture1.Desvanecer"}) ==
          Lineas{"superficie.BackColor &H8000000F", "Picture1.Desvanecer", "evento MouseSale"});
    // Without having entered there is nothing to leave.
    p->Entrar();
    CHECK_FALSE(p->Salir());
    CHECK(p->Tomar().empty());
}

TEST_CASE("the three labels pass their mouse on with their own coordinates") {
    auto p = Nuevo();
    for (const char* nombre : {"lblTitulo", "LblSombra", "lblSombra2"}) {
        INFO(nombre);
        OyenteRaton* oyente = p->e.LaEtiqueta(nombre).oyente;
        REQUIRE(oyente);
        p->Tomar();
        oyente->MouseMove(0, 4, 1, 2);
        oyente->MouseDown(1, 0, 2, 3);
        oyente->MouseUp(1, 0, 3, 4);
        oyente->Click();
        CHECK(p->Eventos() == Lineas{"evento MouseMove 0 4 1 2", "evento MouseDown 1 0 2 3",
                                     "evento MouseUp 1 0 3 4", "evento Click"});
    }
}

TEST_CASE("a handler that disables the button keeps MouseUp from being raised") {
    auto p = Nuevo();
    p->b->PonCambioProgre(true);
    p->b->MouseDown(1, 0, 5, 5);
    p->Tomar();
    // Showing the drawing lets the container's handlers run.
    p->e.pantalla.alRefrescar = [&] {
        p->e.pantalla.alRefrescar = nullptr;
        p->b->PonEnabled(false);
    };
    p->b->MouseUp(1, 0, 5, 5);
    CHECK(p->Eventos().empty());
}

TEST_CASE("resize follows the surface, redraws, places, reshapes and tells") {
    auto p = Nuevo();
    p->e.pantalla.ancho = 60;
    p->e.pantalla.alto = 40;
    p->b->Resize();
    CHECK(p->Tomar() == Lineas{"AuxImagen.Move 0,0 60x40",
                               "superficie.Cls &H8000000F",
                               "superficie.Line 1,1 58,1 &HC0C0C0",
                               "superficie.Line 58,1 58,38 &H909090",
                               "superficie.Line 58,38 1,38 &H909090",
                               "superficie.Line 1,38 1,1 &HC0C0C0",
                               "LblSombra.Caption \"\"",
                               "LblSombra.Font \"Arial\"",
                               "lblSombra2.Caption \"\"",
                               "lblSombra2.Font \"Arial\"",
                               "LblSombra.ForeColor &HFFFFFF",
                               "lblSombra2.ForeColor &H0",
                               "lblSombra2.Move 29,12",
                               "LblSombra.Move 29,12",
                               "lblTitulo.Move 29,12",
                               "CreateRoundRectRgn 0,0 61,41 elipse 0x0",
                               "SetWindowRgn 500 True",
                               "DeleteObject",
                               "rectFoco.Move 3,3 54x34",
                               "rectFoco.Elipse 0x0",
                               "evento Resize"});
}

TEST_CASE("a repaint raises Paint and draws nothing, and Validate is never raised") {
    auto p = Nuevo();
    p->b->Paint();
    CHECK(p->Tomar() == Lineas{"evento Paint"});
}
