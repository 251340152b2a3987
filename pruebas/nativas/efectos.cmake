foreach(tema canales lista_colores malla degrade degrade_azar formas)
    pincela_prueba(prueba_${tema} prueba_${tema}.cpp USA pincela_efectos)
endforeach()
