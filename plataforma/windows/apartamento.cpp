#include "plataforma/windows/apartamento.h"

#include "plataforma/windows/cerrojo.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace pincela::windows {

namespace {

constexpr int PasesSeguidos = 100;

Cerrojo cerrojo; // of what follows
std::vector<std::unique_ptr<Apartamento>> apartamentos;

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

} // namespace

HDC Apartamento::DcDeMedida() {
    if (!medida_)
        medida_.Poner(::CreateCompatibleDC(nullptr));
    return medida_.get();
}

RefFuenteGdi Apartamento::FuenteDeDispositivo(const AtributosFuente& atributos, int alto,
                                              int ancho) {
    const LOGFONTW descripcion = Describir(atributos, alto, ancho);
    std::erase_if(fuentes_, [](const FuenteEnUso& uso) { return uso.fuente.expired(); });
    for (const FuenteEnUso& uso : fuentes_)
        if (MismaFuente(uso.descripcion, descripcion))
            return uso.fuente.lock();
    auto fuente = std::make_shared<FuenteGdi>();
    fuente->manija.Poner(::CreateFontIndirectW(&descripcion));
    if (fuente->manija) // one that could not be made is asked for again
        fuentes_.push_back({descripcion, fuente});
    return fuente;
}

bool Apartamento::PuedePasarElFoco() {
    LASTINPUTINFO info{sizeof info, 0};
    ::GetLastInputInfo(&info);
    if (info.dwTime != ultimaEntrada_)
        pases_ = 0;
    ultimaEntrada_ = info.dwTime;
    return ++pases_ <= PasesSeguidos;
}

// Grow-only: controls of like sizes never make it anew.
bool Apartamento::AsegurarFondo(HDC modelo, SIZE tamano) {
    if (fondo_ && tamanoFondo_.cx >= tamano.cx && tamanoFondo_.cy >= tamano.cy)
        return true;
    const SIZE nuevo{std::max(tamanoFondo_.cx, tamano.cx), std::max(tamanoFondo_.cy, tamano.cy)};
    fondo_.Soltar();
    tamanoFondo_ = {0, 0};
    DuenoDc dc(::CreateCompatibleDC(modelo));
    DuenoMapa mapa(::CreateCompatibleBitmap(modelo, nuevo.cx, nuevo.cy));
    if (!dc || !mapa)
        return false;
    fondo_ = DcConMapa(std::move(dc), std::move(mapa));
    tamanoFondo_ = nuevo;
    return true;
}

UsoDelApartamento::UsoDelApartamento() {
    const Cerrojo::Guarda guarda(cerrojo);
    const auto propio = std::find_if(apartamentos.begin(), apartamentos.end(), [](const auto& uno) {
        return uno->hilo_ == ::GetCurrentThreadId();
    });
    if (propio != apartamentos.end())
        apartamento_ = propio->get();
    else
        apartamento_ = apartamentos.emplace_back(std::make_unique<Apartamento>()).get();
    ++apartamento_->usos_;
}

UsoDelApartamento::~UsoDelApartamento() {
    std::unique_ptr<Apartamento> vacio; // it goes when nothing is locked any more
    const Cerrojo::Guarda guarda(cerrojo);
    if (--apartamento_->usos_ != 0)
        return;
    const auto lugar = std::find_if(apartamentos.begin(), apartamentos.end(),
                                    [this](const auto& uno) { return uno.get() == apartamento_; });
    vacio = std::move(*lugar);
    apartamentos.erase(lugar);
    if (apartamentos.empty())
        apartamentos.shrink_to_fit();
}

PrestamoDeFondo::PrestamoDeFondo(Apartamento& apartamento, HDC modelo, SIZE tamano)
    : apartamento_(apartamento) {
    if (apartamento_.fondoPrestado_ || tamano.cx <= 0 || tamano.cy <= 0 ||
        !apartamento_.AsegurarFondo(modelo, tamano))
        return;
    apartamento_.fondoPrestado_ = true;
    dc_ = apartamento_.fondo_.dc();
}

PrestamoDeFondo::~PrestamoDeFondo() {
    if (!dc_)
        return;
    ::SelectClipRgn(dc_, nullptr);
    ::SetViewportOrgEx(dc_, 0, 0, nullptr);
    apartamento_.fondoPrestado_ = false;
}

int AltoDeFuente(double puntos, int ppp) {
    return std::max(1, static_cast<int>(std::lround(puntos * ppp / 72.0)));
}

} // namespace pincela::windows
