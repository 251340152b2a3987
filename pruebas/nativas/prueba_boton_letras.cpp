// Where the caption and its two copies go, and the rules of captions that controls share.
#include "pruebas/nativas/boton_de_prueba.h"

#include "common/lugar.h"
#include "efectos/efectos.h"
#include "efectos/letras.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

struct Sitio {
    float x, y;
    friend bool operator==(Sitio, Sitio) = default;
};

Sitio SitioDe(BotonDePrueba& p, const char* nombre) {
    return {p.e.LaEtiqueta(nombre).Left(), p.e.LaEtiqueta(nombre).Top()};
}

/// A caption of 24 by 13 in a button of 100 by 30.
Puntero ConTitulo(Tamanio borde) {
    Puntero p = Nuevo();
    p->b->PonCaption(u"Hola");
    p->b->PonAnchoBorde(borde);
    return p;
}

} // namespace

TEST_CASE("the caption goes to each of the nine places, in from the edge by the border") {
    // Middle: Int((100-24-2m)/2) and Int((30-13-2m)/2); far side: 100-24-m and 30-13-m.
    struct Caso {
        Tamanio borde;
        float columnas[3], filas[3];
    };
    const Caso casos[] = {{Tamanio::Chico, {1, 37, 75}, {1, 7, 16}},
                          {Tamanio::Mediano, {2, 36, 74}, {2, 6, 15}},
                          {Tamanio::Grande, {3, 35, 73}, {3, 5, 14}}};
    for (const Caso& caso : casos) {
        auto p = ConTitulo(caso.borde);
        for (int lugar = 0; lugar < 9; ++lugar) {
            INFO("border " << static_cast<int>(caso.borde) << ", place " << lugar);
            p->b->PonAlinText(Alineaciones::Izq_Med);
            p->b->PonAlinText(static_cast<Alineaciones>(lugar));
            CHECK(SitioDe(*p, "lblTitulo") ==
                  Sitio{caso.columnas[lugar / 3], caso.filas[lugar % 3]});
        }
    }
}

TEST_CASE("what is none of the nine places puts the caption in the corner") {
    auto p = ConTitulo(Tamanio::Mediano);
    for (int lugar : {-1, 9, 100}) {
        p->b->PonAlinText(static_cast<Alineaciones>(lugar));
        CHECK(SitioDe(*p, "lblTitulo") == Sitio{0, 0});
    }
}

TEST_CASE("halves round toward minus infinity, also below zero") {
    auto p = ConTitulo(Tamanio::Chico);
    p->e.pantalla.ancho = 25;   // (25-24-2)/2 = -0.5
    p->e.pantalla.alto = 10.5f; // (10.5-13-2)/2 = -2.25
    p->b->PonTipoLetra(TLetra::Undida);
    CHECK(SitioDe(*p, "lblTitulo") == Sitio{-1, -3});
    p->b->PonAlinText(Alineaciones::Der_Inf); // 25-24-1 and 10.5-13-1 = -3.5
    CHECK(SitioDe(*p, "lblTitulo") == Sitio{0, -4});
}

TEST_CASE("a button as wide as its caption and both borders starts the caption at 0") {
    auto p = ConTitulo(Tamanio::Grande);
    p->e.pantalla.ancho = 24 + 2 * 3;
    p->b->PonFont(p->e.fuenteAmbiente);
    CHECK(SitioDe(*p, "lblTitulo").x == 0);
}

TEST_CASE("raised lettering lifts the white copy, sunken lettering sinks it") {
    auto p = ConTitulo(Tamanio::Mediano);
    struct Caso {
        TLetra tipo;
        float d;
    };
    // Assigned in an order that never repeats the stored value.
    for (const Caso& caso :
         {Caso{TLetra::Levantada, -1}, Caso{TLetra::Undida, 1}, Caso{TLetra::InvesoL, -1},
          Caso{TLetra::InvesoU, 1}, Caso{TLetra::Normal, 0}, Caso{static_cast<TLetra>(5), 0}}) {
        INFO("lettering " << static_cast<int>(caso.tipo));
        p->b->PonTipoLetra(caso.tipo);
        CHECK(SitioDe(*p, "lblTitulo") == Sitio{36, 6});
        CHECK(SitioDe(*p, "LblSombra") == Sitio{36 + caso.d, 6 + caso.d});
        CHECK(SitioDe(*p, "lblSombra2") == Sitio{36 - caso.d, 6 - caso.d});

        // Pressed: everything moves by the border's width.
        p->b->MouseDown(1, 0, 5, 5);
        CHECK(SitioDe(*p, "lblTitulo") == Sitio{38, 8});
        CHECK(SitioDe(*p, "LblSombra") == Sitio{38 + caso.d, 8 + caso.d});
        CHECK(SitioDe(*p, "lblSombra2") == Sitio{38 - caso.d, 8 - caso.d});
        p->b->MouseUp(1, 0, 5, 5);
        CHECK(SitioDe(*p, "lblTitulo") == Sitio{36, 6});
    }
}

TEST_CASE("the labels move in order: second copy, first copy, caption") {
    auto p = ConTitulo(Tamanio::Chico);
    p->Tomar();
    p->b->PonTipoLetra(TLetra::Levantada);
    CHECK(p->Tomar({"lblSombra2.Move", "LblSombra.Move", "lblTitulo.Move"}) ==
          Lineas{"lblSombra2.Move 38,8", "LblSombra.Move 36,6", "lblTitulo.Move 37,7"});
}

TEST_CASE("a press recolours the copies by the lettering in force") {
    auto p = ConTitulo(Tamanio::Chico);
    p->b->PonColorLetra(Color(0xFF));
    p->b->PonTipoLetra(TLetra::InvesoU);
    CHECK(p->e.LaEtiqueta("LblSombra").ForeColor() == Blanco);
    p->b->MouseDown(1, 0, 5, 5);
    CHECK(p->e.LaEtiqueta("LblSombra").ForeColor() == Color(0xFFFF00));
    CHECK(p->e.LaEtiqueta("lblSombra2").ForeColor() == Color(0xFFFF00));
}

TEST_CASE("the copies lie behind the caption") {
    EntornoGrabador e;
    Botonazo boton(e);
    // Widgets made later lie in front: the third label is the caption.
    boton.PonToolTipText(u"x");
    CHECK(e.LaEtiqueta("etiqueta3").ToolTipText() == u"x");
}

TEST_CASE("the positions by row and column of the nine places") {
    CHECK(PorColumna(Alineaciones::Izq_Inf, 1, 2, 3) == 1);
    CHECK(PorColumna(Alineaciones::Med_Sup, 1, 2, 3) == 2);
    CHECK(PorColumna(Alineaciones::Der_Med, 1, 2, 3) == 3);
    CHECK(PorFila(Alineaciones::Der_Sup, 1, 2, 3) == 1);
    CHECK(PorFila(Alineaciones::Izq_Med, 1, 2, 3) == 2);
    CHECK(PorFila(Alineaciones::Med_Inf, 1, 2, 3) == 3);
    CHECK(PorColumna(static_cast<Alineaciones>(9), 1, 2, 3) == 0);
    CHECK(PorFila(static_cast<Alineaciones>(-1), 1, 2, 3) == 0);
}

TEST_CASE("a shadow is the inverse of the letter only for the inverse letterings") {
    GraficosGrabador graficos;
    Efectos efectos(graficos);
    const Color rojo(0xFF);
    for (TLetra tipo : {TLetra::Normal, TLetra::Levantada, TLetra::Undida, static_cast<TLetra>(9)})
        CHECK(ColorDeSombra(efectos, tipo, rojo, Blanco) == Blanco);
    for (TLetra tipo : {TLetra::InvesoL, TLetra::InvesoU}) {
        CHECK(ColorDeSombra(efectos, tipo, rojo, Blanco) == Color(0xFFFF00));
        CHECK(ColorDeSombra(efectos, tipo, Negro, Negro) == Blanco);
        CHECK(ColorDeSombra(efectos, tipo, SinColor, Negro) == Blanco);
    }
}

TEST_CASE("a release completes a press only after Space or Enter went down") {
    CHECK(CompletaPulsacion(u"", 32, true));
    CHECK(CompletaPulsacion(u"", 13, true));
    CHECK_FALSE(CompletaPulsacion(u"", 32, false));
    CHECK(CompletaPulsacion(u"&aceptar", 65, true));
    CHECK_FALSE(CompletaPulsacion(u"&aceptar", 65, false));
    CHECK_FALSE(CompletaPulsacion(u"aceptar", 65, true));
    CHECK_FALSE(CompletaPulsacion(u"&aceptar", 66, true));
    CHECK(CompletaPulsacion(u"uno &dos &tres", 84, true));
    CHECK_FALSE(CompletaPulsacion(u"&a", -191, true));
    CHECK_FALSE(CompletaPulsacion(u"&a", 321, true));
}
