// Resources of the component file.
#include "pruebas/componente/comun/modulo.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cstring>
#include <cwctype>
#include <set>
#include <vector>

using namespace publicado;
using anfitrion::Estrechar;

namespace {

std::vector<BYTE> Recurso(HMODULE modulo, const wchar_t* nombre, const wchar_t* tipo) {
    const HRSRC lugar = FindResourceW(modulo, nombre, tipo);
    if (!lugar)
        return {};
    const auto* p = static_cast<const BYTE*>(LockResource(LoadResource(modulo, lugar)));
    return std::vector<BYTE>(p, p + SizeofResource(modulo, lugar));
}

std::wstring EnMayusculas(std::wstring texto) {
    std::transform(texto.begin(), texto.end(), texto.begin(),
                   [](wchar_t c) { return static_cast<wchar_t>(std::towupper(c)); });
    return texto;
}

void ComprobarIdentificador(HMODULE modulo, const std::wstring& nombre, const wchar_t* guid) {
    INFO(Estrechar(nombre));
    const std::vector<BYTE> bytes = Recurso(modulo, nombre.c_str(), RT_RCDATA);
    REQUIRE(bytes.size() == 20);
    DWORD largo = 0;
    GUID leido{};
    std::memcpy(&largo, bytes.data(), 4);
    std::memcpy(&leido, bytes.data() + 4, 16);
    CHECK(largo == 16);
    CHECK(leido == Guid(guid));
}

} // namespace

TEST_CASE("The file says its version, its comment and its language") {
    const std::wstring ruta = RutaDelComponente();
    std::vector<BYTE> datos(GetFileVersionInfoSizeW(ruta.c_str(), nullptr));
    REQUIRE(!datos.empty());
    REQUIRE(GetFileVersionInfoW(ruta.c_str(), 0, static_cast<DWORD>(datos.size()), datos.data()));
    void* p = nullptr;
    UINT largo = 0;
    REQUIRE(VerQueryValueW(datos.data(), L"\\", &p, &largo));
    const auto* fija = static_cast<const VS_FIXEDFILEINFO*>(p);
    CHECK(fija->dwFileVersionMS == MAKELONG(5, 2));
    CHECK(fija->dwFileVersionLS == MAKELONG(9, 0));
    CHECK(fija->dwFileType == VFT_DLL);
    REQUIRE(VerQueryValueW(datos.data(), L"\\VarFileInfo\\Translation", &p, &largo));
    CHECK(*static_cast<const WORD*>(p) == 0x0C0A);
    const auto texto = [&](const wchar_t* nombre) {
        const std::wstring clave = std::wstring(L"\\StringFileInfo\\0C0A04B0\\") + nombre;
        REQUIRE(VerQueryValueW(datos.data(), clave.c_str(), &p, &largo));
        return std::wstring(static_cast<const wchar_t*>(p));
    };
    CHECK(texto(L"FileVersion") == L"2.05.0009");
    CHECK(texto(L"Comments") == L"Es un Ocx con controles gráficos");
    CHECK(texto(L"OriginalFilename") == L"Pincela.ocx");
}

TEST_CASE("The version record is in Spanish") {
    const Modulo modulo;
    CHECK(FindResourceExW(modulo.Manejador(), RT_VERSION, MAKEINTRESOURCEW(1), 0x0C0A) != nullptr);
}

TEST_CASE("Each class keeps its interface identifiers in resources of its name") {
    const Modulo modulo;
    for (const Clase& una : Clases) {
        const std::wstring nombre = EnMayusculas(una.nombre);
        ComprobarIdentificador(modulo.Manejador(), L"_IID_" + nombre, una.interfaz);
        if (una.eventos)
            ComprobarIdentificador(modulo.Manejador(), L"_SRCIID_" + nombre, una.eventos);
        else
            CHECK(Recurso(modulo.Manejador(), (L"_SRCIID_" + nombre).c_str(), RT_RCDATA).empty());
    }
}

TEST_CASE("Six different toolbox images of 16 by 15 pixels are there, without palette") {
    const Modulo modulo;
    std::set<std::vector<BYTE>> distintas;
    for (WORD numero = 30000; numero <= 30005; ++numero) {
        INFO("bitmap ", numero);
        const std::vector<BYTE> bytes =
            Recurso(modulo.Manejador(), MAKEINTRESOURCEW(numero), RT_BITMAP);
        REQUIRE(bytes.size() >= sizeof(BITMAPINFOHEADER));
        BITMAPINFOHEADER cabecera{};
        std::memcpy(&cabecera, bytes.data(), sizeof cabecera);
        CHECK(cabecera.biWidth == 16);
        CHECK(cabecera.biHeight == 15);
        CHECK(cabecera.biBitCount == 24);
        CHECK(cabecera.biCompression == BI_RGB);
        CHECK(cabecera.biClrUsed == 0);
        CHECK(bytes.size() >= cabecera.biSize + 16 * 3 * 15);
        std::set<std::vector<BYTE>> colores;
        for (std::size_t i = cabecera.biSize; i + 3 <= cabecera.biSize + 16 * 3 * 15; i += 3)
            colores.insert({bytes[i], bytes[i + 1], bytes[i + 2]});
        CHECK(colores.size() >= 3);
        distintas.insert(bytes);
    }
    CHECK(distintas.size() == 6);
    CHECK(Recurso(modulo.Manejador(), MAKEINTRESOURCEW(30006), RT_BITMAP).empty());
}

TEST_CASE("The type library is the first resource of its kind") {
    const Modulo modulo;
    const std::vector<BYTE> bytes = Recurso(modulo.Manejador(), MAKEINTRESOURCEW(1), L"TYPELIB");
    REQUIRE(bytes.size() > 4);
    CHECK(std::memcmp(bytes.data(), "MSFT", 4) == 0);
}
