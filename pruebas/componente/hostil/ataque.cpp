#include "pruebas/componente/hostil/ataque.h"

#include "anfitrion/imagenes.h"

#include <algorithm>
#include <limits>

namespace hostil {

namespace {

constexpr const wchar_t* Controles[] = {L"Pincela.Botonazo", L"Pincela.Area",
                                        L"Pincela.Tbox",     L"Pincela.TBoxML",
                                        L"Pincela.TboxSS",   L"Pincela.TboxSSML"};
struct Hoja {
    const wchar_t *pagina, *control;
};
constexpr Hoja Paginas[] = {{L"{0334ABD4-F062-46B8-92E7-1943461EAC27}", Controles[0]},
                            {L"{CCB0D824-0EE7-4458-8B1B-43639DECC283}", Controles[0]},
                            {L"{15498A10-DFCC-440B-94A4-FC0A5C16D8E4}", Controles[1]}};

constexpr const char* Llamadas[] = {"IOleClientSite::QueryInterface",
                                    "IOleClientSite::SaveObject",
                                    "IOleClientSite::GetContainer",
                                    "IOleClientSite::ShowObject",
                                    "IOleContainer::EnumObjects",
                                    "IEnumUnknown::Next",
                                    "IOleInPlaceFrame::SetActiveObject",
                                    "IOleInPlaceFrame::SetBorderSpace",
                                    "IOleInPlaceUIWindow::SetActiveObject",
                                    "IOleInPlaceUIWindow::SetBorderSpace",
                                    "IOleInPlaceSite::GetWindow",
                                    "IOleInPlaceSite::CanInPlaceActivate",
                                    "IOleInPlaceSite::OnInPlaceActivate",
                                    "IOleInPlaceSite::OnUIActivate",
                                    "IOleInPlaceSite::GetWindowContext",
                                    "IOleInPlaceSite::OnUIDeactivate",
                                    "IOleInPlaceSite::OnInPlaceDeactivate",
                                    "IOleInPlaceSite::OnPosRectChange",
                                    "IOleControlSite::OnControlInfoChanged",
                                    "IOleControlSite::GetExtendedControl",
                                    "IOleControlSite::TransformCoords",
                                    "IOleControlSite::TranslateAccelerator",
                                    "IOleControlSite::OnFocus",
                                    "IOleControlSite::ShowPropertyFrame",
                                    "ISimpleFrameSite::PreMessageFilter",
                                    "ISimpleFrameSite::PostMessageFilter",
                                    "Ambient::GetIDsOfNames",
                                    "Ambient::Invoke",
                                    "Events::Invoke",
                                    "IPropertyNotifySink::OnChanged",
                                    "IPropertyNotifySink::OnRequestEdit",
                                    "IAdviseSink::OnDataChange",
                                    "IAdviseSink::OnViewChange",
                                    "IAdviseSink::OnClose",
                                    "IErrorLog::AddError",
                                    "IPropertyBag::Read",
                                    "IPropertyBag::Write",
                                    "IStream::Read",
                                    "IStream::Write",
                                    "IStorage::CreateStream",
                                    "IStorage::OpenStream",
                                    "IFont::Advise",
                                    "IFont::Unadvise",
                                    "IFont::get_Name",
                                    "IFont::get_Size",
                                    "IFont::get_Bold",
                                    "IFont::get_Charset",
                                    "IFont::Clone",
                                    "IFont::FindConnectionPoint",
                                    "IPicture::get_Handle",
                                    "IPicture::get_Type",
                                    "IPicture::get_Width",
                                    "IPicture::get_Height",
                                    "IPicture::Render",
                                    "IPicture::get_Attributes",
                                    "IPicture::Save",
                                    "IPropertyPageSite::OnStatusChange"};

constexpr HRESULT Estados[] = {E_FAIL,           E_NOTIMPL,       E_OUTOFMEMORY,
                               E_UNEXPECTED,     E_ACCESSDENIED,  E_INVALIDARG,
                               E_POINTER,        E_NOINTERFACE,   RPC_E_DISCONNECTED,
                               STG_E_MEDIUMFULL, E_ABORT,         DISP_E_MEMBERNOTFOUND,
                               DISP_E_EXCEPTION, OLE_E_NOTRUNNING};

thread_local Ataque* actual = nullptr;

std::vector<DISPID> Miembros(IDispatch& objeto) {
    std::vector<DISPID> numeros;
    Puntero<ITypeInfo> tipo;
    TYPEATTR* rasgos = nullptr;
    if (FAILED(objeto.GetTypeInfo(0, 0, tipo.Recibir())) || FAILED(tipo->GetTypeAttr(&rasgos)))
        return numeros;
    for (UINT i = 0; i < rasgos->cFuncs; ++i) {
        FUNCDESC* funcion = nullptr;
        if (FAILED(tipo->GetFuncDesc(i, &funcion)))
            continue;
        numeros.push_back(funcion->memid);
        tipo->ReleaseFuncDesc(funcion);
    }
    tipo->ReleaseTypeAttr(rasgos);
    return numeros;
}

HWND VentanaDe(Azar& azar) {
    return CreateWindowExW(0, L"STATIC", L"", WS_POPUP | (azar.Una(2) ? WS_VISIBLE : 0), 0, 0, 300,
                           200, nullptr, nullptr, nullptr, nullptr);
}

BOOL CALLBACK CerrarSiEsAviso(HWND ventana, LPARAM) {
    wchar_t clase[16] = L"";
    GetClassNameW(ventana, clase, 16);
    if (lstrcmpW(clase, L"#32770") == 0)
        PostMessageW(ventana, WM_COMMAND, IDOK, 0);
    return TRUE;
}

/// Nobody is there to answer a message of the control's own.
void CALLBACK CerrarAvisos(HWND, UINT, UINT_PTR, DWORD) {
    EnumThreadWindows(GetCurrentThreadId(), &CerrarSiEsAviso, 0);
}

BOOL CALLBACK Juntar(HWND ventana, LPARAM juntas) {
    reinterpret_cast<std::vector<HWND>*>(juntas)->push_back(ventana);
    return TRUE;
}

} // namespace

long Azar::Entero() {
    static constexpr long extremos[] = {std::numeric_limits<long>::min(),
                                        std::numeric_limits<long>::max(),
                                        0,
                                        -1,
                                        1,
                                        65536,
                                        32767,
                                        -32768};
    return Una(3) ? De(extremos) : Menor(4000) - 2000;
}

void Mentir(VARIANT* p, Mentira como) {
    if (!p)
        return;
    std::memset(p, 0, sizeof *p);
    if (como == Mentira::Nula)
        return;
    Azar& azar = Ataque::El()->azar;
    static constexpr VARTYPE tipos[] = {
        VT_NULL,  VT_R8, VT_BSTR, VT_DISPATCH,           VT_UNKNOWN,       VT_DATE, VT_ERROR, VT_I1,
        VT_EMPTY, VT_I4, VT_BOOL, VT_BYREF | VT_VARIANT, VT_ARRAY | VT_I4, 0x0777};
    p->vt = azar.De(tipos);
    if (p->vt == VT_R8)
        p->dblVal = std::numeric_limits<double>::quiet_NaN();
    if (p->vt == VT_I4 || p->vt == VT_ERROR)
        p->lVal = azar.Entero();
    if (p->vt == VT_BSTR && azar.Una(2))
        p->bstrVal = SysAllocStringByteLen("no text at all!", 15);
}

const char* Nombre(Accion accion) {
    static constexpr const char* nombres[] = {"Close",
                                              "Close saving",
                                              "Release",
                                              "SetClientSite(NULL)",
                                              "Deactivate",
                                              "UIDeactivate",
                                              "Unadvise",
                                              "put",
                                              "DoVerb",
                                              "Save",
                                              "Load",
                                              "Load bag",
                                              "fail",
                                              "answer nothing",
                                              "answer nonsense",
                                              "destroy the parent",
                                              "destroy the window",
                                              "pump",
                                              "SetParent",
                                              "messages of death",
                                              "quit",
                                              "move",
                                              "another site",
                                              "SetFocus",
                                              "ambient change",
                                              "freeze",
                                              "tear down",
                                              "QuickActivate",
                                              "Draw",
                                              "change the font",
                                              "hide",
                                              "destroy the children",
                                              "page"};
    static_assert(std::size(nombres) == static_cast<std::size_t>(Accion::Cuantas));
    return nombres[static_cast<int>(accion)];
}

Ataque* Ataque::El() {
    return actual;
}

Ataque::Ataque(const Componente& componente, unsigned semilla, unsigned caso)
    : azar(semilla * 2654435761u + caso * 40503u + (caso >> 16)), componente_(componente),
      semilla_(semilla), caso_(caso) {
    actual = this;
    clase_ = azar.De(Controles);
    Emboscar();
}

Ataque::~Ataque() {
    actual = nullptr;
}

void Ataque::Emboscar() {
    for (int cuantas = 1 + azar.Menor(3); cuantas > 0; --cuantas) {
        Emboscada e;
        if (azar.Una(2)) {
            e.donde = azar.De(Llamadas);
            e.cuando = 1 + (azar.Una(2) ? 0 : azar.Menor(8));
        } else {
            e.cuando = 1 + azar.Menor(azar.Una(2) ? 20 : 150);
        }
        e.siempre = azar.Una(5);
        // Refusing and lying, which each call can, as often as all the rest together.
        static constexpr Accion respuestas[] = {Accion::Fallar, Accion::CallarNulo,
                                                Accion::CallarBasura};
        e.accion = azar.Una(3) ? azar.De(respuestas)
                               : static_cast<Accion>(azar.Menor(static_cast<int>(Accion::Cuantas)));
        e.estado = e.accion == Accion::Fallar ? azar.De(Estados) : azar.Una(4) ? S_FALSE : S_OK;
        emboscadas_.push_back(e);
    }
}

std::string Ataque::Descripcion() const {
    std::string texto = Estrechar(clase_);
    for (const Emboscada& e : emboscadas_) {
        texto += std::string("; ") + Nombre(e.accion) + " at call " + std::to_string(e.cuando) +
                 (e.siempre ? " and later of " : " of ") + (e.donde ? e.donde : "any");
        if (e.vistas < e.cuando)
            texto += " (not yet)";
    }
    return texto;
}

bool Ataque::Tropezar(const char* donde, HRESULT& estado, Mentira& como) {
    if (dentro_ > 3)
        return false;
    for (Emboscada& e : emboscadas_) {
        if (e.donde && std::strcmp(e.donde, donde) != 0)
            continue;
        ++e.vistas;
        if (e.vistas < e.cuando || (e.vistas > e.cuando && !e.siempre))
            continue;
        ++cobertura[std::string(donde) + " x " + Nombre(e.accion)];
        switch (e.accion) {
        case Accion::Fallar:
            estado = e.estado;
            como = Mentira::Veneno;
            return true;
        case Accion::CallarNulo:
        case Accion::CallarBasura:
            estado = e.estado;
            como = e.accion == Accion::CallarNulo ? Mentira::Nula : Mentira::Basura;
            return true;
        default:
            ++dentro_;
            Hacer(e.accion);
            --dentro_;
            return false;
        }
    }
    return false;
}

HWND Ataque::Ventana() {
    HWND ventana = nullptr;
    Con<IOleInPlaceObject>([&](auto& o) { o.GetWindow(&ventana); });
    return ventana;
}

void Ataque::Hacer(Accion accion) {
    switch (accion) {
    case Accion::Cerrar:
        return Con<IOleObject>([](auto& o) { o.Close(OLECLOSE_NOSAVE); });
    case Accion::CerrarGuardando:
        return Con<IOleObject>([](auto& o) { o.Close(OLECLOSE_SAVEIFDIRTY); });
    case Accion::Soltar:
        return SoltarTodo();
    case Accion::QuitarSitio:
        return Con<IOleObject>([](auto& o) { o.SetClientSite(nullptr); });
    case Accion::Desactivar:
        return Con<IOleInPlaceObject>([](auto& o) { o.InPlaceDeactivate(); });
    case Accion::DesactivarInterfaz:
        return Con<IOleInPlaceObject>([](auto& o) { o.UIDeactivate(); });
    case Accion::Desconectar:
        return Desconectar();
    case Accion::Asignar:
        return Asignar();
    case Accion::Verbo:
        return Verbo();
    case Accion::Guardar:
        return Guardar();
    case Accion::Cargar:
        return Cargar();
    case Accion::CargarBolsa:
        return Con<IPersistPropertyBag>(
            [](auto& p) { p.Load(HacerBolsa().get(), HacerDiario().get()); });
    case Accion::DestruirPadre:
        DestroyWindow(padre);
        return;
    case Accion::DestruirVentana:
        DestroyWindow(Ventana());
        return;
    case Accion::DestruirHijas:
        if (const HWND ventana = Ventana())
            DestroyWindow(GetWindow(ventana, GW_CHILD));
        return;
    case Accion::Bombear:
        return Bombear();
    case Accion::CambiarDePadre:
        SetParent(Ventana(), azar.Una(3) ? nullptr : otra);
        return;
    case Accion::MensajesDeMuerte:
        if (const HWND ventana = Ventana()) {
            static constexpr UINT mensajes[] = {WM_CLOSE, WM_DESTROY, WM_NCDESTROY, WM_ENDSESSION,
                                                WM_CANCELMODE};
            enganadas_.push_back(ventana);
            SendMessageW(ventana, azar.De(mensajes), 0, 0);
        }
        return;
    case Accion::Salir:
        PostQuitMessage(1);
        return;
    case Accion::Mover:
        return Mover();
    case Accion::OtroSitio:
        return Con<IOleObject>([this](auto& o) { o.SetClientSite(otroSitio_.get()); });
    case Accion::Enfocar:
        SetFocus(azar.Una(2) ? Ventana() : otra);
        return;
    case Accion::Ambiente:
        return Con<IOleControl>([this](auto& o) {
            static constexpr DISPID ids[] = {DISPID_UNKNOWN, DISPID_AMBIENT_FONT,
                                             DISPID_AMBIENT_USERMODE, DISPID_AMBIENT_BACKCOLOR};
            o.OnAmbientPropertyChange(azar.De(ids));
        });
    case Accion::Congelar:
        return Con<IOleControl>([this](auto& o) { o.FreezeEvents(azar.Una(2)); });
    case Accion::Desmontar:
        Hacer(Accion::Cerrar);
        Hacer(Accion::QuitarSitio);
        return SoltarTodo();
    case Accion::ActivarDeprisa:
        return ActivarDeprisa();
    case Accion::Dibujar:
        return Dibujar();
    case Accion::Fuente:
        if (const auto oyente = oyenteDeFuente)
            oyente->OnChanged(DISPID_UNKNOWN);
        return;
    case Accion::Esconder:
        ShowWindow(Ventana(), azar.Una(2) ? SW_HIDE : SW_SHOW);
        EnableWindow(Ventana(), azar.Una(2));
        return;
    case Accion::Pagina:
        return PasoDePagina();
    default:
        return;
    }
}

void Ataque::Conectar() {
    Con<IConnectionPointContainer>([this](auto& c) {
        GUID eventos{};
        Con<IProvideClassInfo2>([&](auto& p) { p.GetGUID(1, &eventos); });
        for (int i = 0; i < 2; ++i) {
            Puntero<IConnectionPoint> punto;
            if (SUCCEEDED(
                    c.FindConnectionPoint(i ? IID_IPropertyNotifySink : eventos, punto.Recibir())))
                punto->Advise(i ? static_cast<IUnknown*>(avisos_.get()) : eventos_.get(),
                              i ? &deAvisos_ : &deEventos_);
        }
    });
    Con<IOleObject>([this](auto& o) { o.Advise(vista_.get(), &deOle_); });
    Con<IDataObject>([this](auto& o) {
        FORMATETC formato{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
        // Without the data: the platform's holder loses the metafiles that it asks for.
        o.DAdvise(&formato, ADVF_NODATA, vista_.get(), &deDatos_);
    });
    Con<IViewObject>([this](auto& v) {
        v.SetAdvise(DVASPECT_CONTENT, azar.Una(3) ? ADVF_PRIMEFIRST : 0, vista_.get());
    });
}

void Ataque::Desconectar() {
    Con<IConnectionPointContainer>([this](auto& c) {
        Puntero<IEnumConnectionPoints> lista;
        if (FAILED(c.EnumConnectionPoints(lista.Recibir())))
            return;
        Puntero<IConnectionPoint> punto;
        while (lista->Next(1, punto.Recibir(), nullptr) == S_OK)
            for (DWORD galleta = 1; galleta < 4; ++galleta)
                punto->Unadvise(galleta);
    });
    Con<IOleObject>([this](auto& o) { o.Unadvise(deOle_); });
    Con<IDataObject>([this](auto& o) { o.DUnadvise(deDatos_); });
    Con<IViewObject>([](auto& v) { v.SetAdvise(DVASPECT_CONTENT, 0, nullptr); });
}

void Ataque::SoltarTodo() {
    activo[0] = nullptr;
    activo[1] = nullptr;
    if (pagina_) {
        pagina_.Soltar();
        if (azar.Una(2))
            return;
    }
    objeto_.Soltar();
}

Variante Ataque::Valor() {
    static constexpr const wchar_t* textos[] = {L"", L"&Aceptar", L"255*65280*16711680", L"12,5",
                                                L"\xD83D\xDE00 \r\n\t&&&"};
    switch (azar.Menor(9)) {
    case 0:
    case 1:
        return Variante(HacerFuente().get());
    case 2:
        return Variante(HacerImagen().get());
    case 3:
        return Variante(azar.De(textos));
    case 4:
        return Variante(azar.Una(2));
    case 5:
        return Variante(static_cast<IDispatch*>(nullptr));
    case 6:
        return Variante(static_cast<double>(azar.Menor(40)) / 8);
    default:
        return Variante(azar.Una(3) ? azar.Entero() : static_cast<long>(azar.Menor(8)));
    }
}

void Ataque::Asignar() {
    Con<IDispatch>([this](auto& d) {
        static constexpr const wchar_t* queridos[] = {
            L"Font",    L"Fuente", L"ImagNormal", L"ImagSobre",    L"MouseIcon",
            L"Caption", L"Text",   L"Enabled",    L"CambioProgre", L"BackStyle",
            L"Estilos", L"RelX",   L"FuenteEtic", L"MousePointer"};
        DISPID numero = DISPID_UNKNOWN;
        if (azar.Una(2)) {
            LPOLESTR nombre = const_cast<LPOLESTR>(azar.De(queridos));
            d.GetIDsOfNames(IID_NULL, &nombre, 1, 0, &numero);
        } else if (const auto todos = Miembros(d); !todos.empty()) {
            numero = todos[static_cast<std::size_t>(azar.Menor(static_cast<int>(todos.size())))];
        }
        Variante valor = Valor();
        DISPID puesto = DISPID_PROPERTYPUT;
        DISPPARAMS p{&valor, &puesto, 1, 1};
        const WORD modo = valor.vt == VT_DISPATCH ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
        EXCEPINFO excepcion{};
        d.Invoke(numero, IID_NULL, 0, modo, &p, nullptr, &excepcion, nullptr);
        SysFreeString(excepcion.bstrDescription);
        SysFreeString(excepcion.bstrSource);
        SysFreeString(excepcion.bstrHelpFile);
    });
}

void Ataque::Leer() {
    Con<IDispatch>([this](auto& d) {
        const auto todos = Miembros(d);
        if (todos.empty())
            return;
        DISPPARAMS p{};
        Variante valor;
        d.Invoke(todos[static_cast<std::size_t>(azar.Menor(static_cast<int>(todos.size())))],
                 IID_NULL, 0, DISPATCH_PROPERTYGET, &p, &valor, nullptr, nullptr);
    });
}

void Ataque::Guardar() {
    switch (azar.Menor(3)) {
    case 0:
        return Con<IPersistStreamInit>([this](auto& p) {
            guardado_.clear();
            p.Save(HacerFlujo(guardado_).get(), azar.Una(2));
        });
    case 1:
        return Con<IPersistStorage>(
            [this](auto& p) { p.Save(HacerAlmacen(guardado_).get(), azar.Una(2)); });
    default:
        return Con<IPersistPropertyBag>(
            [this](auto& p) { p.Save(HacerBolsa().get(), azar.Una(2), azar.Una(2)); });
    }
}

void Ataque::Cargar() {
    switch (azar.Menor(3)) {
    case 0:
        return Con<IPersistStreamInit>([this](auto& p) { p.Load(HacerFlujo(guardado_).get()); });
    case 1:
        return Con<IPersistStorage>([this](auto& p) { p.Load(HacerAlmacen(guardado_).get()); });
    default:
        return Hacer(Accion::CargarBolsa);
    }
}

void Ataque::Verbo() {
    Con<IOleObject>([this](auto& o) {
        static constexpr LONG verbos[] = {OLEIVERB_INPLACEACTIVATE,
                                          OLEIVERB_UIACTIVATE,
                                          OLEIVERB_SHOW,
                                          OLEIVERB_HIDE,
                                          OLEIVERB_PRIMARY,
                                          OLEIVERB_PROPERTIES,
                                          5};
        LONG verbo = azar.De(verbos);
        if (verbo == OLEIVERB_PROPERTIES && !sitio_)
            verbo = OLEIVERB_SHOW;
        // Without a site of ours it would show the platform's frame and wait.
        Puntero<IOleClientSite> sitio;
        if (verbo == OLEIVERB_PROPERTIES &&
            (FAILED(o.GetClientSite(sitio.Recibir())) || !sitio || !sitio.Como<IOleControlSite>()))
            return;
        sitio.Soltar();
        o.DoVerb(verbo, nullptr, sitio_.get(), 0, padre, &lugar);
    });
}

void Ataque::Mover() {
    const LONG ancho = azar.Una(4) ? 0 : azar.Menor(300), alto = azar.Una(4) ? 0 : azar.Menor(200);
    if (azar.Una(2))
        return Con<IOleInPlaceObject>([&](auto& o) {
            const RECT r{5, 5, 5 + ancho, 5 + alto};
            o.SetObjectRects(&r, azar.Una(3) ? nullptr : &r);
        });
    SIZEL tamano{ancho * 26, alto * 26};
    Con<IOleObject>([&](auto& o) { o.SetExtent(DVASPECT_CONTENT, &tamano); });
}

void Ataque::Dibujar() {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HBITMAP mapa = CreateBitmap(60, 40, 1, 32, nullptr);
    const HGDIOBJ antes = SelectObject(dc, mapa);
    RECTL r{0, 0, 60, 40};
    if (azar.Una(4))
        r = {azar.Menor(90), azar.Menor(90), azar.Menor(90), azar.Menor(90)};
    Con<IViewObject>([&](auto& v) {
        v.Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc, &r, nullptr, nullptr, 0);
    });
    if (azar.Una(3))
        Con<IDataObject>([](auto& d) {
            FORMATETC formato{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
            STGMEDIUM medio{};
            if (SUCCEEDED(d.GetData(&formato, &medio)))
                ReleaseStgMedium(&medio);
        });
    SelectObject(dc, antes);
    DeleteObject(mapa);
    DeleteDC(dc);
}

void Ataque::Mensajes() {
    // No right button going up: the field's menu waits for somebody to choose.
    static constexpr UINT mensajes[] = {
        WM_MOUSEMOVE,      WM_LBUTTONDOWN, WM_LBUTTONUP,  WM_RBUTTONDOWN,  WM_KEYDOWN,
        WM_KEYUP,          WM_CHAR,        WM_MOUSELEAVE, WM_SETFOCUS,     WM_KILLFOCUS,
        WM_PAINT,          WM_TIMER,       WM_CANCELMODE, WM_SHOWWINDOW,   WM_CAPTURECHANGED,
        WM_SYSCOLORCHANGE, WM_SETTEXT,     WM_COMMAND,    WM_MOUSEACTIVATE};
    static constexpr WPARAM teclas[] = {VK_SPACE, VK_RETURN, VK_TAB, 'A', '7', VK_BACK};
    HWND ventana = Ventana();
    if (!ventana)
        return;
    if (const HWND hija = GetWindow(ventana, GW_CHILD); hija && azar.Una(2))
        ventana = hija;
    const UINT mensaje = azar.De(mensajes);
    const bool tecla = mensaje >= WM_KEYFIRST && mensaje <= WM_KEYLAST;
    if (mensaje == WM_PAINT)
        RedrawWindow(ventana, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    else if (mensaje == WM_SETTEXT)
        SetWindowTextW(ventana, L"12");
    else
        SendMessageW(
            ventana, mensaje, tecla ? azar.De(teclas) : 0,
            tecla || mensaje < WM_MOUSEFIRST ? 0 : MAKELPARAM(azar.Menor(130), azar.Menor(60)));
}

void Ataque::Bombear() {
    MSG mensaje;
    for (int i = 0; i < 60 && PeekMessageW(&mensaje, nullptr, 0, 0, PM_REMOVE); ++i) {
        if (mensaje.message == WM_QUIT)
            continue;
        if (activo[0] && mensaje.message >= WM_KEYFIRST && mensaje.message <= WM_KEYLAST) {
            const auto quien = activo[0];
            if (quien->TranslateAccelerator(&mensaje) == S_OK)
                continue;
        }
        TranslateMessage(&mensaje);
        DispatchMessageW(&mensaje);
    }
}

void Ataque::ActivarDeprisa() {
    Con<IQuickActivate>([this](auto& q) {
        QACONTAINER c{};
        c.cbSize = sizeof c;
        c.pClientSite = azar.Una(4) ? nullptr : sitio_.get();
        c.pAdviseSink = reinterpret_cast<decltype(c.pAdviseSink)>(vista_.get());
        c.pPropertyNotifySink = avisos_.get();
        c.pUnkEventSink = eventos_.get();
        c.dwAmbientFlags = QACONTAINER_USERMODE;
        QACONTROL r{};
        r.cbSize = sizeof r;
        q.QuickActivate(&c, &r);
    });
}

void Ataque::PasoDePagina() {
    // Its pointer is all that holds it: a callback may let it go.
    const auto con = [this](auto f) {
        if (IPropertyPage* p = pagina_.get())
            f(*p);
    };
    IUnknown* objetos[] = {objeto_.get()};
    switch (azar.Menor(9)) {
    case 0:
        return con(
            [this](auto& p) { p.SetPageSite(azar.Una(2) ? nullptr : HacerSitioDePagina().get()); });
    case 1:
        return con([&](auto& p) { p.SetObjects(objetos[0] && !azar.Una(3) ? 1 : 0, objetos); });
    case 2:
        return con([this](auto& p) { p.Activate(padre, &lugar, FALSE); });
    case 3:
        return con([](auto& p) { p.Show(SW_SHOW); });
    case 4:
        return con([](auto& p) { p.Apply(); });
    case 5:
        return con([](auto& p) { p.Deactivate(); });
    case 6:
        return con([](auto& p) { p.IsPageDirty(); });
    default:
        break;
    }
    // The user's hand on one of the page's widgets.
    std::vector<HWND> hijas;
    EnumChildWindows(padre, &Juntar, reinterpret_cast<LPARAM>(&hijas));
    if (hijas.empty())
        return;
    const HWND hija = hijas[static_cast<std::size_t>(azar.Menor(static_cast<int>(hijas.size())))];
    wchar_t clase[16] = L"";
    GetClassNameW(hija, clase, 16);
    const LONG estilo = GetWindowLongW(hija, GWL_STYLE) & BS_TYPEMASK;
    if (lstrcmpiW(clase, L"ComboBox") == 0) {
        SendMessageW(hija, CB_SETCURSEL, static_cast<WPARAM>(azar.Menor(3)), 0);
        SendMessageW(GetParent(hija), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(hija), CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(hija));
    } else if (lstrcmpiW(clase, L"Edit") == 0) {
        SetWindowTextW(hija, L"1");
    } else if (lstrcmpiW(clase, L"Button") == 0 && estilo == BS_AUTOCHECKBOX) {
        SendMessageW(hija, BM_CLICK, 0, 0);
    }
}

void Ataque::Nacer() {
    padre = VentanaDe(azar);
    otra = VentanaDe(azar);
    sitio_ = HacerSitio();
    otroSitio_ = HacerSitio();
    eventos_ = HacerEventos();
    avisos_ = HacerAvisos();
    vista_ = HacerVista();
    const bool conPagina = azar.Una(7);
    if (conPagina) {
        const Hoja& hoja = azar.De(Paginas);
        clase_ = hoja.control;
        pagina_ = componente_.Crear(componente_.Clase(hoja.pagina)).Como<IPropertyPage>();
    }
    objeto_ = componente_.Crear(componente_.Clase(clase_));
    // In any order, and without one thing or another.
    int pasos[] = {0, 1, 2, 3};
    for (int i = 3; i > 0; --i)
        std::swap(pasos[i], pasos[azar.Menor(i + 1)]);
    for (const int paso : pasos) {
        if (azar.Una(12))
            continue;
        switch (paso) {
        case 0:
            if (azar.Una(4))
                Cargar();
            else
                Con<IPersistStreamInit>([](auto& p) { p.InitNew(); });
            break;
        case 1:
            if (azar.Una(5))
                ActivarDeprisa();
            else
                Con<IOleObject>([this](auto& o) { o.SetClientSite(sitio_.get()); });
            break;
        case 2:
            Conectar();
            break;
        default:
            Con<IOleObject>([this](auto& o) {
                o.DoVerb(azar.Una(2) ? OLEIVERB_UIACTIVATE : OLEIVERB_INPLACEACTIVATE, nullptr,
                         sitio_.get(), 0, padre, &lugar);
            });
        }
    }
    if (conPagina)
        for (const int paso : {0, 1, 2, 3})
            if (pagina_ && !azar.Una(8)) {
                IUnknown* objetos[] = {objeto_.get()};
                IPropertyPage& p = *pagina_.get();
                paso == 0   ? p.SetPageSite(HacerSitioDePagina().get())
                : paso == 1 ? p.SetObjects(objetos[0] ? 1 : 0, objetos)
                : paso == 2 ? p.Activate(padre, &lugar, FALSE)
                            : p.Show(SW_SHOW);
            }
}

void Ataque::Paso() {
    if (pagina_ && azar.Una(2))
        return PasoDePagina();
    switch (azar.Menor(16)) {
    case 0:
    case 1:
    case 2:
    case 3:
        return Asignar();
    case 4:
        return Leer();
    case 5:
    case 6:
    case 7:
        return Mensajes();
    case 8:
        return Guardar();
    case 9:
        return Cargar();
    case 10:
        return Verbo();
    case 11:
        return Mover();
    case 12:
        return Dibujar();
    case 13:
        return Bombear();
    case 14:
        return Con<IOleControl>([](auto& o) {
            MSG tecla{nullptr, WM_SYSKEYDOWN, 'A', 1, 0, {}};
            o.OnMnemonic(&tecla);
        });
    default:
        // What containers do of their own accord, in their own time.
        static constexpr Accion acciones[] = {
            Accion::Cerrar,           Accion::Desactivar,      Accion::DesactivarInterfaz,
            Accion::Enfocar,          Accion::Ambiente,        Accion::Congelar,
            Accion::OtroSitio,        Accion::Esconder,        Accion::QuitarSitio,
            Accion::DestruirPadre,    Accion::DestruirVentana, Accion::CambiarDePadre,
            Accion::MensajesDeMuerte, Accion::DestruirHijas,   Accion::Fuente,
            Accion::Desconectar};
        return Hacer(azar.De(acciones));
    }
}

void Ataque::Morir() {
    // In order, or not.
    switch (azar.Menor(4)) {
    case 0:
        SoltarTodo();
        break;
    case 1:
        DestroyWindow(padre);
        break;
    case 2:
        Hacer(Accion::QuitarSitio);
        break;
    default:
        break;
    }
    if (pagina_)
        pagina_->Deactivate();
    if (pagina_)
        pagina_->SetObjects(0, nullptr);
    if (pagina_)
        pagina_->SetPageSite(nullptr);
    pagina_.Soltar();
    emboscadas_.clear(); // who refuses to the very end keeps what he has
    Hacer(Accion::Cerrar);
    Hacer(Accion::QuitarSitio);
    Desconectar();
    SoltarTodo();
    objeto_.Soltar();
    sitio_ = otroSitio_ = nullptr;
    eventos_ = nullptr;
    avisos_ = nullptr;
    vista_ = nullptr;
    oyenteDeFuente = nullptr;
    activo[0] = activo[1] = nullptr;
    DestroyWindow(padre);
    DestroyWindow(otra);
    for (const HWND ventana : enganadas_)
        if (IsWindow(ventana))
            DestroyWindow(ventana);
    MSG mensaje;
    while (PeekMessageW(&mensaje, nullptr, 0, 0, PM_REMOVE))
        if (mensaje.message != WM_QUIT)
            DispatchMessageW(&mensaje);
}

void Ataque::Correr() {
    const UINT_PTR reloj = SetTimer(nullptr, 0, 300, &CerrarAvisos);
    Nacer();
    for (int pasos = 2 + azar.Menor(14); pasos > 0; --pasos)
        Paso();
    Morir();
    KillTimer(nullptr, reloj);
}

} // namespace hostil
