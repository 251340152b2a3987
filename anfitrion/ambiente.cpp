#include "anfitrion/ambiente.h"

#include "anfitrion/variante.h"

namespace anfitrion {

HRESULT Ambiente::Leer(DISPID numero, const std::wstring& nombre, bool porDefecto,
                       VARIANT& valor) const {
    const auto da = [&](Variante v) {
        VariantInit(&valor);
        std::swap(valor, static_cast<VARIANT&>(v));
        return S_OK;
    };
    switch (numero) {
    case DISPID_AMBIENT_BACKCOLOR:
        return da(static_cast<long>(colorFondo));
    case DISPID_AMBIENT_FORECOLOR:
        return da(static_cast<long>(colorLetra));
    case DISPID_AMBIENT_FONT:
        return fuente ? da(static_cast<IDispatch*>(fuente.get())) : DISP_E_MEMBERNOTFOUND;
    case DISPID_AMBIENT_USERMODE:
        return da(modoUsuario);
    case DISPID_AMBIENT_UIDEAD:
        return da(uiMuerta);
    case DISPID_AMBIENT_RIGHTTOLEFT:
        return da(derechaAIzquierda);
    case DISPID_AMBIENT_MESSAGEREFLECT:
        return da(reflejaMensajes);
    case DISPID_AMBIENT_SUPPORTSMNEMONICS:
        return da(mnemonicos);
    case DISPID_AMBIENT_SHOWGRABHANDLES:
        return da(agarres);
    case DISPID_AMBIENT_SHOWHATCHING:
        return da(rayado);
    case DISPID_AMBIENT_DISPLAYASDEFAULT:
        return da(porDefecto);
    case DISPID_AMBIENT_APPEARANCE:
        return da(apariencia);
    case DISPID_AMBIENT_TEXTALIGN:
        return da(alineacion);
    case DISPID_AMBIENT_LOCALEID:
        return da(static_cast<long>(idioma));
    case DISPID_AMBIENT_SCALEUNITS:
        return da(unidades);
    case DISPID_AMBIENT_DISPLAYNAME:
        return da(nombre);
    default:
        return DISP_E_MEMBERNOTFOUND;
    }
}

DISPID NumeroAmbiente(const wchar_t* nombre) {
    static constexpr struct {
        const wchar_t* nombre;
        DISPID numero;
    } tabla[] = {
        {L"BackColor", DISPID_AMBIENT_BACKCOLOR},
        {L"ForeColor", DISPID_AMBIENT_FORECOLOR},
        {L"Font", DISPID_AMBIENT_FONT},
        {L"UserMode", DISPID_AMBIENT_USERMODE},
        {L"UIDead", DISPID_AMBIENT_UIDEAD},
        {L"RightToLeft", DISPID_AMBIENT_RIGHTTOLEFT},
        {L"MessageReflect", DISPID_AMBIENT_MESSAGEREFLECT},
        {L"SupportsMnemonics", DISPID_AMBIENT_SUPPORTSMNEMONICS},
        {L"ShowGrabHandles", DISPID_AMBIENT_SHOWGRABHANDLES},
        {L"ShowHatching", DISPID_AMBIENT_SHOWHATCHING},
        {L"DisplayAsDefault", DISPID_AMBIENT_DISPLAYASDEFAULT},
        {L"Appearance", DISPID_AMBIENT_APPEARANCE},
        {L"TextAlign", DISPID_AMBIENT_TEXTALIGN},
        {L"LocaleID", DISPID_AMBIENT_LOCALEID},
        {L"ScaleUnits", DISPID_AMBIENT_SCALEUNITS},
        {L"DisplayName", DISPID_AMBIENT_DISPLAYNAME},
    };
    for (const auto& fila : tabla)
        if (lstrcmpiW(fila.nombre, nombre) == 0)
            return fila.numero;
    return DISPID_UNKNOWN;
}

} // namespace anfitrion
