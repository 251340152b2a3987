// Property bags on the side of the component.
#pragma once

#include "common/guardado.h"
#include "componente/com.h"
#include "plataforma/bolsa.h"

#include <ocidl.h>
#include <windows.h>

#include <vector>

namespace pincela::componente {

/// The container's bag, held within one call.
class BolsaCom final : public BolsaPropiedades {
  public:
    /// With `todas` what equals its default is written too.
    BolsaCom(IPropertyBag* bolsa, IErrorLog* errores, bool todas = false)
        : bolsa_(bolsa), errores_(errores), todas_(todas) {}

    Variante ReadProperty(VistaTexto clave, const Variante& porDefecto) override;
    void WriteProperty(VistaTexto clave, const Variante& valor,
                       const Variante& porDefecto) override;

  private:
    Ptr<IPropertyBag> bolsa_;
    Ptr<IErrorLog> errores_;
    bool todas_;
};

/// A bag in memory: what streams and storages carry, and what a failed load is undone from.
class BolsaMemoria final : public BolsaPropiedades {
  public:
    BolsaMemoria() = default;
    /// Fonts and pictures are made anew from what was saved.
    explicit BolsaMemoria(const std::vector<PropiedadGuardada>& propiedades);

    Variante ReadProperty(VistaTexto clave, const Variante& porDefecto) override;
    void WriteProperty(VistaTexto clave, const Variante& valor,
                       const Variante& porDefecto) override;

    /// Ready to be written: fonts and pictures as bytes.
    std::vector<PropiedadGuardada> Guardar() const;

  private:
    std::vector<PropiedadGuardada> propiedades_;
};

} // namespace pincela::componente
