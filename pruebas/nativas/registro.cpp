#include "pruebas/nativas/registro.h"

#include <algorithm>
#include <type_traits>

namespace pincela::pruebas {

namespace {

template <class T>
std::string DescribirUno(const T& valor) {
    if constexpr (std::is_same_v<T, Vacio>)
        return "Vacio";
    else if constexpr (std::is_same_v<T, Nulo>)
        return "Nulo";
    else if constexpr (std::is_same_v<T, Falta>)
        return "Falta";
    else if constexpr (std::is_same_v<T, bool>)
        return "Booleano " + Describir(valor);
    else if constexpr (std::is_same_v<T, std::uint8_t>)
        return "Byte " + Numero(valor);
    else if constexpr (std::is_same_v<T, std::int16_t>)
        return "Entero16 " + Numero(valor);
    else if constexpr (std::is_same_v<T, std::int32_t>)
        return "Entero32 " + Numero(valor);
    else if constexpr (std::is_same_v<T, float>)
        return "Flotante " + Numero(valor);
    else if constexpr (std::is_same_v<T, double>)
        return "Doble " + Numero(valor);
    else if constexpr (std::is_same_v<T, Texto>)
        return "Texto " + Describir(valor);
    else
        return valor ? "Objeto" : "Nada";
}

} // namespace

std::string Describir(bool valor) {
    return valor ? "True" : "False";
}

std::string Describir(Color color) {
    std::ostringstream linea;
    linea << "&H" << std::hex << std::uppercase << static_cast<std::uint32_t>(color.valor);
    return linea.str();
}

std::string Describir(const Texto& texto) {
    std::string linea = "\"";
    for (char16_t letra : texto)
        linea += letra < 128 ? static_cast<char>(letra) : '?';
    return linea + "\"";
}

std::string Describir(const Variante& valor) {
    return std::visit([](const auto& uno) { return DescribirUno(uno); }, valor);
}

std::string Numero(double valor) {
    std::ostringstream linea;
    linea.precision(10);
    // Through float, so that a stored fraction reads as it was written.
    if (valor != static_cast<double>(static_cast<std::int64_t>(valor)))
        linea.precision(6);
    linea << valor;
    return linea.str();
}

std::string Punto(double x, double y) {
    return Numero(x) + "," + Numero(y);
}

std::string Caja(double izquierda, double arriba, double ancho, double alto) {
    return Punto(izquierda, arriba) + " " + Numero(ancho) + "x" + Numero(alto);
}

Lineas Registro::Tomar(const std::vector<std::string>& comienzos) {
    Lineas todas = Tomar();
    std::erase_if(todas, [&](const std::string& linea) {
        return std::none_of(comienzos.begin(), comienzos.end(), [&](const std::string& comienzo) {
            return linea.starts_with(comienzo);
        });
    });
    return todas;
}

} // namespace pincela::pruebas
