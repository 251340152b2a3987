#include "common/conversion.h"

namespace pincela {
namespace {

// One for the whole component, which lives on one thread.
Regional regional;

} // namespace

Regional RegionalActual() {
    return regional;
}
void PonRegional(Regional nueva) {
    regional = nueva;
}

} // namespace pincela
