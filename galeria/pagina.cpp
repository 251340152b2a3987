#include "galeria/pagina.h"

#include "anfitrion/bolsa_memoria.h"
#include "anfitrion/imagenes.h"
#include "galeria/dibujos.h"
#include "galeria/escala.h"

#include <algorithm>
#include <array>

namespace galeria {

using namespace anfitrion;

static constexpr wchar_t Tipografia[] = L"Arial";

namespace {

/// Turns a value of the tables into one that a property bag carries.
struct ComoVariante {
    int ancho, alto; ///< of the control, in pixels

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

/// A loaded caption is only shown; an assigned one brings its access key along. The text of a
/// labelled box is not loaded at all.
bool SeAsigna(const Par& par) {
    const std::wstring_view clave = par.clave ? par.clave : L"";
    if (clave == L"Caption") {
        const auto* titulo = std::get_if<const wchar_t*>(&par.valor);
        return titulo && *titulo && std::wcschr(*titulo, L'&');
    }
    return clave == L"Text";
}

RECT Escalar(const RECT& r) {
    return {Escala(r.left), Escala(r.top), Escala(r.right), Escala(r.bottom)};
}

constexpr RECT LugarDiario{TarjetaEventos.left + 8, TarjetaEventos.top + 36,
                           TarjetaEventos.right - 8, TarjetaEventos.bottom - 54};
constexpr RECT LugarLimpiar{TarjetaEventos.right - 14 - 95, TarjetaEventos.bottom - 44,
                            TarjetaEventos.right - 14, TarjetaEventos.bottom - 12};

constexpr int AnchoPestana = 110, AltoPestana = 30;

} // namespace

OpcionesFormulario Pagina::Opciones() {
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

Pagina::Pagina(const Hoja& hoja, const std::optional<Componente>& componente)
    : hoja_(hoja), componente_(componente), lamina_(hoja), forma_(Opciones()),
      diario_(forma_.Ventana(), Escalar(LugarDiario), lamina_.Texto()) {
    forma_.alPintar = [this](HDC hdc, const RECT& sucio) {
        lamina_.Pintar(hdc, sucio);
        PintarDemas(hdc);
    };
}

void Pagina::Mostrar(const FichaDePagina& actual) {
    if (componente_) {
        for (const Grupo& grupo : hoja_.grupos)
            for (std::size_t n = 0; n < grupo.muestras.size(); ++n)
                Poner(grupo, static_cast<int>(n));
        PonerDemas();
        PonerLimpiar();
        PonerPestanas(actual);
    }
    // Last in the tab order.
    forma_.AgregarVentana(diario_.Ventana(), static_cast<long>(forma_.Controles().size()));
    ShowWindow(forma_.Ventana(), SW_SHOWNORMAL);
    UpdateWindow(forma_.Ventana());
    forma_.BombearMensajes();
    diario_.abierto = true;
}

std::shared_ptr<ControlAlojado> Pagina::PonerControl(const wchar_t* clase,
                                                     const std::wstring& nombre, const RECT& lugar,
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
        forma_.Agregar(*componente_, componente_->Clase(std::wstring(L"Pincela.") + clase), nombre,
                       pixeles, {.bolsa = bolsa.get()});
    for (const auto pares : {comunes, propios})
        for (const Par& par : pares)
            if (SeAsigna(par))
                anfitrion::Poner(control->Despacho(), par.clave, std::visit(convertir, par.valor));
    control->Conectar([this, nombre](Evento& evento) { diario_.Anotar(nombre, evento); });
    return control;
}

void Pagina::Poner(const Grupo& grupo, int n) {
    const Muestra& muestra = grupo.muestras[static_cast<std::size_t>(n)];
    const std::wstring primera(grupo.titulo, std::wcscspn(grupo.titulo, L" "));
    std::array<Par, 9> comunes{};
    std::copy(grupo.comunes.begin(), grupo.comunes.end(), comunes.begin());
    if (muestra.titulo)
        comunes.back() = {L"Caption", muestra.titulo};
    PonerControl(muestra.clase ? muestra.clase : grupo.clase, primera + std::to_wstring(n + 1),
                 LugarDeMuestra(grupo, n), comunes, muestra.pares);
}

void Pagina::PonerLimpiar() {
    static constexpr std::array<Par, 6> pares{{
        {L"Caption", L"&Limpiar"},
        {L"EstilosRell", 2},
        {L"ColorDegradeN", Tonos(Rgb(255, 255, 255), Rgb(226, 232, 240))},
        {L"ColorDegradeS", Tonos(Rgb(255, 255, 255), Rgb(191, 219, 254))},
        {L"ColorLetra", Rgb(31, 41, 55)},
        {L"ColorLetraSobre", Rgb(37, 99, 235)},
    }};
    const auto boton = PonerControl(L"Botonazo", L"Limpiar", LugarLimpiar, {}, pares);
    boton->Conectar([this](Evento& evento) {
        if (evento.nombre == L"Click")
            diario_.Vaciar();
    });
}

void Pagina::PonerPestanas(const FichaDePagina& actual) {
    const int cuantas = static_cast<int>(Paginas.size());
    for (int i = 0; i < cuantas; ++i) {
        const FichaDePagina& ficha = Paginas[static_cast<std::size_t>(i)];
        const bool elegida = &ficha == &actual;
        const int derecha = AnchoPagina - 24 - (cuantas - 1 - i) * (AnchoPestana + Hueco);
        const Color fondo = elegida ? Rgb(37, 99, 235) : Rgb(226, 232, 240);
        const Color letra = elegida ? Rgb(255, 255, 255) : Rgb(31, 41, 55);
        const std::array<Par, 6> pares{{
            {L"Caption", ficha.titulo},
            {L"EstilosBord", 0},
            {L"ColorFondo", fondo},
            {L"ColorFondoSobre", elegida ? fondo : Rgb(191, 219, 254)},
            {L"ColorLetra", letra},
            {L"ColorLetraSobre", letra},
        }};
        const auto pestana =
            PonerControl(L"Botonazo", std::wstring(L"Página ") + ficha.titulo,
                         {derecha - AnchoPestana, 24, derecha, 24 + AltoPestana}, {}, pares);
        pestana->Conectar([this, &ficha, elegida](Evento& evento) {
            if (evento.nombre != L"Click" || elegida)
                return;
            siguiente_ = &ficha;
            PostMessageW(forma_.Ventana(), WM_CLOSE, 0, 0);
        });
    }
}

} // namespace galeria
