// The component used by an application that names its side-by-side assembly, with no key of ours in
// the registry.
#include "anfitrion/formulario.h"
#include "pruebas/componente/comun/sin_registro.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace publicado;
using anfitrion::Estrechar;
using anfitrion::Puntero;

namespace {

/// The application's manifest in force on this thread.
class Contexto {
  public:
    Contexto() {
        const std::wstring carpeta =
            RutaDelComponente().substr(0, RutaDelComponente().rfind(L'\\') + 1);
        const std::wstring manifiesto = carpeta + L"sin_registro.manifest";
        ACTCTXW pedido{};
        pedido.cbSize = sizeof pedido;
        pedido.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
        pedido.lpSource = manifiesto.c_str();
        pedido.lpAssemblyDirectory = carpeta.c_str();
        h_ = CreateActCtxW(&pedido);
        REQUIRE(h_ != INVALID_HANDLE_VALUE);
        REQUIRE(ActivateActCtx(h_, &galleta_));
    }
    Contexto(const Contexto&) = delete;
    Contexto& operator=(const Contexto&) = delete;
    ~Contexto() {
        if (galleta_)
            DeactivateActCtx(0, galleta_);
        if (h_ != INVALID_HANDLE_VALUE)
            ReleaseActCtx(h_);
    }

  private:
    HANDLE h_ = INVALID_HANDLE_VALUE;
    ULONG_PTR galleta_ = 0;
};

HRESULT Creacion(REFCLSID clase) {
    Puntero<IUnknown> objeto;
    return CoCreateInstance(clase, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                            objeto.RecibirVoid());
}
HRESULT Creacion(const Clase& una) {
    return Creacion(Guid(una.clase));
}

DWORD RasgosDelFichero(const Clase& una) {
    const auto objeto = Crear(anfitrion::Componente::DeFichero(RutaDelComponente()), una.nombre);
    DWORD rasgos = 0;
    REQUIRE(objeto.Como<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &rasgos) == S_OK);
    return rasgos;
}

} // namespace

TEST_CASE(
    "Without registry and manifest the classes are unknown, with the manifest they are made") {
    const SesionOle ole;
    const SinRegistro nada;
    for (const wchar_t* nombre : {L"Botonazo", L"Efectos"}) {
        CAPTURE(Estrechar(nombre));
        const Clase& una = ClaseDe(nombre);
        CHECK(Creacion(una) == REGDB_E_CLASSNOTREG);
        {
            const Contexto contexto;
            CHECK(Creacion(una) == S_OK);
        }
        CHECK(Creacion(una) == REGDB_E_CLASSNOTREG);
    }
}

TEST_CASE("The manifest tells the name of every class and the marshaller of every interface") {
    const SesionOle ole;
    const SinRegistro nada;
    const Contexto contexto;
    const GUID dual = Guid(L"{00020424-0000-0000-C000-000000000046}");
    const GUID despacho = Guid(L"{00020420-0000-0000-C000-000000000046}");
    for (const Clase& una : Clases) {
        CAPTURE(Estrechar(una.nombre));
        // A name leads to an alias of the class, which makes what the class makes.
        CLSID alias{}, puente{};
        const std::wstring programa = std::wstring(L"Pincela.") + una.nombre;
        CHECK(CLSIDFromProgID(programa.c_str(), &alias) == S_OK);
        CHECK(Creacion(alias) == Creacion(una));
        CHECK(CoGetPSClsid(Guid(una.interfaz), &puente) == S_OK);
        CHECK(puente == dual);
        if (!una.eventos)
            continue;
        CHECK(CoGetPSClsid(Guid(una.eventos), &puente) == S_OK);
        CHECK(puente == despacho);
    }
}

TEST_CASE("The manifest tells what a container asks of a control before it makes one") {
    const SesionOle ole;
    const SinRegistro nada;
    const Clase& boton = ClaseDe(L"Botonazo");
    const DWORD propios = RasgosDelFichero(boton);
    const Contexto contexto;
    DWORD rasgos = 0;
    CHECK(OleRegGetMiscStatus(Guid(boton.clase), DVASPECT_CONTENT, &rasgos) == S_OK);
    CHECK(rasgos == propios);
    CHECK(OleRegGetMiscStatus(Guid(ClaseDe(L"Area").clase), DVASPECT_CONTENT, &rasgos) == S_OK);
    CHECK((rasgos & OLEMISC_SIMPLEFRAME) != 0);
}

TEST_CASE("The type library is found through the manifest") {
    const SesionOle ole;
    const SinRegistro nada;
    Puntero<ITypeLib> biblioteca;
    CHECK(LoadRegTypeLib(Guid(Biblioteca), 1, 0, 0x409, biblioteca.Recibir()) != S_OK);
    const Contexto contexto;
    REQUIRE(LoadRegTypeLib(Guid(Biblioteca), 1, 0, 0x409, biblioteca.Recibir()) == S_OK);
    Puntero<ITypeInfo> clase;
    CHECK(biblioteca->GetTypeInfoOfGuid(Guid(ClaseDe(L"Botonazo").clase), clase.Recibir()) == S_OK);
}

TEST_CASE("A button works on a form, click included, with no registration") {
    const SesionOle ole;
    const SinRegistro nada;
    const Contexto contexto;
    anfitrion::Formulario forma{{}};
    const auto componente = anfitrion::Componente::DeRegistro();
    const auto boton = forma.Agregar(componente, componente.Clase(L"Pincela.Botonazo"), L"Boton",
                                     RECT{10, 10, 130, 42});
    std::vector<std::wstring> eventos;
    boton->Conectar([&](anfitrion::Evento& evento) { eventos.push_back(evento.nombre); });
    anfitrion::Poner(boton->Despacho(), L"Caption", L"&Listo");
    CHECK(anfitrion::Texto(anfitrion::Leer(boton->Despacho(), L"Caption")) == L"&Listo");
    const HWND ventana = boton->Ventana();
    REQUIRE(ventana);
    SendMessageW(ventana, WM_KEYDOWN, VK_SPACE, 0);
    SendMessageW(ventana, WM_KEYUP, VK_SPACE, 0);
    CHECK(std::count(eventos.begin(), eventos.end(), L"Click") == 1);
}
