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

void ElegirEnLista(HWND dialogo, HWND lista, int item) {
    SendMessageW(lista, CB_SETCURSEL, static_cast<WPARAM>(item), 0);
    SendMessageW(dialogo, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(lista), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(lista));
}

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
    ElegirEnLista(general, Tras(general, L"Estilo Boton"), 0);
    retratos.Tomar(marco.Ventana(), L"general_clasico");
    marco.Mostrar(1);
    const HWND colores = FindWindowExW(marco.Ventana(), nullptr, L"#32770", nullptr);
    for (int i = 0; i < 4; ++i)
        SendMessageW(Llamada(colores, L"+  Color"), BM_CLICK, 0, 0);
    retratos.Tomar(marco.Ventana(), L"colores_normal");
    SendMessageW(Llamada(colores, L"Sobre"), BM_CLICK, 0, 0);
    const HWND relleno = Tras(colores, L"EstiloRelleno:");
    for (const HWND una : Hijas(colores))
        if (ClaseDeVentana(una) == L"ComboBox" && SeVe(una))
            ElegirEnLista(colores, una, 4);
    retratos.Tomar(marco.Ventana(), L"colores_sobre");
    SendMessageW(Llamada(colores, L"Normal"), BM_CLICK, 0, 0);
    ElegirEnLista(colores, relleno, 0);
    retratos.Tomar(marco.Ventana(), L"colores_solido");
}

void RetratarPanel(Retratos& retratos) {
    const auto componente = anfitrion::Componente::DeFichero(RutaDelComponente());
    Puntero<IUnknown> objeto = Crear(componente, L"Area");
    IniciarNuevo(objeto.get());
    const auto panel = objeto.Como<IDispatch>();
    Poner(panel.get(), L"Caption", L"Datos del cliente");
    Poner(panel.get(), L"EstilosRell", 3);
    Poner(panel.get(), L"ColorDegrade", L"16777215*16744448*255*65280*0");
    MarcoPropiedades marco(nullptr, L"Propiedades de Area", componente, {IdDe(L"ProPColoresArea")},
                           {objeto});
    const HWND colores = FindWindowExW(marco.Ventana(), nullptr, L"#32770", nullptr);
    retratos.Tomar(marco.Ventana(), L"area_degradado");
    ElegirEnLista(colores, Tras(colores, L"EstiloRelleno:"), 0);
    retratos.Tomar(marco.Ventana(), L"area_solido");
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
