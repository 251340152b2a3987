#include "anfitrion/control_alojado.h"

#include "anfitrion/control_extendido.h"
#include "anfitrion/formulario.h"
#include "anfitrion/unidades.h"

namespace anfitrion {

ControlAlojado::ControlAlojado(Formulario& forma, std::wstring nombre, const RECT& rectangulo,
                               const std::shared_ptr<ControlAlojado>& dentro,
                               const OpcionesSitio& opciones)
    : forma_(forma), nombre_(std::move(nombre)), rectangulo_(rectangulo), dentro_(dentro),
      opciones_(opciones), sitio_(Hacer<SitioCliente>(*this)), avisos_(Hacer<Avisos>()) {
    info_.cb = sizeof info_;
    avisos_->alLlamar = [this](const char* llamada) { Anotar(llamada); };
    avisos_->alCambiarVista = [this] {
        if (!enSitio_)
            InvalidateRect(VentanaPadre(), &rectangulo_, TRUE);
    };
}

ControlAlojado::~ControlAlojado() {
    Cerrar();
}

void ControlAlojado::Anotar(const char* llamada, std::string_view detalle) const {
    if (Registro* registro = forma_.Llamadas())
        registro->Anotar(Estrechar(nombre_), llamada, detalle);
}

Puntero<IDispatch> ControlAlojado::Extendido() {
    if (!extendido_)
        extendido_ = Puntero<IDispatch>(new ControlExtendido(weak_from_this()));
    return extendido_;
}

void ControlAlojado::Alojar(const Puntero<IUnknown>& objeto, const Origen& origen) {
    objeto_ = objeto.Como<IOleObject>();
    if (!objeto_)
        throw FalloCom(E_NOINTERFACE, Estrechar(nombre_) + " no es un objeto OLE");
    objeto_->GetMiscStatus(DVASPECT_CONTENT, &marcas_);
    if (!opciones_.activacionRapida || !ActivacionRapida()) {
        const bool sitioPrimero = marcas_ & OLEMISC_SETCLIENTSITEFIRST;
        if (sitioPrimero)
            Comprobar(objeto_->SetClientSite(sitio_.get()), "SetClientSite");
        Iniciar(origen);
        if (!sitioPrimero)
            Comprobar(objeto_->SetClientSite(sitio_.get()), "SetClientSite");
        Aconsejar();
    } else {
        Iniciar(origen);
    }
    despacho_ = objeto_.Como<IDispatch>();
    if (opciones_.nombresAnfitrion)
        objeto_->SetHostNames(L"Anfitrion", nombre_.c_str());
    const int puntos = PuntosPorPulgada();
    SIZEL medida{AHimetric(Ancho(rectangulo_), puntos), AHimetric(Alto(rectangulo_), puntos)};
    objeto_->SetExtent(DVASPECT_CONTENT, &medida);
    LeerInfo();
}

void ControlAlojado::Iniciar(const Origen& origen) {
    if (origen.bolsa) {
        const auto persistente = Como<IPersistPropertyBag>();
        if (!persistente)
            throw FalloCom(E_NOINTERFACE, Estrechar(nombre_) + " no se carga de una bolsa");
        Comprobar(persistente->Load(origen.bolsa, nullptr), "IPersistPropertyBag::Load");
    } else if (origen.flujo) {
        const auto persistente = Como<IPersistStreamInit>();
        if (!persistente)
            throw FalloCom(E_NOINTERFACE, Estrechar(nombre_) + " no se carga de un flujo");
        Comprobar(persistente->Load(origen.flujo), "IPersistStreamInit::Load");
    } else if (origen.almacen) {
        const auto persistente = Como<IPersistStorage>();
        if (!persistente)
            throw FalloCom(E_NOINTERFACE, Estrechar(nombre_) + " no se carga de un almacen");
        Comprobar(persistente->Load(origen.almacen), "IPersistStorage::Load");
    } else if (opciones_.iniciar) {
        if (const auto flujo = Como<IPersistStreamInit>())
            Comprobar(flujo->InitNew(), "IPersistStreamInit::InitNew");
        else if (const auto bolsa = Como<IPersistPropertyBag>())
            Comprobar(bolsa->InitNew(), "IPersistPropertyBag::InitNew");
    }
}

bool ControlAlojado::ActivacionRapida() {
    const auto rapida = Como<IQuickActivate>();
    if (!rapida)
        return false;
    QACONTAINER dado{};
    dado.cbSize = sizeof dado;
    dado.pClientSite = sitio_.get();
    dado.pAdviseSink = nullptr;
    dado.pPropertyNotifySink = opciones_.avisosPropiedad ? avisos_.get() : nullptr;
    dado.dwAmbientFlags = forma_.ModoUsuario() ? QACONTAINER_USERMODE : 0;
    dado.colorFore = forma_.Ambientes().colorLetra;
    dado.colorBack = forma_.Ambientes().colorFondo;
    const auto fuente = forma_.Ambientes().fuente.Como<IFont>();
    dado.pFont = fuente.get();
    QACONTROL recibido{};
    recibido.cbSize = sizeof recibido;
    if (FAILED(rapida->QuickActivate(&dado, &recibido)))
        return false;
    marcas_ = recibido.dwMiscStatus;
    avisoPropiedades_ = recibido.dwPropNotifyCookie;
    if (avisoPropiedades_)
        if (const auto puntos = Como<IConnectionPointContainer>())
            puntos->FindConnectionPoint(IID_IPropertyNotifySink, puntoPropiedades_.Recibir());
    return true;
}

void ControlAlojado::Aconsejar() {
    if (opciones_.avisosVista) {
        objeto_->Advise(avisos_.get(), &avisoObjeto_);
        if (const auto vista = Como<IViewObject>())
            avisoVista_ = SUCCEEDED(vista->SetAdvise(DVASPECT_CONTENT, 0, avisos_.get()));
    }
    if (opciones_.avisosPropiedad) {
        const auto puntos = Como<IConnectionPointContainer>();
        if (puntos && SUCCEEDED(puntos->FindConnectionPoint(IID_IPropertyNotifySink,
                                                            puntoPropiedades_.Recibir())))
            puntoPropiedades_->Advise(static_cast<IPropertyNotifySink*>(avisos_.get()),
                                      &avisoPropiedades_);
    }
}

void ControlAlojado::Desaconsejar() {
    // Moved out first: a sink that goes may come back here.
    const auto sumideros = std::move(sumideros_);
    sumideros_.clear();
    for (const auto& sumidero : sumideros)
        sumidero->Desconectar();
    const auto punto = std::move(puntoPropiedades_);
    if (const DWORD cookie = std::exchange(avisoPropiedades_, 0); punto && cookie)
        punto->Unadvise(cookie);
    if (std::exchange(avisoVista_, false))
        if (const auto vista = Como<IViewObject>())
            vista->SetAdvise(DVASPECT_CONTENT, 0, nullptr);
    if (const DWORD cookie = std::exchange(avisoObjeto_, 0); cookie && objeto_)
        objeto_->Unadvise(cookie);
}

HRESULT ControlAlojado::Verbo(LONG verbo, MSG* mensaje) {
    // The control may close itself while it obeys.
    const Puntero<IOleObject> objeto = objeto_;
    if (!objeto)
        return E_UNEXPECTED;
    RECT rectangulo = rectangulo_;
    return objeto->DoVerb(verbo, mensaje, sitio_.get(), 0, VentanaPadre(), &rectangulo);
}

void ControlAlojado::Activar(bool ui) {
    Comprobar(Verbo(ui ? OLEIVERB_UIACTIVATE : OLEIVERB_INPLACEACTIVATE), "DoVerb");
}

HWND ControlAlojado::Ventana() const {
    HWND ventana = nullptr;
    if (const auto enSitio = enSitio_ ? Como<IOleInPlaceObject>() : Puntero<IOleInPlaceObject>())
        enSitio->GetWindow(&ventana);
    return ventana;
}

HWND ControlAlojado::VentanaPadre() const {
    const auto dentro = Dentro();
    const HWND ventana = dentro ? dentro->Ventana() : nullptr;
    return ventana ? ventana : forma_.Ventana();
}

void ControlAlojado::Mover(const RECT& rectangulo) {
    const RECT viejo = rectangulo_;
    rectangulo_ = rectangulo;
    if (!objeto_)
        return;
    if (Ancho(viejo) != Ancho(rectangulo) || Alto(viejo) != Alto(rectangulo)) {
        const int puntos = PuntosPorPulgada();
        SIZEL medida{AHimetric(Ancho(rectangulo), puntos), AHimetric(Alto(rectangulo), puntos)};
        moviendo_ = true;
        objeto_->SetExtent(DVASPECT_CONTENT, &medida);
        moviendo_ = false;
    }
    if (enSitio_) {
        RECT recorte;
        GetClientRect(VentanaPadre(), &recorte);
        RECT copia = rectangulo_;
        if (const auto enSitio = Como<IOleInPlaceObject>())
            enSitio->SetObjectRects(&copia, &recorte);
    } else {
        InvalidateRect(VentanaPadre(), &viejo, TRUE);
        InvalidateRect(VentanaPadre(), &rectangulo_, TRUE);
    }
}

void ControlAlojado::PedirLugar(const RECT& rectangulo) {
    // Asked for in answer to a new size, it is the new size at the old place.
    if (!moviendo_)
        Mover(rectangulo);
}

void ControlAlojado::PonerVisible(bool visible) {
    if (visible == visible_)
        return;
    visible_ = visible;
    if (enSitio_)
        Verbo(visible ? OLEIVERB_SHOW : OLEIVERB_HIDE);
    InvalidateRect(VentanaPadre(), &rectangulo_, TRUE);
}

void ControlAlojado::LeerInfo() {
    info_ = {};
    info_.cb = sizeof info_;
    if (const auto control = Como<IOleControl>())
        if (FAILED(control->GetControlInfo(&info_)))
            info_ = {};
}

bool ControlAlojado::AceptaFoco() const {
    if (!objeto_ || !visible_ || !parada || EsEtiqueta())
        return false;
    if (marcas_ & (OLEMISC_NOUIACTIVATE | OLEMISC_INVISIBLEATRUNTIME))
        return false;
    const HWND ventana = Ventana();
    return !ventana || (IsWindowEnabled(ventana) && IsWindowVisible(ventana));
}

Puntero<SumideroEventos> ControlAlojado::Conectar(SumideroEventos::Manejador manejador) {
    auto sumidero = Hacer<SumideroEventos>(std::move(manejador));
    sumidero->Conectar(objeto_.get());
    sumideros_.push_back(sumidero);
    return sumidero;
}

void ControlAlojado::Desconectar(const Puntero<SumideroEventos>& sumidero) {
    const auto sostenido = sumidero;
    sostenido->Desconectar();
    std::erase(sumideros_, sostenido);
}

void ControlAlojado::AmbienteCambiado(DISPID numero) {
    if (const auto control = Como<IOleControl>())
        control->OnAmbientPropertyChange(numero);
}

void ControlAlojado::Dibujar(HDC hdc) const {
    if (!enSitio_ && visible_)
        Retratar(hdc);
}

void ControlAlojado::Retratar(HDC hdc) const {
    const auto vista = Como<IViewObject>();
    if (!vista)
        return;
    const RECTL rectangulo{rectangulo_.left, rectangulo_.top, rectangulo_.right,
                           rectangulo_.bottom};
    vista->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, hdc, &rectangulo, nullptr, nullptr,
                0);
}

ULONG ControlAlojado::Cerrar() {
    // Whoever closes from inside an event still needs this object for a while.
    const auto sostenido = weak_from_this().lock();
    if (std::exchange(cerrado_, true))
        return 0;
    Desaconsejar();
    despacho_.Soltar();
    Puntero<IOleObject> objeto = std::move(objeto_);
    ULONG queda = 0;
    if (objeto) {
        if (opciones_.cierreDescuidado) {
            objeto->SetClientSite(nullptr);
            objeto->Close(OLECLOSE_NOSAVE);
        } else {
            if (const auto enSitio = objeto.Como<IOleInPlaceObject>(); enSitio && enSitio_)
                enSitio->InPlaceDeactivate();
            objeto->Close(OLECLOSE_NOSAVE);
            objeto->SetClientSite(nullptr);
        }
        queda = objeto.Soltar();
    }
    forma_.ControlCerrado(*this);
    enSitio_ = false;
    avisos_->Callar();
    sitio_->Desconectar();
    return queda;
}

} // namespace anfitrion
