#include "pruebas/componente/tipos/lector.h"

#include "anfitrion/variante.h"

#include <olectl.h>

#include <cstdio>

namespace tipos {

using anfitrion::Cadena;
using anfitrion::Estrechar;
using anfitrion::Puntero;

namespace {

class Funcion {
  public:
    Funcion(ITypeInfo* info, UINT indice) : info_(info) { info_->GetFuncDesc(indice, &desc_); }
    Funcion(const Funcion&) = delete;
    Funcion& operator=(const Funcion&) = delete;
    ~Funcion() {
        if (desc_)
            info_->ReleaseFuncDesc(desc_);
    }
    const FUNCDESC* operator->() const { return desc_; }
    explicit operator bool() const { return desc_ != nullptr; }

  private:
    ITypeInfo* info_;
    FUNCDESC* desc_ = nullptr;
};

std::string NombreDelReferido(ITypeInfo* info, HREFTYPE referencia) {
    Puntero<ITypeInfo> otro;
    if (FAILED(info->GetRefTypeInfo(referencia, otro.Recibir())))
        return "?";
    const GUID guid = Atributos(otro.get())->guid;
    if (guid == __uuidof(IFontDisp))
        return "fuente";
    if (guid == __uuidof(IPictureDisp))
        return "imagen";
    const std::wstring nombre = NombreDe(otro.get());
    return nombre == L"OLE_COLOR" ? "color" : Estrechar(nombre);
}

std::string TipoEscrito(ITypeInfo* info, const TYPEDESC& tipo) {
    switch (tipo.vt) {
    case VT_VOID:
        return "void";
    case VT_BOOL:
        return "bool";
    case VT_UI1:
        return "byte";
    case VT_I2:
        return "short";
    case VT_I4:
        return "long";
    case VT_R4:
        return "float";
    case VT_BSTR:
        return "texto";
    case VT_VARIANT:
        return "variante";
    case VT_DISPATCH:
        return "objeto";
    case VT_USERDEFINED:
        return NombreDelReferido(info, tipo.hreftype);
    case VT_PTR: {
        const std::string apuntado = TipoEscrito(info, *tipo.lptdesc);
        // An object is a pointer already.
        return apuntado == "fuente" || apuntado == "imagen" ? apuntado : apuntado + "&";
    }
    default:
        return "vt" + std::to_string(tipo.vt);
    }
}

std::string ParametroEscrito(ITypeInfo* info, const ELEMDESC& e, const std::string& nombre) {
    const USHORT marcas = e.paramdesc.wParamFlags;
    std::string tipo = TipoEscrito(info, e.tdesc);
    const bool referencia = tipo.ends_with('&');
    const USHORT direccion = marcas & (PARAMFLAG_FIN | PARAMFLAG_FOUT);
    if (direccion != (referencia ? PARAMFLAG_FIN | PARAMFLAG_FOUT : PARAMFLAG_FIN))
        tipo += "(direction " + std::to_string(direccion) + ")";
    std::string texto = nombre.empty() ? tipo : nombre + ": " + tipo;
    if (marcas & PARAMFLAG_FHASDEFAULT)
        texto += " = " + Estrechar(anfitrion::Mostrar(e.paramdesc.pparamdescex->varDefaultValue));
    return marcas & PARAMFLAG_FOPT ? "[" + texto + "]" : texto;
}

std::vector<std::string> Nombres(ITypeInfo* info, const FUNCDESC* f) {
    std::vector<BSTR> crudos(static_cast<std::size_t>(f->cParams) + 1);
    UINT cuantos = 0;
    info->GetNames(f->memid, crudos.data(), static_cast<UINT>(crudos.size()), &cuantos);
    std::vector<std::string> nombres(crudos.size());
    for (UINT i = 0; i < cuantos; ++i) {
        nombres[i] = crudos[i] ? Estrechar(crudos[i]) : std::string();
        SysFreeString(crudos[i]);
    }
    return nombres;
}

const char* ClaseEscrita(INVOKEKIND clase) {
    switch (clase) {
    case INVOKE_PROPERTYGET:
        return "get";
    case INVOKE_PROPERTYPUT:
        return "put";
    case INVOKE_PROPERTYPUTREF:
        return "putref";
    default:
        return "metodo";
    }
}

/// "(parameters)" and the result, which is the last parameter of a function of a virtual table.
std::pair<std::string, std::string> Firma(ITypeInfo* info, const FUNCDESC* f) {
    const std::vector<std::string> nombres = Nombres(info, f);
    const bool poner = f->invkind & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF);
    std::string lista, resultado = "void";
    for (SHORT i = 0; i < f->cParams; ++i) {
        const ELEMDESC& e = f->lprgelemdescParam[i];
        if (e.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) {
            resultado = TipoEscrito(info, *e.tdesc.lptdesc);
            continue;
        }
        const std::string nombre = poner ? std::string() : nombres[static_cast<std::size_t>(i) + 1];
        lista += (lista.empty() ? "" : ", ") + ParametroEscrito(info, e, nombre);
    }
    return {"(" + lista + ")", resultado};
}

} // namespace

std::wstring NombreDe(ITypeInfo* info, MEMBERID miembro) {
    Cadena nombre;
    info->GetDocumentation(miembro, nombre.Recibir(), nullptr, nullptr, nullptr);
    return nombre.Texto();
}

std::wstring AyudaDe(ITypeInfo* info, MEMBERID miembro) {
    Cadena ayuda;
    info->GetDocumentation(miembro, nullptr, ayuda.Recibir(), nullptr, nullptr);
    return ayuda.Texto();
}

Puntero<ITypeInfo> VistaDeTabla(ITypeInfo* info) {
    if (Atributos(info)->typekind == TKIND_INTERFACE)
        return {info};
    HREFTYPE referencia = 0;
    Puntero<ITypeInfo> tabla;
    if (SUCCEEDED(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &referencia)))
        info->GetRefTypeInfo(referencia, tabla.Recibir());
    return tabla;
}

std::vector<std::string> LeerTabla(ITypeInfo* tabla) {
    std::vector<std::string> lineas;
    const WORD cuantas = Atributos(tabla)->cFuncs;
    for (UINT i = 0; i < cuantas; ++i) {
        const Funcion f(tabla, i);
        if (!f) {
            lineas.push_back("function " + std::to_string(i) + " can't be read");
            continue;
        }
        const FUNCDESC* desc = f.operator->();
        const auto [parametros, resultado] = Firma(tabla, desc);
        const std::wstring ayuda = AyudaDe(tabla, f->memid);
        char cabeza[64], cola[64];
        std::snprintf(cabeza, sizeof cabeza, "%u %s ",
                      static_cast<unsigned>(f->oVft / static_cast<SHORT>(sizeof(void*))),
                      ClaseEscrita(f->invkind));
        std::snprintf(cola, sizeof cola, " %08lX flags %X", static_cast<unsigned long>(f->memid),
                      f->wFuncFlags);
        std::string linea = cabeza + Estrechar(NombreDe(tabla, f->memid)) + parametros + " : " +
                            resultado + cola + (ayuda.empty() ? "" : " " + Estrechar(ayuda));
        if (f->elemdescFunc.tdesc.vt != VT_HRESULT)
            linea += " (no status)";
        if (f->funckind != FUNC_PUREVIRTUAL || f->callconv != CC_STDCALL)
            linea += " (not of a virtual table)";
        if (f->oVft % static_cast<SHORT>(sizeof(void*)))
            linea += " (between two slots)";
        lineas.push_back(linea);
    }
    return lineas;
}

std::vector<std::string> LeerEventos(ITypeInfo* eventos) {
    std::vector<std::string> lineas;
    const WORD cuantas = Atributos(eventos)->cFuncs;
    for (UINT i = 0; i < cuantas; ++i) {
        const Funcion f(eventos, i);
        if (!f) {
            lineas.push_back("function " + std::to_string(i) + " can't be read");
            continue;
        }
        const auto [parametros, resultado] = Firma(eventos, f.operator->());
        std::string linea = Estrechar(NombreDe(eventos, f->memid)) + parametros;
        if (f->memid != static_cast<MEMBERID>(i + 1))
            linea += " (number " + std::to_string(f->memid) + ")";
        if (f->elemdescFunc.tdesc.vt != VT_VOID || resultado != "void")
            linea += " (with a result)";
        if (f->funckind != FUNC_DISPATCH || f->invkind != INVOKE_FUNC || f->wFuncFlags)
            linea += " (not a plain dispatch function)";
        lineas.push_back(linea);
    }
    return lineas;
}

} // namespace tipos
