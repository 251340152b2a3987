// Entry point of the gallery.
//   galeria [--ocx FILE] [--pagina NAME] [--captura FILE.png] [--vacia]
#include "anfitrion/captura.h"
#include "galeria/pagina.h"

#include <commctrl.h>
#include <shellapi.h>

#include <optional>
#include <string>

namespace {

using namespace anfitrion;

struct Ordenes {
    std::wstring captura; ///< picture to write instead of staying on screen
    const galeria::FichaDePagina* pagina = nullptr; ///< the one to show; null for all of them
    std::wstring ocx;   ///< component file to use instead of the registered one
    bool vacia = false; ///< the sheet alone, without controls
    bool ayuda = false;
};

constexpr wchar_t Uso[] = L"galeria [--ocx FICHERO] [--pagina NOMBRE] [--captura FICHERO.png] "
                          L"[--vacia]\n"
                          L"  --ocx      usa ese componente en vez del registrado\n"
                          L"  --pagina   empieza por esa página: botones o cajas\n"
                          L"  --captura  escribe la página en un PNG y termina; sin --pagina, "
                          L"cada una en el suyo\n"
                          L"  --vacia    muestra la lámina sin controles\n";

const galeria::FichaDePagina* PaginaConNombre(const std::wstring& nombre) {
    for (const galeria::FichaDePagina& ficha : galeria::Paginas)
        if (nombre == ficha.nombre)
            return &ficha;
    return nullptr;
}

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
        else if (parte == L"--pagina" && i + 1 < n) {
            ordenes.pagina = PaginaConNombre(partes[++i]);
            ordenes.ayuda = ordenes.ayuda || !ordenes.pagina;
        } else if (parte == L"--vacia")
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

/// Name of a page's picture: the first page takes the one that was asked for.
std::wstring FicheroDe(const Ordenes& ordenes, const galeria::FichaDePagina& ficha) {
    if (ordenes.pagina || &ficha == &galeria::Paginas.front())
        return ordenes.captura;
    const std::size_t punto = ordenes.captura.rfind(L'.');
    return ordenes.captura.substr(0, punto) + L"-" + ficha.nombre +
           (punto == std::wstring::npos ? L"" : ordenes.captura.substr(punto));
}

void Retratar(galeria::Pagina& pagina, const std::wstring& fichero) {
    Formulario& forma = pagina.Forma();
    forma.Esperar(200);
    pagina.Ensayar();
    forma.Esperar(300);
    Captura::DeVentana(forma.Ventana()).GuardarPng(fichero);
}

int Mostrar(const Ordenes& ordenes) {
    std::optional<Componente> componente;
    if (!ordenes.vacia)
        componente =
            ordenes.ocx.empty() ? Componente::DeRegistro() : Componente::DeFichero(ordenes.ocx);
    const auto abrir = [&](const galeria::FichaDePagina& ficha) {
        auto pagina = ficha.abrir(componente);
        pagina->Mostrar(ficha);
        return pagina;
    };
    const galeria::FichaDePagina* ficha = ordenes.pagina ? ordenes.pagina : &galeria::Paginas[0];
    if (ordenes.captura.empty()) {
        while (ficha) {
            const auto pagina = abrir(*ficha);
            pagina->Forma().Ejecutar();
            ficha = pagina->Siguiente();
        }
        return 0;
    }
    for (const galeria::FichaDePagina& una : galeria::Paginas)
        if (!ordenes.pagina || ordenes.pagina == &una)
            Retratar(*abrir(una), FicheroDe(ordenes, una));
    return 0;
}

int Correr() {
    const Ordenes ordenes = LeerOrdenes();
    const bool caja = ordenes.captura.empty();
    if (ordenes.ayuda) {
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
    INITCOMMONCONTROLSEX controles{sizeof controles, ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controles);
    OleInitialize(nullptr);
    const int salida = Correr();
    OleUninitialize();
    return salida;
}
