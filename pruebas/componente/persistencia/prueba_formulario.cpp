// A form saved as text and loaded back.
#include "anfitrion/formulario_texto.h"
#include "anfitrion/imagenes.h"
#include "anfitrion/tardio.h"
#include "anfitrion/unidades.h"
#include "pruebas/cada.h"
#include "pruebas/componente/comun/boton.h"

#include <doctest/doctest.h>

using namespace anfitrion;
using publicado::SesionOle;

namespace {

struct Banco {
    Banco() {
        OpcionesFormulario opciones;
        opciones.ancho = 400;
        opciones.alto = 200;
        forma = std::make_unique<Formulario>(opciones);
        int x = 10;
        for (const wchar_t* clase : {L"Botonazo", L"Area", L"Tbox", L"TboxSS"}) {
            forma->Agregar(componente, componente.Clase(std::wstring(L"Pincela.") + clase),
                           std::wstring(L"Un") + clase, {x, 10, x + 80, 50});
            x += 90;
        }
    }
    void Poner(const wchar_t* control, const wchar_t* propiedad, const Variante& valor) {
        anfitrion::Poner(forma->Control(control)->Despacho(), propiedad, valor);
    }
    Variante Leer(const wchar_t* control, const wchar_t* propiedad) {
        return anfitrion::Leer(forma->Control(control)->Despacho(), propiedad);
    }

    SesionOle ole;
    Componente componente = Componente::DeFichero(publicado::RutaDelComponente());
    std::unique_ptr<Formulario> forma;
};

HBITMAP Cuadro() {
    const HDC hdc = CreateCompatibleDC(nullptr);
    BITMAPINFO info{{sizeof(BITMAPINFOHEADER), 8, 8, 1, 24, BI_RGB, 0, 0, 0, 0, 0}, {}};
    void* bits = nullptr;
    const HBITMAP mapa = CreateDIBSection(hdc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    DeleteDC(hdc);
    return mapa;
}

} // namespace

TEST_CASE("A form written as text and read again is as it was") {
    Banco b;
    b.Poner(L"UnBotonazo", L"Caption", L"A\"ñ\\o\r\n\x20AC");
    b.Poner(L"UnBotonazo", L"RelX", 2.5f);
    b.Poner(L"UnBotonazo", L"CambioProgrePasos", 7);
    PonerRef(b.forma->Control(L"UnBotonazo")->Despacho(), L"ImagNormal",
             Variante(CrearImagen(Cuadro()).get()));
    PonerRef(b.forma->Control(L"UnArea")->Despacho(), L"Font",
             Variante(CrearFuente(L"Courier New", 14, true).get()));
    b.Poner(L"UnTboxSS", L"Text", L"uno\ttres");
    PonerRef(b.forma->Control(L"UnBotonazo")->Despacho(), L"ImagSobre",
             Variante(publicado::IconoDePrueba().get()));
    b.forma->Control(L"UnArea")->Mover({5, 60, 205, 160});
    const std::wstring texto = EscribirFormulario(*b.forma);

    Banco otro;
    LeerFormulario(*otro.forma, otro.componente, texto);
    CHECK(Estrechar(EscribirFormulario(*otro.forma)) == Estrechar(texto));
    CHECK(Texto(otro.Leer(L"UnBotonazo", L"Caption")) == L"A\"ñ\\o\r\n\x20AC");
    CHECK(Real(otro.Leer(L"UnBotonazo", L"RelX")) == 2.5);
    CHECK(Entero(otro.Leer(L"UnBotonazo", L"CambioProgrePasos")) == 7);
    CHECK(otro.Leer(L"UnBotonazo", L"ImagNormal").pdispVal != nullptr);
    CHECK(Texto(Leer(otro.Leer(L"UnArea", L"Font").pdispVal, L"Name")) == L"Courier New");
    CHECK(Texto(otro.Leer(L"UnTboxSS", L"Text")) == L"uno\ttres");
    CHECK(otro.forma->Control(L"UnArea")->Rectangulo().bottom == 160);
}

TEST_CASE("A control that the text does not name goes, and one that it names anew comes") {
    Banco b;
    const auto boton = b.forma->Control(L"UnBotonazo");
    LeerFormulario(
        *b.forma, b.componente,
        L"\xFEFF' a comment\nPincela.Botonazo UnBotonazo 1 2 30 40\n  AlinText = 8&\nFin\n"
        L"Pincela.TboxSS Otro 50 2 30 40\n  Text = \"suyo\"\nFin\n");
    CHECK(b.forma->Controles().size() == 2);
    CHECK(b.forma->Control(L"UnBotonazo") == boton);
    CHECK(Entero(b.Leer(L"UnBotonazo", L"AlinText")) == 8);
    CHECK(boton->Rectangulo().right == 31);
    CHECK(Texto(b.Leer(L"Otro", L"Text")) == L"suyo");
}

TEST_CASE("What stands on a panel is written inside it, and comes back there") {
    Banco b;
    const auto panel = b.forma->Control(L"UnArea");
    const auto clase = b.componente.Clase(L"Pincela.Botonazo");
    b.forma->Agregar(b.componente, clase, L"Interior", {5, 6, 45, 26}, {}, panel.get());
    const std::wstring texto = EscribirFormulario(*b.forma);
    CHECK(texto.find(L"\r\n  Pincela.Botonazo Interior 5 6 40 20\r\n") != std::wstring::npos);
    b.forma->Quitar(*panel);
    LeerFormulario(*b.forma, b.componente, texto);
    CHECK(EscribirFormulario(*b.forma) == texto);
    CHECK(b.forma->Control(L"Interior")->Dentro() == b.forma->Control(L"UnArea"));
}

TEST_CASE("A form takes size and order from its text") {
    Banco b;
    LeerFormulario(*b.forma, b.componente,
                   L"Formulario 300 200 " + std::to_wstring(PuntosPorPulgada()) +
                       L"\nPincela.TboxSS UnTboxSS 1 2 30 40\nFin\n"
                       L"Pincela.Area UnArea 1 2 30 40\nFin\n");
    CHECK(b.forma->Medida().cx == 300);
    CHECK(b.forma->Medida().cy == 200);
    CHECK(b.forma->Controles()[0]->Nombre() == L"UnTboxSS");
    CHECK(b.forma->ControlEn({10, 10}) == b.forma->Control(L"UnArea"));
}

TEST_CASE("A form of a screen with half the dots comes twice as large") {
    Banco b;
    const int puntos = PuntosPorPulgada();
    LeerFormulario(*b.forma, b.componente,
                   L"Formulario 150 100 " + std::to_wstring(puntos / 2) +
                       L"\nPincela.Area UnArea 4 6 30 40\nFin\n");
    CHECK(b.forma->Medida().cx == 300);
    const RECT r = b.forma->Control(L"UnArea")->Rectangulo();
    CHECK(r.left == 8);
    CHECK(r.top == 12);
    CHECK(r.right == 68);
    CHECK(r.bottom == 92);
}

TEST_CASE("Controls are added under free names, on the form or on one of its controls") {
    Banco b;
    const std::wstring texto = EscribirControles({b.forma->Control(L"UnBotonazo")});
    const auto nuevos = AgregarControles(*b.forma, b.componente, texto);
    REQUIRE(nuevos.size() == 1);
    CHECK(nuevos[0]->Nombre() == L"UnBotonazo1");
    const auto panel = b.forma->Control(L"UnArea");
    const auto dentro = AgregarControles(*b.forma, b.componente, texto, panel.get());
    CHECK(dentro[0]->Nombre() == L"UnBotonazo2");
    CHECK(dentro[0]->Dentro() == panel);
    CHECK_THROWS_AS(AgregarControles(*b.forma, b.componente, texto + L"Pincela.Nadie Uno 1 2 3 4"),
                    ErrorDeFormulario);
    CHECK(b.forma->Controles().size() == 6);
}

TEST_CASE("A text that is no form says in which line, and changes nothing") {
    const struct {
        const wchar_t* texto;
        int linea;
    } casos[] = {
        {L"Pincela.Botonazo", 1},
        {L"Pincela.Nadie Otro 1 2 3 4\nFin\n", 1},
        {L"Pincela.Area Uno 1 2 3 4\nFin\nPincela.Area uno 1 2 3 4\nFin\n", 3},
        {L"Formulario 300 200\n", 1},
        {L"Formulario 300 200 0\n", 1},
        {L"Pincela.Area Uno 1 2 3 4\n  Pincela.Area Dos 1 2 3 4\nFin\n", 3},
        {L"Pincela.Botonazo UnBotonazo 1 2 3 4\n", 1},
        {L"Pincela.Botonazo UnBotonazo 1 2 tres 4\nFin\n", 1},
        {L"Pincela.Botonazo UnBotonazo 1 2 99999 4\nFin\n", 1},
        {L"Pincela.Botonazo UnBotonazo 1 2 nan 4\nFin\n", 1},
        {L"\nPincela.Botonazo UnBotonazo 1 2 3 4\n  AlinText: 3\nFin\n", 3},
        {L"Pincela.Botonazo UnBotonazo 1 2 3 4\n  AlinText = &H0G\nFin\n", 2},
        {L"Pincela.Botonazo UnBotonazo 1 2 3 4\n  AlinText = 99999%\nFin\n", 2},
        {L"Pincela.Botonazo UnBotonazo 1 2 3 4\n  Caption = \"a\"b\"\nFin\n", 2},
        {L"Pincela.Botonazo UnBotonazo 1 2 3 4\n  Caption = \"a\\\"\nFin\n", 2},
        {L"Pincela.Botonazo UnBotonazo 1 2 3 4\n  Font = Fuente 0102\nFin\n", 2},
        {L"Pincela.Botonazo UnBotonazo 1 2 3 4\n  Font = Fuente 01X\nFin\n", 2},
        {L"Pincela.Botonazo UnBotonazo 1 2 3 4\n  ImagNormal = Icono 1 1 0102\nFin\n", 2},
        {L"Pincela.Botonazo UnBotonazo 1 2 3 4\n  ImagNormal = Icono 0 9999 01\nFin\n", 2},
        {L"Pincela.Botonazo UnBotonazo 1 2 3 4\n  ImagNormal = Imagen 0102\nFin\n", 2},
    };
    Banco b;
    const std::wstring antes = EscribirFormulario(*b.forma);
    for (const auto& caso : casos) {
        INFO(Estrechar(caso.texto));
        int linea = 0;
        try {
            LeerFormulario(*b.forma, b.componente, caso.texto);
        } catch (const ErrorDeFormulario& error) {
            linea = error.linea;
            CHECK(error.texto.starts_with(L"Línea " + std::to_wstring(linea) + L": "));
        }
        CHECK(linea == caso.linea);
        CHECK(EscribirFormulario(*b.forma) == antes);
    }
}
