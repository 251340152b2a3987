#include "plataforma/windows/caja_texto_windows.h"

#include "plataforma/windows/accesibilidad.h"
#include "plataforma/windows/colores.h"

#include <algorithm>

namespace pincela::windows {

namespace {

void Comprobar(std::int32_t valor) {
    if (valor < 0)
        Lanzar(NumeroError::ValorDePropiedad);
}

const wchar_t* Letras(const Texto& texto) {
    return reinterpret_cast<const wchar_t*>(texto.c_str());
}

} // namespace

CajaTextoWindows::CajaTextoWindows(Nucleo& nucleo, bool multilinea)
    : nucleo_(nucleo), multilinea_(multilinea), fuente_(*this) {
    nucleo_.campos.reserve(nucleo_.campos.size() + 1); // nothing fails halfway through the two
    nucleo_.escena.Agregar(*this);
    nucleo_.campos.push_back(this);
}

CajaTextoWindows::~CajaTextoWindows() {
    vida_.reset();
    oyente_ = nullptr;
    std::erase(nucleo_.campos, this);
    nucleo_.escena.Quitar(*this);
    if (ventana_)
        ::DestroyWindow(ventana_);
}

// Text and selection

Texto CajaTextoWindows::Text() const {
    if (!ventana_)
        return texto_;
    Texto texto(static_cast<std::size_t>(::GetWindowTextLengthW(ventana_)) + 1, u'\0');
    const int largo = ::GetWindowTextW(ventana_, reinterpret_cast<wchar_t*>(texto.data()),
                                       static_cast<int>(texto.size()));
    texto.resize(static_cast<std::size_t>(largo));
    return texto;
}

void CajaTextoWindows::PonText(const Texto& texto) {
    Texto nuevo = texto;
    if (maximo_ > 0 && nuevo.size() > static_cast<std::size_t>(maximo_))
        nuevo.resize(static_cast<std::size_t>(maximo_));
    if (nuevo == Text())
        return;
    texto_ = nuevo;
    if (ventana_) {
        callada_ = true;
        ::SetWindowTextW(ventana_, Letras(nuevo));
        callada_ = false;
    }
    const std::int32_t inicio = inicioPedido_, largo = largoPedido_;
    Seleccionar(inicio < 0 ? 0 : inicio, largo < 0 ? 0 : largo);
    nucleo_.VistaCambiada();
    if (oyente_)
        oyente_->Change();
}

std::int32_t CajaTextoWindows::SelStart() const {
    if (!ventana_)
        return inicio_;
    DWORD desde = 0, hasta = 0;
    ::SendMessageW(ventana_, EM_GETSEL, reinterpret_cast<WPARAM>(&desde),
                   reinterpret_cast<LPARAM>(&hasta));
    return static_cast<std::int32_t>(desde);
}

std::int32_t CajaTextoWindows::SelLength() const {
    if (!ventana_)
        return largo_;
    DWORD desde = 0, hasta = 0;
    ::SendMessageW(ventana_, EM_GETSEL, reinterpret_cast<WPARAM>(&desde),
                   reinterpret_cast<LPARAM>(&hasta));
    return static_cast<std::int32_t>(hasta - desde);
}

void CajaTextoWindows::PonSelStart(std::int32_t inicio) {
    Comprobar(inicio);
    largoPedido_ = -1;
    Seleccionar(inicio, 0);
}

void CajaTextoWindows::PonSelLength(std::int32_t largo) {
    Comprobar(largo);
    Seleccionar(inicioPedido_ >= 0 ? inicioPedido_ : SelStart(), largo);
}

// Shows as much of the selection as the text allows and remembers the rest.
void CajaTextoWindows::Seleccionar(std::int32_t inicio, std::int32_t largo) {
    const auto total = static_cast<std::int32_t>(Text().size());
    const bool cabe = inicio <= total && largo <= total - inicio;
    inicioPedido_ = cabe ? -1 : inicio;
    largoPedido_ = cabe ? -1 : largo;
    inicio_ = std::min(inicio, total);
    largo_ = std::min(largo, total - inicio_);
    if (ventana_)
        ::SendMessageW(ventana_, EM_SETSEL, static_cast<WPARAM>(inicio_), inicio_ + largo_);
}

Texto CajaTextoWindows::SelText() const {
    const Texto texto = Text();
    const auto inicio = std::min(static_cast<std::size_t>(SelStart()), texto.size());
    return texto.substr(inicio, static_cast<std::size_t>(SelLength()));
}

void CajaTextoWindows::PonMaxLength(std::int32_t largo) {
    Comprobar(largo);
    maximo_ = largo;
    if (ventana_)
        ::SendMessageW(ventana_, EM_SETLIMITTEXT, static_cast<WPARAM>(largo), 0);
}

// Looks

void CajaTextoWindows::PonAlignment(std::int32_t alineacion) {
    if (alineacion < 0 || alineacion > 2)
        Lanzar(NumeroError::ValorDePropiedad);
    if (alineacion == alineacion_)
        return;
    alineacion_ = alineacion;
    Rehacer();
    Repintar();
}

void CajaTextoWindows::PonAppearance(std::int32_t apariencia) {
    if (apariencia < 0 || apariencia > 1)
        Lanzar(NumeroError::ValorDePropiedad);
    if (apariencia == apariencia_)
        return;
    apariencia_ = apariencia;
    Rehacer();
    Repintar();
}

void CajaTextoWindows::PonLocked(bool valor) {
    bloqueada_ = valor;
    if (ventana_)
        ::SendMessageW(ventana_, EM_SETREADONLY, valor, 0);
}

void CajaTextoWindows::PonEnabled(bool valor) {
    habilitada_ = valor;
    if (ventana_)
        ::EnableWindow(ventana_, valor);
    nucleo_.VistaCambiada();
}

void CajaTextoWindows::PonFont(const Fuente& fuente) {
    if (fuente == fuente_.fuente())
        return;
    fuente_.Poner(fuente);
    FuenteCambiada();
}

void CajaTextoWindows::FuenteCambiada() {
    PonFuenteEnVentana(FuenteDeVentana());
    nucleo_.VistaCambiada();
}

void CajaTextoWindows::PppCambiado() {
    PonFuenteEnVentana(FuenteDeVentana());
}

RefFuenteGdi CajaTextoWindows::FuenteDeVentana() const {
    const AtributosFuente atributos = fuente_.Atributos();
    return nucleo_.apartamento.FuenteDeDispositivo(atributos, AltoDeFuente(atributos.Size, nucleo_.ppp));
}

void CajaTextoWindows::PonFuenteEnVentana(RefFuenteGdi nueva) {
    if (!ventana_)
        return;
    ::SendMessageW(ventana_, WM_SETFONT, reinterpret_cast<WPARAM>(nueva->manija.get()), TRUE);
    manija_ = std::move(nueva); // the old one only after the window let it go
}

void CajaTextoWindows::PonForeColor(Color color) {
    if (color == colorLetra_)
        return;
    colorLetra_ = color;
    Repintar();
}

void CajaTextoWindows::PonBackColor(Color color) {
    if (color == colorFondo_)
        return;
    colorFondo_ = color;
    Repintar();
}

void CajaTextoWindows::Repintar() {
    if (ventana_)
        ::InvalidateRect(ventana_, nullptr, TRUE);
    nucleo_.VistaCambiada();
}

void CajaTextoWindows::PonNombreAccesible(const Texto& nombre) {
    nombre_ = nombre;
    Nombrar();
}

void CajaTextoWindows::Nombrar() {
    if (ventana_ && (anotada_ || !nombre_.empty()))
        anotada_ = NombrarVentana(ventana_, nombre_);
}

void CajaTextoWindows::Move(float izquierda, float arriba, float ancho, float alto) {
    lugar_ = {izquierda, arriba, ancho, alto};
    nucleo_.VistaCambiada();
    if (!ventana_)
        return;
    const RECT r = Rectangulo();
    ::SetWindowPos(ventana_, nullptr, r.left, r.top, r.right - r.left, r.bottom - r.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

void CajaTextoWindows::SetFocus() {
    if (!ventana_ || ::GetFocus() == ventana_)
        return;
    const std::weak_ptr<const void> testigo = vida_;
    if (!nucleo_.EsVentanaPropia(::GetFocus())) {
        nucleo_.sitio.PedirFoco();
        if (testigo.expired() || !nucleo_.EsVentanaPropia(::GetFocus())) // it was refused
            return;
    }
    if (ventana_)
        ::SetFocus(ventana_);
}

RECT CajaTextoWindows::Rectangulo() const {
    const int x = Redondo(lugar_.izquierda), y = Redondo(lugar_.arriba);
    return {x, y, x + std::max(0, Redondo(lugar_.ancho)), y + std::max(0, Redondo(lugar_.alto))};
}

// A scroll bar at rest, with nothing to scroll.
void CajaTextoWindows::DibujarBarra(const Destino& destino, RECT& campo) const {
    RECT barra = campo;
    barra.left =
        std::max(campo.left, campo.right - Redondo(::GetSystemMetrics(SM_CXVSCROLL) * destino.sx));
    const LONG boton = std::min<LONG>(Redondo(::GetSystemMetrics(SM_CYVSCROLL) * destino.sy),
                                      (barra.bottom - barra.top) / 2);
    Llenar(destino.dc, barra, ::GetSysColor(COLOR_SCROLLBAR));
    RECT flecha{barra.left, barra.top, barra.right, barra.top + boton};
    ::DrawFrameControl(destino.dc, &flecha, DFC_SCROLL, DFCS_SCROLLUP | DFCS_INACTIVE);
    flecha.top = barra.bottom - boton;
    flecha.bottom = barra.bottom;
    ::DrawFrameControl(destino.dc, &flecha, DFC_SCROLL, DFCS_SCROLLDOWN | DFCS_INACTIVE);
    campo.right = barra.left;
}

void CajaTextoWindows::Dibujar(const Destino& destino) const {
    if (destino.enVentana) // the edit window shows itself
        return;
    const RECT lugar = Rectangulo();
    const HDC dc = destino.dc;
    RECT r = destino.Rectangulo(lugar.left, lugar.top, lugar.right, lugar.bottom);
    if (r.right <= r.left || r.bottom <= r.top)
        return;
    EstadoDc estado(dc);
    Llenar(dc, r, Resolver(colorFondo_));
    if (apariencia_ == 1)
        ::DrawEdge(dc, &r, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    else
        ::FrameRect(dc, &r, ::GetSysColorBrush(COLOR_WINDOWFRAME));
    if (multilinea_)
        DibujarBarra(destino, r);
    ::InflateRect(&r, -std::max(1, Redondo(2 * destino.sx)), -std::max(1, Redondo(destino.sy)));
    ::IntersectClipRect(dc, r.left, r.top, r.right, r.bottom);
    const AtributosFuente atributos = fuente_.Atributos();
    const RefFuenteGdi fuente = nucleo_.apartamento.FuenteDeDispositivo(
        atributos, Redondo(AltoDeFuente(atributos.Size, nucleo_.ppp) * destino.sy));
    ::SelectObject(dc, fuente->manija.get()); // given back with the rest of the state
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, habilitada_ ? Resolver(colorLetra_) : ::GetSysColor(COLOR_GRAYTEXT));
    constexpr UINT alineaciones[] = {DT_LEFT, DT_RIGHT, DT_CENTER};
    const UINT formato = DT_NOPREFIX | DT_EXPANDTABS | alineaciones[alineacion_] |
                         (multilinea_ ? DT_WORDBREAK | DT_EDITCONTROL : DT_SINGLELINE);
    const Texto texto = Text();
    ::DrawTextW(dc, Letras(texto), static_cast<int>(texto.size()), &r, formato);
}

} // namespace pincela::windows
