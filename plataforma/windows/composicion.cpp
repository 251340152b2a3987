#include "plataforma/windows/composicion.h"

#include "plataforma/windows/apartamento.h"
#include "plataforma/windows/colores.h"
#include "plataforma/windows/mascara.h"

#include <algorithm>

namespace pincela::windows {

namespace {

void CopiarImagen(ImagenDib& imagen, SIZE tamano, const Destino& destino) {
    const HDC origen = imagen.Dc();
    if (!origen)
        return;
    if (destino.TamanoNatural()) {
        ::BitBlt(destino.dc, destino.X(0), destino.Y(0), tamano.cx, tamano.cy, origen, 0, 0,
                 SRCCOPY);
        return;
    }
    // Bits rather than a context as the source: metafiles and printers take them as they are.
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = imagen.Ancho();
    info.bmiHeader.biHeight = -imagen.Alto();
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    const RECT r = destino.Rectangulo(0, 0, tamano.cx, tamano.cy);
    EstadoDc estado(destino.dc);
    ::SetStretchBltMode(destino.dc, HALFTONE);
    ::SetBrushOrgEx(destino.dc, 0, 0, nullptr);
    ::StretchDIBits(destino.dc, r.left, r.top, r.right - r.left, r.bottom - r.top, 0, 0, tamano.cx,
                    tamano.cy, imagen.Pixeles(), &info, DIB_RGB_COLORS, SRCCOPY);
}

void ComponerFondo(SuperficieWindows& superficie, const Destino& destino) {
    const SIZE tamano = superficie.Tamano();
    ImagenDib& imagen = superficie.lienzo().imagen();
    if (!superficie.Transparente()) {
        if (imagen.Existe())
            CopiarImagen(imagen, tamano, destino);
        else
            Llenar(destino.dc, destino.Rectangulo(0, 0, tamano.cx, tamano.cy),
                   Resolver(imagen.Fondo()));
        return;
    }
    if (!imagen.Existe())
        return;
    EstadoDc estado(destino.dc);
    if (RecortarALoDibujado(imagen, tamano, destino))
        CopiarImagen(imagen, tamano, destino);
}

/// The painting of a window, ended whatever happens meanwhile: a window that is not told so stays
/// dirty and keeps its context.
class Pintura {
  public:
    explicit Pintura(HWND ventana) : ventana_(ventana), dc_(::BeginPaint(ventana, &datos_)) {}
    Pintura(const Pintura&) = delete;
    Pintura& operator=(const Pintura&) = delete;
    ~Pintura() {
        if (dc_)
            ::EndPaint(ventana_, &datos_);
    }
    HDC dc() const { return dc_; }
    const RECT& Sucio() const { return datos_.rcPaint; }

  private:
    HWND ventana_;
    PAINTSTRUCT datos_{};
    HDC dc_;
};

void CopiarEntera(HDC destino, HDC origen, const RECT& r) {
    ::BitBlt(destino, r.left, r.top, r.right - r.left, r.bottom - r.top, origen, r.left, r.top,
             SRCCOPY);
}

} // namespace

void ComponerColor(SuperficieWindows& superficie, const Destino& destino) {
    if (superficie.Transparente())
        return;
    const SIZE tamano = superficie.Tamano();
    const RECT r = destino.Rectangulo(0, 0, tamano.cx, tamano.cy);
    const auto alcanzable = [](LONG valor) {
        constexpr LONG tope = 1 << 26; // the platform's own limit of what can be drawn on
        return std::clamp(valor, -tope, tope);
    };
    const auto [x1, x2] = std::minmax({alcanzable(r.left), alcanzable(r.right)});
    const auto [y1, y2] = std::minmax({alcanzable(r.top), alcanzable(r.bottom)});
    Llenar(destino.dc, {x1, y1, x2, y2}, Resolver(superficie.lienzo().imagen().Fondo()));
}

void Componer(const Nucleo& nucleo, SuperficieWindows& superficie, const Destino& destino) {
    ComponerFondo(superficie, destino);
    nucleo.escena.Dibujar(destino);
}

DuenoRegion LoDibujado(const Nucleo& nucleo, SuperficieWindows& superficie, bool& mezclada) {
    mezclada = false;
    const SIZE tamano = superficie.Tamano();
    if (tamano.cx <= 0 || tamano.cy <= 0 ||
        (nucleo.escena.Vacia() && !superficie.lienzo().imagen().Existe()))
        return DuenoRegion(::CreateRectRgn(0, 0, 0, 0));
    // Two pictures of what no screen shows are not made to know where little of it is drawn.
    constexpr std::int64_t Desmedida = std::int64_t{1} << 24;
    if (std::int64_t{tamano.cx} * tamano.cy > Desmedida)
        return DuenoRegion();
    ImagenDib hojas[]{ImagenDib(Color(std::uint32_t{0x000000})),
                      ImagenDib(Color(std::uint32_t{0xFFFFFF}))};
    for (ImagenDib& hoja : hojas) {
        hoja.PonTamano(tamano.cx, tamano.cy, hoja.Fondo());
        Destino destino;
        destino.dc = hoja.Dc();
        destino.enVentana = true;
        if (!destino.dc)
            return DuenoRegion();
        const EstadoDc estado(destino.dc);
        Componer(nucleo, superficie, destino);
    }
    const std::uint32_t* negra = hojas[0].Pixeles();
    const std::uint32_t* blanca = hojas[1].Pixeles();
    return negra && blanca ? RegionDibujada(negra, blanca, tamano, mezclada) : DuenoRegion();
}

void DibujarPadre(Nucleo& nucleo, HDC dc) {
    const HWND ventana = nucleo.ventana, padre = ::GetParent(ventana);
    // A parent that prints its children too asks for this one again, which would never end.
    if (!padre || nucleo.dibujandoPadre)
        return;
    const auto testigo = nucleo.Testigo();
    nucleo.dibujandoPadre = true;
    POINT origen{0, 0};
    ::MapWindowPoints(ventana, padre, &origen, 1);
    EstadoDc estado(dc);
    ::OffsetViewportOrgEx(dc, -origen.x, -origen.y, nullptr);
    const AritmeticaAjena ajena;
    ::SendMessageW(padre, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
    ::SendMessageW(padre, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
    if (!testigo.expired())
        nucleo.dibujandoPadre = false;
}

bool PintarVentana(Nucleo& nucleo, SuperficieWindows& superficie, Silueta& silueta) {
    const Pintura pintura(nucleo.ventana);
    const HDC dc = pintura.dc();
    if (!dc)
        return false;
    nucleo.VistaDibujada();
    const RECT& sucio = pintura.Sucio();
    const auto testigo = nucleo.Testigo();
    const bool hay = sucio.right > sucio.left && sucio.bottom > sucio.top;
    if (hay) {
        // No more than what is to be painted of a window that may be larger than any screen. Whole
        // steps, so that a pattern falls on the same pixels whatever part of it is painted.
        constexpr LONG paso = 8;
        const POINT origen{sucio.left - sucio.left % paso, sucio.top - sucio.top % paso};
        const PrestamoDeFondo fondo(nucleo.apartamento, dc,
                                    {sucio.right - origen.x, sucio.bottom - origen.y});
        if (fondo.dc())
            ::SetViewportOrgEx(fondo.dc(), -origen.x, -origen.y, nullptr);
        Destino destino;
        destino.dc = fondo.dc() ? fondo.dc() : dc;
        destino.enVentana = true;
        const SIZE tamano = superficie.Tamano();
        const bool entera = sucio.left <= 0 && sucio.top <= 0 && sucio.right >= tamano.cx &&
                            sucio.bottom >= tamano.cy;
        if (fondo.dc() && !entera)
            ::IntersectClipRect(fondo.dc(), sucio.left, sucio.top, sucio.right, sucio.bottom);
        if (superficie.Transparente() && silueta.PideFondo())
            DibujarPadre(nucleo, destino.dc);
        if (!testigo.expired())
            Componer(nucleo, superficie, destino);
        if (fondo.dc())
            CopiarEntera(dc, fondo.dc(), sucio);
    }
    return hay;
}

void ImprimirVentana(Nucleo& nucleo, SuperficieWindows& superficie, HDC dc, LPARAM banderas,
                     bool conHijas) {
    Destino destino;
    destino.dc = dc;
    destino.enVentana = true;
    {
        EstadoDc estado(dc);
        const SIZE tamano = superficie.Tamano();
        ::IntersectClipRect(dc, 0, 0, tamano.cx, tamano.cy);
        const auto testigo = nucleo.Testigo();
        if (superficie.Transparente())
            DibujarPadre(nucleo, dc);
        if (testigo.expired())
            return;
        Componer(nucleo, superficie, destino);
    }
    if (!conHijas || !(banderas & PRF_CHILDREN))
        return;
    for (HWND hija = ::GetWindow(nucleo.ventana, GW_CHILD); hija;
         hija = ::GetWindow(hija, GW_HWNDNEXT)) {
        if (!::IsWindowVisible(hija))
            continue;
        POINT origen{0, 0};
        ::MapWindowPoints(hija, nucleo.ventana, &origen, 1);
        EstadoDc estado(dc);
        ::OffsetViewportOrgEx(dc, origen.x, origen.y, nullptr);
        ::SendMessageW(hija, WM_PRINT, reinterpret_cast<WPARAM>(dc), banderas);
    }
}

} // namespace pincela::windows
