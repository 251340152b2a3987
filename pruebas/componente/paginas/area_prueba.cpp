// The page of the panel in a frame that does nothing but what is asked.
#include "pruebas/componente/paginas/area.h"

#include <algorithm>

using namespace paginas;

TEST_CASE("The page shows every setting of the panel") {
    PaginaArea a;
    CHECK(Leido(a.Campo(L"Texto")) == L"Datos");
    CHECK_FALSE(a.Marcada(a.La(L"Habilitado")));
    CHECK(a.Indice(L"BackStyle") == 0);
    CHECK(a.Indice(L"Separaci") == 0);
    CHECK(a.Indice(L"Ancho Borde") == 2);
    CHECK(a.Indice(L"Estilo Borde") == 2);
    CHECK(a.Indice(L"Tipo Letra") == 4);
    CHECK(a.Indice(L"Alin-Text") == 7);
    CHECK(a.Indice(L"EstiloRelleno:") == 1);
    CHECK(ColorDe(a.Campo(L"Color de letra:")) == RGB(255, 0, 0));
    CHECK(ColorDe(a.Campo(L"Color de Fondo:")) == RGB(0, 255, 0));
    CHECK(a.Fila() == std::vector<COLORREF>{RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255)});
    CHECK_FALSE(a.Sucia());
    CHECK(a.sitio->estados.empty());
}

TEST_CASE("The lists of the panel's page have their items in order") {
    PaginaArea a;
    const auto items = [&](const wchar_t* rotulo) {
        std::wstring todos;
        const HWND lista = a.Campo(rotulo);
        for (WPARAM i = 0; i < static_cast<WPARAM>(SendMessageW(lista, CB_GETCOUNT, 0, 0)); ++i) {
            wchar_t texto[50];
            SendMessageW(lista, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(texto));
            todos += std::wstring(texto) + L" ";
        }
        return todos;
    };
    CHECK(items(L"BackStyle") == L"Transparente Opaco ");
    CHECK(items(L"Separaci") == L"Chico Medio Grande ");
    CHECK(items(L"Ancho Borde") == L"Chico Medio Grande ");
    CHECK(items(L"Estilo Borde") == L"Ninguno Normal Colores Degradados ");
    CHECK(items(L"Tipo Letra") == L"Normal Levantado Undido InvesoL InvesoU ");
    CHECK(items(L"Alin-Text") ==
          L"Sup_Izq Med_Izq Inf_Izq Med_Sup Medio Med_Inf Sup_Der Med_Der Inf_Der ");
    CHECK(items(L"EstiloRelleno:") == L"Solido D_Hori D_Vert D_Pirami ");
}

TEST_CASE("What is edited on the page is the panel's once applied, and not before") {
    PaginaArea a;
    a.Escribir(a.Campo(L"Texto"), L"Otros");
    a.Pulsar(a.La(L"Habilitado"));
    a.Elegir(L"BackStyle", 1);
    a.Elegir(L"Separaci", 2);
    a.Elegir(L"Ancho Borde", 0);
    a.Elegir(L"Estilo Borde", 3);
    a.Elegir(L"Tipo Letra", 1);
    a.Elegir(L"Alin-Text", 8);
    a.Elegir(L"EstiloRelleno:", 3);
    for (const wchar_t* rotulo : {L"Color de letra:", L"Color de Fondo:"}) {
        const Elector elector(RGB(1, 2, 3));
        a.Pulsar(a.Campo(rotulo));
    }
    a.Pulsar(a.La(L"- Color"));
    CHECK(a.Valor(L"Caption") == L"Datos");
    CHECK(a.Valor(L"EstilosRell") == L"1");
    CHECK(a.Sucia());
    CHECK(a.pagina->Apply() == S_OK);
    CHECK_FALSE(a.Sucia());
    CHECK(a.Valor(L"Caption") == L"Otros");
    CHECK(a.Valor(L"Enabled") == L"True");
    CHECK(a.Valor(L"BackStyle") == L"1");
    CHECK(a.Valor(L"SeparaBorde") == L"3");
    CHECK(a.Valor(L"AnchoBorde") == L"1");
    CHECK(a.Valor(L"EstilosBord") == L"3");
    CHECK(a.Valor(L"TipoLetra") == L"1");
    CHECK(a.Valor(L"AlinText") == L"8");
    CHECK(a.Valor(L"EstilosRell") == L"3");
    CHECK(a.Valor(L"ColorLetra") == std::to_wstring(0x030201));
    CHECK(a.Valor(L"ColorFondo") == std::to_wstring(0x030201));
    CHECK(a.Valor(L"ColorDegrade") == L"255*65280");
}

TEST_CASE("Every edit of the panel's page raises the flag, and the frame hears of the first") {
    const std::function<void(PaginaArea&)> ediciones[] = {
        [](PaginaArea& a) { a.Escribir(a.Campo(L"Texto"), L"x"); },
        [](PaginaArea& a) { a.Pulsar(a.La(L"Habilitado")); },
        [](PaginaArea& a) { a.Elegir(L"BackStyle", 1); },
        [](PaginaArea& a) { a.Elegir(L"Separaci", 1); },
        [](PaginaArea& a) { a.Elegir(L"Ancho Borde", 1); },
        [](PaginaArea& a) { a.Elegir(L"Estilo Borde", 0); },
        [](PaginaArea& a) { a.Elegir(L"Tipo Letra", 0); },
        [](PaginaArea& a) { a.Elegir(L"Alin-Text", 0); },
        [](PaginaArea& a) { a.Elegir(L"EstiloRelleno:", 2); },
        [](PaginaArea& a) { a.Pulsar(a.La(L"+  Color")); },
        [](PaginaArea& a) { a.Pulsar(a.La(L"- Color")); },
        [](PaginaArea& a) {
            const Elector elector(RGB(9, 9, 9));
            a.Pulsar(a.Campo(L"Color de letra:"));
        },
        [](PaginaArea& a) {
            const Elector elector(RGB(9, 9, 9));
            a.Pulsar(TopesDe(a.Dialogo())[1]);
        },
    };
    int numero = 0;
    for (const auto& editar : ediciones) {
        INFO(numero++);
        PaginaArea a;
        editar(a);
        CHECK(a.Sucia());
        REQUIRE(a.sitio->estados == std::vector<DWORD>{PROPPAGESTATUS_DIRTY});
        editar(a);
        CHECK(a.sitio->estados.size() == 1);
        CHECK(a.pagina->Apply() == S_OK);
        CHECK(a.sitio->estados.back() == PROPPAGESTATUS_CLEAN);
    }
}

TEST_CASE("A solid fill leaves the colour list of the panel alone") {
    PaginaArea a;
    a.Pulsar(a.La(L"+  Color"));
    a.Elegir(L"EstiloRelleno:", 0);
    CHECK_FALSE(IsWindowEnabled(a.La(L"+  Color")));
    CHECK_FALSE(IsWindowEnabled(a.La(L"- Color")));
    for (const HWND tope : TopesDe(a.Dialogo()))
        CHECK_FALSE(IsWindowEnabled(tope));
    CHECK(a.pagina->Apply() == S_OK);
    CHECK(a.Valor(L"EstilosRell") == L"0");
    CHECK(a.Valor(L"ColorDegrade") == L"255*65280*16711680");
}

TEST_CASE("A panel without a colour list shows white and black") {
    PaginaArea a;
    const auto otro = a.Panel();
    Poner(otro.get(), L"ColorDegrade", L"");
    REQUIRE(a.Seleccionar({otro}) == S_OK);
    CHECK(a.Fila() == std::vector<COLORREF>{RGB(255, 255, 255), RGB(0, 0, 0)});
}

TEST_CASE("The row of the panel keeps from 2 to 31 stops, each new one like the last") {
    PaginaArea a;
    for (int i = 0; i < 40; ++i)
        a.Pulsar(a.La(L"+  Color"));
    auto fila = a.Fila();
    REQUIRE(fila.size() == 31);
    CHECK(fila[1] == RGB(0, 255, 0));
    CHECK(std::count(fila.begin() + 2, fila.end(), RGB(0, 0, 255)) == 29);
    for (int i = 0; i < 40; ++i)
        a.Pulsar(a.La(L"- Color"));
    CHECK(a.Fila() == std::vector<COLORREF>{RGB(255, 0, 0), RGB(0, 255, 0)});
}

TEST_CASE("The preview of the panel follows fill, stops and background") {
    PaginaArea a;
    const auto en = [&](double parte) {
        const auto vista = a.Vista();
        return vista.Pixel(static_cast<int>(parte * (vista.Ancho() - 1)), vista.Alto() / 2);
    };
    // Shown by the window when it opened: the three stops of the panel.
    CHECK(GetRValue(en(0)) > 250);
    CHECK(GetGValue(en(0.5)) > 245);
    CHECK(GetBValue(en(1)) > 245);
    a.Pulsar(a.La(L"- Color"));
    CHECK(GetGValue(en(1)) > 245);
    {
        const Elector elector(RGB(0, 0, 0));
        a.Pulsar(TopesDe(a.Dialogo())[0]);
    }
    CHECK(en(0) == RGB(0, 0, 0));
    const auto horizontal = a.Vista();
    a.Elegir(L"EstiloRelleno:", 2);
    CHECK_FALSE(a.Vista() == horizontal);
    CHECK(en(0) == en(1));
    a.Elegir(L"EstiloRelleno:", 0);
    CHECK(a.Vista().Colores() == 1);
    CHECK(en(0) == RGB(0, 255, 0));
}

TEST_CASE("The preview comes before the row: a new selection shows one drawn from what was left") {
    PaginaArea a;
    const auto otro = a.Panel();
    Poner(otro.get(), L"EstilosRell", 1);
    Poner(otro.get(), L"ColorDegrade", L"16711680*65535");
    REQUIRE(a.Seleccionar({otro}) == S_OK);
    CHECK(a.Fila() == std::vector<COLORREF>{RGB(0, 0, 255), RGB(255, 255, 0)});
    CHECK(GetBValue(a.Vista().Pixel(0, 5)) < 5);
    a.Elegir(L"EstiloRelleno:", 2);
    a.Elegir(L"EstiloRelleno:", 1);
    CHECK(GetBValue(a.Vista().Pixel(0, 5)) > 250);
}

TEST_CASE("Of several panels the last is shown, and each gets the page") {
    PaginaArea a;
    const auto segundo = a.Panel(), tercero = a.Panel();
    Poner(tercero.get(), L"Caption", L"Tercero");
    Poner(tercero.get(), L"EstilosRell", 2);
    Poner(tercero.get(), L"ColorDegrade", L"0*16777215*0");
    REQUIRE(a.Seleccionar({a.panel, segundo, tercero}) == S_OK);
    CHECK(Leido(a.Campo(L"Texto")) == L"Tercero");
    CHECK(a.Fila().size() == 3);
    CHECK_FALSE(a.Sucia());
    a.Elegir(L"Tipo Letra", 2);
    CHECK(a.pagina->Apply() == S_OK);
    for (const auto& uno : {a.panel, segundo, tercero}) {
        CHECK(a.Valor(uno, L"Caption") == L"Tercero");
        CHECK(a.Valor(uno, L"TipoLetra") == L"2");
        CHECK(a.Valor(uno, L"ColorDegrade") == L"0*16777215*0");
    }
}

TEST_CASE("What edits the row of the panel is published, and refuses what is no row") {
    PaginaArea a;
    const auto despacho = a.pagina.Como<IDispatch>();
    REQUIRE(despacho);
    CHECK(anfitrion::Numero(despacho.get(), L"AgregarColorD") == 0x60030010);
    CHECK(anfitrion::Numero(despacho.get(), L"EliminarColorD") == 0x60030011);
    CHECK(anfitrion::Numero(despacho.get(), L"PreVis") == 0x60030012);
    for (const wchar_t* metodo : {L"AgregarColorD", L"EliminarColorD"}) {
        try {
            anfitrion::Llamar(despacho.get(), metodo, {Variante(a.panel.get()), Variante(1)});
            FAIL_CHECK("a panel was taken for a row");
        } catch (const anfitrion::FalloCom& fallo) {
            CHECK(fallo.estado == TiposNoCoinciden);
        }
    }
    CHECK(a.Fila().size() == 3);
}

TEST_CASE("A property of the panel leads to its page, and the page to its field") {
    PaginaArea a;
    const auto examinador = a.panel.Como<IPerPropertyBrowsing>();
    for (const wchar_t* una : {L"Caption", L"Enabled", L"BackStyle", L"SeparaBorde", L"AnchoBorde",
                               L"EstilosBord", L"TipoLetra", L"AlinText", L"ColorLetra",
                               L"ColorFondo", L"EstilosRell", L"ColorDegrade"}) {
        INFO(anfitrion::Estrechar(una));
        const DISPID numero = anfitrion::Numero(a.panel.get(), una);
        CLSID cual{};
        CHECK(examinador->MapPropertyToPage(numero, &cual) == S_OK);
        CHECK(Escrito(cual) == ClaseDe(L"ProPColoresArea").clase);
        SetFocus(nullptr);
        CHECK(a.pagina->EditProperty(numero) == S_OK);
        CHECK(GetParent(GetFocus()) == a.Dialogo());
    }
    CHECK(GetFocus() == TopesDe(a.Dialogo())[0]);
    a.Elegir(L"EstiloRelleno:", 0);
    CHECK(a.pagina->EditProperty(anfitrion::Numero(a.panel.get(), L"ColorDegrade")) == E_FAIL);
    CHECK(a.pagina->EditProperty(anfitrion::Numero(a.panel.get(), L"Font")) == E_NOTIMPL);
}
