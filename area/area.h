// The titled panel.
#pragma once

#include "common/color.h"
#include "common/enumeraciones.h"
#include "common/evento.h"
#include "common/texto.h"
#include "plataforma/control.h"
#include "plataforma/entorno.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace pincela {

class Efectos;

/// What the panel tells its container, in the order of the event numbers.
struct EventosArea {
    Evento<> Click;
    Evento<std::int16_t, std::int16_t> PresTecla;
    Evento<std::int16_t> TocoTecla;
    Evento<std::int16_t, std::int16_t> SoltoTecla;
    Evento<> MouseSale;
    Evento<std::int16_t, std::int16_t, float, float> MouseDown;
    Evento<std::int16_t, std::int16_t, float, float> MouseMove;
    Evento<std::int16_t, std::int16_t, float, float> MouseUp;
    Evento<> Paint;
    Evento<> Resize;
};

class Area final : public ControlUsuario {
  public:
    using Eventos = EventosArea;

    /// `entorno` is not owned and outlives the panel.
    explicit Area(Entorno& entorno);
    ~Area() override;

    // Published properties; enumerations are not validated. What has a field of its own ignores an
    // assignment of the value it has; what a label or the surface keeps is always assigned. Every
    // assignment tells the host, repaints and places the caption.
    Alineaciones AlinText() const;
    void PonAlinText(Alineaciones valor);
    Texto Caption() const;
    void PonCaption(Texto valor);
    Fuente Font() const;
    /// Raises ValorDePropiedad for no font.
    void PonFont(Fuente valor);
    Color ColorLetra() const;
    void PonColorLetra(Color valor);
    Color ColorFondo() const;
    void PonColorFondo(Color valor);
    Imagen MouseIcon() const;
    void PonMouseIcon(Imagen valor);
    std::int16_t MousePointer() const;
    void PonMousePointer(std::int16_t valor);
    Texto ToolTipText() const;
    void PonToolTipText(Texto valor);
    TEstilosB EstilosBord() const;
    void PonEstilosBord(TEstilosB valor);
    TEstilosR EstilosRell() const;
    void PonEstilosRell(TEstilosR valor);
    bool Enabled() const;
    void PonEnabled(bool valor);
    Tamanio SeparaBorde() const;
    void PonSeparaBorde(Tamanio valor);
    Texto ColorDegrade() const;
    void PonColorDegrade(Texto valor);
    /// Marks each visible control placed on the panel with a frame around it, or takes all marks
    /// away. A control that can't be read is left out.
    void ManAreas(const bool& Crear);
    TBack BackStyle() const;
    void PonBackStyle(TBack valor);
    Tamanio AnchoBorde() const;
    void PonAnchoBorde(Tamanio valor);
    TLetra TipoLetra() const;
    void PonTipoLetra(TLetra valor);

    Eventos eventos;

    /// Room left by the border when the last gradient was drawn, in pixels. Library-internal.
    struct RectInterior {
        float Left = 0, Top = 0, Width = 0, Height = 0;
        friend bool operator==(const RectInterior&, const RectInterior&) = default;
    };
    const RectInterior& Interior() const { return interior_; }

    void InitProperties() override;
    void ReadProperties(BolsaPropiedades& bolsa) override;
    void WriteProperties(BolsaPropiedades& bolsa) override;
    void Show() override;
    void Resize() override;
    void Paint() override;
    /// May be called more than once.
    void Terminate() override;

    void AmbientFontChanged(const AtributosFuente& anterior, const Fuente& nueva) override;
    void OlvidarEntrada() override { m_TeclaAbajo = false; }
    /// The marks are a designer's.
    void UserModeChanged() override {
        OlvidarEntrada();
        Show();
    }
    Accesible Describir() const override;
    void AccionPorDefecto() override { Click(); }

    void Click() override;
    void MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    void MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    void MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    void KeyDown(std::int16_t& codigo, std::int16_t shift) override;
    void KeyPress(std::int16_t& caracter) override;
    void KeyUp(std::int16_t& codigo, std::int16_t shift) override;

  private:
    /// The outer and the inner line of one side.
    using ParLineas = std::array<std::unique_ptr<Linea>, 2>;

    Superficie& superficie() const { return entorno_.superficie(); }
    /// Made on first use and kept.
    Efectos& efectos();

    // What every assignment ends in (propiedades.cpp).
    template <class T>
    void Cambiar(T& campo, T valor, VistaTexto clave);
    void Avisar(VistaTexto clave);
    void Reacomodar();

    // Caption (letras.cpp).
    void UbicarTexto();
    void SombrearTexto();

    // Background and border (pintura.cpp, borde.cpp).
    void Repintar();
    void PintarFondo();
    void PintarBorde();

    // Marks of the controls placed here (marcas.cpp).
    void Marcar(std::size_t numero, float izquierda, float arriba, float ancho, float alto);
    void CargarMarca();

    Entorno& entorno_;
    std::unique_ptr<Efectos> efectos_;
    bool terminado_ = false;
    RectInterior interior_;

    bool m_Cargando = false; // no repainting, no mouse buttons
    bool m_TeclaAbajo = false;
    // What the surface and the label show before anything is assigned.
    bool m_Enabled = true;
    TBack m_BackStyle = TBack::Opaco;
    Color m_ColorFondo = CaraDeBoton;
    Alineaciones m_AlinText{};
    TEstilosB m_EstilosBord{};
    TEstilosR m_EstilosRell{};
    Tamanio m_SeparaBorde{};
    Tamanio m_AnchoBorde{};
    TLetra m_TipoLetra{};
    Texto m_ColorDegrade;

    std::vector<std::unique_ptr<Rectangulo>> Cuadra; // never without its first
    ParLineas LinSup, LinInf, LinIzq, LinDer;
    std::unique_ptr<Etiqueta> lblSombra2;
    std::unique_ptr<Etiqueta> LblSombra;
    std::unique_ptr<Etiqueta> lblTitulo;
};

} // namespace pincela
