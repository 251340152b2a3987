// The published classes, in type-library order, and the record of the library itself.
#pragma once

#include "componente/guid.h"
#include "componente/tablas/area.h"
#include "componente/tablas/botonazo.h"
#include "componente/tablas/efectos.h"
#include "componente/tablas/enumeraciones.h"
#include "componente/tablas/paginas.h"
#include "componente/tablas/tboxss.h"

#include <span>

#include <oleidl.h>

namespace pincela::componente {

inline constexpr GUID GuidDeLaBiblioteca = "{43ABF82C-A5C1-47E5-9CCA-890467E2A6BC}"_guid;
inline constexpr wchar_t NombreDeLaBiblioteca[] = L"Pincela";
inline constexpr WORD VersionMayor = 1;
inline constexpr WORD VersionMenor = 0;
inline constexpr LCID LocaleDeLaBiblioteca = 0x409;

enum class Genero { Creable, Pagina, Control };

/// What the outside knows of a class beside its members.
struct DatosClase {
    const wchar_t* nombre;
    GUID clase;
    GUID interfaz;
    GUID eventos; // of controls; zero for the others
    Genero genero;
    /// Toolbox image of a control; 0 for the others.
    WORD mapaDeBits = 0;
    /// Property pages a designer shows for it, in order.
    std::span<const GUID> paginas = {};
    /// OLEMISC_ flags of a control.
    DWORD rasgosOle = 0;
    /// Size of a new control in pixels.
    SIZE tamanio = {};
};

namespace detalle {
inline constexpr DWORD RasgosDeControl = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE |
                                         OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE |
                                         OLEMISC_SETCLIENTSITEFIRST;
inline constexpr GUID PaginaGeneral = "{0334ABD4-F062-46B8-92E7-1943461EAC27}"_guid;
inline constexpr GUID PaginaColores = "{CCB0D824-0EE7-4458-8B1B-43639DECC283}"_guid;
inline constexpr GUID PaginaColoresArea = "{15498A10-DFCC-440B-94A4-FC0A5C16D8E4}"_guid;
// The platform's own pages.
inline constexpr GUID PaginaDeFuente = "{0BE35200-8F91-11CE-9DE3-00AA004BB851}"_guid;
inline constexpr GUID PaginaDeColor = "{0BE35201-8F91-11CE-9DE3-00AA004BB851}"_guid;
inline constexpr GUID PaginaDeImagen = "{0BE35202-8F91-11CE-9DE3-00AA004BB851}"_guid;

inline constexpr GUID PaginasDeBotonazo[] = {PaginaGeneral, PaginaColores, PaginaDeImagen,
                                             PaginaDeFuente};
inline constexpr GUID PaginasDeArea[] = {PaginaColoresArea, PaginaDeFuente};
inline constexpr GUID PaginasDeTexto[] = {PaginaDeFuente, PaginaDeColor};
} // namespace detalle

inline constexpr DatosClase DatosEfectos = {.nombre = L"Efectos",
                                            .clase = "{6D3947D6-CC35-44D4-AD56-34809B566707}"_guid,
                                            .interfaz =
                                                "{5FF11382-A93D-4E56-90F0-0FC58C722298}"_guid,
                                            .eventos = {},
                                            .genero = Genero::Creable};
inline constexpr DatosClase DatosProPColores = {.nombre = L"ProPColores",
                                                .clase = detalle::PaginaColores,
                                                .interfaz =
                                                    "{47644BA4-D5B0-4400-88FD-EA26DE35D27B}"_guid,
                                                .eventos = {},
                                                .genero = Genero::Pagina};
inline constexpr DatosClase DatosProPGeneral = {.nombre = L"ProPGeneral",
                                                .clase = detalle::PaginaGeneral,
                                                .interfaz =
                                                    "{7B8005EF-A3D8-4CEE-9E6A-22E388E21B85}"_guid,
                                                .eventos = {},
                                                .genero = Genero::Pagina};
inline constexpr DatosClase DatosTBoxML = {.nombre = L"TBoxML",
                                           .clase = "{6792BA99-ABA4-4CE8-BF28-75F23C455855}"_guid,
                                           .interfaz =
                                               "{3C67C868-2099-445A-B3AC-DAD2B04D5D44}"_guid,
                                           .eventos = "{D6027E88-C579-4E4C-B808-7572631CED21}"_guid,
                                           .genero = Genero::Control,
                                           .mapaDeBits = 30000,
                                           .rasgosOle = detalle::RasgosDeControl,
                                           .tamanio = {160, 80}};
inline constexpr DatosClase DatosBotonazo = {
    .nombre = L"Botonazo",
    .clase = "{4F01CAAB-E98C-4DD8-A111-A79CD4A6F307}"_guid,
    .interfaz = "{95905ECF-5CD3-4168-BAD9-D1991AB09E69}"_guid,
    .eventos = "{174D93F6-9C15-4924-BC23-B8265A8984B8}"_guid,
    .genero = Genero::Control,
    .mapaDeBits = 30001,
    .paginas = detalle::PaginasDeBotonazo,
    .rasgosOle = detalle::RasgosDeControl | OLEMISC_ACTSLIKEBUTTON,
    .tamanio = {100, 32}};
inline constexpr DatosClase DatosTboxSSML = {
    .nombre = L"TboxSSML",
    .clase = "{F55B6F57-726A-4AF0-BEF3-D52E41E1AE40}"_guid,
    .interfaz = "{F57EEBC1-6A8A-440E-AA2C-A889860A2A72}"_guid,
    .eventos = "{EE55C52B-D7B9-4CD0-9D3E-54C3B5A70040}"_guid,
    .genero = Genero::Control,
    .mapaDeBits = 30002,
    .paginas = detalle::PaginasDeTexto,
    .rasgosOle = detalle::RasgosDeControl,
    .tamanio = {160, 64}};
inline constexpr DatosClase DatosTbox = {.nombre = L"Tbox",
                                         .clase = "{0AEE3F22-BBD7-4E09-8F90-BDC5FA6F7A36}"_guid,
                                         .interfaz = "{BD7ECBDA-EED1-409E-BDF7-40E59320B6E6}"_guid,
                                         .eventos = "{3463A6D8-2AD1-49DD-A4D8-06A30F7ED065}"_guid,
                                         .genero = Genero::Control,
                                         .mapaDeBits = 30003,
                                         .paginas = detalle::PaginasDeTexto,
                                         .rasgosOle = detalle::RasgosDeControl,
                                         .tamanio = {160, 48}};
inline constexpr DatosClase DatosTboxSS = {.nombre = L"TboxSS",
                                           .clase = "{5BED868B-9421-4721-AC7B-336ABB6C8B50}"_guid,
                                           .interfaz =
                                               "{4BB0923B-5B0F-4D8F-A182-23740D9E9216}"_guid,
                                           .eventos = "{F6FF0D50-2AF9-4343-8A61-2CBFF28CF54F}"_guid,
                                           .genero = Genero::Control,
                                           .mapaDeBits = 30004,
                                           .paginas = detalle::PaginasDeTexto,
                                           .rasgosOle = detalle::RasgosDeControl,
                                           .tamanio = {120, 24}};
inline constexpr DatosClase DatosArea = {.nombre = L"Area",
                                         .clase = "{E8ED987E-24A6-44AE-89AE-A75346F5939A}"_guid,
                                         .interfaz = "{5D6020B6-8386-4208-B342-2435CD642F99}"_guid,
                                         .eventos = "{1572527E-22FF-4851-AFFA-2FCB56168F5C}"_guid,
                                         .genero = Genero::Control,
                                         .mapaDeBits = 30005,
                                         .paginas = detalle::PaginasDeArea,
                                         .rasgosOle =
                                             detalle::RasgosDeControl | OLEMISC_SIMPLEFRAME,
                                         .tamanio = {200, 120}};
inline constexpr DatosClase DatosProPColoresArea = {
    .nombre = L"ProPColoresArea",
    .clase = detalle::PaginaColoresArea,
    .interfaz = "{F141DBED-2568-4477-B574-B2E5F3B0AF12}"_guid,
    .eventos = {},
    .genero = Genero::Pagina};

/// Calls `f.template operator()<Tabla>(datos)` for each class in type-library order.
template <class F>
void ParaCadaClase(F&& f) {
    f.template operator()<TablaEfectos>(DatosEfectos);
    f.template operator()<TablaProPColores>(DatosProPColores);
    f.template operator()<TablaProPGeneral>(DatosProPGeneral);
    f.template operator()<TablaTBoxML>(DatosTBoxML);
    f.template operator()<TablaBotonazo>(DatosBotonazo);
    f.template operator()<TablaTboxSSML>(DatosTboxSSML);
    f.template operator()<TablaTbox>(DatosTbox);
    f.template operator()<TablaTboxSS>(DatosTboxSS);
    f.template operator()<TablaArea>(DatosArea);
    f.template operator()<TablaProPColoresArea>(DatosProPColoresArea);
}

} // namespace pincela::componente
