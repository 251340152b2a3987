#include "pruebas/componente/memoria/desvio.h"

#include <cstring>

namespace memoria {

Desvio::Desvio(HMODULE modulo, const std::vector<Desviada>& desviadas) {
    auto* base = reinterpret_cast<unsigned char*>(modulo);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* cabecera = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& lugar =
        cabecera->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const auto* libro =
        reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + lugar.VirtualAddress);
    for (; libro->OriginalFirstThunk; ++libro) {
        const auto* nombres =
            reinterpret_cast<const IMAGE_THUNK_DATA*>(base + libro->OriginalFirstThunk);
        auto** direcciones = reinterpret_cast<void**>(base + libro->FirstThunk);
        for (; nombres->u1.AddressOfData; ++nombres, ++direcciones) {
            if (IMAGE_SNAP_BY_ORDINAL(nombres->u1.Ordinal))
                continue;
            const char* nombre = reinterpret_cast<const char*>(
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + nombres->u1.AddressOfData)
                    ->Name);
            for (const Desviada& una : desviadas) {
                if (std::strcmp(nombre, una.nombre) != 0)
                    continue;
                *una.original = *direcciones;
                cambios_.push_back({direcciones, *direcciones});
                Escribir(direcciones, una.nueva);
            }
        }
    }
}

Desvio::~Desvio() {
    for (const Cambio& uno : cambios_)
        Escribir(uno.lugar, uno.antes);
}

void Desvio::Escribir(void** lugar, void* valor) {
    DWORD antes = 0;
    VirtualProtect(lugar, sizeof *lugar, PAGE_READWRITE, &antes);
    *lugar = valor;
    VirtualProtect(lugar, sizeof *lugar, antes, &antes);
}

} // namespace memoria
