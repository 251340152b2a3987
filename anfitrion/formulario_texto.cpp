#include "anfitrion/formulario_texto.h"

#include "anfitrion/bolsa_memoria.h"
#include "anfitrion/imagenes.h"

#include <cwchar>
#include <vector>

namespace anfitrion {

ErrorDeFormulario::ErrorDeFormulario(int enLinea, std::wstring que)
    : std::runtime_error("text of a form"), linea(enLinea),
      texto(L"Línea " + std::to_wstring(enLinea) + L": " + que) {}

namespace {

constexpr wchar_t Cifras[] = L"0123456789ABCDEF";

/// Name of an object's class in its type library.
std::wstring ClaseDe(IUnknown* objeto) {
    Puntero<IProvideClassInfo> info;
    Puntero<ITypeInfo> tipo;
    BSTR nombre = nullptr;
    if (FAILED(objeto->QueryInterface(IID_PPV_ARGS(info.Recibir()))) ||
        FAILED(info->GetClassInfo(tipo.Recibir())) ||
        FAILED(tipo->GetDocumentation(MEMBERID_NIL, &nombre, nullptr, nullptr, nullptr)))
        return L"?";
    const std::wstring clase = nombre ? nombre : L"";
    SysFreeString(nombre);
    return clase;
}

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
        std::vector<BYTE> colores(BytesDeColores(ancho, alto)), mascara(BytesDeMascara(ancho, alto));
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

/// Empty when the value has no written form.
std::wstring EscribirValor(const Variante& valor) {
    switch (valor.vt) {
    case VT_BOOL:
        return valor.boolVal ? L"True" : L"False";
    case VT_BSTR:
        return Entrecomillar(Texto(valor));
    case VT_I2:
        return Texto(valor) + L"%";
    case VT_I4:
        return Texto(valor) + L"&";
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

/// One control as the text has it.
struct Bloque {
    int linea;
    std::wstring clase, nombre;
    RECT lugar;
    Puntero<BolsaMemoria> bolsa;
};

class Lector {
  public:
    explicit Lector(std::wstring_view texto) : resto_(texto) {}

    std::vector<Bloque> Leer() {
        std::vector<Bloque> bloques;
        while (Siguiente()) {
            if (renglon_.empty())
                continue;
            bloques.push_back(LeerBloque());
        }
        return bloques;
    }

  private:
    [[noreturn]] void Fallar(const wchar_t* que) const { throw ErrorDeFormulario(linea_, que); }

    /// The next line, without blanks around it.
    bool Siguiente() {
        if (resto_.empty())
            return false;
        const std::size_t fin = std::min(resto_.find(L'\n'), resto_.size());
        renglon_ = resto_.substr(0, fin);
        resto_.remove_prefix(std::min(fin + 1, resto_.size()));
        ++linea_;
        const std::size_t primero = renglon_.find_first_not_of(L" \t\r");
        renglon_ = primero == std::wstring_view::npos
                       ? std::wstring_view()
                       : renglon_.substr(primero, renglon_.find_last_not_of(L" \t\r") + 1 - primero);
        return true;
    }

    std::wstring Palabra() {
        const std::size_t fin = std::min(renglon_.find(L' '), renglon_.size());
        const std::wstring palabra(renglon_.substr(0, fin));
        renglon_.remove_prefix(std::min(fin + 1, renglon_.size()));
        if (palabra.empty())
            Fallar(L"falta una palabra");
        return palabra;
    }

    double Numero(const std::wstring& palabra) const {
        wchar_t* fin = nullptr;
        const double numero = std::wcstod(palabra.c_str(), &fin);
        if (fin == palabra.c_str() || *fin)
            Fallar(L"se espera un número");
        return numero;
    }

    LONG Medida() {
        const double medida = Numero(Palabra());
        if (!(medida >= -32768 && medida <= 32767))
            Fallar(L"la medida está fuera de rango");
        return static_cast<LONG>(medida);
    }

    Bloque LeerBloque() {
        Bloque bloque{linea_, {}, {}, {}, Hacer<BolsaMemoria>()};
        bloque.clase = Palabra();
        bloque.nombre = Palabra();
        bloque.lugar.left = Medida();
        bloque.lugar.top = Medida();
        bloque.lugar.right = bloque.lugar.left + Medida();
        bloque.lugar.bottom = bloque.lugar.top + Medida();
        while (Siguiente()) {
            if (renglon_ == L"Fin")
                return bloque;
            const std::size_t igual = renglon_.find(L" = ");
            if (igual == std::wstring_view::npos)
                Fallar(L"se espera «clave = valor» o «Fin»");
            bloque.bolsa->Poner(std::wstring(renglon_.substr(0, igual)),
                                Valor(renglon_.substr(igual + 3)));
        }
        Fallar(L"falta «Fin»");
    }

    Variante Valor(std::wstring_view escrito) const {
        if (escrito == L"True" || escrito == L"False")
            return escrito == L"True";
        if (escrito == L"Nothing")
            return static_cast<IDispatch*>(nullptr);
        if (escrito.size() >= 2 && escrito.front() == L'"' && escrito.back() == L'"')
            return Cadena(escrito.substr(1, escrito.size() - 2));
        if (escrito.starts_with(L"Icono "))
            return Icono(escrito.substr(6));
        if (escrito.starts_with(L"Fuente ") || escrito.starts_with(L"Imagen "))
            return Objeto(escrito.front() == L'I', escrito.substr(7));
        if (escrito.size() < 2)
            Fallar(L"no se entiende el valor");
        Variante valor(Numero(std::wstring(escrito.substr(0, escrito.size() - 1))));
        const VARTYPE tipo = Tipo(escrito.back());
        if (FAILED(VariantChangeType(&valor, &valor, 0, tipo)))
            Fallar(L"el número no cabe en su tipo");
        return valor;
    }

    VARTYPE Tipo(wchar_t sufijo) const {
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
            Fallar(L"no se entiende el valor");
        }
    }

    std::wstring Cadena(std::wstring_view escrita) const {
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

    std::vector<BYTE> Bytes(std::wstring_view escrito) const {
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

    Variante Icono(std::wstring_view escrito) const {
        int lados[2] = {};
        for (int& lado : lados) {
            const std::size_t fin = std::min(escrito.find(L' '), escrito.size());
            const double medida = Numero(std::wstring(escrito.substr(0, fin)));
            if (!(medida >= 1 && medida <= 1024))
                Fallar(L"la medida está fuera de rango");
            lado = static_cast<int>(medida);
            escrito.remove_prefix(std::min(fin + 1, escrito.size()));
        }
        const std::vector<BYTE> bytes = Bytes(escrito);
        const std::size_t colores = BytesDeColores(lados[0], lados[1]);
        if (bytes.size() != colores + BytesDeMascara(lados[0], lados[1]))
            Fallar(L"los bytes del icono están dañados");
        const HICON icono = CreateIcon(nullptr, lados[0], lados[1], 1, 32, bytes.data() + colores,
                                       bytes.data());
        if (!icono)
            Fallar(L"los bytes del icono están dañados");
        return static_cast<IDispatch*>(CrearImagen(icono).get());
    }

    Variante Objeto(bool esImagen, std::wstring_view escrito) const {
        const std::vector<BYTE> bytes = Bytes(escrito);
        Puntero<IStream> flujo;
        Comprobar(CreateStreamOnHGlobal(nullptr, TRUE, flujo.Recibir()), "CreateStreamOnHGlobal");
        flujo->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
        flujo->Seek({}, STREAM_SEEK_SET, nullptr);
        Puntero<IDispatch> objeto;
        if (esImagen) {
            if (FAILED(OleLoadPicture(flujo.get(), 0, FALSE, IID_IPictureDisp,
                                      objeto.RecibirVoid())))
                Fallar(L"los bytes de la imagen están dañados");
            return objeto.get();
        }
        const Puntero<IFontDisp> fuente = CrearFuente(L"Arial", 8);
        const auto cargable = fuente.Como<IPersistStream>();
        if (!cargable || FAILED(cargable->Load(flujo.get())))
            Fallar(L"los bytes de la fuente están dañados");
        return static_cast<IDispatch*>(fuente.get());
    }

    std::wstring_view resto_, renglon_;
    int linea_ = 0;
};

} // namespace

std::wstring EscribirFormulario(const Formulario& forma) {
    std::wstring texto;
    for (const auto& control : forma.Controles()) {
        const auto guardable = control->Como<IPersistPropertyBag>();
        const auto bolsa = Hacer<BolsaMemoria>();
        if (!guardable || FAILED(guardable->Save(bolsa.get(), FALSE, FALSE)))
            continue;
        const RECT r = control->Rectangulo();
        texto += ClaseDe(control->Objeto()) + L" " + control->Nombre();
        for (const LONG medida : {r.left, r.top, r.right - r.left, r.bottom - r.top})
            texto += L" " + std::to_wstring(medida);
        texto += L"\r\n";
        for (const auto& [clave, valor] : bolsa->Valores())
            if (const std::wstring escrito = EscribirValor(valor); !escrito.empty())
                texto += L"  " + clave + L" = " + escrito + L"\r\n";
        texto += L"Fin\r\n";
    }
    return texto;
}

void LeerFormulario(Formulario& forma, std::wstring_view texto) {
    const std::vector<Bloque> bloques = Lector(texto).Leer();
    for (const Bloque& bloque : bloques) {
        const auto control = forma.Control(bloque.nombre);
        if (!control || ClaseDe(control->Objeto()) != bloque.clase)
            throw ErrorDeFormulario(bloque.linea, L"el formulario no tiene ese control: " +
                                                      bloque.nombre);
    }
    for (const Bloque& bloque : bloques) {
        const auto control = forma.Control(bloque.nombre);
        control->Mover(bloque.lugar);
        Comprobar(control->Como<IPersistPropertyBag>()->Load(bloque.bolsa.get(), nullptr),
                  "IPersistPropertyBag::Load");
    }
}

} // namespace anfitrion
