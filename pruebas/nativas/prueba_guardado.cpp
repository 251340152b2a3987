// The bytes of a saved control.
#include "common/errores.h"
#include "common/guardado.h"

#include <doctest/doctest.h>

#include <cstring>
#include <limits>
#include <random>

using namespace pincela;

namespace {

ControlGuardado Ejemplo() {
    ControlGuardado c;
    c.ancho = 2646;
    c.alto = 847;
    c.propiedades = {
        {u"Vacio", Vacio{}},
        {u"Nulo", Nulo{}},
        {u"Si", true},
        {u"No", false},
        {u"Byte", std::uint8_t{255}},
        {u"Corto", std::numeric_limits<std::int16_t>::min()},
        {u"Largo", std::numeric_limits<std::int32_t>::min()},
        {u"Flotante", 0.33333f},
        {u"Doble", 1e300},
        {u"Texto", Texto(u"Añil \xD83D\xDE00\r\n")},
        {u"", Texto()},
        {u"Nada", ReferenciaObjeto()},
        {u"Fuente", ReferenciaObjeto(std::make_shared<ObjetoGuardado>(ObjetoGuardado::Clase::Fuente,
                                                                      Bytes{1, 2, 3}))},
        {u"Imagen", ReferenciaObjeto(
                        std::make_shared<ObjetoGuardado>(ObjetoGuardado::Clase::Imagen, Bytes{}))},
    };
    return c;
}

/// The check sum is made right again, so that what is behind it gets read.
void Sumar(Bytes& bytes) {
    std::uint32_t c = 0xFFFFFFFFu;
    for (std::size_t i = LargoDeCabecera; i < bytes.size(); ++i) {
        c ^= bytes[i];
        for (int k = 0; k < 8; ++k)
            c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
    }
    c = ~c;
    std::memcpy(bytes.data() + 12, &c, sizeof c);
}

} // namespace

TEST_CASE("what is written is read back, every type of value") {
    const ControlGuardado antes = Ejemplo();
    ControlGuardado despues;
    REQUIRE(LeerGuardado(EscribirGuardado(antes), despues) == Lectura::Bien);
    CHECK(despues.ancho == antes.ancho);
    CHECK(despues.alto == antes.alto);
    REQUIRE(despues.propiedades.size() == antes.propiedades.size());
    for (std::size_t i = 0; i < 12; ++i) {
        CHECK(despues.propiedades[i].clave == antes.propiedades[i].clave);
        CHECK(despues.propiedades[i].valor == antes.propiedades[i].valor);
    }
    const auto& fuente = dynamic_cast<const ObjetoGuardado&>(
        *std::get<ReferenciaObjeto>(despues.propiedades[12].valor));
    CHECK(fuente.Cual() == ObjetoGuardado::Clase::Fuente);
    CHECK(fuente.Contenido() == Bytes{1, 2, 3});
}

TEST_CASE("bytes cut anywhere are refused") {
    const Bytes entero = EscribirGuardado(Ejemplo());
    for (std::size_t n = 0; n < entero.size(); ++n) {
        ControlGuardado c;
        CHECK(LeerGuardado(std::span(entero).first(n), c) != Lectura::Bien);
        CHECK(c.propiedades.empty());
    }
}

TEST_CASE("any byte changed is noticed, but for the two that are kept for later") {
    const Bytes entero = EscribirGuardado(Ejemplo());
    for (std::size_t i = 0; i < entero.size(); ++i) {
        if (i >= 4 && i < 8)
            continue; // version and the reserved bytes
        Bytes otro = entero;
        otro[i] ^= 0x40;
        ControlGuardado c;
        CHECK(LeerGuardado(otro, c) != Lectura::Bien);
    }
}

TEST_CASE("bytes of a newer version and of somebody else are told apart") {
    Bytes bytes = EscribirGuardado(Ejemplo());
    ControlGuardado c;
    bytes[4] = 2;
    CHECK(LeerGuardado(bytes, c) == Lectura::VersionMasNueva);
    bytes[0] = 'X';
    CHECK(LeerGuardado(bytes, c) == Lectura::NoEsNuestro);
}

TEST_CASE("a content that lies about its lengths is refused though its sum is right") {
    std::mt19937 azar(7);
    const Bytes entero = EscribirGuardado(Ejemplo());
    int leidos = 0;
    for (int vez = 0; vez < 20000; ++vez) {
        Bytes otro = entero;
        for (int i = 0; i < 3; ++i)
            otro[LargoDeCabecera + azar() % (otro.size() - LargoDeCabecera)] =
                static_cast<std::uint8_t>(azar());
        Sumar(otro);
        ControlGuardado c;
        const Lectura lectura = LeerGuardado(otro, c);
        CHECK((lectura == Lectura::Bien || lectura == Lectura::Danado));
        if (lectura != Lectura::Bien)
            CHECK(c.propiedades.empty());
        else
            ++leidos;
    }
    CHECK(leidos > 0); // a changed number is as good as any other
}

TEST_CASE("an object that was not turned into bytes can't be written") {
    ControlGuardado c;
    c.propiedades = {{u"Objeto", std::make_shared<Objeto>()}};
    CHECK_THROWS_AS(EscribirGuardado(c), ErrorEjecucion);
}
