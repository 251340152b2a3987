// The colour utilities, by every road an automation client has.
#include "pruebas/componente/efectos/interfaz.h"

using namespace publicado;

namespace {

const struct {
    long color;
    long canal;
    bool simple;
    short resultado;
} Canales[] = {{0x00FF8040, 0, true, 64},
               {0x00FF8040, 1, true, 128},
               {0x00FF8040, 2, true, 255},
               {0x00FF8040, 0, false, 16384},
               {0x00FF8040, 1, false, -32768},
               {0x00FF8040, 2, false, -256},
               {0x007F0000, 2, false, 32512},
               {-1, 0, true, 0},
               {-1, 1, false, 0},
               {0x00FF8040, -1, false, 0},
               {0x00FF8040, 3, true, 0},
               {static_cast<long>(0x8000000F), 0, true, 15}};

} // namespace

TEST_CASE("A channel of a colour comes by name, by number and by the virtual table") {
    const BancoEfectos b;
    for (const auto& uno : Canales) {
        INFO("colour ", uno.color, " channel ", uno.canal, " simple ", uno.simple);
        const Variante porNombre =
            b.Llamar(L"DevColor", {Variante(uno.color), Variante(uno.canal), Variante(uno.simple)});
        CHECK(porNombre.vt == VT_I2);
        CHECK(porNombre.iVal == uno.resultado);
        CHECK(b.Invocar(DevColor,
                        {Variante(uno.simple), Variante(uno.canal), Variante(uno.color)}) == S_OK);
        CHECK(b.resultado.iVal == uno.resultado);
        LONG color = uno.color, canal = uno.canal;
        Variante simple(uno.simple);
        SHORT resultado = 7;
        CHECK(b.efectos->DevColor(&color, &canal, &simple, &resultado) == S_OK);
        CHECK(resultado == uno.resultado);
        CHECK(color == uno.color);
        CHECK(canal == uno.canal);
    }
}

TEST_CASE("Arguments come by value, by reference and inside a variant of the caller") {
    const BancoEfectos b;
    long color = 0xFF8040, canal = 1;
    VARIANT_BOOL simple = VARIANT_TRUE;
    CHECK(b.Llamar(L"DevColor", {Variante::Referencia(color), Variante::Referencia(canal),
                                 Variante::ReferenciaLogica(simple)})
              .iVal == 128);
    Variante vColor(0xFF8040), vCanal(short{2}), vSimple(true);
    CHECK(b.Llamar(L"DevColor", {Variante::Referencia(static_cast<VARIANT&>(vColor)),
                                 Variante::Referencia(static_cast<VARIANT&>(vCanal)),
                                 Variante::Referencia(static_cast<VARIANT&>(vSimple))})
              .iVal == 255);
    CHECK(color == 0xFF8040);
    CHECK(vColor.lVal == 0xFF8040);
    CHECK(vCanal.vt == VT_I2); // the caller's variable keeps its type
    for (const Variante& otro :
         {Variante(L"16744512"), Variante(16744512.0), Variante(16744512.f), Variante(L"&HFF8040")})
        CHECK(b.Llamar(L"DevColor", {otro, Variante(0), Variante(true)}).iVal == 64);
}

TEST_CASE("Arguments that are left out take their defaults") {
    const BancoEfectos b;
    const Variante omitida = Variante::Omitida();
    CHECK(b.Llamar(L"DevColor", {Variante(0xFF8040)}).iVal == 0);
    CHECK(b.Llamar(L"DevColor", {Variante(0xFF8040), Variante(1)}).iVal == -32768);
    CHECK(b.Llamar(L"DevColor", {Variante(0xFF8040), Variante(1), omitida}).iVal == -32768);
    CHECK(b.Llamar(L"DevColor", {Variante(0xFF8040), omitida, Variante(true)}).iVal == 0);
    Variante dentro = omitida;
    CHECK(b.Llamar(L"DevColor", {Variante(0xFF8040), Variante(0),
                                 Variante::Referencia(static_cast<VARIANT&>(dentro))})
              .iVal == 16384);
    LONG color = 0xFF8040, canal = 0;
    SHORT resultado = 0;
    Variante falta = omitida;
    CHECK(b.efectos->DevColor(&color, &canal, &falta, &resultado) == S_OK);
    CHECK(resultado == 16384);
}

TEST_CASE("Arguments come by name in any order") {
    const BancoEfectos b;
    LPOLESTR nombres[] = {const_cast<LPOLESTR>(L"DevColor"), const_cast<LPOLESTR>(L"simple"),
                          const_cast<LPOLESTR>(L"Color"), const_cast<LPOLESTR>(L"DCOLOR")};
    DISPID ids[4] = {};
    REQUIRE(b.tardio->GetIDsOfNames(IID_NULL, nombres, 4, LOCALE_USER_DEFAULT, ids) == S_OK);
    CHECK(ids[0] == DevColor);
    CHECK(ids[1] == 2);
    CHECK(ids[2] == 0);
    CHECK(ids[3] == 1);
    CHECK(b.Invocar(DevColor, {Variante(true), Variante(0xFF8040), Variante(2)}, nullptr, nullptr,
                    {2, 0, 1}) == S_OK);
    CHECK(b.resultado.iVal == 255);
    // Named ones come first in the array, the rest in its place.
    CHECK(b.Invocar(DevColor, {Variante(true), Variante(1), Variante(0xFF8040)}, nullptr, nullptr,
                    {2}) == S_OK);
    CHECK(b.resultado.iVal == 128);
    UINT equivocado = 99;
    CHECK(b.Invocar(DevColor, {Variante(true), Variante(1), Variante(0)}, &equivocado, nullptr,
                    {0}) == DISP_E_PARAMNOTFOUND); // twice the same
    CHECK(b.Invocar(DevColor, {Variante(true), Variante(0)}, &equivocado, nullptr, {7}) ==
          DISP_E_PARAMNOTFOUND);
    CHECK(equivocado == 0);
}

TEST_CASE("Arguments that do not convert are pointed out") {
    const BancoEfectos b;
    UINT equivocado = 99;
    CHECK(b.Invocar(DevColor, {Variante(true), Variante(1), Variante(L"azul")}, &equivocado) ==
          DISP_E_TYPEMISMATCH);
    CHECK(equivocado == 2);
    CHECK(b.Invocar(DevColor, {Variante(true), Variante(L"azul"), Variante(1)}, &equivocado) ==
          DISP_E_TYPEMISMATCH);
    CHECK(equivocado == 1);
    CHECK(b.Invocar(DevColor, {Variante(true), Variante(1), Variante(1e12)}, &equivocado) ==
          DISP_E_OVERFLOW);
    CHECK(equivocado == 2);
    CHECK(b.Invocar(DevColor, {Variante(b.tardio.get())}, &equivocado) == DISP_E_TYPEMISMATCH);
    CHECK(equivocado == 0);
    Variante rota;
    rota.vt = VT_BYREF | VT_I4;
    rota.plVal = nullptr;
    CHECK(b.Invocar(DevColor, {rota}) == DISP_E_TYPEMISMATCH);
    rota.vt = VT_BYREF | VT_VARIANT;
    CHECK(b.Invocar(DevColor, {rota}) == DISP_E_TYPEMISMATCH);
    rota.vt = VT_EMPTY;
}

TEST_CASE("Too many and too few arguments are refused") {
    const BancoEfectos b;
    CHECK(b.Invocar(DevColor, {}) == DISP_E_BADPARAMCOUNT);
    CHECK(b.Invocar(DevColor, {Variante(1), Variante(1), Variante(1), Variante(1)}) ==
          DISP_E_BADPARAMCOUNT);
    CHECK(b.Invocar(DevColor, {Variante::Omitida()}) != S_OK);
    CHECK(b.Invocar(InviertoColor, {}) == DISP_E_BADPARAMCOUNT);
    CHECK(b.Invocar(InviertoColor, {Variante(1), Variante(2)}) == DISP_E_BADPARAMCOUNT);
    CHECK(b.Invocar(0x60030005, {}) == DISP_E_MEMBERNOTFOUND);
    CHECK(b.Invocar(0, {}) == DISP_E_MEMBERNOTFOUND);
}

TEST_CASE("Inverting a colour gives nothing, whatever the colour") {
    const BancoEfectos b;
    for (const long color : {0L, 255L, -1L, 0x7FFFFFFFL, static_cast<long>(0x80000000)}) {
        const Variante resultado = b.Llamar(L"InviertoColor", {Variante(color)});
        CHECK(resultado.vt == VT_I4);
        CHECK(resultado.lVal == 0);
        LONG c = color, r = 5;
        CHECK(b.efectos->InviertoColor(&c, &r) == S_OK);
        CHECK(r == 0);
        CHECK(c == color);
    }
}

TEST_CASE("Null pointers are pointed out, and results cleared") {
    const BancoEfectos b;
    LONG color = 1, canal = 0, uno = 1, largo = 9;
    SHORT corto = 9;
    Variante simple(true), resultado(5);
    BYTE nivel = 0;
    tRectRedo forma{};
    CHECK(b.efectos->DevColor(nullptr, &canal, &simple, &corto) == E_POINTER);
    CHECK(corto == 0);
    CHECK(b.efectos->DevColor(&color, &canal, &simple, nullptr) == E_POINTER);
    CHECK(b.efectos->InviertoColor(nullptr, &largo) == E_POINTER);
    CHECK(largo == 0);
    CHECK(b.efectos->InviertoColor(&color, nullptr) == E_POINTER);
    CHECK(b.efectos->DarForma(nullptr, &uno, &uno, &uno, &forma) == E_POINTER);
    CHECK(b.efectos->DarForma(&uno, &uno, &uno, &uno, nullptr) == E_POINTER);
    CHECK(b.efectos->Degrade(nullptr, &uno, &uno, 1, nullptr, &corto) == E_POINTER);
    CHECK(b.efectos->DarTrans(&uno, &uno, &uno, &uno, &uno, &uno, &uno, &uno, &uno, &uno, &nivel,
                              nullptr) == E_POINTER);
    CHECK(b.efectos->DarTrans(&uno, &uno, &uno, &uno, &uno, nullptr, &uno, &uno, &uno, &uno, &nivel,
                              &resultado) == E_POINTER);
    CHECK(resultado.vt == VT_EMPTY);
}

TEST_CASE("Names that are not published are unknown, those that are know no case") {
    const BancoEfectos b;
    CHECK(anfitrion::Numero(b.tardio.get(), L"devcolor") == DevColor);
    CHECK(anfitrion::Numero(b.tardio.get(), L"DarForma") == DarForma);
    CHECK(anfitrion::Numero(b.tardio.get(), L"DARTRANS") == DarTrans);
    CHECK_FALSE(anfitrion::Tiene(b.tardio.get(), L"Malla"));
    LPOLESTR nombres[] = {const_cast<LPOLESTR>(L"DevColor"), const_cast<LPOLESTR>(L"tono")};
    DISPID ids[2] = {5, 5};
    CHECK(b.tardio->GetIDsOfNames(IID_NULL, nombres, 2, LOCALE_USER_DEFAULT, ids) ==
          DISP_E_UNKNOWNNAME);
    CHECK(ids[0] == DevColor);
    CHECK(ids[1] == DISPID_UNKNOWN);
    CHECK(b.tardio->GetIDsOfNames(IID_NULL, nullptr, 1, LOCALE_USER_DEFAULT, ids) == E_POINTER);
}

TEST_CASE("The object describes its own interface") {
    const BancoEfectos b;
    UINT cuantas = 0;
    CHECK(b.tardio->GetTypeInfoCount(&cuantas) == S_OK);
    CHECK(cuantas == 1);
    Puntero<ITypeInfo> tipo;
    REQUIRE(b.tardio->GetTypeInfo(0, LOCALE_USER_DEFAULT, tipo.Recibir()) == S_OK);
    TYPEATTR* attr = nullptr;
    REQUIRE(tipo->GetTypeAttr(&attr) == S_OK);
    CHECK(attr->guid == Guid(ClaseDe(L"Efectos").interfaz));
    tipo->ReleaseTypeAttr(attr);
    CHECK(b.tardio->GetTypeInfo(1, LOCALE_USER_DEFAULT, tipo.Recibir()) == DISP_E_BADINDEX);
    CHECK_FALSE(tipo);
    CHECK(b.tardio->GetTypeInfo(0, LOCALE_USER_DEFAULT, nullptr) == E_POINTER);
    CHECK(b.tardio->GetTypeInfoCount(nullptr) == E_POINTER);
    DISPPARAMS ninguno{};
    CHECK(b.tardio->Invoke(InviertoColor, IID_IUnknown, 0, DISPATCH_METHOD, &ninguno, nullptr,
                           nullptr, nullptr) == DISP_E_UNKNOWNINTERFACE);
}
