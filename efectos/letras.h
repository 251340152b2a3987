// Rules of captions that several controls share: lettering effects, access keys and the keys that
// press a control.
#pragma once

#include "common/color.h"
#include "common/enumeraciones.h"
#include "common/texto.h"
#include "plataforma/fuente.h"

#include <cstdint>

namespace pincela {

class Efectos;

/// True for the two effects whose copies carry the inverse of the caption's colour.
constexpr bool EsInversa(TLetra tipo) {
    return tipo == TLetra::InvesoL || tipo == TLetra::InvesoU;
}

/// Side of the first copy of a caption: -1 up and left (raised), 1 down and right (sunken), 0
/// under the caption. The second copy lies on the opposite side.
constexpr std::int32_t DireccionLetra(TLetra tipo) {
    switch (tipo) {
    case TLetra::Levantada:
    case TLetra::InvesoL:
        return -1;
    case TLetra::Undida:
    case TLetra::InvesoU:
        return 1;
    default:
        return 0;
    }
}

/// Colour of a shadow copy: the inverse of the caption's colour for the inverse effects, `directa`
/// for every other one.
Color ColorDeSombra(Efectos& efectos, TLetra tipo, Color letra, Color directa);

/// Whether a caption whose font is `propia` takes the container's `nueva`: it does as long as it
/// has the one the container had before.
bool SigueAlAmbiente(const Fuente& propia, const AtributosFuente& anterior, const Fuente& nueva);

/// The one character after the first "&" of a caption; empty when there is none. A doubled
/// ampersand is not special: its second one is the key. Raises Desbordamiento when the first "&"
/// lies beyond position 255.
Texto TeclaDeAcceso(VistaTexto titulo);

/// A caption as it is read: each "&" that marks a key is dropped, a doubled one is shown once.
Texto SinAmpersand(VistaTexto titulo);

inline constexpr std::int16_t TeclaEnter = 13;
inline constexpr std::int16_t TeclaEspacio = 32;

/// The two keys that press a control.
constexpr bool EsTeclaDePulsar(std::int16_t tecla) {
    return tecla == TeclaEnter || tecla == TeclaEspacio;
}

/// True when the release of `tecla` completes a press: one of the two keys went down before
/// (`teclaAbajo`) and now one of them, or the access key of the caption, comes up.
bool CompletaPulsacion(VistaTexto titulo, std::int16_t tecla, bool teclaAbajo);

} // namespace pincela
