// What a container refuses doesn't happen.
#include "pruebas/cada.h"
#include "pruebas/componente/contenedor/terco.h"

using namespace contenedor;
using pincela::pruebas::Cada;

namespace {

const wchar_t* CadaClase() {
    return Cada({L"Botonazo", L"Area", L"Tbox", L"TBoxML", L"TboxSS", L"TboxSSML"});
}

} // namespace

TEST_CASE("A control whose container refuses to activate it has no window, and says why") {
    Terco t(CadaClase());
    // The site keeps the count: whoever accepted the activation is told of its end, nobody else.
    const struct {
        HRESULT SitioTerco::*cual;
        std::size_t despedidas;
    } rechazos[] = {{&SitioTerco::puede, 0},
                    {&SitioTerco::activa, 0},
                    {&SitioTerco::ventana, 1},
                    {&SitioTerco::contexto, 1}};
    for (const auto& uno : rechazos) {
        INFO("refusal number ", &uno - rechazos);
        t.sitio.get()->*uno.cual = E_ACCESSDENIED;
        t.sitio->registro->Vaciar();
        CHECK(t.Verbo(OLEIVERB_INPLACEACTIVATE) == E_ACCESSDENIED);
        CHECK(t.Verbo(OLEIVERB_UIACTIVATE) == E_ACCESSDENIED);
        CHECK(t.Ventana() == nullptr);
        CHECK(t.Ventanas() == 0);
        CHECK(t.sitio->Veces("OnInPlaceDeactivate") == 2 * uno.despedidas);
        CHECK(t.sitio->Veces("OnUIActivate") == 0);
        CHECK(t.sitio->Veces("ShowObject") == 0);
        t.sitio.get()->*uno.cual = S_OK;
    }
    SIZEL tamano{};
    CHECK(t.objeto->GetExtent(DVASPECT_CONTENT, &tamano) == S_OK);
    CHECK(t.Verbo(OLEIVERB_INPLACEACTIVATE) == S_OK);
    CHECK(IsWindowVisible(t.Ventana()));
    CHECK(t.Ventanas() == 1);
}

TEST_CASE("A container that says no to in-place activation without failing is obeyed") {
    Terco t;
    t.sitio->puede = S_FALSE;
    CHECK(FAILED(t.Verbo(OLEIVERB_INPLACEACTIVATE)));
    CHECK(t.Ventanas() == 0);
    CHECK(t.sitio->Veces("OnInPlaceActivate") == 0);
}

TEST_CASE("A container that implements none of it gets its control where it asked for it") {
    Terco t(CadaClase());
    t.sitio->puede = t.sitio->activa = t.sitio->ventana = t.sitio->contexto = t.sitio->activaUI =
        t.sitio->otros = E_NOTIMPL;
    CHECK(t.Verbo(OLEIVERB_UIACTIVATE) == S_OK);
    REQUIRE(t.Ventana());
    CHECK(GetParent(t.Ventana()) == t.padre);
    RECT lugar{};
    GetWindowRect(t.Ventana(), &lugar);
    MapWindowPoints(nullptr, t.padre, reinterpret_cast<POINT*>(&lugar), 2);
    CHECK(lugar.left == 20);
    CHECK(lugar.bottom == 60);
    CHECK(t.TieneFoco());
}

TEST_CASE("A container that answers S_OK and hands out nothing gets its control all the same") {
    Terco t(CadaClase());
    t.sitio->miente = true;
    CHECK(t.Verbo(OLEIVERB_UIACTIVATE) == S_OK);
    REQUIRE(t.Ventana());
    RECT lugar{};
    GetWindowRect(t.Ventana(), &lugar);
    CHECK(lugar.right - lugar.left == 70); // the place that came with the verb
    CHECK(t.TieneFoco());
    CHECK(t.objeto.Como<IOleInPlaceObject>()->UIDeactivate() == S_OK);
    CHECK(t.objeto.Como<IOleInPlaceObject>()->InPlaceDeactivate() == S_OK);
}

TEST_CASE("A control whose container refuses its activation for the user takes no focus") {
    Terco t(CadaClase());
    REQUIRE(t.Verbo(OLEIVERB_INPLACEACTIVATE) == S_OK);
    SetFocus(t.texto);
    t.sitio->registro->Vaciar();
    t.sitio->activaUI = E_ACCESSDENIED;
    for (const LONG verbo : {LONG{OLEIVERB_UIACTIVATE}, LONG{OLEIVERB_PRIMARY}, 77L})
        CHECK(t.Verbo(verbo) == E_ACCESSDENIED);
    CHECK(GetFocus() == t.texto);
    CHECK(t.sitio->Veces("OnUIActivate") == 3);
    t.Clic();
    CHECK(t.sitio->Veces("OnUIActivate") == 4);
    CHECK(GetFocus() == t.texto);
    CHECK_FALSE(t.sitio->marco->Activo());
    CHECK(t.sitio->Veces("IOleInPlaceUIWindow::SetActiveObject") == 0);
    CHECK(t.sitio->Veces("IOleInPlaceUIWindow::SetBorderSpace") == 0);
    // It was not active for the user, so it doesn't tell that it no longer is.
    CHECK(t.objeto.Como<IOleInPlaceObject>()->UIDeactivate() == S_OK);
    CHECK(t.sitio->Veces("OnUIDeactivate") == 0);

    t.sitio->activaUI = S_OK;
    t.Clic();
    CHECK(t.TieneFoco());
    CHECK(t.sitio->marco->Activo());
}

TEST_CASE("A hover that wants the focus gets none from a container that refuses") {
    Terco t(Cada({L"Botonazo", L"Tbox"}));
    anfitrion::Poner(t.objeto.Como<IDispatch>().get(), L"FocoConMouse", true);
    REQUIRE(t.Verbo(OLEIVERB_INPLACEACTIVATE) == S_OK);
    SetFocus(t.texto);
    t.sitio->activaUI = E_FAIL;
    SendMessageW(t.Ventana(), WM_MOUSEMOVE, 0, MAKELPARAM(2, 2));
    CHECK(GetFocus() == t.texto);
    CHECK(t.sitio->Veces("OnUIActivate") == 1);
}

TEST_CASE("A focus that comes from the platform stays, and the control is not active for that") {
    Terco t(CadaClase());
    REQUIRE(t.Verbo(OLEIVERB_INPLACEACTIVATE) == S_OK);
    t.sitio->registro->Vaciar();
    t.sitio->activaUI = E_ACCESSDENIED;
    SetFocus(t.Ventana());
    CHECK(t.TieneFoco());
    CHECK(t.sitio->Veces("OnUIActivate") == 1);
    CHECK(t.sitio->Veces("OnFocus si") == 1);
    CHECK_FALSE(t.sitio->marco->Activo());
    SetFocus(t.texto);
    CHECK(t.sitio->Veces("OnFocus no") == 1);
    CHECK(t.sitio->Veces("OnUIDeactivate") == 0);
}

namespace {

/// The container closes the control inside one of the calls of its activation.
void CerrarDentroDe(const std::string& cuando, int como) {
    CAPTURE(cuando);
    CAPTURE(como);
    Terco t(L"TboxSS");
    int veces = 0;
    t.sitio->alLlamar = [&](const std::string& llamada) {
        if (cuando != llamada || veces++ > 0)
            return;
        if (como == 1)
            t.objeto->Close(OLECLOSE_NOSAVE);
        else if (como == 2)
            t.objeto.Como<IOleInPlaceObject>()->InPlaceDeactivate();
        else
            t.objeto->SetClientSite(nullptr);
    };
    t.Verbo(OLEIVERB_UIACTIVATE);
    t.sitio->alLlamar = nullptr;
    CHECK(veces >= 1);
    // Asked whether it could be, it was not in place yet: closing it there ends nothing but itself.
    if (cuando != "CanInPlaceActivate" || como == 3) {
        CHECK(t.Ventana() == nullptr);
        CHECK(t.Ventanas() == 0);
    }
    CHECK(t.sitio->Veces("OnInPlaceDeactivate") ==
          t.sitio->Veces("OnInPlaceActivate") - (t.Ventana() ? 1 : 0));
}

} // namespace

TEST_CASE("A control that is closed while it asks to be activated has no window left") {
    for (const char* cuando : {"CanInPlaceActivate", "OnInPlaceActivate", "GetWindow",
                               "GetWindowContext", "ShowObject", "OnUIActivate"})
        for (const int como : {1, 2, 3})
            CerrarDentroDe(cuando, como);
}

TEST_CASE("A container may activate the control again while it is being activated") {
    for (const char* cuando :
         {"CanInPlaceActivate", "OnInPlaceActivate", "GetWindow", "GetWindowContext"}) {
        CAPTURE(cuando);
        Terco t(L"Tbox");
        int veces = 0;
        t.sitio->alLlamar = [&](const std::string& llamada) {
            if (cuando == llamada && veces++ == 0)
                t.Verbo(OLEIVERB_INPLACEACTIVATE);
        };
        CHECK(t.Verbo(OLEIVERB_UIACTIVATE) == S_OK);
        CHECK(t.Ventanas() == 1);
        CHECK(t.sitio->Veces("OnInPlaceActivate") == 1);
        CHECK(t.TieneFoco());
    }
}
