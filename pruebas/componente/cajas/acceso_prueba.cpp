// What a screen reader finds in the edit field of a text box.
#include "pruebas/cada.h"
#include "pruebas/componente/cajas/banco.h"

#include <oleacc.h>

using namespace cajas;
using pincela::pruebas::Cada;

namespace {

const VARIANT Yo = [] {
    VARIANT v{};
    v.vt = VT_I4;
    v.lVal = CHILDID_SELF;
    return v;
}();

/// The platform's road from a window to its object, as assistive programs take it.
Puntero<IAccessible> AccesibleDe(HWND ventana) {
    static const HMODULE oleacc = LoadLibraryW(L"oleacc.dll");
    using Pregunta = HRESULT(WINAPI*)(HWND, DWORD, REFIID, void**);
    const auto pregunta = reinterpret_cast<Pregunta>(
        reinterpret_cast<void*>(GetProcAddress(oleacc, "AccessibleObjectFromWindow")));
    IAccessible* accesible = nullptr;
    REQUIRE(pregunta(ventana, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                     reinterpret_cast<void**>(&accesible)) == S_OK);
    return Puntero<IAccessible>::Adoptar(accesible);
}

std::wstring Tomar(BSTR texto) {
    std::wstring copia = texto ? texto : L"";
    SysFreeString(texto);
    return copia;
}

std::wstring Nombre(HWND campo) {
    BSTR texto = nullptr;
    AccesibleDe(campo)->get_accName(Yo, &texto);
    return Tomar(texto);
}

long Estado(HWND campo) {
    VARIANT v{};
    REQUIRE(AccesibleDe(campo)->get_accState(Yo, &v) == S_OK);
    return v.lVal;
}

} // namespace

TEST_CASE("The caption, without its ampersand, is the name of the field") {
    BancoDeCaja b(Cada({L"Pincela.Tbox", L"Pincela.TBoxML"}));
    b.Poner(L"Caption", L"&Nombre y apellido");
    CHECK(Nombre(b.Campo()) == L"Nombre y apellido");
    b.Poner(L"Caption", L"Calle");
    CHECK(Nombre(b.Campo()) == L"Calle");
    b.Poner(L"AlinText", 2L); // another window, the same field
    CHECK(Nombre(b.Campo()) == L"Calle");
}

TEST_CASE("The tip is the name of a field without caption") {
    BancoDeCaja b(Cada({L"Pincela.TboxSS", L"Pincela.TboxSSML"}));
    b.Poner(L"ToolTipText", L"Calle y número");
    CHECK(Nombre(b.Campo()) == L"Calle y número");
}

TEST_CASE("The field is a text with its value, read-only when locked, unavailable when disabled") {
    BancoDeCaja b(Cada({L"Pincela.Tbox", L"Pincela.TboxSS"}));
    b.Poner(L"ToolTipText", L"Calle");
    if (anfitrion::Tiene(b.Caja(), L"Caption"))
        b.Poner(L"Caption", L"Calle");
    b.Poner(L"Text", L"Mayor 3");
    VARIANT papel{};
    REQUIRE(AccesibleDe(b.Campo())->get_accRole(Yo, &papel) == S_OK);
    CHECK(papel.lVal == ROLE_SYSTEM_TEXT);
    BSTR valor = nullptr;
    AccesibleDe(b.Campo())->get_accValue(Yo, &valor);
    CHECK(Tomar(valor) == L"Mayor 3");
    CHECK((Estado(b.Campo()) & STATE_SYSTEM_FOCUSABLE) != 0);
    CHECK((Estado(b.Campo()) & (STATE_SYSTEM_READONLY | STATE_SYSTEM_FOCUSED)) == 0);
    b.Enfocar();
    CHECK((Estado(b.Campo()) & STATE_SYSTEM_FOCUSED) != 0);
    b.Poner(L"Tranca", true);
    CHECK((Estado(b.Campo()) & STATE_SYSTEM_READONLY) != 0);
    b.Poner(L"Enabled", false);
    CHECK((Estado(b.Campo()) & STATE_SYSTEM_UNAVAILABLE) != 0);
}

TEST_CASE("What a reader holds of a field outlives the control and says so") {
    Componente componente; // stays loaded for as long as the reader holds its object
    Puntero<IAccessible> sostenido;
    {
        BancoDeCaja b(L"Pincela.Tbox");
        componente = b.componente;
        b.Poner(L"Caption", L"Calle");
        sostenido = AccesibleDe(b.Campo());
    }
    BSTR texto = nullptr;
    CHECK(FAILED(sostenido->get_accName(Yo, &texto)));
    CHECK(texto == nullptr);
}
