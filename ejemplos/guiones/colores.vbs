' Pincela desde un guion. En un Windows de 64 bits, la version de 32 bits la ve
' %SystemRoot%\SysWOW64\cscript.exe y la de 64 bits, el otro.
'
'   cscript //nologo colores.vbs
Option Explicit
Dim efectos, boton, color

Set efectos = WScript.CreateObject("Pincela.Efectos")
color = &H00FF8040                                 ' &H00BBGGRR
WScript.Echo "rojo " & efectos.DevColor(color, 0, True)
WScript.Echo "verde " & efectos.DevColor(color, 1, True)
WScript.Echo "azul " & efectos.DevColor(color, 2, True)

' Un control sin formulario no se ve, pero tiene todas sus propiedades.
Set boton = WScript.CreateObject("Pincela.Botonazo")
boton.Caption = "&Guardar"
boton.EstilosRell = 2                              ' D_Vert
boton.AnchoBorde = 3                               ' Grande
WScript.Echo boton.Caption & " " & boton.EstilosRell & " " & boton.AnchoBorde

' Un valor que no puede ser da un error con su numero.
On Error Resume Next
boton.AnchoBorde = "ancho"
WScript.Echo "error " & Err.Number
On Error GoTo 0
WScript.Echo "LISTO"
