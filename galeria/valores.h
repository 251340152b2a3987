// From the tables of samples to the bags that controls load from.
#pragma once

#include "anfitrion/bolsa_memoria.h"
#include "galeria/muestras.h"

#include <initializer_list>

namespace galeria {

inline constexpr wchar_t Tipografia[] = L"Arial";

/// A bag with the pairs, later ones over earlier ones, for a control of that place in pixels.
anfitrion::Puntero<anfitrion::BolsaMemoria>
BolsaDe(std::initializer_list<std::span<const Par>> pares, const RECT& lugar);

} // namespace galeria
