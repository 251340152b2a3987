// What the button says of itself to assistive programs, and what it takes from its container.
#include "botonazo/botonazo.h"
#include "efectos/letras.h"

namespace pincela {

Accesible Botonazo::Describir() const {
    Accesible a;
    a.papel = Accesible::Papel::Boton;
    const Texto titulo = lblTitulo->Caption();
    a.nombre = SinAmpersand(titulo);
    // A caption too long to have its key found has none.
    a.tecla = Mayusculas(superficie().AccessKeys().substr(0, 1));
    a.accion = u"Pulsar";
    a.habilitado = m_Enabled;
    a.enfocable = m_Enabled;
    a.pulsado = m_Presionado;
    a.bajoElRaton = m_Sobre;
    return a;
}

void Botonazo::AccionPorDefecto() {
    if (m_Enabled)
        Click();
}

void Botonazo::AmbientFontChanged(const AtributosFuente& anterior, const Fuente& nueva) {
    if (!SigueAlAmbiente(lblTitulo->Font(), anterior, nueva))
        return;
    for (Etiqueta* etiqueta : {lblTitulo.get(), LblSombra.get(), lblSombra2.get()})
        etiqueta->PonFont(nueva);
    UbicarTexto(m_Presionado);
}

// The look that the button has at this moment, drawn again.
void Botonazo::AmbientChanged() {
    if (m_Presionado)
        ActualizarEstado(true);
    else if (m_Sobre && CambiaAspecto())
        PintarBoton(m_ImagSobre, m_ColorDegradeS, true);
    else
        PintarBoton(m_ImagNormal, m_ColorDegradeN, m_Sobre);
}

} // namespace pincela
