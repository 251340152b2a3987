#include "galeria/diseno/gesto.h"

#include <doctest/doctest.h>

using namespace diseno;

TEST_CASE("A click that trembles moves nothing") {
    Gesto gesto = Gesto::Mover({50, 50}, {{10, 10, 90, 40}}, {8});
    CHECK_FALSE(gesto.Seguir({53, 47}, false));
    CHECK_FALSE(gesto.Arrancado());
    CHECK(gesto.Cajas() == std::vector<Caja>{{10, 10, 90, 40}});
}

TEST_CASE("All boxes move as the first one, which goes to the grid") {
    Gesto gesto = Gesto::Mover({50, 50}, {{10, 10, 90, 40}, {33, 60, 53, 80}}, {8});
    CHECK(gesto.Seguir({60, 50}, false));
    CHECK(gesto.Cajas() == std::vector<Caja>{{24, 8, 104, 38}, {47, 58, 67, 78}});
    CHECK_FALSE(gesto.Seguir({61, 51}, false));
    CHECK(gesto.Seguir({61, 51}, true));
    CHECK(gesto.Cajas().front() == Caja{21, 11, 101, 41});
}

TEST_CASE("A drag that comes back ends where it began") {
    Gesto gesto = Gesto::Mover({50, 50}, {{16, 16, 96, 48}}, {8});
    gesto.Seguir({90, 90}, false);
    gesto.Seguir({50, 50}, false);
    CHECK(gesto.Arrancado());
    CHECK(gesto.Cajas().front() == Caja{16, 16, 96, 48});
}

TEST_CASE("A handle drags its edges over the grid") {
    Gesto gesto = Gesto::Estirar({96, 48}, {16, 16, 96, 48}, Agarre::DerInf, 8, {8});
    CHECK(gesto.Seguir({110, 61}, false));
    CHECK(gesto.Cajas().front() == Caja{16, 16, 112, 64});
}

TEST_CASE("A rubber band spans from where the mouse went down, in any direction") {
    Gesto gesto = Gesto::Abarcar({50, 50});
    CHECK(gesto.Cajas().front() == Caja{50, 50, 50, 50});
    gesto.Seguir({31, 77}, false);
    CHECK(gesto.Cajas().front() == Caja{31, 50, 50, 77});
}

TEST_CASE("A new place has its corners on the grid") {
    Gesto gesto = Gesto::Trazar({13, 10}, {8});
    gesto.Seguir({95, 42}, false);
    CHECK(gesto.Cajas().front() == Caja{16, 8, 96, 40});
    gesto.Seguir({95, 42}, true);
    CHECK(gesto.Cajas().front() == Caja{13, 10, 95, 42});
}
