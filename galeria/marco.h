// The gallery's window: one tab for each page.
#pragma once

#include "galeria/diseno.h"
#include "galeria/pagina.h"

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

  private:
    anfitrion::Formulario forma_;
    HWND pestanas_;
    std::unique_ptr<void, decltype(&DeleteObject)> fuente_;
    Diseno diseno_;
    std::vector<std::unique_ptr<Pagina>> paginas_;
    std::size_t visible_ = 0;
};

} // namespace galeria
