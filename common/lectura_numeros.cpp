// Numbers read from text.
//
// The grammar is the automation environment's: blanks around; one sign before or after, or
// parentheses for a negative number; digits with thousands separators, which are ignored wherever
// they stand after the first digit; the decimal separator; an exponent after E or D; or "&H", "&O"
// and digits of that base, "&" allowed after them. No currency sign.
#include "common/conversion.h"
#include "common/decimal_exacto.h"
#include "common/entero_corto.h"
#include "common/errores.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

namespace pincela {
namespace {

bool EsDigito(char16_t letra) {
    return letra >= u'0' && letra <= u'9';
}

bool EsBlanco(char16_t letra) {
    return letra == u' ' || (letra >= u'\t' && letra <= u'\r') || letra == u'\u00A0';
}

/// Value of a digit in any base up to 16; 16 when it is none.
unsigned ValorDeDigito(char16_t letra) {
    if (EsDigito(letra))
        return letra - u'0';
    if (letra >= u'A' && letra <= u'F')
        return letra - u'A' + 10u;
    if (letra >= u'a' && letra <= u'f')
        return letra - u'a' + 10u;
    return 16;
}

class Lector {
  public:
    explicit Lector(VistaTexto texto) : resto_(texto) {}

    bool Agotado() const { return resto_.empty(); }
    char16_t Actual() const { return resto_.empty() ? u'\0' : resto_.front(); }
    void Avanzar() { resto_.remove_prefix(1); }
    bool Tomar(char16_t letra) {
        if (resto_.empty() || resto_.front() != letra)
            return false;
        Avanzar();
        return true;
    }
    void SaltarBlancos() {
        while (!resto_.empty() && EsBlanco(resto_.front()))
            Avanzar();
    }

  private:
    VistaTexto resto_;
};

/// Digits of base 8 or 16: a pattern of at most 32 bits.
struct Patron {
    std::uint32_t bits = 0;
    bool largo = false; // closed with "&": never the pattern of a 16-bit number
};

/// Reads what follows "&". Raises TiposNoCoinciden when it is no base or has no digits.
Patron LeerPatron(Lector& lector) {
    unsigned base = 0;
    if (lector.Actual() == u'H' || lector.Actual() == u'h')
        base = 16;
    else if (lector.Actual() == u'O' || lector.Actual() == u'o')
        base = 8;
    else
        LanzarTiposNoCoinciden();
    lector.Avanzar();
    if (ValorDeDigito(lector.Actual()) >= base)
        LanzarTiposNoCoinciden();
    std::uint64_t bits = 0;
    while (ValorDeDigito(lector.Actual()) < base) {
        bits = bits * base + ValorDeDigito(lector.Actual());
        if (bits > 0xFFFFFFFFu)
            Lanzar(NumeroError::Desbordamiento);
        lector.Avanzar();
    }
    return {static_cast<std::uint32_t>(bits), lector.Tomar(u'&')};
}

/// The decimal digits of a number, gathered as a whole number and a power of ten: no separator is
/// left that the standard library would read in its own way.
class Decimales {
  public:
    /// Digits, separators and exponent, as far as they go. False when there is no digit.
    bool Leer(Lector& lector, Regional regional, bool soloExponenteCompleto);
    /// Raises Desbordamiento beyond the range of a double; too small a number is 0.
    double Valor() const;

  private:
    void Anotar(char16_t digito, bool fraccion);
    void LeerExponente(Lector& lector, bool soloCompleto);

    std::string digitos_; // from the first significant one on
    long exponente_ = 0;  // as written
    long decimales_ = 0;
    bool hayDigito_ = false;
};

void Decimales::Anotar(char16_t digito, bool fraccion) {
    hayDigito_ = true;
    if (fraccion)
        ++decimales_;
    if (!digitos_.empty() || digito != u'0')
        digitos_.push_back(static_cast<char>(digito));
}

bool Decimales::Leer(Lector& lector, Regional regional, bool soloExponenteCompleto) {
    bool fraccion = false;
    for (;; lector.Avanzar()) {
        const char16_t letra = lector.Actual();
        if (lector.Agotado())
            break;
        if (EsDigito(letra)) {
            Anotar(letra, fraccion);
        } else if (letra == regional.decimal && !fraccion) {
            fraccion = true;
        } else if (letra != regional.miles || letra == u'\0' || !hayDigito_) {
            break;
        }
    }
    if (hayDigito_)
        LeerExponente(lector, soloExponenteCompleto);
    return hayDigito_;
}

void Decimales::LeerExponente(Lector& lector, bool soloCompleto) {
    const char16_t letra = lector.Actual();
    if (letra != u'e' && letra != u'E' && letra != u'd' && letra != u'D')
        return;
    Lector adelante = lector;
    adelante.Avanzar();
    const bool negativo = adelante.Tomar(u'-');
    if (!negativo)
        adelante.Tomar(u'+');
    if (!EsDigito(adelante.Actual())) {
        if (!soloCompleto)
            LanzarTiposNoCoinciden();
        return;
    }
    constexpr long tope = 100000; // far beyond any double, and the sum below stays small
    long exponente = 0;
    for (; EsDigito(adelante.Actual()); adelante.Avanzar())
        exponente = std::min(tope, exponente * 10 + (adelante.Actual() - u'0'));
    lector = adelante;
    exponente_ = negativo ? -exponente : exponente;
}

double Decimales::Valor() const {
    if (digitos_.empty())
        return 0;
    const double valor = DobleMasCercano(digitos_, exponente_ - decimales_);
    if (std::isinf(valor))
        Lanzar(NumeroError::Desbordamiento);
    return valor;
}

/// What a whole text says, before it is fitted into a type.
struct Leido {
    bool enBase = false; // came from "&H" or "&O"
    bool negativo = false;
    Patron patron;
    double valor = 0;
};

Leido Leer(VistaTexto texto) {
    Lector lector(texto);
    lector.SaltarBlancos();
    const bool parentesis = lector.Tomar(u'(');
    const bool menos = !parentesis && lector.Tomar(u'-');
    const bool mas = !parentesis && !menos && lector.Tomar(u'+');
    lector.SaltarBlancos();

    Leido leido;
    if (lector.Tomar(u'&')) {
        leido.enBase = true;
        leido.patron = LeerPatron(lector);
    } else {
        Decimales decimales;
        if (!decimales.Leer(lector, RegionalActual(), false))
            LanzarTiposNoCoinciden();
        leido.valor = decimales.Valor();
    }

    lector.SaltarBlancos();
    bool menosDetras = false;
    if (parentesis) {
        if (!lector.Tomar(u')'))
            LanzarTiposNoCoinciden();
    } else if (!menos && !mas) {
        menosDetras = lector.Tomar(u'-');
        if (!menosDetras)
            lector.Tomar(u'+');
    }
    lector.SaltarBlancos();
    if (!lector.Agotado())
        LanzarTiposNoCoinciden();
    leido.negativo = parentesis || menos || menosDetras;
    return leido;
}

double ConSigno(const Leido& leido) {
    const double valor = leido.enBase ? static_cast<std::int32_t>(leido.patron.bits) : leido.valor;
    return leido.negativo ? -valor : valor;
}

/// A pattern read by Val: four digits or fewer are a 16-bit number unless closed with "&".
double ValorDePatron(const Patron& patron) {
    if (!patron.largo && patron.bits <= 0xFFFF)
        return static_cast<std::int16_t>(patron.bits);
    return static_cast<std::int32_t>(patron.bits);
}

} // namespace

double TextoADoble(VistaTexto texto) {
    return ConSigno(Leer(texto));
}

std::int32_t TextoAEntero32(VistaTexto texto) {
    std::int32_t corto = 0;
    if (const std::size_t largo = LeerEnteroCorto(texto, corto);
        largo != 0 && largo == texto.size())
        return corto;
    return AEntero32(TextoADoble(texto));
}

std::int16_t TextoAEntero16(VistaTexto texto) {
    const Leido leido = Leer(texto);
    if (!leido.enBase || leido.patron.largo || leido.patron.bits > 0xFFFF)
        return AEntero16(ConSigno(leido));
    const int valor = static_cast<std::int16_t>(leido.patron.bits);
    return Entero16(leido.negativo ? -valor : valor);
}

double Val(VistaTexto texto) {
    // Blanks don't count anywhere, not even between digits.
    Texto junto;
    std::copy_if(texto.begin(), texto.end(), std::back_inserter(junto), [](char16_t letra) {
        return letra != u' ' && letra != u'\t' && letra != u'\n' && letra != u'\r';
    });
    Lector lector(junto);
    const bool menos = lector.Tomar(u'-');
    if (!menos)
        lector.Tomar(u'+');
    if (lector.Tomar(u'&')) {
        const bool hex = lector.Actual() == u'H' || lector.Actual() == u'h';
        const bool oct = lector.Actual() == u'O' || lector.Actual() == u'o';
        Lector digitos = lector;
        if (hex || oct)
            digitos.Avanzar();
        if ((!hex && !oct) || ValorDeDigito(digitos.Actual()) >= (hex ? 16u : 8u))
            return 0;
        const double valor = ValorDePatron(LeerPatron(lector));
        return menos ? -valor : valor;
    }
    Decimales decimales;
    if (!decimales.Leer(lector, Regional{u'.', u'\0'}, true))
        return 0;
    const double valor = decimales.Valor();
    return menos ? -valor : valor;
}

} // namespace pincela
