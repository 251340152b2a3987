// The form's controls, activation and design mode; its window and its keyboard have their own
// files.
#include "anfitrion/formulario.h"

#include "anfitrion/unidades.h"

#include <algorithm>

namespace anfitrion {

Formulario::Formulario(const OpcionesFormulario& opciones)
    : ambiente_(opciones.ambiente), opcionesSitio_(opciones.sitio), registro_(opciones.registro) {
    CrearVentana(opciones);
    marco_ = Hacer<MarcoEnSitio>(ventana_, registro_, "marco");
    documento_ = Hacer<MarcoEnSitio>(ventana_, registro_, "documento");
    contenedor_ = Hacer<Contenedor>(*this);
    if (opciones.visible)
        ShowWindow(ventana_, SW_SHOWNORMAL);
    if (!ambiente_.modoUsuario)
        PonerCapa();
}

Formulario::~Formulario() {
    *vivo_ = false;
    alPintar = nullptr;
    alRecibir = nullptr;
    alFiltrar = nullptr;
    activo_.reset();
    seleccion_.clear();
    while (!controles_.empty()) {
        const auto control = controles_.back();
        control->Cerrar();
        std::erase(controles_, control);
    }
    marco_->Desconectar();
    documento_->Desconectar();
    contenedor_->Desconectar();
    SetWindowLongPtrW(ventana_, GWLP_USERDATA, 0);
    DestroyWindow(ventana_);
}

std::shared_ptr<ControlAlojado> Formulario::Agregar(const Componente& componente, REFCLSID clase,
                                                    const std::wstring& nombre,
                                                    const RECT& rectangulo, const Origen& origen,
                                                    ControlAlojado* dentro) {
    return Agregar(componente.Crear(clase), nombre, rectangulo, origen, dentro);
}

std::shared_ptr<ControlAlojado> Formulario::Agregar(const Puntero<IUnknown>& objeto,
                                                    const std::wstring& nombre,
                                                    const RECT& rectangulo, const Origen& origen,
                                                    ControlAlojado* dentro) {
    const auto control = std::make_shared<ControlAlojado>(
        *this, nombre, rectangulo, dentro ? dentro->shared_from_this() : nullptr, opcionesSitio_);
    control->orden = siguienteOrden_++;
    // On the form before it is activated: the control may ask about itself meanwhile.
    controles_.push_back(control);
    try {
        control->Alojar(objeto, origen);
        if (!(control->Marcas() & OLEMISC_INVISIBLEATRUNTIME))
            control->Activar(false);
    } catch (...) {
        Quitar(*control);
        throw;
    }
    if (capa_)
        PonerCapa();
    return control;
}

ULONG Formulario::Quitar(ControlAlojado& control) {
    const auto sostenido = control.shared_from_this();
    // What stands on it goes first, while its window is still there.
    for (const auto& otro : ControlesEn(&control))
        Quitar(*otro);
    const ULONG queda = control.Cerrar();
    return queda;
}

void Formulario::ControlCerrado(ControlAlojado& control) {
    if (activo_.get() == &control)
        activo_.reset();
    std::erase_if(seleccion_, [&](auto& c) { return c.get() == &control; });
    std::erase_if(controles_, [&](auto& c) { return c.get() == &control; });
}

std::vector<std::shared_ptr<ControlAlojado>>
Formulario::ControlesEn(const ControlAlojado* dentro) const {
    std::vector<std::shared_ptr<ControlAlojado>> encontrados;
    for (const auto& control : controles_)
        if (control->Dentro().get() == dentro)
            encontrados.push_back(control);
    return encontrados;
}

std::shared_ptr<ControlAlojado> Formulario::Control(const std::wstring& nombre) const {
    for (const auto& control : controles_)
        if (lstrcmpiW(control->Nombre().c_str(), nombre.c_str()) == 0)
            return control;
    return nullptr;
}

std::wstring Formulario::NombreLibre(const std::wstring& nombre) const {
    if (!Control(nombre))
        return nombre;
    const std::wstring raiz = nombre.substr(0, nombre.find_last_not_of(L"0123456789") + 1);
    int numero = 1;
    while (Control(raiz + std::to_wstring(numero)))
        ++numero;
    return raiz + std::to_wstring(numero);
}

void Formulario::Ordenar(const std::vector<std::shared_ptr<ControlAlojado>>& controles) {
    std::erase_if(controles_, [&](const auto& uno) {
        return std::find(controles.begin(), controles.end(), uno) != controles.end();
    });
    controles_.insert(controles_.end(), controles.begin(), controles.end());
    siguienteOrden_ = 0;
    for (const auto& control : controles_) {
        control->orden = siguienteOrden_++;
        if (const HWND ventana = control->Ventana())
            SetWindowPos(ventana, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    if (capa_)
        PonerCapa();
}

void Formulario::UIActivado(ControlAlojado& control) {
    if (activo_.get() == &control)
        return;
    const auto anterior = std::exchange(activo_, control.shared_from_this());
    ultimaVentana_ = nullptr;
    if (anterior)
        if (const auto enSitio = anterior->Como<IOleInPlaceObject>())
            enSitio->UIDeactivate();
    // The focused button takes the default look from the form's own default button.
    for (const auto& c : std::vector(controles_))
        if (c->porDefecto || c == anterior || c.get() == &control)
            c->AmbienteCambiado(DISPID_AMBIENT_DISPLAYASDEFAULT);
}

void Formulario::UIDesactivado(ControlAlojado& control) {
    if (activo_.get() != &control)
        return;
    const auto anterior = std::exchange(activo_, nullptr);
    for (const auto& c : std::vector(controles_))
        if (c->porDefecto || c == anterior)
            c->AmbienteCambiado(DISPID_AMBIENT_DISPLAYASDEFAULT);
}

void Formulario::DesactivarUI() {
    const auto anterior = activo_;
    if (!anterior)
        return;
    if (const auto enSitio = anterior->Como<IOleInPlaceObject>())
        enSitio->UIDeactivate();
    if (activo_ == anterior)
        activo_.reset();
}

bool Formulario::SeMuestraPorDefecto(const ControlAlojado& control) const {
    if (activo_ && activo_->EsBoton())
        return activo_.get() == &control;
    return control.porDefecto;
}

bool Formulario::PedirPropiedades(ControlAlojado& control) {
    const auto manejador = alPedirPropiedades;
    return manejador && manejador(control);
}

void Formulario::CambiarAmbiente(DISPID numero, const std::function<void(Ambiente&)>& cambio) {
    cambio(ambiente_);
    for (const auto& control : std::vector(controles_))
        control->AmbienteCambiado(numero);
}

void Formulario::PonerModoUsuario(bool usuario) {
    if (usuario == ambiente_.modoUsuario)
        return;
    DesactivarUI();
    CambiarAmbiente(DISPID_AMBIENT_USERMODE, [&](Ambiente& a) { a.modoUsuario = usuario; });
    seleccion_.clear();
    PonerCapa();
    RedrawWindow(ventana_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void Formulario::Seleccionar(const std::shared_ptr<ControlAlojado>& control, bool anadir) {
    auto elegidos = anadir ? seleccion_ : std::vector<std::shared_ptr<ControlAlojado>>();
    if (const auto ya = std::find(elegidos.begin(), elegidos.end(), control); ya != elegidos.end())
        elegidos.erase(ya);
    else if (control)
        elegidos.push_back(control);
    Seleccionar(std::move(elegidos));
}

void Formulario::Seleccionar(std::vector<std::shared_ptr<ControlAlojado>> controles) {
    seleccion_ = std::move(controles);
    if (const auto manejador = alSeleccionar)
        manejador();
}

std::shared_ptr<ControlAlojado> Formulario::ControlEn(POINT punto) const {
    // The last one created lies on top.
    for (auto i = controles_.rbegin(); i != controles_.rend(); ++i) {
        RECT r = (*i)->Rectangulo();
        MapWindowPoints((*i)->VentanaPadre(), ventana_, reinterpret_cast<POINT*>(&r), 2);
        if ((*i)->Visible() && PtInRect(&r, punto))
            return *i;
    }
    return nullptr;
}

} // namespace anfitrion
