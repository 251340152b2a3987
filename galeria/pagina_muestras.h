// A page with a sheet of samples of the controls and a list of what they tell.
#pragma once

#include "anfitrion/formulario_texto.h"
#include "galeria/diario.h"
#include "galeria/lamina.h"
#include "galeria/muestras.h"
#include "galeria/pagina.h"

#include <memory>
#include <optional>
#include <span>
#include <string>

namespace galeria {

class PaginaMuestras : public Pagina {
  public:
    /// A null component leaves the page without controls.
    PaginaMuestras(const Hoja& hoja, const std::optional<anfitrion::Componente>& componente,
                   HWND padre);

    anfitrion::Formulario& Forma() override { return forma_; }
    void Armar() override;
    /// Everything stands and has been painted: from now on events are written down.
    void Abrir() override { diario_.abierto = true; }
    std::wstring ParaDisenar() const override { return anfitrion::EscribirFormulario(forma_); }

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
