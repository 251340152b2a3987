// Receiver of the events of any object.
#pragma once

#include "anfitrion/variante.h"

#include <ocidl.h>
#include <olectl.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace anfitrion {

/// One event on its way. The arguments are in their natural order and belong to the caller; those
/// that came by reference may be changed with Asignar.
struct Evento {
    DISPID numero;
    std::wstring nombre; ///< from the type information; empty when there is none
    std::vector<VARIANT*> argumentos;
};

/// Connects to one dispatch interface of events. A handler that throws FalloCom answers that status
/// to the object, any other exception answers E_FAIL.
class SumideroEventos : public ObjetoCom<IDispatch> {
  public:
    using Manejador = std::function<void(Evento&)>;

    explicit SumideroEventos(Manejador manejador) : manejador_(std::move(manejador)) {}

    /// Connects to the object's default source, found by IProvideClassInfo2 or by its class
    /// information. Throws FalloCom when it has none.
    void Conectar(IUnknown* objeto);
    /// Connects to a given source; `tipo` gives the names and may be null.
    void Conectar(IUnknown* objeto, REFIID interfaz, ITypeInfo* tipo);
    /// Breaks the connection; harmless when there is none.
    void Desconectar();
    bool Conectado() const { return cookie_ != 0; }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* cuantas) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** tipo) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID numero, REFIID, LCID, WORD, DISPPARAMS* parametros,
                                     VARIANT*, EXCEPINFO*, UINT*) override;

  protected:
    void* Heredada(REFIID iid) override;

  private:
    void LeerNombres(ITypeInfo* tipo);

    Manejador manejador_;
    std::map<DISPID, std::wstring> nombres_;
    IID interfaz_ = IID_IDispatch;
    Puntero<IConnectionPoint> punto_;
    DWORD cookie_ = 0;
};

/// Type information of an object's default event interface; empty when it has none.
Puntero<ITypeInfo> TipoDeEventos(IUnknown* objeto);

} // namespace anfitrion
