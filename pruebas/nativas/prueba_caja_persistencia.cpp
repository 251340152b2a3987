// Restoring a labelled text box from the property bag and saving it.
#include "pruebas/nativas/caja_de_prueba.h"

#include <doctest/doctest.h>

#include <algorithm>

using namespace pincela;
using namespace pincela::pruebas;

using Prueba = CajaDePrueba<Tbox>;

TEST_CASE("restoring reads thirty-one keys in order, each with its default") {
    Prueba p;
    BolsaGrabadora bolsa;
    p.c->ReadProperties(bolsa);
    CHECK(bolsa.registro.Todo() == Lineas{"lee TipoTexto Entero16 0",
                                          "lee Apariencia Entero16 1",
                                          "lee BackStyle Entero16 1",
                                          "lee FocoVisible Booleano True",
                                          "lee FocoConMouse Booleano False",
                                          "lee Caption Texto \"\"",
                                          "lee SeparaBorde Entero16 1",
                                          "lee Separa Entero16 3",
                                          "lee Enabled Booleano True",
                                          "lee MaxText Entero16 0",
                                          "lee AlinTBox Entero16 7",
                                          "lee AlinText Entero32 0",
                                          "lee ColorDegradeN Texto \"\"",
                                          "lee ColorDegradeS Texto \"\"",
                                          "lee ColorLetra Entero32 -2147483640",
                                          "lee ColorLetraSobre Entero32 -2147483640",
                                          "lee ColorFondo Entero32 -2147483633",
                                          "lee ColorFondoSobre Entero32 -2147483633",
                                          "lee ColorLetraE Entero32 -2147483640",
                                          "lee ColorLetraES Entero32 -2147483640",
                                          "lee ColorFonTexto Entero32 -2147483643",
                                          "lee ColorFonTextoS Entero32 -2147483643",
                                          "lee Tranca Booleano False",
                                          "lee Fuente Objeto",
                                          "lee FuenteEtic Objeto",
                                          "lee MouseIcon Nada",
                                          "lee MousePointer Entero16 0",
                                          "lee ToolTipText Texto \"\"",
                                          "lee Expandir Booleano True",
                                          "lee TipoLetra Entero16 0",
                                          "lee TipoSombra Entero16 1"});
}

TEST_CASE("a bag without keys restores the initial values, but for the place of the field") {
    Prueba p;
    BolsaGrabadora bolsa;
    p.c->ReadProperties(bolsa);
    CHECK(p.c->AlinTBox() == Alineaciones::Der_Med);
    CHECK(p.c->Separa() == 3);
    CHECK(p.c->SeparaBorde() == Tamanio::Chico);
    CHECK(p.c->TipoSombra() == TSombra::Negra);
    CHECK(p.c->BackStyle() == TBack::Opaco);
    CHECK(p.c->Enabled());
    CHECK(p.c->FuenteTexto() == p.e.fuenteAmbiente);
    CHECK(p.c->FuenteEtic() == p.e.fuenteAmbiente);
    CHECK_FALSE(p.c->FocoVisible());
}

TEST_CASE("restoring goes through the setters and ends with one layout") {
    Prueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"Caption"] = Texto(u"&Edad");
    p.c->ReadProperties(bolsa);
    const Lineas todo = p.Tomar();
    Lineas avisos = todo;
    std::erase_if(avisos, [](const std::string& linea) { return !linea.starts_with("PC"); });
    CHECK(avisos ==
          Lineas{"PC TipoTexto",       "PC Apariencia",    "PC BackStyle",       "PC FocoVisible",
                 "PC FocoConMouse",    "PC SeparaBorde",   "PC Separa",          "PC Enabled",
                 "PC MaxText",         "PC AlinTBox",      "PC AlinText",        "PC ColorLetra",
                 "PC ColorLetraSobre", "PC ColorFondo",    "PC ColorFondoSobre", "PC ColorLetraE",
                 "PC ColorLetraES",    "PC ColorFonTexto", "PC ColorFonTextoS",  "PC Tranca",
                 "PC Fuente",          "PC FuenteEtic",    "PC MouseIcon",       "PC TipoLetra",
                 "PC TipoSombra"});
    const Lineas final(std::find(todo.begin(), todo.end(), "PC TipoSombra") + 1, todo.end());
    CHECK(final == Lineas{"lblSombra.ForeColor &HFFFFFF", "lblSombra.Caption \"&Edad\"",
                          "lblSombra.Move 2,10", "lblTexto.Move 1,9", "txtTexto.Move 25,1 71x25",
                          "Sombra.Move 28,4 71x25"});
}

TEST_CASE("a restored caption gives no access keys") {
    Prueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"Caption"] = Texto(u"&Edad");
    p.c->ReadProperties(bolsa);
    CHECK(p.c->Caption() == u"&Edad");
    CHECK(p.sombraDelTitulo().Caption() == u"&Edad");
    CHECK(p.e.pantalla.AccessKeys().empty());
    p.c->PonCaption(u"&Edad");
    CHECK(p.e.pantalla.AccessKeys() == u"eE");
}

TEST_CASE("a restored caption names the field for the reader of the screen") {
    Prueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"Caption"] = Texto(u"&Edad");
    p.c->ReadProperties(bolsa);
    CHECK(p.Tomar({"txtTexto.NombreAccesible"}) == Lineas{"txtTexto.NombreAccesible \"Edad\""});
}

TEST_CASE("a restored tip stays on the caption and does not reach the field") {
    Prueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"ToolTipText"] = Texto(u"Hola");
    p.c->ReadProperties(bolsa);
    CHECK(p.c->ToolTipText() == u"Hola");
    CHECK(p.campo().ToolTipText().empty());
}

TEST_CASE("saving writes thirty-one keys in order, each with its value and default") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonCaption(u"Edad");
    p->c->PonText(u"no se guarda");
    p->c->PonAlinText(1);
    p->c->PonColorLetraE(Color(7));
    p->c->PonMaxText(80);
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
                 "escribe Separa Entero16 3 | Entero16 3",
                 "escribe AlinTBox Entero32 0 | Entero16 7",
                 "escribe AlinText Entero32 1 | Entero32 0",
                 "escribe Caption Texto \"Edad\" | Texto \"\"",
                 "escribe ColorLetra Entero32 -2147483640 | Entero32 -2147483640",
                 "escribe ColorLetraSobre Entero32 -2147483640 | Entero32 -2147483640",
                 "escribe ColorFondo Entero32 -2147483633 | Entero32 -2147483633",
                 "escribe ColorFondoSobre Entero32 -2147483633 | Entero32 -2147483633",
                 "escribe ColorLetraE Entero32 7 | Entero32 -2147483640",
                 "escribe ColorLetraES Entero32 -2147483640 | Entero32 -2147483640",
                 "escribe ColorFonTexto Entero32 -2147483643 | Entero32 -2147483643",
                 "escribe ColorFonTextoS Entero32 -2147483643 | Entero32 -2147483643",
                 "escribe Tranca Booleano False | Booleano False",
                 "escribe FuenteEtic Objeto | Objeto",
                 "escribe Fuente Objeto | Objeto",
                 "escribe BackStyle Entero16 1 | Entero16 1",
                 "escribe MouseIcon Nada | Nada",
                 "escribe MousePointer Entero16 0 | Entero16 0",
                 "escribe ToolTipText Texto \"\" | Texto \"\"",
                 "escribe TipoLetra Entero32 0 | Entero16 0",
                 "escribe TipoSombra Entero32 1 | Entero16 1",
                 "escribe Enabled Booleano True | Booleano True",
                 "escribe MaxText Entero32 80 | Entero16 0"});
    CHECK(bolsa.valores.size() == 7);
    for (const VistaTexto clave : {u"FocoVisible", u"EstilosBord", u"AlinTBox", u"AlinText",
                                   u"Caption", u"ColorLetraE", u"MaxText"})
        CHECK(bolsa.Tiene(clave));
}

TEST_CASE("a saved text box comes back as it was, without its text and the field's tip") {
    auto a = NuevaCaja<Tbox>();
    const Fuente una = Letra(u"Tahoma");
    PonValoresRaros(*a->c);
    a->c->PonCaption(u"Año");
    a->c->PonText(u"Hola");
    a->c->PonFuenteEtic(una);
    a->c->PonColorLetraE(Color(7));
    a->c->PonColorLetraES(Color(8));
    a->c->PonBackStyle(TBack::Transparente);
    a->c->PonSepara(29);
    a->c->PonTipoSombra(TSombra::Invertida);
    BolsaGrabadora bolsa;
    a->c->WriteProperties(bolsa);

    Prueba b;
    b.c->ReadProperties(bolsa);
    const Tbox& c = *b.c;
    ComprobarValoresRaros(c);
    CHECK(c.Caption() == u"Año");
    CHECK(c.Text().empty());
    CHECK(c.FuenteEtic() == una);
    CHECK(b.sombraDelTitulo().Font() == una);
    CHECK(c.ColorLetraE() == Color(7));
    CHECK(c.ColorLetraES() == Color(8));
    CHECK(b.campo().ToolTipText().empty());
    CHECK(c.BackStyle() == TBack::Transparente);
    CHECK(c.Separa() == 29);
    CHECK_FALSE(b.campo().Enabled());
    CHECK(c.TipoSombra() == TSombra::Invertida);
}

TEST_CASE("a bag that the other pair or the button wrote is read as far as it goes") {
    Prueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"ColorDegradeN"] = Nulo{};
    bolsa.valores[u"ColorDegradeS"] = ReferenciaObjeto(Icono("disco"));
    bolsa.valores[u"Expandir"] = Texto(u"tal vez");
    bolsa.valores[u"FocoVisible"] = Vacio{};
    bolsa.valores[u"Text"] = Texto(u"no es suyo");
    CHECK(ErrorDe([&] { p.c->ReadProperties(bolsa); }) == 0);
    CHECK(p.c->Text().empty());
}

TEST_CASE("stored values of another type are converted") {
    Prueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"TipoTexto"] = Texto(u"2");
    bolsa.valores[u"Separa"] = 4.5;
    bolsa.valores[u"Enabled"] = std::int16_t{5};
    bolsa.valores[u"Caption"] = std::int32_t{42};
    bolsa.valores[u"ColorFondo"] = Texto(u"&HFF");
    bolsa.valores[u"Tranca"] = Texto(u"True");
    bolsa.valores[u"MouseIcon"] = Vacio{};
    bolsa.valores[u"Fuente"] = ReferenciaObjeto();
    p.c->ReadProperties(bolsa);
    CHECK(p.c->TipoTexto() == TText::NumericoEnt);
    CHECK(p.c->Separa() == 4);
    CHECK(p.c->Enabled());
    CHECK(p.c->Caption() == u"42");
    CHECK(p.c->ColorFondo() == Color(0xFF));
    CHECK(p.c->Tranca());
    CHECK(p.c->MouseIcon() == nullptr);
    CHECK(p.c->FuenteTexto() == p.e.fuenteAmbiente);
}

TEST_CASE("a stored Separa out of its range leaves what the control has") {
    Prueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"Separa"] = std::int16_t{30};
    p.c->ReadProperties(bolsa);
    CHECK(p.c->Separa() == 0);
    auto otra = NuevaCaja<Tbox>();
    otra->c->ReadProperties(bolsa);
    CHECK(otra->c->Separa() == 3);
}

TEST_CASE("stored values that don't fit raise the conversion's error") {
    CHECK(ErrorAlLeer<Tbox>(u"Separa", std::int32_t{40000}) == kDesbordamiento);
    CHECK(ErrorAlLeer<Tbox>(u"MousePointer", std::int32_t{-40000}) == kDesbordamiento);
    CHECK(ErrorAlLeer<Tbox>(u"MaxText", 3e9) == kDesbordamiento);
    CHECK(ErrorAlLeer<Tbox>(u"ColorLetraES", 5e9) == kDesbordamiento);
    CHECK(ErrorAlLeer<Tbox>(u"ColorLetraES", 3e9) == 0); // any pattern of 32 bits is a colour
    CHECK(ErrorAlLeer<Tbox>(u"Enabled", Texto(u"tal vez")) == kTipos);
    CHECK(ErrorAlLeer<Tbox>(u"TipoLetra", Texto(u"")) == kTipos);
    CHECK(ErrorAlLeer<Tbox>(u"MouseIcon", Texto(u"mano")) == kTipos);
    CHECK(ErrorAlLeer<Tbox>(u"MouseIcon", ReferenciaObjeto(Letra(u"x"))) == kTipos);
    CHECK(ErrorAlLeer<Tbox>(u"FuenteEtic", ReferenciaObjeto(Icono("x"))) == kTipos);
    CHECK(ErrorAlLeer<Tbox>(u"Caption", Nulo{}) == kNulo);
    CHECK(ErrorAlLeer<Tbox>(u"TipoSombra", std::int16_t{9}) == kNulo);
}

TEST_CASE("a control whose restoring failed is no longer loading and goes on living") {
    Prueba p;
    BolsaGrabadora bolsa;
    bolsa.fallos[u"Tranca"] = NumeroError::SinMemoria;
    const int sinMemoria = static_cast<int>(NumeroError::SinMemoria);
    CHECK(ErrorDe([&] { p.c->ReadProperties(bolsa); }) == sinMemoria);
    p.Tomar();
    p.c->Resize();
    CHECK(p.Eventos() == Lineas{"evento Resize"});
    CHECK(ErrorDe([&] { p.c->WriteProperties(bolsa); }) == sinMemoria);
}

TEST_CASE("nothing is heard of resizes and presses while loading") {
    Prueba p;
    p.e.alCambiar = [&](VistaTexto clave) {
        if (clave != u"TipoSombra")
            return;
        p.Tomar();
        p.c->Resize();
        p.c->MouseDown(1, 0, 2, 2);
        CHECK(p.Tomar().empty());
        p.c->MouseMove(0, 0, 2, 2);
        CHECK(p.Eventos() == Lineas{"evento MouseMove 0 0 2 2"});
    };
    BolsaGrabadora bolsa;
    p.c->ReadProperties(bolsa);
}

TEST_CASE("a font equal to the container's is not stored") {
    auto p = NuevaCaja<TBoxML>();
    p->c->PonFuenteTexto(std::make_shared<FuenteGrabada>());
    p->c->PonFuenteEtic(Letra(u"Verdana"));
    BolsaGrabadora bolsa;
    p->c->WriteProperties(bolsa);
    CHECK_FALSE(bolsa.Tiene(u"Fuente"));
    CHECK(bolsa.Tiene(u"FuenteEtic"));
}
