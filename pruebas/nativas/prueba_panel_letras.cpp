// Where the caption and its two copies go.
#include "pruebas/nativas/panel_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

std::string SitioDe(PanelDePrueba& p, const char* nombre) {
    return Punto(p.e.LaEtiqueta(nombre).Left(), p.e.LaEtiqueta(nombre).Top());
}

/// A caption of 24 by 13 in a panel of 100 by 31.
PunteroPanel ConTitulo(Tamanio separa, Tamanio ancho) {
    auto p = PanelNuevo();
    p->e.pantalla.alto = 31;
    p->a->PonCaption(u"Hola");
    p->a->PonSeparaBorde(separa);
    p->a->PonAnchoBorde(ancho);
    return p;
}

} // namespace

TEST_CASE("the caption goes to each of the nine places, further in at the left corners") {
    struct Caso {
        Tamanio separa, ancho;
        std::string sitios[9];
    };
    // Across: S+A-1 in the middle of the left column, 2S+A above and below; Int((76-2A)/2);
    // 76-(S+A). Down: S+A-1; Int((18-A)/2); 18-A-S.
    const Caso casos[] = {
        {Tamanio::Chico,
         Tamanio::Chico,
         {"3,1", "1,8", "3,16", "37,1", "37,8", "37,16", "74,1", "74,8", "74,16"}},
        {Tamanio::Grande,
         Tamanio::Mediano,
         {"8,4", "4,8", "8,13", "36,4", "36,8", "36,13", "71,4", "71,8", "71,13"}},
        {Tamanio::Mediano,
         Tamanio::Grande,
         {"7,4", "4,7", "7,13", "35,4", "35,7", "35,13", "71,4", "71,7", "71,13"}}};
    for (const Caso& caso : casos) {
        auto p = ConTitulo(caso.separa, caso.ancho);
        for (int lugar = 0; lugar < 9; ++lugar) {
            INFO("spacing " << static_cast<int>(caso.separa) << ", width "
                            << static_cast<int>(caso.ancho) << ", place " << lugar);
            p->a->PonAlinText(static_cast<Alineaciones>(lugar));
            CHECK(SitioDe(*p, "lblTitulo") == caso.sitios[lugar]);
        }
    }
}

TEST_CASE("what is none of the nine places puts the caption in the corner") {
    auto p = ConTitulo(Tamanio::Mediano, Tamanio::Mediano);
    for (int lugar : {-1, 9, 100}) {
        p->a->PonAlinText(static_cast<Alineaciones>(lugar));
        CHECK(SitioDe(*p, "lblTitulo") == "0,0");
    }
}

TEST_CASE("halves round toward minus infinity, also below zero") {
    auto p = ConTitulo(Tamanio::Chico, Tamanio::Chico);
    p->e.pantalla.ancho = 25;    // (25-24-2)/2 = -0.5
    p->e.pantalla.alto = 11.25f; // (11.25-13-1)/2 = -1.375
    p->a->PonToolTipText(u"");
    CHECK(SitioDe(*p, "lblTitulo") == "-1,-2");
    p->a->PonAlinText(Alineaciones::Der_Inf); // 25-2-24 and 11.25-2-13 = -3.75
    CHECK(SitioDe(*p, "lblTitulo") == "-1,-4");
}

TEST_CASE("sizes count as the numbers they are, whatever those are") {
    auto p = ConTitulo(static_cast<Tamanio>(0), static_cast<Tamanio>(-5));
    p->a->PonAlinText(Alineaciones::Izq_Sup);
    CHECK(SitioDe(*p, "lblTitulo") == "-5,-6");
    p->a->PonAnchoBorde(static_cast<Tamanio>(0x7FFFFFFF));
    p->a->PonSeparaBorde(static_cast<Tamanio>(0x7FFFFFFF));
    CHECK(p->e.LaEtiqueta("lblTitulo").Left() == 3.0f * 2147483648.0f);
}

TEST_CASE("raised lettering lifts the first copy, sunken lettering sinks it") {
    auto p = ConTitulo(Tamanio::Chico, Tamanio::Chico);
    struct Caso {
        TLetra tipo;
        float d;
    };
    for (const Caso& caso :
         {Caso{TLetra::Levantada, -1}, Caso{TLetra::Undida, 1}, Caso{TLetra::InvesoL, -1},
          Caso{TLetra::InvesoU, 1}, Caso{TLetra::Normal, 0}, Caso{static_cast<TLetra>(5), 0}}) {
        INFO("lettering " << static_cast<int>(caso.tipo));
        p->a->PonTipoLetra(caso.tipo);
        CHECK(SitioDe(*p, "lblTitulo") == "37,8");
        CHECK(SitioDe(*p, "LblSombra") == Punto(37 + caso.d, 8 + caso.d));
        CHECK(SitioDe(*p, "lblSombra2") == Punto(37 - caso.d, 8 - caso.d));
    }
}

TEST_CASE("a new lettering colours the copies at once") {
    auto p = ConTitulo(Tamanio::Chico, Tamanio::Chico);
    p->a->PonColorLetra(Color(0xFF));
    p->a->PonTipoLetra(TLetra::InvesoU);
    CHECK(p->e.LaEtiqueta("LblSombra").ForeColor() == Color(0xFFFF00));
    CHECK(p->e.LaEtiqueta("lblSombra2").ForeColor() == Color(0xFFFF00));
    p->a->PonTipoLetra(TLetra::Undida);
    CHECK(p->e.LaEtiqueta("LblSombra").ForeColor() == Blanco);
    CHECK(p->e.LaEtiqueta("lblSombra2").ForeColor() == Negro);
}

TEST_CASE("the caption follows its text, its font and the size of the panel") {
    auto p = ConTitulo(Tamanio::Chico, Tamanio::Chico);
    p->a->PonCaption(u"Hola, hola");
    CHECK(SitioDe(*p, "lblTitulo") == "19,8");
    p->e.anchoLetra = 3;
    p->a->PonFont(p->a->Font());
    CHECK(SitioDe(*p, "lblTitulo") == "34,8");
    p->e.pantalla.ancho = 200;
    p->a->Resize();
    CHECK(SitioDe(*p, "lblTitulo") == "84,8");
}
