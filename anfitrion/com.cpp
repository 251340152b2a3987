#include "anfitrion/com.h"

#include <cstdio>

namespace anfitrion {

static std::string Mensaje(HRESULT estado, const std::string& que,
                           const std::wstring& descripcion) {
    char numero[16];
    std::snprintf(numero, sizeof numero, "0x%08lX", static_cast<unsigned long>(estado));
    std::string mensaje = que + ": " + numero;
    if (!descripcion.empty())
        mensaje += " (" + Estrechar(descripcion) + ")";
    return mensaje;
}

FalloCom::FalloCom(HRESULT estado_, const std::string& que, std::wstring descripcion_,
                   std::wstring fuente_)
    : std::runtime_error(Mensaje(estado_, que, descripcion_)), estado(estado_),
      descripcion(std::move(descripcion_)), fuente(std::move(fuente_)) {}

void Comprobar(HRESULT estado, const char* que) {
    if (FAILED(estado))
        throw FalloCom(estado, que);
}

std::string Estrechar(std::wstring_view texto) {
    if (texto.empty())
        return {};
    const int largo = static_cast<int>(texto.size());
    const int bytes =
        WideCharToMultiByte(CP_UTF8, 0, texto.data(), largo, nullptr, 0, nullptr, nullptr);
    std::string salida(static_cast<std::size_t>(bytes), '\0');
    WideCharToMultiByte(CP_UTF8, 0, texto.data(), largo, salida.data(), bytes, nullptr, nullptr);
    return salida;
}

} // namespace anfitrion
