// The frame (or document) window as an in-place active control sees it.
#pragma once

#include "anfitrion/com.h"
#include "anfitrion/registro.h"

#include <oleidl.h>

#include <memory>

namespace anfitrion {

/// Frame and document windows are the same window here: the form. It offers no room for tools and
/// no menus; what matters is the active object, which gets the first look at every key.
class MarcoEnSitio : public ObjetoCom<IOleInPlaceFrame> {
  public:
    /// `ventana` is not owned; Desconectar forgets it.
    MarcoEnSitio(HWND ventana, std::shared_ptr<Registro> registro, const char* quien);

    /// Object that asked for the keys; empty when none.
    const Puntero<IOleInPlaceActiveObject>& Activo() const { return activo_; }

    /// Forgets the window and the active object.
    void Desconectar();

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* ventana) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override;
    HRESULT STDMETHODCALLTYPE GetBorder(LPRECT) override;
    HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS) override;
    HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS) override;
    HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* objeto,
                                              LPCOLESTR nombre) override;
    HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override;
    HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) override;
    HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) override;
    HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) override;
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override;
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG, WORD) override;

  protected:
    void* Heredada(REFIID iid) override;

  private:
    void Anotar(const char* que, std::string_view detalle = {}) const;

    HWND ventana_;
    std::shared_ptr<Registro> registro_;
    const char* quien_;
    Puntero<IOleInPlaceActiveObject> activo_;
};

} // namespace anfitrion
