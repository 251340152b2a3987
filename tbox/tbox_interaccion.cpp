// Mouse, focus and hover polling.
#include "tbox/tbox.h"

namespace pincela {

namespace {

constexpr std::int32_t IntervaloDeSondeo = 1; // milliseconds

} // namespace

// The hover state ends here without a change of colours: the next move enters it again.
void Tbox::Click() {
    m_EstaSobre = false;
    CajaBase::Click();
}

void Tbox::AccessKeyPress(std::int16_t /*caracter*/) {
    if (m_Enabled)
        txtTexto->SetFocus();
}

void Tbox::Entrar() {
    if (m_EstaSobre)
        return;
    EnfocarConMouse();
    // Whoever was told of the focus may have ended or disabled the control.
    if (!m_Enabled || terminado_)
        return;
    m_EstaSobre = true;
    ActualizarColores(true);
    if (!txtTexto->EsActivo())
        Sondear();
}

void Tbox::Sondear() {
    if (terminado_)
        return;
    Timer->PonInterval(IntervaloDeSondeo);
    Timer->PonEnabled(true);
}

void Tbox::SondearRaton() {
    // The colours stay while the field has the focus; losing it starts the poll again.
    if (txtTexto->EsActivo()) {
        Timer->PonEnabled(false);
        return;
    }
    if (CursorEncima())
        return;
    Timer->PonEnabled(false);
    m_EstaSobre = false;
    ActualizarColores(false);
    eventos.MouseSale();
}

bool Tbox::CursorEncima() {
    Graficos& graficos = entorno_.graficos();
    const Manejador ventana = graficos.WindowFromPoint(graficos.GetCursorPos());
    return ventana != 0 && (ventana == superficie().hWnd() || ventana == txtTexto->hWnd());
}

// A form that is being designed has no events, so nobody is told that the mouse left.
void Tbox::OlvidarEntrada() {
    Timer->PonEnabled(false);
    m_EstaSobre = false;
    if (!txtTexto->EsActivo())
        ActualizarColores(false);
}

void Tbox::GotFocus() {
    ActualizarColores(true);
}

void Tbox::LostFocus() {
    const bool encima = CursorEncima();
    if (!encima)
        ActualizarColores(false);
    // With the mouse still over it the poll restores the colours; one that left meanwhile is told.
    if (encima || m_EstaSobre)
        Sondear();
}

} // namespace pincela
