// What the property pages publish.
#pragma once

#include "componente/tabla.h"
#include "paginas/paginas.h"

namespace pincela::componente {

struct TablaProPColores {
    using Nucleo = ProPColores;
    static constexpr auto miembros = std::tuple{
        metodo<&ProPColores::AgregarColorD>(0x6003000D, L"AgregarColorD", Parametro{L"Obj"},
                                            Parametro{L"I"}),
        metodo<&ProPColores::EliminarColorD>(0x6003000E, L"EliminarColorD", Parametro{L"Obj"},
                                             Parametro{L"I"}),
        metodo<&ProPColores::PreVis>(0x6003000F, L"PreVis", Parametro{L"I"}, Parametro{L"Objs"}),
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
        metodo<&ProPColoresArea::AgregarColorD>(0x60030010, L"AgregarColorD", Parametro{L"Obj"},
                                                Parametro{L"I"}),
        metodo<&ProPColoresArea::EliminarColorD>(0x60030011, L"EliminarColorD", Parametro{L"Obj"},
                                                 Parametro{L"I"}),
        metodo<&ProPColoresArea::PreVis>(0x60030012, L"PreVis", Parametro{L"Objs"}),
    };
    static constexpr auto eventos = std::tuple{};
};

} // namespace pincela::componente
