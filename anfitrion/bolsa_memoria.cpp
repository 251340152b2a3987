#include "anfitrion/bolsa_memoria.h"

namespace anfitrion {

static bool MismaClave(std::wstring_view a, std::wstring_view b) {
    return CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(),
                                static_cast<int>(b.size()), TRUE) == CSTR_EQUAL;
}

const Variante* BolsaMemoria::Buscar(std::wstring_view clave) const {
    for (const auto& [nombre, valor] : valores_)
        if (MismaClave(nombre, clave))
            return &valor;
    return nullptr;
}

void BolsaMemoria::Poner(const std::wstring& clave, const Variante& valor) {
    if (const Variante* viejo = Buscar(clave))
        *const_cast<Variante*>(viejo) = valor;
    else
        valores_.emplace_back(clave, valor);
}

std::vector<std::wstring> BolsaMemoria::Claves(bool escritura) const {
    std::vector<std::wstring> claves;
    for (const Operacion& o : operaciones_)
        if (o.escritura == escritura)
            claves.push_back(o.clave);
    return claves;
}

static bool EsObjeto(VARTYPE tipo) {
    return tipo == VT_DISPATCH || tipo == VT_UNKNOWN;
}

HRESULT BolsaMemoria::Entregar(LPCOLESTR clave, VARIANT& valor) const {
    const VARTYPE pedido = valor.vt;
    if (hostilidad == Hostilidad::falla)
        return E_FAIL;
    const Variante* guardado = Buscar(clave);
    if (!guardado) {
        if (hostilidad != Hostilidad::ausenteVacio)
            return E_INVALIDARG;
        VariantClear(&valor);
        return S_OK;
    }
    if (hostilidad == Hostilidad::tipoEquivocado) {
        Variante texto(L"no es un valor");
        VariantClear(&valor);
        std::swap(valor, static_cast<VARIANT&>(texto));
        return S_OK;
    }
    Variante salida;
    HRESULT estado = S_OK;
    if (pedido == VT_EMPTY || pedido == guardado->vt || hostilidad == Hostilidad::sinConversion) {
        estado = VariantCopy(&salida, const_cast<Variante*>(guardado));
    } else if (EsObjeto(pedido) && EsObjeto(guardado->vt)) {
        salida.vt = pedido;
        salida.punkVal = nullptr;
        if (guardado->punkVal)
            estado = guardado->punkVal->QueryInterface(pedido == VT_DISPATCH ? IID_IDispatch
                                                                             : IID_IUnknown,
                                                       reinterpret_cast<void**>(&salida.punkVal));
    } else {
        estado = VariantChangeTypeEx(&salida, const_cast<Variante*>(guardado), LOCALE_INVARIANT, 0,
                                     pedido);
    }
    if (FAILED(estado))
        return estado;
    VariantClear(&valor);
    std::swap(valor, static_cast<VARIANT&>(salida));
    return S_OK;
}

HRESULT BolsaMemoria::Read(LPCOLESTR clave, VARIANT* valor, IErrorLog*) {
    if (!clave || !valor)
        return E_POINTER;
    const VARTYPE pedido = valor->vt;
    const HRESULT estado = Entregar(clave, *valor);
    operaciones_.push_back({false, clave, pedido, estado});
    return estado;
}

HRESULT BolsaMemoria::Write(LPCOLESTR clave, VARIANT* valor) {
    if (!clave || !valor)
        return E_POINTER;
    HRESULT estado = S_OK;
    if (hostilidad == Hostilidad::falla) {
        estado = E_FAIL;
    } else {
        Variante copia;
        estado = VariantCopyInd(&copia, valor);
        if (SUCCEEDED(estado))
            Poner(clave, copia);
    }
    operaciones_.push_back({true, clave, valor->vt, estado});
    return estado;
}

} // namespace anfitrion
