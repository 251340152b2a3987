#include "plataforma/windows/modulo.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace pincela::windows {

namespace {

struct FuenteEnUso {
    LOGFONTW descripcion;
    std::weak_ptr<const FuenteGdi> fuente;
};

struct Compartido {
    int usos = 0;
    DcConMapa fondo;
    SIZE tamanoFondo{0, 0};
    bool fondoPrestado = false;
    DuenoDc medida;
    std::vector<FuenteEnUso> fuentes;

    void Soltar() {
        fondo.Soltar();
        tamanoFondo = {0, 0};
        medida.Poner(nullptr);
        fuentes = {};
    }
};

Compartido& ElCompartido() {
    static Compartido compartido;
    return compartido;
}

bool MismaFuente(const LOGFONTW& a, const LOGFONTW& b) {
    return a.lfHeight == b.lfHeight && a.lfWidth == b.lfWidth && a.lfWeight == b.lfWeight &&
           a.lfItalic == b.lfItalic && a.lfUnderline == b.lfUnderline &&
           a.lfStrikeOut == b.lfStrikeOut && a.lfCharSet == b.lfCharSet &&
           ::lstrcmpiW(a.lfFaceName, b.lfFaceName) == 0;
}

LOGFONTW Describir(const AtributosFuente& atributos, int alto, int ancho) {
    LOGFONTW d{};
    d.lfHeight = -std::max(1, alto);
    d.lfWidth = ancho;
    d.lfWeight = atributos.Bold ? FW_BOLD : FW_NORMAL;
    d.lfItalic = atributos.Italic;
    d.lfUnderline = atributos.Underline;
    d.lfStrikeOut = atributos.Strikethrough;
    d.lfCharSet = static_cast<BYTE>(atributos.Charset);
    const auto largo = std::min<std::size_t>(atributos.Name.size(), LF_FACESIZE - 1);
    std::copy_n(atributos.Name.begin(), largo, d.lfFaceName);
    return d;
}

// Grow-only: controls of like sizes never make it anew.
bool AsegurarFondo(Compartido& c, HDC modelo, SIZE tamano) {
    if (c.fondo && c.tamanoFondo.cx >= tamano.cx && c.tamanoFondo.cy >= tamano.cy)
        return true;
    const SIZE nuevo{std::max(c.tamanoFondo.cx, tamano.cx), std::max(c.tamanoFondo.cy, tamano.cy)};
    c.fondo.Soltar();
    c.tamanoFondo = {0, 0};
    DuenoDc dc(::CreateCompatibleDC(modelo));
    DuenoMapa mapa(::CreateCompatibleBitmap(modelo, nuevo.cx, nuevo.cy));
    if (!dc || !mapa)
        return false;
    c.fondo = DcConMapa(std::move(dc), std::move(mapa));
    c.tamanoFondo = nuevo;
    return true;
}

} // namespace

HINSTANCE ModuloPropio() {
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

UsoDelModulo::UsoDelModulo() {
    ++ElCompartido().usos;
}

UsoDelModulo::~UsoDelModulo() {
    Compartido& c = ElCompartido();
    if (--c.usos == 0)
        c.Soltar();
}

PrestamoDeFondo::PrestamoDeFondo(HDC modelo, SIZE tamano) {
    Compartido& c = ElCompartido();
    if (c.fondoPrestado || tamano.cx <= 0 || tamano.cy <= 0 || !AsegurarFondo(c, modelo, tamano))
        return;
    c.fondoPrestado = true;
    dc_ = c.fondo.dc();
}

PrestamoDeFondo::~PrestamoDeFondo() {
    if (!dc_)
        return;
    ::SelectClipRgn(dc_, nullptr);
    ::SetViewportOrgEx(dc_, 0, 0, nullptr);
    ElCompartido().fondoPrestado = false;
}

HDC DcDeMedida() {
    Compartido& c = ElCompartido();
    if (!c.medida)
        c.medida.Poner(::CreateCompatibleDC(nullptr));
    return c.medida.get();
}

int AltoDeFuente(double puntos, int ppp) {
    return std::max(1, static_cast<int>(std::lround(puntos * ppp / 72.0)));
}

RefFuenteGdi FuenteDeDispositivo(const AtributosFuente& atributos, int alto, int ancho) {
    auto& fuentes = ElCompartido().fuentes;
    const LOGFONTW descripcion = Describir(atributos, alto, ancho);
    std::erase_if(fuentes, [](const FuenteEnUso& uso) { return uso.fuente.expired(); });
    for (const FuenteEnUso& uso : fuentes)
        if (MismaFuente(uso.descripcion, descripcion))
            return uso.fuente.lock();
    auto fuente = std::make_shared<FuenteGdi>();
    fuente->manija.Poner(::CreateFontIndirectW(&descripcion));
    if (fuente->manija) // one that could not be made is asked for again
        fuentes.push_back({descripcion, fuente});
    return fuente;
}

} // namespace pincela::windows
