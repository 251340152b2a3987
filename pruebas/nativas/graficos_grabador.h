// Drawing calls kept instead of drawn, in the order they came.
#pragma once

#include "plataforma/graficos.h"

#include <cstdint>
#include <string>
#include <vector>

namespace pincela::pruebas {

/// One GradientFill; only the mesh that the call brought is filled in.
struct LlamadaGradiente {
    Manejador hdc = 0;
    std::vector<TRIVERTEX> vertices;
    std::vector<GRADIENT_RECT> rectangulos;
    std::vector<GRADIENT_TRIANGLE> triangulos;
    ModoGradiente modo = ModoGradiente::RectanguloH;

    friend bool operator==(const LlamadaGradiente&, const LlamadaGradiente&) = default;
};

struct LlamadaMezcla {
    Manejador destino = 0;
    std::int32_t xd = 0, yd = 0, anchod = 0, altod = 0;
    Manejador origen = 0;
    std::int32_t xo = 0, yo = 0, anchoo = 0, altoo = 0;
    std::uint32_t mezcla = 0;

    friend bool operator==(const LlamadaMezcla&, const LlamadaMezcla&) = default;
};

/// One CreateRoundRectRgn and the handle it was answered with.
struct RegionCreada {
    std::int32_t izquierda = 0, arriba = 0, derecha = 0, abajo = 0;
    std::int32_t anchoElipse = 0, altoElipse = 0;
    Manejador region = 0;

    friend bool operator==(const RegionCreada&, const RegionCreada&) = default;
};

struct RegionPuesta {
    Manejador ventana = 0, region = 0;
    bool redibujar = false;

    friend bool operator==(const RegionPuesta&, const RegionPuesta&) = default;
};

class GraficosGrabador : public Graficos {
  public:
    std::vector<LlamadaGradiente> gradientes;
    std::vector<LlamadaMezcla> mezclas;
    std::vector<RegionCreada> regiones;
    std::vector<RegionPuesta> puestas;
    std::vector<Manejador> borrados;
    /// Names of all calls but the readings of the cursor, in order.
    std::vector<std::string> orden;

    // What the readings answer.
    PuntoPantalla cursor;
    Manejador ventanaBajoElCursor = 0;
    Manejador proximaRegion = 1000;

    void Olvidar() {
        gradientes.clear();
        mezclas.clear();
        regiones.clear();
        puestas.clear();
        borrados.clear();
        orden.clear();
    }

    void GradientFill(Manejador hdc, std::span<const TRIVERTEX> vertices,
                      std::span<const GRADIENT_RECT> malla, ModoGradiente modo) override {
        orden.push_back("GradientFill");
        gradientes.push_back(
            {hdc, {vertices.begin(), vertices.end()}, {malla.begin(), malla.end()}, {}, modo});
    }
    void GradientFill(Manejador hdc, std::span<const TRIVERTEX> vertices,
                      std::span<const GRADIENT_TRIANGLE> malla, ModoGradiente modo) override {
        orden.push_back("GradientFill");
        gradientes.push_back(
            {hdc, {vertices.begin(), vertices.end()}, {}, {malla.begin(), malla.end()}, modo});
    }
    void AlphaBlend(Manejador destino, std::int32_t xd, std::int32_t yd, std::int32_t anchod,
                    std::int32_t altod, Manejador origen, std::int32_t xo, std::int32_t yo,
                    std::int32_t anchoo, std::int32_t altoo, std::uint32_t mezcla) override {
        orden.push_back("AlphaBlend");
        mezclas.push_back({destino, xd, yd, anchod, altod, origen, xo, yo, anchoo, altoo, mezcla});
    }
    Manejador CreateRoundRectRgn(std::int32_t izquierda, std::int32_t arriba, std::int32_t derecha,
                                 std::int32_t abajo, std::int32_t anchoElipse,
                                 std::int32_t altoElipse) override {
        orden.push_back("CreateRoundRectRgn");
        regiones.push_back(
            {izquierda, arriba, derecha, abajo, anchoElipse, altoElipse, proximaRegion});
        return proximaRegion++;
    }
    void SetWindowRgn(Manejador ventana, Manejador region, bool redibujar) override {
        orden.push_back("SetWindowRgn");
        puestas.push_back({ventana, region, redibujar});
    }
    void DeleteObject(Manejador objeto) override {
        orden.push_back("DeleteObject");
        borrados.push_back(objeto);
    }
    PuntoPantalla GetCursorPos() override { return cursor; }
    Manejador WindowFromPoint(PuntoPantalla punto) override {
        ultimoPuntoPreguntado = punto;
        return ventanaBajoElCursor;
    }

    PuntoPantalla ultimoPuntoPreguntado;
};

} // namespace pincela::pruebas
