// The commands of the designer's table.
#include "galeria/disenador/mesa.h"

#include "anfitrion/formulario_texto.h"
#include "anfitrion/marco_propiedades.h"
#include "galeria/disenador/portapapeles.h"
#include "galeria/escala.h"

#include <algorithm>

namespace galeria {

using namespace anfitrion;
using diseno::Caja;
using diseno::Punto;

namespace {

bool Sirve(const std::wstring& nombre) {
    return !nombre.empty() && nombre.size() <= 40 &&
           std::all_of(nombre.begin(), nombre.end(),
                       [](wchar_t letra) { return IsCharAlphaNumericW(letra) || letra == L'_'; }) &&
           IsCharAlphaW(nombre.front());
}

std::vector<CLSID> PaginasComunes(const Mesa::Controles& controles) {
    std::vector<CLSID> comunes = PaginasDe(controles.front()->Objeto());
    for (const auto& control : controles) {
        const std::vector<CLSID> suyas = PaginasDe(control->Objeto());
        std::erase_if(comunes, [&](const CLSID& una) {
            return std::find(suyas.begin(), suyas.end(), una) == suyas.end();
        });
    }
    return comunes;
}

} // namespace

bool EsPanel(const Mesa::Control& control) {
    return control && control->Marcas() & OLEMISC_SIMPLEFRAME;
}

Mesa::Controles Raices(const Formulario& forma, const Mesa::Controles& controles) {
    const auto elegido = [&](const ControlAlojado* uno) {
        return std::any_of(controles.begin(), controles.end(),
                           [&](const auto& otro) { return otro.get() == uno; });
    };
    Mesa::Controles raices;
    for (const auto& control : forma.Controles()) {
        bool raiz = elegido(control.get());
        for (auto padre = control->Dentro(); padre && raiz; padre = padre->Dentro())
            raiz = !elegido(padre.get());
        if (raiz)
            raices.push_back(control);
    }
    return raices;
}

bool Mesa::Puede(Orden orden) const {
    if (orden == Orden::Ejecutar)
        return true;
    if (Ejecutando())
        return false;
    switch (orden) {
    case Orden::Deshacer:
        return historia_.PuedeDeshacer();
    case Orden::Rehacer:
        return historia_.PuedeRehacer();
    case Orden::Pegar:
        return IsClipboardFormatAvailable(CF_UNICODETEXT);
    case Orden::ElegirTodo:
        return !forma_.Controles().empty();
    default:
        return !forma_.Seleccion().empty();
    }
}

void Mesa::Hacer(Orden orden) {
    if (!Puede(orden))
        return;
    Abandonar();
    Avisar(L"");
    switch (orden) {
    case Orden::Deshacer:
        return Volver(historia_.Deshacer());
    case Orden::Rehacer:
        return Volver(historia_.Rehacer());
    case Orden::Cortar:
        Copiar();
        return Eliminar();
    case Orden::Copiar:
        return Copiar();
    case Orden::Pegar:
        return Pegar();
    case Orden::Eliminar:
        return Eliminar();
    case Orden::ElegirTodo:
        return forma_.Seleccionar(forma_.Controles());
    case Orden::AlFrente:
        return Apilar(true);
    case Orden::AlFondo:
        return Apilar(false);
    case Orden::Propiedades:
        return EditarPropiedades();
    case Orden::Ejecutar:
        return Ejecutar();
    }
}

Mesa::Control Mesa::PanelEn(Punto punto) const {
    auto control = forma_.ControlEn({punto.x, punto.y});
    while (control && !EsPanel(control))
        control = control->Dentro();
    return control;
}

Mesa::Control Mesa::PanelElegido() const {
    const auto& elegidos = forma_.Seleccion();
    return elegidos.size() == 1 && EsPanel(elegidos.front()) ? elegidos.front() : nullptr;
}

Mesa::Control Mesa::Colocar(const std::wstring& clase, std::optional<Caja> caja) {
    const Control panel = caja ? PanelEn({caja->izquierda, caja->arriba}) : PanelElegido();
    Caja lugar;
    if (caja) {
        lugar = Interior(panel, *caja);
    } else {
        const int paso = rejilla_.paso;
        lugar = {paso * 2, paso * 2, paso * 2 + Escala(120), paso * 2 + Escala(32)};
    }
    // Beside what lies there already, not over it.
    const auto ocupado = [&] {
        const auto suyos = forma_.ControlesEn(panel.get());
        return std::any_of(suyos.begin(), suyos.end(), [&](const auto& otro) {
            const RECT& r = otro->Rectangulo();
            return r.left == lugar.izquierda && r.top == lugar.arriba;
        });
    };
    while (!caja && ocupado())
        lugar = lugar.Movida(rejilla_.paso, rejilla_.paso);
    Control nuevo;
    Cambiar([&] {
        const std::wstring nombre = clase.substr(clase.rfind(L'.') + 1) + L"1";
        nuevo = forma_.Agregar(componente_, componente_.Clase(clase), forma_.NombreLibre(nombre),
                               {lugar.izquierda, lugar.arriba, lugar.derecha, lugar.abajo}, {},
                               panel.get());
        forma_.Seleccionar(Controles{nuevo});
    });
    return nuevo;
}

void Mesa::TomarHerramienta(const std::wstring& clase) {
    herramienta_ = clase;
    if (clase.empty() && alSoltarHerramienta)
        alSoltarHerramienta();
}

void Mesa::Empujar(int dx, int dy, bool medida) {
    if (Seleccion().empty())
        return;
    const Controles movidos = medida ? forma_.Seleccion() : Raices(forma_, forma_.Seleccion());
    Cambiar(
        [&] {
            for (const auto& control : movidos) {
                RECT r = control->Rectangulo();
                if (medida) {
                    r.right = std::max(r.left + rejilla_.paso, r.right + dx);
                    r.bottom = std::max(r.top + rejilla_.paso, r.bottom + dy);
                } else {
                    OffsetRect(&r, dx, dy);
                }
                control->Mover(r);
            }
        },
        medida ? "medir" : "mover");
}

bool Mesa::Renombrar(const Control& control, const std::wstring& nombre) {
    const auto otro = forma_.Control(nombre);
    if (!Sirve(nombre)) {
        Avisar(L"Un nombre empieza por una letra y tiene solo letras, cifras y «_».");
        return false;
    }
    if (otro && otro != control) {
        Avisar(L"Ya hay un control que se llama «" + nombre + L"».");
        return false;
    }
    return Cambiar([&] { control->PonerNombre(nombre); });
}

void Mesa::Copiar() {
    const std::wstring texto = EscribirControles(Raices(forma_, forma_.Seleccion()));
    if (!PonerEnPortapapeles(forma_.Ventana(), texto))
        Avisar(L"El portapapeles está ocupado.");
    else if (alCambiar)
        alCambiar();
}

void Mesa::Pegar() {
    const std::wstring texto = LeerPortapapeles(forma_.Ventana());
    const Control panel = PanelElegido();
    try {
        Cambiar([&] {
            const Controles nuevos = AgregarControles(forma_, componente_, texto, panel.get());
            for (const auto& nuevo : nuevos) {
                const auto encima = [&](const auto& otro) {
                    return otro != nuevo && otro->Rectangulo().left == nuevo->Rectangulo().left &&
                           otro->Rectangulo().top == nuevo->Rectangulo().top;
                };
                const Controles vecinos = forma_.ControlesEn(panel.get());
                while (std::any_of(vecinos.begin(), vecinos.end(), encima)) {
                    RECT r = nuevo->Rectangulo();
                    OffsetRect(&r, rejilla_.paso, rejilla_.paso);
                    nuevo->Mover(r);
                }
            }
            forma_.Seleccionar(nuevos);
        });
    } catch (const ErrorDeFormulario& error) {
        Avisar(L"Lo que hay en el portapapeles no son controles. " + error.texto);
    }
}

void Mesa::Eliminar() {
    const Controles idos = Raices(forma_, forma_.Seleccion());
    Cambiar([&] {
        forma_.Seleccionar({});
        for (const auto& control : idos)
            forma_.Quitar(*control);
    });
}

void Mesa::Apilar(bool alFrente) {
    Cambiar([&] {
        Controles orden = forma_.Controles();
        const Controles elegidos = forma_.Seleccion();
        std::stable_partition(orden.begin(), orden.end(), [&](const auto& control) {
            const bool elegido =
                std::find(elegidos.begin(), elegidos.end(), control) != elegidos.end();
            return elegido != alFrente;
        });
        forma_.Ordenar(orden);
    });
}

void Mesa::EditarPropiedades() {
    const Controles elegidos = forma_.Seleccion();
    if (elegidos.empty())
        return;
    std::vector<Puntero<IUnknown>> objetos;
    for (const auto& control : elegidos)
        objetos.emplace_back(control->Objeto());
    const std::wstring titulo = elegidos.size() == 1
                                    ? elegidos.front()->Nombre()
                                    : std::to_wstring(elegidos.size()) + L" controles";
    const std::vector<CLSID> paginas = PaginasComunes(elegidos);
    if (paginas.empty())
        return Avisar(L"Lo elegido no tiene páginas de propiedades en común.");
    Cambiar([&] {
        MarcoPropiedades marco(GetAncestor(forma_.Ventana(), GA_ROOT), L"Propiedades de " + titulo,
                               componente_, paginas, objetos);
        marco.Ejecutar();
    });
}

void Mesa::Ejecutar() {
    TomarHerramienta(L"");
    if (!Ejecutando()) {
        antesDeEjecutar_ = Retratar(forma_, examinador_);
        forma_.PonerModoUsuario(true);
        for (const auto& control : forma_.Controles())
            oidos_.emplace_back(control, control->Conectar([this, nombre = control->Nombre()](
                                                               const Evento& evento) {
                if (alOir)
                    alOir(nombre, evento);
            }));
        forma_.MoverFoco(false);
    } else {
        for (const auto& [control, oido] : oidos_)
            control->Desconectar(oido);
        oidos_.clear();
        forma_.PonerModoUsuario(false);
        // What was typed into the running form isn't part of its design.
        Volver(*antesDeEjecutar_);
        antesDeEjecutar_.reset();
        SetFocus(forma_.Ventana());
    }
    MostrarAdornos();
    if (alCambiar)
        alCambiar();
}

} // namespace galeria
