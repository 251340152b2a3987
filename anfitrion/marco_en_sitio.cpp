#include "anfitrion/marco_en_sitio.h"

namespace anfitrion {

MarcoEnSitio::MarcoEnSitio(HWND ventana, std::shared_ptr<Registro> registro, const char* quien)
    : ventana_(ventana), registro_(std::move(registro)), quien_(quien) {}

void MarcoEnSitio::Anotar(const char* que, std::string_view detalle) const {
    if (registro_)
        registro_->Anotar(quien_, que, detalle);
}

void MarcoEnSitio::Desconectar() {
    ventana_ = nullptr;
    activo_.Soltar();
}

void* MarcoEnSitio::Heredada(REFIID iid) {
    if (iid == IID_IOleWindow || iid == IID_IOleInPlaceUIWindow)
        return static_cast<IOleInPlaceFrame*>(this);
    return nullptr;
}

HRESULT MarcoEnSitio::GetWindow(HWND* ventana) {
    if (!ventana)
        return E_POINTER;
    *ventana = ventana_;
    return ventana_ ? S_OK : E_FAIL;
}

HRESULT MarcoEnSitio::ContextSensitiveHelp(BOOL) {
    return S_OK;
}

HRESULT MarcoEnSitio::GetBorder(LPRECT) {
    Anotar("IOleInPlaceUIWindow::GetBorder");
    return INPLACE_E_NOTOOLSPACE;
}

HRESULT MarcoEnSitio::RequestBorderSpace(LPCBORDERWIDTHS) {
    Anotar("IOleInPlaceUIWindow::RequestBorderSpace");
    return INPLACE_E_NOTOOLSPACE;
}

HRESULT MarcoEnSitio::SetBorderSpace(LPCBORDERWIDTHS anchos) {
    Anotar("IOleInPlaceUIWindow::SetBorderSpace");
    // Null means that the object wants no tools of its own: always granted.
    return anchos ? OLE_E_INVALIDRECT : S_OK;
}

HRESULT MarcoEnSitio::SetActiveObject(IOleInPlaceActiveObject* objeto, LPCOLESTR) {
    Anotar("IOleInPlaceUIWindow::SetActiveObject", objeto ? "objeto" : "nada");
    activo_ = Puntero<IOleInPlaceActiveObject>(objeto);
    return S_OK;
}

HRESULT MarcoEnSitio::InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) {
    Anotar("IOleInPlaceFrame::InsertMenus");
    return E_NOTIMPL;
}

HRESULT MarcoEnSitio::SetMenu(HMENU, HOLEMENU, HWND) {
    Anotar("IOleInPlaceFrame::SetMenu");
    return S_OK;
}

HRESULT MarcoEnSitio::RemoveMenus(HMENU) {
    Anotar("IOleInPlaceFrame::RemoveMenus");
    return S_OK;
}

HRESULT MarcoEnSitio::SetStatusText(LPCOLESTR) {
    Anotar("IOleInPlaceFrame::SetStatusText");
    return S_OK;
}

HRESULT MarcoEnSitio::EnableModeless(BOOL activar) {
    Anotar("IOleInPlaceFrame::EnableModeless", activar ? "si" : "no");
    return S_OK;
}

HRESULT MarcoEnSitio::TranslateAccelerator(LPMSG, WORD) {
    Anotar("IOleInPlaceFrame::TranslateAccelerator");
    return S_FALSE;
}

} // namespace anfitrion
