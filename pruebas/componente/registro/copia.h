// A second copy of the component, in a folder of its own.
#pragma once

#include "pruebas/componente/comun/publicado.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

namespace publicado {

class Copia {
  public:
    /// The folder is made below the temporary ones, `niveles` deep.
    explicit Copia(const std::wstring& nombre, int niveles = 1) {
        wchar_t temporal[MAX_PATH];
        GetTempPathW(MAX_PATH, temporal);
        // The prefix lifts the limit that names have.
        std::wstring carpeta = std::wstring(L"\\\\?\\") + temporal;
        carpeta.pop_back();
        for (int i = 0; i < niveles; ++i) {
            carpeta += L'\\' + nombre;
            CreateDirectoryW(carpeta.c_str(), nullptr);
            carpetas_.push_back(carpeta);
        }
        archivo_ = carpeta + L"\\Pincela.ocx";
        REQUIRE(CopyFileW(RutaDelComponente().c_str(), archivo_.c_str(), FALSE));
    }
    Copia(const Copia&) = delete;
    Copia& operator=(const Copia&) = delete;
    ~Copia() {
        DeleteFileW(archivo_.c_str());
        for (; !carpetas_.empty(); carpetas_.pop_back())
            RemoveDirectoryW(carpetas_.back().c_str());
    }

    /// Without the prefix.
    std::wstring Carpeta() const { return carpetas_.back().substr(4); }
    std::wstring Archivo() const { return archivo_.substr(4); }
    const std::wstring& ArchivoConPrefijo() const { return archivo_; }

  private:
    std::wstring archivo_;
    std::vector<std::wstring> carpetas_;
};

} // namespace publicado
