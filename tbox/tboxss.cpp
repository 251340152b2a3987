// The plain text box: life, properties of its own, colours, focus and keys.
#include "tbox/tboxss.h"

#include "common/al_salir.h"
#include "common/conversion.h"
#include "common/errores.h"
#include "efectos/letras.h"

#include <algorithm>

namespace pincela {

namespace {

constexpr float Franja = 1; // of the control's own colour, above and to the left of the field

} // namespace

TboxSS::TboxSS(Entorno& entorno, bool multilinea) : CajaBase(entorno) {
    CrearCampo(multilinea);
}

TboxSS::~TboxSS() = default;

void TboxSS::InitProperties() {
    // The container's font is where a new control starts from, not a change of it.
    txtTexto->PonFont(entorno_.AmbientFont());

    PonFocoVisible(true);
    m_SelecConFoco = true;
    PonNavConEnter(true);
    PonAlinTBox(Alineaciones::Der_Med);
    PonTipoTexto(TText::TextNorm);
    PonApariencia(1);
    PonTipoLetra(TLetra::Normal);
    PonSeparaBorde(Tamanio::Chico);
    PonBackStyle(TBack::Transparente);
    PonFocoConMouse(false);
    {
        Mientras carga(m_Cargando);
        PonColorLetra(LetraDeCaja);
        PonColorLetraSobre(LetraDeCaja);
        PonColorFonTexto(FondoDeCampo);
        PonColorFonTextoS(FondoConFoco);
        PonColorFondo(FondoDeCaja);
        PonColorFondoSobre(FondoDeCaja);
    }
    PonEnabled(true);
}

void TboxSS::AjustarTexto() {
    const float ancho = superficie().ScaleWidth() - Franja;
    const float alto = superficie().ScaleHeight() - Franja;
    txtTexto->Move(Franja, Franja, std::max(ancho, 0.0f), std::max(alto, 0.0f));
}

void TboxSS::ActualizarColores(const bool& Sobre) {
    const bool sobre = Sobre && m_Enabled;
    txtTexto->PonForeColor(sobre ? m_ColorLetraSobre : m_ColorLetra);
    txtTexto->PonBackColor(sobre ? m_ColorFonTextoS : m_ColorFonTexto);
    PintarFondo(sobre ? m_ColorFondoSobre : m_ColorFondo);
    if (!m_SelecConFoco)
        return;
    txtTexto->PonSelStart(0);
    txtTexto->PonSelLength(Entero32(static_cast<std::int64_t>(txtTexto->Text().size())));
}

std::int16_t TboxSS::SelLength() const {
    return Entero16(txtTexto->SelLength());
}

void TboxSS::PonSelLength(std::int16_t valor) {
    GuardarSelLength(valor);
}

std::int16_t TboxSS::SelStart() const {
    return Entero16(txtTexto->SelStart());
}

void TboxSS::PonSelStart(std::int16_t valor) {
    GuardarSelStart(valor);
}

// A long text can be selected and saved beyond what the published 16 bits tell of it.
void TboxSS::GuardarSelStart(std::int32_t valor) {
    txtTexto->PonSelStart(valor);
    entorno_.PropertyChanged(u"SelStart");
}

void TboxSS::GuardarSelLength(std::int32_t valor) {
    txtTexto->PonSelLength(valor);
    entorno_.PropertyChanged(u"SelLength");
}

Texto TboxSS::SelText() const {
    return txtTexto->SelText();
}

Texto TboxSS::ToolTipText() const {
    return txtTexto->ToolTipText();
}

void TboxSS::PonToolTipText(Texto valor) {
    PonAyuda(valor);
    entorno_.PropertyChanged(u"ToolTipText");
}

// Without a caption, the tip is what tells a reader of the screen what to fill in.
void TboxSS::PonAyuda(const Texto& texto) {
    txtTexto->PonToolTipText(texto);
    txtTexto->PonNombreAccesible(texto);
}

bool TboxSS::SelecConFoco() const {
    return m_SelecConFoco;
}

void TboxSS::PonSelecConFoco(bool valor) {
    m_SelecConFoco = valor;
    entorno_.PropertyChanged(u"SelecConFoco");
}

bool TboxSS::NavConEnter() const {
    return m_NavConEnter;
}

void TboxSS::PonNavConEnter(bool valor) {
    m_NavConEnter = valor;
    entorno_.PropertyChanged(u"NavConEnter");
}

void TboxSS::EnterFocus() {
    if (!m_Enabled) {
        entorno_.EnviarTab();
        return;
    }
    try {
        txtTexto->SetFocus();
    } catch (const ErrorEjecucion&) {
        // A field that can't take the focus leaves it with the control.
    }
}

void TboxSS::ExitFocus() {
    LostFocus();
}

void TboxSS::Entrar() {
    EnfocarConMouse();
}

void TboxSS::GotFocus() {
    ActualizarColores(true);
}

void TboxSS::LostFocus() {
    ActualizarColores(false);
}

// A container that binds the text may keep it as it is, and learns of what was typed.
bool TboxSS::PuedeEditarse() {
    return entorno_.CanPropertyChange(u"Text");
}

void TboxSS::TextoEditado() {
    entorno_.PropertyChanged(u"Text");
}

void TboxSS::TeclaAceptada(std::int16_t caracter) {
    if (caracter == TeclaEnter && m_NavConEnter)
        entorno_.EnviarTab();
}

} // namespace pincela
