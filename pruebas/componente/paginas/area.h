// The page of the panel with a panel on it.
#pragma once

#include "pruebas/componente/paginas/colores.h"

namespace paginas {

inline constexpr HRESULT TiposNoCoinciden = static_cast<HRESULT>(0x800A000D);
inline constexpr HRESULT ValorNoValido = static_cast<HRESULT>(0x800A017C);

struct PaginaArea : BancoPagina {
    PaginaArea() : BancoPagina(L"ProPColoresArea") {
        panel = Panel();
        Poner(panel.get(), L"Caption", L"Datos");
        Poner(panel.get(), L"ColorLetra", 0x0000FF);
        Poner(panel.get(), L"ColorFondo", 0x00FF00);
        Poner(panel.get(), L"EstilosRell", 1);
        Poner(panel.get(), L"ColorDegrade", L"255*65280*16711680");
        Poner(panel.get(), L"SeparaBorde", 1);
        Poner(panel.get(), L"AnchoBorde", 3);
        Poner(panel.get(), L"EstilosBord", 2);
        Poner(panel.get(), L"TipoLetra", 4);
        Poner(panel.get(), L"AlinText", 7);
        Poner(panel.get(), L"BackStyle", 0);
        Poner(panel.get(), L"Enabled", false);
        REQUIRE(Seleccionar({panel}) == S_OK);
        REQUIRE(Activar() == S_OK);
    }
    Puntero<IDispatch> Panel() {
        const auto objeto = Crear(componente, L"Area");
        anfitrion::Comprobar(IniciarNuevo(objeto.get()), "InitNew");
        return objeto.Como<IDispatch>();
    }
    std::wstring Valor(const Puntero<IDispatch>& cual, const wchar_t* propiedad) {
        return anfitrion::Mostrar(Leer(cual.get(), propiedad));
    }
    std::wstring Valor(const wchar_t* propiedad) { return Valor(panel, propiedad); }
    int Indice(const wchar_t* rotulo) const { return BancoPagina::Indice(Campo(rotulo)); }
    void Elegir(const wchar_t* rotulo, int item) { BancoPagina::Elegir(Campo(rotulo), item); }
    std::vector<COLORREF> Fila() const {
        std::vector<COLORREF> colores;
        for (const HWND tope : TopesDe(Dialogo()))
            colores.push_back(ColorDe(tope));
        return colores;
    }
    anfitrion::Captura Vista() const { return Imagen(VistaDe(Dialogo())); }

    Puntero<IDispatch> panel;
};

/// Text of the error that the last failing call left, and takes away.
inline std::wstring ErrorDejado() {
    Puntero<IErrorInfo> info;
    if (GetErrorInfo(0, info.Recibir()) != S_OK)
        return {};
    BSTR texto = nullptr;
    info->GetDescription(&texto);
    const std::wstring leido = texto ? texto : L"";
    SysFreeString(texto);
    return leido;
}

} // namespace paginas
