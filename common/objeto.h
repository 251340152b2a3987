// Shared references to objects of the host: fonts, pictures and whatever else travels by reference.
#pragma once

#include <memory>

namespace pincela {

class Objeto {
  public:
    Objeto() = default;
    Objeto(const Objeto&) = delete;
    Objeto& operator=(const Objeto&) = delete;
    virtual ~Objeto() = default;

    /// True when both stand for one and the same object of the host.
    virtual bool EsElMismo(const Objeto& otro) const { return this == &otro; }

    /// True when both have the same attributes, the comparison a property bag makes.
    virtual bool EsIgual(const Objeto& otro) const { return EsElMismo(otro); }
};

using ReferenciaObjeto = std::shared_ptr<Objeto>;

/// Identity of two references; two empty references are the same.
template <class A, class B>
bool MismoObjeto(const std::shared_ptr<A>& a, const std::shared_ptr<B>& b) {
    if (!a || !b)
        return !a && !b;
    return a->EsElMismo(*b);
}

} // namespace pincela
