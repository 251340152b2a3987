// The controls that the container placed inside this one.
//
// A container that knows says so itself; any other is asked for all its controls, and those are
// taken whose window lies in this one's, with no third control's window in between.
#include "componente/control/disenador.h"
#include "componente/control/objeto_control.h"
#include "componente/control/tardio.h"

#include <algorithm>
#include <vector>

namespace pincela::componente {

namespace {

constexpr DWORD Cuales = OLECONTF_EMBEDDINGS | OLECONTF_OTHERS;
/// More controls than any form has; a list longer than that has no end.
constexpr int MaximoDeControles = 10000;

using Objetos = std::vector<Ptr<IUnknown>>;

Objetos Recorrer(const Ptr<IEnumUnknown>& lista) {
    Objetos objetos;
    for (int i = 0; i < MaximoDeControles; ++i) {
        Ptr<IUnknown> uno;
        ULONG dados = 0;
        if (uno.Pedir([&](IUnknown** p) { return lista->Next(1, p, &dados); }) != S_OK ||
            dados != 1)
            break;
        objetos.push_back(std::move(uno));
    }
    return objetos;
}

Ptr<IOleClientSite> SitioDe(const Ptr<IUnknown>& objeto) {
    Ptr<IOleClientSite> sitio;
    if (const auto ole = Ptr<IOleObject>::De(objeto.get()))
        sitio.Pedir([&](IOleClientSite** p) { return ole->GetClientSite(p); });
    return sitio;
}

/// Where an object of the container is: its own window, and the one that surrounds it.
struct Lugar {
    Ptr<IUnknown> objeto;
    HWND propia = nullptr;
    HWND alrededor = nullptr;

    explicit Lugar(Ptr<IUnknown> uno) : objeto(std::move(uno)) {
        if (const auto ventana = Ptr<IOleWindow>::De(objeto.get());
            ventana && FAILED(ventana->GetWindow(&propia)))
            propia = nullptr;
        if (propia)
            alrededor = GetAncestor(propia, GA_PARENT);
        else if (const auto sitio = Ptr<IOleInPlaceSite>::De(SitioDe(objeto).get());
                 sitio && FAILED(sitio->GetWindow(&alrededor)))
            alrededor = nullptr;
    }
};

bool EstaEn(HWND marco, const Lugar& lugar, const std::vector<Lugar>& todos) {
    for (HWND v = lugar.alrededor; v; v = GetAncestor(v, GA_PARENT)) {
        if (v == marco)
            return true;
        if (std::any_of(todos.begin(), todos.end(), [v](auto& otro) { return otro.propia == v; }))
            return false;
    }
    return false;
}

/// One of them, seen through the properties that the container gives it.
class ContenidoTardio final : public ControlContenido {
  public:
    ContenidoTardio(const Ptr<IUnknown>& objeto, int ppp) : ppp_(ppp) {
        sitio_ = Ptr<IOleControlSite>::De(SitioDe(objeto).get());
        if (!sitio_ ||
            FAILED(despacho_.Pedir([&](IDispatch** p) { return sitio_->GetExtendedControl(p); })))
            despacho_ = Ptr<IDispatch>::De(objeto.get());
    }

    bool Visible(bool& valor) override {
        VarianteCom leido;
        if (!despacho_ || !LeerTardio(despacho_, L"Visible", VT_BOOL, &leido))
            return false;
        valor = V_BOOL(&leido) != VARIANT_FALSE;
        return true;
    }

    bool Rectangulo(float& izquierda, float& arriba, float& ancho, float& alto) override {
        if (!Numero(L"Left", izquierda) || !Numero(L"Top", arriba) || !Numero(L"Width", ancho) ||
            !Numero(L"Height", alto))
            return false;
        APixeles(izquierda, arriba, XFORMCOORDS_POSITION);
        APixeles(ancho, alto, XFORMCOORDS_SIZE);
        return true;
    }

  private:
    bool Numero(const wchar_t* nombre, float& valor) const {
        VarianteCom leido;
        if (!despacho_ || !LeerTardio(despacho_, nombre, VT_R4, &leido))
            return false;
        valor = V_R4(&leido);
        return true;
    }

    /// From the container's units, which are pixels where it does not convert them.
    void APixeles(float& x, float& y, DWORD clase) const {
        POINTF contenedor{x, y};
        POINTL himetric{};
        if (sitio_ && SUCCEEDED(sitio_->TransformCoords(&himetric, &contenedor,
                                                        clase | XFORMCOORDS_CONTAINERTOHIMETRIC))) {
            x = static_cast<float>(MulDiv(himetric.x, ppp_, 2540));
            y = static_cast<float>(MulDiv(himetric.y, ppp_, 2540));
        }
    }

    int ppp_;
    Ptr<IOleControlSite> sitio_;
    Ptr<IDispatch> despacho_;
};

/// What the container itself says is inside; false when it has nothing to say about that.
bool PorElSitio(const Ptr<IOleClientSite>& sitio, Objetos& objetos) {
    Ptr<IEnumUnknown> lista;
    const auto control = Ptr<IVBGetControl>::De(sitio.get(), IidGetControl);
    if (!control || FAILED(lista.Pedir([&](IEnumUnknown** p) {
            return control->EnumControls(Cuales, ControlesDentro, p);
        })))
        return false;
    objetos = Recorrer(lista);
    return true;
}

Objetos PorElContenedor(const Ptr<IOleClientSite>& sitio, IUnknown* yo, HWND marco) {
    Ptr<IOleContainer> contenedor;
    Ptr<IEnumUnknown> lista;
    if (!marco ||
        FAILED(contenedor.Pedir([&](IOleContainer** p) { return sitio->GetContainer(p); })) ||
        FAILED(lista.Pedir([&](IEnumUnknown** p) { return contenedor->EnumObjects(Cuales, p); })))
        return {};
    std::vector<Lugar> todos;
    for (Ptr<IUnknown>& objeto : Recorrer(lista))
        if (Ptr<IUnknown>::De(objeto.get()).get() != yo)
            todos.emplace_back(std::move(objeto));
    Objetos dentro;
    for (const Lugar& lugar : todos)
        if (EstaEn(marco, lugar, todos))
            dentro.push_back(lugar.objeto);
    return dentro;
}

} // namespace

void ObjetoControl::ControlesContenidos(const std::function<void(ControlContenido&)>& visita) {
    const Ptr<IOleClientSite> sitio = sitio_;
    if (!sitio)
        return;
    Objetos objetos;
    if (!PorElSitio(sitio, objetos))
        objetos = PorElContenedor(sitio, Identidad(), entorno_.Ventana());
    for (const Ptr<IUnknown>& objeto : objetos) {
        ContenidoTardio control(objeto, entorno_.Ppp());
        visita(control);
    }
}

} // namespace pincela::componente
