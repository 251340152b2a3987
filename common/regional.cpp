#include "common/conversion.h"

namespace pincela {
namespace {

// Nothing that is read is kept: threads have nothing to share, and nobody has to tell of changes.
LectorRegional lectorRegional = [] { return Regional(); };

} // namespace

Regional RegionalActual() {
    return lectorRegional();
}
void PonLectorRegional(LectorRegional lector) {
    lectorRegional = lector;
}

} // namespace pincela
