#include "anfitrion/marco_propiedades.h"
#include "anfitrion/pruebas/banco.h"

#include <cwchar>

using namespace falso;

namespace {

constexpr CLSID ClasePagina = {
    0x7d2f6b10, 0x1111, 0x4b5e, {0x91, 0x12, 0x20, 0x30, 0x40, 0x50, 0x60, 0x71}};

struct PaginaFalsa : ObjetoCom<IPropertyPage> {
    std::vector<std::string> llamadas;
    Puntero<IPropertyPageSite> sitio;
    ULONG objetos = 0;
    bool sucia = false;
    HRESULT alAplicar = S_OK;

    void Ensuciar() {
        sucia = true;
        sitio->OnStatusChange(PROPPAGESTATUS_DIRTY);
    }

    HRESULT STDMETHODCALLTYPE SetPageSite(IPropertyPageSite* s) override {
        llamadas.push_back(s ? "SetPageSite" : "SetPageSite nada");
        sitio = Puntero<IPropertyPageSite>(s);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Activate(HWND, LPCRECT, BOOL) override {
        llamadas.push_back("Activate");
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Deactivate() override {
        llamadas.push_back("Deactivate");
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPageInfo(PROPPAGEINFO* info) override {
        constexpr wchar_t titulo[] = L"General";
        info->pszTitle = static_cast<LPOLESTR>(CoTaskMemAlloc(sizeof titulo));
        std::wmemcpy(info->pszTitle, titulo, std::size(titulo));
        info->size = {300, 150};
        info->pszDocString = info->pszHelpFile = nullptr;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetObjects(ULONG cuantos, IUnknown**) override {
        objetos = cuantos;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Show(UINT como) override {
        llamadas.push_back(como == SW_HIDE ? "Show no" : "Show si");
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Move(LPCRECT) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE IsPageDirty() override { return sucia ? S_OK : S_FALSE; }
    HRESULT STDMETHODCALLTYPE Apply() override {
        llamadas.push_back("Apply");
        if (SUCCEEDED(alAplicar))
            sucia = false;
        return alAplicar;
    }
    HRESULT STDMETHODCALLTYPE Help(LPCOLESTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override { return S_FALSE; }
};

/// Hands out the given pages, one for each creation.
struct Fabrica : ObjetoCom<IClassFactory> {
    std::vector<Puntero<PaginaFalsa>> paginas;
    std::size_t siguiente = 0;
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID iid, void** salida) override {
        return paginas.at(siguiente++)->QueryInterface(iid, salida);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

/// A frame with two false pages over one false control.
struct BancoPaginas {
    BancoPaginas() {
        fabrica->paginas = {a, b};
        CoRegisterClassObject(ClasePagina, fabrica.get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                              &cookie);
        banco.Poner(L"uno");
        marco = std::make_unique<MarcoPropiedades>(
            banco.forma->Ventana(), L"Propiedades", Componente::DeRegistro(),
            std::vector<CLSID>{ClasePagina, CLSID_NULL, ClasePagina},
            std::vector<Puntero<IUnknown>>{banco.alojado->Como<IUnknown>()});
    }
    BancoPaginas(const BancoPaginas&) = delete;
    BancoPaginas& operator=(const BancoPaginas&) = delete;
    ~BancoPaginas() { CoRevokeClassObject(cookie); }

    void Pulsar(const wchar_t* boton) {
        const HWND ventana = FindWindowExW(marco->Ventana(), nullptr, L"BUTTON", boton);
        REQUIRE(ventana);
        SendMessageW(ventana, BM_CLICK, 0, 0);
    }
    bool AplicarActivo() {
        return IsWindowEnabled(FindWindowExW(marco->Ventana(), nullptr, L"BUTTON", L"A&plicar"));
    }

    Banco banco;
    Puntero<PaginaFalsa> a = Hacer<PaginaFalsa>();
    Puntero<PaginaFalsa> b = Hacer<PaginaFalsa>();
    Puntero<Fabrica> fabrica = Hacer<Fabrica>();
    std::unique_ptr<MarcoPropiedades> marco;
    DWORD cookie = 0;
};

} // namespace

TEST_CASE("A property frame shows the pages that exist and leaves the others out") {
    BancoPaginas t;
    REQUIRE(t.marco->Cuantas() == 2);
    REQUIRE(t.marco->Titulo(0) == L"General");
    REQUIRE(t.a->objetos == 1);
    REQUIRE(t.a->llamadas == std::vector<std::string>{"SetPageSite", "Activate", "Show si"});
    REQUIRE(t.b->llamadas == std::vector<std::string>{"SetPageSite"});
}

TEST_CASE("A page is activated when its tab is first chosen, and hidden when another is") {
    BancoPaginas t;
    t.marco->Mostrar(1);
    t.marco->Mostrar(0);
    REQUIRE(t.b->llamadas ==
            std::vector<std::string>{"SetPageSite", "Activate", "Show si", "Show no"});
    REQUIRE(t.a->llamadas.back() == "Show si");
}

TEST_CASE("Apply can be pressed while a page has changes and applies that page alone") {
    BancoPaginas t;
    REQUIRE_FALSE(t.AplicarActivo());
    t.b->Ensuciar();
    REQUIRE(t.AplicarActivo());
    t.Pulsar(L"A&plicar");
    REQUIRE(t.b->llamadas.back() == "Apply");
    REQUIRE(std::count(t.a->llamadas.begin(), t.a->llamadas.end(), "Apply") == 0);
    REQUIRE_FALSE(t.AplicarActivo());
    REQUIRE_FALSE(t.marco->Cerrado());
}

TEST_CASE("OK applies and closes") {
    BancoPaginas bien;
    bien.a->Ensuciar();
    bien.Pulsar(L"Aceptar");
    REQUIRE(bien.a->llamadas.back() == "Apply");
    REQUIRE(bien.marco->Cerrado());
}

TEST_CASE("Cancel closes without applying") {
    BancoPaginas mal;
    mal.a->Ensuciar();
    mal.Pulsar(L"Cancelar");
    REQUIRE(mal.a->llamadas.back() != "Apply");
    REQUIRE(mal.marco->Cerrado());
}

TEST_CASE("A page that refuses to apply is shown and keeps the frame open") {
    BancoPaginas t;
    t.b->Ensuciar();
    t.b->alAplicar = E_INVALIDARG;
    t.Pulsar(L"Aceptar");
    REQUIRE_FALSE(t.marco->Cerrado());
    REQUIRE(t.marco->Actual() == 1);
    REQUIRE(t.AplicarActivo());
}

TEST_CASE("A closed frame deactivates its pages and takes the objects and the site away") {
    BancoPaginas t;
    t.marco.reset();
    REQUIRE(t.a->objetos == 0);
    REQUIRE(*(t.a->llamadas.end() - 2) == "Deactivate");
    REQUIRE(t.a->llamadas.back() == "SetPageSite nada");
}

TEST_CASE("A frame without any page is refused") {
    SesionOle ole;
    REQUIRE_THROWS_AS(MarcoPropiedades(nullptr, L"", Componente::DeRegistro(), {CLSID_NULL}, {}),
                      FalloCom);
}
