#include "pruebas/componente/memoria/apuros.h"

#include "anfitrion/imagenes.h"

#include <doctest/doctest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace memoria {

namespace {

// What is being tried, for whoever reads why the program ended.
std::string enCurso;
int turno = 0;

void Contar(const char* como) {
    std::printf("%s, request %d: %s\n", enCurso.c_str(), turno, como);
    std::fflush(stdout);
}

void AlAbortar(int) {
    Contar("the process was aborted");
    std::_Exit(3);
}

LONG WINAPI AlFallar(EXCEPTION_POINTERS* que) {
    if (que->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION) {
        // By its place in the file, where the symbols are looked up.
        const auto* lugar = static_cast<const char*>(que->ExceptionRecord->ExceptionAddress);
        HMODULE modulo = nullptr;
        GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                               GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           reinterpret_cast<LPCWSTR>(lugar), &modulo);
        char fichero[MAX_PATH] = "", texto[MAX_PATH + 80];
        GetModuleFileNameA(modulo, fichero, MAX_PATH);
        std::snprintf(texto, sizeof texto, "access violation in %s at +0x%llx", fichero,
                      static_cast<unsigned long long>(lugar - reinterpret_cast<char*>(modulo)));
        Contar(texto);
        std::_Exit(5);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

struct Cuenta {
    long bloques = Fallos::BloquesVivos();
    int gdi = vivo::ObjetosGdi();
    int ventanas = vivo::Ventanas();
    friend bool operator==(const Cuenta&, const Cuenta&) = default;
};

/// Runs the action once; true when something was refused.
bool Una(const Negativa& negativa, int cual, const std::function<void(const Intento&)>& accion) {
    bool negado = false;
    accion([&](const std::function<HRESULT()>& intento) {
        Fallos::Armar(negativa.que, cual, negativa.todos);
        const HRESULT estado = intento();
        negado = Fallos::Desarmar();
        INFO("status ", static_cast<unsigned long>(estado));
        if (!negado)
            CHECK(SUCCEEDED(estado));
        else if (FAILED(estado) && negativa.que == Escasez::Memoria)
            CHECK(estado == E_OUTOFMEMORY);
        return estado;
    });
    return negado;
}

} // namespace

int PerdidosDe(const wchar_t* control) {
    const std::wstring nombre = control;
    return nombre.ends_with(L"ML") ? 14 : 0;
}

void Apurar(const std::string& que, const Negativa& negativa,
            const std::function<void(const Intento&)>& accion, int perdidos) {
    enCurso = que + (negativa.que == Escasez::Memoria ? " without memory" : " without handles") +
              (negativa.todos ? " from there on" : "");
    INFO(enCurso);
    for (turno = 0; turno > -3; --turno)
        REQUIRE_FALSE(Una(negativa, 0, accion));
    Cuenta antes;
    const vivo::Monton monton = vivo::Memoria();
    int fallidas = 0;
    for (turno = 1; fallidas < 3; ++turno) {
        INFO("request ", turno);
        bool negado = Una(negativa, turno, accion);
        Cuenta despues;
        if (!(despues == antes)) {
            // What somebody keeps for good he keeps once; what is lost is lost again.
            antes = despues;
            negado = Una(negativa, turno, accion);
            despues = {};
        }
        CHECK(despues.bloques == antes.bloques);
        CHECK(despues.gdi == antes.gdi);
        CHECK(despues.ventanas == antes.ventanas);
        fallidas += !(despues == antes);
        if (!negado)
            break;
    }
    const vivo::Monton despues = vivo::Memoria();
    std::printf("%s: %d requests, heap %+ld blocks %+ld bytes\n", enCurso.c_str(), turno - 1,
                despues.bloques - monton.bloques, despues.bytes - monton.bytes);
    // What the module hands to others is theirs to free: seen on the whole heap, where the
    // platform's own caches breathe.
    CHECK(despues.bloques - monton.bloques < 10 + turno / 4 + turno * perdidos);
}

Mesa& Mesa::La() {
    static Mesa& mesa = *new Mesa; // the program ends with it
    return mesa;
}

Mesa::Mesa()
    : componente((vivo::AbrirOle(), Componente::DeFichero(vivo::RutaComponente()))),
      fallos_(GetModuleHandleW(L"Pincela.ocx")) {
    std::signal(SIGABRT, &AlAbortar);
    AddVectoredExceptionHandler(0, &AlFallar);
    OpcionesFormulario opciones;
    opciones.ancho = 300;
    opciones.alto = 200;
    forma = std::make_unique<Formulario>(opciones);
    forma->BombearMensajes();
}

void Adornar(IDispatch* objeto) {
    const auto poner = [&](const wchar_t* nombre, const Variante& valor) {
        if (Tiene(objeto, nombre))
            Poner(objeto, nombre, valor);
    };
    const auto ponerRef = [&](const wchar_t* nombre, const auto& valor) {
        if (Tiene(objeto, nombre))
            PonerRef(objeto, nombre, static_cast<IDispatch*>(valor.get()));
    };
    poner(L"Caption", L"&Hola");
    poner(L"Text", L"Uno, dos y tres");
    poner(L"ToolTipText", L"Un globo con un texto que no cabe en veinte letras");
    poner(L"EstilosRell", 1L);
    poner(L"Estilos", 1L);
    poner(L"EstilosBord", 1L);
    poner(L"TipoLetra", 1L);
    poner(L"RelX", 8L);
    poner(L"RelY", 8L);
    poner(L"ColorFondoSobre", 0xFF00L);
    poner(L"ColorDegrade", L"255*65280*16711680");
    poner(L"CambioProgre", true);
    poner(L"BackStyle", 0L);
    for (const wchar_t* fuente : {L"Font", L"Fuente", L"FuenteEtic"})
        ponerRef(fuente, CrearFuente(L"Arial", 11, true));
    const auto imagen = CrearImagen(CreateBitmap(8, 8, 1, 24, nullptr));
    ponerRef(L"ImagNormal", imagen);
    ponerRef(L"ImagSobre", imagen);
    ponerRef(L"MouseIcon", CrearImagen(CopyIcon(LoadIconW(nullptr, IDI_APPLICATION))));
}

} // namespace memoria
