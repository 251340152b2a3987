#include "anfitrion/bolsa_memoria.h"
#include "anfitrion/pruebas/banco.h"

using namespace falso;

TEST_CASE("A control is loaded from a bag and saved to another") {
    Banco banco;
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"titulo", L"Aceptar");
    ControlFalso* c = banco.Poner(L"uno", {}, {.bolsa = bolsa.get()});
    REQUIRE(c->titulo == L"Aceptar");
    REQUIRE(c->Veces("InitNew") == 0);
    const auto otra = Hacer<BolsaMemoria>();
    banco.alojado->Como<IPersistPropertyBag>()->Save(otra.get(), FALSE, TRUE);
    REQUIRE(Texto(*otra->Buscar(L"Titulo")) == L"Aceptar");
    REQUIRE(otra->Claves(true) == std::vector<std::wstring>{L"Titulo"});
}

TEST_CASE("A control is loaded from a stream") {
    Banco banco;
    Puntero<IStream> flujo;
    CreateStreamOnHGlobal(nullptr, TRUE, flujo.Recibir());
    flujo->Write(L"abc", 6, nullptr);
    flujo->Seek({}, STREAM_SEEK_SET, nullptr);
    REQUIRE(banco.Poner(L"uno", {}, {.flujo = flujo.get()})->titulo == L"abc");
}

TEST_CASE("A bag converts a value to the type it is asked for") {
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"RelX", L"0.5");
    Variante v(0.0f);
    REQUIRE(bolsa->Read(L"RELX", &v, nullptr) == S_OK);
    REQUIRE(v.vt == VT_R4);
    REQUIRE(v.fltVal == 0.5f);
    bolsa->hostilidad = Hostilidad::sinConversion;
    REQUIRE(bolsa->Read(L"RelX", &v, nullptr) == S_OK);
    REQUIRE(v.vt == VT_BSTR);
}

TEST_CASE("A missing key is an invalid argument and leaves the value alone") {
    const auto bolsa = Hacer<BolsaMemoria>();
    Variante v(5);
    REQUIRE(bolsa->Read(L"Nada", &v, nullptr) == E_INVALIDARG);
    REQUIRE(Entero(v) == 5);
    REQUIRE(bolsa->Operaciones()[0].estado == E_INVALIDARG);
    bolsa->hostilidad = Hostilidad::ausenteVacio;
    REQUIRE(bolsa->Read(L"Nada", &v, nullptr) == S_OK);
    REQUIRE(v.vt == VT_EMPTY);
}

TEST_CASE("A hostile bag fails or gives what does not convert") {
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"Estilos", 1);
    bolsa->hostilidad = Hostilidad::falla;
    Variante v(0);
    REQUIRE(bolsa->Read(L"Estilos", &v, nullptr) == E_FAIL);
    REQUIRE(bolsa->Write(L"Estilos", &v) == E_FAIL);
    bolsa->hostilidad = Hostilidad::tipoEquivocado;
    REQUIRE(bolsa->Read(L"Estilos", &v, nullptr) == S_OK);
    REQUIRE_THROWS_AS(Entero(v), FalloCom);
}
