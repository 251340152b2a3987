#include "anfitrion/captura.h"

#include "anfitrion/com.h"

#include <algorithm>
#include <cstring>
#include <wincodec.h>

namespace anfitrion {

Captura::Captura(int ancho, int alto)
    : ancho_(ancho), alto_(alto), pixeles_(static_cast<std::size_t>(ancho) * alto) {}

Captura::Lienzo::Lienzo(int ancho_, int alto_)
    : ancho(std::max(ancho_, 1)), alto(std::max(alto_, 1)), hdc(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = ancho;
    info.bmiHeader.biHeight = -alto; // top down
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    mapa = CreateDIBSection(hdc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    anterior = SelectObject(hdc, mapa);
    PatBlt(hdc, 0, 0, ancho, alto, WHITENESS);
}

Captura::Lienzo::~Lienzo() {
    SelectObject(hdc, anterior);
    DeleteObject(mapa);
    DeleteDC(hdc);
}

Captura Captura::Lienzo::Copiar() const {
    GdiFlush();
    Captura captura(ancho, alto);
    std::memcpy(captura.pixeles_.data(), bits, captura.pixeles_.size() * sizeof(DWORD));
    for (DWORD& pixel : captura.pixeles_)
        pixel &= 0x00FFFFFF;
    return captura;
}

Captura Captura::DeVentana(HWND ventana, bool conMarco) {
    RedrawWindow(ventana, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    RECT r;
    if (conMarco) {
        GetWindowRect(ventana, &r);
        OffsetRect(&r, -r.left, -r.top);
    } else {
        GetClientRect(ventana, &r);
    }
    // A cached context ignores the class's clipping, so the children come along.
    const HDC hdc = GetDCEx(ventana, nullptr, DCX_CACHE | (conMarco ? DCX_WINDOW : 0));
    Captura captura = DeDibujo(r.right, r.bottom, [&](HDC destino) {
        BitBlt(destino, 0, 0, r.right, r.bottom, hdc, 0, 0, SRCCOPY);
    });
    ReleaseDC(ventana, hdc);
    return captura;
}

Captura Captura::Impresa(HWND ventana) {
    RECT r;
    GetClientRect(ventana, &r);
    return DeDibujo(r.right, r.bottom, [&](HDC destino) {
        SendMessageW(ventana, WM_PRINT, reinterpret_cast<WPARAM>(destino),
                     PRF_CLIENT | PRF_CHILDREN | PRF_ERASEBKGND);
    });
}

COLORREF Captura::Pixel(int x, int y) const {
    if (x < 0 || y < 0 || x >= ancho_ || y >= alto_)
        return CLR_INVALID;
    const DWORD p = pixeles_[static_cast<std::size_t>(y) * ancho_ + x];
    return RGB(p >> 16 & 0xFF, p >> 8 & 0xFF, p & 0xFF);
}

int Captura::Contar(const RECT& r, COLORREF color) const {
    int cuantos = 0;
    for (int y = r.top; y < r.bottom; ++y)
        for (int x = r.left; x < r.right; ++x)
            cuantos += Pixel(x, y) == color;
    return cuantos;
}

int Captura::Colores() const {
    std::vector<DWORD> copia = pixeles_;
    std::sort(copia.begin(), copia.end());
    return static_cast<int>(std::unique(copia.begin(), copia.end()) - copia.begin());
}

void Captura::GuardarPng(const std::wstring& ruta) const {
    Puntero<IWICImagingFactory> fabrica;
    Comprobar(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                               IID_IWICImagingFactory, fabrica.RecibirVoid()),
              "fabrica de imagenes");
    Puntero<IWICStream> flujo;
    Comprobar(fabrica->CreateStream(flujo.Recibir()), "CreateStream");
    Comprobar(flujo->InitializeFromFilename(ruta.c_str(), GENERIC_WRITE), "abrir el PNG");
    Puntero<IWICBitmapEncoder> codificador;
    Comprobar(fabrica->CreateEncoder(GUID_ContainerFormatPng, nullptr, codificador.Recibir()),
              "CreateEncoder");
    Comprobar(codificador->Initialize(flujo.get(), WICBitmapEncoderNoCache), "Initialize");
    Puntero<IWICBitmapFrameEncode> cuadro;
    Comprobar(codificador->CreateNewFrame(cuadro.Recibir(), nullptr), "CreateNewFrame");
    Comprobar(cuadro->Initialize(nullptr), "Initialize");
    Comprobar(cuadro->SetSize(ancho_, alto_), "SetSize");
    WICPixelFormatGUID formato = GUID_WICPixelFormat24bppBGR;
    Comprobar(cuadro->SetPixelFormat(&formato), "SetPixelFormat");
    // 24 bits: a picture of the screen has no transparency.
    const UINT paso = static_cast<UINT>(ancho_) * 3;
    std::vector<BYTE> filas(static_cast<std::size_t>(paso) * alto_);
    BYTE* salida = filas.data();
    for (const DWORD pixel : pixeles_) {
        *salida++ = static_cast<BYTE>(pixel);
        *salida++ = static_cast<BYTE>(pixel >> 8);
        *salida++ = static_cast<BYTE>(pixel >> 16);
    }
    Comprobar(cuadro->WritePixels(alto_, paso, static_cast<UINT>(filas.size()), filas.data()),
              "WritePixels");
    Comprobar(cuadro->Commit(), "Commit");
    Comprobar(codificador->Commit(), "Commit");
}

} // namespace anfitrion
