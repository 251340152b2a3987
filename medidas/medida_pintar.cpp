// One full repaint of a button against the same drawing written out by hand.
//
// Both sides draw their image anew and then paint their window at once: into the shared back buffer
// and from there to the window. Both windows stand on the same form, with the same shape.
#include "medidas/boton.h"
#include "medidas/dual.h"
#include "medidas/hoja.h"
#include "medidas/medida.h"

#include "anfitrion/captura.h"

namespace medidas {

namespace {

using namespace anfitrion;

constexpr wchar_t ClaseAMano[] = L"MedidasBotonAMano";
constexpr COLORREF Claro = 0xC0C0C0, Oscuro = 0x909090;
constexpr UINT Formato = DT_LEFT | DT_TOP | DT_EXPANDTABS | DT_NOCLIP;

/// The button as somebody would write it for this one look.
class BotonAMano {
  public:
    BotonAMano(HWND forma, int x, int y, HFONT fuente)
        : imagen_(AnchoDeBoton, AltoDeBoton), fuente_(fuente) {
        WNDCLASSW clase{};
        clase.style = CS_DBLCLKS;
        clase.lpfnWndProc = Procesar;
        clase.hInstance = GetModuleHandleW(nullptr);
        clase.lpszClassName = ClaseAMano;
        RegisterClassW(&clase);
        ventana_ = CreateWindowExW(
            0, ClaseAMano, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, x, y,
            AnchoDeBoton, AltoDeBoton, forma, nullptr, clase.hInstance, this);
        SetWindowRgn(ventana_, CreateRoundRectRgn(0, 0, AnchoDeBoton + 1, AltoDeBoton + 1, 0, 0),
                     TRUE);
        const HDC dc = GetDC(ventana_);
        fondo_ = CreateCompatibleDC(dc);
        mapaDeFondo_ = CreateCompatibleBitmap(dc, AnchoDeBoton, AltoDeBoton);
        ReleaseDC(ventana_, dc);
        anterior_ = SelectObject(fondo_, mapaDeFondo_);
        UbicarTitulo();
    }
    BotonAMano(const BotonAMano&) = delete;
    BotonAMano& operator=(const BotonAMano&) = delete;
    ~BotonAMano() {
        DestroyWindow(ventana_);
        SelectObject(fondo_, anterior_);
        DeleteObject(mapaDeFondo_);
        DeleteDC(fondo_);
    }

    HWND Ventana() const { return ventana_; }

    void Repintar() {
        const HDC dc = imagen_.dc();
        Rayar(dc, {0, 0, AnchoDeBoton, AltoDeBoton}, GetSysColor(COLOR_BTNFACE));
        TRIVERTEX vertices[] = {Vertice(0, 0, PrimerColor),
                                Vertice(AnchoDeBoton, AltoDeBoton, UltimoColor)};
        GRADIENT_RECT franja{0, 1};
        GradientFill(dc, vertices, 2, &franja, 1, GRADIENT_FILL_RECT_H);
        constexpr int x = AnchoDeBoton - 2, y = AltoDeBoton - 2;
        Rayar(dc, {1, 1, x + 1, 2}, Claro);
        Rayar(dc, {x, 1, x + 1, y + 1}, Oscuro);
        Rayar(dc, {1, y, x + 1, y + 1}, Oscuro);
        Rayar(dc, {1, 1, 2, y + 1}, Claro);
        InvalidateRect(ventana_, nullptr, FALSE);
        UpdateWindow(ventana_);
    }

  private:
    static TRIVERTEX Vertice(LONG x, LONG y, COLORREF color) {
        return {x,
                y,
                static_cast<COLOR16>(GetRValue(color) << 8),
                static_cast<COLOR16>(GetGValue(color) << 8),
                static_cast<COLOR16>(GetBValue(color) << 8),
                0};
    }

    static void Rayar(HDC dc, const RECT& lugar, COLORREF color) {
        SetDCBrushColor(dc, color);
        FillRect(dc, &lugar, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    }

    void UbicarTitulo() {
        const HGDIOBJ anterior = SelectObject(fondo_, fuente_);
        RECT lugar{};
        DrawTextW(fondo_, TituloDeBoton, -1, &lugar, Formato | DT_CALCRECT);
        SelectObject(fondo_, anterior);
        titulo_ = lugar;
        OffsetRect(&titulo_, (AnchoDeBoton - lugar.right - 2) / 2,
                   (AltoDeBoton - lugar.bottom - 2) / 2);
    }

    void Pintar() {
        PAINTSTRUCT pintura;
        const HDC dc = BeginPaint(ventana_, &pintura);
        BitBlt(fondo_, 0, 0, AnchoDeBoton, AltoDeBoton, imagen_.dc(), 0, 0, SRCCOPY);
        const HGDIOBJ anterior = SelectObject(fondo_, fuente_);
        SetBkMode(fondo_, TRANSPARENT);
        // The caption lies over its two shadow copies.
        for (const COLORREF color : {RGB(0, 0, 0), RGB(255, 255, 255), RGB(0, 0, 0)}) {
            SetTextColor(fondo_, color);
            RECT lugar = titulo_;
            DrawTextW(fondo_, TituloDeBoton, -1, &lugar, Formato);
        }
        SelectObject(fondo_, anterior);
        BitBlt(dc, 0, 0, AnchoDeBoton, AltoDeBoton, fondo_, 0, 0, SRCCOPY);
        EndPaint(ventana_, &pintura);
    }

    static LRESULT CALLBACK Procesar(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) {
        if (mensaje == WM_NCCREATE)
            SetWindowLongPtrW(ventana, GWLP_USERDATA,
                              reinterpret_cast<LONG_PTR>(
                                  reinterpret_cast<const CREATESTRUCTW*>(l)->lpCreateParams));
        auto* yo = reinterpret_cast<BotonAMano*>(GetWindowLongPtrW(ventana, GWLP_USERDATA));
        if (mensaje == WM_ERASEBKGND)
            return 1;
        if (mensaje == WM_PAINT) {
            yo->Pintar();
            return 0;
        }
        return DefWindowProcW(ventana, mensaje, w, l);
    }

    Hoja imagen_;
    HFONT fuente_;
    RECT titulo_{};
    HWND ventana_ = nullptr;
    HDC fondo_ = nullptr;
    HBITMAP mapaDeFondo_ = nullptr;
    HGDIOBJ anterior_ = nullptr;
};

HFONT FuenteDe(IDispatch* boton) {
    Puntero<IFontDisp> fuente;
    Funcion<IFontDisp**>(boton, L"Font", INVOKE_PROPERTYGET)(boton, fuente.Recibir());
    HFONT manija = nullptr;
    Comprobar(fuente.Como<IFont>()->get_hFont(&manija), "get_hFont");
    LOGFONTW descripcion{};
    GetObjectW(manija, sizeof descripcion, &descripcion);
    return CreateFontIndirectW(&descripcion);
}

} // namespace

bool MedirPintar() {
    const auto componente = AbrirComponente();
    Formulario forma(OpcionesFormulario{});
    const auto control = AgregarBoton(forma, componente, 20, 20);
    IDispatch* boton = control->Despacho();
    // Assigning this one always draws the image anew; the method then paints the window.
    const Funcion<VARIANT_BOOL> ponerExpandir(boton, L"Expandir", INVOKE_PROPERTYPUT);
    const Funcion<> actualizar(boton, L"Actualizar", INVOKE_FUNC);
    const HFONT fuente = FuenteDe(boton);
    bool bien = false;
    {
        BotonAMano aMano(forma.Ventana(), 20, 80, fuente);
        forma.BombearMensajes();
        const double razon = Razon({[&] {
                                       ponerExpandir(boton, VARIANT_TRUE);
                                       actualizar(boton);
                                   }},
                                   {[&] { aMano.Repintar(); }}, 10);
        bien = Informar("pintar_boton", razon, 1.15);
        if (Captura::DeVentana(control->Ventana()) != Captura::DeVentana(aMano.Ventana()))
            throw FalloCom(E_FAIL, "the button drawn by hand looks different");
    }
    DeleteObject(fuente);
    return bien;
}

} // namespace medidas
