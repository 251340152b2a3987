#include "anfitrion/marco_propiedades.h"

#include "anfitrion/unidades.h"

#include <commctrl.h>

#include <algorithm>

namespace anfitrion {

static constexpr wchar_t ClaseMarco[] = L"AnfitrionMarcoPropiedades";
static constexpr int IdAplicar = 100;

/// Pixels of a length that is told for 96 dots per inch.
static int Escalado(int pixeles) {
    const HDC pantalla = GetDC(nullptr);
    const int ppp = GetDeviceCaps(pantalla, LOGPIXELSX);
    ReleaseDC(nullptr, pantalla);
    return MulDiv(pixeles, ppp, 96);
}

/// What a page may ask of its frame.
class SitioPagina : public ObjetoCom<IPropertyPageSite> {
  public:
    explicit SitioPagina(MarcoPropiedades& marco) : marco_(&marco) {}
    void Desconectar() { marco_ = nullptr; }

    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD estado) override {
        if (!marco_)
            return E_UNEXPECTED;
        sucia_ = estado & PROPPAGESTATUS_DIRTY;
        marco_->EstadoCambiado();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* idioma) override {
        if (!idioma)
            return E_POINTER;
        *idioma = GetUserDefaultLCID();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown** contenedor) override {
        if (contenedor)
            *contenedor = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override { return S_FALSE; }

    bool sucia_ = false;

  private:
    MarcoPropiedades* marco_;
};

std::vector<CLSID> PaginasDe(IUnknown* objeto) {
    const auto quien = Puntero<IUnknown>(objeto).Como<ISpecifyPropertyPages>();
    CAUUID lista{};
    if (!quien || FAILED(quien->GetPages(&lista)))
        return {};
    std::vector<CLSID> clases(lista.pElems, lista.pElems + lista.cElems);
    CoTaskMemFree(lista.pElems);
    return clases;
}

MarcoPropiedades::MarcoPropiedades(HWND padre, const std::wstring& titulo,
                                   const Componente& componente, const std::vector<CLSID>& clases,
                                   const std::vector<Puntero<IUnknown>>& objetos)
    : padre_(padre) {
    CargarPaginas(componente, clases, objetos);
    if (paginas_.empty())
        throw FalloCom(E_FAIL, "ninguna pagina de propiedades");
    CrearVentana(padre, titulo);
    Mostrar(0);
    EstadoCambiado();
}

MarcoPropiedades::~MarcoPropiedades() {
    for (Pagina& p : paginas_) {
        if (p.activa)
            p.pagina->Deactivate();
        p.pagina->SetObjects(0, nullptr);
        p.pagina->SetPageSite(nullptr);
        p.sitio->Desconectar();
    }
    paginas_.clear();
    if (ventana_) {
        SetWindowLongPtrW(ventana_, GWLP_USERDATA, 0);
        DestroyWindow(ventana_);
    }
}

void MarcoPropiedades::CargarPaginas(const Componente& componente, const std::vector<CLSID>& clases,
                                     const std::vector<Puntero<IUnknown>>& objetos) {
    std::vector<IUnknown*> crudos;
    for (const auto& objeto : objetos)
        crudos.push_back(objeto.get());
    for (const CLSID& clase : clases) {
        Pagina p;
        try {
            p.pagina = componente.Crear(clase).Como<IPropertyPage>();
        } catch (const FalloCom&) {
            // The platform's own pages live elsewhere than the component.
            try {
                p.pagina = Componente::DeRegistro().Crear(clase).Como<IPropertyPage>();
            } catch (const FalloCom&) {
                continue;
            }
        }
        p.sitio = Hacer<SitioPagina>(*this);
        PROPPAGEINFO info{};
        info.cb = sizeof info;
        if (!p.pagina || FAILED(p.pagina->SetPageSite(p.sitio.get())))
            continue;
        if (FAILED(p.pagina->SetObjects(static_cast<ULONG>(crudos.size()), crudos.data())) ||
            FAILED(p.pagina->GetPageInfo(&info))) {
            p.pagina->SetPageSite(nullptr);
            continue;
        }
        p.titulo = info.pszTitle ? info.pszTitle : L"";
        p.medida = info.size;
        CoTaskMemFree(info.pszTitle);
        CoTaskMemFree(info.pszDocString);
        CoTaskMemFree(info.pszHelpFile);
        paginas_.push_back(std::move(p));
    }
}

HWND MarcoPropiedades::CrearBoton(const wchar_t* texto, int id, int x, int y, bool normal) {
    const HWND boton = CreateWindowW(
        L"BUTTON", texto, WS_CHILD | WS_VISIBLE | WS_TABSTOP | (normal ? BS_DEFPUSHBUTTON : 0u), x,
        y, Escalado(75), Escalado(23), ventana_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
        GetModuleHandleW(nullptr), nullptr);
    SendMessageW(boton, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 FALSE);
    return boton;
}

void MarcoPropiedades::CrearVentana(HWND padre, const std::wstring& titulo) {
    WNDCLASSW clase{};
    clase.lpfnWndProc = Procesar;
    clase.hInstance = GetModuleHandleW(nullptr);
    clase.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    clase.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    clase.lpszClassName = ClaseMarco;
    RegisterClassW(&clase); // fails harmlessly the second time
    INITCOMMONCONTROLSEX controles{sizeof controles, ICC_TAB_CLASSES};
    InitCommonControlsEx(&controles);

    constexpr DWORD estilo = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
    constexpr DWORD estiloEx = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;
    ventana_ = CreateWindowExW(estiloEx, ClaseMarco, titulo.c_str(), estilo, 0, 0, 100, 100, padre,
                               nullptr, clase.hInstance, nullptr);
    if (!ventana_)
        throw FalloCom(HRESULT_FROM_WIN32(GetLastError()), "marco de propiedades");
    SetWindowLongPtrW(ventana_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    pestanas_ =
        CreateWindowW(WC_TABCONTROLW, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPSIBLINGS, 0,
                      0, 10, 10, ventana_, nullptr, clase.hInstance, nullptr);
    SendMessageW(pestanas_, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 FALSE);
    SIZE medida{240, 120};
    for (std::size_t i = 0; i < paginas_.size(); ++i) {
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = paginas_[i].titulo.data();
        SendMessageW(pestanas_, TCM_INSERTITEMW, i, reinterpret_cast<LPARAM>(&item));
        medida.cx = std::max(medida.cx, paginas_[i].medida.cx);
        medida.cy = std::max(medida.cy, paginas_[i].medida.cy);
    }
    const int Borde = Escalado(7), ancho = Escalado(75), alto = Escalado(23);
    RECT ficha{0, 0, medida.cx, medida.cy};
    SendMessageW(pestanas_, TCM_ADJUSTRECT, TRUE, reinterpret_cast<LPARAM>(&ficha));
    OffsetRect(&ficha, Borde - ficha.left, Borde - ficha.top);
    SetWindowPos(pestanas_, HWND_BOTTOM, ficha.left, ficha.top, Ancho(ficha), Alto(ficha),
                 SWP_NOACTIVATE);
    interior_ = ficha;
    SendMessageW(pestanas_, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&interior_));

    const int y = ficha.bottom + Borde;
    CrearBoton(L"Aceptar", IDOK, ficha.right - ancho * 3 - Borde * 2, y, true);
    CrearBoton(L"Cancelar", IDCANCEL, ficha.right - ancho * 2 - Borde, y, false);
    aplicar_ = CrearBoton(L"A&plicar", IdAplicar, ficha.right - ancho, y, false);
    RECT r{0, 0, ficha.right + Borde, y + alto + Borde};
    AdjustWindowRectEx(&r, estilo, FALSE, estiloEx);
    RECT donde{};
    if (padre)
        GetWindowRect(padre, &donde);
    SetWindowPos(ventana_, nullptr, donde.left + 40, donde.top + 40, Ancho(r), Alto(r),
                 SWP_NOZORDER | SWP_SHOWWINDOW);
}

void MarcoPropiedades::Mostrar(std::size_t pagina) {
    Pagina& vieja = paginas_[actual_];
    if (vieja.activa && pagina != actual_)
        vieja.pagina->Show(SW_HIDE);
    actual_ = pagina;
    Pagina& p = paginas_[actual_];
    if (!p.activa) {
        p.activa = SUCCEEDED(p.pagina->Activate(ventana_, &interior_, TRUE));
        p.pagina->Move(&interior_);
    }
    p.pagina->Show(SW_SHOW);
    SendMessageW(pestanas_, TCM_SETCURSEL, actual_, 0);
}

bool MarcoPropiedades::HayCambios() const {
    return std::any_of(paginas_.begin(), paginas_.end(), [](const Pagina& p) {
        return p.sitio->sucia_ || p.pagina->IsPageDirty() == S_OK;
    });
}

void MarcoPropiedades::EstadoCambiado() {
    if (aplicar_)
        EnableWindow(aplicar_, HayCambios());
}

bool MarcoPropiedades::Aplicar() {
    for (std::size_t i = 0; i < paginas_.size(); ++i) {
        Pagina& p = paginas_[i];
        if (!p.sitio->sucia_ && p.pagina->IsPageDirty() != S_OK)
            continue;
        if (FAILED(p.pagina->Apply())) {
            Mostrar(i);
            return false;
        }
        p.sitio->sucia_ = false;
    }
    EstadoCambiado();
    return true;
}

void MarcoPropiedades::Aceptar() {
    if (Aplicar())
        cerrado_ = true;
}

LRESULT CALLBACK MarcoPropiedades::Procesar(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) {
    auto* marco = reinterpret_cast<MarcoPropiedades*>(GetWindowLongPtrW(ventana, GWLP_USERDATA));
    return marco ? marco->Tratar(mensaje, w, l) : DefWindowProcW(ventana, mensaje, w, l);
}

LRESULT MarcoPropiedades::Tratar(UINT mensaje, WPARAM w, LPARAM l) {
    switch (mensaje) {
    case WM_COMMAND:
        if (LOWORD(w) == IDOK)
            Aceptar();
        else if (LOWORD(w) == IDCANCEL)
            Cancelar();
        else if (LOWORD(w) == IdAplicar)
            Aplicar();
        return 0;
    case WM_NOTIFY:
        if (const auto* aviso = reinterpret_cast<const NMHDR*>(l);
            aviso->hwndFrom == pestanas_ && aviso->code == TCN_SELCHANGE)
            Mostrar(static_cast<std::size_t>(SendMessageW(pestanas_, TCM_GETCURSEL, 0, 0)));
        return 0;
    case WM_CLOSE:
        Cancelar();
        return 0;
    default:
        return DefWindowProcW(ventana_, mensaje, w, l);
    }
}

bool MarcoPropiedades::Pretraducir(MSG& mensaje) {
    if (mensaje.hwnd != ventana_ && !IsChild(ventana_, mensaje.hwnd))
        return false;
    if (mensaje.message == WM_KEYDOWN && mensaje.wParam == VK_TAB && GetKeyState(VK_CONTROL) < 0) {
        const std::size_t n = paginas_.size();
        Mostrar((actual_ + (GetKeyState(VK_SHIFT) < 0 ? n - 1 : 1)) % n);
        return true;
    }
    if (mensaje.message >= WM_KEYFIRST && mensaje.message <= WM_KEYLAST &&
        paginas_[actual_].pagina->TranslateAccelerator(&mensaje) == S_OK)
        return true;
    return IsDialogMessageW(ventana_, &mensaje);
}

void MarcoPropiedades::Ejecutar() {
    const bool estaba = padre_ && !EnableWindow(padre_, FALSE);
    MSG mensaje;
    while (!cerrado_) {
        const BOOL hay = GetMessageW(&mensaje, nullptr, 0, 0);
        if (hay <= 0) {
            if (hay == 0)
                PostQuitMessage(static_cast<int>(mensaje.wParam));
            break;
        }
        if (Pretraducir(mensaje))
            continue;
        TranslateMessage(&mensaje);
        DispatchMessageW(&mensaje);
    }
    // Enabled before the frame goes, so that the activation returns to it.
    if (estaba)
        EnableWindow(padre_, TRUE);
}

} // namespace anfitrion
