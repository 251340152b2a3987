#include "anfitrion/sumidero_eventos.h"

namespace anfitrion {

Puntero<ITypeInfo> TipoDeEventos(IUnknown* objeto) {
    const Puntero<IProvideClassInfo> clase = Puntero<IUnknown>(objeto).Como<IProvideClassInfo>();
    Puntero<ITypeInfo> coclase;
    if (!clase || FAILED(clase->GetClassInfo(coclase.Recibir())))
        return {};
    TYPEATTR* atributos = nullptr;
    if (FAILED(coclase->GetTypeAttr(&atributos)))
        return {};
    const unsigned interfaces = atributos->cImplTypes;
    coclase->ReleaseTypeAttr(atributos);
    constexpr int busco = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;
    for (unsigned i = 0; i < interfaces; ++i) {
        int marcas = 0;
        HREFTYPE referencia = 0;
        Puntero<ITypeInfo> tipo;
        if (SUCCEEDED(coclase->GetImplTypeFlags(i, &marcas)) && (marcas & busco) == busco &&
            SUCCEEDED(coclase->GetRefTypeOfImplType(i, &referencia)) &&
            SUCCEEDED(coclase->GetRefTypeInfo(referencia, tipo.Recibir())))
            return tipo;
    }
    return {};
}

static IID IdentidadDe(ITypeInfo* tipo) {
    IID iid = IID_NULL;
    TYPEATTR* atributos = nullptr;
    if (tipo && SUCCEEDED(tipo->GetTypeAttr(&atributos))) {
        iid = atributos->guid;
        tipo->ReleaseTypeAttr(atributos);
    }
    return iid;
}

void SumideroEventos::Conectar(IUnknown* objeto) {
    const Puntero<ITypeInfo> tipo = TipoDeEventos(objeto);
    IID iid = IdentidadDe(tipo.get());
    if (const auto clase = Puntero<IUnknown>(objeto).Como<IProvideClassInfo2>()) {
        GUID dicho;
        if (SUCCEEDED(clase->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &dicho)))
            iid = dicho;
    }
    if (iid == IID_NULL)
        throw FalloCom(CONNECT_E_NOCONNECTION, "el objeto no publica eventos");
    Conectar(objeto, iid, tipo.get());
}

void SumideroEventos::Conectar(IUnknown* objeto, REFIID interfaz, ITypeInfo* tipo) {
    Desconectar();
    LeerNombres(tipo);
    interfaz_ = interfaz;
    const auto puntos = Puntero<IUnknown>(objeto).Como<IConnectionPointContainer>();
    if (!puntos)
        throw FalloCom(CONNECT_E_NOCONNECTION, "el objeto no tiene puntos de conexion");
    Puntero<IConnectionPoint> punto;
    Comprobar(puntos->FindConnectionPoint(interfaz, punto.Recibir()), "FindConnectionPoint");
    Comprobar(punto->Advise(static_cast<IDispatch*>(this), &cookie_), "Advise");
    punto_ = std::move(punto);
}

void SumideroEventos::Desconectar() {
    const DWORD cookie = std::exchange(cookie_, 0);
    const Puntero<IConnectionPoint> punto = std::move(punto_);
    if (punto && cookie)
        punto->Unadvise(cookie);
}

void SumideroEventos::LeerNombres(ITypeInfo* tipo) {
    nombres_.clear();
    TYPEATTR* atributos = nullptr;
    if (!tipo || FAILED(tipo->GetTypeAttr(&atributos)))
        return;
    const unsigned funciones = atributos->cFuncs;
    tipo->ReleaseTypeAttr(atributos);
    for (unsigned i = 0; i < funciones; ++i) {
        FUNCDESC* funcion = nullptr;
        if (FAILED(tipo->GetFuncDesc(i, &funcion)))
            continue;
        Cadena nombre;
        UINT cuantos = 0;
        if (SUCCEEDED(tipo->GetNames(funcion->memid, nombre.Recibir(), 1, &cuantos)))
            nombres_[funcion->memid] = nombre.Texto();
        tipo->ReleaseFuncDesc(funcion);
    }
}

void* SumideroEventos::Heredada(REFIID iid) {
    return iid == interfaz_ ? static_cast<IDispatch*>(this) : nullptr;
}

HRESULT SumideroEventos::GetTypeInfoCount(UINT* cuantas) {
    if (!cuantas)
        return E_POINTER;
    *cuantas = 0;
    return S_OK;
}

HRESULT SumideroEventos::GetTypeInfo(UINT, LCID, ITypeInfo** tipo) {
    if (tipo)
        *tipo = nullptr;
    return DISP_E_BADINDEX;
}

HRESULT SumideroEventos::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) {
    return DISP_E_UNKNOWNNAME;
}

HRESULT SumideroEventos::Invoke(DISPID numero, REFIID, LCID, WORD, DISPPARAMS* parametros, VARIANT*,
                                EXCEPINFO*, UINT*) {
    // The handler may disconnect and drop the last reference to this sink.
    const Puntero<SumideroEventos> sostenido(this);
    Evento evento{numero, {}, {}};
    if (const auto hallado = nombres_.find(numero); hallado != nombres_.end())
        evento.nombre = hallado->second;
    if (parametros)
        for (UINT i = parametros->cArgs; i-- > 0;)
            evento.argumentos.push_back(&parametros->rgvarg[i]);
    try {
        if (manejador_)
            manejador_(evento);
        return S_OK;
    } catch (const FalloCom& fallo) {
        return fallo.estado;
    } catch (...) {
        return E_FAIL;
    }
}

} // namespace anfitrion
