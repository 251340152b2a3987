#include "plataforma/windows/accesibilidad.h"

#include "plataforma/windows/puntero_com.h"

#include <oleacc.h>

namespace pincela::windows {

namespace {

constexpr GUID Servicio = {
    0xb5f8350b, 0x0548, 0x48b1, {0xa6, 0xee, 0x88, 0xbd, 0x00, 0xb4, 0xa5, 0xe7}};
constexpr GUID PropiedadNombre = {
    0x608d3df8, 0x8128, 0x4aa7, {0xa4, 0x28, 0xf5, 0x5e, 0x49, 0x26, 0x72, 0x91}};

} // namespace

bool NombrarVentana(HWND ventana, const Texto& nombre) {
    PunteroCom<IAccPropServices> servicio;
    if (FAILED(::CoCreateInstance(Servicio, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                                  servicio.RecibirVacio())))
        return false;
    return SUCCEEDED(servicio->SetHwndPropStr(ventana, static_cast<DWORD>(OBJID_CLIENT),
                                              CHILDID_SELF, PropiedadNombre,
                                              reinterpret_cast<const wchar_t*>(nombre.c_str())));
}

} // namespace pincela::windows
