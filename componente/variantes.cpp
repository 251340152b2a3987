#include "componente/variantes.h"

#include "plataforma/windows/objetos_windows.h"

#include <new>

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

} // namespace

Variante DesdeVariant(const VARIANT& v) {
    if (V_VT(&v) == (VT_BYREF | VT_VARIANT)) {
        if (!V_VARIANTREF(&v))
            Lanzar(NumeroError::TiposNoCoinciden);
        // One level only, as the environment defines it: a loop of references can't be built.
        if (V_VT(V_VARIANTREF(&v)) == (VT_BYREF | VT_VARIANT))
            Lanzar(NumeroError::TiposNoCoinciden);
        return DesdeVariant(*V_VARIANTREF(&v));
    }
    if (V_ISBYREF(&v)) {
        VarianteCom directo;
        if (!V_BYREF(&v) || FAILED(VariantCopyInd(directo.Recibir(), const_cast<VARIANT*>(&v))) ||
            V_ISBYREF(&directo))
            Lanzar(NumeroError::TiposNoCoinciden);
        return DesdeVariant(directo);
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
        // Colours come this way too; a value beyond 31 bits keeps its pattern.
        return static_cast<std::int32_t>(V_UI4(&v));
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
