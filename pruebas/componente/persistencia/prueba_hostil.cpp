// Property bags that mean no good.
#include "anfitrion/bolsa_memoria.h"
#include "pruebas/componente/comun/boton.h"

#include <doctest/doctest.h>

#include <functional>

using namespace publicado;
using anfitrion::BolsaMemoria;
using anfitrion::Estrechar;
using anfitrion::Hacer;

namespace {

constexpr HRESULT Desbordamiento = static_cast<HRESULT>(0x800A0006);
constexpr HRESULT NoCoinciden = static_cast<HRESULT>(0x800A000D);
constexpr HRESULT Nulo = static_cast<HRESULT>(0x800A005E);

/// Fails one read, by its turn, and does something of its own at another.
class BolsaQueFalla : public anfitrion::ObjetoCom<IPropertyBag> {
  public:
    int turnoDelFallo = -1;
    HRESULT estado = E_ACCESSDENIED;
    int turnoDelAviso = -1;
    std::function<void()> alAvisar;
    int turno = 0;

    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR clave, VARIANT* valor, IErrorLog*) override {
        const int mio = turno++;
        if (mio == turnoDelAviso)
            alAvisar();
        if (mio == turnoDelFallo)
            return estado;
        // Something different from what the button holds, wherever it is known how.
        const struct {
            const wchar_t* clave;
            long valor;
        } otros[] = {{L"CambioProgre", -1}, {L"CambioProgrePasos", 9}, {L"RelX", 3},
                     {L"RelY", 4},          {L"Estilos", 1},           {L"EstilosBord", 0},
                     {L"AnchoBorde", 2},    {L"TipoLetra", 2},         {L"ColorLetra", 77},
                     {L"MousePointer", 5},  {L"Enabled", 0},           {L"Caption", 1234}};
        for (const auto& otro : otros)
            if (wcscmp(clave, otro.clave) == 0) {
                VariantClear(valor);
                valor->vt = VT_I4;
                valor->lVal = otro.valor;
                return S_OK;
            }
        return E_INVALIDARG;
    }
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR, VARIANT*) override {
        return turno++ == turnoDelFallo ? estado : S_OK;
    }
};

void Comparar(const std::vector<std::string>& ahora, const std::vector<std::string>& antes) {
    for (std::size_t i = 0; i < antes.size(); ++i)
        CHECK(ahora[i] == antes[i]);
}

HRESULT CargarUna(const Boton& boton, const wchar_t* clave, const Variante& valor) {
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"Caption", L"no deseado");
    bolsa->Poner(L"ColorFondo", 1);
    bolsa->Poner(clave, valor);
    bolsa->hostilidad = anfitrion::Hostilidad::sinConversion;
    return boton.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr);
}

/// Each value is refused, the button stays what it was and goes on working.
void Rechazar(const Boton& boton, const wchar_t* clave, const Variante& valor, HRESULT estado) {
    INFO(Estrechar(clave), " = ", Describir(valor));
    const std::vector<std::string> antes = Retrato(boton.get());
    CHECK(CargarUna(boton, clave, valor) == estado);
    Comparar(Retrato(boton.get()), antes);
    CHECK(IntentarPoner(boton.get(), L"Enabled", true) == S_OK);
    CHECK(IntentarPoner(boton.get(), L"Enabled", false) == S_OK);
}

} // namespace

TEST_CASE("Text that is no value is refused wherever a value is due") {
    const Boton boton;
    CambiarTodo(boton.get());
    for (const wchar_t* clave :
         {L"CambioProgre", L"CambioProgrePasos", L"FocoVisible", L"FocoConMouse",    L"RelX",
          L"RelY",         L"Estilos",           L"EstilosBord", L"AnchoBorde",      L"Angulo",
          L"EstilosRell",  L"EfectoBoton",       L"Enabled",     L"AlinText",        L"AlinImag",
          L"ColorLetra",   L"ColorLetraSobre",   L"ColorFondo",  L"ColorFondoSobre", L"Font",
          L"MouseIcon",    L"MousePointer",      L"Expandir",    L"TipoLetra",       L"ImagNormal",
          L"ImagSobre"})
        Rechazar(boton, clave, L"no es un valor", NoCoinciden);
}

TEST_CASE("Values beyond the range of their property overflow") {
    const Boton boton;
    CambiarTodo(boton.get());
    Rechazar(boton, L"CambioProgrePasos", 256, Desbordamiento);
    Rechazar(boton, L"CambioProgrePasos", -1, Desbordamiento);
    Rechazar(boton, L"CambioProgrePasos", 255.5, Desbordamiento);
    Rechazar(boton, L"Angulo", 40000, Desbordamiento);
    Rechazar(boton, L"Angulo", -32769, Desbordamiento);
    Rechazar(boton, L"MousePointer", 70000, Desbordamiento);
    Rechazar(boton, L"RelX", 1e300, Desbordamiento);
    Rechazar(boton, L"RelY", -1e39, Desbordamiento);
    for (const wchar_t* clave : {L"Estilos", L"EstilosBord", L"AnchoBorde", L"EstilosRell",
                                 L"EfectoBoton", L"AlinText", L"AlinImag", L"TipoLetra"})
        Rechazar(boton, clave, 1e12, Desbordamiento);
    Rechazar(boton, L"ColorFondo", L"99999999999", Desbordamiento);
}

TEST_CASE("Null, arrays and objects of another kind are refused") {
    const Boton boton;
    CambiarTodo(boton.get());
    Variante nulo;
    nulo.vt = VT_NULL;
    for (const wchar_t* clave : {L"CambioProgre", L"Caption", L"RelX", L"Angulo", L"ColorFondo"})
        Rechazar(boton, clave, nulo, Nulo);
    Variante matriz;
    matriz.vt = VT_ARRAY | VT_I4;
    matriz.parray = SafeArrayCreateVector(VT_I4, 0, 3);
    for (const wchar_t* clave : {L"CambioProgre", L"Caption", L"RelX", L"Font", L"ImagNormal"})
        Rechazar(boton, clave, matriz, NoCoinciden);
    const Variante fuente(anfitrion::CrearFuente(L"Arial", 9).get());
    const Variante imagen(MapaDePrueba(2).get());
    Rechazar(boton, L"Font", imagen, NoCoinciden);
    Rechazar(boton, L"ImagNormal", fuente, NoCoinciden);
    Rechazar(boton, L"MouseIcon", fuente, NoCoinciden);
    Rechazar(boton, L"ColorLetra", imagen, NoCoinciden);
}

TEST_CASE("An overflow found while drawing is refused like one found while reading") {
    const Boton boton;
    CambiarTodo(boton.get());
    // The size of the corners no longer fits 32 bits.
    const std::vector<std::string> antes = Retrato(boton.get());
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"Estilos", 1);
    bolsa->Poner(L"RelX", 1e30);
    CHECK(boton.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == Desbordamiento);
    Comparar(Retrato(boton.get()), antes);
}

TEST_CASE("An error of the bag at any key is answered as it is, and the button is unchanged") {
    const Boton boton;
    CambiarTodo(boton.get());
    SUBCASE("with any shape") {}
    SUBCASE("while RelX keeps RelY from being assigned") {
        Poner(boton.get(), L"RelX", 0.0f);
    }
    const std::vector<std::string> antes = Retrato(boton.get());
    for (int turno = 0; turno < 30; ++turno) {
        INFO("key number ", turno);
        const auto bolsa = Hacer<BolsaQueFalla>();
        bolsa->turnoDelFallo = turno;
        CHECK(boton.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == E_ACCESSDENIED);
        Comparar(Retrato(boton.get()), antes);
    }
}

TEST_CASE("A bag that only knows failure for a missing key gives the defaults") {
    const Boton boton;
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->hostilidad = anfitrion::Hostilidad::falla;
    CHECK(boton.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    CHECK(Describir(Leer(boton.get(), L"RelY")) == "1.5");
}

TEST_CASE("A bag that answers missing keys with nothing at all is taken") {
    const Boton boton;
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->hostilidad = anfitrion::Hostilidad::ausenteVacio;
    CHECK(boton.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    CHECK(IntentarPoner(boton.get(), L"Enabled", true) == S_OK);
}

TEST_CASE("A font that is no object at all leaves the button with one") {
    const Boton boton;
    CHECK(CargarUna(boton, L"Font", Variante(static_cast<IDispatch*>(nullptr))) == S_OK);
    CHECK(Leer(boton.get(), L"Font").punkVal != nullptr);
}

TEST_CASE("An error of the bag while saving is answered, and the button stays dirty") {
    const Boton boton;
    CambiarTodo(boton.get());
    const auto persistente = boton.Como<IPersistPropertyBag>();
    for (int turno = 0; turno < 26; ++turno) {
        INFO("key number ", turno);
        const auto bolsa = Hacer<BolsaQueFalla>();
        bolsa->turnoDelFallo = turno;
        bolsa->estado = E_OUTOFMEMORY;
        CHECK(persistente->Save(bolsa.get(), TRUE, FALSE) == E_OUTOFMEMORY);
        CHECK(boton.Como<IPersistStreamInit>()->IsDirty() == S_OK);
    }
}

TEST_CASE("A bag may let go of the button in the middle of a load") {
    Boton boton;
    auto bolsa = Hacer<BolsaQueFalla>();
    bolsa->turnoDelAviso = 12;
    IPersistPropertyBag* suelto = boton.Como<IPersistPropertyBag>().Separar();
    bolsa->alAvisar = [&] {
        boton.despacho = nullptr;
        boton.objeto = nullptr;
        suelto->Release();
    };
    CHECK(suelto->Load(bolsa.get(), nullptr) == S_OK); // the call itself keeps it alive
    CHECK(bolsa->turno == 30);
    CHECK(boton.componente.PuedeDescargarse());
}

TEST_CASE("A bag may use the button in the middle of a load") {
    const Boton boton;
    const auto bolsa = Hacer<BolsaQueFalla>();
    bolsa->turnoDelAviso = 12;
    std::string leido;
    bolsa->alAvisar = [&] { leido = Describir(Leer(boton.get(), L"RelX")); };
    CHECK(boton.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr) == S_OK);
    CHECK(leido == "3"); // what has been read so far
}
