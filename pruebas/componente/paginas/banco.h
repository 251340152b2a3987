// A page of the component in a frame of the test's own, and the hands that use it.
#pragma once

#include "anfitrion/captura.h"
#include "pruebas/componente/comun/boton.h"

#include <doctest/doctest.h>

#include <commctrl.h>
#include <ocidl.h>

#include <functional>
#include <string>
#include <vector>

namespace paginas {

using namespace publicado;

inline HRESULT IniciarNuevo(IUnknown* objeto) {
    return Puntero<IUnknown>(objeto).Como<IPersistStreamInit>()->InitNew();
}

/// What the frame is told.
struct SitioFalso : anfitrion::ObjetoCom<IPropertyPageSite> {
    std::vector<DWORD> estados;
    std::function<void()> alCambiar;

    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD estado) override {
        estados.push_back(estado);
        if (alCambiar)
            alCambiar();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* idioma) override {
        *idioma = GetUserDefaultLCID();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override { return S_FALSE; }
};

// Windows by what they show.

/// Text of a window as the user reads it, without the mark of the mnemonic.
inline std::wstring Leido(HWND ventana) {
    wchar_t texto[200];
    GetWindowTextW(ventana, texto, 200);
    std::wstring leido;
    for (const wchar_t letra : std::wstring(texto))
        if (letra != L'&')
            leido += letra;
    return leido;
}

inline std::wstring ClaseDeVentana(HWND ventana) {
    wchar_t clase[50];
    GetClassNameW(ventana, clase, 50);
    return clase;
}

inline std::vector<HWND> Hijas(HWND ventana) {
    std::vector<HWND> hijas;
    for (HWND una = GetWindow(ventana, GW_CHILD); una; una = GetWindow(una, GW_HWNDNEXT))
        hijas.push_back(una);
    return hijas;
}

/// The `cual`-th visible child with that text, or the first one at all.
inline HWND Llamada(HWND dialogo, const wchar_t* texto) {
    HWND oculta = nullptr;
    for (const HWND una : Hijas(dialogo)) {
        if (Leido(una) != texto)
            continue;
        if (GetWindowLongPtrW(una, GWL_STYLE) & WS_VISIBLE)
            return una;
        oculta = oculta ? oculta : una;
    }
    return oculta;
}
/// What comes after that text in the tab order.
inline HWND Tras(HWND dialogo, const wchar_t* texto) {
    return GetWindow(Llamada(dialogo, texto), GW_HWNDNEXT);
}

inline bool SeVe(HWND ventana) {
    return (GetWindowLongPtrW(ventana, GWL_STYLE) & WS_VISIBLE) != 0;
}

/// A window that holds pages, and the owner of message boxes.
class Ventana {
  public:
    Ventana()
        : ventana_(CreateWindowExW(WS_EX_CONTROLPARENT, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0,
                                   700, 600, nullptr, nullptr, nullptr, nullptr)) {}
    Ventana(const Ventana&) = delete;
    Ventana& operator=(const Ventana&) = delete;
    ~Ventana() { DestroyWindow(ventana_); }
    HWND get() const { return ventana_; }

  private:
    HWND ventana_;
};

/// Answers the message boxes and dialogs that open while it lives.
class Contestador {
  public:
    /// `contestar` is given whatever dialog stands open, again and again until it is gone.
    explicit Contestador(std::function<void(HWND)> contestar) {
        contestar_ = std::move(contestar);
        reloj_ = SetTimer(nullptr, 0, 20, &Contestador::AlTic);
    }
    Contestador(const Contestador&) = delete;
    Contestador& operator=(const Contestador&) = delete;
    ~Contestador() {
        KillTimer(nullptr, reloj_);
        contestar_ = nullptr;
    }

    /// Text of a message box.
    static std::wstring Mensaje(HWND dialogo) {
        for (const HWND una : Hijas(dialogo))
            if (ClaseDeVentana(una) == L"Static" && !Leido(una).empty())
                return Leido(una);
        return {};
    }

  private:
    static BOOL CALLBACK AlVer(HWND una, LPARAM dialogo) {
        if (ClaseDeVentana(una) == L"#32770" && IsWindowVisible(una))
            *reinterpret_cast<HWND*>(dialogo) = una;
        return TRUE;
    }
    static void CALLBACK AlTic(HWND, UINT, UINT_PTR, DWORD) {
        HWND dialogo = nullptr;
        EnumThreadWindows(GetCurrentThreadId(), &Contestador::AlVer,
                          reinterpret_cast<LPARAM>(&dialogo));
        if (dialogo && contestar_)
            contestar_(dialogo);
    }

    static inline std::function<void(HWND)> contestar_;
    UINT_PTR reloj_;
};

/// A page without objects yet.
class BancoPagina {
  public:
    explicit BancoPagina(const wchar_t* clase) {
        pagina = Crear(componente, clase).Como<IPropertyPage2>();
        anfitrion::Comprobar(pagina->SetPageSite(sitio.get()), "SetPageSite");
    }
    BancoPagina(const BancoPagina&) = delete;
    BancoPagina& operator=(const BancoPagina&) = delete;
    ~BancoPagina() {
        pagina->Deactivate();
        pagina->SetObjects(0, nullptr);
        pagina->SetPageSite(nullptr);
    }

    Puntero<IDispatch> Boton() {
        const auto objeto = Crear(componente, L"Botonazo");
        anfitrion::Comprobar(IniciarNuevo(objeto.get()), "InitNew");
        return objeto.Como<IDispatch>();
    }
    HRESULT Seleccionar(const std::vector<Puntero<IDispatch>>& objetos) {
        std::vector<IUnknown*> crudos;
        for (const auto& uno : objetos)
            crudos.push_back(uno.get());
        return pagina->SetObjects(static_cast<ULONG>(crudos.size()), crudos.data());
    }
    HRESULT Activar() {
        PROPPAGEINFO info{};
        info.cb = sizeof info;
        anfitrion::Comprobar(pagina->GetPageInfo(&info), "GetPageInfo");
        CoTaskMemFree(info.pszTitle);
        const RECT lugar{0, 0, info.size.cx, info.size.cy};
        const HRESULT estado = pagina->Activate(ventana.get(), &lugar, FALSE);
        if (SUCCEEDED(estado))
            pagina->Show(SW_SHOW);
        return estado;
    }
    HWND Dialogo() const { return GetWindow(ventana.get(), GW_CHILD); }
    HWND La(const wchar_t* texto) const { return Llamada(Dialogo(), texto); }
    HWND Campo(const wchar_t* rotulo) const { return Tras(Dialogo(), rotulo); }

    // The user.
    void Escribir(HWND campo, const wchar_t* texto) { SetWindowTextW(campo, texto); }
    void Teclear(HWND campo, const wchar_t* letras) {
        for (const wchar_t* letra = letras; *letra; ++letra)
            SendMessageW(campo, WM_CHAR, *letra, 1);
    }
    void Pulsar(HWND boton) { SendMessageW(boton, BM_CLICK, 0, 0); }
    void Elegir(HWND lista, int item) {
        SendMessageW(lista, CB_SETCURSEL, static_cast<WPARAM>(item), 0);
        SendMessageW(GetParent(lista), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(lista), CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(lista));
    }
    void Mover(HWND deslizador, int posicion) {
        SendMessageW(deslizador, TBM_SETPOS, TRUE, posicion);
        SendMessageW(GetParent(deslizador), WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, posicion),
                     reinterpret_cast<LPARAM>(deslizador));
    }
    int Indice(HWND lista) const {
        return static_cast<int>(SendMessageW(lista, CB_GETCURSEL, 0, 0));
    }
    bool Marcada(HWND casilla) const {
        return SendMessageW(casilla, BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    bool Sucia() const { return pagina->IsPageDirty() == S_OK; }

    SesionOle ole;
    anfitrion::Componente componente = anfitrion::Componente::DeFichero(RutaDelComponente());
    Ventana ventana;
    Puntero<SitioFalso> sitio = anfitrion::Hacer<SitioFalso>();
    Puntero<IPropertyPage2> pagina;
};

} // namespace paginas
