#include "anfitrion/captura.h"
#include "anfitrion/pruebas/banco.h"

#include <cstdio>

using namespace falso;

TEST_CASE("A capture of a form shows its own painting and its children") {
    Banco banco;
    banco.forma->alPintar = [](HDC hdc, const RECT&) {
        RECT r{0, 0, 300, 200};
        const HBRUSH azul = CreateSolidBrush(RGB(10, 20, 200));
        FillRect(hdc, &r, azul);
        DeleteObject(azul);
    };
    const HWND hija = CreateWindowW(L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_WHITERECT, 50, 50,
                                    40, 30, banco.forma->Ventana(), nullptr, nullptr, nullptr);
    REQUIRE(hija);
    InvalidateRect(banco.forma->Ventana(), nullptr, TRUE);
    const Captura captura = Captura::DeVentana(banco.forma->Ventana());
    REQUIRE(captura.Ancho() == 300);
    REQUIRE(captura.Alto() == 200);
    REQUIRE(captura.Pixel(5, 5) == RGB(10, 20, 200));
    REQUIRE(captura.Contar({0, 0, 300, 200}, RGB(255, 255, 255)) == 40 * 30);
    REQUIRE(captura.Colores() == 2);
    REQUIRE(captura.Pixel(300, 0) == CLR_INVALID);
}

TEST_CASE("A capture is written as a PNG file") {
    SesionOle ole;
    const Captura captura =
        Captura::DeDibujo(20, 10, [](HDC hdc) { SetPixel(hdc, 3, 4, RGB(255, 0, 0)); });
    REQUIRE(captura.Pixel(3, 4) == RGB(255, 0, 0));
    wchar_t carpeta[MAX_PATH];
    GetTempPathW(MAX_PATH, carpeta);
    const std::wstring ruta = std::wstring(carpeta) + L"captura_prueba.png";
    captura.GuardarPng(ruta);
    unsigned char firma[8] = {};
    FILE* fichero = _wfopen(ruta.c_str(), L"rb");
    REQUIRE(fichero);
    REQUIRE(std::fread(firma, 1, 8, fichero) == 8);
    std::fclose(fichero);
    DeleteFileW(ruta.c_str());
    REQUIRE(firma[0] == 0x89);
    REQUIRE(firma[1] == 'P');
}
