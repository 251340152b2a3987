#include "galeria/dibujos.h"

#include <cstdint>
#include <vector>

namespace galeria {

namespace {

/// Glyphs are drawn on a square of this side, in these units, several times larger than needed;
/// what they become is the average of what lies under each pixel.
constexpr int Lado = 16;
constexpr int Aumento = 8;

class Tablero {
  public:
    Tablero(int ancho, int alto) : ancho_(ancho), alto_(alto), hdc_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = ancho;
        info.bmiHeader.biHeight = -alto;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        mapa_ = CreateDIBSection(hdc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        pixeles_ = static_cast<std::uint32_t*>(bits);
        anterior_ = SelectObject(hdc_, mapa_);
        SelectObject(hdc_, GetStockObject(NULL_PEN));
        SelectObject(hdc_, GetStockObject(DC_BRUSH));
    }
    Tablero(const Tablero&) = delete;
    Tablero& operator=(const Tablero&) = delete;
    ~Tablero() {
        SelectObject(hdc_, anterior_);
        if (mapa_)
            DeleteObject(mapa_);
        DeleteDC(hdc_);
    }

    HDC Hdc() const { return hdc_; }
    void Tinta(COLORREF color) const { SetDCBrushColor(hdc_, color); }
    std::uint32_t* Pixeles() const {
        GdiFlush();
        return pixeles_;
    }
    HBITMAP Separar() {
        SelectObject(hdc_, anterior_);
        return std::exchange(mapa_, nullptr);
    }
    int Ancho() const { return ancho_; }
    int Alto() const { return alto_; }

  private:
    int ancho_, alto_;
    HDC hdc_;
    HBITMAP mapa_;
    HGDIOBJ anterior_;
    std::uint32_t* pixeles_;
};

void Poligono(HDC hdc, std::initializer_list<POINT> puntos) {
    // Units of a sixteenth of the side, in tenths.
    std::vector<POINT> grandes;
    for (const POINT& p : puntos)
        grandes.push_back({p.x * Aumento / 10, p.y * Aumento / 10});
    Polygon(hdc, grandes.data(), static_cast<int>(grandes.size()));
}

void Circulo(HDC hdc, int x, int y, int radio) {
    Ellipse(hdc, (x - radio) * Aumento / 10, (y - radio) * Aumento / 10, (x + radio) * Aumento / 10,
            (y + radio) * Aumento / 10);
}

/// Draws the glyph in white on black; black parts stay transparent.
void Silueta(Dibujo cual, const Tablero& t) {
    const HDC hdc = t.Hdc();
    t.Tinta(RGB(255, 255, 255));
    switch (cual) {
    case Dibujo::disco:
        Poligono(hdc, {{15, 15}, {120, 15}, {145, 40}, {145, 145}, {15, 145}});
        t.Tinta(0);
        Poligono(hdc, {{45, 28}, {110, 28}, {110, 62}, {45, 62}});
        Poligono(hdc, {{38, 88}, {122, 88}, {122, 132}, {38, 132}});
        t.Tinta(RGB(255, 255, 255));
        Poligono(hdc, {{86, 32}, {100, 32}, {100, 58}, {86, 58}});
        break;
    case Dibujo::carpeta:
        Poligono(hdc, {{10, 28}, {62, 28}, {76, 46}, {138, 46}, {138, 62}, {38, 62}, {10, 118}});
        Poligono(hdc, {{44, 70}, {156, 70}, {130, 134}, {14, 134}});
        break;
    case Dibujo::lupa:
        Poligono(hdc, {{88, 102}, {102, 88}, {150, 136}, {136, 150}});
        Circulo(hdc, 64, 64, 50);
        t.Tinta(0);
        Circulo(hdc, 64, 64, 34);
        break;
    case Dibujo::visto:
        Poligono(hdc, {{12, 84}, {30, 66}, {60, 96}, {130, 26}, {148, 44}, {60, 132}});
        break;
    case Dibujo::equis:
        Poligono(hdc, {{24, 42},
                       {42, 24},
                       {80, 62},
                       {118, 24},
                       {136, 42},
                       {98, 80},
                       {136, 118},
                       {118, 136},
                       {80, 98},
                       {42, 136},
                       {24, 118},
                       {62, 80}});
        break;
    case Dibujo::estrella:
        Poligono(hdc, {{80, 8},
                       {102, 56},
                       {154, 62},
                       {115, 97},
                       {126, 148},
                       {80, 122},
                       {34, 148},
                       {45, 97},
                       {6, 62},
                       {58, 56}});
        break;
    default:
        Poligono(hdc, {{12, 66}, {88, 66}, {88, 30}, {150, 80}, {88, 130}, {88, 94}, {12, 94}});
        break;
    }
}

COLORREF ColorDe(Dibujo cual) {
    switch (cual) {
    case Dibujo::carpeta:
        return RGB(226, 146, 26);
    case Dibujo::visto:
        return RGB(22, 128, 90);
    case Dibujo::equis:
        return RGB(196, 52, 62);
    case Dibujo::estrella:
        return RGB(240, 168, 32);
    case Dibujo::disco:
        return RGB(22, 128, 90);
    default:
        return RGB(37, 99, 235);
    }
}

/// The glyph keeps a margin inside its square: a button puts pictures close to its edges.
constexpr int MargenGlifo = 3;

/// How much of a pixel of the small square the glyph covers, 0 to 255.
unsigned Cobertura(const std::uint32_t* glifo, int x, int y, int lado) {
    const int total = Lado * Aumento;
    if (x < 0 || y < 0 || x >= lado || y >= lado)
        return 0;
    unsigned suma = 0, cuantos = 0;
    for (int v = y * total / lado; v < (y + 1) * total / lado; ++v)
        for (int u = x * total / lado; u < (x + 1) * total / lado; ++u, ++cuantos)
            suma += glifo[v * total + u] & 0xFF;
    return cuantos ? suma / cuantos : 0;
}

HICON HacerIcono(Dibujo cual, int lado) {
    const Tablero grande(Lado * Aumento, Lado * Aumento);
    Silueta(cual, grande);
    const std::uint32_t* glifo = grande.Pixeles();
    const COLORREF c = ColorDe(cual);
    const std::uint32_t color = static_cast<std::uint32_t>(GetRValue(c)) << 16 |
                                static_cast<std::uint32_t>(GetGValue(c)) << 8 | GetBValue(c);
    const int margen = MargenGlifo * lado / Lado;
    const int entero = lado + 2 * margen;
    Tablero chico(entero, entero);
    std::uint32_t* destino = chico.Pixeles();
    // For painters that know nothing of opacity the mask tells what is outside: rows of whole
    // words, the first pixel in the highest bit.
    const std::size_t paso = static_cast<std::size_t>((entero + 15) / 16 * 2);
    std::vector<BYTE> fuera(paso * static_cast<std::size_t>(entero));
    for (int y = 0; y < entero; ++y)
        for (int x = 0; x < entero; ++x) {
            const unsigned alfa = Cobertura(glifo, x - margen, y - margen, lado);
            destino[y * entero + x] = alfa ? alfa << 24 | color : 0;
            if (alfa < 128)
                fuera[paso * static_cast<std::size_t>(y) + static_cast<std::size_t>(x / 8)] |=
                    static_cast<BYTE>(0x80 >> x % 8);
        }
    ICONINFO info{};
    info.fIcon = TRUE;
    info.hbmMask = CreateBitmap(entero, entero, 1, 1, fuera.data());
    info.hbmColor = chico.Separar();
    const HICON icono = CreateIconIndirect(&info);
    DeleteObject(info.hbmMask);
    DeleteObject(info.hbmColor);
    return icono;
}

void Banda(const Tablero& t, int y0, int y1, COLORREF arriba, COLORREF abajo) {
    for (int y = y0; y < y1; ++y) {
        const auto mezcla = [&](int a, int b) { return a + (b - a) * (y - y0) / (y1 - y0); };
        t.Tinta(RGB(mezcla(GetRValue(arriba), GetRValue(abajo)),
                    mezcla(GetGValue(arriba), GetGValue(abajo)),
                    mezcla(GetBValue(arriba), GetBValue(abajo))));
        PatBlt(t.Hdc(), 0, y, t.Ancho(), 1, PATCOPY);
    }
}

HBITMAP HacerPaisaje(bool noche, int ancho, int alto) {
    const int a = ancho * 4, h = alto * 4;
    const Tablero grande(a, h);
    const HDC hdc = grande.Hdc();
    if (noche)
        Banda(grande, 0, h, RGB(28, 38, 92), RGB(120, 96, 160));
    else
        Banda(grande, 0, h, RGB(134, 190, 246), RGB(236, 246, 255));
    grande.Tinta(noche ? RGB(244, 240, 214) : RGB(255, 214, 92));
    Ellipse(hdc, a * 78 / 100, h * 10 / 100, a * 78 / 100 + h * 36 / 100, h * 46 / 100);
    grande.Tinta(noche ? RGB(52, 64, 110) : RGB(150, 200, 170));
    Ellipse(hdc, -a / 4, h * 52 / 100, a * 65 / 100, h * 2);
    grande.Tinta(noche ? RGB(36, 48, 86) : RGB(104, 172, 126));
    Ellipse(hdc, a * 30 / 100, h * 62 / 100, a * 130 / 100, h * 2);
    // 24 bits: no channel that could be taken for transparency.
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = ancho;
    info.bmiHeader.biHeight = alto;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    void* bits = nullptr;
    const HBITMAP mapa = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HDC chico = CreateCompatibleDC(nullptr);
    const HGDIOBJ anterior = SelectObject(chico, mapa);
    SetStretchBltMode(chico, HALFTONE);
    StretchBlt(chico, 0, 0, ancho, alto, hdc, 0, 0, a, h, SRCCOPY);
    SelectObject(chico, anterior);
    DeleteDC(chico);
    return mapa;
}

} // namespace

anfitrion::Puntero<IPictureDisp> Dibujar(Dibujo cual, int lado, int ancho, int alto) {
    if (cual == Dibujo::paisaje || cual == Dibujo::paisajeNoche)
        return anfitrion::CrearImagen(HacerPaisaje(cual == Dibujo::paisajeNoche, ancho, alto));
    return anfitrion::CrearImagen(HacerIcono(cual, lado));
}

} // namespace galeria
