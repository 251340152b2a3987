#include "pruebas/componente/vivo/ajeno.h"

namespace vivo {

using namespace anfitrion;

namespace {

int CALLBACK ContarPropiedad(HWND, LPWSTR, HANDLE, ULONG_PTR cuenta) {
    ++*reinterpret_cast<int*>(cuenta);
    return TRUE;
}

WNDPROC ProcedimientoDe(HWND ventana) {
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(ventana, GWLP_WNDPROC));
}

} // namespace

VentanaAjena::VentanaAjena(DWORD estilo) {
    WNDCLASSW clase{};
    clase.lpfnWndProc = Procedimiento<0>;
    clase.hInstance = GetModuleHandleW(nullptr);
    clase.lpszClassName = L"PruebaVentanaAjena";
    RegisterClassW(&clase);
    ventana = CreateWindowExW(0, clase.lpszClassName, L"", WS_POPUP | WS_VISIBLE | estilo, 0, 0,
                              400, 300, nullptr, nullptr, clase.hInstance, nullptr);
    SetWindowLongPtrW(ventana, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    Bombear();
}

template <int Cual>
LRESULT CALLBACK VentanaAjena::Procedimiento(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) {
    auto* yo = reinterpret_cast<VentanaAjena*>(GetWindowLongPtrW(ventana, GWLP_USERDATA));
    return yo ? yo->Tratar(Cual, mensaje, w, l) : DefWindowProcW(ventana, mensaje, w, l);
}

LRESULT VentanaAjena::Tratar(int cual, UINT mensaje, WPARAM w, LPARAM l) {
    extraviados += cual != puesto_;
    switch (mensaje) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT: {
        PAINTSTRUCT ps;
        Llenar(BeginPaint(ventana, &ps));
        EndPaint(ventana, &ps);
        ++pinturas;
        return 0;
    }
    case WM_PRINTCLIENT:
        Llenar(reinterpret_cast<HDC>(w));
        return 0;
    default:
        return DefWindowProcW(ventana, mensaje, w, l);
    }
}

void VentanaAjena::Llenar(HDC hdc) const {
    const RECT todo{0, 0, 400, 300};
    SetDCBrushColor(hdc, fondo);
    FillRect(hdc, &todo, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void VentanaAjena::CambiarProcedimiento() {
    puesto_ = 1 - puesto_;
    SetWindowLongPtrW(ventana, GWLP_WNDPROC,
                      reinterpret_cast<LONG_PTR>(puesto_ ? Procedimiento<1> : Procedimiento<0>));
}

bool VentanaAjena::Intacta() const {
    int propiedades = 0;
    EnumPropsExW(ventana, ContarPropiedad, reinterpret_cast<LPARAM>(&propiedades));
    return ProcedimientoDe(ventana) ==
               (puesto_ ? &Procedimiento<1> : &Procedimiento<0>)&&propiedades == 0 &&
           extraviados == 0;
}

bool VentanaAjena::Responde() {
    const int antes = pinturas;
    InvalidateRect(ventana, nullptr, TRUE);
    Bombear();
    return pinturas == antes + 1 && !GetUpdateRect(ventana, nullptr, FALSE);
}

void VentanaAjena::Bombear() {
    MSG mensaje;
    for (int i = 0; i < 500 && PeekMessageW(&mensaje, nullptr, 0, 0, PM_REMOVE); ++i)
        DispatchMessageW(&mensaje);
}

ControlAjeno::ControlAjeno(const wchar_t* clase, HWND laVentana, const RECT& lugar,
                           const RECT& recorte)
    : padre(laVentana), sitio(new SitioAjeno(laVentana, lugar, recorte)) {
    const auto componente = Componente::DeRegistro();
    objeto = componente.Crear(componente.Clase(clase));
    Comprobar(objeto.Como<IOleObject>()->SetClientSite(sitio.get()), "SetClientSite");
    Comprobar(objeto.Como<IPersistStreamInit>()->InitNew(), "InitNew");
}

ControlAjeno::~ControlAjeno() {
    objeto.Como<IOleObject>()->Close(OLECLOSE_NOSAVE);
    objeto.Como<IOleObject>()->SetClientSite(nullptr);
}

void ControlAjeno::Activar() {
    Comprobar(objeto.Como<IOleObject>()->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, sitio.get(), 0,
                                                padre, &sitio->lugar),
              "DoVerb");
}

HWND ControlAjeno::Ventana() const {
    HWND ventana = nullptr;
    const auto enSitio = objeto.Como<IOleInPlaceObject>();
    return enSitio && SUCCEEDED(enSitio->GetWindow(&ventana)) ? ventana : nullptr;
}

} // namespace vivo
