// What every assignment does, in order.
#include "common/al_salir.h"
#include "common/errores.h"
#include "tbox/caja_base.h"

#include <utility>

namespace pincela {

namespace {

constexpr std::int16_t SeparaMinima = 2; // pixels
constexpr std::int16_t SeparaMaxima = 29;

} // namespace

Alineaciones CajaBase::AlinTBox() const {
    return m_AlinTBox;
}

void CajaBase::PonAlinTBox(Alineaciones valor) {
    if (valor == m_AlinTBox)
        return;
    m_AlinTBox = valor;
    entorno_.PropertyChanged(u"AlinTBox");
    AjustarSiNoCarga();
}

std::int32_t CajaBase::AlinText() const {
    return txtTexto->Alignment();
}

void CajaBase::PonAlinText(std::int32_t valor) {
    txtTexto->PonAlignment(valor);
    entorno_.PropertyChanged(u"AlinText");
}

std::int32_t CajaBase::MaxText() const {
    return txtTexto->MaxLength();
}

void CajaBase::PonMaxText(std::int32_t valor) {
    txtTexto->PonMaxLength(valor);
    entorno_.PropertyChanged(u"MaxText");
}

Texto CajaBase::Text() const {
    return txtTexto->Text();
}

void CajaBase::PonText(Texto valor) {
    if (!m_Cargando && !PuedeEditarse())
        Lanzar(NumeroError::PermisoDenegado);
    {
        // A handler of the change may assign a text of its own.
        const bool anidada = std::exchange(asignandoTexto_, true);
        AlSalir volver([this, anidada] { asignandoTexto_ = anidada; });
        txtTexto->PonText(valor);
    }
    entorno_.PropertyChanged(u"Text");
}

Fuente CajaBase::FuenteTexto() const {
    return txtTexto->Font();
}

void CajaBase::PonFuenteTexto(Fuente valor) {
    txtTexto->PonFont(FuenteUsable(valor));
    entorno_.PropertyChanged(u"Fuente");
    AjustarSiNoCarga();
}

Color CajaBase::ColorLetra() const {
    return m_ColorLetra;
}

// Whoever is told of a colour may assign another: what is stored then is what shows.
void CajaBase::PonColorLetra(Color valor) {
    m_ColorLetra = valor;
    entorno_.PropertyChanged(u"ColorLetra");
    txtTexto->PonForeColor(m_ColorLetra);
}

Color CajaBase::ColorLetraSobre() const {
    return m_ColorLetraSobre;
}

void CajaBase::PonColorLetraSobre(Color valor) {
    m_ColorLetraSobre = valor;
    entorno_.PropertyChanged(u"ColorLetraSobre");
}

Color CajaBase::ColorFondo() const {
    return m_ColorFondo;
}

void CajaBase::PonColorFondo(Color valor) {
    m_ColorFondo = valor;
    entorno_.PropertyChanged(u"ColorFondo");
    PintarFondo(m_ColorFondo);
}

Color CajaBase::ColorFondoSobre() const {
    return m_ColorFondoSobre;
}

void CajaBase::PonColorFondoSobre(Color valor) {
    m_ColorFondoSobre = valor;
    entorno_.PropertyChanged(u"ColorFondoSobre");
}

Color CajaBase::ColorFonTexto() const {
    return m_ColorFonTexto;
}

void CajaBase::PonColorFonTexto(Color valor) {
    m_ColorFonTexto = valor;
    txtTexto->PonBackColor(valor);
    entorno_.PropertyChanged(u"ColorFonTexto");
}

Color CajaBase::ColorFonTextoS() const {
    return m_ColorFonTextoS;
}

void CajaBase::PonColorFonTextoS(Color valor) {
    m_ColorFonTextoS = valor;
    entorno_.PropertyChanged(u"ColorFonTextoS");
}

bool CajaBase::Tranca() const {
    return txtTexto->Locked();
}

void CajaBase::PonTranca(bool valor) {
    txtTexto->PonLocked(valor);
    entorno_.PropertyChanged(u"Tranca");
}

Imagen CajaBase::MouseIcon() const {
    return superficie().MouseIcon();
}

void CajaBase::PonMouseIcon(Imagen valor) {
    superficie().PonMouseIcon(valor);
    entorno_.PropertyChanged(u"MouseIcon");
}

std::int16_t CajaBase::MousePointer() const {
    return superficie().MousePointer();
}

void CajaBase::PonMousePointer(std::int16_t valor) {
    superficie().PonMousePointer(valor);
    entorno_.PropertyChanged(u"MousePointer");
}

TBack CajaBase::BackStyle() const {
    return static_cast<TBack>(superficie().BackStyle());
}

void CajaBase::PonBackStyle(TBack valor) {
    superficie().PonBackStyle(valor == TBack::Opaco ? 1 : 0);
    entorno_.PropertyChanged(u"BackStyle");
}

std::int16_t CajaBase::Separa() const {
    return m_Separa;
}

void CajaBase::PonSepara(std::int16_t valor) {
    if (valor == m_Separa && !m_Cargando)
        return;
    if (valor < SeparaMinima || valor > SeparaMaxima)
        return;
    m_Separa = valor;
    AjustarTexto();
    entorno_.PropertyChanged(u"Separa");
}

bool CajaBase::Enabled() const {
    return m_Enabled;
}

void CajaBase::PonEnabled(bool valor) {
    m_Enabled = valor;
    entorno_.PropertyChanged(u"Enabled");
    txtTexto->PonEnabled(m_Enabled);
}

TText CajaBase::TipoTexto() const {
    return m_TipoTexto;
}

void CajaBase::PonTipoTexto(TText valor) {
    m_TipoTexto = valor;
    entorno_.PropertyChanged(u"TipoTexto");
}

std::int32_t CajaBase::Apariencia() const {
    return txtTexto->Appearance();
}

void CajaBase::PonApariencia(std::int32_t valor) {
    txtTexto->PonAppearance(valor);
    entorno_.PropertyChanged(u"Apariencia");
}

bool CajaBase::FocoVisible() const {
    return false;
}

void CajaBase::PonFocoVisible(bool /*valor*/) {
    entorno_.PropertyChanged(u"FocoVisible");
}

bool CajaBase::FocoConMouse() const {
    return m_FocoConMouse;
}

void CajaBase::PonFocoConMouse(bool valor) {
    m_FocoConMouse = valor;
    entorno_.PropertyChanged(u"FocoConMouse");
}

Tamanio CajaBase::SeparaBorde() const {
    return m_SeparaBorde;
}

void CajaBase::PonSeparaBorde(Tamanio valor) {
    if (valor == m_SeparaBorde && !m_Cargando)
        return;
    m_SeparaBorde = valor;
    AjustarTexto();
    entorno_.PropertyChanged(u"SeparaBorde");
}

TLetra CajaBase::TipoLetra() const {
    return m_TipoLetra;
}

void CajaBase::PonTipoLetra(TLetra valor) {
    if (valor == m_TipoLetra && !m_Cargando)
        return;
    m_TipoLetra = valor;
    AjustarTexto();
    entorno_.PropertyChanged(u"TipoLetra");
}

} // namespace pincela
