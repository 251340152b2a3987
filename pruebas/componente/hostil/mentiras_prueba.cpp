// Partners that say yes and hand out nothing, say no and hand out something, or claim to have done
// more than they were asked for.
#include "pruebas/componente/hostil/banco.h"

using namespace hostil;

namespace {

constexpr Accion Mentiras[] = {Accion::CallarNulo, Accion::CallarBasura, Accion::Fallar};

/// The control still is what it was and still works.
void Usable(const Puntero<IUnknown>& objeto) {
    const auto despacho = objeto.Como<IDispatch>();
    const wchar_t* nombre = Tiene(despacho.get(), L"Enabled") ? L"Enabled" : L"MousePointer";
    Poner(despacho.get(), nombre, Variante(0));
    CHECK(Entero(Leer(despacho.get(), nombre)) == 0);
}

HRESULT PonerFuente(const Puntero<IUnknown>& objeto, const wchar_t* nombre, IDispatch* fuente) {
    const auto despacho = objeto.Como<IDispatch>();
    try {
        PonerRef(despacho.get(), nombre, Variante(fuente));
        return S_OK;
    } catch (const FalloCom& fallo) {
        return fallo.estado;
    }
}

/// A bag with one font for whatever is called so.
class BolsaConFuente final : public ObjetoCom<IPropertyBag> {
  public:
    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR clave, VARIANT* valor, IErrorLog*) override {
        if (!std::wcsstr(clave, L"Fuente") && !std::wcsstr(clave, L"Font"))
            return E_INVALIDARG;
        valor->vt = VT_DISPATCH;
        valor->pdispVal = HacerFuente().Separar();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR, VARIANT*) override { return S_OK; }
};

/// Not a receiver of notifications the first time it is asked, and one ever after.
class Indeciso final : public ObjetoCom<IDispatch, IPropertyNotifySink> {
  public:
    int preguntas = 0;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** salida) override {
        if (iid == IID_IPropertyNotifySink && preguntas++ == 0) {
            *salida = nullptr;
            return E_NOINTERFACE;
        }
        return ObjetoCom::QueryInterface(iid, salida);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* n) override { return *n = 7, S_OK; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE OnChanged(DISPID) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return S_OK; }
};

} // namespace

TEST_CASE("A font without a connection point is as good as one that tells nothing") {
    const wchar_t* clase = CadaControl();
    for (const char* donde : {"IFont::FindConnectionPoint", "IFont::Advise", "IFont::get_Name"})
        for (const Accion mentira : Mentiras) {
            const Banco b({Siempre(donde, mentira)});
            const auto control = b.Nuevo(clase);
            for (const wchar_t* nombre : {L"Font", L"Fuente", L"FuenteEtic"})
                if (Tiene(control.Como<IDispatch>().get(), nombre))
                    CHECK(PonerFuente(control, nombre, HacerFuente().get()) == S_OK);
            CHECK(control.Como<IPersistPropertyBag>()->Load(Hacer<BolsaConFuente>().get(),
                                                            nullptr) == S_OK);
            Usable(control);
        }
    CHECK(SociosVivos() == 0);
}

TEST_CASE("A font that keeps the listener it refused tells nobody that is gone") {
    const wchar_t* clase = CadaControl();
    Banco b({Siempre("IFont::Advise", Accion::Fallar)});
    {
        const auto control = b.Nuevo(clase);
        for (const wchar_t* nombre : {L"Font", L"Fuente"})
            if (Tiene(control.Como<IDispatch>().get(), nombre))
                PonerFuente(control, nombre, HacerFuente().get());
    }
    REQUIRE(b.socios.oyenteDeFuente);
    CHECK(b.socios.oyenteDeFuente->OnChanged(DISPID_UNKNOWN) == S_OK);
    b.socios.oyenteDeFuente = nullptr;
    CHECK(SociosVivos() == 0);
}

TEST_CASE("A storage that hands out no stream is a failure of the storage") {
    const wchar_t* clase = CadaControl();
    for (const Accion mentira : Mentiras) {
        const Banco b(
            {Siempre("IStorage::OpenStream", mentira), Siempre("IStorage::CreateStream", mentira)});
        const auto control = b.Nuevo(clase);
        std::vector<unsigned char> bytes;
        const auto almacen = HacerAlmacen(bytes);
        const HRESULT esperado = mentira == Accion::Fallar ? Roto : E_UNEXPECTED;
        CHECK(control.Como<IPersistStorage>()->Load(almacen.get()) == esperado);
        CHECK(control.Como<IPersistStorage>()->Save(almacen.get(), TRUE) == esperado);
        Usable(control);
    }
    CHECK(SociosVivos() == 0);
}

TEST_CASE("A stream that claims more than it was asked for, or nothing at all, is a damaged one") {
    const wchar_t* clase = CadaControl();
    const struct {
        Accion mentira;
        HRESULT leer, escribir;
    } casos[] = {{Accion::CallarBasura, STG_E_READFAULT, STG_E_WRITEFAULT},
                 {Accion::CallarNulo, STG_E_DOCFILECORRUPT, STG_E_MEDIUMFULL},
                 {Accion::Fallar, Roto, Roto}};
    for (const auto& caso : casos)
        for (int vez = 1; vez <= 3; ++vez) { // in the header, and in what follows it
            Banco b;
            const auto control = b.Nuevo(clase);
            std::vector<unsigned char> bytes, otros;
            const auto persistente = control.Como<IPersistStreamInit>();
            REQUIRE(persistente->Save(HacerFlujo(bytes).get(), TRUE) == S_OK);
            // One byte at a time would be asked for more often.
            const HRESULT estado = caso.mentira == Accion::Fallar ? Roto : S_OK;
            b.socios.Tender({{"IStream::Read", vez, false, caso.mentira, estado, 0},
                             {"IStream::Write", 1, false, caso.mentira, estado, 0}});
            const HRESULT leido = persistente->Load(HacerFlujo(bytes).get());
            CHECK((leido == caso.leer || (vez == 3 && leido == S_OK)));
            CHECK(persistente->Save(HacerFlujo(otros).get(), TRUE) == caso.escribir);
            Usable(control);
        }
    CHECK(SociosVivos() == 0);
}

TEST_CASE("A site that says yes and is nothing is no site") {
    const wchar_t* clase = CadaControl();
    for (const Accion mentira : Mentiras) {
        const Banco b({Siempre("IOleClientSite::QueryInterface", mentira)});
        const auto control = b.Nuevo(clase);
        const auto ole = control.Como<IOleObject>();
        const auto sitio = HacerSitio();
        const RECT lugar{0, 0, 100, 40};
        CHECK(ole->SetClientSite(sitio.get()) == S_OK);
        CHECK(FAILED(ole->DoVerb(OLEIVERB_SHOW, nullptr, sitio.get(), 0, nullptr, &lugar)));
        Usable(control);
        CHECK(ole->Close(OLECLOSE_NOSAVE) == S_OK);
        CHECK(ole->SetClientSite(nullptr) == S_OK);
    }
    CHECK(SociosVivos() == 0);
}

TEST_CASE("A window context that fails hands out nothing that is used") {
    const wchar_t* clase = CadaControl();
    for (const Accion mentira : Mentiras)
        for (const bool sinVentana : {false, true}) {
            std::vector<Emboscada> mentiras{Siempre("IOleInPlaceSite::GetWindowContext", mentira)};
            if (sinVentana)
                mentiras.push_back(Siempre("IOleInPlaceSite::GetWindow", mentira));
            Banco b(mentiras);
            b.socios.padre = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 300, 200, nullptr,
                                             nullptr, nullptr, nullptr);
            const auto control = b.Nuevo(clase);
            const auto ole = control.Como<IOleObject>();
            const auto sitio = HacerSitio();
            const RECT lugar{0, 0, 100, 40};
            CHECK(ole->SetClientSite(sitio.get()) == S_OK);
            const HRESULT estado =
                ole->DoVerb(OLEIVERB_UIACTIVATE, nullptr, sitio.get(), 0, b.socios.padre, &lugar);
            HWND ventana = nullptr;
            control.Como<IOleInPlaceObject>()->GetWindow(&ventana);
            if (mentira == Accion::Fallar) {
                CHECK(estado == Roto); // it refuses, and is heard
                CHECK(ventana == nullptr);
            } else if (!sinVentana) {
                CHECK(SUCCEEDED(estado));
                CHECK(IsWindow(ventana));
            } else if (mentira == Accion::CallarBasura) {
                CHECK(FAILED(estado)); // a window of nobody's
                CHECK(ventana == nullptr);
            }
            CHECK(ole->Close(OLECLOSE_NOSAVE) == S_OK);
            CHECK(ole->SetClientSite(nullptr) == S_OK);
            CHECK_FALSE(IsWindow(ventana));
            DestroyWindow(b.socios.padre);
            Usable(control);
        }
    CHECK(SociosVivos() == 0);
}

TEST_CASE("A sink that is no receiver of notifications does not become one by being asked again") {
    const Banco b;
    const auto control = b.Nuevo(CadaControl());
    Puntero<IConnectionPoint> punto;
    REQUIRE(control.Como<IConnectionPointContainer>()->FindConnectionPoint(
                IID_IPropertyNotifySink, punto.Recibir()) == S_OK);
    const auto sumidero = Hacer<Indeciso>();
    DWORD galleta = 0;
    CHECK(punto->Advise(static_cast<IDispatch*>(sumidero.get()), &galleta) ==
          CONNECT_E_CANNOTCONNECT);
    Usable(control); // would call what is no notification
}
