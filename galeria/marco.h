// The gallery's window: one tab for each page.
#pragma once

#include "galeria/pagina.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace galeria {

class Marco {
  public:
    Marco();

    HWND Ventana() const { return forma_.Ventana(); }
    void Agregar(const wchar_t* titulo, std::unique_ptr<Pagina> pagina);
    void Mostrar(std::size_t cual);
    void Ejecutar() { forma_.Ejecutar(); }
    Pagina& Visible() { return *paginas_[visible_]; }

    /// The user wants the form of a page in the designer.
    std::function<void(const std::wstring&)> alDisenar;

  private:
    bool Recibir(UINT mensaje, LPARAM l);

    anfitrion::Formulario forma_;
    HWND pestanas_;
    HWND disenar_; ///< the button at the right end of the tabs
    std::unique_ptr<void, decltype(&DeleteObject)> fuente_;
    std::vector<std::unique_ptr<Pagina>> paginas_;
    std::size_t visible_ = 0;
};

} // namespace galeria
