// Colours of a button in its two states.
#pragma once

#include "paginas/editor_colores.h"

#include <array>
#include <cstdint>

namespace pincela {

/// Every selected object is taken for a Botonazo. `Obj` and `Objs` are rows of colour stops, `I`
/// is the highest index of the row or the state (0 normal, 1 with the mouse over).
class ProPColores final : public PaginaColores {
  public:
    explicit ProPColores(EntornoPagina& entorno);

    // Published.
    void AgregarColorD(const ReferenciaObjeto& Obj, const std::uint8_t& I);
    void EliminarColorD(const ReferenciaObjeto& Obj, const std::uint8_t& I);
    void PreVis(const std::uint8_t& I, const ReferenciaObjeto& Objs);

    void SelectionChanged() override;
    void ApplyChanges() override;
    void Redibujar() override;

    /// The row of a state.
    ReferenciaObjeto FilaDe(std::size_t estado) const { return estados_.at(estado).fila; }

  private:
    std::int16_t Angulo() const override;
    void ElegirEstilo(std::size_t estado);
    void MostrarEstado(std::size_t estado);
    void CambiarAngulo();
    void Igualar();

    CampoTexto& txtAngulo;
    ElementoPagina& lblAngulo;
    std::array<ElementoPagina*, 2> Frame1;
    std::array<Opcion*, 2> OptNorSob;
    std::array<EditorColores, 2> estados_; // normal, mouse over
};

} // namespace pincela
