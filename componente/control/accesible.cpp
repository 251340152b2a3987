#include "componente/control/accesible.h"

#include "componente/variantes.h"

namespace pincela::componente {

long EstadoAccesible(const Accesible& d, bool conFoco) {
    long estado = 0;
    if (!d.habilitado)
        estado |= STATE_SYSTEM_UNAVAILABLE;
    if (d.enfocable)
        estado |= STATE_SYSTEM_FOCUSABLE;
    if (conFoco)
        estado |= STATE_SYSTEM_FOCUSED;
    if (d.pulsado)
        estado |= STATE_SYSTEM_PRESSED;
    if (d.bajoElRaton)
        estado |= STATE_SYSTEM_HOTTRACKED;
    if (d.trancado)
        estado |= STATE_SYSTEM_READONLY;
    return estado;
}

void ObjetoAccesible::Desconectar() {
    fuente_ = {};
    estandar_.Soltar();
}

HRESULT ObjetoAccesible::QueryInterface(REFIID iid, void** salida) {
    if (!salida)
        return E_POINTER;
    *salida = nullptr;
    if (iid != IID_IUnknown && iid != IID_IDispatch && iid != IID_IAccessible)
        return E_NOINTERFACE;
    *salida = static_cast<IAccessible*>(this);
    AddRef();
    return S_OK;
}

/// The control is one thing: only it itself can be asked about.
HRESULT ObjetoAccesible::Comprobar(const VARIANT& hijo, const void* salida) const {
    if (!salida)
        return E_POINTER;
    if (!estandar_)
        return CO_E_OBJNOTCONNECTED;
    return V_VT(&hijo) == VT_I4 && V_I4(&hijo) == CHILDID_SELF ? S_OK : E_INVALIDARG;
}

HRESULT ObjetoAccesible::Texto(const VARIANT& hijo, BSTR* salida,
                               const pincela::Texto& (*cual)(const Accesible&)) {
    if (salida)
        *salida = nullptr;
    const HRESULT estado = Comprobar(hijo, salida);
    if (FAILED(estado))
        return estado;
    try {
        const Accesible descripcion = fuente_.describir();
        const pincela::Texto& texto = cual(descripcion);
        if (texto.empty())
            return S_FALSE;
        *salida = HaciaBstr(texto);
        return S_OK;
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

HRESULT ObjetoAccesible::get_accName(VARIANT hijo, BSTR* nombre) {
    return Texto(
        hijo, nombre, [](const Accesible& a) -> auto& { return a.nombre; });
}

HRESULT ObjetoAccesible::get_accDefaultAction(VARIANT hijo, BSTR* accion) {
    return Texto(
        hijo, accion, [](const Accesible& a) -> auto& { return a.accion; });
}

HRESULT ObjetoAccesible::get_accKeyboardShortcut(VARIANT hijo, BSTR* tecla) {
    BSTR letra = nullptr;
    const HRESULT estado = Texto(
        hijo, &letra, [](const Accesible& a) -> auto& { return a.tecla; });
    if (!tecla) {
        SysFreeString(letra);
        return E_POINTER;
    }
    *tecla = nullptr;
    if (estado != S_OK)
        return estado;
    const pincela::Texto combinacion = u"Alt+" + DesdeBstr(letra);
    SysFreeString(letra);
    *tecla = SysAllocString(reinterpret_cast<const wchar_t*>(combinacion.c_str()));
    return *tecla ? S_OK : E_OUTOFMEMORY;
}

HRESULT ObjetoAccesible::get_accRole(VARIANT hijo, VARIANT* papel) {
    if (papel)
        VariantInit(papel);
    const HRESULT estado = Comprobar(hijo, papel);
    if (FAILED(estado))
        return estado;
    V_VT(papel) = VT_I4;
    switch (fuente_.describir().papel) {
    case Accesible::Papel::Grupo:
        V_I4(papel) = ROLE_SYSTEM_GROUPING;
        break;
    case Accesible::Papel::Campo:
        V_I4(papel) = ROLE_SYSTEM_TEXT;
        break;
    default:
        V_I4(papel) = ROLE_SYSTEM_PUSHBUTTON;
        break;
    }
    return S_OK;
}

HRESULT ObjetoAccesible::get_accState(VARIANT hijo, VARIANT* salida) {
    if (salida)
        VariantInit(salida);
    const HRESULT estado = Comprobar(hijo, salida);
    if (FAILED(estado))
        return estado;
    // Visibility comes from the window.
    VarianteCom deVentana;
    long visible = 0;
    if (SUCCEEDED(estandar_->get_accState(hijo, &deVentana)) && V_VT(&deVentana) == VT_I4)
        visible = V_I4(&deVentana) & (STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN);
    V_VT(salida) = VT_I4;
    V_I4(salida) = visible | EstadoAccesible(fuente_.describir(), fuente_.conFoco());
    return S_OK;
}

HRESULT ObjetoAccesible::get_accFocus(VARIANT* hijo) {
    if (!hijo)
        return E_POINTER;
    VariantInit(hijo);
    if (!estandar_)
        return CO_E_OBJNOTCONNECTED;
    if (!fuente_.conFoco())
        return EsGrupo() ? estandar_->get_accFocus(hijo) : S_FALSE;
    V_VT(hijo) = VT_I4;
    V_I4(hijo) = CHILDID_SELF;
    return S_OK;
}

HRESULT ObjetoAccesible::accDoDefaultAction(VARIANT hijo) {
    const HRESULT estado = Comprobar(hijo, this);
    if (FAILED(estado))
        return estado;
    if (!fuente_.describir().habilitado)
        return DISP_E_MEMBERNOTFOUND;
    fuente_.accionar();
    return S_OK;
}

HRESULT ObjetoAccesible::accSelect(long banderas, VARIANT hijo) {
    const HRESULT estado = Comprobar(hijo, this);
    if (FAILED(estado))
        return estado;
    if (banderas != SELFLAG_TAKEFOCUS)
        return E_INVALIDARG;
    if (!fuente_.describir().enfocable)
        return S_FALSE;
    fuente_.enfocar();
    return S_OK;
}

HRESULT ObjetoAccesible::accHitTest(long x, long y, VARIANT* hijo) {
    if (!hijo)
        return E_POINTER;
    VariantInit(hijo);
    long izquierda = 0, arriba = 0, ancho = 0, alto = 0;
    VARIANT yo{};
    V_VT(&yo) = VT_I4;
    const HRESULT estado = accLocation(&izquierda, &arriba, &ancho, &alto, yo);
    if (FAILED(estado))
        return estado;
    if (x < izquierda || y < arriba || x >= izquierda + ancho || y >= arriba + alto)
        return S_FALSE;
    if (EsGrupo())
        return estandar_->accHitTest(x, y, hijo);
    V_VT(hijo) = VT_I4;
    V_I4(hijo) = CHILDID_SELF;
    return S_OK;
}

// The labels are not parts: a screen reader stops once, at the control. What a container placed
// inside a group is, and the window's own object knows it.
HRESULT ObjetoAccesible::get_accChildCount(long* cuantos) {
    if (!cuantos)
        return E_POINTER;
    *cuantos = 0;
    return EsGrupo() ? estandar_->get_accChildCount(cuantos) : S_OK;
}

HRESULT ObjetoAccesible::get_accChild(VARIANT hijo, IDispatch** salida) {
    if (!salida)
        return E_POINTER;
    *salida = nullptr;
    return EsGrupo() ? estandar_->get_accChild(hijo, salida) : E_INVALIDARG;
}

bool ObjetoAccesible::EsGrupo() const {
    return estandar_ && fuente_.describir().papel == Accesible::Papel::Grupo;
}

namespace {

HRESULT Nada(BSTR* salida) {
    if (!salida)
        return E_POINTER;
    *salida = nullptr;
    return S_FALSE;
}

} // namespace

HRESULT ObjetoAccesible::get_accValue(VARIANT hijo, BSTR* valor) {
    return Texto(
        hijo, valor, [](const Accesible& a) -> auto& { return a.valor; });
}
HRESULT ObjetoAccesible::get_accDescription(VARIANT, BSTR* texto) {
    return Nada(texto);
}
HRESULT ObjetoAccesible::get_accHelp(VARIANT, BSTR* ayuda) {
    return Nada(ayuda);
}

HRESULT ObjetoAccesible::get_accHelpTopic(BSTR* archivo, VARIANT, long* tema) {
    if (tema)
        *tema = 0;
    return Nada(archivo);
}

HRESULT ObjetoAccesible::get_accSelection(VARIANT* hijos) {
    if (!hijos)
        return E_POINTER;
    VariantInit(hijos);
    return S_FALSE;
}

HRESULT ObjetoAccesible::put_accName(VARIANT, BSTR) {
    return DISP_E_MEMBERNOTFOUND;
}
HRESULT ObjetoAccesible::put_accValue(VARIANT, BSTR) {
    return DISP_E_MEMBERNOTFOUND;
}

// The window's own object answers these.

HRESULT ObjetoAccesible::get_accParent(IDispatch** padre) {
    if (!padre)
        return E_POINTER;
    *padre = nullptr;
    return estandar_ ? estandar_->get_accParent(padre) : CO_E_OBJNOTCONNECTED;
}

HRESULT ObjetoAccesible::accLocation(long* x, long* y, long* ancho, long* alto, VARIANT hijo) {
    if (!x || !y || !ancho || !alto)
        return E_POINTER;
    *x = *y = *ancho = *alto = 0;
    const HRESULT estado = Comprobar(hijo, x);
    return FAILED(estado) ? estado : estandar_->accLocation(x, y, ancho, alto, hijo);
}

HRESULT ObjetoAccesible::accNavigate(long direccion, VARIANT desde, VARIANT* hasta) {
    if (!hasta)
        return E_POINTER;
    VariantInit(hasta);
    const HRESULT estado = Comprobar(desde, hasta);
    return FAILED(estado) ? estado : estandar_->accNavigate(direccion, desde, hasta);
}

HRESULT ObjetoAccesible::GetTypeInfoCount(UINT* cuantos) {
    if (!cuantos)
        return E_POINTER;
    *cuantos = 0;
    return estandar_ ? estandar_->GetTypeInfoCount(cuantos) : CO_E_OBJNOTCONNECTED;
}

HRESULT ObjetoAccesible::GetTypeInfo(UINT i, LCID lcid, ITypeInfo** info) {
    if (!info)
        return E_POINTER;
    *info = nullptr;
    return estandar_ ? estandar_->GetTypeInfo(i, lcid, info) : CO_E_OBJNOTCONNECTED;
}

HRESULT ObjetoAccesible::GetIDsOfNames(REFIID iid, LPOLESTR* nombres, UINT cuantos, LCID lcid,
                                       DISPID* ids) {
    return estandar_ ? estandar_->GetIDsOfNames(iid, nombres, cuantos, lcid, ids)
                     : CO_E_OBJNOTCONNECTED;
}

HRESULT ObjetoAccesible::Invoke(DISPID id, REFIID, LCID lcid, WORD banderas, DISPPARAMS* p,
                                VARIANT* r, EXCEPINFO* e, UINT* mal) {
    Ptr<ITypeInfo> info;
    const HRESULT estado = GetTypeInfo(0, lcid, info.Recibir());
    // The description of the interface is the platform's; the answers are this object's.
    return FAILED(estado)
               ? estado
               : info->Invoke(static_cast<IAccessible*>(this), id, banderas, p, r, e, mal);
}

} // namespace pincela::componente
