#include "pruebas/componente/hilos/habitante.h"

#include "anfitrion/imagenes.h"
#include "pruebas/componente/comun/publicado.h"
#include "pruebas/componente/persistencia/flujos.h"

#include <olectl.h>

#include <cmath>
#include <string_view>

namespace hilos {

namespace {

constexpr int AnchoDeLamina = 100, AltoDeLamina = 60;

bool EsCaja(std::wstring_view clase) {
    return clase[0] == L'T';
}

Captura DeLamina(const publicado::Lamina& lamina) {
    return Captura::DeDibujo(AnchoDeLamina, AltoDeLamina, [&](HDC hdc) {
        BitBlt(hdc, 0, 0, AnchoDeLamina, AltoDeLamina, lamina.Hdc(), 0, 0, SRCCOPY);
    });
}

/// The platform's own edit fields can't be used by two threads at once: Wine 8 crashes laying out
/// their text (gdi32, out of user32), without any control of ours. One apartment at a time has
/// boxes, while the others have everything else.
class Turno {
  public:
    Turno() { AcquireSRWLockExclusive(&cerrojo_); }
    Turno(const Turno&) = delete;
    Turno& operator=(const Turno&) = delete;
    ~Turno() { ReleaseSRWLockExclusive(&cerrojo_); }

  private:
    static inline SRWLOCK cerrojo_ = SRWLOCK_INIT;
};

TRIVERTEX Vertice(LONG x, LONG y, COLORREF color) {
    const auto canal = [](BYTE valor) { return static_cast<COLOR16>(valor << 8); };
    return {x, y, canal(GetRValue(color)), canal(GetGValue(color)), canal(GetBValue(color)), 0};
}

/// How many pixels differ, and the first of them; empty when the pictures are equal. `hasta` leaves
/// out what lies to the right: scroll bars are the platform's, whose arrows are not always painted.
std::string Diferencia(const Captura& a, const Captura& b, int hasta) {
    int cuantos = 0;
    std::string primero;
    for (int y = 0; y < a.Alto(); ++y)
        for (int x = 0; x < hasta; ++x)
            if (a.Pixel(x, y) != b.Pixel(x, y) && cuantos++ == 0)
                primero = std::to_string(x) + ", " + std::to_string(y);
    return !cuantos ? "" : ": " + std::to_string(cuantos) + " pixels from " + primero;
}

} // namespace

Habitante::Habitante(unsigned numero, Faltas& faltas)
    : azar_(20261122 + numero), faltas_(faltas),
      componente_(Componente::DeFichero(publicado::RutaDelComponente())), forma_([] {
          OpcionesFormulario opciones;
          opciones.ancho = 320;
          opciones.alto = 240;
          return opciones;
      }()),
      efectos_(publicado::Crear(componente_, L"Efectos").Como<IDispatch>()),
      lamina_(AnchoDeLamina, AltoDeLamina), esperada_(AnchoDeLamina, AltoDeLamina),
      propio_(L"hilo" + std::to_wstring(GetCurrentThreadId())) {
    // Beside the others: what a window hides is not seen.
    SetWindowPos(forma_.Ventana(), nullptr, static_cast<int>(numero % 2) * 400,
                 static_cast<int>(numero / 2) * 330, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Habitante::Exigir(bool cierto, const std::string& que) {
    if (!cierto && faltas_.size() < 20)
        faltas_.push_back("turn " + std::to_string(vuelta_) + ": " + que);
}

std::shared_ptr<ControlAlojado> Habitante::Agregar(const wchar_t* clase) {
    return forma_.Agregar(publicado::Crear(componente_, clase), clase, {10, 10, 170, 70});
}

Vista Habitante::Retrato(const wchar_t* clase) {
    SetFocus(nullptr); // another look is for whoever has it
    const auto control = Agregar(clase);
    IDispatch* const d = control->Despacho();
    const auto poner = [d](const wchar_t* nombre, const Variante& valor) {
        if (Tiene(d, nombre))
            Poner(d, nombre, valor);
    };
    poner(L"Caption", L"Retrato");
    poner(L"Text", L"Letras y m\x00E1s letras");
    poner(L"ColorFondo", 0x00C0E0FFL);
    poner(L"EstilosRell", 1L);
    poner(L"ColorDegrade", L"255*65280*16711680");
    const auto fuente = CrearFuente(L"Arial", 14, true);
    for (const wchar_t* nombre : {L"Font", L"Fuente", L"FuenteEtic"})
        if (Tiene(d, nombre))
            PonerRef(d, nombre, static_cast<IDispatch*>(fuente.get()));
    CY puntos{};
    Comprobar(fuente.Como<IFont>()->get_Size(&puntos), "Size");
    Vista vista{Captura::DeVentana(control->Ventana()), puntos.int64};
    forma_.Quitar(*control);
    return vista;
}

Vistas Habitante::Retratar() {
    Vistas vistas;
    for (const wchar_t* clase : Controles)
        vistas.push_back(Retrato(clase));
    return vistas;
}

/// Values of this apartment alone, some of them for the first time in the process.
void Habitante::Vestir(IDispatch* control) {
    const auto poner = [control](const wchar_t* nombre, const Variante& valor) {
        if (Tiene(control, nombre))
            Poner(control, nombre, valor);
    };
    poner(L"Caption", propio_);
    poner(L"Text", propio_);
    poner(L"ColorFondo", Menor(0x1000000));
    poner(L"ColorFondoSobre", Menor(0x1000000));
    poner(L"EstilosRell", Menor(5));
    poner(L"EstilosBord", Menor(5));
    poner(L"TipoLetra", Menor(5));
    poner(L"ToolTipText", propio_);
    poner(L"CambioProgre", Menor(2) == 0);
    poner(L"ColorDegrade", std::to_wstring(Menor(0x1000000)) + L"*0");
}

void Habitante::Releer(const wchar_t* clase, ControlAlojado& control) {
    IDispatch* const d = control.Despacho();
    const std::string nombre = Estrechar(clase);
    const long color = Menor(0x1000000);
    Poner(d, L"ColorFondo", color);
    Exigir(Entero(Leer(d, L"ColorFondo")) == color, nombre + " has another's colour");
    const wchar_t* const texto = EsCaja(clase) ? L"Text" : L"Caption";
    Exigir(Texto(Leer(d, texto)) == propio_, nombre + " has another's text");
    // What can't be converted is an exception inside, and a status here.
    try {
        Poner(d, L"ColorFondo", L"ninguno");
        Exigir(false, nombre + " takes a word for a colour");
    } catch (const FalloCom& fallo) {
        Exigir(fallo.estado == DISP_E_TYPEMISMATCH, nombre + " says another status");
    }
    const wchar_t* const propiedad = EsCaja(clase) ? L"Fuente" : L"Font";
    PonerRef(d, propiedad,
             static_cast<IDispatch*>(CrearFuente(L"Arial", 6 + Menor(20), false).get()));
    if (const HWND campo = GetWindow(control.Ventana(), GW_CHILD); campo && EsCaja(clase)) {
        // The platform rounds the size to what there is.
        CY puntos{};
        const Variante fuente = Leer(d, propiedad);
        Comprobar(Puntero<IDispatch>(fuente.pdispVal).Como<IFont>()->get_Size(&puntos), "Size");
        LOGFONTW hecha{};
        const auto manija = reinterpret_cast<HFONT>(SendMessageW(campo, WM_GETFONT, 0, 0));
        Exigir(GetObjectW(manija, sizeof hecha, &hecha) != 0, nombre + " has no font");
        Exigir(hecha.lfHeight == -std::lround(static_cast<double>(puntos.int64) / 10000 * 96 / 72),
               nombre + " has a font of another size");
    }
}

void Habitante::Teclear(const wchar_t* clase, ControlAlojado& control) {
    const HWND campo = GetWindow(control.Ventana(), GW_CHILD);
    if (!EsCaja(clase) || !campo)
        return;
    Poner(control.Despacho(), L"Text", propio_);
    SendMessageW(campo, EM_SETSEL, propio_.size(), static_cast<LPARAM>(propio_.size()));
    std::wstring esperado = propio_;
    for (int i = 0; i < 6; ++i) {
        const auto letra = static_cast<wchar_t>(L'a' + Menor(26));
        esperado += letra;
        if (i % 2)
            SendMessageW(campo, WM_CHAR, static_cast<WPARAM>(letra), 1);
        else {
            PostMessageW(campo, WM_CHAR, static_cast<WPARAM>(letra), 1);
            forma_.BombearMensajes();
        }
    }
    Exigir(Texto(Leer(control.Despacho(), L"Text")) == esperado,
           Estrechar(clase) + " holds what was not typed");
}

void Habitante::Guardar(const wchar_t* clase, ControlAlojado& control) {
    const auto flujo = publicado::FlujoDe({});
    Comprobar(control.Como<IPersistStreamInit>()->Save(flujo.get(), TRUE), "Save");
    const auto otro = publicado::Crear(componente_, clase);
    Comprobar(otro.Como<IPersistStreamInit>()->Load(
                  publicado::FlujoDe(publicado::BytesDe(flujo.get())).get()),
              "Load");
    // A box with a caption does not keep its text.
    const bool conTitulo = Tiene(control.Despacho(), L"Caption");
    for (const wchar_t* nombre : {L"ColorFondo", conTitulo ? L"Caption" : L"Text"})
        Exigir(Mostrar(Leer(otro.Como<IDispatch>().get(), nombre)) ==
                   Mostrar(Leer(control.Despacho(), nombre)),
               Estrechar(clase) + " comes back with another " + Estrechar(nombre));
}

/// The mouse, with the timers that it wakes, and another size.
void Habitante::Manosear(ControlAlojado& control) {
    const HWND ventana = control.Ventana();
    for (const UINT mensaje : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP})
        SendMessageW(ventana, mensaje, 0, MAKELPARAM(8, 8));
    const RECT antes = control.Rectangulo();
    control.Mover({antes.left, antes.top, antes.right + Menor(60), antes.bottom + Menor(60)});
    RedrawWindow(ventana, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    forma_.Esperar(static_cast<DWORD>(Menor(20)));
}

/// The same fill by the component and by the platform itself.
void Habitante::Degradar() {
    const auto uno = static_cast<COLORREF>(Menor(0x1000000)),
               otro = static_cast<COLORREF>(Menor(0x1000000));
    const bool vertical = Menor(2) == 0;
    Llamar(efectos_.get(), L"Degrade",
           {lamina_.Numero(), static_cast<long>(AnchoDeLamina), static_cast<long>(AltoDeLamina),
            vertical ? 2L : 1L, std::to_wstring(uno) + L"*" + std::to_wstring(otro)});
    TRIVERTEX vertices[] = {Vertice(0, 0, uno), Vertice(AnchoDeLamina, AltoDeLamina, otro)};
    GRADIENT_RECT todo{0, 1};
    GradientFill(esperada_.Hdc(), vertices, 2, &todo, 1,
                 vertical ? GRADIENT_FILL_RECT_V : GRADIENT_FILL_RECT_H);
    Exigir(DeLamina(lamina_) == DeLamina(esperada_), "a gradient has other colours");
}

/// Makes one of each, uses them, and looks at one more.
void Habitante::Usar(Clases clases, const Vistas& modelos) {
    std::vector<std::shared_ptr<ControlAlojado>> controles;
    for (const wchar_t* clase : clases) {
        controles.push_back(Agregar(clase));
        controles.back()->Conectar([](Evento&) {});
        Vestir(controles.back()->Despacho());
    }
    for (std::size_t i = 0; i < clases.size(); ++i) {
        Releer(clases[i], *controles[i]);
        Teclear(clases[i], *controles[i]);
        Guardar(clases[i], *controles[i]);
        Manosear(*controles[i]);
        Degradar();
    }
    for (const auto& control : controles)
        Exigir(forma_.Quitar(*control) == 0, "a control stays behind");
    const auto cual = static_cast<std::size_t>(Menor(static_cast<long>(clases.size())));
    const Vista& modelo = modelos[static_cast<std::size_t>(&clases[cual] - Controles.data())];
    const Vista vista = Retrato(clases[cual]);
    if (vista.puntos != modelo.puntos)
        return;
    const bool conBarra = std::wstring_view(clases[cual]).ends_with(L"ML");
    const std::string distinto =
        Diferencia(vista.imagen, modelo.imagen, modelo.imagen.Ancho() - (conBarra ? 30 : 0));
    Exigir(distinto.empty(), Estrechar(clases[cual]) + " looks different" + distinto);
}

void Habitante::Vuelta(const Vistas& modelos) {
    constexpr std::size_t SinCampo = 2;
    ++vuelta_;
    const Clases todas(Controles);
    Usar(todas.first(SinCampo), modelos);
    const Turno turno;
    Usar(todas.subspan(SinCampo), modelos);
}

} // namespace hilos
