#include "plataforma/windows/silueta.h"

#include "plataforma/windows/campo_edicion.h"
#include "plataforma/windows/composicion.h"
#include "plataforma/windows/mascara.h"
#include "plataforma/windows/ventana_superficie.h"

namespace pincela::windows {

namespace {

DuenoRegion Rectangular(const RECT& r) {
    return DuenoRegion(::CreateRectRgnIndirect(&r));
}

DuenoRegion Combinar(const DuenoRegion& a, const DuenoRegion& b, int modo) {
    DuenoRegion nueva = Rectangular({});
    ::CombineRgn(nueva.get(), a.get(), b ? b.get() : nullptr, modo);
    return nueva;
}

DuenoRegion Copia(const DuenoRegion& region) {
    return region ? Combinar(region, {}, RGN_COPY) : DuenoRegion();
}

bool Vacia(const DuenoRegion& region) {
    RECT caja;
    return ::GetRgnBox(region.get(), &caja) == NULLREGION;
}

bool Iguales(const DuenoRegion& a, const DuenoRegion& b) {
    if (!a || !b)
        return !a && !b;
    return Vacia(Combinar(a, b, RGN_XOR));
}

RECT EnSuPadre(HWND ventana) {
    RECT lugar{};
    ::GetWindowRect(ventana, &lugar);
    ::MapWindowPoints(HWND_DESKTOP, ::GetAncestor(ventana, GA_PARENT),
                      reinterpret_cast<POINT*>(&lugar), 2);
    return lugar;
}

/// What a child window covers of its parent.
DuenoRegion DeHija(HWND hija) {
    const RECT lugar = EnSuPadre(hija);
    DuenoRegion propia = Rectangular({});
    if (::GetWindowRgn(hija, propia.get()) == ERROR)
        return Rectangular(lugar);
    ::OffsetRgn(propia.get(), lugar.left, lugar.top);
    return Combinar(propia, Rectangular(lugar), RGN_AND);
}

} // namespace

bool Silueta::Puesta::Poner(HWND ventana, DuenoRegion nueva) {
    if (Iguales(nueva, region))
        return false;
    region = Copia(nueva);
    // The platform keeps the region; what it asks meanwhile finds that nothing is left to do.
    if (!::SetWindowRgn(ventana, nueva.get(), TRUE))
        return false;
    nueva.Ceder();
    return true;
}

void Silueta::PonForma(HRGN forma) {
    DuenoRegion nueva = Rectangular({});
    if (forma && ::CombineRgn(nueva.get(), forma, nullptr, RGN_COPY) != ERROR)
        forma_ = std::move(nueva);
    else
        forma_.Poner(nullptr);
    Ajustar();
}

// A clip that hides nothing is none: containers give the place itself, and move the window later
// without another word.
void Silueta::PonRecorte(const RECT& lugar, const RECT* recorte) {
    recorte_.reset();
    RECT comun{};
    if (!recorte || ::IsRectEmpty(&lugar))
        return;
    ::IntersectRect(&comun, recorte, &lugar);
    if (!::EqualRect(&comun, &lugar))
        recorte_ = *recorte;
}

/// The whole window is null.
DuenoRegion Silueta::Base() const {
    if (!recorte_)
        return Copia(forma_);
    const RECT lugar = EnSuPadre(nucleo_.ventana);
    RECT visible{};
    ::IntersectRect(&visible, &*recorte_, &lugar);
    if (::EqualRect(&visible, &lugar))
        return Copia(forma_);
    if (!::IsRectEmpty(&visible))
        ::OffsetRect(&visible, -lugar.left, -lugar.top);
    DuenoRegion base = Rectangular(visible);
    return forma_ ? Combinar(base, forma_, RGN_AND) : std::move(base);
}

void Silueta::Ajustar() {
    const HWND ventana = nucleo_.ventana;
    if (!ventana)
        return;
    if (!superficie_.Transparente() || vieja_)
        calada_ = false;
    const auto testigo = nucleo_.Testigo();
    DuenoRegion base = Base();
    if (velo_.ventana())
        puestaDelVelo_.Poner(velo_.ventana(), Copia(base));
    if (testigo.expired() || nucleo_.ventana != ventana)
        return;
    if (calada_)
        base = base ? Combinar(tinta_, base, RGN_AND) : Copia(tinta_);
    if (puesta_.Poner(ventana, std::move(base)))
        AvisarAQuienSostiene(ventana);
}

void Silueta::SeguirVelo() {
    if (velo_.ventana() && nucleo_.ventana)
        velo_.Seguir(nucleo_.ventana);
}

void Silueta::Envejecer() {
    vieja_ = true;
    if (!calada_)
        return;
    // A window of which nothing is seen is not asked to paint itself: then it is opened first.
    if (!superficie_.Transparente() || Vacia(puesta_.region))
        Ajustar();
}

void Silueta::Renovar() {
    vieja_ = true;
    const auto testigo = nucleo_.Testigo();
    Ajustar();
    if (!testigo.expired() && nucleo_.ventana)
        ::InvalidateRect(nucleo_.ventana, nullptr, FALSE);
}

// In design mode the container draws its marks on the window; and what others place on a panel,
// with windows that move without a word or with none at all, must find all of it there.
bool Silueta::PuedeCalarse() const {
    if (nucleo_.sitio.EntradaCongelada())
        return false;
    int propias = 0;
    for (HWND hija = ::GetWindow(nucleo_.ventana, GW_CHILD); hija;
         hija = ::GetWindow(hija, GW_HWNDNEXT)) {
        if (EsSuperficie(hija))
            ++propias;
        else if (!nucleo_.EsVentanaPropia(hija) && !Velo::EsVelo(hija))
            return false;
    }
    int contenidos = 0;
    if (nucleo_.sitio.MarcoSimple())
        nucleo_.sitio.ControlesContenidos([&](ControlContenido&) { ++contenidos; });
    return contenidos <= propias;
}

DuenoRegion Silueta::Tinta() {
    DuenoRegion tinta = LoDibujado(nucleo_, superficie_, mezclada_);
    for (HWND hija = ::GetWindow(nucleo_.ventana, GW_CHILD); tinta && hija;
         hija = ::GetWindow(hija, GW_HWNDNEXT))
        if (::GetWindowLongW(hija, GWL_STYLE) & WS_VISIBLE && !Velo::EsVelo(hija))
            tinta = Combinar(tinta, DeHija(hija), RGN_OR);
    return tinta;
}

void Silueta::AntesDePintar() {
    siguiente_.Poner(nullptr);
    if (!superficie_.Transparente()) {
        velo_.Soltar();
        puestaDelVelo_.region.Poner(nullptr);
        return;
    }
    if (!vieja_)
        return;
    const auto testigo = nucleo_.Testigo();
    const bool puede = PuedeCalarse();
    if (testigo.expired() || !nucleo_.ventana)
        return;
    DuenoRegion nueva = puede ? Tinta() : DuenoRegion();
    const bool estaba = calada_;
    vieja_ = false;
    if (!nueva) {
        calada_ = false;
        Ajustar();
        return;
    }
    if (!estaba) {
        siguiente_ = std::move(nueva);
        return;
    }
    tinta_ = Combinar(tinta_, nueva, RGN_OR);
    siguiente_ = std::move(nueva);
    Ajustar();
}

void Silueta::DespuesDePintar() {
    if (!siguiente_ || !nucleo_.ventana)
        return;
    const auto testigo = nucleo_.Testigo();
    if (!velo_.ventana())
        velo_.Seguir(nucleo_.ventana);
    if (testigo.expired() || !siguiente_)
        return;
    tinta_ = std::move(siguiente_);
    calada_ = true;
    Ajustar();
}

void Silueta::Soltar() {
    velo_.Soltar();
    forma_.Poner(nullptr);
    recorte_.reset();
    tinta_.Poner(nullptr);
    siguiente_.Poner(nullptr);
    puesta_.region.Poner(nullptr);
    puestaDelVelo_.region.Poner(nullptr);
    calada_ = false;
    vieja_ = true;
}

void AvisarAQuienSostiene(HWND ventana) {
    if (const HWND padre = ::GetAncestor(ventana, GA_PARENT); EsSuperficie(padre))
        ::SendMessageW(padre, VentanaSuperficie::CambioEncima, 0, 0);
}

} // namespace pincela::windows
