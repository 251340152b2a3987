// Keys of the registry as programs of one width see them.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace pincela::componente {

/// Owner of an open key.
class ClaveAbierta {
  public:
    ClaveAbierta() = default;
    ClaveAbierta(const ClaveAbierta&) = delete;
    ClaveAbierta& operator=(const ClaveAbierta&) = delete;
    ~ClaveAbierta() {
        if (clave_)
            RegCloseKey(clave_);
    }
    HKEY get() const { return clave_; }
    HKEY* Recibir() { return &clave_; }

  private:
    HKEY clave_ = nullptr;
};

/// Class given to the keys that this component makes, which tells them from those it found.
inline constexpr wchar_t ClaseDeClave[] = L"Pincela";

/// Opens a key, or makes it; `nueva` says which. To make one that is there would give it our class.
LSTATUS AbrirOCrear(HKEY raiz, const std::wstring& ruta, REGSAM derechos, ClaveAbierta& clave,
                    bool& nueva);
LSTATUS PonerTexto(HKEY clave, const std::wstring& nombre, const std::wstring& valor);

/// A hive seen by programs of our width, or of the other one: part of the classes is kept for each
/// width apart. Where the system has one width only, both see the same.
class Vista {
  public:
    static Vista Propia(HKEY raiz) { return {raiz, 0}; }
    static Vista Ajena(HKEY raiz) {
        return {raiz, sizeof(void*) == 8 ? REGSAM{KEY_WOW64_32KEY} : REGSAM{KEY_WOW64_64KEY}};
    }

    /// A text, with its environment variables replaced where it is kept so; nothing where there is
    /// none. The default value when `nombre` is empty. `error` gets the reason why it can't be
    /// told.
    std::optional<std::wstring> Leer(const std::wstring& ruta, const std::wstring& nombre,
                                     LSTATUS* error = nullptr) const;
    /// Assigns a text, in a new key if need be.
    LSTATUS Poner(const std::wstring& ruta, const std::wstring& nombre,
                  const std::wstring& valor) const;
    /// Removes a key with all below it. A key that isn't there is as good.
    LSTATUS Quitar(const std::wstring& ruta) const;
    /// Removes a key that holds nothing; leaves any other.
    LSTATUS QuitarSiVacia(const std::wstring& ruta) const { return QuitarVacia(ruta, false); }
    /// The same, for one of those that everybody shares: only if this component made it.
    LSTATUS QuitarSiSobra(const std::wstring& ruta) const { return QuitarVacia(ruta, true); }
    bool TieneSubclaves(const std::wstring& ruta) const;

  private:
    LSTATUS QuitarVacia(const std::wstring& ruta, bool soloNuestra) const;
    Vista(HKEY raiz, REGSAM ancho) : raiz_(raiz), ancho_(ancho) {}

    HKEY raiz_;
    REGSAM ancho_;
};

} // namespace pincela::componente
