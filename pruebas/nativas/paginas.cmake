# The recording host of the pages.
add_library(pincela_grabador_paginas STATIC entorno_pagina_grabador.cpp)
target_link_libraries(pincela_grabador_paginas PUBLIC pincela_paginas pincela_grabador)

foreach(tema general general_edicion general_extremos colores colores_filas colores_edicion area
             errores numeros)
    pincela_prueba(prueba_pagina_${tema} prueba_pagina_${tema}.cpp
        USA pincela_grabador_paginas)
endforeach()
