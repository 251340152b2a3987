#include "plataforma/windows/objetos_fuente.h"

#include "common/errores.h"
#include "plataforma/windows/aritmetica.h"
#include "plataforma/windows/texto_com.h"

#include <olectl.h>

#include <algorithm>
#include <new>

namespace pincela::windows {

/// What the font object calls. It may outlive the wrapper, which then cuts it off.
class AvisoDeFuente final : public IPropertyNotifySink {
  public:
    explicit AvisoDeFuente(FuenteOle& dueno) : dueno_(&dueno) {}
    void Cortar() { dueno_ = nullptr; }

    STDMETHODIMP QueryInterface(REFIID iid, void** objeto) override {
        if (!objeto)
            return E_POINTER;
        *objeto = nullptr;
        if (iid != IID_IUnknown && iid != IID_IPropertyNotifySink)
            return E_NOINTERFACE;
        *objeto = static_cast<IPropertyNotifySink*>(this);
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++referencias_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG quedan = --referencias_;
        if (quedan == 0)
            delete this;
        return quedan;
    }
    STDMETHODIMP OnChanged(DISPID) override {
        const AritmeticaPropia propia;
        PunteroCom<AvisoDeFuente> sostenido(this);
        try {
            if (dueno_)
                dueno_->Avisar();
        } catch (...) {
            return E_FAIL;
        }
        return S_OK;
    }
    STDMETHODIMP OnRequestEdit(DISPID) override { return S_OK; }

  private:
    ULONG referencias_ = 0;
    FuenteOle* dueno_;
};

FuenteOle::FuenteOle(PunteroCom<IFont> fuente)
    : fuente_(std::move(fuente)), identidad_(IdentidadDe(fuente_.get())) {}

FuenteOle::~FuenteOle() {
    if (!aviso_)
        return;
    aviso_->Cortar();
    if (punto_)
        punto_->Unadvise(galleta_);
}

AtributosFuente FuenteOle::Atributos() const {
    const PunteroCom<IFont> fuente = fuente_; // held: it may have this wrapper dropped
    AtributosFuente a;
    TextoCom nombre;
    if (SUCCEEDED(nombre.Pedir([&](BSTR* texto) { return fuente->get_Name(texto); })) &&
        nombre.Vista().data())
        a.Name = nombre.Vista();
    CY tamano{};
    if (SUCCEEDED(fuente->get_Size(&tamano)))
        a.Size = static_cast<double>(tamano.int64) / 10000.0;
    BOOL valor = FALSE;
    a.Bold = SUCCEEDED(fuente->get_Bold(&valor)) && valor;
    a.Italic = SUCCEEDED(fuente->get_Italic(&valor)) && valor;
    a.Underline = SUCCEEDED(fuente->get_Underline(&valor)) && valor;
    a.Strikethrough = SUCCEEDED(fuente->get_Strikethrough(&valor)) && valor;
    SHORT juego = 0;
    if (SUCCEEDED(fuente->get_Charset(&juego)))
        a.Charset = juego;
    return a;
}

bool FuenteOle::EsElMismo(const Objeto& otro) const {
    const auto* fuente = dynamic_cast<const FuenteOle*>(&otro);
    return fuente && fuente->identidad_.get() == identidad_.get();
}

void FuenteOle::Conectar() {
    if (aviso_)
        return;
    const auto contenedor = PunteroCom<IConnectionPointContainer>::De(fuente_.get());
    PunteroCom<IConnectionPoint> punto;
    if (!contenedor || FAILED(punto.Pedir([&](IConnectionPoint** p) {
            return contenedor->FindConnectionPoint(IID_IPropertyNotifySink, p);
        })))
        return;
    if (aviso_) // connected meanwhile, from inside one of those calls
        return;
    const PunteroCom<AvisoDeFuente> aviso(new AvisoDeFuente(*this));
    aviso_ = aviso;
    DWORD galleta = 0;
    if (SUCCEEDED(punto->Advise(aviso.get(), &galleta))) {
        punto_ = punto;
        galleta_ = galleta;
    } else {
        aviso->Cortar(); // whoever refuses a sink may keep it all the same
        aviso_.Soltar();
    }
}

void FuenteOle::Escuchar(OyenteFuente& oyente) {
    Conectar();
    oyentes_.push_back(&oyente);
}

void FuenteOle::DejarDeEscuchar(OyenteFuente& oyente) {
    const auto lugar = std::find(oyentes_.begin(), oyentes_.end(), &oyente);
    if (lugar != oyentes_.end())
        oyentes_.erase(lugar);
}

void FuenteOle::Avisar() {
    // A listener may leave while it is told, and with the last one everybody else who holds this.
    const auto yo = shared_from_this();
    const auto copia = oyentes_;
    for (OyenteFuente* oyente : copia)
        if (std::find(oyentes_.begin(), oyentes_.end(), oyente) != oyentes_.end())
            oyente->FuenteCambiada();
}

void SuscripcionFuente::Poner(Fuente fuente) {
    // The new one first: the old one may hold the last reference to what both share.
    if (auto* nueva = dynamic_cast<FuenteOle*>(fuente.get()))
        nueva->Escuchar(oyente_);
    const Fuente anterior = std::exchange(fuente_, std::move(fuente));
    if (auto* vieja = dynamic_cast<FuenteOle*>(anterior.get()))
        vieja->DejarDeEscuchar(oyente_);
}

Fuente EnvolverFuente(IUnknown* objeto) {
    if (!objeto)
        return nullptr;
    auto fuente = PunteroCom<IFont>::De(objeto);
    if (!fuente)
        Lanzar(NumeroError::TiposNoCoinciden);
    return std::make_shared<FuenteOle>(std::move(fuente));
}

IFontDisp* DesenvolverFuente(const Fuente& fuente) {
    const auto* ole = dynamic_cast<const FuenteOle*>(fuente.get());
    return ole ? PunteroCom<IFontDisp>::De(ole->fuente()).Ceder() : nullptr;
}

Fuente CrearFuente(const AtributosFuente& atributos) {
    FONTDESC descripcion{};
    descripcion.cbSizeofstruct = sizeof descripcion;
    std::wstring nombre(atributos.Name.begin(), atributos.Name.end());
    descripcion.lpstrName = nombre.data();
    descripcion.cySize.int64 = static_cast<LONGLONG>(atributos.Size * 10000.0 + 0.5);
    descripcion.sWeight = atributos.Bold ? FW_BOLD : FW_NORMAL;
    descripcion.sCharset = atributos.Charset;
    descripcion.fItalic = atributos.Italic;
    descripcion.fUnderline = atributos.Underline;
    descripcion.fStrikethrough = atributos.Strikethrough;
    PunteroCom<IFont> fuente;
    if (FAILED(::OleCreateFontIndirect(&descripcion, IID_IFont, fuente.RecibirVacio())))
        throw std::bad_alloc();
    return std::make_shared<FuenteOle>(std::move(fuente));
}

} // namespace pincela::windows
