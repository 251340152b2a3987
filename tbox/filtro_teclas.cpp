#include "tbox/filtro_teclas.h"

#include "common/conversion.h"

namespace pincela {

namespace {

constexpr std::int16_t Descartada = 0;

bool EsDigito(char16_t letra) {
    return letra >= u'0' && letra <= u'9';
}

} // namespace

void FiltrarNumero(std::int16_t& tecla, bool decimales, VistaTexto texto) {
    if (tecla == u'.')
        tecla = u',';
    // As a character: the codes that read as negative numbers are letters, not control codes.
    const auto letra = static_cast<char16_t>(tecla);
    if (letra <= u'!' || EsDigito(letra))
        return;
    const bool esPrimeraComa = decimales && letra == u',' && texto.find(u',') == VistaTexto::npos;
    if (!esPrimeraComa)
        tecla = Descartada;
}

void FiltrarTecla(std::int16_t& tecla, TText tipo, VistaTexto texto, VistaTexto excluidos) {
    switch (tipo) {
    case TText::NumericoEnt:
    case TText::NumericoDes:
        FiltrarNumero(tecla, tipo == TText::NumericoDes, texto);
        if (tecla == u' ')
            tecla = Descartada;
        break;
    case TText::Mayuscula:
        tecla = static_cast<std::int16_t>(Mayuscula(static_cast<char16_t>(tecla)));
        break;
    default:
        break;
    }
    const std::uint8_t cuantos = Byte(static_cast<std::int64_t>(excluidos.size()));
    if (excluidos.substr(0, cuantos).find(static_cast<char16_t>(tecla)) != VistaTexto::npos)
        tecla = Descartada;
}

} // namespace pincela
