// The design mode of the gallery: select controls, edit their properties, save the form and load it.
#pragma once

#include "galeria/pagina.h"

#include <functional>

namespace galeria {

/// A row of buttons for the right end of the gallery's tabs.
class Diseno {
  public:
    /// The windows belong to `padre`; `visible` gives the page that they work on.
    Diseno(HWND padre, HFONT fuente, std::function<Pagina&()> visible);

    /// Within a strip of the window that ends at `derecha`, in pixels.
    void Colocar(int derecha, int alto) const;
    /// A command of the window; false when it comes from somebody else.
    bool Orden(HWND boton);
    /// Another page is shown: it goes into the mode that is on.
    void Mostrar(Pagina& pagina);

  private:
    enum Boton { Disenar, Propiedades, Guardar, Abrir, Cuantos };

    bool Disenando() const;
    void Actualizar();
    void EditarPropiedades();
    void GuardarComo();
    void AbrirDe();
    void Avisar(const std::wstring& texto) const;

    HWND padre_;
    HWND botones_[Cuantos];
    std::function<Pagina&()> visible_;
};

} // namespace galeria
