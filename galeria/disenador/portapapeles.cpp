#include "galeria/disenador/portapapeles.h"

#include <cstring>

namespace galeria {

bool PonerEnPortapapeles(HWND ventana, const std::wstring& texto) {
    const std::size_t bytes = (texto.size() + 1) * sizeof(wchar_t);
    if (!OpenClipboard(ventana))
        return false;
    EmptyClipboard();
    const HGLOBAL memoria = GlobalAlloc(GMEM_MOVEABLE, bytes);
    bool puesto = false;
    if (void* lugar = memoria ? GlobalLock(memoria) : nullptr) {
        std::memcpy(lugar, texto.c_str(), bytes);
        GlobalUnlock(memoria);
        puesto = SetClipboardData(CF_UNICODETEXT, memoria);
    }
    if (memoria && !puesto)
        GlobalFree(memoria);
    CloseClipboard();
    return puesto;
}

std::wstring LeerPortapapeles(HWND ventana) {
    std::wstring texto;
    if (!OpenClipboard(ventana))
        return texto;
    if (const HANDLE memoria = GetClipboardData(CF_UNICODETEXT)) {
        const std::size_t cabe = GlobalSize(memoria) / sizeof(wchar_t);
        if (const auto* letras = static_cast<const wchar_t*>(GlobalLock(memoria)))
            texto.assign(letras, wcsnlen(letras, cabe));
        GlobalUnlock(memoria);
    }
    CloseClipboard();
    return texto;
}

} // namespace galeria
