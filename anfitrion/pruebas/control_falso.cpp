#include "anfitrion/pruebas/control_falso.h"

#include <algorithm>

namespace falso {

using namespace anfitrion;

static int vivos = 0;

int ControlFalso::Vivos() {
    return vivos;
}

static LRESULT CALLBACK Procesar(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) {
    auto* c = reinterpret_cast<ControlFalso*>(GetWindowLongPtrW(ventana, GWLP_USERDATA));
    if (c && mensaje == WM_KEYDOWN)
        ++c->botones;
    return DefWindowProcW(ventana, mensaje, w, l);
}

ControlFalso::ControlFalso(Caracter caracter_) : caracter(caracter_) {
    ++vivos;
    if (caracter.tecla)
        PonerTecla(caracter.tecla);
}

void ControlFalso::PonerTecla(char letra) {
    if (aceleradores_)
        DestroyAcceleratorTable(aceleradores_);
    ACCEL tabla{FALT, static_cast<WORD>(letra), 1};
    aceleradores_ = CreateAcceleratorTableW(&tabla, 1);
}

ControlFalso::~ControlFalso() {
    if (ventana)
        DestroyWindow(ventana);
    if (aceleradores_)
        DestroyAcceleratorTable(aceleradores_);
    --vivos;
}

std::size_t ControlFalso::Veces(const std::string& llamada) const {
    return static_cast<std::size_t>(std::count(llamadas.begin(), llamadas.end(), llamada));
}

void* ControlFalso::Heredada(REFIID iid) {
    if (iid == IID_IOleWindow)
        return static_cast<IOleInPlaceObject*>(this);
    if (iid == IID_IProvideClassInfo)
        return static_cast<IProvideClassInfo2*>(this);
    return nullptr;
}

// IOleObject

HRESULT ControlFalso::SetClientSite(IOleClientSite* s) {
    llamadas.push_back(s ? "SetClientSite" : "SetClientSite nada");
    sitio = Puntero<IOleClientSite>(s);
    return S_OK;
}

HRESULT ControlFalso::GetClientSite(IOleClientSite** s) {
    *s = Puntero<IOleClientSite>(sitio).Separar();
    return S_OK;
}

HRESULT ControlFalso::SetHostNames(LPCOLESTR, LPCOLESTR) {
    llamadas.push_back("SetHostNames");
    return S_OK;
}

HRESULT ControlFalso::Close(DWORD) {
    llamadas.push_back("Close");
    return S_OK;
}

Puntero<IOleInPlaceSite> ControlFalso::SitioVentana() const {
    return sitio.Como<IOleInPlaceSite>();
}

void ControlFalso::ActivarEnSitio(HWND padre, const RECT& r) {
    if (ventana)
        return;
    const auto donde = SitioVentana();
    if (donde->CanInPlaceActivate() != S_OK)
        return;
    donde->OnInPlaceActivate();
    WNDCLASSW clase{};
    clase.lpfnWndProc = Procesar;
    clase.hInstance = GetModuleHandleW(nullptr);
    clase.lpszClassName = L"ControlFalso";
    RegisterClassW(&clase);
    ventana =
        CreateWindowW(L"ControlFalso", L"", WS_CHILD | WS_VISIBLE, r.left, r.top, r.right - r.left,
                      r.bottom - r.top, padre, nullptr, clase.hInstance, nullptr);
    SetWindowLongPtrW(ventana, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

HRESULT ControlFalso::ActivarUI() {
    if (caracter.rechazaFoco)
        return OLEOBJ_S_CANNOT_DOVERB_NOW;
    if (ui_)
        return S_OK;
    ui_ = true;
    const auto donde = SitioVentana();
    donde->OnUIActivate();
    SetFocus(ventana);
    Puntero<IOleInPlaceFrame> marco;
    Puntero<IOleInPlaceUIWindow> documento;
    RECT a, b;
    OLEINPLACEFRAMEINFO info{};
    info.cb = sizeof info;
    donde->GetWindowContext(marco.Recibir(), documento.Recibir(), &a, &b, &info);
    if (marco && caracter.marco)
        marco->SetActiveObject(this, L"falso");
    return S_OK;
}

HRESULT ControlFalso::DoVerb(LONG verbo, LPMSG, IOleClientSite*, LONG, HWND padre, LPCRECT r) {
    llamadas.push_back("DoVerb " + std::to_string(verbo));
    if (verbo == OLEIVERB_HIDE || verbo == OLEIVERB_SHOW) {
        ShowWindow(ventana, verbo == OLEIVERB_SHOW ? SW_SHOW : SW_HIDE);
        return S_OK;
    }
    ActivarEnSitio(padre, *r);
    return verbo == OLEIVERB_UIACTIVATE ? ActivarUI() : S_OK;
}

HRESULT ControlFalso::SetExtent(DWORD, SIZEL* medida) {
    llamadas.push_back("SetExtent");
    medida_ = *medida;
    return S_OK;
}

HRESULT ControlFalso::GetExtent(DWORD, SIZEL* medida) {
    *medida = medida_;
    return S_OK;
}

HRESULT ControlFalso::Advise(IAdviseSink* s, DWORD* cookie) {
    *cookie = siguiente_++;
    vistas_[*cookie] = Puntero<IAdviseSink>(s);
    return S_OK;
}

HRESULT ControlFalso::Unadvise(DWORD cookie) {
    llamadas.push_back("Unadvise");
    if (vistas_.erase(cookie))
        return S_OK;
    const auto hallado = conectados_.find(cookie);
    if (hallado == conectados_.end())
        return CONNECT_E_NOCONNECTION;
    if (sumidero && hallado->second.Como<IUnknown>() == sumidero.Como<IUnknown>())
        sumidero.Soltar();
    conectados_.erase(hallado);
    return S_OK;
}

HRESULT ControlFalso::GetMiscStatus(DWORD, DWORD* marcas) {
    *marcas = caracter.marcas;
    return S_OK;
}

// In place

HRESULT ControlFalso::GetWindow(HWND* v) {
    *v = ventana;
    return ventana ? S_OK : E_FAIL;
}

HRESULT ControlFalso::InPlaceDeactivate() {
    llamadas.push_back("InPlaceDeactivate");
    UIDeactivate();
    if (const HWND vieja = std::exchange(ventana, nullptr)) {
        DestroyWindow(vieja);
        SitioVentana()->OnInPlaceDeactivate();
    }
    return S_OK;
}

HRESULT ControlFalso::UIDeactivate() {
    llamadas.push_back("UIDeactivate");
    if (!std::exchange(ui_, false))
        return S_OK;
    const auto donde = SitioVentana();
    Puntero<IOleInPlaceFrame> marco;
    Puntero<IOleInPlaceUIWindow> documento;
    RECT a, b;
    OLEINPLACEFRAMEINFO info{};
    info.cb = sizeof info;
    donde->GetWindowContext(marco.Recibir(), documento.Recibir(), &a, &b, &info);
    if (marco && caracter.marco)
        marco->SetActiveObject(nullptr, nullptr);
    donde->OnUIDeactivate(FALSE);
    return S_OK;
}

HRESULT ControlFalso::SetObjectRects(LPCRECT r, LPCRECT) {
    llamadas.push_back("SetObjectRects");
    MoveWindow(ventana, r->left, r->top, r->right - r->left, r->bottom - r->top, TRUE);
    return S_OK;
}

HRESULT ControlFalso::TranslateAccelerator(LPMSG m) {
    if (m->message == WM_KEYDOWN && caracter.teclaPropia && m->wParam == caracter.teclaPropia) {
        llamadas.push_back("tecla propia");
        return S_OK;
    }
    if (caracter.preguntaSitio)
        if (const auto donde = sitio.Como<IOleControlSite>())
            return donde->TranslateAccelerator(m, GetKeyState(VK_SHIFT) < 0 ? 1 : 0);
    return S_FALSE;
}

HRESULT ControlFalso::OnFrameWindowActivate(BOOL activa) {
    llamadas.push_back(activa ? "OnFrameWindowActivate si" : "OnFrameWindowActivate no");
    return S_OK;
}

// IOleControl

HRESULT ControlFalso::GetControlInfo(CONTROLINFO* info) {
    info->hAccel = aceleradores_;
    info->cAccel = aceleradores_ ? 1 : 0;
    info->dwFlags = caracter.marcasTeclado;
    return S_OK;
}

HRESULT ControlFalso::OnMnemonic(MSG* m) {
    llamadas.push_back("OnMnemonic");
    mnemonicos.push_back(*m);
    return S_OK;
}

HRESULT ControlFalso::OnAmbientPropertyChange(DISPID numero) {
    ambientesCambiados.push_back(numero);
    return S_OK;
}

// Persistence

HRESULT ControlFalso::GetClassID(CLSID* c) {
    *c = CLSID_NULL;
    return S_OK;
}

HRESULT ControlFalso::Load(IStream* flujo) {
    llamadas.push_back("Load flujo");
    wchar_t letras[64];
    ULONG leidos = 0;
    const HRESULT estado = flujo->Read(letras, sizeof letras, &leidos);
    titulo.assign(letras, leidos / sizeof(wchar_t));
    return FAILED(estado) ? estado : S_OK;
}

HRESULT ControlFalso::Save(IStream* flujo, BOOL) {
    return flujo->Write(titulo.data(), static_cast<ULONG>(titulo.size() * sizeof(wchar_t)),
                        nullptr);
}

HRESULT ControlFalso::InitNew() {
    llamadas.push_back("InitNew");
    return S_OK;
}

HRESULT ControlFalso::Load(IPropertyBag* bolsa, IErrorLog* errores) {
    llamadas.push_back("Load bolsa");
    Variante v(L"");
    if (SUCCEEDED(bolsa->Read(L"Titulo", &v, errores)))
        titulo = Texto(v);
    return S_OK;
}

HRESULT ControlFalso::Save(IPropertyBag* bolsa, BOOL, BOOL) {
    Variante v(titulo);
    return bolsa->Write(L"Titulo", &v);
}

// IDispatch

void ControlFalso::PonerTitulo(std::wstring texto) {
    titulo = std::move(texto);
    for (const auto& [cookie, conectado] : std::map(conectados_))
        if (const auto avisos = conectado.Como<IPropertyNotifySink>())
            avisos->OnChanged(1);
}

HRESULT ControlFalso::GetTypeInfoCount(UINT* n) {
    *n = 0;
    return S_OK;
}

HRESULT ControlFalso::GetIDsOfNames(REFIID, LPOLESTR* nombres, UINT, LCID, DISPID* ids) {
    *ids = lstrcmpiW(*nombres, L"Titulo") == 0   ? 1
           : lstrcmpiW(*nombres, L"Fallar") == 0 ? 2
                                                 : DISPID_UNKNOWN;
    return *ids == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT ControlFalso::Invoke(DISPID id, REFIID, LCID, WORD modo, DISPPARAMS* p, VARIANT* v,
                             EXCEPINFO* e, UINT*) {
    if (id == 1 && (modo & DISPATCH_PROPERTYPUT)) {
        PonerTitulo(Texto(p->rgvarg[0]));
        return S_OK;
    }
    if (id == 1 && v) {
        Variante valor(titulo);
        std::swap(*v, static_cast<VARIANT&>(valor));
        return S_OK;
    }
    if (id != 2 || !e)
        return DISP_E_MEMBERNOTFOUND;
    *e = {};
    e->scode = static_cast<SCODE>(0x800A017C);
    e->bstrDescription = SysAllocString(L"valor de propiedad no valido");
    e->bstrSource = SysAllocString(L"Falso");
    return DISP_E_EXCEPTION;
}

// Connections

HRESULT ControlFalso::FindConnectionPoint(REFIID iid, IConnectionPoint** p) {
    *p = nullptr;
    if (iid != IID_EventosFalsos && iid != IID_IPropertyNotifySink)
        return CONNECT_E_NOCONNECTION;
    *p = Puntero<IConnectionPoint>(this).Separar();
    return S_OK;
}

HRESULT ControlFalso::GetConnectionInterface(IID* iid) {
    *iid = IID_EventosFalsos;
    return S_OK;
}

HRESULT ControlFalso::GetConnectionPointContainer(IConnectionPointContainer** c) {
    *c = Puntero<IConnectionPointContainer>(this).Separar();
    return S_OK;
}

HRESULT ControlFalso::Advise(IUnknown* s, DWORD* cookie) {
    *cookie = siguiente_++;
    conectados_[*cookie] = Puntero<IUnknown>(s);
    Puntero<IDispatch> eventos;
    if (SUCCEEDED(s->QueryInterface(IID_EventosFalsos, eventos.RecibirVoid())))
        sumidero = eventos;
    return S_OK;
}

HRESULT ControlFalso::GetClassInfo(ITypeInfo** t) {
    *t = nullptr;
    return E_NOTIMPL;
}

HRESULT ControlFalso::GetGUID(DWORD cual, GUID* g) {
    *g = IID_EventosFalsos;
    return cual == GUIDKIND_DEFAULT_SOURCE_DISP_IID ? S_OK : E_INVALIDARG;
}

HRESULT ControlFalso::Disparar(short& valor) {
    const Puntero<IDispatch> destino = sumidero;
    if (!destino)
        return S_FALSE;
    Variante argumentos[2] = {Variante::Referencia(valor), Variante(7L)};
    DISPPARAMS p{argumentos, nullptr, 2, 0};
    return destino->Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &p, nullptr, nullptr,
                           nullptr);
}

} // namespace falso
