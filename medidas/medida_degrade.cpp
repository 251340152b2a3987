// Efectos.Degrade through its dual interface against the bare fill with the same mesh.
#include "medidas/hoja.h"
#include "medidas/medida.h"

#include "anfitrion/tardio.h"

#include <cmath>
#include <vector>

namespace medidas {

// Not in the anonymous namespace below: the compiler would conclude that nobody implements it.
/// The first members of the interface, in slot order.
struct EfectosDual : IDispatch {
    virtual HRESULT STDMETHODCALLTYPE DarForma(LONG*, LONG*, LONG*, LONG*, void*) = 0;
    virtual HRESULT STDMETHODCALLTYPE Degrade(LONG* hdc, LONG* ancho, LONG* alto, LONG estilo,
                                              BSTR valores, SHORT* angulo) = 0;
};

namespace {

constexpr GUID IidEfectos = {
    0x5FF11382, 0xA93D, 0x4E56, {0x90, 0xF0, 0x0F, 0xC5, 0x8C, 0x72, 0x22, 0x98}};

enum Estilo : LONG { Hori = 1, Vert = 2, Pirami = 3, Diagonal = 4 };
constexpr SHORT Angulo = 45;

struct Malla {
    std::vector<TRIVERTEX> vertices;
    std::vector<GRADIENT_RECT> bandas;
    std::vector<GRADIENT_TRIANGLE> triangulos;
    ULONG modo = 0;

    void Llenar(HDC dc) {
        void* malla = bandas.empty() ? static_cast<void*>(triangulos.data()) : bandas.data();
        const std::size_t cuantas = bandas.empty() ? triangulos.size() : bandas.size();
        GradientFill(dc, vertices.data(), static_cast<ULONG>(vertices.size()), malla,
                     static_cast<ULONG>(cuantas), modo);
    }
};

TRIVERTEX Vertice(LONG x, LONG y, LONG color) {
    auto canal = [&](int bits) { return static_cast<COLOR16>(((color >> bits) & 255) << 8); };
    return {x, y, canal(0), canal(8), canal(16), 0};
}

Malla MallaDe(LONG estilo, LONG ancho, LONG alto, const std::vector<LONG>& colores) {
    Malla m;
    const auto n = static_cast<ULONG>(colores.size());
    if (estilo == Hori || estilo == Vert) {
        m.modo = estilo == Hori ? GRADIENT_FILL_RECT_H : GRADIENT_FILL_RECT_V;
        for (ULONG i = 0; i < n; ++i) {
            const double parte = static_cast<double>(i) / (n - 1);
            const auto lejos = static_cast<LONG>(i % 2);
            m.vertices.push_back(
                estilo == Hori
                    ? Vertice(static_cast<LONG>(parte * ancho), alto * lejos, colores[i])
                    : Vertice(ancho * lejos, static_cast<LONG>(parte * alto), colores[i]));
            if (i + 1 < n)
                m.bandas.push_back({i, i + 1});
        }
        return m;
    }
    m.modo = GRADIENT_FILL_TRIANGLE;
    if (estilo == Pirami) {
        const LONG x[] = {ancho / 2, 0, ancho, 0, ancho}, y[] = {alto / 2, 0, 0, alto, alto};
        for (ULONG i = 0; i < 5; ++i)
            m.vertices.push_back(Vertice(x[i], y[i], colores[i < n ? i : n - 1]));
        m.triangulos = {{0, 1, 2}, {0, 1, 3}, {0, 3, 4}, {0, 2, 4}};
        return m;
    }
    const auto d = static_cast<float>(std::fabs(alto / (2 * std::tan(Angulo * 2 * 3.1415 / 360))));
    const auto w = static_cast<float>((ancho + 2 * static_cast<double>(d)) / (n - 1));
    for (ULONG i = 0; i < 2 * n; ++i) {
        m.vertices.push_back(
            Vertice(static_cast<LONG>(std::floor(std::floor(d) * -2 * ((i + 1) % 2) + (i / 2) * w)),
                    static_cast<LONG>(alto * ((i + 1) % 2)), colores[i / 2]));
        if (i + 2 < 2 * n)
            m.triangulos.push_back({i, i + 1, i + 2});
    }
    return m;
}

bool Medir(EfectosDual* efectos, const std::string& nombre, LONG estilo, LONG ancho, LONG alto,
           int cuantos, double limite, int repeticiones) {
    Hoja hoja(ancho, alto);
    std::vector<LONG> colores;
    std::wstring lista;
    for (int i = 0; i < cuantos; ++i) {
        colores.push_back(i % 2 ? 0x123456 + 0x010305 * i : 0xFEDCBA - 0x020406 * i);
        lista += (i ? L"*" : L"") + std::to_wstring(colores.back());
    }
    BSTR valores = SysAllocString(lista.c_str());
    Malla malla = MallaDe(estilo, ancho, alto, colores);
    auto hdc = static_cast<LONG>(reinterpret_cast<LONG_PTR>(hoja.dc()));
    SHORT angulo = Angulo;
    const double razon =
        Razon({[&] { efectos->Degrade(&hdc, &ancho, &alto, estilo, valores, &angulo); }},
              {[&] { malla.Llenar(hoja.dc()); }}, repeticiones);
    SysFreeString(valores);
    return Informar(nombre, razon, limite);
}

} // namespace

bool MedirDegrade() {
    const auto componente = AbrirComponente();
    const auto objeto = componente.Crear(componente.Clase(L"Pincela.Efectos"));
    EfectosDual* efectos = nullptr;
    if (FAILED(objeto->QueryInterface(IidEfectos, reinterpret_cast<void**>(&efectos))))
        return false;
    const struct {
        const char* nombre;
        LONG estilo;
        int repeticiones;
    } estilos[] = {
        {"hori", Hori, 10}, {"vert", Vert, 10}, {"pirami", Pirami, 1}, {"diagonal", Diagonal, 1}};
    bool bien = true;
    for (const auto& uno : estilos)
        bien = Medir(efectos, std::string("degrade_chico_") + uno.nombre, uno.estilo, 100, 30, 2,
                     1.15, uno.repeticiones * 20) &&
               bien;
    for (const auto& uno : estilos)
        bien = Medir(efectos, std::string("degrade_grande_") + uno.nombre, uno.estilo, 800, 600,
                     uno.estilo == Pirami ? 5 : 31, 1.02, uno.repeticiones) &&
               bien;
    efectos->Release();
    return bien;
}

} // namespace medidas
