// Enter and TAB: the way from field to field.
#include "pruebas/cada.h"
#include "pruebas/componente/cajas/banco.h"

using namespace cajas;
using pincela::pruebas::Cada;

namespace {

/// Three boxes, the middle one not always enabled.
struct BancoDeEntrada : BancoDeCaja {
    explicit BancoDeEntrada(const wchar_t* clase, const OpcionesFormulario& opciones = {})
        : BancoDeCaja(clase, opciones) {
        segunda = OtraCaja(L"Pincela.TboxSS", {40, 90, 160, 120}, L"Segunda");
        tercera = OtraCaja(L"Pincela.TboxSS", {40, 130, 160, 160}, L"Tercera");
        Enfocar();
    }
    std::string Donde() const {
        for (const auto& control : forma->Controles())
            if (TieneFoco(*control))
                return Estrechar(control->Nombre());
        return "nadie";
    }
    Hechos Recorrer(int veces, WORD tecla) {
        Hechos camino;
        for (int vez = 0; vez < veces; ++vez) {
            Teclear(tecla);
            camino.push_back(Donde());
        }
        return camino;
    }
    std::shared_ptr<ControlAlojado> segunda, tercera;
};

const wchar_t* CadaSimple() {
    return Cada({L"Pincela.TboxSS", L"Pincela.TboxSSML"});
}

OpcionesFormulario Pobre() {
    OpcionesFormulario opciones;
    opciones.sitio = OpcionesSitio::Pobre();
    return opciones;
}

} // namespace

TEST_CASE("Enter goes from field to field, round from the last one, and is told") {
    const wchar_t* clase = CadaSimple();
    for (const bool pobre : {false, true}) {
        BancoDeEntrada b(clase, pobre ? Pobre() : OpcionesFormulario{});
        CHECK(b.Recorrer(4, VK_RETURN) == Hechos{"Segunda", "Tercera", "Boton", "Segunda"});
        CHECK(b.Veces("TocoTecla") == 2);
        CHECK(b.Ultimo("TocoTecla") == "TocoTecla 13");
        // Enter itself is not taken away: a field of many lines starts one all the same.
        CHECK(b.Text() == (std::wstring_view(clase) == L"Pincela.TboxSSML" ? L"\r\n" : L""));
    }
}

TEST_CASE("With one field alone Enter leaves the focus where it is") {
    const wchar_t* clase = CadaSimple();
    BancoDeCaja b(clase);
    b.Enfocar();
    b.Teclear(VK_RETURN);
    CHECK(GetFocus() == b.Campo());
    CHECK(b.Ultimo("TocoTecla") == "TocoTecla 13");
    b.Escribir(L"a");
    CHECK(b.Text() == (std::wstring_view(clase) == L"Pincela.TboxSSML" ? L"\r\na" : L"a"));
}

TEST_CASE("What is typed ahead of the way to the next field goes into the next field") {
    BancoDeEntrada b(L"Pincela.TboxSS");
    for (const WORD tecla : {WORD{'A'}, WORD{VK_RETURN}, WORD{'B'}, WORD{VK_RETURN}, WORD{'C'}}) {
        Tecla(tecla, true);
        Tecla(tecla, false);
    }
    b.Esperar(300);
    CHECK(b.Text() == L"a");
    CHECK(Texto(Leer(b.segunda->Despacho(), L"Text")) == L"b");
    CHECK(Texto(Leer(b.tercera->Despacho(), L"Text")) == L"c");
}

TEST_CASE("Without NavConEnter Enter stays in the field") {
    BancoDeEntrada b(CadaSimple());
    b.Poner(L"NavConEnter", false);
    CHECK(b.Recorrer(1, VK_RETURN) == Hechos{"Boton"});
    CHECK(b.Ultimo("TocoTecla") == "TocoTecla 13");
}

TEST_CASE("Enter in a labelled text box stays where it is") {
    BancoDeEntrada b(Cada({L"Pincela.Tbox", L"Pincela.TBoxML"}));
    CHECK(b.Recorrer(1, VK_RETURN) == Hechos{"Boton"});
    CHECK(b.Ultimo("TocoTecla") == "TocoTecla 13");
}

TEST_CASE("The form's default button gets Enter only where the field has no use for it") {
    const wchar_t* clase =
        Cada({L"Pincela.Tbox", L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"});
    BancoDeCaja b(clase);
    const auto aceptar = b.Agregar(L"Aceptar", {170, 40, 290, 80});
    aceptar->porDefecto = true;
    int clics = 0;
    aceptar->Conectar([&](Evento& e) { clics += e.nombre == L"Click"; });
    b.Enfocar();
    b.Teclear(VK_RETURN);
    const bool etiquetadaDeUnaLinea = std::wstring_view(clase) == L"Pincela.Tbox";
    CHECK(clics == (etiquetadaDeUnaLinea ? 1 : 0));
    if (std::wstring_view(clase) == L"Pincela.TboxSS") {
        b.Poner(L"NavConEnter", false); // the container hears of it
        b.Enfocar();
        b.Teclear(VK_RETURN);
        CHECK(clics == 1);
    }
}

TEST_CASE("TAB and SHIFT with TAB go through the fields, of one line or many") {
    const wchar_t* clase =
        Cada({L"Pincela.Tbox", L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"});
    for (const bool pobre : {false, true}) {
        BancoDeEntrada b(clase, pobre ? Pobre() : OpcionesFormulario{});
        CHECK(b.Recorrer(3, VK_TAB) == Hechos{"Segunda", "Tercera", "Boton"});
        Tecla(VK_SHIFT, true);
        b.Esperar(20);
        CHECK(b.Recorrer(2, VK_TAB) == Hechos{"Tercera", "Segunda"});
        Tecla(VK_SHIFT, false);
        b.Esperar(20);
        CHECK(b.Text() == L"");
        CHECK(b.Veces("TocoTecla") == 0);
    }
}

TEST_CASE("A disabled plain text box passes the focus straight on, in either direction") {
    BancoDeEntrada b(CadaSimple());
    Poner(b.segunda->Despacho(), L"Enabled", false);
    CHECK(b.Recorrer(2, VK_TAB) == Hechos{"Tercera", "Boton"});
    Tecla(VK_SHIFT, true);
    b.Esperar(20);
    CHECK(b.Recorrer(2, VK_TAB) == Hechos{"Tercera", "Boton"});
    Tecla(VK_SHIFT, false);
    b.Esperar(20);
    CHECK(b.Recorrer(1, VK_RETURN) == Hechos{"Tercera"});
}

TEST_CASE("A form where every field is disabled comes to rest") {
    BancoDeEntrada b(L"Pincela.TboxSS");
    for (const auto& control : b.forma->Controles())
        Poner(control->Despacho(), L"Enabled", false);
    b.Teclear(VK_TAB);
    b.Esperar(300);
    MSG mensaje;
    CHECK_FALSE(PeekMessageW(&mensaje, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_NOREMOVE));
}

TEST_CASE("A handler that ends the way with Enter ends it from the next Enter on") {
    BancoDeEntrada b(L"Pincela.TboxSS");
    b.alOcurrir = [&](Evento& e) {
        if (e.nombre == L"TocoTecla" && Entero(*e.argumentos[0]) == VK_RETURN)
            Poner(b.Caja(), L"NavConEnter", false);
    };
    CHECK(b.Recorrer(1, VK_RETURN) == Hechos{"Segunda"});
    b.Enfocar();
    CHECK(b.Recorrer(1, VK_RETURN) == Hechos{"Boton"});
}
