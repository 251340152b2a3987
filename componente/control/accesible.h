// A control as assistive programs see it.
#pragma once

#include "componente/com.h"
#include "componente/objeto.h"
#include "plataforma/accesible.h"

#include <oleacc.h>

#include <functional>

namespace pincela::componente {

/// IAccessible of a control that is one thing, without parts but the controls placed inside a
/// group: the platform's standard
/// object for the window answers whatever is not particular to the control. It may outlive the
/// control, and then says that it is disconnected.
class ObjetoAccesible final : public IAccessible {
  public:
    /// What the object asks its control for.
    struct Fuente {
        std::function<Accesible()> describir;
        std::function<bool()> conFoco;
        std::function<void()> accionar;
        std::function<void()> enfocar;
    };

    ObjetoAccesible(Ptr<IAccessible> estandar, Fuente fuente)
        : estandar_(std::move(estandar)), fuente_(std::move(fuente)) {}
    virtual ~ObjetoAccesible() = default;

    void Desconectar();

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** salida) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return cuenta_.Sumar(); }
    ULONG STDMETHODCALLTYPE Release() override { return cuenta_.Restar(this); }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* cuantos) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT i, LCID lcid, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* nombres, UINT cuantos, LCID lcid,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID lcid, WORD banderas, DISPPARAMS* p,
                                     VARIANT* r, EXCEPINFO* e, UINT* mal) override;

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** padre) override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(long* cuantos) override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT hijo, IDispatch** salida) override;
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT hijo, BSTR* nombre) override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT hijo, BSTR* valor) override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT hijo, BSTR* texto) override;
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT hijo, VARIANT* papel) override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT hijo, VARIANT* estado) override;
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT hijo, BSTR* ayuda) override;
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* archivo, VARIANT hijo, long* tema) override;
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT hijo, BSTR* tecla) override;
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* hijo) override;
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* hijos) override;
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT hijo, BSTR* accion) override;
    HRESULT STDMETHODCALLTYPE accSelect(long banderas, VARIANT hijo) override;
    HRESULT STDMETHODCALLTYPE accLocation(long* x, long* y, long* ancho, long* alto,
                                          VARIANT hijo) override;
    HRESULT STDMETHODCALLTYPE accNavigate(long direccion, VARIANT desde, VARIANT* hasta) override;
    HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT* hijo) override;
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT hijo) override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT hijo, BSTR nombre) override;
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT hijo, BSTR valor) override;

  private:
    bool EsGrupo() const;
    HRESULT Comprobar(const VARIANT& hijo, const void* salida) const;
    HRESULT Texto(const VARIANT& hijo, BSTR* salida,
                  const pincela::Texto& (*cual)(const Accesible&));

    CuentaReferencias cuenta_;
    Ptr<IAccessible> estandar_;
    Fuente fuente_;
};

/// Standard state bits of a description.
long EstadoAccesible(const Accesible& descripcion, bool conFoco);

} // namespace pincela::componente
