// A container of one control that refuses whatever it is told to refuse, without the library of
// containers in between.
#pragma once

#include "anfitrion/marco_en_sitio.h"
#include "anfitrion/tardio.h"
#include "pruebas/componente/comun/publicado.h"

#include <doctest/doctest.h>

#include <ocidl.h>
#include <olectl.h>

#include <functional>
#include <memory>

namespace contenedor {

using anfitrion::Hacer;
using anfitrion::ObjetoCom;
using anfitrion::Puntero;
using anfitrion::Registro;

/// The statuses are what each call answers; what it hands out is right unless it is told to lie.
class SitioTerco final : public ObjetoCom<IOleClientSite, IOleInPlaceSite, IOleControlSite> {
  public:
    HRESULT puede = S_OK, activa = S_OK, ventana = S_OK, contexto = S_OK, activaUI = S_OK;
    /// What it need not implement.
    HRESULT otros = S_OK;
    bool miente = false; ///< S_OK, with nothing handed out
    HWND padre = nullptr;
    RECT lugar{10, 10, 130, 50};
    Puntero<anfitrion::MarcoEnSitio> marco;
    std::shared_ptr<Registro> registro = std::make_shared<Registro>();
    std::function<void(const std::string&)> alLlamar;

    HRESULT STDMETHODCALLTYPE SaveObject() override { return otros; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** salida) override {
        *salida = nullptr;
        return miente ? S_OK : E_NOINTERFACE;
    }
    HRESULT STDMETHODCALLTYPE ShowObject() override { return Dicho("ShowObject", otros); }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return otros; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* salida) override {
        *salida = FAILED(ventana) || miente ? nullptr : padre;
        return Dicho("GetWindow", ventana);
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return otros; }
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override {
        return Dicho("CanInPlaceActivate", puede);
    }
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override {
        return Dicho("OnInPlaceActivate", activa);
    }
    HRESULT STDMETHODCALLTYPE OnUIActivate() override { return Dicho("OnUIActivate", activaUI); }
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** suMarco,
                                               IOleInPlaceUIWindow** documento, LPRECT posicion,
                                               LPRECT recorte, LPOLEINPLACEFRAMEINFO) override {
        *suMarco = nullptr;
        *documento = nullptr;
        if (SUCCEEDED(contexto) && !miente) {
            *suMarco = Puntero<IOleInPlaceFrame>(marco.get()).Separar();
            *posicion = *recorte = lugar;
        }
        return Dicho("GetWindowContext", contexto);
    }
    HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return otros; }
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override {
        return Dicho("OnUIDeactivate", otros);
    }
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override {
        return Dicho("OnInPlaceDeactivate", otros);
    }
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return otros; }
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return otros; }
    HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT) override { return otros; }

    HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override { return otros; }
    HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) override { return otros; }
    HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** salida) override {
        *salida = nullptr;
        return miente ? S_OK : E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE TransformCoords(POINTL*, POINTF*, DWORD) override { return otros; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnFocus(BOOL tiene) override {
        return Dicho(tiene ? "OnFocus si" : "OnFocus no", otros);
    }
    HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override { return E_NOTIMPL; }

    std::size_t Veces(const char* llamada) const { return registro->Veces(llamada); }

  protected:
    void* Heredada(REFIID iid) override {
        return iid == IID_IOleWindow ? static_cast<IOleInPlaceSite*>(this) : nullptr;
    }

  private:
    HRESULT Dicho(const char* llamada, HRESULT estado) {
        registro->Anotar("", llamada);
        if (const auto hacer = alLlamar)
            hacer(llamada);
        return estado;
    }
};

/// A top-level window with that site and one control, loaded and not yet active.
class Terco {
  public:
    explicit Terco(const wchar_t* clase = L"Botonazo")
        : componente(anfitrion::Componente::DeFichero(publicado::RutaDelComponente())) {
        padre = CreateWindowExW(0, L"STATIC", L"Terco", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50,
                                300, 200, nullptr, nullptr, nullptr, nullptr);
        texto = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 10, 100, 60, 20, padre,
                                nullptr, nullptr, nullptr);
        SetForegroundWindow(padre);
        SetFocus(texto);
        sitio = Hacer<SitioTerco>();
        sitio->padre = padre;
        sitio->marco = Hacer<anfitrion::MarcoEnSitio>(padre, sitio->registro, "marco");
        objeto = publicado::Crear(componente, clase).Como<IOleObject>();
        REQUIRE(objeto->SetClientSite(sitio.get()) == S_OK);
        REQUIRE(objeto.Como<IPersistStreamInit>()->InitNew() == S_OK);
    }
    Terco(const Terco&) = delete;
    Terco& operator=(const Terco&) = delete;
    ~Terco() {
        objeto->Close(OLECLOSE_NOSAVE);
        objeto->SetClientSite(nullptr);
        CHECK(objeto.Soltar() == 0);
        DestroyWindow(padre);
        CHECK(componente.PuedeDescargarse());
    }

    HRESULT Verbo(LONG verbo) {
        const RECT aqui{20, 20, 90, 60};
        return objeto->DoVerb(verbo, nullptr, sitio.get(), 0, padre, &aqui);
    }
    HWND Ventana() const {
        HWND ventana = nullptr;
        objeto.Como<IOleInPlaceObject>()->GetWindow(&ventana);
        return ventana;
    }
    /// Where a click on the control lands: its edit field, if it has one.
    HWND Blanco() const {
        const HWND campo = GetWindow(Ventana(), GW_CHILD);
        return campo ? campo : Ventana();
    }
    bool TieneFoco() const {
        const HWND foco = GetFocus();
        return foco && Ventana() && (foco == Ventana() || IsChild(Ventana(), foco));
    }
    /// How many windows stand on the form beside its own text box.
    int Ventanas() const {
        int cuantas = 0;
        for (HWND v = GetWindow(padre, GW_CHILD); v; v = GetWindow(v, GW_HWNDNEXT))
            cuantas += v != texto;
        return cuantas;
    }
    void Clic() {
        const HWND blanco = Blanco();
        SendMessageW(blanco, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        SendMessageW(blanco, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    }

    publicado::SesionOle ole;
    anfitrion::Componente componente;
    HWND padre = nullptr, texto = nullptr;
    Puntero<SitioTerco> sitio;
    Puntero<IOleObject> objeto;
};

} // namespace contenedor
