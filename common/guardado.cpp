#include "common/guardado.h"

#include "common/errores.h"

#include <array>
#include <cstring>
#include <memory>

namespace pincela {

namespace {

constexpr std::uint32_t Firma = 0x4C434E50; // "PNCL"
constexpr std::uint16_t Version = 1;
constexpr std::uint32_t LargoMaximo = 256u << 20;

constexpr std::array<std::uint32_t, 256> TablaDeSuma = [] {
    std::array<std::uint32_t, 256> tabla{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t c = i;
        for (int k = 0; k < 8; ++k)
            c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
        tabla[i] = c;
    }
    return tabla;
}();

std::uint32_t SumaDeControl(std::span<const std::uint8_t> bytes) {
    std::uint32_t c = 0xFFFFFFFFu;
    for (const std::uint8_t b : bytes)
        c = TablaDeSuma[(c ^ b) & 0xFF] ^ (c >> 8);
    return ~c;
}

enum class Marca : std::uint8_t {
    Vacio,
    Nulo,
    Falso,
    Verdadero,
    Byte,
    Entero16,
    Entero32,
    Flotante,
    Doble,
    Texto,
    Nada,
    Objeto
};

class Escritor {
  public:
    template <class N>
    void Numero(N n) {
        std::uint8_t crudo[sizeof n];
        std::memcpy(crudo, &n, sizeof n);
        bytes_.insert(bytes_.end(), crudo, crudo + sizeof n);
    }
    void Cadena(VistaTexto t) {
        Numero(static_cast<std::uint32_t>(t.size()));
        const auto* crudo = reinterpret_cast<const std::uint8_t*>(t.data());
        bytes_.insert(bytes_.end(), crudo, crudo + t.size() * sizeof(char16_t));
    }
    void Crudo(const Bytes& b) {
        Numero(static_cast<std::uint32_t>(b.size()));
        bytes_.insert(bytes_.end(), b.begin(), b.end());
    }
    void Poner(Marca m) { bytes_.push_back(static_cast<std::uint8_t>(m)); }

    void operator()(Vacio) { Poner(Marca::Vacio); }
    void operator()(Nulo) { Poner(Marca::Nulo); }
    void operator()(Falta) { Poner(Marca::Vacio); }
    void operator()(bool b) { Poner(b ? Marca::Verdadero : Marca::Falso); }
    void operator()(std::uint8_t n) { Marcado(Marca::Byte, n); }
    void operator()(std::int16_t n) { Marcado(Marca::Entero16, n); }
    void operator()(std::int32_t n) { Marcado(Marca::Entero32, n); }
    void operator()(float n) { Marcado(Marca::Flotante, n); }
    void operator()(double n) { Marcado(Marca::Doble, n); }
    void operator()(const Texto& t) {
        Poner(Marca::Texto);
        Cadena(t);
    }
    void operator()(const ReferenciaObjeto& r) {
        if (!r)
            return Poner(Marca::Nada);
        const auto* guardado = dynamic_cast<const ObjetoGuardado*>(r.get());
        if (!guardado)
            Lanzar(NumeroError::TiposNoCoinciden);
        Poner(Marca::Objeto);
        bytes_.push_back(static_cast<std::uint8_t>(guardado->Cual()));
        Crudo(guardado->Contenido());
    }

    Bytes& Salida() { return bytes_; }

  private:
    template <class N>
    void Marcado(Marca m, N n) {
        Poner(m);
        Numero(n);
    }
    Bytes bytes_;
};

struct Corto {}; // thrown when the bytes end too early or make no sense

class Lector {
  public:
    explicit Lector(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    bool Fin() const { return bytes_.empty(); }
    std::span<const std::uint8_t> Tomar(std::size_t n) {
        if (n > bytes_.size())
            throw Corto{};
        const auto trozo = bytes_.first(n);
        bytes_ = bytes_.subspan(n);
        return trozo;
    }
    template <class N>
    N Numero() {
        N n;
        std::memcpy(&n, Tomar(sizeof n).data(), sizeof n);
        return n;
    }
    Texto Cadena() {
        const std::uint32_t largo = Numero<std::uint32_t>();
        if (largo > bytes_.size() / sizeof(char16_t))
            throw Corto{};
        const auto crudo = Tomar(largo * sizeof(char16_t));
        Texto t(largo, u'\0');
        if (largo)
            std::memcpy(t.data(), crudo.data(), crudo.size());
        return t;
    }
    Variante Valor() {
        switch (static_cast<Marca>(Numero<std::uint8_t>())) {
        case Marca::Vacio:
            return Vacio{};
        case Marca::Nulo:
            return Nulo{};
        case Marca::Falso:
            return false;
        case Marca::Verdadero:
            return true;
        case Marca::Byte:
            return Numero<std::uint8_t>();
        case Marca::Entero16:
            return Numero<std::int16_t>();
        case Marca::Entero32:
            return Numero<std::int32_t>();
        case Marca::Flotante:
            return Numero<float>();
        case Marca::Doble:
            return Numero<double>();
        case Marca::Texto:
            return Cadena();
        case Marca::Nada:
            return ReferenciaObjeto();
        case Marca::Objeto:
            return Objeto();
        }
        throw Corto{};
    }

  private:
    Variante Objeto() {
        const auto clase = static_cast<ObjetoGuardado::Clase>(Numero<std::uint8_t>());
        if (clase != ObjetoGuardado::Clase::Fuente && clase != ObjetoGuardado::Clase::Imagen)
            throw Corto{};
        const auto crudo = Tomar(Numero<std::uint32_t>());
        return ReferenciaObjeto(
            std::make_shared<ObjetoGuardado>(clase, Bytes(crudo.begin(), crudo.end())));
    }
    std::span<const std::uint8_t> bytes_;
};

} // namespace

Lectura LeerCabecera(std::span<const std::uint8_t> cabecera, std::uint32_t& largo) {
    largo = 0;
    if (cabecera.size() < LargoDeCabecera)
        return Lectura::Danado;
    Lector lector(cabecera);
    if (lector.Numero<std::uint32_t>() != Firma)
        return Lectura::NoEsNuestro;
    const auto version = lector.Numero<std::uint16_t>();
    if (version > Version)
        return Lectura::VersionMasNueva;
    if (version == 0) // there never was one
        return Lectura::Danado;
    if (lector.Numero<std::uint16_t>() != 0) // kept for later versions
        return Lectura::Danado;
    const auto anunciado = lector.Numero<std::uint32_t>();
    if (anunciado > LargoMaximo)
        return Lectura::Danado;
    largo = anunciado;
    return Lectura::Bien;
}

Lectura LeerGuardado(std::span<const std::uint8_t> bytes, ControlGuardado& control) {
    control = {};
    std::uint32_t largo = 0;
    if (const Lectura cabecera = LeerCabecera(bytes, largo); cabecera != Lectura::Bien)
        return cabecera;
    const auto contenido = bytes.subspan(LargoDeCabecera);
    std::uint32_t suma = 0;
    std::memcpy(&suma, bytes.data() + LargoDeCabecera - sizeof suma, sizeof suma);
    if (contenido.size() != largo || SumaDeControl(contenido) != suma)
        return Lectura::Danado;
    try {
        Lector lector(contenido);
        control.ancho = lector.Numero<std::int32_t>();
        control.alto = lector.Numero<std::int32_t>();
        while (!lector.Fin()) {
            Texto clave = lector.Cadena();
            control.propiedades.push_back({std::move(clave), lector.Valor()});
        }
    } catch (const Corto&) {
        control = {};
        return Lectura::Danado;
    }
    if (control.ancho < 0 || control.alto < 0) {
        control = {};
        return Lectura::Danado;
    }
    return Lectura::Bien;
}

Bytes EscribirGuardado(const ControlGuardado& control) {
    Escritor contenido;
    contenido.Numero(control.ancho);
    contenido.Numero(control.alto);
    for (const PropiedadGuardada& propiedad : control.propiedades) {
        contenido.Cadena(propiedad.clave);
        std::visit(contenido, propiedad.valor);
    }
    Escritor salida;
    salida.Numero(Firma);
    salida.Numero(Version);
    salida.Numero(std::uint16_t{0});
    salida.Numero(static_cast<std::uint32_t>(contenido.Salida().size()));
    salida.Numero(SumaDeControl(contenido.Salida()));
    salida.Salida().insert(salida.Salida().end(), contenido.Salida().begin(),
                           contenido.Salida().end());
    return std::move(salida.Salida());
}

} // namespace pincela
