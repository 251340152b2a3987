// A property page as designers see it.
#pragma once

#include "componente/com.h"
#include "componente/despacho.h"
#include "componente/objeto.h"
#include "componente/paginas/disenos.h"
#include "paginas/pagina.h"
#include "plataforma/windows/pagina_windows.h"

#include <ocidl.h>
#include <olectl.h>

#include <vector>

namespace pincela::componente {

class ObjetoPagina : public IPropertyPage2,
                     public ISupportErrorInfo,
                     public IProvideClassInfo,
                     public windows::SitioPagina {
  public:
    ObjetoPagina(const ObjetoPagina&) = delete;
    ObjetoPagina& operator=(const ObjetoPagina&) = delete;
    virtual ~ObjetoPagina() = default;

    IUnknown* Identidad() { return static_cast<IPropertyPage2*>(this); }

    // IUnknown
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** salida) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return cuenta_.Sumar(); }
    ULONG STDMETHODCALLTYPE Release() override { return cuenta_.Restar(this); }

    // IPropertyPage2
    HRESULT STDMETHODCALLTYPE SetPageSite(IPropertyPageSite* sitio) override;
    HRESULT STDMETHODCALLTYPE Activate(HWND padre, LPCRECT lugar, BOOL modal) override;
    HRESULT STDMETHODCALLTYPE Deactivate() override;
    HRESULT STDMETHODCALLTYPE GetPageInfo(PROPPAGEINFO* info) override;
    HRESULT STDMETHODCALLTYPE SetObjects(ULONG cuantos, IUnknown** objetos) override;
    HRESULT STDMETHODCALLTYPE Show(UINT modo) override;
    HRESULT STDMETHODCALLTYPE Move(LPCRECT lugar) override;
    HRESULT STDMETHODCALLTYPE IsPageDirty() override;
    HRESULT STDMETHODCALLTYPE Apply() override;
    HRESULT STDMETHODCALLTYPE Help(LPCOLESTR carpeta) override;
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* mensaje) override;
    HRESULT STDMETHODCALLTYPE EditProperty(DISPID propiedad) override;

    // ISupportErrorInfo, IProvideClassInfo
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override;
    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override;

  protected:
    ObjetoPagina(const ClasePublicada& clase, const ClasePublicada& editada,
                 const windows::DisenoPagina& diseno);

    virtual Pagina& LaPagina() = 0;
    /// Called at the end of the constructor of the class that derives from this one.
    void Nacer(void* nucleo) { interfaz_ = {clase_.tabla, Identidad(), nucleo, &clase_}; }

    windows::PaginaWindows ventana_;

  private:
    using Objetos = std::vector<Ptr<IUnknown>>;

    /// For as long as the page works on its objects, whatever it calls: the objects stay, and a
    /// new selection is shown afterwards.
    class Trabajo;

    // windows::SitioPagina
    std::size_t Seleccionados() const override { return objetos_.size(); }
    ControlUsuario* Seleccionado(std::size_t numero) override;
    void ChangedCambiado() override;
    void Sostener() override;
    void Soltar() override;

    HRESULT MostrarSeleccion();
    void AvisarEstado();

    CuentaReferencias cuenta_;
    const ClasePublicada& clase_;
    const ClasePublicada& editada_; // of the controls it edits
    InterfazDual interfaz_{};
    Ptr<IPropertyPageSite> sitio_;
    Objetos objetos_;
    Objetos retirados_; // while somebody may still be working on them
    int trabajos_ = 0;
    bool porMostrar_ = false;
    bool anunciado_ = false; // what the frame knows of the changes
};

/// One class of page: its core, its default interface, the class it edits.
template <class Tabla, const DatosClase& Datos, class TablaEditada, const DatosClase& DatosEditada>
class PaginaPublicada final : public ObjetoPagina {
  public:
    explicit PaginaPublicada(const windows::DisenoPagina& diseno)
        : ObjetoPagina(Publicada<Tabla, Datos>, Publicada<TablaEditada, DatosEditada>, diseno),
          nucleo_(ventana_) {
        Nacer(&nucleo_);
    }
    // While the core goes, its window must not reach it.
    ~PaginaPublicada() override { ventana_.DestruirVentana(); }

  private:
    Pagina& LaPagina() override { return nucleo_; }

    typename Tabla::Nucleo nucleo_;
};

template <class Tabla, const DatosClase& Datos, class TablaEditada, const DatosClase& DatosEditada,
          const windows::DisenoPagina& Diseno>
IUnknown* CrearPagina() {
    return (new PaginaPublicada<Tabla, Datos, TablaEditada, DatosEditada>(Diseno))->Identidad();
}

} // namespace pincela::componente
