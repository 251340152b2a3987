// What every assignment does, in order.
#include "botonazo/botonazo.h"

#include "common/conversion.h"
#include "common/errores.h"
#include "efectos/efectos.h"
#include "efectos/letras.h"

namespace pincela {

EfectosBoton Botonazo::EfectoBoton() const {
    return m_EfectoBoton;
}

void Botonazo::PonEfectoBoton(EfectosBoton valor) {
    if (valor == m_EfectoBoton && !m_Cargando)
        return;
    m_EfectoBoton = valor;
    entorno_.PropertyChanged(u"EfectoBoton");
    PintarBoton(m_ImagNormal, m_ColorDegradeN, m_Sobre);
    // The washed-out look of a disabled button already holds its border.
    if (m_Enabled || m_CambioProgre)
        PintarBorde(m_Sobre, false);
}

Alineaciones Botonazo::AlinText() const {
    return m_AlinText;
}

void Botonazo::PonAlinText(Alineaciones valor) {
    if (valor == m_AlinText)
        return;
    m_AlinText = valor;
    entorno_.PropertyChanged(u"AlinText");
    if (!m_Cargando)
        UbicarTexto(false);
}

Texto Botonazo::Caption() const {
    return lblTitulo->Caption();
}

void Botonazo::PonCaption(Texto valor) {
    for (Etiqueta* etiqueta : {lblTitulo.get(), LblSombra.get(), lblSombra2.get()})
        etiqueta->PonCaption(valor);
    Texto teclas;
    for (char16_t letra : TeclaDeAcceso(lblTitulo->Caption()))
        teclas = {Mayuscula(letra), Minuscula(letra)};
    superficie().PonAccessKeys(teclas);
    entorno_.AccesibleCambiado();
    if (!m_Cargando)
        UbicarTexto(false);
    entorno_.PropertyChanged(u"Caption");
}

Alineaciones Botonazo::AlinImag() const {
    return m_AlinImag;
}

void Botonazo::PonAlinImag(Alineaciones valor) {
    if (valor == m_AlinImag)
        return;
    m_AlinImag = valor;
    entorno_.PropertyChanged(u"AlinImag");
    if (!m_Cargando)
        PintarBoton(m_ImagNormal, m_ColorDegradeN, m_Sobre);
}

Fuente Botonazo::Font() const {
    return lblTitulo->Font();
}

void Botonazo::PonFont(Fuente valor) {
    // A label can't show text without a font.
    if (!valor)
        Lanzar(NumeroError::ValorDePropiedad);
    for (Etiqueta* etiqueta : {lblTitulo.get(), LblSombra.get(), lblSombra2.get()})
        etiqueta->PonFont(valor);
    entorno_.PropertyChanged(u"Font");
    if (!m_Cargando)
        UbicarTexto(false);
}

Color Botonazo::ColorLetra() const {
    return m_ColorLetra;
}

void Botonazo::PonColorLetra(Color valor) {
    m_ColorLetra = valor;
    entorno_.PropertyChanged(u"ColorLetra");
    PintarLetra(m_ColorLetra);
}

Color Botonazo::ColorLetraSobre() const {
    return m_ColorLetraSobre;
}

void Botonazo::PonColorLetraSobre(Color valor) {
    m_ColorLetraSobre = valor;
    entorno_.PropertyChanged(u"ColorLetraSobre");
}

Color Botonazo::ColorFondo() const {
    return m_ColorFondo;
}

void Botonazo::PonColorFondo(Color valor) {
    m_ColorFondo = valor;
    entorno_.PropertyChanged(u"ColorFondo");
    PonColorDeFondo(m_ColorFondo);
    if (m_CambioProgre)
        PintarBoton(m_ImagNormal, m_ColorDegradeN, false);
    // A new back colour is seen from the next clearing on; a solid face shows it at once.
    else if (!m_Cargando && m_EstilosRell == TEstilosR::Solido)
        PintarBoton(m_ImagNormal, m_ColorDegradeN, m_Sobre);
}

Color Botonazo::ColorFondoSobre() const {
    return m_ColorFondoSobre;
}

void Botonazo::PonColorFondoSobre(Color valor) {
    m_ColorFondoSobre = valor;
    entorno_.PropertyChanged(u"ColorFondoSobre");
}

Imagen Botonazo::MouseIcon() const {
    return superficie().MouseIcon();
}

void Botonazo::PonMouseIcon(Imagen valor) {
    superficie().PonMouseIcon(valor);
    entorno_.PropertyChanged(u"MouseIcon");
}

std::int16_t Botonazo::MousePointer() const {
    return superficie().MousePointer();
}

void Botonazo::PonMousePointer(std::int16_t valor) {
    superficie().PonMousePointer(valor);
    entorno_.PropertyChanged(u"MousePointer");
}

Texto Botonazo::ToolTipText() const {
    return lblTitulo->ToolTipText();
}

void Botonazo::PonToolTipText(Texto valor) {
    lblTitulo->PonToolTipText(valor);
    entorno_.PropertyChanged(u"ToolTipText");
}

TEstilosB Botonazo::EstilosBord() const {
    return m_EstilosBord;
}

void Botonazo::PonEstilosBord(TEstilosB valor) {
    if (valor == m_EstilosBord && !m_Cargando)
        return;
    m_EstilosBord = valor;
    entorno_.PropertyChanged(u"EstilosBord");
    if (m_EstilosBord == TEstilosB::Ninguno)
        PonEfectoBoton(EfectosBoton::boton);
    if (!m_Cargando)
        PintarBoton(m_ImagNormal, m_ColorDegradeN, false);
}

TEstilosR Botonazo::EstilosRell() const {
    return m_EstilosRell;
}

void Botonazo::PonEstilosRell(TEstilosR valor) {
    if (valor == m_EstilosRell && !m_Cargando)
        return;
    m_EstilosRell = valor;
    // The colours of the mouse-over look, on purpose: they preview the new fill.
    if (!m_Cargando)
        PintarBoton(m_ImagNormal, m_ColorDegradeS, false);
    entorno_.PropertyChanged(u"EstilosRell");
}

TEstilos Botonazo::Estilos() const {
    return m_Estilos;
}

void Botonazo::PonEstilos(TEstilos valor) {
    if (valor == m_Estilos && !m_Cargando)
        return;
    m_Estilos = valor;
    entorno_.PropertyChanged(u"Estilos");
    if (m_Cargando)
        return;
    SeguirForma();
    superficie().Refresh();
}

float Botonazo::RelX() const {
    return m_Redondeo.RelX;
}

void Botonazo::PonRelX(float valor) {
    if (valor == m_Redondeo.RelX)
        return;
    m_Redondeo.RelX = valor;
    entorno_.PropertyChanged(u"RelX");
    if (!m_Cargando)
        SeguirForma();
}

float Botonazo::RelY() const {
    return m_Redondeo.RelY;
}

// A shape without width of curvature takes no height of it: the assignment is dropped in silence.
void Botonazo::PonRelY(float valor) {
    if (m_Redondeo.RelX == 0)
        return;
    m_Redondeo.RelY = valor;
    entorno_.PropertyChanged(u"RelY");
    if (!m_Cargando)
        SeguirForma();
}

Imagen Botonazo::ImagNormal() const {
    return m_ImagNormal;
}

void Botonazo::PonImagNormal(Imagen valor) {
    if (MismoObjeto(valor, m_ImagNormal))
        return;
    m_ImagNormal.swap(valor);
    entorno_.PropertyChanged(u"ImagNormal");
    if (!m_Cargando)
        PintarBoton(m_ImagNormal, m_ColorDegradeN, false);
}

Imagen Botonazo::ImagSobre() const {
    return m_ImagSobre;
}

void Botonazo::PonImagSobre(Imagen valor) {
    if (MismoObjeto(valor, m_ImagSobre))
        return;
    m_ImagSobre.swap(valor);
    entorno_.PropertyChanged(u"ImagSobre");
}

void Botonazo::Actualizar() {
    superficie().Refresh();
}

bool Botonazo::Expandir() const {
    return m_Expandir;
}

void Botonazo::PonExpandir(bool valor) {
    m_Expandir = valor;
    entorno_.PropertyChanged(u"Expandir");
    if (!m_Cargando)
        PintarBoton(m_ImagNormal, m_ColorDegradeN, false);
}

bool Botonazo::Enabled() const {
    return m_Enabled;
}

void Botonazo::PonEnabled(bool valor) {
    m_Enabled = valor;
    entorno_.PropertyChanged(u"Enabled");
    // Whoever was told may have assigned again: the stored value counts from here on.
    lblTitulo->PonEnabled(m_Enabled);
    // A button that is disabled while it is held down would never see the release.
    if (!m_Enabled && m_Presionado) {
        m_Presionado = false;
        UbicarTexto(false);
    }
    entorno_.AccesibleCambiado();
    if (m_Cargando)
        return;
    if (m_CambioProgre) {
        PintarBoton(m_ImagNormal, m_ColorDegradeN, false);
        return;
    }
    DibujarBoton(m_ImagNormal, m_ColorDegradeN, false);
    MostrarPicture1(m_Enabled ? 255 : 100);
}

bool Botonazo::FocoVisible() const {
    return m_FocoVisible;
}

void Botonazo::PonFocoVisible(bool valor) {
    m_FocoVisible = valor;
    entorno_.PropertyChanged(u"FocoVisible");
}

bool Botonazo::FocoConMouse() const {
    return m_FocoConMouse;
}

void Botonazo::PonFocoConMouse(bool valor) {
    m_FocoConMouse = valor;
    entorno_.PropertyChanged(u"FocoConMouse");
}

Tamanio Botonazo::AnchoBorde() const {
    return m_AnchoBorde;
}

void Botonazo::PonAnchoBorde(Tamanio valor) {
    if (valor == m_AnchoBorde && !m_Cargando)
        return;
    m_AnchoBorde = valor;
    superficie().PonDrawWidth(static_cast<std::int32_t>(valor));
    UbicarFoco();
    // "False" is no list of colours: a gradient face shows its back colour until the next repaint.
    PintarBoton(m_ImagNormal, u"False", false);
    entorno_.PropertyChanged(u"AnchoBorde");
}

TLetra Botonazo::TipoLetra() const {
    return m_TipoLetra;
}

void Botonazo::PonTipoLetra(TLetra valor) {
    if (valor == m_TipoLetra && !m_Cargando)
        return;
    m_TipoLetra = valor;
    // The copies keep their colours until the caption is coloured or placed for another reason.
    UbicarTexto(false, Sombras::Conservar);
    entorno_.PropertyChanged(u"TipoLetra");
}

bool Botonazo::CambioProgre() const {
    return m_CambioProgre;
}

void Botonazo::PonCambioProgre(const bool& valor) {
    m_CambioProgre = valor;
    entorno_.PropertyChanged(u"CambioProgre");
    // The canvas that is cleared from now on is another one; a loading button gets its colour
    // later.
    if (!m_Cargando)
        PonColorDeFondo(m_Sobre ? m_ColorFondoSobre : m_ColorFondo);
}

std::uint8_t Botonazo::CambioProgrePasos() const {
    return m_CambioProgrePasos;
}

void Botonazo::PonCambioProgrePasos(const std::uint8_t& valor) {
    m_CambioProgrePasos = valor;
    DetenerProgresivo();
    entorno_.PropertyChanged(u"CambioProgrePasos");
}

std::int16_t Botonazo::Angulo() const {
    return m_Angulo;
}

void Botonazo::PonAngulo(std::int16_t valor) {
    m_Angulo = valor;
    entorno_.PropertyChanged(u"Angulo");
    if (!m_Cargando)
        PintarBoton(m_ImagNormal, m_ColorDegradeN, false);
}

Texto Botonazo::ColorDegradeN() const {
    return m_ColorDegradeN;
}

void Botonazo::PonColorDegradeN(Texto valor) {
    m_ColorDegradeN = std::move(valor);
    entorno_.PropertyChanged(u"ColorDegradeN");
    if (!m_Cargando)
        PintarBoton(m_ImagNormal, m_ColorDegradeN, false);
}

Texto Botonazo::ColorDegradeS() const {
    return m_ColorDegradeS;
}

void Botonazo::PonColorDegradeS(Texto valor) {
    m_ColorDegradeS = std::move(valor);
    entorno_.PropertyChanged(u"ColorDegradeS");
}

} // namespace pincela
