// The place of one control on a form: everything that the control may ask of its container.
#pragma once

#include "anfitrion/com.h"
#include "anfitrion/contenidos.h"

#include <ocidl.h>
#include <servprov.h>

#include <string_view>

namespace anfitrion {

class ControlAlojado;

/// Client site, in-place site, control site, ambient properties and the minor services, one object
/// with one identity. It outlives its control when somebody keeps a reference: after Desconectar
/// every call answers E_UNEXPECTED.
class SitioCliente : public ObjetoCom<IOleClientSite, IOleInPlaceSiteEx, IOleControlSite, IDispatch,
                                      ISimpleFrameSite, IVBGetControl, IServiceProvider> {
  public:
    /// `control` is not owned.
    explicit SitioCliente(ControlAlojado& control) : control_(&control) {}

    void Desconectar() { control_ = nullptr; }

    // IOleClientSite
    HRESULT STDMETHODCALLTYPE SaveObject() override;
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** contenedor) override;
    HRESULT STDMETHODCALLTYPE ShowObject() override;
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override;
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override;

    // IOleWindow, IOleInPlaceSite, IOleInPlaceSiteEx
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* ventana) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override;
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override;
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override;
    HRESULT STDMETHODCALLTYPE OnUIActivate() override;
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** marco,
                                               IOleInPlaceUIWindow** documento, LPRECT posicion,
                                               LPRECT recorte, LPOLEINPLACEFRAMEINFO info) override;
    HRESULT STDMETHODCALLTYPE Scroll(SIZE) override;
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override;
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override;
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override;
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override;
    HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT rectangulo) override;
    HRESULT STDMETHODCALLTYPE OnInPlaceActivateEx(BOOL* sinRepintar, DWORD) override;
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivateEx(BOOL) override;
    HRESULT STDMETHODCALLTYPE RequestUIActivate() override;

    // IOleControlSite
    HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override;
    HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL trabar) override;
    HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** extendido) override;
    HRESULT STDMETHODCALLTYPE TransformCoords(POINTL* himetric, POINTF* contenedor,
                                              DWORD marcas) override;
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* mensaje, DWORD modificadores) override;
    HRESULT STDMETHODCALLTYPE OnFocus(BOOL tiene) override;
    HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override;

    // IDispatch: the ambient properties
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* cuantas) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** tipo) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* nombres, UINT cuantos, LCID,
                                            DISPID* numeros) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID numero, REFIID, LCID, WORD modo, DISPPARAMS*,
                                     VARIANT* resultado, EXCEPINFO*, UINT*) override;

    // ISimpleFrameSite
    HRESULT STDMETHODCALLTYPE PreMessageFilter(HWND, UINT, WPARAM, LPARAM, LRESULT*,
                                               DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE PostMessageFilter(HWND, UINT, WPARAM, LPARAM, LRESULT*,
                                                DWORD) override;

    // IVBGetControl
    HRESULT STDMETHODCALLTYPE EnumControls(DWORD cuales, DWORD donde,
                                           IEnumUnknown** lista) override;

    // IServiceProvider
    HRESULT STDMETHODCALLTYPE QueryService(REFGUID, REFIID, void** servicio) override;

  protected:
    bool Ofrece(REFIID iid) const override;
    void* Heredada(REFIID iid) override;

  private:
    void Anotar(const char* llamada, std::string_view detalle = {}) const;

    ControlAlojado* control_;
};

} // namespace anfitrion
