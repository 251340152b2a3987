// Entry point of the test programs; compiled apart because the framework is slow to compile.
#define DOCTEST_CONFIG_IMPLEMENT_WITH_MAIN
#include <doctest/doctest.h>
