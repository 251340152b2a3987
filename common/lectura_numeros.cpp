// Numbers read from text.
//
// The grammar is the automation environment's: blanks around; one sign before or after, or
// parentheses for a negative number; the sign of the currency before or after; digits with
// thousands separators, which are ignored wherever they stand after the first digit; the decimal
// separator; an exponent after E or D; or "&H", "&O" and digits of that base, "&" allowed after
// them.
#include "common/conversion.h"
#include "common/decimal_exacto.h"
#include "common/entero_corto.h"
#include "common/errores.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>
#include <string_view>

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
    bool Tomar(VistaTexto palabra) {
        if (palabra.empty() || !resto_.starts_with(palabra))
            return false;
        resto_.remove_prefix(palabra.size());
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
    /// Nearest whole number, ties to even. Raises Desbordamiento beyond ten digits.
    std::int64_t Entero() const;

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

std::int64_t Decimales::Entero() const {
    constexpr long cabenSiempre = 10;
    const long largo = static_cast<long>(digitos_.size());
    const long enteros = largo + exponente_ - decimales_; // digits before the decimal separator
    if (digitos_.empty() || enteros < 0)
        return 0;
    if (enteros > cabenSiempre)
        Lanzar(NumeroError::Desbordamiento);
    std::int64_t valor = 0;
    for (long i = 0; i < enteros; ++i)
        valor = valor * 10 + (i < largo ? digitos_[static_cast<std::size_t>(i)] - '0' : 0);
    const auto fraccion =
        std::string_view(digitos_).substr(static_cast<std::size_t>(std::min(enteros, largo)));
    if (fraccion.empty() || fraccion.front() < '5')
        return valor;
    const bool medio =
        fraccion.front() == '5' && fraccion.find_first_not_of('0', 1) == std::string_view::npos;
    return medio && valor % 2 == 0 ? valor : valor + 1;
}

/// What a whole text says, before it is fitted into a type.
struct Leido {
    bool enBase = false; // came from "&H" or "&O"
    bool negativo = false;
    Patron patron;
    Decimales decimales;
};

Leido Leer(VistaTexto texto) {
    const Regional regional = RegionalActual();
    Lector lector(texto);
    bool moneda = false;
    const auto tomarMoneda = [&] {
        if (moneda)
            return false;
        moneda = lector.Tomar(VistaTexto(regional.moneda));
        return moneda;
    };
    bool parentesis = false, menos = false, mas = false;
    const auto tomarSigno = [&] {
        if (parentesis || menos || mas)
            return false;
        menos = lector.Tomar(u'-');
        mas = !menos && lector.Tomar(u'+');
        return menos || mas;
    };

    lector.SaltarBlancos();
    parentesis = lector.Tomar(u'(');
    for (lector.SaltarBlancos(); tomarSigno() || tomarMoneda(); lector.SaltarBlancos()) {
    }

    Leido leido;
    if (lector.Tomar(u'&')) {
        leido.enBase = true;
        leido.patron = LeerPatron(lector);
    } else if (!leido.decimales.Leer(lector, regional, false)) {
        LanzarTiposNoCoinciden();
    }

    for (lector.SaltarBlancos(); tomarSigno() || tomarMoneda(); lector.SaltarBlancos()) {
    }
    if (parentesis && !lector.Tomar(u')'))
        LanzarTiposNoCoinciden();
    lector.SaltarBlancos();
    if (!lector.Agotado())
        LanzarTiposNoCoinciden();
    leido.negativo = parentesis || menos;
    return leido;
}

double ConSigno(const Leido& leido) {
    const double valor =
        leido.enBase ? static_cast<std::int32_t>(leido.patron.bits) : leido.decimales.Valor();
    return leido.negativo ? -valor : valor;
}

std::int64_t EnteroConSigno(const Leido& leido) {
    const std::int64_t valor =
        leido.enBase ? static_cast<std::int32_t>(leido.patron.bits) : leido.decimales.Entero();
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

std::uint8_t TextoAByte(VistaTexto texto) {
    return Byte(EnteroConSigno(Leer(texto)));
}

std::int32_t TextoAEntero32(VistaTexto texto) {
    std::int32_t corto = 0;
    if (const std::size_t largo = LeerEnteroCorto(texto, corto);
        largo != 0 && largo == texto.size())
        return corto;
    return Entero32(EnteroConSigno(Leer(texto)));
}

std::int16_t TextoAEntero16(VistaTexto texto) {
    const Leido leido = Leer(texto);
    if (!leido.enBase || leido.patron.largo || leido.patron.bits > 0xFFFF)
        return Entero16(EnteroConSigno(leido));
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
