// The environment of a control on Windows: its window, its image, its widgets.
//
// The OLE object owns one of these and the control; this room knows nothing of the controls'
// interfaces, and the object knows nothing of drawing.
#pragma once

#include "common/errores.h"
#include "plataforma/control.h"
#include "plataforma/entorno.h"

#include <windows.h>

#include <ocidl.h>

#include <memory>

namespace pincela::windows {

/// What the environment asks of the OLE object that owns it.
class SitioControl {
  public:
    virtual void PropertyChanged(VistaTexto clave) = 0;
    virtual bool CanPropertyChange(VistaTexto clave) = 0;
    virtual Fuente AmbientFont() = 0;
    virtual bool UserMode() = 0;
    virtual bool DisplayAsDefault() = 0;
    virtual void AccesibleCambiado() = 0;
    virtual void AccessKeysChanged() = 0;
    /// The image changed: views that are not windows want to be drawn again.
    /// False when there is nobody to tell; then the next change is told again.
    virtual bool VistaCambiada() = 0;
    /// The control asks for the input focus: the object becomes UI-active first.
    virtual void PedirFoco() = 0;
    /// The focus entered the window or one of its edit fields, or left all of them.
    virtual void FocoCambiado(bool dentro) = 0;
    virtual void EnviarTab() = 0;
    /// TAB came down in a window of the control without its container having taken it.
    virtual void MoverFoco(bool atras) = 0;
    virtual void ControlesContenidos(const std::function<void(ControlContenido&)>& visita) = 0;
    /// True when the container wants input to do nothing (design mode, or dead to the user).
    virtual bool EntradaCongelada() = 0;
    /// Who sees every message of the window before and after it is handled, because it keeps
    /// controls of its own in that window; null for nobody.
    virtual ISimpleFrameSite* MarcoSimple() { return nullptr; }
    /// A message the window got while it is active; true when it was consumed and `*resultado` set.
    virtual bool Mensaje(HWND ventana, UINT mensaje, WPARAM w, LPARAM l, LRESULT* resultado) = 0;
    /// A run-time error left a handler that the platform called, so no caller can be told.
    virtual void ErrorEnNotificacion(const ErrorEjecucion& error) noexcept = 0;
    /// Holds the object alive while a handler runs.
    virtual void Sostener() = 0;
    virtual void Soltar() = 0;

  protected:
    ~SitioControl() = default;
};

/// Longest side that the platform gives a window, in pixels.
inline constexpr int LadoMaximoDeVentana = 0x7FFF;

/// The process-wide implementation of the platform's drawing calls.
Graficos& GraficosDeWindows();

class EntornoWindows final : public Entorno {
  public:
    explicit EntornoWindows(SitioControl& sitio);
    ~EntornoWindows() override;

    /// Who receives input, focus, Paint and Resize; null once the control is going: from then on
    /// neither control nor site hears anything, whatever happens to the window.
    void Asociar(ControlUsuario* control);

    /// Size in pixels of the surface, and of its window if there is one. Delivers Resize to the
    /// control when it changed: always through a window, otherwise when `avisar`.
    void PonTamano(SIZE pixeles, bool avisar);
    SIZE Tamano() const;

    /// The next change of the view is told even if nothing was drawn since the last one.
    void OlvidarAvisoDeVista();

    /// Dots per inch that fonts and HIMETRIC sizes follow; 96 at the start.
    void PonPpp(int ppp);
    int Ppp() const;

    /// Makes the window as a child of `padre` at `lugar` (client pixels of the parent), visible,
    /// and its edit fields in it. Null when the platform refuses. The caller then delivers Resize.
    /// `recorte`, in client pixels of the parent too, limits what is seen of it; null for no limit.
    HWND CrearVentana(HWND padre, const RECT& lugar, const RECT* recorte = nullptr);
    void DestruirVentana();
    HWND Ventana() const;
    /// Moves the window, and the surface's size with it; the control gets Resize when the size
    /// changed, as it does when anybody else sizes the window. `recorte` replaces the former one.
    void MoverVentana(const RECT& lugar, const RECT* recorte = nullptr);

    /// The container's background or mode is another: what a transparent surface shows of it is
    /// looked at again.
    void ContenedorCambiado();

    /// A press in course is forgotten: the mouse is everybody's again.
    void SoltarRaton();
    /// Input may have come back to a control that has the focus: then it is told of it.
    void ActualizarFoco();

    /// Draws image and widgets scaled into `destino` of any device context, metafiles included; in
    /// units of the context, right of left and below top. A transparent surface leaves what the
    /// context shows where nothing was drawn. The control's Paint is not called.
    /// `elipse`, in pixels of the surface, rounds the corners; 0, 0 leaves them square.
    void Dibujar(HDC dc, const RECT& destino, SIZE elipse = {});

    /// True when the window or one of its edit fields has the focus.
    bool TieneFoco() const;
    /// The window that should get the focus when the control is UI-activated.
    HWND VentanaDeFoco() const;
    /// Whether the focus may be passed on once more before the user does anything.
    bool PuedePasarElFoco();
    /// Whether a window is one of the control's edit fields.
    bool EsCampo(HWND ventana) const;
    /// Name of an edit field for assistive programs; empty where the platform itself tells it.
    Texto NombreDeCampo(HWND ventana) const;

    // Entorno
    Superficie& superficie() override;
    Graficos& graficos() override;
    std::unique_ptr<Etiqueta> CrearEtiqueta() override;
    std::unique_ptr<Temporizador> CrearTemporizador() override;
    std::unique_ptr<CuadroImagen> CrearCuadroImagen() override;
    std::unique_ptr<Rectangulo> CrearRectangulo() override;
    std::unique_ptr<Linea> CrearLinea() override;
    std::unique_ptr<CajaTexto> CrearCajaTexto(bool multilinea) override;
    void PropertyChanged(VistaTexto clave) override;
    bool CanPropertyChange(VistaTexto clave) override;
    Fuente AmbientFont() override;
    Fuente CrearFuente(const AtributosFuente& atributos) override;
    Color ColorReal(Color color) override;
    bool UserMode() override;
    bool DisplayAsDefault() override;
    void AccesibleCambiado() override;
    void EnviarTab() override;
    void DoEvents() override;
    void ControlesContenidos(const std::function<void(ControlContenido&)>& visita) override;

  private:
    class Partes;
    std::unique_ptr<Partes> partes_;
};

} // namespace pincela::windows
