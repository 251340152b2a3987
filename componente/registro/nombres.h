// Where in the registry a class, an interface and the library live, below the root of a hive.
#pragma once

#include "componente/clases.h"

#include <string>

namespace pincela::componente {

inline constexpr wchar_t Clases[] = L"Software\\Classes";
/// How the type library calls our width, and the other one.
inline constexpr const wchar_t* Sistema = sizeof(void*) == 8 ? L"win64" : L"win32";
inline constexpr const wchar_t* OtroSistema = sizeof(void*) == 8 ? L"win32" : L"win64";

inline std::wstring Escrito(const GUID& guid) {
    wchar_t texto[39];
    StringFromGUID2(guid, texto, 39);
    return texto;
}
inline std::wstring Escrito(unsigned long numero) {
    return std::to_wstring(numero);
}

inline std::wstring Bajo(const std::wstring& ruta) {
    return Clases + (L'\\' + ruta);
}
inline std::wstring RutaDeClase(const GUID& clase) {
    return Bajo(L"CLSID\\" + Escrito(clase));
}
inline std::wstring RutaDeServidor(const GUID& clase) {
    return RutaDeClase(clase) + L"\\InprocServer32";
}
inline std::wstring RutaDeInterfaz(const GUID& interfaz) {
    return Bajo(L"Interface\\" + Escrito(interfaz));
}
inline std::wstring IdentificadorDePrograma(const DatosClase& datos) {
    return std::wstring(NombreDeLaBiblioteca) + L"." + datos.nombre;
}
inline std::wstring VersionDeBiblioteca() {
    return Escrito(VersionMayor) + L"." + Escrito(VersionMenor);
}
inline std::wstring RutaDeBiblioteca() {
    return Bajo(L"TypeLib\\" + Escrito(GuidDeLaBiblioteca));
}
inline std::wstring RutaDeVersion() {
    return RutaDeBiblioteca() + L"\\" + VersionDeBiblioteca();
}
inline std::wstring RutaDeLocale() {
    return RutaDeVersion() + L"\\409";
}
inline std::wstring RutaDeAyuda() {
    return RutaDeVersion() + L"\\HELPDIR";
}

} // namespace pincela::componente
