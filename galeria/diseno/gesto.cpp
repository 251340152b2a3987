#include "galeria/diseno/gesto.h"

#include <cstdlib>

namespace diseno {

Gesto Gesto::Mover(Punto desde, std::vector<Caja> cajas, Rejilla rejilla) {
    return {Clase::Mover, desde, std::move(cajas), rejilla};
}

Gesto Gesto::Estirar(Punto desde, const Caja& caja, Agarre agarre, int minimo, Rejilla rejilla) {
    Gesto gesto{Clase::Estirar, desde, {caja}, rejilla};
    gesto.agarre_ = agarre;
    gesto.minimo_ = minimo;
    return gesto;
}

Gesto Gesto::Abarcar(Punto desde) {
    return {Clase::Abarcar, desde, {Entre(desde, desde)}, {}};
}

Gesto Gesto::Trazar(Punto desde, Rejilla rejilla) {
    const Punto esquina = rejilla.Ajustar(desde);
    return {Clase::Trazar, desde, {Entre(esquina, esquina)}, rejilla};
}

std::vector<Caja> Gesto::Llevadas(Punto hasta, Rejilla rejilla) const {
    const int dx = hasta.x - desde_.x, dy = hasta.y - desde_.y;
    switch (clase_) {
    case Clase::Mover: {
        std::vector<Caja> movidas;
        const Caja& guia = antes_.front();
        const int porX = rejilla.Ajustar(guia.izquierda + dx) - guia.izquierda;
        const int porY = rejilla.Ajustar(guia.arriba + dy) - guia.arriba;
        for (const Caja& caja : antes_)
            movidas.push_back(caja.Movida(porX, porY));
        return movidas;
    }
    case Clase::Estirar:
        return {diseno::Estirar(antes_.front(), agarre_, dx, dy, minimo_, rejilla)};
    default:
        return {Entre(rejilla.Ajustar(desde_), rejilla.Ajustar(hasta))};
    }
}

bool Gesto::Seguir(Punto hasta, bool libre) {
    if (!arrancado_ && std::abs(hasta.x - desde_.x) < Umbral &&
        std::abs(hasta.y - desde_.y) < Umbral)
        return false;
    arrancado_ = true;
    std::vector<Caja> nuevas = Llevadas(hasta, libre ? Rejilla{} : rejilla_);
    const bool distintas = nuevas != ahora_;
    ahora_ = std::move(nuevas);
    return distintas;
}

} // namespace diseno
