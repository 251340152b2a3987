// The last word of a program that ends because of an exception. The runtime's own says it on the
// console in full, for which it carries a decoder of names; here nobody would read it.
#include <cstdlib>

namespace __gnu_cxx {

void __verbose_terminate_handler();

void __verbose_terminate_handler() {
    std::abort();
}

} // namespace __gnu_cxx
