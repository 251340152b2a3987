#include "comprobar_error.h"
#include "efectos/lista_colores.h"
#include "pruebas/cada.h"

#include <climits>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

using Numeros = std::vector<std::int32_t>;

Numeros Leidos(VistaTexto lista) {
    Numeros numeros;
    const ListaColores colores = LeerColores(lista);
    for (const Color color : colores.Vista())
        numeros.push_back(color.valor);
    return numeros;
}

} // namespace

TEST_CASE("A list is usable from two colours on") {
    CHECK(EsListaUsable(u"0*255"));
    CHECK(EsListaUsable(u"*"));
    CHECK_FALSE(EsListaUsable(u"255"));
    CHECK_FALSE(EsListaUsable(u""));
}

TEST_CASE("Colours are read in order") {
    CHECK(Leidos(u"0*255") == Numeros{0, 255});
    CHECK(Leidos(u"16777215*12632256*0") == Numeros{0xFFFFFF, 0xC0C0C0, 0});
    CHECK(Leidos(u"-1*-2147483648*2147483647") == Numeros{-1, INT_MIN, INT_MAX});
    CHECK(Leidos(u"7") == Numeros{7});
    CHECK(Leidos(u"999999999*-999999999*0000000012") == Numeros{999999999, -999999999, 12});
    CHECK(Leidos(u"12 *3-*-0") == Numeros{12, -3, 0});
}

TEST_CASE("A piece converts as automation converts text") {
    CHECK(Leidos(u" 255 * 0 ") == Numeros{255, 0});
    CHECK(Leidos(u"&HFF*&hff00*&HFFFFFFFF") == Numeros{255, 65280, -1});
    CHECK(Leidos(u"&HFF00*&O17") == Numeros{0xFF00, 15});
    CHECK(Leidos(u"1.5*2.5*3.5") == Numeros{2, 2, 4});
    CHECK(Leidos(u"1e3*1,000") == Numeros{1000, 1000});
}

TEST_CASE("A piece that is no number is a mismatch") {
    const Texto lista =
        pincela::pruebas::Cada<Texto>({u"", u"*", u"0**255", u"0*", u"*0", u"0*rojo", u"0*&H",
                                       u"0*0x10", u"0* ", u"0;255", u"0*1-2", u"-*0", u"0*-"});
    CAPTURE(lista);
    CHECK(ErrorDe([&] { LeerColores(lista); }) == kTipos);
}

TEST_CASE("A piece beyond 32 bits overflows") {
    CHECK(ErrorDe([] { LeerColores(u"0*2147483648"); }) == kDesbordamiento);
    CHECK(ErrorDe([] { LeerColores(u"0*-2147483649"); }) == kDesbordamiento);
    CHECK(ErrorDe([] { LeerColores(u"0*&H1FFFFFFFF"); }) == kDesbordamiento);
    CHECK(ErrorDe([] { LeerColores(u"0*1e99"); }) == kDesbordamiento);
}

TEST_CASE("A long list reads like a short one") {
    Texto lista;
    Numeros esperados;
    for (std::int32_t i = 0; i < 40; ++i) {
        AgregarColor(lista, Color(i * 1000));
        esperados.push_back(i * 1000);
        CHECK(Leidos(lista) == esperados);
    }
}

TEST_CASE("An editor of an empty list starts with white and black") {
    CHECK(ColoresDeEdicion(u"") == std::vector<Color>{Blanco, Negro});
    CHECK(ColoresDeEdicion(u"255") == std::vector<Color>{Color(std::int32_t{255})});
    CHECK(ErrorDe([] { ColoresDeEdicion(u"*"); }) == kTipos);
}

TEST_CASE("A list is written in decimal with a separator between two colours only") {
    Texto lista;
    AgregarColor(lista, Blanco);
    CHECK(lista == u"16777215");
    AgregarColor(lista, Negro);
    CHECK(lista == u"16777215*0");
    AgregarColor(lista, CaraDeBoton);
    CHECK(lista == u"16777215*0*-2147483633");
    CHECK(UnirColores({}).empty());
    CHECK(UnirColores(std::vector<Color>{Negro, SinColor}) == u"0*-1");
}

TEST_CASE("Reversing a list keeps its pieces as they are written") {
    CHECK(InvertirLista(u"1*2*3") == u"3*2*1");
    CHECK(InvertirLista(u" 1*&HFF*x") == u"x*&HFF* 1");
    CHECK(InvertirLista(u"7") == u"7");
    CHECK(InvertirLista(u"*5") == u"5*");
}

TEST_CASE("Reversing a list loses the empty pieces it ends in") {
    CHECK(InvertirLista(u"*").empty());
    CHECK(InvertirLista(u"****").empty());
    CHECK(InvertirLista(u"5*") == u"5");
    CHECK(InvertirLista(u"1*2**") == u"2*1");
    CHECK(InvertirLista(u"1**2*") == u"2**1");
}

TEST_CASE("Reversing counts pieces in 16 bits") {
    CHECK(InvertirLista(u"1*2" + Texto(32766, u'*')) == u"2*1");
    CHECK(ErrorDe([] { InvertirLista(u"1*2" + Texto(32767, u'*')); }) == kDesbordamiento);
}
