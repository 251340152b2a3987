// A property frame: the pages of one or several controls under tabs, with OK, Cancel and Apply.
#pragma once

#include "anfitrion/com.h"
#include "anfitrion/componente.h"

#include <ocidl.h>
#include <olectl.h>

#include <memory>
#include <string>
#include <vector>

namespace anfitrion {

class SitioPagina;

/// Pages that an object names through ISpecifyPropertyPages, in its order; empty when it names
/// none.
std::vector<CLSID> PaginasDe(IUnknown* objeto);

/// A window with the pages. The objects are held while it lives.
class MarcoPropiedades {
  public:
    /// Pages that can't be created or refuse the objects are left out. Throws FalloCom when none is
    /// left.
    MarcoPropiedades(HWND padre, const std::wstring& titulo, const Componente& componente,
                     const std::vector<CLSID>& clases,
                     const std::vector<Puntero<IUnknown>>& objetos);
    MarcoPropiedades(const MarcoPropiedades&) = delete;
    MarcoPropiedades& operator=(const MarcoPropiedades&) = delete;
    ~MarcoPropiedades();

    HWND Ventana() const { return ventana_; }
    std::size_t Cuantas() const { return paginas_.size(); }
    std::size_t Actual() const { return actual_; }
    /// Titles as the pages give them.
    std::wstring Titulo(std::size_t pagina) const { return paginas_[pagina].titulo; }
    void Mostrar(std::size_t pagina);

    /// Applies every page with changes; false when one of them failed, which is then shown.
    bool Aplicar();
    void Aceptar();
    void Cancelar() { cerrado_ = true; }
    bool Cerrado() const { return cerrado_; }
    /// Whether the Apply button can be pressed.
    bool HayCambios() const;

    /// Runs modally, the parent disabled.
    void Ejecutar();
    /// Keys: the page first, then TAB between page and buttons, CTRL+TAB between pages.
    bool Pretraducir(MSG& mensaje);

    /// For the page sites.
    void EstadoCambiado();

  private:
    struct Pagina {
        Puntero<IPropertyPage> pagina;
        Puntero<SitioPagina> sitio;
        std::wstring titulo;
        SIZE medida{};
        bool activa = false;
    };

    static LRESULT CALLBACK Procesar(HWND ventana, UINT mensaje, WPARAM w, LPARAM l);
    LRESULT Tratar(UINT mensaje, WPARAM w, LPARAM l);
    void CargarPaginas(const Componente& componente, const std::vector<CLSID>& clases,
                       const std::vector<Puntero<IUnknown>>& objetos);
    void CrearVentana(HWND padre, const std::wstring& titulo);
    HWND CrearBoton(const wchar_t* texto, int id, int x, int y, bool normal);

    std::vector<Pagina> paginas_;
    std::size_t actual_ = 0;
    HWND padre_ = nullptr;
    HWND ventana_ = nullptr;
    HWND pestanas_ = nullptr;
    HWND aplicar_ = nullptr;
    RECT interior_{}; ///< where the pages lie, in client coordinates
    bool cerrado_ = false;
};

} // namespace anfitrion
