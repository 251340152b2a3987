// The gallery with its designer's page alone, and the user's hands on it.
#pragma once

#include "galeria/disenador/pagina_disenador.h"
#include "galeria/disenador/portapapeles.h"
#include "galeria/escala.h"
#include "galeria/marco.h"
#include "pruebas/componente/comun/publicado.h"

#include <doctest/doctest.h>

#include <memory>
#include <string>

namespace disenador {

using namespace anfitrion;
using namespace galeria;

struct Banco {
    Banco() {
        auto nueva = std::make_unique<PaginaDisenador>(componente, marco.Ventana());
        pagina = nueva.get();
        marco.Agregar(L"Diseñador", std::move(nueva));
        marco.Mostrar(0);
        mesa = pagina->LaMesa();
        PonerEnPortapapeles(marco.Ventana(), L"");
        Poner(L"");
    }

    /// A form of 480 x 320 with these controls.
    void Poner(const std::wstring& controles) {
        pagina->Recibir(L"Formulario 480 320 " + std::to_wstring(PuntosPorPulgada()) + L"\r\n" +
                        controles);
        REQUIRE(mesa->Texto() == mesa->Texto());
    }
    std::string Texto() const { return Estrechar(mesa->Texto()); }
    /// The lines of the text that tell class, name and place, one after the other.
    std::string Lugares() const {
        std::string lugares, linea;
        for (const char letra : Texto()) {
            if (letra != '\n') {
                linea += letra == '\r' ? '|' : letra;
                continue;
            }
            if (linea.find("Pincela.") != std::string::npos)
                lugares += linea;
            linea.clear();
        }
        return lugares;
    }
    Mesa::Control Control(const wchar_t* nombre) const {
        const auto control = mesa->Forma().Control(nombre);
        REQUIRE(control);
        return control;
    }
    void Elegir(const wchar_t* nombre) { mesa->Forma().Seleccionar(Control(nombre), false); }
    std::string Elegidos() const {
        std::string nombres;
        for (const auto& control : mesa->Seleccion())
            nombres += Estrechar(control->Nombre()) + " ";
        return nombres;
    }
    std::string Valor(const wchar_t* propiedad) const {
        const std::size_t lugar = pagina->Hoja()->Lugar(propiedad);
        REQUIRE(lugar < pagina->Hoja()->Renglones().size());
        return Estrechar(pagina->Hoja()->Renglones()[lugar].valor);
    }
    bool Escribir(const wchar_t* propiedad, const wchar_t* valor) {
        return pagina->Hoja()->Escribir(pagina->Hoja()->Lugar(propiedad), valor);
    }

    // The mouse, at a point of the form
    void Raton(UINT mensaje, int x, int y, WPARAM teclas = 0) {
        SendMessageW(mesa->Forma().Capa(), mensaje, teclas, MAKELPARAM(x, y));
    }
    void Arrastrar(int x, int y, int hastaX, int hastaY, WPARAM teclas = 0) {
        Raton(WM_LBUTTONDOWN, x, y, MK_LBUTTON | teclas);
        Raton(WM_MOUSEMOVE, (x + hastaX) / 2, (y + hastaY) / 2, MK_LBUTTON | teclas);
        Raton(WM_MOUSEMOVE, hastaX, hastaY, MK_LBUTTON | teclas);
        Raton(WM_LBUTTONUP, hastaX, hastaY, teclas);
    }
    void Clic(int x, int y, WPARAM teclas = 0) {
        Raton(WM_LBUTTONDOWN, x, y, MK_LBUTTON | teclas);
        Raton(WM_LBUTTONUP, x, y, teclas);
    }

    /// A key on the form, with others held down.
    bool Tecla(WPARAM tecla, std::initializer_list<BYTE> con = {}) {
        return TeclaEn(mesa->Forma().Ventana(), tecla, con);
    }
    bool TeclaEn(HWND ventana, WPARAM tecla, std::initializer_list<BYTE> con = {}) {
        BYTE viejas[256], nuevas[256];
        GetKeyboardState(viejas);
        std::copy(viejas, viejas + 256, nuevas);
        for (const BYTE abajo : con)
            nuevas[abajo] = 0x80;
        SetKeyboardState(nuevas);
        MSG mensaje{};
        mensaje.hwnd = ventana;
        mensaje.message = WM_KEYDOWN;
        mensaje.wParam = tecla;
        mensaje.lParam = 1;
        auto& forma = ventana == mesa->Forma().Ventana() ? mesa->Forma() : pagina->Forma();
        const bool hecha = forma.Pretraducir(mensaje);
        if (!hecha)
            SendMessageW(ventana, WM_KEYDOWN, tecla, 1);
        SetKeyboardState(viejas);
        return hecha;
    }

    publicado::SesionOle ole;
    std::optional<Componente> componente = Componente::DeFichero(publicado::RutaDelComponente());
    Marco marco;
    PaginaDisenador* pagina = nullptr;
    Mesa* mesa = nullptr;
};

inline const std::wstring DosBotones = L"Pincela.Botonazo Uno 16 16 80 32\r\nFin\r\n"
                                       L"Pincela.Botonazo Dos 160 16 80 32\r\nFin\r\n";
inline const std::wstring UnPanel = L"Pincela.Area Panel 80 80 240 160\r\n"
                                    L"  Pincela.Tbox Dentro 16 32 120 40\r\n  Fin\r\nFin\r\n";

} // namespace disenador
