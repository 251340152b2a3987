// What a type library tells of an object's properties.
#include "anfitrion/imagenes.h"
#include "anfitrion/propiedades.h"
#include "anfitrion/pruebas/banco.h"

#include <algorithm>

using namespace falso;

namespace {

/// An object of which there is nothing but its description.
class Descrito : public ObjetoCom<IDispatch> {
  public:
    Descrito() {
        wchar_t carpeta[MAX_PATH];
        GetTempPathW(MAX_PATH, carpeta);
        Puntero<ICreateTypeLib2> biblioteca;
        const SYSKIND sistema = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
        REQUIRE(SUCCEEDED(CreateTypeLib2(sistema, (std::wstring(carpeta) + L"descrito.tlb").c_str(),
                                         biblioteca.Recibir())));
        wchar_t nombre[] = L"Cosa";
        REQUIRE(SUCCEEDED(biblioteca->CreateTypeInfo(nombre, TKIND_DISPATCH, escrita_.Recibir())));
        Agregar(L"Visible", 1, VT_BSTR, 0);
        Agregar(L"Oculta", 2, VT_BSTR, VARFLAG_FHIDDEN);
        Agregar(L"SinMostrar", 3, VT_BSTR, VARFLAG_FNONBROWSABLE);
        Agregar(L"Restringida", 4, VT_BSTR, VARFLAG_FRESTRICTED);
        Agregar(L"Leida", 5, VT_I4, VARFLAG_FREADONLY);
        REQUIRE(SUCCEEDED(escrita_->LayOut()));
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* cuantas) override {
        *cuantas = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** tipo) override {
        return escrita_->QueryInterface(IID_PPV_ARGS(tipo));
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        return DISP_E_MEMBERNOTFOUND;
    }

  private:
    void Agregar(std::wstring nombre, DISPID numero, VARTYPE tipo, WORD banderas) {
        VARDESC variable{};
        variable.memid = numero;
        variable.varkind = VAR_DISPATCH;
        variable.elemdescVar.tdesc.vt = tipo;
        variable.wVarFlags = banderas;
        REQUIRE(SUCCEEDED(escrita_->AddVarDesc(cuantas_, &variable)));
        REQUIRE(SUCCEEDED(escrita_->SetVarName(cuantas_, nombre.data())));
        ++cuantas_;
    }

    Puntero<ICreateTypeInfo> escrita_;
    UINT cuantas_ = 0;
};

std::string Nombres(const std::vector<Propiedad>& propiedades) {
    std::string nombres;
    for (const Propiedad& una : propiedades)
        nombres += Estrechar(una.nombre) + (una.SoloLectura() ? "(r) " : " ");
    return nombres;
}

} // namespace

TEST_CASE("What is hidden, restricted or not for browsing isn't a property to be listed") {
    const SesionOle ole;
    const auto objeto = Hacer<Descrito>();
    CHECK(Nombres(PropiedadesDe(objeto.get())) == "Leida(r) Visible ");
}

TEST_CASE("The properties of a font are read and put by what its library tells") {
    const SesionOle ole;
    const auto fuente = CrearFuente(L"Arial", 12, true);
    const auto propiedades = PropiedadesDe(fuente.get());
    const auto la = [&](const wchar_t* nombre) {
        const auto suya = std::find_if(propiedades.begin(), propiedades.end(),
                                       [&](const Propiedad& una) { return una.nombre == nombre; });
        REQUIRE(suya != propiedades.end());
        return *suya;
    };
    CHECK(la(L"Name").genero == Genero::Texto);
    CHECK(la(L"Bold").genero == Genero::Logico);
    CHECK(Logico(Leer(fuente.get(), la(L"Bold"))));
    Poner(fuente.get(), la(L"Name"), L"Courier New");
    CHECK(Texto(Leer(fuente.get(), la(L"Name"))) == L"Courier New");
}

TEST_CASE("An object without a type library has no properties to list") {
    const SesionOle ole;
    Banco banco;
    banco.Poner(L"uno");
    CHECK(PropiedadesDe(banco.alojado->Extendido().get()).empty());
    CHECK(PropiedadesDe(nullptr).empty());
}
