// What can be undone and done again: the states that something went through.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace diseno {

/// `Estado` can be compared and copied.
template <class Estado>
class Historia {
  public:
    /// The oldest states are forgotten beyond `limite` steps.
    explicit Historia(std::size_t limite = 200) : limite_(limite) {}

    /// From here on; nothing can be undone.
    void Empezar(Estado estado) {
        estados_.clear();
        estados_.push_back({std::move(estado), {}});
        actual_ = 0;
    }

    /// A new state after the present one. Equal states are one; so are those that follow each other
    /// under the same name, unless it is empty: the steps of an arrow key are undone at once. True
    /// when there is something new.
    bool Anotar(Estado estado, const std::string& seguido = {}) {
        if (estado == estados_[actual_].estado)
            return false;
        const bool sigue =
            actual_ > 0 && !seguido.empty() && !cortada_ && estados_[actual_].seguido == seguido;
        estados_.resize(actual_ + 1);
        if (sigue)
            estados_.pop_back();
        estados_.push_back({std::move(estado), seguido});
        if (estados_.size() > limite_ + 1)
            estados_.erase(estados_.begin());
        actual_ = estados_.size() - 1;
        cortada_ = false;
        return true;
    }

    /// What comes next isn't one with what went before, whatever its name.
    void Cortar() { cortada_ = true; }

    const Estado& Actual() const { return estados_[actual_].estado; }
    /// For what isn't compared.
    Estado& Actual() { return estados_[actual_].estado; }
    bool PuedeDeshacer() const { return actual_ > 0; }
    bool PuedeRehacer() const { return actual_ + 1 < estados_.size(); }
    /// The state to go back, or forward, to; only when there is one.
    const Estado& Deshacer() {
        cortada_ = true;
        return estados_[--actual_].estado;
    }
    const Estado& Rehacer() {
        cortada_ = true;
        return estados_[++actual_].estado;
    }

  private:
    struct Paso {
        Estado estado;
        std::string seguido;
    };

    std::size_t limite_;
    std::vector<Paso> estados_{1};
    std::size_t actual_ = 0;
    bool cortada_ = false;
};

} // namespace diseno
