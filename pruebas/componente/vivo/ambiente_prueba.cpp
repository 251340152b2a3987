// What the container says of the surroundings, and containers that say nothing.
#include "pruebas/componente/comun/lamina.h"
#include "pruebas/componente/vivo/banco.h"

#include <olectl.h>

using namespace vivo;

namespace {

void Pulsar(Banco& b) {
    b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
    b.Enviar(WM_LBUTTONUP, 0, 5, 5);
}

Puntero<IFontDisp> HacerFuente(const wchar_t* nombre, int puntos) {
    const Cadena texto(nombre);
    FONTDESC descripcion{};
    descripcion.cbSizeofstruct = sizeof descripcion;
    descripcion.lpstrName = texto.get();
    descripcion.cySize.int64 = puntos * 10000;
    descripcion.sWeight = FW_NORMAL;
    descripcion.sCharset = DEFAULT_CHARSET;
    Puntero<IFontDisp> fuente;
    Comprobar(OleCreateFontIndirect(&descripcion, IID_IFontDisp, fuente.RecibirVoid()), "fuente");
    return fuente;
}

OpcionesFormulario ConFuente(const wchar_t* nombre, int puntos) {
    AbrirOle();
    OpcionesFormulario opciones;
    opciones.ambiente.fuente = HacerFuente(nombre, puntos);
    return opciones;
}

double Tamano(Banco& b) {
    const Variante fuente = b.Leer(L"Font");
    return Real(anfitrion::Leer(fuente.pdispVal, L"Size"));
}

/// The user's separators for the length of a test.
class SeparadorDecimal {
  public:
    SeparadorDecimal(const wchar_t* decimal, const wchar_t* miles) {
        GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, decimal_, 8);
        GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, miles_, 8);
        Escribir(decimal, miles);
    }
    SeparadorDecimal(const SeparadorDecimal&) = delete;
    SeparadorDecimal& operator=(const SeparadorDecimal&) = delete;
    ~SeparadorDecimal() { Escribir(decimal_, miles_); }

  private:
    static void Escribir(const wchar_t* decimal, const wchar_t* miles) {
        CHECK(SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, decimal));
        CHECK(SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, miles));
    }
    wchar_t decimal_[8] = {}, miles_[8] = {};
};

Puntero<IDispatch> HacerEfectos(const Componente& componente) {
    return componente.Crear(componente.Clase(L"Pincela.Efectos")).Como<IDispatch>();
}

/// The left-most pixel of a horizontal gradient of those colours.
COLORREF PrimerColor(IDispatch* efectos, const wchar_t* colores) {
    const publicado::Lamina lamina(100, 10);
    Llamar(efectos, L"Degrade", {lamina.Numero(), 100L, 10L, 1L, colores});
    return lamina.Pixel(0, 5);
}

} // namespace

TEST_CASE("In design mode the button neither hovers nor clicks") {
    OpcionesFormulario opciones;
    opciones.ambiente.modoUsuario = false;
    Banco b(opciones);
    b.Poner(L"ColorFondoSobre", 0xFF00L);
    const Captura antes = Captura::DeVentana(b.Ventana());
    b.Enviar(WM_MOUSEMOVE, 0, 5, 5);
    Pulsar(b);
    b.Pulsacion(VK_SPACE);
    b.Pulsacion('A');
    SendMessageW(b.Ventana(), WM_CHAR, 'a', 1);
    MSG mensaje{b.Ventana(), WM_SYSKEYDOWN, 'A', 0x20000001, 0, {}};
    CHECK(b.boton->Como<IOleControl>()->OnMnemonic(&mensaje) == S_OK);
    CHECK(b.Sucesos() == Hechos{});
    CHECK(b.Veces("MouseMove") == 0);
    CHECK(Captura::DeVentana(b.Ventana()) == antes);
}

TEST_CASE("The change to design mode and back counts from its announcement") {
    Banco b;
    b.forma->PonerModoUsuario(false);
    Pulsar(b);
    CHECK(b.Veces("Click") == 0);
    b.forma->PonerModoUsuario(true);
    Pulsar(b);
    CHECK(b.Veces("Click") == 1);
}

TEST_CASE("A form that goes to design mode ends what the mouse had begun, without an event") {
    Banco b;
    b.Poner(L"ColorFondoSobre", 0xFF00L);
    b.Poner(L"FocoVisible", false);
    const Captura normal = Captura::DeVentana(b.Ventana());
    SUBCASE("a hover") {
        b.Enviar(WM_MOUSEMOVE, 0, 5, 5);
    }
    SUBCASE("a press") {
        b.Enviar(WM_MOUSEMOVE, 0, 5, 5);
        b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
    }
    SUBCASE("a key that is down") {
        SendMessageW(b.Ventana(), WM_KEYDOWN, VK_SPACE, 1);
    }
    CHECK(Captura::DeVentana(b.Ventana()) != normal);
    b.Olvidar();
    b.forma->PonerModoUsuario(false);
    CHECK(Captura::DeVentana(b.Ventana()) == normal);
    SendMessageW(b.Ventana(), WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001));
    SendMessageW(b.Ventana(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    b.Esperar(100); // longer than the poll of the mouse takes
    CHECK(b.Sucesos() == Hechos{});
    CHECK(Captura::DeVentana(b.Ventana()) == normal);
}

TEST_CASE("User mode is asked once, and again after any announcement that may concern it") {
    Banco b;
    const auto preguntas = [&] {
        int veces = 0;
        for (const auto& llamada : b.registro->Llamadas())
            veces += llamada.nombre == "IDispatch::Invoke" &&
                     llamada.detalle == std::to_string(DISPID_AMBIENT_USERMODE);
        return veces;
    };
    Pulsar(b);
    b.Olvidar();
    Pulsar(b);
    CHECK(preguntas() == 0);
    const auto control = b.boton->Como<IOleControl>();
    CHECK(control->OnAmbientPropertyChange(DISPID_UNKNOWN) == S_OK);
    Pulsar(b);
    CHECK(preguntas() == 1);
}

TEST_CASE("Every ambient announcement is accepted, even one that nobody knows") {
    Banco b;
    const auto control = b.boton->Como<IOleControl>();
    for (const DISPID numero :
         {DISPID_AMBIENT_BACKCOLOR, DISPID_AMBIENT_FORECOLOR, DISPID_AMBIENT_FONT,
          DISPID_AMBIENT_LOCALEID, DISPID_AMBIENT_DISPLAYASDEFAULT, DISPID_AMBIENT_DISPLAYNAME,
          DISPID_AMBIENT_SCALEUNITS, -799, 12345, DISPID_UNKNOWN})
        CHECK(control->OnAmbientPropertyChange(numero) == S_OK);
    Pulsar(b);
    CHECK(b.Veces("Click") == 1);
}

TEST_CASE("A change of the user's settings counts at once for what is read from text") {
    Banco b;
    const auto efectos = HacerEfectos(b.componente);
    const SeparadorDecimal coma(L",", L".");
    CHECK(PrimerColor(efectos.get(), L"512,4*0") == 512);
    const SeparadorDecimal punto(L".", L",");
    CHECK(PrimerColor(efectos.get(), L"512,4*0") == 5124);
}

TEST_CASE("A new button takes the font of its form, and a copy of it") {
    Banco b(ConFuente(L"Arial", 18));
    CHECK(Tamano(b) == doctest::Approx(18).epsilon(0.02));
    const auto otro = b.Agregar(L"Otro", {170, 40, 290, 80});
    anfitrion::Poner(anfitrion::Leer(otro->Despacho(), L"Font").pdispVal, L"Size", 30L);
    CHECK(Tamano(b) == doctest::Approx(18).epsilon(0.02));
}

TEST_CASE("A font that nobody changed follows the form's, on the screen too") {
    Banco b(ConFuente(L"Arial", 8));
    b.Poner(L"Caption", L"XXXX");
    b.Poner(L"ColorLetra", 0xFFL);
    b.Esperar();
    const RECT todo{0, 0, 120, 40};
    const int pequena = Captura::DeVentana(b.Ventana()).Contar(todo, 0xFF);
    b.forma->CambiarAmbiente(DISPID_AMBIENT_FONT,
                             [](Ambiente& a) { a.fuente = HacerFuente(L"Arial", 16); });
    b.Esperar();
    CHECK(Tamano(b) == doctest::Approx(16).epsilon(0.02));
    const Captura grande = Captura::DeVentana(b.Ventana());
    CHECK(grande.Contar(todo, 0xFF) > pequena);
    // Still in the middle: about as much on the left as on the right.
    const int izquierda = grande.Contar({0, 0, 60, 40}, 0xFF);
    const int derecha = grande.Contar({60, 0, 120, 40}, 0xFF);
    CHECK(izquierda > derecha / 2);
    CHECK(derecha > izquierda / 2);
}

TEST_CASE("A font of its own stays when the form's changes") {
    Banco b(ConFuente(L"Arial", 8));
    SUBCASE("assigned") {
        anfitrion::PonerRef(b.boton->Despacho(), L"Font",
                            Variante(static_cast<IDispatch*>(HacerFuente(L"Arial", 12).get())));
    }
    SUBCASE("changed in place") {
        anfitrion::Poner(b.Leer(L"Font").pdispVal, L"Size", 12L);
    }
    b.forma->CambiarAmbiente(DISPID_AMBIENT_FONT,
                             [](Ambiente& a) { a.fuente = HacerFuente(L"Arial", 20); });
    // The platform rounds a size to whole pixels of its font.
    CHECK(Tamano(b) == doctest::Approx(12).epsilon(0.1));
}

TEST_CASE("A site that offers nothing optional gets a button that works") {
    OpcionesFormulario opciones;
    opciones.sitio = OpcionesSitio::Pobre();
    Banco b(opciones);
    b.Poner(L"Caption", L"&Pobre");
    b.Poner(L"ColorFondo", 0xFFL);
    b.Poner(L"ColorFondoSobre", 0xFF00L);
    b.Enviar(WM_MOUSEMOVE, 0, 5, 5);
    CHECK(b.Centro() == 0xFF00);
    b.Esperar(100);
    CHECK(b.Veces("MouseSale") == 1);
    CHECK(b.Centro() == 0xFF);
    Pulsar(b);
    CHECK(b.Veces("Click") == 1);
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Pulsacion(VK_RETURN);
    CHECK(b.Veces("Click") == 2);
    MSG mensaje{b.Ventana(), WM_SYSKEYDOWN, 'P', 0x20000001, 0, {}};
    CHECK(b.boton->Como<IOleControl>()->OnMnemonic(&mensaje) == S_OK);
    CHECK(b.Veces("Click") == 3);
    CHECK(b.boton->Como<IOleInPlaceActiveObject>()->TranslateAccelerator(&mensaje) == S_FALSE);
}

TEST_CASE("A site that is nothing but a site can show the button, but not activate it") {
    class Sitio final : public ObjetoCom<IOleClientSite> {
      public:
        HRESULT STDMETHODCALLTYPE SaveObject() override { return E_NOTIMPL; }
        HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override {
            return E_NOTIMPL;
        }
        HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
        HRESULT STDMETHODCALLTYPE ShowObject() override { return E_NOTIMPL; }
        HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return E_NOTIMPL; }
        HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }
    };
    AbrirOle();
    const Componente componente = Componente::DeFichero(RutaComponente());
    {
        const auto objeto =
            componente.Crear(componente.Clase(L"Pincela.Botonazo")).Como<IOleObject>();
        const auto sitio = Hacer<Sitio>();
        CHECK(objeto->SetClientSite(sitio.get()) == S_OK);
        Poner(objeto.Como<IDispatch>().get(), L"ColorFondo", 0xFFL);
        const RECT lugar{0, 0, 50, 20};
        CHECK(FAILED(
            objeto->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, sitio.get(), 0, nullptr, &lugar)));
        const Captura vista = Captura::DeDibujo(50, 20, [&](HDC dc) {
            const RECTL limites{0, 0, 50, 20};
            CHECK(objeto.Como<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                                                   dc, &limites, nullptr, nullptr, 0) == S_OK);
        });
        CHECK(vista.Contar({0, 0, 50, 20}, 0xFF) > 500);
        CHECK(objeto->Close(OLECLOSE_NOSAVE) == S_OK);
        CHECK(objeto->SetClientSite(nullptr) == S_OK);
    }
    CHECK(componente.PuedeDescargarse());
}
