// What the component publishes, written down once more for the tests: nothing here is shared with
// the component itself.
#pragma once

#include "anfitrion/componente.h"
#include "anfitrion/variante.h"

#include <windows.h>

#include <array>
#include <string>
#include <string_view>

namespace publicado {

/// Identifier from its text; a text that is no identifier gives the null one.
inline GUID Guid(const wchar_t* texto) {
    GUID guid{};
    return SUCCEEDED(IIDFromString(texto, &guid)) ? guid : GUID{};
}

inline std::wstring Escrito(REFGUID guid) {
    wchar_t texto[39];
    StringFromGUID2(guid, texto, 39);
    return texto;
}

enum class Genero { Creable, Pagina, Control };

struct Clase {
    const wchar_t* nombre;
    const wchar_t* clase;
    const wchar_t* interfaz;
    const wchar_t* eventos; // null for those without events
    Genero genero;
};

inline constexpr const wchar_t* Biblioteca = L"{43ABF82C-A5C1-47E5-9CCA-890467E2A6BC}";

/// In the order of the type library.
inline constexpr std::array<Clase, 10> Clases{{
    {L"Efectos", L"{6D3947D6-CC35-44D4-AD56-34809B566707}",
     L"{5FF11382-A93D-4E56-90F0-0FC58C722298}", nullptr, Genero::Creable},
    {L"ProPColores", L"{CCB0D824-0EE7-4458-8B1B-43639DECC283}",
     L"{47644BA4-D5B0-4400-88FD-EA26DE35D27B}", nullptr, Genero::Pagina},
    {L"ProPGeneral", L"{0334ABD4-F062-46B8-92E7-1943461EAC27}",
     L"{7B8005EF-A3D8-4CEE-9E6A-22E388E21B85}", nullptr, Genero::Pagina},
    {L"TBoxML", L"{6792BA99-ABA4-4CE8-BF28-75F23C455855}",
     L"{3C67C868-2099-445A-B3AC-DAD2B04D5D44}", L"{D6027E88-C579-4E4C-B808-7572631CED21}",
     Genero::Control},
    {L"Botonazo", L"{4F01CAAB-E98C-4DD8-A111-A79CD4A6F307}",
     L"{95905ECF-5CD3-4168-BAD9-D1991AB09E69}", L"{174D93F6-9C15-4924-BC23-B8265A8984B8}",
     Genero::Control},
    {L"TboxSSML", L"{F55B6F57-726A-4AF0-BEF3-D52E41E1AE40}",
     L"{F57EEBC1-6A8A-440E-AA2C-A889860A2A72}", L"{EE55C52B-D7B9-4CD0-9D3E-54C3B5A70040}",
     Genero::Control},
    {L"Tbox", L"{0AEE3F22-BBD7-4E09-8F90-BDC5FA6F7A36}", L"{BD7ECBDA-EED1-409E-BDF7-40E59320B6E6}",
     L"{3463A6D8-2AD1-49DD-A4D8-06A30F7ED065}", Genero::Control},
    {L"TboxSS", L"{5BED868B-9421-4721-AC7B-336ABB6C8B50}",
     L"{4BB0923B-5B0F-4D8F-A182-23740D9E9216}", L"{F6FF0D50-2AF9-4343-8A61-2CBFF28CF54F}",
     Genero::Control},
    {L"Area", L"{E8ED987E-24A6-44AE-89AE-A75346F5939A}", L"{5D6020B6-8386-4208-B342-2435CD642F99}",
     L"{1572527E-22FF-4851-AFFA-2FCB56168F5C}", Genero::Control},
    {L"ProPColoresArea", L"{15498A10-DFCC-440B-94A4-FC0A5C16D8E4}",
     L"{F141DBED-2568-4477-B574-B2E5F3B0AF12}", nullptr, Genero::Pagina},
}};

inline const Clase& ClaseDe(std::wstring_view nombre) {
    for (const Clase& una : Clases)
        if (nombre == una.nombre)
            return una;
    return Clases[0];
}

/// The component file beside the test program.
inline std::wstring RutaDelComponente() {
    wchar_t ruta[MAX_PATH];
    std::wstring texto(ruta, GetModuleFileNameW(nullptr, ruta, MAX_PATH));
    return texto.substr(0, texto.rfind(L'\\') + 1) + L"Pincela.ocx";
}

/// OLE for the length of a test.
struct SesionOle {
    SesionOle() { OleInitialize(nullptr); }
    SesionOle(const SesionOle&) = delete;
    SesionOle& operator=(const SesionOle&) = delete;
    ~SesionOle() { OleUninitialize(); }
};

/// A new object of a class, straight out of the component file.
inline anfitrion::Puntero<IUnknown> Crear(const anfitrion::Componente& componente,
                                          std::wstring_view nombre) {
    return componente.Crear(Guid(ClaseDe(nombre).clase));
}

} // namespace publicado
