// The way through the form with TAB and the arrows.
#include "pruebas/componente/vivo/banco.h"

using namespace vivo;

namespace {

/// A button, a text box and two more buttons, in that order.
struct BancoDeParadas : Banco {
    BancoDeParadas() {
        boton->orden = 0;
        texto = AgregarTexto(1);
        otro = Agregar(L"Otro", {170, 40, 290, 80});
        otro->orden = 2;
        tercero = Agregar(L"Tercero", {170, 90, 290, 130});
        tercero->orden = 3;
        boton->Verbo(OLEIVERB_UIACTIVATE);
        Esperar();
        Olvidar();
    }
    std::string Donde() const {
        const HWND foco = GetFocus();
        if (foco == texto)
            return "texto";
        for (const auto& control : forma->Controles())
            if (control->Ventana() == foco)
                return Estrechar(control->Nombre());
        return "nadie";
    }
    Hechos Recorrer(int veces, WORD tecla) {
        Hechos camino;
        for (int vez = 0; vez < veces; ++vez) {
            Teclear(tecla);
            camino.push_back(Donde());
        }
        return camino;
    }
    HWND texto;
    std::shared_ptr<ControlAlojado> otro, tercero;
};

} // namespace

TEST_CASE("TAB goes through the tab order and round again") {
    BancoDeParadas b;
    CHECK(b.Recorrer(5, VK_TAB) == Hechos{"texto", "Otro", "Tercero", "Boton", "texto"});
    CHECK(b.Veces("PresTecla") == 0);
}

TEST_CASE("SHIFT and TAB go the other way") {
    BancoDeParadas b;
    Tecla(VK_SHIFT, true);
    b.Esperar();
    CHECK(b.Recorrer(5, VK_TAB) == Hechos{"Tercero", "Otro", "texto", "Boton", "Tercero"});
    Tecla(VK_SHIFT, false);
    b.Esperar();
}

TEST_CASE("TAB does not stick at a button that was reached by the mouse") {
    BancoDeParadas b;
    SetFocus(b.texto);
    LlevarRaton(b.otro->Ventana(), 5, 5);
    b.Esperar();
    b.Clic();
    CHECK(b.Donde() == "Otro");
    CHECK(b.Recorrer(1, VK_TAB) == Hechos{"Tercero"});
}

TEST_CASE("TAB leaves a button that lost its activation but kept the focus") {
    BancoDeParadas b;
    b.boton->Como<IOleInPlaceObject>()->UIDeactivate();
    SetFocus(b.Ventana());
    CHECK(b.Recorrer(1, VK_TAB) == Hechos{"texto"});
}

TEST_CASE("TAB passes a disabled button by") {
    BancoDeParadas b;
    Poner(b.otro->Despacho(), L"Enabled", false);
    CHECK(b.Recorrer(3, VK_TAB) == Hechos{"texto", "Tercero", "Boton"});
}

TEST_CASE("The arrows move between the buttons") {
    BancoDeParadas b;
    CHECK(b.Recorrer(1, VK_LEFT) == Hechos{"Tercero"});
    CHECK(b.Recorrer(1, VK_UP) == Hechos{"Otro"});
    CHECK(b.Recorrer(1, VK_DOWN) == Hechos{"Tercero"});
    CHECK(b.Recorrer(1, VK_RIGHT) == Hechos{"Boton"});
}

TEST_CASE("In a container that offers nothing optional TAB goes round as well") {
    OpcionesFormulario opciones;
    opciones.sitio = OpcionesSitio::Pobre();
    Banco b(opciones);
    const auto otro = b.Agregar(L"Otro", {170, 40, 290, 80});
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    CHECK(GetFocus() == b.Ventana());
    b.Teclear(VK_TAB);
    CHECK(GetFocus() == otro->Ventana());
    b.Teclear(VK_TAB);
    CHECK(GetFocus() == b.Ventana());
}
