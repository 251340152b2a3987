#include "anfitrion/imagenes.h"

namespace anfitrion {

Puntero<IFontDisp> CrearFuente(const std::wstring& nombre, double puntos, bool negrita,
                               bool cursiva) {
    std::wstring copia = nombre;
    FONTDESC descripcion{};
    descripcion.cbSizeofstruct = sizeof descripcion;
    descripcion.lpstrName = copia.data();
    descripcion.cySize.int64 = static_cast<LONGLONG>(puntos * 10000);
    descripcion.sWeight = negrita ? FW_BOLD : FW_NORMAL;
    descripcion.sCharset = DEFAULT_CHARSET;
    descripcion.fItalic = cursiva;
    Puntero<IFontDisp> fuente;
    Comprobar(OleCreateFontIndirect(&descripcion, IID_IFontDisp, fuente.RecibirVoid()),
              "OleCreateFontIndirect");
    return fuente;
}

static Puntero<IPictureDisp> Crear(PICTDESC& descripcion) {
    Puntero<IPictureDisp> imagen;
    Comprobar(OleCreatePictureIndirect(&descripcion, IID_IPictureDisp, TRUE, imagen.RecibirVoid()),
              "OleCreatePictureIndirect");
    return imagen;
}

Puntero<IPictureDisp> CrearImagen(HBITMAP mapa) {
    PICTDESC descripcion{};
    descripcion.cbSizeofstruct = sizeof descripcion;
    descripcion.picType = PICTYPE_BITMAP;
    descripcion.bmp.hbitmap = mapa;
    return Crear(descripcion);
}

Puntero<IPictureDisp> CrearImagen(HICON icono) {
    PICTDESC descripcion{};
    descripcion.cbSizeofstruct = sizeof descripcion;
    descripcion.picType = PICTYPE_ICON;
    descripcion.icon.hicon = icono;
    return Crear(descripcion);
}

Puntero<IPictureDisp> CrearImagen(HMETAFILE metaarchivo, SIZE tamano) {
    PICTDESC descripcion{};
    descripcion.cbSizeofstruct = sizeof descripcion;
    descripcion.picType = PICTYPE_METAFILE;
    descripcion.wmf.hmeta = metaarchivo;
    descripcion.wmf.xExt = tamano.cx;
    descripcion.wmf.yExt = tamano.cy;
    return Crear(descripcion);
}

} // namespace anfitrion
