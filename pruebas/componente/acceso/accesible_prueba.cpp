// What a screen reader finds at the button's window.
#include "pruebas/componente/acceso/banco.h"
#include "pruebas/componente/acceso/lector.h"

#include <algorithm>
#include <vector>

using namespace acceso;

namespace {

// Accessibility events, as they pass.
std::vector<std::pair<DWORD, HWND>> vistos;

void CALLBACK Anotar(HWINEVENTHOOK, DWORD evento, HWND ventana, LONG objeto, LONG hijo, DWORD,
                     DWORD) {
    if (objeto == OBJID_CLIENT && hijo == CHILDID_SELF)
        vistos.emplace_back(evento, ventana);
}

struct Escucha {
    Escucha()
        : gancho(SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_NAMECHANGE,
                                 GetModuleHandleW(nullptr), Anotar, GetCurrentProcessId(), 0,
                                 WINEVENT_INCONTEXT)) {
        vistos.clear();
    }
    ~Escucha() { UnhookWinEvent(gancho); }
    bool Vio(DWORD evento, HWND ventana) const {
        return std::find(vistos.begin(), vistos.end(), std::pair(evento, ventana)) != vistos.end();
    }
    HWINEVENTHOOK gancho;
};

} // namespace

TEST_CASE("a screen reader gets role, name without ampersand, shortcut and default action") {
    Banco b;
    b.Poner(L"Caption", L"&Guardar todo");
    const auto a = AccesibleDe(b.boton->Ventana());
    VARIANT papel{};
    REQUIRE(a->get_accRole(Yo, &papel) == S_OK);
    CHECK(papel.lVal == ROLE_SYSTEM_PUSHBUTTON);
    CHECK(Nombre(a.get()) == L"Guardar todo");
    BSTR texto = nullptr;
    CHECK(a->get_accKeyboardShortcut(Yo, &texto) == S_OK);
    CHECK(Tomar(texto) == L"Alt+G");
    CHECK(a->get_accDefaultAction(Yo, &texto) == S_OK);
    CHECK(Tomar(texto) == L"Pulsar");
}

TEST_CASE("the labels of the control are not separate stops") {
    Banco b;
    const auto a = AccesibleDe(b.boton->Ventana());
    long hijos = -1;
    CHECK(a->get_accChildCount(&hijos) == S_OK);
    CHECK(hijos == 0);
    IDispatch* hijo = reinterpret_cast<IDispatch*>(1);
    VARIANT primero{};
    primero.vt = VT_I4;
    primero.lVal = 1;
    CHECK(FAILED(a->get_accChild(primero, &hijo)));
    CHECK(hijo == nullptr);
}

TEST_CASE("pressed, hot, focused and unavailable are told") {
    Banco b;
    const HWND ventana = b.boton->Ventana();
    const auto a = AccesibleDe(ventana);
    CHECK((Estado(a.get()) & STATE_SYSTEM_FOCUSABLE) != 0);
    SendMessageW(ventana, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
    CHECK((Estado(a.get()) & STATE_SYSTEM_PRESSED) != 0);
    CHECK((Estado(a.get()) & STATE_SYSTEM_FOCUSED) != 0);
    SendMessageW(ventana, WM_LBUTTONUP, 0, MAKELPARAM(4, 4));
    CHECK((Estado(a.get()) & STATE_SYSTEM_PRESSED) == 0);
    SendMessageW(ventana, WM_MOUSEMOVE, 0, MAKELPARAM(4, 4));
    CHECK((Estado(a.get()) & STATE_SYSTEM_HOTTRACKED) != 0);
    b.Poner(L"Enabled", false);
    CHECK((Estado(a.get()) & STATE_SYSTEM_UNAVAILABLE) != 0);
    CHECK((Estado(a.get()) & STATE_SYSTEM_FOCUSABLE) == 0);
}

TEST_CASE("the default action clicks, and the place is that of the window") {
    Banco b;
    int clics = 0;
    const auto sumidero =
        b.boton->Conectar([&](Evento& evento) { clics += evento.nombre == L"Click"; });
    const auto a = AccesibleDe(b.boton->Ventana());
    CHECK(a->accDoDefaultAction(Yo) == S_OK);
    CHECK(clics == 1);
    b.Poner(L"Enabled", false);
    CHECK(FAILED(a->accDoDefaultAction(Yo)));
    CHECK(clics == 1);
    long x = 0, y = 0, ancho = 0, alto = 0;
    REQUIRE(a->accLocation(&x, &y, &ancho, &alto, Yo) == S_OK);
    RECT r{};
    GetWindowRect(b.boton->Ventana(), &r);
    CHECK(x == r.left);
    CHECK(y == r.top);
    CHECK(ancho == r.right - r.left);
    CHECK(alto == r.bottom - r.top);
    VARIANT tocado{};
    CHECK(a->accHitTest(x + 1, y + 1, &tocado) == S_OK);
    CHECK(tocado.lVal == CHILDID_SELF);
    CHECK(a->accHitTest(x - 1, y - 1, &tocado) == S_FALSE);
}

TEST_CASE("focus, state and name changes raise the accessibility events") {
    Banco b;
    const HWND ventana = b.boton->Ventana();
    const Escucha escucha;
    SetFocus(ventana);
    CHECK(escucha.Vio(EVENT_OBJECT_FOCUS, ventana));
    vistos.clear();
    SendMessageW(ventana, WM_KEYDOWN, VK_SPACE, 1);
    CHECK(escucha.Vio(EVENT_OBJECT_STATECHANGE, ventana));
    vistos.clear();
    SendMessageW(ventana, WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001));
    CHECK(escucha.Vio(EVENT_OBJECT_STATECHANGE, ventana));
    vistos.clear();
    b.Poner(L"Caption", L"Otro nombre");
    CHECK(escucha.Vio(EVENT_OBJECT_NAMECHANGE, ventana));
    vistos.clear();
    b.Poner(L"Caption", L"Otro nombre");
    CHECK_FALSE(escucha.Vio(EVENT_OBJECT_NAMECHANGE, ventana));
}

TEST_CASE("an object held longer than its control says that it is disconnected") {
    Componente componente = Componente::DeRegistro(); // the file outlives what was made from it
    Puntero<IAccessible> a;
    {
        Banco b;
        componente = b.componente;
        a = AccesibleDe(b.boton->Ventana());
    }
    BSTR texto = reinterpret_cast<BSTR>(1);
    CHECK(a->get_accName(Yo, &texto) == CO_E_OBJNOTCONNECTED);
    CHECK(texto == nullptr);
    CHECK(a->accDoDefaultAction(Yo) == CO_E_OBJNOTCONNECTED);
}

TEST_CASE("a child that is not there and missing out-parameters are refused") {
    Banco b;
    const auto a = AccesibleDe(b.boton->Ventana());
    VARIANT otro{};
    otro.vt = VT_I4;
    otro.lVal = 7;
    BSTR texto = reinterpret_cast<BSTR>(1);
    CHECK(a->get_accName(otro, &texto) == E_INVALIDARG);
    CHECK(texto == nullptr);
    CHECK(a->get_accName(Yo, nullptr) == E_POINTER);
    CHECK(a->get_accState(Yo, nullptr) == E_POINTER);
}
