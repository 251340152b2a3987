// Connection points: whom a control tells of its events and changes.
#pragma once

#include "componente/com.h"

#include <ocidl.h>

#include <vector>

namespace pincela::componente {

/// One connection point, part of its control and sharing its life.
class PuntoDeConexion final : public IConnectionPoint {
  public:
    PuntoDeConexion(IUnknown* objeto, IConnectionPointContainer* contenedor, REFIID interfaz)
        : objeto_(objeto), contenedor_(contenedor), interfaz_(interfaz) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** salida) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return objeto_->AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return objeto_->Release(); }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override;
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** c) override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sumidero, DWORD* galleta) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD galleta) override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** lista) override;

    REFIID Interfaz() const { return interfaz_; }

    struct Conexion {
        DWORD galleta;
        Ptr<IUnknown> sumidero; // the interface of the point, or IDispatch for events
    };

    /// Calls `f` for each sink connected at this moment; one that leaves meanwhile is skipped.
    template <class F>
    void ParaCadaUno(F&& f) {
        const DWORD ultima = ultimaGalleta_;
        for (DWORD dicha = 0; const Conexion* una = Tras(dicha, ultima);) {
            dicha = una->galleta;
            const Ptr<IUnknown> sumidero = una->sumidero; // held: it may disconnect itself
            f(sumidero.get());
        }
    }

    void Olvidar();

  private:
    /// The first connection after one cookie and up to another; null for none.
    const Conexion* Tras(DWORD dicha, DWORD ultima) const;

    IUnknown* objeto_;
    IConnectionPointContainer* contenedor_;
    IID interfaz_;
    std::vector<Conexion> conexiones_; // cookies grow
    DWORD ultimaGalleta_ = 0;
};

} // namespace pincela::componente
