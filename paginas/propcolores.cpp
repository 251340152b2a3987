#include "paginas/propcolores.h"

#include "botonazo/botonazo.h"
#include "common/al_salir.h"
#include "common/errores.h"
#include "paginas/numeros.h"
#include "tbox/filtro_teclas.h"

namespace pincela {

namespace {

constexpr double MayorAngulo = 180;

} // namespace

ProPColores::ProPColores(EntornoPagina& entorno)
    : PaginaColores(entorno), txtAngulo(entorno.Campo(u"txtAngulo")),
      lblAngulo(entorno.Elemento(u"lblAngulo")), Frame1{&entorno.Elemento(u"Frame1(0)"),
                                                        &entorno.Elemento(u"Frame1(1)")},
      OptNorSob{&entorno.LaOpcion(u"OptNorSob(0)"), &entorno.LaOpcion(u"OptNorSob(1)")},
      estados_{EditorColores(*this, u"(0)", entorno.Marco(u"FraDegra(0)")),
               EditorColores(*this, u"(1)", entorno.Marco(u"FraDegra(0)"))} {
    for (std::size_t i = 0; i < estados_.size(); ++i) {
        const Texto sufijo = i == 0 ? u"(0)" : u"(1)";
        EditorColores& estado = estados_[i];
        estado.cmbEstDegrade.Click.Conectar([this, i] { ElegirEstilo(i); });
        OptNorSob[i]->Click.Conectar([this, i] { MostrarEstado(i); });
        entorno.Boton(u"cbInvColores" + sufijo).Click.Conectar([&estado] {
            estado.InvertirColores();
        });
        entorno.Boton(u"cbInvOrden" + sufijo).Click.Conectar([&estado] { estado.InvertirOrden(); });
    }
    // Both frames have the same place.
    Frame1[1]->PonVisible(false);
    entorno.Boton(u"cbIgual").Click.Conectar([this] { Igualar(); });
    txtAngulo.Change.Conectar([this] { CambiarAngulo(); });
    txtAngulo.KeyPress.Conectar(
        [this](std::int16_t& tecla) { FiltrarNumero(tecla, true, txtAngulo.Text()); });
}

void ProPColores::AgregarColorD(const ReferenciaObjeto& Obj, const std::uint8_t& I) {
    Fila(Obj)->Agregar(I);
}

void ProPColores::EliminarColorD(const ReferenciaObjeto& Obj, const std::uint8_t& I) {
    Fila(Obj)->Eliminar(I);
}

void ProPColores::PreVis(const std::uint8_t& I, const ReferenciaObjeto& Objs) {
    const auto fila = Fila(Objs);
    if (I >= estados_.size())
        Lanzar(NumeroError::Subindice);
    estados_[I].PreVis(*fila);
}

std::int16_t ProPColores::Angulo() const {
    return AEntero16(NumeroInicial(txtAngulo.Text()));
}

void ProPColores::ElegirEstilo(std::size_t estado) {
    EditorColores& editor = estados_[estado];
    Cambio();
    const bool diagonal = ValorDe<TEstilosR>(editor.cmbEstDegrade) == TEstilosR::D_Diagonal;
    txtAngulo.PonVisible(diagonal);
    lblAngulo.PonVisible(diagonal);
    editor.HabilitarFila();
    editor.PreVis();
    // Both states share one style; the other list answers with the same assignment, which is none.
    estados_[1 - estado].cmbEstDegrade.PonListIndex(editor.cmbEstDegrade.ListIndex());
}

void ProPColores::MostrarEstado(std::size_t estado) {
    for (std::size_t j = 0; j < Frame1.size(); ++j)
        Frame1[j]->PonVisible(j == estado);
    estados_[estado].PreVis();
}

void ProPColores::CambiarAngulo() {
    Cambio();
    if (NumeroInicial(txtAngulo.Text()) > MayorAngulo)
        entorno_.Informar(u"El angulo debe ser entre 0 y 180");
    Redibujar();
}

void ProPColores::Redibujar() {
    estados_[Frame1[1]->Visible() ? 1 : 0].PreVis();
}

void ProPColores::Igualar() {
    const EditorColores& normal = estados_[0];
    EditorColores& sobre = estados_[1];
    sobre.cbColLetra.PonBackColor(normal.cbColLetra.BackColor());
    sobre.cbColFondo.PonBackColor(normal.cbColFondo.BackColor());
    sobre.cmbEstDegrade.PonListIndex(normal.cmbEstDegrade.ListIndex());
    sobre.fila->Mostrar(normal.fila->Colores());
    Cambio();
}

void ProPColores::SelectionChanged() {
    if (Cargando)
        return;
    const Mientras cargando(Cargando);
    for (EditorColores& estado : estados_)
        estado.fila->Vaciar();
    for (EditorColores& estado : estados_)
        Llenar(estado.cmbEstDegrade, {u"Solido", u"D_Hori", u"D_Vert", u"D_Pirami", u"D_Diagonal"});
    EditorColores &normal = estados_[0], &sobre = estados_[1];
    ParaCadaSeleccionado<Botonazo>([&](const Botonazo& boton) {
        normal.cbColLetra.PonBackColor(boton.ColorLetra());
        sobre.cbColLetra.PonBackColor(boton.ColorLetraSobre());
        normal.cbColFondo.PonBackColor(boton.ColorFondo());
        sobre.cbColFondo.PonBackColor(boton.ColorFondoSobre());
        for (EditorColores& estado : estados_)
            estado.cmbEstDegrade.PonListIndex(ItemDe(boton.EstilosRell()));
        txtAngulo.PonText(EnteroATexto(boton.Angulo()));
    });
    if (const std::size_t cuantos = entorno_.Seleccionados()) {
        const auto& ultimo = Seleccionado<Botonazo>(cuantos - 1);
        normal.Mostrar(ultimo.ColorDegradeN());
        sobre.Mostrar(ultimo.ColorDegradeS());
    }
    OptNorSob[0]->Elegir();
    entorno_.PonChanged(false);
}

void ProPColores::ApplyChanges() {
    const EditorColores &normal = estados_[0], &sobre = estados_[1];
    ParaCadaSeleccionado<Botonazo>([&](Botonazo& boton) {
        boton.PonColorLetra(normal.cbColLetra.BackColor());
        boton.PonColorLetraSobre(sobre.cbColLetra.BackColor());
        boton.PonColorFondo(normal.cbColFondo.BackColor());
        boton.PonColorFondoSobre(sobre.cbColFondo.BackColor());
        if (normal.EsDegradado()) {
            boton.PonColorDegradeN(normal.fila->Lista());
            boton.PonColorDegradeS(sobre.fila->Lista());
        }
        boton.PonAngulo(Angulo());
        boton.PonEstilosRell(ValorDe<TEstilosR>(normal.cmbEstDegrade));
    });
}

} // namespace pincela
