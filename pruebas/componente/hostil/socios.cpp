// The container's side of every conversation, honest unless the case says otherwise.
#include "anfitrion/imagenes.h"
#include "pruebas/componente/hostil/ataque.h"

#include <algorithm>

namespace hostil {

namespace {

thread_local long vivos = 0; // partners stay with the thread that made them

template <class... Interfaces>
class Socio : public ObjetoCom<Interfaces...> {
  public:
    Socio() { ++vivos; }

  protected:
    ~Socio() override { --vivos; }
};

/// A partner that is held for too long finds nobody any more.
template <class H, class M>
HRESULT Responder(const char* donde, H&& honesta, M&& mentira) {
    Ataque* a = Ataque::El();
    return a ? a->Responder(donde, honesta, mentira) : E_UNEXPECTED;
}
template <class H>
HRESULT Responder(const char* donde, H&& honesta) {
    return Responder(donde, honesta, [](Mentira) {});
}
HRESULT Bien(const char* donde) {
    return Responder(donde, [] { return S_OK; });
}

template <class T>
HRESULT Dar(T* objeto, T** salida) {
    *salida = objeto;
    if (objeto)
        objeto->AddRef();
    return S_OK;
}

Ataque& A() {
    return *Ataque::El();
}

// No type information, no names: everything is asked by number.
template <class Base>
class Tardio : public Base {
  public:
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* n) override {
        *n = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return DISP_E_UNKNOWNNAME;
    }
};

class Lista final : public Socio<IEnumUnknown> {
  public:
    HRESULT STDMETHODCALLTYPE Next(ULONG n, IUnknown** salida, ULONG* dados) override {
        return Responder(
            "IEnumUnknown::Next",
            [&] {
                ULONG hechos = 0;
                for (; hechos < n && lugar_ < 2; ++hechos, ++lugar_)
                    Dar<IUnknown>(this, salida + hechos); // objects that are no controls
                if (dados)
                    *dados = hechos;
                return hechos == n ? S_OK : S_FALSE;
            },
            [&](Mentira m) {
                Mentir(salida, m);
                Mentir(dados, m);
            });
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Reset() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Clone(IEnumUnknown**) override { return E_NOTIMPL; }

  private:
    int lugar_ = 0;
};

class Recipiente final : public Socio<IOleContainer> {
  public:
    HRESULT STDMETHODCALLTYPE ParseDisplayName(IBindCtx*, LPOLESTR, ULONG*, IMoniker**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE EnumObjects(DWORD, IEnumUnknown** lista) override {
        return Responder(
            "IOleContainer::EnumObjects",
            [&] {
                *lista = Hacer<Lista>().Separar();
                return S_OK;
            },
            [&](Mentira m) { Mentir(lista, m); });
    }
    HRESULT STDMETHODCALLTYPE LockContainer(BOOL) override { return S_OK; }
};

/// The frame and the document: one is told from the other by its number.
template <int Numero>
class Marco final : public Socio<IOleInPlaceFrame> {
  public:
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* v) override {
        return Responder(
            "IOleInPlaceFrame::GetWindow", [&] { return *v = A().padre, S_OK; },
            [&](Mentira m) { Mentir(v, m); });
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetBorder(LPRECT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS) override {
        return Bien(Numero ? "IOleInPlaceUIWindow::SetBorderSpace"
                           : "IOleInPlaceFrame::SetBorderSpace");
    }
    HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* objeto, LPCOLESTR) override {
        return Responder(Numero ? "IOleInPlaceUIWindow::SetActiveObject"
                                : "IOleInPlaceFrame::SetActiveObject",
                         [&] {
                             A().activo[Numero] = Puntero<IOleInPlaceActiveObject>(objeto);
                             return S_OK;
                         });
    }
    HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

  protected:
    void* Heredada(REFIID iid) override {
        return iid == IID_IOleInPlaceUIWindow || iid == IID_IOleWindow ? this : nullptr;
    }
};

class Sitio final
    : public Tardio<
          Socio<IOleClientSite, IOleInPlaceSiteEx, IOleControlSite, ISimpleFrameSite, IDispatch>> {
  public:
    // A site may refuse any of its interfaces, or say yes and hand out nothing.
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** salida) override {
        return Responder(
            "IOleClientSite::QueryInterface", [&] { return Tardio::QueryInterface(iid, salida); },
            [&](Mentira m) { Mentir(salida, m); });
    }

    // IOleClientSite
    HRESULT STDMETHODCALLTYPE SaveObject() override { return Bien("IOleClientSite::SaveObject"); }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** salida) override {
        return Responder(
            "IOleClientSite::GetContainer",
            [&] {
                *salida = Hacer<Recipiente>().Separar();
                return S_OK;
            },
            [&](Mentira m) { Mentir(salida, m); });
    }
    HRESULT STDMETHODCALLTYPE ShowObject() override { return Bien("IOleClientSite::ShowObject"); }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override {
        return Bien("IOleClientSite::OnShowWindow");
    }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

    // IOleInPlaceSiteEx
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* v) override {
        return Responder(
            "IOleInPlaceSite::GetWindow", [&] { return *v = A().padre, S_OK; },
            [&](Mentira m) { Mentir(v, m); });
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override {
        return Bien("IOleInPlaceSite::CanInPlaceActivate");
    }
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override {
        return Bien("IOleInPlaceSite::OnInPlaceActivate");
    }
    HRESULT STDMETHODCALLTYPE OnUIActivate() override {
        return Bien("IOleInPlaceSite::OnUIActivate");
    }
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** marco,
                                               IOleInPlaceUIWindow** documento, LPRECT lugar,
                                               LPRECT recorte,
                                               LPOLEINPLACEFRAMEINFO info) override {
        return Responder(
            "IOleInPlaceSite::GetWindowContext",
            [&] {
                *marco = Hacer<Marco<0>>().Separar();
                *documento = A().azar.Una(2) ? Hacer<Marco<1>>().Separar() : nullptr;
                *lugar = *recorte = A().lugar;
                info->hwndFrame = A().padre;
                return S_OK;
            },
            [&](Mentira m) {
                Mentir(marco, m);
                Mentir(documento, m);
                Mentir(lugar, m);
                Mentir(recorte, m);
            });
    }
    HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override {
        return Bien("IOleInPlaceSite::OnUIDeactivate");
    }
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override {
        return Bien("IOleInPlaceSite::OnInPlaceDeactivate");
    }
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT) override {
        return Bien("IOleInPlaceSite::OnPosRectChange");
    }
    HRESULT STDMETHODCALLTYPE OnInPlaceActivateEx(BOOL* sin, DWORD) override {
        return Responder(
            "IOleInPlaceSite::OnInPlaceActivate", [&] { return sin ? *sin = FALSE : 0, S_OK; },
            [&](Mentira m) { Mentir(sin, m); });
    }
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivateEx(BOOL) override {
        return Bien("IOleInPlaceSite::OnInPlaceDeactivate");
    }
    HRESULT STDMETHODCALLTYPE RequestUIActivate() override {
        return Bien("IOleInPlaceSite::RequestUIActivate");
    }

    // IOleControlSite
    HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override {
        return Bien("IOleControlSite::OnControlInfoChanged");
    }
    HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** salida) override {
        return Responder(
            "IOleControlSite::GetExtendedControl",
            [&] { return Dar(static_cast<IDispatch*>(this), salida); },
            [&](Mentira m) { Mentir(salida, m); });
    }
    HRESULT STDMETHODCALLTYPE TransformCoords(POINTL* punto, POINTF* suyo, DWORD) override {
        return Responder(
            "IOleControlSite::TransformCoords",
            [&] {
                *punto = {static_cast<LONG>(suyo->x * 26), static_cast<LONG>(suyo->y * 26)};
                return S_OK;
            },
            [&](Mentira m) {
                Mentir(punto, m);
                Mentir(suyo, m);
            });
    }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, DWORD) override {
        return Responder("IOleControlSite::TranslateAccelerator", [] { return S_FALSE; });
    }
    HRESULT STDMETHODCALLTYPE OnFocus(BOOL) override { return Bien("IOleControlSite::OnFocus"); }
    // Always its own: the platform's frame would wait for somebody to close it.
    HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override {
        Bien("IOleControlSite::ShowPropertyFrame");
        return S_OK;
    }

    // ISimpleFrameSite
    HRESULT STDMETHODCALLTYPE PreMessageFilter(HWND, UINT, WPARAM, LPARAM, LRESULT* resultado,
                                               DWORD* galleta) override {
        return Responder(
            "ISimpleFrameSite::PreMessageFilter", [&] { return S_OK; },
            [&](Mentira m) {
                Mentir(resultado, m);
                Mentir(galleta, m);
            });
    }
    HRESULT STDMETHODCALLTYPE PostMessageFilter(HWND, UINT, WPARAM, LPARAM, LRESULT* resultado,
                                                DWORD) override {
        return Responder(
            "ISimpleFrameSite::PostMessageFilter", [&] { return S_OK; },
            [&](Mentira m) { Mentir(resultado, m); });
    }

    // The ambient properties, and those of the extended control
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* id) override {
        return Responder(
            "Ambient::GetIDsOfNames", [&] { return *id = 77, S_OK; },
            [&](Mentira m) { Mentir(id, m); });
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* valor,
                                     EXCEPINFO*, UINT*) override {
        return Responder(
            "Ambient::Invoke", [&] { return Ambiente(id, valor); },
            [&](Mentira m) { Mentir(valor, m); });
    }

  protected:
    void* Heredada(REFIID iid) override {
        if (iid == IID_IOleInPlaceSite || iid == IID_IOleWindow)
            return static_cast<IOleInPlaceSiteEx*>(this);
        return nullptr;
    }

  private:
    static HRESULT Ambiente(DISPID id, VARIANT* valor) {
        Variante v;
        switch (id) {
        case DISPID_AMBIENT_USERMODE:
            v = Variante(!A().azar.Una(6));
            break;
        case DISPID_AMBIENT_DISPLAYASDEFAULT:
        case DISPID_AMBIENT_UIDEAD:
            v = Variante(A().azar.Una(4));
            break;
        case DISPID_AMBIENT_FONT:
            v = Variante(A().azar.Una(2) ? HacerFuente().get() : CrearFuente(L"Arial", 9).get());
            break;
        case 77:
            v = Variante(10.0f);
            break;
        default:
            return DISP_E_MEMBERNOTFOUND;
        }
        *valor = v;
        VariantInit(&v); // handed over
        return S_OK;
    }
};

class Eventos final : public Tardio<Socio<IDispatch>> {
  public:
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* p, VARIANT*,
                                     EXCEPINFO*, UINT*) override {
        return Responder(
            "Events::Invoke", [] { return S_OK; },
            [&](Mentira m) { // answers to the control through what it was handed
                for (UINT i = 0; i < p->cArgs; ++i)
                    if (p->rgvarg[i].vt == (VT_BYREF | VT_I2))
                        Mentir(p->rgvarg[i].piVal, m);
            });
    }
};

class Avisos final : public Socio<IPropertyNotifySink> {
  public:
    HRESULT STDMETHODCALLTYPE OnChanged(DISPID) override {
        return Bien("IPropertyNotifySink::OnChanged");
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override {
        return Bien("IPropertyNotifySink::OnRequestEdit");
    }
};

class Vista final : public Socio<IAdviseSink> {
  public:
    void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override {
        Bien("IAdviseSink::OnDataChange");
    }
    void STDMETHODCALLTYPE OnViewChange(DWORD, LONG) override { Bien("IAdviseSink::OnViewChange"); }
    void STDMETHODCALLTYPE OnRename(IMoniker*) override {}
    void STDMETHODCALLTYPE OnSave() override { Bien("IAdviseSink::OnSave"); }
    void STDMETHODCALLTYPE OnClose() override { Bien("IAdviseSink::OnClose"); }
};

class Diario final : public Socio<IErrorLog> {
  public:
    HRESULT STDMETHODCALLTYPE AddError(LPCOLESTR, EXCEPINFO*) override {
        return Bien("IErrorLog::AddError");
    }
};

class Bolsa final : public Socio<IPropertyBag> {
  public:
    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR, VARIANT* valor, IErrorLog* diario) override {
        return Responder(
            "IPropertyBag::Read",
            [&] {
                if (diario && A().azar.Una(8))
                    diario->AddError(L"", nullptr);
                return E_INVALIDARG;
            },
            [&](Mentira m) { Mentir(valor, m); });
    }
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR, VARIANT*) override {
        return Bien("IPropertyBag::Write");
    }
};

/// Over bytes that outlive it; hands them out a few at a time.
class Flujo final : public Socio<IStream> {
  public:
    explicit Flujo(std::vector<unsigned char>& bytes) : bytes_(bytes) {}

    HRESULT STDMETHODCALLTYPE Read(void* a, ULONG n, ULONG* leidos) override {
        return Responder(
            "IStream::Read",
            [&] {
                const ULONG hay =
                    static_cast<ULONG>(bytes_.size() - std::min(bytes_.size(), lugar_));
                ULONG dados = std::min(n, hay);
                if (dados > 1 && A().azar.Una(3))
                    dados = 1 + static_cast<ULONG>(A().azar.Menor(static_cast<int>(dados)));
                if (dados)
                    std::memcpy(a, bytes_.data() + lugar_, dados);
                lugar_ += dados;
                if (leidos)
                    *leidos = dados;
                return dados == n ? S_OK : S_FALSE;
            },
            [&](Mentira m) { Mentir(leidos, m); });
    }
    HRESULT STDMETHODCALLTYPE Write(const void* de, ULONG n, ULONG* escritos) override {
        return Responder(
            "IStream::Write",
            [&] {
                ULONG tomados = n;
                if (n > 1 && A().azar.Una(3))
                    tomados = 1 + static_cast<ULONG>(A().azar.Menor(static_cast<int>(n)));
                const auto* p = static_cast<const unsigned char*>(de);
                bytes_.insert(bytes_.end(), p, p + tomados);
                if (escritos)
                    *escritos = tomados;
                return S_OK;
            },
            [&](Mentira m) { Mentir(escritos, m); });
    }
    HRESULT STDMETHODCALLTYPE Seek(LARGE_INTEGER, DWORD, ULARGE_INTEGER*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetSize(ULARGE_INTEGER) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*,
                                     ULARGE_INTEGER*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Revert() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Clone(IStream**) override { return E_NOTIMPL; }

  private:
    std::vector<unsigned char>& bytes_;
    std::size_t lugar_ = 0;
};

class Almacen final : public Socio<IStorage> {
  public:
    explicit Almacen(std::vector<unsigned char>& bytes) : bytes_(bytes) {}

    HRESULT STDMETHODCALLTYPE CreateStream(LPCOLESTR, DWORD, DWORD, DWORD,
                                           IStream** salida) override {
        return Responder(
            "IStorage::CreateStream",
            [&] {
                bytes_.clear();
                *salida = HacerFlujo(bytes_).Separar();
                return S_OK;
            },
            [&](Mentira m) { Mentir(salida, m); });
    }
    HRESULT STDMETHODCALLTYPE OpenStream(LPCOLESTR, void*, DWORD, DWORD,
                                         IStream** salida) override {
        return Responder(
            "IStorage::OpenStream",
            [&] {
                *salida = HacerFlujo(bytes_).Separar();
                return S_OK;
            },
            [&](Mentira m) { Mentir(salida, m); });
    }
    HRESULT STDMETHODCALLTYPE CreateStorage(LPCOLESTR, DWORD, DWORD, DWORD, IStorage**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE OpenStorage(LPCOLESTR, IStorage*, DWORD, SNB, DWORD,
                                          IStorage**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CopyTo(DWORD, const IID*, SNB, IStorage*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE MoveElementTo(LPCOLESTR, IStorage*, LPCOLESTR, DWORD) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Revert() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnumElements(DWORD, void*, DWORD, IEnumSTATSTG**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE DestroyElement(LPCOLESTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE RenameElement(LPCOLESTR, LPCOLESTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetElementTimes(LPCOLESTR, const FILETIME*, const FILETIME*,
                                              const FILETIME*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetClass(REFCLSID) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetStateBits(DWORD, DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }

  private:
    std::vector<unsigned char>& bytes_;
};

class PuntoDeFuente final : public Socio<IConnectionPoint> {
  public:
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* oyente, DWORD* galleta) override {
        return Responder(
            "IFont::Advise",
            [&] {
                A().oyenteDeFuente = Puntero<IUnknown>(oyente).Como<IPropertyNotifySink>();
                *galleta = 1;
                return S_OK;
            },
            [&](Mentira m) { // keeps all the same what it refuses
                A().oyenteDeFuente = Puntero<IUnknown>(oyente).Como<IPropertyNotifySink>();
                Mentir(galleta, m);
            });
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD) override {
        return Responder("IFont::Unadvise", [] {
            A().oyenteDeFuente = nullptr;
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }
};

class Fuente final : public Tardio<Socio<IFont, IDispatch, IConnectionPointContainer>> {
  public:
    template <class T>
    HRESULT Dar(const char* que, T* salida, T valor) {
        return Responder(
            que, [&] { return *salida = valor, S_OK; }, [&](Mentira m) { Mentir(salida, m); });
    }
    HRESULT STDMETHODCALLTYPE get_Name(BSTR* nombre) override {
        return Responder(
            "IFont::get_Name",
            [&] {
                // A byte too many now and then: texts are bytes to those who carry them.
                *nombre = A().azar.Una(4) ? SysAllocStringByteLen("A\0r\0i\0a\0l\0?", 11)
                                          : SysAllocString(L"Arial");
                return S_OK;
            },
            [&](Mentira m) { Mentir(nombre, m); });
    }
    HRESULT STDMETHODCALLTYPE get_Size(CY* t) override {
        CY tamano;
        static constexpr LONGLONG tamanos[] = {90000, 90000, 0, -120000, 10000000000LL, 1};
        tamano.int64 = A().azar.De(tamanos);
        return Dar("IFont::get_Size", t, tamano);
    }
    HRESULT STDMETHODCALLTYPE get_Bold(BOOL* v) override { return Dar("IFont::get_Bold", v, TRUE); }
    HRESULT STDMETHODCALLTYPE get_Italic(BOOL* v) override {
        return Dar("IFont::get_Italic", v, FALSE);
    }
    HRESULT STDMETHODCALLTYPE get_Underline(BOOL* v) override {
        return Dar("IFont::get_Underline", v, FALSE);
    }
    HRESULT STDMETHODCALLTYPE get_Strikethrough(BOOL* v) override {
        return Dar("IFont::get_Strikethrough", v, FALSE);
    }
    HRESULT STDMETHODCALLTYPE get_Charset(short* v) override {
        return Dar<short>("IFont::get_Charset", v, 0);
    }
    HRESULT STDMETHODCALLTYPE Clone(IFont** salida) override {
        return Responder(
            "IFont::Clone",
            [&] {
                *salida = CrearFuente(L"Arial", 8).template Como<IFont>().Separar();
                return S_OK;
            },
            [&](Mentira m) { Mentir(salida, m); });
    }
    HRESULT STDMETHODCALLTYPE put_Name(BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Size(CY) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Bold(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Italic(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Underline(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Strikethrough(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Weight(short*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Weight(short) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_Charset(short) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_hFont(HFONT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE IsEqual(IFont*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetRatio(LONG, LONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryTextMetrics(TEXTMETRICOLE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddRefHfont(HFONT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ReleaseHfont(HFONT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetHdc(HDC) override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID, IConnectionPoint** salida) override {
        return Responder(
            "IFont::FindConnectionPoint",
            [&] {
                *salida = Hacer<PuntoDeFuente>().Separar();
                return S_OK;
            },
            [&](Mentira m) { Mentir(salida, m); });
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        return DISP_E_MEMBERNOTFOUND;
    }

  protected:
    void* Heredada(REFIID iid) override {
        return iid == IID_IFontDisp ? static_cast<IDispatch*>(this) : nullptr;
    }
};

class Imagen final : public Tardio<Socio<IPicture, IDispatch, IPersistStream>> {
  public:
    template <class T, class U>
    HRESULT Dar(const char* que, T* salida, U valor) {
        return Responder(
            que, [&] { return *salida = static_cast<T>(valor), S_OK; },
            [&](Mentira m) { Mentir(salida, m); });
    }
    HRESULT STDMETHODCALLTYPE get_Handle(OLE_HANDLE* h) override {
        return Dar("IPicture::get_Handle", h, 0x1234);
    }
    HRESULT STDMETHODCALLTYPE get_Type(SHORT* t) override {
        static constexpr SHORT tipos[] = {PICTYPE_BITMAP, PICTYPE_ICON, PICTYPE_METAFILE,
                                          PICTYPE_ENHMETAFILE, PICTYPE_NONE};
        return Dar("IPicture::get_Type", t, A().azar.De(tipos));
    }
    HRESULT STDMETHODCALLTYPE get_Width(OLE_XSIZE_HIMETRIC* v) override {
        return Dar("IPicture::get_Width", v, A().azar.Una(2) ? 500 : A().azar.Entero());
    }
    HRESULT STDMETHODCALLTYPE get_Height(OLE_YSIZE_HIMETRIC* v) override {
        return Dar("IPicture::get_Height", v, A().azar.Una(2) ? 500 : A().azar.Entero());
    }
    HRESULT STDMETHODCALLTYPE Render(HDC, LONG, LONG, LONG, LONG, OLE_XPOS_HIMETRIC,
                                     OLE_YPOS_HIMETRIC, OLE_XSIZE_HIMETRIC, OLE_YSIZE_HIMETRIC,
                                     LPCRECT) override {
        return Bien("IPicture::Render");
    }
    HRESULT STDMETHODCALLTYPE get_Attributes(DWORD* v) override {
        return Dar("IPicture::get_Attributes", v, 0);
    }
    HRESULT STDMETHODCALLTYPE get_hPal(OLE_HANDLE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE set_hPal(OLE_HANDLE) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_CurDC(HDC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SelectPicture(HDC, HDC*, OLE_HANDLE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_KeepOriginalFormat(BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_KeepOriginalFormat(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE PictureChanged() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SaveAsFile(IStream*, BOOL, LONG*) override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE IsDirty() override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE Load(IStream*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Save(IStream* flujo, BOOL) override {
        return Responder(
            "IPicture::Save", [&] { return flujo->Write("\x6C\x74\0\0\0\0\0\0", 8, nullptr); },
            [&](Mentira m) { // leaves the place somewhere far away
                LARGE_INTEGER lejos;
                lejos.QuadPart = m == Mentira::Nula ? 0 : 0x4000000000LL;
                flujo->Seek(lejos, STREAM_SEEK_SET, nullptr);
            });
    }
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        return DISP_E_MEMBERNOTFOUND;
    }

  protected:
    void* Heredada(REFIID iid) override {
        return iid == IID_IPictureDisp ? static_cast<IDispatch*>(this) : nullptr;
    }
};

class SitioDePagina final : public Socio<IPropertyPageSite> {
  public:
    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD) override {
        return Bien("IPropertyPageSite::OnStatusChange");
    }
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override {
        return Bien("IPropertyPageSite::TranslateAccelerator");
    }
};

} // namespace

long SociosVivos() {
    return vivos;
}

Puntero<IOleClientSite> HacerSitio() {
    return Puntero<IOleClientSite>(Hacer<Sitio>().get());
}
Puntero<IDispatch> HacerEventos() {
    return Puntero<IDispatch>(Hacer<Eventos>().get());
}
Puntero<IPropertyNotifySink> HacerAvisos() {
    return Puntero<IPropertyNotifySink>(Hacer<Avisos>().get());
}
Puntero<IAdviseSink> HacerVista() {
    return Puntero<IAdviseSink>(Hacer<Vista>().get());
}
Puntero<IPropertyBag> HacerBolsa() {
    return Puntero<IPropertyBag>(Hacer<Bolsa>().get());
}
Puntero<IErrorLog> HacerDiario() {
    return Puntero<IErrorLog>(Hacer<Diario>().get());
}
Puntero<IStream> HacerFlujo(std::vector<unsigned char>& bytes) {
    return Puntero<IStream>(Hacer<Flujo>(bytes).get());
}
Puntero<IStorage> HacerAlmacen(std::vector<unsigned char>& bytes) {
    return Puntero<IStorage>(Hacer<Almacen>(bytes).get());
}
Puntero<IDispatch> HacerFuente() {
    return Puntero<IDispatch>(Hacer<Fuente>().get());
}
Puntero<IDispatch> HacerImagen() {
    return Puntero<IDispatch>(Hacer<Imagen>().get());
}
Puntero<IPropertyPageSite> HacerSitioDePagina() {
    return Puntero<IPropertyPageSite>(Hacer<SitioDePagina>().get());
}

} // namespace hostil
