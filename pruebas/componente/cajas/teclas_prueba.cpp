// Real keys in the edit field: the filter, the events, editing and the clipboard.
#include "pruebas/cada.h"
#include "pruebas/componente/cajas/banco.h"

using namespace cajas;
using pincela::pruebas::Cada;

namespace {

enum Tipo : long { TextNorm, Mayuscula, NumericoEnt, NumericoDes };

struct BancoQueEscribe : BancoDeCaja {
    explicit BancoQueEscribe(const wchar_t* clase, Tipo tipo = TextNorm) : BancoDeCaja(clase) {
        Poner(L"TipoTexto", static_cast<long>(tipo));
        Enfocar();
        REQUIRE(GetFocus() == Campo());
    }
    /// What stands in the field after typing into it from empty.
    std::wstring Tras(const std::wstring& letras) {
        Poner(L"Text", L"");
        Escribir(letras);
        return Text();
    }
};

const wchar_t* CadaClase() {
    return Cada({L"Pincela.Tbox", L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"});
}

} // namespace

TEST_CASE("A key gives PresTecla, TocoTecla, Change and SoltoTecla, in that order") {
    BancoQueEscribe b(CadaClase());
    b.Teclear('A');
    CHECK(b.Sucesos() == Hechos{"PresTecla 65 0", "TocoTecla 97", "Change", "SoltoTecla 65 0"});
    CHECK(b.Text() == L"a");
    b.Olvidar();
    b.Teclear(VK_F5);
    CHECK(b.Sucesos() == Hechos{"PresTecla 116 0", "SoltoTecla 116 0"});
}

TEST_CASE("Whole numbers take digits and nothing else that one would see") {
    BancoQueEscribe b(CadaClase(), NumericoEnt);
    CHECK(b.Tras(L"12.3") == L"123");
    CHECK(b.Tras(L"-1 +2a,ñ/") == L"12");
    CHECK(b.Tras(L"1!") == L"1!");
    b.Poner(L"Text", L"");
    b.Escribir(L"12");
    b.Teclear(VK_BACK);
    CHECK(b.Text() == L"1");
}

TEST_CASE("Decimal numbers take one comma, typed as a comma or as a full stop") {
    BancoQueEscribe b(CadaClase(), NumericoDes);
    CHECK(b.Tras(L"1.5,") == L"1,5");
    CHECK(b.Tras(L"1,5.") == L"1,5");
    CHECK(b.Tras(L"- 2,5") == L"2,5");
}

TEST_CASE("Capitals are typed whatever the case, accents included") {
    BancoQueEscribe b(CadaClase(), Mayuscula);
    CHECK(b.Tras(L"añoÉü1") == L"AÑOÉÜ1");
}

TEST_CASE("A dropped character is not told, a changed one is told as it became") {
    BancoQueEscribe b(L"Pincela.Tbox", NumericoDes);
    b.Escribir(L"a");
    CHECK(b.Veces("TocoTecla") == 0);
    CHECK(b.Veces("Change") == 0);
    b.Escribir(L".");
    CHECK(b.Ultimo("TocoTecla") == "TocoTecla 44");
    CHECK(b.Text() == L",");
}

TEST_CASE("A handler may change or clear what was typed") {
    BancoQueEscribe b(CadaClase());
    b.alOcurrir = [](Evento& e) {
        if (e.nombre == L"TocoTecla")
            Asignar(*e.argumentos[0],
                    Variante(static_cast<short>(Entero(*e.argumentos[0]) == 'x' ? 0 : 'z')));
    };
    b.Escribir(L"axb");
    CHECK(b.Text() == L"zz");
}

TEST_CASE("A handler may change the looks while a key is on its way, and the letter arrives") {
    BancoQueEscribe b(CadaClase());
    long alineacion = 0;
    b.alOcurrir = [&](Evento& e) {
        if (e.nombre == L"TocoTecla")
            b.Poner(L"AlinText", alineacion = (alineacion + 1) % 3);
    };
    b.Escribir(L"abc");
    CHECK(b.Text() == L"abc");
    CHECK(GetFocus() == b.Campo());
}

TEST_CASE("Letters beyond the basic plane are typed as two units and stay together") {
    BancoQueEscribe b(CadaClase());
    b.Escribir(L"a\xD83D\xDE00z");
    CHECK(b.Text() == L"a\xD83D\xDE00z");
}

TEST_CASE("MaxText stops typing and pasting, Tranca stops both") {
    BancoQueEscribe b(CadaClase());
    b.Poner(L"MaxText", 5L);
    b.Escribir(L"abcdefg");
    CHECK(b.Text() == L"abcde");
    b.Con(VK_CONTROL, 'A');
    SendMessageW(b.Campo(), EM_SETSEL, 0, -1);
    b.Con(VK_CONTROL, 'C');
    SendMessageW(b.Campo(), EM_SETSEL, 3, 5);
    b.Con(VK_CONTROL, 'V');
    CHECK(b.Text() == L"abcab");
    b.Poner(L"Tranca", true);
    b.Escribir(L"x");
    b.Con(VK_CONTROL, 'V');
    b.Teclear(VK_DELETE);
    CHECK(b.Text() == L"abcab");
}

TEST_CASE("Cut, paste and undo work, and pasted text is not filtered") {
    BancoQueEscribe b(CadaClase());
    b.Poner(L"Text", L"no un número");
    SendMessageW(b.Campo(), EM_SETSEL, 0, 5);
    b.Con(VK_CONTROL, 'X');
    CHECK(b.Text() == L" número");
    CHECK(b.Veces("Change") >= 1);
    b.Con(VK_CONTROL, 'Z');
    CHECK(b.Text() == L"no un número");
    b.Poner(L"TipoTexto", static_cast<long>(NumericoEnt));
    b.Poner(L"Text", L"");
    b.Con(VK_CONTROL, 'V');
    CHECK(b.Text() == L"no un");
}

TEST_CASE("Arrows, Home, End and Delete edit the text instead of leaving the field") {
    BancoQueEscribe b(CadaClase());
    const auto otra = b.OtraCaja(L"Pincela.TboxSS", {40, 100, 160, 130});
    b.Enfocar();
    b.Escribir(L"abc");
    b.Teclear(VK_HOME);
    b.Teclear(VK_RIGHT);
    b.Teclear(VK_DELETE);
    CHECK(b.Text() == L"ac");
    b.Teclear(VK_END);
    b.Teclear(VK_LEFT);
    b.Teclear(VK_BACK);
    CHECK(b.Text() == L"c");
    CHECK(b.TieneFoco(*b.boton));
}

TEST_CASE("A disabled text box takes no keys") {
    BancoDeCaja b(Cada({L"Pincela.Tbox", L"Pincela.TBoxML"}));
    b.Poner(L"Enabled", false);
    b.Enfocar();
    b.Escribir(L"abc");
    CHECK(b.Text() == L"");
    CHECK(b.Veces("TocoTecla") == 0);
}

TEST_CASE("Nothing that is typed in design mode reaches the field") {
    BancoDeCaja b(CadaClase());
    b.forma->PonerModoUsuario(false);
    SendMessageW(b.Campo(), WM_NCHITTEST, 0, 0);
    CHECK(SendMessageW(b.Campo(), WM_NCHITTEST, 0, 0) == HTTRANSPARENT);
    b.Entrar(20, 20);
    b.Clic();
    CHECK(b.Sucesos() == Hechos{});
}

TEST_CASE("A handler of any event may close the form under the key") {
    const wchar_t* clase = CadaClase();
    for (const std::string cual : {"PresTecla", "TocoTecla", "Change", "SoltoTecla"}) {
        Componente componente;
        {
            BancoQueEscribe b(clase);
            componente = b.componente;
            b.alOcurrir = [&](Evento& e) {
                if (Estrechar(e.nombre) == cual && b.boton)
                    b.forma->Quitar(*std::exchange(b.boton, nullptr));
            };
            Tecla('A', true);
            b.Esperar();
            Tecla('A', false);
            b.Esperar();
            CHECK(b.forma->Controles().empty());
            b.sumidero = nullptr;
        }
        CHECK(componente.PuedeDescargarse());
    }
}
