#include "pruebas/componente/flotante/ajena.h"

namespace flotante {

namespace {

constexpr std::uint16_t MascarasViejas = 0x003F;
constexpr std::uint16_t ConSentido = 0x1F3F;
constexpr std::uint32_t MascarasNuevas = 0x1F80, Sucesos = 0x003F;

thread_local int faltas = 0;

bool EsDeCalculo(DWORD codigo) {
    return (codigo >= STATUS_FLOAT_DENORMAL_OPERAND && codigo <= STATUS_FLOAT_UNDERFLOW) ||
           codigo == STATUS_FLOAT_MULTIPLE_FAULTS || codigo == STATUS_FLOAT_MULTIPLE_TRAPS;
}

/// The instruction that failed is tried again, with everything masked.
LONG CALLBACK AlFallar(EXCEPTION_POINTERS* datos) {
    if (!EsDeCalculo(datos->ExceptionRecord->ExceptionCode))
        return EXCEPTION_CONTINUE_SEARCH;
    ++faltas;
    CONTEXT& c = *datos->ContextRecord;
#ifdef _WIN64
    c.FltSave.ControlWord |= MascarasViejas;
    c.FltSave.StatusWord = 0;
    c.FltSave.MxCsr = c.MxCsr = MascarasNuevas;
#else
    c.FloatSave.ControlWord |= MascarasViejas;
    c.FloatSave.StatusWord &= 0xFFFF7F00u;
    // The image that the processor makes of both units.
    *reinterpret_cast<std::uint16_t*>(c.ExtendedRegisters) |= MascarasViejas;
    *reinterpret_cast<std::uint16_t*>(c.ExtendedRegisters + 2) &= 0x7F00;
    *reinterpret_cast<std::uint32_t*>(c.ExtendedRegisters + 24) = MascarasNuevas;
#endif
    return EXCEPTION_CONTINUE_EXECUTION;
}

[[maybe_unused]] const PVOID puesto = AddVectoredExceptionHandler(1, &AlFallar);

} // namespace

Palabras Actuales() {
    std::uint16_t vieja;
    std::uint32_t nueva;
    __asm__ volatile("fnstcw %0" : "=m"(vieja));
    __asm__ volatile("stmxcsr %0" : "=m"(nueva));
    return {static_cast<std::uint16_t>(vieja & ConSentido), nueva & ~Sucesos};
}

void Poner(const Palabras& palabras) {
    __asm__ volatile("fnclex");
    __asm__ volatile("fldcw %0" : : "m"(palabras.vieja));
    __asm__ volatile("ldmxcsr %0" : : "m"(palabras.nueva));
}

int FaltasDesdeEntonces() {
    const int cuantas = faltas;
    faltas = 0;
    return cuantas;
}

} // namespace flotante

TEST_CASE("The host of these tests notices a fault and a changed control word") {
    using namespace flotante;
    FaltasDesdeEntonces();
    volatile double uno = 1, cero = 0;
    {
        const Ajena ajena(Habitual);
        CHECK(Actuales() == Habitual);
        uno = uno / cero;
#ifndef _WIN64
        __asm__ volatile("fwait");
#endif
    }
    CHECK(FaltasDesdeEntonces() == 1);
    CHECK_FALSE(Actuales() == Habitual);
}
