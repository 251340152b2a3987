// Restoring from and saving to the property bag.
#include "common/al_salir.h"
#include "tbox/guardado_cajas.h"
#include "tbox/tbox.h"

namespace pincela {

namespace {

// Not the Izq_Sup of a new control: one saved without the key comes back with its caption beside.
constexpr Corto AlinTBoxPorDefecto = 7;

} // namespace

// The keys that are discarded belong to the button; a text box keeps its bag alike.
void Tbox::ReadProperties(BolsaPropiedades& bolsa) {
    LecturaDeCaja leer(bolsa);
    {
        Mientras carga(m_Cargando);
        PonTipoTexto(leer.Enumeracion<TText>(u"TipoTexto", 0));
        PonApariencia(leer.Entero32(u"Apariencia", Corto{1}));
        PonBackStyle(leer.Enumeracion<TBack>(u"BackStyle", 1));
        PonFocoVisible(leer.Booleano(u"FocoVisible", true));
        PonFocoConMouse(leer.Booleano(u"FocoConMouse", false));
        lblTexto->PonCaption(leer.Texto(u"Caption"));
        NombrarCampo();
        PonSeparaBorde(leer.Enumeracion<Tamanio>(u"SeparaBorde", 1));
        PonSepara(leer.Entero16(u"Separa", 3));
        PonEnabled(leer.Booleano(u"Enabled", true));
        PonMaxText(leer.Entero32(u"MaxText", Corto{0}));
        PonAlinTBox(leer.Enumeracion<Alineaciones>(u"AlinTBox", AlinTBoxPorDefecto));
        PonAlinText(leer.Entero32(u"AlinText", std::int32_t{0}));
        leer.Descartar(u"ColorDegradeN", Texto());
        leer.Descartar(u"ColorDegradeS", Texto());
        PonColorLetra(leer.Color(u"ColorLetra", LetraDeCaja));
        PonColorLetraSobre(leer.Color(u"ColorLetraSobre", LetraDeCaja));
        PonColorFondo(leer.Color(u"ColorFondo", FondoDeCaja));
        PonColorFondoSobre(leer.Color(u"ColorFondoSobre", FondoDeCaja));
        PonColorLetraE(leer.Color(u"ColorLetraE", LetraDeCaja));
        PonColorLetraES(leer.Color(u"ColorLetraES", LetraDeCaja));
        PonColorFonTexto(leer.Color(u"ColorFonTexto", FondoDeCampo));
        PonColorFonTextoS(leer.Color(u"ColorFonTextoS", FondoDeCampo));
        PonTranca(leer.Booleano(u"Tranca", false));
        const Fuente ambiente = entorno_.AmbientFont();
        PonFuenteTexto(leer.Fuente(u"Fuente", ambiente));
        PonFuenteEtic(leer.Fuente(u"FuenteEtic", ambiente));
        PonMouseIcon(leer.Imagen(u"MouseIcon"));
        superficie().PonMousePointer(leer.Entero16(u"MousePointer", 0));
        lblTexto->PonToolTipText(leer.Texto(u"ToolTipText"));
        leer.Descartar(u"Expandir", true);
        PonTipoLetra(leer.Enumeracion<TLetra>(u"TipoLetra", 0));
        PonTipoSombra(leer.Enumeracion<TSombra>(u"TipoSombra", 1));
    }
    AjustarTexto();
}

// "Text" is missing on purpose: a restored control starts empty.
void Tbox::WriteProperties(BolsaPropiedades& bolsa) {
    EscrituraDeCaja escribir(bolsa);
    const Fuente ambiente = entorno_.AmbientFont();
    escribir(u"TipoTexto", m_TipoTexto, 0);
    escribir(u"Apariencia", txtTexto->Appearance(), Corto{1});
    escribir.Vacia(u"FocoVisible", true);
    escribir(u"FocoConMouse", m_FocoConMouse, false);
    escribir.Vacia(u"EfectoBoton", Corto{0});
    escribir.Vacia(u"Estilos", Corto{0});
    escribir.Vacia(u"EstilosBord", Corto{1});
    escribir(u"SeparaBorde", m_SeparaBorde, 1);
    escribir(u"Separa", m_Separa, Corto{3});
    escribir(u"AlinTBox", m_AlinTBox, AlinTBoxPorDefecto);
    escribir(u"AlinText", txtTexto->Alignment(), std::int32_t{0});
    escribir(u"Caption", lblTexto->Caption());
    escribir(u"ColorLetra", m_ColorLetra, LetraDeCaja);
    escribir(u"ColorLetraSobre", m_ColorLetraSobre, LetraDeCaja);
    escribir(u"ColorFondo", m_ColorFondo, FondoDeCaja);
    escribir(u"ColorFondoSobre", m_ColorFondoSobre, FondoDeCaja);
    escribir(u"ColorLetraE", m_ColorLetraE, LetraDeCaja);
    escribir(u"ColorLetraES", m_ColorLetraES, LetraDeCaja);
    escribir(u"ColorFonTexto", m_ColorFonTexto, FondoDeCampo);
    escribir(u"ColorFonTextoS", m_ColorFonTextoS, FondoDeCampo);
    escribir(u"Tranca", txtTexto->Locked(), false);
    escribir(u"FuenteEtic", lblTexto->Font(), ambiente);
    escribir(u"Fuente", txtTexto->Font(), ambiente);
    escribir(u"BackStyle", superficie().BackStyle(), Corto{1});
    escribir(u"MouseIcon", superficie().MouseIcon());
    escribir(u"MousePointer", superficie().MousePointer(), Corto{0});
    escribir(u"ToolTipText", lblTexto->ToolTipText());
    escribir(u"TipoLetra", m_TipoLetra, 0);
    escribir(u"TipoSombra", m_TipoSombra, 1);
    escribir(u"Enabled", m_Enabled, true);
    escribir(u"MaxText", txtTexto->MaxLength(), Corto{0});
}

} // namespace pincela
