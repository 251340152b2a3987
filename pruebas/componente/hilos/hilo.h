// A thread with an apartment of its own. The test framework belongs to the main thread: the others
// write down what they find wrong, and it is checked when they are gone.
#pragma once

#include "anfitrion/com.h"

#include <windows.h>

#include <ole2.h>

#include <functional>
#include <string>
#include <vector>

namespace hilos {

using Faltas = std::vector<std::string>;

/// Runs `trabajo` in an apartment; begins when `Empezar` is called and is waited for at the end.
class Hilo {
  public:
    explicit Hilo(std::function<void(Faltas&)> trabajo) : trabajo_(std::move(trabajo)) {
        hilo_ = CreateThread(nullptr, 0, &Correr, this, CREATE_SUSPENDED, nullptr);
    }
    Hilo(const Hilo&) = delete;
    Hilo& operator=(const Hilo&) = delete;
    ~Hilo() {
        Esperar(INFINITE);
        CloseHandle(hilo_);
    }

    void Empezar() {
        if (!empezado_)
            ResumeThread(hilo_);
        empezado_ = true;
    }
    /// False when it is still at work after that many milliseconds. Messages of the waiting thread
    /// are handled meanwhile.
    bool Esperar(DWORD milisegundos) {
        Empezar();
        for (;;) {
            const DWORD visto =
                MsgWaitForMultipleObjects(1, &hilo_, FALSE, milisegundos, QS_ALLINPUT);
            if (visto != WAIT_OBJECT_0 + 1)
                return visto == WAIT_OBJECT_0;
            for (MSG mensaje; PeekMessageW(&mensaje, nullptr, 0, 0, PM_REMOVE);)
                DispatchMessageW(&mensaje);
        }
    }
    /// What it found wrong; once it is gone.
    const Faltas& LasFaltas() const { return faltas_; }

  private:
    static DWORD WINAPI Correr(void* yo) {
        static_cast<Hilo*>(yo)->Vivir();
        return 0;
    }
    void Vivir() {
        if (FAILED(OleInitialize(nullptr)))
            return faltas_.push_back("no apartment");
        try {
            trabajo_(faltas_);
        } catch (const std::exception& fallo) {
            faltas_.push_back(fallo.what());
        }
        OleUninitialize();
    }

    std::function<void(Faltas&)> trabajo_;
    Faltas faltas_;
    HANDLE hilo_;
    bool empezado_ = false;
};

} // namespace hilos
