// Mouse, keyboard, focus and hover polling.
#include "botonazo/botonazo.h"
#include "common/al_salir.h"
#include "efectos/efectos.h"
#include "efectos/letras.h"

#include <utility>

namespace pincela {

namespace {

constexpr std::int32_t SondeoEncima = 1; // milliseconds
constexpr std::int32_t SondeoFuera = 50;

} // namespace

// The hover state ends here without a change of colours: the next move enters it again.
void Botonazo::Click() {
    m_Sobre = false;
    entorno_.AccesibleCambiado();
    if (m_Enabled)
        eventos.Click();
}

void Botonazo::AccessKeyPress(std::int16_t) {
    if (m_Enabled)
        Click();
}

void Botonazo::MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    if (!m_Enabled || m_Cargando)
        return;
    ActualizarEstado(true);
    eventos.MouseDown(Button, Shift, X, Y);
}

void Botonazo::MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    if (!m_Enabled || m_Cargando)
        return;
    ActualizarEstado(false);
    if (m_Enabled)
        eventos.MouseUp(Button, Shift, X, Y);
}

void Botonazo::MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    if (!m_Enabled)
        return;
    if (!m_Sobre) {
        if (m_FocoConMouse) {
            superficie().SetFocus();
            // Whoever was told of the focus may have ended or disabled the button.
            if (!m_Enabled || terminado_)
                return;
        }
        m_Sobre = true;
        entorno_.AccesibleCambiado();
        // However the repaint ends, the way out of the hover state has to be watched.
        AlSalir sondear([this] {
            Timer->PonInterval(SondeoEncima);
            Arrancar(*Timer);
        });
        PintarLetra(m_ColorLetraSobre);
        PonColorDeFondo(m_ColorFondoSobre);
        // Under the mouse an image leaves room for the raised border, as when pressed.
        if (CambiaAspecto())
            PintarBoton(m_ImagSobre, m_ColorDegradeS, true);
    }
    eventos.MouseMove(Button, Shift, X, Y);
}

void Botonazo::SondearRaton() {
    Graficos& graficos = entorno_.graficos();
    if (EsVentanaPropia(graficos.WindowFromPoint(graficos.GetCursorPos())))
        return;
    DejarAspectoSobre();
    eventos.MouseSale();
}

// Out of the hover state, with the normal look.
void Botonazo::DejarAspectoSobre() {
    Timer->PonInterval(SondeoFuera);
    Timer->PonEnabled(false);
    m_Sobre = false;
    PintarLetra(m_ColorLetra);
    PonColorDeFondo(m_ColorFondo);
    m_Presionado = false;
    entorno_.AccesibleCambiado();
    if (CambiaAspecto())
        PintarBoton(m_ImagNormal, m_ColorDegradeN, false);
}

// A form that is being designed has no events, so nobody is told that the mouse left.
void Botonazo::OlvidarEntrada() {
    m_TeclaAbajo = false;
    const bool habiaAspecto = m_Sobre || m_Presionado;
    if (m_Presionado)
        ActualizarEstado(false);
    if (habiaAspecto)
        DejarAspectoSobre();
}

// Whether the look under the mouse differs from the normal one.
bool Botonazo::CambiaAspecto() const {
    const bool mismoRelleno = m_EstilosRell == TEstilosR::Solido
                                  ? m_ColorFondoSobre == m_ColorFondo
                                  : m_ColorDegradeS == m_ColorDegradeN;
    const bool mismaImagen = !m_ImagSobre || MismoObjeto(m_ImagSobre, m_ImagNormal);
    const bool mismoBorde = m_EfectoBoton == EfectosBoton::boton;
    return !mismoRelleno || !mismaImagen || !mismoBorde;
}

bool Botonazo::EsVentanaPropia(Manejador ventana) const {
    return ventana != 0 && ventana == superficie().hWnd();
}

void Botonazo::Arrancar(Temporizador& temporizador) {
    if (!terminado_)
        temporizador.PonEnabled(true);
}

void Botonazo::KeyDown(std::int16_t& codigo, std::int16_t shift) {
    m_TeclaAbajo = false;
    if (!m_Enabled)
        return;
    if (EsTeclaDePulsar(codigo)) {
        m_TeclaAbajo = true;
        ActualizarEstado(true);
    } else {
        eventos.PresTecla(codigo, shift);
    }
}

void Botonazo::KeyPress(std::int16_t& caracter) {
    eventos.TocoTecla(caracter);
}

void Botonazo::KeyUp(std::int16_t& codigo, std::int16_t shift) {
    const bool abajo = std::exchange(m_TeclaAbajo, false);
    if (!m_Enabled)
        return;
    if (CompletaPulsacion(lblTitulo->Caption(), codigo, abajo)) {
        ActualizarEstado(false);
        Click();
    } else {
        eventos.SoltoTecla(codigo, shift);
    }
}

void Botonazo::EnterFocus() {
    if (!m_Enabled || !m_FocoVisible)
        return;
    UbicarFoco();
    rectFoco->PonVisible(true);
}

void Botonazo::ExitFocus() {
    rectFoco->PonVisible(false);
    // The release of a key held down goes to whoever has the focus now.
    if (m_TeclaAbajo && m_Presionado)
        ActualizarEstado(false);
}

} // namespace pincela
