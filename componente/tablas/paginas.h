// What the property pages publish.
#pragma once

#include "componente/tabla.h"
#include "paginas/paginas.h"

namespace pincela::componente {

struct TablaProPColores {
    using Nucleo = ProPColores;
    static constexpr auto miembros = std::tuple{
        metodo<&ProPColores::AgregarColorD>(L"AgregarColorD", 0x6003000D, Parametro{L"Obj"},
                                            Parametro{L"I"}),
        metodo<&ProPColores::EliminarColorD>(L"EliminarColorD", 0x6003000E, Parametro{L"Obj"},
                                             Parametro{L"I"}),
        metodo<&ProPColores::PreVis>(L"PreVis", 0x6003000F, Parametro{L"I"}, Parametro{L"Objs"}),
    };
    static constexpr auto eventos = std::tuple{};
};

struct TablaProPGeneral {
    using Nucleo = ProPGeneral;
    static constexpr auto miembros = std::tuple{};
    static constexpr auto eventos = std::tuple{};
};

struct TablaProPColoresArea {
    using Nucleo = ProPColoresArea;
    static constexpr auto miembros = std::tuple{
        metodo<&ProPColoresArea::AgregarColorD>(L"AgregarColorD", 0x60030010, Parametro{L"Obj"},
                                                Parametro{L"I"}),
        metodo<&ProPColoresArea::EliminarColorD>(L"EliminarColorD", 0x60030011, Parametro{L"Obj"},
                                                 Parametro{L"I"}),
        metodo<&ProPColoresArea::PreVis>(L"PreVis", 0x60030012, Parametro{L"Objs"}),
    };
    static constexpr auto eventos = std::tuple{};
};

} // namespace pincela::componente
