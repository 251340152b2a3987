#include "anfitrion/propiedades.h"

#include "anfitrion/tardio.h"

#include <olectl.h>

#include <algorithm>
#include <memory>

namespace anfitrion {

namespace {

/// The alias of 32 bits that stands for a colour.
constexpr GUID GuidColor{
    0x66504301, 0xBE0F, 0x101A, {0x8B, 0xBB, 0x00, 0xAA, 0x00, 0x30, 0x0C, 0xAB}};

template <class T, void (STDMETHODCALLTYPE ITypeInfo::*Soltar)(T*)>
struct Devolver {
    ITypeInfo* tipo;
    void operator()(T* prestado) const { (tipo->*Soltar)(prestado); }
};
template <class T, void (STDMETHODCALLTYPE ITypeInfo::*Soltar)(T*)>
using Prestado = std::unique_ptr<T, Devolver<T, Soltar>>;
using Atributos = Prestado<TYPEATTR, &ITypeInfo::ReleaseTypeAttr>;
using Funcion = Prestado<FUNCDESC, &ITypeInfo::ReleaseFuncDesc>;
using Variable = Prestado<VARDESC, &ITypeInfo::ReleaseVarDesc>;

Atributos AtributosDe(ITypeInfo* tipo) {
    TYPEATTR* dados = nullptr;
    tipo->GetTypeAttr(&dados);
    return {dados, {tipo}};
}
Funcion FuncionDe(ITypeInfo* tipo, UINT lugar) {
    FUNCDESC* dada = nullptr;
    tipo->GetFuncDesc(lugar, &dada);
    return {dada, {tipo}};
}
Variable VariableDe(ITypeInfo* tipo, UINT lugar) {
    VARDESC* dada = nullptr;
    tipo->GetVarDesc(lugar, &dada);
    return {dada, {tipo}};
}

std::vector<Opcion> OpcionesDe(ITypeInfo* enumeracion, UINT cuantas) {
    std::vector<Opcion> opciones;
    for (UINT i = 0; i < cuantas; ++i) {
        const Variable miembro = VariableDe(enumeracion, i);
        Cadena nombre;
        if (!miembro || miembro->varkind != VAR_CONST || !miembro->lpvarValue ||
            FAILED(enumeracion->GetDocumentation(miembro->memid, nombre.Recibir(), nullptr, nullptr,
                                                 nullptr)))
            continue;
        opciones.push_back({nombre.Texto(), Entero(*miembro->lpvarValue)});
    }
    return opciones;
}

/// Tells kind and type of the value that a description of the type library stands for.
class Clasificador {
  public:
    Clasificador(ITypeInfo* tipo, Propiedad& propiedad) : tipo_(tipo), propiedad_(propiedad) {}

    void Clasificar(const TYPEDESC& descripcion) {
        propiedad_.tipo = descripcion.vt;
        switch (descripcion.vt) {
        case VT_BSTR:
            propiedad_.genero = Genero::Texto;
            return;
        case VT_BOOL:
            propiedad_.genero = Genero::Logico;
            return;
        case VT_R4:
        case VT_R8:
            propiedad_.genero = Genero::Real;
            return;
        case VT_UI1:
        case VT_I1:
        case VT_I2:
        case VT_UI2:
        case VT_I4:
        case VT_UI4:
        case VT_INT:
        case VT_UINT:
            propiedad_.genero = Genero::Entero;
            return;
        case VT_PTR:
            Clasificar(*descripcion.lptdesc);
            return;
        case VT_USERDEFINED:
            ClasificarReferida(descripcion.hreftype);
            return;
        default:
            propiedad_.genero = Genero::Otro;
        }
    }

  private:
    void ClasificarReferida(HREFTYPE referencia) {
        Puntero<ITypeInfo> otro;
        if (FAILED(tipo_->GetRefTypeInfo(referencia, otro.Recibir())))
            return;
        const Atributos atributos = AtributosDe(otro.get());
        if (!atributos)
            return;
        switch (atributos->typekind) {
        case TKIND_ENUM:
            propiedad_.tipo = VT_I4;
            propiedad_.genero = Genero::Enumerada;
            propiedad_.opciones = OpcionesDe(otro.get(), atributos->cVars);
            return;
        case TKIND_ALIAS:
            ClasificarAlias(otro.get(), *atributos);
            return;
        default:
            propiedad_.tipo = VT_DISPATCH;
            propiedad_.genero = GeneroDeObjeto(atributos->guid);
        }
    }

    void ClasificarAlias(ITypeInfo* alias, const TYPEATTR& atributos) {
        Clasificador(alias, propiedad_).Clasificar(atributos.tdescAlias);
        if (atributos.guid == GuidColor)
            propiedad_.genero = Genero::Color;
    }

    static Genero GeneroDeObjeto(REFGUID guid) {
        if (guid == IID_IFontDisp || guid == IID_IFont)
            return Genero::Fuente;
        if (guid == IID_IPictureDisp || guid == IID_IPicture)
            return Genero::Imagen;
        return Genero::Otro;
    }

    ITypeInfo* tipo_;
    Propiedad& propiedad_;
};

/// Gathers the functions of one interface into properties.
class Lector {
  public:
    explicit Lector(ITypeInfo* tipo) : tipo_(tipo) {}

    std::vector<Propiedad> Leer() {
        const Atributos atributos = AtributosDe(tipo_);
        if (!atributos)
            return {};
        for (UINT i = 0; i < atributos->cVars; ++i)
            if (const Variable variable = VariableDe(tipo_, i))
                AgregarVariable(*variable);
        // The gets first: a put says nothing about a member that can't be read.
        for (const WORD modo : {INVOKE_PROPERTYGET, INVOKE_PROPERTYPUTREF, INVOKE_PROPERTYPUT})
            for (UINT i = 0; i < atributos->cFuncs; ++i)
                if (const Funcion funcion = FuncionDe(tipo_, i);
                    funcion && funcion->invkind == modo)
                    Agregar(*funcion);
        std::sort(propiedades_.begin(), propiedades_.end(),
                  [](const Propiedad& a, const Propiedad& b) {
                      return lstrcmpiW(a.nombre.c_str(), b.nombre.c_str()) < 0;
                  });
        return std::move(propiedades_);
    }

  private:
    void AgregarVariable(const VARDESC& variable) {
        constexpr WORD ocultas = VARFLAG_FHIDDEN | VARFLAG_FNONBROWSABLE | VARFLAG_FRESTRICTED;
        if (variable.varkind != VAR_DISPATCH || variable.wVarFlags & ocultas)
            return;
        Nueva(variable.memid, variable.elemdescVar.tdesc).modo =
            variable.wVarFlags & VARFLAG_FREADONLY ? 0 : DISPATCH_PROPERTYPUT;
    }

    void Agregar(const FUNCDESC& funcion) {
        constexpr WORD ocultas = FUNCFLAG_FHIDDEN | FUNCFLAG_FNONBROWSABLE | FUNCFLAG_FRESTRICTED;
        if (funcion.wFuncFlags & ocultas)
            return;
        if (funcion.invkind == INVOKE_PROPERTYGET) {
            // The result is the last argument where the functions answer with a status.
            const bool resultado =
                funcion.cParams == 1 &&
                funcion.lprgelemdescParam[0].paramdesc.wParamFlags & PARAMFLAG_FRETVAL;
            if (resultado)
                Nueva(funcion.memid, *funcion.lprgelemdescParam[0].tdesc.lptdesc);
            else if (funcion.cParams == 0)
                Nueva(funcion.memid, funcion.elemdescFunc.tdesc);
            return;
        }
        const auto suya =
            std::find_if(propiedades_.begin(), propiedades_.end(),
                         [&](const Propiedad& p) { return p.numero == funcion.memid; });
        if (suya != propiedades_.end() && funcion.cParams == 1)
            suya->modo = static_cast<WORD>(funcion.invkind);
    }

    Propiedad& Nueva(MEMBERID numero, const TYPEDESC& tipo) {
        Propiedad propiedad;
        Cadena nombre, ayuda;
        tipo_->GetDocumentation(numero, nombre.Recibir(), ayuda.Recibir(), nullptr, nullptr);
        propiedad.nombre = nombre.Texto();
        propiedad.ayuda = ayuda.Texto();
        propiedad.numero = numero;
        Clasificador(tipo_, propiedad).Clasificar(tipo);
        propiedades_.push_back(std::move(propiedad));
        return propiedades_.back();
    }

    ITypeInfo* tipo_;
    std::vector<Propiedad> propiedades_;
};

} // namespace

std::vector<Propiedad> PropiedadesDe(IDispatch* objeto) {
    Puntero<ITypeInfo> tipo;
    if (!objeto || FAILED(objeto->GetTypeInfo(0, LOCALE_USER_DEFAULT, tipo.Recibir())) || !tipo)
        return {};
    return Lector(tipo.get()).Leer();
}

Variante Leer(IDispatch* objeto, const Propiedad& propiedad) {
    return Invocar(objeto, propiedad.numero, DISPATCH_PROPERTYGET);
}

void Poner(IDispatch* objeto, const Propiedad& propiedad, const Variante& valor) {
    Invocar(objeto, propiedad.numero, propiedad.modo, {valor});
}

} // namespace anfitrion
