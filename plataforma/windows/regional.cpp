#include "plataforma/windows/regional.h"

#include <algorithm>
#include <iterator>

#include <windows.h>

namespace pincela::windows {

namespace {

char16_t Separador(LCTYPE cual, char16_t usual) {
    wchar_t texto[8] = {};
    const int largo = ::GetLocaleInfoW(LOCALE_USER_DEFAULT, cual, texto, 8);
    return largo > 1 ? static_cast<char16_t>(texto[0]) : usual;
}

} // namespace

Regional LeerRegional() {
    Regional regional;
    regional.decimal = Separador(LOCALE_SDECIMAL, regional.decimal);
    regional.miles = Separador(LOCALE_STHOUSAND, regional.miles);
    wchar_t moneda[std::size(regional.moneda)];
    if (::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SCURRENCY, moneda, std::size(moneda)))
        std::copy(std::begin(moneda), std::end(moneda), regional.moneda);
    return regional;
}

} // namespace pincela::windows
