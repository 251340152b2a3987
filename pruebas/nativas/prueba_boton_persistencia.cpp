// Restoring from the property bag and saving to it.
#include "pruebas/nativas/boton_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

std::int32_t ErrorAlLeer(const Texto& clave, const Variante& valor) {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[clave] = valor;
    return ErrorDe([&] { p.b->ReadProperties(bolsa); });
}

} // namespace

TEST_CASE("restoring reads thirty keys in order, each with its default") {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    p.b->ReadProperties(bolsa);
    CHECK(bolsa.registro.Todo() == Lineas{"lee CambioProgre Booleano False",
                                          "lee CambioProgrePasos Entero16 1",
                                          "lee FocoVisible Booleano True",
                                          "lee FocoConMouse Booleano False",
                                          "lee Caption Texto \"\"",
                                          "lee RelX Flotante 0.33333",
                                          "lee RelY Flotante 1.5",
                                          "lee Estilos Entero16 0",
                                          "lee EstilosBord Entero16 1",
                                          "lee AnchoBorde Entero16 1",
                                          "lee Angulo Entero16 45",
                                          "lee EstilosRell Entero16 0",
                                          "lee EfectoBoton Entero16 0",
                                          "lee Enabled Booleano True",
                                          "lee AlinText Entero16 4",
                                          "lee AlinImag Entero16 0",
                                          "lee ColorDegradeN Texto \"\"",
                                          "lee ColorDegradeS Texto \"\"",
                                          "lee ColorLetra Entero16 0",
                                          "lee ColorLetraSobre Entero16 0",
                                          "lee ColorFondo Entero32 -2147483633",
                                          "lee ColorFondoSobre Entero32 -2147483633",
                                          "lee Font Objeto",
                                          "lee MouseIcon Nada",
                                          "lee MousePointer Entero16 0",
                                          "lee ToolTipText Texto \"\"",
                                          "lee Expandir Booleano True",
                                          "lee TipoLetra Entero16 0",
                                          "lee ImagNormal Nada",
                                          "lee ImagSobre Nada"});
}

TEST_CASE("saving writes twenty-nine keys in order, each with its value and default") {
    BotonDePrueba p;
    p.b->InitProperties();
    p.b->PonCaption(u"Salir");
    p.b->PonCambioProgrePasos(7);
    BolsaGrabadora bolsa;
    p.b->WriteProperties(bolsa);
    CHECK(bolsa.registro.Todo() ==
          Lineas{"escribe FocoVisible Booleano True | Booleano True",
                 "escribe FocoConMouse Booleano False | Booleano False",
                 "escribe EfectoBoton Entero32 0 | Entero16 0",
                 "escribe RelX Flotante 0.33333 | Flotante 0.33333",
                 "escribe RelY Flotante 1 | Flotante 1.5",
                 "escribe Estilos Entero32 0 | Entero16 0",
                 "escribe EstilosBord Entero32 1 | Entero16 1",
                 "escribe AnchoBorde Entero32 1 | Entero16 1",
                 "escribe EstilosRell Entero32 0 | Entero16 0",
                 "escribe Angulo Entero16 45 | Entero16 45",
                 "escribe AlinImag Entero32 0 | Entero16 0",
                 "escribe AlinText Entero32 4 | Entero16 4",
                 "escribe Caption Texto \"Salir\" | Texto \"\"",
                 "escribe ColorLetra Entero32 0 | Entero16 0",
                 "escribe ColorLetraSobre Entero32 0 | Entero16 0",
                 "escribe ColorFondo Entero32 -2147483633 | Entero32 -2147483633",
                 "escribe ColorFondoSobre Entero32 -2147483633 | Entero32 -2147483633",
                 "escribe ColorDegradeN Texto \"\" | Texto \"\"",
                 "escribe ColorDegradeS Texto \"\" | Texto \"\"",
                 "escribe Font Objeto | Objeto",
                 "escribe MousePointer Entero16 0 | Entero16 0",
                 "escribe ToolTipText Texto \"\" | Texto \"\"",
                 "escribe TipoLetra Entero32 0 | Entero16 0",
                 "escribe ImagNormal Nada | Nada",
                 "escribe ImagSobre Nada | Nada",
                 "escribe Expandir Booleano True | Booleano True",
                 "escribe Enabled Booleano True | Booleano True",
                 "escribe CambioProgre Booleano False | Booleano False",
                 "escribe CambioProgrePasos Byte 7 | Entero16 1"});
    // What equals its default is left out; a new button's RelY does not.
    CHECK(bolsa.valores.size() == 3);
    CHECK(bolsa.Tiene(u"Caption"));
    CHECK(bolsa.Tiene(u"RelY"));
    CHECK(bolsa.Tiene(u"CambioProgrePasos"));
}

TEST_CASE("saving changes nothing and tells nobody") {
    BotonDePrueba p;
    p.b->InitProperties();
    p.Tomar();
    BolsaGrabadora bolsa;
    p.b->WriteProperties(bolsa);
    CHECK(p.Tomar().empty());
}

TEST_CASE("every assignment tells while loading, and the load ends with one repaint") {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"AlinImag"] = std::int16_t{3};
    bolsa.valores[u"ImagNormal"] = ReferenciaObjeto(ImagenDe("disco"));
    bolsa.valores[u"ImagSobre"] = ReferenciaObjeto(ImagenDe("otro"));
    p.b->ReadProperties(bolsa);
    const Lineas todo = p.Tomar();
    Lineas avisos = todo;
    std::erase_if(avisos, [](const std::string& linea) { return !linea.starts_with("PC"); });
    CHECK(avisos == Lineas{"PC CambioProgre",
                           "PC CambioProgrePasos",
                           "PC FocoVisible",
                           "PC FocoConMouse",
                           "PC RelX",
                           "PC RelY",
                           "PC Estilos",
                           "PC EstilosBord",
                           "PC AnchoBorde",
                           "PC Angulo",
                           "PC EstilosRell",
                           "PC EfectoBoton",
                           "PC Enabled",
                           "PC AlinText",
                           "PC AlinImag",
                           "PC ColorDegradeN",
                           "PC ColorDegradeS",
                           "PC ColorLetra",
                           "PC ColorLetraSobre",
                           "PC ColorFondo",
                           "PC ColorFondoSobre",
                           "PC MouseIcon",
                           "PC Expandir",
                           "PC TipoLetra",
                           "PC ImagNormal",
                           "PC ImagSobre"});
    // Shape, then state: cursor, caption, window under the cursor, drawing.
    const Lineas final(std::find(todo.begin(), todo.end(), "PC ImagSobre") + 1, todo.end());
    CHECK(final == FormaCuadrada +
                       Lineas{"GetCursorPos", "LblSombra.Caption \"\"", "LblSombra.Font \"Arial\"",
                              "lblSombra2.Caption \"\"", "lblSombra2.Font \"Arial\"",
                              "LblSombra.ForeColor &HFFFFFF", "lblSombra2.ForeColor &H0",
                              "lblSombra2.Move 49,7", "LblSombra.Move 49,7", "lblTitulo.Move 49,7",
                              "WindowFromPoint 0,0", "superficie.Cls &H8000000F",
                              "superficie.PaintPicture disco 1,1 98x28"} +
                       BordeLevantado);
}

TEST_CASE("only the width of the border and the effect repaint while loading") {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"ColorFondo"] = std::int32_t{0xFF};
    bolsa.valores[u"Angulo"] = std::int16_t{10};
    p.b->ReadProperties(bolsa);
    const Lineas lineas = p.Tomar({"superficie.Cls", "superficie.Refresh", "CreateRound"});
    CHECK(lineas == Lineas{"superficie.Cls &H8000000F", "superficie.Cls &H8000000F",
                           "CreateRoundRectRgn 0,0 101,31 elipse 0x0", "superficie.Cls &HFF"});
}

TEST_CASE("a button without a stored RelY comes back with 1.5") {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    p.b->ReadProperties(bolsa);
    CHECK(p.b->RelY() == 1.5f);
    CHECK(p.b->RelX() == 0.33333f);
    CHECK(p.b->CambioProgrePasos() == 1);
}

TEST_CASE("a stored RelX of 0 leaves RelY at 0") {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"RelX"] = 0.0f;
    bolsa.valores[u"RelY"] = 0.5f;
    p.b->ReadProperties(bolsa);
    CHECK(p.b->RelY() == 0.0f);
}

TEST_CASE("a restored caption reaches its copies but gives no access keys") {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"Caption"] = Texto(u"&Salir");
    p.b->ReadProperties(bolsa);
    CHECK(p.b->Caption() == u"&Salir");
    CHECK(p.e.LaEtiqueta("LblSombra").Caption() == u"&Salir");
    CHECK(p.e.LaEtiqueta("lblSombra2").Caption() == u"&Salir");
    CHECK(p.e.pantalla.AccessKeys().empty());
    CHECK(p.Tomar({"superficie.AccessKeys", "PC Caption"}).empty());
}

TEST_CASE("a saved button comes back as it was, but for the icon of its pointer") {
    BotonDePrueba a;
    a.b->InitProperties();
    const Imagen normal = ImagenDe("normal"), sobre = ImagenDe("sobre");
    const auto fuente = std::make_shared<FuenteGrabada>(AtributosFuente{.Name = u"Tahoma"});
    a.b->PonEfectoBoton(EfectosBoton::BotVisibSobre);
    a.b->PonAlinText(Alineaciones::Der_Inf);
    a.b->PonCaption(u"Mañana");
    a.b->PonAlinImag(Alineaciones::Med_Inf);
    a.b->PonFont(fuente);
    a.b->PonColorLetra(Color(1));
    a.b->PonColorLetraSobre(Color(2));
    a.b->PonColorFondo(Color(3));
    a.b->PonColorFondoSobre(Color(4));
    a.b->PonMouseIcon(ImagenDe("mano"));
    a.b->PonMousePointer(99);
    a.b->PonToolTipText(u"Hola");
    a.b->PonEstilosBord(TEstilosB::Lineal);
    a.b->PonEstilosRell(TEstilosR::D_Pirami);
    a.b->PonEstilos(TEstilos::REDONDEADO);
    a.b->PonRelX(0.25f);
    a.b->PonRelY(0.75f);
    a.b->PonImagNormal(normal);
    a.b->PonImagSobre(sobre);
    a.b->PonExpandir(false);
    a.b->PonEnabled(false);
    a.b->PonFocoVisible(false);
    a.b->PonFocoConMouse(true);
    a.b->PonAnchoBorde(Tamanio::Mediano);
    a.b->PonTipoLetra(TLetra::Undida);
    a.b->PonCambioProgre(true);
    a.b->PonCambioProgrePasos(9);
    a.b->PonAngulo(-30);
    a.b->PonColorDegradeN(u"1*2");
    a.b->PonColorDegradeS(u"3*4");
    BolsaGrabadora bolsa;
    a.b->WriteProperties(bolsa);
    CHECK(bolsa.valores.size() == 29);

    BotonDePrueba c;
    c.b->ReadProperties(bolsa);
    const Botonazo& b = *c.b;
    CHECK(b.EfectoBoton() == EfectosBoton::BotVisibSobre);
    CHECK(b.AlinText() == Alineaciones::Der_Inf);
    CHECK(b.Caption() == u"Mañana");
    CHECK(b.AlinImag() == Alineaciones::Med_Inf);
    CHECK(b.Font() == fuente);
    CHECK(b.ColorLetra() == Color(1));
    CHECK(b.ColorLetraSobre() == Color(2));
    CHECK(b.ColorFondo() == Color(3));
    CHECK(b.ColorFondoSobre() == Color(4));
    CHECK(b.MouseIcon() == nullptr);
    CHECK(b.MousePointer() == 99);
    CHECK(b.ToolTipText() == u"Hola");
    CHECK(b.EstilosBord() == TEstilosB::Lineal);
    CHECK(b.EstilosRell() == TEstilosR::D_Pirami);
    CHECK(b.Estilos() == TEstilos::REDONDEADO);
    CHECK(b.RelX() == 0.25f);
    CHECK(b.RelY() == 0.75f);
    CHECK(b.ImagNormal() == normal);
    CHECK(b.ImagSobre() == sobre);
    CHECK_FALSE(b.Expandir());
    CHECK_FALSE(b.Enabled());
    CHECK_FALSE(b.FocoVisible());
    CHECK(b.FocoConMouse());
    CHECK(b.AnchoBorde() == Tamanio::Mediano);
    CHECK(b.TipoLetra() == TLetra::Undida);
    CHECK(b.CambioProgre());
    CHECK(b.CambioProgrePasos() == 9);
    CHECK(b.Angulo() == -30);
    CHECK(b.ColorDegradeN() == u"1*2");
    CHECK(b.ColorDegradeS() == u"3*4");
    CHECK(c.e.pantalla.DrawWidth() == 2);

    BolsaGrabadora otra;
    c.b->WriteProperties(otra);
    CHECK(otra.registro.Todo() == [&] {
        Lineas escritas = bolsa.registro.Todo();
        std::erase_if(escritas, [](const std::string& l) { return l.starts_with("lee"); });
        return escritas;
    }());
}

TEST_CASE("a font equal to the container's is not stored") {
    BotonDePrueba p;
    p.b->InitProperties();
    p.b->PonFont(std::make_shared<FuenteGrabada>());
    BolsaGrabadora bolsa;
    p.b->WriteProperties(bolsa);
    CHECK_FALSE(bolsa.Tiene(u"Font"));
    p.b->PonFont(std::make_shared<FuenteGrabada>(AtributosFuente{.Bold = true}));
    p.b->WriteProperties(bolsa);
    CHECK(bolsa.Tiene(u"Font"));
}

TEST_CASE("an icon in the bag is restored although none is ever saved") {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"MouseIcon"] = ReferenciaObjeto(ImagenDe("mano"));
    p.b->ReadProperties(bolsa);
    CHECK(NombreDe(p.b->MouseIcon()) == "mano");
    BolsaGrabadora salida;
    p.b->WriteProperties(salida);
    CHECK_FALSE(salida.Tiene(u"MouseIcon"));
}

TEST_CASE("stored values of another type are converted") {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"CambioProgrePasos"] = Texto(u"12");
    bolsa.valores[u"FocoVisible"] = Texto(u"False");
    bolsa.valores[u"Enabled"] = std::int16_t{5};
    bolsa.valores[u"Caption"] = std::int32_t{42};
    bolsa.valores[u"Angulo"] = 44.5;
    bolsa.valores[u"AlinText"] = Texto(u"8");
    bolsa.valores[u"ColorFondo"] = Texto(u"&HFF");
    bolsa.valores[u"Expandir"] = Vacio{};
    bolsa.valores[u"ImagNormal"] = Vacio{};
    bolsa.valores[u"Font"] = ReferenciaObjeto();
    p.b->ReadProperties(bolsa);
    CHECK(p.b->CambioProgrePasos() == 12);
    CHECK_FALSE(p.b->FocoVisible());
    CHECK(p.b->Enabled());
    CHECK(p.b->Caption() == u"42");
    CHECK(p.b->Angulo() == 44);
    CHECK(p.b->AlinText() == Alineaciones::Der_Inf);
    CHECK(p.b->ColorFondo() == Color(0xFF));
    CHECK_FALSE(p.b->Expandir());
    CHECK(p.b->ImagNormal() == nullptr);
    CHECK(p.b->Font() == p.e.fuenteAmbiente);
}

TEST_CASE("stored values that don't fit raise the conversion's error") {
    CHECK(ErrorAlLeer(u"CambioProgrePasos", std::int16_t{256}) == Desborda);
    CHECK(ErrorAlLeer(u"CambioProgrePasos", std::int16_t{-1}) == Desborda);
    CHECK(ErrorAlLeer(u"CambioProgrePasos", std::int16_t{255}) == 0);
    CHECK(ErrorAlLeer(u"Angulo", std::int32_t{40000}) == Desborda);
    CHECK(ErrorAlLeer(u"MousePointer", std::int32_t{-40000}) == Desborda);
    CHECK(ErrorAlLeer(u"ColorFondo", 5e9) == Desborda);
    CHECK(ErrorAlLeer(u"ColorFondo", 3e9) == 0); // any pattern of 32 bits is a colour
    CHECK(ErrorAlLeer(u"RelX", 1e300) == Desborda);
    CHECK(ErrorAlLeer(u"RelX", Texto(u"ancho")) == NoCoincide);
    CHECK(ErrorAlLeer(u"Enabled", Texto(u"tal vez")) == NoCoincide);
    CHECK(ErrorAlLeer(u"Estilos", Texto(u"")) == NoCoincide);
    CHECK(ErrorAlLeer(u"ImagNormal", Texto(u"disco")) == NoCoincide);
    CHECK(ErrorAlLeer(u"ImagNormal", ReferenciaObjeto(std::make_shared<FuenteGrabada>())) ==
          NoCoincide);
    CHECK(ErrorAlLeer(u"Font", ReferenciaObjeto(ImagenDe("disco"))) == NoCoincide);
    CHECK(ErrorAlLeer(u"Caption", Nulo{}) == static_cast<std::int32_t>(NumeroError::NuloNoValido));
}

TEST_CASE("an error of the bag reaches the host and the button goes on living") {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.fallos[u"ColorLetra"] = NumeroError::SinMemoria;
    CHECK(ErrorDe([&] { p.b->ReadProperties(bolsa); }) ==
          static_cast<std::int32_t>(NumeroError::SinMemoria));
    p.Tomar();
    // No longer loading: a resize is heard.
    p.b->Resize();
    CHECK(p.Eventos() == Lineas{"evento Resize"});
    CHECK(ErrorDe([&] { p.b->WriteProperties(bolsa); }) ==
          static_cast<std::int32_t>(NumeroError::SinMemoria));
}

TEST_CASE("nothing is heard of resizes, presses and repaints while loading") {
    BotonDePrueba p;
    p.e.alCambiar = [&](VistaTexto clave) {
        if (clave != u"ColorFondoSobre")
            return;
        p.Tomar();
        p.b->Resize();
        p.b->MouseDown(1, 0, 2, 2);
        p.b->MouseUp(1, 0, 2, 2);
        CHECK(p.Tomar().empty());
        p.b->MouseMove(0, 0, 2, 2);
        CHECK(p.Eventos() == Lineas{"evento MouseMove 0 0 2 2"});
    };
    BolsaGrabadora bolsa;
    p.b->ReadProperties(bolsa);
}

TEST_CASE("a button restored under the mouse is drawn with the mouse-over colours") {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"EstilosRell"] = std::int16_t{1};
    bolsa.valores[u"ColorDegradeN"] = Texto(u"0*0");
    bolsa.valores[u"ColorDegradeS"] = Texto(u"255*255");
    p.e.RatonEncima();
    p.b->ReadProperties(bolsa);
    CHECK(p.Tomar({"GradientFill"}).back() ==
          "GradientFill superficie modo 0 figuras 1: 0,0 &HFF 100,30 &HFF");
}
