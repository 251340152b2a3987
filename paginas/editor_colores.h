// The colour editor of the colour pages: the colours of one state of a control, its gradient as a
// row of stops, and a preview.
#pragma once

#include "common/color.h"
#include "common/enumeraciones.h"
#include "paginas/fila_colores.h"
#include "paginas/pagina.h"

#include <cstdint>
#include <memory>

namespace pincela {

class Efectos;

/// A page with one colour editor or several.
class PaginaColores : public Pagina {
  public:
    ~PaginaColores() override;

  protected:
    explicit PaginaColores(EntornoPagina& entorno);

    /// Raises TiposNoCoinciden for what is no row.
    static std::shared_ptr<FilaColores> Fila(const ReferenciaObjeto& Obj);

    bool Cargando = false; // filling the page from the selection

  private:
    friend class EditorColores;

    /// Degrees, for a diagonal fill.
    virtual std::int16_t Angulo() const { return 0; }
    Efectos& efectos();
    /// Lets the user choose another colour for a button.
    void ElegirColor(BotonColor& boton);

    std::unique_ptr<Efectos> Efecto; // made on first use and kept
};

class EditorColores {
  public:
    /// The names of its widgets end in `sufijo`. The stops share out the width of `medida`.
    EditorColores(PaginaColores& pagina, const Texto& sufijo, const MarcoPagina& medida);
    EditorColores(const EditorColores&) = delete;
    EditorColores& operator=(const EditorColores&) = delete;

    bool EsDegradado() const { return cmbEstDegrade.ListIndex() != 0; }
    /// The stops can be edited in a gradient only.
    void HabilitarFila();
    /// The list text of the control: white and black for an empty one.
    void Mostrar(VistaTexto lista);
    void PreVis() { PreVis(*fila); }
    void PreVis(const FilaColores& Objs);
    /// Each stop becomes its complement; the preview follows at the next redraw.
    void InvertirColores();
    void InvertirOrden();

    BotonColor& cbColLetra;
    BotonColor& cbColFondo;
    ListaDesplegable& cmbEstDegrade;
    MarcoPagina& FraDegra;
    const std::shared_ptr<FilaColores> fila;

  private:
    void MasColor();
    void MenColor();

    PaginaColores& pagina_;
    BotonPagina& CBMasColor;
    BotonPagina& CBMenColor;
    CuadroPagina& Picture1;
};

} // namespace pincela
