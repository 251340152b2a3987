// Mouse and keyboard.
#include "area/area.h"
#include "efectos/letras.h"

#include <utility>

namespace pincela {

// A click with the mouse takes a key held down back.
void Area::Click() {
    m_TeclaAbajo = false;
    if (m_Enabled)
        eventos.Click();
}

void Area::MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    if (m_Enabled && !m_Cargando)
        eventos.MouseDown(Button, Shift, X, Y);
}

void Area::MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    if (m_Enabled)
        eventos.MouseMove(Button, Shift, X, Y);
}

void Area::MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) {
    if (m_Enabled && !m_Cargando)
        eventos.MouseUp(Button, Shift, X, Y);
}

void Area::KeyDown(std::int16_t& codigo, std::int16_t shift) {
    m_TeclaAbajo = false;
    if (!m_Enabled)
        return;
    if (EsTeclaDePulsar(codigo))
        m_TeclaAbajo = true;
    else
        eventos.PresTecla(codigo, shift);
}

void Area::KeyPress(std::int16_t& caracter) {
    eventos.TocoTecla(caracter);
}

// The press counts once: it is over before whoever is told can see another release, and nothing
// that begins while they are told outlasts it.
void Area::KeyUp(std::int16_t& codigo, std::int16_t shift) {
    const bool abajo = std::exchange(m_TeclaAbajo, false);
    if (m_Enabled) {
        if (CompletaPulsacion(lblTitulo->Caption(), codigo, abajo))
            Click();
        else
            eventos.SoltoTecla(codigo, shift);
    }
    m_TeclaAbajo = false;
}

} // namespace pincela
