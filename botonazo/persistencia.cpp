// Restoring from and saving to the property bag.
#include "botonazo/botonazo.h"

#include "common/al_salir.h"
#include "common/conversion.h"

namespace pincela {

namespace {

using Corto = std::int16_t;

constexpr float RelXPorDefecto = 0.33333f;
// Not the 1.0 of a new button: one saved without the key comes back rounder.
constexpr float RelYPorDefecto = 1.5f;

const ReferenciaObjeto Ninguna;

template <class E>
std::int32_t Numero(E valor) {
    return static_cast<std::int32_t>(valor);
}

} // namespace

void Botonazo::ReadProperties(BolsaPropiedades& bolsa) {
    auto leer = [&bolsa](VistaTexto clave, const Variante& porDefecto) {
        return bolsa.ReadProperty(clave, porDefecto);
    };
    // A load that fails is undone by a second one, which can't assign RelY while RelX is 0.
    bool leido = false;
    const AlSalir redondear([this, &leido, antes = m_Redondeo] {
        if (!leido)
            m_Redondeo = antes;
    });
    {
        Mientras carga(m_Cargando);
        PonCambioProgre(ABooleano(leer(u"CambioProgre", false)));
        PonCambioProgrePasos(AByte(leer(u"CambioProgrePasos", Corto{1})));
        PonFocoVisible(ABooleano(leer(u"FocoVisible", true)));
        PonFocoConMouse(ABooleano(leer(u"FocoConMouse", false)));
        lblTitulo->PonCaption(ATexto(leer(u"Caption", Texto())));
        PonRelX(AFlotante(leer(u"RelX", RelXPorDefecto)));
        PonRelY(AFlotante(leer(u"RelY", RelYPorDefecto)));
        PonEstilos(AEnumeracion<TEstilos>(leer(u"Estilos", Corto{0})));
        PonEstilosBord(AEnumeracion<TEstilosB>(leer(u"EstilosBord", Corto{1})));
        PonAnchoBorde(AEnumeracion<Tamanio>(leer(u"AnchoBorde", Corto{1})));
        PonAngulo(AEntero16(leer(u"Angulo", Corto{45})));
        PonEstilosRell(AEnumeracion<TEstilosR>(leer(u"EstilosRell", Corto{0})));
        PonEfectoBoton(AEnumeracion<EfectosBoton>(leer(u"EfectoBoton", Corto{0})));
        PonEnabled(ABooleano(leer(u"Enabled", true)));
        PonAlinText(AEnumeracion<Alineaciones>(leer(u"AlinText", Corto{4})));
        PonAlinImag(AEnumeracion<Alineaciones>(leer(u"AlinImag", Corto{0})));
        PonColorDegradeN(ATexto(leer(u"ColorDegradeN", Texto())));
        PonColorDegradeS(ATexto(leer(u"ColorDegradeS", Texto())));
        PonColorLetra(AColor(leer(u"ColorLetra", Corto{0})));
        PonColorLetraSobre(AColor(leer(u"ColorLetraSobre", Corto{0})));
        PonColorFondo(AColor(leer(u"ColorFondo", CaraDeBoton.valor)));
        PonColorFondoSobre(AColor(leer(u"ColorFondoSobre", CaraDeBoton.valor)));
        const Fuente ambiente = entorno_.AmbientFont();
        const Fuente fuente = AObjeto<ObjetoFuente>(leer(u"Font", ReferenciaObjeto(ambiente)));
        lblTitulo->PonFont(fuente ? fuente : ambiente);
        PonMouseIcon(AObjeto<ObjetoImagen>(leer(u"MouseIcon", Ninguna)));
        superficie().PonMousePointer(AEntero16(leer(u"MousePointer", Corto{0})));
        lblTitulo->PonToolTipText(ATexto(leer(u"ToolTipText", Texto())));
        PonExpandir(ABooleano(leer(u"Expandir", true)));
        PonTipoLetra(AEnumeracion<TLetra>(leer(u"TipoLetra", Corto{0})));
        PonImagNormal(AObjeto<ObjetoImagen>(leer(u"ImagNormal", Ninguna)));
        PonImagSobre(AObjeto<ObjetoImagen>(leer(u"ImagSobre", Ninguna)));
    }
    Reformar();
    ActualizarEstado(false);
    leido = true;
}

// "MouseIcon" is missing on purpose: a custom pointer does not survive a save.
void Botonazo::WriteProperties(BolsaPropiedades& bolsa) {
    auto escribir = [&bolsa](VistaTexto clave, const Variante& valor, const Variante& porDefecto) {
        bolsa.WriteProperty(clave, valor, porDefecto);
    };
    escribir(u"FocoVisible", m_FocoVisible, true);
    escribir(u"FocoConMouse", m_FocoConMouse, false);
    escribir(u"EfectoBoton", Numero(m_EfectoBoton), Corto{0});
    escribir(u"RelX", m_Redondeo.RelX, RelXPorDefecto);
    escribir(u"RelY", m_Redondeo.RelY, RelYPorDefecto);
    escribir(u"Estilos", Numero(m_Estilos), Corto{0});
    escribir(u"EstilosBord", Numero(m_EstilosBord), Corto{1});
    escribir(u"AnchoBorde", Numero(m_AnchoBorde), Corto{1});
    escribir(u"EstilosRell", Numero(m_EstilosRell), Corto{0});
    escribir(u"Angulo", m_Angulo, Corto{45});
    escribir(u"AlinImag", Numero(m_AlinImag), Corto{0});
    escribir(u"AlinText", Numero(m_AlinText), Corto{4});
    escribir(u"Caption", lblTitulo->Caption(), Texto());
    escribir(u"ColorLetra", m_ColorLetra.valor, Corto{0});
    escribir(u"ColorLetraSobre", m_ColorLetraSobre.valor, Corto{0});
    escribir(u"ColorFondo", m_ColorFondo.valor, CaraDeBoton.valor);
    escribir(u"ColorFondoSobre", m_ColorFondoSobre.valor, CaraDeBoton.valor);
    escribir(u"ColorDegradeN", m_ColorDegradeN, Texto());
    escribir(u"ColorDegradeS", m_ColorDegradeS, Texto());
    escribir(u"Font", ReferenciaObjeto(lblTitulo->Font()),
             ReferenciaObjeto(entorno_.AmbientFont()));
    escribir(u"MousePointer", superficie().MousePointer(), Corto{0});
    escribir(u"ToolTipText", lblTitulo->ToolTipText(), Texto());
    escribir(u"TipoLetra", Numero(m_TipoLetra), Corto{0});
    escribir(u"ImagNormal", ReferenciaObjeto(m_ImagNormal), Ninguna);
    escribir(u"ImagSobre", ReferenciaObjeto(m_ImagSobre), Ninguna);
    escribir(u"Expandir", m_Expandir, true);
    escribir(u"Enabled", m_Enabled, true);
    escribir(u"CambioProgre", m_CambioProgre, false);
    escribir(u"CambioProgrePasos", m_CambioProgrePasos, Corto{1});
}

} // namespace pincela
