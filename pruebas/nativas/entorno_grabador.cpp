#include "pruebas/nativas/entorno_grabador.h"

namespace pincela::pruebas {

namespace {

constexpr Manejador HdcSuperficie = 1;

std::string Entero(std::int64_t valor) {
    return std::to_string(valor);
}

} // namespace

std::string GraficosDeEntorno::Nombre(Manejador hdc) const {
    const auto hallado = nombres.find(hdc);
    return hallado == nombres.end() ? "hdc " + Entero(hdc) : hallado->second;
}

void GraficosDeEntorno::AnotarGradiente(Manejador hdc, std::span<const TRIVERTEX> vertices,
                                        std::size_t figuras, ModoGradiente modo) {
    std::string linea = "GradientFill " + Nombre(hdc) + " modo " +
                        Entero(static_cast<std::int64_t>(modo)) + " figuras " +
                        Entero(static_cast<std::int64_t>(figuras)) + ":";
    for (const TRIVERTEX& v : vertices) {
        const Color color(std::int32_t{v.Red >> 8} | (v.Green >> 8) << 8 | (v.Blue >> 8) << 16);
        linea += " " + Punto(v.x, v.y) + " " + Describir(color);
    }
    registro_.Anotar(linea);
}

void GraficosDeEntorno::GradientFill(Manejador hdc, std::span<const TRIVERTEX> vertices,
                                     std::span<const GRADIENT_RECT> malla, ModoGradiente modo) {
    AnotarGradiente(hdc, vertices, malla.size(), modo);
    GraficosGrabador::GradientFill(hdc, vertices, malla, modo);
}

void GraficosDeEntorno::GradientFill(Manejador hdc, std::span<const TRIVERTEX> vertices,
                                     std::span<const GRADIENT_TRIANGLE> malla, ModoGradiente modo) {
    AnotarGradiente(hdc, vertices, malla.size(), modo);
    GraficosGrabador::GradientFill(hdc, vertices, malla, modo);
}

void GraficosDeEntorno::AlphaBlend(Manejador destino, std::int32_t xd, std::int32_t yd,
                                   std::int32_t anchod, std::int32_t altod, Manejador origen,
                                   std::int32_t xo, std::int32_t yo, std::int32_t anchoo,
                                   std::int32_t altoo, std::uint32_t mezcla) {
    registro_.Anotar("AlphaBlend " + Nombre(destino) + " " + Caja(xd, yd, anchod, altod) + " <- " +
                     Nombre(origen) + " " + Caja(xo, yo, anchoo, altoo) + " alfa " +
                     Entero((mezcla >> 16) & 0xFF));
    GraficosGrabador::AlphaBlend(destino, xd, yd, anchod, altod, origen, xo, yo, anchoo, altoo,
                                 mezcla);
}

Manejador GraficosDeEntorno::CreateRoundRectRgn(std::int32_t izquierda, std::int32_t arriba,
                                                std::int32_t derecha, std::int32_t abajo,
                                                std::int32_t anchoElipse, std::int32_t altoElipse) {
    registro_.Anotar("CreateRoundRectRgn " + Punto(izquierda, arriba) + " " +
                     Punto(derecha, abajo) + " elipse " + Entero(anchoElipse) + "x" +
                     Entero(altoElipse));
    return GraficosGrabador::CreateRoundRectRgn(izquierda, arriba, derecha, abajo, anchoElipse,
                                                altoElipse);
}

void GraficosDeEntorno::SetWindowRgn(Manejador ventana, Manejador region, bool redibujar) {
    registro_.Anotar("SetWindowRgn " + Entero(ventana) + " " + Describir(redibujar));
    GraficosGrabador::SetWindowRgn(ventana, region, redibujar);
}

void GraficosDeEntorno::DeleteObject(Manejador objeto) {
    registro_.Anotar("DeleteObject");
    GraficosGrabador::DeleteObject(objeto);
}

PuntoPantalla GraficosDeEntorno::GetCursorPos() {
    registro_.Anotar("GetCursorPos");
    return GraficosGrabador::GetCursorPos();
}

Manejador GraficosDeEntorno::WindowFromPoint(PuntoPantalla punto) {
    registro_.Anotar("WindowFromPoint " + Punto(punto.x, punto.y));
    return GraficosGrabador::WindowFromPoint(punto);
}

EntornoGrabador::EntornoGrabador() : pantalla(*this, "superficie", HdcSuperficie) {
    dibujo.nombres[HdcSuperficie] = "superficie";
    pantalla.ancho = 100;
    pantalla.alto = 30;
}

void EntornoGrabador::Nombrar(const std::string& clase, std::vector<std::string> nombres) {
    nombres_[clase] = {nombres.begin(), nombres.end()};
}

std::string EntornoGrabador::NombreNuevo(const std::string& clase) {
    const int numero = ++creados_[clase];
    auto& cola = nombres_[clase];
    if (cola.empty())
        return clase + std::to_string(numero);
    std::string nombre = cola.front();
    cola.pop_front();
    return nombre;
}

void EntornoGrabador::Desconocer(const Grabado& elemento) {
    conocidos_.erase(elemento.nombre);
    if (enfocada_ == &elemento)
        enfocada_ = nullptr;
}

void EntornoGrabador::Enfocar(CajaGrabada* caja) {
    if (caja == enfocada_)
        return;
    CajaGrabada* anterior = std::exchange(enfocada_, caja);
    if (anterior && anterior->oyente)
        anterior->oyente->LostFocus();
    if (caja && caja->oyente)
        caja->oyente->GotFocus();
    if (caja && alEnfocarCampo)
        alEnfocarCampo();
}

std::unique_ptr<Etiqueta> EntornoGrabador::CrearEtiqueta() {
    return std::make_unique<EtiquetaGrabada>(*this, NombreNuevo("etiqueta"));
}

std::unique_ptr<Temporizador> EntornoGrabador::CrearTemporizador() {
    return std::make_unique<TemporizadorGrabado>(*this, NombreNuevo("temporizador"));
}

std::unique_ptr<CuadroImagen> EntornoGrabador::CrearCuadroImagen() {
    const std::string nombre = NombreNuevo("cuadro");
    const Manejador hdc = proximoHdc_++;
    dibujo.nombres[hdc] = nombre;
    return std::make_unique<CuadroGrabado>(*this, nombre, hdc);
}

std::unique_ptr<Rectangulo> EntornoGrabador::CrearRectangulo() {
    return std::make_unique<RectanguloGrabado>(*this, NombreNuevo("rectangulo"));
}

std::unique_ptr<Linea> EntornoGrabador::CrearLinea() {
    return std::make_unique<LineaGrabada>(*this, NombreNuevo("linea"));
}

std::unique_ptr<CajaTexto> EntornoGrabador::CrearCajaTexto(bool multilinea) {
    return std::make_unique<CajaGrabada>(*this, NombreNuevo("caja"), proximaVentana_++, multilinea);
}

void EntornoGrabador::PropertyChanged(VistaTexto clave) {
    registro.Anotar("PC " + std::string(clave.begin(), clave.end()));
    if (alCambiar)
        alCambiar(clave);
}

bool EntornoGrabador::CanPropertyChange(VistaTexto clave) {
    registro.Anotar("Pide " + std::string(clave.begin(), clave.end()));
    return cambiosPermitidos;
}

Color EntornoGrabador::ColorReal(Color color) {
    const auto hallado = coloresDeSistema.find(static_cast<std::uint32_t>(color.valor));
    return hallado == coloresDeSistema.end() ? color : hallado->second;
}

void EntornoGrabador::EnviarTab() {
    registro.Anotar("EnviarTab");
    if (alEnviarTab)
        alEnviarTab();
}

void EntornoGrabador::DoEvents() {
    registro.Anotar("DoEvents");
    if (alAtender)
        alAtender();
}

void EntornoGrabador::ControlesContenidos(const std::function<void(ControlContenido&)>& visita) {
    for (ContenidoGrabado& contenido : contenidos)
        visita(contenido);
}

} // namespace pincela::pruebas
