#include "anfitrion/pruebas/banco.h"

using namespace falso;

static Caracter ConTecla(char letra) {
    Caracter c;
    c.tecla = letra;
    return c;
}

static Caracter Boton() {
    Caracter c;
    c.marcas |= OLEMISC_ACTSLIKEBUTTON;
    return c;
}

TEST_CASE("TAB walks the tab order round and SHIFT+TAB walks it back") {
    Banco banco;
    banco.Poner(L"a");
    banco.Poner(L"b");
    banco.Poner(L"c");
    for (const wchar_t* esperado : {L"a", L"b", L"c", L"a"}) {
        REQUIRE(banco.Tecla(VK_TAB));
        REQUIRE(banco.Activo() == esperado);
    }
    for (const wchar_t* esperado : {L"c", L"b"}) {
        REQUIRE(banco.TeclaConMayusculas(VK_TAB));
        REQUIRE(banco.Activo() == esperado);
    }
}

TEST_CASE("TAB follows TabIndex, not the order of creation") {
    Banco banco;
    banco.Poner(L"a");
    banco.alojado->orden = 5;
    banco.Poner(L"b");
    banco.Tecla(VK_TAB);
    REQUIRE(banco.Activo() == L"b");
    banco.Tecla(VK_TAB);
    REQUIRE(banco.Activo() == L"a");
}

TEST_CASE("TAB passes over hidden, unstoppable and refusing controls and never sticks") {
    Banco banco;
    banco.Poner(L"a");
    banco.Poner(L"oculto");
    banco.alojado->PonerVisible(false);
    banco.Poner(L"sin parada");
    banco.alojado->parada = false;
    Caracter terco;
    terco.rechazaFoco = true;
    banco.Poner(L"terco", terco);
    banco.Poner(L"b");
    banco.Tecla(VK_TAB);
    REQUIRE(banco.Activo() == L"a");
    banco.Tecla(VK_TAB);
    REQUIRE(banco.Activo() == L"b");
    banco.Tecla(VK_TAB);
    REQUIRE(banco.Activo() == L"a");
}

TEST_CASE("TAB on a form where nobody takes the focus is consumed and ends") {
    Banco banco;
    Caracter terco;
    terco.rechazaFoco = true;
    banco.Poner(L"a", terco);
    REQUIRE(banco.Tecla(VK_TAB));
    REQUIRE(banco.Activo().empty());
}

TEST_CASE("The control left behind is no longer UI active") {
    Banco banco;
    ControlFalso* a = banco.Poner(L"a");
    banco.Poner(L"b");
    banco.Tecla(VK_TAB);
    a->llamadas.clear();
    banco.Tecla(VK_TAB);
    REQUIRE(a->Veces("UIDeactivate") == 1);
    REQUIRE(GetFocus() == banco.alojado->Ventana());
}

TEST_CASE("A window of the application takes its turn and ends the UI activation") {
    Banco banco;
    ControlFalso* a = banco.Poner(L"a");
    const HWND texto = CreateWindowW(L"EDIT", L"", WS_CHILD | WS_VISIBLE, 150, 10, 80, 20,
                                     banco.forma->Ventana(), nullptr, nullptr, nullptr);
    banco.forma->AgregarVentana(texto, 1);
    banco.Tecla(VK_TAB);
    REQUIRE(banco.Activo() == L"a");
    banco.Tecla(VK_TAB);
    REQUIRE(GetFocus() == texto);
    REQUIRE(banco.Activo().empty());
    REQUIRE(a->Veces("UIDeactivate") >= 1);
    banco.Tecla(VK_TAB);
    REQUIRE(banco.Activo() == L"a");
}

TEST_CASE("The active object has the first look at every key") {
    Banco banco;
    Caracter caracter;
    caracter.teclaPropia = VK_TAB;
    ControlFalso* a = banco.Poner(L"a", caracter);
    banco.Poner(L"b");
    banco.forma->Controles()[0]->Activar(true);
    REQUIRE(banco.Tecla(VK_TAB));
    REQUIRE(a->Veces("tecla propia") == 1);
    REQUIRE(banco.Activo() == L"a");
}

TEST_CASE("A control without a frame to announce itself to still has the first look") {
    Banco banco(OpcionesSitio::Pobre());
    Caracter caracter;
    caracter.teclaPropia = VK_DOWN;
    ControlFalso* a = banco.Poner(L"a", caracter);
    banco.alojado->Activar(true);
    REQUIRE(banco.Tecla(VK_DOWN));
    REQUIRE(a->Veces("tecla propia") == 1);
}

TEST_CASE("A key that the control hands to its site moves the focus once") {
    Banco banco;
    Caracter caracter;
    caracter.preguntaSitio = true;
    banco.Poner(L"a", caracter);
    banco.Poner(L"b", caracter);
    banco.Poner(L"c", caracter);
    banco.forma->Controles()[0]->Activar(true);
    REQUIRE(banco.Tecla(VK_TAB));
    REQUIRE(banco.Activo() == L"b");
    REQUIRE(banco.registro->Veces("IOleControlSite::TranslateAccelerator") == 1);
}

TEST_CASE("ALT and a letter reach the control that carries it") {
    Banco banco;
    ControlFalso* a = banco.Poner(L"a", ConTecla('g'));
    ControlFalso* b = banco.Poner(L"b", ConTecla('h'));
    REQUIRE(banco.Tecla('h', WM_SYSCHAR));
    REQUIRE(b->mnemonicos.size() == 1);
    REQUIRE(a->mnemonicos.empty());
    REQUIRE(banco.Activo() == L"b");
    REQUIRE_FALSE(banco.Tecla('z', WM_SYSCHAR));
}

TEST_CASE("A form without control sites asks for the letters when it needs them") {
    Banco banco(OpcionesSitio::Pobre());
    ControlFalso* a = banco.Poner(L"a");
    a->PonerTecla('k');
    REQUIRE(banco.Tecla('k', WM_SYSCHAR));
    REQUIRE(a->mnemonicos.size() == 1);
}

TEST_CASE("A letter carried twice goes round, and a disabled control gives up its turn") {
    Banco banco;
    ControlFalso* a = banco.Poner(L"a", ConTecla('g'));
    ControlFalso* b = banco.Poner(L"b", ConTecla('g'));
    banco.forma->Controles()[0]->Activar(true);
    banco.Tecla('g', WM_SYSCHAR);
    REQUIRE(b->mnemonicos.size() == 1);
    EnableWindow(a->ventana, FALSE);
    banco.Tecla('g', WM_SYSCHAR);
    REQUIRE(a->mnemonicos.empty());
    REQUIRE(b->mnemonicos.size() == 2);
}

TEST_CASE("Enter presses the default control and Escape the cancel control") {
    Banco banco;
    banco.Poner(L"texto");
    ControlFalso* aceptar = banco.Poner(L"aceptar", Boton());
    banco.alojado->porDefecto = true;
    ControlFalso* salir = banco.Poner(L"salir", Boton());
    banco.alojado->cancela = true;
    banco.forma->Controles()[0]->Activar(true);
    REQUIRE(banco.Tecla(VK_RETURN));
    REQUIRE(aceptar->mnemonicos.size() == 1);
    REQUIRE(banco.Tecla(VK_ESCAPE));
    REQUIRE(salir->mnemonicos.size() == 1);
    REQUIRE(banco.Activo() == L"texto");
}

TEST_CASE("A control that eats Enter or Escape keeps them") {
    Banco banco;
    Caracter gloton;
    gloton.marcasTeclado = CTRLINFO_EATS_RETURN | CTRLINFO_EATS_ESCAPE;
    ControlFalso* texto = banco.Poner(L"texto", gloton);
    ControlFalso* aceptar = banco.Poner(L"aceptar", Boton());
    banco.alojado->porDefecto = banco.alojado->cancela = true;
    banco.forma->Controles()[0]->Activar(true);
    REQUIRE_FALSE(banco.Tecla(VK_RETURN));
    REQUIRE_FALSE(banco.Tecla(VK_ESCAPE));
    REQUIRE(aceptar->mnemonicos.empty());
    REQUIRE(texto->botones == 2);
}

TEST_CASE("A focused button answers Enter itself") {
    Banco banco;
    ControlFalso* a = banco.Poner(L"a", Boton());
    ControlFalso* aceptar = banco.Poner(L"aceptar", Boton());
    banco.alojado->porDefecto = true;
    banco.forma->Controles()[0]->Activar(true);
    REQUIRE_FALSE(banco.Tecla(VK_RETURN));
    REQUIRE(a->botones == 1);
    REQUIRE(aceptar->mnemonicos.empty());
}

TEST_CASE("The default look moves to the focused button and comes back") {
    Banco banco;
    banco.Poner(L"texto");
    ControlFalso* otro = banco.Poner(L"otro", Boton());
    ControlFalso* aceptar = banco.Poner(L"aceptar", Boton());
    banco.alojado->porDefecto = true;
    const auto luce = [](ControlFalso* c) {
        return Logico(Leer(c->sitio.Como<IDispatch>().get(), L"DisplayAsDefault"));
    };
    REQUIRE(luce(aceptar));
    banco.forma->Controles()[1]->Activar(true);
    REQUIRE(luce(otro));
    REQUIRE_FALSE(luce(aceptar));
    REQUIRE_FALSE(aceptar->ambientesCambiados.empty());
    banco.forma->Controles()[0]->Activar(true);
    REQUIRE(luce(aceptar));
    REQUIRE_FALSE(luce(otro));
}

TEST_CASE("Arrows that the control does not use move the focus") {
    Banco banco;
    banco.Poner(L"a");
    banco.Poner(L"b");
    banco.forma->Controles()[0]->Activar(true);
    REQUIRE(banco.Tecla(VK_DOWN));
    REQUIRE(banco.Activo() == L"b");
    REQUIRE(banco.Tecla(VK_LEFT));
    REQUIRE(banco.Activo() == L"a");
}

TEST_CASE("In design mode the form touches no key") {
    Banco banco;
    banco.Poner(L"a");
    banco.forma->PonerModoUsuario(false);
    REQUIRE_FALSE(banco.Tecla(VK_TAB));
    REQUIRE(banco.Activo().empty());
}
