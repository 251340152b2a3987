// What property browsers ask: pages, groups, names of values.
#include "componente/control/objeto_control.h"
#include "componente/paginas/disenos.h"

#include <algorithm>

namespace pincela::componente {

namespace {

struct NombreDeCategoria {
    Categoria categoria;
    PROPCAT numero;
    const wchar_t* nombre;
};

constexpr NombreDeCategoria Categorias[] = {
    {Categoria::Apariencia, PROPCAT_Appearance, L"Apariencia"},
    {Categoria::Datos, PROPCAT_Data, L"Datos"},
    {Categoria::Fuente, PROPCAT_Font, L"Fuente"},
    {Categoria::Comportamiento, PROPCAT_Behavior, L"Comportamiento"},
    {Categoria::Otras, PROPCAT_Misc, L"Otras"},
};

bool EsEnumeracion(const MiembroTardio* miembro) {
    return miembro && (miembro->admite & DISPATCH_PROPERTYGET) &&
           miembro->tipo.familia == Familia::Enumeracion;
}

/// Whether a page of the platform edits properties of that kind.
bool EsPaginaDe(const GUID& pagina, Familia familia) {
    switch (familia) {
    case Familia::ObjetoFuente:
        return pagina == detalle::PaginaDeFuente;
    case Familia::ObjetoImagen:
        return pagina == detalle::PaginaDeImagen;
    case Familia::ColorOle:
        return pagina == detalle::PaginaDeColor;
    default:
        return false;
    }
}

} // namespace

HRESULT ObjetoControl::GetPages(CAUUID* paginas) {
    if (!paginas)
        return E_POINTER;
    const auto lista = Datos().paginas;
    *paginas = {};
    auto* copia = static_cast<GUID*>(CoTaskMemAlloc(lista.size_bytes()));
    if (!copia)
        return E_OUTOFMEMORY;
    std::copy(lista.begin(), lista.end(), copia);
    paginas->cElems = static_cast<ULONG>(lista.size());
    paginas->pElems = copia;
    return S_OK;
}

HRESULT ObjetoControl::MapPropertyToCategory(DISPID dispid, PROPCAT* categoria) {
    if (!categoria)
        return E_POINTER;
    *categoria = 0;
    const MiembroTardio* miembro = clase_.Buscar(dispid);
    for (const NombreDeCategoria& una : Categorias) {
        if (miembro && una.categoria == miembro->categoria) {
            *categoria = una.numero;
            return S_OK;
        }
    }
    return E_FAIL;
}

HRESULT ObjetoControl::GetCategoryName(PROPCAT categoria, LCID, BSTR* nombre) {
    if (!nombre)
        return E_POINTER;
    *nombre = nullptr;
    for (const NombreDeCategoria& una : Categorias) {
        if (una.numero == categoria) {
            *nombre = SysAllocString(una.nombre);
            return *nombre ? S_OK : E_OUTOFMEMORY;
        }
    }
    return E_FAIL;
}

HRESULT ObjetoControl::LeerMiembro(DISPID dispid, Variante& valor) {
    const MiembroTardio* miembro = clase_.Buscar(dispid);
    if (!miembro || !(miembro->admite & DISPATCH_PROPERTYGET))
        return DISP_E_MEMBERNOTFOUND;
    VarianteCom v;
    Preparar();
    miembro->Leer(*nucleo_, *v.Recibir());
    valor = DesdeVariant(v);
    return S_OK;
}

HRESULT ObjetoControl::GetDisplayString(DISPID dispid, BSTR* texto) {
    if (!texto)
        return E_POINTER;
    *texto = nullptr;
    return Guardar([&]() -> HRESULT {
        const MiembroTardio* miembro = clase_.Buscar(dispid);
        if (!EsEnumeracion(miembro))
            return S_FALSE; // the browser shows the value its own way
        Variante valor;
        Exigir(LeerMiembro(dispid, valor));
        const std::int32_t numero = AEntero32(valor);
        for (const MiembroEnumeracion& uno : miembro->tipo.enumeracion->miembros)
            if (uno.valor == numero) {
                *texto = SysAllocString(uno.nombre);
                return *texto ? S_OK : E_OUTOFMEMORY;
            }
        *texto = HaciaBstr(EnteroATexto(numero));
        return S_OK;
    });
}

HRESULT ObjetoControl::MapPropertyToPage(DISPID dispid, CLSID* pagina) {
    if (!pagina)
        return E_POINTER;
    *pagina = CLSID_NULL;
    const MiembroTardio* miembro = clase_.Buscar(dispid);
    const auto paginas = Datos().paginas;
    if (!miembro || !(miembro->admite & DISPATCH_PROPERTYGET) || paginas.empty())
        return PERPROP_E_NOPAGEAVAILABLE;
    for (const GUID& una : paginas) {
        const windows::DisenoPagina* diseno = DisenoDe(una);
        if (diseno ? Edita(*diseno, miembro->nombre) : EsPaginaDe(una, miembro->tipo.familia)) {
            *pagina = una;
            return S_OK;
        }
    }
    return PERPROP_E_NOPAGEAVAILABLE;
}

HRESULT ObjetoControl::GetPredefinedStrings(DISPID dispid, CALPOLESTR* textos, CADWORD* galletas) {
    if (!textos || !galletas)
        return E_POINTER;
    *textos = {};
    *galletas = {};
    const MiembroTardio* miembro = clase_.Buscar(dispid);
    if (!EsEnumeracion(miembro))
        return S_FALSE;
    const auto miembros = miembro->tipo.enumeracion->miembros;
    const auto cuantos = static_cast<ULONG>(miembros.size());
    auto* nombres = static_cast<LPOLESTR*>(CoTaskMemAlloc(cuantos * sizeof(LPOLESTR)));
    auto* numeros = static_cast<DWORD*>(CoTaskMemAlloc(cuantos * sizeof(DWORD)));
    ULONG hechos = 0;
    if (nombres && numeros) {
        for (; hechos < cuantos; ++hechos) {
            nombres[hechos] = DuplicarTexto(miembros[hechos].nombre);
            if (!nombres[hechos])
                break;
            numeros[hechos] = static_cast<DWORD>(miembros[hechos].valor);
        }
    }
    if (hechos < cuantos) {
        for (ULONG i = 0; i < hechos; ++i)
            CoTaskMemFree(nombres[i]);
        CoTaskMemFree(nombres);
        CoTaskMemFree(numeros);
        return E_OUTOFMEMORY;
    }
    *textos = {cuantos, nombres};
    *galletas = {cuantos, numeros};
    return S_OK;
}

HRESULT ObjetoControl::GetPredefinedValue(DISPID dispid, DWORD galleta, VARIANT* valor) {
    if (!valor)
        return E_POINTER;
    VariantInit(valor);
    const MiembroTardio* miembro = clase_.Buscar(dispid);
    if (!EsEnumeracion(miembro))
        return E_NOTIMPL;
    for (const MiembroEnumeracion& uno : miembro->tipo.enumeracion->miembros) {
        if (static_cast<DWORD>(uno.valor) == galleta) {
            V_VT(valor) = VT_I4;
            V_I4(valor) = uno.valor;
            return S_OK;
        }
    }
    return E_INVALIDARG;
}

} // namespace pincela::componente
