// Numbers and dates as the user writes them, from the first conversion on and after each change.
#include "anfitrion/bolsa_memoria.h"
#include "pruebas/componente/comun/boton.h"
#include "pruebas/componente/efectos/interfaz.h"

#include <doctest/doctest.h>

using namespace publicado;

namespace {

std::wstring Separador() {
    wchar_t texto[8] = {};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, texto, 8);
    return texto;
}

/// The user's decimal separator for the length of a test; the settings are the process's own
/// prefix.
class ConSeparador {
  public:
    explicit ConSeparador(const wchar_t* separador) {
        REQUIRE(SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, separador));
    }
    ConSeparador(const ConSeparador&) = delete;
    ConSeparador& operator=(const ConSeparador&) = delete;
    ~ConSeparador() { SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, antes_.c_str()); }

  private:
    std::wstring antes_ = Separador();
};

HRESULT Cargar(const Boton& boton, const wchar_t* clave, const Variante& valor) {
    const auto bolsa = anfitrion::Hacer<anfitrion::BolsaMemoria>();
    bolsa->hostilidad = anfitrion::Hostilidad::sinConversion;
    bolsa->Poner(clave, valor);
    return boton.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr);
}

Variante Cargado(const wchar_t* clave, const Variante& valor) {
    const Boton boton;
    REQUIRE(Cargar(boton, clave, valor) == S_OK);
    return Leer(boton.get(), clave);
}

} // namespace

TEST_CASE("The next conversion follows a change of the user's separator") {
    const BancoEfectos b;
    const auto rojo = [&](const wchar_t* texto) {
        return b.Llamar(L"DevColor", {Variante(texto), Variante(0), Variante(true)}).iVal;
    };
    const Boton boton;
    {
        const ConSeparador barra(L"|");
        CHECK(rojo(L"2|6") == 3);
        CHECK(Cargado(L"RelX", L"2|5").fltVal == 2.5f);
        Poner(boton.get(), L"Caption", 0.5);
        CHECK(anfitrion::Texto(Leer(boton.get(), L"Caption")) == L"0|5");
    }
    {
        const ConSeparador raro(L";");
        CHECK(rojo(L"2;6") == 3);
        CHECK(Cargado(L"RelX", L"2;5").fltVal == 2.5f);
        Poner(boton.get(), L"Caption", 0.5);
        CHECK(anfitrion::Texto(Leer(boton.get(), L"Caption")) == L"0;5");
    }
}

TEST_CASE("A date becomes the text of the date wherever a text is wanted") {
    Variante fecha;
    fecha.vt = VT_DATE;
    fecha.date = 46348.1741666667;
    anfitrion::Cadena escrita;
    REQUIRE(VarBstrFromDate(fecha.date, LOCALE_USER_DEFAULT, 0, escrita.Recibir()) == S_OK);
    CHECK(escrita.Texto().find(L"2026") != std::wstring::npos);
    const Objeto caja(L"TboxSS");
    Poner(caja.get(), L"Text", fecha);
    CHECK(anfitrion::Texto(Leer(caja.get(), L"Text")) == escrita.Texto());
    CHECK(anfitrion::Texto(Cargado(L"Caption", fecha)) == escrita.Texto());
}

TEST_CASE("No digit of a long number is lost on the way to a text") {
    const Boton boton;
    const auto comoTexto = [&](const Variante& valor) {
        Poner(boton.get(), L"Caption", valor);
        CHECK(anfitrion::Texto(Cargado(L"Caption", valor)) ==
              anfitrion::Texto(Leer(boton.get(), L"Caption")));
        return anfitrion::Texto(Leer(boton.get(), L"Caption"));
    };
    Variante largo;
    largo.vt = VT_I8;
    largo.llVal = 9007199254740993;
    CHECK(comoTexto(largo) == L"9007199254740993");
    largo.vt = VT_UI8;
    largo.ullVal = 18446744073709551615u;
    CHECK(comoTexto(largo) == L"18446744073709551615");
    largo.vt = VT_CY;
    largo.cyVal.int64 = 12345678901234567;
    CHECK(comoTexto(largo) == L"1234567890123" + Separador() + L"4567");
    DECIMAL decimal{};
    REQUIRE(VarDecFromStr(anfitrion::Cadena(L"7922816251426433759354395033.5").get(),
                          LOCALE_INVARIANT, 0, &decimal) == S_OK);
    largo.decVal = decimal;
    largo.vt = VT_DECIMAL;
    CHECK(comoTexto(largo) == L"7922816251426433759354395033" + Separador() + L"5");
}

TEST_CASE("A stored text is read as the runtime reads it") {
    const auto leer = [](const wchar_t* clave, const std::wstring& texto, VARTYPE tipo) {
        Variante runtime;
        const Variante escrito(texto);
        const HRESULT suyo = VariantChangeType(&runtime, const_cast<Variante*>(&escrito), 0, tipo);
        const Boton boton;
        const HRESULT nuestro = Cargar(boton, clave, escrito);
        INFO(anfitrion::Estrechar(texto));
        CHECK(SUCCEEDED(nuestro) == SUCCEEDED(suyo));
        if (SUCCEEDED(suyo) && SUCCEEDED(nuestro))
            CHECK(anfitrion::Real(Leer(boton.get(), clave)) == anfitrion::Real(runtime));
    };
    for (const wchar_t* texto : {L"3",
                                 L"",
                                 L" 42 ",
                                 L"-1",
                                 L"2.5",
                                 L"2,5",
                                 L"2.5000000000000001",
                                 L"2,5000000000000001",
                                 L"1,234",
                                 L"1.234",
                                 L"&HFF",
                                 L"&hffff",
                                 L"32768",
                                 L"1e3",
                                 L"$2",
                                 L"2 \u20ac",
                                 L"($2)",
                                 L"$-2",
                                 L"(5)",
                                 L"5-",
                                 L"azul",
                                 L"12:30",
                                 L"nan",
                                 L"0x10",
                                 L"1 2",
                                 L".5",
                                 L",5",
                                 L"--5"}) {
        leer(L"MousePointer", texto, VT_I2);
        leer(L"AlinText", texto, VT_I4);
        leer(L"CambioProgrePasos", texto, VT_UI1);
        leer(L"RelX", texto, VT_R4);
        leer(L"Expandir", texto, VT_BOOL);
    }
    for (const wchar_t* texto : {L"True", L"false", L"#TRUE#", L"Verdadero", L"Falso", L"Yes"})
        leer(L"Expandir", texto, VT_BOOL);
}

TEST_CASE("Unsigned numbers of a bag keep their value, and colours any pattern of 32 bits") {
    Variante grande;
    grande.vt = VT_UI4;
    grande.ulVal = 4000000000u;
    CHECK(Cargado(L"RelX", grande).fltVal == 4e9f);
    grande.ulVal = 0x8000000F;
    CHECK(Cargado(L"ColorFondo", grande).ulVal == 0x8000000F);
    CHECK(Cargado(L"ColorFondo", Variante(2147483663.0)).ulVal == 0x8000000F);
    CHECK(Cargado(L"ColorFondo", Variante(L"2147483663")).ulVal == 0x8000000F);
    const Boton boton;
    CHECK(FAILED(Cargar(boton, L"AlinText", grande)));
}
