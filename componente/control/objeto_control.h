// A control as an OLE object: what every container asks of it, written once for all classes.
//
// The members of one family of interfaces stand in one source file: identidad, ole, en_sitio,
// ambiente, vista, persistencia, conexiones, examinador. Behaviour and drawing are not here: they
// belong to the core (ControlUsuario) and to its environment (EntornoWindows).
#pragma once

#include "componente/control/accesible.h"
#include "componente/control/categorias.h"
#include "componente/control/control_interno.h"
#include "componente/control/sumideros.h"
#include "componente/despacho.h"
#include "componente/objeto.h"
#include "plataforma/control.h"
#include "plataforma/windows/entorno_windows.h"

#include <ocidl.h>
#include <olectl.h>
#include <oleidl.h>

#include <memory>
#include <optional>
#include <string>

namespace pincela::componente {

class FlujoAjeno;
class ObjetoControl;

/// Makes the core of a class of control and connects its events to `objeto`.
using HacedorDeNucleo = std::unique_ptr<ControlUsuario> (*)(ObjetoControl& objeto,
                                                            windows::EntornoWindows& entorno);

class ObjetoControl final : public IOleObject,
                            public IOleControl,
                            public IOleInPlaceObject,
                            public IOleInPlaceActiveObject,
                            public IViewObject2,
                            public IPersistStreamInit,
                            public IPersistStorage,
                            public IPersistPropertyBag,
                            public IProvideClassInfo2,
                            public IConnectionPointContainer,
                            public ISpecifyPropertyPages,
                            public ISupportErrorInfo,
                            public ICategorizeProperties,
                            public IPerPropertyBrowsing,
                            public IQuickActivate,
                            public IDataObject,
                            public IControlInterno,
                            public windows::SitioControl {
  public:
    ObjetoControl(const ObjetoControl&) = delete;
    ObjetoControl& operator=(const ObjetoControl&) = delete;
    ObjetoControl(const ClasePublicada& clase, HacedorDeNucleo hacer);
    virtual ~ObjetoControl();

    IUnknown* Identidad() { return static_cast<IOleObject*>(this); }

    // IUnknown
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** salida) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return cuenta_.Sumar(); }
    ULONG STDMETHODCALLTYPE Release() override { return cuenta_.Restar(this); }

    // IOleObject
    HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* sitio) override;
    HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** sitio) override;
    HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR, LPCOLESTR) override;
    HRESULT STDMETHODCALLTYPE Close(DWORD opcion) override;
    HRESULT STDMETHODCALLTYPE SetMoniker(DWORD, IMoniker*) override;
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE InitFromData(IDataObject*, BOOL, DWORD) override;
    HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD, IDataObject** datos) override;
    HRESULT STDMETHODCALLTYPE DoVerb(LONG verbo, MSG* mensaje, IOleClientSite* sitio, LONG,
                                     HWND padre, LPCRECT lugar) override;
    HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** verbos) override;
    HRESULT STDMETHODCALLTYPE Update() override;
    HRESULT STDMETHODCALLTYPE IsUpToDate() override;
    HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* clase) override;
    HRESULT STDMETHODCALLTYPE GetUserType(DWORD forma, LPOLESTR* tipo) override;
    HRESULT STDMETHODCALLTYPE SetExtent(DWORD aspecto, SIZEL* tamanio) override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspecto, SIZEL* tamanio) override;
    HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* sumidero, DWORD* galleta) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD galleta) override;
    HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** lista) override;
    HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD aspecto, DWORD* rasgos) override;
    HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE*) override;

    // IOleControl
    HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* info) override;
    HRESULT STDMETHODCALLTYPE OnMnemonic(MSG* mensaje) override;
    HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID dispid) override;
    HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL congelar) override;

    // IOleInPlaceObject, IOleInPlaceActiveObject
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* ventana) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override;
    HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override;
    HRESULT STDMETHODCALLTYPE UIDeactivate() override;
    HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT lugar, LPCRECT recorte) override;
    HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override;
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* mensaje) override;
    HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL) override;
    HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL) override;
    HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) override;
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override;

    // IViewObject2
    HRESULT STDMETHODCALLTYPE Draw(DWORD aspecto, LONG indice, void*, DVTARGETDEVICE*, HDC,
                                   HDC dibujo, LPCRECTL limites, LPCRECTL,
                                   BOOL(STDMETHODCALLTYPE*)(ULONG_PTR), ULONG_PTR) override;
    HRESULT STDMETHODCALLTYPE GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC,
                                          LOGPALETTE** colores) override;
    HRESULT STDMETHODCALLTYPE Freeze(DWORD, LONG, void*, DWORD* congelado) override;
    HRESULT STDMETHODCALLTYPE Unfreeze(DWORD) override;
    HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspectos, DWORD banderas,
                                        IAdviseSink* sumidero) override;
    HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspectos, DWORD* banderas,
                                        IAdviseSink** sumidero) override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspecto, LONG, DVTARGETDEVICE*,
                                        SIZEL* tamanio) override;

    // IPersistStreamInit, IPersistStorage, IPersistPropertyBag
    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* clase) override;
    HRESULT STDMETHODCALLTYPE IsDirty() override;
    HRESULT STDMETHODCALLTYPE Load(IStream* flujo) override;
    HRESULT STDMETHODCALLTYPE Save(IStream* flujo, BOOL limpiar) override;
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* tamanio) override;
    HRESULT STDMETHODCALLTYPE InitNew() override;
    HRESULT STDMETHODCALLTYPE InitNew(IStorage* almacen) override;
    HRESULT STDMETHODCALLTYPE Load(IStorage* almacen) override;
    HRESULT STDMETHODCALLTYPE Save(IStorage* almacen, BOOL elMismo) override;
    HRESULT STDMETHODCALLTYPE SaveCompleted(IStorage* almacen) override;
    HRESULT STDMETHODCALLTYPE HandsOffStorage() override;
    HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bolsa, IErrorLog* errores) override;
    HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bolsa, BOOL limpiar, BOOL todas) override;

    // IProvideClassInfo2
    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetGUID(DWORD cual, GUID* guid) override;

    // IConnectionPointContainer
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** puntos) override;
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** punto) override;

    // ISpecifyPropertyPages
    HRESULT STDMETHODCALLTYPE GetPages(CAUUID* paginas) override;

    // ISupportErrorInfo
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override;

    // ICategorizeProperties
    HRESULT STDMETHODCALLTYPE MapPropertyToCategory(DISPID dispid, PROPCAT* categoria) override;
    HRESULT STDMETHODCALLTYPE GetCategoryName(PROPCAT categoria, LCID, BSTR* nombre) override;

    // IPerPropertyBrowsing
    HRESULT STDMETHODCALLTYPE GetDisplayString(DISPID dispid, BSTR* texto) override;
    HRESULT STDMETHODCALLTYPE MapPropertyToPage(DISPID dispid, CLSID* pagina) override;
    HRESULT STDMETHODCALLTYPE GetPredefinedStrings(DISPID dispid, CALPOLESTR* textos,
                                                   CADWORD* galletas) override;
    HRESULT STDMETHODCALLTYPE GetPredefinedValue(DISPID dispid, DWORD galleta,
                                                 VARIANT* valor) override;

    // IQuickActivate
    HRESULT STDMETHODCALLTYPE QuickActivate(QACONTAINER* contenedor, QACONTROL* control) override;
    HRESULT STDMETHODCALLTYPE SetContentExtent(SIZEL* tamanio) override;
    HRESULT STDMETHODCALLTYPE GetContentExtent(SIZEL* tamanio) override;

    // IDataObject
    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* formato, STGMEDIUM* medio) override;
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override;
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* formato) override;
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC* salida) override;
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override;
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direccion, IEnumFORMATETC** lista) override;
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC* formato, DWORD banderas, IAdviseSink* sumidero,
                                      DWORD* galleta) override;
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD galleta) override;
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA** lista) override;

    // IControlInterno
    HRESULT STDMETHODCALLTYPE DarNucleo(HMODULE modulo, ControlUsuario** nucleo) override;

    /// Raises an event at every sink. `argumentos` come backwards, as the interface wants them.
    void RaiseEvent(DISPID evento, VARIANTARG* argumentos, unsigned cuantos);

  private:
    // windows::SitioControl: what the environment asks
    void PropertyChanged(VistaTexto clave) override;
    bool CanPropertyChange(VistaTexto clave) override;
    Fuente AmbientFont() override;
    bool UserMode() override;
    bool DisplayAsDefault() override;
    void AccesibleCambiado() override;
    void AccessKeysChanged() override;
    bool VistaCambiada() override;
    void PedirFoco() override;
    void FocoCambiado(bool dentro) override;
    void EnviarTab() override;
    void MoverFoco(bool atras) override;
    void ControlesContenidos(const std::function<void(ControlContenido&)>& visita) override;
    bool EntradaCongelada() override;
    ISimpleFrameSite* MarcoSimple() override { return marcoSimple_.get(); }
    bool Mensaje(HWND ventana, UINT mensaje, WPARAM w, LPARAM l, LRESULT* resultado) override;
    void ErrorEnNotificacion(const ErrorEjecucion& error) noexcept override;
    void Sostener() override { AddRef(); }
    void Soltar() override { Release(); }

    /// Runs `f` on the core; a run-time error goes nowhere but to the error information.
    template <class F>
    void NucleoSeguro(F&& f) noexcept {
        const windows::AritmeticaPropia propia;
        try {
            f(*nucleo_);
        } catch (const ErrorEjecucion& error) {
            ErrorEnNotificacion(error);
        } catch (...) {
            // No memory: the control keeps its last look.
        }
    }

    template <class F>
    HRESULT Guardar(F&& f) noexcept {
        detalle::Sosten sosten(Identidad());
        return Proteger(*clase_.datos, std::forward<F>(f));
    }

    const DatosClase& Datos() const { return *clase_.datos; }

    // Life: see persistencia.cpp.
    enum class Vida { SinIniciar, Cargando, Viva };
    void Preparar(); // makes a control that nobody initialised behave as newly placed
    void Iniciar();
    void Restaurar(BolsaPropiedades& bolsa);
    void CargarBytes(FlujoAjeno flujo);
    void GuardarBytes(FlujoAjeno flujo);
    void TerminarCarga();

    // In place: see en_sitio.cpp.
    HRESULT MostrarPaginas(HWND padre);
    HRESULT Activar(bool conFoco, HWND padre, const RECT* lugar);
    HRESULT EntrarEnSitio(HWND padre, const RECT* lugar);
    HRESULT HacerVentana(const Ptr<IOleInPlaceSite>& sitio, HWND padre, const RECT* lugar);
    HRESULT ActivarInterfaz();
    void AvisarVentanasDelMarco(IOleInPlaceActiveObject* activo);
    void Mover(const RECT& lugar, const RECT* recorte);
    void OlvidarSitioEnSitio();
    SIZE AHimetric(SIZE pixeles) const;
    SIZE APixeles(SIZE himetric) const;

    // Ambient properties: see ambiente.cpp.
    bool LeerAmbiente(DISPID dispid, VARTYPE tipo, VARIANT* valor);
    void OlvidarAmbiente();
    void CambioDeFuenteAmbiente();
    bool InterfazMuerta();
    LCID Idioma();

    // Resolution and assistive programs: see entorno_visual.cpp.
    void PonPppDe(HWND ventana);
    ObjetoAccesible* DarAccesible(HWND ventana);
    ObjetoAccesible* DarAccesibleDeCampo(HWND ventana);

    bool EsOpaca();
    HRESULT DarMetafichero(STGMEDIUM& medio);
    HRESULT DarMetaficheroClasico(STGMEDIUM& medio);
    void AvisarVista();
    void AvisarCambio(DISPID dispid);
    const MiembroTardio* MiembroConNombre(VistaTexto nombre) const;
    HRESULT LeerMiembro(DISPID dispid, Variante& valor);

    CuentaReferencias cuenta_;
    const ClasePublicada& clase_;
    InterfazDual interfaz_{};
    windows::EntornoWindows entorno_;
    std::unique_ptr<ControlUsuario> nucleo_;
    Vida vida_ = Vida::SinIniciar;
    bool sucio_ = false;
    bool cerrando_ = false;

    Ptr<IOleClientSite> sitio_;
    Ptr<IOleControlSite> sitioDeControl_;
    Ptr<ISimpleFrameSite> marcoSimple_; // of a control that holds others
    Ptr<IDispatch> ambiente_;
    int modoUsuario_ = -1;       // -1 not asked yet
    int interfazMuerta_ = -1;    // the same
    std::optional<LCID> idioma_; // of what is told to the container
    long congelados_ = 0;

    Ptr<IOleInPlaceSite> enSitio_;
    Ptr<IOleInPlaceFrame> marco_;
    Ptr<IOleInPlaceUIWindow> documento_;
    bool activoEnSitio_ = false;
    bool saliendo_ = false; // its window is being destroyed
    bool activaLaInterfaz_ = false;
    bool conFoco_ = false;
    SIZE extension_; // HIMETRIC

    HACCEL aceleradores_ = nullptr;
    Texto teclasDeAcceso_;
    bool comeEnter_ = false; // as the container was last told

    int porDefecto_ = -1; // -1 not asked yet
    std::optional<AtributosFuente> fuenteAmbiente_;
    Ptr<ObjetoAccesible> accesible_;
    Ptr<ObjetoAccesible> accesibleDeCampo_;
    HWND campoAccesible_ = nullptr; // whose object it is
    Accesible descrito_;
    long estadoDescrito_ = 0;

    Ptr<IOleAdviseHolder> avisosOle_;
    Ptr<IDataAdviseHolder> avisosDeDatos_;
    Ptr<IAdviseSink> avisoDeVista_;
    DWORD aspectosDeVista_ = 0;
    DWORD banderasDeVista_ = 0;

    PuntoDeConexion eventos_;
    PuntoDeConexion notificaciones_;
};

} // namespace pincela::componente
