// Who hears the events, and when nobody does.
#include "pruebas/componente/vivo/banco.h"

using namespace vivo;

namespace {

void Pulsar(Banco& b) {
    b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
    b.Enviar(WM_LBUTTONUP, 0, 5, 5);
}

} // namespace

TEST_CASE("Frozen events are counted: as many thaws as freezes let them out again") {
    Banco b;
    const auto control = b.boton->Como<IOleControl>();
    control->FreezeEvents(TRUE);
    control->FreezeEvents(TRUE);
    Pulsar(b);
    CHECK(b.hechos.empty());
    control->FreezeEvents(FALSE);
    Pulsar(b);
    CHECK(b.hechos.empty());
    control->FreezeEvents(FALSE);
    Pulsar(b);
    CHECK(b.Veces("Click") == 1);
}

TEST_CASE("A thaw too many does not count against the next freeze") {
    Banco b;
    const auto control = b.boton->Como<IOleControl>();
    control->FreezeEvents(FALSE);
    control->FreezeEvents(TRUE);
    Pulsar(b);
    CHECK(b.hechos.empty());
    control->FreezeEvents(FALSE);
}

TEST_CASE("A sink that fails keeps nobody else from hearing, before it or after it") {
    Banco b;
    int antes = 0, despues = 0;
    b.boton->Conectar([&](Evento&) { ++antes; });
    b.boton->Conectar([](Evento&) { throw FalloCom(E_FAIL, "no"); });
    b.boton->Conectar([&](Evento&) { ++despues; });
    Pulsar(b);
    CHECK(antes >= 3);
    CHECK(despues == antes);
}

TEST_CASE("A sink that disconnects another one keeps it from hearing the same event") {
    Banco b;
    int segundo = 0;
    Puntero<SumideroEventos> otro;
    b.alOcurrir = [&](Evento&) { otro->Desconectar(); };
    otro = b.boton->Conectar([&](Evento&) { ++segundo; });
    Pulsar(b);
    CHECK(segundo == 0);
    CHECK(b.Veces("Click") == 1);
}

TEST_CASE("A sink connected during an event hears the next one") {
    Banco b;
    int segundo = 0;
    bool hecho = false;
    b.alOcurrir = [&](Evento&) {
        if (!std::exchange(hecho, true))
            b.boton->Conectar([&](Evento& e) { segundo += e.nombre == L"Click"; });
    };
    Pulsar(b);
    CHECK(segundo == 1);
}

TEST_CASE("A failing property sink does not stop the assignment") {
    Banco b;
    b.boton->Notificaciones().alCambiar = [](DISPID) {};
    std::vector<DISPID> cambios;
    b.boton->Notificaciones().alCambiar = [&](DISPID numero) {
        cambios.push_back(numero);
        if (cambios.size() == 1)
            b.Poner(L"Caption", L"dentro");
    };
    b.Poner(L"Caption", L"fuera");
    CHECK(cambios.size() == 2);
}

TEST_CASE("A property sink may take the control off its form") {
    Componente componente;
    {
        Banco b;
        componente = b.componente;
        b.boton->Notificaciones().alCambiar = [&](DISPID) {
            b.sumidero.Soltar();
            const auto boton = b.boton;
            b.forma->Quitar(*boton);
        };
        const Puntero<IDispatch> despacho(b.boton->Despacho());
        Poner(despacho.get(), L"ColorFondo", 0xFFL);
        CHECK(b.forma->Controles().empty());
    }
    CHECK(componente.PuedeDescargarse());
}

TEST_CASE("A view sink may take the control off its form") {
    Componente componente;
    {
        Banco b;
        componente = b.componente;
        b.boton->Notificaciones().alCambiarVista = [&] {
            b.sumidero.Soltar();
            const auto boton = b.boton;
            b.forma->Quitar(*boton);
        };
        const Puntero<IDispatch> despacho(b.boton->Despacho());
        Poner(despacho.get(), L"ColorFondo", 0xFFL);
        CHECK(b.forma->Controles().empty());
    }
    CHECK(componente.PuedeDescargarse());
}
