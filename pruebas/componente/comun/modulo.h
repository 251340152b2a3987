// The component file by its entry points.
#pragma once

#include "anfitrion/com.h"
#include "pruebas/componente/comun/publicado.h"

namespace publicado {

class Modulo {
  public:
    Modulo() : Modulo(RutaDelComponente()) {}
    explicit Modulo(const std::wstring& archivo) : h_(LoadLibraryW(archivo.c_str())) {
        if (!h_)
            throw anfitrion::FalloCom(HRESULT_FROM_WIN32(GetLastError()), "LoadLibrary");
    }
    Modulo(const Modulo&) = delete;
    Modulo& operator=(const Modulo&) = delete;
    ~Modulo() { FreeLibrary(h_); }

    HMODULE Manejador() const { return h_; }
    HRESULT DarClase(REFCLSID clase, REFIID iid, void** salida) const {
        return Entrada<HRESULT WINAPI(REFCLSID, REFIID, void**)>("DllGetClassObject")(clase, iid,
                                                                                      salida);
    }
    HRESULT PuedeDescargarse() const { return Entrada<HRESULT WINAPI()>("DllCanUnloadNow")(); }
    HRESULT Registrar() const { return Entrada<HRESULT WINAPI()>("DllRegisterServer")(); }
    HRESULT Desregistrar() const { return Entrada<HRESULT WINAPI()>("DllUnregisterServer")(); }
    HRESULT Instalar(bool instalar, const wchar_t* para) const {
        return Entrada<HRESULT WINAPI(BOOL, LPCWSTR)>("DllInstall")(instalar, para);
    }

  private:
    template <class F>
    F* Entrada(const char* nombre) const {
        const FARPROC entrada = GetProcAddress(h_, nombre);
        if (!entrada)
            throw anfitrion::FalloCom(E_NOTIMPL, nombre);
        return reinterpret_cast<F*>(reinterpret_cast<void*>(entrada));
    }

    HMODULE h_;
};

} // namespace publicado
