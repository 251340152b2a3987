// Timer of the user-interface thread.
#pragma once

#include "plataforma/windows/nucleo.h"

namespace pincela::windows {

class TemporizadorWindows final : public Temporizador {
  public:
    explicit TemporizadorWindows(Nucleo& nucleo) : nucleo_(nucleo) {}
    ~TemporizadorWindows() override { Parar(); }
    TemporizadorWindows(const TemporizadorWindows&) = delete;
    TemporizadorWindows& operator=(const TemporizadorWindows&) = delete;

    std::int32_t Interval() const override { return intervalo_; }
    void PonInterval(std::int32_t milisegundos) override;
    bool Enabled() const override { return habilitado_; }
    void PonEnabled(bool valor) override;
    void AlTic(std::function<void()> accion) override { accion_ = std::move(accion); }

    /// The mouse moves over this window of the control: the timers that watch it make haste, and
    /// the window is to be told when the mouse leaves.
    static void RatonEncima(const Nucleo& nucleo, HWND ventana);
    /// The mouse left a window of the control: the timers that watch it tick at once.
    static void RatonSale(const Nucleo& nucleo);

  private:
    static void CALLBACK Tic(HWND, UINT, UINT_PTR numero, DWORD) noexcept;
    void Arrancar();
    void Parar();
    bool Vigila() const;
    bool Descansa() const;
    void Cambiar(int tics);
    static std::vector<TemporizadorWindows*> Vigias(const Nucleo& nucleo);

    Nucleo& nucleo_;
    std::int32_t intervalo_ = 0;
    bool habilitado_ = true;
    UINT_PTR numero_ = 0;
    int tics_ = 0; // since the mouse last moved; counted as far as it matters
    std::function<void()> accion_;
};

} // namespace pincela::windows
