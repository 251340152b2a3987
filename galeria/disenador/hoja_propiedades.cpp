#include "galeria/disenador/hoja_propiedades.h"

#include "anfitrion/unidades.h"
#include "anfitrion/valor_texto.h"

#include <algorithm>

namespace galeria {

using namespace anfitrion;

namespace {

enum Propia { Nombre, Izquierda, Arriba, Anchura, Altura };

/// Names in brackets stand before the published ones.
constexpr struct {
    const wchar_t *nombre, *ayuda;
} Propias[] = {
    {L"(Nombre)", L"Con el que el formulario conoce al control. No se repite."},
    {L"(Izquierda)", L"Distancia al borde izquierdo de lo que lo contiene, en píxeles."},
    {L"(Arriba)", L"Distancia al borde de arriba de lo que lo contiene, en píxeles."},
    {L"(Ancho)", L"En píxeles."},
    {L"(Alto)", L"En píxeles."},
};

Renglon HacerPropia(Propia cual, const std::wstring& valor) {
    Renglon renglon;
    renglon.propia = true;
    renglon.propiedad.nombre = Propias[cual].nombre;
    renglon.propiedad.ayuda = Propias[cual].ayuda;
    renglon.propiedad.numero = cual;
    renglon.propiedad.genero = cual == Nombre ? Genero::Texto : Genero::Entero;
    renglon.propiedad.modo = DISPATCH_PROPERTYPUT;
    renglon.valor = valor;
    return renglon;
}

LONG Leida(const RECT& r, Propia cual) {
    switch (cual) {
    case Izquierda:
        return r.left;
    case Arriba:
        return r.top;
    case Anchura:
        return Ancho(r);
    default:
        return Alto(r);
    }
}

void Cambiada(RECT& r, Propia cual, LONG valor) {
    switch (cual) {
    case Izquierda:
        OffsetRect(&r, valor - r.left, 0);
        return;
    case Arriba:
        OffsetRect(&r, 0, valor - r.top);
        return;
    case Anchura:
        r.right = r.left + valor;
        return;
    default:
        r.bottom = r.top + valor;
    }
}

LONG Medida(Propia cual, const std::wstring& texto) {
    Propiedad entera;
    entera.genero = Genero::Entero;
    const long medida = Entero(Interpretar(entera, texto));
    const bool lado = cual == Anchura || cual == Altura;
    if (medida < (lado ? 1 : -32000) || medida > 32000)
        throw ErrorDeValor(L"la medida está fuera de rango");
    return medida;
}

/// Whether both stand for the same kind of value under the same name.
bool Comparten(const Propiedad& a, const Propiedad& b) {
    return a.nombre == b.nombre && a.genero == b.genero && a.modo == b.modo;
}

} // namespace

void HojaPropiedades::Leer() {
    renglones_.clear();
    if (mesa_.Seleccion().empty())
        return LeerForma();
    LeerPropias();
    LeerPublicadas();
}

std::size_t HojaPropiedades::Lugar(const std::wstring& nombre) const {
    const auto suyo = std::find_if(renglones_.begin(), renglones_.end(), [&](const Renglon& uno) {
        return uno.propiedad.nombre == nombre;
    });
    return static_cast<std::size_t>(suyo - renglones_.begin());
}

void HojaPropiedades::LeerForma() {
    const SIZE medida = mesa_.Forma().Medida();
    renglones_.push_back(HacerPropia(Anchura, std::to_wstring(medida.cx)));
    renglones_.push_back(HacerPropia(Altura, std::to_wstring(medida.cy)));
}

void HojaPropiedades::LeerPropias() {
    const auto& elegidos = mesa_.Seleccion();
    if (elegidos.size() == 1)
        renglones_.push_back(HacerPropia(Nombre, elegidos.front()->Nombre()));
    for (const Propia cual : {Izquierda, Arriba, Anchura, Altura}) {
        const LONG suya = Leida(elegidos.front()->Rectangulo(), cual);
        const bool todos = std::all_of(elegidos.begin(), elegidos.end(), [&](const auto& control) {
            return Leida(control->Rectangulo(), cual) == suya;
        });
        renglones_.push_back(HacerPropia(cual, todos ? std::to_wstring(suya) : std::wstring()));
    }
}

void HojaPropiedades::LeerPublicadas() {
    const auto& elegidos = mesa_.Seleccion();
    for (const Propiedad& propiedad : mesa_.ElExaminador().De(*elegidos.front())) {
        Renglon renglon;
        renglon.propiedad = propiedad;
        bool primero = true, comun = true, iguales = true;
        for (const auto& control : elegidos) {
            const auto& suyas = mesa_.ElExaminador().De(*control);
            const auto suya = std::find_if(suyas.begin(), suyas.end(), [&](const Propiedad& otra) {
                return Comparten(propiedad, otra);
            });
            comun = suya != suyas.end();
            if (!comun)
                break;
            std::wstring valor;
            try {
                const Variante leido = anfitrion::Leer(control->Despacho(), *suya);
                valor = Presentar(propiedad, leido);
                if (primero && propiedad.genero == Genero::Color)
                    renglon.muestra = static_cast<OLE_COLOR>(Entero(leido));
            } catch (const FalloCom&) {
                // It can't tell: shown without a value.
            }
            iguales = iguales && (primero || valor == renglon.valor);
            if (primero)
                renglon.valor = valor;
            primero = false;
        }
        if (!comun)
            continue;
        if (!iguales) {
            renglon.valor.clear();
            renglon.muestra.reset();
        }
        renglones_.push_back(std::move(renglon));
    }
}

bool HojaPropiedades::Escribir(std::size_t lugar, const std::wstring& texto) {
    const Renglon& renglon = renglones_[lugar];
    if (renglon.propiedad.SoloLectura()) {
        mesa_.Avisar(renglon.propiedad.nombre + L" solo se puede leer.");
        return false;
    }
    try {
        if (renglon.propia)
            return EscribirPropia(static_cast<std::size_t>(renglon.propiedad.numero), texto);
        return Poner(lugar, Interpretar(renglon.propiedad, texto));
    } catch (const ErrorDeValor& error) {
        mesa_.Avisar(renglon.propiedad.nombre + L": " + error.texto + L".");
        return false;
    }
}

bool HojaPropiedades::EscribirPropia(std::size_t cual, const std::wstring& texto) {
    const auto propia = static_cast<Propia>(cual);
    const Mesa::Controles elegidos = mesa_.Seleccion();
    if (propia == Nombre)
        return mesa_.Renombrar(elegidos.front(), texto);
    const LONG medida = Medida(propia, texto);
    return mesa_.Cambiar([&] {
        if (elegidos.empty()) {
            SIZE nueva = mesa_.Forma().Medida();
            (propia == Anchura ? nueva.cx : nueva.cy) = medida;
            mesa_.Forma().PonerMedida(nueva);
        }
        for (const auto& control : elegidos) {
            RECT r = control->Rectangulo();
            Cambiada(r, propia, medida);
            control->Mover(r);
        }
    });
}

bool HojaPropiedades::Poner(std::size_t lugar, const Variante& valor) {
    const Propiedad propiedad = renglones_[lugar].propiedad;
    return mesa_.Cambiar(
        [&] {
            for (const auto& control : Mesa::Controles(mesa_.Seleccion()))
                for (const Propiedad& suya : mesa_.ElExaminador().De(*control))
                    if (Comparten(propiedad, suya))
                        anfitrion::Poner(control->Despacho(), suya, valor);
        },
        {}, propiedad.nombre);
}

Variante HojaPropiedades::Valor(std::size_t lugar) const {
    const Propiedad& propiedad = renglones_[lugar].propiedad;
    for (const Propiedad& suya : mesa_.ElExaminador().De(*mesa_.Seleccion().front()))
        if (Comparten(propiedad, suya))
            return anfitrion::Leer(mesa_.Seleccion().front()->Despacho(), suya);
    return {};
}

} // namespace galeria
