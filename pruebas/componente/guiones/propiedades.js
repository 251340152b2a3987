// Properties as a script assigns them. The last line and the exit code tell that everything was reached.
var fallos = 0;
var boton = WScript.CreateObject("Pincela.Botonazo");
var caja = WScript.CreateObject("Pincela.TboxSS");

function esperar(que, hallado, esperado) {
    if (hallado !== esperado) {
        WScript.Echo("FALLO " + que + ": " + hallado + " en lugar de " + esperado);
        ++fallos;
    }
}

function numeroDelFallo(hacer) {
    try {
        hacer();
    } catch (fallo) {
        return fallo.number & 0xFFFF;
    }
    return 0;
}

// A number above 31 bits is a double here, and a colour all the same.
boton.ColorFondo = 0x8000000F;
esperar("color", boton.ColorFondo, -2147483633);
boton.ColorFondo = 0xFFFFFFFF;
esperar("sin color", boton.ColorFondo, -1);
boton.ColorFondo = "&H8000000F";
esperar("color escrito", boton.ColorFondo, -2147483633);
boton.RelX = 4000000000;
esperar("real", boton.RelX, 4000000000);

// An object stands for its default member.
caja.Text = "del campo";
boton.Caption = caja;
esperar("objeto", boton.Caption, "del campo");
boton.Caption = 2.5;
esperar("numero", boton.Caption, "2.5");

esperar("color demasiado grande", numeroDelFallo(function () { boton.ColorFondo = 0x100000000; }) != 0, true);
esperar("puntero demasiado grande", numeroDelFallo(function () { boton.MousePointer = 4000000000; }) != 0, true);
esperar("tipo equivocado", numeroDelFallo(function () { boton.AnchoBorde = "azul"; }) != 0, true);
esperar("miembro interno", typeof boton.Angulo, "undefined");

if (fallos === 0)
    WScript.Echo("TODO BIEN");
WScript.Quit(40 + fallos);
