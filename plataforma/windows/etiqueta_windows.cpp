#include "plataforma/windows/etiqueta_windows.h"

#include "plataforma/windows/colores.h"

#include <algorithm>

namespace pincela::windows {

namespace {

constexpr UINT Formato = DT_LEFT | DT_TOP | DT_EXPANDTABS | DT_NOCLIP;

const wchar_t* Letras(const Texto& texto) {
    return reinterpret_cast<const wchar_t*>(texto.c_str());
}

SIZE MedirTexto(HDC dc, HFONT fuente, const Texto& texto) {
    Seleccion seleccion(dc, fuente);
    RECT lugar{};
    ::DrawTextW(dc, Letras(texto), static_cast<int>(texto.size()), &lugar, Formato | DT_CALCRECT);
    if (lugar.bottom == 0) { // an empty caption is one line high all the same
        TEXTMETRICW medidas{};
        ::GetTextMetricsW(dc, &medidas);
        lugar.bottom = medidas.tmHeight;
    }
    return {lugar.right, lugar.bottom};
}

} // namespace

EtiquetaWindows::EtiquetaWindows(Nucleo& nucleo) : nucleo_(nucleo), fuente_(*this) {
    nucleo_.escena.Agregar(*this);
}

EtiquetaWindows::~EtiquetaWindows() {
    nucleo_.escena.Quitar(*this);
}

void EtiquetaWindows::MedirDeNuevo() {
    medida_ = false;
    nucleo_.VistaCambiada();
}

void EtiquetaWindows::FuenteCambiada() {
    MedirDeNuevo();
}
void EtiquetaWindows::PppCambiado() {
    medida_ = false;
}

void EtiquetaWindows::PonCaption(const Texto& texto) {
    if (texto == texto_)
        return;
    texto_ = texto;
    MedirDeNuevo();
}

void EtiquetaWindows::PonFont(const Fuente& fuente) {
    if (fuente == fuente_.fuente())
        return;
    fuente_.Poner(fuente);
    MedirDeNuevo();
}

void EtiquetaWindows::PonForeColor(Color color) {
    if (color == color_)
        return;
    color_ = color;
    nucleo_.VistaCambiada();
}

void EtiquetaWindows::PonEnabled(bool valor) {
    if (valor == habilitada_)
        return;
    habilitada_ = valor;
    nucleo_.VistaCambiada();
}

void EtiquetaWindows::Move(float izquierda, float arriba) {
    if (izquierda == izquierda_ && arriba == arriba_)
        return;
    izquierda_ = izquierda;
    arriba_ = arriba;
    nucleo_.VistaCambiada();
}

void EtiquetaWindows::Medir() const {
    if (medida_)
        return;
    atributos_ = fuente_.Atributos();
    manija_ = nucleo_.apartamento.FuenteDeDispositivo(atributos_, AltoDeFuente(atributos_.Size, nucleo_.ppp));
    tamano_ = MedirTexto(nucleo_.apartamento.DcDeMedida(), manija_->manija.get(), texto_);
    medida_ = manija_->manija && nucleo_.apartamento.DcDeMedida(); // else next time, when there may be more to be had
}

float EtiquetaWindows::Width() const {
    Medir();
    return static_cast<float>(tamano_.cx);
}

float EtiquetaWindows::Height() const {
    Medir();
    return static_cast<float>(tamano_.cy);
}

Zona EtiquetaWindows::Lugar() const {
    return {izquierda_, arriba_, Width(), Height()};
}

// Away from the natural size the letters are made anew, as sharp as the device can, and narrowed
// or widened until the text covers the width the label has on the surface.
RefFuenteGdi EtiquetaWindows::FuentePara(const Destino& destino) const {
    if (destino.TamanoNatural())
        return manija_;
    const int alto = Redondo(AltoDeFuente(atributos_.Size, nucleo_.ppp) * destino.sy);
    auto fuente = nucleo_.apartamento.FuenteDeDispositivo(atributos_, alto);
    const int querido = std::max(1, Redondo(static_cast<double>(tamano_.cx) * destino.sx));
    const long medido = MedirTexto(destino.dc, fuente->manija.get(), texto_).cx;
    if (medido <= 0 || std::abs(medido - querido) * 50 <= querido)
        return fuente;
    Seleccion seleccion(destino.dc, fuente->manija.get());
    TEXTMETRICW medidas{};
    ::GetTextMetricsW(destino.dc, &medidas);
    const int ancho = ::MulDiv(medidas.tmAveCharWidth, querido, static_cast<int>(medido));
    return nucleo_.apartamento.FuenteDeDispositivo(atributos_, alto, std::max(1, ancho));
}

void EtiquetaWindows::Escribir(HDC dc, const RECT& lugar, COLORREF color) const {
    RECT r = lugar;
    ::SetTextColor(dc, color);
    ::DrawTextW(dc, Letras(texto_), static_cast<int>(texto_.size()), &r, Formato);
}

void EtiquetaWindows::Dibujar(const Destino& destino) const {
    if (texto_.empty())
        return;
    Medir();
    const RefFuenteGdi fuente = FuentePara(destino);
    const HDC dc = destino.dc;
    const HGDIOBJ fuenteAnterior = ::GetCurrentObject(dc, OBJ_FONT);
    if (fuenteAnterior != fuente->manija.get())
        ::SelectObject(dc, fuente->manija.get());
    const int modo = ::SetBkMode(dc, TRANSPARENT);
    const COLORREF colorAnterior = ::GetTextColor(dc);
    const UINT alineacion = ::SetTextAlign(dc, TA_LEFT | TA_TOP | TA_NOUPDATECP);
    const int x = Redondo(izquierda_), y = Redondo(arriba_);
    if (!habilitada_) {
        // A light copy below the grey one keeps it readable on dark backgrounds too.
        Escribir(dc, destino.Rectangulo(x + 1, y + 1, x + 1 + tamano_.cx, y + 1 + tamano_.cy),
                 ::GetSysColor(COLOR_3DHILIGHT));
    }
    Escribir(dc, destino.Rectangulo(x, y, x + tamano_.cx, y + tamano_.cy),
             habilitada_ ? Resolver(color_) : ::GetSysColor(COLOR_3DSHADOW));
    if (fuente != manija_) // it goes now, and can't while it is selected
        ::SelectObject(dc, fuenteAnterior);
    ::SetTextAlign(dc, alineacion);
    ::SetTextColor(dc, colorAnterior);
    ::SetBkMode(dc, modo);
}

} // namespace pincela::windows
