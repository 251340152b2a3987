#include "plataforma/windows/escena.h"

#include <algorithm>

namespace pincela::windows {

ElementoVisual* EnPunto(const FotoDeBlancos& blancos, float x, float y) {
    for (const BlancoRaton& blanco : blancos)
        if (blanco.lugar.Contiene(x, y))
            return blanco.elemento;
    return nullptr;
}

void Escena::Quitar(ElementoVisual& elemento) {
    std::erase(elementos_, &elemento);
}

bool Escena::Contiene(const ElementoVisual* elemento) const {
    return std::find(elementos_.begin(), elementos_.end(), elemento) != elementos_.end();
}

void Escena::Dibujar(const Destino& destino) const {
    // Selecting a font is dear, and neighbours tend to have the same: each leaves its own in place.
    const HGDIOBJ fuente = ::GetCurrentObject(destino.dc, OBJ_FONT);
    for (const ElementoVisual* elemento : elementos_)
        elemento->Dibujar(destino);
    ::SelectObject(destino.dc, fuente);
}

void Escena::PppCambiado() {
    for (ElementoVisual* elemento : elementos_)
        elemento->PppCambiado();
}

FotoDeBlancos Escena::Blancos() const {
    FotoDeBlancos blancos;
    for (auto i = elementos_.rbegin(); i != elementos_.rend(); ++i)
        if ((*i)->Raton())
            blancos.push_back({*i, (*i)->Lugar()});
    return blancos;
}

Texto Escena::GloboEn(float x, float y) const {
    Texto unico;
    bool varios = false;
    for (auto i = elementos_.rbegin(); i != elementos_.rend(); ++i) {
        Texto globo = (*i)->Globo();
        if (globo.empty())
            continue;
        if ((*i)->Lugar().Contiene(x, y))
            return globo;
        varios = varios || (!unico.empty() && unico != globo);
        unico = std::move(globo);
    }
    return varios ? Texto() : unico;
}

} // namespace pincela::windows
