// What the button says to assistive programs and takes from its container.
#include "pruebas/nativas/boton_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("the button is a push button named by its caption without ampersand") {
    auto p = Nuevo();
    p->b->PonCaption(u"&Aceptar");
    const Accesible a = p->b->Describir();
    CHECK(a.papel == Accesible::Papel::Boton);
    CHECK(a.nombre == u"Aceptar");
    CHECK(a.tecla == u"A");
    CHECK(a.accion == u"Pulsar");
}

TEST_CASE("a doubled ampersand is read as one and a caption without key has none") {
    auto p = Nuevo();
    p->b->PonCaption(u"Pan y vino");
    CHECK(p->b->Describir().tecla.empty());
    p->b->PonCaption(u"Pan && vino &");
    CHECK(p->b->Describir().nombre == u"Pan & vino ");
}

TEST_CASE("pressed, hot and unavailable follow the button") {
    auto p = Nuevo();
    CHECK_FALSE(p->b->Describir().pulsado);
    p->b->MouseDown(1, 0, 1, 1);
    CHECK(p->b->Describir().pulsado);
    p->b->MouseUp(1, 0, 1, 1);
    CHECK_FALSE(p->b->Describir().pulsado);
    p->Entrar();
    CHECK(p->b->Describir().bajoElRaton);
    p->Salir();
    CHECK_FALSE(p->b->Describir().bajoElRaton);
    p->b->PonEnabled(false);
    CHECK_FALSE(p->b->Describir().habilitado);
    CHECK_FALSE(p->b->Describir().enfocable);
}

TEST_CASE("the default action clicks an enabled button and does nothing to a disabled one") {
    auto p = Nuevo();
    p->b->AccionPorDefecto();
    CHECK(p->Eventos() == Lineas{"evento Click"});
    p->b->PonEnabled(false);
    p->Tomar();
    p->b->AccionPorDefecto();
    CHECK(p->Eventos().empty());
}

TEST_CASE("a font taken from the container follows it, one of its own stays") {
    auto p = Nuevo();
    const AtributosFuente anterior = p->b->Font()->Atributos();
    AtributosFuente otros = anterior;
    otros.Size = 20;
    const Fuente nueva = std::make_shared<FuenteGrabada>(otros);
    p->b->AmbientFontChanged(anterior, nueva);
    CHECK(p->b->Font() == nueva);
    p->b->AmbientFontChanged(anterior, std::make_shared<FuenteGrabada>(anterior));
    CHECK(p->b->Font() == nueva);
}

TEST_CASE("following the container's font is no change of the button") {
    auto p = Nuevo();
    AtributosFuente otros = p->b->Font()->Atributos();
    otros.Bold = !otros.Bold;
    p->b->AmbientFontChanged(p->b->Font()->Atributos(), std::make_shared<FuenteGrabada>(otros));
    CHECK(p->Tomar({"PC"}).empty());
}

TEST_CASE("the default button bears a frame at its edge, and loses it when disabled") {
    auto p = Nuevo();
    p->e.porDefecto = true;
    p->Tomar();
    p->b->AmbientChanged();
    CHECK(p->Tomar({"superficie.Contorno"}).size() == 1);
    p->b->PonEnabled(false);
    CHECK(p->Tomar({"superficie.Contorno"}).empty());
    p->e.porDefecto = false;
    p->b->PonEnabled(true);
    CHECK(p->Tomar({"superficie.Contorno"}).empty());
}
