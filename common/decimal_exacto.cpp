#include "common/decimal_exacto.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <compare>
#include <limits>

namespace pincela {
namespace {

/// A whole number in groups of nine decimal digits, the lowest first.
class Grupos {
  public:
    explicit Grupos(std::uint64_t valor) {
        for (; valor != 0; valor /= Base)
            grupos_[cuantos_++] = static_cast<std::uint32_t>(valor % Base);
    }

    /// `factor` is below 2 to the 31.
    void Multiplicar(std::uint32_t factor) {
        std::uint64_t lleva = 0;
        for (std::size_t i = 0; i < cuantos_; ++i) {
            lleva += std::uint64_t{grupos_[i]} * factor;
            grupos_[i] = static_cast<std::uint32_t>(lleva % Base);
            lleva /= Base;
        }
        for (; lleva != 0; lleva /= Base)
            grupos_[cuantos_++] = static_cast<std::uint32_t>(lleva % Base);
    }

    void MultiplicarPorPotencia(std::uint32_t base, int exponente, std::uint32_t grande, int paso) {
        for (; exponente >= paso; exponente -= paso)
            Multiplicar(grande);
        for (; exponente > 0; --exponente)
            Multiplicar(base);
    }

    /// Writes the digits without leading zeros; returns how many.
    int Escribir(char* salida) const {
        char* fin = salida;
        for (std::size_t i = cuantos_; i-- > 0;) {
            std::uint32_t grupo = grupos_[i];
            for (int cifra = Cifras; cifra-- > 0; grupo /= 10)
                fin[cifra] = static_cast<char>('0' + grupo % 10);
            fin += Cifras;
        }
        const char* primera = std::find_if(salida, fin, [](char c) { return c != '0'; });
        return static_cast<int>(std::copy<const char*>(primera, fin, salida) - salida);
    }

  private:
    static constexpr int Cifras = 9;
    static constexpr std::uint32_t Base = 1'000'000'000;

    std::array<std::uint32_t, DecimalExacto::Maximo / Cifras> grupos_{};
    std::size_t cuantos_ = 0;
};

/// `mantisa`, of at most 54 bits, times two to `exponente`, which is -1075 or more.
DecimalExacto Expandir(std::uint64_t mantisa, int exponente) {
    const int ceros = std::countr_zero(mantisa);
    mantisa >>= ceros;
    exponente += ceros;
    Grupos grupos(mantisa);
    // n / 2^k is n * 5^k / 10^k.
    if (exponente >= 0)
        grupos.MultiplicarPorPotencia(2, exponente, 1u << 30, 30);
    else
        grupos.MultiplicarPorPotencia(5, -exponente, 1'220'703'125, 13);
    DecimalExacto decimal;
    decimal.cuantos = grupos.Escribir(decimal.digitos.data());
    decimal.exponente = decimal.cuantos - 1 + std::min(exponente, 0);
    decimal.Redondear(decimal.cuantos);
    return decimal;
}

constexpr int BitsDeMantisa = 52;
constexpr std::uint64_t Implicito = std::uint64_t{1} << BitsDeMantisa;

/// A finite double that is not negative, taken apart; the next larger one has the next pattern.
struct Partes {
    explicit Partes(std::uint64_t patron)
        : mantisa(patron % Implicito), exponente(static_cast<int>(patron >> BitsDeMantisa)) {
        if (exponente != 0)
            mantisa += Implicito;
        else
            exponente = 1;
        exponente -= 1023 + BitsDeMantisa;
    }
    std::uint64_t mantisa;
    int exponente;
};

std::strong_ordering Comparar(std::string_view digitos, long exponente, const DecimalExacto& otro) {
    if (exponente != otro.exponente)
        return exponente <=> otro.exponente;
    digitos.remove_suffix(digitos.size() - (digitos.find_last_not_of('0') + 1));
    return digitos <=> otro.Digitos();
}

/// A few units in the last place off, at most; finite.
double Aproximar(std::string_view digitos, long exponente) {
    constexpr double potencias[] = {1e1, 1e2, 1e4, 1e8, 1e16, 1e32, 1e64, 1e128, 1e256};
    double valor = 0;
    const auto tomados = std::min<std::size_t>(digitos.size(), 17);
    for (std::size_t i = 0; i < tomados; ++i)
        valor = valor * 10 + (digitos[i] - '0');
    exponente += static_cast<long>(digitos.size() - tomados);
    // 17 digits bring the last powers of ten within reach from either side.
    unsigned resto = static_cast<unsigned>(std::min(std::abs(exponente), 511L));
    for (const double potencia : potencias) {
        if (resto % 2)
            valor = exponente < 0 ? valor / potencia : valor * potencia;
        resto /= 2;
    }
    return std::min(valor, std::numeric_limits<double>::max());
}

} // namespace

void DecimalExacto::Redondear(int significativas) {
    if (significativas < cuantos) {
        const auto siguiente = digitos.begin() + significativas;
        const auto fin = digitos.begin() + cuantos;
        const bool masDeMedio = *siguiente > '5' || (*siguiente == '5' && siguiente + 1 != fin);
        const bool impar = siguiente[-1] % 2 != 0;
        cuantos = significativas;
        if (masDeMedio || (*siguiente == '5' && impar)) {
            while (cuantos > 0 && digitos[static_cast<std::size_t>(cuantos - 1)] == '9')
                --cuantos;
            if (cuantos == 0) {
                digitos[static_cast<std::size_t>(cuantos++)] = '1';
                ++exponente;
            } else {
                ++digitos[static_cast<std::size_t>(cuantos - 1)];
            }
        }
    }
    while (cuantos > 1 && digitos[static_cast<std::size_t>(cuantos - 1)] == '0')
        --cuantos;
}

DecimalExacto ExpandirDoble(double valor) {
    const Partes partes(std::bit_cast<std::uint64_t>(valor));
    return Expandir(partes.mantisa, partes.exponente);
}

double DobleMasCercano(std::string_view digitos, long exponente) {
    const long delPrimero = exponente + static_cast<long>(digitos.size()) - 1;
    if (delPrimero > 310)
        return std::numeric_limits<double>::infinity();
    if (delPrimero < -330)
        return 0;
    auto patron = std::bit_cast<std::uint64_t>(Aproximar(digitos, exponente));
    const std::uint64_t infinito =
        std::bit_cast<std::uint64_t>(std::numeric_limits<double>::infinity());
    // Where the number lies from the middle between one double and the next larger.
    const auto respectoAlMedioTras = [&](std::uint64_t cual) {
        const Partes partes(cual);
        return Comparar(digitos, delPrimero,
                        Expandir(2 * partes.mantisa + 1, partes.exponente - 1));
    };
    while (patron < infinito) {
        const auto orden = respectoAlMedioTras(patron);
        if (orden < 0 || (orden == 0 && patron % 2 == 0))
            break;
        ++patron;
    }
    while (patron > 0) {
        const auto orden = respectoAlMedioTras(patron - 1);
        if (orden > 0 || (orden == 0 && patron % 2 == 0))
            break;
        --patron;
    }
    return std::bit_cast<double>(patron);
}

} // namespace pincela
