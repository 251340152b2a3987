// Restoring from the property bag and saving to it.
#include "area/area.h"

#include "common/conversion.h"

namespace pincela {

namespace {

using Corto = std::int16_t;

const ReferenciaObjeto Ninguna;

template <class E>
std::int32_t Numero(E valor) {
    return static_cast<std::int32_t>(valor);
}

} // namespace

// Each assignment repaints as it would from code; an error of the bag leaves the rest unread.
void Area::ReadProperties(BolsaPropiedades& bolsa) {
    auto leer = [&bolsa](VistaTexto clave, const Variante& porDefecto) {
        return bolsa.ReadProperty(clave, porDefecto);
    };
    PonAnchoBorde(AEnumeracion<Tamanio>(leer(u"AnchoBorde", Corto{1})));
    PonSeparaBorde(AEnumeracion<Tamanio>(leer(u"SeparaBorde", Corto{1})));
    lblTitulo->PonCaption(ATexto(leer(u"Caption", Texto())));
    PonEstilosBord(AEnumeracion<TEstilosB>(leer(u"EstilosBord", Corto{1})));
    PonEstilosRell(AEnumeracion<TEstilosR>(leer(u"EstilosRell", Corto{0})));
    PonEnabled(ABooleano(leer(u"Enabled", true)));
    PonAlinText(AEnumeracion<Alineaciones>(leer(u"AlinText", Corto{4})));
    PonColorDegrade(ATexto(leer(u"ColorDegrade", Texto())));
    PonColorLetra(AColor(leer(u"ColorLetra", Corto{0})));
    PonColorFondo(AColor(leer(u"ColorFondo", CaraDeBoton.valor)));
    const Fuente ambiente = entorno_.AmbientFont();
    const Fuente fuente = AObjeto<ObjetoFuente>(leer(u"Font", ReferenciaObjeto(ambiente)));
    lblTitulo->PonFont(fuente ? fuente : ambiente);
    PonMouseIcon(AObjeto<ObjetoImagen>(leer(u"MouseIcon", Ninguna)));
    PonMousePointer(AEntero16(leer(u"MousePointer", Corto{0})));
    lblTitulo->PonToolTipText(ATexto(leer(u"ToolTipText", Texto())));
    PonTipoLetra(AEnumeracion<TLetra>(leer(u"TipoLetra", Corto{0})));
    PonBackStyle(AEnumeracion<TBack>(leer(u"BackStyle", Corto{1})));
    Reacomodar();
}

void Area::WriteProperties(BolsaPropiedades& bolsa) {
    auto escribir = [&bolsa](VistaTexto clave, const Variante& valor, const Variante& porDefecto) {
        bolsa.WriteProperty(clave, valor, porDefecto);
    };
    escribir(u"BackStyle", Numero(m_BackStyle), Corto{1});
    escribir(u"SeparaBorde", Numero(m_SeparaBorde), Corto{1});
    escribir(u"EstilosBord", Numero(m_EstilosBord), Corto{1});
    escribir(u"AnchoBorde", Numero(m_AnchoBorde), Corto{1});
    escribir(u"EstilosRell", Numero(m_EstilosRell), Corto{0});
    escribir(u"AlinText", Numero(m_AlinText), Corto{4});
    escribir(u"Caption", lblTitulo->Caption(), Texto());
    escribir(u"ColorLetra", lblTitulo->ForeColor().valor, Corto{0});
    escribir(u"ColorFondo", m_ColorFondo.valor, CaraDeBoton.valor);
    escribir(u"ColorDegrade", m_ColorDegrade, Texto());
    escribir(u"Font", ReferenciaObjeto(lblTitulo->Font()),
             ReferenciaObjeto(entorno_.AmbientFont()));
    escribir(u"MouseIcon", ReferenciaObjeto(superficie().MouseIcon()), Ninguna);
    escribir(u"MousePointer", superficie().MousePointer(), Corto{0});
    escribir(u"ToolTipText", lblTitulo->ToolTipText(), Texto());
    escribir(u"TipoLetra", Numero(m_TipoLetra), Corto{0});
    escribir(u"Enabled", m_Enabled, true);
}

} // namespace pincela
