#include "common/decimal_exacto.h"

#include <doctest/doctest.h>

#include <bit>
#include <cfloat>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

using namespace pincela;

namespace {

/// As the standard library of this machine, which rounds exactly, writes it: "d.ddde+xx".
std::string EscritoPorLaBiblioteca(double valor, int significativas) {
    char escrito[900];
    std::snprintf(escrito, sizeof escrito, "%.*e", significativas - 1, valor);
    return escrito;
}

std::string Escrito(double valor, int significativas) {
    DecimalExacto decimal = ExpandirDoble(valor);
    decimal.Redondear(significativas);
    std::string texto(decimal.Digitos());
    texto.resize(static_cast<std::size_t>(significativas), '0');
    if (significativas > 1)
        texto.insert(1, ".");
    char exponente[16];
    std::snprintf(exponente, sizeof exponente, "e%+03d", decimal.exponente);
    return texto + exponente;
}

double LeidoPorLaBiblioteca(const std::string& digitos, long exponente) {
    return std::strtod((digitos + 'e' + std::to_string(exponente)).c_str(), nullptr);
}

double DobleAlAzar(std::mt19937_64& azar) {
    constexpr auto infinito = std::bit_cast<std::uint64_t>(std::numeric_limits<double>::infinity());
    return std::bit_cast<double>(1 + azar() % (infinito - 1));
}

constexpr double Extremos[] = {DBL_MIN,
                               DBL_TRUE_MIN,
                               DBL_MAX,
                               1.0,
                               0.1,
                               0.5,
                               9.5,
                               99.5,
                               1e22,
                               1e23,
                               5e-324,
                               2.2250738585072011e-308,
                               9007199254740993.0,
                               0.125,
                               2.5};

} // namespace

TEST_CASE("Doubles are written as the standard library writes them, to any number of digits") {
    std::mt19937_64 azar(20261121);
    std::uniform_int_distribution<int> digitos(1, 20);
    for (const double valor : Extremos)
        for (const int n : {1, 2, 7, 15, 16, 17, 20, 780})
            REQUIRE(Escrito(valor, n) == EscritoPorLaBiblioteca(valor, n));
    for (int i = 0; i < 4000; ++i) {
        const double valor = DobleAlAzar(azar);
        const int n = digitos(azar);
        REQUIRE(Escrito(valor, n) == EscritoPorLaBiblioteca(valor, n));
    }
}

TEST_CASE("Half way between two numbers of so many digits goes to the even one") {
    CHECK(Escrito(0.5, 1) == "5e-01");
    CHECK(Escrito(2.5, 1) == "2e+00");
    CHECK(Escrito(3.5, 1) == "4e+00");
    CHECK(Escrito(9.5, 1) == "1e+01");
    CHECK(Escrito(0.125, 2) == "1.2e-01");
    CHECK(Escrito(0.375, 2) == "3.8e-01");
    CHECK(Escrito(1e22, 15) == "1.00000000000000e+22");
}

TEST_CASE("Digits are read to the nearest double, as the standard library reads them") {
    std::mt19937_64 azar(11112026);
    std::uniform_int_distribution<int> cuantos(1, 40);
    std::uniform_int_distribution<long> exponentes(-360, 330);
    for (int i = 0; i < 4000; ++i) {
        std::string digitos;
        for (int n = cuantos(azar); n > 0; --n)
            digitos.push_back(static_cast<char>('0' + azar() % 10));
        if (digitos[0] == '0')
            digitos[0] = '1';
        const long exponente = exponentes(azar);
        INFO(digitos, "e", exponente);
        REQUIRE(DobleMasCercano(digitos, exponente) == LeidoPorLaBiblioteca(digitos, exponente));
    }
}

TEST_CASE("Half way between two doubles goes to the even one, and the next digit decides") {
    std::mt19937_64 azar(1);
    for (int i = 0; i < 2000; ++i) {
        // Whole numbers of 54 bits: every other one lies between two doubles.
        std::string digitos = std::to_string(azar() >> 10 | std::uint64_t{1} << 53);
        const long exponente = 0;
        CAPTURE(digitos);
        REQUIRE(DobleMasCercano(digitos, exponente) == LeidoPorLaBiblioteca(digitos, exponente));
        digitos += "0000000000000000000000000000000000000001";
        REQUIRE(DobleMasCercano(digitos, exponente - 40) ==
                LeidoPorLaBiblioteca(digitos, exponente - 40));
    }
    CHECK(DobleMasCercano("9007199254740993", 0) == 9007199254740992.0);
    CHECK(DobleMasCercano("9007199254740995", 0) == 9007199254740996.0);
    CHECK(DobleMasCercano("90071992547409930000000000000000001", -19) == 9007199254740994.0);
}

TEST_CASE("A written double of 17 digits is read back as the same double") {
    std::mt19937_64 azar(77);
    for (int i = 0; i < 4000; ++i) {
        const double valor = DobleAlAzar(azar);
        DecimalExacto decimal = ExpandirDoble(valor);
        decimal.Redondear(17);
        REQUIRE(DobleMasCercano(decimal.Digitos(), decimal.exponente - (decimal.cuantos - 1)) ==
                valor);
    }
}

TEST_CASE("What no double reaches is infinite, and what none comes near is zero") {
    constexpr double infinito = std::numeric_limits<double>::infinity();
    CHECK(DobleMasCercano("17976931348623157", 292) == DBL_MAX);
    CHECK(DobleMasCercano("17976931348623158079372897140530341507993413271003782693617377898044"
                          "49682927647509466490179775872070963302864166928879109465555478519404",
                          173) == DBL_MAX);
    CHECK(DobleMasCercano("179769313486231581", 291) == infinito);
    CHECK(DobleMasCercano("1", 309) == infinito);
    CHECK(DobleMasCercano("1", 100000) == infinito);
    CHECK(DobleMasCercano("24703282292062327", -340) == 0);
    CHECK(DobleMasCercano("24703282292062328", -340) == DBL_TRUE_MIN);
    CHECK(DobleMasCercano("1", -100000) == 0);
    CHECK(DobleMasCercano(std::string(100000, '9'), -100000) == 1.0);
    CHECK(DobleMasCercano("1" + std::string(5000, '0'), -5000) == 1.0);
}
