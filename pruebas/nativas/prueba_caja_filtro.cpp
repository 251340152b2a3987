// Which typed characters pass.
#include "pruebas/nativas/comprobar_error.h"
#include "tbox/filtro_teclas.h"

#include <doctest/doctest.h>

#include <string>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

/// What becomes of a character typed into a field that holds `texto`; 0 for dropped.
int Filtrar(int tecla, TText tipo, VistaTexto texto = {}, VistaTexto excluidos = {}) {
    auto codigo = static_cast<std::int16_t>(tecla);
    FiltrarTecla(codigo, tipo, texto, excluidos);
    return codigo;
}

int Numero(int tecla, bool decimales, VistaTexto texto = {}) {
    auto codigo = static_cast<std::int16_t>(tecla);
    FiltrarNumero(codigo, decimales, texto);
    return codigo;
}

Texto Escribir(VistaTexto letras, TText tipo) {
    Texto texto;
    for (const char16_t letra : letras)
        if (const int queda = Filtrar(letra, tipo, texto))
            texto.push_back(static_cast<char16_t>(queda));
    return texto;
}

} // namespace

TEST_CASE("a whole number drops its full stop") {
    CHECK(Escribir(u"12.3", TText::NumericoEnt) == u"123");
    CHECK(Escribir(u"1,2", TText::NumericoEnt) == u"12");
}

TEST_CASE("a decimal number takes one comma, typed as a full stop or as a comma") {
    CHECK(Escribir(u"1.5,", TText::NumericoDes) == u"1,5");
    CHECK(Escribir(u"1,5.", TText::NumericoDes) == u"1,5");
    CHECK(Escribir(u".5", TText::NumericoDes) == u",5");
    CHECK(Escribir(u",", TText::NumericoDes) == u",");
}

TEST_CASE("numbers accept digits, control characters and the exclamation mark, nothing else") {
    for (const TText tipo : {TText::NumericoEnt, TText::NumericoDes}) {
        for (int tecla = 1; tecla < 0x10000; ++tecla) {
            const bool pasa = tecla < 32 || tecla == '!' || (tecla >= '0' && tecla <= '9');
            const bool esComa = tipo == TText::NumericoDes && (tecla == ',' || tecla == '.');
            const int esperado = esComa ? ',' : pasa ? static_cast<std::int16_t>(tecla) : 0;
            if (Filtrar(tecla, tipo) != esperado)
                FAIL("character " << tecla);
        }
    }
}

TEST_CASE("in a number a space and the signs are refused, backspace and Enter work") {
    for (const TText tipo : {TText::NumericoEnt, TText::NumericoDes}) {
        CHECK(Filtrar(' ', tipo) == 0);
        CHECK(Filtrar('-', tipo) == 0);
        CHECK(Filtrar('+', tipo) == 0);
        CHECK(Filtrar('!', tipo) == '!');
        CHECK(Filtrar(8, tipo) == 8);
        CHECK(Filtrar(13, tipo) == 13);
        CHECK(Filtrar(9, tipo) == 9);
    }
}

TEST_CASE("letters of the upper half of the code page are no control characters") {
    CHECK(Filtrar(0x8A9E, TText::NumericoEnt) == 0);
    CHECK(Filtrar(0xFFFF, TText::NumericoDes) == 0);
    CHECK(Numero(0xD83D, true) == 0);
}

TEST_CASE("the rule of numbers alone lets the space through") {
    CHECK(Numero(' ', false) == ' ');
    CHECK(Numero('7', false) == '7');
    CHECK(Numero('.', false) == 0);
    CHECK(Numero('.', true) == ',');
    CHECK(Numero('.', true, u"0,3") == 0);
    CHECK(Numero(',', true, u"0.3") == ',');
    CHECK(Numero('-', true) == 0);
    CHECK(Numero('!', true) == '!');
}

TEST_CASE("capitals: every letter becomes its upper-case form, accents included") {
    CHECK(Escribir(u"mañana 1.5, ¡áéíóúü!", TText::Mayuscula) == u"MAÑANA 1.5, ¡ÁÉÍÓÚÜ!");
    CHECK(Escribir(u"ABC", TText::Mayuscula) == u"ABC");
    CHECK(Filtrar(0xFF, TText::Mayuscula) == 0x178); // y with diaeresis
    CHECK(Filtrar(0xDF, TText::Mayuscula) == 0xDF);  // sharp s has none
    CHECK(Filtrar(8, TText::Mayuscula) == 8);
    // Halves of a character beyond 16 bits stay what they are.
    CHECK(Filtrar(0xD83D, TText::Mayuscula) == static_cast<std::int16_t>(0xD83D));
}

TEST_CASE("any text, and a type that is none, changes nothing") {
    CHECK(Escribir(u"a.B-1 ,,", TText::TextNorm) == u"a.B-1 ,,");
    CHECK(Escribir(u"a.B-1 ,,", static_cast<TText>(4)) == u"a.B-1 ,,");
    CHECK(Escribir(u"a.B-1 ,,", static_cast<TText>(-1)) == u"a.B-1 ,,");
}

TEST_CASE("characters of the excluded list are dropped, as they are after the filter") {
    CHECK(Filtrar('a', TText::TextNorm, {}, u"xyza") == 0);
    CHECK(Filtrar('b', TText::TextNorm, {}, u"xyza") == 'b');
    CHECK(Filtrar('a', TText::Mayuscula, {}, u"a") == 'A');
    CHECK(Filtrar('a', TText::Mayuscula, {}, u"A") == 0);
    CHECK(Filtrar('.', TText::NumericoDes, {}, u",") == 0);
    CHECK(Filtrar('5', TText::NumericoEnt, {}, u"5") == 0);
}

TEST_CASE("the excluded list is counted in a byte") {
    CHECK(Filtrar('z', TText::TextNorm, {}, Texto(254, u'x') + u"z") == 0);
    CHECK(ErrorDe([] { Filtrar('z', TText::TextNorm, {}, Texto(256, u'x')); }) == kDesbordamiento);
}
