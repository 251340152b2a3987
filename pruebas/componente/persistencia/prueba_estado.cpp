// New, loaded, changed, saved: what a button says of itself along its life.
#include "anfitrion/bolsa_memoria.h"
#include "pruebas/componente/comun/boton.h"
#include "pruebas/componente/persistencia/flujos.h"

#include <doctest/doctest.h>

using namespace publicado;
using anfitrion::BolsaMemoria;
using anfitrion::Hacer;

TEST_CASE("A button is dirty from any change until it is saved") {
    const Boton boton;
    const auto persistente = boton.Como<IPersistStreamInit>();
    const Puntero<IStream> flujo = FlujoDe({});
    REQUIRE(persistente->InitNew() == S_OK);
    CHECK(persistente->IsDirty() == S_OK); // never saved yet
    REQUIRE(persistente->Save(flujo.get(), FALSE) == S_OK);
    CHECK(persistente->IsDirty() == S_OK);
    REQUIRE(persistente->Save(flujo.get(), TRUE) == S_OK);
    CHECK(persistente->IsDirty() == S_FALSE);
    Leer(boton.get(), L"Caption");
    CHECK(persistente->IsDirty() == S_FALSE);
    Poner(boton.get(), L"FocoVisible", false);
    CHECK(persistente->IsDirty() == S_OK);
    REQUIRE(boton.Como<IPersistPropertyBag>()->Save(Hacer<BolsaMemoria>().get(), TRUE, FALSE) ==
            S_OK);
    CHECK(persistente->IsDirty() == S_FALSE);
    Poner(boton.get(), L"TipoLetra", 2);
    CHECK(persistente->IsDirty() == S_OK);
    REQUIRE(boton.Como<IPersistPropertyBag>()->Load(Hacer<BolsaMemoria>().get(), nullptr) == S_OK);
    CHECK(persistente->IsDirty() == S_FALSE);
    SIZEL tamanio{4000, 1000};
    REQUIRE(boton.Como<IOleObject>()->SetExtent(DVASPECT_CONTENT, &tamanio) == S_OK);
    CHECK(persistente->IsDirty() == S_OK);
}

TEST_CASE("A failed load does not make a clean button dirty nor a dirty one clean") {
    const Boton boton;
    const auto persistente = boton.Como<IPersistStreamInit>();
    REQUIRE(persistente->InitNew() == S_OK);
    const auto mala = Hacer<BolsaMemoria>();
    mala->Poner(L"CambioProgrePasos", 300);
    CHECK(FAILED(boton.Como<IPersistPropertyBag>()->Load(mala.get(), nullptr)));
    CHECK(persistente->IsDirty() == S_OK);
    REQUIRE(persistente->Save(FlujoDe({}).get(), TRUE) == S_OK);
    CHECK(FAILED(boton.Como<IPersistPropertyBag>()->Load(mala.get(), nullptr)));
    CHECK(persistente->IsDirty() == S_FALSE);
}

TEST_CASE("A button that nobody initialised behaves as a newly placed one") {
    const Boton nuevo, olvidado;
    REQUIRE(nuevo.Como<IPersistStreamInit>()->InitNew() == S_OK);
    SUBCASE("when its properties are read") {}
    SUBCASE("when it is asked through its virtual table first") {
        // get_EfectoBoton stands right after the seven inherited functions.
        using Funcion = HRESULT(STDMETHODCALLTYPE*)(void*, LONG*);
        LONG valor = -1;
        void* dual = nullptr;
        REQUIRE(olvidado.objeto->QueryInterface(Guid(ClaseDe(L"Botonazo").interfaz), &dual) ==
                S_OK);
        CHECK((*static_cast<Funcion**>(dual))[7](dual, &valor) == S_OK);
        CHECK(valor == 0);
        static_cast<IUnknown*>(dual)->Release();
    }
    SUBCASE("when it is saved first") {
        const Puntero<IStream> a = FlujoDe({}), b = FlujoDe({});
        REQUIRE(nuevo.Como<IPersistStreamInit>()->Save(a.get(), FALSE) == S_OK);
        REQUIRE(olvidado.Como<IPersistStreamInit>()->Save(b.get(), FALSE) == S_OK);
        CHECK(BytesDe(a.get()) == BytesDe(b.get()));
    }
    const std::vector<std::string> a = Retrato(nuevo.get()), b = Retrato(olvidado.get());
    for (std::size_t i = 0; i < a.size(); ++i)
        CHECK(a[i] == b[i]);
    CHECK(Describir(Leer(olvidado.get(), L"RelY")) == "1");
}

TEST_CASE("A button whose first load fails can still be placed as a new one") {
    const Boton nuevo, boton;
    const auto mala = Hacer<BolsaMemoria>();
    mala->Poner(L"Caption", L"resto");
    mala->Poner(L"ColorLetra", 5);
    mala->Poner(L"CambioProgrePasos", L"muchos");
    CHECK(FAILED(boton.Como<IPersistPropertyBag>()->Load(mala.get(), nullptr)));
    REQUIRE(boton.Como<IPersistPropertyBag>()->InitNew() == S_OK);
    REQUIRE(nuevo.Como<IPersistPropertyBag>()->InitNew() == S_OK);
    const std::vector<std::string> a = Retrato(nuevo.get()), b = Retrato(boton.get());
    for (std::size_t i = 0; i < a.size(); ++i)
        CHECK(a[i] == b[i]);
}

TEST_CASE("Initialising a button a second time harms nothing") {
    const Boton boton;
    REQUIRE(boton.Como<IPersistStreamInit>()->InitNew() == S_OK);
    CambiarTodo(boton.get());
    const std::vector<std::string> antes = Retrato(boton.get());
    CHECK(boton.Como<IPersistPropertyBag>()->InitNew() == S_OK);
    CHECK(boton.Como<IPersistStorage>()->InitNew(nullptr) == S_OK);
    const std::vector<std::string> ahora = Retrato(boton.get());
    for (std::size_t i = 0; i < antes.size(); ++i)
        CHECK(ahora[i] == antes[i]);
}

TEST_CASE("A button in use can be loaded anew") {
    const Boton uno, otro;
    CambiarTodo(uno.get());
    const Puntero<IStream> flujo = FlujoDe({});
    REQUIRE(uno.Como<IPersistStreamInit>()->Save(flujo.get(), TRUE) == S_OK);
    REQUIRE(otro.Como<IPersistStreamInit>()->InitNew() == S_OK);
    Poner(otro.get(), L"Caption", L"otro");
    Poner(otro.get(), L"ColorLetra", 255);
    flujo->Seek({}, STREAM_SEEK_SET, nullptr);
    REQUIRE(otro.Como<IPersistStreamInit>()->Load(flujo.get()) == S_OK);
    const std::vector<std::string> a = Retrato(uno.get()), b = Retrato(otro.get());
    for (std::size_t i = 0; i < a.size(); ++i)
        CHECK(a[i] == b[i]);
}

TEST_CASE("Every way of saving tells the class of the button") {
    const Boton boton;
    const CLSID esperada = Guid(ClaseDe(L"Botonazo").clase);
    CLSID clase{};
    CHECK(boton.Como<IPersistStreamInit>()->GetClassID(&clase) == S_OK);
    CHECK(clase == esperada);
    clase = {};
    CHECK(boton.Como<IPersistStorage>()->GetClassID(&clase) == S_OK);
    CHECK(clase == esperada);
    clase = {};
    CHECK(boton.Como<IPersistPropertyBag>()->GetClassID(&clase) == S_OK);
    CHECK(clase == esperada);
    CHECK(boton.Como<IPersistStreamInit>()->GetClassID(nullptr) == E_POINTER);
}
