// The form that the designer's page shows at first.
#pragma once

namespace galeria {

extern const wchar_t FormularioDeMuestra[];

} // namespace galeria
