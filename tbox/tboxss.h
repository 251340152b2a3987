// The plain text box: one body for the single-line and the multi-line control.
#pragma once

#include "tbox/caja_base.h"

namespace pincela {

/// Light green field of a new control that has the focus.
inline constexpr Color FondoConFoco{std::int32_t{0xC0FFC0}};

/// No caption, no shadow and no hover: its second set of colours is the focused one.
class TboxSS : public CajaBase {
  public:
    /// `entorno` is not owned and outlives the control.
    explicit TboxSS(Entorno& entorno, bool multilinea = false);
    ~TboxSS() override;

    void AjustarTexto() override;
    /// A disabled control keeps the normal colours. Selects the whole text with SelecConFoco.
    void ActualizarColores(const bool& Sobre) override;

    // Published beside what every text box has. Selection in UTF-16 units; one that does not fit
    // in 16 bits raises Desbordamiento when it is asked for.
    std::int16_t SelLength() const;
    void PonSelLength(std::int16_t valor);
    std::int16_t SelStart() const;
    void PonSelStart(std::int16_t valor);
    Texto SelText() const;
    Texto ToolTipText() const;
    void PonToolTipText(Texto valor);
    bool SelecConFoco() const;
    void PonSelecConFoco(bool valor);
    /// Enter moves the focus to the next control.
    bool NavConEnter() const;
    void PonNavConEnter(bool valor);

    void InitProperties() override;
    void ReadProperties(BolsaPropiedades& bolsa) override;
    void WriteProperties(BolsaPropiedades& bolsa) override;
    bool ComeEnter() const override { return m_NavConEnter || CajaBase::ComeEnter(); }
    void EnterFocus() override;
    void ExitFocus() override;

  protected:
    void Entrar() override;
    void GotFocus() override;
    void LostFocus() override;
    bool PuedeEditarse() override;
    void TextoEditado() override;
    void TeclaAceptada(std::int16_t caracter) override;

  private:
    void GuardarSelStart(std::int32_t valor);
    void GuardarSelLength(std::int32_t valor);
    void PonAyuda(const Texto& texto);

    bool m_SelecConFoco = false;
    bool m_NavConEnter = false;
};

/// The multi-line plain text box.
class TboxSSML final : public TboxSS {
  public:
    explicit TboxSSML(Entorno& entorno) : TboxSS(entorno, true) {}
};

} // namespace pincela
