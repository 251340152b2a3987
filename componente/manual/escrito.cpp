#include "componente/manual/escrito.h"

#include "componente/tablas/enumeraciones.h"

#include <objbase.h>

namespace pincela::manual {

using namespace pincela::componente;

std::string Utf8(std::wstring_view texto) {
    const int largo = static_cast<int>(texto.size());
    const int hace =
        WideCharToMultiByte(CP_UTF8, 0, texto.data(), largo, nullptr, 0, nullptr, nullptr);
    std::string salida(static_cast<std::size_t>(hace), '\0');
    WideCharToMultiByte(CP_UTF8, 0, texto.data(), largo, salida.data(), hace, nullptr, nullptr);
    return salida;
}

std::string Escrito(const GUID& guid) {
    wchar_t texto[39];
    StringFromGUID2(guid, texto, 39);
    return Utf8(texto);
}

std::string Celda(std::wstring_view texto) {
    std::string celda;
    for (const char letra : Utf8(texto)) {
        if (letra == '|' || letra == '<' || letra == '*' || letra == '_')
            celda += '\\';
        celda += letra;
    }
    return celda;
}

namespace {

std::string NombreSimple(const Tipo& tipo) {
    switch (tipo.vt) {
    case VT_BOOL:
        return "Boolean";
    case VT_UI1:
        return "Byte";
    case VT_I2:
        return "Integer";
    case VT_I4:
        return "Long";
    case VT_R4:
        return "Single";
    case VT_BSTR:
        return "String";
    case VT_VARIANT:
        return "Variant";
    default:
        return "Object";
    }
}

std::string NombreSinEnlace(const Tipo& tipo) {
    switch (tipo.familia) {
    case Familia::Enumeracion:
        return Utf8(tipo.enumeracion->nombre);
    case Familia::Registro:
        return "tRectRedo";
    case Familia::ColorOle:
        return "OLE_COLOR";
    case Familia::ObjetoFuente:
        return "Font";
    case Familia::ObjetoImagen:
        return "Picture";
    default:
        return NombreSimple(tipo);
    }
}

} // namespace

std::string NombreDelTipo(const Tipo& tipo) {
    const std::string nombre = NombreSinEnlace(tipo);
    if (tipo.familia != Familia::Enumeracion && tipo.familia != Familia::Registro)
        return nombre;
    std::string ancla = nombre;
    for (char& letra : ancla)
        letra = static_cast<char>(tolower(letra));
    return "[" + nombre + "](Enumeraciones.md#" + ancla + ")";
}

std::string Llamada(const wchar_t* nombre, const std::vector<DescripcionParametro>& parametros) {
    std::string texto = Utf8(nombre) + "(";
    const char* coma = "";
    for (const DescripcionParametro& p : parametros) {
        std::string uno = (p.tipo.porReferencia ? "" : "ByVal ") + Utf8(p.parametro.nombre) +
                          " As " + NombreSinEnlace(p.tipo);
        if (p.parametro.tipoDefecto == VT_BOOL)
            uno += p.parametro.defecto ? " = True" : " = False";
        else if (p.parametro.tipoDefecto != VT_EMPTY)
            uno += " = " + std::to_string(p.parametro.defecto);
        texto += coma + (p.parametro.opcional ? "[" + uno + "]" : uno);
        coma = ", ";
    }
    return texto + ")";
}

} // namespace pincela::manual
