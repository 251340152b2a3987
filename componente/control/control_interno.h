// What a control opens to the property pages of its own component and to nobody else.
#pragma once

#include "componente/guid.h"

#include <unknwn.h>

namespace pincela {

class ControlUsuario;

namespace componente {

struct IControlInterno : IUnknown {
    /// The core, with the members that are not published; valid while the object is held. The
    /// caller gives the module it lives in: another one, or another build of this one, is refused.
    virtual HRESULT STDMETHODCALLTYPE DarNucleo(HMODULE modulo, ControlUsuario** nucleo) = 0;
};

inline constexpr GUID IidControlInterno = "{1EAA7203-4FFE-425C-A727-4DB915DA956E}"_guid;

} // namespace componente
} // namespace pincela
