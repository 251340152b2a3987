// What the colour pages show, and the hands that choose colours there.
#pragma once

#include "pruebas/componente/paginas/banco.h"

#include <commdlg.h>

namespace paginas {

/// Colour buttons of the row that is shown, in order.
inline std::vector<HWND> TopesDe(HWND dialogo) {
    std::vector<HWND> topes;
    for (const HWND una : Hijas(dialogo))
        if (SeVe(una) && ClaseDeVentana(una) == L"Button" && GetDlgCtrlID(una) >= 0x2000)
            topes.push_back(una);
    return topes;
}

inline HWND VistaDe(HWND dialogo) {
    for (const HWND una : Hijas(dialogo))
        if (SeVe(una) && ClaseDeVentana(una) == L"PincelaCuadro")
            return una;
    return nullptr;
}

/// Pixels of a widget as its dialog paints it.
inline anfitrion::Captura Imagen(HWND ventana) {
    RECT r{};
    GetClientRect(ventana, &r);
    return anfitrion::Captura::DeDibujo(r.right, r.bottom, [&](HDC dc) {
        DRAWITEMSTRUCT dibujo{};
        dibujo.CtlType = ODT_BUTTON;
        dibujo.CtlID = static_cast<UINT>(GetDlgCtrlID(ventana));
        dibujo.hwndItem = ventana;
        dibujo.hDC = dc;
        dibujo.rcItem = r;
        SendMessageW(GetParent(ventana), WM_DRAWITEM, dibujo.CtlID,
                     reinterpret_cast<LPARAM>(&dibujo));
    });
}
inline COLORREF ColorDe(HWND ventana) {
    const auto imagen = Imagen(ventana);
    return imagen.Pixel(imagen.Ancho() / 2, imagen.Alto() / 2);
}

/// Answers the colour chooser with a colour, or cancels it.
class Elector {
  public:
    explicit Elector(COLORREF color, bool aceptar = true)
        : contestador_([=, this](HWND dialogo) {
              ++veces;
              SetDlgItemInt(dialogo, 706, GetRValue(color), FALSE);
              SetDlgItemInt(dialogo, 707, GetGValue(color), FALSE);
              SetDlgItemInt(dialogo, 708, GetBValue(color), FALSE);
              SendMessageW(dialogo, WM_COMMAND, aceptar ? IDOK : IDCANCEL, 0);
          }) {}
    int veces = 0;

  private:
    Contestador contestador_;
};

} // namespace paginas
