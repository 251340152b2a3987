// A page on the recording host, in the Spanish locale it is made for.
#pragma once

#include "pruebas/nativas/con_regional.h"
#include "pruebas/nativas/entorno_pagina_grabador.h"

#include <string>
#include <vector>

namespace pincela::pruebas {

inline constexpr Regional Espaniol{u',', u'.'};
inline constexpr Regional Ingles{u'.', u','};

template <class P>
class PaginaDePrueba {
  public:
    explicit PaginaDePrueba(Regional regional = Espaniol) : conRegional_(regional) {}

    /// Shows these objects, with a clean record afterwards.
    void Mostrar(std::vector<ControlUsuario*> seleccion) {
        e.seleccion = std::move(seleccion);
        p.SelectionChanged();
        e.registro.Olvidar();
    }
    Lineas Tomar() { return e.registro.Tomar(); }
    Lineas Tomar(const std::vector<std::string>& comienzos) { return e.registro.Tomar(comienzos); }

    // What a list offers, joined by a blank.
    std::string Items(const std::string& lista) {
        std::string juntos;
        for (const Texto& item : e.LaLista(lista).items)
            juntos += (juntos.empty() ? "" : " ") + std::string(item.begin(), item.end());
        return juntos;
    }
    Texto TextoDe(const std::string& campo) { return e.ElCampo(campo).Text(); }
    std::int32_t Indice(const std::string& lista) { return e.LaLista(lista).ListIndex(); }
    std::int32_t Marca(const std::string& casilla) { return e.UnaCasilla(casilla).Value(); }
    Color ColorDe(const std::string& boton) {
        return e.template El<BotonColorGrabado>(boton).BackColor();
    }

  private:
    ConRegional conRegional_;

  public:
    EntornoPaginaGrabador e;
    P p{e};
};

} // namespace pincela::pruebas
