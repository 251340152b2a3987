#include "componente/variantes.h"

#include "componente/control/tardio.h"
#include "componente/errores_com.h"
#include "plataforma/windows/objetos_windows.h"

#include <cmath>
#include <limits>
#include <new>
#include <utility>

#include <ocidl.h>

namespace pincela::componente {

bool ObjetoCom::EsElMismo(const Objeto& otro) const {
    const auto* com = dynamic_cast<const ObjetoCom*>(&otro);
    return com && Ptr<IUnknown>::De(objeto_.get()).get() == Ptr<IUnknown>::De(com->Com()).get();
}

VARIANT_BOOL HaciaBool(bool valor) {
    return valor ? VARIANT_TRUE : VARIANT_FALSE;
}

Texto DesdeBstr(BSTR texto) {
    if (!texto)
        return {};
    return Texto(reinterpret_cast<const char16_t*>(texto), SysStringLen(texto));
}

BSTR HaciaBstr(const Texto& texto) {
    BSTR b = SysAllocStringLen(reinterpret_cast<const wchar_t*>(texto.data()),
                               static_cast<UINT>(texto.size()));
    if (!b)
        throw std::bad_alloc();
    return b;
}

ReferenciaObjeto DesdeObjeto(IUnknown* objeto) {
    if (!objeto)
        return nullptr;
    if (Ptr<IFont>::De(objeto))
        return windows::EnvolverFuente(objeto);
    if (Ptr<IPicture>::De(objeto))
        return windows::EnvolverImagen(objeto);
    return std::make_shared<ObjetoCom>(objeto);
}

IDispatch* HaciaDispatch(const ReferenciaObjeto& objeto) {
    if (auto fuente = std::dynamic_pointer_cast<ObjetoFuente>(objeto))
        return windows::DesenvolverFuente(fuente);
    if (auto imagen = std::dynamic_pointer_cast<ObjetoImagen>(objeto))
        return windows::DesenvolverImagen(imagen);
    if (auto com = std::dynamic_pointer_cast<ObjetoCom>(objeto))
        return Ptr<IDispatch>::De(com->Com()).Ceder();
    return nullptr;
}

namespace {

/// Types without a counterpart in the core travel as the nearest one that holds them.
Variante PorConversion(const VARIANT& v, VARTYPE hacia) {
    VarianteCom otro;
    if (FAILED(VariantChangeType(otro.Recibir(), const_cast<VARIANT*>(&v), 0, hacia)))
        Lanzar(NumeroError::TiposNoCoinciden);
    return DesdeVariant(otro);
}

/// The value behind a reference; `copia` keeps what had to be copied.
const VARIANT& Directo(const VARIANT& v, VarianteCom& copia) {
    constexpr VARTYPE AVariant = VT_BYREF | VT_VARIANT;
    const VARIANT* directo = V_VT(&v) == AVariant && V_VARIANTREF(&v) ? V_VARIANTREF(&v) : &v;
    if (!V_ISBYREF(directo))
        return *directo;
    // One level only, as the environment defines it: a loop of references can't be built.
    if (V_VT(directo) == AVariant || !V_BYREF(directo) ||
        FAILED(VariantCopyInd(copia.Recibir(), const_cast<VARIANT*>(directo))) || V_ISBYREF(&copia))
        Lanzar(NumeroError::TiposNoCoinciden);
    return copia;
}

bool NoEsNumero(const VARIANT& v) {
    return V_VT(&v) == VT_R4 ? std::isnan(V_R4(&v))
                             : (V_VT(&v) == VT_R8 || V_VT(&v) == VT_DATE) && std::isnan(V_R8(&v));
}

HRESULT CambiarTipo(const VARIANT& v, VARTYPE tipo, VARIANT* otro) {
    return VariantChangeTypeEx(otro, const_cast<VARIANT*>(&v), LOCALE_USER_DEFAULT, 0, tipo);
}

/// The runtime's conversion, and its documented overflow where not every version of it looks: some
/// copy the bits of an unsigned number into a signed one, or let pass what is no number.
HRESULT Cambiar(const VARIANT& v, VARTYPE tipo, VARIANT* otro) {
    const bool sinSigno = V_VT(&v) == VT_UI2 || V_VT(&v) == VT_UI4 || V_VT(&v) == VT_UINT;
    if (sinSigno && (tipo == VT_I2 || tipo == VT_I4)) {
        VARIANT ancho;
        VariantInit(&ancho);
        const HRESULT estado = CambiarTipo(v, VT_I8, &ancho);
        return FAILED(estado) ? estado : CambiarTipo(ancho, tipo, otro);
    }
    if (tipo != VT_BSTR && tipo != VT_BOOL && NoEsNumero(v))
        return DISP_E_OVERFLOW;
    return CambiarTipo(v, tipo, otro);
}

/// A late-bound value on its way to the type that is wanted.
class ValorTardio {
  public:
    explicit ValorTardio(const VARIANT& v) : valor_(&Directo(v, propio_)) {}
    ValorTardio(const ValorTardio&) = delete;
    ValorTardio& operator=(const ValorTardio&) = delete;

    const VARIANT& operator*() const { return *valor_; }

    /// The runtime's status; the value stays what it was where it does not convert.
    HRESULT Convertir(VARTYPE tipo) {
        if (V_VT(valor_) == tipo)
            return S_OK;
        const HRESULT leido = TomarMiembroPorDefecto();
        if (FAILED(leido) || V_VT(valor_) == tipo)
            return leido;
        VarianteCom otro;
        const HRESULT estado = Cambiar(*valor_, tipo, &otro);
        if (SUCCEEDED(estado))
            Poner(otro);
        return estado;
    }

    /// The runtime follows objects as well, but without end where one stands for itself.
    HRESULT TomarMiembroPorDefecto() {
        constexpr int Maximo = 16;
        for (int i = 0; V_VT(valor_) == VT_DISPATCH && V_DISPATCH(valor_); ++i) {
            VarianteCom leido;
            if (i == Maximo ||
                FAILED(LeerTardio(Ptr<IDispatch>(V_DISPATCH(valor_)), DISPID_VALUE, &leido)))
                return DISP_E_TYPEMISMATCH;
            Poner(leido);
        }
        return S_OK;
    }

  private:
    void Poner(VarianteCom& otro) {
        std::swap(static_cast<VARIANT&>(propio_), static_cast<VARIANT&>(otro));
        valor_ = &propio_;
    }

    VarianteCom propio_;
    const VARIANT* valor_;
};

/// Whole numbers up to 32 bits keep their type; a larger one is a double.
Variante SinSigno(ULONG numero) {
    if (numero > static_cast<ULONG>(std::numeric_limits<std::int32_t>::max()))
        return static_cast<double>(numero);
    return static_cast<std::int32_t>(numero);
}

} // namespace

VARIANT NumeroTardio(const VARIANT& v, VARTYPE tipo) {
    if (V_VT(&v) == tipo)
        return v;
    ValorTardio valor(v);
    // The everyday number of a script, spared the road through the platform.
    if (tipo == VT_I4 && V_VT(&*valor) == VT_I2) {
        VARIANT ancho;
        V_VT(&ancho) = VT_I4;
        V_I4(&ancho) = V_I2(&*valor);
        return ancho;
    }
    Exigir(valor.Convertir(tipo));
    return *valor;
}

Texto TextoTardio(const VARIANT& v) {
    ValorTardio valor(v);
    Exigir(valor.Convertir(VT_BSTR));
    return DesdeBstr(V_BSTR(&*valor));
}

Color ColorTardio(const VARIANT& v) {
    ValorTardio valor(v);
    HRESULT estado = valor.Convertir(VT_I4);
    if (estado == DISP_E_OVERFLOW)
        estado = valor.Convertir(VT_UI4);
    Exigir(estado);
    return Color(static_cast<std::uint32_t>(V_UI4(&*valor)));
}

Variante ValorTardioDe(const VARIANT& v) {
    ValorTardio valor(v);
    return DesdeVariant(SUCCEEDED(valor.TomarMiembroPorDefecto()) ? *valor : v);
}

bool EsOmitido(const VARIANT& v) {
    switch (V_VT(&v)) {
    case VT_ERROR:
        return V_ERROR(&v) == DISP_E_PARAMNOTFOUND;
    case VT_BYREF | VT_ERROR:
        return V_ERRORREF(&v) && *V_ERRORREF(&v) == DISP_E_PARAMNOTFOUND;
    case VT_BYREF | VT_VARIANT:
        return V_VARIANTREF(&v) && V_VT(V_VARIANTREF(&v)) != (VT_BYREF | VT_VARIANT) &&
               EsOmitido(*V_VARIANTREF(&v));
    default:
        return false;
    }
}

Variante DesdeVariant(const VARIANT& v) {
    if (V_ISBYREF(&v)) {
        VarianteCom copia;
        return DesdeVariant(Directo(v, copia));
    }
    switch (V_VT(&v)) {
    case VT_EMPTY:
        return Vacio{};
    case VT_NULL:
        return Nulo{};
    case VT_ERROR:
        return V_ERROR(&v) == DISP_E_PARAMNOTFOUND
                   ? Variante{Falta{}}
                   : (Lanzar(NumeroError::TiposNoCoinciden), Vacio{});
    case VT_BOOL:
        return V_BOOL(&v) != VARIANT_FALSE;
    case VT_UI1:
        return std::uint8_t{V_UI1(&v)};
    case VT_I1:
        return static_cast<std::int16_t>(static_cast<signed char>(V_I1(&v)));
    case VT_I2:
        return std::int16_t{V_I2(&v)};
    case VT_UI2:
        return static_cast<std::int32_t>(V_UI2(&v));
    case VT_I4:
    case VT_INT:
        return static_cast<std::int32_t>(V_I4(&v));
    case VT_UI4:
    case VT_UINT:
        return SinSigno(V_UI4(&v));
    case VT_R4:
        return V_R4(&v);
    case VT_R8:
        return V_R8(&v);
    case VT_I8:
        return static_cast<double>(V_I8(&v));
    case VT_UI8:
        return static_cast<double>(V_UI8(&v));
    case VT_DATE:
    case VT_CY:
    case VT_DECIMAL:
        return PorConversion(v, VT_R8);
    case VT_BSTR:
        return DesdeBstr(V_BSTR(&v));
    case VT_DISPATCH:
    case VT_UNKNOWN:
        return DesdeObjeto(V_UNKNOWN(&v));
    default:
        Lanzar(NumeroError::TiposNoCoinciden);
    }
}

void HaciaVariant(const Variante& valor, VARIANT* v) {
    VariantInit(v);
    struct Visita {
        VARIANT* v;
        void operator()(Vacio) const {}
        void operator()(Nulo) const { V_VT(v) = VT_NULL; }
        void operator()(Falta) const {
            V_VT(v) = VT_ERROR;
            V_ERROR(v) = DISP_E_PARAMNOTFOUND;
        }
        void operator()(bool b) const {
            V_VT(v) = VT_BOOL;
            V_BOOL(v) = HaciaBool(b);
        }
        void operator()(std::uint8_t n) const {
            V_VT(v) = VT_UI1;
            V_UI1(v) = n;
        }
        void operator()(std::int16_t n) const {
            V_VT(v) = VT_I2;
            V_I2(v) = n;
        }
        void operator()(std::int32_t n) const {
            V_VT(v) = VT_I4;
            V_I4(v) = n;
        }
        void operator()(float n) const {
            V_VT(v) = VT_R4;
            V_R4(v) = n;
        }
        void operator()(double n) const {
            V_VT(v) = VT_R8;
            V_R8(v) = n;
        }
        void operator()(const Texto& t) const {
            V_BSTR(v) = HaciaBstr(t);
            V_VT(v) = VT_BSTR;
        }
        void operator()(const ReferenciaObjeto& o) const {
            V_DISPATCH(v) = HaciaDispatch(o);
            V_VT(v) = VT_DISPATCH;
        }
    };
    std::visit(Visita{v}, valor);
}

} // namespace pincela::componente
