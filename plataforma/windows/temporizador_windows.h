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

  private:
    static void CALLBACK Tic(HWND, UINT, UINT_PTR numero, DWORD) noexcept;
    void Arrancar();
    void Parar();

    Nucleo& nucleo_;
    std::int32_t intervalo_ = 0;
    bool habilitado_ = true;
    UINT_PTR numero_ = 0;
    std::function<void()> accion_;
};

} // namespace pincela::windows
