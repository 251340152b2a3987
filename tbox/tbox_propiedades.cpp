// What the assignments that only a labelled text box has do, in order.
#include "common/conversion.h"
#include "efectos/letras.h"
#include "tbox/tbox.h"

#include <utility>

namespace pincela {

namespace {

/// A caption as it is read: without the marks of its access key, a doubled mark being a "&".
Texto SinMarcas(VistaTexto titulo) {
    Texto leido;
    for (std::size_t i = 0; i < titulo.size(); ++i) {
        if (titulo[i] == u'&' && ++i == titulo.size())
            break;
        leido.push_back(titulo[i]);
    }
    return leido;
}

} // namespace

Texto Tbox::Caption() const {
    return lblTexto->Caption();
}

void Tbox::PonCaption(Texto valor) {
    lblTexto->PonCaption(valor);
    lblSombra->PonCaption(valor);
    NombrarCampo();
    Texto teclas;
    for (const char16_t letra : TeclaDeAcceso(valor))
        teclas = {Minuscula(letra), Mayuscula(letra)};
    superficie().PonAccessKeys(teclas);
    AjustarSiNoCarga();
    entorno_.PropertyChanged(u"Caption");
}

void Tbox::NombrarCampo() {
    txtTexto->PonNombreAccesible(SinMarcas(lblTexto->Caption()));
}

Fuente Tbox::FuenteEtic() const {
    return lblTexto->Font();
}

void Tbox::PonFuenteEtic(Fuente valor) {
    lblTexto->PonFont(FuenteUsable(valor));
    lblSombra->PonFont(valor);
    entorno_.PropertyChanged(u"FuenteEtic");
    AjustarSiNoCarga();
}

Color Tbox::ColorLetraE() const {
    return m_ColorLetraE;
}

void Tbox::PonColorLetraE(Color valor) {
    m_ColorLetraE = valor;
    entorno_.PropertyChanged(u"ColorLetraE");
    lblTexto->PonForeColor(m_ColorLetraE);
    SombrearTexto();
}

Color Tbox::ColorLetraES() const {
    return m_ColorLetraES;
}

void Tbox::PonColorLetraES(Color valor) {
    m_ColorLetraES = valor;
    entorno_.PropertyChanged(u"ColorLetraES");
}

Texto Tbox::ToolTipText() const {
    return lblTexto->ToolTipText();
}

void Tbox::PonToolTipText(Texto valor) {
    lblTexto->PonToolTipText(valor);
    txtTexto->PonToolTipText(valor);
    entorno_.PropertyChanged(u"ToolTipText");
}

TSombra Tbox::TipoSombra() const {
    return m_TipoSombra;
}

void Tbox::PonTipoSombra(TSombra valor) {
    m_TipoSombra = valor;
    SombrearTexto();
    SombrearCampo();
    entorno_.PropertyChanged(u"TipoSombra");
}

void Tbox::PonColorFonTexto(Color valor) {
    CajaBase::PonColorFonTexto(valor);
    if (m_TipoSombra == TSombra::Invertida)
        SombrearCampo();
}

void Tbox::PonEnabled(bool valor) {
    CajaBase::PonEnabled(valor);
    // Whoever was told may have assigned again.
    lblTexto->PonEnabled(m_Enabled);
    lblSombra->PonEnabled(m_Enabled);
}

} // namespace pincela
