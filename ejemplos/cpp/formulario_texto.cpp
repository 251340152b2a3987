#include "ejemplos/cpp/formulario_texto.h"

#include "anfitrion/bolsa_memoria.h"

#include <array>
#include <cwchar>

namespace ejemplo {

using namespace anfitrion;

namespace {

constexpr std::array<const wchar_t*, 4> Lados{L"Left", L"Top", L"Width", L"Height"};

std::wstring_view Recortar(std::wstring_view texto) {
    const auto primero = texto.find_first_not_of(L" \t\r");
    return primero == texto.npos
               ? std::wstring_view()
               : texto.substr(primero, texto.find_last_not_of(L" \t\r") - primero + 1);
}

class Lector {
  public:
    Lector(Formulario& forma, const Componente& componente, std::wstring_view texto)
        : forma_(forma), componente_(componente), resto_(texto) {}

    void Leer() {
        for (std::wstring_view linea; Siguiente(linea);) {
            if (!linea.starts_with(L"Begin "))
                Fallar("se esperaba Begin");
            LeerControl(Recortar(linea.substr(6)));
        }
    }

  private:
    [[noreturn]] void Fallar(const char* que) const {
        throw TextoErroneo("línea " + std::to_string(numero_) + ": " + que);
    }

    bool Siguiente(std::wstring_view& linea) {
        while (!resto_.empty()) {
            const auto fin = resto_.find(L'\n');
            linea = Recortar(resto_.substr(0, fin));
            resto_ = fin == resto_.npos ? std::wstring_view() : resto_.substr(fin + 1);
            ++numero_;
            if (!linea.empty() && linea.front() != L'\'')
                return true;
        }
        return false;
    }

    void LeerControl(std::wstring_view titulo) {
        const auto blanco = titulo.find(L' ');
        if (blanco == titulo.npos)
            Fallar("falta el nombre del control");
        const auto bolsa = Hacer<BolsaMemoria>();
        std::array<long, 4> lados{0, 0, 100, 30};
        for (std::wstring_view linea;;) {
            if (!Siguiente(linea))
                Fallar("falta End");
            if (linea == L"End")
                break;
            LeerPar(linea, *bolsa.get(), lados);
        }
        const RECT lugar{lados[0], lados[1], lados[0] + lados[2], lados[1] + lados[3]};
        forma_.Agregar(componente_, componente_.Clase(std::wstring(titulo.substr(0, blanco))),
                       std::wstring(Recortar(titulo.substr(blanco))), lugar,
                       Origen{.bolsa = bolsa.get()});
    }

    void LeerPar(std::wstring_view linea, BolsaMemoria& bolsa, std::array<long, 4>& lados) const {
        const auto igual = linea.find(L'=');
        if (igual == linea.npos)
            Fallar("se esperaba clave = valor");
        const std::wstring_view clave = Recortar(linea.substr(0, igual));
        const Variante valor = LeerValor(Recortar(linea.substr(igual + 1)));
        for (std::size_t i = 0; i < Lados.size(); ++i)
            if (clave == Lados[i]) {
                if (valor.vt != VT_I4)
                    Fallar("una medida es un número entero");
                lados[i] = valor.lVal;
                return;
            }
        bolsa.Poner(std::wstring(clave), valor);
    }

    Variante LeerValor(std::wstring_view texto) const {
        if (texto == L"True" || texto == L"False")
            return texto == L"True";
        if (texto.size() >= 2 && texto.front() == L'"' && texto.back() == L'"') {
            std::wstring limpio;
            for (std::size_t i = 1; i + 1 < texto.size(); ++i) {
                limpio += texto[i];
                if (texto[i] == L'"' && texto[++i] != L'"')
                    Fallar("comillas sueltas");
            }
            return limpio;
        }
        const std::wstring cifras(texto);
        wchar_t* fin = nullptr;
        const bool hexadecimal = texto.starts_with(L"&H");
        const long entero = hexadecimal
                                ? static_cast<long>(std::wcstoul(cifras.c_str() + 2, &fin, 16))
                                : std::wcstol(cifras.c_str(), &fin, 10);
        if (fin != cifras.c_str() + (hexadecimal ? 2 : 0) && *fin == L'\0')
            return entero;
        const double real = std::wcstod(cifras.c_str(), &fin);
        if (cifras.empty() || hexadecimal || *fin != L'\0')
            Fallar("el valor no se entiende");
        return real;
    }

    Formulario& forma_;
    const Componente& componente_;
    std::wstring_view resto_;
    int numero_ = 0;
};

/// Empty when the value can't be written.
std::wstring EscribirValor(const Variante& valor) {
    switch (valor.vt) {
    case VT_BOOL:
        return valor.boolVal ? L"True" : L"False";
    case VT_BSTR: {
        std::wstring texto = L"\"";
        for (const wchar_t letra : Texto(valor))
            texto += letra == L'"' ? std::wstring(2, letra) : std::wstring(1, letra);
        return texto + L"\"";
    }
    case VT_UI1:
    case VT_I2:
    case VT_I4:
    case VT_R4:
    case VT_R8:
        return Texto(valor);
    default:
        return {};
    }
}

} // namespace

void Cargar(Formulario& forma, const Componente& componente, std::wstring_view texto) {
    Lector(forma, componente, texto).Leer();
}

std::wstring Guardar(const Formulario& forma) {
    std::wstring texto;
    for (const auto& control : forma.Controles()) {
        const auto persistencia = control->Como<IPersistPropertyBag>();
        const auto bolsa = Hacer<BolsaMemoria>();
        LPOLESTR clase = nullptr;
        CLSID identificador{};
        Comprobar(persistencia ? persistencia->GetClassID(&identificador) : E_NOINTERFACE,
                  "GetClassID");
        Comprobar(persistencia->Save(bolsa.get(), FALSE, TRUE), "Save");
        Comprobar(ProgIDFromCLSID(identificador, &clase), "ProgIDFromCLSID");
        texto += L"Begin " + std::wstring(clase) + L" " + control->Nombre() + L"\n";
        CoTaskMemFree(clase);
        const RECT& lugar = control->Rectangulo();
        const long medidas[] = {lugar.left, lugar.top, lugar.right - lugar.left,
                                lugar.bottom - lugar.top};
        for (std::size_t i = 0; i < Lados.size(); ++i)
            texto += std::wstring(L"   ") + Lados[i] + L" = " + std::to_wstring(medidas[i]) + L"\n";
        for (const auto& [clave, valor] : bolsa->Valores())
            if (const std::wstring escrito = EscribirValor(valor); !escrito.empty())
                texto += L"   " + clave + L" = " + escrito + L"\n";
        texto += L"End\n";
    }
    return texto;
}

} // namespace ejemplo
