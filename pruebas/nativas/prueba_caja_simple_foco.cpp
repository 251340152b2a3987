// Focus, keys and mouse of a plain text box.
#include "pruebas/nativas/caja_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

bool ConFoco(CajaDePrueba<TboxSS>& p) {
    return p.campo().BackColor() == Color(0xC0FFC0);
}

} // namespace

TEST_CASE("the focus goes from the control to its field and colours it") {
    auto p = NuevaCaja<TboxSS>();
    p->c->EnterFocus();
    CHECK(p->campo().EsActivo());
    CHECK(ConFoco(*p));
    p->Desenfocar();
    CHECK_FALSE(ConFoco(*p));
}

TEST_CASE("a disabled control passes the focus straight on") {
    auto p = NuevaCaja<TboxSS>();
    p->c->PonEnabled(false);
    p->Tomar();
    p->c->EnterFocus();
    CHECK(p->Tomar() == Lineas{"EnviarTab"});
    CHECK_FALSE(p->campo().EsActivo());
}

TEST_CASE("a field that can't take the focus is no error of the control") {
    auto p = NuevaCaja<TboxSS>();
    p->e.alEnfocarCampo = [] { Lanzar(NumeroError::LlamadaNoValida); };
    CHECK(ErrorDe([&] { p->c->EnterFocus(); }) == 0);
}

TEST_CASE("the control loses the focus as its field does") {
    auto p = NuevaCaja<TboxSS>();
    p->c->ActualizarColores(true);
    p->c->ExitFocus();
    CHECK_FALSE(ConFoco(*p));
}

TEST_CASE("the whole text is selected when the focus comes and when it goes") {
    auto p = NuevaCaja<TboxSS>();
    p->c->PonText(u"Hola");
    p->Enfocar();
    CHECK(p->c->SelText() == u"Hola");
    p->c->PonSelStart(2);
    CHECK(p->c->SelText().empty());
    p->Desenfocar();
    CHECK(p->c->SelText() == u"Hola");
    p->c->PonSelecConFoco(false);
    p->c->PonSelStart(2);
    p->Enfocar();
    CHECK(p->c->SelStart() == 2);
    CHECK(p->c->SelLength() == 0);
}

TEST_CASE("Enter moves on to the next control and is told all the same") {
    auto p = NuevaCaja<TboxSS>();
    std::int16_t tecla = 13;
    p->campo().oyente->KeyPress(tecla);
    CHECK(p->Tomar() == Lineas{"EnviarTab", "evento TocoTecla 13", "DoEvents"});
    CHECK(tecla == 13);
}

TEST_CASE("Enter moves on from a field of numbers or capitals as well") {
    for (const TText tipo : {TText::Mayuscula, TText::NumericoEnt, TText::NumericoDes}) {
        auto p = NuevaCaja<TboxSSML>();
        p->c->PonTipoTexto(tipo);
        p->Tomar();
        p->Teclear(u"\r");
        CHECK(p->Tomar() == Lineas{"EnviarTab", "evento TocoTecla 13", "DoEvents"});
    }
}

TEST_CASE("without NavConEnter, Enter is a character like another") {
    auto p = NuevaCaja<TboxSSML>();
    p->c->PonNavConEnter(false);
    p->Tomar();
    std::int16_t tecla = 13;
    p->campo().oyente->KeyPress(tecla);
    CHECK(p->Tomar() == Lineas{"evento TocoTecla 13", "DoEvents"});
    CHECK(tecla == 13);
}

TEST_CASE("no other key moves on") {
    auto p = NuevaCaja<TboxSS>();
    p->Teclear(u"a\t\n\b");
    CHECK(p->Tomar({"EnviarTab"}).empty());
}

TEST_CASE("the filter is the one of all text boxes") {
    auto p = NuevaCaja<TboxSS>();
    p->c->PonTipoTexto(TText::NumericoDes);
    p->Teclear(u"-1.5,");
    CHECK(p->c->Text() == u"1,5");
    p->c->PonTipoTexto(TText::Mayuscula);
    p->Teclear(u"ñ");
    CHECK(p->c->Text() == u"1,5Ñ");
}

TEST_CASE("what the user types is told as a change of the property, before the event") {
    auto p = NuevaCaja<TboxSS>();
    p->Teclear(u"a");
    CHECK(p->Tomar() == Lineas{"evento TocoTecla 97", "DoEvents", "Pide Text", "PC Text",
                               "evento Change", "DoEvents"});
}

TEST_CASE("a container that refuses a change keeps the text, typed or assigned") {
    auto p = NuevaCaja<TboxSS>();
    p->e.cambiosPermitidos = false;
    p->Teclear(u"a");
    CHECK(p->Tomar() == Lineas{"evento TocoTecla 97", "DoEvents", "Pide Text"});
    CHECK(ErrorDe([&] { p->c->PonText(u"b"); }) == 70);
    CHECK(p->c->Text().empty());
}

TEST_CASE("Enter is the control's own where it moves on or starts a line") {
    auto una = NuevaCaja<TboxSS>();
    CHECK(una->c->ComeEnter());
    una->c->PonNavConEnter(false);
    CHECK_FALSE(una->c->ComeEnter());
    auto varias = NuevaCaja<TboxSSML>();
    varias->c->PonNavConEnter(false);
    CHECK(varias->c->ComeEnter());
    CHECK_FALSE(NuevaCaja<Tbox>()->c->ComeEnter());
    CHECK(NuevaCaja<TBoxML>()->c->ComeEnter());
}

TEST_CASE("an assignment is told once") {
    auto p = NuevaCaja<TboxSS>();
    p->c->PonText(u"a");
    CHECK(p->Tomar() ==
          Lineas{"Pide Text", "txtTexto.Text \"a\"", "evento Change", "DoEvents", "PC Text"});
}

TEST_CASE("keys are told on their way down and up, then the host attends to what is pending") {
    auto p = NuevaCaja<TboxSS>();
    std::int16_t codigo = 13;
    p->campo().oyente->KeyDown(codigo, 1);
    p->campo().oyente->KeyUp(codigo, 2);
    CHECK(p->Tomar() ==
          Lineas{"evento PresTecla 13 1", "DoEvents", "evento SoltoTecla 13 2", "DoEvents"});
}

TEST_CASE("clicks and presses are told while enabled; the mouse colours nothing") {
    auto p = NuevaCaja<TboxSS>();
    p->e.RatonEncima();
    p->c->Click();
    p->campo().oyente->Click();
    p->c->MouseDown(1, 0, 2, 3);
    p->campo().oyente->MouseDown(1, 0, 2, 3);
    p->c->MouseMove(0, 0, 2, 3);
    p->campo().oyente->MouseMove(0, 0, 4, 5);
    CHECK(p->Tomar() == Lineas{"evento Click", "evento Click", "evento MouseDown 1 0 2 3",
                               "evento MouseMove 0 0 2 3", "evento MouseMove 0 0 4 5"});
    p->c->PonEnabled(false);
    p->Tomar();
    p->c->Click();
    p->c->MouseDown(1, 0, 2, 3);
    p->c->MouseMove(0, 0, 2, 3);
    CHECK(p->Tomar().empty());
}

TEST_CASE("with FocoConMouse a move gives the field the focus, once") {
    auto p = NuevaCaja<TboxSS>();
    p->c->PonFocoConMouse(true);
    p->Tomar();
    p->c->MouseMove(0, 0, 2, 3);
    p->c->MouseMove(0, 0, 3, 3);
    CHECK(p->Tomar({"txtTexto.SetFocus", "evento"}) ==
          Lineas{"txtTexto.SetFocus", "evento MouseMove 0 0 2 3", "evento MouseMove 0 0 3 3"});
    CHECK(ConFoco(*p));
}

TEST_CASE("presses and resizes are not heard while a plain text box loads") {
    CajaDePrueba<TboxSS> p;
    bool probado = false;
    p.e.alCambiar = [&](VistaTexto clave) {
        if (clave != u"Tranca")
            return;
        p.Tomar();
        p.c->Resize();
        p.c->MouseDown(1, 0, 2, 2);
        CHECK(p.Tomar().empty());
        probado = true;
    };
    BolsaGrabadora bolsa;
    p.c->ReadProperties(bolsa);
    CHECK(probado);
}

TEST_CASE("a handler of a plain text box may end it, or change it, wherever it is called") {
    auto terminar = [](auto& p) { return [&p](auto&...) { p->c->Terminate(); }; };
    auto p = NuevaCaja<TboxSS>();
    p->c->eventos.TocoTecla.Conectar(terminar(p));
    p->c->eventos.PresTecla.Conectar(terminar(p));
    p->c->eventos.SoltoTecla.Conectar(terminar(p));
    p->c->eventos.Change.Conectar(terminar(p));
    p->Teclear(u"a\r");
    std::int16_t codigo = 65;
    p->campo().oyente->KeyDown(codigo, 0);
    p->campo().oyente->KeyUp(codigo, 0);
    CHECK(p->c->Text() == u"a");

    auto q = NuevaCaja<TboxSS>();
    // The next control takes the focus while Enter is on its way.
    q->Enfocar();
    q->e.alEnviarTab = [&] {
        q->Desenfocar();
        q->c->PonNavConEnter(false);
        q->c->PonText(u"otra");
    };
    q->Tomar();
    q->Teclear(u"\r");
    CHECK(q->Tomar({"evento"}) == Lineas{"evento Change", "evento TocoTecla 13"});
    CHECK_FALSE(ConFoco(*q));
    CHECK(q->c->Text() == u"otra");
}

TEST_CASE("a plain text box ended while its field takes the focus tells nothing more") {
    auto p = NuevaCaja<TboxSS>();
    p->c->PonFocoConMouse(true);
    p->e.alEnfocarCampo = [&] { p->c->Terminate(); };
    p->Tomar();
    p->c->MouseMove(0, 0, 1, 1);
    CHECK(p->Eventos().empty());
}

TEST_CASE("painting and resizing are told") {
    auto p = NuevaCaja<TboxSS>();
    p->c->Paint();
    p->c->Resize();
    CHECK(p->Eventos() == Lineas{"evento Paint", "evento Resize"});
}
