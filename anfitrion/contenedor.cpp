#include "anfitrion/contenedor.h"

#include "anfitrion/control_alojado.h"
#include "anfitrion/formulario.h"

namespace anfitrion {

namespace {

class Enumerador : public ObjetoCom<IEnumUnknown> {
  public:
    Enumerador(std::vector<Puntero<IUnknown>> objetos, std::size_t lugar)
        : objetos_(std::move(objetos)), lugar_(lugar) {}

    HRESULT STDMETHODCALLTYPE Next(ULONG cuantos, IUnknown** salida, ULONG* dados) override {
        if (!salida || (cuantos != 1 && !dados))
            return E_POINTER;
        ULONG n = 0;
        for (; n < cuantos && lugar_ < objetos_.size(); ++n)
            salida[n] = Puntero<IUnknown>(objetos_[lugar_++]).Separar();
        if (dados)
            *dados = n;
        return n == cuantos ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG cuantos) override {
        const std::size_t quedan = objetos_.size() - lugar_;
        lugar_ += std::min<std::size_t>(cuantos, quedan);
        return cuantos <= quedan ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() override {
        lugar_ = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumUnknown** copia) override {
        if (!copia)
            return E_POINTER;
        *copia = Puntero<IEnumUnknown>(new Enumerador(objetos_, lugar_)).Separar();
        return S_OK;
    }

  private:
    std::vector<Puntero<IUnknown>> objetos_;
    std::size_t lugar_;
};

} // namespace

Puntero<IEnumUnknown> Enumerar(std::vector<Puntero<IUnknown>> objetos) {
    return Puntero<IEnumUnknown>(new Enumerador(std::move(objetos), 0));
}

void* Contenedor::Heredada(REFIID iid) {
    return iid == IID_IParseDisplayName ? static_cast<IOleContainer*>(this) : nullptr;
}

HRESULT Contenedor::ParseDisplayName(IBindCtx*, LPOLESTR, ULONG*, IMoniker** moniker) {
    if (moniker)
        *moniker = nullptr;
    return E_NOTIMPL;
}

HRESULT Contenedor::EnumObjects(DWORD cuales, IEnumUnknown** enumerador) {
    if (!enumerador)
        return E_POINTER;
    std::vector<Puntero<IUnknown>> objetos;
    if (forma_ && (cuales & (OLECONTF_EMBEDDINGS | OLECONTF_OTHERS)))
        for (const auto& control : forma_->Controles())
            if (control->Objeto())
                objetos.emplace_back(control->Objeto());
    *enumerador = Enumerar(std::move(objetos)).Separar();
    return S_OK;
}

HRESULT Contenedor::LockContainer(BOOL) {
    return S_OK;
}

} // namespace anfitrion
