// A small control that writes down what its container does with it.
#pragma once

#include "anfitrion/com.h"
#include "anfitrion/variante.h"

#include <ocidl.h>
#include <olectl.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace falso {

using anfitrion::ObjetoCom;
using anfitrion::Puntero;
using anfitrion::Variante;

inline constexpr IID IID_EventosFalsos = {
    0x5c1d0a10, 0x77aa, 0x4b5e, {0x91, 0x11, 0x20, 0x30, 0x40, 0x50, 0x60, 0x70}};

/// How the control behaves; set before it is put on a form.
struct Caracter {
    char tecla = 0; ///< mnemonic letter, lower case
    DWORD marcas = OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_INSIDEOUT;
    DWORD marcasTeclado = 0;    ///< CTRLINFO bits
    bool rechazaFoco = false;   ///< OLEIVERB_UIACTIVATE fails
    bool marco = true;          ///< announces itself to the frame
    WPARAM teclaPropia = 0;     ///< key that its TranslateAccelerator keeps
    bool preguntaSitio = false; ///< asks the control site about keys it does not keep
};

class ControlFalso
    : public ObjetoCom<IOleObject, IOleInPlaceObject, IOleInPlaceActiveObject, IOleControl,
                       IPersistStreamInit, IPersistPropertyBag, IDispatch,
                       IConnectionPointContainer, IConnectionPoint, IProvideClassInfo2> {
  public:
    explicit ControlFalso(Caracter caracter = {});
    ~ControlFalso() override;
    static int Vivos();

    Caracter caracter;
    std::vector<std::string> llamadas; ///< in the order received
    std::vector<MSG> mnemonicos;
    std::vector<DISPID> ambientesCambiados;
    std::wstring titulo;
    int botones = 0; ///< WM_KEYDOWN messages that reached its window
    HWND ventana = nullptr;
    Puntero<IOleClientSite> sitio;
    Puntero<IDispatch> sumidero;

    /// Changes the mnemonic letter without telling anybody.
    void PonerTecla(char letra);
    std::size_t Veces(const std::string& llamada) const;
    /// Raises event 1 with a 16-bit argument by reference; answers the status of the sink.
    HRESULT Disparar(short& valor);

    // IOleObject
    HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* s) override;
    HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** s) override;
    HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR, LPCOLESTR) override;
    HRESULT STDMETHODCALLTYPE Close(DWORD) override;
    HRESULT STDMETHODCALLTYPE SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD, IDataObject**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DoVerb(LONG verbo, LPMSG, IOleClientSite*, LONG, HWND padre,
                                     LPCRECT r) override;
    HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Update() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE IsUpToDate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetUserType(DWORD, LPOLESTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetExtent(DWORD, SIZEL* medida) override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD, SIZEL* medida) override;
    HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* s, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD, DWORD* marcas) override;
    HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

    // IOleInPlaceObject and IOleInPlaceActiveObject
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* v) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override;
    HRESULT STDMETHODCALLTYPE UIDeactivate() override;
    HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT r, LPCRECT) override;
    HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG m) override;
    HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL) override;
    HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }

    // IOleControl
    HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* info) override;
    HRESULT STDMETHODCALLTYPE OnMnemonic(MSG* m) override;
    HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID numero) override;
    HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL) override { return S_OK; }

    // IPersistStreamInit and IPersistPropertyBag
    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* c) override;
    HRESULT STDMETHODCALLTYPE IsDirty() override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE Load(IStream* flujo) override;
    HRESULT STDMETHODCALLTYPE Save(IStream* flujo, BOOL) override;
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InitNew() override;
    HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bolsa, IErrorLog*) override;
    HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bolsa, BOOL, BOOL) override;

    // IDispatch: the property Titulo (1), the method Fallar (2)
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* n) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* nombres, UINT, LCID,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD modo, DISPPARAMS* p, VARIANT* v,
                                     EXCEPINFO* e, UINT*) override;

    // Connection points: events, and property notices on the same object
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** p) override;
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override;
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** c) override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* s, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** t) override;
    HRESULT STDMETHODCALLTYPE GetGUID(DWORD, GUID* g) override;

  protected:
    void* Heredada(REFIID iid) override;

  private:
    void ActivarEnSitio(HWND padre, const RECT& r);
    HRESULT ActivarUI();
    void PonerTitulo(std::wstring texto);
    Puntero<IOleInPlaceSite> SitioVentana() const;

    SIZEL medida_{1000, 1000};
    HACCEL aceleradores_ = nullptr;
    std::map<DWORD, Puntero<IUnknown>> conectados_;
    std::map<DWORD, Puntero<IAdviseSink>> vistas_;
    DWORD siguiente_ = 1;
    bool ui_ = false;
};

} // namespace falso
