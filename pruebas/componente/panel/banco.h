// A panel on a form of one colour, alone or with controls standing on it.
#pragma once

#include "pruebas/componente/vivo/banco.h"

namespace panel {

using namespace vivo;

constexpr COLORREF Rojo = RGB(220, 20, 30), Azul = RGB(20, 30, 210), Amarillo = RGB(250, 240, 10),
                   Negro = RGB(0, 0, 0), Blanco = RGB(255, 255, 255);

/// A form of 300 x 200 with a panel of 200 x 120 at (20, 20).
struct BancoPanel : Banco {
    static constexpr RECT Lugar{20, 20, 220, 140};
    static constexpr int W = 200, H = 120;

    explicit BancoPanel(const OpcionesFormulario& opciones = {})
        : Banco(opciones, L"Pincela.Area", Lugar), panel(boton) {
        forma->alPintar = [this](HDC hdc, const RECT&) {
            RECT todo{0, 0, 300, 200};
            const HBRUSH brocha = CreateSolidBrush(fondo);
            FillRect(hdc, &todo, brocha);
            DeleteObject(brocha);
        };
        InvalidateRect(forma->Ventana(), nullptr, TRUE);
        Esperar(20);
        Olvidar();
    }

    /// A button on the panel, in pixels of the panel.
    std::shared_ptr<ControlAlojado> Dentro(const std::wstring& nombre, const RECT& lugar,
                                           const wchar_t* clase = L"Pincela.Botonazo") {
        return Agregar(nombre, lugar, clase, panel.get());
    }
    void ManAreas(bool crear) {
        VARIANT_BOOL valor = crear ? VARIANT_TRUE : VARIANT_FALSE;
        Llamar(panel->Despacho(), L"ManAreas", {Variante::ReferenciaLogica(valor)});
    }
    void Color(const wchar_t* nombre, COLORREF valor) { Poner(nombre, static_cast<long>(valor)); }

    Captura Ver() const { return Captura::DeVentana(Ventana()); }
    Captura VerForma() const { return Captura::DeVentana(forma->Ventana()); }

    COLORREF fondo = Amarillo; ///< of the form
    std::shared_ptr<ControlAlojado> panel;
};

inline OpcionesFormulario EnDiseno() {
    OpcionesFormulario opciones;
    opciones.ambiente.modoUsuario = false;
    return opciones;
}

/// How many pixels of the outline of a rectangle have the colour.
inline int EnContorno(const Captura& c, const RECT& r, COLORREF color) {
    const RECT dentro{r.left + 1, r.top + 1, r.right - 1, r.bottom - 1};
    return c.Contar(r, color) - c.Contar(dentro, color);
}

inline int Contorno(const RECT& r) {
    return 2 * static_cast<int>(r.right - r.left + r.bottom - r.top) - 4;
}

} // namespace panel
