// The pages there are.
#include "galeria/pagina_botones.h"
#include "galeria/pagina_cajas.h"

namespace galeria {

namespace {

template <class P>
std::unique_ptr<Pagina> Abrir(const std::optional<anfitrion::Componente>& componente) {
    return std::make_unique<P>(componente);
}

constexpr FichaDePagina Fichas[] = {
    {L"botones", L"Botones", &Abrir<PaginaBotones>},
    {L"cajas", L"Cajas de texto", &Abrir<PaginaCajas>},
};

} // namespace

constinit const std::span<const FichaDePagina> Paginas = Fichas;

} // namespace galeria
