// The designer's commands: clipboard, order, run mode, and undoing all of it.
#include "anfitrion/captura.h"
#include "pruebas/componente/comun/boton.h"
#include "pruebas/componente/disenador/banco.h"

#include <functional>

using namespace disenador;

TEST_CASE("What is copied is text that an editor can keep, and pastes beside what is there") {
    Banco b;
    b.Poner(DosBotones);
    b.Elegir(L"Uno");
    b.mesa->Hacer(Orden::Copiar);
    const std::wstring copiado = LeerPortapapeles(b.marco.Ventana());
    CHECK(copiado.starts_with(L"Pincela.Botonazo Uno 16 16 80 32\r\n"));
    CHECK(copiado.ends_with(L"Fin\r\n"));
    b.mesa->Hacer(Orden::Pegar);
    b.mesa->Hacer(Orden::Pegar);
    const RECT r = b.Control(L"Uno2")->Rectangulo();
    CHECK(r.left == 16 + 2 * b.mesa->Paso());
    CHECK(b.Elegidos() == "Uno2 ");
    PonerEnPortapapeles(b.marco.Ventana(),
                        L"Pincela.Area Editado 8 200 40 40\n  Caption = \"x\"\nFin");
    b.mesa->Hacer(Orden::Pegar);
    CHECK(b.Valor(L"Caption") == "x");
}

TEST_CASE("A panel is copied with what stands on it, and pasted into another panel") {
    Banco b;
    b.Poner(UnPanel);
    b.Elegir(L"Dentro");
    b.mesa->Hacer(Orden::Copiar);
    b.Elegir(L"Panel");
    b.mesa->Hacer(Orden::Pegar);
    CHECK(b.Control(L"Dentro1")->Dentro() == b.Control(L"Panel"));
    b.Elegir(L"Panel");
    b.mesa->Hacer(Orden::Copiar);
    b.mesa->Forma().Seleccionar({});
    b.mesa->Hacer(Orden::Pegar);
    CHECK(b.mesa->Forma().ControlesEn(b.Control(L"Panel1").get()).size() == 2);
}

TEST_CASE("A text that is no control isn't pasted, and the user is told why") {
    Banco b;
    b.Poner(DosBotones);
    const std::string antes = b.Texto();
    PonerEnPortapapeles(b.marco.Ventana(), L"Pincela.Botonazo Uno dos 3 4 5\nFin");
    b.mesa->Hacer(Orden::Pegar);
    CHECK(b.Texto() == antes);
    CHECK(b.pagina->Estado().find(L"Línea 1: se espera un número") != std::wstring::npos);
}

TEST_CASE("A control that is deleted and brought back has what it had, in its place of the order") {
    Banco b;
    b.Poner(DosBotones + UnPanel);
    publicado::CambiarTodo(b.Control(L"Uno")->Despacho());
    REQUIRE(b.mesa->Cambiar([] {}));
    const std::string antes = b.Texto();
    b.mesa->Forma().Seleccionar(Mesa::Controles{b.Control(L"Uno"), b.Control(L"Panel")});
    b.mesa->Hacer(Orden::Eliminar);
    CHECK(b.Lugares() == "Pincela.Botonazo Dos 160 16 80 32|");
    b.mesa->Hacer(Orden::Deshacer);
    CHECK(b.Texto() == antes);
    CHECK(b.Elegidos() == "Uno Panel ");
    b.mesa->Hacer(Orden::Rehacer);
    CHECK(b.Lugares() == "Pincela.Botonazo Dos 160 16 80 32|");
}

TEST_CASE("A whole session is undone step by step and done again") {
    Banco b;
    std::vector<std::string> pasos{b.Texto()};
    const auto anotar = [&] { pasos.push_back(b.Texto()); };
    b.mesa->Colocar(L"Pincela.Area", diseno::Caja{8, 8, 208, 160});
    anotar();
    b.mesa->Colocar(L"Pincela.Tbox", diseno::Caja{16, 40, 136, 80});
    anotar();
    REQUIRE(b.Escribir(L"Caption", L"Dirección"));
    anotar();
    REQUIRE(b.Escribir(L"(Nombre)", L"Direccion"));
    anotar();
    b.mesa->Empujar(8, 8, false);
    anotar();
    b.mesa->Hacer(Orden::Copiar);
    b.mesa->Hacer(Orden::Pegar);
    anotar();
    b.mesa->Hacer(Orden::AlFondo);
    anotar();
    b.Elegir(L"Area1");
    b.mesa->Hacer(Orden::Eliminar);
    anotar();
    for (std::size_t i = pasos.size() - 1; i-- > 0;) {
        CAPTURE(i);
        b.mesa->Hacer(Orden::Deshacer);
        CHECK(b.Texto() == pasos[i]);
    }
    CHECK_FALSE(b.mesa->Puede(Orden::Deshacer));
    for (std::size_t i = 1; i < pasos.size(); ++i) {
        CAPTURE(i);
        b.mesa->Hacer(Orden::Rehacer);
        CHECK(b.Texto() == pasos[i]);
    }
    CHECK_FALSE(b.mesa->Puede(Orden::Rehacer));
}

TEST_CASE("What a control publishes but doesn't save is undone as well") {
    Banco b;
    b.Poner(UnPanel);
    b.Elegir(L"Dentro");
    const Mesa::Control caja = b.Control(L"Dentro");
    REQUIRE(b.Escribir(L"Text", L"uno"));
    REQUIRE(b.Escribir(L"Text", L"dos"));
    b.mesa->Hacer(Orden::Deshacer);
    CHECK(Estrechar(Texto(Leer(caja->Despacho(), L"Text"))) == "uno");
    CHECK(b.Valor(L"Text") == "uno");
}

namespace {

/// What the user does while the pages are open.
std::function<void()> EnLasPaginas;

void CALLBACK AlAbrirse(HWND, UINT, UINT_PTR reloj, DWORD) {
    const HWND marco = FindWindowW(L"AnfitrionMarcoPropiedades", nullptr);
    if (!marco)
        return;
    KillTimer(nullptr, reloj);
    EnLasPaginas();
    PostMessageW(marco, WM_COMMAND, IDOK, 0);
}

} // namespace

TEST_CASE("What is done on the property pages is one step that can be undone") {
    Banco b;
    b.Poner(DosBotones);
    b.mesa->Hacer(Orden::ElegirTodo);
    const std::string antes = b.Texto();
    bool abiertas = false;
    EnLasPaginas = [&] {
        abiertas = true;
        for (const auto& control : b.mesa->Seleccion()) {
            anfitrion::Poner(control->Despacho(), L"Caption", L"De la página");
            anfitrion::Poner(control->Despacho(), L"EstilosRell", 2);
        }
    };
    SetTimer(nullptr, 0, 20, AlAbrirse);
    b.mesa->Hacer(Orden::Propiedades);
    CHECK(abiertas);
    CHECK(b.Valor(L"Caption") == "De la página");
    b.mesa->Hacer(Orden::Deshacer);
    CHECK(b.Texto() == antes);
    CHECK(b.Valor(L"Caption").empty());
}

TEST_CASE("Controls without pages in common say so") {
    Banco b;
    b.Poner(L"Pincela.TBoxML Notas 16 16 120 64\r\nFin\r\n");
    b.Elegir(L"Notas");
    b.mesa->Hacer(Orden::Propiedades);
    CHECK(b.pagina->Estado() == L"Lo elegido no tiene páginas de propiedades en común.");
}

TEST_CASE("A form runs, and is afterwards what it was") {
    Banco b;
    b.Poner(DosBotones + L"Pincela.TboxSS Caja 16 240 120 24\r\nFin\r\n");
    b.Elegir(L"Dos");
    const std::string antes = b.Texto();
    b.mesa->Hacer(Orden::Ejecutar);
    REQUIRE(b.mesa->Ejecutando());
    CHECK_FALSE(b.mesa->Puede(Orden::Eliminar));
    CHECK_FALSE(IsWindowVisible(b.pagina->Lista()->Ventana()));
    std::string oidos;
    b.mesa->alOir = [&](const std::wstring& control, const Evento& evento) {
        if (evento.nombre == L"Click" || evento.nombre == L"Change")
            oidos += Estrechar(control + L"." + evento.nombre + L" ");
    };
    const HWND boton = b.Control(L"Uno")->Ventana();
    SendMessageW(boton, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 10));
    SendMessageW(boton, WM_LBUTTONUP, 0, MAKELPARAM(20, 10));
    anfitrion::Poner(b.Control(L"Caja")->Despacho(), L"Text", L"escrito");
    CHECK(oidos == "Uno.Click Caja.Change ");
    b.mesa->Hacer(Orden::Ejecutar);
    CHECK_FALSE(b.mesa->Ejecutando());
    CHECK(b.Texto() == antes);
    CHECK(b.Elegidos() == "Dos ");
    CHECK_FALSE(b.mesa->Puede(Orden::Deshacer));
}

TEST_CASE("Controls go to the front and to the back") {
    Banco b;
    b.Poner(DosBotones);
    b.Elegir(L"Uno");
    b.mesa->Hacer(Orden::AlFrente);
    CHECK(b.Lugares() == "Pincela.Botonazo Dos 160 16 80 32|Pincela.Botonazo Uno 16 16 80 32|");
    b.mesa->Hacer(Orden::AlFondo);
    CHECK(b.Lugares() == "Pincela.Botonazo Uno 16 16 80 32|Pincela.Botonazo Dos 160 16 80 32|");
}

TEST_CASE("A panel frames what stands on it while the form is designed, and not while it runs") {
    Banco b;
    b.Poner(
        L"Pincela.Area Panel 80 80 240 160\r\n  EstilosBord = 0\r\n  ColorLetra = &H00FF00FF\r\n"
        L"  Pincela.Botonazo Dentro 16 32 120 40\r\n  Fin\r\nFin\r\n");
    const auto marcas = [&](const RECT& r) {
        b.mesa->Forma().BombearMensajes();
        return Captura::DeVentana(b.Control(L"Panel")->Ventana()).Contar(r, RGB(255, 0, 255));
    };
    const RECT izquierda{0, 0, 120, 160}, derecha{145, 0, 240, 160};
    CHECK(marcas(izquierda) > 0);
    CHECK(marcas(derecha) == 0);
    b.Elegir(L"Dentro");
    b.mesa->Empujar(64, 0, false);
    b.mesa->Forma().Seleccionar({}); // the frame of what is chosen lies over the mark
    CHECK(marcas(derecha) > 0);
    b.mesa->Hacer(Orden::Ejecutar);
    CHECK(marcas({0, 0, 240, 160}) == 0);
}
