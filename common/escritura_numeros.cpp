// Numbers written as text.
#include "common/conversion.h"
#include "common/decimal_exacto.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

namespace pincela {
namespace {

/// A number as its significant digits d.ddd… times ten to `exponente`, without closing zeros.
struct Cifras {
    Texto digitos;
    int exponente = 0;
};

Cifras CifrasDe(double valor, int significativas) {
    DecimalExacto decimal = ExpandirDoble(valor);
    decimal.Redondear(significativas);
    const auto digitos = decimal.Digitos();
    return {Texto(digitos.begin(), digitos.end()), decimal.exponente};
}

Texto EnNotacionCientifica(const Cifras& cifras) {
    Texto texto(1, cifras.digitos[0]);
    if (cifras.digitos.size() > 1)
        texto += RegionalActual().decimal + cifras.digitos.substr(1);
    texto += cifras.exponente < 0 ? u"E-" : u"E+";
    const int magnitud = std::abs(cifras.exponente);
    if (magnitud < 10)
        texto += u'0';
    return texto + EnteroATexto(magnitud);
}

Texto EnNotacionFija(const Cifras& cifras) {
    const int enteros = cifras.exponente + 1;
    if (enteros <= 0)
        return u'0' + Texto(1, RegionalActual().decimal) +
               Texto(static_cast<std::size_t>(-enteros), u'0') + cifras.digitos;
    Texto texto = cifras.digitos;
    const auto lugar = static_cast<std::size_t>(enteros);
    if (texto.size() <= lugar)
        texto.append(lugar - texto.size(), u'0');
    else
        texto.insert(lugar, 1, RegionalActual().decimal);
    return texto;
}

/// Plain digits while the number fits in `significativas` places on either side of the separator.
Texto RealATexto(double valor, int significativas) {
    if (std::isnan(valor))
        return u"-1" + Texto(1, RegionalActual().decimal) + u"#IND";
    if (std::isinf(valor))
        return (valor < 0 ? u"-1" : u"1") + Texto(1, RegionalActual().decimal) + u"#INF";
    if (valor == 0)
        return u"0";
    const Cifras cifras = CifrasDe(std::fabs(valor), significativas);
    const int decimales = static_cast<int>(cifras.digitos.size()) - 1 - cifras.exponente;
    const bool fija = cifras.exponente < significativas && decimales <= significativas;
    Texto texto = fija ? EnNotacionFija(cifras) : EnNotacionCientifica(cifras);
    return valor < 0 ? u'-' + texto : texto;
}

} // namespace

Texto EnteroATexto(std::int64_t valor) {
    char escrito[24];
    const auto fin = std::to_chars(escrito, escrito + sizeof escrito, valor);
    return Texto(escrito, fin.ptr);
}

Texto FlotanteATexto(float valor) {
    return RealATexto(static_cast<double>(valor), 7);
}
Texto DobleATexto(double valor) {
    return RealATexto(valor, 15);
}

Texto Hexadecimal(std::int32_t valor) {
    auto patron = static_cast<std::uint32_t>(valor);
    char16_t escrito[8];
    char16_t* inicio = escrito + 8;
    do {
        *--inicio = u"0123456789ABCDEF"[patron % 16];
        patron /= 16;
    } while (patron != 0);
    return Texto(inicio, escrito + 8);
}

} // namespace pincela
