#include "plataforma/windows/pruebas/banco.h"

#include "pruebas/cada.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::windows;
using namespace pincela::windows::pruebas;

TEST_CASE("A timer ticks while it is enabled and has an interval") {
    Banco banco;
    auto t = banco.entorno->CrearTemporizador();
    int tics = 0;
    t->AlTic([&] { ++tics; });
    t->PonEnabled(true);
    Bombear(40);
    CHECK(tics == 0);
    t->PonInterval(1);
    Bombear(120);
    CHECK(tics > 2);
    CHECK(banco.sitio.mayorSosten > 0);
    CHECK(banco.sitio.sostenidos == 0);
    t->PonEnabled(false);
    tics = 0;
    Bombear(40);
    CHECK(tics == 0);
}

TEST_CASE("A timer that watches the mouse rests with it, and makes haste when it moves or leaves") {
    Banco banco;
    const HWND ventana = banco.Activar();
    auto t = banco.entorno->CrearTemporizador();
    auto lento = banco.entorno->CrearTemporizador();
    int tics = 0, lentos = 0;
    t->AlTic([&] { ++tics; });
    lento->AlTic([&] { ++lentos; });
    t->PonInterval(1);
    lento->PonInterval(5000);
    Bombear(600);
    tics = 0;
    Bombear(800);
    CHECK(tics >= 4);
    CHECK(tics <= 10);
    tics = 0;
    ::SendMessageW(ventana, WM_MOUSELEAVE, 0, 0);
    CHECK(tics == 1);
    CHECK(lentos == 0);
    ::SendMessageW(ventana, WM_MOUSEMOVE, 0, Punto(1, 1));
    tics = 0;
    Bombear(120);
    CHECK(tics >= 3);
}

TEST_CASE("A timer may die in its own tick") {
    Banco banco;
    auto t = banco.entorno->CrearTemporizador();
    int tics = 0;
    auto testigo = std::make_shared<int>(0);
    t->AlTic([&t, &tics, testigo] {
        ++tics;
        t.reset();
        ++*testigo; // what the tick holds is still there
    });
    t->PonInterval(1);
    Bombear(60);
    CHECK(tics == 1);
    CHECK(*testigo == 1);
    CHECK(testigo.use_count() == 1);
}

TEST_CASE("A timer may die in the tick that the leaving mouse brings") {
    Banco banco;
    const HWND ventana = banco.Activar();
    auto t = banco.entorno->CrearTemporizador(), otro = banco.entorno->CrearTemporizador();
    for (auto* uno : {&t, &otro}) {
        (*uno)->AlTic([&] { t.reset(), otro.reset(); });
        (*uno)->PonInterval(1);
    }
    ::SendMessageW(ventana, WM_MOUSELEAVE, 0, 0);
    CHECK(t == nullptr);
    CHECK(otro == nullptr);
}

TEST_CASE("An error in a tick or a handler ends at the site and the next message is handled") {
    Banco banco;
    auto t = banco.entorno->CrearTemporizador();
    t->AlTic([&] {
        t->PonEnabled(false);
        throw ErrorEjecucion(NumeroError::Desbordamiento);
    });
    t->PonInterval(1);
    Bombear(40);
    CHECK(banco.sitio.errores == std::vector<NumeroError>{NumeroError::Desbordamiento});
    const HWND ventana = banco.Activar();
    banco.control.alOcurrir = [](const std::string& hecho) {
        if (hecho.rfind("MouseMove", 0) == 0)
            throw ErrorEjecucion(NumeroError::Subindice);
    };
    ::SendMessageW(ventana, WM_MOUSEMOVE, 0, Punto(1, 1));
    ::SendMessageW(ventana, WM_CHAR, 'x', 0);
    CHECK(banco.sitio.errores.back() == NumeroError::Subindice);
    CHECK(banco.hechos().back() == "KeyPress 120");
    CHECK(banco.sitio.sostenidos == 0);
}

TEST_CASE("The environment may be destroyed inside any handler") {
    const char* momento = pincela::pruebas::Cada({"MouseDown", "MouseMove", "MouseUp", "Click", "KeyDown",
                                   "KeyPress", "EnterFocus", "Paint", "Resize"});
    CAPTURE(momento);
    Banco banco;
    const HWND ventana = banco.Activar();
    banco.control.alOcurrir = [&](const std::string& hecho) {
        if (banco.entorno && hecho.rfind(momento, 0) == 0) {
            banco.entorno->Asociar(nullptr);
            banco.entorno.reset();
        }
    };
    const std::pair<UINT, WPARAM> mensajes[] = {{WM_MOUSEMOVE, 0}, {WM_LBUTTONDOWN, MK_LBUTTON},
                                                {WM_LBUTTONUP, 0}, {WM_KEYDOWN, 'A'},
                                                {WM_CHAR, 'a'},    {WM_SETFOCUS, 0},
                                                {WM_KILLFOCUS, 0}};
    for (const auto& [mensaje, w] : mensajes)
        ::SendMessageW(ventana, mensaje, w, Punto(3, 3));
    ::SetWindowPos(ventana, nullptr, 0, 0, 60, 40, SWP_NOMOVE | SWP_NOZORDER);
    ::InvalidateRect(ventana, nullptr, FALSE);
    ::UpdateWindow(ventana);
    CHECK(banco.entorno == nullptr);
    CHECK_FALSE(::IsWindow(ventana));
    CHECK(banco.sitio.sostenidos == 0);
    CHECK(banco.sitio.errores.empty());
}

TEST_CASE("The window may be destroyed by its container, and made again") {
    Banco banco;
    HWND ventana = banco.Activar();
    ::SetFocus(ventana);
    ::DestroyWindow(ventana);
    CHECK(banco.entorno->Ventana() == nullptr);
    CHECK(banco.hechos().back() == "FocoCambiado no");
    ventana = banco.Activar();
    CHECK(::IsWindow(ventana));
}

TEST_CASE("A label may die while the mouse is down on it") {
    Banco banco;
    OyenteDePrueba oyente(banco.control, "E");
    auto etiqueta = banco.entorno->CrearEtiqueta();
    etiqueta->PonCaption(u"Etiqueta");
    etiqueta->PonOyente(&oyente);
    const HWND ventana = banco.Activar();
    banco.control.alOcurrir = [&](const std::string& hecho) {
        if (hecho.rfind("E.MouseUp", 0) == 0)
            etiqueta.reset();
    };
    ::SendMessageW(ventana, WM_LBUTTONDOWN, MK_LBUTTON, Punto(3, 3));
    ::SendMessageW(ventana, WM_LBUTTONUP, 0, Punto(3, 3));
    CHECK(banco.hechos().back() == "E.MouseUp 1 0 3 3");
}

TEST_CASE("Moving the window gives the surface its size and tells Resize once") {
    Banco banco;
    const HWND ventana = banco.Activar();
    banco.entorno->MoverVentana({10, 20, 90, 60});
    CHECK(banco.entorno->superficie().ScaleWidth() == 80);
    CHECK(banco.entorno->superficie().ScaleHeight() == 40);
    banco.entorno->MoverVentana({15, 25, 95, 65});
    banco.entorno->PonTamano({70, 30}, true);
    RECT cliente;
    ::GetClientRect(ventana, &cliente);
    CHECK(cliente.right == 70);
    const auto hechos = banco.hechos();
    CHECK(std::count(hechos.begin(), hechos.end(), "Resize") == 2);
}

TEST_CASE("What drawing takes from the platform is given back") {
    const auto vuelta = [] {
        Banco banco;
        auto e = banco.entorno->CrearEtiqueta();
        e->PonCaption(u"Hola");
        e->PonToolTipText(u"Globo");
        auto r = banco.entorno->CrearRectangulo();
        r->PonFillColor(Blanco);
        r->Move(1, 1, 20, 20);
        auto cuadro = banco.entorno->CrearCuadroImagen();
        cuadro->Move(0, 0, 30, 20);
        cuadro->Line(0, 0, 20, 15, Negro);
        banco.entorno->superficie().PonDrawWidth(2);
        banco.entorno->superficie().Line(0, 0, 9, 5, Negro);
        banco.entorno->superficie().Desvanecer();
        const HWND ventana = banco.Activar();
        ::SendMessageW(ventana, WM_MOUSEMOVE, 0, Punto(3, 3));
        banco.entorno->superficie().PonBackStyle(0);
        banco.entorno->superficie().Refresh();
        banco.entorno->PonTamano({120, 50}, true);
        Foto f(300, 200);
        banco.entorno->Dibujar(f.dc(), {0, 0, 300, 200});
    };
    vuelta();
    vuelta();
    const int antes = ObjetosGdi();
    for (int i = 0; i < 5; ++i)
        vuelta();
    CHECK(ObjetosGdi() == antes);
}

TEST_CASE("Two labels with the same font share one font of the device") {
    Banco banco;
    auto e1 = banco.entorno->CrearEtiqueta();
    e1->PonCaption(u"Uno");
    CHECK(e1->Width() > 0);
    const int antes = ObjetosGdi();
    auto e2 = banco.entorno->CrearEtiqueta(), e3 = banco.entorno->CrearEtiqueta();
    e2->PonCaption(u"Dos");
    e3->PonCaption(u"Tres");
    CHECK(e2->Width() > 0);
    CHECK(e3->Width() > 0);
    CHECK(ObjetosGdi() == antes);
}
