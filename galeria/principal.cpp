// Entry point of the gallery.
//   galeria [--ocx FILE] [--pagina NAME] [--captura FILE.png] [--vacia]
#include "anfitrion/captura.h"
#include "galeria/disenador/pagina_disenador.h"
#include "galeria/marco.h"
#include "galeria/pagina_botones.h"
#include "galeria/pagina_cajas.h"
#include "galeria/pagina_paneles.h"

#include <commctrl.h>
#include <shellapi.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>

namespace {

using namespace anfitrion;

struct Ordenes {
    std::wstring captura; ///< picture to write instead of staying on screen
    std::wstring ocx;     ///< component file to use instead of the registered one
    std::wstring pagina;  ///< name of the page to begin with
    bool vacia = false;   ///< the sheet alone, without controls
    bool ayuda = false;
};

template <class P>
std::unique_ptr<galeria::Pagina> HacerPagina(const std::optional<Componente>& componente,
                                             HWND padre) {
    return std::make_unique<P>(componente, padre);
}

constexpr struct {
    const wchar_t *nombre, *titulo;
    std::unique_ptr<galeria::Pagina> (*hacer)(const std::optional<Componente>&, HWND);
} Paginas[] = {
    {L"botones", L"Botones", &HacerPagina<galeria::PaginaBotones>},
    {L"cajas", L"Cajas de texto", &HacerPagina<galeria::PaginaCajas>},
    {L"paneles", L"Paneles", &HacerPagina<galeria::PaginaPaneles>},
    {L"disenador", L"Diseñador", &HacerPagina<galeria::PaginaDisenador>},
};

constexpr wchar_t Uso[] =
    L"galeria [--ocx FICHERO] [--pagina NOMBRE] [--captura FICHERO.png] "
    L"[--vacia]\n"
    L"  --ocx      usa ese componente en vez del registrado\n"
    L"  --pagina   empieza por esa página: botones, cajas, paneles, disenador\n"
    L"  --captura  escribe en PNG las páginas, o la que se pide, y termina\n"
    L"  --vacia    muestra la lámina sin controles\n";

Ordenes LeerOrdenes() {
    Ordenes ordenes;
    int n = 0;
    LPWSTR* partes = CommandLineToArgvW(GetCommandLineW(), &n);
    for (int i = 1; i < n; ++i) {
        const std::wstring parte = partes[i];
        if (parte == L"--captura" && i + 1 < n)
            ordenes.captura = partes[++i];
        else if (parte == L"--ocx" && i + 1 < n)
            ordenes.ocx = partes[++i];
        else if (parte == L"--pagina" && i + 1 < n)
            ordenes.pagina = partes[++i];
        else if (parte == L"--vacia")
            ordenes.vacia = true;
        else
            ordenes.ayuda = true;
    }
    LocalFree(partes);
    return ordenes;
}

/// On the error output when there is one; in a box too when somebody sits before the screen.
void Avisar(const std::wstring& texto, bool caja) {
    const std::string bytes = Estrechar(texto + L"\n");
    DWORD escritos = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), bytes.data(), static_cast<DWORD>(bytes.size()),
              &escritos, nullptr);
    if (caja)
        MessageBoxW(nullptr, texto.c_str(), L"Galería de Pincela", MB_OK | MB_ICONINFORMATION);
}

std::wstring Explicar(const FalloCom& fallo, const Ordenes& ordenes) {
    wchar_t numero[16];
    wsprintfW(numero, L"0x%08X", static_cast<unsigned>(fallo.estado));
    if (fallo.estado == REGDB_E_CLASSNOTREG || fallo.estado == CO_E_CLASSSTRING)
        return L"El componente Pincela.ocx no está registrado en este equipo.\n"
               L"Regístrelo con «regsvr32 Pincela.ocx» o indique dónde está con "
               L"«galeria --ocx RUTA\\Pincela.ocx».";
    if (!ordenes.ocx.empty())
        return L"No se pudo usar el componente «" + ordenes.ocx + L"» (error " + numero + L").";
    std::wstring texto = L"La galería no pudo crear sus controles (error " + std::wstring(numero);
    if (!fallo.descripcion.empty())
        texto += L": " + fallo.descripcion;
    return texto + L").";
}

/// The file of another page: its name before the extension.
std::wstring FicheroDe(const std::wstring& fichero, const wchar_t* nombre) {
    const std::size_t punto = std::min(fichero.rfind(L'.'), fichero.size());
    return fichero.substr(0, punto) + L"-" + nombre + fichero.substr(punto);
}

void Retratar(galeria::Marco& marco, const std::wstring& fichero) {
    Formulario& forma = marco.Visible().Forma();
    forma.Esperar(200);
    marco.Visible().Ensayar();
    forma.Esperar(300);
    Captura::DeVentana(marco.Ventana()).GuardarPng(fichero);
}

int Mostrar(const Ordenes& ordenes) {
    std::optional<Componente> componente;
    if (!ordenes.vacia)
        componente =
            ordenes.ocx.empty() ? Componente::DeRegistro() : Componente::DeFichero(ordenes.ocx);
    galeria::Marco marco;
    std::size_t primera = 0;
    for (const auto& pagina : Paginas)
        marco.Agregar(pagina.titulo, pagina.hacer(componente, marco.Ventana()));
    for (std::size_t i = 0; i < std::size(Paginas); ++i)
        if (ordenes.pagina == Paginas[i].nombre)
            primera = i;
    marco.alDisenar = [&](const std::wstring& texto) {
        marco.Mostrar(std::size(Paginas) - 1);
        static_cast<galeria::PaginaDisenador&>(marco.Visible()).Recibir(texto);
    };
    marco.Mostrar(primera);
    if (ordenes.captura.empty()) {
        marco.Ejecutar();
        return 0;
    }
    Retratar(marco, ordenes.captura);
    for (std::size_t i = 1; ordenes.pagina.empty() && i < std::size(Paginas); ++i) {
        marco.Mostrar(i);
        Retratar(marco, FicheroDe(ordenes.captura, Paginas[i].nombre));
    }
    return 0;
}

int Correr() {
    const Ordenes ordenes = LeerOrdenes();
    const bool caja = ordenes.captura.empty();
    const bool conocida =
        ordenes.pagina.empty() ||
        std::any_of(std::begin(Paginas), std::end(Paginas),
                    [&](const auto& pagina) { return ordenes.pagina == pagina.nombre; });
    if (ordenes.ayuda || !conocida) {
        Avisar(Uso, caja);
        return 2;
    }
    try {
        return Mostrar(ordenes);
    } catch (const FalloCom& fallo) {
        Avisar(Explicar(fallo, ordenes), caja);
        return 1;
    } catch (const std::exception&) {
        Avisar(L"La galería se quedó sin memoria.", caja);
        return 1;
    }
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    INITCOMMONCONTROLSEX controles{sizeof controles, ICC_STANDARD_CLASSES | ICC_TAB_CLASSES};
    InitCommonControlsEx(&controles);
    OleInitialize(nullptr);
    const int salida = Correr();
    OleUninitialize();
    return salida;
}
