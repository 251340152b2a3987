#include "pruebas/componente/cajas/retrato.h"

namespace cajas {

namespace {

constexpr const wchar_t* DeEtiquetadas[] = {
    L"AlinTBox",     L"AlinText",   L"Caption",         L"MaxText",         L"Text",
    L"FuenteEtic",   L"Fuente",     L"ColorLetra",      L"ColorLetraSobre", L"ColorLetraE",
    L"ColorLetraES", L"ColorFondo", L"ColorFondoSobre", L"ColorFonTexto",   L"ColorFonTextoS",
    L"Tranca",       L"MouseIcon",  L"MousePointer",    L"ToolTipText",     L"BackStyle",
    L"Separa",       L"Enabled",    L"TipoTexto",       L"Apariencia",      L"FocoVisible",
    L"FocoConMouse", L"TipoSombra", L"SeparaBorde",     L"TipoLetra"};

constexpr const wchar_t* DeSimples[] = {
    L"AlinTBox",        L"AlinText",      L"MaxText",         L"Text",
    L"Fuente",          L"ColorLetra",    L"ColorLetraSobre", L"ColorFondo",
    L"ColorFondoSobre", L"ColorFonTexto", L"ColorFonTextoS",  L"SelLength",
    L"SelStart",        L"SelText",       L"Tranca",          L"MouseIcon",
    L"MousePointer",    L"ToolTipText",   L"BackStyle",       L"SelecConFoco",
    L"Separa",          L"Enabled",       L"TipoTexto",       L"Apariencia",
    L"NavConEnter",     L"FocoVisible",   L"FocoConMouse",    L"SeparaBorde",
    L"TipoLetra"};

} // namespace

bool EsSimple(std::wstring_view clase) {
    return clase.starts_with(L"TboxSS");
}

std::span<const wchar_t* const> PropiedadesDe(std::wstring_view clase) {
    if (EsSimple(clase))
        return DeSimples;
    return DeEtiquetadas;
}

std::vector<std::string> RetratoDe(const Caja& caja) {
    std::vector<std::string> lineas;
    for (const wchar_t* nombre : PropiedadesDe(caja.clase))
        lineas.push_back(anfitrion::Estrechar(nombre) + " = " + caja.Valor(nombre));
    return lineas;
}

void CambiarTodas(const Caja& caja) {
    IDispatch* c = caja.get();
    const bool simple = EsSimple(caja.clase);
    Poner(c, L"AlinTBox", 8);
    Poner(c, L"AlinText", 2);
    Poner(c, L"MaxText", 60);
    Poner(c, L"Text", L"Ñandú y «pingüino»");
    PonerRef(c, L"Fuente", Variante(anfitrion::CrearFuente(L"Arial", 14.25, true, true).get()));
    Poner(c, L"ColorLetra", 0x010203);
    Poner(c, L"ColorLetraSobre", 0x020304);
    Poner(c, L"ColorFondo", 0x030405);
    Poner(c, L"ColorFondoSobre", 0x040506);
    Poner(c, L"ColorFonTexto", 0x050607);
    Poner(c, L"ColorFonTextoS", 0x060708);
    Poner(c, L"Tranca", true);
    PonerRef(c, L"MouseIcon", Variante(IconoDePrueba().get()));
    Poner(c, L"MousePointer", short{2});
    Poner(c, L"ToolTipText", L"una ayuda");
    Poner(c, L"BackStyle", simple ? 1 : 0);
    Poner(c, L"Separa", short{7});
    Poner(c, L"Enabled", false);
    Poner(c, L"TipoTexto", 3);
    Poner(c, L"Apariencia", 0);
    Poner(c, L"FocoVisible", false);
    Poner(c, L"FocoConMouse", true);
    Poner(c, L"SeparaBorde", 3);
    Poner(c, L"TipoLetra", 4);
    if (simple) {
        Poner(c, L"SelStart", short{2});
        Poner(c, L"SelLength", short{5});
        Poner(c, L"SelecConFoco", false);
        Poner(c, L"NavConEnter", false);
        return;
    }
    Poner(c, L"Caption", L"&Año");
    PonerRef(c, L"FuenteEtic", Variante(anfitrion::CrearFuente(L"Courier New", 9).get()));
    Poner(c, L"ColorLetraE", 0x070809);
    Poner(c, L"ColorLetraES", 0x08090A);
    Poner(c, L"TipoSombra", 4);
}

} // namespace cajas
