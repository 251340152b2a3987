// Pictures of every page, to be looked at. Arguments: the folder, and a text for the names.
#include "anfitrion/marco_propiedades.h"
#include "pruebas/componente/paginas/banco.h"

using namespace paginas;
using anfitrion::MarcoPropiedades;

namespace {

class Retratos {
  public:
    Retratos(std::wstring carpeta, std::wstring sufijo)
        : carpeta_(std::move(carpeta)), sufijo_(std::move(sufijo)) {}

    void Tomar(HWND ventana, const std::wstring& nombre) {
        MSG mensaje;
        while (PeekMessageW(&mensaje, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&mensaje);
        anfitrion::Captura::DeVentana(ventana, true)
            .GuardarPng(carpeta_ + L"\\" + nombre + L"_" + sufijo_ + L".png");
    }

  private:
    std::wstring carpeta_, sufijo_;
};

CLSID IdDe(const wchar_t* clase) {
    return Guid(ClaseDe(clase).clase);
}

void RetratarBoton(Retratos& retratos) {
    const auto componente = anfitrion::Componente::DeFichero(RutaDelComponente());
    Puntero<IUnknown> objeto = Crear(componente, L"Botonazo");
    IniciarNuevo(objeto.get());
    const auto boton = objeto.Como<IDispatch>();
    Poner(boton.get(), L"Caption", L"&Aceptar");
    Poner(boton.get(), L"EstilosRell", 1);
    Poner(boton.get(), L"Estilos", 1);
    MarcoPropiedades marco(nullptr, L"Propiedades de Botonazo", componente,
                           {IdDe(L"ProPGeneral"), IdDe(L"ProPColores")}, {objeto});
    const HWND general = FindWindowExW(marco.Ventana(), nullptr, L"#32770", nullptr);
    retratos.Tomar(marco.Ventana(), L"general_redondeado");
    const HWND estilo = Tras(general, L"Estilo Boton");
    SendMessageW(estilo, CB_SETCURSEL, 0, 0);
    SendMessageW(general, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(estilo), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(estilo));
    retratos.Tomar(marco.Ventana(), L"general_clasico");
    marco.Mostrar(1);
    const HWND colores = FindWindowExW(marco.Ventana(), nullptr, L"#32770", nullptr);
    for (int i = 0; i < 4; ++i)
        SendMessageW(Llamada(colores, L"+  Color"), BM_CLICK, 0, 0);
    retratos.Tomar(marco.Ventana(), L"colores_normal");
    SendMessageW(Llamada(colores, L"Sobre"), BM_CLICK, 0, 0);
    const HWND relleno = Tras(colores, L"EstiloRelleno:");
    for (const HWND una : Hijas(colores)) {
        if (ClaseDeVentana(una) != L"ComboBox" || !SeVe(una))
            continue;
        SendMessageW(una, CB_SETCURSEL, 4, 0);
        SendMessageW(colores, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(una), CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(una));
    }
    retratos.Tomar(marco.Ventana(), L"colores_sobre");
    SendMessageW(Llamada(colores, L"Normal"), BM_CLICK, 0, 0);
    SendMessageW(relleno, CB_SETCURSEL, 0, 0);
    SendMessageW(colores, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(relleno), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(relleno));
    retratos.Tomar(marco.Ventana(), L"colores_solido");
}

void RetratarPanel(Retratos& retratos) {
    BancoPagina banco(L"ProPColoresArea");
    banco.Activar();
    RECT r{};
    GetWindowRect(banco.Dialogo(), &r);
    SetWindowPos(banco.ventana.get(), nullptr, 0, 0, r.right - r.left, r.bottom - r.top,
                 SWP_NOMOVE | SWP_NOZORDER);
    retratos.Tomar(banco.ventana.get(), L"area");
}

} // namespace

int wmain(int cuantos, wchar_t** argumentos) {
    if (cuantos < 3)
        return 2;
    const SesionOle ole;
    Retratos retratos(argumentos[1], argumentos[2]);
    RetratarBoton(retratos);
    RetratarPanel(retratos);
    return 0;
}
