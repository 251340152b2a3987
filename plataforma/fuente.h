// Fonts as shared references: the container's own font object underneath.
#pragma once

#include "common/objeto.h"
#include "common/texto.h"

#include <cstdint>
#include <memory>

namespace pincela {

struct AtributosFuente {
    Texto Name = u"Arial";
    double Size = 8.25; // points
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool Strikethrough = false;
    std::int16_t Charset = 0;
    friend bool operator==(const AtributosFuente&, const AtributosFuente&) = default;
};

class ObjetoFuente : public Objeto {
  public:
    virtual AtributosFuente Atributos() const = 0;

    bool EsIgual(const Objeto& otro) const override {
        const auto* fuente = dynamic_cast<const ObjetoFuente*>(&otro);
        return fuente && fuente->Atributos() == Atributos();
    }
};

using Fuente = std::shared_ptr<ObjetoFuente>;

} // namespace pincela
