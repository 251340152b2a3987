// Where controls come from: the registry, or a component file opened directly.
#pragma once

#include "anfitrion/com.h"

#include <memory>
#include <string>

namespace anfitrion {

/// Source of objects. Copies share the open file; the file is let go with the last copy, so a copy
/// has to outlive the objects made from it.
class Componente {
  public:
    /// Objects as the registry knows them.
    static Componente DeRegistro() { return {}; }
    /// Objects out of one component file, registered or not. Throws FalloCom when it can't be
    /// opened.
    static Componente DeFichero(const std::wstring& ruta);

    /// Class identifier of a ProgID ("Library.Class"); for a file, its type library is asked. Also
    /// takes the identifier itself as text ("{...}"). Throws FalloCom when unknown.
    CLSID Clase(const std::wstring& nombre) const;

    /// A new object; throws FalloCom with the status of the class factory.
    Puntero<IUnknown> Crear(REFCLSID clase) const;

    /// For a file: the answer of DllCanUnloadNow; always false for the registry.
    bool PuedeDescargarse() const;

  private:
    struct Soltar {
        void operator()(HMODULE modulo) const { FreeLibrary(modulo); }
    };

    FARPROC Entrada(const char* nombre) const;

    std::shared_ptr<std::remove_pointer_t<HMODULE>> modulo_;
    std::wstring ruta_;
};

} // namespace anfitrion
