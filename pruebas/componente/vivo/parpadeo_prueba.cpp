// What is seen between two states: nothing; and the view is never behind.
#include "pruebas/cada.h"
#include "pruebas/componente/vivo/banco.h"

using namespace vivo;

namespace {

constexpr COLORREF Marca = RGB(255, 0, 255);

/// The view of a button that lives without a window.
Captura Vista(ControlAlojado& boton) {
    return Captura::DeDibujo(120, 40, [&](HDC dc) {
        const RECTL limites{0, 0, 120, 40};
        boton.Como<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc,
                                        &limites, nullptr, nullptr, 0);
    });
}

const struct {
    const wchar_t* nombre;
    long valor;
} Cambios[] = {
    {L"ColorFondo", 0xFF}, {L"AlinText", 8},          {L"ColorLetra", 0xFF00}, {L"EstilosBord", 0},
    {L"EstilosBord", 2},   {L"EstilosRell", 1},       {L"TipoLetra", 1},       {L"AnchoBorde", 3},
    {L"EfectoBoton", 1},   {L"Enabled", 0},           {L"Enabled", -1},        {L"Estilos", 1},
    {L"CambioProgre", -1}, {L"ColorFondo", 0xFF0000},
};

} // namespace

TEST_CASE("Erasing the background paints nothing") {
    Banco b;
    const Captura lienzo = Captura::DeDibujo(120, 40, [&](HDC dc) {
        const RECT todo{0, 0, 120, 40};
        const HBRUSH brocha = CreateSolidBrush(Marca);
        FillRect(dc, &todo, brocha);
        DeleteObject(brocha);
        CHECK(SendMessageW(b.Ventana(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0) != 0);
    });
    CHECK(lienzo.Contar({0, 0, 120, 40}, Marca) == 120 * 40);
}

TEST_CASE("A painting touches the part that is out of date and no other") {
    Banco b;
    b.Esperar();
    const HDC dc = GetDC(b.Ventana());
    const RECT todo{0, 0, 120, 40};
    const HBRUSH brocha = CreateSolidBrush(Marca);
    FillRect(dc, &todo, brocha);
    DeleteObject(brocha);
    ReleaseDC(b.Ventana(), dc);
    const RECT parte{10, 10, 50, 20};
    InvalidateRect(b.Ventana(), &parte, TRUE);
    const Captura vista = Captura::DeVentana(b.Ventana());
    CHECK(vista.Contar(parte, Marca) == 0);
    CHECK(vista.Contar(todo, Marca) == 120 * 40 - 40 * 10);
}

TEST_CASE("Until it is painted the window shows the old look, whatever was assigned meanwhile") {
    Banco b;
    b.Poner(L"Caption", L"Hola");
    b.Esperar();
    const auto pantalla = [&] {
        const HDC ventana = GetDC(b.Ventana());
        const Captura vista = Captura::DeDibujo(
            120, 40, [&](HDC dc) { BitBlt(dc, 0, 0, 120, 40, ventana, 0, 0, SRCCOPY); });
        ReleaseDC(b.Ventana(), ventana);
        return vista;
    };
    const Captura antes = pantalla();
    b.Poner(L"ColorFondo", 0xFFL);
    b.Poner(L"EstilosRell", 1L);
    b.Poner(L"TipoLetra", 1L);
    b.Poner(L"EstilosBord", 0L);
    CHECK(pantalla() == antes);
    CHECK_FALSE(Captura::DeVentana(b.Ventana()) == antes);
}

TEST_CASE("A sink that draws when it is told of a change sees that change") {
    Banco b;
    b.Poner(L"Caption", L"Hola");
    b.boton->Como<IOleInPlaceObject>()->InPlaceDeactivate();
    auto ultima = std::make_unique<Captura>(Vista(*b.boton));
    b.boton->Notificaciones().alCambiarVista = [&] {
        ultima = std::make_unique<Captura>(Vista(*b.boton));
    };
    for (const auto& cambio : Cambios) {
        CAPTURE(Estrechar(cambio.nombre));
        CAPTURE(cambio.valor);
        b.Poner(cambio.nombre, cambio.valor);
        CHECK(*ultima == Vista(*b.boton));
    }
    b.Poner(L"Caption", L"Otro texto");
    CHECK(*ultima == Vista(*b.boton));
    anfitrion::Poner(b.Leer(L"Font").pdispVal, L"Bold", true);
    CHECK(*ultima == Vista(*b.boton));
}

TEST_CASE("A sink is told of the first change after it connects, drawn before or not") {
    Banco b;
    b.boton->Como<IOleInPlaceObject>()->InPlaceDeactivate();
    b.Poner(L"ColorFondo", 0xFF00L); // nobody draws after this
    const auto avisos = Hacer<Avisos>();
    int veces = 0;
    avisos->alCambiarVista = [&] { ++veces; };
    b.boton->Como<IViewObject>()->SetAdvise(DVASPECT_CONTENT, 0, avisos.get());
    b.Poner(L"ColorFondo", 0xFFL);
    CHECK(veces >= 1);
    avisos->Callar();
}

TEST_CASE("A view advice may be for once, and may begin at once") {
    Banco b;
    const auto vista = b.boton->Como<IViewObject>();
    const auto avisos = Hacer<Avisos>();
    int veces = 0;
    avisos->alCambiarVista = [&] { ++veces; };
    vista->SetAdvise(DVASPECT_CONTENT, ADVF_PRIMEFIRST | ADVF_ONLYONCE, avisos.get());
    CHECK(veces == 1);
    Vista(*b.boton);
    b.Poner(L"ColorFondo", 0xFFL);
    CHECK(veces == 1);
    avisos->Callar();
}
