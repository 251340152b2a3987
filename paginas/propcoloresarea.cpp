#include "paginas/propcoloresarea.h"

#include "area/area.h"
#include "common/al_salir.h"
#include "paginas/listas.h"

namespace pincela {

ProPColoresArea::ProPColoresArea(EntornoPagina& entorno)
    : PaginaColores(entorno), editor_(*this, u"", entorno.Marco(u"FraDegra")),
      Texto_(entorno.Campo(u"Texto")), ChkEnabled(entorno.LaCasilla(u"ChkEnabled")),
      comBkStyle(entorno.Lista(u"comBkStyle")), comSepara(entorno.Lista(u"comSepara")),
      comAnchoB(entorno.Lista(u"comAnchoB")), ComEstBorde(entorno.Lista(u"ComEstBorde")),
      comTipoLetra(entorno.Lista(u"comTipoLetra")), CobAlinText(entorno.Lista(u"CobAlinText")) {
    SoloCambian(Texto_.Change, ChkEnabled.Click, comBkStyle.Click, comSepara.Click,
                comTipoLetra.Click, CobAlinText.Click, comAnchoB.Click, ComEstBorde.Click);
    editor_.cmbEstDegrade.Click.Conectar([this] {
        Cambio();
        editor_.HabilitarFila();
        editor_.PreVis();
    });
}

void ProPColoresArea::AgregarColorD(const ReferenciaObjeto& Obj, const std::uint8_t& I) {
    Fila(Obj)->Agregar(I);
}

void ProPColoresArea::EliminarColorD(const ReferenciaObjeto& Obj, const std::uint8_t& I) {
    Fila(Obj)->Eliminar(I);
}

void ProPColoresArea::PreVis(const ReferenciaObjeto& Objs) {
    editor_.PreVis(*Fila(Objs));
}

void ProPColoresArea::Redibujar() {
    editor_.PreVis();
}

void ProPColoresArea::LlenarListas() {
    Llenar(CobAlinText, {u"Sup_Izq", u"Med_Izq", u"Inf_Izq", u"Med_Sup", u"Medio", u"Med_Inf",
                         u"Sup_Der", u"Med_Der", u"Inf_Der"});
    LlenarTamanios(comSepara);
    LlenarTamanios(comAnchoB);
    Llenar(ComEstBorde, {u"Ninguno", u"Normal", u"Colores", u"Degradados"});
    LlenarTiposDeLetra(comTipoLetra);
    Llenar(editor_.cmbEstDegrade, {u"Solido", u"D_Hori", u"D_Vert", u"D_Pirami"});
    Llenar(comBkStyle, {u"Transparente", u"Opaco"});
}

// The preview is drawn when the fill style is chosen, before the stops are those of the panel.
void ProPColoresArea::SelectionChanged() {
    if (Cargando)
        return;
    const Mientras cargando(Cargando);
    editor_.fila->Vaciar();
    LlenarListas();
    ParaCadaSeleccionado<Area>([this](const Area& panel) {
        editor_.cbColLetra.PonBackColor(panel.ColorLetra());
        editor_.cbColFondo.PonBackColor(panel.ColorFondo());
        CobAlinText.PonListIndex(ItemDe(panel.AlinText()));
        Marcar(ChkEnabled, panel.Enabled());
        Texto_.PonText(panel.Caption());
        comAnchoB.PonListIndex(ItemDe(panel.AnchoBorde(), 1));
        comTipoLetra.PonListIndex(ItemDe(panel.TipoLetra()));
        comSepara.PonListIndex(ItemDe(panel.SeparaBorde(), 1));
        ComEstBorde.PonListIndex(ItemDe(panel.EstilosBord()));
        editor_.cmbEstDegrade.PonListIndex(ItemDe(panel.EstilosRell()));
        comBkStyle.PonListIndex(ItemDe(panel.BackStyle()));
    });
    if (const std::size_t cuantos = entorno_.Seleccionados())
        editor_.Mostrar(Seleccionado<Area>(cuantos - 1).ColorDegrade());
    entorno_.PonChanged(false);
}

void ProPColoresArea::ApplyChanges() {
    ParaCadaSeleccionado<Area>([this](Area& panel) {
        panel.PonEnabled(EstaMarcada(ChkEnabled));
        panel.PonCaption(Texto_.Text());
        panel.PonSeparaBorde(ValorDe<Tamanio>(comSepara, 1));
        panel.PonAlinText(ValorDe<Alineaciones>(CobAlinText));
        panel.PonAnchoBorde(ValorDe<Tamanio>(comAnchoB, 1));
        panel.PonTipoLetra(ValorDe<TLetra>(comTipoLetra));
        panel.PonEstilosBord(ValorDe<TEstilosB>(ComEstBorde));
        panel.PonColorLetra(editor_.cbColLetra.BackColor());
        panel.PonColorFondo(editor_.cbColFondo.BackColor());
        panel.PonBackStyle(ValorDe<TBack>(comBkStyle));
        if (editor_.EsDegradado())
            panel.PonColorDegrade(editor_.fila->Lista());
        panel.PonEstilosRell(ValorDe<TEstilosR>(editor_.cmbEstDegrade));
    });
}

} // namespace pincela
