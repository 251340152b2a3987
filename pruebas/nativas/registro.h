// What happened, line by line, in one order for everything.
#pragma once

#include "common/color.h"
#include "common/texto.h"
#include "common/variante.h"

#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace pincela::pruebas {

using Lineas = std::vector<std::string>;

// How values are written in a line.
std::string Describir(bool valor);         // True, False
std::string Describir(Color color);        // &HC0C0C0
std::string Describir(const Texto& texto); // "Hola", without anything beyond ASCII
/// Type and value: Entero16 45, Booleano True, Texto "", Nada (no object), Objeto.
std::string Describir(const Variante& valor);
std::string Numero(double valor);      // as short as it can be
std::string Punto(double x, double y); // 3,4
std::string Caja(double izquierda, double arriba, double ancho, double alto); // 3,4 100x30

class Registro {
  public:
    void Anotar(std::string linea) { lineas_.push_back(std::move(linea)); }
    const Lineas& Todo() const { return lineas_; }
    void Olvidar() { lineas_.clear(); }
    /// What was noted since the last time.
    Lineas Tomar() { return std::exchange(lineas_, {}); }
    /// The same, only the lines that start with one of the texts.
    Lineas Tomar(const std::vector<std::string>& comienzos);

  private:
    Lineas lineas_;
};

} // namespace pincela::pruebas
