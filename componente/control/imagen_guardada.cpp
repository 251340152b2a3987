#include "componente/control/imagen_guardada.h"

#include "common/errores.h"
#include "componente/com.h"
#include "componente/control/flujo_ajeno.h"
#include "componente/errores_com.h"
#include "plataforma/windows/objetos_windows.h"

#include <algorithm>
#include <cstring>

#include <olectl.h>

namespace pincela::componente {

namespace {

/// A saved picture starts with a signature and a length; what follows is the image itself.
struct Cabecera {
    DWORD firma, largo;
};
constexpr DWORD FirmaDeImagen = 0x0000746C;

Bytes ConCabecera(std::size_t largo) {
    const Cabecera cabecera{FirmaDeImagen, static_cast<DWORD>(largo)};
    Bytes bytes(sizeof cabecera + largo);
    std::memcpy(bytes.data(), &cabecera, sizeof cabecera);
    return bytes;
}

Bytes GuardarMetaficheroMejorado(HENHMETAFILE metafichero) {
    const UINT largo = GetEnhMetaFileBits(metafichero, 0, nullptr);
    Bytes bytes = ConCabecera(largo);
    if (!largo || GetEnhMetaFileBits(metafichero, largo, bytes.data() + sizeof(Cabecera)) != largo)
        throw FalloCom{E_UNEXPECTED};
    return bytes;
}

/// The header that gives an old metafile its size. It is packed, so it is written word by word.
class CabeceraDeMetafichero {
  public:
    static constexpr std::size_t Largo = 22;

    explicit CabeceraDeMetafichero(IPicture& imagen) {
        OLE_XSIZE_HIMETRIC ancho = 0;
        OLE_YSIZE_HIMETRIC alto = 0;
        imagen.get_Width(&ancho);
        imagen.get_Height(&alto);
        const WORD palabras[] = {0xCDD7,      0x9AC6,     0,          0, 0,
                                 Lado(ancho), Lado(alto), PorPulgada, 0, 0};
        WORD suma = 0;
        for (const WORD una : palabras)
            suma = static_cast<WORD>(suma ^ una);
        std::copy(std::begin(palabras), std::end(palabras), palabras_);
        palabras_[Largo / 2 - 1] = suma;
    }
    const WORD* Palabras() const { return palabras_; }

  private:
    static constexpr WORD PorPulgada = 2540; // the size is in hundredths of a millimetre
    static WORD Lado(LONG largo) { return static_cast<WORD>(std::clamp<LONG>(largo, 0, 0x7FFF)); }

    WORD palabras_[Largo / 2];
};

Bytes GuardarMetafichero(IPicture& imagen, HMETAFILE metafichero) {
    constexpr std::size_t antes = sizeof(Cabecera) + CabeceraDeMetafichero::Largo;
    const UINT largo = GetMetaFileBitsEx(metafichero, 0, nullptr);
    Bytes bytes = ConCabecera(CabeceraDeMetafichero::Largo + largo);
    if (!largo || GetMetaFileBitsEx(metafichero, largo, bytes.data() + antes) != largo)
        throw FalloCom{E_UNEXPECTED};
    std::memcpy(bytes.data() + sizeof(Cabecera), CabeceraDeMetafichero(imagen).Palabras(),
                CabeceraDeMetafichero::Largo);
    return bytes;
}

/// What an icon is drawn from; the bitmaps are copies and belong to us.
struct PartesDeIcono : ICONINFO {
    explicit PartesDeIcono(HICON icono) : ICONINFO{} {
        if (!GetIconInfo(icono, this))
            throw FalloCom{E_OUTOFMEMORY};
    }
    PartesDeIcono(const PartesDeIcono&) = delete;
    PartesDeIcono& operator=(const PartesDeIcono&) = delete;
    ~PartesDeIcono() {
        DeleteObject(hbmMask);
        DeleteObject(hbmColor);
    }
};

/// A file with one icon of 32 bits, whose colours carry their opacity, and its mask. Empty for what
/// such a file can't hold: cursors, icons without colours, large ones.
Bytes GuardarIcono(HICON icono) {
    const PartesDeIcono partes(icono);
    BITMAP mapa{};
    if (!partes.fIcon || !partes.hbmColor || !partes.hbmMask ||
        !GetObjectW(partes.hbmColor, sizeof mapa, &mapa) || mapa.bmWidth > 255 ||
        mapa.bmHeight > 255)
        return {};
    const auto ancho = static_cast<std::size_t>(mapa.bmWidth);
    const auto alto = static_cast<std::size_t>(mapa.bmHeight);
    const std::size_t colores = ancho * alto * 4, mascara = (ancho + 31) / 32 * 4 * alto;
    struct {
        BITMAPINFOHEADER cabecera;
        RGBQUAD paleta[2];
    } info{{sizeof(BITMAPINFOHEADER), mapa.bmWidth, mapa.bmHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0},
           {}};
    const std::size_t imagen = sizeof info.cabecera + colores + mascara;
    const DWORD entrada = 22; // of the list of icons, with the one that it has
    const WORD lista[] = {0, 1, 1};
    const BYTE lados[] = {static_cast<BYTE>(ancho), static_cast<BYTE>(alto), 0, 0};
    const WORD planos[] = {1, 32};
    const DWORD lugar[] = {static_cast<DWORD>(imagen), entrada};
    Bytes bytes = ConCabecera(entrada + imagen);
    std::uint8_t* a = bytes.data() + sizeof(Cabecera);
    const auto escribir = [&a](const void* datos, std::size_t largo) {
        std::memcpy(a, datos, largo);
        a += largo;
    };
    escribir(lista, sizeof lista);
    escribir(lados, sizeof lados);
    escribir(planos, sizeof planos);
    escribir(lugar, sizeof lugar);
    BITMAPINFOHEADER doble = info.cabecera;
    doble.biHeight *= 2; // the colours and the mask below them
    escribir(&doble, sizeof doble);
    const HDC hdc = CreateCompatibleDC(nullptr);
    auto* const receptor = reinterpret_cast<BITMAPINFO*>(&info);
    const UINT filas = static_cast<UINT>(alto);
    bool bien = GetDIBits(hdc, partes.hbmColor, 0, filas, a, receptor, DIB_RGB_COLORS) != 0;
    info.cabecera.biBitCount = 1;
    info.cabecera.biCompression = BI_RGB;
    info.cabecera.biSizeImage = 0;
    bien = bien &&
           GetDIBits(hdc, partes.hbmMask, 0, filas, a + colores, receptor, DIB_RGB_COLORS) != 0;
    DeleteDC(hdc);
    if (!bien)
        throw FalloCom{E_UNEXPECTED};
    return bytes;
}

/// Whether a saved bitmap tells of colour masks, as those of 16 and of 32 bits do on some
/// platforms, but leaves no room for them: its pixels would be read from the wrong place.
bool LeFaltanLasMascaras(const Bytes& bytes) {
    constexpr std::size_t antes = sizeof(Cabecera), mascaras = 3 * sizeof(DWORD);
    BITMAPFILEHEADER fichero;
    BITMAPINFOHEADER cabecera;
    if (bytes.size() < antes + sizeof fichero + sizeof cabecera)
        return false;
    std::memcpy(&fichero, bytes.data() + antes, sizeof fichero);
    std::memcpy(&cabecera, bytes.data() + antes + sizeof fichero, sizeof cabecera);
    return fichero.bfType == 0x4D42 && cabecera.biSize == sizeof cabecera &&
           cabecera.biCompression == BI_BITFIELDS &&
           fichero.bfOffBits < sizeof fichero + sizeof cabecera + mascaras;
}

/// A file with the bitmap in 32 bits, the last eight of which may be its opacity, or in 24.
Bytes GuardarMapa(HBITMAP mapa) {
    BITMAP medidas{};
    if (!GetObjectW(mapa, sizeof medidas, &medidas))
        throw FalloCom{E_UNEXPECTED};
    const WORD bits = medidas.bmBitsPixel == 32 ? 32 : 24;
    BITMAPINFO info{{sizeof(BITMAPINFOHEADER), medidas.bmWidth, medidas.bmHeight, 1, bits, BI_RGB,
                     0, 0, 0, 0, 0},
                    {}};
    const auto alto = static_cast<UINT>(medidas.bmHeight);
    const std::size_t fila = (static_cast<std::size_t>(medidas.bmWidth) * bits + 31) / 32 * 4;
    BITMAPFILEHEADER fichero{0x4D42, 0, 0, 0, sizeof fichero + sizeof info.bmiHeader};
    fichero.bfSize = static_cast<DWORD>(fichero.bfOffBits + fila * alto);
    Bytes bytes = ConCabecera(fichero.bfSize);
    std::uint8_t* const a = bytes.data() + sizeof(Cabecera);
    std::memcpy(a, &fichero, sizeof fichero);
    std::memcpy(a + sizeof fichero, &info.bmiHeader, sizeof info.bmiHeader);
    const HDC hdc = CreateCompatibleDC(nullptr);
    const bool bien =
        GetDIBits(hdc, mapa, 0, alto, a + fichero.bfOffBits, &info, DIB_RGB_COLORS) != 0;
    DeleteDC(hdc);
    if (!bien)
        throw FalloCom{E_UNEXPECTED};
    return bytes;
}

Bytes GuardarPorSiMisma(IPersistStream* persistente) {
    Ptr<IStream> flujo;
    Exigir(CreateStreamOnHGlobal(nullptr, TRUE, flujo.Recibir()));
    Exigir(persistente ? persistente->Save(flujo.get(), TRUE) : E_NOINTERFACE);
    ULARGE_INTEGER fin{};
    Exigir(flujo->Seek({}, STREAM_SEEK_CUR, &fin));
    Exigir(flujo->Seek({}, STREAM_SEEK_SET, nullptr));
    Bytes bytes;
    FlujoAjeno(flujo.get()).Leer(fin.QuadPart, bytes);
    return bytes;
}

} // namespace

// Not every picture object knows how to save a metafile, the opacity of an icon or the pixels of a
// bitmap in the screen's format, though all can load them.
Bytes GuardarImagen(const Imagen& imagen) {
    const auto disp = Ptr<IPictureDisp>::Adoptar(windows::DesenvolverImagen(imagen));
    const auto ole = Ptr<IPicture>::De(disp.get());
    SHORT clase = PICTYPE_NONE;
    OLE_HANDLE manejador = 0;
    if (ole && SUCCEEDED(ole->get_Type(&clase)) && SUCCEEDED(ole->get_Handle(&manejador))) {
        HANDLE h = LongToHandle(static_cast<LONG>(manejador));
        if (clase == PICTYPE_ENHMETAFILE)
            return GuardarMetaficheroMejorado(static_cast<HENHMETAFILE>(h));
        if (clase == PICTYPE_METAFILE)
            return GuardarMetafichero(*ole.get(), static_cast<HMETAFILE>(h));
        if (clase == PICTYPE_ICON)
            if (Bytes bytes = GuardarIcono(static_cast<HICON>(h)); !bytes.empty())
                return bytes;
    }
    // By itself if it can: a picture that came out of a file is kept as that file.
    Bytes bytes = GuardarPorSiMisma(Ptr<IPersistStream>::De(disp.get()).get());
    if (clase == PICTYPE_BITMAP && LeFaltanLasMascaras(bytes))
        return GuardarMapa(static_cast<HBITMAP>(LongToHandle(static_cast<LONG>(manejador))));
    return bytes;
}

Imagen RestaurarImagen(const Bytes& bytes) {
    Cabecera cabecera{};
    if (bytes.size() < sizeof cabecera)
        Lanzar(NumeroError::TiposNoCoinciden);
    std::memcpy(&cabecera, bytes.data(), sizeof cabecera);
    if (cabecera.firma != FirmaDeImagen)
        Lanzar(NumeroError::TiposNoCoinciden);
    // The image alone: some platforms keep as much of it as the whole stream is long.
    Ptr<IStream> flujo;
    Exigir(CreateStreamOnHGlobal(nullptr, TRUE, flujo.Recibir()));
    Exigir(flujo->Write(bytes.data() + sizeof cabecera,
                        static_cast<ULONG>(bytes.size() - sizeof cabecera), nullptr));
    Exigir(flujo->Seek({}, STREAM_SEEK_SET, nullptr));
    Ptr<IPicture> imagen;
    Exigir(OleLoadPicture(flujo.get(), static_cast<LONG>(cabecera.largo), FALSE, IID_IPicture,
                          imagen.RecibirVacio()));
    return windows::EnvolverImagen(imagen.get());
}

} // namespace pincela::componente
