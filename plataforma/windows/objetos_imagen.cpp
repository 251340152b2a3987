#include "plataforma/windows/objetos_imagen.h"

#include "common/errores.h"
#include "plataforma/windows/manijas.h"

#include <olectl.h>

namespace pincela::windows {

namespace {

short TipoDe(IPicture* imagen) {
    short tipo = PICTYPE_UNINITIALIZED;
    return SUCCEEDED(imagen->get_Type(&tipo)) ? tipo : PICTYPE_UNINITIALIZED;
}

bool EsMapaOpaco(IPicture* imagen) {
    DWORD atributos = 0;
    return TipoDe(imagen) == PICTYPE_BITMAP && SUCCEEDED(imagen->get_Attributes(&atributos)) &&
           !(atributos & PICTURE_TRANSPARENT);
}

// A picture's own drawing may drop rows and columns when it shrinks; this averages them. Maps of
// 32 bits may carry transparency of their own and are left to the picture.
bool EstirarMapa(IPicture* imagen, HDC dc, const RECT& lugar) {
    OLE_HANDLE manija = 0;
    if (FAILED(imagen->get_Handle(&manija)) || !manija)
        return false;
    const auto mapa = reinterpret_cast<HBITMAP>(static_cast<LONG_PTR>(static_cast<LONG>(manija)));
    BITMAP datos{};
    if (!::GetObjectW(mapa, sizeof datos, &datos) || datos.bmBitsPixel == 32)
        return false;
    DuenoDc origen(::CreateCompatibleDC(dc));
    Seleccion seleccion(origen.get(), mapa);
    if (!seleccion) // it is selected elsewhere
        return false;
    return ::StretchBlt(dc, lugar.left, lugar.top, lugar.right - lugar.left,
                        lugar.bottom - lugar.top, origen.get(), 0, 0, datos.bmWidth, datos.bmHeight,
                        SRCCOPY);
}

} // namespace

ImagenOle::ImagenOle(PunteroCom<IPicture> imagen)
    : imagen_(std::move(imagen)), identidad_(IdentidadDe(imagen_.get())) {}

std::int32_t ImagenOle::Width() const {
    OLE_XSIZE_HIMETRIC ancho = 0;
    return SUCCEEDED(imagen_->get_Width(&ancho)) ? ancho : 0;
}

std::int32_t ImagenOle::Height() const {
    OLE_YSIZE_HIMETRIC alto = 0;
    return SUCCEEDED(imagen_->get_Height(&alto)) ? alto : 0;
}

bool ImagenOle::EsElMismo(const Objeto& otro) const {
    const auto* imagen = dynamic_cast<const ImagenOle*>(&otro);
    return imagen && imagen->identidad_.get() == identidad_.get();
}

void ImagenOle::Dibujar(HDC dc, const RECT& lugar) const {
    const PunteroCom<IPicture> imagen = imagen_; // held: it may have this wrapper dropped
    const long ancho = lugar.right - lugar.left, alto = lugar.bottom - lugar.top;
    if (ancho <= 0 || alto <= 0)
        return;
    EstadoDc estado(dc);
    ::SetStretchBltMode(dc, HALFTONE);
    ::SetBrushOrgEx(dc, 0, 0, nullptr);
    if (EsMapaOpaco(imagen.get()) && EstirarMapa(imagen.get(), dc, lugar))
        return;
    OLE_XSIZE_HIMETRIC anchoPropio = 0;
    OLE_YSIZE_HIMETRIC altoPropio = 0;
    if (FAILED(imagen->get_Width(&anchoPropio)) || FAILED(imagen->get_Height(&altoPropio)))
        return;
    // The picture's own rows run from the bottom.
    imagen->Render(dc, lugar.left, lugar.top, ancho, alto, 0, altoPropio, anchoPropio, -altoPropio,
                   nullptr);
}

HCURSOR ImagenOle::Puntero() const {
    OLE_HANDLE manija = 0;
    if (TipoDe(imagen_.get()) != PICTYPE_ICON || FAILED(imagen_->get_Handle(&manija)))
        return nullptr;
    return reinterpret_cast<HCURSOR>(static_cast<LONG_PTR>(static_cast<LONG>(manija)));
}

Imagen EnvolverImagen(IUnknown* objeto) {
    if (!objeto)
        return nullptr;
    auto imagen = PunteroCom<IPicture>::De(objeto);
    if (!imagen)
        Lanzar(NumeroError::TiposNoCoinciden);
    return std::make_shared<ImagenOle>(std::move(imagen));
}

IPictureDisp* DesenvolverImagen(const Imagen& imagen) {
    const auto* ole = dynamic_cast<const ImagenOle*>(imagen.get());
    return ole ? PunteroCom<IPictureDisp>::De(ole->imagen()).Ceder() : nullptr;
}

} // namespace pincela::windows
