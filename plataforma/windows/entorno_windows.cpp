#include "plataforma/windows/entorno_windows.h"

#include "plataforma/windows/caja_texto_windows.h"
#include "plataforma/windows/colores.h"
#include "plataforma/windows/composicion.h"
#include "plataforma/windows/cuadro_windows.h"
#include "plataforma/windows/etiqueta_windows.h"
#include "plataforma/windows/foco.h"
#include "plataforma/windows/linea_windows.h"
#include "plataforma/windows/modulo.h"
#include "plataforma/windows/rectangulo_windows.h"
#include "plataforma/windows/temporizador_windows.h"
#include "plataforma/windows/ventana_superficie.h"

#include <cmath>

namespace pincela::windows {

namespace {

/// The platform's drawing calls for one environment: what is drawn straight onto a device context
/// changes the view when it is drawn, not when the context was asked for.
class GraficosConAviso final : public Graficos {
  public:
    explicit GraficosConAviso(Nucleo& nucleo) : nucleo_(nucleo) {}

    void GradientFill(Manejador hdc, std::span<const pincela::TRIVERTEX> vertices,
                      std::span<const pincela::GRADIENT_RECT> malla, ModoGradiente modo) override {
        reales_.GradientFill(hdc, vertices, malla, modo);
        nucleo_.VistaCambiada();
    }
    void GradientFill(Manejador hdc, std::span<const pincela::TRIVERTEX> vertices,
                      std::span<const pincela::GRADIENT_TRIANGLE> malla,
                      ModoGradiente modo) override {
        reales_.GradientFill(hdc, vertices, malla, modo);
        nucleo_.VistaCambiada();
    }
    void AlphaBlend(Manejador destino, std::int32_t xd, std::int32_t yd, std::int32_t anchod,
                    std::int32_t altod, Manejador origen, std::int32_t xo, std::int32_t yo,
                    std::int32_t anchoo, std::int32_t altoo, std::uint32_t mezcla) override {
        if ((mezcla >> 16 & 0xFF) == 0) // nothing of the source is seen
            return;
        reales_.AlphaBlend(destino, xd, yd, anchod, altod, origen, xo, yo, anchoo, altoo, mezcla);
        nucleo_.VistaCambiada();
    }
    Manejador CreateRoundRectRgn(std::int32_t izquierda, std::int32_t arriba, std::int32_t derecha,
                                 std::int32_t abajo, std::int32_t anchoElipse,
                                 std::int32_t altoElipse) override {
        // Nobody would wear it, and one of a size that no window has takes its time.
        return nucleo_.ventana ? reales_.CreateRoundRectRgn(izquierda, arriba, derecha, abajo,
                                                            anchoElipse, altoElipse)
                               : 0;
    }
    void SetWindowRgn(Manejador ventana, Manejador region, bool redibujar) override {
        // Of the region that is set this shape is one part; the caller keeps its own.
        if (ventana && reinterpret_cast<HWND>(ventana) == nucleo_.ventana)
            nucleo_.silueta->PonForma(reinterpret_cast<HRGN>(region));
        else if (ventana)
            reales_.SetWindowRgn(ventana, region, redibujar);
    }
    void DeleteObject(Manejador objeto) override {
        if (objeto)
            reales_.DeleteObject(objeto);
    }
    PuntoPantalla GetCursorPos() override { return reales_.GetCursorPos(); }
    // Asked only to know whether it is the control's own window.
    Manejador WindowFromPoint(PuntoPantalla punto) override {
        if (!nucleo_.ventana)
            return 0;
        const Manejador bajo = reales_.WindowFromPoint(punto);
        const HWND velo = reinterpret_cast<HWND>(bajo);
        return Velo::EsVelo(velo)
                   ? reinterpret_cast<Manejador>(Velo::SuperficieEn(velo, {punto.x, punto.y}))
                   : bajo;
    }

  private:
    Graficos& reales_ = GraficosDeWindows();
    Nucleo& nucleo_;
};

} // namespace

class EntornoWindows::Partes {
  public:
    explicit Partes(SitioControl& sitio)
        : nucleo(sitio, *uso), graficos(nucleo), superficie(nucleo), ventana(nucleo, superficie) {}
    ~Partes() { nucleo.cerrando = true; }

    UsoDelApartamento uso;
    Nucleo nucleo;
    GraficosConAviso graficos;
    SuperficieWindows superficie;
    VentanaSuperficie ventana;
};

EntornoWindows::EntornoWindows(SitioControl& sitio) : partes_(std::make_unique<Partes>(sitio)) {}
EntornoWindows::~EntornoWindows() = default;

void EntornoWindows::Asociar(ControlUsuario* control) {
    partes_->nucleo.control = control;
    partes_->nucleo.cerrando = control == nullptr;
}

void EntornoWindows::PonTamano(SIZE pixeles, bool avisar) {
    const auto testigo = partes_->nucleo.Testigo();
    if (const HWND ventana = partes_->nucleo.ventana)
        ::SetWindowPos(ventana, nullptr, 0, 0, pixeles.cx, pixeles.cy,
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    if (testigo.expired())
        return;
    const SIZE anterior = Tamano();
    partes_->superficie.PonTamano(pixeles);
    if (avisar && (anterior.cx != pixeles.cx || anterior.cy != pixeles.cy))
        partes_->nucleo.Notificar([](ControlUsuario& control) { control.Resize(); });
}

SIZE EntornoWindows::Tamano() const {
    return partes_->superficie.Tamano();
}

void EntornoWindows::PonPpp(int ppp) {
    if (ppp <= 0 || ppp == partes_->nucleo.ppp)
        return;
    partes_->nucleo.ppp = ppp;
    partes_->nucleo.escena.PppCambiado();
    partes_->nucleo.VistaCambiada();
}

void EntornoWindows::OlvidarAvisoDeVista() {
    partes_->nucleo.OlvidarAvisoDeVista();
}

int EntornoWindows::Ppp() const {
    return partes_->nucleo.ppp;
}

HWND EntornoWindows::CrearVentana(HWND padre, const RECT& lugar, const RECT* recorte) {
    return partes_->ventana.Crear(padre, lugar, recorte);
}
void EntornoWindows::DestruirVentana() {
    partes_->ventana.Destruir();
}
HWND EntornoWindows::Ventana() const {
    return partes_->nucleo.ventana;
}

void EntornoWindows::MoverVentana(const RECT& lugar, const RECT* recorte) {
    const RECT r = LugarDeVentana(lugar);
    if (partes_->nucleo.ventana)
        partes_->ventana.Mover(r, recorte);
    else
        PonTamano({r.right - r.left, r.bottom - r.top}, true);
}

namespace {

/// The side of a view, in pixels of the device, from which on only its colour is drawn: no screen
/// and hardly a sheet of paper shows more, and letters and curves of that size would take for ever.
constexpr double LadoMaximoDeVista = 0x8000;

/// Whether a surface drawn at that scale is larger than anything it could be drawn on.
bool EsDesmedida(const Destino& destino, SIZE tamano) {
    constexpr LONG unidades = 0x1000;
    POINT puntos[3] = {{0, 0}, {unidades, 0}, {0, unidades}};
    ::LPtoDP(destino.dc, puntos, 3);
    const auto lado = [&](const POINT& extremo, double largo) {
        const double x = static_cast<double>(extremo.x) - puntos[0].x;
        const double y = static_cast<double>(extremo.y) - puntos[0].y;
        return std::hypot(x, y) / unidades * std::abs(largo);
    };
    return lado(puntos[1], tamano.cx * destino.sx) >= LadoMaximoDeVista ||
           lado(puntos[2], tamano.cy * destino.sy) >= LadoMaximoDeVista;
}

/// Limits drawing to a rounded shape. A path, unlike a region, follows the scale of the device.
void RecortarForma(HDC dc, const Destino& escala, SIZE tamano, SIZE elipse) {
    if (elipse.cx <= 0 || elipse.cy <= 0 || !::BeginPath(dc))
        return;
    auto largo = [](double pixeles) { return static_cast<int>(std::lround(pixeles)); };
    ::RoundRect(dc, largo(escala.x0), largo(escala.y0),
                largo(escala.x0 + (tamano.cx + 1) * escala.sx),
                largo(escala.y0 + (tamano.cy + 1) * escala.sy), largo(elipse.cx * escala.sx),
                largo(elipse.cy * escala.sy));
    ::EndPath(dc);
    ::SelectClipPath(dc, RGN_AND);
}

} // namespace

void EntornoWindows::Dibujar(HDC dc, const RECT& destino, SIZE elipse) {
    const SIZE tamano = Tamano();
    if (tamano.cx <= 0 || tamano.cy <= 0)
        return;
    partes_->nucleo.VistaDibujada();
    Destino escala;
    escala.dc = dc;
    escala.x0 = destino.left;
    escala.y0 = destino.top;
    escala.sx = (static_cast<double>(destino.right) - destino.left) / tamano.cx;
    escala.sy = (static_cast<double>(destino.bottom) - destino.top) / tamano.cy;
    EstadoDc estado(dc);
    ::IntersectClipRect(dc, destino.left, destino.top, destino.right, destino.bottom);
    if (EsDesmedida(escala, tamano)) {
        ComponerColor(partes_->superficie, escala);
        return;
    }
    RecortarForma(dc, escala, tamano, elipse);
    Componer(partes_->nucleo, partes_->superficie, escala);
}

void EntornoWindows::SoltarRaton() {
    if (partes_->nucleo.EsVentanaPropia(::GetCapture()))
        ::ReleaseCapture();
}

void EntornoWindows::ActualizarFoco() {
    FocoDescongelado(partes_->nucleo);
}

void EntornoWindows::ContenedorCambiado() {
    if (partes_->nucleo.ventana)
        partes_->nucleo.silueta->Renovar();
}

bool EntornoWindows::TieneFoco() const {
    return partes_->nucleo.EsVentanaPropia(::GetFocus());
}
HWND EntornoWindows::VentanaDeFoco() const {
    return partes_->ventana.DeFoco();
}

bool EntornoWindows::EsCampo(HWND ventana) const {
    return partes_->ventana.CampoDe(ventana) != nullptr;
}
Texto EntornoWindows::NombreDeCampo(HWND ventana) const {
    const CampoEdicion* campo = partes_->ventana.CampoDe(ventana);
    return campo ? campo->NombreAccesible() : Texto();
}

Superficie& EntornoWindows::superficie() {
    return partes_->superficie;
}
Graficos& EntornoWindows::graficos() {
    return partes_->graficos;
}

std::unique_ptr<Etiqueta> EntornoWindows::CrearEtiqueta() {
    return std::make_unique<EtiquetaWindows>(partes_->nucleo);
}
std::unique_ptr<Temporizador> EntornoWindows::CrearTemporizador() {
    return std::make_unique<TemporizadorWindows>(partes_->nucleo);
}
std::unique_ptr<CuadroImagen> EntornoWindows::CrearCuadroImagen() {
    return std::make_unique<CuadroImagenWindows>(partes_->nucleo);
}
std::unique_ptr<Rectangulo> EntornoWindows::CrearRectangulo() {
    return std::make_unique<RectanguloWindows>(partes_->nucleo);
}
std::unique_ptr<Linea> EntornoWindows::CrearLinea() {
    return std::make_unique<LineaWindows>(partes_->nucleo);
}
std::unique_ptr<CajaTexto> EntornoWindows::CrearCajaTexto(bool multilinea) {
    auto caja = std::make_unique<CajaTextoWindows>(partes_->nucleo, multilinea);
    caja->CrearVentana(); // where the control has its own already
    return caja;
}

void EntornoWindows::PropertyChanged(VistaTexto clave) {
    partes_->nucleo.sitio.PropertyChanged(clave);
}
bool EntornoWindows::CanPropertyChange(VistaTexto clave) {
    return partes_->nucleo.sitio.CanPropertyChange(clave);
}
Fuente EntornoWindows::AmbientFont() {
    return partes_->nucleo.sitio.AmbientFont();
}
bool EntornoWindows::DisplayAsDefault() {
    return partes_->nucleo.sitio.DisplayAsDefault();
}
void EntornoWindows::AccesibleCambiado() {
    partes_->nucleo.sitio.AccesibleCambiado();
}
Fuente EntornoWindows::CrearFuente(const AtributosFuente& atributos) {
    return windows::CrearFuente(atributos);
}
Color EntornoWindows::ColorReal(Color color) {
    return Color(static_cast<std::uint32_t>(Resolver(color)));
}
bool EntornoWindows::UserMode() {
    return partes_->nucleo.sitio.UserMode();
}
bool EntornoWindows::PuedePasarElFoco() {
    return partes_->nucleo.apartamento.PuedePasarElFoco();
}
void EntornoWindows::EnviarTab() {
    partes_->nucleo.sitio.EnviarTab();
}

// Keys stay in the queue: they come in order after the one that is being handled, and only the
// container's own loop knows its accelerators and its way through the form. What arrives meanwhile
// stays too, or a timer that is never quite done would hold its control here.
void EntornoWindows::DoEvents() {
    const AritmeticaAjena ajena;
    const DWORD ahora = ::GetTickCount();
    const auto pendiente = [](MSG& mensaje) {
        return ::PeekMessageW(&mensaje, nullptr, 0, WM_KEYFIRST - 1, PM_REMOVE) ||
               ::PeekMessageW(&mensaje, nullptr, WM_KEYLAST + 1, MAXUINT, PM_REMOVE);
    };
    for (MSG mensaje; pendiente(mensaje);) {
        if (mensaje.message == WM_QUIT) { // for the loop that runs below this one
            ::PostQuitMessage(static_cast<int>(mensaje.wParam));
            return;
        }
        ::DispatchMessageW(&mensaje);
        if (static_cast<LONG>(mensaje.time - ahora) > 0)
            return;
    }
}

void EntornoWindows::ControlesContenidos(const std::function<void(ControlContenido&)>& visita) {
    partes_->nucleo.sitio.ControlesContenidos(visita);
}

} // namespace pincela::windows
