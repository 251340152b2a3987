#include "componente/registro/deshacer.h"

#include <utility>

namespace pincela::componente {

Deshacer::~Deshacer() {
    if (bien_)
        return;
    for (; !pasos_.empty(); pasos_.pop_back()) {
        const Paso& paso = pasos_.back();
        if (paso.claveNueva) {
            RegDeleteKeyW(raiz_, paso.ruta.c_str());
            continue;
        }
        ClaveAbierta clave;
        if (RegOpenKeyExW(raiz_, paso.ruta.c_str(), 0, KEY_SET_VALUE, clave.Recibir()) !=
            ERROR_SUCCESS)
            continue;
        if (paso.habia)
            RegSetValueExW(clave.get(), paso.nombre.c_str(), 0, paso.tipo, paso.antes.data(),
                           static_cast<DWORD>(paso.antes.size()));
        else
            RegDeleteValueW(clave.get(), paso.nombre.c_str());
    }
}

LSTATUS Deshacer::AbrirPorPartes(const std::wstring& ruta, ClaveAbierta& clave) {
    for (std::size_t corte = ruta.find(L'\\');; corte = ruta.find(L'\\', corte + 1)) {
        Paso paso{.ruta = ruta.substr(0, corte), .claveNueva = true};
        const bool ultima = corte == std::wstring::npos;
        pasos_.reserve(pasos_.size() + 1); // a key once made is never forgotten
        ClaveAbierta intermedia;
        bool nueva = false;
        const LSTATUS error =
            AbrirOCrear(raiz_, paso.ruta, KEY_READ | (ultima ? REGSAM{KEY_WRITE} : 0),
                        ultima ? clave : intermedia, nueva);
        if (error != ERROR_SUCCESS)
            return error;
        if (nueva)
            pasos_.push_back(std::move(paso));
        if (ultima)
            return ERROR_SUCCESS;
    }
}

LSTATUS Deshacer::Recordar(HKEY clave, Paso& paso) {
    for (;;) {
        auto bytes = static_cast<DWORD>(paso.antes.size());
        const LSTATUS error = RegQueryValueExW(clave, paso.nombre.c_str(), nullptr, &paso.tipo,
                                               paso.antes.data(), &bytes);
        if (error == ERROR_FILE_NOT_FOUND)
            return ERROR_SUCCESS;
        // Asked with no room at all, it tells the length and success.
        const bool cupo = bytes <= paso.antes.size();
        paso.antes.resize(bytes);
        if (error == ERROR_SUCCESS && cupo) {
            paso.habia = true;
            return ERROR_SUCCESS;
        }
        if (error != ERROR_SUCCESS && error != ERROR_MORE_DATA)
            return error;
    }
}

LSTATUS Deshacer::Poner(HKEY clave, const std::wstring& ruta, const std::wstring& nombre,
                        const std::wstring& valor) {
    Paso paso{.ruta = ruta, .nombre = nombre};
    // What can't be given back is not replaced.
    if (const LSTATUS error = Recordar(clave, paso); error != ERROR_SUCCESS)
        return error;
    pasos_.push_back(std::move(paso));
    return PonerTexto(clave, nombre, valor);
}

} // namespace pincela::componente
