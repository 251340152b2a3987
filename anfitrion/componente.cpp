#include "anfitrion/componente.h"

#include "anfitrion/variante.h"

namespace anfitrion {

Componente Componente::DeFichero(const std::wstring& ruta) {
    // A full path: the search for the component's own imports starts beside it.
    wchar_t completa[MAX_PATH];
    if (!GetFullPathNameW(ruta.c_str(), MAX_PATH, completa, nullptr))
        throw FalloCom(HRESULT_FROM_WIN32(GetLastError()), "ruta de " + Estrechar(ruta));
    const HMODULE modulo = LoadLibraryExW(completa, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (!modulo)
        throw FalloCom(HRESULT_FROM_WIN32(GetLastError()), "abrir " + Estrechar(completa));
    Componente c;
    c.modulo_ = {modulo, Soltar{}};
    c.ruta_ = completa;
    return c;
}

FARPROC Componente::Entrada(const char* nombre) const {
    return GetProcAddress(modulo_.get(), nombre);
}

static bool BuscarEnBiblioteca(const std::wstring& ruta, const std::wstring& clase, CLSID& clsid) {
    Puntero<ITypeLib> biblioteca;
    if (FAILED(LoadTypeLibEx(ruta.c_str(), REGKIND_NONE, biblioteca.Recibir())))
        return false;
    for (UINT i = 0; i < biblioteca->GetTypeInfoCount(); ++i) {
        TYPEKIND especie;
        Cadena nombre;
        if (FAILED(biblioteca->GetTypeInfoType(i, &especie)) || especie != TKIND_COCLASS ||
            FAILED(biblioteca->GetDocumentation(static_cast<INT>(i), nombre.Recibir(), nullptr,
                                                nullptr, nullptr)) ||
            lstrcmpiW(nombre.get(), clase.c_str()) != 0)
            continue;
        Puntero<ITypeInfo> tipo;
        TYPEATTR* atributos = nullptr;
        if (FAILED(biblioteca->GetTypeInfo(i, tipo.Recibir())) ||
            FAILED(tipo->GetTypeAttr(&atributos)))
            return false;
        clsid = atributos->guid;
        tipo->ReleaseTypeAttr(atributos);
        return true;
    }
    return false;
}

CLSID Componente::Clase(const std::wstring& nombre) const {
    CLSID clase{};
    if (!nombre.empty() && nombre.front() == L'{') {
        Comprobar(CLSIDFromString(nombre.c_str(), &clase), "CLSIDFromString");
        return clase;
    }
    if (modulo_ && BuscarEnBiblioteca(ruta_, nombre.substr(nombre.find(L'.') + 1), clase))
        return clase;
    const HRESULT estado = CLSIDFromProgID(nombre.c_str(), &clase);
    if (FAILED(estado))
        throw FalloCom(estado, "clase " + Estrechar(nombre));
    return clase;
}

Puntero<IUnknown> Componente::Crear(REFCLSID clase) const {
    Puntero<IUnknown> objeto;
    if (!modulo_) {
        Comprobar(CoCreateInstance(clase, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                                   objeto.RecibirVoid()),
                  "CoCreateInstance");
        return objeto;
    }
    const auto darFabrica =
        reinterpret_cast<decltype(&DllGetClassObject)>(Entrada("DllGetClassObject"));
    if (!darFabrica)
        throw FalloCom(CO_E_DLLNOTFOUND, "DllGetClassObject de " + Estrechar(ruta_));
    Puntero<IClassFactory> fabrica;
    Comprobar(darFabrica(clase, IID_IClassFactory, fabrica.RecibirVoid()), "DllGetClassObject");
    Comprobar(fabrica->CreateInstance(nullptr, IID_IUnknown, objeto.RecibirVoid()),
              "CreateInstance");
    return objeto;
}

bool Componente::PuedeDescargarse() const {
    if (!modulo_)
        return false;
    const auto puede = reinterpret_cast<decltype(&DllCanUnloadNow)>(Entrada("DllCanUnloadNow"));
    return puede && puede() == S_OK;
}

} // namespace anfitrion
