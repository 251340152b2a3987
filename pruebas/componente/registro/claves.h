// Registry keys as lines of text.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace publicado {

/// Owner of an open key.
class Clave {
  public:
    Clave(HKEY raiz, const std::wstring& ruta, bool crear = false, DWORD opciones = 0) {
        const LSTATUS error = crear ? RegCreateKeyExW(raiz, ruta.c_str(), 0, nullptr, opciones,
                                                      KEY_READ | KEY_WRITE, nullptr, &h_, nullptr)
                                    : RegOpenKeyExW(raiz, ruta.c_str(), 0, KEY_READ, &h_);
        if (error != ERROR_SUCCESS)
            h_ = nullptr;
    }
    Clave(const Clave&) = delete;
    Clave& operator=(const Clave&) = delete;
    ~Clave() {
        if (h_)
            RegCloseKey(h_);
    }
    HKEY get() const { return h_; }
    explicit operator bool() const { return h_ != nullptr; }

    void Poner(const std::wstring& nombre, const std::wstring& valor) const {
        RegSetValueExW(h_, nombre.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(valor.c_str()),
                       static_cast<DWORD>((valor.size() + 1) * sizeof(wchar_t)));
    }

  private:
    HKEY h_ = nullptr;
};

/// The same letters, small.
std::wstring EnMinusculas(std::wstring texto);

/// Every key below `ruta` as "path" and every value as "path [name] = value", sorted; paths in
/// small letters, because keys know no case. The view of programs of the other width is left out.
std::vector<std::wstring> Volcar(HKEY raiz, const std::wstring& ruta);

} // namespace publicado
