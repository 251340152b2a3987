// Short words for the lists in which a text box reads and writes its property bag.
#pragma once

#include "common/conversion.h"
#include "plataforma/bolsa.h"
#include "plataforma/fuente.h"
#include "plataforma/imagen.h"

#include <cstdint>

namespace pincela {

using Corto = std::int16_t;

class LecturaDeCaja {
  public:
    explicit LecturaDeCaja(BolsaPropiedades& bolsa) : bolsa_(bolsa) {}

    bool Booleano(VistaTexto clave, bool porDefecto) { return ABooleano(Leer(clave, porDefecto)); }
    std::int16_t Entero16(VistaTexto clave, Corto porDefecto) {
        return AEntero16(Leer(clave, porDefecto));
    }
    std::int32_t Entero32(VistaTexto clave, const Variante& porDefecto) {
        return AEntero32(Leer(clave, porDefecto));
    }
    template <class E>
    E Enumeracion(VistaTexto clave, Corto porDefecto) {
        return AEnumeracion<E>(Leer(clave, porDefecto));
    }
    pincela::Color Color(VistaTexto clave, pincela::Color porDefecto) {
        return AColor(Leer(clave, porDefecto.valor));
    }
    pincela::Texto Texto(VistaTexto clave) { return ATexto(Leer(clave, pincela::Texto())); }
    /// The container's font where the bag has none, or Nothing.
    pincela::Fuente Fuente(VistaTexto clave, const pincela::Fuente& ambiente) {
        const auto fuente = AObjeto<ObjetoFuente>(Leer(clave, ReferenciaObjeto(ambiente)));
        return fuente ? fuente : ambiente;
    }
    pincela::Imagen Imagen(VistaTexto clave) {
        return AObjeto<ObjetoImagen>(Leer(clave, ReferenciaObjeto()));
    }
    /// Reads a key of the button's vocabulary, which means nothing to a text box.
    void Descartar(VistaTexto clave, const Variante& porDefecto) { Leer(clave, porDefecto); }

  private:
    Variante Leer(VistaTexto clave, const Variante& porDefecto) {
        return bolsa_.ReadProperty(clave, porDefecto);
    }
    BolsaPropiedades& bolsa_;
};

class EscrituraDeCaja {
  public:
    explicit EscrituraDeCaja(BolsaPropiedades& bolsa) : bolsa_(bolsa) {}

    void operator()(VistaTexto clave, const Variante& valor, const Variante& porDefecto) {
        bolsa_.WriteProperty(clave, valor, porDefecto);
    }
    template <class E>
    requires std::is_enum_v<E>
    void operator()(VistaTexto clave, E valor, Corto porDefecto) {
        bolsa_.WriteProperty(clave, static_cast<std::int32_t>(valor), porDefecto);
    }
    void operator()(VistaTexto clave, Color valor, Color porDefecto) {
        bolsa_.WriteProperty(clave, valor.valor, porDefecto.valor);
    }
    void operator()(VistaTexto clave, const Fuente& valor, const Fuente& porDefecto) {
        bolsa_.WriteProperty(clave, ReferenciaObjeto(valor), ReferenciaObjeto(porDefecto));
    }
    void operator()(VistaTexto clave, const Imagen& valor) {
        bolsa_.WriteProperty(clave, ReferenciaObjeto(valor), ReferenciaObjeto());
    }
    void operator()(VistaTexto clave, const Texto& valor) {
        bolsa_.WriteProperty(clave, valor, Texto());
    }
    /// Writes a key that carries no state: its value is empty.
    void Vacia(VistaTexto clave, const Variante& porDefecto) {
        bolsa_.WriteProperty(clave, Vacio{}, porDefecto);
    }

  private:
    BolsaPropiedades& bolsa_;
};

} // namespace pincela
