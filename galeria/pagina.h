// One page of the gallery: a form inside the gallery's window, with a sheet of samples of the controls
// and a list of what they tell.
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

class Pagina {
  public:
    /// A null component leaves the page without controls.
    Pagina(const Hoja& hoja, const std::optional<anfitrion::Componente>& componente, HWND padre);
    Pagina(const Pagina&) = delete;
    Pagina& operator=(const Pagina&) = delete;
    virtual ~Pagina() = default;

    anfitrion::Formulario& Forma() { return forma_; }
    const std::optional<anfitrion::Componente>& ElComponente() const { return componente_; }
    /// Makes every control of the page. Throws anfitrion::FalloCom when the component can't be had.
    void Armar();
    /// Everything stands and has been painted: from now on events are written down.
    void Abrir() { diario_.abierto = true; }
    /// Does something with the controls, so that a picture shows the page at work.
    virtual void Ensayar() = 0;

  protected:
    using Control = std::shared_ptr<anfitrion::ControlAlojado>;

    /// What the page has beside the samples of its sheet.
    virtual void PonerDemas() {}
    virtual void PintarDemas(HDC) const {}

    /// `lugar` at 96 dpi, on the form or on the control `dentro`. Later pairs win.
    Control PonerControl(const wchar_t* clase, const std::wstring& nombre, const RECT& lugar,
                         std::span<const Par> comunes, std::span<const Par> propios,
                         anfitrion::ControlAlojado* dentro = nullptr);
    const Lamina& Hojas() const { return lamina_; }

  private:
    void Poner(const Grupo& grupo, int n);
    void PonerLimpiar();

    const Hoja& hoja_;
    std::optional<anfitrion::Componente> componente_;
    Lamina lamina_;
    anfitrion::Formulario forma_;
    Diario diario_;
};

} // namespace galeria
