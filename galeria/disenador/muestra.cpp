#include "galeria/disenador/muestra.h"

namespace galeria {

const wchar_t FormularioDeMuestra[] = LR"(Formulario 520 400 96
Pincela.Area Cliente 24 24 472 224
  Caption = "Datos del cliente"
  AlinText = 0
  SeparaBorde = 3
  EstilosBord = 3
  EstilosRell = 2
  ColorDegrade = "16777215*16706783"
  ColorLetra = &H008A3A1E
  Pincela.Tbox Nombre 16 40 216 48
    Caption = "Nombre"
    AlinTBox = 2
    BackStyle = 0
    TipoSombra = 2
  Fin
  Pincela.Tbox Telefono 240 40 216 48
    Caption = "Teléfono"
    AlinTBox = 2
    BackStyle = 0
    TipoSombra = 2
  Fin
  Pincela.TBoxML Notas 16 96 440 112
    Caption = "Notas"
    AlinTBox = 2
    BackStyle = 0
    TipoSombra = 2
  Fin
Fin
Pincela.TboxSS Buscar 24 272 232 24
  Text = "Buscar..."
Fin
Pincela.Botonazo Aceptar 272 344 104 32
  Caption = "Aceptar"
  Estilos = 1
  RelX = 0.25
  RelY = 0.8
  EstilosRell = 2
  ColorDegradeN = "16167772*15426341"
  ColorDegradeS = "16419937*16167772"
  ColorLetra = &H00FFFFFF
  ColorLetraSobre = &H00FFFFFF
Fin
Pincela.Botonazo Cancelar 392 344 104 32
  Caption = "Cancelar"
  EstilosRell = 2
  ColorDegradeN = "16777215*15788258"
  ColorDegradeS = "16777215*16701115"
  ColorLetra = &H0037291F
  ColorLetraSobre = &H00EB6325
Fin
)";

} // namespace galeria
