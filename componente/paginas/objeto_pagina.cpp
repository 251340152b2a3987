#include "componente/paginas/objeto_pagina.h"

#include "componente/control/control_interno.h"
#include "plataforma/windows/modulo.h"

#include <utility>

namespace pincela::componente {

class ObjetoPagina::Trabajo {
  public:
    explicit Trabajo(ObjetoPagina& pagina) : pagina_(pagina) { pagina_.Sostener(); }
    Trabajo(const Trabajo&) = delete;
    Trabajo& operator=(const Trabajo&) = delete;
    ~Trabajo() { pagina_.Soltar(); }

  private:
    ObjetoPagina& pagina_;
};

ObjetoPagina::ObjetoPagina(const ClasePublicada& clase, const ClasePublicada& editada,
                           const windows::DisenoPagina& diseno)
    : ventana_(diseno, *this), clase_(clase), editada_(editada) {}

HRESULT ObjetoPagina::QueryInterface(REFIID iid, void** salida) {
    if (!salida)
        return E_POINTER;
    if (iid == IID_IUnknown || iid == IID_IPropertyPage || iid == IID_IPropertyPage2)
        *salida = static_cast<IPropertyPage2*>(this);
    else if (iid == IID_IDispatch || iid == clase_.datos->interfaz)
        *salida = interfaz_.Com();
    else if (iid == IID_ISupportErrorInfo)
        *salida = static_cast<ISupportErrorInfo*>(this);
    else if (iid == IID_IProvideClassInfo)
        *salida = static_cast<IProvideClassInfo*>(this);
    else {
        *salida = nullptr;
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

HRESULT ObjetoPagina::InterfaceSupportsErrorInfo(REFIID iid) {
    return iid == clase_.datos->interfaz || iid == IID_IDispatch || iid == IID_IPropertyPage ||
                   iid == IID_IPropertyPage2
               ? S_OK
               : S_FALSE;
}

HRESULT ObjetoPagina::GetClassInfo(ITypeInfo** info) {
    return info ? InformacionDe(clase_.datos->clase, info) : E_POINTER;
}

// Work on the objects

void ObjetoPagina::Sostener() {
    AddRef();
    ++trabajos_;
}

void ObjetoPagina::Soltar() {
    if (trabajos_ == 1) {
        while (std::exchange(porMostrar_, false))
            MostrarSeleccion(); // whoever set the objects was answered long ago
        Objetos(std::move(retirados_)).clear();
    }
    if (--trabajos_ == 0)
        AvisarEstado();
    Release();
}

ControlUsuario* ObjetoPagina::Seleccionado(std::size_t numero) {
    // A call on the way may have taken the selection away.
    if (numero >= objetos_.size())
        return nullptr;
    const auto control = Ptr<IControlInterno>::De(objetos_[numero].get(), IidControlInterno);
    ControlUsuario* nucleo = nullptr;
    return control && SUCCEEDED(control->DarNucleo(windows::ModuloPropio(), &nucleo)) ? nucleo
                                                                                      : nullptr;
}

void ObjetoPagina::ChangedCambiado() {
    if (trabajos_ == 0)
        AvisarEstado();
}

// The flag goes up and down while a page is filled; the frame hears what remains.
void ObjetoPagina::AvisarEstado() {
    const bool cambiada = ventana_.Changed();
    if (!sitio_ || cambiada == anunciado_)
        return;
    anunciado_ = cambiada;
    Ptr<IPropertyPageSite>(sitio_)->OnStatusChange(cambiada ? PROPPAGESTATUS_DIRTY
                                                            : PROPPAGESTATUS_CLEAN);
}

HRESULT ObjetoPagina::MostrarSeleccion() {
    const HRESULT estado = Proteger(*clase_.datos, [&] {
        LaPagina().SelectionChanged();
        return S_OK;
    });
    // What could not be shown must not be applied as if the user had entered it.
    if (FAILED(estado))
        ventana_.PonChanged(false);
    return estado;
}

HRESULT ObjetoPagina::SetObjects(ULONG cuantos, IUnknown** objetos) {
    if (cuantos && !objetos)
        return SinErrorInfo(E_POINTER);
    Trabajo trabajo(*this);
    return Proteger(*clase_.datos, [&]() -> HRESULT {
        Objetos nuevos;
        for (ULONG i = 0; i < cuantos; ++i) {
            if (!objetos[i])
                return SinErrorInfo(E_POINTER);
            nuevos.emplace_back(objetos[i]);
        }
        objetos_.swap(nuevos);
        for (auto& viejo : nuevos)
            retirados_.push_back(std::move(viejo));
        if (!cuantos) {
            porMostrar_ = false;
            return S_OK;
        }
        if (trabajos_ > 1) {
            porMostrar_ = true;
            return S_OK;
        }
        return MostrarSeleccion();
    });
}

HRESULT ObjetoPagina::IsPageDirty() {
    return ventana_.Changed() ? S_OK : S_FALSE;
}

HRESULT ObjetoPagina::Apply() {
    if (objetos_.empty())
        return SinErrorInfo(E_UNEXPECTED);
    Trabajo trabajo(*this);
    return Proteger(*clase_.datos, [&] {
        LaPagina().ApplyChanges();
        ventana_.PonChanged(false);
        return S_OK;
    });
}

// The frame

HRESULT ObjetoPagina::SetPageSite(IPropertyPageSite* sitio) {
    if (sitio && sitio_)
        return SinErrorInfo(E_UNEXPECTED);
    const auto anterior = std::exchange(sitio_, Ptr<IPropertyPageSite>(sitio));
    anunciado_ = false;
    return S_OK;
}

HRESULT ObjetoPagina::Activate(HWND padre, LPCRECT lugar, BOOL) {
    if (!lugar)
        return SinErrorInfo(E_POINTER);
    if (ventana_.Ventana())
        return SinErrorInfo(E_UNEXPECTED);
    Trabajo trabajo(*this);
    const HRESULT creada =
        Proteger(*clase_.datos, [&] { return ventana_.CrearVentana(padre) ? S_OK : E_FAIL; });
    if (FAILED(creada)) {
        ventana_.DestruirVentana(); // whatever there is of it
        return creada;
    }
    // Drawing is no edit, and a page that can't draw a text the user left half written opens.
    const bool cambiada = ventana_.Changed();
    Proteger(*clase_.datos, [&] {
        LaPagina().Redibujar();
        return S_OK;
    });
    ventana_.PonChanged(cambiada);
    return Move(lugar);
}

HRESULT ObjetoPagina::Deactivate() {
    if (!ventana_.Ventana())
        return SinErrorInfo(E_UNEXPECTED);
    ventana_.DestruirVentana();
    return S_OK;
}

HRESULT ObjetoPagina::GetPageInfo(PROPPAGEINFO* info) {
    if (!info)
        return SinErrorInfo(E_POINTER);
    info->pszTitle = info->pszDocString = info->pszHelpFile = nullptr;
    info->size = {};
    info->dwHelpContext = 0;
    return Proteger(*clase_.datos, [&] {
        info->size = windows::MedidaDe(ventana_.Diseno());
        info->pszTitle = DuplicarTexto(ventana_.Diseno().titulo);
        return info->pszTitle ? S_OK : E_OUTOFMEMORY;
    });
}

HRESULT ObjetoPagina::Show(UINT modo) {
    if (!ventana_.Ventana())
        return SinErrorInfo(E_UNEXPECTED);
    if (modo != SW_SHOW && modo != SW_SHOWNORMAL && modo != SW_HIDE)
        return SinErrorInfo(E_INVALIDARG);
    // A frame makes its tabs before its pages, and a later child would lie under them.
    if (modo != SW_HIDE)
        SetWindowPos(ventana_.Ventana(), HWND_TOP, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ShowWindow(ventana_.Ventana(), static_cast<int>(modo));
    return S_OK;
}

HRESULT ObjetoPagina::Move(LPCRECT lugar) {
    if (!lugar)
        return SinErrorInfo(E_POINTER);
    if (!ventana_.Ventana())
        return SinErrorInfo(E_UNEXPECTED);
    MoveWindow(ventana_.Ventana(), lugar->left, lugar->top, lugar->right - lugar->left,
               lugar->bottom - lugar->top, TRUE);
    return S_OK;
}

HRESULT ObjetoPagina::Help(LPCOLESTR) {
    return S_FALSE; // the frame shows its own
}

HRESULT ObjetoPagina::TranslateAccelerator(MSG* mensaje) {
    if (!mensaje)
        return SinErrorInfo(E_POINTER);
    Trabajo trabajo(*this);
    return Proteger(*clase_.datos, [&] { return ventana_.Pretraducir(*mensaje) ? S_OK : S_FALSE; });
}

HRESULT ObjetoPagina::EditProperty(DISPID propiedad) {
    const MiembroTardio* miembro = editada_.Buscar(propiedad);
    if (!miembro || !Edita(ventana_.Diseno(), miembro->nombre))
        return SinErrorInfo(E_NOTIMPL);
    return Proteger(*clase_.datos,
                    [&] { return ventana_.Enfocar(miembro->nombre) ? S_OK : E_FAIL; });
}

} // namespace pincela::componente
