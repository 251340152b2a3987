// A container that keeps its controls from the user (ambient UIDead), and the locale it tells.
#include "pruebas/cada.h"
#include "pruebas/componente/comun/sumideros.h"
#include "pruebas/componente/vivo/banco.h"

#include <olectl.h>

using namespace vivo;
using pincela::pruebas::Cada;

namespace {

OpcionesFormulario Muerta(bool muerta = true) {
    OpcionesFormulario opciones;
    opciones.ambiente.uiMuerta = muerta;
    return opciones;
}

void PonerMuerta(Banco& b, bool muerta, DISPID anuncio = DISPID_AMBIENT_UIDEAD) {
    b.forma->CambiarAmbiente(anuncio, [muerta](Ambiente& a) { a.uiMuerta = muerta; });
}

HWND Campo(Banco& b) {
    const HWND campo = GetWindow(b.Ventana(), GW_CHILD);
    REQUIRE(campo);
    return campo;
}

/// All that a user can do to a window, whatever it is.
void Usar(HWND ventana) {
    const LPARAM punto = MAKELPARAM(5, 5);
    SendMessageW(ventana, WM_MOUSEMOVE, 0, punto);
    for (const UINT mensaje : {WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_MBUTTONDOWN})
        SendMessageW(ventana, mensaje, 0, punto);
    for (const UINT mensaje : {WM_LBUTTONUP, WM_RBUTTONUP, WM_MBUTTONUP})
        SendMessageW(ventana, mensaje, 0, punto);
    for (const WPARAM tecla : {WPARAM{'A'}, WPARAM{VK_SPACE}, WPARAM{VK_RETURN}}) {
        SendMessageW(ventana, WM_KEYDOWN, tecla, 1);
        SendMessageW(ventana, WM_CHAR, tecla, 1);
        SendMessageW(ventana, WM_KEYUP, tecla, static_cast<LPARAM>(0xC0000001));
    }
}

/// Somebody who hears of events, and in which language he is told.
class Oyente : public ObjetoCom<IDispatch> {
  public:
    std::vector<LCID> idiomas;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID idioma, WORD, DISPPARAMS*, VARIANT*,
                                     EXCEPINFO*, UINT*) override {
        idiomas.push_back(idioma);
        return S_OK;
    }
};

GUID EventosDe(const ControlAlojado& control) {
    GUID eventos{};
    CHECK(control.Como<IProvideClassInfo2>()->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &eventos) ==
          S_OK);
    return eventos;
}

LCID IdiomaDeUnEvento(Banco& b, Oyente& oyente) {
    oyente.idiomas.clear();
    b.Pulsacion('A');
    REQUIRE_FALSE(oyente.idiomas.empty());
    return oyente.idiomas.back();
}

} // namespace

TEST_CASE("A form that is dead to the user passes no input on to its controls") {
    Banco b(Muerta(),
            Cada({L"Pincela.Botonazo", L"Pincela.Area", L"Pincela.Tbox", L"Pincela.TboxSS"}));
    const Captura antes = Captura::DeVentana(b.Ventana());
    Usar(b.Ventana());
    MSG mensaje{b.Ventana(), WM_SYSKEYDOWN, 'A', 0x20000001, 0, {}};
    CHECK(b.boton->Como<IOleControl>()->OnMnemonic(&mensaje) == S_OK);
    CHECK(b.Sucesos() == Hechos{});
    CHECK(b.Veces("MouseMove") == 0);
    CHECK(GetFocus() != b.Ventana());
    CHECK(Captura::DeVentana(b.Ventana()) == antes);
    PonerMuerta(b, false);
    Usar(b.Ventana());
    CHECK(b.Veces("MouseMove") > 0);
    CHECK(b.Veces("Click") > 0);
}

TEST_CASE("The field of a text box that is dead to the user is written by code alone") {
    Banco b(Muerta(false),
            Cada({L"Pincela.Tbox", L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"}));
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    REQUIRE(GetFocus() == Campo(b));
    PonerMuerta(b, true);
    b.Olvidar();
    Usar(Campo(b));
    CHECK(Texto(b.Leer(L"Text")).empty());
    CHECK(b.Sucesos() == Hechos{});
    b.Poner(L"Text", L"por programa");
    CHECK(Texto(b.Leer(L"Text")) == L"por programa");
    CHECK(b.Veces("Change") == 1);
    SendMessageW(Campo(b), WM_KEYDOWN, VK_DELETE, 1);
    CHECK(Texto(b.Leer(L"Text")) == L"por programa");
    PonerMuerta(b, false);
    SendMessageW(Campo(b), WM_CHAR, 'x', 1);
    CHECK(Texto(b.Leer(L"Text")) != L"por programa");
}

TEST_CASE("What the user had begun ends without an event when the form dies for him") {
    using Comienzo = void (*)(Banco&);
    const Comienzo comienzos[] = {
        [](Banco& b) { b.Enviar(WM_MOUSEMOVE, 0, 5, 5); },
        [](Banco& b) {
            b.Enviar(WM_MOUSEMOVE, 0, 5, 5);
            b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
        },
        [](Banco& b) { SendMessageW(b.Ventana(), WM_KEYDOWN, VK_SPACE, 1); },
    };
    const DISPID anuncio = Cada({DISPID_AMBIENT_UIDEAD, DISPID_UNKNOWN});
    for (const Comienzo comenzar : comienzos) {
        Banco b(Muerta(false));
        b.Poner(L"ColorFondoSobre", 0xFF00L);
        b.Poner(L"FocoVisible", false);
        b.boton->Verbo(OLEIVERB_UIACTIVATE);
        const Captura normal = Captura::DeVentana(b.Ventana());
        comenzar(b);
        CHECK(Captura::DeVentana(b.Ventana()) != normal);
        b.Olvidar();
        PonerMuerta(b, true, anuncio);
        CHECK(Captura::DeVentana(b.Ventana()) == normal);
        CHECK(GetCapture() != b.Ventana());
        SendMessageW(b.Ventana(), WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001));
        SendMessageW(b.Ventana(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
        b.Esperar(100); // longer than the poll of the mouse takes
        CHECK(b.Sucesos() == Hechos{});
    }
}

TEST_CASE("A control that is dead to the user is painted as ever") {
    Banco b(Muerta());
    b.Poner(L"ColorFondo", 0x123456L);
    CHECK(b.Centro() == 0x123456);
}

TEST_CASE("A focus that leaves a control that input doesn't reach leaves no trace on it") {
    const std::wstring clase = Cada({L"Pincela.Botonazo", L"Pincela.TboxSS"});
    for (const bool disenando : {false, true}) {
        CAPTURE(disenando);
        Banco b(Muerta(false), clase.c_str());
        const auto parar = [&](bool parada) {
            if (disenando)
                b.forma->PonerModoUsuario(!parada);
            else
                PonerMuerta(b, parada);
            b.Olvidar();
        };
        const HWND texto = b.AgregarTexto(5);
        SetFocus(texto);
        const Captura sinFoco = Captura::DeVentana(b.Ventana());
        b.boton->Verbo(OLEIVERB_UIACTIVATE);
        REQUIRE(Captura::DeVentana(b.Ventana()) != sinFoco);
        parar(true);
        SetFocus(texto);
        CHECK(b.registro->Veces("IOleControlSite::OnFocus") == 1);
        CHECK(Captura::DeVentana(b.Ventana()) == sinFoco);
        parar(false);
        b.boton->Verbo(OLEIVERB_UIACTIVATE);
        CHECK(b.registro->Veces("IOleControlSite::OnFocus") == 1);
        CHECK(Captura::DeVentana(b.Ventana()) != sinFoco);
    }
}

TEST_CASE("Events are told in the container's language") {
    OpcionesFormulario opciones;
    opciones.ambiente.idioma = 0x0C0A;
    Banco b(opciones);
    const auto oyente = Hacer<Oyente>();
    const publicado::Conexion conexion(b.boton->Objeto(), EventosDe(*b.boton), oyente.get());
    REQUIRE(conexion.Hecha());
    CHECK(IdiomaDeUnEvento(b, *oyente.get()) == 0x0C0A);
    b.forma->CambiarAmbiente(Cada({DISPID_AMBIENT_LOCALEID, DISPID_UNKNOWN}),
                             [](Ambiente& a) { a.idioma = 0x0407; });
    CHECK(IdiomaDeUnEvento(b, *oyente.get()) == 0x0407);
}

TEST_CASE("Events of a container without a language are told in the user's") {
    OpcionesFormulario opciones;
    opciones.sitio = OpcionesSitio::Pobre();
    Banco b(opciones);
    const auto oyente = Hacer<Oyente>();
    const publicado::Conexion conexion(b.boton->Objeto(), EventosDe(*b.boton), oyente.get());
    REQUIRE(conexion.Hecha());
    CHECK(IdiomaDeUnEvento(b, *oyente.get()) == LOCALE_USER_DEFAULT);
}
