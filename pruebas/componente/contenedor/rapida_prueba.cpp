// Everything said in one call (IQuickActivate) is said as truly as in many.
#include "pruebas/cada.h"
#include "pruebas/componente/comun/sumideros.h"
#include "pruebas/componente/contenedor/terco.h"

using namespace contenedor;
using pincela::pruebas::Cada;

namespace {

class Vista : public ObjetoCom<IAdviseSinkEx> {
  public:
    int vistas = 0;
    void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override {}
    void STDMETHODCALLTYPE OnViewChange(DWORD, LONG) override { ++vistas; }
    void STDMETHODCALLTYPE OnRename(IMoniker*) override {}
    void STDMETHODCALLTYPE OnSave() override {}
    void STDMETHODCALLTYPE OnClose() override {}
    void STDMETHODCALLTYPE OnViewStatusChange(DWORD) override {}

  protected:
    void* Heredada(REFIID iid) override {
        return iid == IID_IAdviseSink ? static_cast<IAdviseSinkEx*>(this) : nullptr;
    }
};

/// Implements the interface of notices and doesn't admit it.
class Negado : public publicado::Oyente {
    bool Ofrece(REFIID) const override { return false; }
};

struct Rapida {
    explicit Rapida(const wchar_t* clase)
        : componente(anfitrion::Componente::DeFichero(publicado::RutaDelComponente())),
          objeto(publicado::Crear(componente, clase)), sitio(Hacer<SitioTerco>()),
          vista(Hacer<Vista>()), avisos(Hacer<publicado::Oyente>()) {
        dado.cbSize = sizeof dado;
        dado.pClientSite = sitio.get();
        dado.pAdviseSink = vista.get();
        dado.pPropertyNotifySink = avisos.get();
        recibido.cbSize = sizeof recibido;
    }
    HRESULT Hacerlo() { return objeto.Como<IQuickActivate>()->QuickActivate(&dado, &recibido); }
    void Poner(const wchar_t* nombre, const anfitrion::Variante& valor) {
        anfitrion::Poner(objeto.Como<IDispatch>().get(), nombre, valor);
    }
    Puntero<IOleClientSite> Sitio() const {
        Puntero<IOleClientSite> suyo;
        CHECK(objeto.Como<IOleObject>()->GetClientSite(suyo.Recibir()) == S_OK);
        return suyo;
    }
    Puntero<IAdviseSink> DeVista() const {
        Puntero<IAdviseSink> suyo;
        CHECK(objeto.Como<IViewObject>()->GetAdvise(nullptr, nullptr, suyo.Recibir()) == S_OK);
        return suyo;
    }

    publicado::SesionOle ole;
    anfitrion::Componente componente;
    Puntero<IUnknown> objeto;
    Puntero<SitioTerco> sitio;
    Puntero<Vista> vista;
    Puntero<publicado::Oyente> avisos;
    QACONTAINER dado{};
    QACONTROL recibido{};
};

const wchar_t* CadaClase() {
    return Cada({L"Botonazo", L"Area", L"Tbox", L"TBoxML", L"TboxSS", L"TboxSSML"});
}

} // namespace

TEST_CASE("A control activated in one call is connected to all that it was given") {
    Rapida r(CadaClase());
    REQUIRE(r.Hacerlo() == S_OK);
    CHECK(r.Sitio().get() == static_cast<IOleClientSite*>(r.sitio.get()));
    CHECK(r.DeVista().get() == static_cast<IAdviseSink*>(r.vista.get()));
    CHECK(r.recibido.cbSize == sizeof r.recibido);
    CHECK(r.recibido.dwPropNotifyCookie != 0);
    CHECK(r.recibido.dwEventCookie == 0); // nobody was given
    REQUIRE(r.objeto.Como<IPersistStreamInit>()->InitNew() == S_OK);
    r.Poner(L"ColorFondo", 0x123456L);
    CHECK(r.avisos->oidos.size() == 1);
    CHECK(r.vista->vistas > 0);
}

TEST_CASE("Nothing stays half connected when one connection of several is refused") {
    const std::wstring clase = CadaClase();
    for (const bool eventos : {true, false}) {
        CAPTURE(eventos);
        Rapida r(clase.c_str());
        const auto mudo = Hacer<Negado>();
        if (eventos)
            r.dado.pUnkEventSink = mudo.get();
        else
            r.dado.pPropertyNotifySink = mudo.get();
        CHECK(r.Hacerlo() == CONNECT_E_CANNOTCONNECT);
        CHECK_FALSE(r.Sitio());
        CHECK_FALSE(r.DeVista());
        CHECK(r.recibido.dwPropNotifyCookie == 0);
        CHECK(r.recibido.dwEventCookie == 0);
        REQUIRE(r.objeto.Como<IPersistStreamInit>()->InitNew() == S_OK);
        r.Poner(L"ColorFondo", 0x123456L);
        CHECK(r.avisos->oidos.empty());
        CHECK(r.vista->vistas == 0);
    }
}

TEST_CASE("The view of a control is opaque when nothing of the form is seen through it") {
    const struct {
        const wchar_t* clase;
        const wchar_t* propiedad;
        long valor;
        bool opaca;
    } casos[] = {
        {L"Botonazo", L"Estilos", 0, true},  {L"Botonazo", L"Estilos", 1, false},
        {L"Area", L"BackStyle", 1, true},    {L"Area", L"BackStyle", 0, false},
        {L"Tbox", L"BackStyle", 1, true},    {L"Tbox", L"BackStyle", 0, false},
        {L"TboxSS", L"BackStyle", 1, true},  {L"TboxSS", L"BackStyle", 0, false},
        {L"TBoxML", L"BackStyle", 0, false}, {L"TboxSSML", L"BackStyle", 0, false},
    };
    for (const auto& caso : casos) {
        INFO(anfitrion::Estrechar(caso.clase), " ", caso.valor);
        Rapida r(caso.clase);
        REQUIRE(r.objeto.Como<IPersistStreamInit>()->InitNew() == S_OK);
        r.Poner(caso.propiedad, caso.valor);
        REQUIRE(r.Hacerlo() == S_OK);
        const DWORD opaca = VIEWSTATUS_OPAQUE;
        CHECK((r.recibido.dwViewStatus & opaca) == (caso.opaca ? opaca : 0));
        CHECK((r.recibido.dwViewStatus & VIEWSTATUS_SURFACE) == 0);
    }
}

TEST_CASE("A control that was not loaded yet promises nothing of its view") {
    Rapida r(CadaClase());
    REQUIRE(r.Hacerlo() == S_OK);
    CHECK(r.recibido.dwViewStatus == 0);
}

TEST_CASE("There is no policy for a pointer without the interface that goes with it") {
    Rapida r(CadaClase());
    REQUIRE(r.Hacerlo() == S_OK);
    CHECK_FALSE(r.objeto.Como<IPointerInactive>());
    CHECK(r.recibido.dwPointerActivationPolicy == 0);
}

TEST_CASE("Records of another size than the interface's are refused and left alone") {
    const std::wstring clase = CadaClase();
    for (const bool respuesta : {true, false}) {
        CAPTURE(respuesta);
        Rapida r(clase.c_str());
        (respuesta ? r.recibido.cbSize : r.dado.cbSize) = sizeof(ULONG);
        const ULONG antes = r.recibido.cbSize;
        r.recibido.dwPointerActivationPolicy = 77;
        CHECK(r.Hacerlo() == E_INVALIDARG);
        CHECK(r.recibido.cbSize == antes);
        CHECK(r.recibido.dwPointerActivationPolicy == 77);
        CHECK_FALSE(r.Sitio());
    }
}

TEST_CASE("What one call says of the surroundings counts as if it had been asked") {
    Terco t;
    const auto rapida = t.objeto.Como<IQuickActivate>();
    QACONTAINER dado{};
    dado.cbSize = sizeof dado;
    dado.pClientSite = t.sitio.get();
    dado.dwAmbientFlags = QACONTAINER_USERMODE | QACONTAINER_UIDEAD;
    QACONTROL recibido{};
    recibido.cbSize = sizeof recibido;
    REQUIRE(rapida->QuickActivate(&dado, &recibido) == S_OK);
    REQUIRE(t.Verbo(OLEIVERB_INPLACEACTIVATE) == S_OK);
    SetFocus(t.texto);
    t.Clic();
    CHECK(GetFocus() == t.texto);
}
