#include "componente/registro.h"

#include "componente/clases.h"
#include "componente/modulo.h"
#include "componente/puentes.h"

#include <memory>
#include <utility>

#include <olectl.h>

namespace pincela::componente {

namespace {

constexpr wchar_t Clases[] = L"Software\\Classes\\";
constexpr const wchar_t* Sistema = sizeof(void*) == 8 ? L"win64" : L"win32";
constexpr GUID CategoriaDeControles = "{40FC6ED4-2438-11CF-A3DB-080036F12502}"_guid;

class ClaveAbierta {
  public:
    ClaveAbierta() = default;
    ClaveAbierta(const ClaveAbierta&) = delete;
    ClaveAbierta& operator=(const ClaveAbierta&) = delete;
    ~ClaveAbierta() {
        if (clave_)
            RegCloseKey(clave_);
    }
    HKEY get() const { return clave_; }
    HKEY* Recibir() { return &clave_; }

  private:
    HKEY clave_ = nullptr;
};

std::wstring Escrito(const GUID& guid) {
    wchar_t texto[39];
    StringFromGUID2(guid, texto, 39);
    return texto;
}

std::wstring Escrito(unsigned long numero) {
    wchar_t texto[12];
    wsprintfW(texto, L"%lu", numero);
    return texto;
}

std::wstring RutaDeClase(const GUID& clase) {
    return L"CLSID\\" + Escrito(clase);
}
std::wstring RutaDeInterfaz(const GUID& interfaz) {
    return L"Interface\\" + Escrito(interfaz);
}
std::wstring RutaDeBiblioteca() {
    return L"TypeLib\\" + Escrito(GuidDeLaBiblioteca);
}
std::wstring VersionDeBiblioteca() {
    return Escrito(VersionMayor) + L"." + Escrito(VersionMenor);
}
std::wstring IdentificadorDePrograma(const DatosClase& datos) {
    return std::wstring(NombreDeLaBiblioteca) + L"." + datos.nombre;
}

using Claves = std::vector<ClaveDeRegistro>;

void AgregarBiblioteca(Claves& claves, const std::wstring& archivo) {
    const std::wstring version = RutaDeBiblioteca() + L"\\" + VersionDeBiblioteca();
    claves.push_back({version, L"", NombreDeLaBiblioteca});
    claves.push_back({version + L"\\409\\" + Sistema, L"", archivo});
    claves.push_back({version + L"\\FLAGS", L"", Escrito(LIBFLAG_FCONTROL)});
    claves.push_back({version + L"\\HELPDIR", L"", archivo.substr(0, archivo.rfind(L'\\'))});
}

void AgregarInterfaz(Claves& claves, const GUID& interfaz, const std::wstring& nombre,
                     const GUID& puente) {
    const std::wstring ruta = RutaDeInterfaz(interfaz);
    claves.push_back({ruta, L"", nombre});
    claves.push_back({ruta + L"\\ProxyStubClsid32", L"", Escrito(puente)});
    claves.push_back({ruta + L"\\TypeLib", L"", Escrito(GuidDeLaBiblioteca)});
    claves.push_back({ruta + L"\\TypeLib", L"Version", VersionDeBiblioteca()});
}

void AgregarControl(Claves& claves, const DatosClase& datos, const std::wstring& archivo) {
    const std::wstring ruta = RutaDeClase(datos.clase);
    claves.push_back({ruta + L"\\Control", L"", L""});
    claves.push_back({ruta + L"\\Insertable", L"", L""});
    claves.push_back(
        {ruta + L"\\Implemented Categories\\" + Escrito(CategoriaDeControles), L"", L""});
    claves.push_back({ruta + L"\\MiscStatus", L"", L"0"});
    claves.push_back({ruta + L"\\MiscStatus\\1", L"", Escrito(datos.rasgosOle)});
    claves.push_back(
        {ruta + L"\\ToolboxBitmap32", L"", archivo + L", " + Escrito(datos.mapaDeBits)});
}

void AgregarClase(Claves& claves, const DatosClase& datos, const std::wstring& archivo) {
    const std::wstring ruta = RutaDeClase(datos.clase);
    const std::wstring programa = IdentificadorDePrograma(datos);
    claves.push_back({ruta, L"", programa});
    claves.push_back({ruta + L"\\InprocServer32", L"", archivo});
    claves.push_back({ruta + L"\\InprocServer32", L"ThreadingModel", L"Apartment"});
    claves.push_back({ruta + L"\\ProgID", L"", programa});
    claves.push_back({ruta + L"\\Programmable", L"", L""});
    claves.push_back({ruta + L"\\TypeLib", L"", Escrito(GuidDeLaBiblioteca)});
    claves.push_back({ruta + L"\\VERSION", L"", VersionDeBiblioteca()});
    if (datos.genero == Genero::Control)
        AgregarControl(claves, datos, archivo);
    claves.push_back({programa, L"", programa});
    claves.push_back({programa + L"\\CLSID", L"", Escrito(datos.clase)});
    AgregarInterfaz(claves, datos.interfaz, std::wstring(L"_") + datos.nombre, PuenteDual);
    if (datos.genero == Genero::Control)
        AgregarInterfaz(claves, datos.eventos, std::wstring(L"__") + datos.nombre, PuenteDespacho);
}

/// Undoes what one registration wrote, last first, unless it is told that all went well.
class Deshacer {
  public:
    explicit Deshacer(HKEY raiz) : raiz_(raiz) {}
    ~Deshacer() {
        if (bien_)
            return;
        while (!pasos_.empty()) {
            const Paso& paso = pasos_.back();
            if (paso.claveNueva)
                RegDeleteKeyW(raiz_, paso.ruta.c_str());
            else if (paso.habia)
                RegSetKeyValueW(raiz_, paso.ruta.c_str(), paso.nombre.c_str(), REG_SZ,
                                paso.valor.c_str(),
                                static_cast<DWORD>((paso.valor.size() + 1) * sizeof(wchar_t)));
            else
                RegDeleteKeyValueW(raiz_, paso.ruta.c_str(), paso.nombre.c_str());
            pasos_.pop_back();
        }
    }
    void NuevaClave(std::wstring ruta) { pasos_.push_back({std::move(ruta), {}, {}, false, true}); }
    void ValorCambiado(HKEY clave, std::wstring ruta, std::wstring nombre) {
        Paso paso{std::move(ruta), std::move(nombre), {}, false, false};
        wchar_t antes[1024];
        DWORD largo = sizeof antes;
        if (RegGetValueW(clave, nullptr, paso.nombre.c_str(), RRF_RT_REG_SZ, nullptr, antes,
                         &largo) == ERROR_SUCCESS) {
            paso.habia = true;
            paso.valor = antes;
        }
        pasos_.push_back(std::move(paso));
    }
    void Bien() { bien_ = true; }

  private:
    struct Paso {
        std::wstring ruta, nombre, valor;
        bool habia, claveNueva;
    };
    HKEY raiz_;
    std::vector<Paso> pasos_;
    bool bien_ = false;
};

/// Creates the key part by part, so that each new part is known and can be taken away again.
LSTATUS AbrirPorPartes(HKEY raiz, const std::wstring& ruta, Deshacer& deshacer,
                       ClaveAbierta& clave) {
    for (std::size_t corte = ruta.find(L'\\');; corte = ruta.find(L'\\', corte + 1)) {
        const std::wstring parte = ruta.substr(0, corte);
        const bool ultima = corte == std::wstring::npos;
        ClaveAbierta intermedia;
        DWORD disposicion = 0;
        const LSTATUS error =
            RegCreateKeyExW(raiz, parte.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr,
                            (ultima ? clave : intermedia).Recibir(), &disposicion);
        if (error != ERROR_SUCCESS)
            return error;
        if (disposicion == REG_CREATED_NEW_KEY)
            deshacer.NuevaClave(parte);
        if (ultima)
            return ERROR_SUCCESS;
    }
}

/// Removes `ruta` with all below, then each parent that is left empty down to `hasta`.
void QuitarConPadres(HKEY raiz, std::wstring ruta, std::size_t hasta) {
    RegDeleteTreeW(raiz, ruta.c_str());
    while (ruta.size() > hasta) {
        RegDeleteKeyW(raiz, ruta.c_str()); // refused while something is below it
        ruta.resize(ruta.rfind(L'\\'));
    }
}

/// Removes a key that holds nothing at all.
void QuitarSiVacia(HKEY raiz, const std::wstring& ruta) {
    ClaveAbierta clave;
    DWORD subclaves = 0, valores = 0;
    if (RegOpenKeyExW(raiz, ruta.c_str(), 0, KEY_READ, clave.Recibir()) == ERROR_SUCCESS &&
        RegQueryInfoKeyW(clave.get(), nullptr, nullptr, nullptr, &subclaves, nullptr, nullptr,
                         &valores, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS &&
        subclaves == 0 && valores == 0)
        RegDeleteKeyW(raiz, ruta.c_str());
}

} // namespace

std::vector<ClaveDeRegistro> ClavesDelComponente(const std::wstring& archivo) {
    Claves claves;
    AgregarBiblioteca(claves, archivo);
    ParaCadaClase(
        [&]<class Tabla>(const DatosClase& datos) { AgregarClase(claves, datos, archivo); });
    return claves;
}

HRESULT Registrar(HKEY raiz, const std::wstring& archivo) {
    Deshacer deshacer(raiz);
    for (const ClaveDeRegistro& una : ClavesDelComponente(archivo)) {
        const std::wstring ruta = Clases + una.ruta;
        ClaveAbierta clave;
        LSTATUS error = AbrirPorPartes(raiz, ruta, deshacer, clave);
        if (error == ERROR_SUCCESS) {
            deshacer.ValorCambiado(clave.get(), ruta, una.nombre);
            error = RegSetValueExW(clave.get(), una.nombre.c_str(), 0, REG_SZ,
                                   reinterpret_cast<const BYTE*>(una.valor.c_str()),
                                   static_cast<DWORD>((una.valor.size() + 1) * sizeof(wchar_t)));
        }
        if (error != ERROR_SUCCESS)
            return HRESULT_FROM_WIN32(error);
    }
    deshacer.Bien();
    return S_OK;
}

HRESULT Desregistrar(HKEY raiz) {
    const std::wstring clases = Clases;
    ParaCadaClase([&]<class Tabla>(const DatosClase& datos) {
        RegDeleteTreeW(raiz, (clases + RutaDeClase(datos.clase)).c_str());
        RegDeleteTreeW(raiz, (clases + IdentificadorDePrograma(datos)).c_str());
        RegDeleteTreeW(raiz, (clases + RutaDeInterfaz(datos.interfaz)).c_str());
        if (datos.genero == Genero::Control)
            RegDeleteTreeW(raiz, (clases + RutaDeInterfaz(datos.eventos)).c_str());
    });
    // The library is shared with the component of the other width: only our part goes, and the
    // rest when nobody is left.
    const std::wstring biblioteca = clases + RutaDeBiblioteca();
    const std::wstring version = biblioteca + L"\\" + VersionDeBiblioteca();
    QuitarConPadres(raiz, version + L"\\409\\" + Sistema, version.size());
    ClaveAbierta otra;
    if (RegOpenKeyExW(raiz, (version + L"\\409").c_str(), 0, KEY_READ, otra.Recibir()) !=
        ERROR_SUCCESS) {
        RegDeleteTreeW(raiz, version.c_str());
        RegDeleteKeyW(raiz, biblioteca.c_str());
    }
    // A user's hive has these only for what was registered in it.
    for (const wchar_t* comun : {L"CLSID", L"Interface", L"TypeLib"})
        QuitarSiVacia(raiz, clases + comun);
    return S_OK;
}

namespace {

std::wstring ArchivoDelModulo() {
    wchar_t ruta[MAX_PATH];
    const DWORD largo = GetModuleFileNameW(Modulo(), ruta, MAX_PATH);
    return largo && largo < MAX_PATH ? std::wstring(ruta, largo) : std::wstring();
}

HRESULT Instalar(HKEY raiz, bool instalar) noexcept {
    try {
        if (!instalar)
            return Desregistrar(raiz);
        const std::wstring archivo = ArchivoDelModulo();
        return archivo.empty() ? SELFREG_E_CLASS : Registrar(raiz, archivo);
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

} // namespace

} // namespace pincela::componente

extern "C" {

HRESULT WINAPI DllRegisterServer() {
    return pincela::componente::Instalar(HKEY_LOCAL_MACHINE, true);
}

HRESULT WINAPI DllUnregisterServer() {
    return pincela::componente::Instalar(HKEY_LOCAL_MACHINE, false);
}

/// "user" registers for the present user alone, which needs no administrator rights.
HRESULT WINAPI DllInstall(BOOL instalar, LPCWSTR para) {
    const bool usuario = para && lstrcmpiW(para, L"user") == 0;
    if (para && *para && !usuario)
        return E_INVALIDARG;
    return pincela::componente::Instalar(usuario ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE,
                                         instalar != FALSE);
}
}
