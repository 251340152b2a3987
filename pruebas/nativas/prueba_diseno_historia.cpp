#include "galeria/diseno/historia.h"

#include <doctest/doctest.h>

using diseno::Historia;

namespace {

Historia<int> Hasta(int ultimo, std::size_t limite = 200) {
    Historia<int> historia(limite);
    historia.Empezar(0);
    for (int i = 1; i <= ultimo; ++i)
        historia.Anotar(i);
    return historia;
}

} // namespace

TEST_CASE("What was undone can be done again") {
    auto historia = Hasta(2);
    CHECK(historia.Deshacer() == 1);
    CHECK(historia.Deshacer() == 0);
    CHECK_FALSE(historia.PuedeDeshacer());
    CHECK(historia.Rehacer() == 1);
    CHECK(historia.Rehacer() == 2);
    CHECK_FALSE(historia.PuedeRehacer());
}

TEST_CASE("Something new after an undo takes the place of what was undone") {
    auto historia = Hasta(2);
    historia.Deshacer();
    CHECK(historia.Anotar(7));
    CHECK_FALSE(historia.PuedeRehacer());
    CHECK(historia.Deshacer() == 1);
}

TEST_CASE("A state like the present one is no step") {
    auto historia = Hasta(1);
    CHECK_FALSE(historia.Anotar(1));
    CHECK(historia.Deshacer() == 0);
}

TEST_CASE("Steps that follow each other under one name are undone at once") {
    auto historia = Hasta(1);
    for (int i = 2; i <= 5; ++i)
        CHECK(historia.Anotar(i, "flechas"));
    CHECK(historia.Anotar(6, "otra"));
    CHECK(historia.Deshacer() == 5);
    CHECK(historia.Deshacer() == 1);
}

TEST_CASE("Whoever cuts begins a step of its own, and so does an undo") {
    auto historia = Hasta(0);
    historia.Anotar(1, "flechas");
    historia.Cortar();
    historia.Anotar(2, "flechas");
    CHECK(historia.Deshacer() == 1);
    historia.Anotar(3, "flechas");
    CHECK(historia.Deshacer() == 1);
}

TEST_CASE("The oldest steps are forgotten") {
    auto historia = Hasta(10, 3);
    CHECK(historia.Actual() == 10);
    int pasos = 0;
    for (; historia.PuedeDeshacer(); ++pasos)
        historia.Deshacer();
    CHECK(pasos == 3);
    CHECK(historia.Actual() == 7);
}

TEST_CASE("A new beginning can't be undone") {
    auto historia = Hasta(4);
    historia.Empezar(40);
    CHECK(historia.Actual() == 40);
    CHECK_FALSE(historia.PuedeDeshacer());
    CHECK_FALSE(historia.PuedeRehacer());
}
