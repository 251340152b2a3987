// The library as a whole, its enumerations and its record.
#include "pruebas/componente/comun/publicado.h"
#include "pruebas/componente/tipos/biblioteca.h"
#include "pruebas/componente/tipos/lector.h"
#include "pruebas/componente/tipos/listado.h"

using namespace tipos;
using anfitrion::Cadena;
using anfitrion::Estrechar;
using anfitrion::Puntero;

TEST_CASE("The library carries its name, help string, identifier, version and locale") {
    const Puntero<ITypeLib> biblioteca = BibliotecaPorTurno();
    Cadena nombre, ayuda, fichero;
    DWORD contexto = 1;
    REQUIRE(biblioteca->GetDocumentation(-1, nombre.Recibir(), ayuda.Recibir(), &contexto,
                                         fichero.Recibir()) == S_OK);
    CHECK(nombre.Texto() == L"Pincela");
    CHECK(ayuda.Texto() == L"Pincela");
    TLIBATTR* attr = nullptr;
    REQUIRE(biblioteca->GetLibAttr(&attr) == S_OK);
    CHECK(attr->guid == publicado::Guid(publicado::Biblioteca));
    CHECK(attr->wMajorVerNum == 1);
    CHECK(attr->wMinorVerNum == 0);
    CHECK(attr->lcid == 0x409);
    CHECK(attr->syskind == (sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32));
    CHECK((attr->wLibFlags & LIBFLAG_FCONTROL) != 0);
    CHECK((attr->wLibFlags & (LIBFLAG_FHIDDEN | LIBFLAG_FRESTRICTED)) == 0);
    biblioteca->ReleaseTLibAttr(attr);
}

TEST_CASE("The library holds exactly the published types") {
    const Puntero<ITypeLib> biblioteca = BibliotecaPorTurno();
    unsigned controles = 0;
    for (const publicado::Clase& una : publicado::Clases)
        controles += una.eventos != nullptr;
    const std::size_t esperados =
        Enumeraciones().size() + 1 + 2 * publicado::Clases.size() + controles;
    CHECK(biblioteca->GetTypeInfoCount() == esperados);
    CHECK(esperados == 38);
}

TEST_CASE("The classes stand in the published order") {
    const Puntero<ITypeLib> biblioteca = BibliotecaPorTurno();
    std::vector<std::wstring> clases;
    for (UINT i = 0; i < biblioteca->GetTypeInfoCount(); ++i) {
        TYPEKIND clase{};
        REQUIRE(biblioteca->GetTypeInfoType(i, &clase) == S_OK);
        if (clase != TKIND_COCLASS)
            continue;
        Cadena nombre;
        biblioteca->GetDocumentation(static_cast<INT>(i), nombre.Recibir(), nullptr, nullptr,
                                     nullptr);
        clases.push_back(nombre.Texto());
    }
    REQUIRE(clases.size() == publicado::Clases.size());
    for (std::size_t i = 0; i < clases.size(); ++i)
        CHECK(Estrechar(clases[i]) == Estrechar(publicado::Clases[i].nombre));
}

static void ComprobarMiembro(ITypeInfo* tipo, UINT indice, const wchar_t* nombre, long valor) {
    INFO(Estrechar(nombre));
    VARDESC* desc = nullptr;
    REQUIRE(tipo->GetVarDesc(indice, &desc) == S_OK);
    CHECK(desc->varkind == VAR_CONST);
    if (desc->varkind == VAR_CONST) {
        CHECK(desc->lpvarValue->vt == VT_I4);
        CHECK(desc->lpvarValue->lVal == valor);
    }
    CHECK(desc->elemdescVar.tdesc.vt == VT_I4);
    CHECK(Estrechar(NombreDe(tipo, desc->memid)) == Estrechar(nombre));
    CHECK(Estrechar(AyudaDe(tipo, desc->memid)) == Estrechar(nombre));
    tipo->ReleaseVarDesc(desc);
}

TEST_CASE("Each enumeration has its members, in order, with their values and names as help") {
    const Puntero<ITypeLib> biblioteca = BibliotecaPorTurno();
    for (const Enumeracion& una : Enumeraciones()) {
        INFO(Estrechar(una.nombre));
        Puntero<ITypeInfo> tipo;
        REQUIRE(biblioteca->GetTypeInfoOfGuid(publicado::Guid(una.guid), tipo.Recibir()) == S_OK);
        CHECK(Estrechar(NombreDe(tipo.get())) == Estrechar(una.nombre));
        const Atributos attr(tipo.get());
        CHECK(attr->typekind == TKIND_ENUM);
        CHECK(attr->cbSizeInstance == 4);
        CHECK(attr->cbAlignment == 4);
        CHECK((attr->wTypeFlags & (TYPEFLAG_FHIDDEN | TYPEFLAG_FRESTRICTED)) == 0);
        REQUIRE(attr->cVars == una.miembros.size());
        for (UINT i = 0; i < attr->cVars; ++i)
            ComprobarMiembro(tipo.get(), i, una.miembros[i].first, una.miembros[i].second);
    }
}

TEST_CASE("The record of a rounded shape is two floats side by side") {
    const Puntero<ITypeLib> biblioteca = BibliotecaPorTurno();
    Puntero<ITypeInfo> tipo;
    REQUIRE(
        biblioteca->GetTypeInfoOfGuid(publicado::Guid(L"{46A309C5-FAC7-4F80-A323-E16A7CE22438}"),
                                      tipo.Recibir()) == S_OK);
    CHECK(NombreDe(tipo.get()) == L"tRectRedo");
    const Atributos attr(tipo.get());
    CHECK(attr->typekind == TKIND_RECORD);
    CHECK(attr->cbSizeInstance == 8);
    CHECK(attr->cbAlignment == 4);
    REQUIRE(attr->cVars == 2);
    const wchar_t* nombres[] = {L"RelX", L"RelY"};
    for (UINT i = 0; i < 2; ++i) {
        VARDESC* desc = nullptr;
        REQUIRE(tipo->GetVarDesc(i, &desc) == S_OK);
        CHECK(desc->varkind == VAR_PERINSTANCE);
        CHECK(desc->oInst == 4 * i);
        CHECK(desc->elemdescVar.tdesc.vt == VT_R4);
        CHECK(NombreDe(tipo.get(), desc->memid) == nombres[i]);
        tipo->ReleaseVarDesc(desc);
    }
    Puntero<IRecordInfo> registro;
    REQUIRE(GetRecordInfoFromTypeInfo(tipo.get(), registro.Recibir()) == S_OK);
    ULONG tamanio = 0;
    CHECK(registro->GetSize(&tamanio) == S_OK);
    CHECK(tamanio == 8);
}
