// What a form holds at one moment, so that it can be had again.
#pragma once

#include "anfitrion/formulario.h"
#include "anfitrion/propiedades.h"

#include <map>
#include <string>
#include <vector>

namespace galeria {

/// Published properties of each class, read from the type library once.
class Examinador {
  public:
    const std::vector<anfitrion::Propiedad>& De(const anfitrion::ControlAlojado& control);

  private:
    std::map<std::wstring, std::vector<anfitrion::Propiedad>> clases_;
};

/// The form's text says what controls save of themselves; the values, what they publish: not all of
/// that is saved.
struct Foto {
    struct Valor {
        std::wstring control, propiedad, escrito;
        friend bool operator==(const Valor&, const Valor&) = default;
    };

    std::wstring texto;
    std::vector<Valor> valores;
    /// Names of what was chosen last while the form was like this; not compared.
    std::vector<std::wstring> seleccion;

    friend bool operator==(const Foto& a, const Foto& b) {
        return a.texto == b.texto && a.valores == b.valores;
    }
};

std::vector<std::wstring> NombresElegidos(const anfitrion::Formulario& forma);

Foto Retratar(const anfitrion::Formulario& forma, Examinador& examinador);

/// Makes form and selection what they were. Throws what anfitrion::LeerFormulario throws.
void Restaurar(anfitrion::Formulario& forma, const anfitrion::Componente& componente,
               Examinador& examinador, const Foto& foto);

} // namespace galeria
