// The recording host: everything a control does to its surroundings becomes one line of a record,
// in order; everything a control can ask for is settable.
#pragma once

#include "common/evento.h"
#include "plataforma/entorno.h"
#include "pruebas/nativas/elementos_grabados.h"
#include "pruebas/nativas/graficos_grabador.h"
#include "pruebas/nativas/registro.h"

#include <deque>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace pincela::pruebas {

/// The recorded drawing calls, written into the common record as well. Device contexts appear
/// under the name of their canvas.
class GraficosDeEntorno : public GraficosGrabador {
  public:
    explicit GraficosDeEntorno(Registro& registro) : registro_(registro) {}

    std::map<Manejador, std::string> nombres;

    void GradientFill(Manejador hdc, std::span<const TRIVERTEX> vertices,
                      std::span<const GRADIENT_RECT> malla, ModoGradiente modo) override;
    void GradientFill(Manejador hdc, std::span<const TRIVERTEX> vertices,
                      std::span<const GRADIENT_TRIANGLE> malla, ModoGradiente modo) override;
    void AlphaBlend(Manejador destino, std::int32_t xd, std::int32_t yd, std::int32_t anchod,
                    std::int32_t altod, Manejador origen, std::int32_t xo, std::int32_t yo,
                    std::int32_t anchoo, std::int32_t altoo, std::uint32_t mezcla) override;
    Manejador CreateRoundRectRgn(std::int32_t izquierda, std::int32_t arriba, std::int32_t derecha,
                                 std::int32_t abajo, std::int32_t anchoElipse,
                                 std::int32_t altoElipse) override;
    void SetWindowRgn(Manejador ventana, Manejador region, bool redibujar) override;
    void DeleteObject(Manejador objeto) override;
    PuntoPantalla GetCursorPos() override;
    Manejador WindowFromPoint(PuntoPantalla punto) override;

  private:
    std::string Nombre(Manejador hdc) const;
    void AnotarGradiente(Manejador hdc, std::span<const TRIVERTEX> vertices, std::size_t figuras,
                         ModoGradiente modo);
    Registro& registro_;
};

/// A control inside a panel; `legible` false makes every reading fail, `ubicable` false that of
/// its rectangle alone.
class ContenidoGrabado : public ControlContenido {
  public:
    bool legible = true;
    bool visible = true;
    float izquierda = 0, arriba = 0, ancho = 0, alto = 0;
    bool ubicable = true;
    /// Called in the middle of a reading, as a late-bound control lets code run there.
    std::function<void()> alLeer;

    bool Visible(bool& valor) override {
        if (alLeer)
            alLeer();
        valor = visible;
        return legible;
    }
    bool Rectangulo(float& x, float& y, float& an, float& al) override {
        x = izquierda;
        y = arriba;
        an = ancho;
        al = alto;
        return legible && ubicable;
    }
};

class EntornoGrabador : public Entorno {
  public:
    /// Surface of 100 by 30 pixels in window 500.
    EntornoGrabador();

    // The record comes first: everything else writes to it until the end.
    Registro registro;

  private:
    std::map<std::string, Grabado*> conocidos_;

  public:
    GraficosDeEntorno dibujo{registro};
    SuperficieGrabada pantalla;

    // Settable by the tests.
    float anchoLetra = 6, altoLetra = 13; // pixels of a label's character
    Fuente fuenteAmbiente = std::make_shared<FuenteGrabada>();
    bool modoUsuario = true;
    bool porDefecto = false;
    bool cambiosPermitidos = true;
    std::vector<ContenidoGrabado> contenidos;
    /// What the system colours stand for: black letters on white, buttons of light grey.
    std::map<std::uint32_t, Color> coloresDeSistema{
        {0x80000005, Blanco}, {0x80000008, Negro}, {0x8000000F, Color(std::int32_t{0xF0F0F0})}};
    /// Called in the middle of the notification of a change.
    std::function<void(VistaTexto)> alCambiar;
    /// Called while the focus is sent on, or while pending messages are processed.
    std::function<void()> alEnviarTab, alAtender;
    /// Called when an edit field has got the focus.
    std::function<void()> alEnfocarCampo;

    /// Names for the widgets created from now on, by kind, in order of creation; beyond them they
    /// are called etiqueta1, temporizador1, cuadro1, rectangulo1, linea1, caja1...
    void Nombrar(const std::string& clase, std::vector<std::string> nombres);

    /// The living widget of that name.
    template <class T>
    T& Elemento(const std::string& nombre) {
        auto* elemento = dynamic_cast<T*>(conocidos_.at(nombre));
        if (!elemento)
            throw std::logic_error(nombre + " is of another kind");
        return *elemento;
    }
    EtiquetaGrabada& LaEtiqueta(const std::string& n) { return Elemento<EtiquetaGrabada>(n); }
    TemporizadorGrabado& ElTemporizador(const std::string& n) {
        return Elemento<TemporizadorGrabado>(n);
    }
    CuadroGrabado& ElCuadro(const std::string& n) { return Elemento<CuadroGrabado>(n); }
    RectanguloGrabado& ElRectangulo(const std::string& n) { return Elemento<RectanguloGrabado>(n); }
    LineaGrabada& LaLinea(const std::string& n) { return Elemento<LineaGrabada>(n); }
    CajaGrabada& LaCaja(const std::string& n) { return Elemento<CajaGrabada>(n); }
    bool Existe(const std::string& nombre) const { return conocidos_.contains(nombre); }

    /// Puts the cursor over the control's own window, or over another one.
    void RatonEncima() { dibujo.ventanaBajoElCursor = pantalla.ventana; }
    void RatonFuera() { dibujo.ventanaBajoElCursor = 900; }

    // The input focus: an edit field, or none of them.
    void Enfocar(CajaGrabada* caja);
    const CajaGrabada* Enfocada() const { return enfocada_; }

    /// Notes an event with its arguments: "evento MouseMove 0 0 3 4".
    template <class... A>
    void Escuchar(const std::string& nombre, Evento<A...>& evento) {
        evento.Conectar([this, nombre](A&... argumentos) {
            std::string linea = "evento " + nombre;
            ((linea += " " + Numero(static_cast<double>(argumentos))), ...);
            registro.Anotar(linea);
        });
    }

    Superficie& superficie() override { return pantalla; }
    Graficos& graficos() override { return dibujo; }
    std::unique_ptr<Etiqueta> CrearEtiqueta() override;
    std::unique_ptr<Temporizador> CrearTemporizador() override;
    std::unique_ptr<CuadroImagen> CrearCuadroImagen() override;
    std::unique_ptr<Rectangulo> CrearRectangulo() override;
    std::unique_ptr<Linea> CrearLinea() override;
    std::unique_ptr<CajaTexto> CrearCajaTexto(bool multilinea) override;
    Fuente CrearFuente(const AtributosFuente& atributos) override {
        return std::make_shared<FuenteGrabada>(atributos);
    }
    void PropertyChanged(VistaTexto clave) override;
    bool CanPropertyChange(VistaTexto clave) override;
    Fuente AmbientFont() override { return fuenteAmbiente; }
    bool UserMode() override { return modoUsuario; }
    bool DisplayAsDefault() override { return porDefecto; }
    Color ColorReal(Color color) override;
    void EnviarTab() override;
    void DoEvents() override;
    void ControlesContenidos(const std::function<void(ControlContenido&)>& visita) override;

  private:
    friend class Grabado;
    void Conocer(Grabado& elemento) { conocidos_[elemento.nombre] = &elemento; }
    void Desconocer(const Grabado& elemento);
    std::string NombreNuevo(const std::string& clase);

    std::map<std::string, std::deque<std::string>> nombres_;
    std::map<std::string, int> creados_;
    Manejador proximoHdc_ = 11;
    Manejador proximaVentana_ = 600;
    CajaGrabada* enfocada_ = nullptr;
};

} // namespace pincela::pruebas
