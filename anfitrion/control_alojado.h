// One control on a form, as the form sees it: its life from creation to orderly close.
#pragma once

#include "anfitrion/avisos.h"
#include "anfitrion/componente.h"
#include "anfitrion/opciones.h"
#include "anfitrion/sitio_cliente.h"
#include "anfitrion/sumidero_eventos.h"
#include "anfitrion/tardio.h"

#include <memory>
#include <string>
#include <vector>

namespace anfitrion {

class Formulario;

/// Where a control's first state comes from; all null means a new control (InitNew). The interfaces
/// are borrowed for the length of the creation.
struct Origen {
    IPropertyBag* bolsa = nullptr;
    IStream* flujo = nullptr;
    IStorage* almacen = nullptr;
};

/// Created by Formulario::Agregar. Rectangles are in pixels of the parent's client area.
class ControlAlojado : public std::enable_shared_from_this<ControlAlojado> {
  public:
    /// With `dentro` it stands on that control, else on the form.
    ControlAlojado(Formulario& forma, std::wstring nombre, const RECT& rectangulo,
                   const std::shared_ptr<ControlAlojado>& dentro, const OpcionesSitio& opciones);
    ControlAlojado(const ControlAlojado&) = delete;
    ControlAlojado& operator=(const ControlAlojado&) = delete;
    ~ControlAlojado();

    /// Takes the object through initialisation and activation. Throws FalloCom; what was done is
    /// undone by the destructor.
    void Alojar(const Puntero<IUnknown>& objeto, const Origen& origen);
    void Activar(bool ui);
    /// Any verb; answers the status of the control.
    HRESULT Verbo(LONG verbo, MSG* mensaje = nullptr);

    const std::wstring& Nombre() const { return nombre_; }
    void PonerNombre(const std::wstring& nombre) { nombre_ = nombre; }
    Formulario& Forma() const { return forma_; }
    const OpcionesSitio& Opciones() const { return opciones_; }
    /// What the site offers from now on.
    void PonerOpciones(const OpcionesSitio& opciones) { opciones_ = opciones; }

    IOleObject* Objeto() const { return objeto_.get(); }
    /// Default dispatch interface of the control; null after Cerrar.
    IDispatch* Despacho() const { return despacho_.get(); }
    /// The container's own properties in front of the control's.
    Puntero<IDispatch> Extendido();
    template <class T>
    Puntero<T> Como() const {
        return objeto_.Como<T>();
    }

    /// The control this one stands on; null for the form itself.
    std::shared_ptr<ControlAlojado> Dentro() const { return dentro_.lock(); }
    /// Window of that control while it has one, else the form's.
    HWND VentanaPadre() const;
    /// Window of the in-place active control; null when it is not active.
    HWND Ventana() const;
    bool Abierto() const { return static_cast<bool>(objeto_); }
    DWORD Marcas() const { return marcas_; } ///< OLEMISC bits

    const RECT& Rectangulo() const { return rectangulo_; }
    void Mover(const RECT& rectangulo);
    /// The control itself wants to be there.
    void PedirLugar(const RECT& rectangulo);
    bool Visible() const { return visible_; }
    void PonerVisible(bool visible);

    /// Place in the tab order; the same number keeps the order of creation.
    long orden = 0;
    bool parada = true;
    /// Answers the Enter key of the whole form, or the Escape key.
    bool porDefecto = false;
    bool cancela = false;

    /// Keyboard information as last given by the control.
    const CONTROLINFO& Info() const { return info_; }
    void LeerInfo();
    bool ComeEntrar() const { return info_.dwFlags & CTRLINFO_EATS_RETURN; }
    bool ComeEscape() const { return info_.dwFlags & CTRLINFO_EATS_ESCAPE; }
    bool EsBoton() const { return marcas_ & OLEMISC_ACTSLIKEBUTTON; }
    bool EsEtiqueta() const { return marcas_ & OLEMISC_ACTSLIKELABEL; }
    /// Whether TAB may stop here now.
    bool AceptaFoco() const;

    /// Connects to the default events; several handlers may be connected.
    Puntero<SumideroEventos> Conectar(SumideroEventos::Manejador manejador);
    /// That handler hears nothing any more.
    void Desconectar(const Puntero<SumideroEventos>& sumidero);
    /// Notices of changed properties.
    Avisos& Notificaciones() { return *avisos_.get(); }

    /// Announces a changed ambient property.
    void AmbienteCambiado(DISPID numero);
    /// Draws a control that is not in-place active.
    void Dibujar(HDC hdc) const;
    /// Draws the control at its place, active or not.
    void Retratar(HDC hdc) const;

    /// Orderly end; answers the count left by the last release (0 when nobody else holds the
    /// control). Harmless the second time.
    ULONG Cerrar();

    void Anotar(const char* llamada, std::string_view detalle = {}) const;
    void EnSitio(bool esta) { enSitio_ = esta; }
    void TieneFoco(bool tiene) { foco_ = tiene; }
    bool ConFoco() const { return foco_; }

  private:
    void Iniciar(const Origen& origen);
    void Aconsejar();
    void Desaconsejar();
    bool ActivacionRapida();

    Formulario& forma_;
    std::wstring nombre_;
    RECT rectangulo_;
    std::weak_ptr<ControlAlojado> dentro_;
    OpcionesSitio opciones_;
    Puntero<SitioCliente> sitio_;
    Puntero<Avisos> avisos_;
    Puntero<IDispatch> extendido_;
    Puntero<IOleObject> objeto_;
    Puntero<IDispatch> despacho_;
    std::vector<Puntero<SumideroEventos>> sumideros_;
    Puntero<IConnectionPoint> puntoPropiedades_;
    CONTROLINFO info_{};
    DWORD marcas_ = 0;
    DWORD avisoObjeto_ = 0;
    DWORD avisoPropiedades_ = 0;
    bool avisoVista_ = false;
    bool enSitio_ = false;
    bool visible_ = true;
    bool foco_ = false;
    bool moviendo_ = false;
    bool cerrado_ = false;
};

} // namespace anfitrion
