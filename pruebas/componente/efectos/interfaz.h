// `Efectos` as an early-bound client declares it.
#pragma once

#include "anfitrion/tardio.h"
#include "pruebas/componente/comun/publicado.h"

#include <doctest/doctest.h>

#include <oaidl.h>

#include <initializer_list>
#include <vector>

namespace publicado {

using anfitrion::Puntero;
using anfitrion::Variante;

struct tRectRedo {
    float RelX, RelY;
};

struct _Efectos : IDispatch {
    virtual HRESULT STDMETHODCALLTYPE DarForma(LONG* HWND_, LONG* Ancho, LONG* Alto, LONG* Forma,
                                               tRectRedo* Param) = 0;
    virtual HRESULT STDMETHODCALLTYPE Degrade(LONG* hdc, LONG* Ancho, LONG* Alto, LONG Esti,
                                              BSTR Valores, SHORT* Angulo) = 0;
    virtual HRESULT STDMETHODCALLTYPE DevColor(LONG* color, LONG* DColor, VARIANT* Simple,
                                               SHORT* resultado) = 0;
    virtual HRESULT STDMETHODCALLTYPE DarTrans(LONG* HdcO, LONG* XO, LONG* YO, LONG* AnchoO,
                                               LONG* AltoO, LONG* HdcD, LONG* XD, LONG* YD,
                                               LONG* AnchoD, LONG* AltoD, BYTE* Nivel,
                                               VARIANT* resultado) = 0;
    virtual HRESULT STDMETHODCALLTYPE InviertoColor(LONG* color, LONG* resultado) = 0;

  protected:
    ~_Efectos() = default;
};

/// The same object, early and late bound.
struct BancoEfectos {
    BancoEfectos() : componente(anfitrion::Componente::DeFichero(RutaDelComponente())) {
        objeto = Crear(componente, L"Efectos");
        tardio = objeto.Como<IDispatch>();
        void* dual = nullptr;
        REQUIRE(objeto->QueryInterface(Guid(ClaseDe(L"Efectos").interfaz), &dual) == S_OK);
        efectos = Puntero<_Efectos>::Adoptar(static_cast<_Efectos*>(dual));
    }

    Variante Llamar(const wchar_t* nombre, anfitrion::Argumentos argumentos) const {
        return anfitrion::Llamar(tardio.get(), nombre, argumentos);
    }
    /// Status of a raw call; the arguments come as they would, last first.
    HRESULT Invocar(DISPID numero, std::initializer_list<Variante> argumentos,
                    UINT* equivocado = nullptr, EXCEPINFO* excepcion = nullptr,
                    std::initializer_list<DISPID> nombres = {}) const {
        std::vector<VARIANT> crudos(argumentos.begin(), argumentos.end());
        std::vector<DISPID> ids(nombres);
        DISPPARAMS p{crudos.data(), ids.data(), static_cast<UINT>(crudos.size()),
                     static_cast<UINT>(ids.size())};
        VariantInit(&resultado);
        return tardio->Invoke(numero, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &p,
                              &resultado, excepcion, equivocado);
    }
    mutable VARIANT resultado{};

    SesionOle ole;
    anfitrion::Componente componente;
    Puntero<IUnknown> objeto;
    Puntero<IDispatch> tardio;
    Puntero<_Efectos> efectos;
};

inline constexpr DISPID DarForma = 0x60030000;
inline constexpr DISPID Degrade = 0x60030001;
inline constexpr DISPID DevColor = 0x60030002;
inline constexpr DISPID DarTrans = 0x60030003;
inline constexpr DISPID InviertoColor = 0x60030004;

} // namespace publicado
