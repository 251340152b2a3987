// The panel as automation sees it: members, values, notices.
#include "anfitrion/bolsa_memoria.h"
#include "pruebas/componente/panel/publicada.h"

using namespace publicado;
using anfitrion::FalloCom;

TEST_CASE("a new panel has the values of a new panel") {
    const Panel panel;
    REQUIRE(panel.Como<IPersistStreamInit>()->InitNew() == S_OK);
    CHECK(RetratoDelPanel(panel.get()) ==
          std::vector<std::string>{
              "AlinText = 4", "Caption = ", "Font = Arial 82500", "ColorLetra = -2147483640",
              "ColorFondo = 16777215", "MouseIcon = Nothing", "MousePointer = 0", "ToolTipText = ",
              "EstilosBord = 1", "EstilosRell = 0", "Enabled = True", "SeparaBorde = 1",
              "ColorDegrade = ", "BackStyle = 1", "AnchoBorde = 1", "TipoLetra = 0"});
}

TEST_CASE("a panel that nobody initialised is a new one") {
    const Panel nuevo, olvidado;
    REQUIRE(nuevo.Como<IPersistStreamInit>()->InitNew() == S_OK);
    CHECK(RetratoDelPanel(olvidado.get()) == RetratoDelPanel(nuevo.get()));
}

TEST_CASE("every property takes a value and gives it back") {
    const Panel panel;
    CambiarPanel(panel.get());
    CHECK(RetratoDelPanel(panel.get()) == RetratoCambiado());
}

TEST_CASE("every property of the panel can be read and written through its virtual table") {
    // get and put of ColorDegrade stand at 7 + 2 * 12 and the slot after it.
    const Panel panel;
    void* dual = nullptr;
    REQUIRE(panel.objeto->QueryInterface(Guid(ClaseDe(L"Area").interfaz), &dual) == S_OK);
    using Poner = HRESULT(STDMETHODCALLTYPE*)(void*, BSTR);
    using Tomar = HRESULT(STDMETHODCALLTYPE*)(void*, BSTR*);
    void** tabla = *static_cast<void***>(dual);
    const anfitrion::Cadena lista(L"255*0");
    CHECK(reinterpret_cast<Poner>(tabla[7 + 2 * 12 + 1])(dual, lista.get()) == S_OK);
    anfitrion::Cadena leida;
    CHECK(reinterpret_cast<Tomar>(tabla[7 + 2 * 12])(dual, leida.Recibir()) == S_OK);
    CHECK(leida.Texto() == L"255*0");
    using Llamar = HRESULT(STDMETHODCALLTYPE*)(void*, VARIANT_BOOL*);
    VARIANT_BOOL crear = VARIANT_TRUE;
    CHECK(reinterpret_cast<Llamar>(tabla[7 + 2 * 13])(dual, &crear) == S_OK);
    CHECK(crear == VARIANT_TRUE);
    static_cast<IUnknown*>(dual)->Release();
}

TEST_CASE("values outside their enumeration are kept, what is no value is refused") {
    const Panel panel;
    Poner(panel.get(), L"EstilosBord", 77);
    CHECK(anfitrion::Entero(Leer(panel.get(), L"EstilosBord")) == 77);
    Poner(panel.get(), L"AlinText", -3);
    CHECK(anfitrion::Entero(Leer(panel.get(), L"AlinText")) == -3);
    CHECK(IntentarPoner(panel.get(), L"SeparaBorde", L"ancho") == DISP_E_TYPEMISMATCH);
    CHECK(IntentarPoner(panel.get(), L"MousePointer", 70000) == DISP_E_OVERFLOW);
    CHECK(anfitrion::Entero(Leer(panel.get(), L"SeparaBorde")) == 1);
    try {
        PonerRef(panel.get(), L"Font", Variante(static_cast<IDispatch*>(nullptr)));
        FAIL("a panel without font");
    } catch (const FalloCom& fallo) {
        CHECK(fallo.estado == static_cast<HRESULT>(0x800A017C)); // invalid property value
        CHECK_FALSE(fallo.descripcion.empty());
    }
    CHECK(Describir(Leer(panel.get(), L"Font")) == "Arial 82500");
}

TEST_CASE("the container hears of a value that changed, and once for what it has already") {
    anfitrion::Componente componente = anfitrion::Componente::DeFichero(RutaDelComponente());
    const Panel panel;
    REQUIRE(panel.Como<IPersistStreamInit>()->InitNew() == S_OK);
    const auto persistente = panel.Como<IPersistStreamInit>();
    const auto limpiar = [&] {
        REQUIRE(persistente->Save(FlujoDe({}).get(), TRUE) == S_OK);
        REQUIRE(persistente->IsDirty() == S_FALSE);
    };
    limpiar();
    Poner(panel.get(), L"EstilosBord", 1);
    Poner(panel.get(), L"ColorFondo", 0xFFFFFF);
    Poner(panel.get(), L"Enabled", true);
    CHECK(persistente->IsDirty() == S_FALSE);
    Poner(panel.get(), L"EstilosBord", 2);
    CHECK(persistente->IsDirty() == S_OK);
    limpiar();
    Poner(panel.get(), L"Caption", L""); // kept on a label: assigned again
    CHECK(persistente->IsDirty() == S_OK);
}
