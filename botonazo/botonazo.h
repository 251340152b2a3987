// The painted push button.
#pragma once

#include "common/color.h"
#include "common/enumeraciones.h"
#include "common/evento.h"
#include "common/texto.h"
#include "plataforma/control.h"
#include "plataforma/entorno.h"

#include <cstdint>
#include <memory>

namespace pincela {

class Efectos;

/// What the button tells its container, in the order of the event numbers.
struct EventosBotonazo {
    Evento<> Click;
    Evento<std::int16_t, std::int16_t> PresTecla;
    Evento<std::int16_t> TocoTecla;
    Evento<std::int16_t, std::int16_t> SoltoTecla;
    Evento<> MouseSale;
    Evento<std::int16_t, std::int16_t, float, float> MouseDown;
    Evento<std::int16_t, std::int16_t, float, float> MouseMove;
    Evento<std::int16_t, std::int16_t, float, float> MouseUp;
    Evento<> Paint;
    Evento<bool> Validate;
    Evento<> Resize;
};

class Botonazo final : public ControlUsuario {
  public:
    using Eventos = EventosBotonazo;

    /// `entorno` is not owned and outlives the button.
    explicit Botonazo(Entorno& entorno);
    ~Botonazo() override;

    // Published properties. Every assignment tells the host; enumerations are not validated.
    EfectosBoton EfectoBoton() const;
    void PonEfectoBoton(EfectosBoton valor);
    Alineaciones AlinText() const;
    void PonAlinText(Alineaciones valor);
    Texto Caption() const;
    void PonCaption(Texto valor);
    Alineaciones AlinImag() const;
    void PonAlinImag(Alineaciones valor);
    Fuente Font() const;
    void PonFont(Fuente valor);
    Color ColorLetra() const;
    void PonColorLetra(Color valor);
    Color ColorLetraSobre() const;
    void PonColorLetraSobre(Color valor);
    Color ColorFondo() const;
    void PonColorFondo(Color valor);
    Color ColorFondoSobre() const;
    void PonColorFondoSobre(Color valor);
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
    TEstilos Estilos() const;
    void PonEstilos(TEstilos valor);
    float RelX() const;
    void PonRelX(float valor);
    float RelY() const;
    void PonRelY(float valor);
    Imagen ImagNormal() const;
    void PonImagNormal(Imagen valor);
    Imagen ImagSobre() const;
    void PonImagSobre(Imagen valor);
    void Actualizar();
    bool Expandir() const;
    void PonExpandir(bool valor);
    bool Enabled() const;
    void PonEnabled(bool valor);
    bool FocoVisible() const;
    void PonFocoVisible(bool valor);
    bool FocoConMouse() const;
    void PonFocoConMouse(bool valor);
    Tamanio AnchoBorde() const;
    void PonAnchoBorde(Tamanio valor);
    TLetra TipoLetra() const;
    void PonTipoLetra(TLetra valor);
    bool CambioProgre() const;
    void PonCambioProgre(const bool& valor);
    std::uint8_t CambioProgrePasos() const;
    void PonCambioProgrePasos(const std::uint8_t& valor);

    // Library-internal: for the property pages only, never published.
    std::int16_t Angulo() const;
    void PonAngulo(std::int16_t valor);
    Texto ColorDegradeN() const;
    void PonColorDegradeN(Texto valor);
    Texto ColorDegradeS() const;
    void PonColorDegradeS(Texto valor);

    // What the host asks beside the life of the control (accesible.cpp).
    void AmbientFontChanged(const AtributosFuente& anterior, const Fuente& nueva) override;
    void AmbientChanged() override;
    void OlvidarEntrada() override;
    Accesible Describir() const override;
    void AccionPorDefecto() override;

    Eventos eventos;

    void InitProperties() override;
    void ReadProperties(BolsaPropiedades& bolsa) override;
    void WriteProperties(BolsaPropiedades& bolsa) override;
    void Resize() override;
    void Paint() override;
    /// May be called more than once; afterwards no timer starts again.
    void Terminate() override;
    bool AceptaFoco() const override { return m_Enabled; }
    void EnterFocus() override;
    void ExitFocus() override;
    void AccessKeyPress(std::int16_t caracter) override;
    void Forma(std::int32_t& anchoElipse, std::int32_t& altoElipse) const override;

    void Click() override;
    void MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    void MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    void MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    void KeyDown(std::int16_t& codigo, std::int16_t shift) override;
    void KeyPress(std::int16_t& caracter) override;
    void KeyUp(std::int16_t& codigo, std::int16_t shift) override;

  private:
    /// What a placement of the caption does with the colours of its shadow copies.
    enum class Sombras { Recolorear, Conservar };

    Superficie& superficie() const { return entorno_.superficie(); }
    /// Made on first use and kept.
    Efectos& efectos();

    // Caption (letras.cpp).
    void UbicarTexto(bool Presionado, Sombras sombras = Sombras::Recolorear);
    void SombrearTexto();

    // Drawing (pintura.cpp, borde.cpp, progresivo.cpp).
    void ActualizarEstado(bool Presionado);
    void PintarBoton(Imagen imagen, const Texto& Colores, bool Sobre);
    void DibujarBoton(Imagen imagen, const Texto& Colores, bool Sobre);
    void PintarCara(Lienzo& destino, const Imagen& imagen, const Texto& Colores, bool Sobre);
    void PintarImagen(Lienzo& destino, const Imagen& imagen, bool Sobre);
    std::uint8_t MargenImagen(bool Sobre) const;
    void MostrarPicture1(std::uint8_t Nivel);
    void Copiar(Lienzo& origen, Lienzo& destino, std::uint8_t Nivel);
    void AjustarCuadro(CuadroImagen& cuadro);
    void PonColorDeFondo(Color color);
    void Reformar();
    void SeguirForma();
    void PintarBorde(bool Sobre, bool Presionado);
    bool SeVeElBorde(bool Sobre, bool Presionado) const;
    void PintarMarcoPorDefecto();
    void UbicarFoco();
    void FundirBoton(const Imagen& imagen, const Texto& Colores, bool Sobre);
    void PasoProgresivo();
    void DetenerProgresivo();

    // Hover (interaccion.cpp).
    void SondearRaton();
    void DejarAspectoSobre();
    void PintarLetra(Color color);
    bool CambiaAspecto() const;
    bool EsVentanaPropia(Manejador ventana) const;
    void Arrancar(Temporizador& temporizador);

    Entorno& entorno_;
    std::unique_ptr<Efectos> efectos_;
    bool terminado_ = false;
    bool iniciando_ = false; // a new button gets its first values

    std::int16_t m_Angulo = 0;
    std::uint8_t m_PasoProg = 0;
    bool m_Presionado = false;
    bool m_TeclaAbajo = false;
    Texto m_ColorDegradeN;
    Texto m_ColorDegradeS;
    bool m_Sobre = false;
    tRectRedo m_Redondeo;
    bool m_FocoConMouse = false;
    bool m_FocoVisible = false;
    bool m_Enabled = false;
    Imagen m_ImagSobre;
    Imagen m_ImagNormal;
    Alineaciones m_AlinText{};
    Alineaciones m_AlinImag{};
    bool m_Expandir = false;
    EfectosBoton m_EfectoBoton{};
    Tamanio m_AnchoBorde{};
    Color m_ColorLetra, m_ColorLetraSobre, m_ColorFondo, m_ColorFondoSobre;
    bool m_Cargando = false;
    TEstilos m_Estilos{};
    TEstilosB m_EstilosBord{};
    TEstilosR m_EstilosRell{};
    TLetra m_TipoLetra{};
    bool m_CambioProgre = false;
    std::uint8_t m_CambioProgrePasos = 0;

    std::unique_ptr<CuadroImagen> AuxImagen; // target look of a progressive change
    std::unique_ptr<CuadroImagen> Picture1;  // washed-out look of a disabled button
    std::unique_ptr<Etiqueta> lblSombra2;
    std::unique_ptr<Etiqueta> LblSombra;
    std::unique_ptr<Etiqueta> lblTitulo;
    std::unique_ptr<Rectangulo> rectFoco;
    std::unique_ptr<Temporizador> Timer;   // hover polling
    std::unique_ptr<Temporizador> TimProg; // progressive change
};

} // namespace pincela
