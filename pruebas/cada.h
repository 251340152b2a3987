// A test case run once for each of several values.
#pragma once

#include <doctest/doctest.h>

#include <initializer_list>
#include <string>

namespace pincela::pruebas {

/// The value of this run; the framework runs the test case again until each had its turn.
template <class T>
T Cada(std::initializer_list<T> valores) {
    T elegido{};
    int numero = 0;
    for (const T& valor : valores) {
        SUBCASE(("value " + std::to_string(++numero)).c_str()) {
            elegido = valor;
        }
    }
    return elegido;
}

} // namespace pincela::pruebas
