#include "comprobar_error.h"

#include <set>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("An error carries its number to whoever catches it") {
    CHECK(ErrorDe([] { Lanzar(NumeroError::Desbordamiento); }) == 6);
    CHECK_THROWS_AS(Lanzar(NumeroError::Subindice), std::exception);
}

TEST_CASE("Every error number has a description of its own, in Spanish") {
    std::set<Texto> vistas;
    for (const auto numero :
         {NumeroError::LlamadaNoValida, NumeroError::Desbordamiento, NumeroError::SinMemoria,
          NumeroError::Subindice, NumeroError::DivisionPorCero, NumeroError::TiposNoCoinciden,
          NumeroError::PermisoDenegado, NumeroError::NuloNoValido, NumeroError::ValorDePropiedad}) {
        CHECK_FALSE(DescripcionDe(numero).empty());
        CHECK(vistas.insert(DescripcionDe(numero)).second);
    }
    CHECK(DescripcionDe(NumeroError::Desbordamiento) == u"Desbordamiento");
    CHECK(DescripcionDe(NumeroError::DivisionPorCero) == u"División por cero");
    CHECK_FALSE(DescripcionDe(static_cast<NumeroError>(12345)).empty());
}
