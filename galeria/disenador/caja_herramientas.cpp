#include "galeria/disenador/caja_herramientas.h"

namespace galeria {

using namespace anfitrion;

HBITMAP ImagenDe(const Componente& componente, const std::wstring& clase) {
    wchar_t identificador[40], valor[MAX_PATH + 20];
    LONG bytes = sizeof valor;
    try {
        StringFromGUID2(componente.Clase(clase), identificador, 40);
    } catch (const FalloCom&) {
        return nullptr;
    }
    const std::wstring clave = std::wstring(L"CLSID\\") + identificador + L"\\ToolboxBitmap32";
    if (RegQueryValueW(HKEY_CLASSES_ROOT, clave.c_str(), valor, &bytes) != ERROR_SUCCESS)
        return nullptr;
    // A file, a comma and the number of the picture in it.
    const std::wstring dicho = valor;
    const std::size_t coma = dicho.rfind(L',');
    if (coma == std::wstring::npos)
        return nullptr;
    const HMODULE modulo =
        LoadLibraryExW(dicho.substr(0, coma).c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    if (!modulo)
        return nullptr;
    const auto imagen =
        static_cast<HBITMAP>(LoadImageW(modulo, MAKEINTRESOURCEW(_wtoi(dicho.c_str() + coma + 1)),
                                        IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    FreeLibrary(modulo);
    return imagen;
}

} // namespace galeria
