// Streams that hand out and take a few bytes at a time.
#include "anfitrion/imagenes.h"
#include "pruebas/componente/hostil/banco.h"
#include "pruebas/componente/memoria/apuros.h"
#include "pruebas/componente/persistencia/flujos.h"

#include <algorithm>

using namespace hostil;

namespace {

/// At most so many bytes in each call; says S_OK or, as some do, S_FALSE when it gave fewer.
class Cuentagotas final : public ObjetoCom<IStream> {
  public:
    Cuentagotas(std::vector<unsigned char>& bytes, ULONG tope, HRESULT siFaltan)
        : bytes_(bytes), tope_(tope), siFaltan_(siFaltan) {}

    HRESULT STDMETHODCALLTYPE Read(void* a, ULONG n, ULONG* leidos) override {
        const ULONG hay = static_cast<ULONG>(bytes_.size() - lugar_);
        *leidos = std::min({n, hay, tope_});
        std::memcpy(a, bytes_.data() + lugar_, *leidos);
        lugar_ += *leidos;
        return *leidos == n ? S_OK : siFaltan_;
    }
    HRESULT STDMETHODCALLTYPE Write(const void* de, ULONG n, ULONG* escritos) override {
        *escritos = std::min(n, tope_);
        const auto* p = static_cast<const unsigned char*>(de);
        bytes_.insert(bytes_.end(), p, p + *escritos);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Seek(LARGE_INTEGER, DWORD, ULARGE_INTEGER*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetSize(ULARGE_INTEGER) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*,
                                     ULARGE_INTEGER*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Revert() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Clone(IStream**) override { return E_NOTIMPL; }

  private:
    std::vector<unsigned char>& bytes_;
    ULONG tope_;
    HRESULT siFaltan_;
    std::size_t lugar_ = 0;
};

/// A storage of that one stream.
class AlmacenGota final : public ObjetoCom<IStorage> {
  public:
    explicit AlmacenGota(Puntero<IStream> flujo) : flujo_(std::move(flujo)) {}
    HRESULT STDMETHODCALLTYPE CreateStream(LPCOLESTR, DWORD, DWORD, DWORD, IStream** s) override {
        return *s = Puntero<IStream>(flujo_).Separar(), S_OK;
    }
    HRESULT STDMETHODCALLTYPE OpenStream(LPCOLESTR, void*, DWORD, DWORD, IStream** s) override {
        return *s = Puntero<IStream>(flujo_).Separar(), S_OK;
    }
    HRESULT STDMETHODCALLTYPE CreateStorage(LPCOLESTR, DWORD, DWORD, DWORD, IStorage**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE OpenStorage(LPCOLESTR, IStorage*, DWORD, SNB, DWORD,
                                          IStorage**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CopyTo(DWORD, const IID*, SNB, IStorage*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE MoveElementTo(LPCOLESTR, IStorage*, LPCOLESTR, DWORD) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Revert() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnumElements(DWORD, void*, DWORD, IEnumSTATSTG**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE DestroyElement(LPCOLESTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE RenameElement(LPCOLESTR, LPCOLESTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetElementTimes(LPCOLESTR, const FILETIME*, const FILETIME*,
                                              const FILETIME*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetClass(REFCLSID) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetStateBits(DWORD, DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }

  private:
    Puntero<IStream> flujo_;
};

using Bytes = std::vector<unsigned char>;

Bytes Guardado(const Puntero<IUnknown>& control) {
    const auto flujo = publicado::FlujoDe({});
    REQUIRE(control.Como<IPersistStreamInit>()->Save(flujo.get(), FALSE) == S_OK);
    return publicado::BytesDe(flujo.get());
}

} // namespace

TEST_CASE("A stream of a few bytes at a time carries the same control") {
    const wchar_t* clase = CadaControl();
    INFO(Estrechar(clase));
    const Banco b;
    const auto uno = b.Nuevo(clase);
    memoria::Adornar(uno.Como<IDispatch>().get());
    const Bytes buenos = Guardado(uno);
    // What one stream makes of it, whole.
    const auto entero = b.Nuevo(clase);
    REQUIRE(entero.Como<IPersistStreamInit>()->Load(publicado::FlujoDe(buenos).get()) == S_OK);
    const Bytes esperados = Guardado(entero);
    for (const ULONG tope : {1u, 2u, 3u, 7u, 16u, 17u, 100u, 4096u})
        for (const HRESULT siFaltan : {S_OK, S_FALSE})
            for (const bool almacen : {false, true}) {
                CAPTURE(tope);
                CAPTURE(siFaltan);
                CAPTURE(almacen);
                Bytes gotas;
                const auto escrito = Hacer<Cuentagotas>(gotas, tope, siFaltan);
                CHECK((almacen
                           ? uno.Como<IPersistStorage>()->Save(
                                 Hacer<AlmacenGota>(escrito.Como<IStream>()).get(), TRUE)
                           : uno.Como<IPersistStreamInit>()->Save(escrito.get(), FALSE)) == S_OK);
                CHECK((gotas == buenos));
                Bytes copia = buenos;
                const auto leido = Hacer<Cuentagotas>(copia, tope, siFaltan);
                const auto otro = b.Nuevo(clase);
                CHECK((almacen ? otro.Como<IPersistStorage>()->Load(
                                     Hacer<AlmacenGota>(leido.Como<IStream>()).get())
                               : otro.Como<IPersistStreamInit>()->Load(leido.get())) == S_OK);
                CHECK((Guardado(otro) == esperados));
            }
}
