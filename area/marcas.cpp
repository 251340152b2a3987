// The marks of the controls placed on the panel.
#include "area/area.h"

namespace pincela {

namespace {

// A control with a window would hide a mark of its own size.
constexpr float MargenMarca = 1;

} // namespace

void Area::CargarMarca() {
    auto marca = entorno_.CrearRectangulo();
    marca->PonVisible(false);
    marca->PonBorde(Rectangulo::Borde::Continuo);
    marca->PonFillColor(SinColor);
    Cuadra.push_back(std::move(marca));
}

void Area::ManAreas(const bool& Crear) {
    Cuadra.front()->PonBorderColor(ColorLetra());
    if (!Crear) {
        Cuadra.resize(1);
        Cuadra.front()->PonVisible(false);
        return;
    }
    std::size_t marcados = 0;
    entorno_.ControlesContenidos([&](ControlContenido& control) {
        bool visible = false;
        float izquierda = 0, arriba = 0, ancho = 0, alto = 0;
        if (control.Visible(visible) && visible &&
            control.Rectangulo(izquierda, arriba, ancho, alto))
            Marcar(marcados++, izquierda, arriba, ancho, alto);
    });
    // Marks of controls that have gone since.
    for (std::size_t i = marcados; i < Cuadra.size(); ++i)
        Cuadra[i]->PonVisible(false);
}

// Reading a control runs code of its own, which may have taken marks away meanwhile.
void Area::Marcar(std::size_t numero, float izquierda, float arriba, float ancho, float alto) {
    while (Cuadra.size() <= numero)
        CargarMarca();
    Rectangulo& marca = *Cuadra[numero];
    marca.PonBorderColor(ColorLetra());
    marca.Move(izquierda - MargenMarca, arriba - MargenMarca, ancho + 2 * MargenMarca,
               alto + 2 * MargenMarca);
    marca.PonVisible(true);
}

} // namespace pincela
