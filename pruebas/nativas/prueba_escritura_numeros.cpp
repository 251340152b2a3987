#include "common/conversion.h"
#include "comprobar_error.h"
#include "con_regional.h"
#include "pruebas/cada.h"

#include <cfloat>
#include <climits>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("A whole number is written plainly") {
    CHECK(EnteroATexto(0) == u"0");
    CHECK(EnteroATexto(16777215) == u"16777215");
    CHECK(EnteroATexto(INT_MIN) == u"-2147483648");
    CHECK(EnteroATexto(INT64_MIN) == u"-9223372036854775808");
}

TEST_CASE("A float is written with seven digits, and with an exponent where they don't reach") {
    struct Fila {
        float valor;
        Texto texto;
    };
    const auto [valor, texto] = pincela::pruebas::Cada<Fila>({
        {0.0f, u"0"},
        {-0.0f, u"0"},
        {1.0f, u"1"},
        {-2.5f, u"-2.5"},
        {0.1f, u"0.1"},
        {0.2f, u"0.2"},
        {0.125f, u"0.125"},
        {100.0f, u"100"},
        {12.3456f, u"12.3456"},
        {1234567.0f, u"1234567"},
        {9999999.0f, u"9999999"},
        {10000000.0f, u"1E+07"},
        {12345678.0f, u"1.234568E+07"},
        {1.0f / 3.0f, u"0.3333333"},
        {1.0f / 300.0f, u"3.333333E-03"},
        {0.00001f, u"0.00001"},
        {0.00123f, u"0.00123"},
        {1e-8f, u"1E-08"},
        {FLT_MAX, u"3.402823E+38"},
        {-1.5e-20f, u"-1.5E-20"},
    });
    CAPTURE(valor);
    CHECK(FlotanteATexto(valor) == texto);
}

TEST_CASE("A double is written with fifteen digits") {
    CHECK(DobleATexto(0.1) == u"0.1");
    CHECK(DobleATexto(1.0 / 3) == u"0.333333333333333");
    CHECK(DobleATexto(1.0 / 300) == u"3.33333333333333E-03");
    CHECK(DobleATexto(123456789012345.0) == u"123456789012345");
    CHECK(DobleATexto(1e15) == u"1E+15");
    CHECK(DobleATexto(1e-15) == u"0.000000000000001");
    CHECK(DobleATexto(1e-16) == u"1E-16");
    CHECK(DobleATexto(-1.25e100) == u"-1.25E+100");
    CHECK(DobleATexto(999999999999999.9) == u"1E+15");
}

TEST_CASE("The decimal separator is that of the locale in force") {
    const ConRegional espaniol(Regional{u',', u'.'});
    CHECK(FlotanteATexto(0.5f) == u"0,5");
    CHECK(FlotanteATexto(12345678.0f) == u"1,234568E+07");
    CHECK(FlotanteATexto(1234.5f) == u"1234,5");
}

TEST_CASE("A float written and read again is the float of those digits") {
    for (const float valor : {0.2f, 0.35f, 1e-5f, 123.25f, 0.0625f, 3.0e20f})
        CHECK(AFlotante(TextoADoble(FlotanteATexto(valor))) == valor);
}

TEST_CASE("Hexadecimal is the pattern of 32 bits without leading zeros") {
    CHECK(Hexadecimal(0) == u"0");
    CHECK(Hexadecimal(65280) == u"FF00");
    CHECK(Hexadecimal(0xABCDEF) == u"ABCDEF");
    CHECK(Hexadecimal(-1) == u"FFFFFFFF");
    CHECK(Hexadecimal(INT_MIN) == u"80000000");
}
