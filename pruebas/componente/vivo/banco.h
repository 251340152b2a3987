// A control on a form, a button unless another is asked for, its events written down, and the
// hands that use it.
#pragma once

#include "anfitrion/captura.h"
#include "anfitrion/formulario.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

/// Lists of events are worth reading when they differ.
template <>
struct doctest::StringMaker<std::vector<std::string>> {
    static doctest::String convert(const std::vector<std::string>& lineas) {
        std::string texto;
        for (const std::string& linea : lineas)
            texto += (texto.empty() ? "" : " | ") + linea;
        return texto.c_str();
    }
};

namespace vivo {

using namespace anfitrion;
using Hechos = std::vector<std::string>;

/// OLE for the length of the program: some tests let go of the component after their bench.
inline void AbrirOle() {
    [[maybe_unused]] static const HRESULT abierta = OleInitialize(nullptr);
}

/// The component file that lies beside this program.
inline std::wstring RutaComponente() {
    wchar_t ruta[MAX_PATH];
    GetModuleFileNameW(nullptr, ruta, MAX_PATH);
    std::wstring texto = ruta;
    return texto.substr(0, texto.find_last_of(L'\\') + 1) + L"Pincela.ocx";
}

/// "MouseMove 0 0 5 6"
inline std::string Describir(const Evento& evento) {
    std::string linea = Estrechar(evento.nombre);
    for (const VARIANT* argumento : evento.argumentos)
        linea += " " + Estrechar(Texto(*argumento));
    return linea;
}

// The mouse and the keyboard, as the user moves them.

inline void Raton(DWORD banderas) {
    INPUT entrada{};
    entrada.type = INPUT_MOUSE;
    entrada.mi.dwFlags = banderas;
    SendInput(1, &entrada, sizeof entrada);
}

inline void LlevarRaton(HWND ventana, int x, int y) {
    POINT punto{x, y};
    ClientToScreen(ventana, &punto);
    SetCursorPos(punto.x, punto.y);
}

inline void Tecla(WORD tecla, bool abajo) {
    INPUT entrada{};
    entrada.type = INPUT_KEYBOARD;
    entrada.ki.wVk = tecla;
    entrada.ki.wScan = static_cast<WORD>(MapVirtualKeyW(tecla, MAPVK_VK_TO_VSC));
    entrada.ki.dwFlags = abajo ? 0 : KEYEVENTF_KEYUP;
    SendInput(1, &entrada, sizeof entrada);
}

/// A form of 300 x 200 pixels with one control of 120 x 40 at (40, 40).
class Banco {
  public:
    static constexpr RECT Lugar{40, 40, 160, 80};

    explicit Banco(OpcionesFormulario opciones = {}, const wchar_t* clase = L"Pincela.Botonazo") {
        AbrirOle();
        componente = Componente::DeFichero(RutaComponente());
        registro = std::make_shared<Registro>();
        opciones.registro = registro;
        opciones.ancho = 300;
        opciones.alto = 200;
        forma = std::make_unique<Formulario>(opciones);
        SetCursorPos(1200, 1000);
        SetForegroundWindow(forma->Ventana());
        boton = Agregar(L"Boton", Lugar, clase);
        sumidero = boton->Conectar([this](Evento& evento) { Anotar(evento); });
        forma->BombearMensajes();
        Olvidar();
    }
    Banco(const Banco&) = delete;
    Banco& operator=(const Banco&) = delete;

    std::shared_ptr<ControlAlojado> Agregar(const std::wstring& nombre, const RECT& lugar,
                                            const wchar_t* clase = L"Pincela.Botonazo") {
        return forma->Agregar(componente, componente.Clase(clase), nombre, lugar);
    }

    /// A text box of the application's own at the bottom of the form, in the tab order.
    HWND AgregarTexto(long orden, int x = 10) {
        const HWND texto = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, x, 150, 60, 20,
                                           forma->Ventana(), nullptr, nullptr, nullptr);
        forma->AgregarVentana(texto, orden);
        return texto;
    }

    void Poner(const wchar_t* nombre, const Variante& valor) {
        anfitrion::Poner(boton->Despacho(), nombre, valor);
    }
    Variante Leer(const wchar_t* nombre) { return anfitrion::Leer(boton->Despacho(), nombre); }

    HWND Ventana() const { return boton->Ventana(); }
    LRESULT Enviar(UINT mensaje, WPARAM w, int x, int y) {
        return SendMessageW(Ventana(), mensaje, w, MAKELPARAM(x, y));
    }
    void Pulsacion(WPARAM tecla) {
        SendMessageW(Ventana(), WM_KEYDOWN, tecla, 1);
        SendMessageW(Ventana(), WM_KEYUP, tecla, static_cast<LPARAM>(0xC0000001));
    }

    // True input; each waits until it has arrived.
    void Entrar(int x = 5, int y = 5) {
        LlevarRaton(Ventana(), x, y);
        Esperar();
    }
    void Salir() {
        LlevarRaton(forma->Ventana(), 280, 10);
        Esperar();
    }
    void Boton(DWORD banderas) {
        Raton(banderas);
        Esperar();
    }
    void Clic() {
        Boton(MOUSEEVENTF_LEFTDOWN);
        Boton(MOUSEEVENTF_LEFTUP);
    }
    void Teclear(WORD tecla) {
        Tecla(tecla, true);
        Esperar();
        Tecla(tecla, false);
        Esperar();
    }
    void Esperar(DWORD milisegundos = 60) { forma->Esperar(milisegundos); }

    /// How often an event was raised, whatever it brought.
    int Veces(const std::string& nombre) const {
        int veces = 0;
        for (const std::string& hecho : hechos)
            veces += hecho.substr(0, hecho.find(' ')) == nombre;
        return veces;
    }
    /// The last event of that name, with its arguments.
    std::string Ultimo(const std::string& nombre) const {
        for (auto i = hechos.rbegin(); i != hechos.rend(); ++i)
            if (i->substr(0, i->find(' ')) == nombre)
                return *i;
        return {};
    }
    /// Everything but the paintings and the moves, which the platform counts as it likes.
    Hechos Sucesos() const {
        Hechos otros;
        for (const std::string& hecho : hechos)
            if (hecho != "Paint" && hecho.rfind("MouseMove", 0) != 0)
                otros.push_back(hecho);
        return otros;
    }
    void Olvidar() {
        hechos.clear();
        registro->Vaciar();
    }

    /// Colour in the middle of what the window shows.
    COLORREF Centro() const { return Captura::DeVentana(Ventana()).Pixel(60, 8); }

    Componente componente;
    std::shared_ptr<Registro> registro;
    std::unique_ptr<Formulario> forma;
    std::shared_ptr<ControlAlojado> boton;
    Puntero<SumideroEventos> sumidero;
    Hechos hechos;
    std::function<void(Evento&)> alOcurrir;

  private:
    void Anotar(Evento& evento) {
        hechos.push_back(Describir(evento));
        if (const auto manejador = alOcurrir)
            manejador(evento);
    }
};

} // namespace vivo
