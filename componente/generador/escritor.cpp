#include "componente/generador/escritor.h"

#include "componente/clases.h"
#include "componente/com.h"
#include "componente/descripcion.h"
#include "componente/generador/msft.h"
#include "componente/tablas/congelado.h"

#include <array>
#include <cstdio>
#include <deque>
#include <map>
#include <string>
#include <vector>

namespace pincela::generador {

using namespace pincela::componente;

namespace {

constexpr GUID GuidDeStdole = "{00020430-0000-0000-C000-000000000046}"_guid;
constexpr GUID GuidDeOleColor = "{66504301-BE0F-101A-8BBB-00AA00300CAB}"_guid;

void Exigir(HRESULT estado, const char* paso) {
    if (FAILED(estado))
        throw EstadoFallido{estado, paso};
}

wchar_t* SinConst(const wchar_t* texto) {
    return const_cast<wchar_t*>(texto);
}

class Escritor {
  public:
    Escritor(SYSKIND sistema, const wchar_t* ruta);
    void Escribir();

  private:
    Ptr<ICreateTypeInfo> Crear(const wchar_t* nombre, TYPEKIND clase, const GUID& guid);
    HREFTYPE Referir(ICreateTypeInfo& quien, ITypeInfo* aQuien);
    HREFTYPE ReferirPropio(ICreateTypeInfo& quien, ICreateTypeInfo& aQuien);
    /// The descriptor stays valid as long as this object.
    TYPEDESC Descriptor(ICreateTypeInfo& quien, const Tipo& tipo);
    TYPEDESC Puntero(const TYPEDESC& a);
    ELEMDESC Elemento(ICreateTypeInfo& quien, const DescripcionParametro& p);

    void EscribirRegistro();
    void EscribirEnumeracion(const Enumeracion& enumeracion);
    Ptr<ICreateTypeInfo> EscribirInterfaz(const DatosClase& datos,
                                          const std::vector<DescripcionRanura>& ranuras);
    void EscribirRanura(ICreateTypeInfo& en, UINT indice, const DescripcionRanura& ranura);
    Ptr<ICreateTypeInfo> EscribirEventos(const DatosClase& datos,
                                         const std::vector<DescripcionDeEvento>& eventos);
    void EscribirClase(const DatosClase& datos, ICreateTypeInfo& interfaz,
                       ICreateTypeInfo* eventos);

    Ptr<ICreateTypeLib2> biblioteca_;
    Ptr<ITypeLib> stdole_;
    Ptr<ICreateTypeInfo> registro_;
    std::map<const Enumeracion*, Ptr<ICreateTypeInfo>> enumeraciones_;
    std::deque<TYPEDESC> descriptores_;
    std::deque<PARAMDESCEX> defectos_;
};

Escritor::Escritor(SYSKIND sistema, const wchar_t* ruta) {
    Exigir(CreateTypeLib2(sistema, ruta, biblioteca_.Recibir()), "CreateTypeLib2");
    Exigir(LoadRegTypeLib(GuidDeStdole, 2, 0, 0, stdole_.Recibir()), "stdole");
}

Ptr<ICreateTypeInfo> Escritor::Crear(const wchar_t* nombre, TYPEKIND clase, const GUID& guid) {
    Ptr<ICreateTypeInfo> tipo;
    Exigir(biblioteca_->CreateTypeInfo(SinConst(nombre), clase, tipo.Recibir()), "CreateTypeInfo");
    Exigir(tipo->SetGuid(guid), "SetGuid");
    return tipo;
}

HREFTYPE Escritor::Referir(ICreateTypeInfo& quien, ITypeInfo* aQuien) {
    HREFTYPE referencia = 0;
    Exigir(quien.AddRefTypeInfo(aQuien, &referencia), "AddRefTypeInfo");
    return referencia;
}

HREFTYPE Escritor::ReferirPropio(ICreateTypeInfo& quien, ICreateTypeInfo& aQuien) {
    return Referir(quien, Ptr<ITypeInfo>::De(&aQuien).get());
}

TYPEDESC Escritor::Puntero(const TYPEDESC& a) {
    descriptores_.push_back(a);
    TYPEDESC puntero{};
    puntero.vt = VT_PTR;
    puntero.lptdesc = &descriptores_.back();
    return puntero;
}

TYPEDESC Escritor::Descriptor(ICreateTypeInfo& quien, const Tipo& tipo) {
    auto ajeno = [&](const GUID& guid) {
        Ptr<ITypeInfo> info;
        Exigir(stdole_->GetTypeInfoOfGuid(guid, info.Recibir()), "GetTypeInfoOfGuid");
        TYPEDESC d{};
        d.vt = VT_USERDEFINED;
        d.hreftype = Referir(quien, info.get());
        return d;
    };
    TYPEDESC d{};
    switch (tipo.familia) {
    case Familia::Simple:
        d.vt = tipo.vt;
        break;
    case Familia::ColorOle:
        d = ajeno(GuidDeOleColor);
        break;
    // Taken by the identifier of the interface: the library's alias for it carries none.
    case Familia::ObjetoFuente:
        d = Puntero(ajeno(__uuidof(IFontDisp)));
        break;
    case Familia::ObjetoImagen:
        d = Puntero(ajeno(__uuidof(IPictureDisp)));
        break;
    case Familia::Enumeracion:
        d.vt = VT_USERDEFINED;
        d.hreftype = ReferirPropio(quien, *enumeraciones_.at(tipo.enumeracion).get());
        break;
    case Familia::Registro:
        d.vt = VT_USERDEFINED;
        d.hreftype = ReferirPropio(quien, *registro_.get());
        break;
    }
    return tipo.porReferencia ? Puntero(d) : d;
}

ELEMDESC Escritor::Elemento(ICreateTypeInfo& quien, const DescripcionParametro& p) {
    ELEMDESC e{};
    e.tdesc = Descriptor(quien, p.tipo);
    e.paramdesc.wParamFlags = PARAMFLAG_FIN;
    if (p.tipo.porReferencia)
        e.paramdesc.wParamFlags |= PARAMFLAG_FOUT;
    if (p.parametro.opcional)
        e.paramdesc.wParamFlags |= PARAMFLAG_FOPT;
    if (p.parametro.tipoDefecto != VT_EMPTY) {
        e.paramdesc.wParamFlags |= PARAMFLAG_FHASDEFAULT;
        PARAMDESCEX defecto{};
        defecto.cBytes = sizeof defecto;
        V_VT(&defecto.varDefaultValue) = p.parametro.tipoDefecto;
        if (p.parametro.tipoDefecto == VT_BOOL)
            V_BOOL(&defecto.varDefaultValue) = p.parametro.defecto ? VARIANT_TRUE : VARIANT_FALSE;
        else
            V_I4(&defecto.varDefaultValue) = p.parametro.defecto;
        defectos_.push_back(defecto);
        e.paramdesc.pparamdescex = &defectos_.back();
    }
    return e;
}

void Escritor::EscribirRegistro() {
    registro_ = Crear(L"tRectRedo", TKIND_RECORD, GuidDeRectRedo);
    const wchar_t* nombres[] = {L"RelX", L"RelY"};
    const std::size_t lugares[] = {offsetof(tRectRedo, RelX), offsetof(tRectRedo, RelY)};
    for (UINT i = 0; i < std::size(nombres); ++i) {
        VARDESC campo{};
        campo.memid = static_cast<MEMBERID>(0x40000000 + i);
        campo.varkind = VAR_PERINSTANCE;
        campo.oInst = static_cast<ULONG>(lugares[i]);
        campo.elemdescVar.tdesc.vt = VT_R4;
        Exigir(registro_->AddVarDesc(i, &campo), "AddVarDesc");
        Exigir(registro_->SetVarName(i, SinConst(nombres[i])), "SetVarName");
    }
    Exigir(registro_->SetAlignment(4), "SetAlignment");
    Exigir(registro_->LayOut(), "LayOut");
}

void Escritor::EscribirEnumeracion(const Enumeracion& enumeracion) {
    Ptr<ICreateTypeInfo>& tipo = enumeraciones_[&enumeracion];
    tipo = Crear(enumeracion.nombre, TKIND_ENUM, enumeracion.guid);
    UINT i = 0;
    for (const MiembroEnumeracion& miembro : enumeracion.miembros) {
        VARIANT valor{};
        V_VT(&valor) = VT_I4;
        V_I4(&valor) = miembro.valor;
        VARDESC constante{};
        constante.memid = static_cast<MEMBERID>(0x40000000 + i);
        constante.varkind = VAR_CONST;
        constante.lpvarValue = &valor;
        constante.elemdescVar.tdesc.vt = VT_I4;
        Exigir(tipo->AddVarDesc(i, &constante), "AddVarDesc");
        Exigir(tipo->SetVarName(i, SinConst(miembro.nombre)), "SetVarName");
        Exigir(tipo->SetVarDocString(i, SinConst(miembro.nombre)), "SetVarDocString");
        ++i;
    }
    Exigir(tipo->LayOut(), "LayOut");
}

void Escritor::EscribirRanura(ICreateTypeInfo& en, UINT indice, const DescripcionRanura& ranura) {
    std::vector<ELEMDESC> elementos;
    std::vector<wchar_t*> nombres{SinConst(ranura.rasgos.nombre)};
    for (const DescripcionParametro& p : ranura.parametros) {
        elementos.push_back(Elemento(en, p));
        if (p.parametro.nombre) // the value of a put has no name
            nombres.push_back(SinConst(p.parametro.nombre));
    }
    if (ranura.resultado.vt != VT_VOID) {
        ELEMDESC resultado{};
        resultado.tdesc = Puntero(Descriptor(en, ranura.resultado));
        resultado.paramdesc.wParamFlags = PARAMFLAG_FOUT | PARAMFLAG_FRETVAL;
        elementos.push_back(resultado);
    }
    FUNCDESC funcion{};
    funcion.memid = ranura.rasgos.dispid;
    funcion.funckind = FUNC_PUREVIRTUAL;
    funcion.invkind = ranura.clase;
    funcion.callconv = CC_STDCALL;
    funcion.cParams = static_cast<SHORT>(elementos.size());
    funcion.lprgelemdescParam = elementos.data();
    funcion.elemdescFunc.tdesc.vt = VT_HRESULT;
    funcion.wFuncFlags = ranura.rasgos.banderas;
    Exigir(en.AddFuncDesc(indice, &funcion), "AddFuncDesc");
    Exigir(en.SetFuncAndParamNames(indice, nombres.data(), static_cast<UINT>(nombres.size())),
           "SetFuncAndParamNames");
    if (ranura.rasgos.ayuda)
        Exigir(en.SetFuncDocString(indice, SinConst(ranura.rasgos.ayuda)), "SetFuncDocString");
}

Ptr<ICreateTypeInfo> Escritor::EscribirInterfaz(const DatosClase& datos,
                                                const std::vector<DescripcionRanura>& ranuras) {
    const std::wstring nombre = std::wstring(L"_") + datos.nombre;
    auto tipo = Crear(nombre.c_str(), TKIND_INTERFACE, datos.interfaz);
    Ptr<ITypeInfo> despacho;
    Exigir(stdole_->GetTypeInfoOfGuid(IID_IDispatch, despacho.Recibir()), "IDispatch");
    Exigir(tipo->AddImplType(0, Referir(*tipo.get(), despacho.get())), "AddImplType");
    Exigir(tipo->SetTypeFlags(TYPEFLAG_FDUAL | TYPEFLAG_FDISPATCHABLE | TYPEFLAG_FOLEAUTOMATION |
                              TYPEFLAG_FHIDDEN | TYPEFLAG_FNONEXTENSIBLE),
           "SetTypeFlags");
    for (UINT i = 0; i < ranuras.size(); ++i)
        EscribirRanura(*tipo.get(), i, ranuras[i]);
    Exigir(tipo->LayOut(), "LayOut");
    return tipo;
}

Ptr<ICreateTypeInfo> Escritor::EscribirEventos(const DatosClase& datos,
                                               const std::vector<DescripcionDeEvento>& eventos) {
    const std::wstring nombre = std::wstring(L"__") + datos.nombre;
    auto tipo = Crear(nombre.c_str(), TKIND_DISPATCH, datos.eventos);
    Exigir(tipo->SetTypeFlags(TYPEFLAG_FHIDDEN | TYPEFLAG_FNONEXTENSIBLE | TYPEFLAG_FDISPATCHABLE),
           "SetTypeFlags");
    UINT indice = 0;
    for (const DescripcionDeEvento& evento : eventos) {
        std::vector<ELEMDESC> elementos;
        std::vector<wchar_t*> nombres{SinConst(evento.nombre)};
        for (const DescripcionParametro& p : evento.parametros) {
            elementos.push_back(Elemento(*tipo.get(), p));
            nombres.push_back(SinConst(p.parametro.nombre));
        }
        FUNCDESC funcion{};
        funcion.memid = evento.dispid;
        funcion.funckind = FUNC_DISPATCH;
        funcion.invkind = INVOKE_FUNC;
        funcion.callconv = CC_STDCALL;
        funcion.cParams = static_cast<SHORT>(elementos.size());
        funcion.lprgelemdescParam = elementos.data();
        funcion.elemdescFunc.tdesc.vt = VT_VOID;
        Exigir(tipo->AddFuncDesc(indice, &funcion), "AddFuncDesc");
        Exigir(
            tipo->SetFuncAndParamNames(indice, nombres.data(), static_cast<UINT>(nombres.size())),
            "SetFuncAndParamNames");
        ++indice;
    }
    Exigir(tipo->LayOut(), "LayOut");
    return tipo;
}

void Escritor::EscribirClase(const DatosClase& datos, ICreateTypeInfo& interfaz,
                             ICreateTypeInfo* eventos) {
    auto tipo = Crear(datos.nombre, TKIND_COCLASS, datos.clase);
    Exigir(tipo->AddImplType(0, ReferirPropio(*tipo.get(), interfaz)), "AddImplType");
    Exigir(tipo->SetImplTypeFlags(0, IMPLTYPEFLAG_FDEFAULT), "SetImplTypeFlags");
    if (eventos) {
        Exigir(tipo->AddImplType(1, ReferirPropio(*tipo.get(), *eventos)), "AddImplType");
        Exigir(tipo->SetImplTypeFlags(1, IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE),
               "SetImplTypeFlags");
    }
    UINT banderas = TYPEFLAG_FCANCREATE;
    if (datos.genero == Genero::Control)
        banderas |= TYPEFLAG_FCONTROL;
    Exigir(tipo->SetTypeFlags(banderas), "SetTypeFlags");
    Exigir(tipo->LayOut(), "LayOut");
}

void Escritor::Escribir() {
    Exigir(biblioteca_->SetGuid(GuidDeLaBiblioteca), "SetGuid");
    Exigir(biblioteca_->SetVersion(VersionMayor, VersionMenor), "SetVersion");
    Exigir(biblioteca_->SetLcid(LocaleDeLaBiblioteca), "SetLcid");
    Exigir(biblioteca_->SetName(SinConst(NombreDeLaBiblioteca)), "SetName");
    Exigir(biblioteca_->SetDocString(SinConst(NombreDeLaBiblioteca)), "SetDocString");
    Exigir(biblioteca_->SetLibFlags(LIBFLAG_FCONTROL), "SetLibFlags");
    for (const Enumeracion* enumeracion : Enumeraciones::todas)
        EscribirEnumeracion(*enumeracion);
    EscribirRegistro();
    ParaCadaClase([this]<class Tabla>(const DatosClase& datos) {
        auto interfaz = EscribirInterfaz(datos, DescribirRanuras<Tabla>());
        Ptr<ICreateTypeInfo> eventos;
        if (datos.genero == Genero::Control)
            eventos = EscribirEventos(datos, DescribirEventos<Tabla>());
        EscribirClase(datos, *interfaz.get(), eventos.get());
    });
    Exigir(biblioteca_->SaveAllChanges(), "SaveAllChanges");
}

std::vector<unsigned char> LeerArchivo(const wchar_t* ruta) {
    std::vector<unsigned char> imagen;
    if (FILE* f = _wfopen(ruta, L"rb")) {
        unsigned char trozo[4096];
        while (const std::size_t n = fread(trozo, 1, sizeof trozo, f))
            imagen.insert(imagen.end(), trozo, trozo + n);
        fclose(f);
    }
    return imagen;
}

void EscribirArchivo(const wchar_t* ruta, const std::vector<unsigned char>& imagen) {
    FILE* f = _wfopen(ruta, L"wb");
    const bool bien = f && fwrite(imagen.data(), 1, imagen.size(), f) == imagen.size();
    if (!f || fclose(f) != 0 || !bien)
        throw EstadoFallido{STG_E_WRITEFAULT, "writing the file"};
}

} // namespace

void EscribirBiblioteca(SYSKIND sistema, const wchar_t* ruta) {
    DeleteFileW(ruta);
    Escritor(sistema, ruta).Escribir();
    auto imagen = LeerArchivo(ruta);
    if (!Corregir(imagen, sistema, sizeof(tRectRedo)))
        throw EstadoFallido{TYPE_E_INVDATAREAD, "patching"};
    EscribirArchivo(ruta, imagen);
}

} // namespace pincela::generador
