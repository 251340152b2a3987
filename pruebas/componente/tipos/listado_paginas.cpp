// Members of the property pages.
#include "pruebas/componente/tipos/listado.h"

namespace tipos {

extern const std::vector<Miembro> MiembrosProPColores{
    {L"AgregarColorD", L"metodo", L"(Obj: objeto&, I: byte&) : void", 0x6003000D},
    {L"EliminarColorD", L"metodo", L"(Obj: objeto&, I: byte&) : void", 0x6003000E},
    {L"PreVis", L"metodo", L"(I: byte&, Objs: objeto&) : void", 0x6003000F},
};

extern const std::vector<Miembro> MiembrosProPGeneral{};

extern const std::vector<Miembro> MiembrosProPColoresArea{
    {L"AgregarColorD", L"metodo", L"(Obj: objeto&, I: byte&) : void", 0x60030010},
    {L"EliminarColorD", L"metodo", L"(Obj: objeto&, I: byte&) : void", 0x60030011},
    {L"PreVis", L"metodo", L"(Objs: objeto&) : void", 0x60030012},
};

} // namespace tipos
