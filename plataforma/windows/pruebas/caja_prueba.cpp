#include "plataforma/windows/pruebas/banco.h"

#include <commctrl.h>

#include "pruebas/cada.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::windows;
using namespace pincela::windows::pruebas;
using Hechos = std::vector<std::string>;

namespace {

class EdicionDePrueba final : public OyenteEdicion {
  public:
    explicit EdicionDePrueba(Hechos& hechos) : hechos_(hechos) {}
    std::int16_t cambiar = -1; // what every key becomes

    void Change() override { hechos_.push_back("Change"); }
    void GotFocus() override { hechos_.push_back("GotFocus"); }
    void LostFocus() override { hechos_.push_back("LostFocus"); }
    void KeyPress(std::int16_t& c) override {
        hechos_.push_back("KeyPress " + std::to_string(c));
        if (cambiar >= 0)
            c = cambiar;
    }
    void KeyDown(std::int16_t& c, std::int16_t) override {
        hechos_.push_back("KeyDown " + std::to_string(c));
    }
    void Click() override { hechos_.push_back("Click"); }
    void MouseDown(std::int16_t b, std::int16_t s, float x, float y) override {
        hechos_.push_back(Golpe("MouseDown", b, s, x, y));
    }
    void MouseMove(std::int16_t b, std::int16_t s, float x, float y) override {
        hechos_.push_back(Golpe("MouseMove", b, s, x, y));
    }
    void MouseUp(std::int16_t b, std::int16_t s, float x, float y) override {
        hechos_.push_back(Golpe("MouseUp", b, s, x, y));
    }

  private:
    Hechos& hechos_;
};

struct BancoConCaja : Banco {
    explicit BancoConCaja(bool activa = true, bool multilinea = false) {
        caja = entorno->CrearCajaTexto(multilinea);
        caja->Move(5, 4, 80, 22);
        caja->PonOyente(&oyente);
        if (activa)
            Activar();
    }
    HWND ventana() { return reinterpret_cast<HWND>(caja->hWnd()); }
    EdicionDePrueba oyente{sitio.hechos};
    std::unique_ptr<CajaTexto> caja;
};

} // namespace

TEST_CASE("An edit field keeps text and selection with and without a window") {
    BancoConCaja b(false);
    b.caja->PonText(u"uno dos");
    b.caja->PonSelStart(4);
    b.caja->PonSelLength(3);
    CHECK(b.caja->hWnd() == 0);
    CHECK(b.caja->SelText() == u"dos");
    b.Activar();
    REQUIRE(::IsWindow(b.ventana()));
    CHECK(b.caja->Text() == u"uno dos");
    CHECK(b.caja->SelText() == u"dos");
    ::SendMessageW(b.ventana(), EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L"tres"));
    CHECK(b.hechos() == Hechos{"Change"});
    b.entorno->DestruirVentana();
    CHECK(b.caja->hWnd() == 0);
    CHECK(b.caja->Text() == u"uno tres");
    CHECK(b.caja->SelStart() == 8);
}

TEST_CASE("A selection asked for before its text is applied when the text arrives") {
    const bool activa = pincela::pruebas::Cada({false, true});
    BancoConCaja b(activa);
    b.caja->PonSelStart(2);
    b.caja->PonSelLength(3);
    CHECK(b.caja->SelStart() == 0);
    CHECK(b.caja->SelLength() == 0);
    b.caja->PonText(u"abcdefgh");
    CHECK(b.caja->SelText() == u"cde");
    b.caja->PonText(u"otro");
    CHECK(b.caja->SelLength() == 0);
    for (const auto poner : {&CajaTexto::PonSelStart, &CajaTexto::PonSelLength})
        try {
            (b.caja.get()->*poner)(-1);
            FAIL("no error");
        } catch (const ErrorEjecucion& error) {
            CHECK(error.Numero() == NumeroError::ValorDePropiedad);
        }
}

TEST_CASE("A change of text is told once, an assignment of the same text not at all") {
    const bool multilinea = pincela::pruebas::Cada({false, true});
    BancoConCaja b(true, multilinea);
    b.caja->PonText(u"hola");
    b.caja->PonText(u"hola");
    CHECK(b.hechos() == Hechos{"Change"});
    b.caja->PonMaxLength(3);
    b.caja->PonText(u"adios");
    CHECK(b.caja->Text() == u"adi");
}

TEST_CASE("A typed character may be changed or dropped") {
    BancoConCaja b;
    ::SendMessageW(b.ventana(), WM_CHAR, 'a', 0);
    b.oyente.cambiar = u'Ñ';
    ::SendMessageW(b.ventana(), WM_CHAR, 0xF1, 0);
    b.oyente.cambiar = 0;
    ::SendMessageW(b.ventana(), WM_CHAR, 'c', 0);
    CHECK(b.caja->Text() == u"aÑ");
    CHECK(b.hechos() == Hechos{"KeyPress 97", "Change", "KeyPress 241", "Change", "KeyPress 99"});
}

TEST_CASE("A single-line field keeps Enter to itself, a multi-line one starts a line") {
    const bool multilinea = pincela::pruebas::Cada({false, true});
    BancoConCaja b(true, multilinea);
    b.caja->PonText(u"x");
    ::SendMessageW(b.ventana(), WM_CHAR, VK_RETURN, 0);
    CHECK(b.caja->Text() == (multilinea ? u"\r\nx" : u"x"));
}

TEST_CASE("Alignment and looks survive in the same field with its text, selection and focus") {
    BancoConCaja b;
    b.caja->PonText(u"hola");
    ::SetFocus(b.ventana());
    b.caja->PonSelStart(1);
    b.caja->PonSelLength(2);
    b.Olvidar();
    b.caja->PonAlignment(2);
    b.caja->PonAppearance(0);
    CHECK((::GetWindowLongW(b.ventana(), GWL_STYLE) & ES_CENTER) != 0);
    CHECK((::GetWindowLongW(b.ventana(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE) == 0);
    CHECK(b.caja->SelText() == u"ol");
    CHECK(b.caja->EsActivo());
    CHECK(b.hechos().empty());
    int ventanas = 0;
    for (HWND v = ::GetWindow(b.entorno->Ventana(), GW_CHILD); v; v = ::GetWindow(v, GW_HWNDNEXT))
        ++ventanas;
    CHECK(ventanas == 1);
}

TEST_CASE("The focus of a field is the focus of its control") {
    BancoConCaja b;
    CHECK(b.entorno->VentanaDeFoco() == b.ventana());
    ::SetFocus(b.entorno->Ventana());
    CHECK(b.caja->EsActivo());
    CHECK(b.hechos() == Hechos{"FocoCambiado si", "EnterFocus", "GotFocus"});
    b.Olvidar();
    ::SetFocus(b.marco.ventana());
    CHECK(b.hechos() == Hechos{"LostFocus", "ExitFocus", "FocoCambiado no"});
    b.caja->PonEnabled(false);
    CHECK(b.entorno->VentanaDeFoco() == b.entorno->Ventana());
}

TEST_CASE("The mouse over a field is told in the field's coordinates") {
    BancoConCaja b;
    ::SendMessageW(b.ventana(), WM_MOUSEMOVE, 0, Punto(3, 4));
    ::SendMessageW(b.ventana(), WM_LBUTTONDOWN, MK_LBUTTON, Punto(3, 4));
    ::SendMessageW(b.ventana(), WM_LBUTTONUP, 0, Punto(3, 4));
    const Hechos hechos = b.hechos();
    REQUIRE(hechos.size() >= 5);
    CHECK(hechos.front() == "MouseMove 0 0 3 4");
    CHECK(hechos[1] == "PedirFoco");
    CHECK(hechos[2] == "MouseDown 1 0 3 4");
    CHECK(hechos[hechos.size() - 2] == "MouseUp 1 0 3 4");
    CHECK(hechos.back() == "Click");
}

TEST_CASE("A field in a frozen control is glass to the mouse") {
    BancoConCaja b;
    b.sitio.congelado = true;
    CHECK(::SendMessageW(b.ventana(), WM_NCHITTEST, 0, 0) == HTTRANSPARENT);
}

TEST_CASE("A field paints in its colours, and a view of the control shows it too") {
    BancoConCaja b;
    b.caja->PonBackColor(Color(std::uint32_t{0xC0FFC0}));
    b.caja->PonForeColor(Color(std::uint32_t{0x0000FF}));
    b.caja->PonText(u"hola");
    ::UpdateWindow(b.ventana());
    HDC dc = ::GetDC(b.ventana());
    CHECK(::GetPixel(dc, 60, 10) == RGB(192, 255, 192));
    ::ReleaseDC(b.ventana(), dc);
    Foto& f = b.Fotografiar();
    CHECK(f(60, 15) == 0xC0FFC0);
    CHECK(f.Cuantos(0xFF0000, {5, 4, 85, 26}) > 8);
}

TEST_CASE("A field may die in its own notification, and so may its control") {
    const bool todo = pincela::pruebas::Cada({false, true});
    BancoConCaja b;
    struct Asesino final : OyenteEdicion {
        std::function<void()> accion;
        void KeyPress(std::int16_t&) override { accion(); }
    } asesino;
    asesino.accion = [&] {
        b.caja.reset();
        if (todo) {
            b.entorno->Asociar(nullptr);
            b.entorno.reset();
        }
    };
    b.caja->PonOyente(&asesino);
    const HWND ventana = b.ventana();
    ::SendMessageW(ventana, WM_CHAR, 'a', 0);
    CHECK_FALSE(::IsWindow(ventana));
    CHECK(b.sitio.sostenidos == 0);
}

TEST_CASE("The only tip of a control shows all over it, several only over their own elements") {
    Banco banco;
    auto uno = banco.entorno->CrearEtiqueta(), otro = banco.entorno->CrearEtiqueta();
    uno->PonCaption(u"Uno");
    uno->Move(50, 5);
    uno->PonToolTipText(u"Globo uno");
    otro->PonCaption(u"Otro");
    const HWND ventana = banco.Activar();
    const auto textoEn = [&](int x, int y) -> std::wstring {
        ::SendMessageW(ventana, WM_MOUSEMOVE, 0, Punto(x, y));
        HWND globo = nullptr;
        while ((globo = ::FindWindowExW(nullptr, globo, TOOLTIPS_CLASSW, nullptr)))
            if (::GetWindow(globo, GW_OWNER) == banco.marco.ventana())
                break;
        if (!globo)
            return L"(none)";
        wchar_t texto[80] = L"?";
        TTTOOLINFOW info{};
        info.cbSize = TTTOOLINFOW_V1_SIZE;
        info.hwnd = ventana;
        info.uId = 1;
        info.lpszText = texto;
        ::SendMessageW(globo, TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&info));
        return texto;
    };
    otro->PonToolTipText(u"");
    CHECK(textoEn(3, 28) == L"Globo uno");
    otro->PonToolTipText(u"Globo otro");
    CHECK(textoEn(52, 8) == L"Globo uno");
    CHECK(textoEn(3, 3) == L"Globo otro");
    CHECK(textoEn(3, 28) == L"");
}
