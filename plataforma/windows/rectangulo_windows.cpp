#include "plataforma/windows/rectangulo_windows.h"

#include "plataforma/windows/colores.h"

#include <algorithm>

namespace pincela::windows {

namespace {

HPEN CrearPluma(Rectangulo::Borde borde, COLORREF color, const Destino& destino) {
    if (borde == Rectangulo::Borde::Ninguno)
        return ::CreatePen(PS_NULL, 0, 0);
    if (borde == Rectangulo::Borde::Punteado) {
        // One dot on, one off: the look of a focus rectangle, which scaling would blur to nothing.
        const LOGBRUSH pincel{BS_SOLID, color, 0};
        if (destino.TamanoNatural())
            if (HPEN pluma = ::ExtCreatePen(PS_COSMETIC | PS_ALTERNATE, 1, &pincel, 0, nullptr))
                return pluma;
        return ::CreatePen(PS_DOT, 1, color);
    }
    const int ancho = std::max(1, Redondo(std::min(destino.sx, destino.sy)));
    return ::CreatePen(PS_INSIDEFRAME, ancho, color);
}

} // namespace

RectanguloWindows::RectanguloWindows(Nucleo& nucleo) : nucleo_(nucleo) {
    nucleo_.escena.Agregar(*this);
}

RectanguloWindows::~RectanguloWindows() {
    nucleo_.escena.Quitar(*this);
    if (visible_)
        nucleo_.VistaCambiada();
}

void RectanguloWindows::Move(float izquierda, float arriba, float ancho, float alto) {
    lugar_ = {izquierda, arriba, ancho, alto};
    if (visible_)
        nucleo_.VistaCambiada();
}

void RectanguloWindows::PonElipse(std::int32_t ancho, std::int32_t alto) {
    Cambiar(anchoElipse_, ancho);
    Cambiar(altoElipse_, alto);
}

void RectanguloWindows::Dibujar(const Destino& destino) const {
    const int x = Redondo(lugar_.izquierda), y = Redondo(lugar_.arriba);
    const int ancho = Redondo(lugar_.ancho), alto = Redondo(lugar_.alto);
    if (!visible_ || ancho <= 0 || alto <= 0)
        return;
    const HDC dc = destino.dc;
    const RECT r = destino.RectanguloVisible(x, y, x + ancho, y + alto);
    DuenoPluma pluma(CrearPluma(borde_, Resolver(colorBorde_), destino));
    DuenoPincel pincel;
    HGDIOBJ relleno = ::GetStockObject(NULL_BRUSH);
    if (colorRelleno_ != SinColor) {
        pincel.Poner(::CreateSolidBrush(Resolver(colorRelleno_)));
        relleno = pincel.get();
    }
    Seleccion conPluma(dc, pluma.get()), conPincel(dc, relleno);
    const int modo = ::SetBkMode(dc, TRANSPARENT);
    // Without a border the platform leaves the last row and column out.
    const int mas = borde_ == Borde::Ninguno ? 1 : 0;
    if (anchoElipse_ > 0 && altoElipse_ > 0)
        ::RoundRect(dc, r.left, r.top, r.right + mas, r.bottom + mas,
                    Redondo(anchoElipse_ * destino.sx), Redondo(altoElipse_ * destino.sy));
    else
        ::Rectangle(dc, r.left, r.top, r.right + mas, r.bottom + mas);
    ::SetBkMode(dc, modo);
}

} // namespace pincela::windows
