#include "common/conversion.h"
#include "comprobar_error.h"

#include <climits>
#include <cmath>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

struct Cosa : Objeto {};
struct Otra : Objeto {};

template <class Accion>
void FallaConTodo(Accion convertir) {
    CHECK(ErrorDe([&] { convertir(Variante(Nulo{})); }) == kNulo);
    CHECK(ErrorDe([&] { convertir(Variante(Falta{})); }) == kTipos);
    CHECK(ErrorDe([&] { convertir(Variante(ReferenciaObjeto{})); }) == kTipos);
    CHECK(ErrorDe([&] { convertir(Variante(std::make_shared<Cosa>())); }) == kTipos);
}

} // namespace

TEST_CASE("Null, a missing argument and a reference are no plain value") {
    FallaConTodo([](const Variante& v) { ABooleano(v); });
    FallaConTodo([](const Variante& v) { AByte(v); });
    FallaConTodo([](const Variante& v) { AEntero16(v); });
    FallaConTodo([](const Variante& v) { AEntero32(v); });
    FallaConTodo([](const Variante& v) { AFlotante(v); });
    FallaConTodo([](const Variante& v) { ADoble(v); });
    FallaConTodo([](const Variante& v) { ATexto(v); });
}

TEST_CASE("Empty is zero, False and the empty text") {
    CHECK_FALSE(ABooleano(Vacio{}));
    CHECK(AByte(Vacio{}) == 0);
    CHECK(AEntero16(Vacio{}) == 0);
    CHECK(AEntero32(Vacio{}) == 0);
    CHECK(AFlotante(Vacio{}) == 0);
    CHECK(ADoble(Vacio{}) == 0);
    CHECK(ATexto(Vacio{}).empty());
}

TEST_CASE("True is minus one, and 255 in a byte") {
    CHECK(AEntero16(Variante(true)) == -1);
    CHECK(AEntero32(Variante(true)) == -1);
    CHECK(AFlotante(Variante(true)) == -1);
    CHECK(AByte(Variante(true)) == 255);
    CHECK(AByte(Variante(false)) == 0);
    CHECK(ATexto(true) == u"True");
    CHECK(ATexto(false) == u"False");
}

TEST_CASE("Numbers convert across types, rounded and checked") {
    CHECK(AByte(std::int16_t{255}) == 255);
    CHECK(ErrorDe([] { AByte(std::int16_t{256}); }) == kDesbordamiento);
    CHECK(ErrorDe([] { AByte(std::int32_t{-1}); }) == kDesbordamiento);
    CHECK(AEntero16(2.5) == 2);
    CHECK(AEntero16(3.5f) == 4);
    CHECK(ErrorDe([] { AEntero16(std::int32_t{40000}); }) == kDesbordamiento);
    CHECK(AEntero32(std::uint8_t{200}) == 200);
    CHECK(ErrorDe([] { AEntero32(3e9); }) == kDesbordamiento);
    CHECK(ErrorDe([] { AEntero32(std::nan("")); }) == kDesbordamiento);
    CHECK(AFlotante(0.1) == 0.1f);
    CHECK(ErrorDe([] { AFlotante(1e39); }) == kDesbordamiento);
    CHECK(ADoble(0.5f) == 0.5);
    CHECK(ABooleano(std::int32_t{7}));
    CHECK(ABooleano(0.25));
    CHECK_FALSE(ABooleano(std::uint8_t{0}));
    CHECK(AColor(0.0) == Negro);
}

TEST_CASE("A colour is any pattern of 32 bits, written with a sign or without") {
    const auto patron = [](std::uint32_t bits) { return Color(bits); };
    CHECK(AColor(2147483663.0) == CaraDeBoton);
    CHECK(AColor(-2147483633.0) == CaraDeBoton);
    CHECK(AColor(Texto(u"2147483663")) == CaraDeBoton);
    CHECK(AColor(Texto(u"&H8000000F")) == CaraDeBoton);
    CHECK(AColor(4294967295.0) == SinColor);
    CHECK(AColor(2147483647.5) == patron(0x80000000));
    CHECK(ErrorDe([] { AColor(4294967295.5); }) == kDesbordamiento);
    CHECK(ErrorDe([] { AColor(-2147483649.0); }) == kDesbordamiento);
    CHECK(ErrorDe([] { AColor(std::nan("")); }) == kDesbordamiento);
    CHECK(ErrorDe([] { AColor(Texto(u"azul")); }) == kTipos);
}

TEST_CASE("Texts convert by what they say") {
    CHECK(AByte(Texto(u"255")) == 255);
    CHECK(AByte(Texto(u"&HFF")) == 255);
    CHECK(ErrorDe([] { AByte(Texto(u"256")); }) == kDesbordamiento);
    CHECK(AEntero16(Texto(u"&HFFFF")) == -1);
    CHECK(AEntero32(Texto(u"&HFFFF")) == 65535);
    CHECK(AFlotante(Texto(u".25")) == 0.25f);
    CHECK(ErrorDe([] { AFlotante(Texto(u"1e39")); }) == kDesbordamiento);
    CHECK(ADoble(Texto(u"1e39")) == 1e39);
    CHECK(AColor(Texto(u"16777215")) == Blanco);
    CHECK(ErrorDe([] { AEntero32(Texto(u"")); }) == kTipos);
    CHECK(ErrorDe([] { AFlotante(Texto(u"ancho")); }) == kTipos);
}

TEST_CASE("A text is a truth value by its name or by its number") {
    CHECK(ABooleano(Texto(u"True")));
    CHECK(ABooleano(Texto(u"tRUE")));
    CHECK(ABooleano(Texto(u"#TRUE#")));
    CHECK_FALSE(ABooleano(Texto(u"False")));
    CHECK_FALSE(ABooleano(Texto(u"#FALSE#")));
    CHECK(ABooleano(Texto(u"-3")));
    CHECK(ABooleano(Texto(u"0.1")));
    CHECK_FALSE(ABooleano(Texto(u"0")));
    CHECK(ErrorDe([] { ABooleano(Texto(u"")); }) == kTipos);
    CHECK(ErrorDe([] { ABooleano(Texto(u"si")); }) == kTipos);
}

TEST_CASE("Any plain value has a text") {
    CHECK(ATexto(Texto(u"12*3")) == u"12*3");
    CHECK(ATexto(std::uint8_t{200}) == u"200");
    CHECK(ATexto(std::int16_t{-5}) == u"-5");
    CHECK(ATexto(INT_MIN) == u"-2147483648");
    CHECK(ATexto(0.2f) == u"0.2");
    CHECK(ATexto(0.1) == u"0.1");
}

TEST_CASE("A reference is taken as its class or is a mismatch") {
    const auto cosa = std::make_shared<Cosa>();
    CHECK(AObjeto<Cosa>(Variante(cosa)) == cosa);
    CHECK(AObjeto<Cosa>(Variante(ReferenciaObjeto{})) == nullptr);
    CHECK(AObjeto<Cosa>(Variante(Vacio{})) == nullptr);
    CHECK(ErrorDe([&] { AObjeto<Otra>(Variante(cosa)); }) == kTipos);
    CHECK(ErrorDe([&] { AObjeto<Cosa>(Variante(std::int32_t{0})); }) == kTipos);
    CHECK(ErrorDe([&] { AObjeto<Cosa>(Variante(Nulo{})); }) == kTipos);
}
