#include "plataforma/windows/temporizador_windows.h"

#include <algorithm>
#include <utility>

namespace pincela::windows {

namespace {

// Nothing is seen between two frames of the screen, and the platform's clock is about as coarse: a
// finer timer would only wake the process more often.
constexpr std::int32_t IntervaloMenor = 16; // milliseconds

struct EnMarcha {
    UINT_PTR numero;
    TemporizadorWindows* temporizador;
};

// The platform calls with a number; a timer that is gone is simply not found here.
std::vector<EnMarcha>& LosEnMarcha() {
    static std::vector<EnMarcha> enMarcha;
    return enMarcha;
}

} // namespace

void TemporizadorWindows::PonInterval(std::int32_t milisegundos) {
    milisegundos = std::max(0, milisegundos);
    if (milisegundos == intervalo_)
        return;
    intervalo_ = milisegundos;
    Parar();
    Arrancar();
}

void TemporizadorWindows::PonEnabled(bool valor) {
    if (valor == habilitado_)
        return;
    habilitado_ = valor;
    if (valor)
        Arrancar();
    else
        Parar();
}

void TemporizadorWindows::Arrancar() {
    if (!habilitado_ || intervalo_ <= 0)
        return;
    auto& enMarcha = LosEnMarcha();
    enMarcha.reserve(enMarcha.size() + 1);
    numero_ = ::SetTimer(nullptr, 0, static_cast<UINT>(std::max(intervalo_, IntervaloMenor)),
                         &TemporizadorWindows::Tic);
    if (numero_)
        enMarcha.push_back({numero_, this});
}

void TemporizadorWindows::Parar() {
    const UINT_PTR numero = std::exchange(numero_, 0);
    if (!numero)
        return;
    ::KillTimer(nullptr, numero);
    std::erase_if(LosEnMarcha(), [this](const EnMarcha& e) { return e.temporizador == this; });
}

void CALLBACK TemporizadorWindows::Tic(HWND, UINT, UINT_PTR numero, DWORD) noexcept {
    auto& enMarcha = LosEnMarcha();
    const auto lugar = std::find_if(enMarcha.begin(), enMarcha.end(),
                                    [numero](const EnMarcha& e) { return e.numero == numero; });
    if (lugar == enMarcha.end())
        return;
    TemporizadorWindows& temporizador = *lugar->temporizador;
    SitioControl& sitio = temporizador.nucleo_.sitio;
    Sosten sosten(sitio);
    // A copy: the timer may die in its own tick.
    Proteger(sitio, [&temporizador] {
        if (const auto accion = temporizador.accion_)
            accion();
    });
}

} // namespace pincela::windows
