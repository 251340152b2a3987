#include "anfitrion/pruebas/banco.h"

using namespace falso;
using Lista = std::vector<std::string>;

TEST_CASE("A new control is initialised, sited, measured and activated in that order") {
    Banco banco;
    ControlFalso* c = banco.Poner(L"uno");
    REQUIRE(c->llamadas == Lista{"InitNew", "SetClientSite", "SetExtent",
                                 "DoVerb " + std::to_string(OLEIVERB_INPLACEACTIVATE)});
    REQUIRE(banco.registro->Nombres("uno") ==
            Lista{"IOleInPlaceSite::CanInPlaceActivate", "IOleInPlaceSite::OnInPlaceActivate"});
    REQUIRE(banco.alojado->Ventana() == c->ventana);
    REQUIRE(GetParent(c->ventana) == banco.forma->Ventana());
}

TEST_CASE("A control that asks for its site first gets it before its state") {
    Banco banco;
    Caracter caracter;
    caracter.marcas |= OLEMISC_SETCLIENTSITEFIRST;
    ControlFalso* c = banco.Poner(L"uno", caracter);
    REQUIRE(c->llamadas[0] == "SetClientSite");
    REQUIRE(c->llamadas[1] == "InitNew");
}

TEST_CASE("An orderly close deactivates, closes, takes the site away and leaves no reference") {
    Banco banco;
    ControlFalso* c = banco.Poner(L"uno");
    banco.alojado->Conectar([](Evento&) {});
    banco.alojado->Activar(true);
    const Puntero<IOleObject> testigo(static_cast<IOleObject*>(c));
    c->llamadas.clear();
    REQUIRE(banco.forma->Quitar(*banco.alojado) == 1);
    REQUIRE(c->llamadas == Lista{"Unadvise", "Unadvise", "Unadvise", "InPlaceDeactivate",
                                 "UIDeactivate", "Close", "SetClientSite nada"});
    REQUIRE(banco.forma->Controles().empty());
    REQUIRE(banco.forma->Activo() == nullptr);
    REQUIRE(banco.alojado->Cerrar() == 0);
    REQUIRE(banco.alojado->Despacho() == nullptr);
}

TEST_CASE("The last release of a closed control is the container's") {
    {
        Banco banco;
        banco.Poner(L"uno");
        REQUIRE(ControlFalso::Vivos() == 1);
        REQUIRE(banco.forma->Quitar(*banco.alojado) == 0);
        REQUIRE(ControlFalso::Vivos() == 0);
        banco.Poner(L"dos");
        banco.Poner(L"tres");
    }
    REQUIRE(ControlFalso::Vivos() == 0);
}

TEST_CASE("A careless container takes the site away before closing") {
    OpcionesSitio o;
    o.cierreDescuidado = true;
    Banco banco(o);
    ControlFalso* c = banco.Poner(L"uno");
    const Puntero<IOleObject> testigo(static_cast<IOleObject*>(c));
    banco.forma->Quitar(*banco.alojado);
    REQUIRE(c->Veces("InPlaceDeactivate") == 0);
    REQUIRE(*(c->llamadas.end() - 2) == "SetClientSite nada");
    REQUIRE(c->llamadas.back() == "Close");
}

TEST_CASE("A poor container offers nothing but the obligatory interfaces") {
    Banco banco(OpcionesSitio::Pobre());
    ControlFalso* c = banco.Poner(L"uno");
    const Puntero<IOleClientSite> sitio = c->sitio;
    REQUIRE(sitio.Como<IOleInPlaceSite>());
    REQUIRE_FALSE(sitio.Como<IOleInPlaceSiteEx>());
    REQUIRE_FALSE(sitio.Como<IOleControlSite>());
    REQUIRE_FALSE(sitio.Como<IDispatch>());
    REQUIRE_FALSE(sitio.Como<ISimpleFrameSite>());
    REQUIRE_FALSE(sitio.Como<IServiceProvider>());
    Puntero<IOleContainer> contenedor;
    REQUIRE(sitio->GetContainer(contenedor.Recibir()) == E_NOINTERFACE);
    Puntero<IOleInPlaceFrame> marco;
    Puntero<IOleInPlaceUIWindow> documento;
    RECT a, b;
    REQUIRE(sitio.Como<IOleInPlaceSite>()->GetWindowContext(marco.Recibir(), documento.Recibir(),
                                                            &a, &b, nullptr) == S_OK);
    REQUIRE_FALSE(marco);
    REQUIRE_FALSE(documento);
    banco.alojado->Activar(true);
    REQUIRE(banco.Activo() == L"uno");
}

TEST_CASE("A site kept beyond the life of its control answers that it is gone") {
    Puntero<IOleClientSite> sitio;
    {
        Banco banco;
        sitio = banco.Poner(L"uno")->sitio;
    }
    HWND ventana = nullptr;
    REQUIRE(sitio.Como<IOleInPlaceSite>()->GetWindow(&ventana) == E_UNEXPECTED);
    REQUIRE(sitio.Como<IOleControlSite>()->OnFocus(TRUE) == S_OK);
}

TEST_CASE("The ambient properties tell the control's surroundings") {
    Banco banco;
    ControlFalso* c = banco.Poner(L"uno");
    const auto ambientes = c->sitio.Como<IDispatch>();
    REQUIRE(Logico(Leer(ambientes.get(), L"UserMode")));
    REQUIRE(Texto(Leer(ambientes.get(), L"DisplayName")) == L"uno");
    REQUIRE(Texto(Leer(ambientes.get(), L"ScaleUnits")) == L"Pixel");
    REQUIRE_THROWS_AS(Leer(ambientes.get(), L"Font"), FalloCom);
    banco.forma->PonerModoUsuario(false);
    REQUIRE(c->ambientesCambiados == std::vector<DISPID>{DISPID_AMBIENT_USERMODE});
    REQUIRE_FALSE(Logico(Leer(ambientes.get(), L"UserMode")));
}

TEST_CASE("The container's own properties stand before the control's") {
    Banco banco;
    ControlFalso* c = banco.Poner(L"uno");
    const auto x = banco.alojado->Extendido();
    REQUIRE(Entero(Leer(x.get(), L"Left")) == 10);
    REQUIRE(Entero(Leer(x.get(), L"Width")) == 100);
    Poner(x.get(), L"Left", 50);
    Poner(x.get(), L"Height", 60);
    REQUIRE(banco.alojado->Rectangulo().left == 50);
    REQUIRE(banco.alojado->Rectangulo().right == 150);
    RECT r;
    GetClientRect(c->ventana, &r);
    REQUIRE(r.bottom == 60);
    Poner(x.get(), L"Titulo", L"hola");
    REQUIRE(c->titulo == L"hola");
    Poner(x.get(), L"Visible", false);
    REQUIRE_FALSE(IsWindowVisible(c->ventana));
}

TEST_CASE("The form enumerates its controls") {
    Banco banco;
    ControlFalso* c = banco.Poner(L"uno");
    banco.Poner(L"dos");
    Puntero<IOleContainer> contenedor;
    REQUIRE(c->sitio->GetContainer(contenedor.Recibir()) == S_OK);
    Puntero<IEnumUnknown> enumerador;
    REQUIRE(contenedor->EnumObjects(OLECONTF_EMBEDDINGS, enumerador.Recibir()) == S_OK);
    IUnknown* dados[3] = {};
    ULONG n = 0;
    REQUIRE(enumerador->Next(3, dados, &n) == S_FALSE);
    REQUIRE(n == 2);
    REQUIRE(Puntero<IUnknown>(dados[0]).Como<IOleObject>().get() == static_cast<IOleObject*>(c));
    dados[0]->Release();
    dados[1]->Release();
}

TEST_CASE("A changed property reaches the form while the control lives") {
    Banco banco;
    banco.Poner(L"uno");
    std::vector<DISPID> cambios;
    banco.alojado->Notificaciones().alCambiar = [&](DISPID n) { cambios.push_back(n); };
    Poner(banco.alojado->Despacho(), L"Titulo", L"x");
    REQUIRE(cambios == std::vector<DISPID>{1});
}

TEST_CASE("In design mode a click selects the control instead of reaching it") {
    Banco banco;
    ControlFalso* c = banco.Poner(L"uno");
    banco.forma->PonerModoUsuario(false);
    const HWND capa = GetWindow(banco.forma->Ventana(), GW_CHILD);
    REQUIRE(capa != c->ventana);
    SendMessageW(capa, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 20));
    REQUIRE(banco.forma->Seleccion().size() == 1);
    REQUIRE(banco.forma->Seleccion()[0] == banco.alojado);
    SendMessageW(capa, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(290, 190));
    REQUIRE(banco.forma->Seleccion().empty());
}
