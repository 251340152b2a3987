#include "componente/registro/archivos.h"
#include "componente/registro/claves.h"
#include "componente/registro/nombres.h"
#include "componente/registro/registro.h"

namespace pincela::componente {

namespace {

/// Takes one file out of one hive.
class Baja {
  public:
    Baja(HKEY raiz, const std::wstring& archivo)
        : propia_(Vista::Propia(raiz)), ajena_(Vista::Ajena(raiz)), archivo_(archivo) {}

    void QuitarClase(const DatosClase& datos);
    void QuitarBiblioteca();
    void QuitarCarpetas();
    HRESULT Estado() const { return estado_; }

  private:
    void Anotar(LSTATUS error) {
        if (error != ERROR_SUCCESS && SUCCEEDED(estado_))
            estado_ = HRESULT_FROM_WIN32(error);
    }
    bool EsNuestro(const std::optional<std::wstring>& archivo) const {
        return archivo && MismoArchivo(*archivo, archivo_);
    }
    void QuitarPrograma(const DatosClase& datos);

    Vista propia_, ajena_;
    const std::wstring& archivo_;
    /// A file that still serves our classes to our width, and one that serves them to the other.
    std::optional<std::wstring> quedaPropio_, quedaAjeno_;
    HRESULT estado_ = S_OK;
};

void Baja::QuitarPrograma(const DatosClase& datos) {
    const std::wstring ruta = Bajo(IdentificadorDePrograma(datos));
    // One key to both widths; where it isn't, each has to go.
    for (const Vista& vista : {propia_, ajena_})
        if (vista.Leer(ruta + L"\\CLSID", L"") == Escrito(datos.clase))
            Anotar(vista.Quitar(ruta));
}

void Baja::QuitarClase(const DatosClase& datos) {
    const std::wstring servidor = RutaDeServidor(datos.clase);
    LSTATUS error = ERROR_SUCCESS;
    auto propio = propia_.Leer(servidor, L"", &error);
    if (error != ERROR_SUCCESS)
        return Anotar(error); // whose it is can't be told
    if (EsNuestro(propio)) {
        Anotar(propia_.Quitar(RutaDeClase(datos.clase)));
        propio = propia_.Leer(servidor, L"");
    }
    const auto ajeno = ajena_.Leer(servidor, L"");
    if (!propio) {
        // Of a registration that was cut short before it could name its file.
        Anotar(propia_.QuitarSiVacia(servidor));
        Anotar(propia_.QuitarSiVacia(RutaDeClase(datos.clase)));
        Anotar(propia_.Quitar(RutaDeInterfaz(datos.interfaz)));
        if (datos.genero == Genero::Control)
            Anotar(propia_.Quitar(RutaDeInterfaz(datos.eventos)));
    }
    if (!propio && !ajeno)
        QuitarPrograma(datos);
    if (propio && !EsNuestro(propio))
        quedaPropio_ = propio;
    // Where both widths see the same key, it is one server and not two.
    if (ajeno && !EsNuestro(ajeno) && !(propio && MismoArchivo(*ajeno, *propio)))
        quedaAjeno_ = ajeno;
}

/// The library's entries and its help folder pass to whoever is left; it goes with the last one.
void Baja::QuitarBiblioteca() {
    const std::wstring locale = RutaDeLocale();
    const std::wstring entrada = locale + L"\\" + Sistema, otra = locale + L"\\" + OtroSistema;
    if (EsNuestro(propia_.Leer(entrada, L""))) {
        Anotar(quedaPropio_ ? propia_.Poner(entrada, L"", *quedaPropio_) : propia_.Quitar(entrada));
        if (quedaAjeno_ && !propia_.Leer(otra, L""))
            Anotar(propia_.Poner(otra, L"", *quedaAjeno_));
    }
    if (!propia_.TieneSubclaves(locale)) {
        Anotar(propia_.Quitar(RutaDeVersion()));
        Anotar(propia_.QuitarSiVacia(RutaDeBiblioteca()));
        return;
    }
    const auto ayuda = propia_.Leer(RutaDeAyuda(), L"");
    if (!ayuda || !MismoArchivo(*ayuda, CarpetaDe(archivo_)))
        return;
    for (const std::wstring& queda : {otra, entrada})
        if (const auto archivo = propia_.Leer(queda, L"")) {
            Anotar(propia_.Poner(RutaDeAyuda(), L"", CarpetaDe(*archivo)));
            return;
        }
}

void Baja::QuitarCarpetas() {
    for (const wchar_t* comun : {L"CLSID", L"Interface", L"TypeLib"})
        Anotar(propia_.QuitarSiSobra(Bajo(comun)));
    Anotar(propia_.QuitarSiSobra(Clases));
}

} // namespace

HRESULT Desregistrar(HKEY raiz, const std::wstring& archivo) {
    Baja baja(raiz, archivo);
    ParaCadaClase([&]<class Tabla>(const DatosClase& datos) { baja.QuitarClase(datos); });
    baja.QuitarBiblioteca();
    baja.QuitarCarpetas();
    return baja.Estado();
}

} // namespace pincela::componente
