// The drawing effects in hosts that compute in other ways.
#include "pruebas/cada.h"
#include "pruebas/componente/comun/lamina.h"
#include "pruebas/componente/efectos/interfaz.h"
#include "pruebas/componente/flotante/ajena.h"

#include <cmath>
#include <limits>
#include <string>
#include <vector>

using namespace publicado;
using namespace flotante;
using pincela::pruebas::Cada;

namespace {

constexpr LONG Ancho = 97, Alto = 61;
constexpr LONG Mayor = (std::numeric_limits<LONG>::max)(),
               Menor = (std::numeric_limits<LONG>::min)();

void Degradar(const BancoEfectos& banco, const Palabras& palabras, LONG hdc, LONG ancho, LONG alto,
              LONG estilo, const wchar_t* lista, SHORT angulo) {
    const anfitrion::Cadena valores(lista);
    Llamar(palabras, "Degrade " + anfitrion::Estrechar(lista) + " at " + std::to_string(angulo),
           [&] { banco.efectos->Degrade(&hdc, &ancho, &alto, estilo, valores.get(), &angulo); });
}

} // namespace

TEST_CASE("No gradient faults in the host or changes its arithmetic") {
    const Palabras palabras = Cada({TodoAbierto, Habitual});
    const BancoEfectos banco;
    const Lamina lamina(Ancho, Alto);
    for (const wchar_t* lista : {L"1e309*0", L"-1e309*0", L"1e-400*0", L"0*9e999999999", L"0.1*1e5",
                                 L"4294967296*0", L"1e10*0", L"NaN*0", L"*", L"16777215*0"})
        for (const LONG estilo : {1, 2, 3, 4})
            Degradar(banco, palabras, lamina.Numero(), Ancho, Alto, estilo, lista, 30);
    // Nothing is painted on no context: the sizes are beyond measure.
    for (const LONG ancho : {0L, 1L, Ancho, Mayor, Menor, -1L})
        for (const LONG alto : {0L, 1L, Alto, Mayor, Menor})
            for (const SHORT angulo : {1, 45, 89, 91, 179, 181, 269, 359, 360, 540, -30})
                Degradar(banco, palabras, 0, ancho, alto, 4, L"255*65280*16711680", angulo);
}

TEST_CASE("No shape and no colour faults in the host or changes its arithmetic") {
    using Simple = std::numeric_limits<float>;
    const Palabras palabras = Cada({TodoAbierto, Habitual});
    const BancoEfectos banco;
    for (const float x : {Simple::quiet_NaN(), Simple::infinity(), -Simple::infinity(),
                          Simple::max(), Simple::denorm_min(), 0.1f, 0.375f})
        for (LONG ancho : {0L, 20L, -20L, Mayor}) {
            LONG ventana = 0, alto = 40, forma = 1;
            tRectRedo param{x, -x};
            Llamar(palabras, "DarForma",
                   [&] { banco.efectos->DarForma(&ventana, &ancho, &alto, &forma, &param); });
        }
    for (const wchar_t* color : {L"9e309", L"0.5", L"1e-400", L"x"}) {
        Variante texto(color);
        DISPPARAMS uno{&texto, nullptr, 1, 0};
        Llamar(palabras, "DevColor", [&] {
            banco.tardio->Invoke(DevColor, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &uno,
                                 nullptr, nullptr, nullptr);
        });
    }
    for (LONG rojo = 0; rojo < 256; rojo += 5) {
        SHORT canal = 0;
        LONG cual = 0;
        Variante simple(false);
        Llamar(palabras, "DevColor",
               [&] { banco.efectos->DevColor(&rojo, &cual, &simple, &canal); });
        CHECK(canal == static_cast<SHORT>(rojo << 8));
    }
    const Lamina origen(30, 30), destino(30, 30);
    LONG de = origen.Numero(), a = destino.Numero(), cero = 0, lado = 30;
    BYTE nivel = 100;
    VARIANT nada{};
    Llamar(palabras, "DarTrans", [&] {
        banco.efectos->DarTrans(&de, &cero, &cero, &lado, &lado, &a, &cero, &cero, &lado, &lado,
                                &nivel, &nada);
    });
}

TEST_CASE("A gradient has the same colours whatever the arithmetic of the host") {
    const BancoEfectos banco;
    const auto pintar = [&](const Palabras& palabras) {
        std::vector<COLORREF> colores;
        for (const LONG estilo : {1, 2, 4})
            for (const SHORT angulo : {17, 45, 133, 299}) {
                const Lamina lamina(Ancho, Alto);
                Degradar(banco, palabras, lamina.Numero(), Ancho, Alto, estilo,
                         L"255*65280*16711680*8421504*1*77", angulo);
                for (int y = 0; y < Alto; y += 3)
                    for (int x = 0; x < Ancho; ++x)
                        colores.push_back(lamina.Pixel(x, y));
            }
        return colores;
    };
    const auto usual = pintar(Actuales());
    for (const std::uint16_t precision : {0x000, 0x200, 0x300})
        for (const std::uint16_t direccion : {0, 1, 2, 3}) {
            CAPTURE(precision);
            CAPTURE(direccion);
            const bool iguales =
                pintar({static_cast<std::uint16_t>(0x3F | precision | direccion << 10),
                        0x1F80u | static_cast<std::uint32_t>(direccion) << 13}) == usual;
            CHECK(iguales);
        }
}
