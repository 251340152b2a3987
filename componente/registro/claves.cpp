#include "componente/registro/claves.h"

#include <iterator>

namespace pincela::componente {

namespace {

LSTATUS SiFalta(LSTATUS error) {
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ? ERROR_SUCCESS : error;
}

} // namespace

LSTATUS AbrirOCrear(HKEY raiz, const std::wstring& ruta, REGSAM derechos, ClaveAbierta& clave,
                    bool& nueva) {
    nueva = false;
    const LSTATUS error = RegOpenKeyExW(raiz, ruta.c_str(), 0, derechos, clave.Recibir());
    if (error != ERROR_FILE_NOT_FOUND)
        return error;
    std::wstring clase = ClaseDeClave; // the platform asks for letters it could write to
    DWORD disposicion = 0;
    const LSTATUS creada = RegCreateKeyExW(raiz, ruta.c_str(), 0, clase.data(), 0, derechos,
                                           nullptr, clave.Recibir(), &disposicion);
    nueva = creada == ERROR_SUCCESS && disposicion == REG_CREATED_NEW_KEY;
    return creada;
}

LSTATUS PonerTexto(HKEY clave, const std::wstring& nombre, const std::wstring& valor) {
    return RegSetValueExW(clave, nombre.c_str(), 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(valor.c_str()),
                          static_cast<DWORD>((valor.size() + 1) * sizeof(wchar_t)));
}

std::optional<std::wstring> Vista::Leer(const std::wstring& ruta, const std::wstring& nombre,
                                        LSTATUS* error) const {
    ClaveAbierta clave;
    std::wstring valor(MAX_PATH, L'\0');
    LSTATUS estado = RegOpenKeyExW(raiz_, ruta.c_str(), 0, KEY_READ | ancho_, clave.Recibir());
    while (estado == ERROR_SUCCESS) {
        auto bytes = static_cast<DWORD>(valor.size() * sizeof(wchar_t));
        estado = RegGetValueW(clave.get(), nullptr, nombre.c_str(), RRF_RT_REG_SZ, nullptr,
                              valor.data(), &bytes);
        if (estado == ERROR_SUCCESS) {
            valor.resize(wcsnlen(valor.c_str(), bytes / sizeof(wchar_t)));
            return valor;
        }
        if (estado == ERROR_MORE_DATA) {
            valor.resize(2 * valor.size());
            estado = ERROR_SUCCESS;
        }
    }
    if (error && estado != ERROR_UNSUPPORTED_TYPE)
        *error = SiFalta(estado);
    return std::nullopt;
}

LSTATUS Vista::Poner(const std::wstring& ruta, const std::wstring& nombre,
                     const std::wstring& valor) const {
    ClaveAbierta clave;
    bool nueva = false;
    const LSTATUS error = AbrirOCrear(raiz_, ruta, KEY_SET_VALUE | ancho_, clave, nueva);
    return error != ERROR_SUCCESS ? error : PonerTexto(clave.get(), nombre, valor);
}

LSTATUS Vista::Quitar(const std::wstring& ruta) const {
    {
        ClaveAbierta clave;
        LSTATUS error = RegOpenKeyExW(raiz_, ruta.c_str(), 0,
                                      DELETE | KEY_READ | KEY_SET_VALUE | ancho_, clave.Recibir());
        if (error == ERROR_SUCCESS)
            error = RegDeleteTreeW(clave.get(), nullptr);
        if (error != ERROR_SUCCESS)
            return SiFalta(error);
    }
    return SiFalta(RegDeleteKeyExW(raiz_, ruta.c_str(), ancho_, 0));
}

LSTATUS Vista::QuitarVacia(const std::wstring& ruta, bool soloNuestra) const {
    DWORD subclaves = 0, valores = 0;
    {
        ClaveAbierta clave;
        wchar_t clase[2 * std::size(ClaseDeClave)] = {}; // some systems count a zero at its end
        DWORD largo = std::size(clase);
        if (RegOpenKeyExW(raiz_, ruta.c_str(), 0, KEY_READ | ancho_, clave.Recibir()) !=
            ERROR_SUCCESS)
            return ERROR_SUCCESS;
        // The class of somebody else's key may be too long to be read, and is not ours then.
        if (RegQueryInfoKeyW(clave.get(), soloNuestra ? clase : nullptr,
                             soloNuestra ? &largo : nullptr, nullptr, &subclaves, nullptr, nullptr,
                             &valores, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS ||
            (soloNuestra && wcscmp(clase, ClaseDeClave) != 0))
            return ERROR_SUCCESS;
    }
    return subclaves || valores ? ERROR_SUCCESS
                                : SiFalta(RegDeleteKeyExW(raiz_, ruta.c_str(), ancho_, 0));
}

bool Vista::TieneSubclaves(const std::wstring& ruta) const {
    ClaveAbierta clave;
    DWORD subclaves = 0;
    return RegOpenKeyExW(raiz_, ruta.c_str(), 0, KEY_READ | ancho_, clave.Recibir()) ==
               ERROR_SUCCESS &&
           RegQueryInfoKeyW(clave.get(), nullptr, nullptr, nullptr, &subclaves, nullptr, nullptr,
                            nullptr, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS &&
           subclaves != 0;
}

} // namespace pincela::componente
