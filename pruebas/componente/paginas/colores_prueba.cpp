// The colour pages in a frame that does nothing but what is asked.
#include "pruebas/componente/paginas/colores.h"

using namespace paginas;

namespace {

/// A bag that remembers one key.
struct Bolsa : anfitrion::ObjetoCom<IPropertyBag> {
    std::wstring clave, valor;
    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR, VARIANT*, IErrorLog*) override {
        return E_INVALIDARG;
    }
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR nombre, VARIANT* v) override {
        if (clave == nombre)
            valor = anfitrion::Mostrar(*v);
        return S_OK;
    }
};

struct Colores : BancoPagina {
    Colores() : BancoPagina(L"ProPColores") {
        boton = Boton();
        Poner(boton.get(), L"ColorLetra", 0x0000FF);
        Poner(boton.get(), L"ColorFondo", 0x00FF00);
        Poner(boton.get(), L"EstilosRell", 1);
        REQUIRE(Seleccionar({boton}) == S_OK);
        REQUIRE(Activar() == S_OK);
    }
    long Numero(const wchar_t* propiedad) {
        return anfitrion::Entero(Leer(boton.get(), propiedad));
    }
    HWND Relleno() const { return Campo(L"EstiloRelleno:"); }
    /// What the control keeps in its bag: the lists are not published.
    std::wstring Guardado(IUnknown* objeto, const wchar_t* clave);

    Puntero<IDispatch> boton;
};

std::wstring Colores::Guardado(IUnknown* objeto, const wchar_t* clave) {
    const auto bolsa = anfitrion::Hacer<Bolsa>();
    bolsa->clave = clave;
    REQUIRE(Puntero<IUnknown>(objeto).Como<IPersistPropertyBag>()->Save(bolsa.get(), FALSE, TRUE) ==
            S_OK);
    return bolsa->valor;
}

} // namespace

TEST_CASE("The page shows the colours of the button on its buttons") {
    Colores c;
    CHECK(ColorDe(c.Campo(L"Color de letra:")) == RGB(255, 0, 0));
    CHECK(ColorDe(c.Campo(L"Color de Fondo:")) == RGB(0, 255, 0));
    CHECK(c.Indice(c.Relleno()) == 1);
    const auto topes = TopesDe(c.Dialogo());
    REQUIRE(topes.size() == 2);
    CHECK(ColorDe(topes[0]) == RGB(255, 255, 255));
    CHECK(ColorDe(topes[1]) == RGB(0, 0, 0));
    CHECK_FALSE(c.Sucia());
}

TEST_CASE("The preview shows the gradient when the page opens") {
    Colores c;
    const auto imagen = Imagen(VistaDe(c.Dialogo()));
    CHECK(GetRValue(imagen.Pixel(0, 5)) > 250);
    CHECK(GetRValue(imagen.Pixel(imagen.Ancho() - 1, 5)) < 10);
    CHECK(imagen.Colores() > 100);
    c.Elegir(c.Relleno(), 0);
    CHECK(ColorDe(VistaDe(c.Dialogo())) == RGB(0, 255, 0));
    CHECK(Imagen(VistaDe(c.Dialogo())).Colores() == 1);
}

TEST_CASE("Only the frame of the chosen state is shown") {
    Colores c;
    const auto visibles = [&] {
        int cuantos = 0;
        for (const HWND una : Hijas(c.Dialogo()))
            cuantos += SeVe(una) && Leido(una) == L"Colores";
        return cuantos;
    };
    CHECK(visibles() == 1);
    const HWND normal = c.Campo(L"Color de letra:");
    c.Pulsar(c.La(L"Sobre"));
    CHECK(visibles() == 1);
    CHECK(c.Campo(L"Color de letra:") != normal);
    CHECK_FALSE(SeVe(normal));
    CHECK(TopesDe(c.Dialogo()).size() == 2);
    c.Pulsar(c.La(L"Normal"));
    CHECK(c.Campo(L"Color de letra:") == normal);
}

TEST_CASE("A colour chosen in the dialog goes to its button and, applied, to the control") {
    Colores c;
    {
        Elector elector(RGB(10, 20, 30));
        c.Pulsar(c.Campo(L"Color de letra:"));
        CHECK(elector.veces == 1);
    }
    CHECK(ColorDe(c.Campo(L"Color de letra:")) == RGB(10, 20, 30));
    CHECK(c.Sucia());
    CHECK(c.pagina->Apply() == S_OK);
    CHECK(c.Numero(L"ColorLetra") == 0x1E140A);
    {
        Elector elector(RGB(99, 99, 99), false);
        c.Pulsar(c.Campo(L"Color de letra:"));
        CHECK(elector.veces == 1);
    }
    CHECK(ColorDe(c.Campo(L"Color de letra:")) == RGB(10, 20, 30));
    CHECK_FALSE(c.Sucia());
}

TEST_CASE("The user's own colours are there again while the page lives, whatever its window does") {
    // Numbers of the platform's dialog.
    constexpr int Propios = 721, Agregar = 712;
    const auto pulsarPropio = [](HWND dialogo) {
        RECT r{};
        GetWindowRect(GetDlgItem(dialogo, Propios), &r);
        POINT primero{r.left + (r.right - r.left) / 16, r.top + (r.bottom - r.top) / 4};
        ScreenToClient(dialogo, &primero);
        SendMessageW(dialogo, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(primero.x, primero.y));
        SendMessageW(dialogo, WM_LBUTTONUP, 0, MAKELPARAM(primero.x, primero.y));
    };
    // Chooses whatever stands at the first place of the user's own.
    const auto elegirPropio = [&](Colores& c, const wchar_t* rotulo) {
        const Contestador contestador([&](HWND dialogo) {
            pulsarPropio(dialogo);
            SendMessageW(dialogo, WM_COMMAND, IDOK, 0);
        });
        c.Pulsar(c.Campo(rotulo));
        return ColorDe(c.Campo(rotulo));
    };
    Colores c;
    {
        const Contestador contestador([](HWND dialogo) {
            SetDlgItemInt(dialogo, 706, 12, FALSE);
            SetDlgItemInt(dialogo, 707, 34, FALSE);
            SetDlgItemInt(dialogo, 708, 56, FALSE);
            SendMessageW(dialogo, WM_COMMAND, Agregar, 0);
            SendMessageW(dialogo, WM_COMMAND, IDCANCEL, 0);
        });
        c.Pulsar(c.Campo(L"Color de letra:"));
    }
    CHECK(elegirPropio(c, L"Color de Fondo:") == RGB(12, 34, 56));
    CHECK(c.pagina->Deactivate() == S_OK);
    REQUIRE(c.Activar() == S_OK);
    CHECK(elegirPropio(c, L"Color de letra:") == RGB(12, 34, 56));
    Colores otra;
    CHECK(elegirPropio(otra, L"Color de letra:") != RGB(12, 34, 56));
}

TEST_CASE("A system colour that is confirmed stays one") {
    Colores c;
    Poner(c.boton.get(), L"ColorFondo", static_cast<long>(0x8000000F));
    REQUIRE(c.Seleccionar({c.boton}) == S_OK);
    Contestador contestador([](HWND dialogo) { SendMessageW(dialogo, WM_COMMAND, IDOK, 0); });
    c.Pulsar(c.Campo(L"Color de Fondo:"));
    CHECK_FALSE(c.Sucia());
    CHECK(c.pagina->Apply() == S_OK);
    CHECK(c.Numero(L"ColorFondo") == static_cast<long>(0x8000000F));
}

TEST_CASE("Stops share the row out, whatever their number") {
    Colores c;
    const auto comprobar = [&](std::size_t cuantos) {
        const auto topes = TopesDe(c.Dialogo());
        REQUIRE(topes.size() == cuantos);
        RECT anterior{};
        for (std::size_t i = 0; i < topes.size(); ++i) {
            RECT r{};
            GetWindowRect(topes[i], &r);
            CHECK(r.right > r.left);
            if (i)
                CHECK(r.left == anterior.right);
            anterior = r;
        }
    };
    comprobar(2);
    for (int i = 0; i < 40; ++i)
        c.Pulsar(c.La(L"+  Color"));
    comprobar(31);
    for (int i = 0; i < 40; ++i)
        c.Pulsar(c.La(L"- Color"));
    comprobar(2);
}

TEST_CASE(
    "The tab key passes the stops from left to right, behind the fill and before their buttons") {
    Colores c;
    c.Pulsar(c.La(L"+  Color"));
    const auto topes = TopesDe(c.Dialogo());
    HWND una = GetNextDlgTabItem(c.Dialogo(), c.Campo(L"Color de Fondo:"), FALSE);
    for (const HWND tope : topes) {
        CHECK(una == tope);
        una = GetNextDlgTabItem(c.Dialogo(), una, FALSE);
    }
    CHECK(una == c.La(L"+  Color"));
}

TEST_CASE("The tab key comes to the angle where it stands, in both states") {
    Colores c;
    c.Elegir(c.Relleno(), 4);
    const HWND angulo = c.Campo(L"Angulo :");
    for (const wchar_t* estado : {L"Normal", L"Sobre"}) {
        c.Pulsar(c.La(estado));
        CHECK(GetNextDlgTabItem(c.Dialogo(), c.Campo(L"Color de Fondo:"), FALSE) == angulo);
        CHECK(GetNextDlgTabItem(c.Dialogo(), angulo, FALSE) == TopesDe(c.Dialogo())[0]);
    }
}

TEST_CASE("Stops are edited, inverted and equalised, and their lists applied") {
    Colores c;
    c.Pulsar(c.La(L"+  Color"));
    {
        Elector elector(RGB(255, 0, 0));
        c.Pulsar(TopesDe(c.Dialogo())[1]);
        CHECK(elector.veces == 1);
    }
    CHECK(c.pagina->Apply() == S_OK);
    CHECK(c.Guardado(c.boton.get(), L"ColorDegradeN").find(L"16777215*255*0") !=
          std::wstring::npos);
    CHECK(c.Guardado(c.boton.get(), L"ColorDegradeS").find(L"16777215*0") != std::wstring::npos);
    c.Pulsar(c.La(L"Invertir Orden"));
    c.Pulsar(c.La(L"Invertir Colores"));
    c.Pulsar(c.La(L"Igualar"));
    CHECK(c.pagina->Apply() == S_OK);
    CHECK(c.Guardado(c.boton.get(), L"ColorDegradeN").find(L"16777215*16776960*0") !=
          std::wstring::npos);
    CHECK(c.Guardado(c.boton.get(), L"ColorDegradeS") ==
          c.Guardado(c.boton.get(), L"ColorDegradeN"));
}

TEST_CASE("A gradient's buttons are out of use with a solid fill") {
    Colores c;
    c.Elegir(c.Relleno(), 0);
    CHECK_FALSE(IsWindowEnabled(c.La(L"+  Color")));
    CHECK_FALSE(IsWindowEnabled(c.La(L"- Color")));
    for (const HWND tope : TopesDe(c.Dialogo()))
        CHECK_FALSE(IsWindowEnabled(tope));
    c.Elegir(c.Relleno(), 2);
    CHECK(IsWindowEnabled(c.La(L"+  Color")));
    for (const HWND tope : TopesDe(c.Dialogo()))
        CHECK(IsWindowEnabled(tope));
}

TEST_CASE("The angle is there for a diagonal, and one above 180 is told of") {
    Colores c;
    const HWND angulo = c.Campo(L"Angulo :");
    CHECK_FALSE(SeVe(angulo));
    c.Elegir(c.Relleno(), 4);
    CHECK(SeVe(angulo));
    CHECK(SeVe(c.La(L"Angulo :")));
    CHECK(Leido(angulo) == L"45");
    std::wstring mensaje;
    int veces = 0;
    {
        const Contestador contestador([&](HWND dialogo) {
            mensaje = Contestador::Mensaje(dialogo);
            ++veces;
            SendMessageW(dialogo, WM_COMMAND, IDOK, 0);
        });
        c.Escribir(angulo, L"200");
    }
    CHECK(veces == 1);
    CHECK(mensaje == L"El angulo debe ser entre 0 y 180");
    CHECK(Leido(angulo) == L"200");
    CHECK(c.pagina->Apply() == S_OK);
    CHECK(c.Guardado(c.boton.get(), L"Angulo").find(L"200") != std::wstring::npos);
    CHECK(c.Numero(L"EstilosRell") == 4);
}

TEST_CASE("A selection that comes while a dialog is open is shown afterwards") {
    Colores c;
    const auto otro = c.Boton();
    Poner(otro.get(), L"ColorLetra", 0xFF0000);
    const auto topes = TopesDe(c.Dialogo());
    {
        const Contestador contestador([&](HWND dialogo) {
            CHECK(c.Seleccionar({otro}) == S_OK);
            c.boton.Soltar();
            SendMessageW(dialogo, WM_COMMAND, IDOK, 0);
        });
        c.Pulsar(topes[1]);
    }
    CHECK(ColorDe(c.Campo(L"Color de letra:")) == RGB(0, 0, 255));
    CHECK_FALSE(c.Sucia());
}

TEST_CASE("The frame may take the page away while a dialog is open") {
    Colores c;
    const auto topes = TopesDe(c.Dialogo());
    {
        const Contestador contestador([&](HWND dialogo) {
            c.pagina->Deactivate();
            c.pagina->SetObjects(0, nullptr);
            SendMessageW(dialogo, WM_COMMAND, IDCANCEL, 0);
        });
        c.Pulsar(topes[0]);
    }
    CHECK(c.Dialogo() == nullptr);
}

TEST_CASE("What edits the rows is published, and refuses what is no row") {
    Colores c;
    const auto despacho = c.pagina.Como<IDispatch>();
    REQUIRE(despacho);
    CHECK(anfitrion::Numero(despacho.get(), L"AgregarColorD") == 0x6003000D);
    CHECK(anfitrion::Numero(despacho.get(), L"PreVis") == 0x6003000F);
    const auto estado = [&](const wchar_t* metodo, anfitrion::Argumentos argumentos) {
        try {
            anfitrion::Llamar(despacho.get(), metodo, argumentos);
            return S_OK;
        } catch (const anfitrion::FalloCom& fallo) {
            return fallo.estado;
        }
    };
    constexpr HRESULT Tipos = static_cast<HRESULT>(0x800A000D);
    CHECK(estado(L"AgregarColorD", {Variante(c.boton.get()), Variante(1)}) == Tipos);
    CHECK(estado(L"EliminarColorD", {Variante(c.boton.get()), Variante(1)}) == Tipos);
    CHECK(estado(L"PreVis", {Variante(0), Variante(c.boton.get())}) == Tipos);
}
