// What the container is told when the focus comes and goes.
#include "pruebas/componente/vivo/banco.h"

#include <algorithm>

using namespace vivo;

namespace {

/// The notices that belong to activation and focus, with who gave them.
Hechos Dichos(const Registro& registro) {
    static const std::string interesantes[] = {
        "IOleInPlaceSite::OnUIActivate", "IOleInPlaceSite::OnUIDeactivate",
        "IOleInPlaceSite::OnInPlaceActivate", "IOleInPlaceSite::OnInPlaceDeactivate",
        "IOleControlSite::OnFocus"};
    Hechos avisos;
    for (const auto& llamada : registro.Llamadas())
        if (std::find(std::begin(interesantes), std::end(interesantes), llamada.nombre) !=
            std::end(interesantes))
            avisos.push_back(llamada.control + " " +
                             llamada.nombre.substr(llamada.nombre.find("::") + 2) +
                             (llamada.detalle.empty() ? "" : " " + llamada.detalle));
    return avisos;
}

struct BancoDeAvisos : Banco {
    BancoDeAvisos() : texto(AgregarTexto(5)) {
        SetFocus(texto);
        Esperar();
        Olvidar();
    }
    HWND texto;
};

} // namespace

TEST_CASE("The control is active for the user before it tells of its focus") {
    BancoDeAvisos b;
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    CHECK(Dichos(*b.registro) == Hechos{"Boton OnUIActivate", "Boton OnFocus si"});
    b.Olvidar();
    SetFocus(b.texto);
    b.Esperar();
    CHECK(Dichos(*b.registro) == Hechos{"Boton OnFocus no", "Boton OnUIDeactivate"});
}

TEST_CASE("A click gives the same notices as the container's own activation") {
    BancoDeAvisos b;
    b.Entrar(5, 5);
    b.Clic();
    CHECK(Dichos(*b.registro) == Hechos{"Boton OnUIActivate", "Boton OnFocus si"});
}

TEST_CASE("A window that gets the focus on its own activates its control") {
    BancoDeAvisos b;
    SetFocus(b.Ventana());
    b.Esperar();
    CHECK(Dichos(*b.registro) == Hechos{"Boton OnUIActivate", "Boton OnFocus si"});
    CHECK(b.forma->Activo() == b.boton.get());
}

TEST_CASE("A click into a control that has the focus but lost its activation activates it") {
    BancoDeAvisos b;
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.boton->Como<IOleInPlaceObject>()->UIDeactivate();
    REQUIRE(GetFocus() == b.Ventana());
    b.Olvidar();
    b.Entrar(5, 5);
    b.Clic();
    CHECK(Dichos(*b.registro) == Hechos{"Boton OnUIActivate"});
    CHECK(b.forma->Activo() == b.boton.get());
}

TEST_CASE("Each control tells of its own focus when it passes from one to the other") {
    BancoDeAvisos b;
    const auto otro = b.Agregar(L"Otro", {170, 40, 290, 80});
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    b.Olvidar();
    otro->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    CHECK(Dichos(*b.registro) == Hechos{"Otro OnUIActivate", "Boton OnUIDeactivate",
                                        "Boton OnFocus no", "Otro OnFocus si"});
    CHECK(b.boton->ConFoco() == false);
    CHECK(otro->ConFoco());
}

TEST_CASE("A second activation tells nothing new") {
    BancoDeAvisos b;
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    b.Olvidar();
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.boton->Verbo(OLEIVERB_SHOW);
    b.Entrar(5, 5);
    b.Clic();
    CHECK(Dichos(*b.registro) == Hechos{});
}

TEST_CASE("A control that goes with the focus tells that it lost it, before it leaves its place") {
    BancoDeAvisos b;
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    b.Olvidar();
    b.boton->Como<IOleInPlaceObject>()->InPlaceDeactivate();
    CHECK(Dichos(*b.registro) ==
          Hechos{"Boton OnUIDeactivate", "Boton OnFocus no", "Boton OnInPlaceDeactivate"});
}

TEST_CASE("A disabled button tells nothing of a focus that it does not take") {
    BancoDeAvisos b;
    b.Poner(L"Enabled", false);
    b.Olvidar();
    CHECK(SUCCEEDED(b.boton->Verbo(OLEIVERB_UIACTIVATE)));
    b.Entrar(5, 5);
    b.Clic();
    CHECK(Dichos(*b.registro) == Hechos{});
    CHECK(GetFocus() == b.texto);
    CHECK(b.forma->Activo() == nullptr);
}

TEST_CASE("A control that is not in place tells nothing of a focus") {
    BancoDeAvisos b;
    b.boton->Como<IOleInPlaceObject>()->InPlaceDeactivate();
    b.Olvidar();
    LlevarRaton(b.forma->Ventana(), 45, 45); // where it was
    b.Esperar();
    b.Clic();
    CHECK(Dichos(*b.registro) == Hechos{});
}

TEST_CASE("The control leaves to the window every key that the container does not want") {
    BancoDeAvisos b;
    const auto activo = b.boton->Como<IOleInPlaceActiveObject>();
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    MSG mensaje{b.Ventana(), WM_KEYDOWN, 'A', 1, 0, {}};
    CHECK(activo->TranslateAccelerator(&mensaje) == S_FALSE);
    CHECK(activo->TranslateAccelerator(nullptr) == E_POINTER);
    mensaje.wParam = VK_TAB;
    CHECK(activo->TranslateAccelerator(&mensaje) == S_OK);
    CHECK(GetFocus() == b.texto);
}
