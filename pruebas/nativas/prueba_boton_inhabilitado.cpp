// The look of a button that can't be used.
#include "pruebas/nativas/boton_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

/// The drawn button turned grey and laid over itself.
const Lineas Lavado = {"AlphaBlend Picture1 0,0 100x30 <- superficie 0,0 100x30 alfa 255",
                       "Picture1.Desvanecer",
                       "AlphaBlend superficie 0,0 100x30 <- Picture1 0,0 100x30 alfa 155"};
const Lineas ComoEstaba = {"AlphaBlend superficie 0,0 100x30 <- Picture1 0,0 100x30 alfa 0"};

} // namespace

TEST_CASE("disabling tells, greys the caption, redraws and washes the drawing once") {
    auto p = Nuevo();
    p->b->PonEnabled(false);
    CHECK(p->Tomar() == Lineas{"PC Enabled", "lblTitulo.Enabled False"} + DibujoNormal + Lavado);
    CHECK_FALSE(p->b->Enabled());
}

TEST_CASE("enabling redraws and copies nothing visible") {
    auto p = Nuevo();
    p->b->PonEnabled(false);
    p->Tomar();
    p->b->PonEnabled(true);
    CHECK(p->Tomar() == Lineas{"PC Enabled", "lblTitulo.Enabled True"} + DibujoNormal + ComoEstaba);
    // There is no guard: the same again.
    p->b->PonEnabled(true);
    CHECK(p->Tomar().size() == 8);
}

TEST_CASE("every repaint of a disabled button ends washed, and only once") {
    auto p = Nuevo();
    p->b->PonEnabled(false);
    p->Tomar();
    p->b->PonExpandir(true);
    CHECK(p->Tomar() == Lineas{"PC Expandir"} + DibujoNormal + Lavado);
    p->b->PonImagNormal(ImagenDe("disco"));
    CHECK(p->Tomar() == Lineas{"PC ImagNormal", "superficie.Cls &H8000000F",
                               "superficie.PaintPicture disco 1,1 98x28"} +
                            BordeLevantado + Lavado);
    p->b->PonImagNormal(nullptr);
    p->Tomar();
    p->b->PonEfectoBoton(static_cast<EfectosBoton>(3));
    CHECK(p->Tomar() == Lineas{"PC EfectoBoton"} + DibujoNormal + Lavado);
    p->b->PonAnchoBorde(static_cast<Tamanio>(0));
    CHECK(p->Tomar({"Picture1.Desvanecer"}).size() == 1);
    p->b->PonColorFondo(Color(0xFF));
    CHECK(p->Tomar({"Picture1.Desvanecer"}).size() == 1);
}

TEST_CASE("a disabled button is washed again at its new size") {
    auto p = Nuevo();
    p->b->PonEnabled(false);
    p->e.pantalla.ancho = 60;
    p->Tomar();
    p->b->Resize();
    CHECK(p->Tomar({"AuxImagen", "Picture1", "AlphaBlend"}) ==
          Lineas{"AuxImagen.Move 0,0 60x30", "Picture1.Move 0,0 60x30",
                 "AlphaBlend Picture1 0,0 60x30 <- superficie 0,0 60x30 alfa 255",
                 "Picture1.Desvanecer",
                 "AlphaBlend superficie 0,0 60x30 <- Picture1 0,0 60x30 alfa 155"});
}

TEST_CASE("a button restored disabled is washed at the end of the load") {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"Enabled"] = false;
    p.b->ReadProperties(bolsa);
    const Lineas lineas = p.Tomar({"superficie.Cls", "AlphaBlend", "Picture1.Desvanecer"});
    CHECK(lineas == Lineas{"superficie.Cls &H8000000F", "superficie.Cls &H8000000F",
                           "superficie.Cls &H8000000F"} +
                        Lavado);
    CHECK_FALSE(p.e.LaEtiqueta("lblTitulo").Enabled());
}

TEST_CASE("a restored button keeps its usable look while it loads") {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    p.b->ReadProperties(bolsa);
    CHECK(p.Tomar({"AlphaBlend", "Picture1"}).empty());
}

TEST_CASE("a progressive button is washed in the picture it fades from") {
    auto p = Nuevo();
    p->b->PonCambioProgre(true);
    p->b->PonCambioProgrePasos(1);
    p->Tomar();
    p->b->PonEnabled(false);
    CHECK(p->Tomar() == Lineas{"PC Enabled", "lblTitulo.Enabled False", "AuxImagen.Cls &H8000000F",
                               "AuxImagen.Desvanecer",
                               "AlphaBlend superficie 0,0 100x30 <- AuxImagen 0,0 100x30 alfa 255",
                               "TimProg.Enabled False"} +
                            BordeLevantado + Lineas{"superficie.Refresh"});
    p->b->PonEnabled(true);
    CHECK(p->Tomar({"AuxImagen.Desvanecer", "Picture1"}).empty());
}

TEST_CASE("the last of two nested assignments counts for the caption too") {
    auto p = Nuevo();
    bool primera = true;
    p->e.alCambiar = [&](VistaTexto clave) {
        if (clave == u"Enabled" && std::exchange(primera, false))
            p->b->PonEnabled(true);
    };
    p->b->PonEnabled(false);
    CHECK(p->b->Enabled());
    CHECK(p->e.LaEtiqueta("lblTitulo").Enabled());
    CHECK(p->Tomar({"Picture1.Desvanecer"}).empty());
}

TEST_CASE("a button disabled while it is held down is released") {
    auto p = Nuevo();
    p->b->PonCaption(u"Hola");
    p->b->eventos.MouseDown.Conectar([&](auto&...) { p->b->PonEnabled(false); });
    p->b->MouseDown(1, 0, 5, 5);
    CHECK(p->e.LaEtiqueta("lblTitulo").Left() == 37);
    p->b->MouseUp(1, 0, 5, 5);
    CHECK(p->Eventos().empty());
    p->b->PonEnabled(true);
    CHECK(p->Tomar({"superficie.Line"}).back() == BordeLevantado.back());
}
