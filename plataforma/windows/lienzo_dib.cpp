#include "plataforma/windows/lienzo_dib.h"

#include "plataforma/windows/colores.h"
#include "plataforma/windows/contorno.h"
#include "plataforma/windows/objetos_imagen.h"
#include "plataforma/windows/trazo.h"

#include <algorithm>

namespace pincela::windows {

void LienzoDib::PonTamano(SIZE tamano) {
    tamano_ = {std::max(0L, static_cast<long>(tamano.cx)),
               std::max(0L, static_cast<long>(tamano.cy))};
    imagen_.PonTamano(tamano_.cx, tamano_.cy, fondo);
}

void LienzoDib::Line(float x1, float y1, float x2, float y2, Color color) {
    Destino destino;
    destino.dc = imagen_.Dc();
    TrazarLinea(destino, x1, y1, x2, y2, anchoDeLinea, Resolver(color));
}

void LienzoDib::Contorno(const ContornoRedondo& contorno) {
    if (std::uint32_t* pixeles = imagen_.Pixeles())
        DibujarContorno(pixeles, {imagen_.Ancho(), imagen_.Alto()}, contorno);
}

void LienzoDib::PaintPicture(const Imagen& imagen, float izquierda, float arriba, float ancho,
                             float alto) {
    const auto* ole = dynamic_cast<const ImagenOle*>(imagen.get());
    if (!ole)
        return;
    const int x = Redondo(izquierda), y = Redondo(arriba);
    const RECT lugar{x, y, x + Redondo(ancho), y + Redondo(alto)};
    ole->Dibujar(imagen_.Dc(), lugar);
}

// Lightness alone, half way to the button face: seen on any theme, never mistaken for live colour.
void LienzoDib::Desvanecer() {
    std::uint32_t* pixeles = imagen_.Pixeles();
    if (!pixeles)
        return;
    const std::uint32_t cara = APixel(Resolver(CaraDeBoton));
    const std::uint32_t rojo = (cara >> 16) & 0xFF, verde = (cara >> 8) & 0xFF, azul = cara & 0xFF;
    const auto cuantos = static_cast<std::size_t>(imagen_.Ancho()) * imagen_.Alto();
    std::transform(pixeles, pixeles + cuantos, pixeles, [=](std::uint32_t p) {
        const std::uint32_t gris =
            (((p >> 16) & 0xFF) * 77 + ((p >> 8) & 0xFF) * 151 + (p & 0xFF) * 28) >> 8;
        return (((gris + rojo) / 2) << 16) | (((gris + verde) / 2) << 8) | ((gris + azul) / 2);
    });
}

float LienzoDib::Escala(std::int32_t himetric) const {
    return static_cast<float>(DeHimetric(himetric, ppp_));
}

} // namespace pincela::windows
