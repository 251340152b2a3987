foreach(tema nuevo propiedades persistencia letras fondo borde marcas raton teclado extremos)
    pincela_prueba(prueba_panel_${tema} prueba_panel_${tema}.cpp
        USA pincela_area pincela_grabador)
endforeach()
