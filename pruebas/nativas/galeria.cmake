foreach(tema agarres gesto historia)
    pincela_prueba(prueba_diseno_${tema} prueba_diseno_${tema}.cpp USA pincela_diseno)
endforeach()
