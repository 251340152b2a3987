#include "plataforma/windows/temporizador_windows.h"

#include "plataforma/windows/cerrojo.h"

#include <algorithm>
#include <utility>

namespace pincela::windows {

namespace {

// A timer finer than a frame of the screen is a watch on the mouse, and each tick wakes the
// process. Once the mouse rests it looks at once when the mouse leaves, and only now and then for
// what comes between the mouse and the control without a move.
constexpr std::int32_t Cuadro = 16;  // milliseconds
constexpr std::int32_t Reposo = 100; // milliseconds
constexpr int TicsHastaReposo = 10;

struct EnMarcha {
    DWORD hilo; // numbers of different threads may be equal
    UINT_PTR numero;
    TemporizadorWindows* temporizador;
};

// The platform calls with a number; a timer that is gone is simply not found here. Only the list is
// shared: a timer itself is touched in its own apartment alone.
Cerrojo cerrojo;
std::vector<EnMarcha> losEnMarcha;

TemporizadorWindows* ElDeNumero(UINT_PTR numero) {
    const Cerrojo::Guarda guarda(cerrojo);
    for (const EnMarcha& una : losEnMarcha)
        if (una.numero == numero && una.hilo == ::GetCurrentThreadId())
            return una.temporizador;
    return nullptr;
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
    const bool marcha = numero_ != 0 || intervalo_ <= 0;
    if (valor == habilitado_ && (marcha || !valor)) // the platform may have refused it before
        return;
    habilitado_ = valor;
    tics_ = 0;
    if (valor)
        Arrancar();
    else
        Parar();
}

void TemporizadorWindows::Arrancar() {
    if (!habilitado_ || intervalo_ <= 0)
        return;
    const Cerrojo::Guarda guarda(cerrojo);
    losEnMarcha.reserve(losEnMarcha.size() + 1);
    const std::int32_t cadencia = std::max(intervalo_, Descansa() ? Reposo : Cuadro);
    numero_ = ::SetTimer(nullptr, 0, static_cast<UINT>(cadencia), &TemporizadorWindows::Tic);
    if (numero_)
        losEnMarcha.push_back({::GetCurrentThreadId(), numero_, this});
}

void TemporizadorWindows::Parar() {
    const UINT_PTR numero = std::exchange(numero_, 0);
    if (!numero)
        return;
    ::KillTimer(nullptr, numero);
    const Cerrojo::Guarda guarda(cerrojo);
    std::erase_if(losEnMarcha, [this](const EnMarcha& e) { return e.temporizador == this; });
}

bool TemporizadorWindows::Vigila() const {
    return numero_ && intervalo_ < Cuadro;
}

bool TemporizadorWindows::Descansa() const {
    return intervalo_ < Cuadro && tics_ >= TicsHastaReposo;
}

void TemporizadorWindows::Cambiar(int tics) {
    const bool descansaba = Descansa();
    tics_ = tics;
    if (Descansa() != descansaba) {
        Parar();
        Arrancar();
    }
}

std::vector<TemporizadorWindows*> TemporizadorWindows::Vigias(const Nucleo& nucleo) {
    std::vector<TemporizadorWindows*> vigias;
    const Cerrojo::Guarda guarda(cerrojo);
    for (const EnMarcha& una : losEnMarcha)
        if (&una.temporizador->nucleo_ == &nucleo && una.temporizador->Vigila())
            vigias.push_back(una.temporizador);
    return vigias;
}

void TemporizadorWindows::RatonEncima(const Nucleo& nucleo, HWND ventana) {
    TRACKMOUSEEVENT pedido{sizeof pedido, TME_LEAVE, ventana, 0};
    ::TrackMouseEvent(&pedido);
    for (TemporizadorWindows* vigia : Vigias(nucleo))
        vigia->Cambiar(0);
}

void TemporizadorWindows::RatonSale(const Nucleo& nucleo) {
    std::vector<UINT_PTR> numeros;
    for (const TemporizadorWindows* vigia : Vigias(nucleo))
        numeros.push_back(vigia->numero_);
    for (const UINT_PTR numero : numeros)
        Tic(nullptr, WM_TIMER, numero, 0);
}

void CALLBACK TemporizadorWindows::Tic(HWND, UINT, UINT_PTR numero, DWORD) noexcept {
    TemporizadorWindows* const suyo = ElDeNumero(numero);
    if (!suyo)
        return;
    TemporizadorWindows& temporizador = *suyo;
    SitioControl& sitio = temporizador.nucleo_.sitio;
    Sosten sosten(sitio);
    Proteger(sitio, [&temporizador] {
        if (temporizador.tics_ < TicsHastaReposo)
            temporizador.Cambiar(temporizador.tics_ + 1);
        // A copy: the timer may die in its own tick.
        if (const auto accion = temporizador.accion_)
            accion();
    });
}

} // namespace pincela::windows
