#include "common/texto.h"
#include "comprobar_error.h"
#include "pruebas/cada.h"

using namespace pincela;

TEST_CASE("A text is searched from 1 and an absent one is at 0") {
    CHECK(Posicion(u"16777215*0", u"*") == 9);
    CHECK(Posicion(u"*", u"*") == 1);
    CHECK(Posicion(u"abcabc", u"ca") == 3);
    CHECK(Posicion(u"abc", u"B") == 0);
    CHECK(Posicion(u"abc", u"abcd") == 0);
}

TEST_CASE("An empty text is found at the start of anything but an empty text") {
    CHECK(Posicion(u"abc", u"") == 1);
    CHECK(Posicion(u"", u"") == 0);
    CHECK(Posicion(u"", u"a") == 0);
}

TEST_CASE("A text is split at every separator and never into no pieces") {
    using Partes = std::vector<Texto>;
    CHECK(Partir(u"1*2*3", u'*') == Partes{u"1", u"2", u"3"});
    CHECK(Partir(u"", u'*') == Partes{u""});
    CHECK(Partir(u"*", u'*') == Partes{u"", u""});
    CHECK(Partir(u" 0 **255", u'*') == Partes{u" 0 ", u"", u"255"});
    CHECK(Partir(u"255", u'*') == Partes{u"255"});
}

TEST_CASE("Case changes one letter into one letter") {
    struct Fila {
        char16_t minuscula, mayuscula;
    };
    const auto [minuscula, mayuscula] = pincela::pruebas::Cada(
        {Fila{u'a', u'A'}, Fila{u'z', u'Z'}, Fila{u'ñ', u'Ñ'}, Fila{u'á', u'Á'}, Fila{u'ü', u'Ü'},
         Fila{u'ö', u'Ö'}, Fila{u'ø', u'Ø'}, Fila{u'þ', u'Þ'}, Fila{u'ÿ', u'Ÿ'}, Fila{u'ā', u'Ā'},
         Fila{u'į', u'Į'}, Fila{u'ķ', u'Ķ'}, Fila{u'ĺ', u'Ĺ'}, Fila{u'ň', u'Ň'}, Fila{u'ŋ', u'Ŋ'},
         Fila{u'š', u'Š'}, Fila{u'ŷ', u'Ŷ'}, Fila{u'ž', u'Ž'}, Fila{u'ź', u'Ź'}, Fila{u'ǎ', u'Ǎ'},
         Fila{u'ș', u'Ș'}, Fila{u'α', u'Α'}, Fila{u'ω', u'Ω'}, Fila{u'ρ', u'Ρ'}, Fila{u'σ', u'Σ'},
         Fila{u'ά', u'Ά'}, Fila{u'έ', u'Έ'}, Fila{u'ί', u'Ί'}, Fila{u'ό', u'Ό'}, Fila{u'ύ', u'Ύ'},
         Fila{u'ώ', u'Ώ'}, Fila{u'ϊ', u'Ϊ'}, Fila{u'а', u'А'}, Fila{u'я', u'Я'}, Fila{u'ё', u'Ё'},
         Fila{u'џ', u'Џ'}, Fila{u'ґ', u'Ґ'}, Fila{u'ӏ', u'Ӏ'}, Fila{u'ӂ', u'Ӂ'}, Fila{u'ӵ', u'Ӵ'},
         Fila{u'ẁ', u'Ẁ'}, Fila{u'ệ', u'Ệ'}});
    CAPTURE(static_cast<unsigned>(minuscula));
    CHECK(Mayuscula(minuscula) == mayuscula);
    CHECK(Minuscula(mayuscula) == minuscula);
    CHECK(Mayuscula(mayuscula) == mayuscula);
    CHECK(Minuscula(minuscula) == minuscula);
}

TEST_CASE("A final sigma has the common capital, whose small letter is the common sigma") {
    CHECK(Mayuscula(u'ς') == u'Σ');
    CHECK(Minuscula(u'Σ') == u'σ');
}

TEST_CASE("What is no letter, or has no single counterpart, stays as it is") {
    for (const char16_t letra : Texto(u"0 @[`{×÷ßµªİıſΐ中")) {
        CAPTURE(static_cast<unsigned>(letra));
        CHECK(Mayuscula(letra) == letra);
        CHECK(Minuscula(letra) == letra);
    }
}

TEST_CASE("Going up and coming down gives back every small letter but the final sigma") {
    for (unsigned i = 0; i < 0x10000; ++i) {
        const auto letra = static_cast<char16_t>(i);
        if (Mayuscula(letra) != letra && letra != u'ς' && Minuscula(Mayuscula(letra)) != letra)
            FAIL("letter " << i);
        if (Minuscula(letra) != letra && Mayuscula(Minuscula(letra)) != letra)
            FAIL("letter " << i);
    }
}

TEST_CASE("A whole text changes case without changing length") {
    CHECK(Mayusculas(u"camión 12 ñandú straße") == u"CAMIÓN 12 ÑANDÚ STRAßE");
    CHECK(Minusculas(u"ÁREA Ω Ж") == u"área ω ж");
    CHECK(Mayusculas(u"").empty());
}
