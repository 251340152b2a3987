#include "componente/manual/controles.h"

#include "area/area.h"
#include "botonazo/botonazo.h"
#include "pruebas/nativas/entorno_grabador.h"
#include "tbox/tbox.h"
#include "tbox/tboxss.h"

namespace pincela::manual {

template <class Nucleo>
std::shared_ptr<Nucleo> Hacer() {
    struct Alojado {
        pruebas::EntornoGrabador entorno;
        Nucleo nucleo{entorno};
    };
    const auto alojado = std::make_shared<Alojado>();
    return {alojado, &alojado->nucleo};
}

template std::shared_ptr<Area> Hacer();
template std::shared_ptr<Botonazo> Hacer();
template std::shared_ptr<TBoxML> Hacer();
template std::shared_ptr<Tbox> Hacer();
template std::shared_ptr<TboxSS> Hacer();
template std::shared_ptr<TboxSSML> Hacer();

} // namespace pincela::manual
