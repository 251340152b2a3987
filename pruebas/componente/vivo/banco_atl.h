// A control inside the platform's own host window, which is not ours.
#pragma once

#include "pruebas/componente/vivo/banco.h"

namespace vivo {

/// A top-level window with a host window of 120 x 40 at (40, 40) and a text box below.
class BancoAtl {
  public:
    explicit BancoAtl(const wchar_t* clase = L"Pincela.Botonazo") {
        AbrirOle();
        componente = Componente::DeFichero(RutaComponente());
        marco = CreateWindowExW(0, Clase(), L"Atl", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 320,
                                240, nullptr, nullptr, nullptr, nullptr);
        huesped = CreateWindowExW(0, Clase(), L"", WS_CHILD | WS_VISIBLE, 40, 40, 120, 40, marco,
                                  nullptr, nullptr, nullptr);
        texto = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, 150, 60,
                                20, marco, nullptr, nullptr, nullptr);
        SetCursorPos(1200, 1000);
        SetForegroundWindow(marco);
        SetFocus(texto);
        objeto = Crear(clase);
        objeto.Como<IOleWindow>()->GetWindow(&ventana);
        sumidero = Hacer<SumideroEventos>([this](Evento& e) {
            hechos.push_back(Describir(e));
            if (const auto manejador = alOcurrir)
                manejador(e);
        });
        sumidero->Conectar(objeto.get());
        Esperar();
        hechos.clear();
    }
    BancoAtl(const BancoAtl&) = delete;
    BancoAtl& operator=(const BancoAtl&) = delete;
    ~BancoAtl() {
        sumidero->Desconectar();
        if (IsWindow(marco))
            DestroyWindow(marco);
    }

    void Poner(const wchar_t* nombre, const Variante& valor) {
        anfitrion::Poner(objeto.Como<IDispatch>().get(), nombre, valor);
    }
    void Esperar(DWORD milisegundos = 150) {
        for (const ULONGLONG fin = GetTickCount64() + milisegundos; GetTickCount64() < fin;) {
            MSG mensaje;
            while (PeekMessageW(&mensaje, nullptr, 0, 0, PM_REMOVE)) {
                TranslateMessage(&mensaje);
                DispatchMessageW(&mensaje);
            }
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        }
    }
    void Llevar(HWND adonde, int x, int y) {
        LlevarRaton(adonde, x, y);
        Esperar();
    }
    void Clic() {
        Raton(MOUSEEVENTF_LEFTDOWN);
        Esperar();
        Raton(MOUSEEVENTF_LEFTUP);
        Esperar();
    }
    void Teclear(WORD tecla) {
        Tecla(tecla, true);
        Esperar();
        Tecla(tecla, false);
        Esperar();
    }
    Hechos Sucesos() const {
        Hechos otros;
        for (const std::string& hecho : hechos)
            if (hecho != "Paint" && hecho.rfind("MouseMove", 0) != 0)
                otros.push_back(hecho);
        return otros;
    }
    COLORREF Centro() const { return Captura::DeVentana(ventana).Pixel(60, 8); }

    Componente componente;
    Puntero<IOleObject> objeto;
    Puntero<SumideroEventos> sumidero;
    Hechos hechos;
    std::function<void(Evento&)> alOcurrir;
    HWND marco = nullptr, huesped = nullptr, texto = nullptr, ventana = nullptr;

  private:
    static const wchar_t* Clase() {
        static const ATOM clase = [] {
            WNDCLASSW c{};
            c.lpfnWndProc = DefWindowProcW;
            c.hInstance = GetModuleHandleW(nullptr);
            c.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
            c.lpszClassName = L"PruebaAtl";
            return RegisterClassW(&c);
        }();
        return clase ? L"PruebaAtl" : nullptr;
    }
    /// The host makes the control itself, by its class identifier.
    Puntero<IOleObject> Crear(const wchar_t* cual) const {
        const HMODULE modulo = GetModuleHandleW(RutaComponente().c_str());
        const HMODULE atl = LoadLibraryW(L"atl.dll");
        REQUIRE(modulo);
        REQUIRE(atl);
        const auto fabricar = Funcion<decltype(&DllGetClassObject)>(modulo, "DllGetClassObject");
        const auto crear =
            Funcion<HRESULT(WINAPI*)(LPCOLESTR, HWND, IStream*, IUnknown**, IUnknown**, REFIID,
                                     IUnknown*)>(atl, "AtlAxCreateControlEx");
        const CLSID clase = componente.Clase(cual);
        // Known to this process alone, and only for as long as the host looks for it.
        Puntero<IUnknown> fabrica, anfitrion, control;
        Comprobar(fabricar(clase, IID_IUnknown, fabrica.RecibirVoid()), "DllGetClassObject");
        DWORD registro = 0;
        Comprobar(CoRegisterClassObject(clase, fabrica.get(), CLSCTX_INPROC_SERVER,
                                        REGCLS_MULTIPLEUSE, &registro),
                  "CoRegisterClassObject");
        wchar_t nombre[40];
        StringFromGUID2(clase, nombre, 40);
        const HRESULT estado = crear(nombre, huesped, nullptr, anfitrion.Recibir(),
                                     control.Recibir(), IID_NULL, nullptr);
        CoRevokeClassObject(registro);
        Comprobar(estado, "AtlAxCreateControlEx");
        return control.Como<IOleObject>();
    }
    template <class F>
    static F Funcion(HMODULE modulo, const char* nombre) {
        return reinterpret_cast<F>(reinterpret_cast<void*>(GetProcAddress(modulo, nombre)));
    }
};

} // namespace vivo
