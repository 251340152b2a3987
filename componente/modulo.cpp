#include "componente/modulo.h"

#include "componente/fabrica.h"
#include "componente/registro/archivos.h"
#include "plataforma/windows/cerrojo.h"
#include "plataforma/windows/regional.h"

#include <atomic>
#include <string>
#include <utility>

namespace pincela::componente {

namespace {

HINSTANCE modulo = nullptr;
std::atomic<long> bloqueos{0};

windows::Cerrojo cerrojo;       // of what follows
ITypeLib* biblioteca = nullptr; // counted; released with the last object

} // namespace

HINSTANCE Modulo() {
    return modulo;
}

std::wstring ArchivoDelModulo() {
    std::wstring ruta(MAX_PATH, L'\0');
    for (;;) {
        const DWORD largo =
            GetModuleFileNameW(modulo, ruta.data(), static_cast<DWORD>(ruta.size()));
        if (largo < ruta.size()) {
            ruta.resize(largo);
            return ruta;
        }
        ruta.resize(2 * ruta.size());
    }
}

void BloquearModulo() {
    ++bloqueos;
}

void DesbloquearModulo() {
    if (--bloqueos != 0)
        return;
    // Under the lock to the end: the platform does not like a library asked for and let go of at
    // the same moment.
    const windows::Cerrojo::Guarda guarda(cerrojo);
    if (ITypeLib* vieja = std::exchange(biblioteca, nullptr))
        vieja->Release();
}

bool ModuloOcioso() {
    return bloqueos == 0;
}

HRESULT BibliotecaDeTipos(ITypeLib** salida) {
    *salida = nullptr;
    const windows::Cerrojo::Guarda guarda(cerrojo);
    if (!biblioteca) {
        const std::wstring ruta = ArchivoDelModulo();
        if (ruta.empty())
            return TYPE_E_CANTLOADLIBRARY;
        // The library of this very file, whatever the registry says.
        HRESULT estado = LoadTypeLibEx(ruta.c_str(), REGKIND_NONE, &biblioteca);
        if (FAILED(estado) && ruta.size() >= MAX_PATH) // which is all the platform reads
            estado = LoadTypeLibEx(NombreCorto(ruta).c_str(), REGKIND_NONE, &biblioteca);
        if (FAILED(estado))
            return estado;
    }
    biblioteca->AddRef();
    *salida = biblioteca;
    return S_OK;
}

HRESULT InformacionDe(REFGUID guid, ITypeInfo** info) {
    *info = nullptr;
    Ptr<ITypeLib> propia;
    const HRESULT estado = BibliotecaDeTipos(propia.Recibir());
    return FAILED(estado) ? estado : propia->GetTypeInfoOfGuid(guid, info);
}

} // namespace pincela::componente

extern "C" {

BOOL WINAPI DllMain(HINSTANCE instancia, DWORD motivo, void*) {
    if (motivo == DLL_PROCESS_ATTACH) {
        pincela::componente::modulo = instancia;
        DisableThreadLibraryCalls(instancia);
        pincela::PonLectorRegional(pincela::windows::LeerRegional);
    }
    return TRUE;
}

HRESULT WINAPI DllGetClassObject(REFCLSID clase, REFIID iid, void** salida) {
    return pincela::componente::DarFabrica(clase, iid, salida);
}

HRESULT WINAPI DllCanUnloadNow() {
    return pincela::componente::ModuloOcioso() ? S_OK : S_FALSE;
}
}
