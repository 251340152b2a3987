// Which pages a control names, and which of them edits a property.
#include "pruebas/componente/paginas/banco.h"

#include <utility>

using namespace paginas;

namespace {

constexpr const wchar_t* DeFuente = L"{0BE35200-8F91-11CE-9DE3-00AA004BB851}";
constexpr const wchar_t* DeColor = L"{0BE35201-8F91-11CE-9DE3-00AA004BB851}";
constexpr const wchar_t* DeImagen = L"{0BE35202-8F91-11CE-9DE3-00AA004BB851}";

using Lista = std::vector<std::wstring>;

/// A new control of any class.
struct Control {
    explicit Control(const wchar_t* clase)
        : componente(anfitrion::Componente::DeFichero(RutaDelComponente())),
          objeto(Crear(componente, clase)) {
        anfitrion::Comprobar(IniciarNuevo(objeto.get()), "InitNew");
    }
    /// Page of a property; empty when it has none.
    std::wstring PaginaDe(const wchar_t* propiedad) const {
        const DISPID numero = anfitrion::Numero(objeto.Como<IDispatch>().get(), propiedad);
        CLSID pagina{};
        const HRESULT estado =
            objeto.Como<IPerPropertyBrowsing>()->MapPropertyToPage(numero, &pagina);
        if (estado == S_OK)
            return Escrito(pagina);
        CHECK(estado == PERPROP_E_NOPAGEAVAILABLE);
        CHECK(pagina == CLSID_NULL);
        return {};
    }

    SesionOle ole;
    anfitrion::Componente componente;
    Puntero<IUnknown> objeto;
};

} // namespace

TEST_CASE("Each control names its pages in the designer's order") {
    const std::pair<const wchar_t*, Lista> esperadas[] = {
        {L"Botonazo",
         {ClaseDe(L"ProPGeneral").clase, ClaseDe(L"ProPColores").clase, DeImagen, DeFuente}},
        {L"Area", {ClaseDe(L"ProPColoresArea").clase, DeFuente}},
        {L"Tbox", {DeFuente, DeColor}},
        {L"TboxSS", {DeFuente, DeColor}},
        {L"TboxSSML", {DeFuente, DeColor}},
    };
    for (const auto& [clase, paginas] : esperadas) {
        INFO(anfitrion::Estrechar(clase));
        const Control control(clase);
        CAUUID lista{};
        const auto quien = control.objeto.Como<ISpecifyPropertyPages>();
        REQUIRE(quien);
        REQUIRE(quien->GetPages(&lista) == S_OK);
        Lista nombradas;
        for (ULONG i = 0; i < lista.cElems; ++i)
            nombradas.push_back(Escrito(lista.pElems[i]));
        CoTaskMemFree(lista.pElems);
        CHECK(nombradas == paginas);
        CHECK(quien->GetPages(nullptr) == E_POINTER);
    }
}

TEST_CASE("The multi-line labelled text box names no pages, has no verb and maps nothing") {
    const Control control(L"TBoxML");
    CHECK_FALSE(control.objeto.Como<ISpecifyPropertyPages>());
    for (const wchar_t* una : {L"Fuente", L"FuenteEtic", L"ColorLetra", L"Caption", L"MouseIcon"})
        CHECK(control.PaginaDe(una) == L"");
    const auto ole = control.objeto.Como<IOleObject>();
    const RECT lugar{};
    CHECK(ole->DoVerb(OLEIVERB_PROPERTIES, nullptr, nullptr, 0, nullptr, &lugar) ==
          OLEOBJ_S_CANNOT_DOVERB_NOW);
    Puntero<IEnumOLEVERB> verbos;
    CHECK(ole->EnumVerbs(verbos.Recibir()) == OLEOBJ_E_NOVERBS);
    CHECK_FALSE(verbos);
}

TEST_CASE("Fonts and colours of a text box lead to the platform's pages, the rest nowhere") {
    for (const wchar_t* clase : {L"Tbox", L"TboxSS", L"TboxSSML"}) {
        INFO(anfitrion::Estrechar(clase));
        const Control control(clase);
        const bool conEtiqueta = std::wstring(clase) == L"Tbox";
        CHECK(control.PaginaDe(L"Fuente") == DeFuente);
        for (const wchar_t* una : {L"ColorLetra", L"ColorLetraSobre", L"ColorFondo",
                                   L"ColorFondoSobre", L"ColorFonTexto", L"ColorFonTextoS"})
            CHECK(control.PaginaDe(una) == DeColor);
        if (conEtiqueta) {
            CHECK(control.PaginaDe(L"FuenteEtic") == DeFuente);
            for (const wchar_t* una : {L"ColorLetraE", L"ColorLetraES"})
                CHECK(control.PaginaDe(una) == DeColor);
            CHECK(control.PaginaDe(L"Caption") == L"");
        }
        for (const wchar_t* una : {L"Text", L"Enabled", L"AlinTBox", L"MouseIcon", L"MousePointer"})
            CHECK(control.PaginaDe(una) == L"");
    }
}

TEST_CASE("The font of a panel leads to the platform's page, its mouse settings nowhere") {
    const Control control(L"Area");
    CHECK(control.PaginaDe(L"Font") == DeFuente);
    for (const wchar_t* una : {L"MouseIcon", L"MousePointer", L"ToolTipText"})
        CHECK(control.PaginaDe(una) == L"");
    CLSID pagina{};
    CHECK(control.objeto.Como<IPerPropertyBrowsing>()->MapPropertyToPage(0x60030022, &pagina) ==
          PERPROP_E_NOPAGEAVAILABLE); // a method
}
