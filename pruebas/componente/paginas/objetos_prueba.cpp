// What a page accepts as its objects, and what it tells of the others.
#include "pruebas/componente/paginas/area.h"

using namespace paginas;

namespace paginas {

constexpr GUID IidInterna = {
    0x1EAA7203, 0x4FFE, 0x425C, {0xA7, 0x27, 0x4D, 0xB9, 0x15, 0xDA, 0x95, 0x6E}};

/// A panel of which only the interface for its pages is seen, or everything else.
struct Velo : anfitrion::ObjetoCom<IUnknown> {
    Velo(const Puntero<IDispatch>& panel, bool soloInterna)
        : panel_(panel), soloInterna_(soloInterna) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** salida) override {
        if (iid == IID_IUnknown)
            return ObjetoCom::QueryInterface(iid, salida);
        if ((iid == IidInterna) == soloInterna_)
            return panel_->QueryInterface(iid, salida);
        *salida = nullptr;
        return E_NOINTERFACE;
    }

  private:
    Puntero<IDispatch> panel_;
    bool soloInterna_;
};

} // namespace paginas

TEST_CASE("A border that the list does not offer can't be shown, and says so") {
    PaginaArea a;
    const auto otro = a.Panel();
    Poner(otro.get(), L"EstilosBord", 4);
    CHECK(a.Seleccionar({otro}) == ValorNoValido);
    CHECK(ErrorDejado() == L"El valor de la propiedad no es válido");
    CHECK_FALSE(a.Sucia());
    CHECK(a.Valor(otro, L"EstilosBord") == L"4");
    REQUIRE(a.Seleccionar({a.panel}) == S_OK);
    CHECK(a.Indice(L"Estilo Borde") == 2);
}

TEST_CASE("The page of the panel refuses a button and can be shown without objects") {
    BancoPagina banco(L"ProPColoresArea");
    REQUIRE(banco.Activar() == S_OK);
    CHECK(banco.Seleccionar({banco.Boton()}) == TiposNoCoinciden);
    CHECK(ErrorDejado() == L"No coinciden los tipos");
    CHECK_FALSE(banco.Sucia());
    // What it offers was filled in before the object was met.
    CHECK(SendMessageW(banco.Campo(L"Estilo Borde"), CB_GETCOUNT, 0, 0) == 4);
    CHECK(SendMessageW(banco.Campo(L"EstiloRelleno:"), CB_GETCOUNT, 0, 0) == 4);
}

TEST_CASE("The pages of the button refuse a panel and the text boxes") {
    for (const wchar_t* clase : {L"ProPGeneral", L"ProPColores"}) {
        INFO(anfitrion::Estrechar(clase));
        BancoPagina banco(clase);
        for (const wchar_t* ajena : {L"Area", L"Tbox", L"TBoxML", L"TboxSS", L"TboxSSML"}) {
            const auto objeto = Crear(banco.componente, ajena);
            REQUIRE(IniciarNuevo(objeto.get()) == S_OK);
            CHECK(banco.Seleccionar({objeto.Como<IDispatch>()}) == TiposNoCoinciden);
            CHECK(ErrorDejado() == L"No coinciden los tipos");
        }
    }
}

TEST_CASE("An apply stops at the object of the wrong class: those before it are whole") {
    PaginaArea a;
    const auto segundo = a.Panel(), tercero = a.Panel();
    CHECK(a.Seleccionar({segundo, a.Boton(), tercero}) == TiposNoCoinciden);
    a.Escribir(a.Campo(L"Texto"), L"Nuevo");
    a.Elegir(L"EstiloRelleno:", 2);
    a.Elegir(L"Tipo Letra", 3);
    CHECK(a.pagina->Apply() == TiposNoCoinciden);
    CHECK(ErrorDejado() == L"No coinciden los tipos");
    CHECK(a.Sucia());
    CHECK(a.Valor(segundo, L"Caption") == L"Nuevo");
    CHECK(a.Valor(segundo, L"EstilosRell") == L"2");
    CHECK(a.Valor(tercero, L"Caption") == L"");
    CHECK(a.Valor(tercero, L"TipoLetra") == L"0");
}

TEST_CASE("A page reaches its panel through the private interface, and through nothing else") {
    PaginaArea a;
    const auto oculto = anfitrion::Hacer<Velo>(a.panel, true);
    IUnknown* objeto = oculto.get();
    REQUIRE(a.pagina->SetObjects(1, &objeto) == S_OK);
    a.Escribir(a.Campo(L"Texto"), L"A oscuras");
    CHECK(a.pagina->Apply() == S_OK);
    CHECK(a.Valor(L"Caption") == L"A oscuras");

    const auto sinInterna = anfitrion::Hacer<Velo>(a.panel, false);
    objeto = sinInterna.get();
    CHECK(a.pagina->SetObjects(1, &objeto) == TiposNoCoinciden);
    a.pagina->SetObjects(0, nullptr);
}

TEST_CASE("A panel out of another copy of the component is refused") {
    PaginaArea a;
    wchar_t carpeta[MAX_PATH];
    GetTempPathW(MAX_PATH, carpeta);
    const std::wstring copia = std::wstring(carpeta) + L"Pincela_copia_" +
                               std::to_wstring(GetCurrentProcessId()) + L".ocx";
    REQUIRE(CopyFileW(RutaDelComponente().c_str(), copia.c_str(), FALSE));
    {
        const auto otra = anfitrion::Componente::DeFichero(copia);
        const auto ajeno = Crear(otra, L"Area");
        REQUIRE(IniciarNuevo(ajeno.get()) == S_OK);
        CHECK(a.Seleccionar({ajeno.Como<IDispatch>()}) == TiposNoCoinciden);
        a.pagina->SetObjects(0, nullptr);
    }
    DeleteFileW(copia.c_str());
}
