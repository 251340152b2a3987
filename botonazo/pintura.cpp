// The drawn look: face, image and the disabled rendition.
#include "botonazo/botonazo.h"
#include "common/conversion.h"
#include "common/lugar.h"
#include "efectos/efectos.h"

namespace pincela {

void Botonazo::ActualizarEstado(bool Presionado) {
    const PuntoPantalla cursor = entorno_.graficos().GetCursorPos();
    m_Presionado = Presionado;
    entorno_.AccesibleCambiado();
    UbicarTexto(Presionado);
    const Imagen imagen = Presionado ? m_ImagSobre : m_ImagNormal;
    // The colours follow the mouse as it is now, not the hover state.
    const bool encima = EsVentanaPropia(entorno_.graficos().WindowFromPoint(cursor));
    PintarBoton(imagen, encima ? m_ColorDegradeS : m_ColorDegradeN, Presionado);
}

// Taken by value, here and below: showing the drawing can call out, and a handler may change the
// stored picture.
void Botonazo::PintarBoton(Imagen imagen, const Texto& Colores, bool Sobre) {
    if (m_CambioProgre) {
        FundirBoton(imagen, Colores, Sobre);
        return;
    }
    DibujarBoton(imagen, Colores, Sobre);
    if (!m_Enabled && !m_Cargando && !iniciando_)
        MostrarPicture1(100);
}

// Leaves the surface with the look of a button that can be used.
void Botonazo::DibujarBoton(Imagen imagen, const Texto& Colores, bool Sobre) {
    // What a fade in course still has to copy is older than this.
    if (TimProg->Enabled())
        DetenerProgresivo();
    PintarCara(superficie(), imagen, Colores, Sobre);
    PintarBorde(Sobre, m_Presionado);
}

void Botonazo::PintarCara(Lienzo& destino, const Imagen& imagen, const Texto& Colores, bool Sobre) {
    destino.Cls();
    if (m_EstilosRell != TEstilosR::Solido) {
        const Manejador hdc = destino.hDC();
        efectos().Degrade(ALong(hdc), AEntero32(destino.ScaleWidth()),
                          AEntero32(destino.ScaleHeight()), m_EstilosRell, Colores, m_Angulo);
    }
    PintarImagen(destino, imagen, Sobre);
}

// Room for the border around an image.
std::uint8_t Botonazo::MargenImagen(bool Sobre) const {
    if (m_EstilosBord == TEstilosB::Lineal)
        return Sobre ? 1 : 0;
    return Sobre ? Byte(2 * static_cast<std::int64_t>(m_AnchoBorde)) : 1;
}

void Botonazo::PintarImagen(Lienzo& destino, const Imagen& imagen, bool Sobre) {
    const double m = MargenImagen(Sobre);
    if (!imagen)
        return;
    const double W = superficie().ScaleWidth();
    const double H = superficie().ScaleHeight();
    double izquierda = m, arriba = m, ancho = 0, alto = 0;
    if (!m_Expandir) {
        ancho = superficie().EscalaX(imagen->Width());
        alto = superficie().EscalaY(imagen->Height());
        // The margin is added on every side, so what is aligned right or below runs off the edge.
        izquierda =
            AEntero16(PorColumna(m_AlinImag, m + 2, m + Int((W - ancho) / 2), m + Int(W - ancho)));
        arriba = AEntero16(PorFila(m_AlinImag, m + 2, m + Int((H - alto) / 2), m + Int(H - alto)));
    } else if (!Sobre && m_EstilosBord == TEstilosB::Ninguno) {
        izquierda = arriba = 0;
        ancho = W;
        alto = H;
    } else {
        ancho = AEntero16(W - 2 * m);
        alto = AEntero16(H - 2 * m);
    }
    // A button smaller than its margins has no room; a negative size would mirror the image.
    if (ancho <= 0 || alto <= 0)
        return;
    // The image of a pressed button moves together with its caption.
    const double corrido = m_Presionado ? static_cast<double>(m_AnchoBorde) : 0;
    destino.PaintPicture(imagen, static_cast<float>(izquierda + corrido),
                         static_cast<float>(arriba + corrido), static_cast<float>(ancho),
                         static_cast<float>(alto));
}

// Lays Picture1 over the surface. Only a disabled button shows something of it: the drawn button
// turned grey, taken from the surface just drawn.
void Botonazo::MostrarPicture1(std::uint8_t Nivel) {
    AjustarCuadro(*Picture1);
    if (!m_Enabled) {
        Copiar(superficie(), *Picture1, 0);
        Picture1->Desvanecer();
    }
    Copiar(*Picture1, superficie(), Nivel);
}

void Botonazo::Copiar(Lienzo& origen, Lienzo& destino, std::uint8_t Nivel) {
    const Manejador hdcOrigen = origen.hDC();
    const Manejador hdcDestino = destino.hDC();
    efectos().DarTrans(ALong(hdcOrigen), 0, 0, AEntero32(origen.ScaleWidth()),
                       AEntero32(origen.ScaleHeight()), ALong(hdcDestino), 0, 0,
                       AEntero32(destino.ScaleWidth()), AEntero32(destino.ScaleHeight()), Nivel);
}

void Botonazo::AjustarCuadro(CuadroImagen& cuadro) {
    const float ancho = superficie().ScaleWidth();
    const float alto = superficie().ScaleHeight();
    if (cuadro.ScaleWidth() != ancho || cuadro.ScaleHeight() != alto)
        cuadro.Move(0, 0, ancho, alto);
}

// The back colour belongs to the canvas that gets cleared.
void Botonazo::PonColorDeFondo(Color color) {
    if (m_CambioProgre)
        AuxImagen->PonBackColor(color);
    else
        superficie().PonBackColor(color);
}

} // namespace pincela
