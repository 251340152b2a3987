#include "componente/generador/msft.h"

#include <cstring>

namespace pincela::generador {

namespace {

// Offsets of the file format that are needed here.
constexpr unsigned Firma = 0x5446534D; // "MSFT"
constexpr std::size_t BanderasDeFormato = 0x14;
constexpr std::size_t CantidadDeTipos = 0x20;
constexpr std::size_t FinDeCabecera = 0x54;
constexpr int TieneArchivoDeAyuda = 0x100;
constexpr std::size_t LargoDeTipo = 0x64;
constexpr std::size_t TipoInicioDeMiembros = 0x04;
constexpr std::size_t TipoCantidades = 0x18;
constexpr std::size_t TipoBanderas = 0x30;
constexpr std::size_t TipoMadres = 0x4C;
constexpr std::size_t TipoLargoDeTabla = 0x4E;
constexpr std::size_t TipoTamanio = 0x50;
constexpr std::size_t FuncionRanura = 0x0C;

template <class T>
T Leer(std::span<unsigned char> imagen, std::size_t lugar) {
    T valor{};
    if (lugar + sizeof valor <= imagen.size())
        std::memcpy(&valor, imagen.data() + lugar, sizeof valor);
    return valor;
}

template <class T>
void Escribir(std::span<unsigned char> imagen, std::size_t lugar, T valor) {
    if (lugar + sizeof valor <= imagen.size())
        std::memcpy(imagen.data() + lugar, &valor, sizeof valor);
}

void CorregirRanuras(std::span<unsigned char> imagen, std::size_t tipo) {
    constexpr int herencia64 = 7 * 8, herencia32 = 7 * 4;
    std::size_t lugar = Leer<unsigned>(imagen, tipo + TipoInicioDeMiembros) + sizeof(int);
    const int funciones = Leer<int>(imagen, tipo + TipoCantidades) & 0xFFFF;
    // A library that a 32-bit generator wrote is right already.
    if (Leer<short>(imagen, tipo + TipoLargoDeTabla) != herencia64 + 4 * funciones)
        return;
    for (int i = 0; i < funciones; ++i) {
        const auto ranura = Leer<short>(imagen, lugar + FuncionRanura);
        Escribir<short>(imagen, lugar + FuncionRanura,
                        static_cast<short>(herencia32 + 4 * i + (ranura & 1)));
        lugar += Leer<unsigned short>(imagen, lugar);
    }
    Escribir<short>(imagen, tipo + TipoLargoDeTabla,
                    static_cast<short>(herencia32 + 4 * funciones));
}

/// Readers take the number of functions of a dispatch-only interface from the length of a table
/// that it does not have: only its own count. It derives from IDispatch without saying so.
void CorregirDespacho(std::span<unsigned char> imagen, std::size_t tipo, SYSKIND sistema) {
    const int funciones = Leer<int>(imagen, tipo + TipoCantidades) & 0xFFFF;
    Escribir<short>(imagen, tipo + TipoMadres, 1);
    Escribir<short>(imagen, tipo + TipoLargoDeTabla,
                    static_cast<short>(funciones * (sistema == SYS_WIN64 ? 8 : 4)));
}

} // namespace

bool Corregir(std::span<unsigned char> imagen, SYSKIND sistema, int tamanioRegistro) {
    if (Leer<unsigned>(imagen, 0) != Firma)
        return false;
    const int tipos = Leer<int>(imagen, CantidadDeTipos);
    std::size_t indice = FinDeCabecera;
    if (Leer<int>(imagen, BanderasDeFormato) & TieneArchivoDeAyuda)
        indice += sizeof(int);
    // The directory of segments follows the index of types; the first segment holds the types.
    const std::size_t segmentos = indice + sizeof(int) * static_cast<std::size_t>(tipos);
    const std::size_t base = Leer<unsigned>(imagen, segmentos);
    for (int i = 0; i < tipos; ++i) {
        const std::size_t tipo = base + LargoDeTipo * static_cast<std::size_t>(i);
        if (tipo + LargoDeTipo > imagen.size())
            return false;
        switch (Leer<int>(imagen, tipo) & 0xF) {
        case TKIND_ENUM:
            Escribir<int>(imagen, tipo + TipoTamanio, 4);
            break;
        case TKIND_RECORD:
            Escribir<int>(imagen, tipo + TipoTamanio, tamanioRegistro);
            break;
        case TKIND_DISPATCH:
            if (!(Leer<int>(imagen, tipo + TipoBanderas) & TYPEFLAG_FDUAL)) {
                CorregirDespacho(imagen, tipo, sistema);
                break;
            }
            [[fallthrough]];
        case TKIND_INTERFACE:
            if (sistema == SYS_WIN32 && (Leer<int>(imagen, tipo + TipoBanderas) & TYPEFLAG_FDUAL))
                CorregirRanuras(imagen, tipo);
            break;
        default:
            break;
        }
    }
    return true;
}

} // namespace pincela::generador
