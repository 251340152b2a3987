// The progressive change, caught step by step through the events of its paintings.
#include "pruebas/cada.h"
#include "pruebas/componente/vivo/banco.h"

using namespace vivo;
using pincela::pruebas::Cada;

namespace {

constexpr COLORREF Viejo = RGB(0, 40, 200), Nuevo = RGB(250, 200, 0);

/// A copy of `nuevo` over `viejo` at a level of 0 (covers) to 255 (shows nothing), done by the
/// platform itself.
COLORREF Mezclar(COLORREF viejo, COLORREF nuevo, int nivel) {
    const Captura hecha = Captura::DeDibujo(2, 1, [&](HDC dc) {
        const HDC otro = CreateCompatibleDC(dc);
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = 1;
        info.bmiHeader.biHeight = 1;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        const HBITMAP mapa = CreateDIBSection(dc, &info, DIB_RGB_COLORS, nullptr, nullptr, 0);
        const HGDIOBJ anterior = SelectObject(otro, mapa);
        SetPixel(otro, 0, 0, nuevo);
        SetPixel(dc, 0, 0, viejo);
        GdiAlphaBlend(dc, 0, 0, 1, 1, otro, 0, 0, 1, 1,
                      {AC_SRC_OVER, 0, static_cast<BYTE>(255 - nivel), 0});
        SelectObject(otro, anterior);
        DeleteObject(mapa);
        DeleteDC(otro);
    });
    return hecha.Pixel(0, 0);
}

void AnotarColor(std::vector<COLORREF>& vistos, COLORREF color) {
    if (vistos.empty() || vistos.back() != color)
        vistos.push_back(color);
}

/// The colours that a change of `pasos` steps goes through, each once.
std::vector<COLORREF> Esperados(int pasos, int hasta) {
    std::vector<COLORREF> colores{Viejo};
    COLORREF color = Viejo;
    for (int paso = 1; paso <= hasta; ++paso) {
        const int nivel = 255 - paso * 255 / pasos;
        color = Mezclar(color, Nuevo, nivel);
        AnotarColor(colores, color);
    }
    return colores;
}

struct BancoProgresivo : Banco {
    BancoProgresivo() {
        Poner(L"EstilosBord", 0L);
        Poner(L"ColorFondo", static_cast<long>(Viejo));
        Poner(L"ColorFondoSobre", static_cast<long>(Nuevo));
        Esperar();
        alOcurrir = [this](Evento& e) {
            if (e.nombre != L"Paint" || !Ventana())
                return;
            ++pinturas;
            const HDC dc = GetDC(Ventana());
            AnotarColor(vistos, GetPixel(dc, 60, 8));
            ReleaseDC(Ventana(), dc);
        };
        vistos = {Viejo};
    }
    /// Waits until nothing is painted any more. Early and late steps may round to the same colour,
    /// so the colours themselves don't tell.
    void EsperarCalma() {
        int antes = -1;
        for (int vez = 0; vez < 100 && antes != pinturas; ++vez) {
            antes = pinturas;
            Esperar(300);
        }
    }
    int pinturas = 0;
    std::vector<COLORREF> vistos;
};

} // namespace

TEST_CASE("A change shows the levels of its steps, one painting after the other") {
    const int pasos = Cada({1, 2, 5, 10, 128});
    CAPTURE(pasos);
    BancoProgresivo b;
    b.Poner(L"CambioProgre", true);
    b.Poner(L"CambioProgrePasos", static_cast<long>(pasos));
    b.Entrar(5, 5);
    b.EsperarCalma();
    CHECK(b.vistos == Esperados(pasos, pasos));
    CHECK(b.Centro() == Nuevo);
}

TEST_CASE("No steps at all are one step") {
    BancoProgresivo b;
    b.Poner(L"CambioProgre", true);
    b.Poner(L"CambioProgrePasos", 0L);
    b.Entrar(5, 5);
    CHECK(b.Centro() == Nuevo);
    b.Salir();
    CHECK(b.Centro() == Viejo);
    b.Entrar(5, 5);
    CHECK(b.Centro() == Nuevo);
    CHECK(b.vistos == std::vector<COLORREF>{Viejo, Nuevo, Viejo, Nuevo});
}

TEST_CASE("A change of more than 128 steps stops there, and the button stays usable") {
    BancoProgresivo b;
    b.Poner(L"CambioProgre", true);
    b.Poner(L"CambioProgrePasos", 200L);
    b.Entrar(5, 5);
    b.EsperarCalma();
    CHECK(b.vistos == Esperados(200, 128));
    b.Clic();
    CHECK(b.Veces("Click") == 1);
    b.Poner(L"CambioProgrePasos", 1L);
    b.Salir();
    CHECK(b.Veces("MouseSale") == 1);
    CHECK(b.Centro() == Viejo);
}

TEST_CASE("The step after the 128th is an overflow for whoever asked for it, once") {
    BancoProgresivo b;
    b.Poner(L"CambioProgre", true);
    b.Poner(L"CambioProgrePasos", 200L);
    HRESULT estado = S_OK;
    int veces = 0;
    // Each redraw runs one step at once; the timer has no time to run between them.
    for (; veces < 300 && estado == S_OK; ++veces) {
        try {
            b.Poner(L"ColorFondo", static_cast<long>(Viejo));
        } catch (const FalloCom& fallo) {
            estado = fallo.estado;
        }
    }
    CHECK(estado == static_cast<HRESULT>(0x800A0006));
    CHECK(veces == 129);
    b.Poner(L"ColorFondo", static_cast<long>(Viejo)); // does not throw
}

TEST_CASE("Assigning the number of steps stops a change in course") {
    BancoProgresivo b;
    b.Poner(L"CambioProgre", true);
    b.Poner(L"CambioProgrePasos", 100L);
    b.Entrar(5, 5);
    b.Esperar(200);
    b.Poner(L"CambioProgrePasos", 100L);
    const std::size_t antes = b.vistos.size();
    CHECK(antes > 2);
    b.Esperar(300);
    CHECK(b.vistos.size() == antes);
}

TEST_CASE("A button destroyed in the middle of a change leaves no tick behind") {
    BancoProgresivo b;
    b.Poner(L"CambioProgre", true);
    b.Poner(L"CambioProgrePasos", 50L);
    b.Entrar(5, 5);
    b.Esperar(100);
    b.sumidero.Soltar();
    const auto boton = std::move(b.boton);
    CHECK(b.forma->Quitar(*boton) == 0);
    b.Esperar(200);
    CHECK(b.componente.PuedeDescargarse());
}
