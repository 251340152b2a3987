# The recording host, for every control's tests.
add_library(pincela_grabador STATIC
    registro.cpp elementos_grabados.cpp bolsa_grabadora.cpp entorno_grabador.cpp)
target_link_libraries(pincela_grabador PUBLIC pincela_common)

pincela_prueba(prueba_grabador prueba_grabador.cpp USA pincela_grabador)
foreach(tema nuevo propiedades persistencia letras imagen borde inhabilitado raton teclado accesible
             progresivo extremos)
    pincela_prueba(prueba_boton_${tema} prueba_boton_${tema}.cpp
        USA pincela_botonazo pincela_grabador)
endforeach()
