// What the standard library does when it can't go on, in the terms of this component. Its own answers
// bring along formatting, localised texts and a decoder of names, a quarter of the component's size, for
// messages that nobody reads here: whatever is thrown ends as a status.
#include "common/errores.h"

#include <cstdlib>
#include <new>
#include <typeinfo>

using pincela::Lanzar;
using pincela::NumeroError;

namespace std {

// Every one of that family: the linker takes the library's own together or not at all.
void __throw_bad_alloc() {
    throw bad_alloc();
}
void __throw_bad_array_new_length() {
    throw bad_alloc();
}
void __throw_length_error(const char*) {
    throw bad_alloc();
}
void __throw_bad_cast() {
    throw bad_cast();
}
void __throw_bad_typeid() {
    throw bad_cast();
}
void __throw_bad_exception() {
    Lanzar(NumeroError::LlamadaNoValida);
}
void __throw_bad_function_call() {
    Lanzar(NumeroError::LlamadaNoValida);
}
void __throw_out_of_range(const char*) {
    Lanzar(NumeroError::Subindice);
}
void __throw_logic_error(const char*) {
    Lanzar(NumeroError::LlamadaNoValida);
}
void __throw_domain_error(const char*) {
    Lanzar(NumeroError::LlamadaNoValida);
}
void __throw_invalid_argument(const char*) {
    Lanzar(NumeroError::LlamadaNoValida);
}
void __throw_runtime_error(const char*) {
    Lanzar(NumeroError::LlamadaNoValida);
}
void __throw_range_error(const char*) {
    Lanzar(NumeroError::Desbordamiento);
}
void __throw_overflow_error(const char*) {
    Lanzar(NumeroError::Desbordamiento);
}
void __throw_underflow_error(const char*) {
    Lanzar(NumeroError::Desbordamiento);
}
void __throw_out_of_range_fmt(const char*, ...) {
    Lanzar(NumeroError::Subindice);
}

} // namespace std

namespace __gnu_cxx {

void __verbose_terminate_handler();

void __verbose_terminate_handler() {
    std::abort();
}

} // namespace __gnu_cxx
