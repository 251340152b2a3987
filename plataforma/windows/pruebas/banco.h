// The bench the environment is tried on: a recording site and control in a real window.
#pragma once

#include "plataforma/windows/entorno_windows.h"

#include <functional>
#include <string>
#include <vector>

namespace pincela::windows::pruebas {

/// Writes down what the environment asks of its object.
class SitioDePrueba final : public SitioControl {
  public:
    std::vector<std::string> hechos;
    std::vector<NumeroError> errores;
    bool congelado = false;
    int sostenidos = 0;
    int mayorSosten = 0;
    int vistasCambiadas = 0;
    std::function<bool(UINT, LRESULT*)> alMensaje;

    void PropertyChanged(VistaTexto) override { hechos.push_back("PropertyChanged"); }
    bool CanPropertyChange(VistaTexto) override { return true; }
    Fuente AmbientFont() override { return nullptr; }
    bool UserMode() override { return true; }
    bool DisplayAsDefault() override { return false; }
    void AccesibleCambiado() override {}
    void AccessKeysChanged() override { hechos.push_back("AccessKeysChanged"); }
    bool VistaCambiada() override { return ++vistasCambiadas > 0; }
    void PedirFoco() override { hechos.push_back("PedirFoco"); }
    void FocoCambiado(bool dentro) override {
        hechos.push_back(dentro ? "FocoCambiado si" : "FocoCambiado no");
    }
    void EnviarTab() override { hechos.push_back("EnviarTab"); }
    void MoverFoco(bool atras) override {
        hechos.push_back(atras ? "MoverFoco atras" : "MoverFoco");
    }
    void ControlesContenidos(const std::function<void(ControlContenido&)>&) override {}
    bool EntradaCongelada() override { return congelado; }
    bool Mensaje(HWND, UINT mensaje, WPARAM, LPARAM, LRESULT* resultado) override {
        return alMensaje && alMensaje(mensaje, resultado);
    }
    void ErrorEnNotificacion(const ErrorEjecucion& error) noexcept override {
        errores.push_back(error.Numero());
    }
    void Sostener() override {
        if (++sostenidos > mayorSosten)
            mayorSosten = sostenidos;
    }
    void Soltar() override { --sostenidos; }
};

/// Writes down what it is told, as "MouseDown 1 0 10 5".
class ControlDePrueba final : public ControlUsuario {
  public:
    explicit ControlDePrueba(std::vector<std::string>& hechos) : hechos_(hechos) {}
    std::function<void(const std::string&)> alOcurrir;

    void InitProperties() override {}
    void ReadProperties(BolsaPropiedades&) override {}
    void WriteProperties(BolsaPropiedades&) override {}
    void Resize() override { Anotar("Resize"); }
    void Paint() override { Anotar("Paint"); }
    void Terminate() override {}
    void EnterFocus() override { Anotar("EnterFocus"); }
    void ExitFocus() override { Anotar("ExitFocus"); }
    void Click() override { Anotar("Click"); }
    void MouseDown(std::int16_t b, std::int16_t s, float x, float y) override;
    void MouseMove(std::int16_t b, std::int16_t s, float x, float y) override;
    void MouseUp(std::int16_t b, std::int16_t s, float x, float y) override;
    void KeyDown(std::int16_t& codigo, std::int16_t shift) override;
    void KeyPress(std::int16_t& caracter) override;
    void KeyUp(std::int16_t& codigo, std::int16_t shift) override;

    void Anotar(std::string hecho);

  private:
    std::vector<std::string>& hechos_;
};

/// Mouse of a widget, written down with a prefix.
class OyenteDePrueba final : public OyenteRaton {
  public:
    OyenteDePrueba(ControlDePrueba& control, std::string nombre)
        : control_(control), nombre_(std::move(nombre)) {}
    void Click() override { control_.Anotar(nombre_ + ".Click"); }
    void MouseDown(std::int16_t b, std::int16_t s, float x, float y) override;
    void MouseMove(std::int16_t b, std::int16_t s, float x, float y) override;
    void MouseUp(std::int16_t b, std::int16_t s, float x, float y) override;

  private:
    ControlDePrueba& control_;
    std::string nombre_;
};

std::string Golpe(const char* nombre, std::int16_t b, std::int16_t s, float x, float y);

/// A visible top-level window of one colour.
class Marco {
  public:
    explicit Marco(COLORREF color = RGB(10, 20, 30));
    Marco(const Marco&) = delete;
    Marco& operator=(const Marco&) = delete;
    ~Marco();
    HWND ventana() const { return ventana_; }

  private:
    HWND ventana_;
};

/// Pixels of a picture in memory, 0xRRGGBB.
class Foto {
  public:
    Foto(int ancho, int alto, COLORREF fondo = RGB(255, 0, 255));
    Foto(const Foto&) = delete;
    Foto& operator=(const Foto&) = delete;
    ~Foto();
    HDC dc() const { return dc_; }
    std::uint32_t operator()(int x, int y) const;
    int Ancho() const { return ancho_; }
    int Alto() const { return alto_; }
    int Cuantos(std::uint32_t color, RECT donde) const;
    void Guardar(const wchar_t* fichero) const;

  private:
    int ancho_, alto_;
    HDC dc_;
    HBITMAP mapa_;
    HGDIOBJ original_;
    std::uint32_t* pixeles_ = nullptr;
};

/// Lets messages be handled for some milliseconds.
void Bombear(DWORD milisegundos);
/// Handles of GDI objects alive in this process.
int ObjetosGdi();

struct Banco {
    explicit Banco(int ancho = 100, int alto = 30);
    ~Banco();

    HWND Activar();
    /// Size of the surface as the control asked for it last.
    Foto& Fotografiar();

    std::vector<std::string> hechos() const { return sitio.hechos; }
    void Olvidar() { sitio.hechos.clear(); }

    Marco marco;
    SitioDePrueba sitio;
    ControlDePrueba control{sitio.hechos};
    std::unique_ptr<EntornoWindows> entorno;
    std::unique_ptr<Foto> foto;
};

LPARAM Punto(int x, int y);

} // namespace pincela::windows::pruebas
