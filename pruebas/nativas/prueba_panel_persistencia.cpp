// Restoring from the property bag and saving to it.
#include "pruebas/nativas/panel_de_prueba.h"

#include <doctest/doctest.h>

#include <algorithm>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

int ErrorAlLeer(const Texto& clave, const Variante& valor) {
    PanelDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[clave] = valor;
    return ErrorDe([&] { p.a->ReadProperties(bolsa); });
}

} // namespace

TEST_CASE("restoring reads sixteen keys in order, each with its default") {
    PanelDePrueba p;
    BolsaGrabadora bolsa;
    p.a->ReadProperties(bolsa);
    CHECK(bolsa.registro.Todo() ==
          Lineas{
              "lee AnchoBorde Entero16 1", "lee SeparaBorde Entero16 1", "lee Caption Texto \"\"",
              "lee EstilosBord Entero16 1", "lee EstilosRell Entero16 0",
              "lee Enabled Booleano True", "lee AlinText Entero16 4", "lee ColorDegrade Texto \"\"",
              "lee ColorLetra Entero16 0", "lee ColorFondo Entero32 -2147483633", "lee Font Objeto",
              "lee MouseIcon Nada", "lee MousePointer Entero16 0", "lee ToolTipText Texto \"\"",
              "lee TipoLetra Entero16 0", "lee BackStyle Entero16 1"});
}

TEST_CASE("saving writes sixteen keys in order, each with its value and default") {
    auto p = PanelNuevo();
    p->a->PonCaption(u"Datos");
    BolsaGrabadora bolsa;
    p->a->WriteProperties(bolsa);
    CHECK(bolsa.registro.Todo() ==
          Lineas{"escribe BackStyle Entero32 1 | Entero16 1",
                 "escribe SeparaBorde Entero32 1 | Entero16 1",
                 "escribe EstilosBord Entero32 1 | Entero16 1",
                 "escribe AnchoBorde Entero32 1 | Entero16 1",
                 "escribe EstilosRell Entero32 0 | Entero16 0",
                 "escribe AlinText Entero32 4 | Entero16 4",
                 "escribe Caption Texto \"Datos\" | Texto \"\"",
                 "escribe ColorLetra Entero32 -2147483640 | Entero16 0",
                 "escribe ColorFondo Entero32 16777215 | Entero32 -2147483633",
                 "escribe ColorDegrade Texto \"\" | Texto \"\"", "escribe Font Objeto | Objeto",
                 "escribe MouseIcon Nada | Nada", "escribe MousePointer Entero16 0 | Entero16 0",
                 "escribe ToolTipText Texto \"\" | Texto \"\"",
                 "escribe TipoLetra Entero32 0 | Entero16 0",
                 "escribe Enabled Booleano True | Booleano True"});
    // The colours of a new panel are not those a bag without them stands for.
    CHECK(bolsa.valores.size() == 3);
    CHECK(bolsa.Tiene(u"Caption"));
    CHECK(bolsa.Tiene(u"ColorLetra"));
    CHECK(bolsa.Tiene(u"ColorFondo"));
}

TEST_CASE("saving changes nothing and tells nobody") {
    auto p = PanelNuevo();
    BolsaGrabadora bolsa;
    p->a->WriteProperties(bolsa);
    CHECK(p->Tomar().empty());
}

TEST_CASE("a panel without a stored colour comes back in the colour of buttons") {
    PanelDePrueba p;
    BolsaGrabadora bolsa;
    p.a->ReadProperties(bolsa);
    CHECK(p.a->ColorFondo() == CaraDeBoton);
    CHECK(p.e.pantalla.BackColor() == CaraDeBoton);
    CHECK(p.a->ColorLetra() == Negro);

    // Also one that was something else before.
    auto q = PanelNuevo();
    q->a->ReadProperties(bolsa);
    CHECK(q->a->ColorFondo() == CaraDeBoton);
    CHECK(q->e.pantalla.BackColor() == CaraDeBoton);
}

TEST_CASE("values that a panel just created would have without them are restored all the same") {
    PanelDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"BackStyle"] = std::int16_t{0};
    bolsa.valores[u"Enabled"] = false;
    bolsa.valores[u"ColorFondo"] = std::int32_t{0};
    bolsa.valores[u"EstilosBord"] = std::int16_t{0};
    p.a->ReadProperties(bolsa);
    CHECK(p.e.pantalla.BackStyle() == 0);
    CHECK_FALSE(p.e.LaEtiqueta("lblTitulo").Enabled());
    CHECK(p.e.pantalla.BackColor() == Negro);
    CHECK_FALSE(p.e.LaLinea("LinSup0").Visible());
}

TEST_CASE("each restored value is told and shown as if code had assigned it") {
    PanelDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"Caption"] = Texto(u"Hola");
    bolsa.valores[u"ToolTipText"] = Texto(u"Ayuda");
    bolsa.valores[u"EstilosRell"] = std::int16_t{1};
    bolsa.valores[u"ColorDegrade"] = Texto(u"255*0");
    bolsa.valores[u"Enabled"] = false;
    bolsa.valores[u"ColorFondo"] = std::int32_t{0xFF};
    bolsa.valores[u"TipoLetra"] = std::int16_t{2};
    bolsa.valores[u"BackStyle"] = std::int16_t{0};
    p.a->ReadProperties(bolsa);
    const Lineas lineas = p.Tomar({"PC", "superficie.Cls"});
    // Caption, font and tip go straight to the label; the last repaint ends the restoring.
    CHECK(lineas == Lineas{"PC AnchoBorde",      "superficie.Cls &H8000000F",
                           "PC SeparaBorde",     "superficie.Cls &H8000000F",
                           "PC EstilosBord",     "superficie.Cls &H8000000F",
                           "PC EstilosRell",     "superficie.Cls &H8000000F",
                           "PC Enabled",         "superficie.Cls &H8000000F",
                           "PC AlinText",        "superficie.Cls &H8000000F",
                           "PC ColorDegrade",    "superficie.Cls &H8000000F",
                           "PC ColorLetra",      "superficie.Cls &H8000000F",
                           "PC ColorFondo",      "superficie.Cls &HFF",
                           "PC MouseIcon",       "superficie.Cls &HFF",
                           "PC MousePointer",    "superficie.Cls &HFF",
                           "PC TipoLetra",       "superficie.Cls &HFF",
                           "PC BackStyle",       "superficie.Cls &HFF",
                           "superficie.Cls &HFF"});
}

TEST_CASE("a restored caption and font reach the copies") {
    PanelDePrueba p;
    BolsaGrabadora bolsa;
    const auto fuente = std::make_shared<FuenteGrabada>(AtributosFuente{.Name = u"Tahoma"});
    bolsa.valores[u"Caption"] = Texto(u"Hola");
    bolsa.valores[u"Font"] = ReferenciaObjeto(fuente);
    p.a->ReadProperties(bolsa);
    for (const char* nombre : {"lblTitulo", "LblSombra", "lblSombra2"}) {
        CHECK(p.e.LaEtiqueta(nombre).Caption() == u"Hola");
        CHECK(p.e.LaEtiqueta(nombre).Font() == fuente);
    }
    // Placed with the size the caption has now: Int((100-24-2)/2), Int((30-13-1)/2).
    CHECK(p.e.LaEtiqueta("lblTitulo").Left() == 37);
    CHECK(p.e.LaEtiqueta("lblTitulo").Top() == 8);
}

TEST_CASE("a panel without a stored font takes the container's") {
    PanelDePrueba p;
    p.e.fuenteAmbiente = std::make_shared<FuenteGrabada>(AtributosFuente{.Name = u"Courier"});
    BolsaGrabadora bolsa;
    p.a->ReadProperties(bolsa);
    CHECK(p.a->Font() == p.e.fuenteAmbiente);
    bolsa.valores[u"Font"] = ReferenciaObjeto();
    PanelDePrueba q;
    q.a->ReadProperties(bolsa);
    CHECK(q.a->Font() == q.e.fuenteAmbiente);
}

TEST_CASE("a font equal to the container's is not stored") {
    auto p = PanelNuevo();
    BolsaGrabadora bolsa;
    p->a->WriteProperties(bolsa);
    CHECK_FALSE(bolsa.Tiene(u"Font"));
    p->a->PonFont(std::make_shared<FuenteGrabada>(AtributosFuente{.Bold = true}));
    p->a->WriteProperties(bolsa);
    CHECK(bolsa.Tiene(u"Font"));
}

TEST_CASE("a saved panel comes back as it was") {
    auto o = PanelNuevo();
    const auto fuente = std::make_shared<FuenteGrabada>(AtributosFuente{.Name = u"Tahoma"});
    const auto icono = std::make_shared<ImagenGrabada>("mano", 1, 1);
    o->a->PonAlinText(Alineaciones::Der_Inf);
    o->a->PonCaption(u"Mañana");
    o->a->PonFont(fuente);
    o->a->PonColorLetra(Color(1));
    o->a->PonColorFondo(Color(3));
    o->a->PonMouseIcon(icono);
    o->a->PonMousePointer(99);
    o->a->PonToolTipText(u"Hola");
    o->a->PonEstilosBord(TEstilosB::Lineal);
    o->a->PonEstilosRell(TEstilosR::D_Pirami);
    o->a->PonEnabled(false);
    o->a->PonSeparaBorde(Tamanio::Grande);
    o->a->PonColorDegrade(u"1*2");
    o->a->PonBackStyle(TBack::Transparente);
    o->a->PonAnchoBorde(Tamanio::Mediano);
    o->a->PonTipoLetra(TLetra::Undida);
    BolsaGrabadora bolsa;
    o->a->WriteProperties(bolsa);
    CHECK(bolsa.valores.size() == 16);

    PanelDePrueba c;
    c.a->ReadProperties(bolsa);
    const Area& a = *c.a;
    CHECK(a.AlinText() == Alineaciones::Der_Inf);
    CHECK(a.Caption() == u"Mañana");
    CHECK(a.Font() == fuente);
    CHECK(a.ColorLetra() == Color(1));
    CHECK(a.ColorFondo() == Color(3));
    CHECK(a.MouseIcon() == icono);
    CHECK(a.MousePointer() == 99);
    CHECK(a.ToolTipText() == u"Hola");
    CHECK(a.EstilosBord() == TEstilosB::Lineal);
    CHECK(a.EstilosRell() == TEstilosR::D_Pirami);
    CHECK_FALSE(a.Enabled());
    CHECK(a.SeparaBorde() == Tamanio::Grande);
    CHECK(a.ColorDegrade() == u"1*2");
    CHECK(a.BackStyle() == TBack::Transparente);
    CHECK(a.AnchoBorde() == Tamanio::Mediano);
    CHECK(a.TipoLetra() == TLetra::Undida);

    BolsaGrabadora primera, segunda;
    o->a->WriteProperties(primera);
    c.a->WriteProperties(segunda);
    CHECK(primera.registro.Todo() == segunda.registro.Todo());
}

TEST_CASE("stored values of another type are converted") {
    PanelDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"Enabled"] = Texto(u"False");
    bolsa.valores[u"Caption"] = std::int32_t{42};
    bolsa.valores[u"ToolTipText"] = true;
    bolsa.valores[u"AlinText"] = Texto(u"8");
    bolsa.valores[u"AnchoBorde"] = 2.5;
    bolsa.valores[u"ColorFondo"] = Texto(u"&HFF");
    bolsa.valores[u"MousePointer"] = Vacio{};
    bolsa.valores[u"MouseIcon"] = Vacio{};
    bolsa.valores[u"BackStyle"] = false;
    bolsa.valores[u"EstilosBord"] = std::int32_t{77};
    p.a->ReadProperties(bolsa);
    CHECK_FALSE(p.a->Enabled());
    CHECK(p.a->Caption() == u"42");
    CHECK(p.a->ToolTipText() == u"True");
    CHECK(p.a->AlinText() == Alineaciones::Der_Inf);
    CHECK(p.a->AnchoBorde() == Tamanio::Mediano);
    CHECK(p.a->ColorFondo() == Color(0xFF));
    CHECK(p.a->MousePointer() == 0);
    CHECK(p.a->MouseIcon() == nullptr);
    CHECK(p.a->BackStyle() == TBack::Transparente);
    CHECK(static_cast<int>(p.a->EstilosBord()) == 77);
}

TEST_CASE("stored values that don't fit raise the conversion's error") {
    CHECK(ErrorAlLeer(u"AnchoBorde", Texto(u"mucho")) == kTipos);
    CHECK(ErrorAlLeer(u"EstilosRell", 3e9) == kDesbordamiento);
    CHECK(ErrorAlLeer(u"MousePointer", std::int32_t{40000}) == kDesbordamiento);
    CHECK(ErrorAlLeer(u"ColorFondo", Nulo{}) == kNulo);
    CHECK(ErrorAlLeer(u"Caption", Nulo{}) == kNulo);
    CHECK(ErrorAlLeer(u"Enabled", Texto(u"quizás")) == kTipos);
    CHECK(ErrorAlLeer(u"Font", std::int16_t{1}) == kTipos);
    CHECK(ErrorAlLeer(u"Font", ReferenciaObjeto(std::make_shared<ImagenGrabada>("x", 1, 1))) ==
          kTipos);
    CHECK(ErrorAlLeer(u"MouseIcon", ReferenciaObjeto(std::make_shared<FuenteGrabada>())) == kTipos);
    CHECK(ErrorAlLeer(u"TipoLetra", Falta{}) == kTipos);
}

TEST_CASE("an error of the bag reaches the host and leaves a panel that works") {
    PanelDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.fallos[u"AlinText"] = NumeroError::SinMemoria;
    CHECK(ErrorDe([&] { p.a->ReadProperties(bolsa); }) ==
          static_cast<int>(NumeroError::SinMemoria));
    CHECK(bolsa.registro.Todo().back() == "lee AlinText Entero16 4");
    p.Tomar();
    p.a->Resize();
    CHECK(p.Tomar({"superficie.Cls", "evento"}) ==
          Lineas{"superficie.Cls &H8000000F", "evento Resize"});

    BolsaGrabadora salida;
    salida.fallos[u"ColorLetra"] = NumeroError::SinMemoria;
    CHECK(ErrorDe([&] { p.a->WriteProperties(salida); }) ==
          static_cast<int>(NumeroError::SinMemoria));
}
