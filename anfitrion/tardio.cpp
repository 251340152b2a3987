#include "anfitrion/tardio.h"

#include <algorithm>
#include <vector>

namespace anfitrion {

namespace {

/// Owner of the strings that an exception record brings.
class Excepcion : public EXCEPINFO {
  public:
    Excepcion() : EXCEPINFO{} {}
    Excepcion(const Excepcion&) = delete;
    Excepcion& operator=(const Excepcion&) = delete;
    ~Excepcion() {
        SysFreeString(bstrSource);
        SysFreeString(bstrDescription);
        SysFreeString(bstrHelpFile);
    }

    [[noreturn]] void Lanzar(const std::string& que) {
        if (pfnDeferredFillIn)
            pfnDeferredFillIn(this);
        // A record may carry a 16-bit code instead of a status.
        const HRESULT estado =
            scode ? scode : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, wCode);
        throw FalloCom(estado, que, bstrDescription ? bstrDescription : L"",
                       bstrSource ? bstrSource : L"");
    }
};

} // namespace

static HRESULT Buscar(IDispatch* objeto, const wchar_t* nombre, DISPID& numero) {
    auto* copia = const_cast<LPOLESTR>(nombre);
    return objeto->GetIDsOfNames(IID_NULL, &copia, 1, LOCALE_USER_DEFAULT, &numero);
}

DISPID Numero(IDispatch* objeto, const wchar_t* nombre) {
    if (!objeto)
        throw FalloCom(E_POINTER, "objeto nulo");
    DISPID numero = DISPID_UNKNOWN;
    const HRESULT estado = Buscar(objeto, nombre, numero);
    if (FAILED(estado))
        throw FalloCom(estado, "GetIDsOfNames " + Estrechar(nombre));
    return numero;
}

bool Tiene(IDispatch* objeto, const wchar_t* nombre) {
    DISPID numero = DISPID_UNKNOWN;
    return objeto && SUCCEEDED(Buscar(objeto, nombre, numero));
}

Variante Invocar(IDispatch* objeto, DISPID numero, WORD modo, Argumentos argumentos) {
    if (!objeto)
        throw FalloCom(E_POINTER, "objeto nulo");
    // Raw copies: the callee borrows the values for the length of the call.
    std::vector<VARIANT> crudos(argumentos.begin(), argumentos.end());
    std::reverse(crudos.begin(), crudos.end());
    DISPID valor = DISPID_PROPERTYPUT;
    const bool asigna = modo & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
    DISPPARAMS parametros{crudos.data(), asigna ? &valor : nullptr,
                          static_cast<UINT>(crudos.size()), asigna ? 1u : 0u};
    Variante resultado;
    Excepcion excepcion;
    UINT malo = 0;
    const HRESULT estado = objeto->Invoke(numero, IID_NULL, LOCALE_USER_DEFAULT, modo, &parametros,
                                          asigna ? nullptr : &resultado, &excepcion, &malo);
    if (estado == DISP_E_EXCEPTION)
        excepcion.Lanzar("Invoke");
    Comprobar(estado, "Invoke");
    return resultado;
}

Variante Leer(IDispatch* objeto, const wchar_t* nombre, Argumentos argumentos) {
    return Invocar(objeto, Numero(objeto, nombre), DISPATCH_PROPERTYGET, argumentos);
}

void Poner(IDispatch* objeto, const wchar_t* nombre, const Variante& valor) {
    Invocar(objeto, Numero(objeto, nombre), DISPATCH_PROPERTYPUT, {valor});
}

void PonerRef(IDispatch* objeto, const wchar_t* nombre, const Variante& valor) {
    Invocar(objeto, Numero(objeto, nombre), DISPATCH_PROPERTYPUTREF, {valor});
}

Variante Llamar(IDispatch* objeto, const wchar_t* nombre, Argumentos argumentos) {
    return Invocar(objeto, Numero(objeto, nombre), DISPATCH_METHOD, argumentos);
}

} // namespace anfitrion
