// The recording host keeps its own promises.
#include "pruebas/nativas/bolsa_grabadora.h"
#include "pruebas/nativas/entorno_grabador.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

struct OyenteAnotado final : OyenteEdicion {
    explicit OyenteAnotado(Registro& r) : registro(r) {}
    void Change() override { registro.Anotar("Change"); }
    void GotFocus() override { registro.Anotar("GotFocus"); }
    void LostFocus() override { registro.Anotar("LostFocus"); }
    void KeyPress(std::int16_t& caracter) override {
        if (caracter == u'x')
            caracter = 0;
    }
    Registro& registro;
};

} // namespace

TEST_CASE("widgets are known by the names given to them, in order, while they live") {
    EntornoGrabador e;
    e.Nombrar("etiqueta", {"una", "dos"});
    auto una = e.CrearEtiqueta();
    auto dos = e.CrearEtiqueta();
    auto tres = e.CrearEtiqueta();
    CHECK(&e.LaEtiqueta("dos") == dos.get());
    CHECK(e.Existe("etiqueta3"));
    tres.reset();
    CHECK_FALSE(e.Existe("etiqueta3"));
    CHECK_THROWS(e.LaCaja("una"));
}

TEST_CASE("a label sizes itself to its caption without the mark of the access key") {
    EntornoGrabador e;
    auto etiqueta = e.CrearEtiqueta();
    etiqueta->PonCaption(u"&Hola");
    CHECK(etiqueta->Width() == 24);
    CHECK(etiqueta->Height() == 13);
}

TEST_CASE("a timer ticks only while it runs") {
    EntornoGrabador e;
    auto reloj = e.CrearTemporizador();
    int veces = 0;
    reloj->AlTic([&] { ++veces; });
    auto& grabado = e.ElTemporizador("temporizador1");
    CHECK_FALSE(grabado.Tic());
    reloj->PonEnabled(true);
    CHECK_FALSE(grabado.Tic()); // no interval
    reloj->PonInterval(10);
    CHECK(grabado.Tic());
    CHECK(veces == 1);
}

TEST_CASE("an edit field tells of its text, its keys and its focus") {
    EntornoGrabador e;
    auto una = e.CrearCajaTexto(false);
    auto otra = e.CrearCajaTexto(true);
    OyenteAnotado oyente(e.registro);
    una->PonOyente(&oyente);
    una->PonSelStart(2); // beyond the text, remembered
    CHECK(una->SelStart() == 0);
    una->PonText(u"abc");
    CHECK(una->SelStart() == 2);
    una->PonSelLength(50);
    CHECK(una->SelText() == u"c");
    CHECK(e.registro.Tomar({"Change"}) == Lineas{"Change"});
    una->PonText(u"abc");
    CHECK(e.registro.Tomar({"Change"}).empty());
    CHECK_THROWS_AS(una->PonSelStart(-1), ErrorEjecucion);

    auto& caja = e.LaCaja("caja1");
    una->PonSelStart(3);
    caja.Teclear(u'd');
    caja.Teclear(u'x');
    caja.Teclear(8);
    caja.Teclear(u'e');
    CHECK(una->Text() == u"abce");
    una->PonMaxLength(4);
    caja.Teclear(u'f');
    CHECK(una->Text() == u"abce");

    e.registro.Olvidar();
    una->SetFocus();
    CHECK(una->EsActivo());
    otra->SetFocus();
    CHECK_FALSE(una->EsActivo());
    CHECK(e.registro.Tomar() ==
          Lineas{"caja1.SetFocus", "GotFocus", "caja2.SetFocus", "LostFocus"});
    CHECK(e.LaCaja("caja2").multilinea);
}

TEST_CASE("the bag leaves defaults out and fails where it is told to") {
    BolsaGrabadora bolsa;
    bolsa.WriteProperty(u"a", std::int32_t{4}, std::int16_t{4});
    bolsa.WriteProperty(u"b", std::int32_t{5}, std::int16_t{4});
    CHECK_FALSE(bolsa.Tiene(u"a"));
    CHECK(Describir(bolsa.ReadProperty(u"b", false)) == "Entero32 5");
    CHECK(Describir(bolsa.ReadProperty(u"a", false)) == "Booleano False");
    bolsa.fallos[u"a"] = NumeroError::SinMemoria;
    CHECK_THROWS_AS(bolsa.ReadProperty(u"a", false), ErrorEjecucion);
}

TEST_CASE("shapes, lines and contained controls are recorded") {
    EntornoGrabador e;
    auto linea = e.CrearLinea();
    auto rectangulo = e.CrearRectangulo();
    linea->Move(1, 2, 3, 4);
    linea->PonBorderColor(Color(0xFF));
    linea->PonBorderWidth(2);
    linea->PonVisible(false);
    rectangulo->Move(1, 2, 30, 40);
    rectangulo->PonBorderColor(Color(1));
    CHECK(e.registro.Tomar() == Lineas{"linea1.Move 1,2 3,4", "linea1.BorderColor &HFF",
                                       "linea1.BorderWidth 2", "linea1.Visible False",
                                       "rectangulo1.Move 1,2 30x40",
                                       "rectangulo1.BorderColor &H1"});
    CHECK(linea->BorderColor() == Color(0xFF));
    e.contenidos.resize(2);
    e.contenidos[1].legible = false;
    std::vector<bool> leidos;
    e.ControlesContenidos([&](ControlContenido& control) {
        bool visible = false;
        leidos.push_back(control.Visible(visible));
    });
    CHECK(leidos == std::vector<bool>{true, false});
}
