// Whatever a handler does, in whichever event, the component goes on.
#include "pruebas/cada.h"
#include "pruebas/componente/vivo/banco.h"

using namespace vivo;

namespace {

/// One event and what makes the button raise it.
struct Caso {
    const wchar_t* evento;
    void (*provocar)(Banco&);
};

void MoverEncima(Banco& b) {
    b.Enviar(WM_MOUSEMOVE, 0, 5, 5);
}

const Caso Casos[] = {
    {L"Click",
     [](Banco& b) {
         b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
         b.Enviar(WM_LBUTTONUP, 0, 5, 5);
     }},
    {L"Click", [](Banco& b) { b.Pulsacion(VK_SPACE); }},
    {L"Click",
     [](Banco& b) {
         b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 60, 20); // on the caption
         b.Enviar(WM_LBUTTONUP, 0, 60, 20);
     }},
    {L"Click",
     [](Banco& b) {
         MSG mensaje{b.Ventana(), WM_SYSKEYDOWN, 'H', 0x20000001, 0, {}};
         b.boton->Como<IOleControl>()->OnMnemonic(&mensaje);
     }},
    {L"PresTecla", [](Banco& b) { b.Pulsacion('A'); }},
    {L"TocoTecla", [](Banco& b) { SendMessageW(b.Ventana(), WM_CHAR, 'a', 1); }},
    {L"SoltoTecla", [](Banco& b) { b.Pulsacion('A'); }},
    {L"MouseSale",
     [](Banco& b) {
         MoverEncima(b); // the cursor itself is far away: the poll finds it there
         b.forma->Esperar(80);
     }},
    {L"MouseDown", [](Banco& b) { b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 5, 5); }},
    {L"MouseMove", MoverEncima},
    {L"MouseMove", [](Banco& b) { b.Enviar(WM_MOUSEMOVE, 0, 60, 20); }},
    {L"MouseUp",
     [](Banco& b) {
         b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
         b.Enviar(WM_LBUTTONUP, 0, 5, 5);
     }},
    {L"Paint",
     [](Banco& b) { RedrawWindow(b.Ventana(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }},
    {L"Resize",
     [](Banco& b) {
         b.boton->Mover({40, 40, 170, 90});
     }},
};

struct BancoDeVidas : Banco {
    BancoDeVidas() {
        Poner(L"Caption", L"&Hola que tal");
        Poner(L"ColorFondoSobre", 0xFF00L);
        Esperar(20);
        Olvidar();
    }
};

/// Runs an action in the first occurrence of each event, each time on a bench of its own.
template <class Accion, class Despues>
void EnCadaSuceso(Accion accion, Despues despues) {
    for (const Caso& caso : Casos) {
        CAPTURE(Estrechar(caso.evento));
        int veces = 0;
        Componente componente;
        {
            BancoDeVidas b;
            componente = b.componente;
            b.alOcurrir = [&](Evento& e) {
                if (e.nombre == caso.evento && veces++ == 0)
                    accion(b);
            };
            caso.provocar(b);
            CHECK(veces >= 1);
            despues(b, caso);
            b.alOcurrir = nullptr;
        }
        CHECK(componente.PuedeDescargarse());
    }
}

template <class Accion>
void EnCadaSuceso(Accion accion) {
    EnCadaSuceso(accion, [](Banco&, const Caso&) {});
}

/// The button still answers.
void ComprobarQueSirve(Banco& b, const Caso&) {
    b.alOcurrir = nullptr;
    b.Poner(L"Enabled", true);
    b.Olvidar();
    b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
    b.Enviar(WM_LBUTTONUP, 0, 5, 5);
    CHECK(b.Veces("Click") == 1);
}

/// Assigns every property that a form file could hold, some of them twice.
void CambiarTodo(Banco& b) {
    const struct {
        const wchar_t* nombre;
        Variante valor;
    } cambios[] = {
        {L"EfectoBoton", 1L},
        {L"AlinText", 8L},
        {L"Caption", L"&Otro"},
        {L"AlinImag", 4L},
        {L"ColorLetra", 0xFFL},
        {L"ColorLetraSobre", 0xFF00L},
        {L"ColorFondo", 0x123456L},
        {L"ColorFondoSobre", 0x654321L},
        {L"MousePointer", 2L},
        {L"ToolTipText", L"Globo"},
        {L"EstilosBord", 2L},
        {L"EstilosRell", 3L},
        {L"Estilos", 1L},
        {L"RelX", 0.5},
        {L"RelY", 0.5},
        {L"Expandir", false},
        {L"FocoVisible", false},
        {L"FocoConMouse", true},
        {L"AnchoBorde", 3L},
        {L"TipoLetra", 3L},
        {L"CambioProgre", true},
        {L"CambioProgrePasos", 5L},
        {L"Enabled", false},
        {L"Enabled", true},
        {L"CambioProgre", false},
        {L"Estilos", 0L},
    };
    for (const auto& cambio : cambios)
        b.Poner(cambio.nombre, cambio.valor);
}

} // namespace

TEST_CASE("A handler may take the control off its form, in every event") {
    EnCadaSuceso(
        [](Banco& b) {
            b.sumidero.Soltar();
            const auto boton = std::move(b.boton);
            b.boton = boton;
            b.forma->Quitar(*boton);
        },
        [](Banco& b, const Caso&) {
            CHECK(b.forma->Controles().empty());
            b.forma->Esperar(40);
        });
}

TEST_CASE("A handler may destroy the form, in every event") {
    EnCadaSuceso([](Banco& b) { b.forma.reset(); },
                 [](Banco& b, const Caso&) { CHECK(b.forma == nullptr); });
}

TEST_CASE("A handler may destroy the window under the control, in every event") {
    EnCadaSuceso([](Banco& b) { DestroyWindow(b.Ventana()); });
}

TEST_CASE("A handler may close the object as careless containers do, in every event") {
    EnCadaSuceso([](Banco& b) {
        const auto objeto = b.boton->Como<IOleObject>();
        objeto->SetClientSite(nullptr);
        objeto->Close(OLECLOSE_NOSAVE);
        objeto->Close(OLECLOSE_NOSAVE);
    });
}

TEST_CASE("A handler may break its connection, in every event") {
    EnCadaSuceso([](Banco& b) { b.sumidero->Desconectar(); },
                 [](Banco& b, const Caso&) {
                     b.Olvidar();
                     b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
                     b.Enviar(WM_LBUTTONUP, 0, 5, 5);
                     CHECK(b.hechos.empty());
                 });
}

TEST_CASE("A handler may change every property, in every event") {
    EnCadaSuceso(CambiarTodo, [](Banco& b, const Caso& caso) {
        CHECK(Texto(b.Leer(L"Caption")) == L"&Otro");
        ComprobarQueSirve(b, caso);
    });
}

TEST_CASE("A handler may run a loop of messages, in every event") {
    EnCadaSuceso([](Banco& b) { b.forma->Esperar(30); }, ComprobarQueSirve);
}

TEST_CASE("A handler may raise an error, in every event") {
    EnCadaSuceso([](Banco&) { throw FalloCom(static_cast<HRESULT>(0x800A000B), "division"); },
                 ComprobarQueSirve);
}

TEST_CASE("A handler may disable the button, in every event") {
    EnCadaSuceso([](Banco& b) { b.Poner(L"Enabled", false); }, ComprobarQueSirve);
}

TEST_CASE("A handler may deactivate the control, in every event") {
    EnCadaSuceso([](Banco& b) { b.boton->Como<IOleInPlaceObject>()->InPlaceDeactivate(); },
                 [](Banco& b, const Caso& caso) {
                     CHECK(b.Ventana() == nullptr);
                     b.boton->Activar(false);
                     ComprobarQueSirve(b, caso);
                 });
}

TEST_CASE("A handler may raise the same event again from inside") {
    for (const Caso& caso : Casos) {
        if (std::wstring(caso.evento) == L"MouseSale")
            continue; // its own trigger waits
        CAPTURE(Estrechar(caso.evento));
        BancoDeVidas b;
        int hondura = 0;
        b.alOcurrir = [&](Evento& e) {
            if (e.nombre == caso.evento && hondura < 3) {
                ++hondura;
                caso.provocar(b);
            }
        };
        caso.provocar(b);
        CHECK(hondura >= 1);
        b.alOcurrir = nullptr;
        ComprobarQueSirve(b, caso);
    }
}
