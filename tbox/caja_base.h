// What the four text boxes have in common: an edit field on a coloured surface.
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

/// What all four text boxes tell their container, in the order of the event numbers.
struct EventosTbox {
    Evento<> Change;
    Evento<> Click;
    Evento<> MouseSale;
    Evento<std::int16_t, std::int16_t, float, float> MouseDown;
    Evento<std::int16_t, std::int16_t, float, float> MouseMove;
    Evento<std::int16_t, std::int16_t, float, float> MouseUp; // never raised
    Evento<std::int16_t, std::int16_t> PresTecla;
    Evento<std::int16_t> TocoTecla;
    Evento<std::int16_t, std::int16_t> SoltoTecla;
    Evento<> Paint;
    Evento<bool> Validate; // never raised
    Evento<> Resize;
};

/// Colours a new text box starts with and a stored one falls back to.
inline constexpr Color LetraDeCaja = TextoDeVentana;
inline constexpr Color FondoDeCampo = FondoDeVentana;
inline constexpr Color FondoDeCaja = CaraDeBoton;

class CajaBase : public ControlUsuario {
  public:
    using Eventos = EventosTbox;

    CajaBase(const CajaBase&) = delete;
    CajaBase& operator=(const CajaBase&) = delete;
    ~CajaBase() override;

    /// Places the parts anew. Raises Desbordamiento when a size leaves 16 bits.
    virtual void AjustarTexto() = 0;
    /// Applies the second set of colours when `Sobre`, otherwise the normal one.
    virtual void ActualizarColores(const bool& Sobre) = 0;

    // Published properties. Every assignment tells the host; enumerations are not validated.
    Alineaciones AlinTBox() const;
    void PonAlinTBox(Alineaciones valor);
    /// 0 left, 1 right, 2 centre.
    std::int32_t AlinText() const;
    void PonAlinText(std::int32_t valor);
    /// Characters, 0 for no limit.
    std::int32_t MaxText() const;
    void PonMaxText(std::int32_t valor);
    Texto Text() const;
    void PonText(Texto valor);
    Fuente FuenteTexto() const; // published as Fuente
    void PonFuenteTexto(Fuente valor);
    Color ColorLetra() const;
    void PonColorLetra(Color valor);
    Color ColorLetraSobre() const;
    void PonColorLetraSobre(Color valor);
    Color ColorFondo() const;
    void PonColorFondo(Color valor);
    Color ColorFondoSobre() const;
    void PonColorFondoSobre(Color valor);
    Color ColorFonTexto() const;
    void PonColorFonTexto(Color valor);
    Color ColorFonTextoS() const;
    void PonColorFonTextoS(Color valor);
    /// The text can be read and selected, not edited.
    bool Tranca() const;
    void PonTranca(bool valor);
    Imagen MouseIcon() const;
    void PonMouseIcon(Imagen valor);
    std::int16_t MousePointer() const;
    void PonMousePointer(std::int16_t valor);
    TBack BackStyle() const;
    void PonBackStyle(TBack valor);
    /// Pixels, 2 to 29; any other value is ignored in silence.
    std::int16_t Separa() const;
    void PonSepara(std::int16_t valor);
    bool Enabled() const;
    void PonEnabled(bool valor);
    TText TipoTexto() const;
    void PonTipoTexto(TText valor);
    /// 0 flat, 1 three-dimensional.
    std::int32_t Apariencia() const;
    void PonApariencia(std::int32_t valor);
    /// Kept for the containers that assign it: always False, whatever was assigned.
    bool FocoVisible() const;
    void PonFocoVisible(bool valor);
    bool FocoConMouse() const;
    void PonFocoConMouse(bool valor);
    Tamanio SeparaBorde() const;
    void PonSeparaBorde(Tamanio valor);
    TLetra TipoLetra() const;
    void PonTipoLetra(TLetra valor);

    Eventos eventos;

    void Resize() override;
    void Paint() override;
    /// May be called more than once; afterwards no timer starts again.
    void Terminate() override;
    void Click() override;
    void MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    void MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    bool ComeEnter() const override { return multilinea_; }
    void AmbientFontChanged(const AtributosFuente& anterior, const Fuente& nueva) override;

  protected:
    explicit CajaBase(Entorno& entorno);

    /// Makes the edit field; after whatever has to lie behind it.
    void CrearCampo(bool multilinea);

    Superficie& superficie() const { return entorno_.superficie(); }
    /// Colours the whole surface.
    void PintarFondo(Color color);
    void AjustarSiNoCarga();
    /// A font that can be shown, or ValorDePropiedad.
    static const Fuente& FuenteUsable(const Fuente& fuente);

    /// What a first move of the mouse over the control does.
    virtual void Entrar() = 0;
    /// Gives the field the focus where the mouse does that.
    void EnfocarConMouse();

    // What the edit field tells.
    virtual void GotFocus() = 0;
    virtual void LostFocus() = 0;
    /// Whether the text may change; asked before the user changes it and before an assignment.
    virtual bool PuedeEditarse() { return true; }
    /// The text changed, and not by an assignment.
    virtual void TextoEditado() {}
    /// A character passed the filter and is about to be told.
    virtual void TeclaAceptada(std::int16_t /*caracter*/) {}

    Entorno& entorno_;
    bool terminado_ = false;
    bool m_Cargando = false;
    bool m_FocoConMouse = false;
    bool m_Enabled = false;
    Alineaciones m_AlinTBox{};
    TText m_TipoTexto{};
    Tamanio m_SeparaBorde{};
    TLetra m_TipoLetra{};
    std::int16_t m_Separa = 0;
    Color m_ColorLetra, m_ColorLetraSobre, m_ColorFondo, m_ColorFondoSobre, m_ColorFonTexto,
        m_ColorFonTextoS;

    std::unique_ptr<CajaTexto> txtTexto;

    /// Hears the parts lying on the surface: their mouse moves and clicks are the control's, their
    /// presses are not.
    OyenteRaton& OidoDePartes() { return oido_; }

  private:
    class Oido final : public OyenteEdicion {
      public:
        explicit Oido(CajaBase& caja) : caja_(caja) {}
        void Click() override { caja_.Click(); }
        void MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) override {
            caja_.MouseMove(Button, Shift, X, Y);
        }
        void KeyDown(std::int16_t& codigo, std::int16_t shift) override;
        void KeyPress(std::int16_t& caracter) override;
        void KeyUp(std::int16_t& codigo, std::int16_t shift) override;
        void Change() override;
        bool PideEditar() override { return caja_.PuedeEditarse(); }
        void GotFocus() override { caja_.GotFocus(); }
        void LostFocus() override { caja_.LostFocus(); }

      private:
        CajaBase& caja_;
    };

    Oido oido_{*this};
    bool asignandoTexto_ = false;
    bool multilinea_ = false;
};

} // namespace pincela
