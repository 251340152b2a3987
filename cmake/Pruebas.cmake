# The test framework is one header of the build machine; a cross compiler may see that header and
# nothing else. Without it the tests can be configured, but not built.
set(DOCTEST_INCLUDE ${CMAKE_BINARY_DIR}/incluye)
file(MAKE_DIRECTORY ${DOCTEST_INCLUDE})
if(EXISTS /usr/include/doctest AND NOT EXISTS ${DOCTEST_INCLUDE}/doctest)
    file(CREATE_LINK /usr/include/doctest ${DOCTEST_INCLUDE}/doctest SYMBOLIC)
endif()

# The test runner's own main, compiled once for all programs of a build.
add_library(pincela_pruebas OBJECT EXCLUDE_FROM_ALL ${CMAKE_SOURCE_DIR}/pruebas/principal.cpp)
target_include_directories(pincela_pruebas SYSTEM PUBLIC ${DOCTEST_INCLUDE})
# The framework itself is not on trial: neither sanitized nor optimised, it compiles in half the time.
target_compile_options(pincela_pruebas PRIVATE -O0 -g0)
if(MINGW)
    # The Windows compilers come without the library's threads, and nothing here needs any.
    target_compile_definitions(pincela_pruebas PUBLIC DOCTEST_CONFIG_NO_MULTITHREADING)
else()
    target_compile_options(pincela_pruebas PRIVATE -fno-sanitize=all)
endif()

# pincela_prueba(nombre fuentes... [USA bibliotecas...]): one test program.
function(pincela_prueba nombre)
    cmake_parse_arguments(PARSE_ARGV 1 prueba "" "" "USA")
    add_executable(${nombre} ${prueba_UNPARSED_ARGUMENTS})
    target_link_libraries(${nombre} PRIVATE ${prueba_USA} pincela_pruebas)
    # Tests are built often and run once.
    target_compile_options(${nombre} PRIVATE -O0)
    add_test(NAME ${nombre} COMMAND ${nombre})
endfunction()
