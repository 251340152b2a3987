#include "componente/control/metafichero.h"

#include "plataforma/windows/manijas.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace pincela::componente {

namespace {

// A coordinate of the classic format has 16 bits; a screen of today about as many pixels.
constexpr double LadoMaximo = 0x7FFF, PixelesMaximos = 8 * 1024 * 1024;
// Of what is larger there is hardly more to be seen than its colour.
constexpr double PixelesDeLoDesmedido = 1024 * 1024;

SIZE TamanoDeFoto(SIZE pixeles) {
    const double ancho = std::max(1L, pixeles.cx), alto = std::max(1L, pixeles.cy);
    const double pixelesQueTiene = ancho * alto;
    const double escala = std::min({1.0, LadoMaximo / ancho, LadoMaximo / alto,
                                    pixelesQueTiene > PixelesMaximos
                                        ? std::sqrt(PixelesDeLoDesmedido / pixelesQueTiene)
                                        : 1.0});
    return {std::max(1L, static_cast<long>(ancho * escala)),
            std::max(1L, static_cast<long>(alto * escala))};
}

std::size_t LargoDeFila(SIZE tamano, int bits) {
    return (static_cast<std::size_t>(tamano.cx) * bits + 31) / 32 * 4;
}

// The size stands in it, although it follows from the rest: the classic format keeps that many
// bytes.
BITMAPINFO Descripcion(SIZE tamano, WORD bits) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = tamano.cx;
    info.bmiHeader.biHeight = tamano.cy; // from the bottom up, as every reader of the format knows
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = bits;
    info.bmiHeader.biCompression = BI_RGB;
    info.bmiHeader.biSizeImage = static_cast<DWORD>(LargoDeFila(tamano, bits) * tamano.cy);
    return info;
}

using Pixeles = std::vector<std::uint32_t>;

/// What `dibujar` leaves on a paper of one colour; empty when there is no memory.
Pixeles Foto(SIZE tamano, std::uint32_t papel,
             const std::function<HRESULT(HDC, const RECTL&)>& dibujar) {
    const BITMAPINFO info = Descripcion(tamano, 32);
    void* memoria = nullptr;
    windows::DuenoDc dc(::CreateCompatibleDC(nullptr));
    windows::DuenoMapa mapa(
        ::CreateDIBSection(dc.get(), &info, DIB_RGB_COLORS, &memoria, nullptr, 0));
    if (!dc || !mapa)
        return {};
    const windows::DcConMapa lamina(std::move(dc), std::move(mapa));
    auto* pixeles = static_cast<std::uint32_t*>(memoria);
    const std::size_t cuantos = static_cast<std::size_t>(tamano.cx) * tamano.cy;
    std::fill_n(pixeles, cuantos, papel);
    if (FAILED(dibujar(lamina.dc(), {0, 0, tamano.cx, tamano.cy})))
        return {};
    ::GdiFlush();
    Pixeles copia(pixeles, pixeles + cuantos);
    for (std::uint32_t& pixel : copia)
        pixel &= 0xFFFFFF;
    return copia;
}

/// How much of the paper is seen through a pixel, from what it is on a white and on a black one.
int Diferencia(std::uint32_t blanco, std::uint32_t negro) {
    int mayor = 0;
    for (int bit = 0; bit < 24; bit += 8)
        mayor = std::max(mayor, std::abs(static_cast<int>((blanco >> bit) & 0xFF) -
                                         static_cast<int>((negro >> bit) & 0xFF)));
    return mayor;
}

/// Puts into `mascara` where the paper is seen, and into `imagen` what is seen elsewhere. False
/// when the paper is seen nowhere.
bool Separar(Pixeles& imagen, Pixeles& mascara) {
    constexpr int mitad = 0x80;
    bool algo = false;
    for (std::size_t i = 0; i < imagen.size(); ++i) {
        const bool papel = Diferencia(imagen[i], mascara[i]) >= mitad;
        algo = algo || papel;
        mascara[i] = papel ? 0xFFFFFF : 0;
        if (papel)
            imagen[i] = 0;
    }
    return algo;
}

/// Three bytes a pixel: a fourth one is taken for transparency by some readers.
std::vector<std::uint8_t> Tripletas(SIZE tamano, const Pixeles& pixeles) {
    const std::size_t fila = LargoDeFila(tamano, 24);
    std::vector<std::uint8_t> bytes(fila * tamano.cy);
    for (LONG y = 0; y < tamano.cy; ++y) {
        std::uint8_t* p = bytes.data() + fila * y;
        for (LONG x = 0; x < tamano.cx; ++x) {
            const std::uint32_t pixel = pixeles[static_cast<std::size_t>(y) * tamano.cx + x];
            for (int bit = 0; bit < 24; bit += 8)
                *p++ = static_cast<std::uint8_t>(pixel >> bit);
        }
    }
    return bytes;
}

void Poner(HDC dc, SIZE tamano, const Pixeles& pixeles, DWORD operacion) {
    const BITMAPINFO info = Descripcion(tamano, 24);
    ::StretchDIBits(dc, 0, 0, tamano.cx, tamano.cy, 0, 0, tamano.cx, tamano.cy,
                    Tripletas(tamano, pixeles).data(), &info, DIB_RGB_COLORS, operacion);
}

} // namespace

HMETAFILE HacerMetafichero(SIZE pixeles, const std::function<HRESULT(HDC, const RECTL&)>& dibujar) {
    const SIZE tamano = TamanoDeFoto(pixeles);
    Pixeles imagen = Foto(tamano, 0xFFFFFF, dibujar), mascara = Foto(tamano, 0, dibujar);
    if (imagen.empty() || mascara.empty())
        return nullptr;
    const bool calado = Separar(imagen, mascara);
    const HDC dc = ::CreateMetaFileW(nullptr);
    if (!dc)
        return nullptr;
    ::SetWindowOrgEx(dc, 0, 0, nullptr);
    ::SetWindowExtEx(dc, tamano.cx, tamano.cy, nullptr);
    ::SetStretchBltMode(dc, COLORONCOLOR);
    if (calado)
        Poner(dc, tamano, mascara, SRCAND);
    Poner(dc, tamano, imagen, calado ? SRCPAINT : SRCCOPY);
    return ::CloseMetaFile(dc);
}

HGLOBAL EnvolverMetafichero(HMETAFILE metafichero, SIZE extension) {
    const HGLOBAL memoria =
        metafichero ? ::GlobalAlloc(GMEM_MOVEABLE, sizeof(METAFILEPICT)) : nullptr;
    auto* imagen = memoria ? static_cast<METAFILEPICT*>(::GlobalLock(memoria)) : nullptr;
    if (!imagen) {
        if (memoria)
            ::GlobalFree(memoria);
        if (metafichero)
            ::DeleteMetaFile(metafichero);
        return nullptr;
    }
    *imagen = {MM_ANISOTROPIC, extension.cx, extension.cy, metafichero};
    ::GlobalUnlock(memoria);
    return memoria;
}

} // namespace pincela::componente
