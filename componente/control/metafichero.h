// The picture of a control in the platform's classic format, for containers that know no other.
#pragma once

#include <windows.h>

#include <functional>

namespace pincela::componente {

/// A metafile that shows what `dibujar` draws in `pixeles`, and nothing where it draws nothing. Its
/// records are a picture: the classic format has neither clip paths nor letters beyond one code
/// page. A size that no screen has is shown smaller; the one who plays it stretches it anyway.
/// Null when the platform has no memory left. The caller deletes it.
HMETAFILE HacerMetafichero(SIZE pixeles, const std::function<HRESULT(HDC, const RECTL&)>& dibujar);

/// The same as a container receives it, `extension` in HIMETRIC; null as above. Takes over the
/// metafile.
HGLOBAL EnvolverMetafichero(HMETAFILE metafichero, SIZE extension);

} // namespace pincela::componente
