// The type library as it has to be, as plain data.
#pragma once

#include <windows.h>

#include <oaidl.h>

#include <string>
#include <string_view>
#include <vector>

namespace tipos {

struct Miembro {
    const wchar_t* nombre;
    /// Its slots, in order: "get put", "get putref", "get", "metodo"; "put&" takes its argument by
    /// reference.
    const wchar_t* forma;
    /// Type of a property; parameters and result of a method, optional ones in brackets.
    const wchar_t* tipo;
    DISPID dispid;
    WORD banderas = 0;
    const wchar_t* ayuda = nullptr;
};

extern const std::vector<Miembro> MiembrosEfectos, MiembrosBotonazo, MiembrosArea, MiembrosTBoxML,
    MiembrosTbox, MiembrosTboxSS, MiembrosProPColores, MiembrosProPGeneral, MiembrosProPColoresArea;

const std::vector<Miembro>& MiembrosDe(std::wstring_view clase);
/// "Click()", "PresTecla(Tecla: short&, Shift: short&)"..., numbered from 1.
const std::vector<std::string>& EventosDe(std::wstring_view clase);

struct Enumeracion {
    const wchar_t* nombre;
    const wchar_t* guid;
    std::vector<std::pair<const wchar_t*, long>> miembros;
};

const std::vector<Enumeracion>& Enumeraciones();

/// One line for each slot after the seven inherited ones, in the words of the reader.
std::vector<std::string> LineasDe(std::wstring_view clase);

} // namespace tipos
