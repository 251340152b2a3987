// Owners of platform handles: each closes what it holds, none is copied.
#pragma once

#include <windows.h>

#include <utility>

namespace pincela::windows {

template <class H, class Cierre>
class Dueno {
  public:
    Dueno() = default;
    explicit Dueno(H manija) : manija_(manija) {}
    Dueno(Dueno&& otro) noexcept : manija_(otro.Ceder()) {}
    Dueno& operator=(Dueno&& otro) noexcept {
        Poner(otro.Ceder());
        return *this;
    }
    ~Dueno() { Poner({}); }

    H get() const { return manija_; }
    explicit operator bool() const { return manija_ != H{}; }

    void Poner(H manija) {
        if (H anterior = std::exchange(manija_, manija))
            Cierre{}(anterior);
    }
    H Ceder() { return std::exchange(manija_, H{}); }

  private:
    H manija_{};
};

struct CierreDc {
    void operator()(HDC dc) const { ::DeleteDC(dc); }
};
struct CierreObjeto {
    void operator()(HGDIOBJ objeto) const { ::DeleteObject(objeto); }
};

using DuenoDc = Dueno<HDC, CierreDc>;
using DuenoMapa = Dueno<HBITMAP, CierreObjeto>;
using DuenoPincel = Dueno<HBRUSH, CierreObjeto>;
using DuenoPluma = Dueno<HPEN, CierreObjeto>;
using DuenoFuente = Dueno<HFONT, CierreObjeto>;
using DuenoRegion = Dueno<HRGN, CierreObjeto>;

/// Keeps an object selected into a device context for a scope.
class Seleccion {
  public:
    Seleccion(HDC dc, HGDIOBJ objeto) : dc_(dc), anterior_(::SelectObject(dc, objeto)) {}
    Seleccion(const Seleccion&) = delete;
    Seleccion& operator=(const Seleccion&) = delete;
    ~Seleccion() {
        if (anterior_)
            ::SelectObject(dc_, anterior_);
    }
    explicit operator bool() const { return anterior_ != nullptr; }

  private:
    HDC dc_;
    HGDIOBJ anterior_;
};

/// Gives a device context back as it was: clip, origin, modes and selections.
class EstadoDc {
  public:
    explicit EstadoDc(HDC dc) : dc_(dc), nivel_(::SaveDC(dc)) {}
    EstadoDc(const EstadoDc&) = delete;
    EstadoDc& operator=(const EstadoDc&) = delete;
    ~EstadoDc() {
        if (nivel_)
            ::RestoreDC(dc_, nivel_);
    }

  private:
    HDC dc_;
    int nivel_;
};

/// Memory device context with a bitmap of its own selected.
class DcConMapa {
  public:
    DcConMapa() = default;
    DcConMapa(DuenoDc dc, DuenoMapa mapa)
        : dc_(std::move(dc)), mapa_(std::move(mapa)),
          original_(::SelectObject(dc_.get(), mapa_.get())) {}
    DcConMapa(DcConMapa&& otro) noexcept = default;
    DcConMapa& operator=(DcConMapa&& otro) noexcept {
        Soltar();
        dc_ = std::move(otro.dc_);
        mapa_ = std::move(otro.mapa_);
        original_ = otro.original_;
        return *this;
    }
    ~DcConMapa() { Soltar(); }

    HDC dc() const { return dc_.get(); }
    HBITMAP mapa() const { return mapa_.get(); }
    explicit operator bool() const { return original_ && dc_ && mapa_; }

    /// A bitmap still selected can't be deleted, so the original goes back first.
    void Soltar() {
        if (dc_ && original_)
            ::SelectObject(dc_.get(), original_);
        dc_.Poner(nullptr);
        mapa_.Poner(nullptr);
        original_ = nullptr;
    }

  private:
    DuenoDc dc_;
    DuenoMapa mapa_;
    HGDIOBJ original_ = nullptr;
};

} // namespace pincela::windows
