// Saving, loading and asking controls on a machine that has run out of memory.
#include "anfitrion/bolsa_memoria.h"
#include "pruebas/componente/memoria/apuros.h"
#include "pruebas/componente/persistencia/flujos.h"

#include <doctest/doctest.h>

#include <olectl.h>

using namespace memoria;
using publicado::BytesDe;
using publicado::BytesDeFlujo;
using publicado::FlujoDe;

namespace {

BytesDeFlujo Guardado(const Puntero<IUnknown>& control) {
    const auto flujo = FlujoDe({});
    REQUIRE(control.Como<IPersistStreamInit>()->Save(flujo.get(), TRUE) == S_OK);
    return BytesDe(flujo.get());
}

/// A control that has something of everything.
Puntero<IUnknown> Adornado(const wchar_t* clase) {
    const auto control = Mesa::La().Crear(clase);
    REQUIRE(control.Como<IPersistStreamInit>()->InitNew() == S_OK);
    Adornar(control.Como<IDispatch>().get());
    return control;
}

/// A bag that keeps what it is given and has memory of its own.
Puntero<BolsaMemoria> BolsaDe(const Puntero<IUnknown>& control) {
    const auto bolsa = Hacer<BolsaMemoria>();
    REQUIRE(control.Como<IPersistPropertyBag>()->Save(bolsa.get(), TRUE, TRUE) == S_OK);
    return bolsa;
}

using Prueba = std::function<void(const wchar_t* clase, const std::string& que, const Negativa&)>;

void ConCadaControl(const Prueba& prueba) {
    for (const wchar_t* clase : Controles)
        ConCadaNegativa(
            [&](const Negativa& negativa) { prueba(clase, Estrechar(clase).substr(8), negativa); });
}

} // namespace

TEST_CASE("A control saved without memory says so, and can be saved afterwards") {
    ConCadaControl([](const wchar_t* clase, const std::string& que, const Negativa& negativa) {
        const auto control = Adornado(clase);
        const BytesDeFlujo buenos = Guardado(control);
        const auto pares = BolsaDe(control)->Valores().size();
        Apurar("saving to a stream " + que, negativa, [&](const Intento& intentar) {
            const auto flujo = FlujoDe({});
            intentar([&] { return control.Como<IPersistStreamInit>()->Save(flujo.get(), TRUE); });
            CHECK(Guardado(control) == buenos);
        });
        Apurar("saving to a bag " + que, negativa, [&](const Intento& intentar) {
            const auto bolsa = Hacer<BolsaMemoria>();
            intentar(
                [&] { return control.Como<IPersistPropertyBag>()->Save(bolsa.get(), TRUE, TRUE); });
            CHECK(BolsaDe(control)->Valores().size() == pares);
        });
        Apurar("saving to a storage " + que, negativa, [&](const Intento& intentar) {
            const auto almacen = publicado::AlmacenNuevo();
            intentar([&] { return control.Como<IPersistStorage>()->Save(almacen.get(), TRUE); });
            CHECK(control.Como<IPersistStorage>()->Save(almacen.get(), TRUE) == S_OK);
        });
    });
}

TEST_CASE(
    "A control loaded without memory says so, keeps what it had, and can be loaded afterwards") {
    Mesa& mesa = Mesa::La();
    ConCadaControl([&](const wchar_t* clase, const std::string& que, const Negativa& negativa) {
        // Loaded once itself: a picture is kept in another way than it was first made.
        const auto modelo = mesa.Crear(clase);
        REQUIRE(modelo.Como<IPersistStreamInit>()->Load(FlujoDe(Guardado(Adornado(clase))).get()) ==
                S_OK);
        const BytesDeFlujo buenos = Guardado(modelo);
        const auto bolsa = BolsaDe(modelo);
        const auto cargarFlujo = [&](const Puntero<IUnknown>& control) {
            return control.Como<IPersistStreamInit>()->Load(FlujoDe(buenos).get());
        };
        const auto cargarBolsa = [&](const Puntero<IUnknown>& control) {
            bolsa->OlvidarOperaciones(); // it remembers everything that it is asked
            return control.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr);
        };
        const auto apurar = [&](const std::string& como, const auto& cargar) {
            Apurar("loading " + como + que, negativa, [&](const Intento& intentar) {
                const auto control = mesa.Crear(clase);
                intentar([&] { return cargar(control); });
                CHECK(cargar(control) == S_OK);
                CHECK(Guardado(control) == buenos);
            });
            Apurar("loading again " + como + que, negativa, [&](const Intento& intentar) {
                const auto control = mesa.Crear(clase);
                REQUIRE(control.Como<IPersistStreamInit>()->InitNew() == S_OK);
                const BytesDeFlujo antes = Guardado(control);
                const HRESULT estado = intentar([&] { return cargar(control); });
                // Putting back what was there takes memory too.
                if (!negativa.todos)
                    CHECK(Guardado(control) == (FAILED(estado) ? antes : buenos));
                CHECK(cargar(control) == S_OK);
                CHECK(Guardado(control) == buenos);
            });
        };
        apurar("from a stream ", cargarFlujo);
        apurar("from a bag ", cargarBolsa);
    });
}

TEST_CASE("A control asked about itself without memory says so and clears what it was to fill") {
    Mesa& mesa = Mesa::La();
    ConCadaControl([&](const wchar_t* clase, const std::string& que, const Negativa& negativa) {
        const auto control = Adornado(clase);
        const auto preguntar = [&](const char* como, const auto& pregunta) {
            Apurar(std::string(como) + que, negativa, pregunta);
        };
        preguntar("verbs of ", [&](const Intento& intentar) {
            Puntero<IEnumOLEVERB> verbos;
            intentar([&]() -> HRESULT {
                const HRESULT estado = control.Como<IOleObject>()->EnumVerbs(verbos.Recibir());
                CHECK(FAILED(estado) == !verbos);
                if (estado == OLEOBJ_E_NOVERBS) {
                    CHECK(std::wstring_view(clase).ends_with(L"TBoxML")); // all it has to say
                    return S_OK;
                }
                if (FAILED(estado))
                    return estado;
                OLEVERB verbo{};
                ULONG dados = 9;
                const HRESULT uno = verbos->Next(1, &verbo, &dados);
                CHECK(dados == (uno == S_OK ? 1 : 0));
                if (uno == S_OK)
                    CoTaskMemFree(verbo.lpszVerbName);
                return uno;
            });
        });
        preguntar("connections of ", [&](const Intento& intentar) {
            const auto contenedor = control.Como<IConnectionPointContainer>();
            const auto oyente = Hacer<Avisos>();
            Puntero<IEnumConnectionPoints> puntos;
            Puntero<IConnectionPoint> punto;
            Puntero<IEnumConnections> conexiones;
            DWORD galleta = 9;
            intentar([&]() -> HRESULT {
                HRESULT estado = contenedor->EnumConnectionPoints(puntos.Recibir());
                CHECK(FAILED(estado) == !puntos);
                if (FAILED(estado))
                    return estado;
                contenedor->FindConnectionPoint(IID_IPropertyNotifySink, punto.Recibir());
                estado = punto->Advise(static_cast<IPropertyNotifySink*>(oyente.get()), &galleta);
                CHECK(FAILED(estado) == (galleta == 0));
                if (FAILED(estado))
                    return estado;
                estado = punto->EnumConnections(conexiones.Recibir());
                CHECK(FAILED(estado) == !conexiones);
                return estado;
            });
            if (punto && galleta != 9)
                punto->Unadvise(galleta);
        });
        preguntar("kind of ", [&](const Intento& intentar) {
            LPOLESTR tipo = nullptr;
            intentar(
                [&] { return control.Como<IOleObject>()->GetUserType(USERCLASSTYPE_FULL, &tipo); });
            CoTaskMemFree(tipo);
        });
        preguntar("pages of ", [&](const Intento& intentar) {
            const auto paginas = control.Como<ISpecifyPropertyPages>();
            CAUUID lista{9, reinterpret_cast<GUID*>(8)};
            const HRESULT estado =
                intentar([&] { return paginas ? paginas->GetPages(&lista) : S_OK; });
            if (!paginas)
                return;
            if (FAILED(estado))
                CHECK((lista.cElems == 0 && !lista.pElems));
            CoTaskMemFree(lista.pElems);
        });
        preguntar("types of ", [&](const Intento& intentar) {
            Puntero<ITypeInfo> tipo;
            intentar([&] {
                const HRESULT estado =
                    control.Como<IProvideClassInfo>()->GetClassInfo(tipo.Recibir());
                CHECK(FAILED(estado) == !tipo);
                return estado;
            });
        });
        preguntar("advice of ", [&](const Intento& intentar) {
            const auto otro =
                mesa.Crear(clase); // makes the holders of its listeners when asked first
            const auto oyente = Hacer<Avisos>();
            DWORD galleta = 9, deDatos = 9;
            intentar([&] {
                HRESULT estado = otro.Como<IOleObject>()->Advise(oyente.get(), &galleta);
                CHECK(FAILED(estado) == (galleta == 0));
                FORMATETC formato{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
                const HRESULT datos =
                    otro.Como<IDataObject>()->DAdvise(&formato, 0, oyente.get(), &deDatos);
                CHECK(FAILED(datos) == (deDatos == 0));
                return FAILED(estado) ? estado : datos;
            });
        });
        preguntar("picture of ", [&](const Intento& intentar) {
            FORMATETC formato{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
            STGMEDIUM medio{};
            const HRESULT estado =
                intentar([&] { return control.Como<IDataObject>()->GetData(&formato, &medio); });
            if (FAILED(estado))
                CHECK(medio.tymed == TYMED_NULL);
            else
                ReleaseStgMedium(&medio);
        });
    });
}

TEST_CASE("Every property read and written without memory gives its value or the lack of memory") {
    ConCadaControl([](const wchar_t* clase, const std::string& que, const Negativa& negativa) {
        const auto control = Adornado(clase);
        const auto despacho = control.Como<IDispatch>();
        for (const wchar_t* nombre :
             {L"Caption", L"Text", L"Font", L"Fuente", L"ImagNormal", L"ToolTipText",
              L"ColorDegrade", L"EstilosRell", L"SelText"}) {
            if (!Tiene(despacho.get(), nombre))
                continue;
            Apurar(Estrechar(nombre) + " of " + que, negativa, [&](const Intento& intentar) {
                const Variante antes = Leer(despacho.get(), nombre);
                intentar([&]() -> HRESULT {
                    try {
                        const Variante valor = Leer(despacho.get(), nombre);
                        if (valor.vt == VT_DISPATCH)
                            PonerRef(despacho.get(), nombre, valor);
                        else if (std::wstring_view(nombre) != L"SelText")
                            Poner(despacho.get(), nombre, valor);
                        return S_OK;
                    } catch (const FalloCom& fallo) {
                        return fallo.estado;
                    }
                });
                CHECK(Texto(Leer(despacho.get(), nombre)) == Texto(antes));
            });
        }
    });
}
