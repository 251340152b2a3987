#include "pruebas/componente/comun/boton.h"

#include <olectl.h>

namespace publicado {

using anfitrion::Cadena;
using anfitrion::Estrechar;

namespace {

std::string DescribirFuente(IFont& fuente) {
    Cadena nombre;
    CY tamanio{};
    BOOL negrita = FALSE, cursiva = FALSE, subrayada = FALSE, tachada = FALSE;
    fuente.get_Name(nombre.Recibir());
    fuente.get_Size(&tamanio);
    fuente.get_Bold(&negrita);
    fuente.get_Italic(&cursiva);
    fuente.get_Underline(&subrayada);
    fuente.get_Strikethrough(&tachada);
    return Estrechar(nombre.Texto()) + " " + std::to_string(tamanio.int64) + (negrita ? " B" : "") +
           (cursiva ? " I" : "") + (subrayada ? " U" : "") + (tachada ? " S" : "");
}

std::string DescribirImagen(IPicture& imagen) {
    SHORT clase = 0;
    OLE_XSIZE_HIMETRIC ancho = 0;
    OLE_YSIZE_HIMETRIC alto = 0;
    imagen.get_Type(&clase);
    imagen.get_Width(&ancho);
    imagen.get_Height(&alto);
    const char* clases[] = {"none", "bitmap", "metafile", "icon", "enhanced metafile"};
    return std::string(clase >= 0 && clase <= 4 ? clases[clase] : "?") + " " +
           std::to_string(ancho) + "x" + std::to_string(alto);
}

} // namespace

std::string Describir(const Variante& valor) {
    if ((valor.vt == VT_DISPATCH || valor.vt == VT_UNKNOWN) && valor.punkVal) {
        const Puntero<IUnknown> objeto(valor.punkVal);
        if (const auto fuente = objeto.Como<IFont>())
            return DescribirFuente(*fuente.get());
        if (const auto imagen = objeto.Como<IPicture>())
            return DescribirImagen(*imagen.get());
    }
    return Estrechar(anfitrion::Mostrar(valor));
}

std::vector<std::string> Retrato(IDispatch* boton) {
    std::vector<std::string> lineas;
    for (const wchar_t* nombre : PropiedadesDelBoton)
        lineas.push_back(Estrechar(nombre) + " = " + Describir(Leer(boton, nombre)));
    return lineas;
}

Puntero<IPictureDisp> MapaDePrueba(int lado) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = lado;
    info.bmiHeader.biHeight = -lado;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    void* bits = nullptr;
    const HBITMAP mapa = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const int fila = (lado * 3 + 3) / 4 * 4;
    for (int y = 0; y < lado; ++y)
        for (int x = 0; x < lado; ++x) {
            BYTE* pixel = static_cast<BYTE*>(bits) + y * fila + x * 3;
            pixel[0] = static_cast<BYTE>(40 * y);
            pixel[1] = static_cast<BYTE>(30 * x);
            pixel[2] = 0xC8;
        }
    return anfitrion::CrearImagen(mapa);
}

Puntero<IPictureDisp> IconoDePrueba() {
    BYTE mascara[16 * 2], colores[16 * 16 * 4];
    for (int i = 0; i < 32; ++i)
        mascara[i] = i % 4 < 2 ? 0xF0 : 0x0F;
    for (int i = 0; i < 16 * 16 * 4; ++i)
        colores[i] = static_cast<BYTE>(i % 4 == 3 ? 0 : i * 7);
    return anfitrion::CrearImagen(
        CreateIcon(GetModuleHandleW(nullptr), 16, 16, 1, 32, mascara, colores));
}

Puntero<IPictureDisp> MetaficheroDePrueba() {
    const RECT marco{0, 0, 1000, 500};
    const HDC dc = CreateEnhMetaFileW(nullptr, nullptr, &marco, nullptr);
    Rectangle(dc, 0, 0, 20, 10);
    PICTDESC descripcion{};
    descripcion.cbSizeofstruct = sizeof descripcion;
    descripcion.picType = PICTYPE_ENHMETAFILE;
    descripcion.emf.hemf = CloseEnhMetaFile(dc);
    Puntero<IPictureDisp> imagen;
    anfitrion::Comprobar(
        OleCreatePictureIndirect(&descripcion, IID_IPictureDisp, TRUE, imagen.RecibirVoid()),
        "OleCreatePictureIndirect");
    return imagen;
}

void CambiarTodo(IDispatch* boton) {
    Poner(boton, L"FocoVisible", false);
    Poner(boton, L"FocoConMouse", true);
    Poner(boton, L"RelX", 0.25f);
    Poner(boton, L"RelY", 0.75f);
    Poner(boton, L"Estilos", 1);
    Poner(boton, L"EstilosBord", 2);
    Poner(boton, L"EfectoBoton", 2);
    Poner(boton, L"AnchoBorde", 3);
    Poner(boton, L"EstilosRell", 4);
    Poner(boton, L"AlinImag", 8);
    Poner(boton, L"AlinText", 1);
    Poner(boton, L"Caption", L"&Año nuevo");
    Poner(boton, L"ColorLetra", 0x123456);
    Poner(boton, L"ColorLetraSobre", 0x654321);
    Poner(boton, L"ColorFondo", 0x00C0FF);
    Poner(boton, L"ColorFondoSobre", 0xFFC000);
    PonerRef(boton, L"Font", Variante(anfitrion::CrearFuente(L"Arial", 14.25, true, true).get()));
    Poner(boton, L"MousePointer", short{2});
    Poner(boton, L"ToolTipText", L"una ayuda");
    Poner(boton, L"TipoLetra", 3);
    PonerRef(boton, L"ImagNormal", Variante(MapaDePrueba(6).get()));
    PonerRef(boton, L"ImagSobre", Variante(IconoDePrueba().get()));
    Poner(boton, L"Expandir", false);
    Poner(boton, L"Enabled", false);
    Poner(boton, L"CambioProgre", true);
    Poner(boton, L"CambioProgrePasos", 7);
}

HRESULT IntentarPoner(IDispatch* boton, const wchar_t* nombre, const Variante& valor) {
    try {
        Poner(boton, nombre, valor);
        return S_OK;
    } catch (const anfitrion::FalloCom& fallo) {
        return fallo.estado;
    }
}

} // namespace publicado
