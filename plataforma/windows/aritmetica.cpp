#include "plataforma/windows/aritmetica.h"

#include <windows.h>

namespace pincela::windows {

namespace {

// Control word of the older unit: masks in the six lowest bits, precision in 8 and 9, rounding in
// 10 and 11. This is the value that the platform gives every thread.
constexpr std::uint16_t PalabraPropia = 0x027F;
constexpr std::uint16_t Mascaras = 0x003F;
#ifdef __i386__
constexpr std::uint16_t BitsPropios = 0x0F3F;
#else
// Its precision is of no consequence where the other unit does the work.
constexpr std::uint16_t BitsPropios = 0x0C3F;
#endif

// Of the newer unit: the flags in the six lowest bits are nobody's setting.
constexpr std::uint32_t SsePropio = 0x1F80;
constexpr std::uint32_t BitsDeSse = 0xFFC0;

std::uint16_t Palabra() {
    std::uint16_t palabra;
    __asm__ volatile("fnstcw %0" : "=m"(palabra));
    return palabra;
}
void PonPalabra(std::uint16_t palabra) {
    __asm__ volatile("fldcw %0" : : "m"(palabra));
}
std::uint32_t Sse() {
    std::uint32_t valor;
    __asm__ volatile("stmxcsr %0" : "=m"(valor));
    return valor;
}
void PonSse(std::uint32_t valor) {
    __asm__ volatile("ldmxcsr %0" : : "m"(valor));
}

/// A word of each thread: its innermost scope that keeps the state of a caller.
class Internas {
  public:
    Internas() : indice_(::TlsAlloc()) {}
    Internas(const Internas&) = delete;
    Internas& operator=(const Internas&) = delete;
    ~Internas() { ::TlsFree(indice_); }

    AritmeticaPropia* La() const { return static_cast<AritmeticaPropia*>(::TlsGetValue(indice_)); }
    void Poner(AritmeticaPropia* interna) const { ::TlsSetValue(indice_, interna); }

  private:
    DWORD indice_;
};

const Internas internas;

} // namespace

bool EstadoAritmetico::EsElPropio() {
    return ((Palabra() ^ PalabraPropia) & BitsPropios) == 0 &&
           ((Sse() ^ SsePropio) & BitsDeSse) == 0;
}

void EstadoAritmetico::Tomar() {
    sse_ = Sse();
    entorno_[0] = Palabra();
    // With an exception unmasked one may be pending, which belongs to the caller as well. The
    // instruction masks them all.
    entero_ = (entorno_[0] & Mascaras) != Mascaras;
    if (entero_)
        __asm__ volatile("fnstenv %0" : "=m"(entorno_));
    PonPalabra(PalabraPropia);
    PonSse(SsePropio);
}

void EstadoAritmetico::Devolver() const {
    if (entero_)
        __asm__ volatile("fldenv %0" : : "m"(entorno_));
    else
        PonPalabra(static_cast<std::uint16_t>(entorno_[0]));
    PonSse(sse_);
}

void AritmeticaPropia::Entrar() {
    exterior_ = internas.La();
    internas.Poner(this);
    ajeno_.Tomar();
}

void AritmeticaPropia::Salir() {
    internas.Poner(exterior_);
    ajeno_.Devolver();
}

AritmeticaAjena::AritmeticaAjena() : propia_(internas.La()) {
    if (!propia_)
        return;
    internas.Poner(nullptr);
    propia_->ajeno_.Devolver();
}

AritmeticaAjena::~AritmeticaAjena() {
    if (!propia_)
        return;
    propia_->ajeno_.Tomar();
    internas.Poner(propia_);
}

} // namespace pincela::windows
