#include "galeria/disenador/pagina_disenador.h"

#include "anfitrion/fichero_texto.h"
#include "anfitrion/formulario_texto.h"
#include "anfitrion/imagenes.h"
#include "anfitrion/unidades.h"
#include "galeria/disenador/caja_herramientas.h"
#include "galeria/disenador/muestra.h"
#include "galeria/trazos.h"

#include <algorithm>

namespace galeria {

using namespace anfitrion;

namespace {


// At 96 dots per inch.
constexpr int Izquierda = 12, Derecha = AnchoPagina - 12, Columna = 692;
constexpr RECT LugarMesa{Izquierda, 82, Columna - 12, AltoPagina - 36};
constexpr RECT LugarObjetos{Columna, 82, Derecha, 106};
constexpr RECT LugarLista{Columna + 1, 115, Derecha - 1, AltoPagina - 123};
constexpr RECT LugarAyuda{Columna, AltoPagina - 114, Derecha, AltoPagina - 36};
constexpr RECT LugarDiario{Columna + 1, 115, Derecha - 1, AltoPagina - 37};
constexpr RECT LugarEstado{Izquierda, AltoPagina - 28, Columna - 12, AltoPagina - 8};
constexpr RECT LugarMedida{Columna, AltoPagina - 28, Derecha, AltoPagina - 8};

OpcionesFormulario Opciones(HWND padre) {
    OpcionesFormulario opciones;
    opciones.padre = padre;
    opciones.ancho = Escala(AnchoPagina);
    opciones.alto = Escala(AltoPagina);
    opciones.visible = false;
    return opciones;
}

HWND Hacer(HWND padre, const wchar_t* clase, DWORD estilo, const RECT& lugar, HFONT fuente) {
    const RECT r = Escalar(lugar);
    const HWND ventana =
        CreateWindowExW(0, clase, L"", WS_CHILD | WS_VISIBLE | estilo, r.left, r.top, Ancho(r),
                        Alto(r), padre, nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(ventana, WM_SETFONT, reinterpret_cast<WPARAM>(fuente), FALSE);
    return ventana;
}

/// What went wrong as a sentence of its own.
std::wstring Frase(std::wstring que) {
    CharUpperBuffW(que.data(), 1);
    return que + L".";
}

HFONT Gdi(const FuenteGdi& fuente) {
    return static_cast<HFONT>(fuente.get());
}

/// The line around something that lies at a place, told at 96 dots per inch.
void Rodear(HDC hdc, const RECT& lugar) {
    RECT r = Escalar(lugar);
    InflateRect(&r, Grueso(), Grueso());
    Llenar(hdc, r, ColorBorde);
}

} // namespace

PaginaDisenador::PaginaDisenador(const std::optional<Componente>& componente, HWND padre)
    : componente_(componente), texto_(CrearFuenteGdi(9, FW_NORMAL)),
      negrita_(CrearFuenteGdi(9, FW_BOLD)), marco_(Opciones(padre)),
      ordenes_(marco_.Ventana(), Gdi(texto_)), herramientas_(marco_.Ventana(), Gdi(texto_)),
      mirador_(marco_.Ventana()), diario_(marco_.Ventana(), Escalar(LugarDiario), Gdi(texto_)),
      objetos_(Hacer(marco_.Ventana(), L"COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL,
                     {LugarObjetos.left, LugarObjetos.top, LugarObjetos.right, 400}, Gdi(texto_))),
      estado_(Hacer(marco_.Ventana(), L"STATIC", SS_NOPREFIX | SS_ENDELLIPSIS | SS_CENTERIMAGE,
                    LugarEstado, Gdi(texto_))),
      medida_(Hacer(marco_.Ventana(), L"STATIC", SS_NOPREFIX | SS_RIGHT | SS_CENTERIMAGE,
                    LugarMedida, Gdi(texto_))) {
    marco_.alPintar = [this](HDC hdc, const RECT& sucio) {
        Llenar(hdc, sucio, ColorLamina);
        Pintar(hdc);
    };
    marco_.alRecibir = [this](UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado) {
        return Tratar(mensaje, w, l, resultado);
    };
    marco_.alTeclear = [this](const MSG& mensaje) { return Atajo(mensaje); };
    diario_.abierto = true;
    mirador_.Colocar(Escalar(LugarMesa));
}

PaginaDisenador::~PaginaDisenador() {
    // Windows that go still send messages.
    marco_.alRecibir = nullptr;
    marco_.alTeclear = nullptr;
    marco_.alPintar = nullptr;
    lista_.reset();
    hoja_.reset();
    mesa_.reset();
}

void PaginaDisenador::Armar() {
    PonerOrdenes();
    PonerHerramientas();
    ordenes_.Colocar(Escala(Izquierda), Escala(8), Escala(28));
    herramientas_.Colocar(Escala(Izquierda), Escala(44), Escala(28));
    if (componente_) {
        mesa_ = std::make_unique<Mesa>(*componente_, mirador_.Ventana(),
                                       SIZE{Escala(480), Escala(360)});
        hoja_ = std::make_unique<HojaPropiedades>(*mesa_);
        lista_ =
            std::make_unique<ListaPropiedades>(marco_.Ventana(), Gdi(texto_), *hoja_, dialogos_);
        lista_->Colocar(Escalar(LugarLista));
        lista_->alElegir = [this](const std::wstring& nombre, const std::wstring& ayuda) {
            propiedad_ = nombre;
            ayuda_ = ayuda;
            const RECT r = Escalar(LugarAyuda);
            InvalidateRect(marco_.Ventana(), &r, FALSE);
        };
        mesa_->alCambiar = [this] { Actualizar(); };
        mesa_->alAvisar = [this](const std::wstring& texto) { Avisar(texto); };
        mesa_->alSoltarHerramienta = [this] { Herramienta(L""); };
        mesa_->alOir = [this](const std::wstring& control, const Evento& evento) {
            diario_.Anotar(control, evento);
        };
        mesa_->alTeclear = [this](const MSG& mensaje) { return Atajo(mensaje); };
        mirador_.Mostrar(*mesa_);
    }
    long orden = 0;
    for (const Barra* barra : {&ordenes_, &herramientas_})
        for (const HWND ventana : barra->Ventanas())
            marco_.AgregarVentana(ventana, orden++);
    if (mesa_)
        marco_.AgregarVentana(mesa_->Forma().Ventana(), orden++);
    marco_.AgregarVentana(objetos_, orden++);
    if (lista_)
        marco_.AgregarVentana(lista_->Ventana(), orden++);
    marco_.AgregarVentana(diario_.Ventana(), orden);
    Actualizar();
}

void PaginaDisenador::PonerOrdenes() {
    ejecutar_ = OrdenDe(Orden::Ejecutar, L"Ejecutar", 84);
    ordenes_.Separar();
    OrdenDe(Orden::Deshacer, L"Deshacer", 78);
    OrdenDe(Orden::Rehacer, L"Rehacer", 72);
    ordenes_.Separar();
    OrdenDe(Orden::Cortar, L"Cortar", 62);
    OrdenDe(Orden::Copiar, L"Copiar", 62);
    OrdenDe(Orden::Pegar, L"Pegar", 62);
    OrdenDe(Orden::Eliminar, L"Eliminar", 70);
    ordenes_.Separar();
    OrdenDe(Orden::Propiedades, L"Propiedades...", 104);
    ordenes_.Separar();
    ordenes_.Agregar(L"Abrir...", 64, nullptr, [this] { Abrirlo(); });
    ordenes_.Agregar(L"Guardar...", 78, nullptr, [this] { Guardarlo(); });
    ordenes_.Agregar(L"Exportar PNG...", 108, nullptr, [this] { Exportarlo(); });
}

HWND PaginaDisenador::OrdenDe(Orden orden, const wchar_t* texto, int ancho) {
    const HWND ventana = ordenes_.Agregar(texto, ancho, nullptr, [this, orden] {
        if (mesa_)
            mesa_->Hacer(orden);
        if (mesa_ && orden != Orden::Ejecutar)
            SetFocus(mesa_->Forma().Ventana());
    });
    deOrden_.push_back({ventana, orden});
    return ventana;
}

void PaginaDisenador::PonerHerramientas() {
    const auto poner = [&](const std::wstring& clase, const std::wstring& texto, int ancho) {
        const HWND ventana = herramientas_.Agregar(
            texto, ancho, clase.empty() || !componente_ ? nullptr : ImagenDe(*componente_, clase),
            [this, clase] { Herramienta(clase); },
            [this, clase] {
                Herramienta(L"");
                if (mesa_ && !clase.empty())
                    mesa_->Colocar(clase);
            });
        deClase_.push_back({ventana, clase});
    };
    poner(L"", L"Elegir", 62);
    herramientas_.Separar();
    for (const wchar_t* clase : ClasesParaColocar)
        poner(clase, std::wstring(clase).substr(std::wstring(clase).rfind(L'.') + 1), 96);
    Herramienta(L"");
}

void PaginaDisenador::Herramienta(const std::wstring& clase) {
    for (const BotonDeClase& boton : deClase_)
        herramientas_.Marcar(boton.ventana, boton.clase == clase);
    if (!mesa_ || mesa_->Herramienta() == clase)
        return;
    if (mesa_->Ejecutando())
        mesa_->Hacer(Orden::Ejecutar);
    mesa_->TomarHerramienta(clase);
    if (!clase.empty())
        Avisar(L"");
}

void PaginaDisenador::Abrir() {
    Actualizar();
}

void PaginaDisenador::Ensayar() {
    if (!mesa_)
        return;
    Recibir(FormularioDeMuestra);
    mesa_->Forma().Seleccionar(mesa_->Forma().Control(L"Aceptar"), false);
    lista_->Elegir(L"RelX");
    SetFocus(lista_->Ventana());
}

void PaginaDisenador::Recibir(const std::wstring& texto) {
    if (!mesa_ || !mesa_->PonerTexto(texto))
        return;
    mirador_.Ajustar();
}

// Files

void PaginaDisenador::Abrirlo() {
    const auto ruta = mesa_ ? dialogos_.abrir(marco_.Ventana()) : std::nullopt;
    if (!ruta)
        return;
    try {
        Recibir(LeerTexto(*ruta));
    } catch (const ErrorDeFichero& error) {
        Avisar(Frase(error.texto));
    }
}

void PaginaDisenador::Guardarlo() {
    const auto ruta = mesa_ ? dialogos_.guardar(marco_.Ventana()) : std::nullopt;
    if (!ruta)
        return;
    try {
        EscribirTexto(*ruta, mesa_->Texto());
        Avisar(L"");
    } catch (const ErrorDeFichero& error) {
        Avisar(Frase(error.texto));
    }
}

void PaginaDisenador::Exportarlo() {
    const auto ruta = mesa_ ? dialogos_.exportar(marco_.Ventana()) : std::nullopt;
    if (!ruta)
        return;
    try {
        mesa_->ExportarPng(*ruta);
        Avisar(L"");
    } catch (const FalloCom&) {
        Avisar(L"No se puede escribir «" + *ruta + L"».");
    }
}

// What is shown

std::wstring PaginaDisenador::Estado() const {
    wchar_t texto[600];
    return {texto, static_cast<std::size_t>(GetWindowTextW(estado_, texto, 600))};
}

void PaginaDisenador::Avisar(const std::wstring& texto) {
    aviso_ = !texto.empty();
    std::wstring frase = texto;
    if (!aviso_ && mesa_ && mesa_->Ejecutando())
        frase = L"En ejecución: los controles responden. F5 vuelve al diseño.";
    else if (!aviso_ && mesa_ && !mesa_->Herramienta().empty())
        frase = L"Trace el lugar del control con el ratón, o haga clic para ponerlo como siempre.";
    else if (!aviso_)
        frase =
            L"Supr elimina; las flechas mueven, con Mayús cambian la medida y con Ctrl van de a "
            L"un píxel.";
    SetWindowTextW(estado_, frase.c_str());
}

void PaginaDisenador::Actualizar() {
    const bool disena = mesa_ && !mesa_->Ejecutando();
    for (const BotonDeOrden& boton : deOrden_)
        EnableWindow(boton.ventana, mesa_ && mesa_->Puede(boton.orden));
    if (!mesa_)
        return;
    ordenes_.Rotular(ejecutar_, disena ? L"Ejecutar" : L"Diseñar");
    ordenes_.Marcar(ejecutar_, !disena);
    ShowWindow(lista_->Ventana(), disena ? SW_SHOWNA : SW_HIDE);
    ShowWindow(diario_.Ventana(), disena ? SW_HIDE : SW_SHOWNA);
    ActualizarObjetos();
    lista_->Leer();
    if (!aviso_)
        Avisar(L"");
    std::wstring medida;
    if (const auto& elegidos = mesa_->Seleccion(); elegidos.size() > 1) {
        medida = std::to_wstring(elegidos.size()) + L" controles";
    } else if (!elegidos.empty()) {
        const RECT& r = elegidos.front()->Rectangulo();
        medida = std::to_wstring(r.left) + L", " + std::to_wstring(r.top) + L"   " +
                 std::to_wstring(Ancho(r)) + L" × " + std::to_wstring(Alto(r));
    } else {
        const SIZE forma = mesa_->Forma().Medida();
        medida = std::to_wstring(forma.cx) + L" × " + std::to_wstring(forma.cy);
    }
    SetWindowTextW(medida_, medida.c_str());
    mirador_.Ajustar();
    const RECT columna = Escalar(
        {LugarObjetos.left - 2, LugarObjetos.bottom, LugarObjetos.right + 2, LugarEstado.top});
    InvalidateRect(marco_.Ventana(), &columna, FALSE);
}

/// The list of the form's controls, with the one that leads.
void PaginaDisenador::ActualizarObjetos() {
    SendMessageW(objetos_, WM_SETREDRAW, FALSE, 0);
    SendMessageW(objetos_, CB_RESETCONTENT, 0, 0);
    SendMessageW(objetos_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Formulario"));
    const auto& controles = mesa_->Forma().Controles();
    const auto& elegidos = mesa_->Seleccion();
    WPARAM actual = elegidos.empty() ? 0 : static_cast<WPARAM>(-1);
    for (std::size_t i = 0; i < controles.size(); ++i) {
        const std::wstring linea =
            controles[i]->Nombre() + L"   " + ClaseDe(controles[i]->Objeto());
        SendMessageW(objetos_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(linea.c_str()));
        if (elegidos.size() == 1 && elegidos.front() == controles[i])
            actual = i + 1;
    }
    SendMessageW(objetos_, CB_SETCURSEL, actual, 0);
    SendMessageW(objetos_, WM_SETREDRAW, TRUE, 0);
    EnableWindow(objetos_, !mesa_->Ejecutando());
    InvalidateRect(objetos_, nullptr, TRUE);
}

void PaginaDisenador::Pintar(HDC hdc) const {
    Rodear(hdc, LugarMesa);
    if (!mesa_)
        return;
    Rodear(hdc, mesa_->Ejecutando() ? LugarDiario : LugarLista);
    if (!mesa_->Ejecutando())
        PintarAyuda(hdc);
}

void PaginaDisenador::PintarAyuda(HDC hdc) const {
    RECT r = Escalar(LugarAyuda);
    Enmarcar(hdc, r, ColorBorde, ColorTarjeta);
    InflateRect(&r, -Escala(8), -Escala(6));
    SetBkMode(hdc, TRANSPARENT);
    const HGDIOBJ anterior = SelectObject(hdc, negrita_.get());
    SetTextColor(hdc, ColorLetra);
    r.top += DrawTextW(hdc, propiedad_.c_str(), -1, &r, DT_SINGLELINE | DT_NOPREFIX) + Escala(2);
    SelectObject(hdc, texto_.get());
    SetTextColor(hdc, ColorLetraFloja);
    DrawTextW(hdc, ayuda_.c_str(), -1, &r,
              DT_WORDBREAK | DT_NOPREFIX | DT_END_ELLIPSIS | DT_EDITCONTROL);
    SelectObject(hdc, anterior);
}

} // namespace galeria
