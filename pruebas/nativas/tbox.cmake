foreach(tema filtro nueva propiedades persistencia disposicion colores raton teclado extremos
             simple simple_persistencia simple_foco)
    pincela_prueba(prueba_caja_${tema} prueba_caja_${tema}.cpp
        USA pincela_tbox pincela_grabador)
endforeach()
