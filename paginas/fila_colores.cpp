#include "paginas/fila_colores.h"

#include "common/conversion.h"
#include "common/errores.h"
#include "efectos/lista_colores.h"

#include <algorithm>

namespace pincela {

namespace {

/// Twips left free on each side of the row.
constexpr std::int32_t Margen = 45;

} // namespace

FilaColores::FilaColores(MarcoPagina& marco, const MarcoPagina& medida,
                         std::function<void(BotonColor&)> alPulsar)
    : marco_(marco), medida_(medida), alPulsar_(std::move(alPulsar)) {
    Crear();
    Ubicar(0, 1);
    topes_[0]->PonVisible(true);
}

void FilaColores::Crear() {
    topes_.push_back(marco_.CrearBotonColor());
    BotonColor& tope = *topes_.back();
    tope.Click.Conectar([this, &tope] { alPulsar_(tope); });
}

void FilaColores::Ubicar(std::size_t numero, std::size_t cuantos) {
    const auto topes = static_cast<double>(cuantos);
    const std::int32_t ancho = AEntero32(Int((medida_.Width() - 2 * Margen) / topes));
    topes_[numero]->Move(ancho * static_cast<std::int32_t>(numero) + Margen, ancho);
}

std::uint8_t FilaColores::IndiceMayor() const {
    return Byte(static_cast<std::int64_t>(topes_.size()) - 1);
}

BotonColor& FilaColores::Tope(std::size_t numero) {
    if (numero >= topes_.size())
        Lanzar(NumeroError::Subindice);
    return *topes_[numero];
}

std::vector<Color> FilaColores::Colores() const {
    std::vector<Color> colores;
    for (const auto& tope : topes_)
        colores.push_back(tope->BackColor());
    return colores;
}

Texto FilaColores::Lista() const {
    return UnirColores(Colores());
}

void FilaColores::Mostrar(std::span<const Color> colores) {
    while (topes_.size() < colores.size())
        Agregar(IndiceMayor());
    while (topes_.size() > std::max<std::size_t>(colores.size(), 1))
        Eliminar(IndiceMayor());
    for (std::size_t j = 0; j < colores.size(); ++j)
        topes_[j]->PonBackColor(colores[j]);
}

void FilaColores::Agregar(std::uint8_t I) {
    const std::size_t nuevo = topes_.size();
    if (I >= nuevo)
        Lanzar(NumeroError::Subindice);
    for (std::size_t j = 0; j <= nuevo; ++j) {
        Ubicar(j, nuevo + 1);
        if (j == I) {
            Crear();
            const BotonColor& ultimo = *topes_[nuevo - 1];
            topes_[nuevo]->Move(ultimo.Left() + ultimo.Width(), ultimo.Width());
            topes_[nuevo]->PonVisible(true);
        } else if (j > I) {
            topes_[j]->PonBackColor(topes_[j - 1]->BackColor());
        }
    }
}

void FilaColores::Eliminar(std::uint8_t I) {
    if (I == 0)
        Lanzar(NumeroError::LlamadaNoValida);
    const std::size_t quedan = topes_.size() - 1;
    if (I <= quedan)
        topes_.erase(topes_.begin() + I);
    for (std::size_t j = topes_.size(); j-- > 0;)
        Ubicar(j, std::max<std::size_t>(quedan, 1));
}

void FilaColores::Vaciar() {
    while (topes_.size() > 1)
        topes_.pop_back();
}

} // namespace pincela
