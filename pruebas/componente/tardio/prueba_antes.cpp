// What has to hold before anything else has been made; its file comes first, and so it runs first.
#include "pruebas/componente/efectos/interfaz.h"

using namespace publicado;

TEST_CASE("The drawing effects read numbers as the user writes them, before any control exists") {
    wchar_t separador[8] = {};
    REQUIRE(GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, separador, 8) > 1);
    const BancoEfectos b;
    const std::wstring dosYMedio = std::wstring(L"2") + separador + L"5";
    const auto rojo = [&](const std::wstring& texto) {
        return b.Llamar(L"DevColor", {Variante(texto), Variante(0), Variante(true)}).iVal;
    };
    CHECK(rojo(dosYMedio) == 2);
    CHECK(rojo(L"25") == 25);
}
