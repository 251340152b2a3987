// A control and partners that lie as they are told.
#pragma once

#include "anfitrion/tardio.h"
#include "pruebas/cada.h"
#include "pruebas/componente/hostil/ataque.h"
#include "pruebas/componente/vivo/banco.h"

#include <doctest/doctest.h>

namespace hostil {

constexpr HRESULT Roto = E_ACCESSDENIED; ///< the status of whoever fails here

inline const wchar_t* CadaControl() {
    return pincela::pruebas::Cada({L"Pincela.Botonazo", L"Pincela.Area", L"Pincela.Tbox",
                                   L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"});
}

struct Banco {
    Componente componente = (vivo::AbrirOle(), Componente::DeFichero(vivo::RutaComponente()));
    Ataque socios{componente, 1, 1};

    explicit Banco(std::vector<Emboscada> mentiras = {}) { socios.Tender(std::move(mentiras)); }

    Puntero<IUnknown> Nuevo(const wchar_t* clase) const {
        auto objeto = componente.Crear(componente.Clase(clase));
        objeto.Como<IPersistStreamInit>()->InitNew();
        return objeto;
    }
};

/// From the first such call on.
inline Emboscada Siempre(const char* donde, Accion accion, HRESULT estado = S_OK) {
    return {donde, 1, true, accion, accion == Accion::Fallar ? Roto : estado, 0};
}

} // namespace hostil
