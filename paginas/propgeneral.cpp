#include "paginas/propgeneral.h"

#include "botonazo/botonazo.h"
#include "common/al_salir.h"
#include "efectos/efectos.h"
#include "paginas/listas.h"
#include "paginas/numeros.h"
#include "tbox/filtro_teclas.h"

namespace pincela {

namespace {

/// Steps of a slider in a curvature of 1.
constexpr double Escala = 100;

float LeerCurvatura(const CampoTexto& texto) {
    return AFlotante(LeerNumero(texto.Text()));
}

} // namespace

ProPGeneral::ProPGeneral(EntornoPagina& entorno)
    : Pagina(entorno), Texto_(entorno.Campo(u"Texto")), txtCamTiem(entorno.Campo(u"txtCamTiem")),
      CobEstilo(entorno.Lista(u"CobEstilo")), CobEfectos(entorno.Lista(u"CobEfectos")),
      CobAlinText(entorno.Lista(u"CobAlinText")), cobAlinImag(entorno.Lista(u"cobAlinImag")),
      comAnchoB(entorno.Lista(u"comAnchoB")), ComEstBorde(entorno.Lista(u"ComEstBorde")),
      comTipoLetra(entorno.Lista(u"comTipoLetra")), chkProg(entorno.LaCasilla(u"chkProg")),
      chkFocConMouse(entorno.LaCasilla(u"chkFocConMouse")),
      chkFocoVisi(entorno.LaCasilla(u"chkFocoVisi")),
      chkEstConIma(entorno.LaCasilla(u"chkEstConIma")),
      ChkEnabled(entorno.LaCasilla(u"ChkEnabled")), X{entorno.Campo(u"txtRelX"),
                                                      entorno.ElDeslizador(u"sldX"),
                                                      entorno.Elemento(u"Rel_X")},
      Y{entorno.Campo(u"txtRelY"), entorno.ElDeslizador(u"sldY"), entorno.Elemento(u"Rel_Y")},
      PicPV(entorno.Cuadro(u"PicPV")) {
    SoloCambian(Texto_.Change, txtCamTiem.Change, CobEfectos.Click, CobAlinText.Click,
                cobAlinImag.Click, comAnchoB.Click, ComEstBorde.Click, comTipoLetra.Click,
                chkProg.Click, chkFocConMouse.Click, chkFocoVisi.Click, chkEstConIma.Click,
                ChkEnabled.Click);
    txtCamTiem.KeyPress.Conectar(
        [this](std::int16_t& tecla) { FiltrarNumero(tecla, false, txtCamTiem.Text()); });
    CobEstilo.Click.Conectar([this] { RefrescarForma(); });
    ConectarCurvatura(X);
    ConectarCurvatura(Y);
}

ProPGeneral::~ProPGeneral() = default;

void ProPGeneral::ConectarCurvatura(Curvatura& curvatura) {
    curvatura.texto.Change.Conectar([this, &curvatura] { CambiarTexto(curvatura); });
    curvatura.texto.KeyPress.Conectar(
        [&curvatura](std::int16_t& tecla) { FiltrarNumero(tecla, true, curvatura.texto.Text()); });
    curvatura.deslizador.Scroll.Conectar([this, &curvatura] { MoverTexto(curvatura); });
}

void ProPGeneral::MoverTexto(Curvatura& curvatura) {
    const Mientras moviendo(MoviendoSlider);
    // A whole number of hundredths needs no more rounding.
    curvatura.texto.PonText(DobleATexto(curvatura.deslizador.Value() / Escala));
}

void ProPGeneral::CambiarTexto(Curvatura& curvatura) {
    RefrescarForma();
    if (!MoviendoSlider)
        curvatura.deslizador.PonValue(AEntero32(LeerCurvatura(curvatura.texto) * Escala));
}

void ProPGeneral::RefrescarForma() {
    const bool redondeado = CobEstilo.ListIndex() != 0;
    for (Curvatura* curvatura : {&X, &Y}) {
        curvatura->deslizador.PonEnabled(redondeado);
        curvatura->texto.PonEnabled(redondeado);
        curvatura->rotulo.PonEnabled(redondeado);
    }
    for (Curvatura* curvatura : {&X, &Y})
        if (curvatura->texto.Text().empty())
            curvatura->texto.PonText(u"0");
    ParamForma.RelX = LeerCurvatura(X.texto);
    ParamForma.RelY = LeerCurvatura(Y.texto);
    const std::int32_t ventana = ALong(PicPV.hWnd());
    const std::int32_t ancho = AEntero32(PicPV.ScaleWidth());
    const std::int32_t alto = AEntero32(PicPV.ScaleHeight());
    const auto forma = ValorDe<TEstilos>(CobEstilo);
    if (!Efecto)
        Efecto = std::make_unique<Efectos>(entorno_.graficos());
    Efecto->DarForma(ventana, ancho, alto, forma, ParamForma);
    Cambio();
}

void ProPGeneral::Redibujar() {
    RefrescarForma();
}

void ProPGeneral::LlenarListas() {
    Llenar(CobEstilo, {u"CLASICO", u"REDONDEADO"});
    Llenar(CobEfectos, {u"Boton", u"BotOculoSobre", u"BotVisibSobre"});
    for (ListaDesplegable* lista : {&CobAlinText, &cobAlinImag})
        Llenar(*lista, {u"Izq_Sup", u"Izq_Med", u"Izq_Inf", u"Med_Sup", u"Medio", u"Med_Inf",
                        u"Der_Sup", u"Der_Med", u"Der_Inf"});
    LlenarTamanios(comAnchoB);
    Llenar(ComEstBorde, {u"Ninguno", u"Normal", u"Lineal", u"Colores", u"Degradados"});
    LlenarTiposDeLetra(comTipoLetra);
}

void ProPGeneral::SelectionChanged() {
    LlenarListas();
    ParaCadaSeleccionado<Botonazo>([this](const Botonazo& boton) {
        Texto_.PonText(boton.Caption());
        txtCamTiem.PonText(EnteroATexto(boton.CambioProgrePasos()));
        Marcar(chkProg, boton.CambioProgre());
        Marcar(ChkEnabled, boton.Enabled());
        Marcar(chkEstConIma, boton.Expandir());
        cobAlinImag.PonListIndex(ItemDe(boton.AlinImag()));
        CobAlinText.PonListIndex(ItemDe(boton.AlinText()));
        CobEfectos.PonListIndex(ItemDe(boton.EfectoBoton()));
        CobEstilo.PonListIndex(ItemDe(boton.Estilos()));
        comAnchoB.PonListIndex(ItemDe(boton.AnchoBorde(), 1));
        ComEstBorde.PonListIndex(ItemDe(boton.EstilosBord()));
        Marcar(chkFocoVisi, boton.FocoVisible());
        Marcar(chkFocConMouse, boton.FocoConMouse());
        comTipoLetra.PonListIndex(ItemDe(boton.TipoLetra()));
        X.texto.PonText(FlotanteATexto(boton.RelX()));
        Y.texto.PonText(FlotanteATexto(boton.RelY()));
    });
    entorno_.PonChanged(false);
}

void ProPGeneral::ApplyChanges() {
    ParaCadaSeleccionado<Botonazo>([this](Botonazo& boton) {
        boton.PonEnabled(EstaMarcada(ChkEnabled));
        boton.PonCaption(Texto_.Text());
        boton.PonExpandir(EstaMarcada(chkEstConIma));
        boton.PonCambioProgre(EstaMarcada(chkProg));
        boton.PonRelX(ParamForma.RelX);
        boton.PonRelY(ParamForma.RelY);
        boton.PonEstilos(ValorDe<TEstilos>(CobEstilo));
        boton.PonAlinImag(ValorDe<Alineaciones>(cobAlinImag));
        boton.PonAlinText(ValorDe<Alineaciones>(CobAlinText));
        boton.PonEfectoBoton(ValorDe<EfectosBoton>(CobEfectos));
        boton.PonAnchoBorde(ValorDe<Tamanio>(comAnchoB, 1));
        boton.PonEstilosBord(ValorDe<TEstilosB>(ComEstBorde));
        boton.PonFocoVisible(EstaMarcada(chkFocoVisi));
        boton.PonFocoConMouse(EstaMarcada(chkFocConMouse));
        boton.PonTipoLetra(ValorDe<TLetra>(comTipoLetra));
        boton.PonCambioProgrePasos(AByte(LeerNumero(txtCamTiem.Text())));
    });
    entorno_.PonChanged(false);
}

} // namespace pincela
