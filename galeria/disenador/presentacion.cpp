// Values of properties between what automation carries and what the user reads and writes.
#include "galeria/disenador/hoja_propiedades.h"

#include "anfitrion/tardio.h"
#include "anfitrion/valor_texto.h"

#include <algorithm>
#include <cwchar>

namespace galeria {

using namespace anfitrion;

namespace {

/// Stands for the end of a line in the single line of the list.
constexpr wchar_t FinDeLinea = L'\x21B5';
constexpr wchar_t Ninguna[] = L"(ninguna)";

bool Iguales(const std::wstring& a, const std::wstring& b) {
    return lstrcmpiW(a.c_str(), b.c_str()) == 0;
}

std::wstring EnUnaLinea(const std::wstring& texto) {
    std::wstring linea;
    for (const wchar_t letra : texto)
        if (letra == L'\n')
            linea += FinDeLinea;
        else if (letra != L'\r')
            linea += letra;
    return linea;
}

std::wstring EnLineas(const std::wstring& linea) {
    std::wstring texto;
    for (const wchar_t letra : linea)
        if (letra == FinDeLinea)
            texto += L"\r\n";
        else
            texto += letra;
    return texto;
}

/// With the decimal sign of the user.
std::wstring EnSuIdioma(const Variante& valor) {
    Variante texto;
    if (FAILED(VariantChangeTypeEx(&texto, const_cast<Variante*>(&valor), LOCALE_USER_DEFAULT, 0,
                                   VT_BSTR)))
        return Texto(valor);
    return texto.bstrVal;
}

std::wstring PresentarFuente(IDispatch* fuente) {
    if (!fuente)
        return Ninguna;
    std::wstring texto = Texto(Leer(fuente, L"Name")) + L"; " +
                         EnSuIdioma(Variante(Real(Leer(fuente, L"Size")))) + L" pt";
    static constexpr struct {
        const wchar_t *propiedad, *palabra;
    } Rasgos[] = {{L"Bold", L"; negrita"},
                  {L"Italic", L"; cursiva"},
                  {L"Underline", L"; subrayada"},
                  {L"Strikethrough", L"; tachada"}};
    for (const auto& rasgo : Rasgos)
        if (Logico(Leer(fuente, rasgo.propiedad)))
            texto += rasgo.palabra;
    return texto;
}

std::wstring PresentarImagen(IDispatch* objeto) {
    const auto imagen = Puntero<IDispatch>(objeto).Como<IPicture>();
    SHORT clase = PICTYPE_NONE;
    if (imagen)
        imagen->get_Type(&clase);
    switch (clase) {
    case PICTYPE_BITMAP:
        return L"(mapa de bits)";
    case PICTYPE_ICON:
        return L"(icono)";
    case PICTYPE_METAFILE:
    case PICTYPE_ENHMETAFILE:
        return L"(metarchivo)";
    default:
        return Ninguna;
    }
}

std::wstring PresentarOpcion(const Propiedad& propiedad, long valor) {
    for (const Opcion& opcion : propiedad.opciones)
        if (opcion.valor == valor)
            return opcion.nombre;
    return std::to_wstring(valor);
}

std::wstring PresentarColor(long valor) {
    wchar_t texto[16];
    wsprintfW(texto, L"&H%08X", static_cast<unsigned>(valor));
    return texto;
}

Variante InterpretarEntero(const std::wstring& texto) {
    if (texto.starts_with(L"&H") || texto.starts_with(L"&h"))
        return LeerValor(L"&H" + texto.substr(2));
    if (texto.find_first_not_of(L"0123456789+-") != std::wstring::npos)
        throw ErrorDeValor(L"se espera un número entero");
    return LeerValor(texto);
}

Variante InterpretarReal(std::wstring texto) {
    // Neither sign is a thousands separator here.
    std::replace(texto.begin(), texto.end(), L',', L'.');
    return LeerNumero(texto);
}

Variante InterpretarLogico(const std::wstring& texto) {
    for (const wchar_t* si : {L"True", L"Verdadero", L"Sí", L"-1"})
        if (Iguales(texto, si))
            return true;
    for (const wchar_t* no : {L"False", L"Falso", L"No", L"0"})
        if (Iguales(texto, no))
            return false;
    throw ErrorDeValor(L"se espera True o False");
}

Variante InterpretarOpcion(const Propiedad& propiedad, const std::wstring& texto) {
    for (const Opcion& opcion : propiedad.opciones)
        if (Iguales(opcion.nombre, texto))
            return opcion.valor;
    try {
        return InterpretarEntero(texto);
    } catch (const ErrorDeValor&) {
        throw ErrorDeValor(L"no es una de las opciones, ni un número");
    }
}

/// Also #RRGGBB, as the web has them.
Variante InterpretarColor(const std::wstring& texto) {
    if (!texto.starts_with(L"#"))
        return InterpretarEntero(texto);
    if (texto.size() != 7)
        throw ErrorDeValor(L"un color es &H00BBGGRR, #RRGGBB o un número");
    const long rgb = Entero(LeerValor(L"&H" + texto.substr(1)));
    return static_cast<long>(RGB(rgb >> 16 & 0xFF, rgb >> 8 & 0xFF, rgb & 0xFF));
}

Variante InterpretarObjeto(const std::wstring& texto) {
    if (texto.empty() || Iguales(texto, Ninguna))
        return static_cast<IDispatch*>(nullptr);
    throw ErrorDeValor(L"se elige con el botón «...»");
}

} // namespace

std::wstring Presentar(const Propiedad& propiedad, const Variante& valor) {
    const bool objeto = valor.vt == VT_DISPATCH || valor.vt == VT_UNKNOWN;
    switch (propiedad.genero) {
    case Genero::Texto:
        return EnUnaLinea(Texto(valor));
    case Genero::Logico:
        return Logico(valor) ? L"True" : L"False";
    case Genero::Enumerada:
        return PresentarOpcion(propiedad, Entero(valor));
    case Genero::Color:
        return PresentarColor(Entero(valor));
    case Genero::Real:
        return EnSuIdioma(valor);
    case Genero::Fuente:
        return PresentarFuente(objeto ? valor.pdispVal : nullptr);
    case Genero::Imagen:
        return PresentarImagen(objeto ? valor.pdispVal : nullptr);
    default:
        return Mostrar(valor);
    }
}

Variante Interpretar(const Propiedad& propiedad, const std::wstring& texto) {
    switch (propiedad.genero) {
    case Genero::Texto:
        return EnLineas(texto);
    case Genero::Entero:
        return InterpretarEntero(texto);
    case Genero::Real:
        return InterpretarReal(texto);
    case Genero::Logico:
        return InterpretarLogico(texto);
    case Genero::Enumerada:
        return InterpretarOpcion(propiedad, texto);
    case Genero::Color:
        return InterpretarColor(texto);
    case Genero::Fuente:
    case Genero::Imagen:
        return InterpretarObjeto(texto);
    default:
        throw ErrorDeValor(L"un valor de esta clase no se puede escribir");
    }
}

} // namespace galeria
