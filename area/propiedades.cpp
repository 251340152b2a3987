// What every assignment does, in order.
#include "area/area.h"

#include "common/errores.h"

#include <utility>

namespace pincela {

template <class T>
void Area::Cambiar(T& campo, T valor, VistaTexto clave) {
    if (valor == campo)
        return;
    campo = std::move(valor);
    Avisar(clave);
}

void Area::Avisar(VistaTexto clave) {
    entorno_.PropertyChanged(clave);
    Reacomodar();
}

void Area::Reacomodar() {
    if (m_Cargando)
        return;
    Repintar();
    UbicarTexto();
}

Alineaciones Area::AlinText() const {
    return m_AlinText;
}

void Area::PonAlinText(Alineaciones valor) {
    Cambiar(m_AlinText, valor, u"AlinText");
}

Texto Area::Caption() const {
    return lblTitulo->Caption();
}

void Area::PonCaption(Texto valor) {
    for (Etiqueta* etiqueta : {lblTitulo.get(), LblSombra.get(), lblSombra2.get()})
        etiqueta->PonCaption(valor);
    entorno_.AccesibleCambiado();
    Avisar(u"Caption");
}

Fuente Area::Font() const {
    return lblTitulo->Font();
}

void Area::PonFont(Fuente valor) {
    // A label can't show text without a font.
    if (!valor)
        Lanzar(NumeroError::ValorDePropiedad);
    for (Etiqueta* etiqueta : {lblTitulo.get(), LblSombra.get(), lblSombra2.get()})
        etiqueta->PonFont(valor);
    Avisar(u"Font");
}

Color Area::ColorLetra() const {
    return lblTitulo->ForeColor();
}

void Area::PonColorLetra(Color valor) {
    lblTitulo->PonForeColor(valor);
    if (m_EstilosBord == TEstilosB::Normal) {
        for (ParLineas* par : {&LinSup, &LinInf, &LinIzq, &LinDer})
            for (auto& linea : *par)
                linea->PonBorderColor(valor);
    }
    entorno_.PropertyChanged(u"ColorLetra");
    // Also while loading, when nothing is placed yet.
    SombrearTexto();
    Reacomodar();
}

Color Area::ColorFondo() const {
    return m_ColorFondo;
}

void Area::PonColorFondo(Color valor) {
    if (valor != m_ColorFondo)
        superficie().PonBackColor(valor);
    Cambiar(m_ColorFondo, valor, u"ColorFondo");
}

Imagen Area::MouseIcon() const {
    return superficie().MouseIcon();
}

void Area::PonMouseIcon(Imagen valor) {
    superficie().PonMouseIcon(valor);
    Avisar(u"MouseIcon");
}

std::int16_t Area::MousePointer() const {
    return superficie().MousePointer();
}

void Area::PonMousePointer(std::int16_t valor) {
    superficie().PonMousePointer(valor);
    Avisar(u"MousePointer");
}

Texto Area::ToolTipText() const {
    return lblTitulo->ToolTipText();
}

void Area::PonToolTipText(Texto valor) {
    lblTitulo->PonToolTipText(valor);
    Avisar(u"ToolTipText");
}

TEstilosB Area::EstilosBord() const {
    return m_EstilosBord;
}

void Area::PonEstilosBord(TEstilosB valor) {
    Cambiar(m_EstilosBord, valor, u"EstilosBord");
}

TEstilosR Area::EstilosRell() const {
    return m_EstilosRell;
}

void Area::PonEstilosRell(TEstilosR valor) {
    Cambiar(m_EstilosRell, valor, u"EstilosRell");
}

bool Area::Enabled() const {
    return m_Enabled;
}

void Area::PonEnabled(bool valor) {
    if (valor != m_Enabled)
        lblTitulo->PonEnabled(valor);
    Cambiar(m_Enabled, valor, u"Enabled");
    entorno_.AccesibleCambiado();
}

Tamanio Area::SeparaBorde() const {
    return m_SeparaBorde;
}

void Area::PonSeparaBorde(Tamanio valor) {
    Cambiar(m_SeparaBorde, valor, u"SeparaBorde");
}

Texto Area::ColorDegrade() const {
    return m_ColorDegrade;
}

void Area::PonColorDegrade(Texto valor) {
    Cambiar(m_ColorDegrade, std::move(valor), u"ColorDegrade");
}

TBack Area::BackStyle() const {
    return m_BackStyle;
}

// Any value but Transparente is opaque.
void Area::PonBackStyle(TBack valor) {
    if (valor != m_BackStyle)
        superficie().PonBackStyle(valor == TBack::Transparente ? 0 : 1);
    Cambiar(m_BackStyle, valor, u"BackStyle");
}

Tamanio Area::AnchoBorde() const {
    return m_AnchoBorde;
}

void Area::PonAnchoBorde(Tamanio valor) {
    Cambiar(m_AnchoBorde, valor, u"AnchoBorde");
}

TLetra Area::TipoLetra() const {
    return m_TipoLetra;
}

void Area::PonTipoLetra(TLetra valor) {
    Cambiar(m_TipoLetra, valor, u"TipoLetra");
}

} // namespace pincela
