#include "plataforma/windows/regional.h"

#include "common/conversion.h"

#include <windows.h>

namespace pincela::windows {

namespace {

char16_t Separador(LCTYPE cual, char16_t usual) {
    wchar_t texto[8] = {};
    const int largo = ::GetLocaleInfoW(LOCALE_USER_DEFAULT, cual, texto, 8);
    return largo > 1 ? static_cast<char16_t>(texto[0]) : usual;
}

} // namespace

void LeerRegional() {
    const Regional usual;
    PonRegional(
        {Separador(LOCALE_SDECIMAL, usual.decimal), Separador(LOCALE_STHOUSAND, usual.miles)});
}

} // namespace pincela::windows
