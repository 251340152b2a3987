// The bytes of a saved control: a header with version, length and check sum, then its size and its
// keys with their values. Reading trusts nothing: whatever does not fit exactly is refused.
#pragma once

#include "common/objeto.h"
#include "common/texto.h"
#include "common/variante.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace pincela {

using Bytes = std::vector<std::uint8_t>;

/// A font or picture as it was saved. `clase` tells which.
class ObjetoGuardado final : public Objeto {
  public:
    enum class Clase : std::uint8_t { Fuente = 'F', Imagen = 'I' };

    ObjetoGuardado(Clase clase, Bytes bytes) : clase_(clase), bytes_(std::move(bytes)) {}
    Clase Cual() const { return clase_; }
    const Bytes& Contenido() const { return bytes_; }

  private:
    Clase clase_;
    Bytes bytes_;
};

struct PropiedadGuardada {
    Texto clave;
    Variante valor; // references are ObjetoGuardado or empty
};

struct ControlGuardado {
    std::int32_t ancho = 0, alto = 0; // hundredths of a millimetre
    std::vector<PropiedadGuardada> propiedades;
};

enum class Lectura { Bien, NoEsNuestro, VersionMasNueva, Danado };

inline constexpr std::size_t LargoDeCabecera = 16;

/// Length of what follows a header of LargoDeCabecera bytes.
Lectura LeerCabecera(std::span<const std::uint8_t> cabecera, std::uint32_t& largo);

/// Header and content together. On failure `control` is left empty.
Lectura LeerGuardado(std::span<const std::uint8_t> bytes, ControlGuardado& control);

/// A reference that is not an ObjetoGuardado raises TiposNoCoinciden.
Bytes EscribirGuardado(const ControlGuardado& control);

} // namespace pincela
