// Ambient properties: what the container tells its controls about their surroundings.
#pragma once

#include "anfitrion/com.h"

#include <olectl.h>

#include <string>

namespace anfitrion {

/// Values shared by every control of a form.
struct Ambiente {
    OLE_COLOR colorFondo = 0x8000000F;
    OLE_COLOR colorLetra = 0x80000012;
    Puntero<IFontDisp> fuente; ///< empty: the property is not offered
    bool modoUsuario = true;   ///< false in design mode
    bool uiMuerta = false;
    bool derechaAIzquierda = false;
    bool reflejaMensajes = false;
    bool mnemonicos = true;
    bool agarres = false;
    bool rayado = false;
    short apariencia = 1;
    short alineacion = 0;
    LCID idioma = GetUserDefaultLCID();
    std::wstring unidades = L"Pixel";

    /// Value of one ambient property for the control `nombre`; DISP_E_MEMBERNOTFOUND when unknown.
    /// `porDefecto` tells whether that control is to look like the default button.
    HRESULT Leer(DISPID numero, const std::wstring& nombre, bool porDefecto, VARIANT& valor) const;
};

/// Number of an ambient property by its name; DISPID_UNKNOWN when there is none.
DISPID NumeroAmbiente(const wchar_t* nombre);

} // namespace anfitrion
