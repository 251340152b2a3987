#include "componente/control/bolsas.h"

#include "common/conversion.h"
#include "componente/com.h"
#include "componente/control/imagen_guardada.h"
#include "componente/errores_com.h"
#include "componente/variantes.h"
#include "plataforma/windows/objetos_windows.h"

#include <algorithm>
#include <cstring>

#include <olectl.h>

namespace pincela::componente {

namespace {

/// Type in which the runtime should hand over what a bag holds, VT_EMPTY where the core reads it as
/// well: it alone knows how a date is written for a text property, and a truth value as text.
VARTYPE TipoGuardado(VARTYPE hallado, const Variante& porDefecto) {
    if (std::holds_alternative<bool>(porDefecto) && hallado == VT_BSTR)
        return VT_BOOL;
    if (!std::holds_alternative<Texto>(porDefecto))
        return VT_EMPTY;
    switch (hallado) {
    case VT_DATE:
    case VT_CY:
    case VT_DECIMAL:
    case VT_I8:
    case VT_UI8:
        return VT_BSTR;
    default:
        return VT_EMPTY;
    }
}

Variante DesdeVariantGuardado(const VARIANT& v, const Variante& porDefecto) {
    const VARTYPE tipo = TipoGuardado(V_VT(&v), porDefecto);
    VarianteCom otro;
    if (tipo != VT_EMPTY && SUCCEEDED(VariantChangeTypeEx(&otro, const_cast<VARIANT*>(&v),
                                                          LOCALE_USER_DEFAULT, 0, tipo)))
        return DesdeVariant(otro);
    return DesdeVariant(v);
}

} // namespace

Variante BolsaCom::ReadProperty(VistaTexto clave, const Variante& porDefecto) {
    const Texto nombre(clave);
    VarianteCom valor;
    const HRESULT estado =
        bolsa_->Read(reinterpret_cast<LPCOLESTR>(nombre.c_str()), &valor, errores_.get());
    // The one answer that means "no such key"; containers that know only failure give the other.
    if (estado == E_INVALIDARG || estado == E_FAIL)
        return porDefecto;
    Exigir(estado);
    return DesdeVariantGuardado(valor, porDefecto);
}

void BolsaCom::WriteProperty(VistaTexto clave, const Variante& valor, const Variante& porDefecto) {
    if (!todas_ && IgualesPorAutomatizacion(valor, porDefecto))
        return;
    const Texto nombre(clave);
    VarianteCom v;
    HaciaVariant(valor, &v);
    Exigir(bolsa_->Write(reinterpret_cast<LPCOLESTR>(nombre.c_str()), &v));
}

namespace {

/// A font is saved by its attributes: name, size in ten-thousandths of a point, character set and
/// the set of its styles.
constexpr double UnidadesPorPunto = 10000;

Bytes GuardarFuente(const ObjetoFuente& fuente) {
    const AtributosFuente a = fuente.Atributos();
    const std::uint8_t estilos =
        static_cast<std::uint8_t>(a.Bold | a.Italic << 1 | a.Underline << 2 | a.Strikethrough << 3);
    const auto tamanio = static_cast<std::int32_t>(a.Size * UnidadesPorPunto + 0.5);
    Bytes bytes(sizeof tamanio + sizeof a.Charset + sizeof estilos +
                a.Name.size() * sizeof(char16_t));
    std::uint8_t* p = bytes.data();
    auto poner = [&](const void* dato, std::size_t n) {
        std::memcpy(p, dato, n);
        p += n;
    };
    poner(&tamanio, sizeof tamanio);
    poner(&a.Charset, sizeof a.Charset);
    poner(&estilos, sizeof estilos);
    poner(a.Name.data(), a.Name.size() * sizeof(char16_t));
    return bytes;
}

Fuente RestaurarFuente(const Bytes& bytes) {
    AtributosFuente a;
    std::int32_t tamanio = 0;
    std::uint8_t estilos = 0;
    constexpr std::size_t fijo = sizeof tamanio + sizeof a.Charset + sizeof estilos;
    if (bytes.size() < fijo || (bytes.size() - fijo) % sizeof(char16_t))
        Lanzar(NumeroError::TiposNoCoinciden);
    const std::uint8_t* p = bytes.data();
    std::memcpy(&tamanio, p, sizeof tamanio);
    std::memcpy(&a.Charset, p + sizeof tamanio, sizeof a.Charset);
    estilos = p[sizeof tamanio + sizeof a.Charset];
    a.Name.assign((bytes.size() - fijo) / sizeof(char16_t), u'\0');
    std::memcpy(a.Name.data(), p + fijo, bytes.size() - fijo);
    a.Size = tamanio / UnidadesPorPunto;
    a.Bold = estilos & 1;
    a.Italic = estilos & 2;
    a.Underline = estilos & 4;
    a.Strikethrough = estilos & 8;
    return windows::CrearFuente(a);
}

Variante Guardado(const Variante& valor) {
    const auto* referencia = std::get_if<ReferenciaObjeto>(&valor);
    if (!referencia || !*referencia)
        return valor;
    if (const auto fuente = std::dynamic_pointer_cast<ObjetoFuente>(*referencia))
        return ReferenciaObjeto(std::make_shared<ObjetoGuardado>(ObjetoGuardado::Clase::Fuente,
                                                                 GuardarFuente(*fuente)));
    if (const auto imagen = std::dynamic_pointer_cast<ObjetoImagen>(*referencia))
        return ReferenciaObjeto(
            std::make_shared<ObjetoGuardado>(ObjetoGuardado::Clase::Imagen, GuardarImagen(imagen)));
    Lanzar(NumeroError::TiposNoCoinciden);
}

Variante Restaurado(const Variante& valor) {
    const auto* referencia = std::get_if<ReferenciaObjeto>(&valor);
    if (!referencia || !*referencia)
        return valor;
    const auto& guardado = dynamic_cast<const ObjetoGuardado&>(**referencia);
    if (guardado.Cual() == ObjetoGuardado::Clase::Fuente)
        return ReferenciaObjeto(RestaurarFuente(guardado.Contenido()));
    return ReferenciaObjeto(RestaurarImagen(guardado.Contenido()));
}

} // namespace

BolsaMemoria::BolsaMemoria(const std::vector<PropiedadGuardada>& propiedades) {
    propiedades_.reserve(propiedades.size());
    for (const PropiedadGuardada& una : propiedades)
        propiedades_.push_back({una.clave, Restaurado(una.valor)});
}

Variante BolsaMemoria::ReadProperty(VistaTexto clave, const Variante& porDefecto) {
    const auto una = std::find_if(propiedades_.begin(), propiedades_.end(),
                                  [&](const PropiedadGuardada& p) { return p.clave == clave; });
    return una == propiedades_.end() ? porDefecto : una->valor;
}

void BolsaMemoria::WriteProperty(VistaTexto clave, const Variante& valor,
                                 const Variante& porDefecto) {
    if (!IgualesPorAutomatizacion(valor, porDefecto))
        propiedades_.push_back({Texto(clave), valor});
}

std::vector<PropiedadGuardada> BolsaMemoria::Guardar() const {
    std::vector<PropiedadGuardada> guardadas;
    guardadas.reserve(propiedades_.size());
    for (const PropiedadGuardada& una : propiedades_)
        guardadas.push_back({una.clave, Guardado(una.valor)});
    return guardadas;
}

} // namespace pincela::componente
