// What all surfaces of the module share: its handle, the back buffer, a context to measure with
// and the fonts in use. Everything belongs to the one user-interface thread and goes when the last
// surface goes, never while the module is being unloaded.
#pragma once

#include "plataforma/fuente.h"
#include "plataforma/windows/manijas.h"

#include <memory>

namespace pincela::windows {

/// The module this code was linked into, a program or a library.
HINSTANCE ModuloPropio();

/// Counts an environment as long as it lives.
class UsoDelModulo {
  public:
    UsoDelModulo();
    UsoDelModulo(const UsoDelModulo&) = delete;
    UsoDelModulo& operator=(const UsoDelModulo&) = delete;
    ~UsoDelModulo();
};

/// The shared back buffer for the length of one painting; a painting inside another gets none. It
/// may be clipped and its origin moved; anything else about the context is given back as it was
/// found.
class PrestamoDeFondo {
  public:
    PrestamoDeFondo(HDC modelo, SIZE tamano);
    PrestamoDeFondo(const PrestamoDeFondo&) = delete;
    PrestamoDeFondo& operator=(const PrestamoDeFondo&) = delete;
    ~PrestamoDeFondo();
    HDC dc() const { return dc_; }

  private:
    HDC dc_ = nullptr;
};

/// For measuring text; null when the platform has none left.
HDC DcDeMedida();

/// A font of the device, shared by everybody who draws with the same attributes.
struct FuenteGdi {
    DuenoFuente manija;
};
using RefFuenteGdi = std::shared_ptr<const FuenteGdi>;

/// `alto` is the character height in units of the context; `ancho` 0 keeps the font's proportion.
RefFuenteGdi FuenteDeDispositivo(const AtributosFuente& atributos, int alto, int ancho = 0);
/// Character height in pixels of a size in points.
int AltoDeFuente(double puntos, int ppp);

} // namespace pincela::windows
