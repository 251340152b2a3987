// A property bag in memory, with a log of what was read and written.
#pragma once

#include "anfitrion/variante.h"

#include <ocidl.h>

#include <string>
#include <utility>
#include <vector>

namespace anfitrion {

/// How a bag misbehaves, for those who want to see how a control takes it.
enum class Hostilidad {
    ninguna,
    tipoEquivocado, ///< every present value is given as text that converts to nothing
    falla,          ///< every read and write fails with E_FAIL
    sinConversion,  ///< values are given with the type they were stored with, whatever was asked
    ausenteVacio,   ///< a missing key answers S_OK with an empty value
};

/// Keys are compared without case, as form files do; the order of first writing is kept.
class BolsaMemoria : public ObjetoCom<IPropertyBag> {
  public:
    struct Operacion {
        bool escritura;
        std::wstring clave;
        VARTYPE tipo; ///< type asked for when reading, type given when writing
        HRESULT estado;
    };
    using Pares = std::vector<std::pair<std::wstring, Variante>>;

    BolsaMemoria() = default;

    void Poner(const std::wstring& clave, const Variante& valor);
    /// Stored value or null.
    const Variante* Buscar(std::wstring_view clave) const;
    const Pares& Valores() const { return valores_; }

    const std::vector<Operacion>& Operaciones() const { return operaciones_; }
    /// Keys in the order in which they were read, or written.
    std::vector<std::wstring> Claves(bool escritura) const;
    void OlvidarOperaciones() { operaciones_.clear(); }

    Hostilidad hostilidad = Hostilidad::ninguna;

    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR clave, VARIANT* valor, IErrorLog* errores) override;
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR clave, VARIANT* valor) override;

  private:
    HRESULT Entregar(LPCOLESTR clave, VARIANT& valor) const;

    Pares valores_;
    std::vector<Operacion> operaciones_;
};

} // namespace anfitrion
