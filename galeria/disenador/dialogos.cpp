#include "galeria/disenador/dialogos.h"

#include "anfitrion/imagenes.h"
#include "anfitrion/tardio.h"
#include "galeria/escala.h"

#include <commdlg.h>
#include <olectl.h>

#include <cmath>

namespace galeria {

using namespace anfitrion;

namespace {

constexpr wchar_t Formularios[] = L"Formularios (*.formulario)\0*.formulario\0"
                                  L"Todos los ficheros\0*.*\0";
constexpr wchar_t Dibujos[] = L"Imágenes PNG (*.png)\0*.png\0";
constexpr wchar_t Imagenes[] = L"Imágenes\0*.bmp;*.dib;*.gif;*.jpg;*.jpeg;*.ico;*.cur;*.wmf;*.emf\0"
                               L"Todos los ficheros\0*.*\0";

std::optional<std::wstring> PedirFichero(HWND padre, const wchar_t* clases,
                                         const wchar_t* extension, bool guardar) {
    wchar_t ruta[MAX_PATH] = L"";
    OPENFILENAMEW pedido{};
    pedido.lStructSize = sizeof pedido;
    pedido.hwndOwner = padre;
    pedido.lpstrFilter = clases;
    pedido.lpstrFile = ruta;
    pedido.nMaxFile = MAX_PATH;
    pedido.lpstrDefExt = extension;
    pedido.Flags =
        OFN_EXPLORER | OFN_HIDEREADONLY | (guardar ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST);
    if (!(guardar ? GetSaveFileNameW(&pedido) : GetOpenFileNameW(&pedido)))
        return {};
    return ruta;
}

std::optional<COLORREF> PedirColor(HWND padre, COLORREF color) {
    static COLORREF propios[16];
    CHOOSECOLORW pedido{};
    pedido.lStructSize = sizeof pedido;
    pedido.hwndOwner = padre;
    pedido.rgbResult = color;
    pedido.lpCustColors = propios;
    pedido.Flags = CC_RGBINIT | CC_FULLOPEN;
    if (!ChooseColorW(&pedido))
        return {};
    return pedido.rgbResult;
}

LOGFONTW Descrita(IDispatch* fuente) {
    LOGFONTW letra{};
    const auto suya = Puntero<IDispatch>(fuente).Como<IFont>();
    HFONT manija = nullptr;
    if (suya && SUCCEEDED(suya->get_hFont(&manija)))
        GetObjectW(manija, sizeof letra, &letra);
    if (suya)
        letra.lfHeight =
            -static_cast<LONG>(std::lround(Real(Leer(fuente, L"Size")) * Escala(96) / 72));
    return letra;
}

std::optional<Variante> PedirFuente(HWND padre, IDispatch* fuente) {
    LOGFONTW letra = Descrita(fuente);
    CHOOSEFONTW pedido{};
    pedido.lStructSize = sizeof pedido;
    pedido.hwndOwner = padre;
    pedido.lpLogFont = &letra;
    pedido.Flags = CF_INITTOLOGFONTSTRUCT | CF_SCREENFONTS | CF_EFFECTS | CF_FORCEFONTEXIST;
    if (!ChooseFontW(&pedido))
        return {};
    const auto nueva = CrearFuente(letra.lfFaceName, pedido.iPointSize / 10.0,
                                   letra.lfWeight >= FW_BOLD, letra.lfItalic);
    Poner(nueva.get(), L"Underline", letra.lfUnderline != 0);
    Poner(nueva.get(), L"Strikethrough", letra.lfStrikeOut != 0);
    return Variante(static_cast<IDispatch*>(nueva.get()));
}

std::optional<Variante> PedirImagen(HWND padre) {
    const auto ruta = PedirFichero(padre, Imagenes, nullptr, false);
    if (!ruta)
        return {};
    Variante nombre(*ruta);
    Puntero<IDispatch> imagen;
    if (FAILED(OleLoadPictureFile(nombre, imagen.Recibir()))) {
        MessageBoxW(padre, (L"«" + *ruta + L"» no es una imagen que se pueda usar.").c_str(),
                    L"Galería de Pincela", MB_OK | MB_ICONINFORMATION);
        return {};
    }
    return Variante(imagen.get());
}

} // namespace

Dialogos Dialogos::DeLaPlataforma() {
    return {PedirColor,
            PedirFuente,
            PedirImagen,
            [](HWND padre) { return PedirFichero(padre, Formularios, L"formulario", false); },
            [](HWND padre) { return PedirFichero(padre, Formularios, L"formulario", true); },
            [](HWND padre) { return PedirFichero(padre, Dibujos, L"png", true); }};
}

} // namespace galeria
