// A text box on the recording host, its parts under their own names and its events in the record.
#pragma once

#include "pruebas/nativas/bolsa_grabadora.h"
#include "pruebas/nativas/comprobar_error.h"
#include "pruebas/nativas/entorno_grabador.h"
#include "tbox/tbox.h"
#include "tbox/tboxss.h"

#include <doctest/doctest.h>

#include <memory>
#include <string>
#include <vector>

namespace pincela::pruebas {

template <class Control>
class CajaDePrueba {
  public:
    /// Just created, nothing noted yet; the mouse is elsewhere.
    CajaDePrueba() {
        e.Nombrar("rectangulo", {"Sombra"});
        e.Nombrar("etiqueta", {"lblSombra", "lblTexto"});
        e.Nombrar("temporizador", {"Timer"});
        e.Nombrar("caja", {"txtTexto"});
        c = std::make_unique<Control>(e);
        e.Escuchar("Change", c->eventos.Change);
        e.Escuchar("Click", c->eventos.Click);
        e.Escuchar("MouseSale", c->eventos.MouseSale);
        e.Escuchar("MouseDown", c->eventos.MouseDown);
        e.Escuchar("MouseMove", c->eventos.MouseMove);
        e.Escuchar("MouseUp", c->eventos.MouseUp);
        e.Escuchar("PresTecla", c->eventos.PresTecla);
        e.Escuchar("TocoTecla", c->eventos.TocoTecla);
        e.Escuchar("SoltoTecla", c->eventos.SoltoTecla);
        e.Escuchar("Paint", c->eventos.Paint);
        e.Escuchar("Validate", c->eventos.Validate);
        e.Escuchar("Resize", c->eventos.Resize);
        e.RatonFuera();
        e.registro.Olvidar();
    }

    Lineas Tomar() { return e.registro.Tomar(); }
    Lineas Tomar(const std::vector<std::string>& comienzos) { return e.registro.Tomar(comienzos); }
    Lineas Eventos() { return Tomar({"evento"}); }

    CajaGrabada& campo() { return e.LaCaja("txtTexto"); }
    EtiquetaGrabada& titulo() { return e.LaEtiqueta("lblTexto"); }
    EtiquetaGrabada& sombraDelTitulo() { return e.LaEtiqueta("lblSombra"); }
    TemporizadorGrabado& sondeo() { return e.ElTemporizador("Timer"); }

    void Teclear(const Texto& letras) {
        for (const char16_t letra : letras)
            campo().Teclear(static_cast<std::int16_t>(letra));
    }
    void Enfocar() { e.Enfocar(&campo()); }
    void Desenfocar() { e.Enfocar(nullptr); }

    /// The mouse comes in over the surface, with the notification.
    void Entrar() {
        e.RatonEncima();
        c->MouseMove(0, 0, 5, 6);
    }
    void Tamano(float ancho, float alto) {
        e.pantalla.ancho = ancho;
        e.pantalla.alto = alto;
        c->Resize();
    }

    EntornoGrabador e;
    std::unique_ptr<Control> c;
};

/// A new control of 100 by 30 with a clean record.
template <class Control>
std::unique_ptr<CajaDePrueba<Control>> NuevaCaja() {
    auto caja = std::make_unique<CajaDePrueba<Control>>();
    caja->c->InitProperties();
    caja->c->Resize();
    caja->e.registro.Olvidar();
    return caja;
}

/// The error a control ends in when its bag holds this.
template <class Control>
int ErrorAlLeer(const Texto& clave, const Variante& valor) {
    CajaDePrueba<Control> p;
    BolsaGrabadora bolsa;
    bolsa.valores[clave] = valor;
    return ErrorDe([&] { p.c->ReadProperties(bolsa); });
}

inline Imagen Icono(const std::string& nombre) {
    return std::make_shared<ImagenGrabada>(nombre, 250, 250);
}
inline Fuente Letra(const Texto& nombre) {
    return std::make_shared<FuenteGrabada>(AtributosFuente{.Name = nombre});
}

/// Gives every saved property that all text boxes have a value that is nobody's default.
template <class Control>
void PonValoresRaros(Control& c) {
    c.PonAlinTBox(Alineaciones::Der_Inf);
    c.PonAlinText(2);
    c.PonMaxText(40);
    c.PonFuenteTexto(Letra(u"Verdana"));
    c.PonColorLetra(Color(1));
    c.PonColorLetraSobre(Color(2));
    c.PonColorFondo(Color(3));
    c.PonColorFondoSobre(Color(4));
    c.PonColorFonTexto(Color(5));
    c.PonColorFonTextoS(Color(6));
    c.PonTranca(true);
    c.PonMouseIcon(Icono("mano"));
    c.PonMousePointer(99);
    c.PonToolTipText(u"Ayuda");
    c.PonEnabled(false);
    c.PonTipoTexto(TText::NumericoDes);
    c.PonApariencia(0);
    c.PonFocoConMouse(true);
    c.PonSeparaBorde(Tamanio::Grande);
    c.PonTipoLetra(TLetra::InvesoL);
}

template <class Control>
void ComprobarValoresRaros(const Control& c) {
    CHECK(c.AlinTBox() == Alineaciones::Der_Inf);
    CHECK(c.AlinText() == 2);
    CHECK(c.MaxText() == 40);
    CHECK(c.FuenteTexto()->Atributos().Name == u"Verdana");
    CHECK(c.ColorLetra() == Color(1));
    CHECK(c.ColorLetraSobre() == Color(2));
    CHECK(c.ColorFondo() == Color(3));
    CHECK(c.ColorFondoSobre() == Color(4));
    CHECK(c.ColorFonTexto() == Color(5));
    CHECK(c.ColorFonTextoS() == Color(6));
    CHECK(c.Tranca());
    CHECK(NombreDe(c.MouseIcon()) == "mano");
    CHECK(c.MousePointer() == 99);
    CHECK(c.ToolTipText() == u"Ayuda");
    CHECK_FALSE(c.Enabled());
    CHECK(c.TipoTexto() == TText::NumericoDes);
    CHECK(c.Apariencia() == 0);
    CHECK(c.FocoConMouse());
    CHECK(c.SeparaBorde() == Tamanio::Grande);
    CHECK(c.TipoLetra() == TLetra::InvesoL);
}

} // namespace pincela::pruebas
