// Binding: who is asked and told when the text changes.
#include "pruebas/cada.h"
#include "pruebas/componente/cajas/banco.h"

using namespace cajas;
using pincela::pruebas::Cada;

namespace {

/// A container that binds the text.
struct BancoLigado : BancoDeCaja {
    explicit BancoLigado(const wchar_t* clase) : BancoDeCaja(clase) {
        boton->Notificaciones().alPedirCambio = [this](DISPID numero) {
            pedidos.push_back(numero);
            return permite;
        };
        boton->Notificaciones().alCambiar = [this](DISPID numero) { cambios.push_back(numero); };
        Enfocar();
        cambios.clear();
    }
    bool permite = true;
    std::vector<DISPID> pedidos, cambios;
    using Lista = std::vector<DISPID>;
};

const wchar_t* CadaSimple() {
    return Cada({L"Pincela.TboxSS", L"Pincela.TboxSSML"});
}

} // namespace

TEST_CASE("What the user does to a bound text is asked and told, each time") {
    BancoLigado b(CadaSimple());
    SendMessageW(b.Campo(), WM_CHAR, 'a', 1);
    CHECK(b.pedidos == BancoLigado::Lista{DISPID_VALUE});
    CHECK(b.cambios == BancoLigado::Lista{DISPID_VALUE});
    SendMessageW(b.Campo(), WM_CHAR, VK_BACK, 1);
    CHECK(b.pedidos.size() == 2);
    CHECK(b.cambios.size() == 2);
    CHECK(b.Text() == L"");
    SendMessageW(b.Campo(), EM_UNDO, 0, 0);
    CHECK(b.pedidos.size() == 3);
}

TEST_CASE("A container that refuses keeps the text as it is") {
    BancoLigado b(CadaSimple());
    b.Poner(L"Text", L"abc");
    b.Olvidar();
    b.cambios.clear();
    b.permite = false;
    SendMessageW(b.Campo(), EM_SETSEL, 0, 2);
    for (const WPARAM letra : {WPARAM{'x'}, WPARAM{VK_BACK}})
        SendMessageW(b.Campo(), WM_CHAR, letra, 1);
    SendMessageW(b.Campo(), WM_KEYDOWN, VK_DELETE, 1);
    SendMessageW(b.Campo(), WM_CUT, 0, 0);
    SendMessageW(b.Campo(), WM_CLEAR, 0, 0);
    SendMessageW(b.Campo(), WM_PASTE, 0, 0);
    CHECK(b.Text() == L"abc");
    CHECK(b.cambios.empty());
    CHECK(b.Veces("Change") == 0);
    CHECK(b.pedidos.size() == 7); // with the assignment
    b.permite = true;
    SendMessageW(b.Campo(), WM_CHAR, 'x', 1);
    CHECK(b.Text() == L"xc");
}

TEST_CASE("An assignment that the container refuses fails, and one it allows is told once") {
    BancoLigado b(CadaSimple());
    b.Poner(L"Text", L"abc");
    CHECK(b.pedidos == BancoLigado::Lista{DISPID_VALUE});
    CHECK(b.cambios == BancoLigado::Lista{DISPID_VALUE});
    b.permite = false;
    try {
        b.Poner(L"Text", L"def");
        FAIL("no error");
    } catch (const FalloCom& fallo) {
        CHECK(fallo.estado == static_cast<HRESULT>(0x800A0046));
        CHECK(fallo.descripcion == L"Permiso denegado");
    }
    CHECK(b.Text() == L"abc");
}

TEST_CASE("A locked field asks nobody, because nothing changes") {
    BancoLigado b(CadaSimple());
    b.Poner(L"Tranca", true);
    b.pedidos.clear();
    SendMessageW(b.Campo(), WM_CHAR, 'a', 1);
    CHECK(b.pedidos.empty());
    CHECK(b.Text() == L"");
}

TEST_CASE("A dropped character is not asked for") {
    BancoLigado b(CadaSimple());
    b.Poner(L"TipoTexto", 2L);
    SendMessageW(b.Campo(), WM_CHAR, 'a', 1);
    CHECK(b.pedidos.empty());
    SendMessageW(b.Campo(), WM_CHAR, '7', 1);
    CHECK(b.pedidos.size() == 1);
}

TEST_CASE("The labelled pair is not bound: nobody is asked, and only assignments are told") {
    BancoLigado b(Cada({L"Pincela.Tbox", L"Pincela.TBoxML"}));
    SendMessageW(b.Campo(), WM_CHAR, 'a', 1);
    CHECK(b.pedidos.empty());
    CHECK(b.cambios.empty());
    CHECK(b.Veces("Change") == 1);
    b.Poner(L"Text", L"x");
    CHECK(b.pedidos.empty());
    CHECK(b.cambios == BancoLigado::Lista{DISPID_VALUE});
}

TEST_CASE("What was typed is kept when the container saves") {
    BancoLigado b(CadaSimple());
    CHECK(b.boton->Como<IPersistStreamInit>()->IsDirty() == S_OK); // new, never saved
    Puntero<IStream> flujo;
    REQUIRE(CreateStreamOnHGlobal(nullptr, TRUE, flujo.Recibir()) == S_OK);
    REQUIRE(b.boton->Como<IPersistStreamInit>()->Save(flujo.get(), TRUE) == S_OK);
    CHECK(b.boton->Como<IPersistStreamInit>()->IsDirty() == S_FALSE);
    SendMessageW(b.Campo(), WM_CHAR, 'a', 1);
    CHECK(b.boton->Como<IPersistStreamInit>()->IsDirty() == S_OK);
}
