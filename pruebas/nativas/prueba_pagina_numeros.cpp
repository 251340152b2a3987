// Numbers as they are typed on a page.
#include "paginas/numeros.h"
#include "pruebas/nativas/comprobar_error.h"
#include "pruebas/nativas/pagina_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("a comma is a decimal separator in every locale") {
    for (const Regional regional : {Espaniol, Ingles, Regional{u'\u066B', u'\u066C'}}) {
        const ConRegional con(regional);
        CHECK(LeerNumero(u"0,5") == 0.5);
        CHECK(LeerNumero(u" 12,25 ") == 12.25);
        CHECK(LeerNumero(u",5") == 0.5);
        CHECK(LeerNumero(u"7") == 7);
        CHECK(ErrorDe([] { LeerNumero(u","); }) == kTipos);
        CHECK(ErrorDe([] { LeerNumero(u""); }) == kTipos);
    }
}

TEST_CASE("a number with the separator of the locale is read by its rules") {
    const ConRegional con(Ingles);
    CHECK(LeerNumero(u"0.5") == 0.5);
    CHECK(LeerNumero(u"1,234.5") == 1234.5);
}

TEST_CASE("the number a text begins with") {
    for (const Regional regional : {Espaniol, Ingles}) {
        const ConRegional con(regional);
        CHECK(NumeroInicial(u"12,5x") == 12.5);
        CHECK(NumeroInicial(u"12.5") == 12.5);
        CHECK(NumeroInicial(u"-3") == -3);
        CHECK(NumeroInicial(u"") == 0);
        CHECK(NumeroInicial(u"x") == 0);
    }
}
