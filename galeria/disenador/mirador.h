// The window through which the designer's form is seen: it scrolls, and sizes the form by its
// edges.
#pragma once

#include "galeria/disenador/mesa.h"

namespace galeria {

class Mirador {
  public:
    explicit Mirador(HWND padre);
    Mirador(const Mirador&) = delete;
    Mirador& operator=(const Mirador&) = delete;
    ~Mirador();

    HWND Ventana() const { return ventana_; }
    /// The form has to be a child of the window.
    void Mostrar(Mesa& mesa);
    void Colocar(const RECT& lugar);
    /// The form has another size.
    void Ajustar();

  private:
    static LRESULT CALLBACK Procesar(HWND ventana, UINT mensaje, WPARAM w, LPARAM l);
    bool Tratar(UINT mensaje, WPARAM w, LPARAM l);
    void Desplazar(int barra, int posicion);
    void Rodar(int barra, WPARAM w);
    diseno::Caja CajaDeLaForma() const;
    diseno::Agarre AgarreEn(diseno::Punto punto) const;
    void Pintar(HDC hdc) const;
    void SoltarBoton();

    HWND ventana_;
    Mesa* mesa_ = nullptr;
    std::optional<diseno::Gesto> gesto_;
    int x_ = 0, y_ = 0; ///< what is scrolled away, pixels
};

} // namespace galeria
