#include "galeria/valores.h"

#include "anfitrion/imagenes.h"
#include "galeria/dibujos.h"
#include "galeria/escala.h"

namespace galeria {

using namespace anfitrion;

namespace {

/// Turns a value of the tables into one that a property bag carries.
struct ComoVariante {
    int ancho, alto; ///< of the control, in pixels

    Variante operator()(std::monostate) const { return {}; }
    Variante operator()(bool v) const { return v; }
    Variante operator()(int v) const { return v; }
    Variante operator()(Color v) const { return v; }
    Variante operator()(double v) const { return static_cast<float>(v); }
    Variante operator()(const wchar_t* v) const { return v; }
    Variante operator()(const Tonos& tonos) const {
        std::wstring lista;
        for (int i = 0; i < tonos.cuantos; ++i)
            lista += (i ? L"*" : L"") + std::to_wstring(tonos.colores[i]);
        return lista;
    }
    Variante operator()(Dibujo cual) const {
        // The border leaves one pixel on each side of a stretched picture.
        const auto imagen = Dibujar(cual, Escala(16), ancho - 2, alto - 2);
        return static_cast<IDispatch*>(imagen.get());
    }
    Variante operator()(const Fuente& fuente) const {
        const auto objeto = CrearFuente(Tipografia, fuente.puntos, fuente.negrita);
        return static_cast<IDispatch*>(objeto.get());
    }
};

} // namespace

Puntero<BolsaMemoria> BolsaDe(std::initializer_list<std::span<const Par>> pares,
                              const RECT& lugar) {
    const ComoVariante convertir{static_cast<int>(Ancho(lugar)), static_cast<int>(Alto(lugar))};
    auto bolsa = Hacer<BolsaMemoria>();
    for (const auto lista : pares)
        for (const Par& par : lista)
            if (par.clave)
                bolsa->Poner(par.clave, std::visit(convertir, par.valor));
    return bolsa;
}

} // namespace galeria
