// A lock for the little that all apartments share.
#pragma once

#include <windows.h>

namespace pincela::windows {

class Cerrojo {
  public:
    Cerrojo() = default;
    Cerrojo(const Cerrojo&) = delete;
    Cerrojo& operator=(const Cerrojo&) = delete;

    /// Held for a scope; not twice by one thread.
    class Guarda {
      public:
        explicit Guarda(Cerrojo& cerrojo) : cerrojo_(cerrojo.cerrojo_) {
            ::AcquireSRWLockExclusive(&cerrojo_);
        }
        Guarda(const Guarda&) = delete;
        Guarda& operator=(const Guarda&) = delete;
        ~Guarda() { ::ReleaseSRWLockExclusive(&cerrojo_); }

      private:
        SRWLOCK& cerrojo_;
    };

  private:
    SRWLOCK cerrojo_ = SRWLOCK_INIT;
};

} // namespace pincela::windows
