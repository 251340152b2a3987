// The end of a control, in every order that containers bring it about.
#include "pruebas/componente/vivo/banco.h"

using namespace vivo;

namespace {

Puntero<IOleObject> Objeto(Banco& b) {
    return b.boton->Como<IOleObject>();
}

} // namespace

TEST_CASE("A control taken off its form leaves no reference, with the focus or without") {
    for (const bool conFoco : {false, true}) {
        CAPTURE(conFoco);
        Banco b;
        if (conFoco) {
            b.boton->Verbo(OLEIVERB_UIACTIVATE);
            b.Esperar();
            SetFocus(b.forma->Ventana());
        }
        b.sumidero.Soltar();
        const auto boton = std::move(b.boton);
        CHECK(b.forma->Quitar(*boton) == 0);
        CHECK(b.componente.PuedeDescargarse());
    }
}

TEST_CASE("A control taken off while it has the focus leaves no reference") {
    Banco b;
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    b.sumidero.Soltar();
    const auto boton = std::move(b.boton);
    CHECK(b.forma->Quitar(*boton) == 0);
    CHECK(b.componente.PuedeDescargarse());
}

TEST_CASE("Losing the focus gives back what having it held") {
    Banco b;
    const HWND texto = b.AgregarTexto(5);
    const auto cuenta = [&] {
        IUnknown* objeto = b.boton->Objeto();
        objeto->AddRef();
        return objeto->Release();
    };
    SetFocus(texto);
    b.Esperar();
    const ULONG antes = cuenta();
    for (int vez = 0; vez < 5; ++vez) {
        b.boton->Verbo(OLEIVERB_UIACTIVATE);
        b.Esperar(20);
        SetFocus(texto);
        b.Esperar(20);
    }
    CHECK(cuenta() == antes);
}

TEST_CASE("The site may be taken away before the control is closed") {
    OpcionesFormulario opciones;
    opciones.sitio.cierreDescuidado = true;
    Banco b(opciones);
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    b.sumidero.Soltar();
    const auto boton = std::move(b.boton);
    CHECK(b.forma->Quitar(*boton) == 0);
    CHECK(b.componente.PuedeDescargarse());
}

TEST_CASE("A control may be closed twice, and activated again afterwards") {
    Banco b;
    const auto objeto = Objeto(b);
    CHECK(objeto->Close(OLECLOSE_NOSAVE) == S_OK);
    CHECK(b.Ventana() == nullptr);
    CHECK(objeto->Close(OLECLOSE_NOSAVE) == S_OK);
    b.boton->Activar(false);
    REQUIRE(b.Ventana() != nullptr);
    b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
    b.Enviar(WM_LBUTTONUP, 0, 5, 5);
    CHECK(b.Veces("Click") == 1);
}

TEST_CASE("A control without a site can be closed") {
    AbrirOle();
    const Componente componente = Componente::DeFichero(RutaComponente());
    auto objeto = componente.Crear(componente.Clase(L"Pincela.Botonazo")).Como<IOleObject>();
    CHECK(objeto->SetClientSite(nullptr) == S_OK);
    CHECK(objeto->Close(OLECLOSE_SAVEIFDIRTY) == S_OK);
    CHECK(objeto->Close(OLECLOSE_NOSAVE) == S_OK);
    CHECK(objeto.Soltar() == 0);
    CHECK(componente.PuedeDescargarse());
}

TEST_CASE("A control that nobody closed takes its window along with the last release") {
    Banco b;
    const HWND ventana = b.Ventana();
    REQUIRE(IsWindow(ventana));
    const auto enSitio = b.boton->Como<IOleInPlaceObject>();
    b.boton->Como<IOleObject>()->SetClientSite(nullptr);
    CHECK_FALSE(IsWindow(ventana));
}

TEST_CASE("A close with unsaved changes asks the container to save, one without does not") {
    Banco b;
    b.Poner(L"Caption", L"Cambiado");
    b.Olvidar();
    CHECK(Objeto(b)->Close(OLECLOSE_SAVEIFDIRTY) == S_OK);
    CHECK(b.registro->Veces("IOleClientSite::SaveObject") == 1);
    CHECK(Objeto(b)->Close(OLECLOSE_NOSAVE) == S_OK);
    CHECK(b.registro->Veces("IOleClientSite::SaveObject") == 1);
}

TEST_CASE("Nothing is told after the close") {
    Banco b;
    b.Entrar(5, 5);
    const auto boton = b.boton;
    b.forma->Quitar(*boton);
    b.Olvidar();
    b.Esperar(100);
    CHECK(b.hechos.empty());
}

TEST_CASE("The last release may be re-entered by what it releases") {
    // A sink that takes and gives back one more reference when it is let go itself.
    class Terco final : public ObjetoCom<IDispatch> {
      public:
        explicit Terco(IUnknown* objeto) : objeto_(objeto) {}
        HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
        HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override {
            return E_NOTIMPL;
        }
        HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
            return E_NOTIMPL;
        }
        HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*,
                                         EXCEPINFO*, UINT*) override {
            return S_OK;
        }

      protected:
        ~Terco() override {
            objeto_->AddRef();
            objeto_->Release();
        }

      private:
        IUnknown* objeto_; // not owned: that is the point
    };

    AbrirOle();
    const Componente componente = Componente::DeFichero(RutaComponente());
    auto objeto = componente.Crear(componente.Clase(L"Pincela.Botonazo"));
    {
        const auto clase = objeto.Como<IProvideClassInfo2>();
        GUID eventos{};
        REQUIRE(clase->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &eventos) == S_OK);
        Puntero<IConnectionPoint> punto;
        REQUIRE(objeto.Como<IConnectionPointContainer>()->FindConnectionPoint(
                    eventos, punto.Recibir()) == S_OK);
        DWORD galleta = 0;
        REQUIRE(punto->Advise(Hacer<Terco>(objeto.get()).get(), &galleta) == S_OK);
    }
    CHECK(objeto.Soltar() == 0);
    CHECK(componente.PuedeDescargarse());
}
