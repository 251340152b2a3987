// Everything a control has around it: surface, widgets, site and platform calls.
#pragma once

#include "plataforma/elementos.h"
#include "plataforma/graficos.h"
#include "plataforma/superficie.h"

#include <functional>
#include <memory>

namespace pincela {

/// A control placed inside a panel, seen late-bound; a reading that fails returns false.
class ControlContenido {
  public:
    virtual ~ControlContenido() = default;
    virtual bool Visible(bool& valor) = 0;
    /// Left, top, width and height in pixels of the panel's surface.
    virtual bool Rectangulo(float& izquierda, float& arriba, float& ancho, float& alto) = 0;
};

/// Made by the host for one control; outlives it.
class Entorno {
  public:
    virtual ~Entorno() = default;

    virtual Superficie& superficie() = 0;
    virtual Graficos& graficos() = 0;

    virtual std::unique_ptr<Etiqueta> CrearEtiqueta() = 0;
    virtual std::unique_ptr<Temporizador> CrearTemporizador() = 0;
    virtual std::unique_ptr<CuadroImagen> CrearCuadroImagen() = 0;
    virtual std::unique_ptr<Rectangulo> CrearRectangulo() = 0;
    virtual std::unique_ptr<Linea> CrearLinea() = 0;
    virtual std::unique_ptr<CajaTexto> CrearCajaTexto(bool multilinea) = 0;

    /// Tells the container that the property with this key changed and marks the control dirty.
    virtual void PropertyChanged(VistaTexto clave) = 0;
    /// Asks the container whether the property with this key may change now.
    virtual bool CanPropertyChange(VistaTexto /*clave*/) { return true; }

    // Ambient properties of the container; the usual defaults where it offers none.
    virtual Fuente AmbientFont() = 0;
    virtual bool UserMode() = 0;
    /// True for the button that Enter presses; it shows it.
    virtual bool DisplayAsDefault() { return false; }

    /// What Describir says may have changed; the host compares and tells assistive programs.
    virtual void AccesibleCambiado() {}

    /// A new font with these attributes; a host that makes none gives the container's.
    virtual Fuente CrearFuente(const AtributosFuente& /*atributos*/) { return AmbientFont(); }

    /// The colour a system colour stands for now; a direct one, or none, stays as it is.
    virtual Color ColorReal(Color color) { return color; }

    /// Sends the keystroke TAB to the container, so that the focus moves on.
    virtual void EnviarTab() = 0;
    /// Lets the host process pending messages.
    virtual void DoEvents() = 0;

    /// Calls `visita` for each control placed inside this one, in the host's order.
    virtual void ControlesContenidos(const std::function<void(ControlContenido&)>& visita) = 0;
};

} // namespace pincela
