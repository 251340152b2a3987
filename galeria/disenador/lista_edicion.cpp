// Editing in the list of properties.
#include "galeria/disenador/lista_propiedades.h"

#include "anfitrion/unidades.h"
#include "galeria/escala.h"

#include <commctrl.h>

#include <algorithm>

namespace galeria {

using namespace anfitrion;

bool ConOpciones(const Propiedad& propiedad) {
    return propiedad.genero == Genero::Enumerada || propiedad.genero == Genero::Logico;
}
bool ConDialogo(const Propiedad& propiedad) {
    return propiedad.genero == Genero::Color || propiedad.genero == Genero::Fuente ||
           propiedad.genero == Genero::Imagen;
}

int AnchoDelBoton() {
    return Escala(20);
}

/// A double click goes to the next one of the values to choose from.
void ListaPropiedades::Siguiente() {
    const Renglon* renglon = Elegido();
    if (!renglon || renglon->propiedad.SoloLectura() || !ConOpciones(renglon->propiedad))
        return;
    Cerrar();
    const std::size_t lugar = hoja_.Lugar(renglon->propiedad.nombre);
    if (renglon->propiedad.genero == Genero::Logico) {
        hoja_.Escribir(lugar, renglon->valor == L"True" ? L"False" : L"True");
        return;
    }
    const auto& opciones = renglon->propiedad.opciones;
    const auto actual = std::find_if(opciones.begin(), opciones.end(), [&](const Opcion& opcion) {
        return opcion.nombre == renglon->valor;
    });
    const auto otra = static_cast<std::size_t>(actual - opciones.begin()) + 1;
    if (!opciones.empty())
        hoja_.Escribir(lugar, std::wstring(opciones[otra % opciones.size()].nombre));
}

/// An object is taken away; anything else is edited for that.
void ListaPropiedades::Borrar() {
    const Renglon* renglon = Elegido();
    if (renglon && renglon->propiedad.genero == Genero::Imagen)
        hoja_.Escribir(hoja_.Lugar(renglon->propiedad.nombre), L"");
}

void ListaPropiedades::Editar() {
    const Renglon* renglon = Elegido();
    if (!renglon || renglon->propiedad.SoloLectura() || editor_)
        return;
    const Genero genero = renglon->propiedad.genero;
    if (genero == Genero::Fuente || genero == Genero::Imagen)
        return Preguntar();
    AbrirEditor(ConOpciones(renglon->propiedad));
}

void ListaPropiedades::AbrirEditor(bool opciones) {
    const Renglon& renglon = *Elegido();
    RECT r = LugarDelValor();
    editado_ = hoja_.Lugar(renglon.propiedad.nombre);
    if (opciones) {
        // The height is that of the list that opens.
        editor_ = CreateWindowExW(0, L"COMBOBOX", L"",
                                  WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST, r.left,
                                  r.top, Ancho(r), Escala(260), lista_, nullptr, nullptr, nullptr);
        SendMessageW(editor_, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), Alto(r) - Escala(7));
    } else {
        if (renglon.propiedad.genero == Genero::Color)
            r.right -= AnchoDelBoton();
        editor_ = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL,
                                  r.left + Escala(3), r.top + Escala(3), Ancho(r) - Escala(4),
                                  Alto(r) - Escala(5), lista_, nullptr, nullptr, nullptr);
    }
    SendMessageW(editor_, WM_SETFONT, reinterpret_cast<WPARAM>(fuente_), FALSE);
    SetWindowSubclass(editor_, ProcesarEditor, 2, reinterpret_cast<DWORD_PTR>(this));
    if (opciones) {
        std::vector<Opcion> todas = renglon.propiedad.opciones;
        if (renglon.propiedad.genero == Genero::Logico)
            todas = {{L"False", 0}, {L"True", -1}};
        for (const Opcion& opcion : todas)
            SendMessageW(editor_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(opcion.nombre.c_str()));
        SendMessageW(editor_, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                     reinterpret_cast<LPARAM>(renglon.valor.c_str()));
        SetFocus(editor_);
        SendMessageW(editor_, CB_SHOWDROPDOWN, TRUE, 0);
    } else {
        SetWindowTextW(editor_, renglon.valor.c_str());
        SendMessageW(editor_, EM_SETSEL, 0, -1);
        SetFocus(editor_);
    }
}

bool ListaPropiedades::Aceptar(bool cerrar) {
    if (!editor_ || aceptando_)
        return true;
    std::wstring texto(static_cast<std::size_t>(GetWindowTextLengthW(editor_)) + 1, L'\0');
    texto.resize(static_cast<std::size_t>(
        GetWindowTextW(editor_, texto.data(), static_cast<int>(texto.size()))));
    const std::size_t lugar = editado_;
    // Whoever reads the sheet anew meanwhile leaves the editor alone.
    aceptando_ = true;
    const bool igual = lugar >= hoja_.Renglones().size() || texto == hoja_.Renglones()[lugar].valor;
    const bool aceptado = igual || hoja_.Escribir(lugar, texto);
    aceptando_ = false;
    if (aceptado || cerrar)
        Cerrar();
    return aceptado;
}

void ListaPropiedades::Cerrar() {
    const HWND editor = std::exchange(editor_, nullptr);
    if (!editor)
        return;
    const bool foco = GetFocus() == editor;
    DestroyWindow(editor);
    if (foco)
        SetFocus(lista_);
}

LRESULT CALLBACK ListaPropiedades::ProcesarEditor(HWND ventana, UINT mensaje, WPARAM w, LPARAM l,
                                                  UINT_PTR id, DWORD_PTR este) {
    auto& lista = *reinterpret_cast<ListaPropiedades*>(este);
    if (mensaje == WM_NCDESTROY)
        RemoveWindowSubclass(ventana, ProcesarEditor, id);
    else if (lista.editor_ == ventana && lista.TratarEditor(mensaje, w))
        return 0;
    return DefSubclassProc(ventana, mensaje, w, l);
}

bool ListaPropiedades::TratarEditor(UINT mensaje, WPARAM w) {
    if (mensaje == WM_CHAR)
        return w == VK_RETURN || w == VK_ESCAPE; // or it beeps
    if (mensaje != WM_KEYDOWN)
        return false;
    switch (w) {
    case VK_RETURN:
        Aceptar(false);
        return true;
    case VK_ESCAPE:
        Cerrar();
        return true;
    default:
        return false;
    }
}

// Dialogs

void ListaPropiedades::Preguntar() {
    const Renglon* renglon = Elegido();
    if (!renglon || renglon->propiedad.SoloLectura() || !ConDialogo(renglon->propiedad))
        return;
    Cerrar();
    const HWND padre = GetAncestor(lista_, GA_ROOT);
    const std::size_t lugar = hoja_.Lugar(renglon->propiedad.nombre);
    const Variante actual = hoja_.Valor(lugar);
    std::optional<Variante> nuevo;
    switch (renglon->propiedad.genero) {
    case Genero::Color: {
        COLORREF color = 0;
        OleTranslateColor(static_cast<OLE_COLOR>(Entero(actual)), nullptr, &color);
        if (const auto elegido = dialogos_.color(padre, color))
            nuevo = Variante(static_cast<long>(*elegido));
        break;
    }
    case Genero::Fuente:
        nuevo = dialogos_.fuente(padre, actual.vt == VT_DISPATCH ? actual.pdispVal : nullptr);
        break;
    default:
        nuevo = dialogos_.imagen(padre);
    }
    if (nuevo)
        hoja_.Poner(lugar, *nuevo);
}

} // namespace galeria
