// A form saved as text and loaded back.
#include "anfitrion/formulario_texto.h"
#include "anfitrion/imagenes.h"
#include "anfitrion/tardio.h"
#include "pruebas/componente/comun/boton.h"
#include "pruebas/cada.h"

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
    LeerFormulario(*otro.forma, texto);
    CHECK(Estrechar(EscribirFormulario(*otro.forma)) == Estrechar(texto));
    CHECK(Texto(otro.Leer(L"UnBotonazo", L"Caption")) == L"A\"ñ\\o\r\n\x20AC");
    CHECK(Real(otro.Leer(L"UnBotonazo", L"RelX")) == 2.5);
    CHECK(Entero(otro.Leer(L"UnBotonazo", L"CambioProgrePasos")) == 7);
    CHECK(otro.Leer(L"UnBotonazo", L"ImagNormal").pdispVal != nullptr);
    CHECK(Texto(Leer(otro.Leer(L"UnArea", L"Font").pdispVal, L"Name")) == L"Courier New");
    CHECK(Texto(otro.Leer(L"UnTboxSS", L"Text")) == L"uno\ttres");
    CHECK(otro.forma->Control(L"UnArea")->Rectangulo().bottom == 160);
}

TEST_CASE("A control that the text does not name stays as it is") {
    Banco b;
    b.Poner(L"UnTboxSS", L"Text", L"mío");
    LeerFormulario(*b.forma, L"Botonazo UnBotonazo 1 2 30 40\n  AlinText = 8&\nFin\n");
    CHECK(Entero(b.Leer(L"UnBotonazo", L"AlinText")) == 8);
    CHECK(b.forma->Control(L"UnBotonazo")->Rectangulo().right == 31);
    CHECK(Texto(b.Leer(L"UnTboxSS", L"Text")) == L"mío");
}

TEST_CASE("A text that is no form of this one says in which line, and changes nothing") {
    const struct {
        const wchar_t* texto;
        int linea;
    } casos[] = {
        {L"Botonazo", 1},
        {L"Botonazo Otro 1 2 3 4\nFin\n", 1},
        {L"Area UnBotonazo 1 2 3 4\nFin\n", 1},
        {L"Botonazo UnBotonazo 1 2 3 4\n", 1},
        {L"Botonazo UnBotonazo 1 2 tres 4\nFin\n", 1},
        {L"Botonazo UnBotonazo 1 2 99999 4\nFin\n", 1},
        {L"Botonazo UnBotonazo 1 2 nan 4\nFin\n", 1},
        {L"\nBotonazo UnBotonazo 1 2 3 4\n  AlinText: 3\nFin\n", 3},
        {L"Botonazo UnBotonazo 1 2 3 4\n  AlinText = ocho\nFin\n", 2},
        {L"Botonazo UnBotonazo 1 2 3 4\n  AlinText = 99999%\nFin\n", 2},
        {L"Botonazo UnBotonazo 1 2 3 4\n  Caption = \"a\"b\"\nFin\n", 2},
        {L"Botonazo UnBotonazo 1 2 3 4\n  Caption = \"a\\\"\nFin\n", 2},
        {L"Botonazo UnBotonazo 1 2 3 4\n  Font = Fuente 0102\nFin\n", 2},
        {L"Botonazo UnBotonazo 1 2 3 4\n  Font = Fuente 01X\nFin\n", 2},
        {L"Botonazo UnBotonazo 1 2 3 4\n  ImagNormal = Icono 1 1 0102\nFin\n", 2},
        {L"Botonazo UnBotonazo 1 2 3 4\n  ImagNormal = Icono 0 9999 01\nFin\n", 2},
        {L"Botonazo UnBotonazo 1 2 3 4\n  ImagNormal = Imagen 0102\nFin\n", 2},
    };
    Banco b;
    const std::wstring antes = EscribirFormulario(*b.forma);
    for (const auto& caso : casos) {
        INFO(Estrechar(caso.texto));
        int linea = 0;
        try {
            LeerFormulario(*b.forma, caso.texto);
        } catch (const ErrorDeFormulario& error) {
            linea = error.linea;
            CHECK(error.texto.starts_with(L"Línea " + std::to_wstring(linea) + L": "));
        }
        CHECK(linea == caso.linea);
        CHECK(EscribirFormulario(*b.forma) == antes);
    }
}
