#include "galeria/diseno/agarres.h"

#include "pruebas/cada.h"

using namespace diseno;
using pincela::pruebas::Cada;

TEST_CASE("A handle lies outside its box, in the middle of a side or beyond a corner") {
    const Caja caja{100, 50, 200, 90};
    CHECK(CajaDe(caja, Agarre::IzqSup, 7) == Caja{93, 43, 100, 50});
    CHECK(CajaDe(caja, Agarre::Sup, 7) == Caja{146, 43, 153, 50});
    CHECK(CajaDe(caja, Agarre::Der, 7) == Caja{200, 66, 207, 73});
    CHECK(CajaDe(caja, Agarre::DerInf, 7) == Caja{200, 90, 207, 97});
    CHECK(CajaDe(caja, Agarre::Izq, 7) == Caja{93, 66, 100, 73});
}

TEST_CASE("The middle of a handle is that handle, and the box itself is none") {
    const Caja caja{100, 50, 200, 90};
    for (const Agarre agarre : Agarres) {
        const Caja suya = CajaDe(caja, agarre, 7);
        CHECK(AgarreEn(caja, {suya.izquierda + 3, suya.arriba + 3}, 7) == agarre);
    }
    CHECK(AgarreEn(caja, {150, 70}, 7) == Agarre::Ninguno);
    CHECK(AgarreEn(caja, {100, 50}, 7) == Agarre::Ninguno);
    CHECK(AgarreEn(caja, {92, 43}, 7) == Agarre::Ninguno);
}

TEST_CASE("In a small box the corners win over the middles of the sides") {
    const Caja punto{10, 10, 12, 12};
    CHECK(AgarreEn(punto, {8, 8}, 7) == Agarre::IzqSup);
    CHECK(AgarreEn(punto, {13, 8}, 7) == Agarre::DerSup);
}

TEST_CASE("A handle moves its own edges and no other") {
    const Caja caja{16, 16, 80, 48};
    CHECK(Estirar(caja, Agarre::Der, 10, 99, 8, {8}) == Caja{16, 16, 88, 48});
    CHECK(Estirar(caja, Agarre::Sup, 99, -9, 8, {8}) == Caja{16, 8, 80, 48});
    CHECK(Estirar(caja, Agarre::IzqInf, -5, 5, 8, {8}) == Caja{8, 16, 80, 56});
    CHECK(Estirar(caja, Agarre::DerInf, 3, 5, 8, {}) == Caja{16, 16, 83, 53});
}

TEST_CASE("A box doesn't get smaller than it may, nor turn over") {
    const Caja caja{16, 16, 80, 48};
    CHECK(Estirar(caja, Agarre::Izq, 500, 0, 8, {8}) == Caja{72, 16, 80, 48});
    CHECK(Estirar(caja, Agarre::DerInf, -500, -500, 8, {8}) == Caja{16, 16, 24, 24});
    CHECK(Estirar(caja, Agarre::Sup, 0, 500, 8, {8}) == Caja{16, 40, 80, 48});
}

TEST_CASE("The grid takes the nearest line on both sides of zero") {
    const Rejilla rejilla{8};
    const int valor = Cada({0, 3, 4, 8, 11, -3, -4, -5, -8});
    const int cerca = rejilla.Ajustar(valor);
    CHECK(cerca % 8 == 0);
    CHECK(cerca - valor <= 4);
    CHECK(valor - cerca < 4);
    CHECK(Rejilla{}.Ajustar(valor) == valor);
}
