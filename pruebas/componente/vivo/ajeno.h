// A container of the plainest kind, which owns its window procedure and offers no more than a
// place: nothing of the library of containers is in it but the counting.
#pragma once

#include "anfitrion/com.h"
#include "anfitrion/componente.h"
#include "anfitrion/tardio.h"

#include <ocidl.h>
#include <oleidl.h>

namespace vivo {

/// Fills its window with a colour whenever it is asked to; two procedures do the same.
class VentanaAjena {
  public:
    explicit VentanaAjena(DWORD estilo = WS_CLIPCHILDREN);
    VentanaAjena(const VentanaAjena&) = delete;
    VentanaAjena& operator=(const VentanaAjena&) = delete;
    ~VentanaAjena() { DestroyWindow(ventana); }

    /// Puts the other procedure in, as its owner may.
    void CambiarProcedimiento();
    /// The procedure is the one its owner put there, and nobody left anything at the window.
    bool Intacta() const;
    /// WM_PAINT is answered, by the procedure that is in, and ends.
    bool Responde();
    /// Handles what is waiting; gives up where there is no end to it.
    static void Bombear();

    HWND ventana = nullptr;
    COLORREF fondo = RGB(250, 240, 10);
    int pinturas = 0;
    int extraviados = 0; ///< messages that a retired procedure got

  private:
    template <int Cual>
    static LRESULT CALLBACK Procedimiento(HWND ventana, UINT mensaje, WPARAM w, LPARAM l);
    LRESULT Tratar(int cual, UINT mensaje, WPARAM w, LPARAM l);
    void Llenar(HDC hdc) const;

    int puesto_ = 0;
};

/// The place of one control in such a window.
class SitioAjeno final : public anfitrion::ObjetoCom<IOleClientSite, IOleInPlaceSite> {
  public:
    SitioAjeno(HWND padre, const RECT& lugar, const RECT& recorte)
        : lugar(lugar), recorte(recorte), padre_(padre) {}

    RECT lugar, recorte;
    bool daRecorte = true; ///< otherwise the rectangle is left as it comes

    HRESULT STDMETHODCALLTYPE SaveObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker** moniker) override {
        *moniker = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** contenedor) override {
        *contenedor = nullptr;
        return E_NOINTERFACE;
    }
    HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* ventana) override {
        *ventana = padre_;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnUIActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** marco,
                                               IOleInPlaceUIWindow** documento, LPRECT posicion,
                                               LPRECT visible, LPOLEINPLACEFRAMEINFO) override {
        *marco = nullptr;
        *documento = nullptr;
        *posicion = lugar;
        if (daRecorte)
            *visible = recorte;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT) override { return S_OK; }

  protected:
    void* Heredada(REFIID iid) override {
        return iid == IID_IOleWindow ? static_cast<IOleInPlaceSite*>(this) : nullptr;
    }

  private:
    HWND padre_;
};

/// A control as it comes out of the box, at a place of such a window.
struct ControlAjeno {
    ControlAjeno(const wchar_t* clase, HWND padre, const RECT& lugar,
                 const RECT& recorte = {0, 0, 2000, 2000});
    ControlAjeno(const ControlAjeno&) = delete;
    ControlAjeno& operator=(const ControlAjeno&) = delete;
    ~ControlAjeno();

    void Activar();
    HWND Ventana() const;
    void Poner(const wchar_t* nombre, const anfitrion::Variante& valor) {
        anfitrion::Poner(objeto.Como<IDispatch>().get(), nombre, valor);
    }
    void Mover(const RECT& lugar, const RECT* recorte) {
        anfitrion::Comprobar(objeto.Como<IOleInPlaceObject>()->SetObjectRects(&lugar, recorte),
                             "SetObjectRects");
    }

    HWND padre;
    anfitrion::Puntero<SitioAjeno> sitio;
    anfitrion::Puntero<IUnknown> objeto;
};

} // namespace vivo
