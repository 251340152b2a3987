// General settings of a button.
#pragma once

#include "common/enumeraciones.h"
#include "paginas/pagina.h"

#include <memory>

namespace pincela {

class Efectos;

/// Publishes no members of its own. Every selected object is taken for a Botonazo.
class ProPGeneral final : public Pagina {
  public:
    explicit ProPGeneral(EntornoPagina& entorno);
    ~ProPGeneral() override;

    void SelectionChanged() override;
    void ApplyChanges() override;
    void Redibujar() override;

  private:
    /// A curvature: its text, its slider and its label.
    struct Curvatura {
        CampoTexto& texto;
        Deslizador& deslizador;
        ElementoPagina& rotulo;
    };

    void LlenarListas();
    void ConectarCurvatura(Curvatura& curvatura);
    void MoverTexto(Curvatura& curvatura);
    void CambiarTexto(Curvatura& curvatura);
    void RefrescarForma();

    tRectRedo ParamForma; // as of the last refresh of the shape
    std::unique_ptr<Efectos> Efecto;
    bool MoviendoSlider = false; // the text follows the slider, not the slider the text

    CampoTexto& Texto_;
    CampoTexto& txtCamTiem;
    ListaDesplegable& CobEstilo;
    ListaDesplegable& CobEfectos;
    ListaDesplegable& CobAlinText;
    ListaDesplegable& cobAlinImag;
    ListaDesplegable& comAnchoB;
    ListaDesplegable& ComEstBorde;
    ListaDesplegable& comTipoLetra;
    Casilla& chkProg;
    Casilla& chkFocConMouse;
    Casilla& chkFocoVisi;
    Casilla& chkEstConIma;
    Casilla& ChkEnabled;
    Curvatura X, Y;
    CuadroPagina& PicPV;
};

} // namespace pincela
