' What was installed, at work. Script errors end the script without the last line.
Option Explicit
Dim efectos, boton
Set efectos = WScript.CreateObject("Pincela.Efectos")
Set boton = WScript.CreateObject("Pincela.Botonazo")
boton.Caption = "Listo"
If efectos.DevColor(&HFF8040, 0, True) = 64 And boton.Caption = "Listo" Then WScript.Echo "TODO BIEN"
