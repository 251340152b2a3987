' Efectos as a script uses it. The last line and the exit code tell that everything was reached.
Option Explicit
Dim efectos, fallos, color, canal, simple, lista, ancho

fallos = 0
Set efectos = WScript.CreateObject("Pincela.Efectos")

Sub Esperar(que, hallado, esperado)
    If hallado <> esperado Then
        WScript.Echo "FALLO " & que & ": " & hallado & " en lugar de " & esperado
        fallos = fallos + 1
    End If
End Sub

' The middle value of a colour, eight bits and sixteen.
Esperar "rojo", efectos.DevColor(&HFF8040, 0, True), 64
Esperar "verde", efectos.DevColor(&HFF8040, 1, True), 128
Esperar "azul", efectos.DevColor(&HFF8040, 2, True), 255
Esperar "rojo ancho", efectos.DevColor(&HFF8040, 0, False), 16384
Esperar "verde ancho", efectos.DevColor(&HFF8040, 1), -32768
Esperar "azul ancho", efectos.DevColor(&HFF8040, 2), -256
Esperar "sin canal", efectos.DevColor(&HFF8040), 0
Esperar "sin color", efectos.DevColor(-1, 1, True), 0
Esperar "canal omitido", efectos.DevColor(&HFF8040, , True), 0

color = &HFF8040
canal = 2
simple = True
Esperar "variables", efectos.DevColor(color, canal, simple), 255
Esperar "texto", efectos.DevColor("16744512", "1", "True"), 128
Esperar "color intacto", color, &HFF8040
Esperar "canal intacto", canal, 2

Esperar "inverso", efectos.InviertoColor(255), 0
Esperar "inverso de variable", efectos.InviertoColor(color), 0
Esperar "tipo del inverso", TypeName(efectos.InviertoColor(255)), "Long"
Esperar "tipo del canal", TypeName(efectos.DevColor(255, 0)), "Integer"
Esperar "año", Len("año"), 3

' Nothing to draw on: nothing drawn, nobody told.
lista = "16777215*0"
ancho = 100
efectos.Degrade 0, ancho, 20, 1, lista
efectos.Degrade 0, 100, 20, 4, "0**255", 45
Esperar "lista intacta", lista, "16777215*0"
Esperar "transparencia", IsEmpty(efectos.DarTrans(0, 0, 0, 1, 1, 0, 0, 0, 1, 1, 255)), True

On Error Resume Next
color = efectos.DevColor("azul", 0, True)
Esperar "tipo equivocado", Err.Number, 13
Err.Clear
color = efectos.DevColor(1E+12, 0, True)
Esperar "desbordamiento", Err.Number, 6
Err.Clear
efectos.Aclarar 1
Esperar "miembro desconocido", Err.Number, 438
Err.Clear
On Error GoTo 0

If fallos = 0 Then WScript.Echo "TODO BIEN"
WScript.Quit 40 + fallos
