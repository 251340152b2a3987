// A control as its host sees it: the calls of its life, its input and its widgets' mouse.
#pragma once

#include "plataforma/accesible.h"
#include "plataforma/bolsa.h"
#include "plataforma/fuente.h"
#include "plataforma/oyentes.h"

namespace pincela {

/// The host calls everything on its one user-interface thread. Order of a life: constructor
/// (Initialize), then InitProperties for a new control or ReadProperties for a restored one, then
/// Resize and Paint as needed, Terminate at the end. Run-time errors leave as ErrorEjecucion.
class ControlUsuario : public OyenteRaton, public OyenteTeclado {
  public:
    virtual ~ControlUsuario() = default;

    virtual void InitProperties() = 0;
    virtual void ReadProperties(BolsaPropiedades& bolsa) = 0;
    virtual void WriteProperties(BolsaPropiedades& bolsa) = 0;
    virtual void Resize() = 0;
    virtual void Paint() = 0;
    virtual void Terminate() = 0;

    /// The control becomes visible.
    virtual void Show() {}
    /// Whether the control takes the focus that a click or the tab order offers it now.
    virtual bool AceptaFoco() const { return true; }
    /// Whether Enter means something to the control itself, before any default button.
    virtual bool ComeEnter() const { return false; }
    virtual void EnterFocus() {}
    virtual void ExitFocus() {}
    /// An access key of the control was pressed in the container.
    virtual void AccessKeyPress(std::int16_t /*caracter*/) {}

    /// The container changed its font: a control that still has the former one takes the new one.
    virtual void AmbientFontChanged(const AtributosFuente& /*anterior*/, const Fuente& /*nueva*/) {}
    /// Another of the container's properties that the look depends on changed.
    virtual void AmbientChanged() {}

    /// Input ceases to reach the control, or reaches it again: what the mouse and the keys had
    /// begun ends here, without an event.
    virtual void OlvidarEntrada() {}
    /// The container went from running to designing, or back.
    virtual void UserModeChanged() { OlvidarEntrada(); }

    /// What a screen reader says of the control at this moment.
    virtual Accesible Describir() const { return {}; }
    virtual void AccionPorDefecto() {}

    /// Size of the ellipse that rounds the window's corners at the present size; 0 when square.
    virtual void Forma(std::int32_t& anchoElipse, std::int32_t& altoElipse) const {
        anchoElipse = altoElipse = 0;
    }
};

} // namespace pincela
