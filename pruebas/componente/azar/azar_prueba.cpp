// Random sequences of what containers, users and files do to a control: whatever comes, the answer
// is a status, and nothing is left behind.
#include "anfitrion/bolsa_memoria.h"
#include "anfitrion/imagenes.h"
#include "anfitrion/tardio.h"
#include "pruebas/cada.h"
#include "pruebas/componente/memoria/fallos.h"
#include "pruebas/componente/persistencia/flujos.h"
#include "pruebas/componente/vivo/banco.h"
#include "pruebas/componente/vivo/recuento.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <random>
#include <utility>

using namespace vivo;

namespace {

constexpr int Sucesiones = SUCESIONES; ///< over all six controls
constexpr int PorControl = 50;         ///< sequences before it is replaced by a new one

class Azar {
  public:
    explicit Azar(unsigned semilla) : motor_(semilla) {}
    /// From 0 to `tope` - 1.
    int Menor(int tope) { return static_cast<int>(motor_() % static_cast<unsigned>(tope)); }
    bool Una(int deCada) { return Menor(deCada) == 0; }
    unsigned Bits() { return static_cast<unsigned>(motor_()); }

    /// Small numbers and extremes more often than others.
    long Entero() {
        switch (Menor(6)) {
        case 0:
            return std::numeric_limits<long>::min();
        case 1:
            return std::numeric_limits<long>::max();
        case 2:
            return static_cast<long>(Bits());
        case 3:
            return Menor(65536) - 32768;
        default:
            return Menor(12) - 1;
        }
    }

    std::wstring Texto() {
        static const wchar_t* const textos[] = {
            L"",    L"&Aceptar",      L"16777215*0", L"255*65280*16711680",          L"**",
            L"1*x", L"99999999999*1", L"12,5",       L"\xD83D\xDE00\xDC00 \r\n\t&&&"};
        if (Una(50))
            return std::wstring(static_cast<std::size_t>(Menor(20000)), L'w');
        return textos[Menor(std::size(textos))];
    }

    Variante Valor() {
        switch (Menor(12)) {
        case 0:
            return Texto();
        case 1:
            return Una(2);
        case 2:
            return static_cast<short>(Entero());
        case 3:
            return static_cast<float>(Entero());
        case 4:
            return std::numeric_limits<double>::infinity();
        case 5:
            return static_cast<IDispatch*>(nullptr);
        case 6:
            return static_cast<IDispatch*>(CrearFuente(L"Arial", 6 + Menor(30), Una(2)).get());
        case 7: {
            Variante nulo;
            nulo.vt = Una(2) ? VT_NULL : VT_EMPTY;
            return nulo;
        }
        default:
            return Entero();
        }
    }

  private:
    std::mt19937 motor_;
};

/// A bag that fails in every way that there is, for some keys, and gives and takes the others.
class BolsaAdversa : public ObjetoCom<IPropertyBag> {
  public:
    BolsaAdversa(Azar& azar, Puntero<BolsaMemoria> buena) : azar_(azar), buena_(std::move(buena)) {}

    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR clave, VARIANT* valor, IErrorLog* errores) override {
        const HRESULT estado = Suerte();
        return estado == S_OK ? buena_->Read(clave, valor, errores) : estado;
    }
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR clave, VARIANT* valor) override {
        const HRESULT estado = Suerte();
        return estado == S_OK ? buena_->Write(clave, valor) : estado;
    }

  private:
    HRESULT Suerte() {
        static constexpr HRESULT errores[] = {
            E_FAIL,           E_INVALIDARG, E_OUTOFMEMORY,      E_ACCESSDENIED,
            STG_E_MEDIUMFULL, S_FALSE,      DISP_E_TYPEMISMATCH};
        return azar_.Una(15) ? errores[azar_.Menor(std::size(errores))] : S_OK;
    }

    Azar& azar_;
    Puntero<BolsaMemoria> buena_;
};

/// Numbers of everything that can be called on the class.
std::vector<DISPID> Miembros(IDispatch* objeto) {
    std::vector<DISPID> numeros;
    Puntero<ITypeInfo> tipo;
    Comprobar(objeto->GetTypeInfo(0, 0, tipo.Recibir()), "GetTypeInfo");
    TYPEATTR* rasgos = nullptr;
    Comprobar(tipo->GetTypeAttr(&rasgos), "GetTypeAttr");
    for (UINT i = 0; i < rasgos->cFuncs; ++i) {
        FUNCDESC* funcion = nullptr;
        if (FAILED(tipo->GetFuncDesc(i, &funcion)))
            continue;
        numeros.push_back(funcion->memid);
        tipo->ReleaseFuncDesc(funcion);
    }
    tipo->ReleaseTypeAttr(rasgos);
    return numeros;
}

/// One control in the hands of chance.
class Victima {
  public:
    Victima(Azar& azar, const wchar_t* clase)
        : azar_(azar), b_({}, clase), numeros_(Miembros(b_.boton->Despacho())) {
        b_.alOcurrir = [this](Evento&) { AlOcurrir(); };
    }

    void Sucesion() {
        for (int paso = 1 + azar_.Menor(5); paso > 0 && b_.boton->Abierto(); --paso) {
            try {
                Paso();
            } catch (const FalloCom&) { // a status, as it should be; anything else ends the test
            }
        }
        b_.forma->BombearMensajes();
        b_.Olvidar();
    }

  private:
    /// Handlers of events use the control that raised them, and lie about how it went.
    void AlOcurrir() {
        if (dentro_ || !azar_.Una(20) || !b_.boton || !b_.boton->Abierto())
            return;
        dentro_ = true;
        try {
            Asignar();
        } catch (const FalloCom&) {
        }
        dentro_ = false;
    }
    void Paso() {
        switch (azar_.Menor(13)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return Asignar();
        case 4:
            return Leer();
        case 5:
            return Mover();
        case 6:
            return Mensajes();
        case 7:
            return GuardarYCargar();
        case 8:
            return CargarBolsa();
        case 9:
            return Dibujar();
        case 10:
            return Activar();
        case 11:
            return Adversa();
        default:
            b_.forma->PonerModoUsuario(azar_.Una(2));
        }
    }

    DISPID Miembro() {
        return azar_.Una(40) ? static_cast<DISPID>(azar_.Entero())
                             : numeros_[static_cast<std::size_t>(
                                   azar_.Menor(static_cast<int>(numeros_.size())))];
    }
    void Asignar() {
        const Variante valor = azar_.Valor();
        Invocar(b_.boton->Despacho(), Miembro(),
                azar_.Una(4) ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT, {valor});
    }
    void Leer() { Invocar(b_.boton->Despacho(), Miembro(), DISPATCH_PROPERTYGET); }
    void Mover() {
        const LONG ancho = azar_.Una(8) ? 0 : azar_.Menor(300),
                   alto = azar_.Una(8) ? 0 : azar_.Menor(200);
        b_.boton->Mover({10, 10, 10 + ancho, 10 + alto});
    }
    void Mensajes() {
        // No right button going up: the field's menu waits for somebody to choose.
        static constexpr UINT mensajes[] = {
            WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP,      WM_RBUTTONDOWN,    WM_MBUTTONUP,
            WM_KEYDOWN,   WM_KEYUP,       WM_CHAR,           WM_MOUSELEAVE,     WM_SETFOCUS,
            WM_KILLFOCUS, WM_PAINT,       WM_SYSCOLORCHANGE, WM_CAPTURECHANGED, WM_CANCELMODE};
        const UINT mensaje = mensajes[azar_.Menor(std::size(mensajes))];
        const bool tecla = mensaje >= WM_KEYFIRST && mensaje <= WM_KEYLAST;
        static constexpr WPARAM teclas[] = {VK_SPACE, VK_RETURN, 'A', VK_DELETE,
                                            '.',      ',',       '7', VK_BACK};
        const HWND foco = GetFocus();
        const HWND ventana =
            foco && IsChild(b_.Ventana(), foco) && azar_.Una(2) ? foco : b_.Ventana();
        if (ventana)
            SendMessageW(ventana, mensaje, tecla ? teclas[azar_.Menor(8)] : 0,
                         tecla || mensaje < WM_MOUSEFIRST
                             ? 0
                             : MAKELPARAM(azar_.Menor(200), azar_.Menor(80)));
    }
    void GuardarYCargar() {
        const auto guardable = b_.boton->Como<IPersistStreamInit>();
        const auto flujo = publicado::FlujoDe({});
        if (FAILED(guardable->Save(flujo.get(), TRUE)))
            return;
        publicado::BytesDeFlujo bytes = publicado::BytesDe(flujo.get());
        for (int golpes = azar_.Menor(4); golpes > 0 && !bytes.empty(); --golpes) {
            const std::size_t lugar = azar_.Bits() % bytes.size();
            if (azar_.Una(3))
                bytes.resize(lugar);
            else
                bytes[lugar] = static_cast<unsigned char>(azar_.Bits());
        }
        guardable->Load(publicado::FlujoDe(bytes).get());
    }
    void CargarBolsa() {
        const auto guardable = b_.boton->Como<IPersistPropertyBag>();
        const auto bolsa = Hacer<BolsaMemoria>();
        if (FAILED(guardable->Save(bolsa.get(), TRUE, TRUE)))
            return;
        const auto otra = Hacer<BolsaMemoria>();
        for (const auto& [clave, valor] : bolsa->Valores())
            if (!azar_.Una(5))
                otra->Poner(clave, azar_.Una(4) ? azar_.Valor() : valor);
        otra->hostilidad = static_cast<Hostilidad>(azar_.Menor(5));
        guardable->Load(otra.get(), nullptr);
    }
    void Adversa() {
        const auto guardable = b_.boton->Como<IPersistPropertyBag>();
        const auto buena = Hacer<BolsaMemoria>();
        const auto mala = Hacer<BolsaAdversa>(azar_, buena);
        guardable->Save(mala.get(), azar_.Una(2), TRUE);
        guardable->Load(mala.get(), nullptr);
    }
    void Dibujar() {
        const HDC hdc = CreateCompatibleDC(nullptr);
        const HBITMAP mapa = CreateBitmap(60, 40, 1, 32, nullptr);
        const HGDIOBJ antes = SelectObject(hdc, mapa);
        const RECTL lugar{azar_.Menor(20), azar_.Menor(20), azar_.Menor(60), azar_.Menor(40)};
        b_.boton->Como<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, hdc,
                                            &lugar, nullptr, nullptr, 0);
        SelectObject(hdc, antes);
        DeleteObject(mapa);
        DeleteDC(hdc);
    }
    void Activar() {
        static constexpr LONG verbos[] = {OLEIVERB_UIACTIVATE, OLEIVERB_INPLACEACTIVATE,
                                          OLEIVERB_HIDE, OLEIVERB_SHOW};
        b_.boton->Verbo(verbos[azar_.Menor(std::size(verbos))]);
    }

    Azar& azar_;
    Banco b_;
    std::vector<DISPID> numeros_;
    bool dentro_ = false;
};

void Maltratar(Azar& azar, int sucesiones, const wchar_t* clase) {
    for (int hechas = 0; hechas < sucesiones; hechas += PorControl) {
        Victima victima(azar, clase);
        for (int i = 0; i < PorControl; ++i)
            victima.Sucesion();
    }
}

} // namespace

TEST_CASE("Random sequences end in statuses and leave nothing behind") {
    const wchar_t* clase =
        pincela::pruebas::Cada({L"Pincela.Botonazo", L"Pincela.Area", L"Pincela.Tbox",
                                L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"});
    // The file stays loaded, as it does in a program.
    AbrirOle();
    static const Componente& componente = *new Componente(Componente::DeFichero(RutaComponente()));
    static const memoria::Fallos& cuenta = *new memoria::Fallos(GetModuleHandleW(L"Pincela.ocx"));
    REQUIRE((componente.PuedeDescargarse() && cuenta.Contando()));
    Azar azar(20261121);
    Maltratar(azar, std::min(10 * PorControl, Sucesiones / 6), clase);
    const int gdi = ObjetosGdi(), ventanas = Ventanas();
    const long propios = memoria::Fallos::BloquesVivos();
    const Monton monton = Memoria();
    Maltratar(azar, Sucesiones / 6, clase);
    const Monton despues = Memoria();
    std::printf("%s: GDI %d -> %d, windows %d -> %d, blocks of the component %ld -> %ld, of all "
                "%ld -> %ld\n",
                Estrechar(clase).c_str(), gdi, ObjetosGdi(), ventanas, Ventanas(), propios,
                memoria::Fallos::BloquesVivos(), monton.bloques, despues.bloques);
    // The platform keeps a few device contexts and patterns once it has needed them all at a time,
    // which may be late: what a control leaves behind is left again each time.
    int antes = gdi, ahora = ObjetosGdi();
    for (int vez = 0; ahora > antes && vez < 4; ++vez) {
        Maltratar(azar, Sucesiones / 6, clase);
        antes = std::exchange(ahora, ObjetosGdi());
        std::printf("%s: GDI once more %d -> %d\n", Estrechar(clase).c_str(), antes, ahora);
    }
    CHECK(ahora <= antes);
    CHECK(Ventanas() == ventanas);
    CHECK(memoria::Fallos::BloquesVivos() == propios);
    // What goes to others is theirs to free. The platform's own caches of fonts and classes
    // breathe, and its edit field of many lines loses some blocks whenever it goes.
    if (!std::wstring_view(clase).ends_with(L"ML"))
        CHECK(despues.bloques - monton.bloques < std::max(50, Sucesiones / 6 / PorControl));
}
