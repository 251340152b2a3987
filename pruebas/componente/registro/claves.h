// Registry keys as lines of text.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace publicado {

/// What programs of the other width see, asked for by a program of this one.
inline constexpr REGSAM OtroAncho = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

/// Owner of an open key.
class Clave {
  public:
    Clave(HKEY raiz, const std::wstring& ruta, bool crear = false, DWORD opciones = 0,
          REGSAM ancho = 0) {
        const LSTATUS error =
            crear ? RegCreateKeyExW(raiz, ruta.c_str(), 0, nullptr, opciones,
                                    KEY_READ | KEY_WRITE | ancho, nullptr, &h_, nullptr)
                  : RegOpenKeyExW(raiz, ruta.c_str(), 0, KEY_READ | ancho, &h_);
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

    void Poner(const std::wstring& nombre, const std::wstring& valor, DWORD tipo = REG_SZ) const {
        Poner(nombre, tipo, valor.c_str(), (valor.size() + 1) * sizeof(wchar_t));
    }
    void Poner(const std::wstring& nombre, DWORD tipo, const void* datos, std::size_t bytes) const {
        RegSetValueExW(h_, nombre.c_str(), 0, tipo, static_cast<const BYTE*>(datos),
                       static_cast<DWORD>(bytes));
    }

  private:
    HKEY h_ = nullptr;
};

inline bool Existe(HKEY raiz, const std::wstring& ruta) {
    return static_cast<bool>(Clave(raiz, ruta));
}

/// For as long as it lives, a key that nobody may change.
class SoloLectura {
  public:
    SoloLectura(HKEY raiz, const std::wstring& ruta);
    SoloLectura(const SoloLectura&) = delete;
    SoloLectura& operator=(const SoloLectura&) = delete;
    ~SoloLectura();
    bool Vale() const { return vale_; }

  private:
    HKEY h_ = nullptr;
    std::vector<BYTE> antes_;
    bool vale_ = false;
};

/// The same letters, small.
std::wstring EnMinusculas(std::wstring texto);

/// Every key below `ruta` as "path" and every value as "path [name] = value", sorted; paths in
/// small letters, because keys know no case; what is no text, as its type and bytes. The view of
/// programs of the other width is left out, unless it is the one asked for. Without `entero` a key
/// that can't be ours is "path @when it was last changed", and what is below it is not read: the
/// machine has thousands of them.
std::vector<std::wstring> Volcar(HKEY raiz, const std::wstring& ruta, REGSAM ancho = 0,
                                 bool entero = true);

} // namespace publicado
