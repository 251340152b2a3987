// Taking back a registration that could not be completed.
#pragma once

#include "componente/registro/claves.h"

#include <string>
#include <vector>

namespace pincela::componente {

/// Undoes what one registration wrote, last first, unless it is told that all went well.
class Deshacer {
  public:
    explicit Deshacer(HKEY raiz) : raiz_(raiz) {}
    Deshacer(const Deshacer&) = delete;
    Deshacer& operator=(const Deshacer&) = delete;
    ~Deshacer();

    /// Creates the key part by part, so that each new part is known and can be taken away again.
    LSTATUS AbrirPorPartes(const std::wstring& ruta, ClaveAbierta& clave);
    /// Assigns a text, remembering what was there, of whatever type and length.
    LSTATUS Poner(HKEY clave, const std::wstring& ruta, const std::wstring& nombre,
                  const std::wstring& valor);
    void Bien() { bien_ = true; }

  private:
    struct Paso {
        std::wstring ruta{}, nombre{};
        bool claveNueva = false, habia = false;
        DWORD tipo = REG_NONE;
        std::vector<BYTE> antes{};
    };
    static LSTATUS Recordar(HKEY clave, Paso& paso);

    HKEY raiz_;
    std::vector<Paso> pasos_;
    bool bien_ = false;
};

} // namespace pincela::componente
