// Interfaces and classes of the library.
#include "pruebas/componente/comun/publicado.h"
#include "pruebas/componente/tipos/biblioteca.h"
#include "pruebas/componente/tipos/lector.h"
#include "pruebas/componente/tipos/listado.h"

#include <algorithm>

using namespace tipos;
using anfitrion::Estrechar;
using anfitrion::Puntero;

static Puntero<ITypeInfo> Tipo(ITypeLib* biblioteca, const wchar_t* guid) {
    Puntero<ITypeInfo> tipo;
    REQUIRE(biblioteca->GetTypeInfoOfGuid(publicado::Guid(guid), tipo.Recibir()) == S_OK);
    return tipo;
}

static bool DerivaDeDespacho(ITypeInfo* tipo) {
    HREFTYPE referencia = 0;
    Puntero<ITypeInfo> madre;
    return Atributos(tipo)->cImplTypes == 1 && tipo->GetRefTypeOfImplType(0, &referencia) == S_OK &&
           tipo->GetRefTypeInfo(referencia, madre.Recibir()) == S_OK &&
           Atributos(madre.get())->guid == IID_IDispatch;
}

static void CompararLineas(const std::vector<std::string>& leidas,
                           const std::vector<std::string>& esperadas) {
    for (std::size_t i = 0; i < std::max(leidas.size(), esperadas.size()); ++i)
        CHECK((i < leidas.size() ? leidas[i] : "missing") ==
              (i < esperadas.size() ? esperadas[i] : "nothing"));
}

TEST_CASE("Default interfaces are dual, hidden, not extensible and derived from IDispatch") {
    const Puntero<ITypeLib> biblioteca = BibliotecaPorTurno();
    for (const publicado::Clase& una : publicado::Clases) {
        INFO(Estrechar(una.nombre));
        const Puntero<ITypeInfo> tipo = Tipo(biblioteca.get(), una.interfaz);
        CHECK(Estrechar(NombreDe(tipo.get())) == "_" + Estrechar(una.nombre));
        const WORD banderas = TYPEFLAG_FDUAL | TYPEFLAG_FDISPATCHABLE | TYPEFLAG_FOLEAUTOMATION |
                              TYPEFLAG_FHIDDEN | TYPEFLAG_FNONEXTENSIBLE;
        CHECK(Atributos(tipo.get())->typekind == TKIND_DISPATCH);
        // The late-bound face leaves one flag to the virtual table.
        CHECK((Atributos(tipo.get())->wTypeFlags | TYPEFLAG_FOLEAUTOMATION) == banderas);
        const Puntero<ITypeInfo> tabla = VistaDeTabla(tipo.get());
        REQUIRE(tabla);
        CHECK(Atributos(tabla.get())->typekind == TKIND_INTERFACE);
        CHECK(Atributos(tabla.get())->wTypeFlags == banderas);
        CHECK(Atributos(tabla.get())->guid == publicado::Guid(una.interfaz));
        CHECK(DerivaDeDespacho(tabla.get()));
    }
}

TEST_CASE("Each member of a default interface has its slot, kind, types, number, flags and help") {
    const Puntero<ITypeLib> biblioteca = BibliotecaPorTurno();
    for (const publicado::Clase& una : publicado::Clases) {
        INFO(Estrechar(una.nombre));
        const Puntero<ITypeInfo> tabla = VistaDeTabla(Tipo(biblioteca.get(), una.interfaz).get());
        REQUIRE(tabla);
        const std::vector<std::string> esperadas = LineasDe(una.nombre);
        CompararLineas(LeerTabla(tabla.get()), esperadas);
        CHECK(Atributos(tabla.get())->cbSizeVft == (7 + esperadas.size()) * sizeof(void*));
    }
}

TEST_CASE("Late binding sees each member by the same name and number") {
    const Puntero<ITypeLib> biblioteca = BibliotecaPorTurno();
    for (const publicado::Clase& una : publicado::Clases) {
        const Puntero<ITypeInfo> tipo = Tipo(biblioteca.get(), una.interfaz);
        for (const Miembro& uno : MiembrosDe(una.nombre)) {
            INFO(Estrechar(una.nombre), ".", Estrechar(uno.nombre));
            LPOLESTR nombre = const_cast<LPOLESTR>(uno.nombre);
            MEMBERID numero = -1;
            CHECK(tipo->GetIDsOfNames(&nombre, 1, &numero) == S_OK);
            CHECK(numero == uno.dispid);
        }
    }
}

TEST_CASE("Event interfaces are hidden, not extensible and for late binding only") {
    const Puntero<ITypeLib> biblioteca = BibliotecaPorTurno();
    for (const publicado::Clase& una : publicado::Clases) {
        if (!una.eventos)
            continue;
        INFO(Estrechar(una.nombre));
        const Puntero<ITypeInfo> tipo = Tipo(biblioteca.get(), una.eventos);
        CHECK(Estrechar(NombreDe(tipo.get())) == "__" + Estrechar(una.nombre));
        const Atributos attr(tipo.get());
        CHECK(attr->typekind == TKIND_DISPATCH);
        CHECK((attr->wTypeFlags & TYPEFLAG_FDUAL) == 0);
        const WORD pedidas = TYPEFLAG_FHIDDEN | TYPEFLAG_FNONEXTENSIBLE;
        CHECK((attr->wTypeFlags & pedidas) == pedidas);
        CHECK(DerivaDeDespacho(tipo.get()));
        CompararLineas(LeerEventos(tipo.get()), EventosDe(una.nombre));
    }
}

TEST_CASE("A class names its default interface and, when it is a control, its events") {
    const Puntero<ITypeLib> biblioteca = BibliotecaPorTurno();
    for (const publicado::Clase& una : publicado::Clases) {
        INFO(Estrechar(una.nombre));
        const Puntero<ITypeInfo> tipo = Tipo(biblioteca.get(), una.clase);
        CHECK(NombreDe(tipo.get()) == una.nombre);
        const Atributos attr(tipo.get());
        CHECK(attr->typekind == TKIND_COCLASS);
        const bool control = una.genero == publicado::Genero::Control;
        CHECK(((attr->wTypeFlags & TYPEFLAG_FCONTROL) != 0) == control);
        // Nobody makes a property page by its name; everything else can be created.
        if (una.genero != publicado::Genero::Pagina)
            CHECK((attr->wTypeFlags & TYPEFLAG_FCANCREATE) != 0);
        REQUIRE(attr->cImplTypes == (control ? 2 : 1));
        const wchar_t* esperadas[] = {una.interfaz, una.eventos};
        const INT marcas[] = {IMPLTYPEFLAG_FDEFAULT, IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE};
        for (UINT i = 0; i < attr->cImplTypes; ++i) {
            HREFTYPE referencia = 0;
            Puntero<ITypeInfo> interfaz;
            INT marca = 0;
            REQUIRE(tipo->GetRefTypeOfImplType(i, &referencia) == S_OK);
            REQUIRE(tipo->GetRefTypeInfo(referencia, interfaz.Recibir()) == S_OK);
            CHECK(Atributos(interfaz.get())->guid == publicado::Guid(esperadas[i]));
            CHECK(tipo->GetImplTypeFlags(i, &marca) == S_OK);
            CHECK(marca == marcas[i]);
        }
    }
}

TEST_CASE("Members that only the property pages use are not in the library") {
    const Puntero<ITypeLib> biblioteca = BibliotecaPorTurno();
    for (const wchar_t* interno : {L"ColorDegradeN", L"ColorDegradeS", L"Angulo"}) {
        wchar_t nombre[32];
        wcscpy(nombre, interno);
        LPOLESTR buscado = nombre;
        MEMBERID numero = -1;
        const Puntero<ITypeInfo> tipo =
            Tipo(biblioteca.get(), publicado::ClaseDe(L"Botonazo").interfaz);
        CHECK(tipo->GetIDsOfNames(&buscado, 1, &numero) == DISP_E_UNKNOWNNAME);
    }
}
