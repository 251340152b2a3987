#include "galeria/diseno/agarres.h"

namespace diseno {

namespace {

constexpr bool MueveIzquierda(Agarre a) {
    return a == Agarre::IzqSup || a == Agarre::IzqInf || a == Agarre::Izq;
}
constexpr bool MueveDerecha(Agarre a) {
    return a == Agarre::DerSup || a == Agarre::Der || a == Agarre::DerInf;
}
constexpr bool MueveArriba(Agarre a) {
    return a == Agarre::IzqSup || a == Agarre::Sup || a == Agarre::DerSup;
}
constexpr bool MueveAbajo(Agarre a) {
    return a == Agarre::DerInf || a == Agarre::Inf || a == Agarre::IzqInf;
}
constexpr bool EsEsquina(Agarre a) {
    return (MueveIzquierda(a) || MueveDerecha(a)) && (MueveArriba(a) || MueveAbajo(a));
}

int Lugar(int principio, int fin, bool antes, bool despues, int lado) {
    return antes ? principio - lado : despues ? fin : (principio + fin - lado) / 2;
}

} // namespace

Caja CajaDe(const Caja& caja, Agarre agarre, int lado) {
    const int x =
        Lugar(caja.izquierda, caja.derecha, MueveIzquierda(agarre), MueveDerecha(agarre), lado);
    const int y = Lugar(caja.arriba, caja.abajo, MueveArriba(agarre), MueveAbajo(agarre), lado);
    return {x, y, x + lado, y + lado};
}

Agarre AgarreEn(const Caja& caja, Punto punto, int lado) {
    for (const bool esquinas : {true, false})
        for (const Agarre agarre : Agarres)
            if (EsEsquina(agarre) == esquinas && CajaDe(caja, agarre, lado).Contiene(punto))
                return agarre;
    return Agarre::Ninguno;
}

Caja Estirar(const Caja& caja, Agarre agarre, int dx, int dy, int minimo, Rejilla rejilla) {
    Caja nueva = caja;
    if (MueveIzquierda(agarre))
        nueva.izquierda = std::min(rejilla.Ajustar(caja.izquierda + dx), caja.derecha - minimo);
    if (MueveDerecha(agarre))
        nueva.derecha = std::max(rejilla.Ajustar(caja.derecha + dx), caja.izquierda + minimo);
    if (MueveArriba(agarre))
        nueva.arriba = std::min(rejilla.Ajustar(caja.arriba + dy), caja.abajo - minimo);
    if (MueveAbajo(agarre))
        nueva.abajo = std::max(rejilla.Ajustar(caja.abajo + dy), caja.arriba + minimo);
    return nueva;
}

} // namespace diseno
