#include "componente/objeto_efectos.h"

#include "plataforma/windows/entorno_windows.h"

namespace pincela::componente {

ObjetoEfectos::ObjetoEfectos() : efectos_(windows::GraficosDeWindows()) {
    const ClasePublicada& clase = Publicada<TablaEfectos, DatosEfectos>;
    interfaz_ = {clase.tabla, static_cast<ISupportErrorInfo*>(this), &efectos_, &clase};
}

HRESULT ObjetoEfectos::QueryInterface(REFIID iid, void** salida) {
    if (!salida)
        return E_POINTER;
    if (iid == IID_IUnknown || iid == IID_ISupportErrorInfo)
        *salida = static_cast<ISupportErrorInfo*>(this);
    else if (iid == IID_IDispatch || iid == DatosEfectos.interfaz)
        *salida = interfaz_.Com();
    else if (iid == IID_IProvideClassInfo)
        *salida = static_cast<IProvideClassInfo*>(this);
    else {
        *salida = nullptr;
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

HRESULT ObjetoEfectos::InterfaceSupportsErrorInfo(REFIID iid) {
    return iid == DatosEfectos.interfaz || iid == IID_IDispatch ? S_OK : S_FALSE;
}

HRESULT ObjetoEfectos::GetClassInfo(ITypeInfo** info) {
    if (!info)
        return E_POINTER;
    return InformacionDe(DatosEfectos.clase, info);
}

} // namespace pincela::componente
