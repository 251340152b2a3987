// The keyboard on the designer's table.
#include "galeria/disenador/mesa.h"

#include <algorithm>

namespace galeria {

using namespace anfitrion;

static bool Abajo(int tecla) {
    return GetKeyState(tecla) < 0;
}

bool Mesa::Teclear(const MSG& mensaje) {
    const bool tecla = mensaje.message == WM_KEYDOWN || mensaje.message == WM_SYSKEYDOWN;
    if (tecla && !Ejecutando()) {
        if (mensaje.message == WM_SYSKEYDOWN && mensaje.wParam == VK_RETURN) {
            Hacer(Orden::Propiedades);
            return true;
        }
        const bool hecha =
            Abajo(VK_CONTROL) ? TeclearConControl(mensaje.wParam) : TeclearDiseno(mensaje.wParam);
        if (hecha)
            return true;
    }
    return alTeclear && alTeclear(mensaje);
}

bool Mesa::TeclearDiseno(WPARAM tecla) {
    const bool mayusculas = Abajo(VK_SHIFT);
    switch (tecla) {
    case VK_LEFT:
        Empujar(-rejilla_.paso, 0, mayusculas);
        return true;
    case VK_RIGHT:
        Empujar(rejilla_.paso, 0, mayusculas);
        return true;
    case VK_UP:
        Empujar(0, -rejilla_.paso, mayusculas);
        return true;
    case VK_DOWN:
        Empujar(0, rejilla_.paso, mayusculas);
        return true;
    case VK_DELETE:
        Hacer(Orden::Eliminar);
        return true;
    case VK_TAB:
        Siguiente(mayusculas);
        return true;
    case VK_ESCAPE:
        if (gesto_)
            Abandonar();
        else if (!herramienta_.empty())
            TomarHerramienta(L"");
        else if (const auto dentro = Seleccion().empty() ? nullptr : Seleccion().front()->Dentro())
            forma_.Seleccionar(Controles{dentro});
        else
            forma_.Seleccionar({});
        return true;
    default:
        return false;
    }
}

bool Mesa::TeclearConControl(WPARAM tecla) {
    // One pixel at a time, whatever the grid.
    const bool mayusculas = Abajo(VK_SHIFT);
    switch (tecla) {
    case VK_LEFT:
        Empujar(-1, 0, mayusculas);
        return true;
    case VK_RIGHT:
        Empujar(1, 0, mayusculas);
        return true;
    case VK_UP:
        Empujar(0, -1, mayusculas);
        return true;
    case VK_DOWN:
        Empujar(0, 1, mayusculas);
        return true;
    default:
        break;
    }
    static constexpr struct {
        WPARAM tecla;
        Orden orden;
    } Atajos[] = {
        {'Z', Orden::Deshacer}, {'Y', Orden::Rehacer}, {'X', Orden::Cortar},
        {'C', Orden::Copiar},   {'V', Orden::Pegar},   {'A', Orden::ElegirTodo},
        {'J', Orden::AlFrente}, {'K', Orden::AlFondo},
    };
    for (const auto& atajo : Atajos)
        if (atajo.tecla == tecla) {
            Hacer(atajo.orden);
            return true;
        }
    return false;
}

void Mesa::Siguiente(bool atras) {
    const Controles& todos = forma_.Controles();
    if (todos.empty())
        return;
    const std::size_t n = todos.size();
    const auto actual = Seleccion().empty()
                            ? todos.end()
                            : std::find(todos.begin(), todos.end(), Seleccion().front());
    const auto lugar = static_cast<std::size_t>(actual - todos.begin());
    const std::size_t otro = lugar == n ? (atras ? n - 1 : 0) : (lugar + (atras ? n - 1 : 1)) % n;
    forma_.Seleccionar(Controles{todos[otro]});
}

} // namespace galeria
