' Properties as a script assigns them. The last line and the exit code tell that everything was reached.
Option Explicit
Dim boton, caja, fallos, fecha, color, valor

fallos = 0
Set boton = WScript.CreateObject("Pincela.Botonazo")
Set caja = WScript.CreateObject("Pincela.TboxSS")

Sub Esperar(que, hallado, esperado)
    If hallado <> esperado Then
        WScript.Echo "FALLO " & que & ": " & hallado & " en lugar de " & esperado
        fallos = fallos + 1
    End If
End Sub

' A date is a date, not the number behind it.
fecha = CDate(46348.1741666667)
Esperar "tipo de la fecha", TypeName(fecha), "Date"
caja.Text = fecha
Esperar "fecha", caja.Text, CStr(fecha)
caja.Text = Now
Esperar "fecha de hoy", InStr(caja.Text, CStr(Year(Now))) > 0, True

' An object stands for its default member.
caja.Text = "del campo"
boton.Caption = caja
Esperar "objeto", boton.Caption, "del campo"
caja.Text = "3"
boton.AnchoBorde = caja
Esperar "objeto con un numero", boton.AnchoBorde, 3

' A system colour, by each of its names.
For Each color In Array(&H8000000F, 2147483663, "&H8000000F", "2147483663")
    boton.ColorFondo = 0
    boton.ColorFondo = color
    Esperar "color " & color, boton.ColorFondo, &H8000000F
Next
boton.ColorFondo = -1
Esperar "sin color", boton.ColorFondo, -1

valor = CCur("1234567890123.4567")
boton.Caption = valor
Esperar "moneda", boton.Caption, CStr(valor)

On Error Resume Next
boton.ColorFondo = 4294967296
Esperar "color demasiado grande", Err.Number, 6
Err.Clear
boton.MousePointer = 4000000000
Esperar "puntero demasiado grande", Err.Number, 6
Err.Clear
boton.AnchoBorde = "azul"
Esperar "tipo equivocado", Err.Number, 13
Err.Clear
boton.Caption = boton
Esperar "objeto sin valor", Err.Number <> 0, True
Err.Clear
boton.Angulo = 3
Esperar "miembro interno", Err.Number, 438
Err.Clear
On Error GoTo 0

If fallos = 0 Then WScript.Echo "TODO BIEN"
WScript.Quit 40 + fallos
