// What the surfaces of one apartment share: the back buffer, a context to measure with, the fonts
// in use and how often the focus was passed on.
//
// Each apartment has its own, so nothing of it needs a lock. It goes with the last surface of the
// apartment: neither at the end of a thread nor while the module is being unloaded.
#pragma once

#include "plataforma/fuente.h"
#include "plataforma/windows/manijas.h"

#include <memory>
#include <vector>

namespace pincela::windows {

/// A font of the device, shared by everybody who draws with the same attributes.
struct FuenteGdi {
    DuenoFuente manija;
};
using RefFuenteGdi = std::shared_ptr<const FuenteGdi>;

class Apartamento {
  public:
    Apartamento() = default;
    Apartamento(const Apartamento&) = delete;
    Apartamento& operator=(const Apartamento&) = delete;

    /// For measuring text; null when the platform has none left.
    HDC DcDeMedida();
    /// `alto` is the character height in units of the context; `ancho` 0 keeps the font's
    /// proportion.
    RefFuenteGdi FuenteDeDispositivo(const AtributosFuente& atributos, int alto, int ancho = 0);
    /// Whether the focus may be passed on once more before the user does anything. Forms in which
    /// nobody keeps it would send it round for ever.
    bool PuedePasarElFoco();

  private:
    friend class PrestamoDeFondo;
    friend class UsoDelApartamento;

    struct FuenteEnUso {
        LOGFONTW descripcion;
        std::weak_ptr<const FuenteGdi> fuente;
    };

    bool AsegurarFondo(HDC modelo, SIZE tamano);

    DWORD hilo_ = ::GetCurrentThreadId();
    int usos_ = 0;
    DcConMapa fondo_;
    SIZE tamanoFondo_{0, 0};
    bool fondoPrestado_ = false;
    DuenoDc medida_;
    std::vector<FuenteEnUso> fuentes_;
    DWORD ultimaEntrada_ = 0;
    int pases_ = 0;
};

/// Holds the apartment of the thread that makes it, for as long as it lives; the thread that lets
/// it go may be another.
class UsoDelApartamento {
  public:
    UsoDelApartamento();
    UsoDelApartamento(const UsoDelApartamento&) = delete;
    UsoDelApartamento& operator=(const UsoDelApartamento&) = delete;
    ~UsoDelApartamento();

    Apartamento& operator*() const { return *apartamento_; }

  private:
    Apartamento* apartamento_;
};

/// The apartment's back buffer for the length of one painting; a painting inside another gets none.
/// It may be clipped and its origin moved; anything else about the context is given back as it was
/// found.
class PrestamoDeFondo {
  public:
    PrestamoDeFondo(Apartamento& apartamento, HDC modelo, SIZE tamano);
    PrestamoDeFondo(const PrestamoDeFondo&) = delete;
    PrestamoDeFondo& operator=(const PrestamoDeFondo&) = delete;
    ~PrestamoDeFondo();
    HDC dc() const { return dc_; }

  private:
    Apartamento& apartamento_;
    HDC dc_ = nullptr;
};

/// Character height in pixels of a size in points.
int AltoDeFuente(double puntos, int ppp);

} // namespace pincela::windows
