// What the pieces of one environment share: its site, its control, its window and its elements.
#pragma once

#include "plataforma/windows/apartamento.h"
#include "plataforma/windows/aritmetica.h"
#include "plataforma/windows/entorno_windows.h"
#include "plataforma/windows/escena.h"

#include <new>

namespace pincela::windows {

class CampoEdicion;
class Globos;
class Silueta;

/// Holds the object of the control for a scope.
class Sosten {
  public:
    explicit Sosten(SitioControl& sitio) : sitio_(sitio) { sitio_.Sostener(); }
    Sosten(const Sosten&) = delete;
    Sosten& operator=(const Sosten&) = delete;
    ~Sosten() { sitio_.Soltar(); }

  private:
    SitioControl& sitio_;
};

/// Runs what the platform asked for, in the component's own arithmetic; whatever is thrown ends as
/// a notification to the site.
template <class Accion>
void Proteger(SitioControl& sitio, Accion&& accion) noexcept {
    const AritmeticaPropia propia;
    try {
        accion();
    } catch (const ErrorEjecucion& error) {
        sitio.ErrorEnNotificacion(error);
    } catch (const std::bad_alloc&) {
        sitio.ErrorEnNotificacion(ErrorEjecucion(NumeroError::SinMemoria));
    } catch (...) {
        sitio.ErrorEnNotificacion(ErrorEjecucion(NumeroError::LlamadaNoValida));
    }
}

class Nucleo {
  public:
    Nucleo(SitioControl& elSitio, Apartamento& elApartamento)
        : sitio(elSitio), apartamento(elApartamento) {}
    Nucleo(const Nucleo&) = delete;
    Nucleo& operator=(const Nucleo&) = delete;

    SitioControl& sitio;
    Apartamento& apartamento;
    ControlUsuario* control = nullptr;
    bool cerrando = false; // the control is going: nothing is told any more
    HWND ventana = nullptr;
    int ppp = 96;
    Escena escena;
    std::vector<CampoEdicion*> campos; // in the order they were made
    Globos* globos = nullptr;          // of the window, for whoever gets mouse messages
    Silueta* silueta = nullptr;        // of the window
    bool conFoco = false;              // what the site was last told
    bool focoDicho = false;            // what the control was last told
    bool dibujandoPadre = false;       // the parent was asked for what is behind the window

    /// Expires with the environment.
    std::weak_ptr<const void> Testigo() const { return vida_; }

    /// Calls the control from the platform's side, errors handed to the site. False when the
    /// environment did not survive the call: then nothing of it may be touched.
    template <class Accion>
    bool Notificar(Accion&& accion) {
        const auto testigo = Testigo();
        if (control)
            Proteger(sitio, [&] { accion(*control); });
        return !testigo.expired();
    }

    /// The view is out of date: the window is invalidated and the site told, once until the next
    /// drawing.
    void VistaCambiada();
    /// A drawing begins; later changes count again.
    void VistaDibujada() { invalidada_ = avisada_ = false; }

    void OlvidarAvisoDeVista() { avisada_ = false; }
    /// The window was invalidated and has not been painted since.
    bool PinturaPendiente() const { return invalidada_; }

    /// The window or one of its edit fields; what a container places inside is not its own.
    bool EsVentanaPropia(HWND otra) const;

  private:
    std::shared_ptr<const void> vida_ = std::make_shared<char>();
    bool invalidada_ = false;
    bool avisada_ = false;
};

} // namespace pincela::windows
