// The labelled text box: one body for the single-line and the multi-line control.
#pragma once

#include "tbox/caja_base.h"

namespace pincela {

class Efectos;

class Tbox : public CajaBase {
  public:
    /// `entorno` is not owned and outlives the control.
    explicit Tbox(Entorno& entorno, bool multilinea = false);
    ~Tbox() override;

    void AjustarTexto() override;
    void ActualizarColores(const bool& Sobre) override;

    // Published beside what every text box has.
    /// "&" makes the next character the access key. Raises Desbordamiento when the first "&" lies
    /// beyond position 255.
    Texto Caption() const;
    void PonCaption(Texto valor);
    Fuente FuenteEtic() const;
    void PonFuenteEtic(Fuente valor);
    Color ColorLetraE() const;
    void PonColorLetraE(Color valor);
    Color ColorLetraES() const;
    void PonColorLetraES(Color valor);
    Texto ToolTipText() const;
    void PonToolTipText(Texto valor);
    /// A value that is none of the four is stored, then raises NuloNoValido: it has no colour.
    TSombra TipoSombra() const;
    void PonTipoSombra(TSombra valor);

    // The same as every text box's, and then what concerns label and shadow.
    void PonColorFonTexto(Color valor);
    void PonEnabled(bool valor);

    void InitProperties() override;
    void ReadProperties(BolsaPropiedades& bolsa) override;
    void WriteProperties(BolsaPropiedades& bolsa) override;
    void Terminate() override;
    void AccessKeyPress(std::int16_t caracter) override;
    void AmbientFontChanged(const AtributosFuente& anterior, const Fuente& nueva) override;
    void Click() override;
    void OlvidarEntrada() override;

  protected:
    void Entrar() override;
    void GotFocus() override;
    void LostFocus() override;

  private:
    /// Left, top, width and height of field and shadow together.
    struct Caja {
        double izquierda, arriba;
        std::int16_t ancho, alto;
    };

    /// Made on first use and kept.
    Efectos& efectos();

    // Layout (tbox_disposicion.cpp).
    void UbicarEtiqueta();
    Caja CajaDelCampo() const;

    // Colours (tbox_colores.cpp).
    void SombrearTexto();
    void SombrearCampo();
    Color ColorDeSombraDelCampo();

    void NombrarCampo();
    bool CursorEncima();
    void Sondear();
    void SondearRaton();

    std::unique_ptr<Efectos> efectos_;

    bool m_EstaSobre = false;
    Color m_ColorLetraE, m_ColorLetraES;
    TSombra m_TipoSombra{};

    std::unique_ptr<Rectangulo> Sombra; // of the edit field
    std::unique_ptr<Etiqueta> lblSombra;
    std::unique_ptr<Etiqueta> lblTexto;
    std::unique_ptr<Temporizador> Timer; // hover polling
};

/// The multi-line labelled text box.
class TBoxML final : public Tbox {
  public:
    explicit TBoxML(Entorno& entorno) : Tbox(entorno, true) {}
};

} // namespace pincela
