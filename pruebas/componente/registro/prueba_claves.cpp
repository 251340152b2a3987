// What registering writes, and that nothing of it stays.
#include "pruebas/componente/registro/banco.h"

#include <map>

using namespace publicado;
using anfitrion::Estrechar;

namespace {

/// Keys and values, each key with all its parents.
class Esperadas {
  public:
    void Valor(const std::wstring& dada, const std::wstring& nombre, const std::wstring& valor) {
        const std::wstring ruta = EnMinusculas(dada);
        for (std::size_t corte = ruta.find(L'\\'); corte != std::wstring::npos;
             corte = ruta.find(L'\\', corte + 1))
            claves_[ruta.substr(0, corte)];
        claves_[ruta][nombre] = valor;
    }
    /// Without those keys that were there before.
    Lineas Todas(const Lineas& antes) const {
        Lineas lineas;
        for (const auto& [ruta, valores] : claves_) {
            lineas.push_back(ruta);
            for (const auto& [nombre, valor] : valores)
                lineas.push_back(ruta + L" [" + nombre + L"] = " + valor);
        }
        std::sort(lineas.begin(), lineas.end());
        return Nuevas(lineas, antes);
    }

  private:
    std::map<std::wstring, std::map<std::wstring, std::wstring>> claves_;
};

/// Bits that containers read before they make a control: recompose on resize, can't link inside,
/// inside out, activate when visible, set client site first; the button acts like one, the panel
/// frames others.
std::wstring RasgosEsperados(const Clase& una) {
    unsigned long rasgos = 0x1 | 0x10 | 0x80 | 0x100 | 0x20000;
    if (std::wstring_view(una.nombre) == L"Botonazo")
        rasgos |= 0x1000;
    if (std::wstring_view(una.nombre) == L"Area")
        rasgos |= 0x10000;
    return std::to_wstring(rasgos);
}

void EsperarInterfaz(Esperadas& e, const wchar_t* guid, const std::wstring& nombre,
                     const wchar_t* puente) {
    const std::wstring ruta = std::wstring(L"Interface\\") + guid;
    e.Valor(ruta, L"", nombre);
    e.Valor(ruta + L"\\ProxyStubClsid32", L"", puente);
    e.Valor(ruta + L"\\TypeLib", L"", Biblioteca);
    e.Valor(ruta + L"\\TypeLib", L"Version", L"1.0");
}

Esperadas TodasLasClaves(const std::map<std::wstring, int>& mapas) {
    const std::wstring archivo = RutaDelComponente();
    Esperadas e;
    const std::wstring version = std::wstring(L"TypeLib\\") + Biblioteca + L"\\1.0";
    e.Valor(version, L"", L"Pincela");
    e.Valor(version + L"\\409\\" + Sistema, L"", archivo);
    e.Valor(version + L"\\FLAGS", L"", L"2");
    e.Valor(version + L"\\HELPDIR", L"", archivo.substr(0, archivo.rfind(L'\\')));
    for (const Clase& una : Clases) {
        const std::wstring ruta = std::wstring(L"CLSID\\") + una.clase;
        const std::wstring programa = std::wstring(L"Pincela.") + una.nombre;
        e.Valor(ruta, L"", programa);
        e.Valor(ruta + L"\\InprocServer32", L"", archivo);
        e.Valor(ruta + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
        e.Valor(ruta + L"\\ProgID", L"", programa);
        e.Valor(ruta + L"\\Programmable", L"", L"");
        e.Valor(ruta + L"\\TypeLib", L"", Biblioteca);
        e.Valor(ruta + L"\\VERSION", L"", L"1.0");
        e.Valor(programa, L"", programa);
        e.Valor(programa + L"\\CLSID", L"", una.clase);
        EsperarInterfaz(e, una.interfaz, std::wstring(L"_") + una.nombre,
                        L"{00020424-0000-0000-C000-000000000046}");
        if (una.genero != Genero::Control)
            continue;
        EsperarInterfaz(e, una.eventos, std::wstring(L"__") + una.nombre,
                        L"{00020420-0000-0000-C000-000000000046}");
        e.Valor(ruta + L"\\Control", L"", L"");
        e.Valor(ruta + L"\\Insertable", L"", L"");
        e.Valor(ruta + L"\\Implemented Categories\\{40FC6ED4-2438-11CF-A3DB-080036F12502}", L"",
                L"");
        e.Valor(ruta + L"\\MiscStatus", L"", L"0");
        e.Valor(ruta + L"\\MiscStatus\\1", L"", RasgosEsperados(una));
        e.Valor(ruta + L"\\ToolboxBitmap32", L"",
                archivo + L", " + std::to_wstring(mapas.at(una.nombre)));
    }
    return e;
}

/// Which toolbox image each control took; one each, out of the six.
std::map<std::wstring, int> MapasRegistrados(HKEY raiz) {
    std::map<std::wstring, int> mapas;
    for (const Clase& una : Clases) {
        if (una.genero != Genero::Control)
            continue;
        wchar_t valor[MAX_PATH + 16] = {};
        DWORD largo = sizeof valor;
        const std::wstring ruta =
            std::wstring(ClasesDeSoftware) + L"\\CLSID\\" + una.clase + L"\\ToolboxBitmap32";
        REQUIRE(RegGetValueW(raiz, ruta.c_str(), L"", RRF_RT_REG_SZ, nullptr, valor, &largo) ==
                ERROR_SUCCESS);
        const std::wstring texto = valor;
        mapas[una.nombre] = std::stoi(texto.substr(texto.rfind(L' ') + 1));
    }
    std::vector<int> numeros;
    for (const auto& [clase, numero] : mapas)
        numeros.push_back(numero);
    std::sort(numeros.begin(), numeros.end());
    CHECK(numeros == std::vector<int>{30000, 30001, 30002, 30003, 30004, 30005});
    return mapas;
}

} // namespace

TEST_CASE("Registering writes every key of every class, and unregistering takes them all away") {
    const Banco b;
    const Lineas todo = Volcar(HKEY_LOCAL_MACHINE, ClasesDeSoftware);
    REQUIRE(b.modulo.Registrar() == S_OK);
    const Lineas registrada = b.Maquina();
    CompararLineas(Nuevas(todo, Volcar(HKEY_LOCAL_MACHINE, ClasesDeSoftware)), {});
    CompararLineas(Nuevas(registrada, b.maquina),
                   TodasLasClaves(MapasRegistrados(HKEY_LOCAL_MACHINE)).Todas(b.maquina));
    CompararLineas(Nuevas(b.maquina, registrada), {}); // nothing of others was touched
    CompararLineas(b.Usuario(), b.usuario);
    CHECK(b.modulo.Registrar() == S_OK); // once more changes nothing
    CompararLineas(b.Maquina(), registrada);
    CHECK(b.modulo.Desregistrar() == S_OK);
    CompararLineas(b.Maquina(), b.maquina);
    CHECK(b.modulo.Desregistrar() == S_OK); // nothing is left to be done
    CompararLineas(b.Maquina(), b.maquina);
    CompararLineas(Volcar(HKEY_LOCAL_MACHINE, ClasesDeSoftware), todo);
}

TEST_CASE("Registering for one user writes the same keys, in the user's hive only") {
    const Banco b;
    REQUIRE(b.modulo.Instalar(true, L"user") == S_OK);
    CompararLineas(Nuevas(b.Usuario(), b.usuario),
                   TodasLasClaves(MapasRegistrados(HKEY_CURRENT_USER)).Todas(b.usuario));
    CompararLineas(b.Maquina(), b.maquina);
    // The machine's own entry point leaves the user's alone.
    CHECK(b.modulo.Desregistrar() == S_OK);
    CHECK(b.Usuario() != b.usuario);
    CHECK(b.modulo.Instalar(false, L"USER") == S_OK);
    CompararLineas(b.Usuario(), b.usuario);
}

TEST_CASE("An installation for nobody known is refused") {
    const Banco b;
    CHECK(b.modulo.Instalar(true, L"vecino") == E_INVALIDARG);
    CHECK(b.modulo.Instalar(false, L"vecino") == E_INVALIDARG);
    CompararLineas(b.Maquina(), b.maquina);
    CompararLineas(b.Usuario(), b.usuario);
}

TEST_CASE("Once registered, every class is made by its name") {
    const SesionOle ole;
    const Banco b;
    REQUIRE(b.modulo.Registrar() == S_OK);
    for (const Clase& una : Clases) {
        INFO(Estrechar(una.nombre));
        CLSID clase{};
        REQUIRE(CLSIDFromProgID((std::wstring(L"Pincela.") + una.nombre).c_str(), &clase) == S_OK);
        CHECK(clase == Guid(una.clase));
        anfitrion::Puntero<IUnknown> objeto;
        CHECK(CoCreateInstance(clase, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                               objeto.RecibirVoid()) == S_OK);
        CHECK(objeto);
    }
}
