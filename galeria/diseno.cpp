#include "galeria/diseno.h"

#include "anfitrion/formulario_texto.h"
#include "anfitrion/marco_propiedades.h"
#include "galeria/escala.h"

#include <commdlg.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

namespace galeria {

using namespace anfitrion;

namespace {

constexpr const wchar_t* Titulos[] = {L"Diseñar", L"Propiedades...", L"Guardar...", L"Abrir..."};
constexpr int Ancho96[] = {70, 100, 80, 70};

std::wstring PedirFichero(HWND padre, bool guardar) {
    wchar_t ruta[MAX_PATH] = L"";
    OPENFILENAMEW pedido{};
    pedido.lStructSize = sizeof pedido;
    pedido.hwndOwner = padre;
    pedido.lpstrFilter = L"Formularios (*.formulario)\0*.formulario\0Todos los ficheros\0*.*\0";
    pedido.lpstrFile = ruta;
    pedido.nMaxFile = MAX_PATH;
    pedido.lpstrDefExt = L"formulario";
    pedido.Flags = OFN_EXPLORER | OFN_HIDEREADONLY |
                   (guardar ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST);
    return (guardar ? GetSaveFileNameW(&pedido) : GetOpenFileNameW(&pedido)) ? ruta : L"";
}

std::wstring DesdeUtf8(const std::string& bytes) {
    std::wstring texto(bytes.size(), L'\0');
    texto.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, bytes.data(), static_cast<int>(bytes.size()), texto.data(),
                            static_cast<int>(texto.size()))));
    return texto;
}

/// Pages that every one of them has, in the order of the first.
std::vector<CLSID> PaginasComunes(const std::vector<std::shared_ptr<ControlAlojado>>& controles) {
    std::vector<CLSID> comunes = PaginasDe(controles.front()->Objeto());
    for (const auto& control : controles) {
        const std::vector<CLSID> suyas = PaginasDe(control->Objeto());
        std::erase_if(comunes, [&](const CLSID& una) {
            return std::find(suyas.begin(), suyas.end(), una) == suyas.end();
        });
    }
    return comunes;
}

} // namespace

Diseno::Diseno(HWND padre, HFONT fuente, std::function<Pagina&()> visible)
    : padre_(padre), visible_(std::move(visible)) {
    for (int i = 0; i < Cuantos; ++i) {
        const DWORD estilo = i == Disenar ? BS_AUTOCHECKBOX | BS_PUSHLIKE : BS_PUSHBUTTON;
        botones_[i] = CreateWindowExW(0, L"BUTTON", Titulos[i],
                                      WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | estilo, 0, 0, 0, 0,
                                      padre, nullptr, nullptr, nullptr);
        SendMessageW(botones_[i], WM_SETFONT, reinterpret_cast<WPARAM>(fuente), TRUE);
    }
    EnableWindow(botones_[Propiedades], FALSE);
}

void Diseno::Colocar(int derecha, int alto) const {
    for (int i = Cuantos - 1; i >= 0; --i) {
        const int ancho = Escala(Ancho96[i]);
        derecha -= ancho + Escala(4);
        SetWindowPos(botones_[i], HWND_TOP, derecha, 0, ancho, alto, SWP_NOACTIVATE);
    }
}

bool Diseno::Disenando() const {
    return SendMessageW(botones_[Disenar], BM_GETCHECK, 0, 0) == BST_CHECKED;
}

bool Diseno::Orden(HWND boton) {
    const auto cual = std::find(std::begin(botones_), std::end(botones_), boton);
    switch (cual - std::begin(botones_)) {
    case Disenar:
        Mostrar(visible_());
        return true;
    case Propiedades:
        EditarPropiedades();
        return true;
    case Guardar:
        GuardarComo();
        return true;
    case Abrir:
        AbrirDe();
        return true;
    default:
        return false;
    }
}

void Diseno::Mostrar(Pagina& pagina) {
    Formulario& forma = pagina.Forma();
    forma.PonerModoUsuario(!Disenando());
    forma.alSeleccionar = [this] { Actualizar(); };
    forma.alPedirPropiedades = [this](ControlAlojado&) {
        EditarPropiedades();
        return true;
    };
    Actualizar();
}

void Diseno::Actualizar() {
    EnableWindow(botones_[Propiedades], Disenando() && !visible_().Forma().Seleccion().empty());
}

void Diseno::EditarPropiedades() {
    const auto elegidos = visible_().Forma().Seleccion();
    const auto& componente = visible_().ElComponente();
    if (elegidos.empty() || !componente)
        return;
    std::vector<Puntero<IUnknown>> objetos;
    for (const auto& control : elegidos)
        objetos.emplace_back(control->Objeto());
    const std::wstring titulo =
        elegidos.size() == 1 ? elegidos.front()->Nombre()
                             : std::to_wstring(elegidos.size()) + L" controles";
    try {
        MarcoPropiedades marco(padre_, L"Propiedades de " + titulo, *componente,
                               PaginasComunes(elegidos), objetos);
        marco.Ejecutar();
    } catch (const FalloCom&) {
        Avisar(L"Lo elegido no tiene páginas de propiedades en común.");
    }
}

void Diseno::GuardarComo() {
    const std::wstring ruta = PedirFichero(padre_, true);
    if (ruta.empty())
        return;
    std::ofstream fichero(ruta.c_str(), std::ios::binary);
    fichero << Estrechar(EscribirFormulario(visible_().Forma()));
    fichero.close();
    if (!fichero)
        Avisar(L"No se pudo escribir «" + ruta + L"».");
}

void Diseno::AbrirDe() {
    const std::wstring ruta = PedirFichero(padre_, false);
    if (ruta.empty())
        return;
    std::ifstream fichero(ruta.c_str(), std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(fichero)), {});
    try {
        LeerFormulario(visible_().Forma(), DesdeUtf8(bytes));
    } catch (const ErrorDeFormulario& error) {
        Avisar(L"«" + ruta + L"» no es un formulario de esta página.\n" + error.texto);
    } catch (const FalloCom& fallo) {
        Avisar(L"Un control no aceptó sus propiedades. " + fallo.descripcion);
    }
}

void Diseno::Avisar(const std::wstring& texto) const {
    MessageBoxW(padre_, texto.c_str(), L"Galería de Pincela", MB_OK | MB_ICONINFORMATION);
}

} // namespace galeria
