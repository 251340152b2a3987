// What the edit field, the mouse and the host tell every text box.
#include "tbox/caja_base.h"

#include "common/errores.h"
#include "tbox/filtro_teclas.h"

namespace pincela {

CajaBase::CajaBase(Entorno& entorno) : entorno_(entorno) {}

CajaBase::~CajaBase() = default;

void CajaBase::CrearCampo(bool multilinea) {
    multilinea_ = multilinea;
    txtTexto = entorno_.CrearCajaTexto(multilinea);
    txtTexto->PonOyente(&oido_);
}

// The canvas takes a back colour when it is cleared.
void CajaBase::PintarFondo(Color color) {
    superficie().PonBackColor(color);
    superficie().Cls();
}

void CajaBase::AjustarSiNoCarga() {
    if (!m_Cargando)
        AjustarTexto();
}

const Fuente& CajaBase::FuenteUsable(const Fuente& fuente) {
    if (!fuente)
        Lanzar(NumeroError::ValorDePropiedad);
    return fuente;
}

void CajaBase::Resize() {
    if (m_Cargando)
        return;
    AjustarTexto();
    eventos.Resize();
}

void CajaBase::Paint() {
    eventos.Paint();
}

void CajaBase::Terminate() {
    terminado_ = true;
}

void CajaBase::Click() {
    if (m_Enabled)
        eventos.Click();
}

void CajaBase::MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    if (m_Enabled && !m_Cargando)
        eventos.MouseDown(Button, Shift, X, Y);
}

void CajaBase::MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    if (m_Enabled)
        Entrar();
    // Whoever was told of the focus may have ended or disabled the control.
    if (m_Enabled && !terminado_)
        eventos.MouseMove(Button, Shift, X, Y);
}

void CajaBase::AmbientFontChanged(const AtributosFuente& anterior, const Fuente& nueva) {
    const Fuente propia = txtTexto->Font();
    if (!nueva || (propia && propia->Atributos() != anterior))
        return;
    txtTexto->PonFont(nueva);
    AjustarTexto();
}

void CajaBase::EnfocarConMouse() {
    if (m_FocoConMouse && !txtTexto->EsActivo())
        txtTexto->SetFocus();
}

void CajaBase::Oido::KeyDown(std::int16_t& codigo, std::int16_t shift) {
    caja_.eventos.PresTecla(codigo, shift);
    caja_.entorno_.DoEvents();
}

void CajaBase::Oido::KeyPress(std::int16_t& caracter) {
    const TText tipo = caja_.m_TipoTexto;
    if (tipo != TText::TextNorm) {
        // A text can be long, and only the decimal comma asks for it.
        const bool mira = tipo == TText::NumericoDes;
        FiltrarTecla(caracter, tipo, mira ? caja_.txtTexto->Text() : Texto());
    }
    if (caracter == 0)
        return;
    caja_.TeclaAceptada(caracter);
    caja_.eventos.TocoTecla(caracter);
    caja_.entorno_.DoEvents();
}

void CajaBase::Oido::KeyUp(std::int16_t& codigo, std::int16_t shift) {
    caja_.eventos.SoltoTecla(codigo, shift);
    caja_.entorno_.DoEvents();
}

void CajaBase::Oido::Change() {
    if (!caja_.asignandoTexto_)
        caja_.TextoEditado();
    caja_.eventos.Change();
    // While a container restores its controls nothing of it is fit to be called.
    if (!caja_.m_Cargando)
        caja_.entorno_.DoEvents();
}

} // namespace pincela
