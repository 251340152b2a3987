// The button in a host that announces nothing and asks for little.
#include "pruebas/componente/vivo/banco_atl.h"

using namespace vivo;

namespace {

constexpr COLORREF Rojo = RGB(255, 0, 0), Verde = RGB(0, 255, 0);

struct BancoDeColores : BancoAtl {
    BancoDeColores() {
        Poner(L"Caption", L"&Guardar");
        Poner(L"ColorFondo", static_cast<long>(Rojo));
        Poner(L"ColorFondoSobre", static_cast<long>(Verde));
        Esperar();
        hechos.clear();
    }
};

} // namespace

TEST_CASE("The host shows the button as large as its own window") {
    BancoDeColores b;
    REQUIRE(b.ventana != nullptr);
    RECT r{};
    GetClientRect(b.ventana, &r);
    CHECK(r.right == 120);
    CHECK(r.bottom == 40);
    CHECK(b.Centro() == Rojo);
}

TEST_CASE("The mouse enters and leaves in the host as anywhere") {
    BancoDeColores b;
    b.Llevar(b.ventana, 5, 5);
    CHECK(b.Centro() == Verde);
    CHECK(b.Sucesos() == Hechos{});
    b.Llevar(b.marco, 280, 10);
    CHECK(b.Centro() == Rojo);
    CHECK(b.Sucesos() == Hechos{"MouseSale"});
}

TEST_CASE("A click in the host takes the focus and is told") {
    BancoDeColores b;
    b.Llevar(b.ventana, 4, 6);
    b.Clic();
    CHECK(b.Sucesos() == Hechos{"MouseDown 1 0 4 6", "MouseUp 1 0 4 6", "Click"});
    CHECK(GetFocus() == b.ventana);
}

TEST_CASE("Keys reach the button in the host") {
    BancoDeColores b;
    SetFocus(b.ventana);
    b.Esperar();
    b.Teclear(VK_SPACE);
    b.Teclear(VK_RETURN);
    b.Teclear('A');
    CHECK(b.Sucesos() == Hechos{"TocoTecla 32", "Click", "TocoTecla 13", "Click", "PresTecla 65 0",
                                "TocoTecla 97", "SoltoTecla 65 0"});
}

TEST_CASE("Keys that the host knows nothing of stay with the window") {
    BancoDeColores b;
    SetFocus(b.ventana);
    b.Esperar();
    const auto activo = b.objeto.Como<IOleInPlaceActiveObject>();
    for (const WPARAM tecla : {WPARAM{VK_TAB}, WPARAM{VK_RETURN}, WPARAM{'A'}}) {
        MSG mensaje{b.ventana, WM_KEYDOWN, tecla, 1, 0, {}};
        CHECK(activo->TranslateAccelerator(&mensaje) == S_FALSE);
    }
}

TEST_CASE("A text box of the host's window keeps its keys while the mouse crosses the button") {
    BancoDeColores b;
    SetFocus(b.texto);
    b.Llevar(b.ventana, 4, 6);
    b.Teclear('A');
    wchar_t escrito[8]{};
    GetWindowTextW(b.texto, escrito, 8);
    CHECK(std::wstring(escrito) == L"a");
    b.Poner(L"FocoConMouse", true);
    b.Llevar(b.marco, 280, 10);
    b.Esperar(200); // the watch on a mouse that had come to rest
    b.Llevar(b.ventana, 4, 6);
    CHECK(GetFocus() == b.ventana);
    b.Llevar(b.texto, 4, 6);
    b.Clic();
    CHECK(GetFocus() == b.texto);
}

TEST_CASE("A disabled button in the host does nothing") {
    BancoDeColores b;
    b.Poner(L"Enabled", false);
    b.Llevar(b.ventana, 4, 6);
    b.Clic();
    CHECK(b.Sucesos() == Hechos{});
    CHECK(GetFocus() == b.texto);
}

TEST_CASE("An access key works in the host") {
    BancoDeColores b;
    MSG mensaje{b.ventana, WM_SYSKEYDOWN, 'G', 0x20000001, 0, {}};
    CHECK(b.objeto.Como<IOleControl>()->OnMnemonic(&mensaje) == S_OK);
    CHECK(b.Sucesos() == Hechos{"Click"});
}

TEST_CASE("A progressive change runs to its end in the host") {
    BancoDeColores b;
    b.Poner(L"CambioProgre", true);
    b.Poner(L"CambioProgrePasos", 5L);
    b.Llevar(b.ventana, 5, 5);
    b.Esperar(500);
    CHECK(b.Centro() == Verde);
}

TEST_CASE("The host lets go of the button with its window, and nothing stays behind") {
    Componente componente;
    {
        BancoDeColores b;
        componente = b.componente;
        b.Llevar(b.ventana, 4, 6);
        b.Clic();
        b.sumidero->Desconectar();
        DestroyWindow(b.marco);
        CHECK_FALSE(IsWindow(b.ventana));
        b.Esperar(50);
        CHECK(b.objeto.Soltar() == 0);
    }
    CHECK(componente.PuedeDescargarse());
}

TEST_CASE("A handler of Click may destroy the host's window") {
    Componente componente;
    {
        BancoDeColores b;
        componente = b.componente;
        b.alOcurrir = [&](Evento& e) {
            if (e.nombre == L"Click")
                DestroyWindow(b.marco);
        };
        b.Llevar(b.ventana, 4, 6);
        b.Clic();
        CHECK_FALSE(IsWindow(b.marco));
        // The mouse is over no button any more, which the poll may tell before or after.
        Hechos sucesos = b.Sucesos();
        std::erase(sucesos, "MouseSale");
        CHECK(sucesos == Hechos{"MouseDown 1 0 4 6", "MouseUp 1 0 4 6", "Click"});
    }
    CHECK(componente.PuedeDescargarse());
}

TEST_CASE("A handler of Click may close the object under the host") {
    Componente componente;
    {
        BancoDeColores b;
        componente = b.componente;
        b.alOcurrir = [&](Evento& e) {
            if (e.nombre == L"Click") {
                b.objeto->Close(OLECLOSE_NOSAVE);
                b.objeto->SetClientSite(nullptr);
                b.objeto->Close(OLECLOSE_NOSAVE);
            }
        };
        b.Llevar(b.ventana, 4, 6);
        b.Clic();
        CHECK_FALSE(IsWindow(b.ventana));
    }
    CHECK(componente.PuedeDescargarse());
}
