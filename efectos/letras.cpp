#include "efectos/letras.h"

#include "common/conversion.h"
#include "efectos/efectos.h"

namespace pincela {

Color ColorDeSombra(Efectos& efectos, TLetra tipo, Color letra, Color directa) {
    return EsInversa(tipo) ? Inverso(efectos, letra) : directa;
}

bool SigueAlAmbiente(const Fuente& propia, const AtributosFuente& anterior, const Fuente& nueva) {
    return nueva && (!propia || propia->Atributos() == anterior);
}

Texto TeclaDeAcceso(VistaTexto titulo) {
    const std::uint8_t posicion = Byte(static_cast<std::int64_t>(Posicion(titulo, u"&")));
    if (posicion == 0)
        return {};
    return Texto(titulo.substr(posicion, 1));
}

bool CompletaPulsacion(VistaTexto titulo, std::int16_t tecla, bool teclaAbajo) {
    if (!teclaAbajo)
        return false;
    if (EsTeclaDePulsar(tecla))
        return true;
    // Key codes are characters of one byte; anything else has no place in a caption.
    if (tecla < 0 || tecla > 255)
        return false;
    const Texto acceso{u'&', static_cast<char16_t>(tecla)};
    return Posicion(Mayusculas(titulo), acceso) > 0;
}

Texto SinAmpersand(VistaTexto titulo) {
    Texto leido;
    for (std::size_t i = 0; i < titulo.size(); ++i) {
        if (titulo[i] == u'&' && ++i == titulo.size())
            break;
        leido += titulo[i];
    }
    return leido;
}

} // namespace pincela
