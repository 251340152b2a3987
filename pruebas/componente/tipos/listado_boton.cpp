// Members of the drawing class, the button and the panel.
#include "pruebas/componente/tipos/listado.h"

namespace tipos {

extern const std::vector<Miembro> MiembrosEfectos{
    {L"DarForma", L"metodo",
     L"(HWND: long&, Ancho: long&, Alto: long&, Forma: TEstilos&, Param: tRectRedo&) : void",
     0x60030000},
    {L"Degrade", L"metodo",
     L"(hdc: long&, Ancho: long&, Alto: long&, Esti: TEstilosR, Valores: texto, [Angulo: short&]) "
     L": void",
     0x60030001},
    {L"DevColor", L"metodo",
     L"(color: long&, [DColor: ColoresRGB& = -1], [Simple: variante& = False]) : short",
     0x60030002},
    {L"DarTrans", L"metodo",
     L"(HdcO: long&, XO: long&, YO: long&, AnchoO: long&, AltoO: long&, HdcD: long&, XD: long&, "
     L"YD: long&, AnchoD: long&, AltoD: long&, Nivel: byte&) : variante",
     0x60030003},
    {L"InviertoColor", L"metodo", L"(color: long&) : long", 0x60030004},
};

extern const std::vector<Miembro> MiembrosBotonazo{
    {L"EfectoBoton", L"get put", L"EfectosBoton", 0x6803001B, 0,
     L"Estilos de boton (Efectos para la concha de tu madre)"},
    {L"AlinText", L"get put", L"Alineaciones", 0x6803001A, 0,
     L"Alinea el texto a donde se te antoje"},
    {L"Caption", L"get put", L"texto", -518, 0,
     L"Devuelve o establece el texto mostrado en la barra de título de un objeto o bajo el icono "
     L"de un objeto."},
    {L"AlinImag", L"get put", L"Alineaciones", 0x68030018, 0, L"Alinea la imagen"},
    {L"Font", L"get putref", L"fuente", -512, 0, L"La fuente que utiliza el botonazo"},
    {L"ColorLetra", L"get put", L"color", 0x68030016, 0,
     L"Es Pa' el Color de letra cuando el mouse no se posisiona sobre el control"},
    {L"ColorLetraSobre", L"get put", L"color", 0x68030015, 0, L"¿Que puede ser? Pensa un poquito"},
    {L"ColorFondo", L"get put", L"color", 0x68030014, 0,
     L"Color de fondo del botonazo, Cuando el estilo de relleno es solido, color en estado normal"},
    {L"ColorFondoSobre", L"get put", L"color", 0x68030013, 0,
     L"Color de fondo del botonazo, Cuando el estilo de relleno es solido, color en estado Sobre"},
    {L"MouseIcon", L"get putref", L"imagen", 0x68030012, 0,
     L"Establece un icono personalizado para el mouse."},
    {L"MousePointer", L"get put", L"short", 0x68030011, 0,
     L"Devuelve o establece el tipo de puntero del mouse mostrado al pasar por encima de un "
     L"objeto."},
    {L"ToolTipText", L"get put", L"texto", 0x68030010, 0, L"sasa PEPE TITIT TOTO"},
    {L"EstilosBord", L"get put", L"TEstilosB", 0x6803000F, 0,
     L"Solo Funciona Ninguno, y Normal, por ahora"},
    {L"EstilosRell", L"get put", L"TEstilosR", 0x6803000E},
    {L"Estilos", L"get put", L"TEstilos", 0x6803000D, 0, L"sasa"},
    {L"RelX", L"get put", L"float", 0x6803000C, 0,
     L"Son Valores Que estan relacionados con la curbatura del boton, solo se aplican cuando el "
     L"estilo es REDONDEADO"},
    {L"RelY", L"get put", L"float", 0x6803000B, 0,
     L"Son Valores Que estan relacionados con la curbatura del boton, solo se aplican cuando el "
     L"estilo es REDONDEADO"},
    {L"ImagNormal", L"get putref", L"imagen", 0x6803000A},
    {L"ImagSobre", L"get putref", L"imagen", 0x68030009},
    {L"Actualizar", L"metodo", L"() : void", 0x6003003B},
    {L"Expandir", L"get put", L"bool", 0x68030007},
    {L"Enabled", L"get put", L"bool", 0x68030006, 0, L"Habilita y DesHabilita (que loco no?)"},
    {L"FocoVisible", L"get put", L"bool", 0x68030005, 0,
     L"Muestra un recuadro cuando el Botonazo tiene el foco"},
    {L"FocoConMouse", L"get put", L"bool", 0x68030004, 0,
     L"Cuando Pasas el Raton por el objeto, el mismo obtiene el foco"},
    {L"AnchoBorde", L"get put", L"Tamanio", 0x68030003, 0,
     L"Es el ancho del borde; En realidad es el efecto de levantado, osea la altura del botón"},
    {L"TipoLetra", L"get put", L"TLetra", 0x68030002},
    {L"CambioProgre", L"get put&", L"bool", 0x68030001},
    {L"CambioProgrePasos", L"get put&", L"byte", 0x68030000},
};

extern const std::vector<Miembro> MiembrosArea{
    {L"AlinText", L"get put", L"Alineaciones", 0x6803000F},
    {L"Caption", L"get put", L"texto", 0x6803000E},
    {L"Font", L"get putref", L"fuente", 0x6803000D},
    {L"ColorLetra", L"get put", L"color", 0x6803000C},
    {L"ColorFondo", L"get put", L"color", 0x6803000B},
    {L"MouseIcon", L"get putref", L"imagen", 0x6803000A},
    {L"MousePointer", L"get put", L"short", 0x68030009},
    {L"ToolTipText", L"get put", L"texto", 0x68030008},
    {L"EstilosBord", L"get put", L"TEstilosB", 0x68030007},
    {L"EstilosRell", L"get put", L"TEstilosR", 0x68030006},
    {L"Enabled", L"get put", L"bool", 0x68030005},
    {L"SeparaBorde", L"get put", L"Tamanio", 0x68030004},
    {L"ColorDegrade", L"get put", L"texto", 0x68030003},
    {L"ManAreas", L"metodo", L"(Crear: bool&) : void", 0x60030022},
    {L"BackStyle", L"get put", L"TBack", 0x68030002},
    {L"AnchoBorde", L"get put", L"Tamanio", 0x68030001},
    {L"TipoLetra", L"get put", L"TLetra", 0x68030000},
};

} // namespace tipos
