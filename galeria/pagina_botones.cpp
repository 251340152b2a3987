#include "galeria/pagina_botones.h"

#include "anfitrion/bolsa_memoria.h"
#include "anfitrion/imagenes.h"
#include "galeria/dibujos.h"
#include "galeria/escala.h"

#include <array>

namespace galeria {

using namespace anfitrion;

/// Class of the painted button.
static constexpr CLSID ClaseBotonazo = {
    0x4F01CAAB, 0xE98C, 0x4DD8, {0xA1, 0x11, 0xA7, 0x9C, 0xD4, 0xA6, 0xF3, 0x07}};

static constexpr wchar_t Tipografia[] = L"Arial";

namespace {

/// Turns a value of the tables into one that a property bag carries.
struct ComoVariante {
    int ancho, alto; ///< of the button, in pixels

    Variante operator()(std::monostate) const { return {}; }
    Variante operator()(bool v) const { return v; }
    Variante operator()(int v) const { return v; }
    Variante operator()(Color v) const { return v; }
    Variante operator()(double v) const { return static_cast<float>(v); }
    Variante operator()(const wchar_t* v) const { return v; }
    Variante operator()(const Tonos& tonos) const {
        std::wstring lista;
        for (int i = 0; i < tonos.cuantos; ++i)
            lista += (i ? L"*" : L"") + std::to_wstring(tonos.colores[i]);
        return lista;
    }
    Variante operator()(Dibujo cual) const {
        // The border leaves one pixel on each side of a stretched picture.
        const auto imagen = Dibujar(cual, Escala(16), ancho - 2, alto - 2);
        return static_cast<IDispatch*>(imagen.get());
    }
    Variante operator()(const Fuente& fuente) const {
        const auto objeto = CrearFuente(Tipografia, fuente.puntos, fuente.negrita);
        return static_cast<IDispatch*>(objeto.get());
    }
};

void AsignarTitulo(ControlAlojado& control, const Par& par) {
    if (!par.clave || std::wstring_view(par.clave) != L"Caption")
        return;
    const wchar_t* titulo = std::get<const wchar_t*>(par.valor);
    if (std::wcschr(titulo, L'&'))
        anfitrion::Poner(control.Despacho(), par.clave, titulo);
}

RECT Escalar(const RECT& r) {
    return {Escala(r.left), Escala(r.top), Escala(r.right), Escala(r.bottom)};
}

constexpr RECT LugarDiario{TarjetaEventos.left + 8, TarjetaEventos.top + 36,
                           TarjetaEventos.right - 8, TarjetaEventos.bottom - 54};
constexpr RECT LugarLimpiar{TarjetaEventos.right - 14 - 95, TarjetaEventos.bottom - 44,
                            TarjetaEventos.right - 14, TarjetaEventos.bottom - 12};

} // namespace

OpcionesFormulario PaginaBotones::Opciones() {
    OpcionesFormulario opciones;
    opciones.titulo = L"Galería de Pincela";
    opciones.ancho = Escala(AnchoPagina);
    opciones.alto = Escala(AltoPagina);
    opciones.redimensionable = false;
    opciones.visible = false;
    opciones.ambiente.fuente = CrearFuente(Tipografia, 9);
    opciones.ambiente.colorFondo = ColorTarjeta;
    return opciones;
}

PaginaBotones::PaginaBotones(const std::optional<Componente>& componente)
    : forma_(Opciones()), diario_(forma_.Ventana(), Escalar(LugarDiario), lamina_.Texto()) {
    forma_.alPintar = [this](HDC hdc, const RECT& sucio) { lamina_.Pintar(hdc, sucio); };
    if (componente) {
        for (const Grupo& grupo : GruposDeBotones)
            for (std::size_t n = 0; n < grupo.muestras.size(); ++n)
                Poner(*componente, grupo, static_cast<int>(n));
        PonerLimpiar(*componente);
    }
    // Last in the tab order.
    forma_.AgregarVentana(diario_.Ventana(), static_cast<long>(forma_.Controles().size()));
    ShowWindow(forma_.Ventana(), SW_SHOWNORMAL);
    UpdateWindow(forma_.Ventana());
    forma_.BombearMensajes();
    diario_.abierto = true;
}

std::shared_ptr<ControlAlojado> PaginaBotones::PonerBoton(const Componente& componente,
                                                          const std::wstring& nombre,
                                                          const RECT& lugar,
                                                          std::span<const Par> comunes,
                                                          std::span<const Par> propios) {
    const RECT pixeles = Escalar(lugar);
    const ComoVariante convertir{static_cast<int>(Ancho(pixeles)), static_cast<int>(Alto(pixeles))};
    const auto bolsa = Hacer<BolsaMemoria>();
    for (const auto pares : {comunes, propios})
        for (const Par& par : pares)
            if (par.clave)
                bolsa->Poner(par.clave, std::visit(convertir, par.valor));
    const auto control =
        forma_.Agregar(componente, ClaseBotonazo, nombre, pixeles, {.bolsa = bolsa.get()});
    // A loaded caption is only shown; an assigned one brings its access key along.
    for (const Par& par : comunes)
        AsignarTitulo(*control, par);
    for (const Par& par : propios)
        AsignarTitulo(*control, par);
    control->Conectar([this, nombre](Evento& evento) { diario_.Anotar(nombre, evento); });
    return control;
}

void PaginaBotones::Poner(const Componente& componente, const Grupo& grupo, int n) {
    const Muestra& muestra = grupo.muestras[static_cast<std::size_t>(n)];
    const std::wstring primera(grupo.titulo, std::wcscspn(grupo.titulo, L" "));
    std::array<Par, 9> comunes{};
    std::copy(grupo.comunes.begin(), grupo.comunes.end(), comunes.begin());
    comunes.back() = {L"Caption", muestra.titulo};
    PonerBoton(componente, primera + std::to_wstring(n + 1), LugarDeMuestra(grupo, n), comunes,
               muestra.pares);
}

void PaginaBotones::PonerLimpiar(const Componente& componente) {
    static constexpr std::array<Par, 6> pares{{
        {L"Caption", L"&Limpiar"},
        {L"EstilosRell", 2},
        {L"ColorDegradeN", Tonos(Rgb(255, 255, 255), Rgb(226, 232, 240))},
        {L"ColorDegradeS", Tonos(Rgb(255, 255, 255), Rgb(191, 219, 254))},
        {L"ColorLetra", Rgb(31, 41, 55)},
        {L"ColorLetraSobre", Rgb(37, 99, 235)},
    }};
    const auto boton = PonerBoton(componente, L"Limpiar", LugarLimpiar, {}, pares);
    boton->Conectar([this](Evento& evento) {
        if (evento.nombre == L"Click")
            diario_.Vaciar();
    });
}

void PaginaBotones::Ensayar() {
    if (const auto boton = forma_.Control(L"Relleno2")) {
        const HWND ventana = boton->Ventana();
        const LPARAM punto = MAKELPARAM(Escala(20), Escala(10));
        SendMessageW(ventana, WM_MOUSEMOVE, 0, punto);
        SendMessageW(ventana, WM_LBUTTONDOWN, MK_LBUTTON, punto);
        SendMessageW(ventana, WM_LBUTTONUP, 0, punto);
        forma_.Esperar(100);
    }
    MSG mensaje{};
    mensaje.hwnd = forma_.Ventana();
    mensaje.message = WM_SYSCHAR;
    mensaje.wParam = L'g';
    mensaje.lParam = 0x20000000; // ALT is down
    forma_.Pretraducir(mensaje);
}

} // namespace galeria
