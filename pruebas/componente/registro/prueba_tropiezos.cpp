// Registrations that can't be completed, were cut short, or come from unusual places.
#include "pruebas/componente/registro/banco.h"
#include "pruebas/componente/registro/copia.h"

using namespace publicado;
using anfitrion::Estrechar;

TEST_CASE("A registration that fails half-way leaves everything as it was") {
    const Banco b;
    // No lasting key can be made below one that does not last.
    std::wstring obstaculo;
    SUBCASE("at the first key") {
        obstaculo = L"TypeLib\\" + std::wstring(Biblioteca);
    }
    SUBCASE("at a class in the middle") {
        obstaculo = std::wstring(L"CLSID\\") + ClaseDe(L"Botonazo").clase;
    }
    SUBCASE("at the last interface") {
        obstaculo = std::wstring(L"Interface\\") + ClaseDe(L"ProPColoresArea").interfaz;
    }
    SUBCASE("at a name") {
        obstaculo = L"Pincela.TboxSS";
    }
    // The key alone does not last, and not those it is in.
    for (const wchar_t* rama : {L"CLSID", L"Interface", L"TypeLib"})
        Clave(HKEY_CURRENT_USER, EnClases(rama), true);
    const std::wstring efectos = ClaveDeClase(L"Efectos");
    constexpr DWORD numero = 0x12345678;
    constexpr BYTE bytes[] = {0, 255, 7};
    constexpr wchar_t varias[] = L"de\0varios\0";
    Clave(HKEY_CURRENT_USER, efectos, true).Poner(L"", L"de otro");
    const Clave servidor(HKEY_CURRENT_USER, efectos + L"\\InprocServer32", true);
    servidor.Poner(L"", std::wstring(5000, L'x'));
    servidor.Poner(L"ThreadingModel", REG_BINARY, bytes, sizeof bytes);
    servidor.Poner(L"De otro", REG_QWORD, "12345678", 8);
    Clave(HKEY_CURRENT_USER, efectos + L"\\ProgID", true).Poner(L"", L"%TEMP%", REG_EXPAND_SZ);
    Clave(HKEY_CURRENT_USER, efectos + L"\\VERSION", true)
        .Poner(L"", REG_DWORD, &numero, sizeof numero);
    Clave(HKEY_CURRENT_USER, efectos + L"\\TypeLib", true)
        .Poner(L"", REG_MULTI_SZ, varias, sizeof varias);
    Clave(HKEY_CURRENT_USER, efectos + L"\\Programmable", true).Poner(L"", REG_NONE, nullptr, 0);
    Clave(HKEY_CURRENT_USER, efectos + L"\\Programmable\\De otro", true).Poner(L"a", L"b");
    Clave(HKEY_CURRENT_USER, EnClases(obstaculo), true, REG_OPTION_VOLATILE);
    const Lineas antes = b.Usuario();
    CHECK(FAILED(b.modulo.Instalar(true, L"user")));
    CompararLineas(b.Usuario(), antes);
    CompararLineas(b.Maquina(), b.maquina);
    RegDeleteTreeW(HKEY_CURRENT_USER, EnClases(obstaculo).c_str());
    RegDeleteTreeW(HKEY_CURRENT_USER, efectos.c_str());
}

TEST_CASE("The root of a user's classes goes again when registering made it, and else stays") {
    const Banco b;
    if (!b.usuario.empty()) {
        MESSAGE("NOT RUN: this user has classes of others");
        return;
    }
    RegDeleteKeyW(HKEY_CURRENT_USER, ClasesDeSoftware);
    REQUIRE_FALSE(Existe(HKEY_CURRENT_USER, ClasesDeSoftware));
    REQUIRE(b.modulo.Instalar(true, L"user") == S_OK);
    CHECK(b.modulo.Instalar(false, L"user") == S_OK);
    CHECK_FALSE(Existe(HKEY_CURRENT_USER, ClasesDeSoftware));
    {
        Clave(HKEY_CURRENT_USER, EnClases(L"CLSID"), true); // somebody's, and empty
        REQUIRE(b.modulo.Instalar(true, L"user") == S_OK);
        CHECK(b.modulo.Instalar(false, L"user") == S_OK);
        CompararLineas(b.Usuario(), {L"clsid"});
    }
    RegDeleteKeyW(HKEY_CURRENT_USER, EnClases(L"CLSID").c_str());
    RegDeleteKeyW(HKEY_CURRENT_USER, ClasesDeSoftware);
}

TEST_CASE("Who may not write for the machine is told so, and may register for himself") {
    const Banco b;
    // Wherever the first refusal comes; a whole hive can't be closed without the system's help.
    std::wstring cual;
    SUBCASE("at the library") {
        cual = ClaveDeVersion();
    }
    SUBCASE("at the last class") {
        cual = ClaveDeClase(L"ProPColoresArea");
    }
    Clave(HKEY_LOCAL_MACHINE, cual, true);
    const Lineas antes = b.Maquina();
    {
        const SoloLectura cerrada(HKEY_LOCAL_MACHINE, cual);
        REQUIRE(cerrada.Vale());
        CHECK(b.modulo.Registrar() == HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED));
        CompararLineas(b.Maquina(), antes);
        CHECK(b.modulo.Instalar(true, L"user") == S_OK);
        CHECK(b.modulo.Instalar(false, L"user") == S_OK);
    }
    CHECK(b.modulo.Registrar() == S_OK);
    CHECK(b.modulo.Desregistrar() == S_OK);
    CompararLineas(b.Maquina(), b.maquina);
}

TEST_CASE("What could not be removed is told, and all the rest goes") {
    const Banco b;
    REQUIRE(b.modulo.Instalar(true, L"user") == S_OK);
    const std::wstring area = ClaveDeClase(L"Area");
    {
        const SoloLectura cerrada(HKEY_CURRENT_USER, area);
        REQUIRE(cerrada.Vale());
        CHECK(b.modulo.Instalar(false, L"user") == HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED));
        CHECK(Existe(HKEY_CURRENT_USER, area + L"\\InprocServer32"));
        CHECK_FALSE(Existe(HKEY_CURRENT_USER, ClaveDeClase(L"Botonazo")));
        CHECK_FALSE(Existe(HKEY_CURRENT_USER, ClaveDeClase(L"ProPColoresArea")));
    }
    CHECK(b.modulo.Instalar(false, L"user") == S_OK);
    CompararLineas(b.Usuario(), b.usuario);
}

TEST_CASE("What a registration left that was cut short goes too") {
    const Banco b;
    REQUIRE(b.modulo.Instalar(true, L"user") == S_OK);
    SUBCASE("after the file of its first class") {
        for (const wchar_t* rama : {L"CLSID", L"Interface"})
            RegDeleteTreeW(HKEY_CURRENT_USER, EnClases(rama).c_str());
        Clave(HKEY_CURRENT_USER, ClaveDeClase(L"Efectos") + L"\\InprocServer32", true)
            .Poner(L"", RutaDelComponente());
        for (const Clase& una : Clases)
            RegDeleteTreeW(HKEY_CURRENT_USER,
                           EnClases(std::wstring(L"Pincela.") + una.nombre).c_str());
    }
    SUBCASE("before the file of a class") {
        RegDeleteTreeW(HKEY_CURRENT_USER, ClaveDeClase(L"Tbox").c_str());
        Clave(HKEY_CURRENT_USER, ClaveDeClase(L"Tbox") + L"\\InprocServer32", true);
    }
    SUBCASE("before the library's file") {
        RegDeleteTreeW(HKEY_CURRENT_USER, ClaveDeVersion().c_str());
        Clave(HKEY_CURRENT_USER, ClaveDeVersion() + L"\\409", true);
    }
    CHECK(b.modulo.Instalar(false, L"user") == S_OK);
    const Lineas quedan = Nuevas(b.Usuario(), b.usuario);
    // Branches made here by hand are nobody's.
    for (const std::wstring& linea : quedan) {
        CAPTURE(Estrechar(linea));
        CHECK((linea == L"clsid" || linea == L"interface" || linea == L"typelib"));
    }
}

TEST_CASE("A component whose path is longer than most programs allow registers and works") {
    const SesionOle ole;
    const Banco b;
    const Copia copia(L"una carpeta cuyo nombre es bastante largo, como los que hay", 5);
    REQUIRE(copia.Archivo().size() >= MAX_PATH);
    {
        const Modulo modulo(copia.ArchivoConPrefijo());
        REQUIRE(modulo.Instalar(true, L"user") == S_OK);
        const Lineas nuevas = Nuevas(b.Usuario(), b.usuario);
        CHECK(std::count_if(nuevas.begin(), nuevas.end(), [&](const std::wstring& linea) {
                  return linea.find(copia.Archivo()) != linea.npos;
              }) == 17);
        anfitrion::Puntero<IClassFactory> fabrica;
        anfitrion::Puntero<IDispatch> boton;
        REQUIRE(modulo.DarClase(Guid(ClaseDe(L"Botonazo").clase), IID_IClassFactory,
                                fabrica.RecibirVoid()) == S_OK);
        REQUIRE(fabrica->CreateInstance(nullptr, IID_IDispatch, boton.RecibirVoid()) == S_OK);
        anfitrion::Puntero<ITypeInfo> tipo;
        CHECK(boton->GetTypeInfo(0, LOCALE_USER_DEFAULT, tipo.Recibir()) == S_OK);
        CHECK(modulo.Instalar(false, L"user") == S_OK);
    }
    CompararLineas(b.Usuario(), b.usuario);
}
