#include "componente/manual/guardado.h"

#include <algorithm>

namespace pincela::manual {

namespace {

/// An empty bag that takes note of what it is asked.
class Bolsa final : public BolsaPropiedades {
  public:
    std::vector<Clave> claves;

    Variante ReadProperty(VistaTexto clave, const Variante& porDefecto) override {
        De(clave).siFalta = porDefecto;
        return porDefecto;
    }
    void WriteProperty(VistaTexto clave, const Variante&, const Variante& porDefecto) override {
        De(clave).noSeEscribe = porDefecto;
    }

  private:
    Clave& De(VistaTexto clave) {
        const auto hallada = std::find_if(claves.begin(), claves.end(),
                                          [&](const Clave& una) { return una.nombre == clave; });
        return hallada != claves.end() ? *hallada
                                       : claves.emplace_back(Clave{Texto(clave), {}, {}});
    }
};

} // namespace

std::vector<Clave> ClavesDe(ControlUsuario& control) {
    Bolsa bolsa;
    control.ReadProperties(bolsa);
    control.WriteProperties(bolsa);
    return std::move(bolsa.claves);
}

} // namespace pincela::manual
