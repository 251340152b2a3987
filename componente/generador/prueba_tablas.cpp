#include "componente/tablas/congelado.h"

#include <doctest/doctest.h>

#include <vector>

using namespace pincela;
using namespace pincela::componente;

namespace {

constexpr auto Nueva = metodo<&Botonazo::Actualizar>(0x60030080, L"Nueva");

/// The button with one member more, after the first `lugar`.
template <std::size_t lugar>
struct ConUnoMas {
    static constexpr auto miembros = []<std::size_t... A, std::size_t... D>(
        std::index_sequence<A...>, std::index_sequence<D...>) {
        return std::tuple{std::get<A>(TablaBotonazo::miembros)..., Nueva,
                          std::get<lugar + D>(TablaBotonazo::miembros)...};
    }
    (std::make_index_sequence<lugar>{}, std::make_index_sequence<28 - lugar>{});
};

struct Renumerada {
    static constexpr auto miembros = [] {
        auto todos = TablaBotonazo::miembros;
        std::get<3>(todos).rasgos.dispid = std::get<2>(todos).rasgos.dispid;
        return todos;
    }();
};

struct EventosCambiados {
    static constexpr auto eventos =
        std::tuple{std::get<1>(TablaBotonazo::eventos), std::get<0>(TablaBotonazo::eventos)};
};

template <class Tabla>
std::vector<DISPID> Identificadores() {
    std::vector<DISPID> todos;
    ParaCadaMiembro<Tabla>(
        [&](const auto& miembro, auto) { todos.push_back(miembro.rasgos.dispid); });
    return todos;
}

} // namespace

TEST_CASE("A member put in anywhere moves no identifier but is found where it moves a slot") {
    std::vector<DISPID> esperados = Identificadores<TablaBotonazo>();
    esperados.insert(esperados.begin() + 5, 0x60030080);
    CHECK(Identificadores<ConUnoMas<5>>() == esperados);
    CHECK_FALSE(Conserva<ConUnoMas<5>>(congelado::DeBotonazo));
    CHECK_FALSE(Conserva<ConUnoMas<0>>(congelado::DeBotonazo));
}

TEST_CASE("A member appended has to be written into the frozen list") {
    CHECK_FALSE(Conserva<ConUnoMas<28>>(congelado::DeBotonazo));
    DISPID alargada[29];
    std::copy(std::begin(congelado::DeBotonazo), std::end(congelado::DeBotonazo), alargada);
    alargada[28] = 0x60030080;
    CHECK(Conserva<ConUnoMas<28>>(alargada));
}

TEST_CASE("Two members can't bear one identifier, whatever the list says") {
    CHECK_FALSE(Conserva<Renumerada>(congelado::DeBotonazo));
    DISPID repetida[28];
    std::copy(std::begin(congelado::DeBotonazo), std::end(congelado::DeBotonazo), repetida);
    repetida[3] = repetida[2];
    CHECK_FALSE(Conserva<Renumerada>(repetida));
}

TEST_CASE("Events out of order or in another number are found") {
    CHECK(ConservaEventos<TablaBotonazo>(11));
    CHECK_FALSE(ConservaEventos<TablaBotonazo>(10));
    CHECK_FALSE(ConservaEventos<EventosCambiados>(2));
}
