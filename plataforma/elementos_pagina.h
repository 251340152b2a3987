// The widgets of a property page. They belong to the page's host and live as long as it does.
//
// An assignment that shows as an edit tells it as the user's edit does: a text always, an item of
// a list when it is another one, a check box when it changes, an option whenever it is chosen.
#pragma once

#include "common/color.h"
#include "common/evento.h"
#include "common/texto.h"
#include "plataforma/manejador.h"

#include <cstdint>
#include <memory>

namespace pincela {

/// What every widget has; a label is nothing more.
class ElementoPagina {
  public:
    virtual ~ElementoPagina() = default;

    virtual bool Enabled() const = 0;
    /// Everything in a disabled frame is out of use as well.
    virtual void PonEnabled(bool valor) = 0;
    virtual bool Visible() const = 0;
    virtual void PonVisible(bool valor) = 0;
};

class CampoTexto : public ElementoPagina {
  public:
    virtual Texto Text() const = 0;
    virtual void PonText(const Texto& texto) = 0;

    Evento<> Change;
    /// A typed character; 0 drops it.
    Evento<std::int16_t> KeyPress;
};

class Casilla : public ElementoPagina {
  public:
    /// 0 not checked, 1 checked, 2 greyed.
    virtual std::int32_t Value() const = 0;
    virtual void PonValue(std::int32_t valor) = 0;

    Evento<> Click;
};

/// One of several choices; choosing it leaves the others.
class Opcion : public ElementoPagina {
  public:
    virtual bool Value() const = 0;
    virtual void Elegir() = 0;

    Evento<> Click;
};

class ListaDesplegable : public ElementoPagina {
  public:
    virtual void Clear() = 0;
    virtual void AddItem(VistaTexto item) = 0;
    /// -1 when nothing is chosen.
    virtual std::int32_t ListIndex() const = 0;
    /// Raises ValorDePropiedad for what is neither an item nor -1.
    virtual void PonListIndex(std::int32_t indice) = 0;

    Evento<> Click;
};

class Deslizador : public ElementoPagina {
  public:
    virtual std::int32_t Value() const = 0;
    /// Raises ValorDePropiedad outside the slider's range.
    virtual void PonValue(std::int32_t valor) = 0;

    /// The user moved it, and goes on moving perhaps; an assignment is not told.
    Evento<> Scroll;
};

class BotonPagina : public ElementoPagina {
  public:
    Evento<> Click;
};

/// A button that shows a colour.
class BotonColor : public BotonPagina {
  public:
    virtual Color BackColor() const = 0;
    virtual void PonBackColor(Color color) = 0;

    // Place along its frame, in twips (1440 to the inch).
    virtual std::int32_t Left() const = 0;
    virtual std::int32_t Width() const = 0;
    virtual void Move(std::int32_t izquierda, std::int32_t ancho) = 0;
};

class MarcoPagina : public ElementoPagina {
  public:
    /// Twips.
    virtual std::int32_t Width() const = 0;
    /// A new button in the frame, as high as the frame's row; hidden until it is made visible.
    virtual std::unique_ptr<BotonColor> CrearBotonColor() = 0;
};

/// Picture box with a window of its own; keeps what is drawn on it.
class CuadroPagina : public ElementoPagina {
  public:
    /// 0 while the page is not shown.
    virtual Manejador hWnd() = 0;
    virtual Manejador hDC() = 0;
    // Inner size in pixels.
    virtual float ScaleWidth() const = 0;
    virtual float ScaleHeight() const = 0;
    /// Fills the box at once.
    virtual void PonBackColor(Color color) = 0;
    virtual void Refresh() = 0;
};

} // namespace pincela
