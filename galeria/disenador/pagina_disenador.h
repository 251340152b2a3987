// Page of the gallery on which forms are designed: controls to be placed, the form, and what it or
// its controls are like.
#pragma once

#include "galeria/diario.h"
#include "galeria/disenador/barra.h"
#include "galeria/disenador/dialogos.h"
#include "galeria/disenador/lista_propiedades.h"
#include "galeria/disenador/mirador.h"
#include "galeria/lamina.h"
#include "galeria/pagina.h"

#include <array>

namespace galeria {

class PaginaDisenador final : public Pagina {
  public:
    /// A null component leaves the page without a form.
    PaginaDisenador(const std::optional<anfitrion::Componente>& componente, HWND padre);
    ~PaginaDisenador() override;

    anfitrion::Formulario& Forma() override { return marco_; }
    void Armar() override;
    void Abrir() override;
    /// Puts a sample on the table and chooses something of it.
    void Ensayar() override;

    /// Null without a component.
    Mesa* LaMesa() { return mesa_.get(); }
    ListaPropiedades* Lista() { return lista_.get(); }
    HojaPropiedades* Hoja() { return hoja_.get(); }
    Dialogos& LosDialogos() { return dialogos_; }
    /// Takes a form as text; the user is told when it is none.
    void Recibir(const std::wstring& texto);
    std::wstring Estado() const;

    // What the buttons do
    void Abrirlo();
    void Guardarlo();
    void Exportarlo();

  private:
    void PonerOrdenes();
    void PonerHerramientas();
    void Pintar(HDC hdc) const;
    void PintarAyuda(HDC hdc) const;
    bool Tratar(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado);
    bool Atajo(const MSG& mensaje);
    bool AtajoConControl(WPARAM tecla);
    void OtroPanel();
    void Actualizar();
    void ActualizarObjetos();
    void Avisar(const std::wstring& texto);
    void Herramienta(const std::wstring& clase);
    HWND OrdenDe(Orden orden, const wchar_t* texto, int ancho);

    std::optional<anfitrion::Componente> componente_;
    FuenteGdi texto_, negrita_;
    anfitrion::Formulario marco_;
    Dialogos dialogos_ = Dialogos::DeLaPlataforma();
    Barra ordenes_, herramientas_;
    Mirador mirador_;
    Diario diario_;
    HWND objetos_, estado_, medida_;
    HWND ejecutar_ = nullptr;
    std::unique_ptr<Mesa> mesa_;
    std::unique_ptr<HojaPropiedades> hoja_;
    std::unique_ptr<ListaPropiedades> lista_;
    struct BotonDeOrden {
        HWND ventana;
        Orden orden;
    };
    std::vector<BotonDeOrden> deOrden_;
    struct BotonDeClase {
        HWND ventana;
        std::wstring clase; ///< empty: the pointer
    };
    std::vector<BotonDeClase> deClase_;
    std::wstring propiedad_, ayuda_;
    bool aviso_ = false; ///< the status line tells of something refused
};

} // namespace galeria
