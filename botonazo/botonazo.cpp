// Life of the button: its parts, a new control, the host's calls.
#include "botonazo/botonazo.h"

#include "common/al_salir.h"
#include "common/conversion.h"
#include "common/errores.h"
#include "efectos/efectos.h"
#include "efectos/esquina.h"

#include <utility>

namespace pincela {

namespace {

constexpr std::int32_t IntervaloProgresivo = 30; // milliseconds

} // namespace

// The copies of the caption are made before it so that they lie behind it.
Botonazo::Botonazo(Entorno& entorno)
    : entorno_(entorno), AuxImagen(entorno.CrearCuadroImagen()),
      Picture1(entorno.CrearCuadroImagen()), lblSombra2(entorno.CrearEtiqueta()),
      LblSombra(entorno.CrearEtiqueta()), lblTitulo(entorno.CrearEtiqueta()),
      rectFoco(entorno.CrearRectangulo()), Timer(entorno.CrearTemporizador()),
      TimProg(entorno.CrearTemporizador()) {
    for (Etiqueta* etiqueta : {lblSombra2.get(), LblSombra.get(), lblTitulo.get()})
        etiqueta->PonOyente(this);

    rectFoco->PonVisible(false);
    rectFoco->PonBorde(Rectangulo::Borde::Punteado);
    rectFoco->PonFillColor(SinColor);

    Timer->PonEnabled(false);
    Timer->AlTic([this] { SondearRaton(); });
    TimProg->PonEnabled(false);
    TimProg->PonInterval(IntervaloProgresivo);
    TimProg->AlTic([this] { PasoProgresivo(); });
}

Botonazo::~Botonazo() = default;

Efectos& Botonazo::efectos() {
    if (!efectos_)
        efectos_ = std::make_unique<Efectos>(entorno_.graficos());
    return *efectos_;
}

void Botonazo::InitProperties() {
    // It starts out disabled, for as long as this lasts; nobody is to see that.
    Mientras inicio(iniciando_);
    // The container's font is where a new button starts from, not a change of the button.
    const Fuente ambiente = entorno_.AmbientFont();
    for (Etiqueta* etiqueta : {lblTitulo.get(), LblSombra.get(), lblSombra2.get()})
        etiqueta->PonFont(ambiente);

    PonAngulo(45);
    m_PasoProg = 0;
    PonFocoVisible(true);
    PonTipoLetra(TLetra::Normal);
    PonFocoConMouse(false);
    PonEfectoBoton(EfectosBoton::boton);
    PonEstilos(TEstilos::CLASICO);
    PonEstilosBord(TEstilosB::Normal);
    PonEstilosRell(TEstilosR::Solido);
    {
        Mientras carga(m_Cargando);
        PonRelX(0.33333f);
        PonRelY(1.0f);
        PonColorFondo(CaraDeBoton);
        PonColorFondoSobre(CaraDeBoton);
    }
    PonEnabled(true);
    PonAnchoBorde(Tamanio::Chico);
    PonAlinText(Alineaciones::Medio);
    PonAlinImag(Alineaciones::Izq_Sup);
    PonExpandir(true);
}

void Botonazo::Resize() {
    if (m_Cargando)
        return;
    AuxImagen->Move(0, 0, superficie().ScaleWidth(), superficie().ScaleHeight());
    PintarBoton(m_ImagNormal, m_ColorDegradeN, m_Sobre);
    UbicarTexto(false);
    Reformar();
    UbicarFoco();
    eventos.Resize();
}

void Botonazo::Paint() {
    eventos.Paint();
}

void Botonazo::Terminate() {
    terminado_ = true;
    Timer->PonEnabled(false);
    TimProg->PonEnabled(false);
    AuxImagen->PonPicture(nullptr);
    // Let go of the members first: releasing a picture can call out.
    const Imagen normal = std::exchange(m_ImagNormal, nullptr);
    const Imagen sobre = std::exchange(m_ImagSobre, nullptr);
}

void Botonazo::Reformar() {
    efectos().DarForma(ALong(superficie().hWnd()), AEntero32(superficie().ScaleWidth()),
                       AEntero32(superficie().ScaleHeight()), m_Estilos, m_Redondeo);
}

// The outline is part of the drawn look and has to follow the window's shape.
void Botonazo::SeguirForma() {
    Reformar();
    UbicarFoco();
    PintarBoton(m_ImagNormal, m_ColorDegradeN, m_Sobre);
}

void Botonazo::Forma(std::int32_t& anchoElipse, std::int32_t& altoElipse) const {
    Esquina esquina;
    try {
        esquina = EsquinaDe(AEntero32(superficie().ScaleWidth()),
                            AEntero32(superficie().ScaleHeight()), m_Estilos, m_Redondeo);
    } catch (const ErrorEjecucion&) {
        // No region could be made of such a curvature: the window stays square.
    }
    anchoElipse = esquina.ancho;
    altoElipse = esquina.alto;
}

} // namespace pincela
