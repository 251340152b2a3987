#include "plataforma/windows/puntero.h"

#include "plataforma/windows/objetos_imagen.h"

namespace pincela::windows {

HCURSOR PunteroDe(std::int16_t constante, const Imagen& icono) {
    constexpr std::int16_t Propio = 99;
    if (constante == Propio) {
        const auto* ole = dynamic_cast<const ImagenOle*>(icono.get());
        return ole ? ole->Puntero() : nullptr;
    }
    // Constants 1 to 15; 4 is a small icon, which the platform shows as an arrow.
    const LPCWSTR nombres[] = {nullptr,      IDC_ARROW,       IDC_CROSS,    IDC_IBEAM,
                               IDC_ARROW,    IDC_SIZEALL,     IDC_SIZENESW, IDC_SIZENS,
                               IDC_SIZENWSE, IDC_SIZEWE,      IDC_UPARROW,  IDC_WAIT,
                               IDC_NO,       IDC_APPSTARTING, IDC_HELP,     IDC_SIZEALL};
    if (constante < 1 || constante > 15)
        return nullptr;
    return ::LoadCursorW(nullptr, nombres[constante]);
}

} // namespace pincela::windows
