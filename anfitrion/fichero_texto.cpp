#include "anfitrion/fichero_texto.h"

#include "anfitrion/com.h"

#include <cstdio>

namespace anfitrion {

ErrorDeFichero::ErrorDeFichero(std::wstring que)
    : std::runtime_error(Estrechar(que)), texto(std::move(que)) {}

std::wstring Ensanchar(const std::string& utf8) {
    const int largo = static_cast<int>(utf8.size());
    std::wstring texto(utf8.size(), L'\0');
    texto.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, utf8.data(), largo, texto.data(), largo)));
    return texto;
}

std::wstring LeerTexto(const std::wstring& ruta) {
    FILE* fichero = _wfopen(ruta.c_str(), L"rb");
    if (!fichero)
        throw ErrorDeFichero(L"no se puede abrir «" + ruta + L"»");
    std::string bytes;
    char trozo[4096];
    while (const std::size_t n = std::fread(trozo, 1, sizeof trozo, fichero))
        bytes.append(trozo, n);
    const bool bien = !std::ferror(fichero);
    std::fclose(fichero);
    if (!bien)
        throw ErrorDeFichero(L"no se puede leer «" + ruta + L"»");
    return Ensanchar(bytes);
}

void EscribirTexto(const std::wstring& ruta, const std::wstring& texto) {
    const std::string bytes = Estrechar(texto);
    FILE* fichero = _wfopen(ruta.c_str(), L"wb");
    const bool bien =
        fichero && std::fwrite(bytes.data(), 1, bytes.size(), fichero) == bytes.size();
    if (!fichero || std::fclose(fichero) != 0 || !bien)
        throw ErrorDeFichero(L"no se puede escribir «" + ruta + L"»");
}

} // namespace anfitrion
