// The same look through every door, sizes and verbs.
#include "pruebas/componente/comun/lamina.h"
#include "pruebas/componente/pixeles/banco.h"

using namespace publicado;

namespace {

void Vestir(IDispatch* boton) {
    Poner(boton, L"Caption", L"&Aceptar");
    Poner(boton, L"ColorFondo", static_cast<long>(Verde));
    Poner(boton, L"ColorLetra", static_cast<long>(Azul));
    Poner(boton, L"TipoLetra", 1);
    Poner(boton, L"AlinText", 4);
    PonerRef(boton, L"ImagNormal", Variante(MapaDePrueba(6).get()));
    Poner(boton, L"Expandir", false);
}

Captura Dibujado(IViewObject2* vista, int ancho, int alto) {
    return Captura::DeDibujo(ancho, alto, [&](HDC hdc) {
        const RECTL lugar{0, 0, ancho, alto};
        CHECK(vista->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, hdc, &lugar, nullptr,
                          nullptr, 0) == S_OK);
    });
}

} // namespace

TEST_CASE("A button prints what its window shows") {
    BancoDePixeles b;
    Vestir(b.Agregar());
    const Captura ventana = b.Ver();
    CHECK(ventana.Colores() > 3);
    CHECK(Captura::Impresa(b.control->Ventana()) == ventana);
}

TEST_CASE("A button draws itself as its window shows it") {
    BancoDePixeles b;
    Vestir(b.Agregar());
    CHECK(Dibujado(b.control->Como<IViewObject2>().get(), Ancho, Alto) == b.Ver());
}

TEST_CASE("A button that never was in a window draws the same as one that is") {
    BancoDePixeles b;
    Vestir(b.Agregar());
    const Boton inactivo;
    SIZEL tamanio{};
    REQUIRE(b.control->Objeto()->GetExtent(DVASPECT_CONTENT, &tamanio) == S_OK);
    REQUIRE(inactivo.Como<IOleObject>()->SetExtent(DVASPECT_CONTENT, &tamanio) == S_OK);
    Vestir(inactivo.get());
    CHECK(Dibujado(inactivo.Como<IViewObject2>().get(), Ancho, Alto) == b.Ver());
}

TEST_CASE("A button draws inside the rectangle it is given and nowhere else") {
    const Boton boton;
    Poner(boton.get(), L"ColorFondo", static_cast<long>(Rojo));
    Poner(boton.get(), L"EstilosBord", 0);
    Poner(boton.get(), L"Caption", L"");
    const Captura c = Captura::DeDibujo(200, 100, [&](HDC hdc) {
        const RECTL lugar{50, 20, 150, 60};
        CHECK(boton.Como<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, hdc,
                                               &lugar, nullptr, nullptr, 0) == S_OK);
    });
    const RECT caja = Caja(c, Rojo);
    CHECK(caja.left == 50);
    CHECK(caja.top == 20);
    CHECK(caja.right == 150);
    CHECK(caja.bottom == 60);
    CHECK(c.Contar({0, 0, 200, 100}, Rojo) == 100 * 40);
}

TEST_CASE("A rounded button without a window leaves its corners alone") {
    const Boton boton;
    Poner(boton.get(), L"ColorFondo", static_cast<long>(Rojo));
    Poner(boton.get(), L"EstilosBord", 0);
    Poner(boton.get(), L"RelX", 0.5f);
    Poner(boton.get(), L"RelY", 1.0f);
    Poner(boton.get(), L"Estilos", 1);
    const Captura c = Dibujado(boton.Como<IViewObject2>().get(), Ancho, Alto);
    CHECK(c.Pixel(0, 0) == RGB(255, 255, 255));
    CHECK(c.Pixel(Ancho - 1, Alto - 1) == RGB(255, 255, 255));
    CHECK(c.Pixel(Ancho / 2, 1) == Rojo);
}

TEST_CASE("Only the content can be drawn, and only somewhere") {
    const Boton boton;
    const auto vista = boton.Como<IViewObject2>();
    const Lamina l(10, 10);
    const HDC hdc = static_cast<HDC>(LongToHandle(l.Numero()));
    const RECTL lugar{0, 0, 10, 10};
    for (const DWORD aspecto : {DVASPECT_ICON, DVASPECT_THUMBNAIL, DVASPECT_DOCPRINT})
        CHECK(vista->Draw(aspecto, -1, nullptr, nullptr, nullptr, hdc, &lugar, nullptr, nullptr,
                          0) == DV_E_DVASPECT);
    CHECK(FAILED(vista->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, nullptr, &lugar,
                             nullptr, nullptr, 0)));
    CHECK(FAILED(vista->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, hdc, nullptr, nullptr,
                             nullptr, 0)));
    CHECK(l.Pixel(5, 5) == Lamina::Limpia);
    const RECTL vacio{5, 5, 5, 5};
    CHECK(SUCCEEDED(vista->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, hdc, &vacio,
                                nullptr, nullptr, 0)));
    CHECK(l.Pixel(5, 5) == Lamina::Limpia);
}

TEST_CASE("Sizes are told in hundredths of a millimetre") {
    const Boton boton;
    const auto objeto = boton.Como<IOleObject>();
    SIZEL tamanio{2540, 1270}, leido{};
    REQUIRE(objeto->SetExtent(DVASPECT_CONTENT, &tamanio) == S_OK);
    REQUIRE(objeto->GetExtent(DVASPECT_CONTENT, &leido) == S_OK);
    CHECK(leido.cx == 2540);
    CHECK(leido.cy == 1270);
    leido = {};
    CHECK(boton.Como<IViewObject2>()->GetExtent(DVASPECT_CONTENT, -1, nullptr, &leido) == S_OK);
    CHECK(leido.cx == 2540);
    // One inch by half an inch, seen at the screen's own resolution.
    Poner(boton.get(), L"Caption", L"");
    Poner(boton.get(), L"EstilosBord", 0);
    PonerRef(boton.get(), L"ImagNormal", Variante(MapaDePrueba(8).get()));
    Poner(boton.get(), L"Expandir", false);
    Poner(boton.get(), L"AlinImag", 8);
    const int ppp = GetDeviceCaps(GetDC(nullptr), LOGPIXELSX);
    const Captura c = Dibujado(boton.Como<IViewObject2>().get(), ppp, ppp / 2);
    CHECK(c.Pixel(ppp - 8, ppp / 2 - 8) == RGB(0xC8, 0, 0)); // first pixel of the picture
    SIZEL negativo{-1, 5};
    CHECK(FAILED(objeto->SetExtent(DVASPECT_CONTENT, &negativo)));
    CHECK(objeto->SetExtent(DVASPECT_CONTENT, nullptr) == E_POINTER);
    CHECK(objeto->GetExtent(DVASPECT_CONTENT, nullptr) == E_POINTER);
    CHECK(objeto->SetExtent(DVASPECT_ICON, &tamanio) == DV_E_DVASPECT);
    leido = {7, 7};
    CHECK(objeto->GetExtent(DVASPECT_ICON, &leido) == DV_E_DVASPECT);
    CHECK(leido.cx == 0);
}

TEST_CASE("A button in place has the size of its rectangle") {
    BancoDePixeles b;
    b.Agregar();
    SIZEL leido{};
    REQUIRE(b.control->Objeto()->GetExtent(DVASPECT_CONTENT, &leido) == S_OK);
    CHECK(leido.cx == MulDiv(Ancho, 2540, 96));
    CHECK(leido.cy == MulDiv(Alto, 2540, 96));
    b.control->Mover({10, 10, 90, 60});
    RECT cliente{};
    GetClientRect(b.control->Ventana(), &cliente);
    CHECK(cliente.right == 80);
    CHECK(cliente.bottom == 50);
    REQUIRE(b.control->Objeto()->GetExtent(DVASPECT_CONTENT, &leido) == S_OK);
    CHECK(leido.cx == MulDiv(80, 2540, 96));
    CHECK(b.Ver().Ancho() == 80);
}

TEST_CASE("Verbs show, hide and activate the button") {
    BancoDePixeles b;
    b.Agregar();
    const HWND ventana = b.control->Ventana();
    CHECK(IsWindowVisible(ventana));
    CHECK(b.control->Verbo(OLEIVERB_HIDE) == S_OK);
    CHECK_FALSE(IsWindowVisible(ventana));
    CHECK(b.control->Verbo(OLEIVERB_SHOW) == S_OK);
    CHECK(IsWindowVisible(b.control->Ventana()));
    CHECK(b.control->Verbo(OLEIVERB_INPLACEACTIVATE) == S_OK);
    CHECK(b.control->Verbo(OLEIVERB_PRIMARY) == S_OK);
    CHECK(b.forma->Activo() == b.control.get());
    CHECK(b.control->Verbo(OLEIVERB_UIACTIVATE) == S_OK);
    CHECK(b.control->Verbo(OLEIVERB_DISCARDUNDOSTATE) == S_OK);
    CHECK(b.control->Verbo(5) == OLEOBJ_S_INVALIDVERB);
    CHECK(b.control->Verbo(-4711) == E_NOTIMPL);
    const auto enSitio = b.control->Como<IOleInPlaceObject>();
    CHECK(enSitio->UIDeactivate() == S_OK);
    CHECK(enSitio->InPlaceDeactivate() == S_OK);
    CHECK_FALSE(IsWindow(ventana));
    HWND ninguna = reinterpret_cast<HWND>(static_cast<INT_PTR>(1));
    CHECK(FAILED(enSitio->GetWindow(&ninguna)));
    CHECK(ninguna == nullptr);
    CHECK(b.control->Verbo(OLEIVERB_SHOW) == S_OK);
    CHECK(IsWindow(b.control->Ventana()));
}

TEST_CASE("A button with no container can't be shown") {
    const Boton boton;
    const RECT lugar{0, 0, 50, 20};
    CHECK(FAILED(boton.Como<IOleObject>()->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0,
                                                  GetDesktopWindow(), &lugar)));
}

TEST_CASE("Showing the properties is the container's first") {
    BancoDePixeles b;
    b.Agregar();
    bool pedidas = false;
    b.forma->alPedirPropiedades = [&](anfitrion::ControlAlojado& uno) {
        pedidas = &uno == b.control.get();
        return true;
    };
    CHECK(b.control->Verbo(OLEIVERB_PROPERTIES) == S_OK);
    CHECK(pedidas);
    Puntero<IEnumOLEVERB> verbos;
    REQUIRE(b.control->Objeto()->EnumVerbs(verbos.Recibir()) == S_OK);
    OLEVERB verbo{};
    REQUIRE(verbos->Next(1, &verbo, nullptr) == S_OK);
    CHECK(verbo.lVerb == OLEIVERB_PROPERTIES);
    CoTaskMemFree(verbo.lpszVerbName);
}

TEST_CASE("A changed look is told to who watches it") {
    const Boton boton;
    const auto aviso = anfitrion::Hacer<anfitrion::Avisos>();
    int veces = 0;
    aviso->alCambiarVista = [&] { ++veces; };
    const auto vista = boton.Como<IViewObject2>();
    REQUIRE(boton.Como<IPersistStreamInit>()->InitNew() == S_OK);
    REQUIRE(vista->SetAdvise(DVASPECT_CONTENT, 0, aviso.Como<IAdviseSink>().get()) == S_OK);
    Poner(boton.get(), L"ColorFondo", 255);
    CHECK(veces > 0);
    Dibujado(vista.get(), 20, 20);
    const int antes = veces;
    Poner(boton.get(), L"Caption", L"otro");
    CHECK(veces > antes);
    DWORD aspectos = 0, banderas = 9;
    Puntero<IAdviseSink> leido;
    CHECK(vista->GetAdvise(&aspectos, &banderas, leido.Recibir()) == S_OK);
    CHECK(aspectos == DVASPECT_CONTENT);
    CHECK(banderas == 0);
    CHECK(leido.get() == aviso.Como<IAdviseSink>().get());
    CHECK(vista->SetAdvise(DVASPECT_CONTENT, 0, nullptr) == S_OK);
    aviso->Callar();
}
