// Restoring from and saving to the property bag.
#include "common/al_salir.h"
#include "tbox/guardado_cajas.h"
#include "tbox/tboxss.h"

namespace pincela {

// The keys that are discarded belong to the button and to the labelled text box. The text comes
// last: the selection read before it waits for it.
void TboxSS::ReadProperties(BolsaPropiedades& bolsa) {
    LecturaDeCaja leer(bolsa);
    {
        Mientras carga(m_Cargando);
        PonTipoTexto(leer.Enumeracion<TText>(u"TipoTexto", 0));
        PonApariencia(leer.Entero32(u"Apariencia", Corto{1}));
        PonBackStyle(leer.Enumeracion<TBack>(u"BackStyle", 0));
        PonFocoVisible(leer.Booleano(u"FocoVisible", true));
        PonFocoConMouse(leer.Booleano(u"FocoConMouse", false));
        PonSeparaBorde(leer.Enumeracion<Tamanio>(u"SeparaBorde", 1));
        PonEnabled(leer.Booleano(u"Enabled", true));
        PonMaxText(leer.Entero32(u"MaxText", Corto{0}));
        PonAlinTBox(leer.Enumeracion<Alineaciones>(u"AlinTBox", 7));
        PonAlinText(leer.Entero32(u"AlinText", std::int32_t{0}));
        PonNavConEnter(leer.Booleano(u"NavConEnter", true));
        leer.Descartar(u"ColorDegradeN", Texto());
        leer.Descartar(u"ColorDegradeS", Texto());
        PonColorLetra(leer.Color(u"ColorLetra", LetraDeCaja));
        PonColorLetraSobre(leer.Color(u"ColorLetraSobre", LetraDeCaja));
        PonSelecConFoco(leer.Booleano(u"SelecConFoco", true));
        PonColorFondo(leer.Color(u"ColorFondo", FondoDeCaja));
        PonColorFondoSobre(leer.Color(u"ColorFondoSobre", FondoDeCaja));
        leer.Descartar(u"ColorLetraE", LetraDeCaja.valor);
        leer.Descartar(u"ColorLetraES", LetraDeCaja.valor);
        GuardarSelStart(leer.Entero32(u"SelStart", Corto{0}));
        GuardarSelLength(leer.Entero32(u"SelLength", Corto{0}));
        PonColorFonTexto(leer.Color(u"ColorFonTexto", FondoDeCampo));
        PonColorFonTextoS(leer.Color(u"ColorFonTextoS", FondoConFoco));
        PonTranca(leer.Booleano(u"Tranca", false));
        const Fuente ambiente = entorno_.AmbientFont();
        PonFuenteTexto(leer.Fuente(u"Fuente", ambiente));
        leer.Descartar(u"FuenteEtic", ReferenciaObjeto(ambiente));
        PonMouseIcon(leer.Imagen(u"MouseIcon"));
        superficie().PonMousePointer(leer.Entero16(u"MousePointer", 0));
        PonAyuda(leer.Texto(u"ToolTipText"));
        leer.Descartar(u"Expandir", true);
        PonTipoLetra(leer.Enumeracion<TLetra>(u"TipoLetra", 0));
        PonText(leer.Texto(u"Text"));
    }
    AjustarTexto();
}

// "Separa" is missing on purpose: nothing here has a shadow.
void TboxSS::WriteProperties(BolsaPropiedades& bolsa) {
    EscrituraDeCaja escribir(bolsa);
    escribir(u"TipoTexto", m_TipoTexto, 0);
    escribir(u"Apariencia", txtTexto->Appearance(), Corto{1});
    escribir.Vacia(u"FocoVisible", true);
    escribir(u"FocoConMouse", m_FocoConMouse, false);
    escribir.Vacia(u"EfectoBoton", Corto{0});
    escribir.Vacia(u"Estilos", Corto{0});
    escribir.Vacia(u"EstilosBord", Corto{1});
    escribir(u"SeparaBorde", m_SeparaBorde, 1);
    escribir(u"AlinTBox", m_AlinTBox, 7);
    escribir(u"AlinText", txtTexto->Alignment(), std::int32_t{0});
    escribir(u"SelecConFoco", m_SelecConFoco, true);
    escribir(u"NavConEnter", m_NavConEnter, true);
    escribir(u"SelStart", txtTexto->SelStart(), Corto{0});
    escribir(u"SelLength", txtTexto->SelLength(), Corto{0});
    escribir(u"ColorLetra", m_ColorLetra, LetraDeCaja);
    escribir(u"ColorLetraSobre", m_ColorLetraSobre, LetraDeCaja);
    escribir(u"ColorFondo", m_ColorFondo, FondoDeCaja);
    escribir(u"ColorFondoSobre", m_ColorFondoSobre, FondoDeCaja);
    escribir.Vacia(u"ColorLetraE", LetraDeCaja.valor);
    escribir.Vacia(u"ColorLetraES", LetraDeCaja.valor);
    escribir(u"ColorFonTexto", m_ColorFonTexto, FondoDeCampo);
    escribir(u"ColorFonTextoS", m_ColorFonTextoS, FondoConFoco);
    escribir(u"Text", txtTexto->Text());
    escribir(u"Tranca", txtTexto->Locked(), false);
    escribir(u"Fuente", txtTexto->Font(), entorno_.AmbientFont());
    escribir(u"BackStyle", superficie().BackStyle(), Corto{0});
    escribir(u"MouseIcon", superficie().MouseIcon());
    escribir(u"MousePointer", superficie().MousePointer(), Corto{0});
    escribir(u"ToolTipText", txtTexto->ToolTipText());
    escribir(u"TipoLetra", m_TipoLetra, 0);
    escribir(u"Enabled", m_Enabled, true);
    escribir(u"MaxText", txtTexto->MaxLength(), Corto{0});
}

} // namespace pincela
