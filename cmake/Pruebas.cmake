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

# What nearly every program through the component reads, compiled once: it is three of the four seconds
# that each of their files takes. (For the native ones it would save a tenth.)
if(MINGW)
    add_library(pincela_precompilada OBJECT EXCLUDE_FROM_ALL ${CMAKE_SOURCE_DIR}/pruebas/precompilada.cpp)
    target_link_libraries(pincela_precompilada PRIVATE pincela_pruebas)
    target_compile_options(pincela_precompilada PRIVATE -O0)
    target_precompile_headers(pincela_precompilada PRIVATE
        <windows.h> <ole2.h> <ocidl.h> <olectl.h> <commctrl.h> <doctest/doctest.h>
        <algorithm> <functional> <map> <memory> <optional> <string> <vector>)
endif()

# What runs a test program: "nativo", or the bits of its Windows.
if(MINGW AND CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(PINCELA_ENSAYO 64)
elseif(MINGW)
    set(PINCELA_ENSAYO 32)
else()
    set(PINCELA_ENSAYO nativo)
endif()
set(PINCELA_HERRAMIENTAS ${CMAKE_SOURCE_DIR}/herramientas)
# Of a test that says nothing else, whatever the caller's own environment says.
set(PINCELA_ENTORNO PINCELA_PANTALLA=nula PINCELA_IDIOMA=C.UTF-8 PINCELA_PPP=96)

# A component that does not register is one failure, told once, and not one of every program.
if(MINGW)
    add_test(NAME registrar COMMAND ${PINCELA_HERRAMIENTAS}/registrar ${PINCELA_ENSAYO})
    set_tests_properties(registrar PROPERTIES
        FIXTURES_SETUP componente LABELS preparacion
        ENVIRONMENT "${PINCELA_ENTORNO};PINCELA_USO=ensayo-1"
        ENVIRONMENT_MODIFICATION "WINEPREFIX=unset:")
endif()

# _pincela_ensayo(nombre programa [ENTORNO variables...] [ETIQUETAS...]): one run of a program, told how
# by the keywords of pincela_prueba.
function(_pincela_ensayo nombre programa)
    cmake_parse_arguments(PARSE_ARGV 2 ensayo "" "" "ENTORNO;ETIQUETAS")
    add_test(NAME ${nombre} WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
             COMMAND ${PINCELA_HERRAMIENTAS}/ensayar ${PINCELA_ENSAYO} $<TARGET_FILE:${programa}>)
    list(PREPEND ensayo_ENTORNO ${PINCELA_ENTORNO})
    if(prueba_PUBLICADA)
        list(APPEND ensayo_ENTORNO PINCELA_COMPONENTE=$<TARGET_FILE:Pincela>)
        set_tests_properties(${nombre} PROPERTIES FIXTURES_REQUIRED componente)
    endif()
    if(prueba_PANTALLA)
        list(APPEND ensayo_ENTORNO PINCELA_PANTALLA=xvfb)
        list(APPEND ensayo_ETIQUETAS pantalla)
    endif()
    if(prueba_COSTE)
        set_tests_properties(${nombre} PROPERTIES COST ${prueba_COSTE})
    endif()
    set_tests_properties(${nombre} PROPERTIES RUN_SERIAL "${prueba_SOLA}"
        ENVIRONMENT "${ensayo_ENTORNO}" LABELS "${ensayo_ETIQUETAS}")
endfunction()

# pincela_prueba(nombre fuentes... [USA bibliotecas...] [PUBLICADA] [PANTALLA] [IDIOMAS nombres...]
#                [RESOLUCIONES n...] [SOLA] [COSTE segundos] [LARGA]): one test program.
#
# PUBLICADA     it goes through the published component, which is built, and registered before each
#               run; it has the container `anfitrion`
# PANTALLA      on a screen of its own; without it on none: windows paint, but nothing reads the screen
# IDIOMAS       one test for each locale, called nombre.locale: es_ES.UTF-8 has the decimal comma
# RESOLUCIONES  one test for each number of dots per inch, called nombre.n
# SOLA          nothing else runs meanwhile, because it measures time
# COSTE         about how long it takes: the longest is started first
# LARGA         built, and run by a tool of its own instead of with the tests
function(pincela_prueba nombre)
    cmake_parse_arguments(PARSE_ARGV 1 prueba "PUBLICADA;PANTALLA;SOLA;LARGA" "COSTE"
                          "USA;IDIOMAS;RESOLUCIONES")
    add_executable(${nombre} ${prueba_UNPARSED_ARGUMENTS})
    target_link_libraries(${nombre} PRIVATE ${prueba_USA} pincela_pruebas)
    # Tests are built often and run once.
    target_compile_options(${nombre} PRIVATE -O0)
    if(prueba_PUBLICADA)
        target_link_libraries(${nombre} PRIVATE anfitrion)
        target_precompile_headers(${nombre} REUSE_FROM pincela_precompilada)
        add_dependencies(${nombre} Pincela)
    endif()
    if(prueba_LARGA)
        return()
    endif()
    foreach(idioma ${prueba_IDIOMAS})
        _pincela_ensayo(${nombre}.${idioma} ${nombre}
            ENTORNO PINCELA_IDIOMA=${idioma} ETIQUETAS ${idioma})
    endforeach()
    foreach(ppp ${prueba_RESOLUCIONES})
        _pincela_ensayo(${nombre}.${ppp} ${nombre} ENTORNO PINCELA_PPP=${ppp} ETIQUETAS ${ppp}ppp)
    endforeach()
    if(NOT prueba_IDIOMAS AND NOT prueba_RESOLUCIONES)
        _pincela_ensayo(${nombre} ${nombre})
    endif()
endfunction()
