#include "paginas/editor_colores.h"

#include "efectos/efectos.h"
#include "efectos/lista_colores.h"

#include <algorithm>

namespace pincela {

PaginaColores::PaginaColores(EntornoPagina& entorno) : Pagina(entorno) {}
PaginaColores::~PaginaColores() = default;

std::shared_ptr<FilaColores> PaginaColores::Fila(const ReferenciaObjeto& Obj) {
    auto fila = std::dynamic_pointer_cast<FilaColores>(Obj);
    if (!fila)
        LanzarTiposNoCoinciden();
    return fila;
}

Efectos& PaginaColores::efectos() {
    if (!Efecto)
        Efecto = std::make_unique<Efectos>(entorno_.graficos());
    return *Efecto;
}

void PaginaColores::ElegirColor(BotonColor& boton) {
    const Color elegido = entorno_.ElegirColor(boton.BackColor());
    entorno_.PonChanged(entorno_.Changed() || elegido != boton.BackColor());
    boton.PonBackColor(elegido);
}

EditorColores::EditorColores(PaginaColores& pagina, const Texto& sufijo, const MarcoPagina& medida)
    : cbColLetra(pagina.entorno_.ElBotonColor(u"cbColLetra" + sufijo)),
      cbColFondo(pagina.entorno_.ElBotonColor(u"cbColFondo" + sufijo)),
      cmbEstDegrade(pagina.entorno_.Lista(u"cmbEstDegrade" + sufijo)),
      FraDegra(pagina.entorno_.Marco(u"FraDegra" + sufijo)),
      fila(std::make_shared<FilaColores>(FraDegra, medida,
                                         [this](BotonColor& tope) {
                                             pagina_.ElegirColor(tope);
                                             PreVis();
                                         })),
      pagina_(pagina), CBMasColor(pagina.entorno_.Boton(u"CBMasColor" + sufijo)),
      CBMenColor(pagina.entorno_.Boton(u"CBMenColor" + sufijo)),
      Picture1(pagina.entorno_.Cuadro(u"Picture1" + sufijo)) {
    for (BotonColor* boton : {&cbColLetra, &cbColFondo})
        boton->Click.Conectar([this, boton] { pagina_.ElegirColor(*boton); });
    CBMasColor.Click.Conectar([this] { MasColor(); });
    CBMenColor.Click.Conectar([this] { MenColor(); });
}

void EditorColores::MasColor() {
    if (pagina_.Cargando || fila->Topes() >= FilaColores::MaximoDeTopes)
        return;
    fila->Agregar(fila->IndiceMayor());
    PreVis();
    pagina_.Cambio();
}

void EditorColores::MenColor() {
    if (pagina_.Cargando || fila->Topes() <= FilaColores::MinimoDeTopes)
        return;
    fila->Eliminar(fila->IndiceMayor());
    PreVis();
    pagina_.Cambio();
}

void EditorColores::HabilitarFila() {
    FraDegra.PonEnabled(EsDegradado());
    CBMasColor.PonEnabled(EsDegradado());
    CBMenColor.PonEnabled(EsDegradado());
}

void EditorColores::Mostrar(VistaTexto lista) {
    fila->Mostrar(ColoresDeEdicion(lista));
}

void EditorColores::PreVis(const FilaColores& Objs) {
    if (EsDegradado())
        pagina_.efectos().Degrade(ALong(Picture1.hDC()), AEntero32(Picture1.ScaleWidth()),
                                  AEntero32(Picture1.ScaleHeight()),
                                  ValorDe<TEstilosR>(cmbEstDegrade), Objs.Lista(),
                                  pagina_.Angulo());
    else
        Picture1.PonBackColor(cbColFondo.BackColor());
    Picture1.Refresh();
}

void EditorColores::InvertirColores() {
    pagina_.Cambio();
    for (std::size_t j = 0; j < fila->Topes(); ++j) {
        BotonColor& tope = fila->Tope(j);
        tope.PonBackColor(Inverso(pagina_.efectos(), tope.BackColor()));
    }
}

void EditorColores::InvertirOrden() {
    pagina_.Cambio();
    std::vector<Color> colores = fila->Colores();
    std::reverse(colores.begin(), colores.end());
    fila->Mostrar(colores);
    PreVis();
}

} // namespace pincela
