#include "componente/control/flujo_ajeno.h"

#include "componente/errores_com.h"

#include <algorithm>

namespace pincela::componente {

namespace {

/// How many bytes one call moved: none is the end, and more than it was asked for is a lie.
ULONG Movidos(HRESULT estado, ULONG dichos, ULONG pedidos, HRESULT siFalta, HRESULT siMiente) {
    Exigir(estado);
    if (dichos > pedidos)
        throw FalloCom{siMiente};
    if (dichos == 0)
        throw FalloCom{siFalta};
    return dichos;
}

} // namespace

// In pieces, so that a length that lies costs no memory.
void FlujoAjeno::Leer(std::uint64_t cuantos, Bytes& bytes) {
    constexpr std::uint64_t Trozo = 64 * 1024;
    while (cuantos > 0) {
        const auto pedidos = static_cast<ULONG>(std::min(cuantos, Trozo));
        const std::size_t antes = bytes.size();
        bytes.resize(antes + pedidos);
        ULONG leidos = 0;
        const HRESULT estado = flujo_->Read(bytes.data() + antes, pedidos, &leidos);
        leidos = Movidos(estado, leidos, pedidos, STG_E_DOCFILECORRUPT, STG_E_READFAULT);
        bytes.resize(antes + leidos);
        cuantos -= leidos;
    }
}

void FlujoAjeno::Escribir(const Bytes& bytes) {
    for (std::size_t hechos = 0; hechos < bytes.size();) {
        const auto pedidos = static_cast<ULONG>(bytes.size() - hechos);
        ULONG escritos = 0;
        const HRESULT estado = flujo_->Write(bytes.data() + hechos, pedidos, &escritos);
        hechos += Movidos(estado, escritos, pedidos, STG_E_MEDIUMFULL, STG_E_WRITEFAULT);
    }
}

} // namespace pincela::componente
