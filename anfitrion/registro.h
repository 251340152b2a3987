// Record of the calls that controls make to their container, for tests and for curious people.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace anfitrion {

/// Ordered list of calls. Shared by every site of a form; not meant for several threads.
class Registro {
  public:
    struct Llamada {
        std::string control; ///< name of the control whose site was called
        std::string nombre;  ///< "IOleInPlaceSite::OnUIActivate"
        std::string detalle; ///< arguments worth knowing; may be empty
    };

    void Anotar(std::string_view control, std::string_view nombre, std::string_view detalle = {}) {
        llamadas_.push_back({std::string(control), std::string(nombre), std::string(detalle)});
    }

    const std::vector<Llamada>& Llamadas() const { return llamadas_; }
    void Vaciar() { llamadas_.clear(); }

    /// How many times a call was made, by any control.
    std::size_t Veces(std::string_view nombre) const {
        return static_cast<std::size_t>(std::count_if(llamadas_.begin(), llamadas_.end(),
                                                      [&](auto& l) { return l.nombre == nombre; }));
    }

    /// The names alone, in order, of the calls of one control (all controls when empty).
    std::vector<std::string> Nombres(std::string_view control = {}) const {
        std::vector<std::string> nombres;
        for (const Llamada& l : llamadas_)
            if (control.empty() || l.control == control)
                nombres.push_back(l.nombre);
        return nombres;
    }

  private:
    std::vector<Llamada> llamadas_;
};

} // namespace anfitrion
