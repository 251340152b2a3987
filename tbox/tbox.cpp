// Life of the labelled text box: its parts, a new control, its end.
#include "tbox/tbox.h"

#include "common/al_salir.h"
#include "efectos/efectos.h"

namespace pincela {

// Later parts lie in front: shadows first, the field last.
Tbox::Tbox(Entorno& entorno, bool multilinea)
    : CajaBase(entorno), Sombra(entorno.CrearRectangulo()), lblSombra(entorno.CrearEtiqueta()),
      lblTexto(entorno.CrearEtiqueta()), Timer(entorno.CrearTemporizador()) {
    CrearCampo(multilinea);
    Sombra->PonBorde(Rectangulo::Borde::Continuo);
    lblTexto->PonOyente(&OidoDePartes());
    Timer->PonEnabled(false);
    Timer->AlTic([this] { SondearRaton(); });
}

Tbox::~Tbox() = default;

Efectos& Tbox::efectos() {
    if (!efectos_)
        efectos_ = std::make_unique<Efectos>(entorno_.graficos());
    return *efectos_;
}

void Tbox::InitProperties() {
    // The container's font is where a new control starts from, not a change of it.
    const Fuente ambiente = entorno_.AmbientFont();
    lblTexto->PonFont(ambiente);
    lblSombra->PonFont(ambiente);
    txtTexto->PonFont(ambiente);

    PonFocoVisible(true);
    PonTipoTexto(TText::TextNorm);
    PonAlinTBox(Alineaciones::Izq_Sup);
    PonApariencia(1);
    PonSepara(3);
    PonTipoLetra(TLetra::Normal);
    PonTipoSombra(TSombra::Negra);
    PonSeparaBorde(Tamanio::Chico);
    PonFocoConMouse(false);
    {
        Mientras carga(m_Cargando);
        PonColorLetra(LetraDeCaja);
        PonColorLetraSobre(LetraDeCaja);
        PonColorLetraE(LetraDeCaja);
        PonColorLetraES(LetraDeCaja);
        PonColorFonTexto(FondoDeCampo);
        PonColorFonTextoS(FondoDeCampo);
        PonColorFondo(FondoDeCaja);
        PonColorFondoSobre(FondoDeCaja);
    }
    PonEnabled(true);
}

// Caption and field each follow the container's font as long as they have it.
void Tbox::AmbientFontChanged(const AtributosFuente& anterior, const Fuente& nueva) {
    const Fuente propia = lblTexto->Font();
    if (nueva && (!propia || propia->Atributos() == anterior)) {
        lblTexto->PonFont(nueva);
        lblSombra->PonFont(nueva);
        AjustarTexto();
    }
    CajaBase::AmbientFontChanged(anterior, nueva);
}

void Tbox::Terminate() {
    CajaBase::Terminate();
    Timer->PonEnabled(false);
}

} // namespace pincela
