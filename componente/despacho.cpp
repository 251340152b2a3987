#include "componente/despacho.h"

#include "componente/modulo.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <new>

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

const VARIANT& detalle::ArgumentoDado(ArgumentosTardios& argumentos, unsigned i,
                                      const Parametro& parametro, VARIANT& defecto) {
    argumentos.equivocado = argumentos.lugares[i];
    const VARIANT* dado = argumentos.valores[i];
    if (dado && !EsOmitido(*dado))
        return *dado;
    if (!parametro.opcional)
        throw FalloCom{DISP_E_PARAMNOTOPTIONAL};
    defecto = PorDefecto(parametro);
    return defecto;
}

HRESULT detalle::LeerPropiedad(InterfazDual* yo, std::size_t miembro, void* salida) noexcept {
    if (!salida)
        return SinErrorInfo(E_POINTER);
    const Acceso& acceso = *yo->clase->miembros[miembro].acceso;
    std::memset(salida, 0, acceso.tamanio);
    return Entrar(yo, [&] { acceso.Leer(NucleoDe<ControlUsuario>(yo), salida); });
}

HRESULT detalle::PonerPropiedad(InterfazDual* yo, std::size_t miembro, const void* valor) noexcept {
    const Acceso& acceso = *yo->clase->miembros[miembro].acceso;
    if (acceso.porReferencia) {
        std::memcpy(&valor, valor, sizeof valor);
        if (!valor)
            return SinErrorInfo(E_POINTER);
    }
    return Entrar(yo, [&] { acceso.Poner(NucleoDe<ControlUsuario>(yo), valor); });
}

namespace base {

namespace {

bool FaltaUno(const MiembroTardio& miembro, const ArgumentosTardios& argumentos) {
    for (unsigned i = 0; i < miembro.cuantos; ++i)
        if (!argumentos.valores[i] && !miembro.parametros[i].opcional)
            return true;
    return false;
}

/// Puts the caller's arguments, which come backwards and perhaps by name, in declared order.
HRESULT Ordenar(const DISPPARAMS& p, const MiembroTardio& miembro, ArgumentosTardios& argumentos,
                unsigned* equivocado) {
    const unsigned cuantos = miembro.cuantos, conNombre = p.cNamedArgs;
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
    if (!FaltaUno(miembro, argumentos))
        return S_OK;
    return p.cArgs < cuantos ? DISP_E_BADPARAMCOUNT : DISP_E_PARAMNOTOPTIONAL;
}

/// The one argument of an assignment.
HRESULT TomarValor(const DISPPARAMS& p, ArgumentosTardios& argumentos) {
    if (p.cArgs != 1)
        return DISP_E_BADPARAMCOUNT;
    if (p.cNamedArgs > 1 || (p.cNamedArgs == 1 && p.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT))
        return DISP_E_PARAMNOTFOUND;
    argumentos.valores[0] = &p.rgvarg[0];
    return S_OK;
}

/// Called inside a catch block: status of an argument that does not convert.
HRESULT EstadoDeArgumento() {
    try {
        throw;
    } catch (const ErrorEjecucion& error) {
        switch (error.Numero()) {
        case NumeroError::Desbordamiento:
            return DISP_E_OVERFLOW;
        case NumeroError::NuloNoValido:
        case NumeroError::TiposNoCoinciden:
            return DISP_E_TYPEMISMATCH;
        default:
            return EstadoDe(error.Numero());
        }
    } catch (const FalloCom& fallo) {
        return fallo.estado;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_UNEXPECTED;
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
        return SinErrorInfo(E_POINTER);
    *cuantos = 1;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE GetTypeInfo(InterfazDual* yo, UINT indice, LCID, ITypeInfo** info) {
    if (!info)
        return SinErrorInfo(E_POINTER);
    *info = nullptr;
    if (indice != 0)
        return SinErrorInfo(DISP_E_BADINDEX);
    return InformacionDe(yo->clase->datos->interfaz, info);
}

HRESULT STDMETHODCALLTYPE GetIDsOfNames(InterfazDual* yo, REFIID iid, LPOLESTR* nombres,
                                        UINT cuantos, LCID, DISPID* ids) {
    if (iid != IID_NULL)
        return SinErrorInfo(DISP_E_UNKNOWNINTERFACE);
    if (!nombres || !ids)
        return SinErrorInfo(E_POINTER);
    if (cuantos == 0)
        return SinErrorInfo(E_INVALIDARG);
    std::fill_n(ids, cuantos, DISPID_UNKNOWN);
    const auto& miembros = yo->clase->miembros;
    const auto m = std::find_if(miembros.begin(), miembros.end(), [&](const MiembroTardio& uno) {
        return nombres[0] && _wcsicmp(uno.nombre, nombres[0]) == 0;
    });
    if (m == miembros.end())
        return SinErrorInfo(DISP_E_UNKNOWNNAME);
    ids[0] = m->dispid;
    HRESULT estado = S_OK;
    for (UINT i = 1; i < cuantos; ++i) {
        for (unsigned p = 0; p < m->cuantos; ++p)
            if (nombres[i] && _wcsicmp(m->parametros[p].nombre, nombres[i]) == 0)
                ids[i] = static_cast<DISPID>(p);
        if (ids[i] == DISPID_UNKNOWN)
            estado = SinErrorInfo(DISP_E_UNKNOWNNAME);
    }
    return estado;
}

HRESULT STDMETHODCALLTYPE Invoke(InterfazDual* yo, DISPID dispid, REFIID iid, LCID, WORD banderas,
                                 DISPPARAMS* p, VARIANT* resultado, EXCEPINFO* excepcion,
                                 UINT* equivocado) {
    if (iid != IID_NULL)
        return SinErrorInfo(DISP_E_UNKNOWNINTERFACE);
    if (!p || (p->cArgs && !p->rgvarg) || (p->cNamedArgs && !p->rgdispidNamedArgs))
        return SinErrorInfo(E_INVALIDARG);
    if (resultado)
        VariantInit(resultado);
    const MiembroTardio* m = yo->clase->Buscar(dispid);
    if (!m || !(m->admite & banderas))
        return SinErrorInfo(DISP_E_MEMBERNOTFOUND);

    ArgumentosTardios argumentos;
    const bool poner = (banderas & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    const HRESULT orden =
        poner ? TomarValor(*p, argumentos) : Ordenar(*p, *m, argumentos, equivocado);
    if (FAILED(orden))
        return SinErrorInfo(orden);

    const windows::AritmeticaPropia propia;
    detalle::Sosten sosten(yo->objeto);
    // What fails before the arguments are looked at is no fault of theirs.
    argumentos.convertidos = true;
    try {
        if (yo->preparar)
            yo->preparar(*yo);
        argumentos.convertidos = false;
        if (!m->acceso)
            return m->invocar(*yo, argumentos, resultado);
        auto& control = detalle::NucleoDe<ControlUsuario>(yo);
        if (poner) {
            m->acceso->PonerTardio(control, *argumentos.valores[0], argumentos.convertidos);
        } else {
            argumentos.convertidos = true; // there is none
            VarianteCom sinDestino;
            m->Leer(control, resultado ? *resultado : sinDestino);
        }
        return S_OK;
    } catch (...) {
        if (!argumentos.convertidos) {
            if (equivocado)
                *equivocado = argumentos.equivocado;
            return SinErrorInfo(EstadoDeArgumento());
        }
        return LlenarExcepcion(
            EstadoDeLaExcepcion(yo->clase->datos->interfaz, yo->clase->datos->nombre), excepcion);
    }
}

} // namespace base

} // namespace pincela::componente
