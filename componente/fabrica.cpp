#include "componente/fabrica.h"

#include "componente/control/control.h"
#include "componente/objeto_efectos.h"
#include "componente/paginas/objeto_pagina.h"

#include <new>

namespace pincela::componente {

namespace {

using Creador = IUnknown* (*)();

IUnknown* CrearEfectos() {
    return static_cast<ISupportErrorInfo*>(new ObjetoEfectos);
}

Creador CreadorDe(REFCLSID clase) {
    if (clase == DatosEfectos.clase)
        return &CrearEfectos;
    if (clase == DatosBotonazo.clase)
        return &CrearControl<TablaBotonazo, DatosBotonazo>;
    if (clase == DatosArea.clase)
        return &CrearControl<TablaArea, DatosArea>;
    if (clase == DatosProPGeneral.clase)
        return &CrearPagina<TablaProPGeneral, DatosProPGeneral, TablaBotonazo, DatosBotonazo,
                            DisenoGeneral>;
    if (clase == DatosProPColores.clase)
        return &CrearPagina<TablaProPColores, DatosProPColores, TablaBotonazo, DatosBotonazo,
                            DisenoColores>;
    if (clase == DatosProPColoresArea.clase)
        return &CrearPagina<TablaProPColoresArea, DatosProPColoresArea, TablaArea, DatosArea,
                            DisenoColoresArea>;
    if (clase == DatosTbox.clase)
        return &CrearControl<TablaTbox, DatosTbox>;
    if (clase == DatosTBoxML.clase)
        return &CrearControl<TablaTBoxML, DatosTBoxML>;
    if (clase == DatosTboxSS.clase)
        return &CrearControl<TablaTboxSS, DatosTboxSS>;
    if (clase == DatosTboxSSML.clase)
        return &CrearControl<TablaTboxSSML, DatosTboxSSML>;
    return nullptr;
}

class Fabrica final : public IClassFactory {
  public:
    explicit Fabrica(Creador creador) : creador_(creador) {}
    virtual ~Fabrica() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** salida) override {
        if (!salida)
            return E_POINTER;
        *salida = nullptr;
        if (iid != IID_IUnknown && iid != IID_IClassFactory)
            return E_NOINTERFACE;
        *salida = static_cast<IClassFactory*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return cuenta_.Sumar(); }
    ULONG STDMETHODCALLTYPE Release() override { return cuenta_.Restar(this); }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* exterior, REFIID iid,
                                             void** salida) override {
        if (!salida)
            return E_POINTER;
        *salida = nullptr;
        if (exterior)
            return CLASS_E_NOAGGREGATION;
        const windows::AritmeticaPropia propia;
        try {
            IUnknown* objeto = creador_();
            const HRESULT estado = objeto->QueryInterface(iid, salida);
            objeto->Release();
            return estado;
        } catch (...) {
            return EstadoDeLaExcepcion(IID_IClassFactory, NombreDeLaBiblioteca);
        }
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL bloquear) override {
        bloquear ? BloquearModulo() : DesbloquearModulo();
        return S_OK;
    }

  private:
    CuentaReferencias cuenta_;
    Creador creador_;
};

} // namespace

HRESULT DarFabrica(REFCLSID clase, REFIID iid, void** salida) {
    if (!salida)
        return E_POINTER;
    *salida = nullptr;
    const Creador creador = CreadorDe(clase);
    if (!creador)
        return CLASS_E_CLASSNOTAVAILABLE;
    auto* fabrica = new (std::nothrow) Fabrica(creador);
    if (!fabrica)
        return E_OUTOFMEMORY;
    const HRESULT estado = fabrica->QueryInterface(iid, salida);
    fabrica->Release();
    return estado;
}

} // namespace pincela::componente
