#include "plataforma/windows/pruebas/banco.h"

#include <objidl.h> // before the next, which needs its types

#include <gdiplus.h>

#include <cstdio>

namespace pincela::windows::pruebas {

std::string Golpe(const char* nombre, std::int16_t b, std::int16_t s, float x, float y) {
    char texto[64];
    std::snprintf(texto, sizeof texto, "%s %d %d %g %g", nombre, b, s, x, y);
    return texto;
}

void ControlDePrueba::Anotar(std::string hecho) {
    hechos_.push_back(hecho);
    if (const auto accion = alOcurrir)
        accion(hecho);
}

void ControlDePrueba::MouseDown(std::int16_t b, std::int16_t s, float x, float y) {
    Anotar(Golpe("MouseDown", b, s, x, y));
}
void ControlDePrueba::MouseMove(std::int16_t b, std::int16_t s, float x, float y) {
    Anotar(Golpe("MouseMove", b, s, x, y));
}
void ControlDePrueba::MouseUp(std::int16_t b, std::int16_t s, float x, float y) {
    Anotar(Golpe("MouseUp", b, s, x, y));
}
void ControlDePrueba::KeyDown(std::int16_t& codigo, std::int16_t) {
    Anotar("KeyDown " + std::to_string(codigo));
}
void ControlDePrueba::KeyPress(std::int16_t& caracter) {
    Anotar("KeyPress " + std::to_string(caracter));
}
void ControlDePrueba::KeyUp(std::int16_t& codigo, std::int16_t) {
    Anotar("KeyUp " + std::to_string(codigo));
}

void OyenteDePrueba::MouseDown(std::int16_t b, std::int16_t s, float x, float y) {
    control_.Anotar(Golpe((nombre_ + ".MouseDown").c_str(), b, s, x, y));
}
void OyenteDePrueba::MouseMove(std::int16_t b, std::int16_t s, float x, float y) {
    control_.Anotar(Golpe((nombre_ + ".MouseMove").c_str(), b, s, x, y));
}
void OyenteDePrueba::MouseUp(std::int16_t b, std::int16_t s, float x, float y) {
    control_.Anotar(Golpe((nombre_ + ".MouseUp").c_str(), b, s, x, y));
}

namespace {

LRESULT CALLBACK ProcedimientoMarco(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) {
    if (mensaje == WM_ERASEBKGND) {
        RECT cliente;
        ::GetClientRect(ventana, &cliente);
        HBRUSH pincel =
            ::CreateSolidBrush(static_cast<COLORREF>(::GetWindowLongPtrW(ventana, GWLP_USERDATA)));
        ::FillRect(reinterpret_cast<HDC>(w), &cliente, pincel);
        ::DeleteObject(pincel);
        return 1;
    }
    return ::DefWindowProcW(ventana, mensaje, w, l);
}

} // namespace

Marco::Marco(COLORREF color) {
    WNDCLASSW clase{};
    clase.lpfnWndProc = ProcedimientoMarco;
    clase.hInstance = ::GetModuleHandleW(nullptr);
    clase.lpszClassName = L"MarcoDePrueba";
    ::RegisterClassW(&clase); // again is no harm
    ventana_ = ::CreateWindowExW(0, clase.lpszClassName, L"", WS_POPUP, 100, 100, 400, 300, nullptr,
                                 nullptr, clase.hInstance, nullptr);
    ::SetWindowLongPtrW(ventana_, GWLP_USERDATA, static_cast<LONG_PTR>(color));
    ::ShowWindow(ventana_, SW_SHOW);
}

Marco::~Marco() {
    ::DestroyWindow(ventana_);
}

Foto::Foto(int ancho, int alto, COLORREF fondo) : ancho_(ancho), alto_(alto) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, ancho, -alto, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    dc_ = ::CreateCompatibleDC(nullptr);
    mapa_ = ::CreateDIBSection(dc_, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&pixeles_),
                               nullptr, 0);
    original_ = ::SelectObject(dc_, mapa_);
    const RECT todo{0, 0, ancho, alto};
    HBRUSH pincel = ::CreateSolidBrush(fondo);
    ::FillRect(dc_, &todo, pincel);
    ::DeleteObject(pincel);
}

Foto::~Foto() {
    ::SelectObject(dc_, original_);
    ::DeleteObject(mapa_);
    ::DeleteDC(dc_);
}

std::uint32_t Foto::operator()(int x, int y) const {
    ::GdiFlush();
    return pixeles_[static_cast<std::size_t>(y) * ancho_ + x] & 0xFFFFFF;
}

int Foto::Cuantos(std::uint32_t color, RECT donde) const {
    int cuantos = 0;
    for (int y = donde.top; y < donde.bottom; ++y)
        for (int x = donde.left; x < donde.right; ++x)
            cuantos += (*this)(x, y) == color;
    return cuantos;
}

void Foto::Guardar(const wchar_t* fichero) const {
    ULONG_PTR sesion;
    Gdiplus::GdiplusStartupInput entrada;
    Gdiplus::GdiplusStartup(&sesion, &entrada, nullptr);
    {
        ::GdiFlush();
        Gdiplus::Bitmap mapa(ancho_, alto_, ancho_ * 4, PixelFormat32bppRGB,
                             reinterpret_cast<BYTE*>(pixeles_));
        const CLSID png = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0, 0, 0xf8, 0x1e, 0xf3, 0x2e}};
        mapa.Save(fichero, &png, nullptr);
    }
    Gdiplus::GdiplusShutdown(sesion);
}

void Bombear(DWORD milisegundos) {
    const DWORD inicio = ::GetTickCount();
    for (DWORD pasado = 0; pasado < milisegundos; pasado = ::GetTickCount() - inicio) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, milisegundos - pasado, QS_ALLINPUT);
        MSG mensaje;
        while (::PeekMessageW(&mensaje, nullptr, 0, 0, PM_REMOVE)) {
            ::TranslateMessage(&mensaje);
            ::DispatchMessageW(&mensaje);
        }
    }
}

int ObjetosGdi() {
    int objetos = 0;
    for (UINT_PTR manija = 0; manija < 0x10000; ++manija)
        objetos += ::GetObjectType(reinterpret_cast<HGDIOBJ>(manija)) != 0;
    return objetos;
}

Banco::Banco(int ancho, int alto) : entorno(std::make_unique<EntornoWindows>(sitio)) {
    entorno->Asociar(&control);
    entorno->PonTamano({ancho, alto}, false);
}

Banco::~Banco() {
    if (entorno)
        entorno->Asociar(nullptr);
}

HWND Banco::Activar() {
    const SIZE tamano = entorno->Tamano();
    const HWND ventana =
        entorno->CrearVentana(marco.ventana(), {10, 20, 10 + tamano.cx, 20 + tamano.cy});
    Bombear(20);
    Olvidar();
    return ventana;
}

Foto& Banco::Fotografiar() {
    const SIZE tamano = entorno->Tamano();
    foto = std::make_unique<Foto>(tamano.cx, tamano.cy);
    entorno->Dibujar(foto->dc(), {0, 0, tamano.cx, tamano.cy});
    return *foto;
}

LPARAM Punto(int x, int y) {
    return MAKELPARAM(x, y);
}

} // namespace pincela::windows::pruebas
