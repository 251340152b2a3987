#include "galeria/pagina_muestras.h"

#include "anfitrion/imagenes.h"
#include "galeria/escala.h"
#include "galeria/valores.h"

#include <algorithm>
#include <array>

namespace galeria {

using namespace anfitrion;

namespace {

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

constexpr RECT LugarDiario{TarjetaEventos.left + 8, TarjetaEventos.top + 36,
                           TarjetaEventos.right - 8, TarjetaEventos.bottom - 54};
constexpr RECT LugarLimpiar{TarjetaEventos.right - 14 - 95, TarjetaEventos.bottom - 44,
                            TarjetaEventos.right - 14, TarjetaEventos.bottom - 12};

bool EsHueco(const Muestra& muestra) {
    return muestra.titulo && !*muestra.titulo && !muestra.pares[0].clave;
}

OpcionesFormulario Opciones(HWND padre) {
    OpcionesFormulario opciones;
    opciones.padre = padre;
    opciones.ancho = Escala(AnchoPagina);
    opciones.alto = Escala(AltoPagina);
    opciones.visible = false;
    opciones.ambiente.fuente = CrearFuente(Tipografia, 9);
    opciones.ambiente.colorFondo = ColorTarjeta;
    return opciones;
}

} // namespace

PaginaMuestras::PaginaMuestras(const Hoja& hoja, const std::optional<Componente>& componente,
                               HWND padre)
    : hoja_(hoja), componente_(componente), lamina_(hoja), forma_(Opciones(padre)),
      diario_(forma_.Ventana(), Escalar(LugarDiario), lamina_.Texto()) {
    forma_.alPintar = [this](HDC hdc, const RECT& sucio) {
        lamina_.Pintar(hdc, sucio);
        PintarDemas(hdc);
    };
}

void PaginaMuestras::Armar() {
    if (componente_) {
        for (const Grupo& grupo : hoja_.grupos)
            for (std::size_t n = 0; n < grupo.muestras.size(); ++n)
                Poner(grupo, static_cast<int>(n));
        PonerDemas();
        PonerLimpiar();
    }
    // Last in the tab order.
    forma_.AgregarVentana(diario_.Ventana(), static_cast<long>(forma_.Controles().size()));
}

PaginaMuestras::Control PaginaMuestras::PonerControl(const wchar_t* clase, const std::wstring& nombre,
                                     const RECT& lugar, std::span<const Par> comunes,
                                     std::span<const Par> propios, ControlAlojado* dentro) {
    const RECT pixeles = Escalar(lugar);
    const auto bolsa = BolsaDe({comunes, propios}, pixeles);
    const auto control =
        forma_.Agregar(*componente_, componente_->Clase(std::wstring(L"Pincela.") + clase), nombre,
                       pixeles, {.bolsa = bolsa.get()}, dentro);
    for (const auto pares : {comunes, propios})
        for (const Par& par : pares)
            if (SeAsigna(par))
                anfitrion::Poner(control->Despacho(), par.clave,
                                 std::get<const wchar_t*>(par.valor));
    control->Conectar([this, nombre](Evento& evento) { diario_.Anotar(nombre, evento); });
    return control;
}

void PaginaMuestras::Poner(const Grupo& grupo, int n) {
    const Muestra& muestra = grupo.muestras[static_cast<std::size_t>(n)];
    if (EsHueco(muestra))
        return;
    const std::wstring primera(grupo.titulo, std::wcscspn(grupo.titulo, L" "));
    std::array<Par, 9> comunes{};
    std::copy(grupo.comunes.begin(), grupo.comunes.end(), comunes.begin());
    if (muestra.titulo)
        comunes.back() = {L"Caption", muestra.titulo};
    PonerControl(muestra.clase ? muestra.clase : grupo.clase, primera + std::to_wstring(n + 1),
                 LugarDeMuestra(grupo, n), comunes, muestra.pares);
}

void PaginaMuestras::PonerLimpiar() {
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

} // namespace galeria
