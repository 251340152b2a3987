#include "plataforma/windows/mascara.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace pincela::windows {

namespace {

// Runs of drawn pixels, each row's runs joined to the row above where they are the same.
class RecogedorDeTramos {
  public:
    void Fila(const std::uint32_t* fila, int ancho, int y, std::uint32_t vacio) {
        const std::size_t inicio = tramos_.size();
        for (int x = 0; x < ancho;) {
            const auto* desde = std::find_if(fila + x, fila + ancho,
                                             [vacio](std::uint32_t p) { return p != vacio; });
            if (desde == fila + ancho)
                break;
            const auto* hasta = std::find(desde, fila + ancho, vacio);
            tramos_.push_back(
                RECT{static_cast<LONG>(desde - fila), y, static_cast<LONG>(hasta - fila), y + 1});
            x = static_cast<int>(hasta - fila);
        }
        UnirConAnterior(inicio);
    }

    std::vector<RECT>& tramos() { return tramos_; }

  private:
    void UnirConAnterior(std::size_t inicio) {
        const std::size_t nuevos = tramos_.size() - inicio, anteriores = inicio - anterior_;
        const auto mismo = [](const RECT& a, const RECT& b) {
            return a.left == b.left && a.right == b.right && a.bottom == b.top;
        };
        if (nuevos != 0 && nuevos == anteriores &&
            std::equal(tramos_.begin() + anterior_, tramos_.begin() + inicio,
                       tramos_.begin() + inicio, mismo)) {
            for (std::size_t i = anterior_; i < inicio; ++i)
                ++tramos_[i].bottom;
            tramos_.resize(inicio);
            return;
        }
        anterior_ = inicio;
    }

    std::vector<RECT> tramos_;
    std::size_t anterior_ = 0;
};

DuenoRegion RegionDe(const std::vector<RECT>& tramos) {
    if (tramos.empty())
        return DuenoRegion(::CreateRectRgn(0, 0, 0, 0));
    std::vector<std::byte> memoria(sizeof(RGNDATAHEADER) + tramos.size() * sizeof(RECT));
    RGNDATAHEADER cabecera{};
    cabecera.dwSize = sizeof cabecera;
    cabecera.iType = RDH_RECTANGLES;
    cabecera.nCount = static_cast<DWORD>(tramos.size());
    cabecera.nRgnSize = static_cast<DWORD>(tramos.size() * sizeof(RECT));
    cabecera.rcBound = tramos.front();
    for (const RECT& r : tramos)
        ::UnionRect(&cabecera.rcBound, &cabecera.rcBound, &r);
    std::memcpy(memoria.data(), &cabecera, sizeof cabecera);
    std::memcpy(memoria.data() + sizeof cabecera, tramos.data(), tramos.size() * sizeof(RECT));
    return DuenoRegion(::ExtCreateRegion(nullptr, static_cast<DWORD>(memoria.size()),
                                         reinterpret_cast<const RGNDATA*>(memoria.data())));
}

} // namespace

bool RecortarALoDibujado(ImagenDib& imagen, SIZE tamano, const Destino& destino) {
    const std::uint32_t* pixeles = imagen.Pixeles();
    if (!pixeles)
        return false;
    RecogedorDeTramos recogedor;
    const int filas = std::min<int>(imagen.Alto(), tamano.cy);
    const int columnas = std::min<int>(imagen.Ancho(), tamano.cx);
    for (int y = 0; y < filas; ++y)
        recogedor.Fila(pixeles + static_cast<std::size_t>(y) * imagen.Ancho(), columnas, y,
                       imagen.PixelSinDibujar());
    auto& tramos = recogedor.tramos();
    if (tramos.empty())
        return false;
    // A clip region is in units of the device, whatever the context's own are.
    for (RECT& r : tramos) {
        r = destino.RectanguloVisible(r.left, r.top, r.right, r.bottom);
        ::LPtoDP(destino.dc, reinterpret_cast<POINT*>(&r), 2);
    }
    const DuenoRegion region = RegionDe(tramos);
    ::ExtSelectClipRgn(destino.dc, region.get(), RGN_AND);
    return true;
}

DuenoRegion RegionDibujada(const std::uint32_t* sobreNegro, const std::uint32_t* sobreBlanco,
                           SIZE tamano, bool& mezclada) {
    constexpr std::uint32_t Color = 0xFFFFFF;
    mezclada = false;
    RecogedorDeTramos recogedor;
    std::vector<std::uint32_t> fila(static_cast<std::size_t>(tamano.cx));
    for (int y = 0; y < tamano.cy; ++y) {
        for (std::uint32_t& hay : fila) {
            const std::uint32_t n = *sobreNegro++ & Color, b = *sobreBlanco++ & Color;
            hay = n != 0 || b != Color;
            mezclada = mezclada || (hay && n != b);
        }
        recogedor.Fila(fila.data(), tamano.cx, y, 0);
    }
    return RegionDe(recogedor.tramos());
}

} // namespace pincela::windows
