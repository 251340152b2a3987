// Colours and general settings of a panel.
#pragma once

#include "paginas/editor_colores.h"

#include <cstdint>

namespace pincela {

/// Every selected object is taken for an Area. Two lists are shorter than the enumerations behind
/// them: the border styles leave out Lineal, so their third and fourth items stand for 2 and 3,
/// and the fills end before D_Diagonal. A panel whose value has no item can't be shown.
class ProPColoresArea final : public PaginaColores {
  public:
    explicit ProPColoresArea(EntornoPagina& entorno);

    // Published. `Obj` and `Objs` are rows of colour stops, `I` the highest index of the row.
    void AgregarColorD(const ReferenciaObjeto& Obj, const std::uint8_t& I);
    void EliminarColorD(const ReferenciaObjeto& Obj, const std::uint8_t& I);
    void PreVis(const ReferenciaObjeto& Objs);

    void SelectionChanged() override;
    void ApplyChanges() override;
    void Redibujar() override;

    ReferenciaObjeto LaFila() const { return editor_.fila; }

  private:
    void LlenarListas();

    EditorColores editor_;
    CampoTexto& Texto_;
    Casilla& ChkEnabled;
    ListaDesplegable& comBkStyle;
    ListaDesplegable& comSepara;
    ListaDesplegable& comAnchoB;
    ListaDesplegable& ComEstBorde;
    ListaDesplegable& comTipoLetra;
    ListaDesplegable& CobAlinText;
};

} // namespace pincela
