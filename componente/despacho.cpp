#include "componente/despacho.h"

#include "componente/modulo.h"

#include <algorithm>
#include <cstring>
#include <cwchar>

namespace pincela::componente {

const MiembroTardio* ClasePublicada::Buscar(DISPID dispid) const {
    for (const MiembroTardio& miembro : miembros)
        if (miembro.dispid == dispid)
            return &miembro;
    return nullptr;
}

void MiembroTardio::Leer(const ControlUsuario& control, VARIANT& valor) const {
    if (tipo.vt == VT_VARIANT)
        return acceso->Leer(control, &valor);
    acceso->Leer(control, &V_BYREF(&valor));
    V_VT(&valor) = tipo.vt;
}

HRESULT detalle::EntrarCon(InterfazDual* yo, void (*accion)(void*), void* datos) noexcept {
    const Sosten sosten(yo->objeto);
    return Proteger(*yo->clase->datos, [&] {
        if (yo->preparar)
            yo->preparar(*yo);
        accion(datos);
        return S_OK;
    });
}

HRESULT detalle::LeerPropiedad(InterfazDual* yo, std::size_t miembro, void* salida) noexcept {
    if (!salida)
        return E_POINTER;
    const Acceso& acceso = *yo->clase->miembros[miembro].acceso;
    std::memset(salida, 0, acceso.tamanio);
    return Entrar(yo, [&] { acceso.Leer(NucleoDe<ControlUsuario>(yo), salida); });
}

HRESULT detalle::PonerPropiedad(InterfazDual* yo, std::size_t miembro, const void* valor) noexcept {
    const Acceso& acceso = *yo->clase->miembros[miembro].acceso;
    if (acceso.porReferencia) {
        std::memcpy(&valor, valor, sizeof valor);
        if (!valor)
            return E_POINTER;
    }
    return Entrar(yo, [&] { acceso.Poner(NucleoDe<ControlUsuario>(yo), valor); });
}

namespace base {

namespace {

/// Puts the caller's arguments, which come backwards and perhaps by name, in declared order.
HRESULT Ordenar(const DISPPARAMS& p, unsigned cuantos, ArgumentosTardios& argumentos,
                unsigned* equivocado) {
    const unsigned conNombre = p.cNamedArgs;
    if (p.cArgs > cuantos || conNombre > p.cArgs)
        return DISP_E_BADPARAMCOUNT;
    for (unsigned i = 0; i < p.cArgs; ++i) {
        unsigned lugar = p.cArgs - 1 - i;
        if (i < conNombre) {
            const DISPID id = p.rgdispidNamedArgs[i];
            lugar = id < 0 ? cuantos : static_cast<unsigned>(id);
        }
        // No such parameter, or given twice: by name, or by its place as well.
        if (lugar >= cuantos || argumentos.valores[lugar]) {
            if (equivocado)
                *equivocado = i;
            return DISP_E_PARAMNOTFOUND;
        }
        argumentos.valores[lugar] = &p.rgvarg[i];
        argumentos.lugares[lugar] = i;
    }
    return S_OK;
}

bool FaltaUno(const MiembroTardio& miembro, const ArgumentosTardios& argumentos) {
    for (unsigned i = 0; i < miembro.cuantos; ++i)
        if (!argumentos.valores[i] && !miembro.parametros[i].opcional)
            return true;
    return false;
}

/// Error of a conversion of an argument, before the member ran.
HRESULT EstadoDeArgumento(const ErrorEjecucion& error) {
    switch (error.Numero()) {
    case NumeroError::Desbordamiento:
        return DISP_E_OVERFLOW;
    case NumeroError::NuloNoValido:
    case NumeroError::TiposNoCoinciden:
        return DISP_E_TYPEMISMATCH;
    default:
        return EstadoDe(error.Numero());
    }
}

HRESULT LlenarExcepcion(HRESULT estado, EXCEPINFO* excepcion) {
    if (!excepcion)
        return estado;
    std::memset(excepcion, 0, sizeof *excepcion);
    Ptr<IErrorInfo> info;
    if (GetErrorInfo(0, info.Recibir()) == S_OK && info) {
        info->GetSource(&excepcion->bstrSource);
        info->GetDescription(&excepcion->bstrDescription);
    }
    excepcion->scode = estado;
    return DISP_E_EXCEPTION;
}

} // namespace

HRESULT STDMETHODCALLTYPE QueryInterface(InterfazDual* yo, REFIID iid, void** salida) {
    return yo->objeto->QueryInterface(iid, salida);
}
ULONG STDMETHODCALLTYPE AddRef(InterfazDual* yo) {
    return yo->objeto->AddRef();
}
ULONG STDMETHODCALLTYPE Release(InterfazDual* yo) {
    return yo->objeto->Release();
}

HRESULT STDMETHODCALLTYPE GetTypeInfoCount(InterfazDual*, UINT* cuantos) {
    if (!cuantos)
        return E_POINTER;
    *cuantos = 1;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE GetTypeInfo(InterfazDual* yo, UINT indice, LCID, ITypeInfo** info) {
    if (!info)
        return E_POINTER;
    *info = nullptr;
    if (indice != 0)
        return DISP_E_BADINDEX;
    return InformacionDe(yo->clase->datos->interfaz, info);
}

HRESULT STDMETHODCALLTYPE GetIDsOfNames(InterfazDual* yo, REFIID, LPOLESTR* nombres, UINT cuantos,
                                        LCID, DISPID* ids) {
    if (!nombres || !ids)
        return E_POINTER;
    if (cuantos == 0)
        return E_INVALIDARG;
    std::fill_n(ids, cuantos, DISPID_UNKNOWN);
    const auto& miembros = yo->clase->miembros;
    const auto m = std::find_if(miembros.begin(), miembros.end(), [&](const MiembroTardio& uno) {
        return nombres[0] && _wcsicmp(uno.nombre, nombres[0]) == 0;
    });
    if (m == miembros.end())
        return DISP_E_UNKNOWNNAME;
    ids[0] = m->dispid;
    HRESULT estado = S_OK;
    for (UINT i = 1; i < cuantos; ++i) {
        for (unsigned p = 0; p < m->cuantos; ++p)
            if (nombres[i] && _wcsicmp(m->parametros[p].nombre, nombres[i]) == 0)
                ids[i] = static_cast<DISPID>(p);
        if (ids[i] == DISPID_UNKNOWN)
            estado = DISP_E_UNKNOWNNAME;
    }
    return estado;
}

HRESULT STDMETHODCALLTYPE Invoke(InterfazDual* yo, DISPID dispid, REFIID iid, LCID, WORD banderas,
                                 DISPPARAMS* p, VARIANT* resultado, EXCEPINFO* excepcion,
                                 UINT* equivocado) {
    if (iid != IID_NULL)
        return DISP_E_UNKNOWNINTERFACE;
    if (!p || (p->cArgs && !p->rgvarg) || (p->cNamedArgs && !p->rgdispidNamedArgs))
        return E_INVALIDARG;
    if (resultado)
        VariantInit(resultado);
    const MiembroTardio* m = yo->clase->Buscar(dispid);
    if (!m || !(m->admite & banderas))
        return DISP_E_MEMBERNOTFOUND;

    ArgumentosTardios argumentos;
    const bool poner = (banderas & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    if (poner) {
        if (p->cArgs != 1)
            return DISP_E_BADPARAMCOUNT;
        if (p->cNamedArgs > 1 ||
            (p->cNamedArgs == 1 && p->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT))
            return DISP_E_PARAMNOTFOUND;
        argumentos.valores[0] = &p->rgvarg[0];
    } else {
        const HRESULT orden = Ordenar(*p, m->cuantos, argumentos, equivocado);
        if (FAILED(orden))
            return orden;
        if (FaltaUno(*m, argumentos))
            return p->cArgs < m->cuantos ? DISP_E_BADPARAMCOUNT : DISP_E_PARAMNOTOPTIONAL;
    }

    const windows::AritmeticaPropia propia;
    detalle::Sosten sosten(yo->objeto);
    try {
        if (yo->preparar)
            yo->preparar(*yo);
        if (!m->acceso)
            return m->invocar(*yo, argumentos, resultado);
        auto& control = detalle::NucleoDe<ControlUsuario>(yo);
        if (poner) {
            m->acceso->PonerTardio(control, DesdeVariant(*argumentos.valores[0]),
                                   argumentos.convertidos);
        } else {
            argumentos.convertidos = true; // there is none
            VarianteCom sinDestino;
            m->Leer(control, resultado ? *resultado : sinDestino);
        }
        return S_OK;
    } catch (const ErrorEjecucion& error) {
        if (!argumentos.convertidos) {
            if (equivocado)
                *equivocado = argumentos.equivocado;
            return EstadoDeArgumento(error);
        }
        return LlenarExcepcion(
            EstadoDeLaExcepcion(yo->clase->datos->interfaz, yo->clase->datos->nombre), excepcion);
    } catch (...) {
        return LlenarExcepcion(
            EstadoDeLaExcepcion(yo->clase->datos->interfaz, yo->clase->datos->nombre), excepcion);
    }
}

} // namespace base

} // namespace pincela::componente
