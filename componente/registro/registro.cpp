#include "componente/registro/registro.h"

#include "componente/modulo.h"
#include "componente/puentes.h"
#include "componente/registro/archivos.h"
#include "componente/registro/deshacer.h"
#include "componente/registro/nombres.h"

#include <olectl.h>

namespace pincela::componente {

namespace {

constexpr GUID CategoriaDeControles = "{40FC6ED4-2438-11CF-A3DB-080036F12502}"_guid;

using Claves = std::vector<ClaveDeRegistro>;

void AgregarBiblioteca(Claves& claves, const std::wstring& archivo) {
    claves.push_back({RutaDeLocale() + L"\\" + Sistema, L"", archivo});
    claves.push_back({RutaDeVersion(), L"", NombreDeLaBiblioteca});
    claves.push_back({RutaDeVersion() + L"\\FLAGS", L"", Escrito(LIBFLAG_FCONTROL)});
    claves.push_back({RutaDeAyuda(), L"", CarpetaDe(archivo)});
}

void AgregarInterfaz(Claves& claves, const GUID& interfaz, const std::wstring& nombre,
                     const GUID& puente) {
    const std::wstring ruta = RutaDeInterfaz(interfaz);
    claves.push_back({ruta, L"", nombre});
    claves.push_back({ruta + L"\\ProxyStubClsid32", L"", Escrito(puente)});
    claves.push_back({ruta + L"\\TypeLib", L"", Escrito(GuidDeLaBiblioteca)});
    claves.push_back({ruta + L"\\TypeLib", L"Version", VersionDeBiblioteca()});
}

void AgregarControl(Claves& claves, const DatosClase& datos, const std::wstring& archivo) {
    const std::wstring ruta = RutaDeClase(datos.clase);
    claves.push_back({ruta + L"\\Control", L"", L""});
    claves.push_back({ruta + L"\\Insertable", L"", L""});
    claves.push_back(
        {ruta + L"\\Implemented Categories\\" + Escrito(CategoriaDeControles), L"", L""});
    claves.push_back({ruta + L"\\MiscStatus", L"", L"0"});
    claves.push_back({ruta + L"\\MiscStatus\\1", L"", Escrito(datos.rasgosOle)});
    claves.push_back(
        {ruta + L"\\ToolboxBitmap32", L"", archivo + L", " + Escrito(datos.mapaDeBits)});
}

void AgregarClase(Claves& claves, const DatosClase& datos, const std::wstring& archivo) {
    const std::wstring ruta = RutaDeClase(datos.clase), servidor = RutaDeServidor(datos.clase);
    const std::wstring programa = IdentificadorDePrograma(datos);
    // The file goes first: what was interrupted after it can still be told from another copy's.
    claves.push_back({servidor, L"", archivo});
    claves.push_back({servidor, L"ThreadingModel", L"Apartment"});
    claves.push_back({ruta, L"", programa});
    claves.push_back({ruta + L"\\ProgID", L"", programa});
    claves.push_back({ruta + L"\\Programmable", L"", L""});
    claves.push_back({ruta + L"\\TypeLib", L"", Escrito(GuidDeLaBiblioteca)});
    claves.push_back({ruta + L"\\VERSION", L"", VersionDeBiblioteca()});
    if (datos.genero == Genero::Control)
        AgregarControl(claves, datos, archivo);
    claves.push_back({Bajo(programa), L"", programa});
    claves.push_back({Bajo(programa) + L"\\CLSID", L"", Escrito(datos.clase)});
    AgregarInterfaz(claves, datos.interfaz, std::wstring(L"_") + datos.nombre, PuenteDual);
    if (datos.genero == Genero::Control)
        AgregarInterfaz(claves, datos.eventos, std::wstring(L"__") + datos.nombre, PuenteDespacho);
}

} // namespace

std::vector<ClaveDeRegistro> ClavesDelComponente(const std::wstring& archivo) {
    Claves claves;
    AgregarBiblioteca(claves, archivo);
    ParaCadaClase(
        [&]<class Tabla>(const DatosClase& datos) { AgregarClase(claves, datos, archivo); });
    return claves;
}

HRESULT Registrar(HKEY raiz, const std::wstring& archivo) {
    Deshacer deshacer(raiz);
    for (const ClaveDeRegistro& una : ClavesDelComponente(archivo)) {
        ClaveAbierta clave;
        LSTATUS error = deshacer.AbrirPorPartes(una.ruta, clave);
        if (error == ERROR_SUCCESS)
            error = deshacer.Poner(clave.get(), una.ruta, una.nombre, una.valor);
        if (error != ERROR_SUCCESS)
            return HRESULT_FROM_WIN32(error);
    }
    deshacer.Bien();
    return S_OK;
}

namespace {

HRESULT Instalar(HKEY raiz, bool instalar) noexcept {
    try {
        const std::wstring archivo = ArchivoDelModulo();
        if (archivo.empty())
            return SELFREG_E_CLASS;
        return instalar ? Registrar(raiz, archivo) : Desregistrar(raiz, archivo);
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

} // namespace

} // namespace pincela::componente

extern "C" {

HRESULT WINAPI DllRegisterServer() {
    return pincela::componente::Instalar(HKEY_LOCAL_MACHINE, true);
}

HRESULT WINAPI DllUnregisterServer() {
    return pincela::componente::Instalar(HKEY_LOCAL_MACHINE, false);
}

/// "user" registers for the present user alone, which needs no administrator rights.
HRESULT WINAPI DllInstall(BOOL instalar, LPCWSTR para) {
    const bool usuario = para && lstrcmpiW(para, L"user") == 0;
    if (para && *para && !usuario)
        return E_INVALIDARG;
    return pincela::componente::Instalar(usuario ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE,
                                         instalar != FALSE);
}
}
