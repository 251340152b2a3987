// Where registrations are tried, and how what they left is compared.
#pragma once

#include "pruebas/componente/comun/modulo.h"
#include "pruebas/componente/registro/claves.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

namespace publicado {

using Lineas = std::vector<std::wstring>;

inline constexpr const wchar_t* ClasesDeSoftware = L"Software\\Classes";
inline constexpr const wchar_t* Sistema = sizeof(void*) == 8 ? L"win64" : L"win32";
inline constexpr const wchar_t* OtroSistema = sizeof(void*) == 8 ? L"win32" : L"win64";

inline std::wstring EnClases(const std::wstring& ruta) {
    return ClasesDeSoftware + (L'\\' + ruta);
}
inline std::wstring ClaveDeClase(const wchar_t* nombre) {
    return EnClases(std::wstring(L"CLSID\\") + ClaseDe(nombre).clase);
}
inline std::wstring ClaveDeVersion() {
    return EnClases(std::wstring(L"TypeLib\\") + Biblioteca + L"\\1.0");
}

/// The machine is left registered and the user without, as they were found.
struct Banco {
    Banco() {
        REQUIRE(modulo.Instalar(false, L"user") == S_OK);
        REQUIRE(modulo.Desregistrar() == S_OK);
        maquina = Maquina();
        usuario = Volcar(HKEY_CURRENT_USER, ClasesDeSoftware);
    }
    Banco(const Banco&) = delete;
    Banco& operator=(const Banco&) = delete;
    ~Banco() {
        modulo.Instalar(false, L"user");
        modulo.Registrar();
        // Branches that a test made by hand are nobody's; one that holds anything can't be deleted.
        for (const wchar_t* rama : {L"clsid", L"interface", L"typelib"})
            if (!std::binary_search(usuario.begin(), usuario.end(), rama))
                RegDeleteKeyW(HKEY_CURRENT_USER, EnClases(rama).c_str());
        if (!habiaClases)
            RegDeleteKeyW(HKEY_CURRENT_USER, ClasesDeSoftware);
    }
    Lineas Maquina() const { return Volcar(HKEY_LOCAL_MACHINE, ClasesDeSoftware, 0, false); }
    Lineas Usuario() const { return Volcar(HKEY_CURRENT_USER, ClasesDeSoftware); }

    Modulo modulo;
    Lineas maquina, usuario; // before
    bool habiaClases = Existe(HKEY_CURRENT_USER, ClasesDeSoftware);
};

inline Lineas Nuevas(const Lineas& ahora, const Lineas& antes) {
    Lineas diferencia;
    std::set_difference(ahora.begin(), ahora.end(), antes.begin(), antes.end(),
                        std::back_inserter(diferencia));
    return diferencia;
}

inline void CompararLineas(const Lineas& leidas, const Lineas& esperadas) {
    for (const std::wstring& sobra : Nuevas(leidas, esperadas))
        FAIL_CHECK("too much: " << anfitrion::Estrechar(sobra));
    for (const std::wstring& falta : Nuevas(esperadas, leidas))
        FAIL_CHECK("missing: " << anfitrion::Estrechar(falta));
    CHECK(leidas.size() == esperadas.size());
}

} // namespace publicado
