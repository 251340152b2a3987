// Properties of other people's objects, read as a script reads them.
#pragma once

#include "componente/com.h"

namespace pincela::componente {

/// The value of a property as it comes. The object is held meanwhile.
inline HRESULT LeerTardio(Ptr<IDispatch> objeto, DISPID dispid, VARIANT* leido) {
    DISPPARAMS ninguno{};
    const windows::AritmeticaAjena ajena;
    return objeto->Invoke(dispid, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &ninguno,
                          leido, nullptr, nullptr);
}

/// The value of a property, converted to `tipo`. False when it can't be read or converted, or is
/// empty; `*valor` is then left as it was.
inline bool LeerTardio(const Ptr<IDispatch>& objeto, DISPID dispid, VARTYPE tipo, VARIANT* valor) {
    VarianteCom leido;
    if (FAILED(LeerTardio(objeto, dispid, &leido)) || V_VT(&leido) == VT_EMPTY)
        return false;
    if (V_VT(&leido) == tipo) {
        std::swap(*valor, static_cast<VARIANT&>(leido));
        return true;
    }
    return SUCCEEDED(VariantChangeType(valor, &leido, 0, tipo));
}

/// The same by name.
inline bool LeerTardio(const Ptr<IDispatch>& objeto, const wchar_t* nombre, VARTYPE tipo,
                       VARIANT* valor) {
    LPOLESTR copia = const_cast<LPOLESTR>(nombre);
    DISPID dispid = DISPID_UNKNOWN;
    return SUCCEEDED(objeto->GetIDsOfNames(IID_NULL, &copia, 1, LOCALE_USER_DEFAULT, &dispid)) &&
           LeerTardio(objeto, dispid, tipo, valor);
}

} // namespace pincela::componente
