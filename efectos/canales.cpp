#include "efectos/canales.h"

#include "common/conversion.h"

namespace pincela {

std::int16_t PatronDeCanal(std::uint8_t canal) {
    const double ampliado = canal / 255.0 * 65280.0;
    return TextoAEntero16(u"&H" + Hexadecimal(AEntero32(ampliado)));
}

} // namespace pincela
