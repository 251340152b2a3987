#include "componente/control/sumideros.h"

#include "componente/control/enumeradores.h"

#include <algorithm>
#include <new>

namespace pincela::componente {

HRESULT PuntoDeConexion::QueryInterface(REFIID iid, void** salida) {
    if (!salida)
        return E_POINTER;
    *salida = nullptr;
    if (iid != IID_IUnknown && iid != IID_IConnectionPoint)
        return E_NOINTERFACE;
    *salida = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
}

HRESULT PuntoDeConexion::GetConnectionInterface(IID* iid) {
    if (!iid)
        return E_POINTER;
    *iid = interfaz_;
    return S_OK;
}

HRESULT PuntoDeConexion::GetConnectionPointContainer(IConnectionPointContainer** c) {
    if (!c)
        return E_POINTER;
    *c = contenedor_;
    contenedor_->AddRef();
    return S_OK;
}

HRESULT PuntoDeConexion::Advise(IUnknown* sumidero, DWORD* galleta) {
    if (!galleta)
        return E_POINTER;
    *galleta = 0;
    if (!sumidero)
        return E_POINTER;
    auto propio = Ptr<IUnknown>::De(sumidero, interfaz_);
    // Some containers answer only to the event interface, others only to the general one.
    if (!propio && interfaz_ != IID_IPropertyNotifySink)
        propio = Ptr<IUnknown>::De(sumidero, IID_IDispatch);
    if (!propio)
        return CONNECT_E_CANNOTCONNECT;
    try {
        conexiones_.push_back({++ultimaGalleta_, std::move(propio)});
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
    *galleta = ultimaGalleta_;
    return S_OK;
}

HRESULT PuntoDeConexion::Unadvise(DWORD galleta) {
    const auto c = std::find_if(conexiones_.begin(), conexiones_.end(),
                                [&](const Conexion& uno) { return uno.galleta == galleta; });
    if (c == conexiones_.end())
        return CONNECT_E_NOCONNECTION;
    // Out of the list before it is released: the release may call back.
    const Conexion vieja = std::move(*c);
    conexiones_.erase(c);
    return S_OK;
}

HRESULT PuntoDeConexion::EnumConnections(IEnumConnections** lista) {
    if (!lista)
        return E_POINTER;
    *lista = nullptr;
    try {
        std::vector<CONNECTDATA> datos;
        for (const Conexion& uno : conexiones_)
            datos.push_back({uno.sumidero.get(), uno.galleta});
        *lista = new Enumerador<IEnumConnections, CONNECTDATA>(objeto_, std::move(datos));
        return S_OK;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
}

const PuntoDeConexion::Conexion* PuntoDeConexion::Tras(DWORD dicha, DWORD ultima) const {
    const auto una = std::find_if(conexiones_.begin(), conexiones_.end(),
                                  [&](const Conexion& c) { return c.galleta > dicha; });
    return una == conexiones_.end() || una->galleta > ultima ? nullptr : &*una;
}

void PuntoDeConexion::Olvidar() {
    std::vector<Conexion> viejas;
    viejas.swap(conexiones_);
}

} // namespace pincela::componente
