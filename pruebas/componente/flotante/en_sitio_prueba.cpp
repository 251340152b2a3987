// Controls in place, in a host that unmasks exceptions: its handlers, its messages and its timers.
#include "pruebas/cada.h"
#include "pruebas/componente/flotante/ajena.h"
#include "pruebas/componente/vivo/banco.h"

using namespace vivo;
using flotante::Actuales;
using flotante::Habitual;
using flotante::Palabras;
using pincela::pruebas::Cada;

namespace {

/// A container's own property sink, and what it computes with when it is told.
class Notado : public ObjetoCom<IPropertyNotifySink> {
  public:
    HRESULT STDMETHODCALLTYPE OnChanged(DISPID) override {
        visto.push_back(Actuales());
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override {
        visto.push_back(Actuales());
        return S_OK;
    }
    std::vector<Palabras> visto;
};

} // namespace

TEST_CASE("A control in place never touches the arithmetic of the program around it") {
    const wchar_t* const clase = Cada({L"Pincela.Botonazo", L"Pincela.Area", L"Pincela.Tbox",
                                       L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"});
    Banco b({}, clase);
    const auto poner = [&](const wchar_t* nombre, const Variante& valor) {
        if (Tiene(b.boton->Despacho(), nombre))
            b.Poner(nombre, valor);
    };
    poner(L"EstilosRell", 4L);
    poner(L"Estilos", 1L);
    poner(L"CambioProgre", true);
    poner(L"ColorFondoSobre", 255L);
    int sucesos = 0, raros = 0;
    b.alOcurrir = [&](Evento&) {
        ++sucesos;
        raros += Actuales() != Habitual;
    };
    const HWND ventana = b.Ventana(), campo = GetWindow(ventana, GW_CHILD);
    flotante::Llamar(Habitual, "used in place", [&] {
        for (const SIZE lado : {SIZE{120, 40}, {0, 0}, {1, 1}, {301, 7}, {120, 40}}) {
            b.boton->Mover({40, 40, 40 + lado.cx, 40 + lado.cy});
            RedrawWindow(ventana, nullptr, nullptr,
                         RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        }
        for (const HWND una : {ventana, campo ? campo : ventana}) {
            for (const UINT mensaje : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP})
                SendMessageW(una, mensaje, 0, MAKELPARAM(8, 8));
            for (const WPARAM tecla : {L'a', L'1', L','}) {
                SendMessageW(una, WM_KEYDOWN,
                             static_cast<WPARAM>(VkKeyScanW(static_cast<wchar_t>(tecla)) & 0xFF),
                             1);
                SendMessageW(una, WM_CHAR, tecla, 1);
            }
        }
        b.forma->Esperar(250); // the timers: the mouse is elsewhere, and what faded fades back
    });
    CHECK(sucesos > 0);
    CHECK(raros == 0);
    b.alOcurrir = nullptr;
    flotante::Llamar(Habitual, "taken away", [&] { b.forma->Quitar(*b.boton); });
}

TEST_CASE("What a handler changes in its arithmetic stays changed for its program") {
    Banco b;
    constexpr Palabras otras{0x1732, 0x5900};
    b.alOcurrir = [&](Evento& evento) {
        if (evento.nombre == L"Click")
            flotante::Poner(otras);
    };
    Palabras despues{};
    {
        const flotante::Ajena ajena(Habitual);
        b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 8, 8);
        b.Enviar(WM_LBUTTONUP, 0, 8, 8);
        despues = Actuales();
    }
    CHECK(despues.vieja == otras.vieja);
    CHECK(despues.nueva == otras.nueva);
}

TEST_CASE("Whoever hears of a property computes as the program does") {
    Banco b;
    const auto notado = Hacer<Notado>();
    const auto contenedor = b.boton->Como<IConnectionPointContainer>();
    Puntero<IConnectionPoint> punto;
    DWORD galleta = 0;
    REQUIRE(contenedor->FindConnectionPoint(IID_IPropertyNotifySink, punto.Recibir()) == S_OK);
    REQUIRE(punto->Advise(notado.get(), &galleta) == S_OK);
    flotante::Llamar(Habitual, "a property", [&] { b.Poner(L"RelX", 0.25f); });
    punto->Unadvise(galleta);
    REQUIRE_FALSE(notado->visto.empty());
    for (const Palabras& vistas : notado->visto)
        CHECK(vistas == Habitual);
}
