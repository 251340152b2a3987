// What a property browser and a designer ask.
#include "pruebas/componente/comun/boton.h"
#include "pruebas/componente/comun/sumideros.h"

#include <doctest/doctest.h>

#include <algorithm>

using namespace publicado;
using anfitrion::Cadena;
using anfitrion::Estrechar;
using anfitrion::Numero;

namespace {

struct ICategorizar : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE MapPropertyToCategory(DISPID, int*) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetCategoryName(int, LCID, BSTR*) = 0;

  protected:
    ~ICategorizar() = default;
};

struct Lista {
    const wchar_t* propiedad;
    std::vector<std::pair<const wchar_t*, DWORD>> valores;
};

const std::vector<std::pair<const wchar_t*, DWORD>> Alineaciones{
    {L"Izq_Sup", 0}, {L"Izq_Med", 1}, {L"Izq_Inf", 2}, {L"Med_Sup", 3}, {L"Medio", 4},
    {L"Med_Inf", 5}, {L"Der_Sup", 6}, {L"Der_Med", 7}, {L"Der_Inf", 8}};

const std::vector<Lista> Listas{
    {L"EfectoBoton", {{L"boton", 0}, {L"BotOculoSobre", 1}, {L"BotVisibSobre", 2}}},
    {L"AlinText", Alineaciones},
    {L"AlinImag", Alineaciones},
    {L"EstilosBord",
     {{L"Ninguno", 0}, {L"Normal", 1}, {L"Lineal", 2}, {L"Colores", 3}, {L"Degradados", 4}}},
    {L"EstilosRell",
     {{L"Solido", 0}, {L"D_Hori", 1}, {L"D_Vert", 2}, {L"D_Pirami", 3}, {L"D_Diagonal", 4}}},
    {L"Estilos", {{L"CLASICO", 0}, {L"REDONDEADO", 1}}},
    {L"AnchoBorde", {{L"Chico", 1}, {L"Mediano", 2}, {L"Grande", 3}}},
    {L"TipoLetra",
     {{L"Normal", 0}, {L"Levantada", 1}, {L"Undida", 2}, {L"InvesoL", 3}, {L"InvesoU", 4}}}};

} // namespace

TEST_CASE("Each enumerated property offers its members by name, in order") {
    const Boton boton;
    const auto examinador = boton.Como<IPerPropertyBrowsing>();
    REQUIRE(examinador);
    for (const Lista& una : Listas) {
        INFO(Estrechar(una.propiedad));
        const DISPID numero = Numero(boton.get(), una.propiedad);
        CALPOLESTR textos{};
        CADWORD galletas{};
        REQUIRE(examinador->GetPredefinedStrings(numero, &textos, &galletas) == S_OK);
        REQUIRE(textos.cElems == una.valores.size());
        REQUIRE(galletas.cElems == una.valores.size());
        for (ULONG i = 0; i < textos.cElems; ++i) {
            CHECK(Estrechar(textos.pElems[i]) == Estrechar(una.valores[i].first));
            Variante valor;
            CHECK(examinador->GetPredefinedValue(numero, galletas.pElems[i], valor.Recibir()) ==
                  S_OK);
            CHECK(valor.vt == VT_I4);
            CHECK(valor.ulVal == una.valores[i].second);
            Poner(boton.get(), una.propiedad, valor);
            Cadena mostrado;
            CHECK(examinador->GetDisplayString(numero, mostrado.Recibir()) == S_OK);
            CHECK(mostrado.Texto() == una.valores[i].first);
            CoTaskMemFree(textos.pElems[i]);
        }
        CoTaskMemFree(textos.pElems);
        CoTaskMemFree(galletas.pElems);
    }
}

TEST_CASE("A value outside an enumeration is shown as its number") {
    const Boton boton;
    Poner(boton.get(), L"TipoLetra", 99);
    Cadena mostrado;
    CHECK(boton.Como<IPerPropertyBrowsing>()->GetDisplayString(Numero(boton.get(), L"TipoLetra"),
                                                               mostrado.Recibir()) == S_OK);
    CHECK(mostrado.Texto() == L"99");
}

TEST_CASE("Other properties offer no list, and unknown ones nothing") {
    const Boton boton;
    const auto examinador = boton.Como<IPerPropertyBrowsing>();
    for (const DISPID numero : {DISPID{-518}, DISPID{-512}, Numero(boton.get(), L"ColorFondo"),
                                Numero(boton.get(), L"Expandir"), DISPID{12345}}) {
        CALPOLESTR textos{7, nullptr};
        CADWORD galletas{7, nullptr};
        const HRESULT estado = examinador->GetPredefinedStrings(numero, &textos, &galletas);
        CHECK(estado != S_OK);
        CHECK(textos.cElems == 0);
        CHECK(galletas.cElems == 0);
        Variante valor(5);
        CHECK(FAILED(examinador->GetPredefinedValue(numero, 0, &valor)));
        CHECK(valor.vt == VT_EMPTY);
    }
    const DISPID letra = Numero(boton.get(), L"TipoLetra");
    Variante valor;
    CHECK(examinador->GetPredefinedValue(letra, 77, valor.Recibir()) == E_INVALIDARG);
    CHECK(examinador->GetPredefinedStrings(letra, nullptr, nullptr) == E_POINTER);
    CHECK(examinador->GetPredefinedValue(letra, 0, nullptr) == E_POINTER);
    CHECK(examinador->GetDisplayString(letra, nullptr) == E_POINTER);
    CHECK(examinador->MapPropertyToPage(letra, nullptr) == E_POINTER);
}

TEST_CASE("Properties stand in five groups with Spanish names") {
    const Boton boton;
    void* p = nullptr;
    REQUIRE(boton.objeto->QueryInterface(Guid(L"{4D07FC10-F931-11CE-B001-00AA006884E5}"), &p) ==
            S_OK);
    const auto grupos = Puntero<ICategorizar>::Adoptar(static_cast<ICategorizar*>(p));
    const struct {
        const wchar_t* propiedad;
        const wchar_t* grupo;
    } esperados[] = {{L"EfectoBoton", L"Apariencia"},
                     {L"Caption", L"Datos"},
                     {L"Font", L"Fuente"},
                     {L"Enabled", L"Comportamiento"},
                     {L"ToolTipText", L"Otras"}};
    const auto nombre = [&](DISPID numero) {
        int grupo = 0;
        Cadena texto;
        CHECK(grupos->MapPropertyToCategory(numero, &grupo) == S_OK);
        CHECK(grupos->GetCategoryName(grupo, LOCALE_USER_DEFAULT, texto.Recibir()) == S_OK);
        return Estrechar(texto.Texto());
    };
    for (const auto& uno : esperados)
        CHECK(nombre(Numero(boton.get(), uno.propiedad)) == Estrechar(uno.grupo));
    const char* nombres[] = {"Apariencia", "Datos", "Fuente", "Comportamiento", "Otras"};
    for (const wchar_t* una : PropiedadesDelBoton) {
        INFO(Estrechar(una));
        CHECK(std::count(std::begin(nombres), std::end(nombres),
                         nombre(Numero(boton.get(), una))) == 1);
    }
    int grupo = 5;
    CHECK(FAILED(grupos->MapPropertyToCategory(98765, &grupo)));
    CHECK(grupo == 0);
    CHECK(grupos->MapPropertyToCategory(-518, nullptr) == E_POINTER);
    CHECK(grupos->GetCategoryName(-5, 0, nullptr) == E_POINTER);
    Cadena texto;
    CHECK(FAILED(grupos->GetCategoryName(4711, 0, texto.Recibir())));
}

TEST_CASE("The designer's pages come in their order") {
    const Boton boton;
    const auto paginas = boton.Como<ISpecifyPropertyPages>();
    REQUIRE(paginas);
    CAUUID lista{};
    REQUIRE(paginas->GetPages(&lista) == S_OK);
    REQUIRE(lista.cElems == 4);
    CHECK(lista.pElems[0] == Guid(ClaseDe(L"ProPGeneral").clase));
    CHECK(lista.pElems[1] == Guid(ClaseDe(L"ProPColores").clase));
    CHECK(lista.pElems[2] == Guid(L"{0BE35202-8F91-11CE-9DE3-00AA004BB851}")); // picture
    CHECK(lista.pElems[3] == Guid(L"{0BE35200-8F91-11CE-9DE3-00AA004BB851}")); // font
    CoTaskMemFree(lista.pElems);
    CHECK(paginas->GetPages(nullptr) == E_POINTER);
}

TEST_CASE("A property is edited on a page that the control names") {
    const Boton boton;
    const auto examinador = boton.Como<IPerPropertyBrowsing>();
    CLSID pagina{};
    CHECK(examinador->MapPropertyToPage(-512, &pagina) == S_OK);
    CHECK(pagina == Guid(L"{0BE35200-8F91-11CE-9DE3-00AA004BB851}"));
    CHECK(examinador->MapPropertyToPage(Numero(boton.get(), L"ImagNormal"), &pagina) == S_OK);
    CHECK(pagina == Guid(L"{0BE35202-8F91-11CE-9DE3-00AA004BB851}"));
    CHECK(examinador->MapPropertyToPage(Numero(boton.get(), L"ColorFondo"), &pagina) == S_OK);
    CHECK(pagina == Guid(ClaseDe(L"ProPColores").clase));
    CHECK(examinador->MapPropertyToPage(-518, &pagina) == S_OK);
    CHECK(pagina == Guid(ClaseDe(L"ProPGeneral").clase));
    CHECK(FAILED(examinador->MapPropertyToPage(31415, &pagina)));
    CHECK(pagina == CLSID_NULL);
}

TEST_CASE("The class information names the events as the default source") {
    const Boton boton;
    const auto info = boton.Como<IProvideClassInfo2>();
    REQUIRE(info);
    GUID guid{};
    CHECK(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &guid) == S_OK);
    CHECK(guid == Guid(ClaseDe(L"Botonazo").eventos));
    CHECK(FAILED(info->GetGUID(77, &guid)));
    CHECK(guid == GUID_NULL);
    CHECK(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, nullptr) == E_POINTER);
    Puntero<ITypeInfo> tipo;
    REQUIRE(info->GetClassInfo(tipo.Recibir()) == S_OK);
    TYPEATTR* attr = nullptr;
    REQUIRE(tipo->GetTypeAttr(&attr) == S_OK);
    CHECK(attr->typekind == TKIND_COCLASS);
    CHECK(attr->guid == Guid(ClaseDe(L"Botonazo").clase));
    tipo->ReleaseTypeAttr(attr);
    CHECK(info->GetClassInfo(nullptr) == E_POINTER);
}

TEST_CASE("Members that only the property pages use can't be reached by name") {
    const Boton boton;
    for (const wchar_t* nombre : {L"ColorDegradeN", L"ColorDegradeS", L"Angulo", L"colordegraden"})
        CHECK_FALSE(anfitrion::Tiene(boton.get(), nombre));
    CHECK(anfitrion::Tiene(boton.get(), L"caption")); // names know no case
}

TEST_CASE("No identifier but the published ones reaches anything") {
    const Boton boton;
    std::vector<DISPID> publicados{0x6003003B};
    for (const wchar_t* una : PropiedadesDelBoton)
        publicados.push_back(Numero(boton.get(), una));
    const auto probar = [&](DISPID numero) {
        if (std::find(publicados.begin(), publicados.end(), numero) != publicados.end())
            return;
        for (const WORD modo :
             {DISPATCH_PROPERTYGET, DISPATCH_METHOD, DISPATCH_METHOD | DISPATCH_PROPERTYGET}) {
            DISPPARAMS ninguno{};
            const HRESULT estado =
                boton.get()->Invoke(numero, IID_NULL, LOCALE_USER_DEFAULT, static_cast<WORD>(modo),
                                    &ninguno, nullptr, nullptr, nullptr);
            if (estado != DISP_E_MEMBERNOTFOUND) {
                INFO("identifier ", numero);
                CHECK(estado == DISP_E_MEMBERNOTFOUND);
            }
        }
        try {
            anfitrion::Invocar(boton.get(), numero, DISPATCH_PROPERTYPUT, {Variante(L"255*0")});
            INFO("identifier ", numero);
            FAIL_CHECK("assigned");
        } catch (const anfitrion::FalloCom&) {
        }
    };
    for (DISPID numero = -1000; numero < 1000; ++numero)
        probar(numero);
    for (DISPID numero = 0x6002FF00; numero < 0x60030200; ++numero)
        probar(numero);
    for (DISPID numero = 0x6802FF00; numero < 0x68030200; ++numero)
        probar(numero);
}

TEST_CASE("The two connection points are found and enumerated") {
    const Boton boton;
    const auto contenedor = boton.Como<IConnectionPointContainer>();
    REQUIRE(contenedor);
    Puntero<IEnumConnectionPoints> lista;
    REQUIRE(contenedor->EnumConnectionPoints(lista.Recibir()) == S_OK);
    IConnectionPoint* puntos[3] = {};
    ULONG cuantos = 0;
    CHECK(lista->Next(3, puntos, &cuantos) == S_FALSE);
    REQUIRE(cuantos == 2);
    const IID esperadas[] = {Guid(ClaseDe(L"Botonazo").eventos), IID_IPropertyNotifySink};
    for (ULONG i = 0; i < 2; ++i) {
        IID iid{};
        CHECK(puntos[i]->GetConnectionInterface(&iid) == S_OK);
        CHECK(iid == esperadas[i]);
        Puntero<IConnectionPointContainer> duenio;
        CHECK(puntos[i]->GetConnectionPointContainer(duenio.Recibir()) == S_OK);
        CHECK(duenio.Como<IUnknown>() == boton.Como<IUnknown>());
        puntos[i]->Release();
    }
    Puntero<IConnectionPoint> punto;
    CHECK(contenedor->FindConnectionPoint(IID_IAdviseSink, punto.Recibir()) ==
          CONNECT_E_NOCONNECTION);
    CHECK(contenedor->FindConnectionPoint(IID_IAdviseSink, nullptr) == E_POINTER);
    CHECK(contenedor->EnumConnectionPoints(nullptr) == E_POINTER);
}

TEST_CASE("A connection point takes only who understands it, and lets each go once") {
    const Boton boton;
    Puntero<IConnectionPoint> punto;
    REQUIRE(boton.Como<IConnectionPointContainer>()->FindConnectionPoint(IID_IPropertyNotifySink,
                                                                         punto.Recibir()) == S_OK);
    DWORD galleta = 77;
    CHECK(punto->Advise(nullptr, &galleta) == E_POINTER);
    CHECK(galleta == 0);
    CHECK(punto->Advise(boton.objeto.get(), &galleta) == CONNECT_E_CANNOTCONNECT);
    Puntero<Oyente> oyente = anfitrion::Hacer<Oyente>();
    CHECK(punto->Advise(oyente.get(), nullptr) == E_POINTER);
    DWORD otra = 0;
    REQUIRE(punto->Advise(oyente.get(), &galleta) == S_OK);
    REQUIRE(punto->Advise(oyente.get(), &otra) == S_OK);
    CHECK(galleta != otra);
    Puntero<IEnumConnections> lista;
    REQUIRE(punto->EnumConnections(lista.Recibir()) == S_OK);
    CONNECTDATA datos[3] = {};
    ULONG cuantas = 0;
    CHECK(lista->Next(3, datos, &cuantas) == S_FALSE);
    CHECK(cuantas == 2);
    for (ULONG i = 0; i < cuantas; ++i)
        datos[i].pUnk->Release();
    lista = nullptr;
    CHECK(punto->Unadvise(galleta) == S_OK);
    CHECK(punto->Unadvise(galleta) == CONNECT_E_NOCONNECTION);
    CHECK(punto->Unadvise(otra) == S_OK);
    CHECK(oyente.Soltar() == 0);
}
