// A property page on Windows: its dialog, its widgets and its dialogs.
#pragma once

#include "common/errores.h"
#include "plataforma/entorno_pagina.h"
#include "plataforma/windows/elementos_pagina_windows.h"

#include <windows.h>

#include <array>
#include <memory>
#include <vector>

namespace pincela::windows {

/// What the page asks of the OLE object that owns it.
class SitioPagina {
  public:
    virtual std::size_t Seleccionados() const = 0;
    virtual ControlUsuario* Seleccionado(std::size_t numero) = 0;
    virtual void ChangedCambiado() = 0;
    // Hold the object alive while a handler runs.
    virtual void Sostener() = 0;
    virtual void Soltar() = 0;

  protected:
    ~SitioPagina() = default;
};

/// Its widgets exist from the start, its window only while the page is active.
class PaginaWindows final : public EntornoPagina, private Avisador {
  public:
    /// `diseno` and `sitio` outlive the page.
    PaginaWindows(const DisenoPagina& diseno, SitioPagina& sitio);
    ~PaginaWindows();

    const DisenoPagina& Diseno() const { return diseno_; }

    /// The dialog as a hidden child of `padre`; null when the platform refuses.
    HWND CrearVentana(HWND padre);
    void DestruirVentana();
    HWND Ventana() const { return ventana_; }
    /// True when the message was for the page and is done with.
    bool Pretraducir(MSG& mensaje);
    /// Gives the focus to the widget that edits the property; false when there is none or it is out
    /// of use.
    bool Enfocar(const wchar_t* propiedad);

    // EntornoPagina
    ElementoPagina& Elemento(VistaTexto nombre) override;
    CampoTexto& Campo(VistaTexto nombre) override;
    Casilla& LaCasilla(VistaTexto nombre) override;
    Opcion& LaOpcion(VistaTexto nombre) override;
    ListaDesplegable& Lista(VistaTexto nombre) override;
    Deslizador& ElDeslizador(VistaTexto nombre) override;
    BotonPagina& Boton(VistaTexto nombre) override;
    BotonColor& ElBotonColor(VistaTexto nombre) override;
    MarcoPagina& Marco(VistaTexto nombre) override;
    CuadroPagina& Cuadro(VistaTexto nombre) override;
    Graficos& graficos() override;
    std::size_t Seleccionados() const override { return sitio_.Seleccionados(); }
    ControlUsuario* Seleccionado(std::size_t numero) override {
        return sitio_.Seleccionado(numero);
    }
    bool Changed() const override { return cambiado_; }
    void PonChanged(bool valor) override;
    Color ElegirColor(Color inicial) override;
    void Informar(VistaTexto mensaje) override;

  private:
    /// A widget as both sides see it.
    struct Elementos {
        std::unique_ptr<ElementoPagina> pagina;
        VentanaDeElemento* ventana;
    };

    template <class T>
    void Agregar(const Pieza& pieza, WORD numero);
    void Agregar(const Pieza& pieza, WORD numero);
    template <class T>
    T& Dar(VistaTexto nombre);
    std::size_t IndiceDe(VistaTexto nombre) const;
    VentanaDeElemento* DeNumero(WORD numero) const;

    static INT_PTR CALLBACK Procesar(HWND ventana, UINT mensaje, WPARAM w, LPARAM l);
    bool Tratar(UINT mensaje, WPARAM w, LPARAM l);
    bool EsTeclaPropia(const MSG& mensaje) const;
    bool TieneMnemonico(wchar_t letra) const;
    void Avisar(const std::function<void()>& manejador) override;
    HWND Duena() const;

    const DisenoPagina& diseno_;
    SitioPagina& sitio_;
    std::vector<Elementos> elementos_; // in the order of the layout
    std::vector<OpcionWindows*> opciones_;
    std::array<COLORREF, 16> coloresPropios_; // of the colour chooser
    HWND ventana_ = nullptr;
    bool cambiado_ = false;
};

} // namespace pincela::windows
