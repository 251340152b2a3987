// The platform's interface for grouping properties; its header is not among the compiler's.
#pragma once

#include <windows.h>

#include <unknwn.h>

namespace pincela::componente {

using PROPCAT = int;

// Standard groups; containers show their own name for these or ask for ours.
inline constexpr PROPCAT PROPCAT_Misc = -2;
inline constexpr PROPCAT PROPCAT_Font = -3;
inline constexpr PROPCAT PROPCAT_Appearance = -5;
inline constexpr PROPCAT PROPCAT_Behavior = -6;
inline constexpr PROPCAT PROPCAT_Data = -7;

struct ICategorizeProperties : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE MapPropertyToCategory(DISPID dispid, PROPCAT* categoria) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetCategoryName(PROPCAT categoria, LCID lcid,
                                                      BSTR* nombre) = 0;

  protected:
    ~ICategorizeProperties() = default;
};

} // namespace pincela::componente
