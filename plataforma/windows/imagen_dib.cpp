#include "plataforma/windows/imagen_dib.h"

#include "plataforma/windows/colores.h"

#include <algorithm>
#include <utility>

namespace pincela::windows {

namespace {

// Drawing calls write 0 or an opaque 255 into the unused byte; this is neither.
constexpr std::uint32_t Marca = 0x5A000000;

constexpr int LadoMaximo = 0x7FFF;
// The largest screens on sale have this many pixels: 128 megabytes.
constexpr std::int64_t PixelesMaximos = 32 * 1024 * 1024;

bool EsDesmedida(int ancho, int alto) {
    return ancho > LadoMaximo || alto > LadoMaximo || std::int64_t{ancho} * alto > PixelesMaximos;
}

std::uint32_t PixelDeFondo(Color fondo) {
    return Marca | APixel(Resolver(fondo));
}

} // namespace

void ImagenDib::Crear() {
    if (EsDesmedida(ancho_, alto_))
        return;
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = ancho_;
    info.bmiHeader.biHeight = -alto_;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* memoria = nullptr;
    DuenoDc dc(::CreateCompatibleDC(nullptr));
    DuenoMapa mapa(::CreateDIBSection(dc.get(), &info, DIB_RGB_COLORS, &memoria, nullptr, 0));
    if (!dc || !mapa)
        return;
    mapa_ = DcConMapa(std::move(dc), std::move(mapa));
    pixeles_ = static_cast<std::uint32_t*>(memoria);
    pixelFondo_ = PixelDeFondo(fondo_);
    Llenar(pixelFondo_);
}

void ImagenDib::Llenar(std::uint32_t pixel) {
    std::fill_n(pixeles_, static_cast<std::size_t>(ancho_) * alto_, pixel);
}

HDC ImagenDib::Dc() {
    if (!mapa_)
        Crear();
    return mapa_.dc();
}

std::uint32_t* ImagenDib::Pixeles() {
    if (!Dc())
        return nullptr;
    ::GdiFlush();
    return pixeles_;
}

void ImagenDib::Limpiar(Color fondo) {
    fondo_ = fondo;
    if (!mapa_)
        return;
    ::GdiFlush();
    pixelFondo_ = PixelDeFondo(fondo);
    Llenar(pixelFondo_);
}

void ImagenDib::PonTamano(int ancho, int alto, Color fondoNuevo) {
    ancho = std::max(1, ancho);
    alto = std::max(1, alto);
    if (ancho == ancho_ && alto == alto_)
        return;
    const int anchoViejo = std::exchange(ancho_, ancho), altoViejo = std::exchange(alto_, alto);
    if (!mapa_)
        return;
    ::GdiFlush();
    const DcConMapa vieja = std::move(mapa_);
    const std::uint32_t* origen = std::exchange(pixeles_, nullptr);
    fondo_ = fondoNuevo;
    mapa_ = DcConMapa();
    const std::uint32_t sinDibujar = pixelFondo_;
    Crear();
    if (!mapa_)
        return;
    const int filas = std::min(altoViejo, alto), columnas = std::min(anchoViejo, ancho);
    for (int y = 0; y < filas; ++y) {
        const std::uint32_t* fila = origen + static_cast<std::size_t>(y) * anchoViejo;
        // What was never drawn on stays so, unless the new area has another colour: then the old
        // one is kept as it shows, as if drawn.
        std::uint32_t* nueva = pixeles_ + static_cast<std::size_t>(y) * ancho;
        if (sinDibujar == pixelFondo_)
            std::copy_n(fila, columnas, nueva);
        else
            std::transform(fila, fila + columnas, nueva, [sinDibujar](std::uint32_t pixel) {
                return pixel == sinDibujar ? pixel & 0xFFFFFF : pixel;
            });
    }
}

} // namespace pincela::windows
