#include "efectos/efectos.h"
#include "graficos_grabador.h"

#include <doctest/doctest.h>

#include <climits>
#include <random>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

class Azar {
  public:
    int Hasta(int tope) { return static_cast<int>(motor_() % static_cast<unsigned>(tope)); }
    template <class T, std::size_t N>
    T Uno(const T (&valores)[N]) {
        return valores[Hasta(N)];
    }

    std::int32_t Medida() {
        static constexpr std::int32_t kExtremas[] = {
            0, 1, -1, 2, 32767, 32768, 1000000, -1000000, INT_MAX, INT_MIN, INT_MAX - 1};
        return Hasta(3) == 0 ? Uno(kExtremas) : Hasta(4000) - 500;
    }
    std::int16_t Angulo() {
        static constexpr std::int16_t kExtremos[] = {
            -32768, -1, 0, 1, 89, 90, 91, 179, 180, 181, 269, 270, 271, 359, 360, 540, 720, 32767};
        return Hasta(2) == 0 ? Uno(kExtremos) : static_cast<std::int16_t>(Hasta(65536) - 32768);
    }
    Texto Lista() {
        static const Texto kPiezas[] = {u"0",      u"255",  u"16777215", u"-1",
                                        u"&HFF00", u" 12 ", u"1.5",      u"65280",
                                        u"1e3",    u"(7)",  u"123456",   u"2147483647"};
        static const Texto kMalas[] = {u"", u" ", u"rojo", u"&H", u"9999999999", u"1e999", u"-"};
        // One list in four may hold bad pieces, one in fifty is long.
        const bool puedeFallar = Hasta(4) == 0;
        const int piezas = Hasta(50) == 0 ? 200 + Hasta(200) : Hasta(9);
        Texto lista;
        for (int i = 0; i < piezas; ++i) {
            if (i > 0)
                lista += u'*';
            lista += puedeFallar && Hasta(4) == 0 ? Uno(kMalas) : Uno(kPiezas);
        }
        return lista;
    }
    /// Text without any form, of the letters a list could hold.
    Texto Ruido() {
        static constexpr char16_t kLetras[] = u"0123456789*&HhOo.,eE+-() \tx\u00A0ñ";
        Texto ruido;
        for (int i = Hasta(24); i > 0; --i)
            ruido += kLetras[Hasta(static_cast<int>(std::size(kLetras)) - 1)];
        return ruido;
    }

  private:
    std::mt19937 motor_{20250509};
};

bool MallaCoherente(const LlamadaGradiente& fill) {
    const auto n = fill.vertices.size();
    for (const GRADIENT_RECT& r : fill.rectangulos)
        if (r.UpperLeft >= n || r.LowerRight >= n)
            return false;
    for (const GRADIENT_TRIANGLE& t : fill.triangulos)
        if (t.Vertex1 >= n || t.Vertex2 >= n || t.Vertex3 >= n)
            return false;
    return n >= 2 && fill.rectangulos.empty() != fill.triangulos.empty() &&
           (fill.modo == ModoGradiente::Triangulo) == fill.rectangulos.empty();
}

} // namespace

TEST_CASE("No list, size, style or angle makes a gradient fail or fill more than once") {
    GraficosGrabador graficos;
    Efectos efectos(graficos);
    Azar azar;
    int dibujados = 0, vacios = 0;
    for (int vuelta = 0; vuelta < 40000; ++vuelta) {
        graficos.Olvidar();
        const Texto lista = azar.Hasta(8) == 0 ? azar.Ruido() : azar.Lista();
        const auto estilo = static_cast<TEstilosR>(azar.Hasta(6));
        const std::int32_t ancho = azar.Medida(), alto = azar.Medida();
        const std::int16_t angulo = azar.Angulo();
        bool fallo = false;
        try {
            efectos.Degrade(1, ancho, alto, estilo, lista, angulo);
        } catch (...) {
            fallo = true;
        }
        if (fallo || graficos.orden.size() > 1 || graficos.gradientes.size() > 1)
            FAIL("round " << vuelta);
        if (graficos.gradientes.empty()) {
            ++vacios;
            continue;
        }
        ++dibujados;
        if (!MallaCoherente(graficos.gradientes.front()))
            FAIL("mesh of round " << vuelta);
    }
    // Both ends were well visited.
    CHECK(dibujados > 5000);
    CHECK(vacios > 5000);
}
