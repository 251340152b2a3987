#include "common/conversion.h"

#include <doctest/doctest.h>

#include <cfloat>
#include <cmath>

using namespace pincela;

namespace {

/// Equal to whatever has the same mark, as two fonts of one description are.
struct Marcado : Objeto {
    explicit Marcado(int m) : marca(m) {}
    bool EsIgual(const Objeto& otro) const override {
        const auto* marcado = dynamic_cast<const Marcado*>(&otro);
        return marcado && marcado->marca == marca;
    }
    int marca;
};

bool Iguales(const Variante& a, const Variante& b) {
    const bool iguales = IgualesPorAutomatizacion(a, b);
    CHECK(IgualesPorAutomatizacion(b, a) == iguales);
    return iguales;
}

Variante T(const char16_t* texto) {
    return Texto(texto);
}

} // namespace

TEST_CASE("Empty equals zero, False, the empty text and no reference") {
    CHECK(Iguales(Vacio{}, Vacio{}));
    CHECK(Iguales(Vacio{}, std::int32_t{0}));
    CHECK(Iguales(Vacio{}, 0.0f));
    CHECK(Iguales(Vacio{}, false));
    CHECK(Iguales(Vacio{}, T(u"")));
    CHECK(Iguales(Vacio{}, ReferenciaObjeto{}));
    CHECK_FALSE(Iguales(Vacio{}, std::int32_t{1}));
    CHECK_FALSE(Iguales(Vacio{}, true));
    CHECK_FALSE(Iguales(Vacio{}, T(u"0")));
    CHECK_FALSE(Iguales(Vacio{}, std::make_shared<Marcado>(1)));
    CHECK_FALSE(Iguales(Vacio{}, Nulo{}));
    CHECK_FALSE(Iguales(Vacio{}, Falta{}));
}

TEST_CASE("Numbers of different types are equal by value") {
    CHECK(Iguales(std::int16_t{5}, std::int32_t{5}));
    CHECK(Iguales(std::uint8_t{255}, 255.0));
    CHECK(Iguales(std::int32_t{-1}, true));
    CHECK(Iguales(std::int16_t{0}, false));
    CHECK_FALSE(Iguales(std::int32_t{1}, true));
    CHECK_FALSE(Iguales(2.0, 2.5));
}

TEST_CASE("A float is compared as a float") {
    CHECK(Iguales(0.2f, 0.2));
    CHECK(Iguales(0.2f, 0.2f));
    CHECK_FALSE(Iguales(0.2f, 0.25));
    CHECK_FALSE(Iguales(FLT_MAX, 1e300));
    CHECK_FALSE(Iguales(std::nanf(""), 0.0));
}

TEST_CASE("Texts are compared letter by letter") {
    CHECK(Iguales(T(u"Aceptar"), T(u"Aceptar")));
    CHECK_FALSE(Iguales(T(u"Aceptar"), T(u"aceptar")));
    CHECK_FALSE(Iguales(T(u"1"), T(u"1.0")));
    CHECK_FALSE(Iguales(T(u""), T(u" ")));
}

TEST_CASE("A text equals a number when it says that number") {
    CHECK(Iguales(T(u"12"), std::int32_t{12}));
    CHECK(Iguales(T(u" 0.2 "), 0.2f));
    CHECK(Iguales(T(u"&HFF"), std::uint8_t{255}));
    CHECK_FALSE(Iguales(T(u"13"), std::int32_t{12}));
    CHECK_FALSE(Iguales(T(u"doce"), std::int32_t{12}));
    CHECK_FALSE(Iguales(T(u""), std::int32_t{0}));
    CHECK_FALSE(Iguales(T(u"1e999"), 1.0));
}

TEST_CASE("A text equals a truth value by name or by number") {
    CHECK(Iguales(T(u"True"), true));
    CHECK(Iguales(T(u"false"), false));
    CHECK(Iguales(T(u"-1"), true));
    CHECK(Iguales(T(u"0"), false));
    CHECK_FALSE(Iguales(T(u"True"), false));
    CHECK_FALSE(Iguales(T(u"Tal vez"), true));
}

TEST_CASE("References are equal by their attributes and no reference equals no reference") {
    const auto uno = std::make_shared<Marcado>(1), igual = std::make_shared<Marcado>(1),
               dos = std::make_shared<Marcado>(2);
    CHECK(Iguales(uno, uno));
    CHECK(Iguales(uno, igual));
    CHECK_FALSE(Iguales(uno, dos));
    CHECK_FALSE(Iguales(uno, ReferenciaObjeto{}));
    CHECK(Iguales(ReferenciaObjeto{}, ReferenciaObjeto{}));
    CHECK_FALSE(Iguales(ReferenciaObjeto{}, std::int32_t{0}));
    CHECK_FALSE(Iguales(ReferenciaObjeto{}, T(u"")));
    CHECK_FALSE(Iguales(uno, Nulo{}));
}

TEST_CASE("Null equals nothing and a missing argument only another") {
    CHECK_FALSE(Iguales(Nulo{}, Nulo{}));
    CHECK_FALSE(Iguales(Nulo{}, std::int32_t{0}));
    CHECK_FALSE(Iguales(Nulo{}, T(u"")));
    CHECK(Iguales(Falta{}, Falta{}));
    CHECK_FALSE(Iguales(Falta{}, std::int32_t{0}));
    CHECK_FALSE(Iguales(Falta{}, Nulo{}));
}
