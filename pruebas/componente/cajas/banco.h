// A text box on a form, and the hands that type into it.
#pragma once

#include "anfitrion/imagenes.h"
#include "pruebas/componente/vivo/banco.h"

namespace cajas {

using namespace vivo;

inline constexpr const wchar_t* Todas[] = {L"Pincela.Tbox", L"Pincela.TBoxML", L"Pincela.TboxSS",
                                           L"Pincela.TboxSSML"};

/// The edit window in the window of a control.
inline HWND CampoDe(HWND ventana) {
    return FindWindowExW(ventana, nullptr, L"EDIT", nullptr);
}

inline void TeclearUnidad(wchar_t unidad) {
    INPUT entradas[2]{};
    for (INPUT& una : entradas) {
        una.type = INPUT_KEYBOARD;
        una.ki.wScan = unidad;
        una.ki.dwFlags = KEYEVENTF_UNICODE;
    }
    entradas[1].ki.dwFlags |= KEYEVENTF_KEYUP;
    SendInput(2, entradas, sizeof(INPUT));
}

/// The control is called `boton` by the bench it comes from.
struct BancoDeCaja : Banco {
    explicit BancoDeCaja(const wchar_t* clase, const OpcionesFormulario& opciones = {})
        : Banco(opciones, clase) {}

    IDispatch* Caja() const { return boton->Despacho(); }
    HWND Campo() const { return CampoDe(Ventana()); }
    std::wstring Text() { return Texto(Leer(L"Text")); }
    void PonerFuente(const wchar_t* nombre, double puntos) {
        const auto fuente = CrearFuente(nombre, puntos);
        anfitrion::PonerRef(Caja(), L"Fuente", Variante(fuente.get()));
    }
    long Numero(const wchar_t* nombre) { return Entero(Leer(nombre)); }

    void Enfocar() {
        boton->Verbo(OLEIVERB_UIACTIVATE);
        Esperar();
        Olvidar();
    }
    /// Real keystrokes, whatever the keyboard's layout.
    void Escribir(const std::wstring& letras) {
        for (const wchar_t letra : letras) {
            TeclearUnidad(letra);
            Esperar(20);
        }
        Esperar();
    }
    void Con(WORD modificador, WORD tecla) {
        Tecla(modificador, true);
        Esperar(20);
        Teclear(tecla);
        Tecla(modificador, false);
        Esperar(20);
    }
    std::shared_ptr<ControlAlojado> OtraCaja(const wchar_t* clase, const RECT& lugar,
                                             const std::wstring& nombre = L"Otra") {
        auto otra = Agregar(nombre, lugar, clase);
        Esperar();
        Olvidar();
        return otra;
    }
    bool TieneFoco(const ControlAlojado& control) const {
        const HWND foco = GetFocus();
        return foco && (foco == control.Ventana() || IsChild(control.Ventana(), foco));
    }
};

} // namespace cajas
