#include "anfitrion/variante.h"

#include <cwchar>

namespace anfitrion {

Variante::Variante(std::wstring_view texto) : Variante() {
    vt = VT_BSTR;
    bstrVal = SysAllocStringLen(texto.data(), static_cast<UINT>(texto.size()));
}

Variante::Variante(IDispatch* objeto) : Variante() {
    vt = VT_DISPATCH;
    pdispVal = objeto;
    if (objeto)
        objeto->AddRef();
}

Variante::Variante(IUnknown* objeto) : Variante() {
    vt = VT_UNKNOWN;
    punkVal = objeto;
    if (objeto)
        objeto->AddRef();
}

Variante::Variante(const VARIANT& otra) : Variante() {
    Comprobar(VariantCopy(this, const_cast<VARIANT*>(&otra)), "VariantCopy");
}

Variante::Variante(Variante&& otra) noexcept : VARIANT(otra) {
    VariantInit(&otra);
}

Variante& Variante::operator=(Variante otra) noexcept {
    std::swap(static_cast<VARIANT&>(*this), static_cast<VARIANT&>(otra));
    return *this;
}

Variante Variante::Referencia(VARIANT& variable) {
    Variante v;
    v.vt = VT_BYREF | VT_VARIANT;
    v.pvarVal = &variable;
    return v;
}

Variante Variante::Referencia(long& variable) {
    Variante v;
    v.vt = VT_BYREF | VT_I4;
    v.plVal = &variable;
    return v;
}

Variante Variante::Referencia(short& variable) {
    Variante v;
    v.vt = VT_BYREF | VT_I2;
    v.piVal = &variable;
    return v;
}

Variante Variante::ReferenciaLogica(VARIANT_BOOL& variable) {
    Variante v;
    v.vt = VT_BYREF | VT_BOOL;
    v.pboolVal = &variable;
    return v;
}

Variante Variante::Referencia(float& variable) {
    Variante v;
    v.vt = VT_BYREF | VT_R4;
    v.pfltVal = &variable;
    return v;
}

Variante Variante::Referencia(BSTR& variable) {
    Variante v;
    v.vt = VT_BYREF | VT_BSTR;
    v.pbstrVal = &variable;
    return v;
}

Variante Variante::Omitida() {
    Variante v;
    v.vt = VT_ERROR;
    v.scode = DISP_E_PARAMNOTFOUND;
    return v;
}

static Variante Convertir(const VARIANT& valor, VARTYPE tipo) {
    Variante directo;
    Comprobar(VariantCopyInd(&directo, const_cast<VARIANT*>(&valor)), "VariantCopyInd");
    Variante salida;
    Comprobar(VariantChangeTypeEx(&salida, &directo, LOCALE_INVARIANT, VARIANT_ALPHABOOL, tipo),
              "VariantChangeType");
    return salida;
}

long Entero(const VARIANT& valor) {
    return Convertir(valor, VT_I4).lVal;
}

double Real(const VARIANT& valor) {
    return Convertir(valor, VT_R8).dblVal;
}

bool Logico(const VARIANT& valor) {
    return Convertir(valor, VT_BOOL).boolVal != VARIANT_FALSE;
}

std::wstring Texto(const VARIANT& valor) {
    const Variante v = Convertir(valor, VT_BSTR);
    return v.bstrVal ? std::wstring(v.bstrVal, SysStringLen(v.bstrVal)) : std::wstring();
}

std::wstring Mostrar(const VARIANT& valor) {
    Variante directo;
    if (FAILED(VariantCopyInd(&directo, const_cast<VARIANT*>(&valor))))
        return L"?";
    switch (directo.vt) {
    case VT_EMPTY:
        return L"Empty";
    case VT_NULL:
        return L"Null";
    case VT_BOOL:
        return directo.boolVal ? L"True" : L"False";
    case VT_DISPATCH:
    case VT_UNKNOWN:
        return directo.punkVal ? L"(objeto)" : L"Nothing";
    case VT_R4:
    case VT_R8: {
        wchar_t numero[40];
        std::swprintf(numero, 40, L"%g", Real(directo));
        return numero;
    }
    default:
        break;
    }
    Variante texto;
    if (FAILED(VariantChangeTypeEx(&texto, &directo, LOCALE_INVARIANT, 0, VT_BSTR)))
        return L"?";
    return texto.bstrVal ? std::wstring(texto.bstrVal) : std::wstring();
}

void Asignar(VARIANT& destino, const Variante& valor) {
    if (!(destino.vt & VT_BYREF))
        throw FalloCom(E_INVALIDARG, "Asignar: el argumento no es una referencia");
    if (destino.vt == (VT_BYREF | VT_VARIANT)) {
        Comprobar(VariantCopy(destino.pvarVal, const_cast<Variante*>(&valor)), "VariantCopy");
        return;
    }
    Variante v = Convertir(valor, static_cast<VARTYPE>(destino.vt & ~VT_BYREF));
    switch (v.vt) {
    case VT_I2:
    case VT_BOOL:
        *destino.piVal = v.iVal;
        break;
    case VT_I4:
    case VT_R4:
    case VT_UI4:
    case VT_ERROR:
        *destino.plVal = v.lVal;
        break;
    case VT_R8:
    case VT_I8:
    case VT_DATE:
    case VT_CY:
        *destino.pdblVal = v.dblVal;
        break;
    case VT_UI1:
        *destino.pbVal = v.bVal;
        break;
    case VT_BSTR:
        SysFreeString(*destino.pbstrVal);
        *destino.pbstrVal = std::exchange(v.bstrVal, nullptr);
        break;
    default:
        throw FalloCom(DISP_E_BADVARTYPE, "Asignar");
    }
}

} // namespace anfitrion
