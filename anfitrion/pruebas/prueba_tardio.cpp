#include "anfitrion/pruebas/banco.h"

using namespace falso;

TEST_CASE("Members are read and written by name") {
    Banco banco;
    ControlFalso* c = banco.Poner(L"uno");
    Poner(banco.alojado->Despacho(), L"titulo", L"Salir");
    REQUIRE(c->titulo == L"Salir");
    REQUIRE(Texto(Leer(banco.alojado->Despacho(), L"Titulo")) == L"Salir");
    REQUIRE(Tiene(banco.alojado->Despacho(), L"Fallar"));
    REQUIRE_FALSE(Tiene(banco.alojado->Despacho(), L"Angulo"));
}

TEST_CASE("An unknown member is reported as such") {
    Banco banco;
    banco.Poner(L"uno");
    try {
        Leer(banco.alojado->Despacho(), L"NoExiste");
        FAIL("no hubo fallo");
    } catch (const FalloCom& fallo) {
        REQUIRE(fallo.estado == DISP_E_UNKNOWNNAME);
    }
}

TEST_CASE("Error information becomes an exception with status, text and source") {
    Banco banco;
    banco.Poner(L"uno");
    try {
        Llamar(banco.alojado->Despacho(), L"Fallar");
        FAIL("no hubo fallo");
    } catch (const FalloCom& fallo) {
        REQUIRE(fallo.estado == static_cast<HRESULT>(0x800A017C));
        REQUIRE(fallo.descripcion == L"valor de propiedad no valido");
        REQUIRE(fallo.fuente == L"Falso");
    }
}

TEST_CASE("Values convert by the automation rules in the invariant locale") {
    REQUIRE(Entero(Variante(L"12")) == 12);
    REQUIRE(Real(Variante(L"0.5")) == 0.5);
    REQUIRE(Logico(Variante(true)));
    REQUIRE(Texto(Variante(3)) == L"3");
    long numero = 9;
    REQUIRE(Entero(Variante::Referencia(numero)) == 9);
    REQUIRE(Mostrar(Variante(2.5)) == L"2.5");
    REQUIRE(Mostrar(Variante(static_cast<IDispatch*>(nullptr))) == L"Nothing");
}
