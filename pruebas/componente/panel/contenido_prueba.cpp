// What stands on a panel: where its windows are, and the marks of ManAreas.
#include "pruebas/componente/panel/banco.h"

using namespace panel;

namespace {

constexpr RECT A{10, 20, 70, 60}, B{80, 20, 140, 60}, C{10, 70, 70, 100}, D{80, 70, 140, 100};

RECT Marca(const RECT& r) {
    return {r.left - 1, r.top - 1, r.right + 1, r.bottom + 1};
}

/// A blue panel without border on a form in design mode, marks in red.
struct BancoMarcas : BancoPanel {
    explicit BancoMarcas(OpcionesFormulario opciones = EnDiseno()) : BancoPanel(opciones) {
        Poner(L"EstilosBord", 0);
        Poner(L"Caption", L"");
        Color(L"ColorFondo", Azul);
        Color(L"ColorLetra", Rojo);
    }
    bool Marcado(const RECT& r) { return EnContorno(Ver(), Marca(r), Rojo) == Contorno(Marca(r)); }
    /// Pixels of marks on the whole panel.
    int Tinta() { return Ver().Contar({0, 0, W, H}, Rojo); }
};

OpcionesFormulario SinSitioQueSepa() {
    OpcionesFormulario opciones = EnDiseno();
    opciones.sitio.contenidos = false;
    return opciones;
}

/// One visible, one hidden and one that does not say whether it is.
struct BancoDeTres : BancoMarcas {
    explicit BancoDeTres(const OpcionesFormulario& opciones) : BancoMarcas(opciones) {
        Dentro(L"Visible", A);
        oculto = Dentro(L"Oculto", B);
        oculto->PonerVisible(false);
        mudo = Dentro(L"Mudo", C);
        OpcionesSitio callado = mudo->Opciones();
        callado.controlExtendido = false; // the button itself has no such property
        mudo->PonerOpciones(callado);
        registro->Vaciar();
    }
    std::shared_ptr<ControlAlojado> oculto, mudo;
};

RECT EnPantalla(HWND ventana) {
    RECT r{};
    GetWindowRect(ventana, &r);
    return r;
}

} // namespace

TEST_CASE("of three controls the visible one is marked, the hidden and the mute one are not") {
    for (const bool sabe : {true, false}) {
        INFO("the site knows what stands on the panel: ", sabe);
        BancoDeTres b(sabe ? EnDiseno() : SinSitioQueSepa());
        b.ManAreas(true);
        CHECK(b.Marcado(A));
        CHECK(b.Tinta() == Contorno(Marca(A)));
        CHECK(b.registro->Veces("IVBGetControl::EnumControls") == (sabe ? 1 : 0));
        CHECK(b.registro->Veces("IOleClientSite::GetContainer") == (sabe ? 0 : 1));
        // One that comes into sight gets its mark with the next call, and loses it again.
        b.oculto->PonerVisible(true);
        b.ManAreas(true);
        CHECK(b.Marcado(A));
        CHECK(b.Marcado(B));
        CHECK(b.Tinta() == Contorno(Marca(A)) + Contorno(Marca(B)));
        b.oculto->PonerVisible(false);
        b.ManAreas(true);
        CHECK(b.Tinta() == Contorno(Marca(A)));
        b.ManAreas(false);
        CHECK(b.Tinta() == 0);
    }
}

TEST_CASE("the wish of ManAreas may come by value, by reference or as a number") {
    BancoMarcas b;
    b.Dentro(L"Uno", A);
    for (const Variante& si : {Variante(true), Variante(1), Variante(L"True"), Variante(-1.0)}) {
        Llamar(b.panel->Despacho(), L"ManAreas", {si});
        CHECK(b.Marcado(A));
        Llamar(b.panel->Despacho(), L"ManAreas", {Variante(false)});
        CHECK(b.Tinta() == 0);
    }
    b.ManAreas(true);
    CHECK(b.Marcado(A));
    CHECK_THROWS_AS(Llamar(b.panel->Despacho(), L"ManAreas", {Variante(L"quizás")}), FalloCom);
    CHECK_THROWS_AS(Llamar(b.panel->Despacho(), L"ManAreas"), FalloCom);
    CHECK(b.Marcado(A));
}

TEST_CASE("marks go with the colour of the letter and follow a control that moved") {
    BancoMarcas b;
    const auto uno = b.Dentro(L"Uno", A);
    b.ManAreas(true);
    uno->Mover(D);
    b.Color(L"ColorLetra", Amarillo);
    b.ManAreas(true);
    const Captura c = b.Ver();
    CHECK(EnContorno(c, Marca(D), Amarillo) == Contorno(Marca(D)));
    CHECK(c.Contar({0, 0, b.W, b.H}, Rojo) == 0);
}

TEST_CASE("design mode marks what stands on the panel, running mode does not") {
    BancoMarcas b;
    b.Dentro(L"Uno", A);
    b.panel->Mover({20, 20, 221, 140});
    CHECK(b.Marcado(A));
    b.forma->PonerModoUsuario(true);
    CHECK(b.Tinta() == 0);
    b.panel->Mover({20, 20, 220, 140});
    CHECK(b.Tinta() == 0);
    b.forma->PonerModoUsuario(false);
    CHECK(b.Marcado(A));
    b.panel->PonerVisible(false);
    b.ManAreas(false);
    b.panel->PonerVisible(true); // shown again
    CHECK(b.Marcado(A));
}

TEST_CASE("only what stands on this panel is marked") {
    BancoMarcas b(SinSitioQueSepa());
    b.Agregar(L"EnLaForma", {225, 20, 290, 60});
    b.Dentro(L"Uno", A);
    const auto otra = b.Dentro(L"OtraArea", {80, 10, 190, 110}, L"Pincela.Area");
    b.Agregar(L"EnLaOtra", {10, 10, 50, 40}, L"Pincela.Botonazo", otra.get());
    b.ManAreas(true);
    CHECK(b.Marcado(A));
    CHECK(b.Marcado({80, 10, 190, 110}));
    CHECK(b.Tinta() == Contorno(Marca(A)) + Contorno(Marca({80, 10, 190, 110})));
}

TEST_CASE("a container that tells nothing leaves a panel without marks, not without life") {
    OpcionesFormulario pobre = EnDiseno();
    pobre.sitio = OpcionesSitio::Pobre();
    BancoMarcas b(pobre);
    b.Dentro(L"Uno", A);
    b.ManAreas(true);
    CHECK(b.Tinta() == 0);
    b.ManAreas(false);
    b.Color(L"ColorFondo", Amarillo);
    CHECK(b.Ver().Pixel(1, 1) == Amarillo);
}

TEST_CASE("a panel on no form has nothing to mark") {
    BancoPanel b;
    const auto suelto = b.componente.Crear(b.componente.Clase(L"Pincela.Area")).Como<IDispatch>();
    CHECK_NOTHROW(Llamar(suelto.get(), L"ManAreas", {Variante(true)}));
    CHECK_NOTHROW(Llamar(suelto.get(), L"ManAreas", {Variante(false)}));
}

TEST_CASE("what stands on a panel lies in its window and moves with it") {
    BancoPanel b;
    const auto uno = b.Dentro(L"Uno", A);
    CHECK(GetAncestor(uno->Ventana(), GA_PARENT) == b.Ventana());
    const RECT antes = EnPantalla(uno->Ventana());
    b.panel->Mover({50, 60, 250, 180});
    const RECT ahora = EnPantalla(uno->Ventana());
    CHECK(ahora.left == antes.left + 30);
    CHECK(ahora.top == antes.top + 40);
    CHECK(ahora.right - ahora.left == 60);
}

TEST_CASE("what stands on a panel is clipped to it") {
    BancoPanel b;
    const auto uno = b.Dentro(L"Uno", {180, 100, 280, 160});
    Poner(uno->Despacho(), L"EstilosBord", 0);
    Poner(uno->Despacho(), L"ColorFondo", static_cast<long>(Rojo));
    const Captura c = b.VerForma();
    CHECK(c.Pixel(20 + 190, 20 + 110) == Rojo);
    CHECK(c.Contar({0, 0, 300, 200}, Rojo) == 20 * 20);
    CHECK(c.Pixel(20 + 205, 20 + 110) == Amarillo);
}

TEST_CASE("painting the panel leaves what stands on it alone") {
    BancoPanel b;
    const auto uno = b.Dentro(L"Uno", A);
    Poner(uno->Despacho(), L"EstilosBord", 0);
    Poner(uno->Despacho(), L"Caption", L"");
    Poner(uno->Despacho(), L"ColorFondo", static_cast<long>(Rojo));
    b.Poner(L"EstilosRell", 1);
    b.Poner(L"ColorDegrade", L"16777215*0");
    b.Color(L"ColorFondo", Azul);
    CHECK(b.Ver().Contar(A, Rojo) == 60 * 40);
}

TEST_CASE("a hidden panel hides what stands on it, and takes it along when it goes") {
    BancoPanel b;
    const auto uno = b.Dentro(L"Uno", A);
    b.panel->PonerVisible(false);
    CHECK_FALSE(IsWindowVisible(uno->Ventana()));
    CHECK_FALSE(uno->AceptaFoco());
    b.panel->PonerVisible(true);
    CHECK(IsWindowVisible(uno->Ventana()));
    b.boton.reset();
    const auto panel = std::exchange(b.panel, nullptr);
    CHECK(b.forma->Quitar(*panel) == 0);
    CHECK(b.forma->Controles().empty());
    CHECK_FALSE(uno->Abierto());
}

TEST_CASE("panels stand on panels") {
    BancoPanel b;
    const auto medio = b.Dentro(L"Medio", {10, 10, 150, 100}, L"Pincela.Area");
    const auto uno = b.Agregar(L"Uno", {5, 5, 65, 35}, L"Pincela.Botonazo", medio.get());
    CHECK(GetAncestor(uno->Ventana(), GA_PARENT) == medio->Ventana());
    const RECT r = EnPantalla(uno->Ventana()), p = EnPantalla(b.Ventana());
    CHECK(r.left == p.left + 15);
    CHECK(r.top == p.top + 15);
}

TEST_CASE("a control takes a new place and a new size in one move") {
    BancoPanel b;
    const auto uno = b.Dentro(L"Uno", A);
    uno->Mover({90, 70, 120, 95});
    const RECT r = EnPantalla(uno->Ventana()), p = EnPantalla(b.Ventana());
    CHECK(r.left == p.left + 90);
    CHECK(r.top == p.top + 70);
    CHECK(r.right == p.left + 120);
    CHECK(r.bottom == p.top + 95);
}
