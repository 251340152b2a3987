// Widgets that the platform's controls draw themselves.
#include "plataforma/windows/elementos_pagina_windows.h"

#include "common/errores.h"

#include <commctrl.h>

#include <string>

namespace pincela::windows {

namespace {

constexpr UINT_PTR Subclase = 1;

const wchar_t* Ancho(const Texto& texto) {
    return reinterpret_cast<const wchar_t*>(texto.c_str());
}

Texto TextoDe(HWND ventana) {
    std::wstring texto(static_cast<std::size_t>(::GetWindowTextLengthW(ventana)) + 1, L'\0');
    texto.resize(static_cast<std::size_t>(
        ::GetWindowTextW(ventana, texto.data(), static_cast<int>(texto.size()))));
    return {texto.begin(), texto.end()};
}

} // namespace

void VentanaDeElemento::PonMarco(VentanaDeElemento* marco) {
    marco_ = marco;
    marco->contenidos_.push_back(this);
}

bool VentanaDeElemento::EstaEnUso() const {
    return activo_ && (!marco_ || marco_->EstaEnUso());
}

bool VentanaDeElemento::EstaALaVista() const {
    return visible_ && (!marco_ || marco_->EstaALaVista());
}

void VentanaDeElemento::MostrarEstado() {
    if (ventana_) {
        ::EnableWindow(ventana_, EstaEnUso());
        ::ShowWindow(ventana_, EstaALaVista() ? SW_SHOWNA : SW_HIDE);
    }
    for (VentanaDeElemento* contenido : contenidos_)
        contenido->MostrarEstado();
}

void VentanaDeElemento::Atar(HWND ventana) {
    ventana_ = ventana;
    if (!ventana_)
        return;
    Volcar();
    MostrarEstado();
}

void VentanaDeElemento::Soltar() {
    if (!ventana_)
        return;
    Soltada();
    ventana_ = nullptr;
}

// Edit field

void CampoWindows::PonText(const Texto& texto) {
    texto_ = texto;
    Escribir();
    Change();
}

void CampoWindows::Escribir() {
    if (!ventana_)
        return;
    callado_ = true;
    ::SetWindowTextW(ventana_, Ancho(texto_));
    callado_ = false;
    // What the page put in place of the user's text is replaced by what the user goes on typing.
    if (::GetFocus() == ventana_)
        ::SendMessageW(ventana_, EM_SETSEL, 0, -1);
}

void CampoWindows::Volcar() {
    Escribir();
    ::SetWindowSubclass(ventana_, &CampoWindows::Procedimiento, Subclase,
                        reinterpret_cast<DWORD_PTR>(this));
}

void CampoWindows::Soltada() {
    ::RemoveWindowSubclass(ventana_, &CampoWindows::Procedimiento, Subclase);
}

void CampoWindows::Mandato(WORD codigo) {
    if (codigo != EN_CHANGE || callado_)
        return;
    texto_ = TextoDe(ventana_);
    Change();
}

LRESULT CALLBACK CampoWindows::Procedimiento(HWND ventana, UINT mensaje, WPARAM w, LPARAM l,
                                             UINT_PTR, DWORD_PTR campo) {
    auto& yo = *reinterpret_cast<CampoWindows*>(campo);
    if (mensaje == WM_CHAR) {
        auto tecla = static_cast<std::int16_t>(w);
        yo.avisador_.Avisar([&] { yo.KeyPress(tecla); });
        if (tecla == 0)
            return 0;
        w = static_cast<WORD>(tecla);
    }
    return ::DefSubclassProc(ventana, mensaje, w, l);
}

// Check box

void CasillaWindows::PonValue(std::int32_t valor) {
    if (valor < BST_UNCHECKED || valor > BST_INDETERMINATE)
        Lanzar(NumeroError::ValorDePropiedad);
    const bool cambia = valor != valor_;
    valor_ = valor;
    Volcar();
    if (cambia)
        Click();
}

void CasillaWindows::Volcar() {
    if (ventana_)
        ::SendMessageW(ventana_, BM_SETCHECK, static_cast<WPARAM>(valor_), 0);
}

void CasillaWindows::Mandato(WORD codigo) {
    if (codigo != BN_CLICKED)
        return;
    valor_ = static_cast<std::int32_t>(::SendMessageW(ventana_, BM_GETCHECK, 0, 0));
    Click();
}

// Option

void OpcionWindows::Elegir() {
    for (OpcionWindows* una : *grupo) {
        una->elegida_ = una == this;
        una->Volcar();
    }
    Click();
}

void OpcionWindows::Volcar() {
    if (ventana_)
        ::SendMessageW(ventana_, BM_SETCHECK, elegida_ ? BST_CHECKED : BST_UNCHECKED, 0);
}

void OpcionWindows::Mandato(WORD codigo) {
    if (codigo == BN_CLICKED && !elegida_)
        Elegir();
}

// List

void ListaWindows::Clear() {
    items_.clear();
    indice_ = -1;
    if (ventana_)
        ::SendMessageW(ventana_, CB_RESETCONTENT, 0, 0);
}

void ListaWindows::AddItem(VistaTexto item) {
    items_.emplace_back(item);
    if (ventana_)
        ::SendMessageW(ventana_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Ancho(items_.back())));
}

void ListaWindows::PonListIndex(std::int32_t indice) {
    if (indice < -1 || indice >= static_cast<std::int32_t>(items_.size()))
        Lanzar(NumeroError::ValorDePropiedad);
    if (indice == indice_)
        return;
    indice_ = indice;
    if (ventana_)
        ::SendMessageW(ventana_, CB_SETCURSEL, static_cast<WPARAM>(indice_), 0);
    Click();
}

void ListaWindows::Volcar() {
    ::SendMessageW(ventana_, CB_RESETCONTENT, 0, 0);
    for (const Texto& item : items_)
        ::SendMessageW(ventana_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Ancho(item)));
    ::SendMessageW(ventana_, CB_SETCURSEL, static_cast<WPARAM>(indice_), 0);
}

void ListaWindows::Mandato(WORD codigo) {
    if (codigo == CBN_SELCHANGE)
        PonListIndex(static_cast<std::int32_t>(::SendMessageW(ventana_, CB_GETCURSEL, 0, 0)));
}

// Slider

void DeslizadorWindows::PonValue(std::int32_t valor) {
    if (valor < 0 || valor > Maximo)
        Lanzar(NumeroError::ValorDePropiedad);
    valor_ = valor;
    if (ventana_)
        ::SendMessageW(ventana_, TBM_SETPOS, TRUE, valor_);
}

void DeslizadorWindows::Volcar() {
    ::SendMessageW(ventana_, TBM_SETRANGE, FALSE, MAKELPARAM(0, Maximo));
    ::SendMessageW(ventana_, TBM_SETTICFREQ, 100, 0);
    ::SendMessageW(ventana_, TBM_SETLINESIZE, 0, 1);
    ::SendMessageW(ventana_, TBM_SETPAGESIZE, 0, 10);
    ::SendMessageW(ventana_, TBM_SETPOS, TRUE, valor_);
}

void DeslizadorWindows::Desplazado() {
    const auto valor = static_cast<std::int32_t>(::SendMessageW(ventana_, TBM_GETPOS, 0, 0));
    if (valor == valor_)
        return;
    valor_ = valor;
    Scroll();
}

// Button

void BotonWindows::Mandato(WORD codigo) {
    if (codigo == BN_CLICKED)
        Click();
}

} // namespace pincela::windows
