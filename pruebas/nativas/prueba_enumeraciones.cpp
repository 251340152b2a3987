#include "common/color.h"
#include "common/conversion.h"
#include "common/enumeraciones.h"

#include <doctest/doctest.h>

#include <cstddef>

using namespace pincela;

namespace {

template <class E>
std::int32_t Numero(E miembro) {
    static_assert(sizeof(E) == 4);
    return static_cast<std::int32_t>(miembro);
}

} // namespace

TEST_CASE("The opaque background is 1 and the transparent one 0 although it is listed first") {
    CHECK(Numero(TBack::Opaco) == 1);
    CHECK(Numero(TBack::Transparente) == 0);
}

TEST_CASE("Enumerations start where they are published to start") {
    CHECK(Numero(TText::TextNorm) == 0);
    CHECK(Numero(TText::NumericoDes) == 3);
    CHECK(Numero(TSombra::Negra) == 1);
    CHECK(Numero(TSombra::Invertida) == 4);
    CHECK(Numero(Tamanio::Chico) == 1);
    CHECK(Numero(Tamanio::Grande) == 3);
    CHECK(Numero(EfectosBoton::BotVisibSobre) == 2);
    CHECK(Numero(TLetra::Normal) == 0);
    CHECK(Numero(TLetra::InvesoU) == 4);
    CHECK(Numero(TEstilos::REDONDEADO) == 1);
    CHECK(Numero(TEstilosR::Solido) == 0);
    CHECK(Numero(TEstilosR::D_Diagonal) == 4);
    CHECK(Numero(ColoresRGB::Azul) == 2);
    CHECK(Numero(TEstilosB::Ninguno) == 0);
    CHECK(Numero(TEstilosB::Normal) == 1);
    CHECK(Numero(TEstilosB::Degradados) == 4);
    CHECK(Numero(Alineaciones::Izq_Sup) == 0);
    CHECK(Numero(Alineaciones::Der_Inf) == 8);
}

TEST_CASE("A value outside an enumeration is kept as it stands") {
    CHECK(Numero(AEnumeracion<TEstilosB>(std::int32_t{77})) == 77);
    CHECK(Numero(AEnumeracion<TBack>(std::int16_t{-5})) == -5);
    CHECK(Numero(AEnumeracion<Tamanio>(Texto(u"9"))) == 9);
}

TEST_CASE("The nine places go column by column") {
    for (std::int32_t v = 0; v <= 8; ++v) {
        const auto lugar = static_cast<Alineaciones>(v);
        CHECK(EsLugar(lugar));
        CHECK(static_cast<int>(ClaseHorizontal(lugar)) == v / 3);
        CHECK(static_cast<int>(ClaseVertical(lugar)) == v % 3);
    }
    CHECK(ClaseHorizontal(Alineaciones::Med_Sup) == Horizontal::Centro);
    CHECK(ClaseVertical(Alineaciones::Med_Sup) == Vertical::Arriba);
    CHECK(ClaseHorizontal(Alineaciones::Der_Inf) == Horizontal::Derecha);
    CHECK(ClaseVertical(Alineaciones::Izq_Inf) == Vertical::Abajo);
    CHECK_FALSE(EsLugar(static_cast<Alineaciones>(-1)));
    CHECK_FALSE(EsLugar(static_cast<Alineaciones>(9)));
}

TEST_CASE("The curvature record is two floats without a gap") {
    CHECK(offsetof(tRectRedo, RelX) == 0);
    CHECK(offsetof(tRectRedo, RelY) == 4);
}

TEST_CASE("A colour of three channels limits each to a byte") {
    CHECK(ColorRGB(255, 128, 64).valor == 0x4080FF);
    CHECK(ColorRGB(300, 0, 256).valor == 0xFF00FF);
    CHECK(CaraDeBoton.EsDeSistema());
    CHECK_FALSE(SinColor.EsDeSistema());
    CHECK_FALSE(Blanco.EsDeSistema());
}
