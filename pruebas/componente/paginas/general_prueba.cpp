// The general page in a frame that does nothing but what is asked.
#include "pruebas/componente/paginas/banco.h"

#include <algorithm>

using namespace paginas;

namespace {

constexpr HRESULT Tipos = static_cast<HRESULT>(0x800A000D);
constexpr HRESULT Desborda = static_cast<HRESULT>(0x800A0006);

struct General : BancoPagina {
    General() : BancoPagina(L"ProPGeneral") {
        boton = Boton();
        Poner(boton.get(), L"Caption", L"Uno");
        Poner(boton.get(), L"Estilos", 1);
        Poner(boton.get(), L"RelX", 0.25);
        Poner(boton.get(), L"RelY", 0.5);
        REQUIRE(Seleccionar({boton}) == S_OK);
        REQUIRE(Activar() == S_OK);
        deslizadores = {Tras(Dialogo(), L"Rel_X"), Tras(Dialogo(), L"Rel_Y")};
        for (HWND& uno : deslizadores)
            uno = GetWindow(uno, GW_HWNDNEXT);
    }
    std::wstring Texto(const wchar_t* propiedad) {
        return anfitrion::Texto(Leer(boton.get(), propiedad));
    }
    long Numero(const wchar_t* propiedad) {
        return anfitrion::Entero(Leer(boton.get(), propiedad));
    }
    double Real(const wchar_t* propiedad) { return anfitrion::Real(Leer(boton.get(), propiedad)); }

    Puntero<IDispatch> boton;
    std::vector<HWND> deslizadores;
};

} // namespace

TEST_CASE("The page is called General and says how large it is") {
    General g;
    PROPPAGEINFO info{};
    info.cb = sizeof info;
    REQUIRE(g.pagina->GetPageInfo(&info) == S_OK);
    CHECK(std::wstring(info.pszTitle) == L"General");
    CHECK(info.size.cx > 300);
    CHECK(info.size.cy > 200);
    CoTaskMemFree(info.pszTitle);
    CHECK(g.pagina->GetPageInfo(nullptr) == E_POINTER);
}

TEST_CASE("The page shows the button in the widgets beside their labels") {
    General g;
    CHECK(Leido(g.Campo(L"Texto")) == L"Uno");
    CHECK(g.Indice(g.Campo(L"Estilo Boton")) == 1);
    CHECK(g.Indice(g.Campo(L"Efectos Boton")) == 0);
    CHECK(g.Indice(g.Campo(L"Alin-Text")) == 4);
    CHECK(g.Indice(g.Campo(L"Alin-Imag")) == 0);
    CHECK(g.Indice(g.Campo(L"Ancho Borde")) == 0);
    CHECK(g.Indice(g.Campo(L"Estilo Borde")) == 1);
    CHECK(g.Indice(g.Campo(L"Tipo Letra")) == 0);
    CHECK(g.Marcada(g.La(L"Habilitado")));
    CHECK(g.Marcada(g.La(L"Foco Visible")));
    CHECK(g.Marcada(g.La(L"Estirar-Contraer Imagen")));
    CHECK_FALSE(g.Marcada(g.La(L"Foco Con Mouse")));
    CHECK_FALSE(g.Marcada(g.La(L"Cambio Progrecivo")));
    CHECK(Leido(g.Campo(L"Cambio Progrecivo")) == L"0");
    CHECK(SendMessageW(g.deslizadores[0], TBM_GETPOS, 0, 0) == 25);
    CHECK(SendMessageW(g.deslizadores[1], TBM_GETPOS, 0, 0) == 50);
    CHECK_FALSE(g.Sucia());
    CHECK(g.sitio->estados.empty());
}

TEST_CASE("An edit dirties the page once, and applying it writes the button") {
    General g;
    g.Escribir(g.Campo(L"Texto"), L"Dos");
    g.Elegir(g.Campo(L"Ancho Borde"), 2);
    g.Pulsar(g.La(L"Foco Con Mouse"));
    g.Escribir(g.Campo(L"Cambio Progrecivo"), L"12");
    CHECK(g.Sucia());
    CHECK(g.sitio->estados == std::vector<DWORD>{PROPPAGESTATUS_DIRTY});
    CHECK(g.Texto(L"Caption") == L"Uno");
    CHECK(g.pagina->Apply() == S_OK);
    CHECK_FALSE(g.Sucia());
    CHECK(g.sitio->estados == std::vector<DWORD>{PROPPAGESTATUS_DIRTY, PROPPAGESTATUS_CLEAN});
    CHECK(g.Texto(L"Caption") == L"Dos");
    CHECK(g.Numero(L"AnchoBorde") == 3);
    CHECK(anfitrion::Logico(Leer(g.boton.get(), L"FocoConMouse")));
    CHECK(g.Numero(L"CambioProgrePasos") == 12);
}

TEST_CASE("Several buttons get the page, and the last one is shown") {
    General g;
    const auto otro = g.Boton();
    Poner(otro.get(), L"Caption", L"Otro");
    REQUIRE(g.Seleccionar({g.boton, otro}) == S_OK);
    CHECK(Leido(g.Campo(L"Texto")) == L"Otro");
    g.Escribir(g.Campo(L"Texto"), L"Ambos");
    CHECK(g.pagina->Apply() == S_OK);
    CHECK(g.Texto(L"Caption") == L"Ambos");
    CHECK(anfitrion::Texto(Leer(otro.get(), L"Caption")) == L"Ambos");
}

TEST_CASE("An object of another class is a type mismatch with a Spanish description") {
    General g;
    const auto efectos = Crear(g.componente, L"Efectos").Como<IDispatch>();
    CHECK(g.Seleccionar({g.boton, efectos}) == Tipos);
    Puntero<IErrorInfo> info;
    REQUIRE(GetErrorInfo(0, info.Recibir()) == S_OK);
    anfitrion::Cadena descripcion;
    CHECK(info->GetDescription(descripcion.Recibir()) == S_OK);
    CHECK(descripcion.Texto().find(L"tipos") != std::wstring::npos);
    CHECK_FALSE(g.Sucia());
    g.Escribir(g.Campo(L"Texto"), L"Antes");
    CHECK(g.pagina->Apply() == Tipos);
    CHECK(g.Texto(L"Caption") == L"Antes"); // before the wrong one: whole
    CHECK(g.Sucia());
    CHECK(g.Seleccionar({g.boton}) == S_OK);
    CHECK_FALSE(g.Sucia());
}

TEST_CASE("What can't be converted is an error of the apply, and the page stays dirty") {
    General g;
    g.Escribir(g.Campo(L"Cambio Progrecivo"), L"256");
    CHECK(g.pagina->Apply() == Desborda);
    CHECK(g.Sucia());
    g.Escribir(g.Campo(L"Cambio Progrecivo"), L"");
    CHECK(g.pagina->Apply() == Tipos);
    g.Escribir(g.Campo(L"Cambio Progrecivo"), L"255");
    CHECK(g.pagina->Apply() == S_OK);
    CHECK_FALSE(g.Sucia());
}

TEST_CASE("The curvature is in use for the rounded shape, and the preview takes it") {
    General g;
    const HWND vista = GetWindow(g.deslizadores[1], GW_HWNDNEXT);
    RECT r{};
    GetClientRect(vista, &r);
    const HRGN forma = CreateRectRgn(0, 0, 0, 0);
    CHECK(GetWindowRgn(vista, forma) == COMPLEXREGION);
    CHECK_FALSE(PtInRegion(forma, 0, 0));
    CHECK(PtInRegion(forma, r.right / 2, 0));
    g.Elegir(g.Campo(L"Estilo Boton"), 0);
    CHECK(GetWindowRgn(vista, forma) == SIMPLEREGION);
    CHECK(PtInRegion(forma, 0, 0));
    CHECK(PtInRegion(forma, r.right - 1, r.bottom - 1));
    DeleteObject(forma);
    for (const wchar_t* rotulo : {L"Rel_X", L"Rel_Y"}) {
        CHECK_FALSE(IsWindowEnabled(g.La(rotulo)));
        CHECK_FALSE(IsWindowEnabled(g.Campo(rotulo)));
    }
    for (const HWND uno : g.deslizadores)
        CHECK_FALSE(IsWindowEnabled(uno));
    g.Elegir(g.Campo(L"Estilo Boton"), 1);
    CHECK(IsWindowEnabled(g.Campo(L"Rel_X")));
    CHECK(IsWindowEnabled(g.deslizadores[0]));
}

TEST_CASE("Slider and text follow each other") {
    General g;
    const HWND texto = g.Campo(L"Rel_X");
    g.Mover(g.deslizadores[0], 75);
    CHECK((Leido(texto) == L"0.75" || Leido(texto) == L"0,75"));
    CHECK(SendMessageW(g.deslizadores[0], TBM_GETPOS, 0, 0) == 75);
    g.Escribir(texto, L"0,5"); // in any locale
    CHECK(SendMessageW(g.deslizadores[0], TBM_GETPOS, 0, 0) == 50);
    CHECK(g.pagina->Apply() == S_OK);
    CHECK(g.Real(L"RelX") == doctest::Approx(0.5));
    g.Escribir(texto, L"");
    CHECK(Leido(texto) == L"0");
}

TEST_CASE("Keys are filtered: a point becomes a comma, a second one and a sign are refused") {
    General g;
    const HWND texto = g.Campo(L"Rel_X");
    g.Escribir(texto, L"7");
    SendMessageW(texto, EM_SETSEL, 1, 1);
    g.Teclear(texto, L".-5,a.0 ");
    CHECK(Leido(texto) == L"7,50 ");
    const HWND pasos = g.Campo(L"Cambio Progrecivo");
    g.Escribir(pasos, L"1");
    SendMessageW(pasos, EM_SETSEL, 1, 1);
    g.Teclear(pasos, L".,-x2");
    CHECK(Leido(pasos) == L"12");
}

TEST_CASE("An edit that is no number is told to the user") {
    General g;
    std::wstring mensaje;
    {
        const Contestador contestador([&](HWND dialogo) {
            mensaje = Contestador::Mensaje(dialogo);
            SendMessageW(dialogo, WM_COMMAND, IDOK, 0);
        });
        g.Escribir(g.Campo(L"Rel_X"), L",");
    }
    CHECK(mensaje.find(L"tipos") != std::wstring::npos);
    CHECK(g.pagina->Apply() == S_OK);
    CHECK(g.Real(L"RelX") == doctest::Approx(0.25));
}

TEST_CASE("What was edited outlives the window of the page") {
    General g;
    g.Escribir(g.Campo(L"Texto"), L"Guardado");
    g.Elegir(g.Campo(L"Tipo Letra"), 3);
    CHECK(g.pagina->Deactivate() == S_OK);
    CHECK(g.Dialogo() == nullptr);
    CHECK(g.pagina->Deactivate() == E_UNEXPECTED);
    CHECK(g.Sucia());
    REQUIRE(g.Activar() == S_OK);
    CHECK(Leido(g.Campo(L"Texto")) == L"Guardado");
    CHECK(g.Indice(g.Campo(L"Tipo Letra")) == 3);
    CHECK(g.Sucia());
    CHECK(g.pagina->Apply() == S_OK);
    CHECK(g.Numero(L"TipoLetra") == 3);
}

TEST_CASE("A page can be filled and applied before it is shown") {
    BancoPagina banco(L"ProPGeneral");
    const auto boton = banco.Boton();
    Poner(boton.get(), L"Caption", L"Antes");
    REQUIRE(banco.Seleccionar({boton}) == S_OK);
    CHECK_FALSE(banco.Sucia());
    CHECK(banco.pagina->Apply() == S_OK);
    CHECK(anfitrion::Texto(Leer(boton.get(), L"Caption")) == L"Antes");
    REQUIRE(banco.Activar() == S_OK);
    CHECK(Leido(banco.Campo(L"Texto")) == L"Antes");
    CHECK_FALSE(banco.Sucia());
}

TEST_CASE("A new selection in the middle of an apply waits for its end") {
    General g;
    const auto otro = g.Boton();
    Poner(otro.get(), L"Caption", L"Otro");
    g.Escribir(g.Campo(L"Texto"), L"Nuevo");
    struct Oyente : anfitrion::ObjetoCom<IPropertyNotifySink> {
        std::function<void()> alCambiar;
        HRESULT STDMETHODCALLTYPE OnChanged(DISPID) override {
            if (auto accion = std::exchange(alCambiar, nullptr))
                accion();
            return S_OK;
        }
        HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return S_OK; }
    };
    const auto oyente = anfitrion::Hacer<Oyente>();
    Puntero<IConnectionPoint> punto;
    REQUIRE(g.boton.Como<IConnectionPointContainer>()->FindConnectionPoint(
                IID_IPropertyNotifySink, punto.Recibir()) == S_OK);
    DWORD galleta = 0;
    REQUIRE(punto->Advise(oyente.get(), &galleta) == S_OK);
    oyente->alCambiar = [&] { CHECK(g.Seleccionar({otro}) == S_OK); };
    CHECK(g.pagina->Apply() == S_OK);
    CHECK(g.Texto(L"Caption") == L"Nuevo");
    CHECK(Leido(g.Campo(L"Texto")) == L"Otro");
    CHECK_FALSE(g.Sucia());
    punto->Unadvise(galleta);
}

TEST_CASE("A property leads to its page, and the page to its field") {
    General g;
    const auto examinador = g.boton.Como<IPerPropertyBrowsing>();
    const auto numero = [&](const wchar_t* nombre) {
        return anfitrion::Numero(g.boton.get(), nombre);
    };
    const auto pagina = [&](const wchar_t* nombre) {
        CLSID cual{};
        return SUCCEEDED(examinador->MapPropertyToPage(numero(nombre), &cual)) ? Escrito(cual)
                                                                               : L"ninguna";
    };
    const std::wstring general = ClaseDe(L"ProPGeneral").clase,
                       colores = ClaseDe(L"ProPColores").clase;
    for (const wchar_t* una :
         {L"Caption", L"Estilos", L"EfectoBoton", L"AlinText", L"AlinImag", L"AnchoBorde",
          L"EstilosBord", L"TipoLetra", L"Enabled", L"RelX", L"RelY", L"CambioProgre",
          L"CambioProgrePasos", L"FocoVisible", L"FocoConMouse", L"Expandir"}) {
        INFO(anfitrion::Estrechar(una));
        CHECK(pagina(una) == general);
        CHECK(g.pagina->EditProperty(numero(una)) == S_OK);
        CHECK(GetParent(GetFocus()) == g.Dialogo());
    }
    for (const wchar_t* una :
         {L"ColorLetra", L"ColorLetraSobre", L"ColorFondo", L"ColorFondoSobre", L"EstilosRell"}) {
        INFO(anfitrion::Estrechar(una));
        CHECK(pagina(una) == colores);
        CHECK(g.pagina->EditProperty(numero(una)) == E_NOTIMPL);
    }
    CHECK(pagina(L"Font") == L"{0BE35200-8F91-11CE-9DE3-00AA004BB851}");
    for (const wchar_t* una : {L"ImagNormal", L"ImagSobre", L"MouseIcon"})
        CHECK(pagina(una) == L"{0BE35202-8F91-11CE-9DE3-00AA004BB851}");
    for (const wchar_t* una : {L"ToolTipText", L"MousePointer"})
        CHECK(pagina(una) == L"ninguna");
    CHECK(g.pagina->EditProperty(31415) == E_NOTIMPL);
}

TEST_CASE("A page refuses what comes out of order") {
    BancoPagina banco(L"ProPGeneral");
    CHECK(banco.pagina->Apply() == E_UNEXPECTED);
    CHECK(banco.pagina->Show(SW_SHOW) == E_UNEXPECTED);
    CHECK(banco.pagina->SetPageSite(banco.sitio.get()) == E_UNEXPECTED);
    CHECK(banco.pagina->SetObjects(1, nullptr) == E_POINTER);
    IUnknown* nada = nullptr;
    CHECK(banco.pagina->SetObjects(1, &nada) == E_POINTER);
    CHECK(banco.pagina->Activate(banco.ventana.get(), nullptr, FALSE) == E_POINTER);
    REQUIRE(banco.Activar() == S_OK);
    CHECK(banco.pagina->Show(99) == E_INVALIDARG);
    CHECK(banco.pagina->Show(SW_HIDE) == S_OK);
    CHECK_FALSE(SeVe(banco.Dialogo()));
    const RECT lugar{5, 6, 105, 86};
    CHECK(banco.pagina->Activate(banco.ventana.get(), &lugar, FALSE) == E_UNEXPECTED);
    CHECK(banco.pagina->Move(&lugar) == S_OK);
    RECT r{};
    GetWindowRect(banco.Dialogo(), &r);
    CHECK(r.right - r.left == 100);
    CHECK(r.bottom - r.top == 80);
    CHECK(banco.pagina->Move(nullptr) == E_POINTER);
    CHECK(banco.pagina->TranslateAccelerator(nullptr) == E_POINTER);
}

TEST_CASE("Every letter marks one widget of a page only") {
    for (const wchar_t* clase : {L"ProPGeneral", L"ProPColores", L"ProPColoresArea"}) {
        INFO(anfitrion::Estrechar(clase));
        BancoPagina banco(clase);
        REQUIRE(banco.Activar() == S_OK);
        std::wstring marcas;
        for (const HWND una : Hijas(banco.Dialogo())) {
            wchar_t texto[100];
            GetWindowTextW(una, texto, 100);
            const wchar_t* marca = wcschr(texto, L'&');
            if (marca && SeVe(una))
                marcas += static_cast<wchar_t>(towupper(static_cast<wint_t>(marca[1])));
        }
        CHECK(marcas.size() > 7);
        std::sort(marcas.begin(), marcas.end());
        CHECK(std::adjacent_find(marcas.begin(), marcas.end()) == marcas.end());
        CHECK(marcas.find(L'P') == std::wstring::npos); // the frame's Apply
    }
}

TEST_CASE("Nothing on a page lies beyond it or over something else") {
    for (const wchar_t* clase : {L"ProPGeneral", L"ProPColores", L"ProPColoresArea"}) {
        INFO(anfitrion::Estrechar(clase));
        BancoPagina banco(clase);
        REQUIRE(banco.Activar() == S_OK);
        RECT pagina{};
        GetWindowRect(banco.Dialogo(), &pagina);
        std::vector<RECT> lugares;
        for (const HWND una : Hijas(banco.Dialogo())) {
            const auto estilo = GetWindowLongPtrW(una, GWL_STYLE);
            if (!(estilo & WS_VISIBLE))
                continue;
            RECT r{}, comun{};
            GetWindowRect(una, &r);
            CHECK(UnionRect(&comun, &r, &pagina));
            CHECK(EqualRect(&comun, &pagina));
            if (ClaseDeVentana(una) == L"Button" && (estilo & BS_TYPEMASK) == BS_GROUPBOX)
                continue; // holds others
            for (const RECT& otro : lugares)
                CHECK_FALSE(IntersectRect(&comun, &otro, &r));
            lugares.push_back(r);
        }
        CHECK(lugares.size() > 10);
    }
}
