#include "plataforma/windows/diseno_pagina.h"

#include "plataforma/windows/modulo.h"

#include <commctrl.h>

#include <string_view>

namespace pincela::windows {

namespace {

/// Height of a list when it is open, in dialog units.
constexpr short AltoAbierta = 130;

struct Ventana {
    const wchar_t* clase;
    DWORD estilo;
    DWORD estiloEx = 0;
};

Ventana VentanaDe(ClasePieza clase) {
    constexpr DWORD parada = WS_TABSTOP;
    switch (clase) {
    case ClasePieza::Rotulo:
        return {L"STATIC", SS_LEFT | SS_CENTERIMAGE};
    case ClasePieza::Campo:
        return {L"EDIT", ES_AUTOHSCROLL | parada, WS_EX_CLIENTEDGE};
    case ClasePieza::Casilla:
        return {L"BUTTON", BS_AUTOCHECKBOX | parada};
    case ClasePieza::Opcion:
        return {L"BUTTON", BS_AUTORADIOBUTTON | parada};
    case ClasePieza::Lista:
        return {L"COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL | parada};
    case ClasePieza::Deslizador:
        return {TRACKBAR_CLASSW, TBS_HORZ | TBS_AUTOTICKS | parada};
    case ClasePieza::Boton:
        return {L"BUTTON", BS_PUSHBUTTON | parada};
    case ClasePieza::BotonColor:
        return {L"BUTTON", BS_OWNERDRAW | parada};
    case ClasePieza::Grupo:
    case ClasePieza::FilaDeTopes:
        return {L"BUTTON", BS_GROUPBOX};
    case ClasePieza::Cuadro:
        return {ClaseDeCuadro, 0, WS_EX_STATICEDGE};
    case ClasePieza::CuadroLibre:
        return {ClaseDeCuadro, 0};
    }
    return {L"STATIC", 0};
}

/// Writes a template: 16-bit words, each item on a boundary of 32 bits.
class Escritor {
  public:
    explicit Escritor(const DisenoPagina& diseno, std::size_t cuantas) {
        constexpr DWORD estilo =
            WS_CHILD | WS_CLIPSIBLINGS | DS_CONTROL | DS_SHELLFONT | DS_3DLOOK | DS_FIXEDSYS;
        Palabra(1);
        Palabra(0xFFFF); // extended form
        Doble(0);
        Doble(WS_EX_CONTROLPARENT);
        Doble(estilo);
        Palabra(static_cast<WORD>(cuantas));
        Lugar(0, 0, diseno.ancho, diseno.alto);
        Palabra(0); // no menu
        Palabra(0); // the platform's class
        Palabra(0); // no title
        Palabra(8); // points
        Palabra(FW_NORMAL);
        Palabra(MAKEWORD(FALSE, DEFAULT_CHARSET));
        Cadena(L"MS Shell Dlg");
    }

    void Escribir(const Pieza& pieza, WORD numero, bool grupo) {
        const Ventana ventana = VentanaDe(pieza.clase);
        if (palabras_.size() % 2)
            Palabra(0);
        Doble(0);
        Doble(ventana.estiloEx);
        Doble(WS_CHILD | WS_VISIBLE | ventana.estilo | (grupo ? WS_GROUP : 0));
        const bool lista = pieza.clase == ClasePieza::Lista;
        Lugar(pieza.x, pieza.y, pieza.ancho, lista ? AltoAbierta : pieza.alto);
        Doble(numero);
        Cadena(ventana.clase);
        Cadena(pieza.texto);
        Palabra(0); // no data
    }

    std::vector<WORD> Ceder() { return std::move(palabras_); }

  private:
    void Palabra(WORD valor) { palabras_.push_back(valor); }
    void Doble(DWORD valor) {
        Palabra(LOWORD(valor));
        Palabra(HIWORD(valor));
    }
    void Lugar(short x, short y, short ancho, short alto) {
        for (const short valor : {x, y, ancho, alto})
            Palabra(static_cast<WORD>(valor));
    }
    void Cadena(std::wstring_view texto) {
        palabras_.insert(palabras_.end(), texto.begin(), texto.end());
        Palabra(0);
    }

    std::vector<WORD> palabras_;
};

} // namespace

std::vector<WORD> PlantillaDe(const DisenoPagina& diseno) {
    Escritor escritor(diseno, diseno.piezas.size());
    WORD numero = PrimeraPieza;
    const Pieza* anterior = nullptr;
    for (const Pieza& pieza : diseno.piezas) {
        // The options one after another are one group.
        const bool sigue =
            anterior && anterior->clase == ClasePieza::Opcion && pieza.clase == ClasePieza::Opcion;
        escritor.Escribir(pieza, numero++, !sigue);
        anterior = &pieza;
    }
    return escritor.Ceder();
}

SIZE MedidaDe(const DisenoPagina& diseno) {
    // Units depend on the font that a dialog gets, so an empty one is asked.
    DisenoPagina vacio = diseno;
    vacio.piezas = {};
    std::vector<WORD> plantilla = PlantillaDe(vacio);
    auto* cabecera = reinterpret_cast<DWORD*>(plantilla.data());
    cabecera[3] = (cabecera[3] & ~static_cast<DWORD>(WS_CHILD | DS_CONTROL)) | WS_POPUP;
    const HWND ventana = ::CreateDialogIndirectParamW(
        ModuloPropio(), reinterpret_cast<const DLGTEMPLATE*>(plantilla.data()), nullptr, nullptr,
        0);
    RECT r{0, 0, diseno.ancho, diseno.alto};
    if (!ventana || !::MapDialogRect(ventana, &r))
        r = {0, 0, ::MulDiv(diseno.ancho, 3, 2), ::MulDiv(diseno.alto, 13, 8)};
    if (ventana)
        ::DestroyWindow(ventana);
    return {r.right, r.bottom};
}

} // namespace pincela::windows
