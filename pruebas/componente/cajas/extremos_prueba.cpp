// Long texts, line ends, letters beyond 16 bits; looks that need another edit window.
#include "pruebas/cada.h"
#include "pruebas/componente/cajas/banco.h"

using namespace cajas;
using pincela::pruebas::Cada;

namespace {

const wchar_t* CadaClase() {
    return Cada({L"Pincela.Tbox", L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"});
}

const wchar_t* CadaMultilinea() {
    return Cada({L"Pincela.TBoxML", L"Pincela.TboxSSML"});
}

LOGFONTW FuenteDe(HWND campo) {
    LOGFONTW fuente{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(campo, WM_GETFONT, 0, 0)), sizeof fuente,
               &fuente);
    return fuente;
}

/// As an application deep inside its lists holds it.
std::wstring Renglones(int cuantos) {
    std::wstring texto;
    for (int i = 0; i < cuantos; ++i)
        texto += L"renglón " + std::to_wstring(i) + L"\r\n";
    return texto;
}

} // namespace

TEST_CASE("A text of a million letters comes back unharmed, from the window too") {
    BancoDeCaja b(CadaClase());
    std::wstring largo;
    while (largo.size() < 1000000)
        largo += L"línea de un texto muy largo, con eñes\r\n";
    b.Poner(L"Text", largo);
    CHECK(b.Text() == largo);
    CHECK(GetWindowTextLengthW(b.Campo()) == static_cast<int>(largo.size()));
    b.boton->Como<IOleInPlaceObject>()->InPlaceDeactivate();
    CHECK(b.Text() == largo);
}

TEST_CASE("Letters beyond the basic plane, line ends and tabs come back unharmed") {
    BancoDeCaja b(CadaClase());
    for (const wchar_t* texto :
         {L"\xD83D\xDE00 y \xD834\xDD1E", L"uno\r\ndos\r\n\r\n", L"a\tb", L"ñÑüÜçÇ €", L"\r\n"}) {
        b.Poner(L"Text", texto);
        CHECK(b.Text() == texto);
        b.boton->Como<IOleInPlaceObject>()->InPlaceDeactivate();
        CHECK(b.Text() == texto);
        b.boton->Verbo(OLEIVERB_INPLACEACTIVATE);
        CHECK(b.Text() == texto);
    }
}

TEST_CASE("Another alignment or appearance keeps text, selection, font, lock, limit and focus") {
    BancoDeCaja b(CadaClase());
    b.Poner(L"MaxText", 50L);
    b.PonerFuente(L"Courier New", 14);
    b.Poner(L"Text", L"uno dos tres");
    b.Enfocar();
    SendMessageW(b.Campo(), EM_SETSEL, 4, 7);
    const LOGFONTW fuente = FuenteDe(b.Campo());
    for (const auto& [nombre, valor] :
         {std::pair{L"AlinText", 2L}, std::pair{L"AlinText", 1L}, std::pair{L"Apariencia", 0L},
          std::pair{L"Apariencia", 1L}}) {
        const HWND antes = b.Campo();
        b.Poner(nombre, valor);
        CHECK(b.Campo() != antes);
        CHECK_FALSE(IsWindow(antes));
        DWORD desde = 0, hasta = 0;
        SendMessageW(b.Campo(), EM_GETSEL, reinterpret_cast<WPARAM>(&desde),
                     reinterpret_cast<LPARAM>(&hasta));
        CHECK(desde == 4);
        CHECK(hasta == 7);
        CHECK(b.Text() == L"uno dos tres");
        CHECK(GetFocus() == b.Campo());
        CHECK(FuenteDe(b.Campo()).lfHeight == fuente.lfHeight);
        CHECK(std::wstring(FuenteDe(b.Campo()).lfFaceName) == fuente.lfFaceName);
        CHECK(SendMessageW(b.Campo(), EM_GETLIMITTEXT, 0, 0) == 50);
    }
    CHECK(b.Veces("Change") == 0);
}

TEST_CASE("A field of many lines keeps its scroll position through a change of looks") {
    BancoDeCaja b(CadaMultilinea());
    b.Poner(L"Text", Renglones(100));
    SendMessageW(b.Campo(), EM_LINESCROLL, 0, 40);
    const auto primera = SendMessageW(b.Campo(), EM_GETFIRSTVISIBLELINE, 0, 0);
    REQUIRE(primera == 40);
    b.Poner(L"Apariencia", 0L);
    CHECK(SendMessageW(b.Campo(), EM_GETFIRSTVISIBLELINE, 0, 0) == primera);
    b.Poner(L"AlinText", 2L);
    CHECK(SendMessageW(b.Campo(), EM_GETFIRSTVISIBLELINE, 0, 0) == primera);
}

TEST_CASE("A field of one line still shows the part it had scrolled to") {
    BancoDeCaja b(Cada({L"Pincela.Tbox", L"Pincela.TboxSS"}));
    b.Poner(L"Text", std::wstring(300, L'm'));
    SendMessageW(b.Campo(), EM_SETSEL, 200, 200);
    SendMessageW(b.Campo(), EM_SCROLLCARET, 0, 0);
    const auto primera = SendMessageW(b.Campo(), EM_GETFIRSTVISIBLELINE, 0, 0);
    REQUIRE(primera > 100);
    b.Poner(L"Apariencia", 0L);
    const auto despues = SendMessageW(b.Campo(), EM_GETFIRSTVISIBLELINE, 0, 0);
    CHECK(despues > primera - 12);
    CHECK(despues < primera + 12);
}

TEST_CASE("Only a field of many lines has a scroll bar and starts lines") {
    BancoDeCaja b(CadaClase());
    const bool varias = (GetWindowLongW(b.Campo(), GWL_STYLE) & ES_MULTILINE) != 0;
    CHECK(((GetWindowLongW(b.Campo(), GWL_STYLE) & WS_VSCROLL) != 0) == varias);
}

TEST_CASE("Text, selection and looks live on when the control leaves its place and comes back") {
    BancoDeCaja b(Cada({L"Pincela.TboxSS", L"Pincela.TboxSSML"}));
    b.Poner(L"Text", L"uno dos tres");
    b.Poner(L"SelStart", short{4});
    b.Poner(L"SelLength", short{3});
    b.boton->Como<IOleInPlaceObject>()->InPlaceDeactivate();
    CHECK(b.Campo() == nullptr);
    CHECK(Texto(b.Leer(L"SelText")) == L"dos");
    b.boton->Verbo(OLEIVERB_INPLACEACTIVATE);
    REQUIRE(b.Campo() != nullptr);
    CHECK(Texto(b.Leer(L"SelText")) == L"dos");
}
