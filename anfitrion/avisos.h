// Receiver of a control's notices: property changes and view changes.
#pragma once

#include "anfitrion/com.h"

#include <ocidl.h>

#include <functional>

namespace anfitrion {

/// Callbacks are the owner's; Callar forgets them when the owner goes before the last reference.
class Avisos : public ObjetoCom<IPropertyNotifySink, IAdviseSink> {
  public:
    std::function<void(DISPID)> alCambiar;
    std::function<bool(DISPID)> alPedirCambio; ///< false refuses the change
    std::function<void()> alCambiarVista;
    std::function<void(const char*)> alLlamar; ///< name of each call, for the log

    void Callar() {
        alCambiar = nullptr;
        alPedirCambio = nullptr;
        alCambiarVista = nullptr;
        alLlamar = nullptr;
    }

    HRESULT STDMETHODCALLTYPE OnChanged(DISPID numero) override {
        Contar("IPropertyNotifySink::OnChanged");
        if (const auto manejador = alCambiar)
            manejador(numero);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID numero) override {
        Contar("IPropertyNotifySink::OnRequestEdit");
        const auto manejador = alPedirCambio;
        return !manejador || manejador(numero) ? S_OK : S_FALSE;
    }

    void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override {
        Contar("IAdviseSink::OnDataChange");
    }
    void STDMETHODCALLTYPE OnViewChange(DWORD, LONG) override {
        Contar("IAdviseSink::OnViewChange");
        if (const auto manejador = alCambiarVista)
            manejador();
    }
    void STDMETHODCALLTYPE OnRename(IMoniker*) override {}
    void STDMETHODCALLTYPE OnSave() override { Contar("IAdviseSink::OnSave"); }
    void STDMETHODCALLTYPE OnClose() override { Contar("IAdviseSink::OnClose"); }

  private:
    void Contar(const char* llamada) {
        if (alLlamar)
            alLlamar(llamada);
    }
};

} // namespace anfitrion
