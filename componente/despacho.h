// The default interface of an object: virtual table and IDispatch, made from a table of members.
//
// InterfazDual is laid out as the binary interface wants it: the pointer to the table of functions
// first. Each function of the table is generated from one member: it holds the object, converts
// the arguments, calls the core and turns an error into a status.
#pragma once

#include "componente/acceso.h"
#include "componente/clases.h"
#include "componente/errores_com.h"

#include <span>

namespace pincela::componente {

struct InterfazDual;

/// Arguments of a late-bound call in the order of the declaration; null where one was left out.
struct ArgumentosTardios {
    static constexpr unsigned Maximo = 12;
    const VARIANT* valores[Maximo] = {};
    /// Place of each in the caller's array, to tell which one is wrong.
    unsigned lugares[Maximo] = {};
    unsigned equivocado = 0;
    /// True once all are converted and the member itself runs.
    bool convertidos = false;
};

/// A member as late-bound callers reach it.
struct MiembroTardio {
    const wchar_t* nombre;
    DISPID dispid;
    Tipo tipo;   // of a property
    WORD admite; // DISPATCH_METHOD, or PROPERTYGET with PROPERTYPUT | PROPERTYPUTREF
    Categoria categoria;
    std::uint8_t cuantos; // parameters
    const Parametro* parametros;
    const Acceso* acceso; // of a property
    /// Of a method. `resultado` may be null.
    HRESULT(*invocar)
    (InterfazDual& yo, ArgumentosTardios& argumentos, VARIANT* resultado);

    /// Value of a property; `valor` comes empty.
    void Leer(const ControlUsuario& control, VARIANT& valor) const;
};

struct ClasePublicada {
    const DatosClase* datos;
    const void* const* tabla;
    std::span<const MiembroTardio> miembros;

    const MiembroTardio* Buscar(DISPID dispid) const;
};

/// Default interface of one object. Lives inside the object.
struct InterfazDual {
    const void* const* tabla;
    IUnknown* objeto; // the object this is part of; not counted
    void* nucleo;     // of a control, its ControlUsuario
    const ClasePublicada* clase;
    /// Called before the first use of the members when not null: brings to life an object that its
    /// container never initialised. Throws.
    void (*preparar)(InterfazDual& yo) = nullptr;

    IDispatch* Com() { return reinterpret_cast<IDispatch*>(this); }
};
static_assert(offsetof(InterfazDual, tabla) == 0);

// The seven inherited functions, the same for every class.
namespace base {
HRESULT STDMETHODCALLTYPE QueryInterface(InterfazDual*, REFIID, void**);
ULONG STDMETHODCALLTYPE AddRef(InterfazDual*);
ULONG STDMETHODCALLTYPE Release(InterfazDual*);
HRESULT STDMETHODCALLTYPE GetTypeInfoCount(InterfazDual*, UINT*);
HRESULT STDMETHODCALLTYPE GetTypeInfo(InterfazDual*, UINT, LCID, ITypeInfo**);
HRESULT STDMETHODCALLTYPE GetIDsOfNames(InterfazDual*, REFIID, LPOLESTR*, UINT, LCID, DISPID*);
HRESULT STDMETHODCALLTYPE Invoke(InterfazDual*, DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*,
                                 EXCEPINFO*, UINT*);
} // namespace base

namespace detalle {

/// Holds the object for the length of a call: a handler may release the last reference.
class Sosten {
  public:
    explicit Sosten(IUnknown* objeto) : objeto_(objeto) { objeto_->AddRef(); }
    Sosten(const Sosten&) = delete;
    Sosten& operator=(const Sosten&) = delete;
    ~Sosten() { objeto_->Release(); }

  private:
    IUnknown* objeto_;
};

/// Runs `accion(datos)` with the object held and ready; what it throws becomes the status.
HRESULT EntrarCon(InterfazDual* yo, void (*accion)(void* datos), void* datos) noexcept;

template <class F>
HRESULT Entrar(InterfazDual* yo, F f) noexcept {
    return EntrarCon(
        yo, [](void* datos) { (*static_cast<F*>(datos))(); }, &f);
}

template <class C>
C& NucleoDe(InterfazDual* yo) {
    if constexpr (std::is_base_of_v<ControlUsuario, C>)
        return static_cast<C&>(*static_cast<ControlUsuario*>(yo->nucleo));
    else
        return *static_cast<C*>(yo->nucleo);
}

/// The argument that was given, or in `defecto` what it is worth left out; `argumentos.equivocado`
/// names it from here on. Raises FalloCom for one that may not be left out.
const VARIANT& ArgumentoDado(ArgumentosTardios& argumentos, unsigned i, const Parametro& parametro,
                             VARIANT& defecto);

template <class P>
auto TomarArgumento(ArgumentosTardios& argumentos, unsigned i, const Parametro& parametro) {
    VARIANT defecto;
    return Abi<std::remove_cvref_t<P>>::DeVariant(ArgumentoDado(argumentos, i, parametro, defecto));
}

/// A record comes by reference inside its variant.
template <>
inline auto TomarArgumento<const tRectRedo&>(ArgumentosTardios& argumentos, unsigned i,
                                             const Parametro& parametro) {
    VARIANT defecto;
    const VARIANT* v = &ArgumentoDado(argumentos, i, parametro, defecto);
    if (V_VT(v) == (VT_BYREF | VT_VARIANT))
        v = V_VARIANTREF(v);
    // An array of records keeps something else where a record keeps its description.
    const bool esRegistro = v && (V_VT(v) & ~VT_BYREF) == VT_RECORD && V_RECORDINFO(v);
    GUID guid{};
    if (!esRegistro || FAILED(V_RECORDINFO(v)->GetGuid(&guid)) || guid != GuidDeRectRedo ||
        !V_RECORD(v))
        Lanzar(NumeroError::TiposNoCoinciden);
    return *static_cast<const tRectRedo*>(V_RECORD(v));
}

// There are hundreds of properties: what their functions do is written once, and those of the
// virtual table only tell which member of its class they stand for.

HRESULT LeerPropiedad(InterfazDual* yo, std::size_t miembro, void* salida) noexcept;
/// `valor` points to the argument as it was passed.
HRESULT PonerPropiedad(InterfazDual* yo, std::size_t miembro, const void* valor) noexcept;

template <std::size_t Miembro>
HRESULT STDMETHODCALLTYPE Leer(InterfazDual* yo, void* salida) {
    return LeerPropiedad(yo, Miembro, salida);
}
template <std::size_t Miembro, class Argumento>
HRESULT STDMETHODCALLTYPE Poner(InterfazDual* yo, Argumento valor) {
    return PonerPropiedad(yo, Miembro, &valor);
}

// Functions of method `I` of a table.
template <class Tabla, std::size_t I,
          class Argumentos = typename FirmaDe<
              std::remove_cvref_t<decltype(std::get<I>(Tabla::miembros))>::Funcion>::Argumentos>
struct FuncionesDeMetodo;

template <class Tabla, std::size_t Cual, class... P>
struct FuncionesDeMetodo<Tabla, Cual, std::tuple<P...>> {
    using Nucleo = typename Tabla::Nucleo;
    using M = std::remove_cvref_t<decltype(std::get<Cual>(Tabla::miembros))>;
    using Resultado = typename FirmaDe<M::Funcion>::Resultado;
    static constexpr const auto& parametros = std::get<Cual>(Tabla::miembros).parametros;

    static bool FaltaAlguno(ParametroAbi<P>... p) {
        return [&]<std::size_t... I>(std::index_sequence<I...>) {
            return (EsPunteroNulo<P>(p, parametros[I]) || ...);
        }
        (std::index_sequence_for<P...>{});
    }

    static Resultado Hacer(InterfazDual* yo, ParametroAbi<P>... p) {
        return [&]<std::size_t... I>(std::index_sequence<I...>) {
            return (NucleoDe<Nucleo>(yo).*M::Funcion)(EntrarParametro<P>(p, parametros[I])...);
        }
        (std::index_sequence_for<P...>{});
    }

    static HRESULT STDMETHODCALLTYPE LlamarSinResultado(InterfazDual* yo, ParametroAbi<P>... p) {
        if (FaltaAlguno(p...))
            return SinErrorInfo(E_POINTER);
        return Entrar(yo, [&] { Hacer(yo, p...); });
    }

    template <class R>
    static HRESULT STDMETHODCALLTYPE Llamar(InterfazDual* yo, ParametroAbi<P>... p,
                                            typename Abi<R>::Tipo* salida) {
        if (!salida)
            return SinErrorInfo(E_POINTER);
        *salida = typename Abi<R>::Tipo{};
        if (FaltaAlguno(p...))
            return SinErrorInfo(E_POINTER);
        return Entrar(yo, [&] { *salida = Abi<R>::Salir(Hacer(yo, p...)); });
    }

    static HRESULT Tardia(InterfazDual& yo, ArgumentosTardios& argumentos, VARIANT* resultado) {
        return [&]<std::size_t... I>(std::index_sequence<I...>) {
            // Braces convert the arguments in order, whatever the order of a call would be.
            std::tuple<decltype(TomarArgumento<P>(argumentos, I, parametros[I]))...> valores{
                TomarArgumento<P>(argumentos, static_cast<unsigned>(I), parametros[I])...};
            argumentos.convertidos = true;
            auto& nucleo = NucleoDe<Nucleo>(&yo);
            if constexpr (std::is_void_v<Resultado>) {
                (nucleo.*M::Funcion)(std::get<I>(valores)...);
            } else {
                const auto valor =
                    Abi<Resultado>::AVariante((nucleo.*M::Funcion)(std::get<I>(valores)...));
                if (resultado)
                    HaciaVariant(valor, resultado);
            }
            return S_OK;
        }
        (std::index_sequence_for<P...>{});
    }
};

/// Function of the virtual table for member `I`: what reads or calls it, or what assigns it.
template <class Tabla, std::size_t I, bool EsPoner>
constexpr auto FuncionDe() {
    using M = std::tuple_element_t<I, std::remove_cvref_t<decltype(Tabla::miembros)>>;
    if constexpr (EsPoner) {
        using P = std::tuple_element_t<0, typename FirmaDe<M::Poner>::Argumentos>;
        return &Poner<I, Portador<ParametroAbi<P>>>;
    } else if constexpr (M::TieneValor) {
        return &Leer<I>;
    } else {
        using F = FuncionesDeMetodo<Tabla, I>;
        if constexpr (std::is_void_v<typename F::Resultado>)
            return &F::LlamarSinResultado;
        else
            return &F::template Llamar<typename F::Resultado>;
    }
}

/// Which member each slot belongs to, and whether it assigns it.
struct Ranura {
    std::size_t miembro;
    bool esPoner;
};
template <class Tabla>
constexpr auto RanurasDe() {
    constexpr std::size_t cuantas = [] {
        std::size_t n = 0;
        ParaCadaMiembro<Tabla>([&]<class M>(const M&, auto) { n += M::Ranuras; });
        return n;
    }();
    std::array<Ranura, cuantas> ranuras{};
    std::size_t n = 0;
    ParaCadaMiembro<Tabla>([&]<class M>(const M&, auto indice) {
        for (std::size_t i = 0; i < M::Ranuras; ++i)
            ranuras[n++] = {indice, i == 1};
    });
    return ranuras;
}

template <class Tabla, class = std::make_index_sequence<RanurasDe<Tabla>().size()>>
struct TablaDeFunciones;
template <class Tabla, std::size_t... R>
struct TablaDeFunciones<Tabla, std::index_sequence<R...>> {
    static constexpr auto ranuras = RanurasDe<Tabla>();
    template <std::size_t I>
    static constexpr auto funcion = FuncionDe<Tabla, ranuras[I].miembro, ranuras[I].esPoner>();

    static inline const void* const funciones[] = {
        reinterpret_cast<const void*>(&base::QueryInterface),
        reinterpret_cast<const void*>(&base::AddRef),
        reinterpret_cast<const void*>(&base::Release),
        reinterpret_cast<const void*>(&base::GetTypeInfoCount),
        reinterpret_cast<const void*>(&base::GetTypeInfo),
        reinterpret_cast<const void*>(&base::GetIDsOfNames),
        reinterpret_cast<const void*>(&base::Invoke),
        reinterpret_cast<const void*>(funcion<R>)...};
};

template <class Tabla, std::size_t I>
constexpr MiembroTardio DescribirTardio() {
    constexpr auto& m = std::get<I>(Tabla::miembros);
    using M = std::remove_cvref_t<decltype(m)>;
    if constexpr (M::TieneValor) {
        constexpr WORD poner =
            M::SeEscribe ? DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF : WORD{0};
        return {m.rasgos.nombre,
                m.rasgos.dispid,
                TipoDe<typename M::Valor>(),
                static_cast<WORD>(DISPATCH_PROPERTYGET | poner),
                m.rasgos.categoria,
                0,
                nullptr,
                &AccesoA<M>,
                nullptr};
    } else {
        return {m.rasgos.nombre,
                m.rasgos.dispid,
                {},
                DISPATCH_METHOD,
                m.rasgos.categoria,
                std::uint8_t{M::Aridad},
                m.parametros.data(),
                nullptr,
                &FuncionesDeMetodo<Tabla, I>::Tardia};
    }
}

template <class Tabla>
constexpr auto DescribirTardios() {
    return []<std::size_t... I>(std::index_sequence<I...>) {
        return std::array<MiembroTardio, sizeof...(I)>{DescribirTardio<Tabla, I>()...};
    }
    (std::make_index_sequence<std::tuple_size_v<std::remove_cvref_t<decltype(Tabla::miembros)>>>{});
}

} // namespace detalle

/// The class as objects of it are published.
template <class Tabla, const DatosClase& Datos>
struct Publicacion {
    static constexpr auto miembros = detalle::DescribirTardios<Tabla>();
    static constexpr ClasePublicada clase{&Datos, detalle::TablaDeFunciones<Tabla>::funciones,
                                          miembros};
};
template <class Tabla, const DatosClase& Datos>
inline constexpr const ClasePublicada& Publicada = Publicacion<Tabla, Datos>::clase;

} // namespace pincela::componente
