#include "galeria/disenador/mesa.h"

#include "anfitrion/captura.h"
#include "anfitrion/formulario_texto.h"
#include "anfitrion/imagenes.h"
#include "galeria/trazos.h"

#include <algorithm>

namespace galeria {

using namespace anfitrion;
using diseno::Caja;
using diseno::Punto;

namespace {

constexpr int Paso96 = 8;
constexpr COLORREF Papel = RGB(255, 255, 255);
constexpr COLORREF Puntito = RGB(176, 186, 200);

OpcionesFormulario Opciones(HWND padre, SIZE medida) {
    OpcionesFormulario opciones;
    opciones.padre = padre;
    opciones.ancho = medida.cx;
    opciones.alto = medida.cy;
    opciones.ambiente.fuente = CrearFuente(L"Arial", 9);
    opciones.ambiente.colorFondo = Papel;
    opciones.ambiente.modoUsuario = false;
    return opciones;
}

void PintarPuntos(HDC hdc, const RECT& sucio, int paso) {
    const int lado = Grueso();
    for (LONG y = sucio.top - sucio.top % paso; y < sucio.bottom; y += paso)
        for (LONG x = sucio.left - sucio.left % paso; x < sucio.right; x += paso)
            Llenar(hdc, {x, y, x + lado, y + lado}, Puntito);
}

/// A mark that is on for the length of a call.
class Encendida {
  public:
    explicit Encendida(bool& marca) : marca_(marca), antes_(std::exchange(marca, true)) {}
    Encendida(const Encendida&) = delete;
    Encendida& operator=(const Encendida&) = delete;
    ~Encendida() { marca_ = antes_; }

  private:
    bool& marca_;
    bool antes_;
};

std::wstring Explicar(const FalloCom& fallo) {
    if (!fallo.descripcion.empty())
        return fallo.descripcion;
    switch (fallo.estado) {
    case DISP_E_TYPEMISMATCH:
        return L"el valor no es del tipo que se espera";
    case DISP_E_OVERFLOW:
        return L"el número no cabe";
    case E_OUTOFMEMORY:
        return L"no queda memoria";
    default:
        wchar_t numero[16];
        wsprintfW(numero, L"0x%08X", static_cast<unsigned>(fallo.estado));
        return std::wstring(L"error ") + numero;
    }
}

} // namespace

Mesa::Mesa(const Componente& componente, HWND padre, SIZE medida)
    : componente_(componente), forma_(Opciones(padre, medida)),
      adornos_(forma_.Ventana()), rejilla_{Escala(Paso96)} {
    forma_.alPintar = [this](HDC hdc, const RECT& sucio) {
        Llenar(hdc, sucio, Papel);
        if (!Ejecutando())
            PintarPuntos(hdc, sucio, rejilla_.paso);
    };
    forma_.alSeleccionar = [this] {
        if (!cambiando_)
            historia_.Actual().seleccion = NombresElegidos(forma_);
        MostrarAdornos();
        if (alCambiar)
            alCambiar();
    };
    forma_.alPedirPropiedades = [this](ControlAlojado&) {
        EditarPropiedades();
        return true;
    };
    forma_.alDisenar = [this](UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado) {
        return Tocar(mensaje, w, l, resultado);
    };
    forma_.alTeclear = [this](const MSG& mensaje) { return Teclear(mensaje); };
    historia_.Empezar(Retratar(forma_, examinador_));
}

void Mesa::Avisar(const std::wstring& texto) const {
    if (alAvisar)
        alAvisar(texto);
}

void Mesa::MostrarAdornos() {
    std::vector<Caja> cajas;
    if (!Ejecutando())
        for (const auto& control : forma_.Seleccion())
            cajas.push_back(CajaDe(control));
    adornos_.Mostrar(cajas);
}

/// In design mode a panel frames what stands on it as it is shown: it is shown anew where that has
/// changed.
void Mesa::MarcarPaneles() {
    std::map<const ControlAlojado*, std::wstring> marcados;
    for (const auto& control : Controles(forma_.Controles())) {
        if (!EsPanel(control))
            continue;
        std::wstring& lugares = marcados[control.get()];
        for (const auto& otro : forma_.ControlesEn(control.get())) {
            const RECT& r = otro->Rectangulo();
            for (const LONG lado : {r.left, r.top, r.right, r.bottom})
                lugares += std::to_wstring(lado) + L" ";
        }
        if (lugares == marcados_[control.get()] || Ejecutando())
            continue;
        control->Verbo(OLEIVERB_HIDE);
        control->Verbo(OLEIVERB_SHOW);
    }
    marcados_ = std::move(marcados);
}

Caja Mesa::CajaDe(const Control& control) const {
    RECT r = control->Rectangulo();
    MapWindowPoints(control->VentanaPadre(), forma_.Ventana(), reinterpret_cast<POINT*>(&r), 2);
    return {static_cast<int>(r.left), static_cast<int>(r.top), static_cast<int>(r.right),
            static_cast<int>(r.bottom)};
}

Caja Mesa::Interior(const Control& panel, const Caja& caja) const {
    POINT esquina{};
    if (panel)
        MapWindowPoints(panel->Ventana(), forma_.Ventana(), &esquina, 1);
    return caja.Movida(-static_cast<int>(esquina.x), -static_cast<int>(esquina.y));
}

void Mesa::PonerCaja(const Control& control, const Caja& caja) {
    const Caja suya = Interior(control->Dentro(), caja);
    control->Mover({suya.izquierda, suya.arriba, suya.derecha, suya.abajo});
}

// What can be undone

void Mesa::Recordar(const std::string& seguido) {
    historia_.Anotar(Retratar(forma_, examinador_), seguido);
    MarcarPaneles();
    MostrarAdornos();
    if (alCambiar)
        alCambiar();
}

void Mesa::Volver(const Foto& foto) {
    const Encendida cambiando(cambiando_);
    try {
        Restaurar(forma_, componente_, examinador_, foto);
    } catch (const FalloCom& fallo) {
        Avisar(L"No se pudo volver atrás: " + Explicar(fallo) + L".");
    }
    MarcarPaneles();
    MostrarAdornos();
}

bool Mesa::Cambiar(const std::function<void()>& cambio, const std::string& seguido,
                   const std::wstring& nombre) {
    const Foto antes = historia_.Actual();
    const Encendida cambiando(cambiando_);
    try {
        cambio();
    } catch (const FalloCom& fallo) {
        Volver(antes);
        Avisar((nombre.empty() ? L"No se pudo hacer" : nombre) + L": " + Explicar(fallo) + L".");
        return false;
    }
    Avisar(L"");
    Recordar(seguido);
    return true;
}

// The form as a whole

std::wstring Mesa::Texto() const {
    return EscribirFormulario(forma_);
}

bool Mesa::PonerTexto(const std::wstring& texto) {
    if (Ejecutando())
        Ejecutar();
    try {
        forma_.Seleccionar({});
        LeerFormulario(forma_, componente_, texto);
    } catch (const ErrorDeFormulario& error) {
        Avisar(L"Eso no es un formulario. " + error.texto);
        return false;
    } catch (const FalloCom& fallo) {
        Avisar(L"No se pudo abrir el formulario: " + Explicar(fallo) + L".");
        return false;
    }
    historia_.Empezar(Retratar(forma_, examinador_));
    MarcarPaneles();
    Avisar(L"");
    if (alCambiar)
        alCambiar();
    return true;
}

void Mesa::PonerMedida(const SIZE& medida) {
    Cambiar([&] { forma_.PonerMedida(medida); });
}

void Mesa::ExportarPng(const std::wstring& ruta) {
    // As it runs: in design mode a panel marks what stands on it.
    const bool disenando = !Ejecutando();
    const Controles elegidos = Seleccion();
    if (disenando)
        forma_.PonerModoUsuario(true);
    const SIZE medida = forma_.Medida();
    const Captura imagen = Captura::DeDibujo(medida.cx, medida.cy, [&](HDC hdc) {
        Llenar(hdc, {0, 0, medida.cx, medida.cy}, Papel);
        forma_.Dibujar(hdc);
    });
    if (disenando) {
        forma_.PonerModoUsuario(false);
        forma_.Seleccionar(elegidos);
    }
    imagen.GuardarPng(ruta);
}

} // namespace galeria
