#include "componente/control/imagen_guardada.h"

#include "common/errores.h"
#include "componente/com.h"
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

Bytes GuardarPorSiMisma(IPersistStream* persistente) {
    Ptr<IStream> flujo;
    Exigir(CreateStreamOnHGlobal(nullptr, TRUE, flujo.Recibir()));
    Exigir(persistente ? persistente->Save(flujo.get(), TRUE) : E_NOINTERFACE);
    ULARGE_INTEGER fin{};
    Exigir(flujo->Seek({}, STREAM_SEEK_CUR, &fin));
    Exigir(flujo->Seek({}, STREAM_SEEK_SET, nullptr));
    Bytes bytes(static_cast<std::size_t>(fin.QuadPart));
    ULONG leidos = 0;
    Exigir(flujo->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &leidos));
    return bytes;
}

} // namespace

// Not every picture object knows how to save a metafile, though all can load one.
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
    }
    return GuardarPorSiMisma(Ptr<IPersistStream>::De(disp.get()).get());
}

Imagen RestaurarImagen(const Bytes& bytes) {
    Ptr<IStream> flujo;
    Exigir(CreateStreamOnHGlobal(nullptr, TRUE, flujo.Recibir()));
    Exigir(flujo->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
    Exigir(flujo->Seek({}, STREAM_SEEK_SET, nullptr));
    Cabecera cabecera{};
    ULONG leidos = 0;
    Exigir(flujo->Read(&cabecera, sizeof cabecera, &leidos));
    if (leidos != sizeof cabecera || cabecera.firma != FirmaDeImagen)
        Lanzar(NumeroError::TiposNoCoinciden);
    Ptr<IPicture> imagen;
    Exigir(OleLoadPicture(flujo.get(), static_cast<LONG>(cabecera.largo), FALSE, IID_IPicture,
                          imagen.RecibirVacio()));
    return windows::EnvolverImagen(imagen.get());
}

} // namespace pincela::componente
