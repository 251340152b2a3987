#include "anfitrion/pruebas/banco.h"

using namespace falso;

TEST_CASE("An event arrives with its arguments in order and may change those by reference") {
    Banco banco;
    ControlFalso* c = banco.Poner(L"uno");
    long primero = 0;
    short segundo = 0;
    banco.alojado->Conectar([&](Evento& e) {
        REQUIRE(e.numero == 1);
        REQUIRE(e.argumentos.size() == 2);
        primero = Entero(*e.argumentos[0]);
        segundo = static_cast<short>(Entero(*e.argumentos[1]));
        Asignar(*e.argumentos[1], 40);
    });
    short tecla = 65;
    REQUIRE(c->Disparar(tecla) == S_OK);
    REQUIRE(primero == 7);
    REQUIRE(segundo == 65);
    REQUIRE(tecla == 40);
}

TEST_CASE("An argument that came by value can't be written to") {
    Variante valor(3);
    REQUIRE_THROWS_AS(Asignar(valor, 4), FalloCom);
}

TEST_CASE("A handler that throws answers its status to the control") {
    Banco banco;
    ControlFalso* c = banco.Poner(L"uno");
    banco.alojado->Conectar([](Evento&) { throw FalloCom(E_ACCESSDENIED, "no"); });
    short tecla = 0;
    REQUIRE(c->Disparar(tecla) == E_ACCESSDENIED);
}

TEST_CASE("A handler may break its own connection") {
    Banco banco;
    ControlFalso* c = banco.Poner(L"uno");
    Puntero<SumideroEventos> sumidero;
    int veces = 0;
    sumidero = banco.alojado->Conectar([&](Evento&) {
        ++veces;
        sumidero->Desconectar();
    });
    short tecla = 0;
    REQUIRE(c->Disparar(tecla) == S_OK);
    REQUIRE(c->Disparar(tecla) == S_FALSE);
    REQUIRE(veces == 1);
    REQUIRE_FALSE(sumidero->Conectado());
}

TEST_CASE("A handler may close the control that raised the event") {
    Banco banco;
    ControlFalso* c = banco.Poner(L"uno");
    const Puntero<IOleObject> testigo(static_cast<IOleObject*>(c));
    banco.alojado->Conectar([&](Evento&) { banco.forma->Quitar(*banco.alojado); });
    short tecla = 0;
    REQUIRE(c->Disparar(tecla) == S_OK);
    REQUIRE(banco.forma->Controles().empty());
    REQUIRE(c->Veces("Close") == 1);
}

TEST_CASE("A handler may destroy the whole form") {
    Banco banco;
    ControlFalso* c = banco.Poner(L"uno");
    const Puntero<IOleObject> testigo(static_cast<IOleObject*>(c));
    banco.alojado->Conectar([&](Evento&) { banco.forma.reset(); });
    short tecla = 0;
    REQUIRE(c->Disparar(tecla) == S_OK);
    REQUIRE(c->llamadas.back() == "SetClientSite nada");
}

TEST_CASE("An object without events can't be connected to") {
    SesionOle ole;
    const auto bolsa = Hacer<SumideroEventos>(nullptr);
    const auto sumidero = Hacer<SumideroEventos>(nullptr);
    REQUIRE_THROWS_AS(sumidero->Conectar(bolsa.get()), FalloCom);
}
