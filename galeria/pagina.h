// A page of the gallery: a sheet with samples of the controls and a list of what they tell.
#pragma once

#include "anfitrion/formulario.h"
#include "galeria/diario.h"
#include "galeria/lamina.h"
#include "galeria/muestras.h"

#include <memory>
#include <optional>
#include <span>
#include <string>

namespace galeria {

class Pagina;

/// A page by its names: the one of the command line and the one on its tab.
struct FichaDePagina {
    const wchar_t* nombre;
    const wchar_t* titulo;
    std::unique_ptr<Pagina> (*abrir)(const std::optional<anfitrion::Componente>& componente);
};

/// Every page, in the order of the tabs.
extern const std::span<const FichaDePagina> Paginas;

class Pagina {
  public:
    /// Throws anfitrion::FalloCom when the component can't be had. A null component leaves the
    /// page without controls.
    Pagina(const Hoja& hoja, const std::optional<anfitrion::Componente>& componente);
    Pagina(const Pagina&) = delete;
    Pagina& operator=(const Pagina&) = delete;
    virtual ~Pagina() = default;

    anfitrion::Formulario& Forma() { return forma_; }
    /// Shows the page, with every control of it made; `actual` is the one whose tab is chosen.
    void Mostrar(const FichaDePagina& actual);
    /// Uses some of the controls, so that a picture shows the page at work.
    virtual void Ensayar() = 0;
    /// The page that the user asked for; null when the user closed this one.
    const FichaDePagina* Siguiente() const { return siguiente_; }

  protected:
    /// What the page has beside the samples of its sheet.
    virtual void PonerDemas() {}
    virtual void PintarDemas(HDC) const {}

    std::shared_ptr<anfitrion::ControlAlojado>
    PonerControl(const wchar_t* clase, const std::wstring& nombre, const RECT& lugar,
                 std::span<const Par> comunes, std::span<const Par> propios);
    const Lamina& Hojas() const { return lamina_; }

  private:
    static anfitrion::OpcionesFormulario Opciones();
    void Poner(const Grupo& grupo, int n);
    void PonerLimpiar();
    void PonerPestanas(const FichaDePagina& actual);

    const Hoja& hoja_;
    std::optional<anfitrion::Componente> componente_;
    const FichaDePagina* siguiente_ = nullptr;
    Lamina lamina_;
    anfitrion::Formulario forma_;
    Diario diario_;
};

} // namespace galeria
