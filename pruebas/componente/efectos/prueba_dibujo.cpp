// Drawing by automation, on real device contexts and windows.
#include "pruebas/componente/comun/lamina.h"
#include "pruebas/componente/efectos/interfaz.h"

#include <cmath>
#include <cstdlib>

using namespace publicado;

namespace {

constexpr COLORREF Blanco = RGB(255, 255, 255);

bool Parecidos(COLORREF a, COLORREF b, int margen = 3) {
    return std::abs(GetRValue(a) - GetRValue(b)) <= margen &&
           std::abs(GetGValue(a) - GetGValue(b)) <= margen &&
           std::abs(GetBValue(a) - GetBValue(b)) <= margen;
}

COLORREF Gris(double cuanto) {
    const auto g = static_cast<BYTE>(255 * cuanto);
    return RGB(g, g, g);
}

void Degradar(const BancoEfectos& b, const Lamina& l, long ancho, long alto, long estilo,
              const wchar_t* colores, short angulo) {
    b.Llamar(L"Degrade", {Variante(l.Numero()), Variante(ancho), Variante(alto), Variante(estilo),
                          Variante(colores), Variante(angulo)});
}

/// Any status and error text of a call that has to fail.
struct Fallo {
    EXCEPINFO e{};
    ~Fallo() {
        SysFreeString(e.bstrSource);
        SysFreeString(e.bstrDescription);
        SysFreeString(e.bstrHelpFile);
    }
};

HWND VentanaDePrueba() {
    return CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 100, 40, nullptr, nullptr, nullptr,
                         nullptr);
}

/// The region of a window; `dentro` tells whether a point belongs to it.
struct Region {
    explicit Region(HWND ventana) : h(CreateRectRgn(0, 0, 0, 0)), clase(GetWindowRgn(ventana, h)) {}
    Region(const Region&) = delete;
    Region& operator=(const Region&) = delete;
    ~Region() { DeleteObject(h); }
    bool Dentro(int x, int y) const { return PtInRegion(h, x, y) != FALSE; }
    HRGN h;
    int clase;
};

/// The record as automation passes it.
Variante Registro(const BancoEfectos& b, float relX, float relY) {
    Puntero<ITypeInfo> interfaz, tipo;
    Puntero<ITypeLib> biblioteca;
    UINT indice = 0;
    REQUIRE(b.tardio->GetTypeInfo(0, 0, interfaz.Recibir()) == S_OK);
    REQUIRE(interfaz->GetContainingTypeLib(biblioteca.Recibir(), &indice) == S_OK);
    REQUIRE(biblioteca->GetTypeInfoOfGuid(Guid(L"{46A309C5-FAC7-4F80-A323-E16A7CE22438}"),
                                          tipo.Recibir()) == S_OK);
    Puntero<IRecordInfo> info;
    REQUIRE(GetRecordInfoFromTypeInfo(tipo.get(), info.Recibir()) == S_OK);
    Variante v;
    v.pvRecord = info->RecordCreate();
    *static_cast<tRectRedo*>(v.pvRecord) = {relX, relY};
    v.pRecInfo = info.Separar();
    v.vt = VT_RECORD;
    return v;
}

} // namespace

TEST_CASE("A horizontal gradient runs from its first colour on the left to its last") {
    const BancoEfectos b;
    const Lamina l(120, 30);
    Degradar(b, l, 100, 20, 1, L"16777215*0", 0);
    for (int x = 0; x < 100; ++x) {
        const auto gris = static_cast<BYTE>((0xFF00 * (100 - x) / 100) >> 8);
        CHECK(l.Pixel(x, 0) == RGB(gris, gris, gris));
        CHECK(l.Pixel(x, 19) == l.Pixel(x, 0));
    }
    CHECK(l.Pixel(100, 5) == Lamina::Limpia); // not a pixel beyond the area
    CHECK(l.Pixel(50, 20) == Lamina::Limpia);
}

TEST_CASE("A vertical gradient of three colours has the middle one in the middle") {
    const BancoEfectos b;
    const Lamina l(40, 101);
    Degradar(b, l, 30, 101, 2, L"255*65280*16711680", 0);
    CHECK(Parecidos(l.Pixel(0, 0), RGB(255, 0, 0)));
    CHECK(Parecidos(l.Pixel(29, 50), RGB(0, 255, 0), 6));
    CHECK(Parecidos(l.Pixel(5, 100), RGB(0, 0, 255), 6));
    CHECK(l.Pixel(30, 50) == Lamina::Limpia);
}

TEST_CASE("A pyramid has its first colour at the centre and the others at the corners") {
    const BancoEfectos b;
    const Lamina l(101, 101);
    Degradar(b, l, 101, 101, 3, L"0*255*65280*16711680*16777215", 0);
    CHECK(Parecidos(l.Pixel(50, 50), RGB(0, 0, 0), 8));
    CHECK(Parecidos(l.Pixel(1, 1), RGB(255, 0, 0), 12));
    CHECK(Parecidos(l.Pixel(99, 1), RGB(0, 255, 0), 12));
    CHECK(Parecidos(l.Pixel(1, 99), RGB(0, 0, 255), 12));
    CHECK(Parecidos(l.Pixel(99, 99), Blanco, 12));
    const Lamina seis(20, 20);
    Degradar(b, seis, 20, 20, 3, L"1*2*3*4*5*6", 0);
    CHECK(seis.Pixel(10, 10) == Lamina::Limpia);
}

TEST_CASE("A diagonal gradient has the same colour along each slanted line") {
    const BancoEfectos b;
    const Lamina l(100, 100);
    Degradar(b, l, 100, 100, 4, L"16777215*0", 45);
    CHECK(Parecidos(l.Pixel(0, 0), Blanco, 4));
    CHECK(Parecidos(l.Pixel(99, 99), RGB(0, 0, 0), 4));
    for (const int k : {5, 30, 60}) {
        CHECK(Parecidos(l.Pixel(10, 80), l.Pixel(10 + k, 80 - k)));
        CHECK(Parecidos(l.Pixel(20 + k, 90 - k), Gris(1 - 110 / 200.0), 4));
    }
    const Lamina otra(100, 100);
    Degradar(b, otra, 100, 100, 4, L"16777215*0", 135); // mirrored
    CHECK(Parecidos(otra.Pixel(10, 20), otra.Pixel(50, 60)));
    CHECK(Parecidos(otra.Pixel(0, 99), Blanco, 4));
}

TEST_CASE("Right angles of a diagonal are the straight gradients") {
    const BancoEfectos b;
    const struct {
        short angulo;
        long estilo;
        const wchar_t* lista;
    } iguales[] = {{0, 2, L"16777215*255"},
                   {-30, 2, L"16777215*255"},
                   {90, 1, L"16777215*255"},
                   {180, 2, L"255*16777215"},
                   {270, 1, L"255*16777215"}};
    for (const auto& uno : iguales) {
        INFO("angle ", uno.angulo);
        const Lamina una(40, 30), otra(40, 30);
        Degradar(b, una, 40, 30, 4, L"16777215*255", uno.angulo);
        Degradar(b, otra, 40, 30, uno.estilo, uno.lista, 0);
        for (int i = 0; i < 30; ++i)
            CHECK(una.Pixel(i, 29 - i) == otra.Pixel(i, 29 - i));
        CHECK(una.Pixel(0, 0) != Lamina::Limpia);
    }
}

TEST_CASE("What can't be drawn is not drawn, and nobody is told") {
    const BancoEfectos b;
    const Lamina l(20, 20);
    for (const wchar_t* lista : {L"", L"255", L"0**255", L"rojo*azul", L"1*99999999999"})
        for (const long estilo : {1L, 2L, 3L, 4L})
            Degradar(b, l, 20, 20, estilo, lista, 45);
    for (const long estilo : {0L, 5L, -1L, 77L})
        Degradar(b, l, 20, 20, estilo, L"0*255", 45);
    Degradar(b, l, 0, 0, 1, L"0*255", 0);
    for (int i = 0; i < 20; ++i)
        CHECK(l.Pixel(i, i) == Lamina::Limpia);
    b.Llamar(L"Degrade",
             {Variante(0), Variante(20), Variante(20), Variante(1), Variante(L"0*255")});
}

TEST_CASE("A script's variables reach the drawing as they come") {
    const BancoEfectos b;
    const Lamina l(50, 20), directa(50, 20);
    Degradar(b, directa, 50, 20, 4, L"255*65280", 60);
    Variante hdc(l.Numero()), ancho(short{50}), alto(L"20"), estilo(4.0), lista(L"255*65280"),
        angulo(60);
    const auto ref = [](Variante& v) { return Variante::Referencia(static_cast<VARIANT&>(v)); };
    b.Llamar(L"Degrade", {ref(hdc), ref(ancho), ref(alto), ref(estilo), ref(lista), ref(angulo)});
    for (int i = 0; i < 20; ++i)
        CHECK(l.Pixel(2 * i, i) == directa.Pixel(2 * i, i));
    CHECK(l.Pixel(0, 0) != Lamina::Limpia);
    CHECK(anfitrion::Texto(lista) == L"255*65280");
    CHECK(ancho.vt == VT_I2);
}

TEST_CASE("The angle may be left out, by late and by early binding") {
    const BancoEfectos b;
    const Lamina l(30, 30), m(30, 30), vertical(30, 30);
    Degradar(b, vertical, 30, 30, 2, L"255*0", 0);
    b.Llamar(L"Degrade",
             {Variante(l.Numero()), Variante(30), Variante(30), Variante(4), Variante(L"255*0")});
    LONG hdc = m.Numero(), lado = 30;
    SHORT angulo = 0;
    const anfitrion::Cadena lista(L"255*0");
    CHECK(b.efectos->Degrade(&hdc, &lado, &lado, 4, lista.get(), &angulo) == S_OK);
    for (int i = 0; i < 30; ++i) {
        CHECK(l.Pixel(3, i) == vertical.Pixel(3, i));
        CHECK(m.Pixel(3, i) == vertical.Pixel(3, i));
    }
    CHECK(hdc == m.Numero());
}

static void Transparentar(const BancoEfectos& b, const Lamina& de, const Lamina& a, int yo,
                          int nivel) {
    const Variante r =
        b.Llamar(L"DarTrans", {Variante(de.Numero()), Variante(0), Variante(yo), Variante(10),
                               Variante(10), Variante(a.Numero()), Variante(5), Variante(5),
                               Variante(10), Variante(10), Variante(nivel)});
    CHECK(r.vt == VT_EMPTY);
}

TEST_CASE("A transparent copy mixes both pictures by its level") {
    const BancoEfectos b;
    Lamina de(10, 30);
    de.Llenar({0, 0, 10, 10}, RGB(200, 100, 0));
    de.Llenar({0, 10, 10, 30}, RGB(0, 0, 200));
    const struct {
        int nivel;
        COLORREF esperado;
    } niveles[] = {{0, RGB(200, 100, 0)}, {255, RGB(0, 0, 0)}, {128, RGB(100, 50, 0)}};
    for (const auto& uno : niveles) {
        INFO("level ", uno.nivel);
        Lamina a(20, 20);
        a.Llenar({0, 0, 20, 20}, RGB(0, 0, 0));
        Transparentar(b, de, a, 0, uno.nivel);
        CHECK(Parecidos(a.Pixel(7, 7), uno.esperado, 1));
        CHECK(a.Pixel(4, 7) == RGB(0, 0, 0));
        CHECK(a.Pixel(15, 7) == RGB(0, 0, 0));
    }
}

TEST_CASE("The source row of a transparent copy is its column, whatever the row says") {
    const BancoEfectos b;
    Lamina de(10, 30), a(20, 20);
    de.Llenar({0, 0, 10, 10}, RGB(200, 100, 0));
    de.Llenar({0, 10, 10, 30}, RGB(0, 0, 200));
    Transparentar(b, de, a, 10, 0);
    CHECK(a.Pixel(7, 7) == RGB(200, 100, 0));
}

TEST_CASE("A level that is no byte is refused") {
    const BancoEfectos b;
    const Lamina de(10, 10), a(20, 20);
    CHECK_THROWS_AS(Transparentar(b, de, a, 0, 256), anfitrion::FalloCom);
    CHECK_THROWS_AS(Transparentar(b, de, a, 0, -1), anfitrion::FalloCom);
    CHECK(a.Pixel(7, 7) == Lamina::Limpia);
}

TEST_CASE("A window takes the shape of the record it is given") {
    const BancoEfectos b;
    const HWND ventana = VentanaDePrueba();
    REQUIRE(ventana);
    const Variante w(static_cast<long>(HandleToLong(ventana)));
    const auto formar = [&](const Variante& forma, const Variante& registro) {
        b.Llamar(L"DarForma", {w, Variante(100), Variante(40), forma, registro});
    };
    Variante registro = Registro(b, 0.2f, 0.5f);
    SUBCASE("by value") {
        formar(Variante(1), registro);
    }
    SUBCASE("by reference to the variant that holds it") {
        formar(Variante(1), Variante::Referencia(static_cast<VARIANT&>(registro)));
    }
    SUBCASE("by reference") {
        Variante referencia = registro;
        VARIANT cruda = referencia;
        cruda.vt = VT_RECORD | VT_BYREF;
        cruda.pvRecord = registro.pvRecord;
        DISPPARAMS p{};
        VARIANT argumentos[] = {cruda, Variante(1), Variante(40), Variante(100), w};
        p.rgvarg = argumentos;
        p.cArgs = 5;
        CHECK(b.tardio->Invoke(DarForma, IID_NULL, 0, DISPATCH_METHOD, &p, nullptr, nullptr,
                               nullptr) == S_OK);
    }
    SUBCASE("by the virtual table") {
        LONG h = static_cast<LONG>(HandleToLong(ventana)), ancho = 100, alto = 40, forma = 1;
        tRectRedo param{0.2f, 0.5f};
        CHECK(b.efectos->DarForma(&h, &ancho, &alto, &forma, &param) == S_OK);
    }
    {
        const Region region(ventana);
        CHECK(region.clase == COMPLEXREGION);
        CHECK_FALSE(region.Dentro(0, 0));
        CHECK_FALSE(region.Dentro(99, 39));
        CHECK_FALSE(region.Dentro(2, 2));
        CHECK(region.Dentro(10, 0));
        CHECK(region.Dentro(0, 20));
        CHECK(region.Dentro(99, 20));
        CHECK(region.Dentro(50, 39));
    }
    formar(Variante(0), registro); // classic: the record does not count
    CHECK(Region(ventana).Dentro(0, 0));
    CHECK(Region(ventana).Dentro(99, 39));
    DestroyWindow(ventana);
}

TEST_CASE("Anything but the record is refused where the record is due") {
    const BancoEfectos b;
    UINT equivocado = 99;
    const auto con = [&](const Variante& registro) {
        return b.Invocar(DarForma,
                         {registro, Variante(1), Variante(40), Variante(100), Variante(0)},
                         &equivocado);
    };
    CHECK(con(Variante(5)) == DISP_E_TYPEMISMATCH);
    CHECK(equivocado == 0);
    CHECK(con(Variante(L"0.5;0.5")) == DISP_E_TYPEMISMATCH);
    CHECK(con(Variante(b.tardio.get())) == DISP_E_TYPEMISMATCH);
    Variante vacio;
    vacio.vt = VT_RECORD;
    VARIANT cruda = vacio;
    cruda.pvRecord = nullptr;
    cruda.pRecInfo = nullptr;
    vacio.vt = VT_EMPTY;
    VARIANT argumentos[] = {cruda, Variante(1), Variante(40), Variante(100), Variante(0)};
    DISPPARAMS p{argumentos, nullptr, 5, 0};
    CHECK(b.tardio->Invoke(DarForma, IID_NULL, 0, DISPATCH_METHOD, &p, nullptr, nullptr, nullptr) ==
          DISP_E_TYPEMISMATCH);
    // An array of records is no record, whatever stands where a record keeps its description.
    argumentos[0].vt = VT_ARRAY | VT_RECORD;
    argumentos[0].pRecInfo = reinterpret_cast<IRecordInfo*>(static_cast<UINT_PTR>(0x1001));
    CHECK(b.tardio->Invoke(DarForma, IID_NULL, 0, DISPATCH_METHOD, &p, nullptr, nullptr, nullptr) ==
          DISP_E_TYPEMISMATCH);
}

TEST_CASE("An overflow inside a method tells its number, source and description") {
    const BancoEfectos b;
    constexpr HRESULT Desbordamiento = static_cast<HRESULT>(0x800A0006);
    Fallo fallo;
    const Variante registro = Registro(b, 0.5f, 0.5f);
    CHECK(b.Invocar(DarForma,
                    {registro, Variante(1), Variante(40), Variante(0x7FFFFFFF), Variante(0)},
                    nullptr, &fallo.e) == DISP_E_EXCEPTION);
    CHECK(fallo.e.scode == Desbordamiento);
    REQUIRE(fallo.e.bstrSource);
    CHECK(std::wstring(fallo.e.bstrSource) == L"Pincela.Efectos");
    REQUIRE(fallo.e.bstrDescription);
    CHECK(SysStringLen(fallo.e.bstrDescription) > 0);
    // Without a record to fill, the status itself.
    CHECK(b.Invocar(DarForma, {registro, Variante(1), Variante(40), Variante(0x7FFFFFFF),
                               Variante(0)}) == Desbordamiento);

    LONG h = 0, ancho = 10, alto = 0x7FFFFFFF, forma = 0;
    tRectRedo param{};
    SetErrorInfo(0, nullptr);
    CHECK(b.efectos->DarForma(&h, &ancho, &alto, &forma, &param) == Desbordamiento);
    Puntero<IErrorInfo> info;
    REQUIRE(GetErrorInfo(0, info.Recibir()) == S_OK);
    GUID guid{};
    CHECK(info->GetGUID(&guid) == S_OK);
    CHECK(guid == Guid(ClaseDe(L"Efectos").interfaz));
    const auto soporte = b.objeto.Como<ISupportErrorInfo>();
    REQUIRE(soporte);
    CHECK(soporte->InterfaceSupportsErrorInfo(guid) == S_OK);
    CHECK(soporte->InterfaceSupportsErrorInfo(IID_IPersist) == S_FALSE);
}
