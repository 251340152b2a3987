// A script inside this process: what it draws lands on a sheet that the test can look at.
#include "anfitrion/com.h"
#include "pruebas/componente/comun/lamina.h"
#include "pruebas/componente/comun/publicado.h"

#include <doctest/doctest.h>

#include <activscp.h>

using namespace publicado;
using anfitrion::Puntero;

namespace {

/// The least that the script engine asks of its host.
class Sitio : public anfitrion::ObjetoCom<IActiveScriptSite> {
  public:
    HRESULT error = S_OK;

    HRESULT STDMETHODCALLTYPE GetLCID(LCID* idioma) override {
        *idioma = LOCALE_INVARIANT;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR, DWORD, IUnknown**, ITypeInfo**) override {
        return TYPE_E_ELEMENTNOTFOUND;
    }
    HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* fallo) override {
        EXCEPINFO info{};
        fallo->GetExceptionInfo(&info);
        error = info.scode ? info.scode : E_FAIL;
        SysFreeString(info.bstrSource);
        SysFreeString(info.bstrDescription);
        SysFreeString(info.bstrHelpFile);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }
};

/// Runs a script to its end; the status of its first error.
HRESULT Ejecutar(const std::wstring& texto) {
    const CLSID motorDeGuiones = Guid(L"{B54F3741-5B07-11CF-A4B0-00AA004A55E8}");
    Puntero<IActiveScript> motor;
    REQUIRE(CoCreateInstance(motorDeGuiones, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IActiveScript),
                             motor.RecibirVoid()) == S_OK);
#ifdef _WIN64
    const Puntero<IActiveScriptParse64> lector = motor.Como<IActiveScriptParse64>();
#else
    const Puntero<IActiveScriptParse32> lector = motor.Como<IActiveScriptParse32>();
#endif
    REQUIRE(lector);
    const Puntero<Sitio> sitio = anfitrion::Hacer<Sitio>();
    REQUIRE(lector->InitNew() == S_OK);
    REQUIRE(motor->SetScriptSite(sitio.get()) == S_OK);
    REQUIRE(motor->SetScriptState(SCRIPTSTATE_CONNECTED) == S_OK);
    const HRESULT estado = lector->ParseScriptText(texto.c_str(), nullptr, nullptr, nullptr, 0, 0,
                                                   0, nullptr, nullptr);
    motor->Close();
    return FAILED(sitio->error) ? sitio->error : estado;
}

} // namespace

TEST_CASE("A script draws a gradient on a real device context") {
    const SesionOle ole;
    const Lamina l(100, 20);
    const std::wstring guion = L"Dim efectos, hdc, lista\n"
                               L"Set efectos = CreateObject(\"Pincela.Efectos\")\n"
                               L"hdc = " +
                               std::to_wstring(l.Numero()) +
                               L"\n"
                               L"lista = \"16777215*0\"\n"
                               L"efectos.Degrade hdc, 100, 20, 1, lista\n";
    CHECK(Ejecutar(guion) == S_OK);
    for (int x = 0; x < 100; ++x) {
        const auto gris = static_cast<BYTE>((0xFF00 * (100 - x) / 100) >> 8);
        CHECK(l.Pixel(x, 10) == RGB(gris, gris, gris));
    }
}

TEST_CASE("A script copies one device context over another") {
    const SesionOle ole;
    Lamina de(10, 10), a(10, 10);
    de.Llenar({0, 0, 10, 10}, RGB(10, 200, 30));
    const std::wstring guion = L"Dim a, de, lado\n"
                               L"de = " +
                               std::to_wstring(de.Numero()) + L"\na = " +
                               std::to_wstring(a.Numero()) +
                               L"\n"
                               L"lado = 10\n"
                               L"CreateObject(\"Pincela.Efectos\").DarTrans "
                               L"de, 0, 0, lado, lado, a, 0, 0, lado, lado, 0\n";
    CHECK(Ejecutar(guion) == S_OK);
    CHECK(a.Pixel(5, 5) == RGB(10, 200, 30));
}
