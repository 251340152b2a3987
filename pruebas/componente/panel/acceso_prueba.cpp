// What a screen reader finds at the panel's window.
#include "pruebas/componente/acceso/lector.h"
#include "pruebas/componente/panel/banco.h"

using namespace panel;
using acceso::AccesibleDe;
using acceso::Yo;

TEST_CASE("a screen reader finds a group with the caption's name, without ampersand") {
    BancoPanel b;
    b.Poner(L"Caption", L"&Datos personales");
    const auto a = AccesibleDe(b.Ventana());
    VARIANT papel{};
    REQUIRE(a->get_accRole(Yo, &papel) == S_OK);
    CHECK(papel.lVal == ROLE_SYSTEM_GROUPING);
    CHECK(acceso::Nombre(a.get()) == L"Datos personales");
    BSTR texto = nullptr;
    CHECK(a->get_accKeyboardShortcut(Yo, &texto) == S_FALSE); // no key of its own
    CHECK(texto == nullptr);
    CHECK((acceso::Estado(a.get()) & STATE_SYSTEM_UNAVAILABLE) == 0);
    b.Poner(L"Enabled", false);
    CHECK((acceso::Estado(a.get()) & STATE_SYSTEM_UNAVAILABLE) != 0);
}

TEST_CASE("what stands on a panel is inside the group, each part under its own name") {
    BancoPanel b;
    const auto a = AccesibleDe(b.Ventana());
    long hijos = -1;
    CHECK(a->get_accChildCount(&hijos) == S_OK);
    CHECK(hijos == 0);
    const auto uno = b.Dentro(L"Uno", {10, 20, 70, 60});
    Poner(uno->Despacho(), L"Caption", L"&Uno");
    b.Dentro(L"Dos", {80, 20, 140, 60});
    CHECK(a->get_accChildCount(&hijos) == S_OK);
    CHECK(hijos == 2);
    VARIANT encontrado{};
    POINT punto{15, 25};
    ClientToScreen(b.Ventana(), &punto);
    REQUIRE(a->accHitTest(punto.x, punto.y, &encontrado) == S_OK);
    REQUIRE(encontrado.vt == VT_DISPATCH);
    const auto parte = Puntero<IDispatch>::Adoptar(encontrado.pdispVal).Como<IAccessible>();
    REQUIRE(parte);
    HWND ventana = nullptr;
    CHECK(WindowFromAccessibleObject(parte.get(), &ventana) == S_OK);
    REQUIRE(ventana == uno->Ventana());
    CHECK(acceso::Nombre(AccesibleDe(ventana).get()) == L"Uno");
    punto = {5, 5};
    ClientToScreen(b.Ventana(), &punto);
    REQUIRE(a->accHitTest(punto.x, punto.y, &encontrado) == S_OK);
    CHECK(encontrado.vt == VT_I4);
    CHECK(encontrado.lVal == CHILDID_SELF);
}

TEST_CASE("the default action of the group is a click, unless it is disabled") {
    BancoPanel b;
    const auto a = AccesibleDe(b.Ventana());
    CHECK(a->accDoDefaultAction(Yo) == S_OK);
    CHECK(b.Sucesos() == Hechos{"Click"});
    b.Poner(L"Enabled", false);
    CHECK(FAILED(a->accDoDefaultAction(Yo)));
    CHECK(b.Veces("Click") == 1);
}
