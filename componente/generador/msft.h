// Corrections to a saved type library that its writer leaves to be made.
#pragma once

#include <windows.h>

#include <oaidl.h>

#include <span>

namespace pincela::generador {

/// Patches the image of a type library in place:
/// - enumerations are 4 bytes, `tamanioRegistro` is the size of records;
/// - the length of the table of a dispatch-only interface counts its own functions alone, because
///   readers take their number from it;
/// - in a 32-bit library written by a 64-bit process, the slots of dual interfaces start after
///   seven pointers of 4 bytes.
/// Returns false when the image is not understood.
bool Corregir(std::span<unsigned char> imagen, SYSKIND sistema, int tamanioRegistro);

} // namespace pincela::generador
