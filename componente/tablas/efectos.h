// What `Efectos` publishes.
#pragma once

#include "componente/tabla.h"
#include "efectos/efectos.h"

namespace pincela::componente {

struct TablaEfectos {
    using Nucleo = Efectos;
    static constexpr auto miembros = std::tuple{
        metodo<&Efectos::DarForma>(0x60030000, L"DarForma", Parametro{L"HWND"}, Parametro{L"Ancho"},
                                   Parametro{L"Alto"}, Parametro{L"Forma"}, Parametro{L"Param"}),
        metodo<&Efectos::Degrade>(0x60030001, L"Degrade", Parametro{L"hdc"}, Parametro{L"Ancho"},
                                  Parametro{L"Alto"}, Parametro{L"Esti"}, Parametro{L"Valores"},
                                  Parametro{L"Angulo", true}),
        metodo<&Efectos::DevColor>(0x60030002, L"DevColor", Parametro{L"color"},
                                   Parametro{L"DColor", true, VT_I4, -1},
                                   Parametro{L"Simple", true, VT_BOOL, 0}),
        metodo<&Efectos::DarTrans>(0x60030003, L"DarTrans", Parametro{L"HdcO"}, Parametro{L"XO"},
                                   Parametro{L"YO"}, Parametro{L"AnchoO"}, Parametro{L"AltoO"},
                                   Parametro{L"HdcD"}, Parametro{L"XD"}, Parametro{L"YD"},
                                   Parametro{L"AnchoD"}, Parametro{L"AltoD"}, Parametro{L"Nivel"}),
        metodo<&Efectos::InviertoColor>(0x60030004, L"InviertoColor", Parametro{L"color"}),
    };
    static constexpr auto eventos = std::tuple{};
};

} // namespace pincela::componente
