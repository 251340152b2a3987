// A property bag that notes every reading and writing, and that can be made hostile.
#pragma once

#include "common/errores.h"
#include "plataforma/bolsa.h"
#include "pruebas/nativas/registro.h"

#include <map>

namespace pincela::pruebas {

class BolsaGrabadora : public BolsaPropiedades {
  public:
    /// What is stored; a test may put anything under a key.
    std::map<Texto, Variante> valores;
    /// Keys whose reading or writing fails, and how.
    std::map<Texto, NumeroError> fallos;
    /// One line per call: "lee RelX Flotante 0.33333", "escribe Angulo Entero16 45 | Entero16 45".
    Registro registro;

    Variante ReadProperty(VistaTexto clave, const Variante& porDefecto) override;
    void WriteProperty(VistaTexto clave, const Variante& valor,
                       const Variante& porDefecto) override;

    bool Tiene(VistaTexto clave) const { return valores.contains(Texto(clave)); }

  private:
    void Fallar(VistaTexto clave) const;
};

} // namespace pincela::pruebas
