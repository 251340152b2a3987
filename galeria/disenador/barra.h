// Flat buttons drawn by the designer itself: its commands, and the controls to be placed.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace galeria {

class Barra {
  public:
    /// Windows of `padre`, which hands their messages to Recibir.
    Barra(HWND padre, HFONT fuente) : padre_(padre), fuente_(fuente) {}
    Barra(const Barra&) = delete;
    Barra& operator=(const Barra&) = delete;

    /// One more button at the right of the last one, `ancho` pixels at 96 dots per inch; `imagen`
    /// may be null and is owned from now on. With a double click `alRepetir`, where given, is
    /// called.
    HWND Agregar(const std::wstring& texto, int ancho, HBITMAP imagen,
                 std::function<void()> alPulsar, std::function<void()> alRepetir = {});
    /// A wider gap before the next one.
    void Separar();
    /// Upper left corner and height, in pixels.
    void Colocar(int x, int y, int alto) const;
    /// Messages of the parent that are for the buttons; true: done.
    bool Recibir(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado);

    const std::vector<HWND> Ventanas() const;
    void Rotular(HWND boton, const std::wstring& texto) const;
    /// Shown as pressed in.
    void Marcar(HWND boton, bool marcado);

  private:
    struct BorrarMapa {
        void operator()(HBITMAP mapa) const { DeleteObject(mapa); }
    };
    struct Boton {
        HWND ventana;
        int ancho, antes; ///< width and gap before it, at 96 dots per inch
        std::unique_ptr<std::remove_pointer_t<HBITMAP>, BorrarMapa> imagen;
        std::function<void()> alPulsar, alRepetir;
        bool marcado = false;
    };

    Boton* De(HWND ventana);
    void Pintar(const DRAWITEMSTRUCT& pedido, const Boton& boton) const;

    HWND padre_;
    HFONT fuente_;
    std::vector<Boton> botones_;
    int separacion_ = 0;
};

} // namespace galeria
