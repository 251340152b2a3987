// The list of properties as a window: names at the left, values at the right, edited in their
// place.
#pragma once

#include "galeria/disenador/dialogos.h"
#include "galeria/disenador/hoja_propiedades.h"

namespace galeria {

class ListaPropiedades {
  public:
    /// Windows of `padre`.
    ListaPropiedades(HWND padre, HFONT fuente, HojaPropiedades& hoja, Dialogos& dialogos);
    ListaPropiedades(const ListaPropiedades&) = delete;
    ListaPropiedades& operator=(const ListaPropiedades&) = delete;
    ~ListaPropiedades();

    HWND Ventana() const { return lista_; }
    void Colocar(const RECT& lugar) const;
    /// Reads the sheet anew; the property that was chosen stays so where there is one of its name.
    void Leer();
    /// The messages of its parent that it takes part in; true: done.
    bool Recibir(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado);

    /// Chooses a row by its name; false when there is none.
    bool Elegir(const std::wstring& nombre);
    /// Opens the editor in the chosen row: a field, or a list where there are values to choose
    /// from.
    void Editar();
    /// Asks the platform's dialog for a colour, a font or a picture.
    void Preguntar();
    /// The window that edits; null when none is open.
    HWND Editor() const { return editor_; }

    std::function<void(const std::wstring& nombre, const std::wstring& ayuda)> alElegir;

  private:
    static LRESULT CALLBACK ProcesarLista(HWND ventana, UINT mensaje, WPARAM w, LPARAM l, UINT_PTR,
                                          DWORD_PTR este);
    static LRESULT CALLBACK ProcesarEditor(HWND ventana, UINT mensaje, WPARAM w, LPARAM l, UINT_PTR,
                                           DWORD_PTR este);
    bool TratarLista(UINT mensaje, WPARAM w, LPARAM l);
    bool TratarEditor(UINT mensaje, WPARAM w);
    void Pintar(const DRAWITEMSTRUCT& pedido) const;
    void PintarValor(HDC hdc, RECT r, const Renglon& renglon, COLORREF letra) const;
    const Renglon* Elegido() const;
    RECT LugarDelValor() const;
    RECT LugarDelBoton() const;
    void AbrirEditor(bool opciones);
    /// Hands over what was written; when it is refused the editor stays, unless it has to close.
    bool Aceptar(bool cerrar);
    void Cerrar();
    void Siguiente();
    void Borrar();
    void Avisar() const;

    HWND lista_;
    HFONT fuente_;
    HojaPropiedades& hoja_;
    Dialogos& dialogos_;
    HWND editor_ = nullptr;
    std::size_t editado_ = 0; ///< row of the editor
    bool aceptando_ = false;
};

/// Values to choose from, or a dialog of the platform.
bool ConOpciones(const anfitrion::Propiedad& propiedad);
bool ConDialogo(const anfitrion::Propiedad& propiedad);

/// Of the button at the right end of the chosen row, in pixels.
int AnchoDelBoton();

} // namespace galeria
