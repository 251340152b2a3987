#include "galeria/pagina_botones.h"

#include "galeria/escala.h"
#include "galeria/valores.h"

#include <array>

namespace galeria {

using namespace anfitrion;

/// Class of the painted button.
static constexpr CLSID ClaseBotonazo = {
    0x4F01CAAB, 0xE98C, 0x4DD8, {0xA1, 0x11, 0xA7, 0x9C, 0xD4, 0xA6, 0xF3, 0x07}};

namespace {

void AsignarTitulo(ControlAlojado& control, const Par& par) {
    if (!par.clave || std::wstring_view(par.clave) != L"Caption")
        return;
    const wchar_t* titulo = std::get<const wchar_t*>(par.valor);
    if (std::wcschr(titulo, L'&'))
        anfitrion::Poner(control.Despacho(), par.clave, titulo);
}

constexpr RECT LugarLimpiar{TarjetaEventos.right - 14 - 95, TarjetaEventos.bottom - 44,
                            TarjetaEventos.right - 14, TarjetaEventos.bottom - 12};

} // namespace

PaginaBotones::PaginaBotones(const std::optional<Componente>& componente, HWND padre)
    : forma_(OpcionesDePagina(padre)),
      diario_(forma_.Ventana(), Escalar(LugarDiario), lamina_.Texto()) {
    forma_.alPintar = [this](HDC hdc, const RECT& sucio) { lamina_.Pintar(hdc, sucio); };
    if (componente) {
        for (const Grupo& grupo : GruposDeBotones)
            for (std::size_t n = 0; n < grupo.muestras.size(); ++n)
                Poner(*componente, grupo, static_cast<int>(n));
        PonerLimpiar(*componente);
    }
    // Last in the tab order.
    forma_.AgregarVentana(diario_.Ventana(), static_cast<long>(forma_.Controles().size()));
}

std::shared_ptr<ControlAlojado> PaginaBotones::PonerBoton(const Componente& componente,
                                                          const std::wstring& nombre,
                                                          const RECT& lugar,
                                                          std::span<const Par> comunes,
                                                          std::span<const Par> propios) {
    const RECT pixeles = Escalar(lugar);
    const auto bolsa = BolsaDe({comunes, propios}, pixeles);
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
