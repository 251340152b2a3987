// A window that holds controls: the form.
#pragma once

#include "anfitrion/ambiente.h"
#include "anfitrion/componente.h"
#include "anfitrion/contenedor.h"
#include "anfitrion/control_alojado.h"
#include "anfitrion/marco_en_sitio.h"
#include "anfitrion/registro.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace anfitrion {

struct OpcionesFormulario {
    std::wstring titulo = L"Formulario";
    int ancho = 640; ///< client area, pixels
    int alto = 480;
    HWND padre = nullptr; ///< a child window of this one when given
    bool visible = true;
    bool redimensionable = true;
    OpcionesSitio sitio;
    Ambiente ambiente;
    std::shared_ptr<Registro> registro; ///< null: nothing is written down
};

/// A form. Handlers of the controls may destroy it; what it was doing then stops quietly.
class Formulario {
  public:
    /// Throws FalloCom when the window can't be made. OLE must be initialised on the thread.
    explicit Formulario(const OpcionesFormulario& opciones);
    Formulario(const Formulario&) = delete;
    Formulario& operator=(const Formulario&) = delete;
    ~Formulario();

    HWND Ventana() const { return ventana_; }
    /// Client area, in pixels.
    SIZE Medida() const;
    void PonerMedida(const SIZE& medida);
    /// Draws every visible control, active or not, and what stands on it; the background is the
    /// caller's.
    void Dibujar(HDC hdc) const;

    // Controls

    /// Creates, initialises and activates a control; throws FalloCom. The form keeps it until
    /// Quitar; the result stays valid as long as somebody holds it. With `dentro` the control
    /// stands on that one: its parent window is that one's, and it goes when that one is taken
    /// away.
    std::shared_ptr<ControlAlojado> Agregar(const Componente& componente, REFCLSID clase,
                                            const std::wstring& nombre, const RECT& rectangulo,
                                            const Origen& origen = {},
                                            ControlAlojado* dentro = nullptr);
    /// The same for an object that exists already.
    std::shared_ptr<ControlAlojado> Agregar(const Puntero<IUnknown>& objeto,
                                            const std::wstring& nombre, const RECT& rectangulo,
                                            const Origen& origen = {},
                                            ControlAlojado* dentro = nullptr);
    /// Closes one control; answers the count of references left by the last release.
    ULONG Quitar(ControlAlojado& control);
    const std::vector<std::shared_ptr<ControlAlojado>>& Controles() const { return controles_; }
    /// Those that stand on a control, in the order they were added; on the form itself for null.
    std::vector<std::shared_ptr<ControlAlojado>> ControlesEn(const ControlAlojado* dentro) const;
    std::shared_ptr<ControlAlojado> Control(const std::wstring& nombre) const;
    /// The name itself, or with another number when it is taken.
    std::wstring NombreLibre(const std::wstring& nombre) const;
    /// Order in which they overlap, the last one on top, and in which TAB goes through them. Those
    /// that aren't told stay where they are, before them.
    void Ordenar(const std::vector<std::shared_ptr<ControlAlojado>>& controles);
    /// A window of the application's own takes part in the tab order.
    void AgregarVentana(HWND ventana, long orden);

    // Messages

    /// Handles what is waiting and returns.
    void BombearMensajes();
    /// Handles messages for a time, in milliseconds.
    void Esperar(DWORD milisegundos);
    /// Runs until the form is closed. A WM_QUIT met on the way is left for the caller's loop.
    void Ejecutar();
    /// Offers a message to the form before it is translated and dispatched; true when consumed.
    bool Pretraducir(const MSG& mensaje);
    bool Cerrado() const { return cerrado_; }

    // Keyboard and focus

    /// What the form does with a key that its active object does not want.
    bool TratarTecla(const MSG& mensaje, DWORD modificadores);
    /// Moves the focus through the tab order, backwards when asked; false when nobody takes it.
    bool MoverFoco(bool atras);
    ControlAlojado* Activo() const { return activo_.get(); }
    void DesactivarUI();
    bool SeMuestraPorDefecto(const ControlAlojado& control) const;

    // Design and run mode

    /// The window over the controls that takes the mouse in design mode; null in run mode.
    HWND Capa() const { return capa_; }
    bool ModoUsuario() const { return ambiente_.modoUsuario; }
    /// Announces the change to every control; in design mode a click selects.
    void PonerModoUsuario(bool usuario);
    const std::vector<std::shared_ptr<ControlAlojado>>& Seleccion() const { return seleccion_; }
    void Seleccionar(const std::shared_ptr<ControlAlojado>& control, bool anadir);
    /// The first one is the one that leads.
    void Seleccionar(std::vector<std::shared_ptr<ControlAlojado>> controles);
    /// The uppermost visible control at a point of the form; null when there is none.
    std::shared_ptr<ControlAlojado> ControlEn(POINT punto) const;

    // Surroundings

    const Ambiente& Ambientes() const { return ambiente_; }
    /// Changes ambient properties and announces the given one to every control.
    void CambiarAmbiente(DISPID numero, const std::function<void(Ambiente&)>& cambio);

    std::function<void(HDC, const RECT&)> alPintar; ///< background, under the controls
    std::function<void()> alCambiarTamano;
    std::function<void()> alSeleccionar;
    std::function<void(int, HWND)> alOrdenar; ///< WM_COMMAND of own windows: code, window
    std::function<bool(UINT, WPARAM, LPARAM, LRESULT&)> alRecibir; ///< any message; true: done
    std::function<bool(ControlAlojado&)> alPedirPropiedades;
    /// A key, before anybody else; true: done.
    std::function<bool(const MSG&)> alTeclear;
    /// In design mode, a message of the layer over the controls, before the form selects; true:
    /// done.
    std::function<bool(UINT, WPARAM, LPARAM, LRESULT&)> alDisenar;
    /// A message of a window that holds controls, before that control handles it; true: done.
    std::function<bool(ControlAlojado&, UINT, WPARAM, LPARAM, LRESULT&)> alFiltrar;

    // For the sites

    Registro* Llamadas() const { return registro_.get(); }
    IOleInPlaceFrame* Marco() const { return marco_.get(); }
    IOleInPlaceUIWindow* Documento() const { return documento_.get(); }
    Puntero<IOleContainer> Contenido() const { return {contenedor_.get()}; }
    void UIActivado(ControlAlojado& control);
    void UIDesactivado(ControlAlojado& control);
    void ControlCerrado(ControlAlojado& control);
    bool PedirPropiedades(ControlAlojado& control);
    bool Filtrar(ControlAlojado& control, UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado);
    void Filtrado(ControlAlojado& control, HWND ventana, UINT mensaje);

  private:
    /// One stop of the tab order: a control or a window of the application.
    struct Parada {
        std::shared_ptr<ControlAlojado> control;
        HWND ventana = nullptr;
        long orden = 0;
    };

    static LRESULT CALLBACK Procesar(HWND ventana, UINT mensaje, WPARAM w, LPARAM l);
    static LRESULT CALLBACK ProcesarCapa(HWND ventana, UINT mensaje, WPARAM w, LPARAM l);
    static LRESULT CALLBACK ProcesarPropia(HWND ventana, UINT mensaje, WPARAM w, LPARAM l, UINT_PTR,
                                           DWORD_PTR forma);
    static Formulario* De(HWND ventana);
    static void Despachar(MSG& mensaje);

    void CrearVentana(const OpcionesFormulario& opciones);
    LRESULT Tratar(UINT mensaje, WPARAM w, LPARAM l);
    void Pintar(HDC hdc, const RECT& sucio);
    void PintarControles(HDC hdc, const ControlAlojado* dentro) const;
    void DibujarControles(HDC hdc, const ControlAlojado* dentro) const;
    LRESULT TratarCapa(HWND capa, UINT mensaje, WPARAM w, LPARAM l);
    void AlActivarVentana(bool activa);
    std::vector<Parada> Paradas() const;
    std::size_t ParadaActual(const std::vector<Parada>& paradas) const;
    bool Enfocar(const Parada& parada);
    Puntero<IOleInPlaceActiveObject> ObjetoActivo() const;
    bool Mnemonico(const MSG& mensaje);
    bool Entrar(const MSG& mensaje);
    bool Escapar(const MSG& mensaje);
    bool Flecha(const MSG& mensaje);
    bool Pulsar(bool ControlAlojado::*papel, const MSG& mensaje);
    void PonerCapa();

    HWND ventana_ = nullptr;
    HWND capa_ = nullptr; ///< catches the mouse in design mode
    Ambiente ambiente_;
    OpcionesSitio opcionesSitio_;
    std::shared_ptr<Registro> registro_;
    Puntero<MarcoEnSitio> marco_;
    Puntero<MarcoEnSitio> documento_;
    Puntero<Contenedor> contenedor_;
    std::vector<std::shared_ptr<ControlAlojado>> controles_;
    std::vector<Parada> ventanas_;
    std::vector<std::shared_ptr<ControlAlojado>> seleccion_;
    std::shared_ptr<ControlAlojado> activo_;
    HWND ultimaVentana_ = nullptr; ///< own window that had the focus last
    long siguienteOrden_ = 0;
    bool cerrado_ = false;
    std::shared_ptr<bool> vivo_ = std::make_shared<bool>(true);
};

} // namespace anfitrion
