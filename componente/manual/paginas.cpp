#include "componente/manual/paginas.h"

#include "common/errores.h"
#include "componente/clases.h"
#include "componente/manual/controles.h"
#include "componente/manual/escrito.h"
#include "componente/manual/guardado.h"
#include "componente/manual/presentaciones.h"
#include "componente/manual/valores.h"

#include <version.h>

#include <map>
#include <type_traits>

namespace pincela::manual {

using namespace pincela::componente;

namespace {

constexpr char Aviso[] = "<!-- Hecho por `make docs` con las tablas de miembros: no se escribe a "
                         "mano. -->\n\n";

const char* NombreDe(Categoria categoria) {
    switch (categoria) {
    case Categoria::Apariencia:
        return "Apariencia";
    case Categoria::Datos:
        return "Datos";
    case Categoria::Fuente:
        return "Fuente";
    case Categoria::Comportamiento:
        return "Comportamiento";
    default:
        return "Otras";
    }
}

/// What a new control answers; a getter that refuses leaves a dash.
template <class Nucleo, class Propiedad>
std::string ValorNuevo(Nucleo& control, const Propiedad&) {
    try {
        return Escribir(AVariante((control.*Propiedad::Leer)()),
                        TipoDe<typename Propiedad::Valor>());
    } catch (const ErrorEjecucion&) {
        return "—";
    }
}

template <class Tabla>
std::string Propiedades() {
    const auto control = Hacer<typename Tabla::Nucleo>();
    control->InitProperties();
    std::string filas;
    ParaCadaMiembro<Tabla>([&]<class M, class I>(const M& miembro, I) {
        if constexpr (M::TieneValor)
            filas += "| `" + Utf8(miembro.rasgos.nombre) + "` | " +
                     NombreDelTipo(TipoDe<typename M::Valor>()) +
                     (M::SeEscribe ? "" : ", solo lectura") + " | " +
                     NombreDe(miembro.rasgos.categoria) + " | " + ValorNuevo(*control, miembro) +
                     " | " + (miembro.rasgos.ayuda ? Celda(miembro.rasgos.ayuda) : "") + " |\n";
    });
    return "## Propiedades\n\n| propiedad | tipo | categoría | en un control nuevo | ayuda |\n"
           "|---|---|---|---|---|\n" +
           filas + "\n";
}

/// Type of a key; keys of other classes' colours, which some controls read too, are colours.
Tipo TipoDeClave(const std::map<std::wstring, Tipo>& tipos, const std::wstring& clave) {
    const auto propia = tipos.find(clave);
    if (propia != tipos.end())
        return propia->second;
    return {VT_I4, clave.starts_with(L"ColorLetra") ? Familia::ColorOle : Familia::Simple};
}

template <class Tabla>
std::string Guardado() {
    std::map<std::wstring, Tipo> tipos;
    ParaCadaMiembro<Tabla>([&]<class M, class I>(const M& miembro, I) {
        if constexpr (M::TieneValor)
            tipos[miembro.rasgos.nombre] = TipoDe<typename M::Valor>();
    });
    const auto control = Hacer<typename Tabla::Nucleo>();
    std::string filas;
    for (const Clave& clave : ClavesDe(*control)) {
        const std::wstring nombre(clave.nombre.begin(), clave.nombre.end());
        const Tipo tipo = TipoDeClave(tipos, nombre);
        filas += "| `" + Utf8(nombre) + "` | " +
                 (clave.siFalta ? Escribir(*clave.siFalta, tipo) : "no se lee") + " | " +
                 (clave.noSeEscribe ? Escribir(*clave.noSeEscribe, tipo) : "nunca se guarda") +
                 " |\n";
    }
    return "## Lo que se guarda con el formulario\n\nEn el orden en que se lee. Un valor igual al "
           "de la "
           "última columna no se escribe.\n\n"
           "| clave | si falta al leer | no se guarda cuando es |\n|---|---|---|\n" +
           filas + "\n";
}

template <class Tabla>
std::string Metodos() {
    std::string texto;
    for (const DescripcionRanura& ranura : DescribirRanuras<Tabla>())
        if (ranura.clase == INVOKE_FUNC) {
            texto += "- `" + Llamada(ranura.rasgos.nombre, ranura.parametros) + "`";
            if (ranura.resultado.vt != VT_VOID)
                texto += " devuelve " + NombreDelTipo(ranura.resultado);
            texto += "\n";
        }
    return texto.empty() ? texto : "## Métodos\n\n" + texto + "\n";
}

template <class Tabla>
std::string Eventos() {
    std::string texto;
    for (const DescripcionDeEvento& evento : DescribirEventos<Tabla>())
        texto += "- `" + Llamada(evento.nombre, evento.parametros) + "`\n";
    return texto.empty() ? texto : "## Eventos\n\n" + texto + "\n";
}

std::string Identidad(const DatosClase& datos) {
    std::string texto = "| | |\n|---|---|\n| nombre para crearla | `Pincela." + Utf8(datos.nombre) +
                        "` |\n| clase | `" + Escrito(datos.clase) + "` |\n| interfaz | `_" +
                        Utf8(datos.nombre) + "` `" + Escrito(datos.interfaz) + "` |\n";
    if (datos.genero == Genero::Control)
        texto += "| eventos | `__" + Utf8(datos.nombre) + "` `" + Escrito(datos.eventos) +
                 "` |\n| tamaño de un control nuevo | " + std::to_string(datos.tamanio.cx) + " × " +
                 std::to_string(datos.tamanio.cy) + " píxeles |\n";
    return texto + "\n";
}

template <class Tabla>
std::string Clase(const DatosClase& datos) {
    const Presentacion presentacion = PresentacionDe(datos.nombre);
    std::string texto = Aviso + ("# " + Utf8(datos.nombre)) + "\n\n" + presentacion.texto + "\n\n";
    if (presentacion.imagen)
        texto += "![" + Utf8(datos.nombre) + "](../../" + presentacion.imagen + ")\n\n";
    texto += Identidad(datos);
    if constexpr (requires(typename Tabla::Nucleo & n) { n.InitProperties(); })
        texto += Propiedades<Tabla>();
    texto += Metodos<Tabla>() + Eventos<Tabla>();
    if constexpr (requires(typename Tabla::Nucleo & n) { n.InitProperties(); })
        texto += Guardado<Tabla>();
    texto.pop_back();
    return texto;
}

std::string LasEnumeraciones() {
    std::string texto = Aviso + std::string("# Enumeraciones\n");
    for (const Enumeracion* una : Enumeraciones::todas) {
        texto += "\n## " + Utf8(una->nombre) + "\n\n| miembro | valor |\n|---|---|\n";
        for (const MiembroEnumeracion& miembro : una->miembros)
            texto += "| `" + Utf8(miembro.nombre) + "` | " + std::to_string(miembro.valor) + " |\n";
    }
    return texto +
           "\n## tRectRedo\n\nRegistro: la elipse de las esquinas, como fracción del ancho y "
           "del alto.\n\n| campo | tipo |\n|---|---|\n| `RelX` | Single |\n| `RelY` | Single "
           "|\n";
}

} // namespace

std::vector<Pagina> Paginas() {
    std::vector<Pagina> paginas;
    std::string indice = Aviso + std::string("# Referencia de Pincela " PINCELA_VERSION "\n\n"
                                             "| clase | qué es |\n|---|---|\n");
    ParaCadaClase([&]<class Tabla>(const DatosClase& datos) {
        const std::string nombre = Utf8(datos.nombre);
        indice += "| [" + nombre + "](" + nombre + ".md) | " + PresentacionDe(datos.nombre).texto +
                  " |\n";
        paginas.push_back({nombre + ".md", Clase<Tabla>(datos)});
    });
    indice += "\nLos tipos enumerados y el registro están en [Enumeraciones](Enumeraciones.md). La "
              "biblioteca de tipos es `" +
              Escrito(GuidDeLaBiblioteca) + "`, versión " + std::to_string(VersionMayor) + "." +
              std::to_string(VersionMenor) + ".\n";
    paginas.push_back({"Enumeraciones.md", LasEnumeraciones()});
    paginas.push_back({"LEAME.md", std::move(indice)});
    return paginas;
}

} // namespace pincela::manual
