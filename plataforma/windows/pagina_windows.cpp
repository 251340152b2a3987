#include "plataforma/windows/pagina_windows.h"

#include "plataforma/windows/aritmetica.h"
#include "plataforma/windows/clase_de_ventana.h"
#include "plataforma/windows/colores.h"
#include "plataforma/windows/entorno_windows.h"
#include "plataforma/windows/modulo.h"

#include <commctrl.h>
#include <commdlg.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace pincela::windows {

namespace {

constexpr wchar_t TituloDeMensajes[] = L"Pincela";

// The platform's own static windows paint on the context of their parent, where a shape of their
// own does not clip.
LRESULT CALLBACK ProcesarCuadro(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) {
    switch (mensaje) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PRINTCLIENT:
    case WM_PAINT: {
        PAINTSTRUCT pintura{};
        DRAWITEMSTRUCT dibujo{};
        dibujo.CtlType = ODT_STATIC;
        dibujo.CtlID = static_cast<UINT>(::GetDlgCtrlID(ventana));
        dibujo.hwndItem = ventana;
        dibujo.hDC =
            mensaje == WM_PAINT ? ::BeginPaint(ventana, &pintura) : reinterpret_cast<HDC>(w);
        ::GetClientRect(ventana, &dibujo.rcItem);
        ::SendMessageW(::GetParent(ventana), WM_DRAWITEM, dibujo.CtlID,
                       reinterpret_cast<LPARAM>(&dibujo));
        if (mensaje == WM_PAINT)
            ::EndPaint(ventana, &pintura);
        return 0;
    }
    default:
        return ::DefWindowProcW(ventana, mensaje, w, l);
    }
}

const wchar_t* Ancho(const Texto& texto) {
    return reinterpret_cast<const wchar_t*>(texto.c_str());
}

} // namespace

PaginaWindows::PaginaWindows(const DisenoPagina& diseno, SitioPagina& sitio)
    : diseno_(diseno), sitio_(sitio) {
    coloresPropios_.fill(RGB(255, 255, 255));
    INITCOMMONCONTROLSEX controles{sizeof controles, ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&controles);
    WORD numero = PrimeraPieza;
    for (const Pieza& pieza : diseno_.piezas)
        Agregar(pieza, numero++);
    for (std::size_t i = 0; i < elementos_.size(); ++i)
        if (const VistaTexto marco = diseno_.piezas[i].dentro; !marco.empty())
            elementos_[i].ventana->PonMarco(elementos_[IndiceDe(marco)].ventana);
}

PaginaWindows::~PaginaWindows() {
    DestruirVentana();
}

template <class T>
void PaginaWindows::Agregar(const Pieza& pieza, WORD numero) {
    auto elemento = std::make_unique<T>(static_cast<Avisador&>(*this), &pieza, numero);
    if constexpr (std::is_same_v<T, OpcionWindows>) {
        elemento->grupo = &opciones_;
        opciones_.push_back(elemento.get());
    }
    VentanaDeElemento* ventana = elemento.get();
    elementos_.push_back({std::move(elemento), ventana});
}

void PaginaWindows::Agregar(const Pieza& pieza, WORD numero) {
    switch (pieza.clase) {
    case ClasePieza::Rotulo:
        return Agregar<RotuloWindows>(pieza, numero);
    case ClasePieza::Campo:
        return Agregar<CampoWindows>(pieza, numero);
    case ClasePieza::Casilla:
        return Agregar<CasillaWindows>(pieza, numero);
    case ClasePieza::Opcion:
        return Agregar<OpcionWindows>(pieza, numero);
    case ClasePieza::Lista:
        return Agregar<ListaWindows>(pieza, numero);
    case ClasePieza::Deslizador:
        return Agregar<DeslizadorWindows>(pieza, numero);
    case ClasePieza::Boton:
        return Agregar<BotonWindows>(pieza, numero);
    case ClasePieza::BotonColor:
        return Agregar<BotonColorWindows>(pieza, numero);
    case ClasePieza::Grupo:
        return Agregar<RotuloWindows>(pieza, numero);
    case ClasePieza::FilaDeTopes:
        return Agregar<FilaDeTopesWindows>(pieza, numero);
    case ClasePieza::Cuadro:
    case ClasePieza::CuadroLibre:
        return Agregar<CuadroWindows>(pieza, numero);
    }
}

std::size_t PaginaWindows::IndiceDe(VistaTexto nombre) const {
    for (std::size_t i = 0; i < diseno_.piezas.size(); ++i)
        if (diseno_.piezas[i].nombre == nombre)
            return i;
    Lanzar(NumeroError::LlamadaNoValida); // a widget that is not in the layout
}

template <class T>
T& PaginaWindows::Dar(VistaTexto nombre) {
    return dynamic_cast<T&>(*elementos_[IndiceDe(nombre)].pagina);
}

ElementoPagina& PaginaWindows::Elemento(VistaTexto nombre) {
    return Dar<ElementoPagina>(nombre);
}
CampoTexto& PaginaWindows::Campo(VistaTexto nombre) {
    return Dar<CampoTexto>(nombre);
}
Casilla& PaginaWindows::LaCasilla(VistaTexto nombre) {
    return Dar<Casilla>(nombre);
}
Opcion& PaginaWindows::LaOpcion(VistaTexto nombre) {
    return Dar<Opcion>(nombre);
}
ListaDesplegable& PaginaWindows::Lista(VistaTexto nombre) {
    return Dar<ListaDesplegable>(nombre);
}
Deslizador& PaginaWindows::ElDeslizador(VistaTexto nombre) {
    return Dar<Deslizador>(nombre);
}
BotonPagina& PaginaWindows::Boton(VistaTexto nombre) {
    return Dar<BotonPagina>(nombre);
}
BotonColor& PaginaWindows::ElBotonColor(VistaTexto nombre) {
    return Dar<BotonColor>(nombre);
}
MarcoPagina& PaginaWindows::Marco(VistaTexto nombre) {
    return Dar<MarcoPagina>(nombre);
}
CuadroPagina& PaginaWindows::Cuadro(VistaTexto nombre) {
    return Dar<CuadroPagina>(nombre);
}

Graficos& PaginaWindows::graficos() {
    return GraficosDeWindows();
}

void PaginaWindows::PonChanged(bool valor) {
    cambiado_ = valor;
    sitio_.ChangedCambiado();
}

HWND PaginaWindows::CrearVentana(HWND padre) {
    static ClaseDeVentana cuadros(ClaseDeCuadro, 0, &ProcesarCuadro);
    cuadros.Asegurar();
    const std::vector<WORD> plantilla = PlantillaDe(diseno_);
    ventana_ = ::CreateDialogIndirectParamW(ModuloPropio(),
                                            reinterpret_cast<const DLGTEMPLATE*>(plantilla.data()),
                                            padre, &Procesar, reinterpret_cast<LPARAM>(this));
    if (!ventana_)
        return nullptr;
    for (const Elementos& elemento : elementos_)
        elemento.ventana->Atar(::GetDlgItem(ventana_, elemento.ventana->Numero()));
    return ventana_;
}

void PaginaWindows::DestruirVentana() {
    if (!ventana_)
        return;
    for (const Elementos& elemento : elementos_)
        elemento.ventana->Soltar();
    ::SetWindowLongPtrW(ventana_, DWLP_USER, 0);
    ::DestroyWindow(std::exchange(ventana_, nullptr));
}

VentanaDeElemento* PaginaWindows::DeNumero(WORD numero) const {
    for (const Elementos& elemento : elementos_) {
        if (elemento.ventana->Numero() == numero)
            return elemento.ventana;
        if (auto* fila = dynamic_cast<FilaDeTopesWindows*>(elemento.ventana))
            if (TopeWindows* tope = fila->Tope(numero))
                return tope;
    }
    return nullptr;
}

INT_PTR CALLBACK PaginaWindows::Procesar(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) {
    if (mensaje == WM_INITDIALOG) {
        ::SetWindowLongPtrW(ventana, DWLP_USER, l);
        return FALSE; // whoever shows the page says where the focus goes
    }
    auto* pagina = reinterpret_cast<PaginaWindows*>(::GetWindowLongPtrW(ventana, DWLP_USER));
    const AritmeticaPropia propia;
    try {
        return pagina && pagina->Tratar(mensaje, w, l);
    } catch (...) {
        return FALSE; // no memory: what was not drawn is drawn the next time
    }
}

bool PaginaWindows::Tratar(UINT mensaje, WPARAM w, LPARAM l) {
    switch (mensaje) {
    case WM_COMMAND:
        // While the dialog is being made its widgets have no windows to tell of.
        if (VentanaDeElemento* elemento = DeNumero(LOWORD(w)); elemento && elemento->Ventana())
            Avisar([&] { elemento->Mandato(HIWORD(w)); });
        return true;
    case WM_HSCROLL:
        if (auto* elemento = DeNumero(static_cast<WORD>(::GetDlgCtrlID(reinterpret_cast<HWND>(l)))))
            Avisar([&] { elemento->Desplazado(); });
        return true;
    case WM_DRAWITEM:
        if (VentanaDeElemento* elemento = DeNumero(static_cast<WORD>(w)))
            elemento->Pintar(*reinterpret_cast<const DRAWITEMSTRUCT*>(l));
        return true;
    default:
        return false;
    }
}

HWND PaginaWindows::Duena() const {
    return ventana_ ? ::GetAncestor(ventana_, GA_ROOT) : nullptr;
}

// An edit has no caller to tell of its error: the user is told.
void PaginaWindows::Avisar(const std::function<void()>& manejador) {
    const AritmeticaPropia propia;
    sitio_.Sostener();
    try {
        Texto descripcion;
        try {
            manejador();
        } catch (const ErrorEjecucion& error) {
            descripcion = DescripcionDe(error.Numero());
        }
        const AritmeticaAjena ajena; // the message runs the program's own messages
        if (!descripcion.empty())
            ::MessageBoxW(Duena(), Ancho(descripcion), TituloDeMensajes,
                          MB_OK | MB_ICONEXCLAMATION);
    } catch (...) {
        // No memory: the page stays as it is.
    }
    sitio_.Soltar();
}

void PaginaWindows::Informar(VistaTexto mensaje) {
    const AritmeticaAjena ajena;
    ::MessageBoxW(Duena(), Ancho(Texto(mensaje)), TituloDeMensajes, MB_OK | MB_ICONINFORMATION);
}

Color PaginaWindows::ElegirColor(Color inicial) {
    CHOOSECOLORW eleccion{};
    eleccion.lStructSize = sizeof eleccion;
    eleccion.hwndOwner = Duena();
    eleccion.rgbResult = Resolver(inicial);
    eleccion.lpCustColors = coloresPropios_.data();
    eleccion.Flags = CC_RGBINIT | CC_ANYCOLOR;
    const AritmeticaAjena ajena;
    // A system colour that was confirmed goes on following the theme.
    if (!::ChooseColorW(&eleccion) || eleccion.rgbResult == Resolver(inicial))
        return inicial;
    return Color(static_cast<std::uint32_t>(eleccion.rgbResult));
}

bool PaginaWindows::Enfocar(const wchar_t* propiedad) {
    for (std::size_t i = 0; ventana_ && i < elementos_.size(); ++i) {
        const Pieza& pieza = diseno_.piezas[i];
        if (pieza.propiedad && std::wstring_view(pieza.propiedad) == propiedad) {
            const HWND foco = elementos_[i].ventana->VentanaDeFoco();
            if (!::IsWindowEnabled(foco))
                return false;
            ::SendMessageW(ventana_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(foco), TRUE);
            return true;
        }
    }
    return false;
}

bool PaginaWindows::TieneMnemonico(wchar_t letra) const {
    const auto mayuscula = [](wchar_t una) { return Mayuscula(static_cast<char16_t>(una)); };
    for (std::size_t i = 0; i < elementos_.size(); ++i) {
        const std::wstring_view texto = diseno_.piezas[i].texto;
        const std::size_t marca = texto.find(L'&');
        if (marca + 1 < texto.size() && mayuscula(texto[marca + 1]) == mayuscula(letra) &&
            ::IsWindowVisible(elementos_[i].ventana->Ventana()))
            return true;
    }
    return false;
}

// What leads out of the page is left to the frame: TAB beyond the ends, Enter, Escape, mnemonics
// of others.
bool PaginaWindows::EsTeclaPropia(const MSG& mensaje) const {
    if (mensaje.message == WM_SYSCHAR)
        return TieneMnemonico(static_cast<wchar_t>(mensaje.wParam));
    if (mensaje.message != WM_KEYDOWN)
        return false;
    switch (mensaje.wParam) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
        return true;
    case VK_TAB: {
        if (::GetKeyState(VK_CONTROL) < 0)
            return false;
        const bool atras = ::GetKeyState(VK_SHIFT) < 0;
        const HWND foco = ::GetFocus();
        const HWND siguiente = ::GetNextDlgTabItem(ventana_, foco, atras);
        // Beyond an end the search begins again at the other one.
        for (HWND una = siguiente; una; una = ::GetWindow(una, atras ? GW_HWNDNEXT : GW_HWNDPREV))
            if (una == foco)
                return una != siguiente;
        return false;
    }
    default:
        return false;
    }
}

bool PaginaWindows::Pretraducir(MSG& mensaje) {
    if (!ventana_ || (mensaje.hwnd != ventana_ && !::IsChild(ventana_, mensaje.hwnd)) ||
        !EsTeclaPropia(mensaje))
        return false;
    return ::IsDialogMessageW(ventana_, &mensaje);
}

} // namespace pincela::windows
