foreach(tema canales lista_colores malla degrade degrade_azar formas)
    pincela_prueba_nativa(prueba_${tema} prueba_${tema}.cpp)
endforeach()
