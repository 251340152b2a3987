#include "plataforma/windows/entorno_windows.h"

#include <cstddef>

namespace pincela::windows {

namespace {

// The records go to the platform as they are.
static_assert(sizeof(pincela::TRIVERTEX) == sizeof(::TRIVERTEX));
static_assert(offsetof(pincela::TRIVERTEX, y) == offsetof(::TRIVERTEX, y));
static_assert(offsetof(pincela::TRIVERTEX, Red) == offsetof(::TRIVERTEX, Red));
static_assert(offsetof(pincela::TRIVERTEX, Alpha) == offsetof(::TRIVERTEX, Alpha));
static_assert(sizeof(pincela::GRADIENT_RECT) == sizeof(::GRADIENT_RECT));
static_assert(offsetof(pincela::GRADIENT_RECT, LowerRight) ==
              offsetof(::GRADIENT_RECT, LowerRight));
static_assert(sizeof(pincela::GRADIENT_TRIANGLE) == sizeof(::GRADIENT_TRIANGLE));
static_assert(offsetof(pincela::GRADIENT_TRIANGLE, Vertex3) ==
              offsetof(::GRADIENT_TRIANGLE, Vertex3));
static_assert(sizeof(pincela::BLENDFUNCTION) == sizeof(::BLENDFUNCTION));

HDC ADc(Manejador manejador) {
    return reinterpret_cast<HDC>(manejador);
}

void Llenar(Manejador hdc, std::span<const pincela::TRIVERTEX> vertices, const void* malla,
            std::size_t elementos, ModoGradiente modo) {
    auto* puntos = const_cast<pincela::TRIVERTEX*>(vertices.data());
    ::GradientFill(ADc(hdc), reinterpret_cast<::TRIVERTEX*>(puntos),
                   static_cast<ULONG>(vertices.size()), const_cast<void*>(malla),
                   static_cast<ULONG>(elementos), static_cast<ULONG>(modo));
}

class GraficosWindows final : public Graficos {
  public:
    void GradientFill(Manejador hdc, std::span<const pincela::TRIVERTEX> vertices,
                      std::span<const pincela::GRADIENT_RECT> malla, ModoGradiente modo) override {
        Llenar(hdc, vertices, malla.data(), malla.size(), modo);
    }

    void GradientFill(Manejador hdc, std::span<const pincela::TRIVERTEX> vertices,
                      std::span<const pincela::GRADIENT_TRIANGLE> malla,
                      ModoGradiente modo) override {
        Llenar(hdc, vertices, malla.data(), malla.size(), modo);
    }

    void AlphaBlend(Manejador destino, std::int32_t xd, std::int32_t yd, std::int32_t anchod,
                    std::int32_t altod, Manejador origen, std::int32_t xo, std::int32_t yo,
                    std::int32_t anchoo, std::int32_t altoo, std::uint32_t mezcla) override {
        const ::BLENDFUNCTION registro{static_cast<BYTE>(mezcla), static_cast<BYTE>(mezcla >> 8),
                                       static_cast<BYTE>(mezcla >> 16),
                                       static_cast<BYTE>(mezcla >> 24)};
        ::AlphaBlend(ADc(destino), xd, yd, anchod, altod, ADc(origen), xo, yo, anchoo, altoo,
                     registro);
    }

    Manejador CreateRoundRectRgn(std::int32_t izquierda, std::int32_t arriba, std::int32_t derecha,
                                 std::int32_t abajo, std::int32_t anchoElipse,
                                 std::int32_t altoElipse) override {
        return reinterpret_cast<Manejador>(
            ::CreateRoundRectRgn(izquierda, arriba, derecha, abajo, anchoElipse, altoElipse));
    }

    void SetWindowRgn(Manejador ventana, Manejador region, bool redibujar) override {
        ::SetWindowRgn(reinterpret_cast<HWND>(ventana), reinterpret_cast<HRGN>(region), redibujar);
    }

    void DeleteObject(Manejador objeto) override {
        ::DeleteObject(reinterpret_cast<HGDIOBJ>(objeto));
    }

    PuntoPantalla GetCursorPos() override {
        POINT punto{};
        ::GetCursorPos(&punto);
        return {punto.x, punto.y};
    }

    Manejador WindowFromPoint(PuntoPantalla punto) override {
        return reinterpret_cast<Manejador>(::WindowFromPoint(POINT{punto.x, punto.y}));
    }
};

} // namespace

Graficos& GraficosDeWindows() {
    static GraficosWindows graficos;
    return graficos;
}

} // namespace pincela::windows
