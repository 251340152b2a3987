foreach(tema texto errores enumeraciones numeros lectura_numeros escritura_numeros decimal_exacto variantes
             igualdad guardado)
    pincela_prueba(prueba_${tema} prueba_${tema}.cpp USA pincela_common)
endforeach()
