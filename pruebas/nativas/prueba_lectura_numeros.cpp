#include "common/conversion.h"
#include "comprobar_error.h"
#include "con_regional.h"
#include "pruebas/cada.h"

#include <cfloat>
#include <climits>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

constexpr Regional kEspaniol{u',', u'.'};

} // namespace

TEST_CASE("A text becomes the whole number it says") {
    struct Fila {
        Texto texto;
        std::int32_t valor;
    };
    const auto [texto, valor] = pincela::pruebas::Cada<Fila>({
        {u"0", 0},
        {u"16777215", 16777215},
        {u"-1", -1},
        {u"-0", 0},
        {u"+5", 5},
        {u"007", 7},
        {u"0000000000000000000012", 12},
        {u"2147483647", INT_MAX},
        {u"-2147483648", INT_MIN},
        {u"  42  ", 42},
        {u"\t7\r\n", 7},
        {u"\u00A07", 7},
        {u"- 5", -5},
        {u"5-", -5},
        {u"5 -", -5},
        {u"5+", 5},
        {u"(5)", -5},
        {u"( 5 )", -5},
        {u"1.5", 2},
        {u"2.5", 2},
        {u"-1.5", -2},
        {u"0.5", 0},
        {u".5", 0},
        {u"5.", 5},
        {u"2147483647.4", INT_MAX},
        {u"1,234,567", 1234567},
        {u"1,,2", 12},
        {u"5,", 5},
        {u"1e3", 1000},
        {u"1E+3", 1000},
        {u"1d3", 1000},
        {u"25E-1", 2},
        {u"1e-400", 0},
        {u"0e999999999999", 0},
        {u"2.5000000000000001", 3},
        {u"-0.50000000000000000000000000000001", -1},
        {u"3.4999999999999999999", 3},
        {u"0.05e1", 0},
        {u"0.15e1", 2},
        {u"2147483647.49999999999999999999", INT_MAX},
        {u"$2", 2},
        {u"2 $", 2},
        {u" -$ 2", -2},
        {u"$-2", -2},
        {u"($2)", -2},
    });
    CAPTURE(texto);
    CHECK(TextoAEntero32(texto) == valor);
}

TEST_CASE("A text of another base is a bit pattern") {
    CHECK(TextoAEntero32(u"&H0") == 0);
    CHECK(TextoAEntero32(u"&HFF") == 255);
    CHECK(TextoAEntero32(u"&hff") == 255);
    CHECK(TextoAEntero32(u" &HC0C0C0 ") == 0xC0C0C0);
    CHECK(TextoAEntero32(u"&O17") == 15);
    CHECK(TextoAEntero32(u"&o17") == 15);
    CHECK(TextoAEntero32(u"&HFFFFFFFF") == -1);
    CHECK(TextoAEntero32(u"&H8000000F") == static_cast<std::int32_t>(0x8000000F));
    CHECK(TextoAEntero32(u"&H0000000000FF") == 255);
    CHECK(TextoAEntero32(u"&O37777777777") == -1);
    CHECK(TextoAEntero32(u"-&H10") == -16);
}

TEST_CASE("Four hexadecimal digits are negative in 16 bits only") {
    // The 32-bit conversion of the platform reads the same text as a positive number.
    CHECK(TextoAEntero16(u"&HFFFF") == -1);
    CHECK(TextoAEntero32(u"&HFFFF") == 65535);
    CHECK(TextoADoble(u"&HFFFF") == 65535);
    CHECK(TextoAEntero16(u"&H8000") == -32768);
    CHECK(TextoAEntero32(u"&H8000") == 32768);
    CHECK(TextoAEntero16(u"&HFF00") == -256);
    CHECK(TextoAEntero16(u"&H7FFF") == 32767);
    CHECK(TextoAEntero16(u"&H00008000") == -32768);
    CHECK(TextoAEntero16(u"&O177777") == -1);
    CHECK(TextoAEntero16(u"&H0") == 0);
    CHECK(ErrorDe([] { TextoAEntero16(u"&H10000"); }) == kDesbordamiento);
    CHECK(ErrorDe([] { TextoAEntero16(u"&HFFFF&"); }) == kDesbordamiento);
    CHECK(ErrorDe([] { TextoAEntero16(u"-&H8000"); }) == kDesbordamiento);
    CHECK(TextoAEntero32(u"&HFFFF&") == 65535);
}

TEST_CASE("A text that says no number does not match the type") {
    const Texto texto = pincela::pruebas::Cada<Texto>({u"",
                                                       u" ",
                                                       u"-",
                                                       u"+",
                                                       u".",
                                                       u",",
                                                       u",5",
                                                       u"abc",
                                                       u"12abc",
                                                       u"1 2",
                                                       u"1.2.3",
                                                       u"--5",
                                                       u"-5-",
                                                       u"1-2",
                                                       u"1e",
                                                       u"1e+",
                                                       u"1e 3",
                                                       u"e5",
                                                       u"(5",
                                                       u"5)",
                                                       u"(-5)",
                                                       u"()",
                                                       u"&",
                                                       u"&H",
                                                       u"&HG",
                                                       u"&O",
                                                       u"&O8",
                                                       u"&10",
                                                       u"& H1",
                                                       u"&H 1",
                                                       u"0x10",
                                                       u"True",
                                                       u"$",
                                                       u"$$5",
                                                       u"$5$",
                                                       u"5 €",
                                                       u"1*2",
                                                       u"&H1.",
                                                       u"&H1&&",
                                                       u"-",
                                                       u"nan",
                                                       u"inf",
                                                       u"\u0661",
                                                       u"&O18",
                                                       Texto(1, u'\0'),
                                                       Texto(u"5\0", 2),
                                                       Texto(u"5\0"
                                                             u"6",
                                                             3)});
    CAPTURE(texto);
    CHECK(ErrorDe([&] { TextoAEntero32(texto); }) == kTipos);
    CHECK(ErrorDe([&] { TextoAEntero16(texto); }) == kTipos);
    CHECK(ErrorDe([&] { TextoADoble(texto); }) == kTipos);
}

TEST_CASE("A text beyond 32 bits overflows") {
    const Texto texto = pincela::pruebas::Cada<Texto>(
        {u"2147483648", u"-2147483649", u"2147483647.5", u"99999999999999999999", u"1e10",
         u"&H100000000", u"&HFFFFFFFFFFFFFFFFFFFFFFFF", u"1e400", u"-1e99999999999999999999"});
    CAPTURE(texto);
    CHECK(ErrorDe([&] { TextoAEntero32(texto); }) == kDesbordamiento);
}

TEST_CASE("A text is rounded by all its digits into every width") {
    CHECK(TextoAByte(u"254.50000000000000000001") == 255);
    CHECK(TextoAByte(u"254.5") == 254);
    CHECK(TextoAByte(u"&HFF") == 255);
    CHECK(TextoAEntero16(u"-2.5000000000000001") == -3);
    CHECK(ErrorDe([] { TextoAByte(u"255.5"); }) == kDesbordamiento);
    CHECK(ErrorDe([] { TextoAByte(u"-1"); }) == kDesbordamiento);
    CHECK(ErrorDe([] { TextoAEntero16(u"32767.500"); }) == kDesbordamiento);
}

TEST_CASE("The sign of the currency is that of the locale in force") {
    const ConRegional espaniol(Regional{u',', u'.', u"\u20AC"});
    CHECK(TextoADoble(u"2,5 \u20AC") == 2.5);
    CHECK(ErrorDe([] { TextoADoble(u"$2"); }) == kTipos);
    const ConRegional ninguna(Regional{u',', u'.', u""});
    CHECK(TextoADoble(u"2,5") == 2.5);
}

TEST_CASE("A text beyond 16 bits overflows a 16-bit number") {
    CHECK(TextoAEntero16(u"32767") == 32767);
    CHECK(TextoAEntero16(u"-32768.5") == -32768);
    CHECK(ErrorDe([] { TextoAEntero16(u"32768"); }) == kDesbordamiento);
    CHECK(ErrorDe([] { TextoAEntero16(u"32767.5"); }) == kDesbordamiento);
}

TEST_CASE("A text becomes the nearest double") {
    CHECK(TextoADoble(u"0.1") == 0.1);
    CHECK(TextoADoble(u"-12.625") == -12.625);
    CHECK(TextoADoble(u"1.7976931348623157E308") == DBL_MAX);
    CHECK(TextoADoble(u"4.9406564584124654e-324") == DBL_TRUE_MIN);
    CHECK(TextoADoble(u"123456789012345678901234567890") == 123456789012345678901234567890.0);
    CHECK(TextoADoble(u"0." + Texto(400, u'0') + u"1") == 0);
    CHECK(TextoADoble(u"0." + Texto(400, u'0') + u"1e401") == 1);
    CHECK(TextoADoble(u"1" + Texto(400, u'0') + u"e-400") == 1);
    CHECK(ErrorDe([] { TextoADoble(u"1" + Texto(400, u'0')); }) == kDesbordamiento);
    CHECK(ErrorDe([] { TextoADoble(u"1e309"); }) == kDesbordamiento);
    CHECK(ErrorDe([] { TextoADoble(u"0." + Texto(10, u'0') + u"1e400"); }) == kDesbordamiento);
}

TEST_CASE("The separators are those of the locale in force") {
    CHECK(TextoADoble(u"12.5") == 12.5);
    CHECK(TextoADoble(u"12,5") == 125);
    {
        const ConRegional espaniol(kEspaniol);
        CHECK(TextoADoble(u"12,5") == 12.5);
        CHECK(TextoADoble(u"12.5") == 125);
        CHECK(TextoADoble(u"1.234.567,25") == 1234567.25);
        CHECK(TextoAEntero32(u"2,5") == 2);
        CHECK(ErrorDe([] { TextoADoble(u"1,2,3"); }) == kTipos);
        CHECK(ErrorDe([] { TextoADoble(u","); }) == kTipos);
    }
    CHECK(RegionalActual().decimal == u'.');
    const ConRegional noruego(Regional{u',', u'\u00A0'});
    CHECK(TextoADoble(u"1\u00A0234,5") == 1234.5);
}

TEST_CASE("Val reads the number a text begins with") {
    CHECK(Val(u"24 and 57") == 24);
    CHECK(Val(u"  1615 198th") == 1615198);
    CHECK(Val(u"- 12.5x") == -12.5);
    CHECK(Val(u"1e3z") == 1000);
    CHECK(Val(u"1e") == 1);
    CHECK(Val(u"1d2") == 100);
    CHECK(Val(u".5") == 0.5);
    CHECK(Val(u"1,5") == 1);
    CHECK(Val(u"abc") == 0);
    CHECK(Val(u"") == 0);
    CHECK(Val(u"-") == 0);
    CHECK(Val(u"&HFF") == 255);
    CHECK(Val(u"&HFFFF") == -1);
    CHECK(Val(u"&HFFFF&") == 65535);
    CHECK(Val(u"&H10000") == 65536);
    CHECK(Val(u"&O17x") == 15);
    CHECK(Val(u"&") == 0);
    CHECK(Val(u"&HX") == 0);
    CHECK(ErrorDe([] { Val(u"1e999"); }) == kDesbordamiento);
}

TEST_CASE("Val wants a point whatever the locale") {
    const ConRegional espaniol(kEspaniol);
    CHECK(Val(u"12.5") == 12.5);
    CHECK(Val(u"12,5") == 12);
}
