// A list that stays on the stack while it is short.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <type_traits>
#include <vector>

namespace pincela {

/// Grows like a vector; its first `Cabida` elements cost no memory of the heap.
template <class T, std::size_t Cabida>
requires std::is_trivially_copyable_v<T>
class ListaCorta {
  public:
    void Agregar(const T& elemento) {
        if (cuantos_ == Cabida && largos_.empty())
            largos_.assign(cortos_.begin(), cortos_.end());
        if (cuantos_ < Cabida)
            cortos_[cuantos_] = elemento;
        else
            largos_.push_back(elemento);
        ++cuantos_;
    }

    /// Makes the list `cuantos` long, for elements that are all assigned now.
    std::span<T> Ocupar(std::size_t cuantos) {
        cuantos_ = cuantos;
        if (cuantos > Cabida)
            largos_.resize(cuantos);
        return {cuantos > Cabida ? largos_.data() : cortos_.data(), cuantos};
    }

    std::size_t Cuantos() const { return cuantos_; }
    std::span<const T> Vista() const {
        return {cuantos_ <= Cabida ? cortos_.data() : largos_.data(), cuantos_};
    }

  private:
    std::array<T, Cabida> cortos_; // only the first `cuantos_` mean anything
    std::vector<T> largos_;        // all of them once they don't fit
    std::size_t cuantos_ = 0;
};

} // namespace pincela
