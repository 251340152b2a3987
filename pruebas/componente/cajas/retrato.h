// A text box made for a test, and everything that can be read from it.
#pragma once

#include "pruebas/componente/comun/boton.h"

#include <span>

namespace cajas {

using namespace publicado;

/// Every property of a class, in the order of its interface.
std::span<const wchar_t* const> PropiedadesDe(std::wstring_view clase);

bool EsSimple(std::wstring_view clase);

/// A text box out of the component file, not yet initialised by anybody.
struct Caja {
    explicit Caja(const wchar_t* nombreDeClase)
        : clase(nombreDeClase), componente(anfitrion::Componente::DeFichero(RutaDelComponente())),
          objeto(Crear(componente, nombreDeClase)), despacho(objeto.Como<IDispatch>()) {}

    template <class T>
    Puntero<T> Como() const {
        return objeto.Como<T>();
    }
    IDispatch* get() const { return despacho.get(); }
    std::string Valor(const wchar_t* nombre) const { return Describir(Leer(get(), nombre)); }

    SesionOle ole;
    std::wstring clase;
    anfitrion::Componente componente;
    Puntero<IUnknown> objeto;
    Puntero<IDispatch> despacho;
};

/// The same, as newly placed on a form.
struct CajaNueva : Caja {
    explicit CajaNueva(const wchar_t* nombreDeClase) : Caja(nombreDeClase) {
        Como<IPersistStreamInit>()->InitNew();
    }
};

/// Every property as "Name = value".
std::vector<std::string> RetratoDe(const Caja& caja);

/// Gives each property a value that is not its default.
void CambiarTodas(const Caja& caja);

} // namespace cajas
