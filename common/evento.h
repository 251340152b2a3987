// An event a control raises: its arguments travel by reference, so a handler may change them.
#pragma once

#include <functional>
#include <utility>

namespace pincela {

template <class... Argumentos>
class Evento {
  public:
    using Receptor = std::function<void(Argumentos&...)>;

    void Conectar(Receptor receptor) { receptor_ = std::move(receptor); }

    /// Calls the receiver on a copy, since a handler may disconnect or destroy the control.
    void operator()(Argumentos&... argumentos) const {
        if (Receptor receptor = receptor_)
            receptor(argumentos...);
    }

  private:
    Receptor receptor_;
};

} // namespace pincela
