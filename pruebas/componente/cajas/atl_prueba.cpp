// The text boxes in a host that announces nothing and asks for little.
#include "pruebas/cada.h"
#include "pruebas/componente/cajas/banco.h"
#include "pruebas/componente/vivo/banco_atl.h"

using namespace cajas;
using pincela::pruebas::Cada;

namespace {

struct BancoDeHuesped : BancoAtl {
    explicit BancoDeHuesped(const wchar_t* clase) : BancoAtl(clase) {}

    HWND Campo() const { return CampoDe(ventana); }
    std::wstring Text() const { return Texto(Leer(objeto.Como<IDispatch>().get(), L"Text")); }
    void Entrar() {
        Llevar(Campo(), 10, 8);
        Clic();
        hechos.clear();
    }
    void Escribir(const std::wstring& letras) {
        for (const wchar_t letra : letras) {
            TeclearUnidad(letra);
            Esperar(20);
        }
        Esperar();
    }
};

const wchar_t* CadaClase() {
    return Cada({L"Pincela.Tbox", L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"});
}

} // namespace

TEST_CASE("The host shows the text box and a click leads into its field") {
    BancoDeHuesped b(CadaClase());
    REQUIRE(b.Campo() != nullptr);
    b.Llevar(b.Campo(), 10, 8);
    b.Clic();
    CHECK(GetFocus() == b.Campo());
    CHECK(b.Sucesos() == Hechos{"Click"});
}

TEST_CASE("Keys typed in the host are filtered, told and written") {
    BancoDeHuesped b(CadaClase());
    b.Poner(L"TipoTexto", 3L);
    b.Entrar();
    b.Escribir(L"1.5,-a!");
    CHECK(b.Text() == L"1,5!");
    b.hechos.clear();
    b.Teclear('7');
    CHECK(b.Sucesos() == Hechos{"PresTecla 55 0", "TocoTecla 55", "Change", "SoltoTecla 55 0"});
}

TEST_CASE("Enter and TAB leave a plain text box in a host that knows of neither") {
    BancoDeHuesped b(Cada({L"Pincela.TboxSS", L"Pincela.TboxSSML"}));
    b.Entrar();
    b.Teclear(VK_RETURN);
    CHECK(GetFocus() == b.texto);
    b.Entrar();
    b.Teclear(VK_TAB);
    CHECK(GetFocus() == b.texto);
}

TEST_CASE("TAB leaves a field of many lines in the host, CTRL with TAB goes into it") {
    BancoDeHuesped b(Cada({L"Pincela.TBoxML", L"Pincela.TboxSSML"}));
    b.Poner(L"Text", L"");
    b.Entrar();
    Tecla(VK_CONTROL, true);
    b.Teclear(VK_TAB);
    Tecla(VK_CONTROL, false);
    b.Esperar();
    CHECK(b.Text() == L"\t");
    b.Teclear(VK_TAB);
    CHECK(GetFocus() == b.texto);
}

TEST_CASE("Enter in the only control of a window leaves the focus where it is") {
    BancoDeHuesped b(Cada({L"Pincela.TboxSS", L"Pincela.TboxSSML"}));
    DestroyWindow(b.texto);
    b.Entrar();
    b.Teclear(VK_RETURN);
    CHECK(GetFocus() == b.Campo());
}

TEST_CASE("The host's own text box gets the focus back, and the colours go") {
    BancoDeHuesped b(CadaClase());
    constexpr COLORREF Rojo = RGB(255, 0, 0), Verde = RGB(0, 255, 0);
    b.Poner(L"ColorFonTexto", static_cast<long>(Rojo));
    b.Poner(L"ColorFonTextoS", static_cast<long>(Verde));
    const auto fondo = [&] { return Captura::DeVentana(b.Campo()).Pixel(60, 10); };
    b.Esperar();
    CHECK(fondo() == Rojo);
    b.Entrar();
    CHECK(fondo() == Verde);
    b.Llevar(b.texto, 4, 6);
    b.Clic();
    CHECK(GetFocus() == b.texto);
    CHECK(fondo() == Rojo);
}

TEST_CASE("The mouse that leaves is told in the host as anywhere") {
    BancoDeHuesped b(Cada({L"Pincela.Tbox", L"Pincela.TBoxML"}));
    b.Llevar(b.Campo(), 10, 8);
    b.Llevar(b.marco, 280, 10);
    CHECK(b.Sucesos() == Hechos{"MouseSale"});
}

TEST_CASE("A million letters go through the host unharmed") {
    BancoDeHuesped b(L"Pincela.TboxSSML");
    std::wstring largo;
    while (largo.size() < 1000000)
        largo += L"línea de un texto muy largo, con eñes\r\n";
    b.Poner(L"Text", largo);
    CHECK(b.Text() == largo);
}

TEST_CASE("The host lets go of a text box with its window, and nothing stays behind") {
    Componente componente;
    {
        BancoDeHuesped b(CadaClase());
        componente = b.componente;
        b.Entrar();
        b.Escribir(L"a");
        b.sumidero->Desconectar();
        DestroyWindow(b.marco);
        CHECK_FALSE(IsWindow(b.ventana));
        b.Esperar(50);
        CHECK(b.objeto.Soltar() == 0);
    }
    CHECK(componente.PuedeDescargarse());
}
