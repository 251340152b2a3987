#include "common/conversion.h"
#include "comprobar_error.h"
#include "pruebas/cada.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

constexpr double kInfinito = std::numeric_limits<double>::infinity();
const double kNoNumero = std::nan("");

} // namespace

TEST_CASE("Rounding goes to the nearest and ties go to the even number") {
    struct Fila {
        double valor, entero;
    };
    const auto [valor, entero] = pincela::pruebas::Cada(
        {Fila{0.5, 0}, Fila{1.5, 2}, Fila{2.5, 2}, Fila{3.5, 4}, Fila{-0.5, 0}, Fila{-1.5, -2},
         Fila{-2.5, -2}, Fila{2.4999999, 2}, Fila{2.5000001, 3}, Fila{0.49999999999999994, 0},
         Fila{-0.49999999999999994, 0}, Fila{-1e-20, 0}, Fila{7, 7}, Fila{-7, -7},
         Fila{1e300, 1e300}, Fila{4503599627370495.5, 4503599627370496.0},
         Fila{9007199254740993.0, 9007199254740993.0}});
    CAPTURE(valor);
    CHECK(RedondearAPar(valor) == entero);
}

TEST_CASE("Int goes toward minus infinity") {
    CHECK(Int(2.9) == 2);
    CHECK(Int(-2.1) == -3);
    CHECK(Int(-2) == -2);
    CHECK(Int(0) == 0);
}

TEST_CASE("A checked store rounds first and then asks whether the number fits") {
    CHECK(AByte(255.4) == 255);
    CHECK(AByte(-0.5) == 0);
    CHECK(AByte(0.5) == 0);
    CHECK(AEntero16(32767.4) == 32767);
    CHECK(AEntero16(-32768.5) == -32768);
    CHECK(AEntero32(2147483647.4) == INT_MAX);
    CHECK(AEntero32(-2147483648.5) == INT_MIN);
    CHECK(AFlotante(0.1) == 0.1f);
    CHECK(AFlotante(-static_cast<double>(FLT_MAX)) == -FLT_MAX);
    CHECK(AFlotante(1e-60) == 0.0f);
}

TEST_CASE("A number that does not fit is an overflow") {
    CHECK(ErrorDe([] { AByte(255.5); }) == kDesbordamiento);
    CHECK(ErrorDe([] { AByte(-0.51); }) == kDesbordamiento);
    CHECK(ErrorDe([] { AEntero16(32767.5); }) == kDesbordamiento);
    CHECK(ErrorDe([] { AEntero16(-32769.0); }) == kDesbordamiento);
    CHECK(ErrorDe([] { AEntero32(2147483647.5); }) == kDesbordamiento);
    CHECK(ErrorDe([] { AEntero32(-2147483649.0); }) == kDesbordamiento);
    CHECK(ErrorDe([] { AEntero32(1e300); }) == kDesbordamiento);
    CHECK(ErrorDe([] { AFlotante(3.5e38); }) == kDesbordamiento);
}

TEST_CASE("What is no finite number overflows every store") {
    for (const double valor : {kInfinito, -kInfinito, kNoNumero}) {
        CHECK(ErrorDe([&] { AByte(valor); }) == kDesbordamiento);
        CHECK(ErrorDe([&] { AEntero16(valor); }) == kDesbordamiento);
        CHECK(ErrorDe([&] { AEntero32(valor); }) == kDesbordamiento);
        CHECK(ErrorDe([&] { AFlotante(valor); }) == kDesbordamiento);
    }
}

TEST_CASE("Whole numbers are stored at their limits and fail one past them") {
    CHECK(Entero16(SHRT_MAX) == SHRT_MAX);
    CHECK(Entero16(SHRT_MIN) == SHRT_MIN);
    CHECK(ErrorDe([] { Entero16(SHRT_MAX + 1); }) == kDesbordamiento);
    CHECK(ErrorDe([] { Entero16(SHRT_MIN - 1); }) == kDesbordamiento);
    CHECK(Entero32(INT_MAX) == INT_MAX);
    CHECK(Entero32(INT_MIN) == INT_MIN);
    CHECK(ErrorDe([] { Entero32(std::int64_t{INT_MAX} + 1); }) == kDesbordamiento);
    CHECK(ErrorDe([] { Entero32(INT64_MIN); }) == kDesbordamiento);
    CHECK(Byte(std::int64_t{255}) == 255);
    CHECK(ErrorDe([] { Byte(std::int64_t{256}); }) == kDesbordamiento);
    CHECK(ErrorDe([] { Byte(std::int64_t{-1}); }) == kDesbordamiento);
}
