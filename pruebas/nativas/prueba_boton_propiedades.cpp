// What each assignment does, in order, outside and inside loading.
#include "pruebas/nativas/boton_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

/// Placement of an empty caption in the middle of 100 by 30, with white and black copies.
Lineas UbicadoEn(const std::string& titulo, const std::string& punto) {
    return {"LblSombra.Caption " + titulo,  "LblSombra.Font \"Arial\"",
            "lblSombra2.Caption " + titulo, "lblSombra2.Font \"Arial\"",
            "LblSombra.ForeColor &HFFFFFF", "lblSombra2.ForeColor &H0",
            "lblSombra2.Move " + punto,     "LblSombra.Move " + punto,
            "lblTitulo.Move " + punto};
}

Lineas Gradiente(const std::string& vertices) {
    return Lineas{"superficie.Cls &H8000000F",
                  "GradientFill superficie modo 0 figuras 1: " + vertices} +
           BordeLevantado;
}

const std::string BlancoNegro = "0,0 &HFFFFFF 100,30 &H0";
const std::string RojoAzul = "0,0 &HFF 100,30 &HFF0000";

/// Restores from a bag in which one key holds a value; the lines of that key's assignment.
Lineas AlCargar(const Texto& clave, const Variante& valor,
                const std::vector<std::string>& comienzos) {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[clave] = valor;
    p.b->ReadProperties(bolsa);
    return p.Tomar(comienzos);
}

} // namespace

TEST_CASE("EfectoBoton tells, repaints and draws the border again") {
    auto p = Nuevo();
    p->b->PonEfectoBoton(static_cast<EfectosBoton>(7));
    CHECK(p->Tomar() == Lineas{"PC EfectoBoton"} + DibujoNormal + BordeLevantado);
    CHECK(p->b->EfectoBoton() == static_cast<EfectosBoton>(7));
    p->b->PonEfectoBoton(static_cast<EfectosBoton>(7));
    CHECK(p->Tomar().empty());
}

TEST_CASE("EfectoBoton repaints even while loading") {
    const Lineas lineas =
        AlCargar(u"EfectoBoton", std::int16_t{0}, {"PC", "superficie.Cls", "GetCursorPos"});
    const auto donde = std::find(lineas.begin(), lineas.end(), "PC EfectoBoton");
    REQUIRE(donde != lineas.end());
    CHECK(*(donde + 1) == "superficie.Cls &H8000000F");
}

TEST_CASE("AlinText tells and places the caption") {
    auto p = Nuevo();
    p->b->PonAlinText(Alineaciones::Izq_Sup);
    CHECK(p->Tomar() == Lineas{"PC AlinText"} + UbicadoEn("\"\"", "1,1"));
    p->b->PonAlinText(Alineaciones::Izq_Sup);
    CHECK(p->Tomar().empty());
}

TEST_CASE("Caption goes to the three labels, sets the access keys, places and tells last") {
    auto p = Nuevo();
    p->b->PonCaption(u"&Aceptar");
    CHECK(p->Tomar() == Lineas{"lblTitulo.Caption \"&Aceptar\"", "LblSombra.Caption \"&Aceptar\"",
                               "lblSombra2.Caption \"&Aceptar\"", "superficie.AccessKeys \"Aa\""} +
                            UbicadoEn("\"&Aceptar\"", "28,7") + Lineas{"PC Caption"});
    CHECK(p->b->Caption() == u"&Aceptar");
    // No guard: the same text is assigned again.
    p->b->PonCaption(u"&Aceptar");
    CHECK(p->Tomar({"PC"}) == Lineas{"PC Caption"});
}

TEST_CASE("AlinImag tells and repaints with the hover state") {
    auto p = Nuevo();
    p->b->PonAlinImag(Alineaciones::Der_Inf);
    CHECK(p->Tomar() == Lineas{"PC AlinImag"} + DibujoNormal);
    p->b->PonAlinImag(Alineaciones::Der_Inf);
    CHECK(p->Tomar().empty());
}

TEST_CASE("Font goes to the three labels, tells and places") {
    auto p = Nuevo();
    const auto fuente = std::make_shared<FuenteGrabada>(AtributosFuente{.Name = u"Courier"});
    p->b->PonFont(fuente);
    CHECK(p->Tomar() == Lineas{"lblTitulo.Font \"Courier\"", "LblSombra.Font \"Courier\"",
                               "lblSombra2.Font \"Courier\"", "PC Font", "LblSombra.Caption \"\"",
                               "LblSombra.Font \"Courier\"", "lblSombra2.Caption \"\"",
                               "lblSombra2.Font \"Courier\"", "LblSombra.ForeColor &HFFFFFF",
                               "lblSombra2.ForeColor &H0", "lblSombra2.Move 49,7",
                               "LblSombra.Move 49,7", "lblTitulo.Move 49,7"});
    CHECK(p->b->Font() == fuente);
}

TEST_CASE("a button can't be left without a font") {
    auto p = Nuevo();
    CHECK(ErrorDe([&] { p->b->PonFont(nullptr); }) ==
          static_cast<std::int32_t>(NumeroError::ValorDePropiedad));
    CHECK(p->b->Font() == p->e.fuenteAmbiente);
    CHECK(p->Tomar().empty());
}

TEST_CASE("ColorLetra tells, colours the caption and then its copies") {
    auto p = Nuevo();
    p->b->PonColorLetra(Color(0x123456));
    CHECK(p->Tomar() == Lineas{"PC ColorLetra", "lblTitulo.ForeColor &H123456",
                               "LblSombra.ForeColor &HFFFFFF", "lblSombra2.ForeColor &H0"});
    p->b->PonTipoLetra(TLetra::InvesoL);
    p->Tomar();
    p->b->PonColorLetra(Color(0x0000FF));
    CHECK(p->Tomar() == Lineas{"PC ColorLetra", "lblTitulo.ForeColor &HFF",
                               "LblSombra.ForeColor &HFFFF00", "lblSombra2.ForeColor &HFFFF00"});
    p->b->PonTipoLetra(TLetra::InvesoU);
    p->b->PonColorLetra(TextoDeVentana);
    // A system colour is not resolved: its low bytes count as they stand.
    CHECK(p->e.LaEtiqueta("LblSombra").ForeColor() == Color(0xFFFFF7));
}

TEST_CASE("ColorLetra colours the labels while loading too") {
    CHECK(AlCargar(u"ColorLetra", std::int32_t{0xFF}, {"lblTitulo.ForeColor"}) ==
          Lineas{"lblTitulo.ForeColor &HFF"});
}

TEST_CASE("the colours of the mouse-over look are stored and told, no more") {
    auto p = Nuevo();
    p->b->PonColorLetraSobre(Color(1));
    p->b->PonColorFondoSobre(Color(2));
    p->b->PonColorDegradeS(u"1*2");
    CHECK(p->Tomar() == Lineas{"PC ColorLetraSobre", "PC ColorFondoSobre", "PC ColorDegradeS"});
    CHECK(p->b->ColorLetraSobre() == Color(1));
    CHECK(p->b->ColorFondoSobre() == Color(2));
    CHECK(p->b->ColorDegradeS() == u"1*2");
}

TEST_CASE("ColorFondo becomes the back colour of the surface and shows on a solid button") {
    auto p = Nuevo();
    p->b->PonColorFondo(Color(0xFF));
    CHECK(p->Tomar() ==
          Lineas{"PC ColorFondo", "superficie.BackColor &HFF", "superficie.Cls &HFF"} +
              BordeLevantado);
    p->b->PonEstilosRell(TEstilosR::D_Hori);
    p->Tomar();
    p->b->PonColorFondo(Color(0xFE));
    CHECK(p->Tomar() == Lineas{"PC ColorFondo", "superficie.BackColor &HFE"});
}

TEST_CASE("ColorFondo of a progressive button goes to the auxiliary picture and fades in") {
    auto p = Nuevo();
    p->b->PonCambioProgre(true);
    p->Tomar();
    p->b->PonColorFondo(Color(0xFF));
    CHECK(p->Tomar() == Lineas{"PC ColorFondo", "AuxImagen.BackColor &HFF", "AuxImagen.Cls &HFF",
                               "AlphaBlend superficie 0,0 100x30 <- AuxImagen 0,0 100x30 alfa 255",
                               "TimProg.Enabled False"} +
                            BordeLevantado + Lineas{"superficie.Refresh"});
    CHECK(p->e.pantalla.BackColor() == CaraDeBoton);
}

TEST_CASE("pointer, its icon and the tool tip live where they are shown") {
    auto p = Nuevo();
    const Imagen icono = ImagenDe("mano");
    p->b->PonMouseIcon(icono);
    p->b->PonMousePointer(99);
    p->b->PonToolTipText(u"Guarda");
    CHECK(p->Tomar() == Lineas{"superficie.MouseIcon mano", "PC MouseIcon",
                               "superficie.MousePointer 99", "PC MousePointer",
                               "lblTitulo.ToolTipText \"Guarda\"", "PC ToolTipText"});
    CHECK(p->b->MouseIcon() == icono);
    CHECK(p->b->MousePointer() == 99);
    CHECK(p->b->ToolTipText() == u"Guarda");
    CHECK(p->e.LaEtiqueta("LblSombra").ToolTipText().empty());
}

TEST_CASE("EstilosBord tells and repaints") {
    auto p = Nuevo();
    p->b->PonEstilosBord(TEstilosB::Colores);
    CHECK(p->Tomar() == Lineas{"PC EstilosBord"} + DibujoNormal);
    p->b->PonEstilosBord(TEstilosB::Colores);
    CHECK(p->Tomar().empty());
}

TEST_CASE("EstilosBord Ninguno also resets EfectoBoton") {
    auto p = Nuevo();
    p->b->PonEfectoBoton(EfectosBoton::BotOculoSobre);
    p->Tomar();
    p->b->PonEstilosBord(TEstilosB::Ninguno);
    CHECK(p->b->EfectoBoton() == EfectosBoton::boton);
    CHECK(p->Tomar() == Lineas{"PC EstilosBord", "PC EfectoBoton", "superficie.Cls &H8000000F",
                               "superficie.Cls &H8000000F"});
}

TEST_CASE("EstilosRell previews the mouse-over colours and tells last") {
    auto p = Nuevo();
    p->b->PonColorDegradeN(u"16777215*0");
    p->b->PonColorDegradeS(u"255*16711680");
    p->Tomar();
    p->b->PonEstilosRell(TEstilosR::D_Hori);
    CHECK(p->Tomar() == Gradiente(RojoAzul) + Lineas{"PC EstilosRell"});
    p->b->PonEstilosRell(TEstilosR::D_Hori);
    CHECK(p->Tomar().empty());
}

TEST_CASE("Estilos tells, reshapes, redraws the outline and shows it at once") {
    auto p = Nuevo();
    p->b->PonEstilos(TEstilos::REDONDEADO);
    CHECK(p->Tomar() ==
          Lineas{"PC Estilos", "CreateRoundRectRgn 0,0 101,31 elipse 33x30",
                 "SetWindowRgn 500 True", "DeleteObject", "rectFoco.Move 3,3 94x24",
                 "rectFoco.Elipse 27x24", "superficie.Cls &H8000000F",
                 "superficie.Contorno 1,1 99,29 elipse 31x28 grosor 1 &HC0C0C0 &H909090",
                 "superficie.Refresh"});
    p->b->PonEstilos(TEstilos::REDONDEADO);
    CHECK(p->Tomar().empty());
}

TEST_CASE("Estilos is assigned again while loading") {
    CHECK(AlCargar(u"Estilos", std::int16_t{0}, {"PC Estilos"}).front() == "PC Estilos");
}

TEST_CASE("RelX and RelY tell and reshape") {
    auto p = Nuevo();
    p->b->PonRelX(0.5f);
    CHECK(p->Tomar({"PC", "CreateRound"}) ==
          Lineas{"PC RelX", "CreateRoundRectRgn 0,0 101,31 elipse 0x0"});
    p->b->PonRelX(0.5f);
    CHECK(p->Tomar().empty());
    p->b->PonEstilos(TEstilos::REDONDEADO);
    p->Tomar();
    p->b->PonRelY(0.25f);
    CHECK(p->Tomar({"PC", "CreateRound", "superficie.Contorno"}) ==
          Lineas{"PC RelY", "CreateRoundRectRgn 0,0 101,31 elipse 50x8",
                 "superficie.Contorno 1,1 99,29 elipse 48x6 grosor 1 &HC0C0C0 &H909090"});
    // No guard here.
    p->b->PonRelY(0.25f);
    CHECK(p->Tomar({"PC"}) == Lineas{"PC RelY"});
}

TEST_CASE("while RelX is 0 an assignment to RelY is dropped without notice") {
    auto p = Nuevo();
    p->b->PonRelX(0);
    p->Tomar();
    p->b->PonRelY(0.7f);
    CHECK(p->b->RelY() == 1.0f);
    CHECK(p->Tomar().empty());
}

TEST_CASE("ImagNormal tells and repaints, ImagSobre only tells, and both know the same picture") {
    auto p = Nuevo();
    const Imagen imagen = ImagenDe("disco");
    p->b->PonImagNormal(imagen);
    CHECK(p->Tomar() == Lineas{"PC ImagNormal", "superficie.Cls &H8000000F",
                               "superficie.PaintPicture disco 1,1 98x28"} +
                            BordeLevantado);
    p->b->PonImagNormal(imagen);
    CHECK(p->Tomar().empty());
    p->b->PonImagSobre(imagen);
    CHECK(p->Tomar() == Lineas{"PC ImagSobre"});
    p->b->PonImagSobre(imagen);
    CHECK(p->Tomar().empty());
    p->b->PonImagNormal(nullptr);
    CHECK(p->Tomar() == Lineas{"PC ImagNormal"} + DibujoNormal);
}

TEST_CASE("Actualizar shows the surface and nothing else") {
    auto p = Nuevo();
    p->b->Actualizar();
    CHECK(p->Tomar() == Lineas{"superficie.Refresh"});
}

TEST_CASE("Expandir tells and repaints, without a guard") {
    auto p = Nuevo();
    p->b->PonExpandir(true);
    CHECK(p->Tomar() == Lineas{"PC Expandir"} + DibujoNormal);
}

TEST_CASE("the focus switches are stored and told") {
    auto p = Nuevo();
    p->b->PonFocoVisible(false);
    p->b->PonFocoConMouse(true);
    CHECK(p->Tomar() == Lineas{"PC FocoVisible", "PC FocoConMouse"});
    CHECK_FALSE(p->b->FocoVisible());
    CHECK(p->b->FocoConMouse());
}

TEST_CASE("AnchoBorde sets the width of lines, repaints without colours and tells last") {
    auto p = Nuevo();
    p->b->PonEstilosRell(TEstilosR::D_Hori);
    p->b->PonColorDegradeN(u"16777215*0");
    p->Tomar();
    p->b->PonAnchoBorde(Tamanio::Grande);
    // No gradient: the face is plain until the next repaint.
    CHECK(p->Tomar() ==
          Lineas{"superficie.DrawWidth 3", "rectFoco.Move 7,7 86x16", "rectFoco.Elipse 0x0",
                 "superficie.Cls &H8000000F", "superficie.Line 3,3 96,3 &HC0C0C0",
                 "superficie.Line 96,3 96,26 &H909090", "superficie.Line 96,26 3,26 &H909090",
                 "superficie.Line 3,26 3,3 &HC0C0C0", "PC AnchoBorde"});
    p->b->PonAnchoBorde(Tamanio::Grande);
    CHECK(p->Tomar().empty());
}

TEST_CASE("TipoLetra places the copies, leaves their colours and tells last") {
    auto p = Nuevo();
    p->b->PonTipoLetra(TLetra::InvesoL);
    CHECK(p->Tomar() == Lineas{"LblSombra.Caption \"\"", "LblSombra.Font \"Arial\"",
                               "lblSombra2.Caption \"\"", "lblSombra2.Font \"Arial\"",
                               "lblSombra2.Move 50,8", "LblSombra.Move 48,6", "lblTitulo.Move 49,7",
                               "PC TipoLetra"});
    CHECK(p->e.LaEtiqueta("LblSombra").ForeColor() == Blanco);
    CHECK(p->e.LaEtiqueta("lblSombra2").ForeColor() == Negro);
    p->b->PonTipoLetra(TLetra::InvesoL);
    CHECK(p->Tomar().empty());
    p->b->PonColorLetra(Color(0xFF));
    CHECK(p->e.LaEtiqueta("LblSombra").ForeColor() == Color(0xFFFF00));
}

TEST_CASE("CambioProgre is told, and the colour follows to the canvas that is cleared next") {
    auto p = Nuevo();
    p->b->PonColorFondo(Color(0xFF));
    p->Tomar();
    p->b->PonCambioProgre(true);
    CHECK(p->Tomar() == Lineas{"PC CambioProgre", "AuxImagen.BackColor &HFF"});
    p->b->PonColorFondo(Color(0xFE));
    p->Tomar();
    p->b->PonCambioProgre(false);
    CHECK(p->Tomar() == Lineas{"PC CambioProgre", "superficie.BackColor &HFE"});
}

TEST_CASE("CambioProgrePasos stops the change in course at once") {
    auto p = Nuevo();
    p->b->PonCambioProgrePasos(200);
    CHECK(p->Tomar() == Lineas{"TimProg.Enabled False", "PC CambioProgrePasos"});
    CHECK(p->b->CambioProgrePasos() == 200);
}

TEST_CASE("the members for the pages tell and repaint with the normal colours") {
    auto p = Nuevo();
    p->b->PonEstilosRell(TEstilosR::D_Hori);
    p->Tomar();
    p->b->PonColorDegradeN(u"16777215*0");
    CHECK(p->Tomar() == Lineas{"PC ColorDegradeN"} + Gradiente(BlancoNegro));
    p->b->PonAngulo(90);
    CHECK(p->Tomar() == Lineas{"PC Angulo"} + Gradiente(BlancoNegro));
    p->b->PonEstilosRell(TEstilosR::D_Diagonal);
    p->Tomar();
    p->b->PonAngulo(270);
    CHECK(p->Tomar({"GradientFill"}) ==
          Lineas{"GradientFill superficie modo 0 figuras 1: 0,0 &H0 100,30 &HFFFFFF"});
    CHECK(p->b->Angulo() == 270);
    CHECK(p->b->ColorDegradeN() == u"16777215*0");
}

TEST_CASE("enumerations keep any whole number") {
    auto p = Nuevo();
    p->b->PonAlinText(static_cast<Alineaciones>(-5));
    p->b->PonAlinImag(static_cast<Alineaciones>(77));
    p->b->PonEstilosRell(static_cast<TEstilosR>(99));
    p->b->PonEstilosBord(static_cast<TEstilosB>(50));
    p->b->PonTipoLetra(static_cast<TLetra>(-1));
    p->b->PonEstilos(static_cast<TEstilos>(5));
    CHECK(p->b->AlinText() == static_cast<Alineaciones>(-5));
    CHECK(p->b->AlinImag() == static_cast<Alineaciones>(77));
    CHECK(p->b->EstilosRell() == static_cast<TEstilosR>(99));
    CHECK(p->b->EstilosBord() == static_cast<TEstilosB>(50));
    CHECK(p->b->TipoLetra() == static_cast<TLetra>(-1));
    CHECK(p->b->Estilos() == static_cast<TEstilos>(5));
    BolsaGrabadora bolsa;
    p->b->WriteProperties(bolsa);
    CHECK(Describir(bolsa.valores.at(u"AlinText")) == "Entero32 -5");
    CHECK(Describir(bolsa.valores.at(u"Estilos")) == "Entero32 5");
}
