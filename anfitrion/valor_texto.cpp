#include "anfitrion/valor_texto.h"

#include "anfitrion/imagenes.h"

#include <cwchar>
#include <vector>

namespace anfitrion {

ErrorDeValor::ErrorDeValor(std::wstring que)
    : std::runtime_error("text of a value"), texto(std::move(que)) {}

namespace {

constexpr wchar_t Cifras[] = L"0123456789ABCDEF";

std::wstring Entrecomillar(std::wstring_view texto) {
    std::wstring escrito = L"\"";
    for (const wchar_t letra : texto) {
        if (letra == L'"' || letra == L'\\')
            escrito += L'\\';
        if (letra == L'\r')
            escrito += L"\\r";
        else if (letra == L'\n')
            escrito += L"\\n";
        else
            escrito += letra;
    }
    return escrito + L"\"";
}

std::wstring EnHexadecimal(const BYTE* bytes, std::size_t largo) {
    std::wstring escrito;
    for (std::size_t i = 0; i < largo; ++i) {
        escrito += Cifras[bytes[i] >> 4];
        escrito += Cifras[bytes[i] & 15];
    }
    return escrito;
}

/// Bytes of an icon's colours, 32 bits for each pixel, and of its mask, rows of whole words.
std::size_t BytesDeColores(int ancho, int alto) {
    return static_cast<std::size_t>(ancho) * static_cast<std::size_t>(alto) * 4;
}
std::size_t BytesDeMascara(int ancho, int alto) {
    return static_cast<std::size_t>((ancho + 15) / 16 * 2) * static_cast<std::size_t>(alto);
}

/// Icons are written pixel by pixel: not every platform saves their opacity. Empty when the picture
/// is no icon, or one without colours.
std::wstring EscribirIcono(IUnknown* objeto) {
    Puntero<IPicture> imagen;
    SHORT clase = PICTYPE_NONE;
    OLE_HANDLE manija = 0;
    ICONINFO partes{};
    if (FAILED(objeto->QueryInterface(IID_PPV_ARGS(imagen.Recibir()))) ||
        FAILED(imagen->get_Type(&clase)) || clase != PICTYPE_ICON ||
        FAILED(imagen->get_Handle(&manija)) ||
        !GetIconInfo(static_cast<HICON>(ULongToHandle(manija)), &partes))
        return {};
    std::wstring escrito;
    BITMAP mapa{};
    if (partes.fIcon && partes.hbmColor && GetObjectW(partes.hbmColor, sizeof mapa, &mapa)) {
        const int ancho = mapa.bmWidth, alto = mapa.bmHeight;
        std::vector<BYTE> colores(BytesDeColores(ancho, alto)),
            mascara(BytesDeMascara(ancho, alto));
        BITMAPINFO info{{sizeof(BITMAPINFOHEADER), ancho, -alto, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
        const HDC hdc = CreateCompatibleDC(nullptr);
        GetDIBits(hdc, partes.hbmColor, 0, static_cast<UINT>(alto), colores.data(), &info,
                  DIB_RGB_COLORS);
        DeleteDC(hdc);
        GetBitmapBits(partes.hbmMask, static_cast<LONG>(mascara.size()), mascara.data());
        escrito = L"Icono " + std::to_wstring(ancho) + L" " + std::to_wstring(alto) + L" " +
                  EnHexadecimal(colores.data(), colores.size()) +
                  EnHexadecimal(mascara.data(), mascara.size());
    }
    DeleteObject(partes.hbmColor);
    DeleteObject(partes.hbmMask);
    return escrito;
}

/// The word for the object and its bytes; empty when it can't be saved.
std::wstring EscribirObjeto(IUnknown* objeto) {
    if (!objeto)
        return L"Nothing";
    if (std::wstring icono = EscribirIcono(objeto); !icono.empty())
        return icono;
    Puntero<IPersistStream> guardable;
    Puntero<IStream> flujo;
    Puntero<IPicture> imagen;
    HGLOBAL memoria = nullptr;
    if (FAILED(objeto->QueryInterface(IID_PPV_ARGS(guardable.Recibir()))) ||
        FAILED(CreateStreamOnHGlobal(nullptr, TRUE, flujo.Recibir())) ||
        FAILED(guardable->Save(flujo.get(), FALSE)) ||
        FAILED(GetHGlobalFromStream(flujo.get(), &memoria)))
        return {};
    STATSTG estado{};
    flujo->Stat(&estado, STATFLAG_NONAME);
    const bool esImagen = SUCCEEDED(objeto->QueryInterface(IID_PPV_ARGS(imagen.Recibir())));
    std::wstring escrito = esImagen ? L"Imagen " : L"Fuente ";
    const auto* bytes = static_cast<const BYTE*>(GlobalLock(memoria));
    if (bytes)
        escrito += EnHexadecimal(bytes, static_cast<std::size_t>(estado.cbSize.QuadPart));
    GlobalUnlock(memoria);
    return escrito;
}

} // namespace

std::wstring EscribirValor(const VARIANT& valor) {
    switch (valor.vt) {
    case VT_BOOL:
        return valor.boolVal ? L"True" : L"False";
    case VT_BSTR:
        return Entrecomillar(Texto(valor));
    case VT_I2:
        return Texto(valor) + L"%";
    case VT_I4:
        return Texto(valor);
    case VT_UI1:
        return Texto(valor) + L"@";
    case VT_R4:
        return Texto(valor) + L"!";
    case VT_R8:
        return Texto(valor) + L"#";
    case VT_DISPATCH:
    case VT_UNKNOWN:
        return EscribirObjeto(valor.punkVal);
    default:
        return {};
    }
}

namespace {

[[noreturn]] void Fallar(const wchar_t* que) {
    throw ErrorDeValor(que);
}

/// The type that the last letter of a number tells; VT_EMPTY when it is no such letter.
VARTYPE TipoDe(wchar_t sufijo) {
    switch (sufijo) {
    case L'%':
        return VT_I2;
    case L'&':
        return VT_I4;
    case L'@':
        return VT_UI1;
    case L'!':
        return VT_R4;
    case L'#':
        return VT_R8;
    default:
        return VT_EMPTY;
    }
}

Variante Hexadecimal(std::wstring cifras) {
    if (!cifras.empty() && cifras.back() == L'&')
        cifras.pop_back();
    if (cifras.empty() || cifras.size() > 8 ||
        cifras.find_first_not_of(L"0123456789ABCDEFabcdef") != std::wstring::npos)
        Fallar(L"no se entiende el número hexadecimal");
    return static_cast<long>(std::wcstoul(cifras.c_str(), nullptr, 16));
}

Variante NumeroConTipo(std::wstring_view escrito) {
    if (escrito.starts_with(L"&H"))
        return Hexadecimal(std::wstring(escrito.substr(2)));
    VARTYPE tipo = VT_I4;
    if (const VARTYPE dicho = escrito.empty() ? VARTYPE{VT_EMPTY} : TipoDe(escrito.back())) {
        tipo = dicho;
        escrito.remove_suffix(1);
    } else if (escrito.find_first_of(L".eE") != escrito.npos) {
        tipo = VT_R8;
    }
    Variante valor(LeerNumero(escrito));
    if (FAILED(VariantChangeType(&valor, &valor, 0, tipo)))
        Fallar(L"el número no cabe en su tipo");
    return valor;
}

std::wstring Descomillar(std::wstring_view escrita) {
    std::wstring cadena;
    for (std::size_t i = 0; i < escrita.size(); ++i) {
        if (escrita[i] == L'"')
            Fallar(L"comillas sin barra dentro de un texto");
        if (escrita[i] != L'\\') {
            cadena += escrita[i];
            continue;
        }
        if (++i == escrita.size())
            Fallar(L"falta lo que sigue a la barra");
        cadena += escrita[i] == L'r' ? L'\r' : escrita[i] == L'n' ? L'\n' : escrita[i];
    }
    return cadena;
}

std::vector<BYTE> Bytes(std::wstring_view escrito) {
    std::vector<BYTE> bytes;
    for (std::size_t i = 0; i < escrito.size(); ++i) {
        const wchar_t* cifra = std::wcschr(Cifras, escrito[i]);
        if (!cifra || !*cifra || escrito.size() % 2)
            Fallar(L"los bytes del objeto están dañados");
        const auto valor = static_cast<BYTE>(cifra - Cifras);
        if (i % 2)
            bytes.back() = static_cast<BYTE>(bytes.back() | valor);
        else
            bytes.push_back(static_cast<BYTE>(valor << 4));
    }
    return bytes;
}

Variante Icono(std::wstring_view escrito) {
    int lados[2] = {};
    for (int& lado : lados) {
        const std::size_t fin = std::min(escrito.find(L' '), escrito.size());
        const double medida = LeerNumero(escrito.substr(0, fin));
        if (!(medida >= 1 && medida <= 1024))
            Fallar(L"la medida está fuera de rango");
        lado = static_cast<int>(medida);
        escrito.remove_prefix(std::min(fin + 1, escrito.size()));
    }
    const std::vector<BYTE> bytes = Bytes(escrito);
    const std::size_t colores = BytesDeColores(lados[0], lados[1]);
    if (bytes.size() != colores + BytesDeMascara(lados[0], lados[1]))
        Fallar(L"los bytes del icono están dañados");
    const HICON icono =
        CreateIcon(nullptr, lados[0], lados[1], 1, 32, bytes.data() + colores, bytes.data());
    if (!icono)
        Fallar(L"los bytes del icono están dañados");
    return static_cast<IDispatch*>(CrearImagen(icono).get());
}

Variante Objeto(bool esImagen, std::wstring_view escrito) {
    const std::vector<BYTE> bytes = Bytes(escrito);
    Puntero<IStream> flujo;
    Comprobar(CreateStreamOnHGlobal(nullptr, TRUE, flujo.Recibir()), "CreateStreamOnHGlobal");
    flujo->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
    flujo->Seek({}, STREAM_SEEK_SET, nullptr);
    Puntero<IDispatch> objeto;
    if (esImagen) {
        if (FAILED(OleLoadPicture(flujo.get(), 0, FALSE, IID_IPictureDisp, objeto.RecibirVoid())))
            Fallar(L"los bytes de la imagen están dañados");
        return objeto.get();
    }
    const Puntero<IFontDisp> fuente = CrearFuente(L"Arial", 8);
    const auto cargable = fuente.Como<IPersistStream>();
    if (!cargable || FAILED(cargable->Load(flujo.get())))
        Fallar(L"los bytes de la fuente están dañados");
    return static_cast<IDispatch*>(fuente.get());
}

} // namespace

double LeerNumero(std::wstring_view escrito) {
    const std::wstring copia(escrito);
    wchar_t* fin = nullptr;
    const double numero = std::wcstod(copia.c_str(), &fin);
    if (copia.empty() || fin != copia.c_str() + copia.size())
        Fallar(L"se espera un número");
    return numero;
}

Variante LeerValor(std::wstring_view escrito) {
    if (escrito == L"True" || escrito == L"False")
        return escrito == L"True";
    if (escrito == L"Nothing")
        return static_cast<IDispatch*>(nullptr);
    if (escrito.size() >= 2 && escrito.front() == L'"' && escrito.back() == L'"')
        return Descomillar(escrito.substr(1, escrito.size() - 2));
    if (escrito.starts_with(L"Icono "))
        return Icono(escrito.substr(6));
    if (escrito.starts_with(L"Fuente ") || escrito.starts_with(L"Imagen "))
        return Objeto(escrito.front() == L'I', escrito.substr(7));
    return NumeroConTipo(escrito);
}

} // namespace anfitrion
