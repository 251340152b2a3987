// Several copies of the component in one registry: the other width's, and another folder's.
#include "pruebas/componente/registro/banco.h"
#include "pruebas/componente/registro/copia.h"

#include <functional>

using namespace publicado;
using anfitrion::Estrechar;

namespace {

constexpr const wchar_t* ArchivoAjeno = L"C:\\de la otra\\Pincela.ocx";

bool HayDosAnchos() {
    BOOL mezcla = sizeof(void*) == 8;
    if (!mezcla)
        IsWow64Process(GetCurrentProcess(), &mezcla);
    if (!mezcla)
        MESSAGE("NOT RUN: this system has one width only");
    return mezcla;
}

using Traduccion = std::function<std::wstring(const std::wstring&)>;

/// All that is in a key, with its texts translated.
void CopiarClave(HKEY de, HKEY a, const Traduccion& traducir) {
    wchar_t nombre[256], texto[1024];
    for (DWORD i = 0;; ++i) {
        DWORD largo = 256, bytes = sizeof texto, tipo = 0;
        if (RegEnumValueW(de, i, nombre, &largo, nullptr, &tipo, reinterpret_cast<BYTE*>(texto),
                          &bytes) != ERROR_SUCCESS)
            break;
        REQUIRE(tipo == REG_SZ);
        const std::wstring nuevo = traducir(texto);
        REQUIRE(RegSetValueExW(a, nombre, 0, REG_SZ, reinterpret_cast<const BYTE*>(nuevo.c_str()),
                               static_cast<DWORD>((nuevo.size() + 1) * sizeof(wchar_t))) ==
                ERROR_SUCCESS);
    }
    for (DWORD i = 0;; ++i) {
        DWORD largo = 256;
        if (RegEnumKeyExW(de, i, nombre, &largo, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            return;
        CopiarClave(Clave(de, nombre).get(), Clave(a, nombre, true).get(), traducir);
    }
}

/// What a registration of one class writes apart from the library.
std::vector<std::wstring> ClavesDe(const Clase& una) {
    std::vector<std::wstring> claves{EnClases(std::wstring(L"CLSID\\") + una.clase),
                                     EnClases(std::wstring(L"Interface\\") + una.interfaz),
                                     EnClases(std::wstring(L"Pincela.") + una.nombre)};
    if (una.eventos)
        claves.push_back(EnClases(std::wstring(L"Interface\\") + una.eventos));
    return claves;
}

/// The component of the other width, registered for the machine: what ours has just written, as
/// that one would have written it from its own folder.
class OtroComponente {
  public:
    OtroComponente() {
        const std::wstring nuestro = RutaDelComponente();
        const auto traducir = [&](const std::wstring& texto) {
            return texto.rfind(nuestro, 0) == 0 ? ArchivoAjeno + texto.substr(nuestro.size())
                                                : texto;
        };
        for (const Clase& una : Clases)
            for (const std::wstring& ruta : ClavesDe(una))
                CopiarClave(Clave(HKEY_LOCAL_MACHINE, ruta).get(),
                            Clave(HKEY_LOCAL_MACHINE, ruta, true, 0, OtroAncho).get(), traducir);
        Clave(HKEY_LOCAL_MACHINE, Entrada(), true).Poner(L"", ArchivoAjeno);
    }
    OtroComponente(const OtroComponente&) = delete;
    OtroComponente& operator=(const OtroComponente&) = delete;
    ~OtroComponente() { Irse(); }

    static std::wstring Entrada() { return ClaveDeVersion() + L"\\409\\" + OtroSistema; }
    /// Its classes and its library go; the names that both share stay to whom they belong.
    static void Irse() {
        for (const Clase& una : Clases)
            for (const std::wstring& ruta : ClavesDe(una)) {
                if (ruta.find(L"\\Pincela.") != ruta.npos)
                    continue;
                RegDeleteTreeW(Clave(HKEY_LOCAL_MACHINE, ruta, true, 0, OtroAncho).get(), nullptr);
                RegDeleteKeyExW(HKEY_LOCAL_MACHINE, ruta.c_str(), OtroAncho, 0);
            }
        RegDeleteKeyW(HKEY_LOCAL_MACHINE, Entrada().c_str());
    }
};

Lineas MaquinaAjena() {
    return Volcar(HKEY_LOCAL_MACHINE, ClasesDeSoftware, OtroAncho, false);
}

std::wstring Linea(const std::wstring& ruta, const std::wstring& valor) {
    const std::wstring base = EnClases(L"");
    return EnMinusculas(ruta.substr(base.size())) + L" [] = " + valor;
}

void CompararCambio(const Lineas& antes, const Lineas& despues, Lineas quitadas, Lineas puestas) {
    std::sort(quitadas.begin(), quitadas.end());
    std::sort(puestas.begin(), puestas.end());
    CompararLineas(Nuevas(antes, despues), quitadas);
    CompararLineas(Nuevas(despues, antes), puestas);
}

} // namespace

TEST_CASE("What both widths share stays while the other one has the classes") {
    if (!HayDosAnchos())
        return;
    const Banco b;
    const Lineas ajenaVacia = MaquinaAjena();
    REQUIRE(b.modulo.Registrar() == S_OK);
    const OtroComponente otro;
    const std::wstring nuestro = RutaDelComponente(), ayuda = ClaveDeVersion() + L"\\HELPDIR";
    const std::wstring entrada = ClaveDeVersion() + L"\\409\\" + Sistema;
    const std::wstring carpeta = nuestro.substr(0, nuestro.rfind(L'\\'));
    Lineas quitadas{EnMinusculas(entrada.substr(EnClases(L"").size())), Linea(entrada, nuestro)};
    Lineas puestas;
    SUBCASE("registered after ours") {
        Clave(HKEY_LOCAL_MACHINE, ayuda, true).Poner(L"", L"C:\\de la otra");
    }
    SUBCASE("registered before ours: the help folder passes to it") {
        quitadas.push_back(Linea(ayuda, carpeta));
        puestas.push_back(Linea(ayuda, L"C:\\de la otra"));
    }
    SUBCASE("with a library that was never told: its file is") {
        RegDeleteKeyW(HKEY_LOCAL_MACHINE, OtroComponente::Entrada().c_str());
        quitadas.push_back(Linea(ayuda, carpeta));
        puestas.push_back(Linea(ayuda, L"C:\\de la otra"));
        puestas.push_back(EnMinusculas(OtroComponente::Entrada().substr(EnClases(L"").size())));
        puestas.push_back(Linea(OtroComponente::Entrada(), ArchivoAjeno));
    }
    const Lineas antes = MaquinaAjena();
    REQUIRE(b.modulo.Desregistrar() == S_OK);
    CompararCambio(antes, MaquinaAjena(), quitadas, puestas);
    for (const Clase& una : Clases) {
        INFO(Estrechar(una.nombre));
        CHECK_FALSE(Existe(HKEY_LOCAL_MACHINE, ClaveDeClase(una.nombre)));
        CHECK_FALSE(
            Existe(HKEY_LOCAL_MACHINE, EnClases(std::wstring(L"Interface\\") + una.interfaz)));
        CLSID clase{};
        CHECK(CLSIDFromProgID((std::wstring(L"Pincela.") + una.nombre).c_str(), &clase) == S_OK);
        CHECK(clase == Guid(una.clase));
    }
    const Lineas despues = MaquinaAjena();
    CHECK(b.modulo.Desregistrar() == S_OK);
    CompararLineas(MaquinaAjena(), despues);

    // The last one takes everything, whichever it is.
    REQUIRE(b.modulo.Registrar() == S_OK);
    OtroComponente::Irse();
    REQUIRE(b.modulo.Desregistrar() == S_OK);
    CompararLineas(b.Maquina(), b.maquina);
    CompararLineas(MaquinaAjena(), ajenaVacia);
}

TEST_CASE("A copy in another folder takes nothing of the one that is registered") {
    const Banco b;
    const Copia copia(L"copia vieja");
    const wchar_t* para = nullptr;
    SUBCASE("for the machine") {
        para = L"";
    }
    SUBCASE("for the user") {
        para = L"user";
    }
    const auto leer = [&] { return *para ? b.Usuario() : b.Maquina(); };
    {
        const Modulo vieja(copia.Archivo());
        REQUIRE(vieja.Instalar(true, para) == S_OK);
        const Lineas suyas = leer();
        CHECK(std::count_if(suyas.begin(), suyas.end(), [&](const std::wstring& linea) {
                  return linea.find(copia.Archivo()) != linea.npos;
              }) == 17); // ten classes, six toolbox images, the library
        CHECK(b.modulo.Instalar(false, para) == S_OK);
        CompararLineas(leer(), suyas);
        REQUIRE(b.modulo.Instalar(true, para) == S_OK);
        const Lineas nuestras = leer();
        CHECK(vieja.Instalar(false, para) == S_OK);
        CompararLineas(leer(), nuestras);
        CHECK(vieja.Instalar(true, para) == S_OK);
        CompararLineas(leer(), suyas);
        CHECK(vieja.Instalar(false, para) == S_OK);
    }
    CompararLineas(b.Maquina(), b.maquina);
    CompararLineas(b.Usuario(), b.usuario);
}

TEST_CASE("Of two copies that share the classes each takes its own, and the library passes over") {
    const Banco b;
    const Copia copia(L"copia vieja");
    REQUIRE(b.modulo.Instalar(true, L"user") == S_OK);
    const std::wstring servidor = ClaveDeClase(L"Tbox") + L"\\InprocServer32";
    Clave(HKEY_CURRENT_USER, servidor, true).Poner(L"", copia.Archivo());
    const Lineas antes = b.Usuario();
    CHECK(b.modulo.Instalar(false, L"user") == S_OK);
    const Lineas despues = b.Usuario();
    CHECK(Nuevas(despues, antes) ==
          Lineas{Linea(ClaveDeVersion() + L"\\409\\" + Sistema, copia.Archivo()),
                 Linea(ClaveDeVersion() + L"\\HELPDIR", copia.Carpeta())});
    CHECK(Existe(HKEY_CURRENT_USER, EnClases(L"Pincela.Tbox\\CLSID")));
    CHECK(Existe(HKEY_CURRENT_USER,
                 EnClases(std::wstring(L"Interface\\") + ClaseDe(L"Tbox").interfaz)));
    CHECK_FALSE(Existe(HKEY_CURRENT_USER, EnClases(L"Pincela.Area")));
    CHECK_FALSE(Existe(HKEY_CURRENT_USER, ClaveDeClase(L"Area")));
    CHECK(Modulo(copia.Archivo()).Instalar(false, L"user") == S_OK);
    CompararLineas(b.Usuario(), b.usuario);
}

TEST_CASE("The file is known again however its name is written") {
    const Banco b;
    REQUIRE(b.modulo.Instalar(true, L"user") == S_OK);
    const std::wstring archivo = RutaDelComponente();
    std::wstring escrito = archivo;
    DWORD tipo = REG_SZ;
    SUBCASE("in capitals") {
        CharUpperBuffW(escrito.data(), static_cast<DWORD>(escrito.size()));
    }
    SUBCASE("between quotes") {
        escrito = L'"' + archivo + L'"';
    }
    SUBCASE("with the prefix of long paths") {
        escrito = L"\\\\?\\" + archivo;
    }
    SUBCASE("with a variable of the environment") {
        SetEnvironmentVariableW(L"CARPETA_DE_PINCELA",
                                archivo.substr(0, archivo.rfind(L'\\')).c_str());
        escrito = L"%CARPETA_DE_PINCELA%\\Pincela.ocx";
        tipo = REG_EXPAND_SZ;
    }
    SUBCASE("by its short name") {
        wchar_t corto[MAX_PATH];
        REQUIRE(GetShortPathNameW(archivo.c_str(), corto, MAX_PATH) != 0);
        escrito = corto;
        if (escrito == archivo)
            MESSAGE("this volume keeps no short names");
    }
    for (const Clase& una : Clases)
        Clave(HKEY_CURRENT_USER, ClaveDeClase(una.nombre) + L"\\InprocServer32", true)
            .Poner(L"", escrito, tipo);
    Clave(HKEY_CURRENT_USER, ClaveDeVersion() + L"\\409\\" + Sistema, true)
        .Poner(L"", escrito, tipo);
    CHECK(b.modulo.Instalar(false, L"user") == S_OK);
    CompararLineas(b.Usuario(), b.usuario);
}

TEST_CASE("A name that was given to another class stays with it") {
    const Banco b;
    REQUIRE(b.modulo.Instalar(true, L"user") == S_OK);
    const std::wstring nombre = EnClases(L"Pincela.Area");
    Clave(HKEY_CURRENT_USER, nombre + L"\\CLSID", true)
        .Poner(L"", L"{0F0E0D0C-0B0A-0908-0706-050403020100}");
    CHECK(b.modulo.Instalar(false, L"user") == S_OK);
    CHECK(Existe(HKEY_CURRENT_USER, nombre + L"\\CLSID"));
    RegDeleteTreeW(HKEY_CURRENT_USER, nombre.c_str());
}

TEST_CASE("A library of the other width keeps what it needs when ours goes") {
    const Banco b;
    const std::wstring otra = ClaveDeVersion() + L"\\409\\" + OtroSistema;
    REQUIRE(b.modulo.Instalar(true, L"user") == S_OK);
    Clave(HKEY_CURRENT_USER, otra, true).Poner(L"", L"C:\\otro\\Pincela.ocx");
    REQUIRE(b.modulo.Instalar(false, L"user") == S_OK);
    const Lineas quedan = Nuevas(b.Usuario(), b.usuario);
    for (const std::wstring& linea :
         {Linea(otra, L"C:\\otro\\Pincela.ocx"),
          Linea(ClaveDeVersion() + L"\\HELPDIR", L"C:\\otro"), Linea(ClaveDeVersion(), L"Pincela"),
          Linea(ClaveDeVersion() + L"\\FLAGS", L"2")})
        CHECK(std::count(quedan.begin(), quedan.end(), linea) == 1);
    RegDeleteKeyW(HKEY_CURRENT_USER, otra.c_str());
    REQUIRE(b.modulo.Instalar(false, L"user") == S_OK);
    CompararLineas(b.Usuario(), b.usuario);
}
