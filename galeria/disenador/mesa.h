// The form on the designer's table: what can be done with it, by mouse, by keys or by command.
#pragma once

#include "galeria/disenador/adornos.h"
#include "galeria/disenador/foto.h"
#include "galeria/diseno/gesto.h"
#include "galeria/diseno/historia.h"

#include <functional>
#include <map>
#include <optional>
#include <string>

namespace galeria {

/// Commands that need to be told nothing else.
enum class Orden {
    Deshacer,
    Rehacer,
    Cortar,
    Copiar,
    Pegar,
    Eliminar,
    ElegirTodo,
    AlFrente,
    AlFondo,
    Propiedades,
    Ejecutar ///< or back to design
};

class Mesa {
  public:
    using Control = std::shared_ptr<anfitrion::ControlAlojado>;
    using Controles = std::vector<Control>;

    /// The form is a child window of `padre`; sizes in pixels.
    Mesa(const anfitrion::Componente& componente, HWND padre, SIZE medida);
    Mesa(const Mesa&) = delete;
    Mesa& operator=(const Mesa&) = delete;

    anfitrion::Formulario& Forma() { return forma_; }
    const anfitrion::Formulario& Forma() const { return forma_; }
    Examinador& ElExaminador() { return examinador_; }
    bool Ejecutando() const { return forma_.ModoUsuario(); }
    const Controles& Seleccion() const { return forma_.Seleccion(); }

    // The form as a whole

    std::wstring Texto() const;
    /// Undoing begins anew. False, and the user is told, when the text is no form.
    bool PonerTexto(const std::wstring& texto);
    /// What the container draws of it, as it looks when it runs. Throws FalloCom.
    void ExportarPng(const std::wstring& ruta);
    void PonerMedida(const SIZE& medida);

    // Commands

    bool Puede(Orden orden) const;
    void Hacer(Orden orden);
    /// Class that the next press of the mouse places; empty for none.
    void TomarHerramienta(const std::wstring& clase);
    const std::wstring& Herramienta() const { return herramienta_; }
    /// A new control of the class, chosen; without a place it gets one of the usual size. Null, and
    /// the user is told, when it can't be made.
    Control Colocar(const std::wstring& clase, std::optional<diseno::Caja> caja = {});
    /// Moves the chosen ones, or makes them larger, in pixels.
    void Empujar(int dx, int dy, bool medida);
    /// False, and the user is told, when the name is no name or is taken.
    bool Renombrar(const Control& control, const std::wstring& nombre);
    /// Does something with the form that can be undone. When it throws FalloCom everything is as it
    /// was, and the user is told, after the name of what was being changed; false then. Changes
    /// that follow each other under the same `seguido` are undone at once.
    bool Cambiar(const std::function<void()>& cambio, const std::string& seguido = {},
                 const std::wstring& nombre = {});

    /// Tells the user; an empty text takes back what was told.
    void Avisar(const std::wstring& texto) const;

    diseno::Caja CajaDe(const Control& control) const;
    int Paso() const { return rejilla_.paso; }

    std::function<void()> alCambiar; ///< selection, content or mode
    std::function<void(const std::wstring&)> alAvisar;
    std::function<void()> alSoltarHerramienta;
    /// A running control tells something.
    std::function<void(const std::wstring&, const anfitrion::Evento&)> alOir;
    /// A key that the table has no use for; true: done.
    std::function<bool(const MSG&)> alTeclear;

  private:
    // mesa.cpp
    void Recordar(const std::string& seguido = {});
    void Volver(const Foto& foto);
    void Copiar();
    void Pegar();
    void Eliminar();
    void Apilar(bool alFrente);
    void EditarPropiedades();
    void Ejecutar();
    Control PanelElegido() const;
    Control PanelEn(diseno::Punto punto) const;
    diseno::Caja Interior(const Control& panel, const diseno::Caja& caja) const;
    void PonerCaja(const Control& control, const diseno::Caja& caja);
    void MostrarAdornos();
    void MarcarPaneles();

    // mesa_raton.cpp
    bool Tocar(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado);
    void Apretar(diseno::Punto punto, bool sumar);
    void ApretarControl(const Control& control, diseno::Punto punto, bool sumar);
    void Arrastrar(diseno::Punto punto);
    void SoltarBoton();
    void Abandonar();
    void ElegirEn(const diseno::Caja& banda);
    void PonerCursor(diseno::Punto punto) const;
    void Menu(POINT pantalla);
    diseno::Agarre AgarreEn(diseno::Punto punto) const;

    // mesa_teclado.cpp
    bool Teclear(const MSG& mensaje);
    bool TeclearDiseno(WPARAM tecla);
    bool TeclearConControl(WPARAM tecla);
    void Siguiente(bool atras);

    anfitrion::Componente componente_;
    anfitrion::Formulario forma_;
    Examinador examinador_;
    Adornos adornos_;
    diseno::Rejilla rejilla_;
    diseno::Historia<Foto> historia_;
    std::optional<Foto> antesDeEjecutar_;
    /// Who hears each control while the form runs.
    std::vector<std::pair<Control, anfitrion::Puntero<anfitrion::SumideroEventos>>> oidos_;
    std::wstring herramienta_;
    /// Places of what stands on each panel, as it was when the panel marked it.
    std::map<const anfitrion::ControlAlojado*, std::wstring> marcados_;
    std::optional<diseno::Gesto> gesto_;
    Controles arrastrados_;  ///< in the order of the drag's boxes
    bool sumando_ = false;   ///< the rubber band adds to what is chosen
    bool cambiando_ = false; ///< what is chosen now belongs to the state to come
};

/// Whether other controls can stand on it.
bool EsPanel(const Mesa::Control& control);

/// Without those that stand on another one of them, in the order of the form.
Mesa::Controles Raices(const anfitrion::Formulario& forma, const Mesa::Controles& controles);

} // namespace galeria
