// The drawing class and the property pages on a machine that has run out of memory.
#include "pruebas/componente/comun/lamina.h"
#include "pruebas/componente/comun/publicado.h"
#include "pruebas/componente/memoria/apuros.h"
#include "pruebas/componente/paginas/banco.h"

#include <doctest/doctest.h>

using namespace memoria;

TEST_CASE("The drawing class without memory draws or says so, and draws afterwards") {
    const auto efectos = Mesa::La().Crear(L"Pincela.Efectos").Como<IDispatch>();
    ConCadaNegativa([&](const Negativa& negativa) {
        Apurar("gradient", negativa, [&](const Intento& intentar) {
            publicado::Lamina lamina(60, 30);
            const auto degradar = [&] {
                try {
                    Llamar(efectos.get(), L"Degrade",
                           {lamina.Numero(), 60L, 30L, 1L, L"255*65280*16711680"});
                    return S_OK;
                } catch (const FalloCom& fallo) {
                    return fallo.estado;
                }
            };
            intentar(degradar);
            lamina.Llenar({0, 0, 60, 30}, publicado::Lamina::Limpia);
            CHECK(degradar() == S_OK);
            CHECK(lamina.Pixel(30, 15) != publicado::Lamina::Limpia);
        });
    });
}

TEST_CASE("A property page without memory says so and works afterwards") {
    Mesa& mesa = Mesa::La();
    const struct {
        const wchar_t* pagina;
        const wchar_t* control;
    } casos[] = {{L"Pincela.ProPGeneral", L"Pincela.Botonazo"},
                 {L"Pincela.ProPColores", L"Pincela.Botonazo"},
                 {L"Pincela.ProPColoresArea", L"Pincela.Area"}};
    for (const auto& caso : casos) {
        const auto control = mesa.Crear(caso.control);
        REQUIRE(control.Como<IPersistStreamInit>()->InitNew() == S_OK);
        const CLSID clase = publicado::Guid(publicado::ClaseDe(caso.pagina + 8).clase);
        const paginas::Ventana marco;
        const auto usar = [&](const Puntero<IPropertyPage>& pagina) -> HRESULT {
            HRESULT estado = S_OK;
            const auto hacer = [&](HRESULT hecho) { estado = SUCCEEDED(estado) ? hecho : estado; };
            PROPPAGEINFO datos{};
            datos.cb = sizeof datos;
            hacer(pagina->GetPageInfo(&datos));
            CoTaskMemFree(datos.pszTitle);
            CoTaskMemFree(datos.pszDocString);
            CoTaskMemFree(datos.pszHelpFile);
            IUnknown* objetos[] = {control.get()};
            hacer(pagina->SetObjects(1, objetos));
            const RECT lugar{0, 0, 500, 400};
            if (SUCCEEDED(estado))
                hacer(pagina->Activate(marco.get(), &lugar, FALSE));
            if (SUCCEEDED(estado)) {
                hacer(pagina->Show(SW_SHOW));
                RedrawWindow(marco.get(), nullptr, nullptr,
                             RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
                hacer(pagina->Apply());
            }
            return estado;
        };
        ConCadaNegativa([&](const Negativa& negativa) {
            Apurar("page " + Estrechar(caso.pagina).substr(8), negativa,
                   [&](const Intento& intentar) {
                       const auto sitio = Hacer<paginas::SitioFalso>();
                       const auto pagina = mesa.componente.Crear(clase).Como<IPropertyPage>();
                       REQUIRE(pagina->SetPageSite(sitio.get()) == S_OK);
                       intentar([&] { return usar(pagina); });
                       pagina->Deactivate();
                       CHECK(usar(pagina) == S_OK);
                       pagina->Deactivate();
                       pagina->SetObjects(0, nullptr);
                       pagina->SetPageSite(nullptr);
                   });
        });
    }
}
