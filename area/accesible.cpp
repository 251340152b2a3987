// What the panel says of itself to assistive programs, and what it takes from its container.
#include "area/area.h"
#include "efectos/letras.h"

namespace pincela {

Accesible Area::Describir() const {
    Accesible a;
    a.papel = Accesible::Papel::Grupo;
    a.nombre = SinAmpersand(lblTitulo->Caption());
    a.accion = u"Pulsar";
    a.habilitado = m_Enabled;
    a.enfocable = true;
    return a;
}

void Area::AmbientFontChanged(const AtributosFuente& anterior, const Fuente& nueva) {
    if (!SigueAlAmbiente(lblTitulo->Font(), anterior, nueva))
        return;
    lblTitulo->PonFont(nueva);
    UbicarTexto();
}

} // namespace pincela
