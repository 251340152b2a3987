// Where the image goes, and which one is drawn.
#include "pruebas/nativas/boton_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

/// Button of 100 by 30 with pictures of 10 by 8 pixels for both looks.
Puntero ConImagen() {
    Puntero p = Nuevo();
    p->b->PonImagSobre(ImagenDe("sobre", 250, 200));
    p->b->PonImagNormal(ImagenDe("normal", 250, 200));
    p->Tomar();
    return p;
}

std::string Pintada(BotonDePrueba& p) {
    const Lineas lineas = p.Tomar({"superficie.PaintPicture"});
    return lineas.size() == 1 ? lineas[0].substr(23) : std::to_string(lineas.size()) + " drawings";
}

} // namespace

TEST_CASE("a stretched image leaves one pixel at rest and twice the border under the mouse") {
    auto p = ConImagen();
    p->b->PonExpandir(true);
    CHECK(Pintada(*p) == " normal 1,1 98x28");
    p->Entrar();
    CHECK(Pintada(*p) == " sobre 2,2 96x26");
    p->Salir();
    CHECK(Pintada(*p) == " normal 1,1 98x28");
    p->b->PonAnchoBorde(Tamanio::Grande);
    CHECK(Pintada(*p) == " normal 1,1 98x28");
    p->Entrar();
    CHECK(Pintada(*p) == " sobre 6,6 88x18");
}

TEST_CASE("a lineal border leaves no room at rest and one pixel under the mouse") {
    auto p = ConImagen();
    for (Tamanio borde : {Tamanio::Grande, Tamanio::Mediano, static_cast<Tamanio>(0)}) {
        p->b->PonAnchoBorde(borde);
        p->b->PonEstilosBord(TEstilosB::Lineal);
        p->Tomar();
        p->b->PonExpandir(true);
        CHECK(Pintada(*p) == " normal 0,0 100x30");
        p->Entrar();
        CHECK(Pintada(*p) == " sobre 1,1 98x28");
        p->Salir();
        p->Tomar();
    }
}

TEST_CASE("without a border the image fills the button at rest, fractions included") {
    auto p = ConImagen();
    p->b->PonEstilosBord(TEstilosB::Ninguno);
    CHECK(Pintada(*p) == " normal 0,0 100x30");
    p->e.pantalla.ancho = 100.5f;
    p->b->PonExpandir(true);
    CHECK(Pintada(*p) == " normal 0,0 100.5x30");
    p->Entrar();
    CHECK(Pintada(*p) == " sobre 2,2 96x26"); // 96.5 rounds to even
}

TEST_CASE("an image of its own size goes to the nine places, the margin added on every side") {
    auto p = ConImagen();
    p->b->PonExpandir(false);
    p->Tomar();
    // Margin 1: near side 1+2; middle 1+Int((100-10)/2), 1+Int((30-8)/2); far side 1+90, 1+22.
    const char* columnas[] = {"3", "46", "91"};
    const char* filas[] = {"3", "12", "23"};
    for (int lugar : {1, 2, 3, 4, 5, 6, 7, 8, 0}) {
        INFO("place " << lugar);
        p->b->PonAlinImag(static_cast<Alineaciones>(lugar));
        CHECK(Pintada(*p) ==
              std::string(" normal ") + columnas[lugar / 3] + "," + filas[lugar % 3] + " 10x8");
    }
    p->b->PonAlinImag(static_cast<Alineaciones>(9));
    CHECK(Pintada(*p) == " normal 0,0 10x8");
}

TEST_CASE("the size of an image is converted from HIMETRIC and halves go down") {
    auto p = ConImagen();
    p->b->PonExpandir(false);
    p->b->PonAlinImag(Alineaciones::Medio);
    p->Tomar();
    p->b->PonImagNormal(ImagenDe("grande", 25 * 121, 25 * 33)); // 121 by 33
    CHECK(Pintada(*p) == " grande -10,-1 121x33");              // 1+Int(-10.5), 1+Int(-1.5)
    p->b->PonImagNormal(ImagenDe("medio", 260, 210));           // 10.4 by 8.4
    CHECK(Pintada(*p) == " medio 45,11 10.4x8.4");              // 1+Int(44.8), 1+Int(10.8)
}

TEST_CASE("a pressed button moves its image together with its caption") {
    auto p = ConImagen();
    p->b->PonAnchoBorde(Tamanio::Mediano);
    p->Tomar();
    p->b->MouseDown(1, 0, 5, 5);
    CHECK(Pintada(*p) == " sobre 6,6 92x22"); // margin 4 and the border's 2
    p->b->MouseUp(1, 0, 5, 5);
    CHECK(Pintada(*p) == " normal 1,1 98x28");
    p->b->PonExpandir(false);
    p->Tomar();
    p->b->MouseDown(1, 0, 5, 5);
    CHECK(Pintada(*p) == " sobre 8,8 10x8");
}

TEST_CASE("a pressed button without an image for it shows none") {
    Puntero p = Nuevo();
    p->b->PonImagNormal(ImagenDe("normal"));
    p->Tomar();
    p->b->MouseDown(1, 0, 5, 5);
    CHECK(p->Tomar({"superficie.PaintPicture"}).empty());
    p->b->MouseUp(1, 0, 5, 5);
    CHECK(Pintada(*p) == " normal 1,1 98x28");
}

TEST_CASE("a button smaller than its margins draws no image") {
    auto p = ConImagen();
    p->e.pantalla.ancho = 2;
    p->b->Resize();
    CHECK(p->Tomar({"superficie.PaintPicture"}).empty());
    p->e.pantalla.ancho = 3;
    p->b->Resize();
    CHECK(Pintada(*p) == " normal 1,1 1x28");
    p->b->PonExpandir(false);
    p->Tomar();
    p->b->PonImagNormal(ImagenDe("vacia", 0, 0));
    CHECK(p->Tomar({"superficie.PaintPicture"}).empty());
}

TEST_CASE("the image lies over the gradient and under the border") {
    auto p = ConImagen();
    p->b->PonEstilosRell(TEstilosR::D_Vert);
    p->Tomar();
    p->b->PonColorDegradeN(u"0*255");
    CHECK(p->Tomar() == Lineas{"PC ColorDegradeN", "superficie.Cls &H8000000F",
                               "GradientFill superficie modo 1 figuras 1: 0,0 &H0 100,30 &HFF",
                               "superficie.PaintPicture normal 1,1 98x28"} +
                            BordeLevantado);
}

TEST_CASE("a gradient of a style that isn't one leaves the back colour") {
    auto p = ConImagen();
    p->b->PonColorDegradeN(u"0*255");
    p->b->PonEstilosRell(static_cast<TEstilosR>(5));
    p->Tomar();
    p->b->PonAngulo(1);
    CHECK(p->Tomar({"GradientFill", "superficie.Cls"}) == Lineas{"superficie.Cls &H8000000F"});
}

TEST_CASE("a gradient covers the size rounded to whole pixels, halves to even") {
    auto p = ConImagen();
    p->b->PonEstilosRell(TEstilosR::D_Hori);
    p->e.pantalla.ancho = 100.5f;
    p->e.pantalla.alto = 31.5f;
    p->Tomar();
    p->b->PonColorDegradeN(u"0*255");
    CHECK(p->Tomar({"GradientFill"}) ==
          Lineas{"GradientFill superficie modo 0 figuras 1: 0,0 &H0 100,32 &HFF"});
}

TEST_CASE("margins of borders out of their three sizes overflow a byte") {
    auto p = ConImagen();
    p->e.pantalla.ancho = p->e.pantalla.alto = 1000;
    p->b->PonAnchoBorde(static_cast<Tamanio>(127));
    p->Tomar();
    p->Entrar();
    CHECK(Pintada(*p) == " sobre 254,254 492x492");
    p->Salir();
    p->b->PonAnchoBorde(static_cast<Tamanio>(128));
    p->Tomar();
    CHECK(ErrorDe([&] { p->b->MouseDown(1, 0, 5, 5); }) == Desborda);
    p->b->PonAnchoBorde(static_cast<Tamanio>(-1));
    CHECK(ErrorDe([&] { p->b->MouseDown(1, 0, 5, 5); }) == Desborda);
}
