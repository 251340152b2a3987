// The list of properties: what it shows, and how it is edited.
#include "anfitrion/imagenes.h"
#include "anfitrion/tardio.h"
#include "pruebas/componente/comun/boton.h"
#include "pruebas/componente/disenador/banco.h"

#include <algorithm>

using namespace disenador;

namespace {

struct BancoLista : Banco {
    BancoLista() {
        Poner(DosBotones + UnPanel);
        Elegir(L"Uno");
    }
    HWND Abrir(const wchar_t* propiedad) {
        REQUIRE(pagina->Lista()->Elegir(propiedad));
        pagina->Lista()->Editar();
        REQUIRE(pagina->Lista()->Editor());
        return pagina->Lista()->Editor();
    }
    const Renglon& La(const wchar_t* propiedad) const {
        return pagina->Hoja()->Renglones().at(pagina->Hoja()->Lugar(propiedad));
    }
};

std::string Leido(HWND ventana) {
    wchar_t texto[200];
    return Estrechar({texto, static_cast<std::size_t>(GetWindowTextW(ventana, texto, 200))});
}

} // namespace

TEST_CASE("The list shows what the type library publishes, with its help") {
    BancoLista b;
    const auto& renglones = b.pagina->Hoja()->Renglones();
    for (const wchar_t* propiedad : publicado::PropiedadesDelBoton) {
        INFO(Estrechar(propiedad));
        CHECK(b.pagina->Hoja()->Lugar(propiedad) < renglones.size());
    }
    // And the container's own.
    CHECK(renglones.size() == std::size(publicado::PropiedadesDelBoton) + 5);
    CHECK(b.pagina->Hoja()->Lugar(L"Angulo") == renglones.size());
    CHECK(Estrechar(b.La(L"EstilosBord").propiedad.ayuda) ==
          "Solo Funciona Ninguno, y Normal, por ahora");
    CHECK(b.La(L"ColorLetra").propiedad.genero == Genero::Color);
    CHECK(b.La(L"Font").propiedad.genero == Genero::Fuente);
    CHECK(b.La(L"ImagNormal").propiedad.genero == Genero::Imagen);
    CHECK(b.La(L"RelX").propiedad.genero == Genero::Real);
    CHECK(b.La(L"FocoVisible").propiedad.genero == Genero::Logico);
    CHECK(b.Valor(L"EstilosBord") == "Normal");
    CHECK(b.La(L"EstilosRell").propiedad.opciones.size() == 5);
}

TEST_CASE("Values are written as the user would") {
    BancoLista b;
    const struct {
        const wchar_t *propiedad, *escrito;
        const char* leido;
    } casos[] = {
        {L"Caption", L"&Nuevo \"título\"", "&Nuevo \"título\""},
        {L"EstilosRell", L"d_pirami", "D_Pirami"},
        {L"EstilosRell", L"77", "77"},
        {L"RelX", L"0.5", "0.5"},
        {L"RelX", L"0,25", "0.25"},
        {L"FocoVisible", L"no", "False"},
        {L"ColorLetra", L"#336699", "&H00996633"},
        {L"ColorLetra", L"&H8000000F", "&H8000000F"},
        {L"ColorLetra", L"255", "&H000000FF"},
        {L"CambioProgrePasos", L"12", "12"},
        {L"(Ancho)", L"123", "123"},
        {L"(Nombre)", L"Otro_1", "Otro_1"},
    };
    for (const auto& caso : casos) {
        INFO(Estrechar(caso.propiedad));
        CHECK(b.Escribir(caso.propiedad, caso.escrito));
        CHECK(b.Valor(caso.propiedad) == caso.leido);
    }
    CHECK(b.Lugares().starts_with("Pincela.Botonazo Otro_1 16 16 123 32|"));
}

TEST_CASE("A value that is refused is told in Spanish, and nothing is lost") {
    BancoLista b;
    const std::string antes = b.Texto();
    const struct {
        const wchar_t *propiedad, *escrito, *dicho;
    } casos[] = {
        {L"CambioProgrePasos", L"300", L"CambioProgrePasos: el número no cabe."},
        {L"CambioProgrePasos", L"muchos", L"CambioProgrePasos: se espera un número entero."},
        {L"MousePointer", L"99999", L"MousePointer: el número no cabe."},
        {L"RelX", L"ancho", L"RelX: se espera un número."},
        {L"EstilosRell", L"Ondas", L"EstilosRell: no es una de las opciones, ni un número."},
        {L"FocoVisible", L"quizás", L"FocoVisible: se espera True o False."},
        {L"ColorLetra", L"#12", L"ColorLetra: un color es &H00BBGGRR, #RRGGBB o un número."},
        {L"Font", L"Arial", L"Font: se elige con el botón «...»."},
        {L"(Ancho)", L"0", L"(Ancho): la medida está fuera de rango."},
        {L"(Nombre)", L"1x", L"Un nombre empieza por una letra y tiene solo letras, cifras y «_»."},
        {L"(Nombre)", L"dos", L"Ya hay un control que se llama «dos»."},
    };
    for (const auto& caso : casos) {
        INFO(Estrechar(caso.propiedad));
        CHECK_FALSE(b.Escribir(caso.propiedad, caso.escrito));
        CHECK(Estrechar(b.pagina->Estado()) == Estrechar(caso.dicho));
        CHECK(b.Texto() == antes);
    }
    CHECK_FALSE(b.mesa->Puede(Orden::Deshacer));
    b.Clic(20, 20);
    CHECK(b.pagina->Estado().find(L"nombre") == std::wstring::npos);
}

TEST_CASE("Several controls show what they have in common, and are changed together") {
    BancoLista b;
    REQUIRE(b.Escribir(L"Caption", L"Uno"));
    b.mesa->Hacer(Orden::ElegirTodo);
    const auto lugar = [&](const wchar_t* propiedad) { return b.pagina->Hoja()->Lugar(propiedad); };
    const std::size_t fin = b.pagina->Hoja()->Renglones().size();
    CHECK(lugar(L"EfectoBoton") == fin);
    CHECK(lugar(L"(Nombre)") == fin);
    CHECK(b.Valor(L"Caption").empty());
    REQUIRE(b.Escribir(L"Caption", L"Todos"));
    CHECK(b.Valor(L"Caption") == "Todos");
    CHECK(Texto(Leer(b.Control(L"Panel")->Despacho(), L"Caption")) == L"Todos");
    b.mesa->Hacer(Orden::Deshacer);
    CHECK(Texto(Leer(b.Control(L"Uno")->Despacho(), L"Caption")) == L"Uno");
    CHECK(Texto(Leer(b.Control(L"Panel")->Despacho(), L"Caption")) == L"");
}

TEST_CASE("When one of several refuses, all keep what they had") {
    BancoLista b;
    b.mesa->Forma().Seleccionar(Mesa::Controles{b.Control(L"Uno"), b.Control(L"Panel")});
    // An access key beyond the 255th letter doesn't fit in a button.
    const std::wstring largo = std::wstring(300, L'x') + L"&y";
    const std::string antes = b.Texto();
    CHECK_FALSE(b.Escribir(L"Caption", largo.c_str()));
    CHECK(Estrechar(b.pagina->Estado()) == "Caption: Desbordamiento.");
    CHECK(b.Texto() == antes);
}

TEST_CASE("Text with several lines keeps them") {
    BancoLista b;
    b.Elegir(L"Panel");
    anfitrion::Poner(b.Control(L"Panel")->Despacho(), L"Caption", L"a\r\nb");
    b.pagina->Lista()->Leer();
    CHECK(b.Valor(L"Caption") == "a\xE2\x86\xB5"
                                 "b");
    const HWND campo = b.Abrir(L"Caption");
    SendMessageW(campo, WM_KEYDOWN, VK_END, 0);
    SendMessageW(campo, WM_CHAR, L'c', 0);
    b.TeclaEn(campo, VK_RETURN);
    CHECK(Texto(Leer(b.Control(L"Panel")->Despacho(), L"Caption")) == L"a\r\nbc");
}

TEST_CASE("A field is typed into and entered, or given up") {
    BancoLista b;
    HWND campo = b.Abrir(L"RelY");
    CHECK(Leido(campo) == "1.5");
    for (const wchar_t letra : L"0.75")
        if (letra)
            SendMessageW(campo, WM_CHAR, letra, 0);
    b.TeclaEn(campo, VK_RETURN);
    CHECK(b.Valor(L"RelY") == "0.75");
    CHECK_FALSE(b.pagina->Lista()->Editor());
    CHECK(GetFocus() == b.pagina->Lista()->Ventana());
    campo = b.Abrir(L"RelY");
    SetWindowTextW(campo, L"9");
    b.TeclaEn(campo, VK_ESCAPE);
    CHECK(b.Valor(L"RelY") == "0.75");
    campo = b.Abrir(L"RelY");
    SetWindowTextW(campo, L"3");
    SetFocus(b.mesa->Forma().Ventana());
    CHECK(b.Valor(L"RelY") == "3");
}

TEST_CASE("A refused text stays in its field to be corrected") {
    BancoLista b;
    const HWND campo = b.Abrir(L"CambioProgrePasos");
    SetWindowTextW(campo, L"300");
    b.TeclaEn(campo, VK_RETURN);
    CHECK(b.pagina->Lista()->Editor() == campo);
    CHECK(Leido(campo) == "300");
    CHECK(Estrechar(b.pagina->Estado()) == "CambioProgrePasos: el número no cabe.");
    SetWindowTextW(campo, L"30");
    b.TeclaEn(campo, VK_RETURN);
    CHECK(b.Valor(L"CambioProgrePasos") == "30");
}

TEST_CASE("Enumerations and booleans drop down by name") {
    BancoLista b;
    HWND lista = b.Abrir(L"EstilosRell");
    CHECK(SendMessageW(lista, CB_GETCOUNT, 0, 0) == 5);
    wchar_t nombre[40];
    SendMessageW(lista, CB_GETLBTEXT, 3, reinterpret_cast<LPARAM>(nombre));
    CHECK(std::wstring(nombre) == L"D_Pirami");
    CHECK(Leido(lista) == "Solido");
    SendMessageW(lista, CB_SETCURSEL, 3, 0);
    SendMessageW(GetParent(lista), WM_COMMAND, MAKEWPARAM(0, CBN_SELENDOK),
                 reinterpret_cast<LPARAM>(lista));
    CHECK(b.Valor(L"EstilosRell") == "D_Pirami");
    lista = b.Abrir(L"Enabled");
    CHECK(SendMessageW(lista, CB_GETCOUNT, 0, 0) == 2);
    CHECK(Leido(lista) == "True");
    b.TeclaEn(lista, VK_ESCAPE);
    CHECK_FALSE(b.pagina->Lista()->Editor());
}

TEST_CASE("A double click takes the next one of the values") {
    BancoLista b;
    REQUIRE(b.pagina->Lista()->Elegir(L"EstilosRell"));
    SendMessageW(b.pagina->Lista()->Ventana(), WM_LBUTTONDBLCLK, 0, 0);
    CHECK(b.Valor(L"EstilosRell") == "D_Hori");
    REQUIRE(b.pagina->Lista()->Elegir(L"Enabled"));
    SendMessageW(b.pagina->Lista()->Ventana(), WM_LBUTTONDBLCLK, 0, 0);
    CHECK(b.Valor(L"Enabled") == "False");
}

TEST_CASE("Colours, fonts and pictures come from the platform's dialogs") {
    BancoLista b;
    auto& dialogos = b.pagina->LosDialogos();
    const auto preguntar = [&](const wchar_t* propiedad) {
        REQUIRE(b.pagina->Lista()->Elegir(propiedad));
        b.pagina->Lista()->Preguntar();
    };
    COLORREF ofrecido = 0;
    dialogos.color = [&](HWND, COLORREF color) -> std::optional<COLORREF> {
        ofrecido = color;
        return RGB(1, 2, 3);
    };
    REQUIRE(b.Escribir(L"ColorLetra", L"#102030"));
    preguntar(L"ColorLetra");
    CHECK(ofrecido == RGB(0x10, 0x20, 0x30));
    CHECK(b.Valor(L"ColorLetra") == "&H00030201");
    dialogos.fuente = [](HWND, IDispatch*) -> std::optional<Variante> {
        return Variante(static_cast<IDispatch*>(CrearFuente(L"Courier New", 12, true, true).get()));
    };
    preguntar(L"Font");
    CHECK(b.Valor(L"Font") == "Courier New; 12 pt; negrita; cursiva");
    dialogos.imagen = [](HWND) -> std::optional<Variante> {
        return Variante(static_cast<IDispatch*>(publicado::MapaDePrueba(8).get()));
    };
    preguntar(L"ImagNormal");
    CHECK(b.Valor(L"ImagNormal") == "(mapa de bits)");
    b.TeclaEn(b.pagina->Lista()->Ventana(), VK_DELETE);
    CHECK(b.Valor(L"ImagNormal") == "(ninguna)");
    b.mesa->Hacer(Orden::Deshacer);
    CHECK(b.Valor(L"ImagNormal") == "(mapa de bits)");
    b.mesa->Hacer(Orden::Deshacer);
    b.mesa->Hacer(Orden::Deshacer);
    CHECK(b.Valor(L"Font").starts_with("Arial; "));
    dialogos.color = [](HWND, COLORREF) { return std::optional<COLORREF>(); };
    preguntar(L"ColorLetra");
    CHECK(b.Valor(L"ColorLetra") == "&H00030201");
}

TEST_CASE("What can only be read can't be edited") {
    Banco b;
    b.Poner(L"Pincela.TboxSS Caja 16 16 120 24\r\nFin\r\n");
    b.Elegir(L"Caja");
    REQUIRE(b.pagina->Lista()->Elegir(L"SelText"));
    b.pagina->Lista()->Editar();
    CHECK_FALSE(b.pagina->Lista()->Editor());
    CHECK_FALSE(b.Escribir(L"SelText", L"x"));
    CHECK(Estrechar(b.pagina->Estado()) == "SelText solo se puede leer.");
}

TEST_CASE("Without a control the list shows the form's own measures") {
    BancoLista b;
    b.mesa->Forma().Seleccionar({});
    CHECK(b.Valor(L"(Ancho)") == "480");
    REQUIRE(b.Escribir(L"(Ancho)", L"400"));
    CHECK(b.Texto().starts_with("Formulario 400 320 "));
}
