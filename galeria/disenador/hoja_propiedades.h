// What the chosen controls have in common, as names and values to be read and edited. Nothing here
// knows a component's properties: its type library tells them.
#pragma once

#include "galeria/disenador/mesa.h"

namespace galeria {

/// One property of the list.
struct Renglon {
    anfitrion::Propiedad propiedad;
    bool propia = false;              ///< the container's own: name and place
    std::wstring valor;               ///< as it is shown; empty where the controls differ
    std::optional<OLE_COLOR> muestra; ///< of a colour
};

class HojaPropiedades {
  public:
    explicit HojaPropiedades(Mesa& mesa) : mesa_(mesa) {}

    /// Reads the chosen controls anew, or the form when there are none.
    void Leer();
    const std::vector<Renglon>& Renglones() const { return renglones_; }
    /// Place of a property; past the last one when it isn't there.
    std::size_t Lugar(const std::wstring& nombre) const;

    /// A value as the user writes it, for every chosen control. When one of them refuses it they
    /// all keep what they had; false then, and the user is told.
    bool Escribir(std::size_t lugar, const std::wstring& texto);
    bool Poner(std::size_t lugar, const anfitrion::Variante& valor);
    /// Of the control that leads.
    anfitrion::Variante Valor(std::size_t lugar) const;

  private:
    void LeerForma();
    void LeerPropias();
    void LeerPublicadas();
    bool EscribirPropia(std::size_t cual, const std::wstring& texto);

    Mesa& mesa_;
    std::vector<Renglon> renglones_;
};

/// A value as the list shows it, and back. Interpretar throws anfitrion::ErrorDeValor.
std::wstring Presentar(const anfitrion::Propiedad& propiedad, const anfitrion::Variante& valor);
anfitrion::Variante Interpretar(const anfitrion::Propiedad& propiedad, const std::wstring& texto);

} // namespace galeria
