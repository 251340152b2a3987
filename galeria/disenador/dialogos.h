// The platform's own dialogs, as the designer asks them.
#pragma once

#include "anfitrion/variante.h"

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

namespace galeria {

/// Each answers nothing when the user gives up. Members can be replaced, by a test above all.
struct Dialogos {
    std::function<std::optional<COLORREF>(HWND, COLORREF)> color;
    /// The second one is the present font; null for none.
    std::function<std::optional<anfitrion::Variante>(HWND, IDispatch*)> fuente;
    std::function<std::optional<anfitrion::Variante>(HWND)> imagen;
    std::function<std::optional<std::wstring>(HWND)> abrir;
    std::function<std::optional<std::wstring>(HWND)> guardar;
    std::function<std::optional<std::wstring>(HWND)> exportar;

    static Dialogos DeLaPlataforma();
};

} // namespace galeria
