// Upper and lower case, one character for one character.
#include "common/texto.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace pincela {
namespace {

/// Runs of letters that change case by one rule.
enum class Regla : std::uint8_t {
    Desplazada,  // the capital lies `distancia` below its small letter
    MayusculaPar // capital and small letter alternate, capitals on the parity of `primera`
};

/// `primera` is the first capital, `ultima` the last capital (Desplazada) or letter (alternating).
struct Tramo {
    char16_t primera, ultima;
    Regla regla;
    std::int16_t distancia;
};

constexpr auto D = Regla::Desplazada;
constexpr auto P = Regla::MayusculaPar;

// Left out on purpose: letters whose other case is longer or belongs to a particular language
// (sharp s, dotted capital and dotless small i, long s) and the micro sign.
constexpr Tramo kTramos[] = {
    {0x0041, 0x005A, D, 32}, {0x00C0, 0x00D6, D, 32},   {0x00D8, 0x00DE, D, 32},
    {0x0100, 0x012F, P, 1},  {0x0132, 0x0137, P, 1},    {0x0139, 0x0148, P, 1},
    {0x014A, 0x0177, P, 1},  {0x0178, 0x0178, D, -121}, {0x0179, 0x017E, P, 1},
    {0x01CD, 0x01DC, P, 1},  {0x01DE, 0x01EF, P, 1},    {0x01F8, 0x021F, P, 1},
    {0x0222, 0x0233, P, 1},  {0x0386, 0x0386, D, 38},   {0x0388, 0x038A, D, 37},
    {0x038C, 0x038C, D, 64}, {0x038E, 0x038F, D, 63},   {0x0391, 0x03A1, D, 32},
    {0x03A3, 0x03AB, D, 32}, {0x0400, 0x040F, D, 80},   {0x0410, 0x042F, D, 32},
    {0x0460, 0x0481, P, 1},  {0x048A, 0x04BF, P, 1},    {0x04C0, 0x04C0, D, 15},
    {0x04C1, 0x04CE, P, 1},  {0x04D0, 0x052F, P, 1},    {0x1E00, 0x1E95, P, 1},
    {0x1EA0, 0x1EFF, P, 1},
};

constexpr char16_t kSigmaFinal = 0x03C2;
constexpr char16_t kSigmaMayuscula = 0x03A3;

bool EnTramo(char16_t letra, int primera, int ultima) {
    return letra >= primera && letra <= ultima;
}

} // namespace

char16_t Mayuscula(char16_t letra) {
    if (letra == kSigmaFinal)
        return kSigmaMayuscula;
    for (const Tramo& t : kTramos) {
        if (t.regla == Regla::MayusculaPar) {
            if (EnTramo(letra, t.primera, t.ultima))
                return static_cast<char16_t>(letra - (letra - t.primera) % 2);
        } else if (EnTramo(letra, t.primera + t.distancia, t.ultima + t.distancia)) {
            return static_cast<char16_t>(letra - t.distancia);
        }
    }
    return letra;
}

char16_t Minuscula(char16_t letra) {
    for (const Tramo& t : kTramos) {
        if (!EnTramo(letra, t.primera, t.ultima))
            continue;
        if (t.regla == Regla::MayusculaPar)
            return static_cast<char16_t>(letra + 1 - (letra - t.primera) % 2);
        return static_cast<char16_t>(letra + t.distancia);
    }
    return letra;
}

Texto Mayusculas(VistaTexto texto) {
    Texto resultado(texto);
    std::transform(resultado.begin(), resultado.end(), resultado.begin(), Mayuscula);
    return resultado;
}

Texto Minusculas(VistaTexto texto) {
    Texto resultado(texto);
    std::transform(resultado.begin(), resultado.end(), resultado.begin(), Minuscula);
    return resultado;
}

} // namespace pincela
