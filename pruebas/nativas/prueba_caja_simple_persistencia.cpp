// Restoring a plain text box from the property bag and saving it.
#include "pruebas/nativas/caja_de_prueba.h"

#include <doctest/doctest.h>

#include <algorithm>

using namespace pincela;
using namespace pincela::pruebas;

using Prueba = CajaDePrueba<TboxSS>;

TEST_CASE("a plain text box reads thirty-three keys in order, each with its default") {
    Prueba p;
    BolsaGrabadora bolsa;
    p.c->ReadProperties(bolsa);
    CHECK(bolsa.registro.Todo() == Lineas{"lee TipoTexto Entero16 0",
                                          "lee Apariencia Entero16 1",
                                          "lee BackStyle Entero16 0",
                                          "lee FocoVisible Booleano True",
                                          "lee FocoConMouse Booleano False",
                                          "lee SeparaBorde Entero16 1",
                                          "lee Enabled Booleano True",
                                          "lee MaxText Entero16 0",
                                          "lee AlinTBox Entero16 7",
                                          "lee AlinText Entero32 0",
                                          "lee NavConEnter Booleano True",
                                          "lee ColorDegradeN Texto \"\"",
                                          "lee ColorDegradeS Texto \"\"",
                                          "lee ColorLetra Entero32 -2147483640",
                                          "lee ColorLetraSobre Entero32 -2147483640",
                                          "lee SelecConFoco Booleano True",
                                          "lee ColorFondo Entero32 -2147483633",
                                          "lee ColorFondoSobre Entero32 -2147483633",
                                          "lee ColorLetraE Entero32 -2147483640",
                                          "lee ColorLetraES Entero32 -2147483640",
                                          "lee SelStart Entero16 0",
                                          "lee SelLength Entero16 0",
                                          "lee ColorFonTexto Entero32 -2147483643",
                                          "lee ColorFonTextoS Entero32 12648384",
                                          "lee Tranca Booleano False",
                                          "lee Fuente Objeto",
                                          "lee FuenteEtic Objeto",
                                          "lee MouseIcon Nada",
                                          "lee MousePointer Entero16 0",
                                          "lee ToolTipText Texto \"\"",
                                          "lee Expandir Booleano True",
                                          "lee TipoLetra Entero16 0",
                                          "lee Text Texto \"\""});
}

TEST_CASE("restoring a plain text box goes through its setters and ends with one layout") {
    Prueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"ToolTipText"] = Texto(u"Su edad");
    p.c->ReadProperties(bolsa);
    const Lineas todo = p.Tomar();
    Lineas avisos = todo;
    std::erase_if(avisos, [](const std::string& linea) { return !linea.starts_with("PC"); });
    CHECK(avisos == Lineas{"PC TipoTexto",
                           "PC Apariencia",
                           "PC BackStyle",
                           "PC FocoVisible",
                           "PC FocoConMouse",
                           "PC SeparaBorde",
                           "PC Enabled",
                           "PC MaxText",
                           "PC AlinTBox",
                           "PC AlinText",
                           "PC NavConEnter",
                           "PC ColorLetra",
                           "PC ColorLetraSobre",
                           "PC SelecConFoco",
                           "PC ColorFondo",
                           "PC ColorFondoSobre",
                           "PC SelStart",
                           "PC SelLength",
                           "PC ColorFonTexto",
                           "PC ColorFonTextoS",
                           "PC Tranca",
                           "PC Fuente",
                           "PC MouseIcon",
                           "PC TipoLetra",
                           "PC Text"});
    CHECK(todo.back() == "txtTexto.Move 1,1 99x29");
    CHECK(p.c->ToolTipText() == u"Su edad");
    CHECK(std::count(todo.begin(), todo.end(), "txtTexto.NombreAccesible \"Su edad\"") == 1);
    CHECK(p.c->AlinTBox() == Alineaciones::Der_Med);
    CHECK(p.c->BackStyle() == TBack::Transparente);
    CHECK(p.c->Separa() == 0);
}

TEST_CASE("a plain text box writes thirty-two keys in order, each with its value and default") {
    auto p = NuevaCaja<TboxSS>();
    p->c->PonText(u"Hola");
    p->c->PonSelStart(1);
    p->c->PonSelLength(2);
    p->c->PonSepara(5);
    BolsaGrabadora bolsa;
    p->c->WriteProperties(bolsa);
    CHECK(bolsa.registro.Todo() ==
          Lineas{"escribe TipoTexto Entero32 0 | Entero16 0",
                 "escribe Apariencia Entero32 1 | Entero16 1",
                 "escribe FocoVisible Vacio | Booleano True",
                 "escribe FocoConMouse Booleano False | Booleano False",
                 "escribe EfectoBoton Vacio | Entero16 0",
                 "escribe Estilos Vacio | Entero16 0",
                 "escribe EstilosBord Vacio | Entero16 1",
                 "escribe SeparaBorde Entero32 1 | Entero16 1",
                 "escribe AlinTBox Entero32 7 | Entero16 7",
                 "escribe AlinText Entero32 0 | Entero32 0",
                 "escribe SelecConFoco Booleano True | Booleano True",
                 "escribe NavConEnter Booleano True | Booleano True",
                 "escribe SelStart Entero32 1 | Entero16 0",
                 "escribe SelLength Entero32 2 | Entero16 0",
                 "escribe ColorLetra Entero32 -2147483640 | Entero32 -2147483640",
                 "escribe ColorLetraSobre Entero32 -2147483640 | Entero32 -2147483640",
                 "escribe ColorFondo Entero32 -2147483633 | Entero32 -2147483633",
                 "escribe ColorFondoSobre Entero32 -2147483633 | Entero32 -2147483633",
                 "escribe ColorLetraE Vacio | Entero32 -2147483640",
                 "escribe ColorLetraES Vacio | Entero32 -2147483640",
                 "escribe ColorFonTexto Entero32 -2147483643 | Entero32 -2147483643",
                 "escribe ColorFonTextoS Entero32 12648384 | Entero32 12648384",
                 "escribe Text Texto \"Hola\" | Texto \"\"",
                 "escribe Tranca Booleano False | Booleano False",
                 "escribe Fuente Objeto | Objeto",
                 "escribe BackStyle Entero16 0 | Entero16 0",
                 "escribe MouseIcon Nada | Nada",
                 "escribe MousePointer Entero16 0 | Entero16 0",
                 "escribe ToolTipText Texto \"\" | Texto \"\"",
                 "escribe TipoLetra Entero32 0 | Entero16 0",
                 "escribe Enabled Booleano True | Booleano True",
                 "escribe MaxText Entero32 0 | Entero16 0"});
    CHECK(bolsa.valores.size() == 7);
    for (const VistaTexto clave : {u"FocoVisible", u"EstilosBord", u"SelStart", u"SelLength",
                                   u"ColorLetraE", u"ColorLetraES", u"Text"})
        CHECK(bolsa.Tiene(clave));
}

TEST_CASE("a saved plain text box comes back as it was, text and selection included") {
    auto a = NuevaCaja<TboxSS>();
    PonValoresRaros(*a->c);
    a->c->PonText(u"Mañana\r\n\U0001F600");
    a->c->PonSelStart(2);
    a->c->PonSelLength(3);
    a->c->PonBackStyle(TBack::Opaco);
    a->c->PonSelecConFoco(false);
    a->c->PonNavConEnter(false);
    BolsaGrabadora bolsa;
    a->c->WriteProperties(bolsa);

    CajaDePrueba<TboxSSML> b;
    b.c->ReadProperties(bolsa);
    const TboxSS& c = *b.c;
    ComprobarValoresRaros(c);
    CHECK(c.Text() == u"Mañana\r\n\U0001F600");
    CHECK(c.SelStart() == 2);
    CHECK(c.SelLength() == 3);
    CHECK(c.SelText() == u"ñan");
    CHECK(b.campo().ToolTipText() == u"Ayuda");
    CHECK(c.BackStyle() == TBack::Opaco);
    CHECK_FALSE(c.SelecConFoco());
    CHECK_FALSE(c.NavConEnter());
    CHECK(c.Separa() == 0);
}

TEST_CASE("a long text all selected survives save and restore") {
    auto a = NuevaCaja<TboxSSML>();
    const Texto largo(1 << 20, u'x');
    a->c->PonText(largo);
    a->c->ActualizarColores(false);
    BolsaGrabadora bolsa;
    a->c->WriteProperties(bolsa);
    CajaDePrueba<TboxSSML> b;
    REQUIRE(ErrorDe([&] { b.c->ReadProperties(bolsa); }) == 0);
    CHECK(b.c->SelText() == largo);
}

TEST_CASE("a plain text box takes what a labelled one saved, and the other way round") {
    auto conTitulo = NuevaCaja<Tbox>();
    conTitulo->c->PonCaption(u"Edad");
    conTitulo->c->PonColorFonTextoS(Color(9));
    BolsaGrabadora suya;
    conTitulo->c->WriteProperties(suya);
    Prueba simple;
    CHECK(ErrorDe([&] { simple.c->ReadProperties(suya); }) == 0);
    CHECK(simple.c->ColorFonTextoS() == Color(9));
    BolsaGrabadora nuestra;
    simple.c->WriteProperties(nuestra);
    CajaDePrueba<Tbox> otra;
    CHECK(ErrorDe([&] { otra.c->ReadProperties(nuestra); }) == 0);
}

TEST_CASE("stored values that don't fit a plain text box raise the conversion's error") {
    CHECK(ErrorAlLeer<TboxSS>(u"SelStart", Texto(u"dos")) == kTipos);
    CHECK(ErrorAlLeer<TboxSS>(u"SelLength", 3e9) == kDesbordamiento);
    CHECK(ErrorAlLeer<TboxSS>(u"SelStart", std::int16_t{-1}) ==
          static_cast<int>(NumeroError::ValorDePropiedad));
    CHECK(ErrorAlLeer<TboxSS>(u"NavConEnter", Texto(u"")) == kTipos);
    CHECK(ErrorAlLeer<TboxSS>(u"Text", Nulo{}) == kNulo);
    CHECK(ErrorAlLeer<TboxSS>(u"Fuente", ReferenciaObjeto(Icono("x"))) == kTipos);
    // What is discarded may be anything.
    CHECK(ErrorAlLeer<TboxSS>(u"ColorLetraE", Texto(u"rojo")) == 0);
    CHECK(ErrorAlLeer<TboxSS>(u"FuenteEtic", Nulo{}) == 0);
    CHECK(ErrorAlLeer<TboxSS>(u"Separa", Nulo{}) == 0);
}

TEST_CASE("stored values of another type are converted for a plain text box") {
    Prueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"Text"] = std::int32_t{42};
    bolsa.valores[u"SelLength"] = Texto(u"1");
    bolsa.valores[u"NavConEnter"] = std::int16_t{0};
    p.c->ReadProperties(bolsa);
    CHECK(p.c->Text() == u"42");
    CHECK(p.c->SelText() == u"4");
    CHECK_FALSE(p.c->NavConEnter());
}
