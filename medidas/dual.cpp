#include "medidas/dual.h"

namespace medidas {

using namespace anfitrion;

void* Ranura(IDispatch* objeto, const wchar_t* nombre, INVOKEKIND clase) {
    Puntero<ITypeInfo> info;
    Comprobar(objeto->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Recibir()), "GetTypeInfo");
    auto* pedido = const_cast<LPOLESTR>(nombre);
    MEMBERID miembro = MEMBERID_NIL;
    Comprobar(info->GetIDsOfNames(&pedido, 1, &miembro), "GetIDsOfNames");
    const auto* tabla = *reinterpret_cast<const char* const*>(objeto);
    void* funcion = nullptr;
    FUNCDESC* descripcion = nullptr;
    for (UINT i = 0; !funcion && SUCCEEDED(info->GetFuncDesc(i, &descripcion)); ++i) {
        if (descripcion->memid == miembro && descripcion->invkind == clase)
            funcion = *reinterpret_cast<void* const*>(tabla + descripcion->oVft);
        info->ReleaseFuncDesc(descripcion);
    }
    if (!funcion)
        throw FalloCom(DISP_E_MEMBERNOTFOUND, Estrechar(nombre));
    return funcion;
}

} // namespace medidas
