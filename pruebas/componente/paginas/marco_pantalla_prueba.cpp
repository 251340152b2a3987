// The pages in the container's property frame, with the user's own mouse and keyboard.
#include "anfitrion/formulario.h"
#include "anfitrion/marco_propiedades.h"
#include "pruebas/cada.h"
#include "pruebas/componente/comun/modulo.h"
#include "pruebas/componente/vivo/banco.h"

#include <commctrl.h>

#include <algorithm>
#include <cwchar>

using namespace vivo;
using pincela::pruebas::Cada;

namespace {

std::wstring Leido(HWND ventana) {
    wchar_t texto[200];
    GetWindowTextW(ventana, texto, 200);
    std::wstring leido;
    for (const wchar_t letra : std::wstring(texto))
        if (letra != L'&')
            leido += letra;
    return leido;
}

HWND Visible(HWND padre, const wchar_t* texto) {
    for (HWND una = GetWindow(padre, GW_CHILD); una; una = GetWindow(una, GW_HWNDNEXT))
        if (Leido(una) == texto && IsWindowVisible(una))
            return una;
    return nullptr;
}

/// A button, or another control, on a form in design mode, and a frame with its pages.
struct BancoMarco {
    explicit BancoMarco(const wchar_t* clase = L"Pincela.Botonazo") : b({}, clase) {
        SetForegroundWindow(b.forma->Ventana());
        b.forma->PonerModoUsuario(false);
        std::vector<Puntero<IUnknown>> objetos{Puntero<IUnknown>(b.boton->Despacho())};
        marco = std::make_unique<MarcoPropiedades>(b.forma->Ventana(), L"Propiedades", b.componente,
                                                   PaginasDe(b.boton->Despacho()), objetos);
        SetForegroundWindow(marco->Ventana());
        Esperar();
    }
    void Esperar(DWORD milisegundos = 80) {
        const DWORD fin = GetTickCount() + milisegundos;
        while (GetTickCount() < fin) {
            MSG mensaje;
            while (PeekMessageW(&mensaje, nullptr, 0, 0, PM_REMOVE)) {
                if (marco->Pretraducir(mensaje))
                    continue;
                TranslateMessage(&mensaje);
                DispatchMessageW(&mensaje);
            }
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        }
    }
    HWND Pagina() const { return FindWindowExW(marco->Ventana(), nullptr, L"#32770", nullptr); }
    HWND La(const wchar_t* texto) const { return Visible(Pagina(), texto); }
    HWND Tras(const wchar_t* texto) const { return GetWindow(La(texto), GW_HWNDNEXT); }
    HWND DelMarco(const wchar_t* texto) const { return Visible(marco->Ventana(), texto); }

    void Clic(HWND ventana, int x = -1, int y = -1) {
        RECT r{};
        GetClientRect(ventana, &r);
        LlevarRaton(ventana, x < 0 ? r.right / 2 : x, y < 0 ? r.bottom / 2 : y);
        Esperar();
        Raton(MOUSEEVENTF_LEFTDOWN);
        Esperar();
        Raton(MOUSEEVENTF_LEFTUP);
        Esperar();
    }
    void Pulsar(WORD tecla) {
        Tecla(tecla, true);
        Tecla(tecla, false);
        Esperar();
    }
    void Escribir(const char* letras) {
        for (const char* letra = letras; *letra; ++letra)
            Pulsar(LOBYTE(VkKeyScanW(static_cast<wchar_t>(*letra))));
    }
    std::string Leer(const wchar_t* propiedad) { return Estrechar(Texto(b.Leer(propiedad))); }

    Banco b;
    std::unique_ptr<MarcoPropiedades> marco;
};

} // namespace

// Texts of the windows inside the dialog that was cancelled.
static std::vector<std::wstring> vistas;

static BOOL CALLBACK AnotarHija(HWND hija, LPARAM) {
    vistas.push_back(Leido(hija));
    return TRUE;
}

static BOOL CALLBACK CancelarMarco(HWND una, LPARAM) {
    wchar_t clase[50];
    GetClassNameW(una, clase, 50);
    if (std::wcscmp(clase, L"#32770") != 0 || !IsWindowVisible(una))
        return TRUE;
    EnumChildWindows(una, &AnotarHija, 0);
    PostMessageW(una, WM_COMMAND, IDCANCEL, 0);
    return FALSE;
}

static void CALLBACK MirarYCancelar(HWND, UINT, UINT_PTR, DWORD) {
    EnumThreadWindows(GetCurrentThreadId(), &CancelarMarco, 0);
}

TEST_CASE("the frame shows the two pages of the button, and nothing to apply") {
    BancoMarco m;
    REQUIRE(m.marco->Cuantas() >= 2);
    CHECK(m.marco->Titulo(0) == L"General");
    CHECK(m.marco->Titulo(1) == L"Colores");
    CHECK_FALSE(m.marco->HayCambios());
    CHECK_FALSE(IsWindowEnabled(m.DelMarco(L"Aplicar")));
    CHECK(m.La(L"Estilo Boton") != nullptr);
}

TEST_CASE("typing and clicking change the page, Apply changes the button on the form") {
    BancoMarco m;
    m.Clic(m.Tras(L"Texto"));
    m.Escribir("hola");
    m.Clic(m.La(L"Foco Con Mouse"), 8);
    CHECK(m.Leer(L"Caption") == "");
    CHECK(IsWindowEnabled(m.DelMarco(L"Aplicar")));
    m.Clic(m.DelMarco(L"Aplicar"));
    CHECK(m.Leer(L"Caption") == "hola");
    CHECK(Logico(m.b.Leer(L"FocoConMouse")));
    CHECK_FALSE(IsWindowEnabled(m.DelMarco(L"Aplicar")));
    CHECK_FALSE(m.marco->Cerrado());
}

TEST_CASE("Cancel leaves the button as it was, OK changes it") {
    for (const bool aceptar : {false, true}) {
        BancoMarco m;
        m.Clic(m.La(L"Habilitado"), 8);
        m.Clic(m.DelMarco(aceptar ? L"Aceptar" : L"Cancelar"));
        CHECK(m.marco->Cerrado());
        CHECK(Logico(m.b.Leer(L"Enabled")) == !aceptar);
    }
}

TEST_CASE("the tab key walks through the page and on to the buttons of the frame") {
    BancoMarco m;
    SetFocus(m.Tras(L"Texto"));
    std::vector<HWND> paradas;
    for (int i = 0; i < 24; ++i) {
        paradas.push_back(GetFocus());
        m.Pulsar(VK_TAB);
    }
    const auto puesto = [&](HWND una) {
        return std::find(paradas.begin(), paradas.end(), una) - paradas.begin();
    };
    CHECK(puesto(m.Tras(L"Estilo Boton")) == 1);
    CHECK(puesto(m.Tras(L"Efectos Boton")) == 2);
    CHECK(puesto(m.Tras(L"Tipo Letra")) == 7);
    CHECK(puesto(m.La(L"Habilitado")) == 8);
    CHECK(puesto(m.La(L"Foco Con Mouse")) == 13);
    // Then the tabs themselves, and the buttons below them.
    CHECK(puesto(m.DelMarco(L"Aceptar")) == 15);
    CHECK(puesto(m.DelMarco(L"Cancelar")) == 16);
}

TEST_CASE("a mnemonic leads to the field behind its label") {
    BancoMarco m;
    SetFocus(m.Tras(L"Texto"));
    Tecla(VK_MENU, true);
    m.Pulsar('L');
    Tecla(VK_MENU, false);
    m.Esperar();
    CHECK(GetFocus() == m.Tras(L"Tipo Letra"));
}

TEST_CASE("an arrow key moves the slider by a hundredth") {
    BancoMarco m;
    SetFocus(m.Tras(L"Estilo Boton"));
    m.Pulsar(VK_DOWN); // the rounded shape
    const HWND deslizador = GetWindow(m.Tras(L"Rel_Y"), GW_HWNDNEXT);
    SetFocus(deslizador);
    m.Pulsar(VK_RIGHT);
    CHECK(SendMessageW(deslizador, TBM_GETPOS, 0, 0) == 101);
    const std::wstring texto = Leido(m.Tras(L"Rel_Y"));
    CHECK((texto == L"1.01" || texto == L"1,01"));
    m.Clic(m.DelMarco(L"Aplicar"));
    CHECK(Real(m.b.Leer(L"RelY")) == doctest::Approx(1.01));
    CHECK(m.Leer(L"Estilos") == "1");
}

TEST_CASE("a gradient made on the colour page is seen on the button") {
    BancoMarco m;
    m.marco->Mostrar(1);
    m.Esperar();
    SetFocus(m.Tras(L"EstiloRelleno:"));
    m.Pulsar(VK_DOWN);
    m.Clic(m.La(L"Invertir Orden"));
    // A new fill is drawn with the colours of the other state.
    m.Clic(m.La(L"Igualar"));
    m.Clic(m.DelMarco(L"Aplicar"));
    CHECK(m.Leer(L"EstilosRell") == "1");
    m.marco.reset();
    m.b.forma->BombearMensajes();
    const auto imagen = Captura::DeVentana(m.b.Ventana());
    CHECK(GetRValue(imagen.Pixel(6, 20)) < 40);
    CHECK(GetRValue(imagen.Pixel(imagen.Ancho() - 7, 20)) > 215);
}

TEST_CASE("a click on the other state shows its frame") {
    BancoMarco m;
    m.marco->Mostrar(1);
    m.Esperar();
    const HWND normal = m.Tras(L"Color de letra:");
    m.Clic(m.La(L"Sobre"), 8);
    CHECK_FALSE(IsWindowVisible(normal));
    CHECK(m.Tras(L"Color de letra:") != normal);
}

TEST_CASE("the panel's page is clicked and typed into, and Apply changes the panel on the form") {
    BancoMarco m(L"Pincela.Area");
    REQUIRE(m.marco->Cuantas() >= 1);
    CHECK(m.marco->Titulo(0) == L"Colores");
    m.Clic(m.Tras(L"Texto"));
    m.Escribir("datos");
    m.Clic(m.La(L"Habilitado"), 8);
    SetFocus(m.Tras(L"EstiloRelleno:"));
    m.Pulsar(VK_DOWN);
    m.Clic(m.La(L"+  Color"));
    CHECK(m.Leer(L"Caption") == "");
    CHECK(IsWindowEnabled(m.DelMarco(L"Aplicar")));
    m.Clic(m.DelMarco(L"Aplicar"));
    CHECK_FALSE(IsWindowEnabled(m.DelMarco(L"Aplicar")));
    CHECK(m.Leer(L"Caption") == "datos");
    CHECK_FALSE(Logico(m.b.Leer(L"Enabled")));
    CHECK(m.Leer(L"EstilosRell") == "1");
    CHECK(m.Leer(L"ColorDegrade") == "16777215*0*0");
    m.marco.reset();
    m.b.forma->BombearMensajes();
    const auto imagen = Captura::DeVentana(m.b.Ventana());
    CHECK(GetRValue(imagen.Pixel(6, 30)) > 200);
    CHECK(imagen.Pixel(imagen.Ancho() - 8, 30) == RGB(0, 0, 0));
}

TEST_CASE("an item of a list is chosen with the mouse") {
    BancoMarco m(L"Pincela.Area");
    const HWND lista = m.Tras(L"Estilo Borde");
    const LRESULT antes = SendMessageW(lista, CB_GETCURSEL, 0, 0);
    m.Clic(lista);
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    REQUIRE(GetComboBoxInfo(lista, &info));
    CHECK(IsWindowVisible(info.hwndList));
    const auto alto = static_cast<int>(SendMessageW(lista, CB_GETITEMHEIGHT, 0, 0));
    m.Clic(info.hwndList, 10, 3 * alto + alto / 2);
    CHECK(antes != 3);
    CHECK(SendMessageW(lista, CB_GETCURSEL, 0, 0) == 3);
    m.Clic(m.DelMarco(L"Aceptar"));
    CHECK(m.marco->Cerrado());
    CHECK(m.Leer(L"EstilosBord") == "3");
}

TEST_CASE("Cancel leaves the panel as it was") {
    BancoMarco m(L"Pincela.Area");
    m.Clic(m.La(L"Habilitado"), 8);
    m.Clic(m.DelMarco(L"Cancelar"));
    CHECK(m.marco->Cerrado());
    CHECK(Logico(m.b.Leer(L"Enabled")));
}

TEST_CASE("a click on a stop opens the colour chooser over the frame") {
    BancoMarco m(L"Pincela.Area");
    SetFocus(m.Tras(L"EstiloRelleno:"));
    m.Pulsar(VK_DOWN);
    const HWND tope = GetNextDlgTabItem(m.Pagina(), m.Tras(L"Color de Fondo:"), FALSE);
    vistas.clear();
    const UINT_PTR reloj = SetTimer(nullptr, 0, 300, &MirarYCancelar);
    m.Clic(tope);
    KillTimer(nullptr, reloj);
    CHECK(vistas.size() > 10);
    CHECK(IsWindowEnabled(m.marco->Ventana()));
}

TEST_CASE("the verb of a control opens the platform's frame with its pages") {
    const auto [control, rotulo] = Cada<std::pair<const wchar_t*, const wchar_t*>>(
        {{L"Pincela.Botonazo", L"Estilo Boton"}, {L"Pincela.Area", L"BackStyle"}});
    Banco b({}, control);
    // The platform's frame creates pages by their class, registered or not.
    const publicado::Modulo modulo;
    std::vector<DWORD> registros;
    for (const wchar_t* nombre : {L"ProPGeneral", L"ProPColores", L"ProPColoresArea"}) {
        const CLSID clase = publicado::Guid(publicado::ClaseDe(nombre).clase);
        Puntero<IClassFactory> fabrica;
        REQUIRE(modulo.DarClase(clase, IID_IClassFactory, fabrica.RecibirVoid()) == S_OK);
        REQUIRE(CoRegisterClassObject(clase, fabrica.get(), CLSCTX_INPROC_SERVER,
                                      REGCLS_MULTIPLEUSE, &registros.emplace_back()) == S_OK);
    }
    vistas.clear();
    const UINT_PTR reloj = SetTimer(nullptr, 0, 300, &MirarYCancelar);
    const auto ole = Puntero<IUnknown>(b.boton->Despacho()).Como<IOleObject>();
    Puntero<IOleClientSite> sitio;
    REQUIRE(ole->GetClientSite(sitio.Recibir()) == S_OK);
    const RECT lugar = Banco::Lugar;
    CHECK(ole->DoVerb(OLEIVERB_PROPERTIES, nullptr, sitio.get(), 0, b.forma->Ventana(), &lugar) ==
          S_OK);
    KillTimer(nullptr, reloj);
    for (const DWORD registro : registros)
        CoRevokeClassObject(registro);
    CHECK(std::find(vistas.begin(), vistas.end(), rotulo) != vistas.end());
}
