// The form as a collection of controls (IOleContainer).
#pragma once

#include "anfitrion/com.h"

#include <oleidl.h>

#include <vector>

namespace anfitrion {

class Formulario;

/// Enumerator over a fixed list of objects.
Puntero<IEnumUnknown> Enumerar(std::vector<Puntero<IUnknown>> objetos);

/// Shared by all sites of a form; it may outlive the form, and is then empty.
class Contenedor : public ObjetoCom<IOleContainer> {
  public:
    /// `forma` is not owned.
    explicit Contenedor(Formulario& forma) : forma_(&forma) {}
    void Desconectar() { forma_ = nullptr; }

    HRESULT STDMETHODCALLTYPE ParseDisplayName(IBindCtx*, LPOLESTR, ULONG*,
                                               IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE EnumObjects(DWORD cuales, IEnumUnknown** enumerador) override;
    HRESULT STDMETHODCALLTYPE LockContainer(BOOL) override;

  protected:
    void* Heredada(REFIID iid) override;

  private:
    Formulario* forma_;
};

} // namespace anfitrion
