// A form with every control, used over and over as a user and a program use it, for as long as the
// environment variable PINCELA_REMOJO_SEGUNDOS says. What the process holds is told at the start,
// once a minute and at the end, and must not have grown.
#include "anfitrion/bolsa_memoria.h"
#include "pruebas/componente/comun/lamina.h"
#include "pruebas/componente/memoria/fallos.h"
#include "pruebas/componente/paginas/banco.h"
#include "pruebas/componente/persistencia/flujos.h"
#include "pruebas/componente/vivo/banco.h"
#include "pruebas/componente/vivo/recuento.h"

#include <psapi.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace vivo;

namespace {

DWORD Segundos() {
    const char* dicho = std::getenv("PINCELA_REMOJO_SEGUNDOS");
    const int segundos = dicho ? std::atoi(dicho) : 0;
    return static_cast<DWORD>(segundos > 0 ? segundos : 60);
}

struct Cifras {
    long propios = memoria::Fallos::BloquesVivos();
    Monton monton = Memoria();
    int gdi = ObjetosGdi();
    int ventanas = Ventanas();
    SIZE_T privados = Privados();

    static SIZE_T Privados() {
        PROCESS_MEMORY_COUNTERS_EX cuenta{};
        GetProcessMemoryInfo(GetCurrentProcess(),
                             reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&cuenta), sizeof cuenta);
        // Not every platform tells what is private.
        return cuenta.PrivateUsage ? cuenta.PrivateUsage : cuenta.PagefileUsage;
    }
    void Decir(const char* cuando, int vueltas) const {
        std::printf("%-9s %7d turns, component %5ld blocks, heap %6ld blocks %9ld bytes, GDI %4d, "
                    "windows %3d, private %6lu KB\n",
                    cuando, vueltas, propios, monton.bloques, monton.bytes, gdi, ventanas,
                    static_cast<unsigned long>(privados / 1024));
        std::fflush(stdout);
    }
};

/// The form and what is done with it.
class Remojo {
  public:
    Remojo() {
        AbrirOle();
        componente_ = Componente::DeFichero(RutaComponente());
        OpcionesFormulario opciones;
        opciones.ancho = 500;
        opciones.alto = 320;
        forma_ = std::make_unique<Formulario>(opciones);
        area_ = Agregar(L"Pincela.Area", {10, 10, 240, 150});
        for (const wchar_t* clase : {L"Pincela.TBoxML", L"Pincela.TboxSSML"}) // see Renovar
            Agregar(clase, {250, static_cast<LONG>(10 + 70 * fijos_.size()), 450,
                            static_cast<LONG>(70 + 70 * fijos_.size())});
        efectos_ = componente_.Crear(componente_.Clase(L"Pincela.Efectos")).Como<IDispatch>();
    }

    void Vuelta() {
        for (const auto& control : fijos_)
            Usar(*control);
        Renovar();
        Propiedades();
        Degradar();
        forma_->PonerModoUsuario(false);
        forma_->BombearMensajes();
        forma_->PonerModoUsuario(true);
        forma_->Esperar(2);
        ++vuelta_;
    }
    int Vueltas() const { return vuelta_; }

  private:
    std::shared_ptr<ControlAlojado> Agregar(const wchar_t* clase, const RECT& lugar) {
        auto control = forma_->Agregar(componente_, componente_.Clase(clase), clase, lugar);
        Vestir(*control);
        control->Conectar([this](Evento&) { ++sucesos_; });
        fijos_.push_back(control);
        return control;
    }

    /// Another look each turn.
    void Vestir(ControlAlojado& control) const {
        const auto poner = [&](const wchar_t* nombre, const Variante& valor) {
            if (Tiene(control.Despacho(), nombre))
                Poner(control.Despacho(), nombre, valor);
        };
        const std::wstring numero = std::to_wstring(100 + vuelta_ % 60);
        poner(L"Caption", L"&Vuelta " + numero);
        poner(L"Text", L"Texto " + numero);
        poner(L"ToolTipText", L"Globo " + numero);
        poner(L"EstilosRell", static_cast<long>(vuelta_ % 5));
        poner(L"Estilos", static_cast<long>(vuelta_ % 2));
        poner(L"EstilosBord", static_cast<long>(vuelta_ % 5));
        poner(L"TipoLetra", static_cast<long>(vuelta_ % 5));
        poner(L"ColorFondo", static_cast<long>(vuelta_ * 977 % 0xFFFFFF));
        poner(L"ColorFondoSobre", 0xFF00L);
        poner(L"ColorDegrade", vuelta_ % 2 ? L"255*65280*16711680" : L"16777215*0");
        poner(L"CambioProgre", vuelta_ % 3 == 0);
        poner(L"Enabled", vuelta_ % 5 != 0);
    }

    void Raton(HWND ventana, UINT mensaje, WPARAM w = 0) const {
        SendMessageW(ventana, mensaje, w, MAKELPARAM(8, 8));
    }
    void Usar(ControlAlojado& control) {
        const HWND ventana = control.Ventana();
        Vestir(control);
        for (HWND una = ventana; una;
             una = una == ventana ? GetWindow(ventana, GW_CHILD) : nullptr) {
            Raton(una, WM_MOUSEMOVE);
            Raton(una, WM_LBUTTONDOWN, MK_LBUTTON);
            Raton(una, WM_LBUTTONUP);
            for (const WPARAM tecla : {L'a', L'1', L','}) {
                SendMessageW(una, WM_KEYDOWN,
                             static_cast<WPARAM>(VkKeyScanW(static_cast<wchar_t>(tecla)) & 0xFF),
                             1);
                SendMessageW(una, WM_CHAR, tecla, 1);
            }
            Raton(una, WM_MOUSELEAVE);
        }
        const RECT antes = control.Rectangulo();
        const LONG mas = 1 + vuelta_ % 20;
        control.Mover({antes.left, antes.top, antes.right + mas, antes.bottom + mas});
        RedrawWindow(ventana, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        control.Mover(antes);
        Guardar(control);
        forma_->BombearMensajes();
    }
    /// Out to a stream and a bag, and back in.
    void Guardar(ControlAlojado& control) const {
        const auto flujo = publicado::FlujoDe({});
        const auto persistente = control.Como<IPersistStreamInit>();
        Comprobar(persistente->Save(flujo.get(), TRUE), "Save");
        Comprobar(persistente->Load(publicado::FlujoDe(publicado::BytesDe(flujo.get())).get()),
                  "Load");
        const auto bolsa = Hacer<BolsaMemoria>();
        Comprobar(control.Como<IPersistPropertyBag>()->Save(bolsa.get(), TRUE, TRUE), "Save");
        Comprobar(control.Como<IPersistPropertyBag>()->Load(bolsa.get(), nullptr), "Load");
    }
    /// Controls come and go. Not those of many lines: the platform's edit field of that kind loses
    /// some blocks whenever it goes, and what is lost here must be ours.
    void Renovar() {
        static constexpr const wchar_t* clases[] = {L"Pincela.Botonazo", L"Pincela.Tbox",
                                                    L"Pincela.TboxSS", L"Pincela.Area"};
        const wchar_t* clase = clases[vuelta_ % 4];
        auto control = forma_->Agregar(componente_, componente_.Clase(clase), L"Nuevo",
                                       {10, 10, 120, 50}, {}, vuelta_ % 2 ? area_.get() : nullptr);
        control->Conectar([this](Evento&) { ++sucesos_; });
        Usar(*control);
        control->Verbo(OLEIVERB_UIACTIVATE);
        CHECK(forma_->Quitar(*control) == 0);
    }
    void Propiedades() {
        if (vuelta_ % 10 != 0)
            return;
        const paginas::Ventana marco;
        const auto sitio = Hacer<paginas::SitioFalso>();
        const auto pagina =
            componente_.Crear(publicado::Guid(publicado::ClaseDe(L"ProPColoresArea").clase))
                .Como<IPropertyPage>();
        IUnknown* objetos[] = {area_->Despacho()};
        Comprobar(pagina->SetPageSite(sitio.get()), "SetPageSite");
        Comprobar(pagina->SetObjects(1, objetos), "SetObjects");
        const RECT lugar{0, 0, 500, 400};
        Comprobar(pagina->Activate(marco.get(), &lugar, FALSE), "Activate");
        Comprobar(pagina->Show(SW_SHOW), "Show");
        Comprobar(pagina->Apply(), "Apply");
        Comprobar(pagina->Deactivate(), "Deactivate");
        pagina->SetObjects(0, nullptr);
        pagina->SetPageSite(nullptr);
    }
    void Degradar() {
        Llamar(efectos_.get(), L"Degrade",
               {lamina_.Numero(), 100L, 60L, 1 + static_cast<long>(vuelta_ % 4),
                L"255*65280*16711680"});
    }

    Componente componente_;
    std::unique_ptr<Formulario> forma_;
    std::shared_ptr<ControlAlojado> area_;
    std::vector<std::shared_ptr<ControlAlojado>> fijos_;
    Puntero<IDispatch> efectos_;
    publicado::Lamina lamina_{100, 60};
    int vuelta_ = 0;
    long sucesos_ = 0;
};

} // namespace

TEST_CASE("A form used for a long time holds no more at the end than at the start") {
    Remojo remojo;
    static const memoria::Fallos& cuenta = *new memoria::Fallos(GetModuleHandleW(L"Pincela.ocx"));
    REQUIRE(cuenta.Contando());
    // Every look and every page has its turn before anything is counted; later counts are taken at
    // the same place of the round.
    constexpr int Ronda = 60;
    const auto ronda = [&] {
        for (int i = 0; i < Ronda; ++i)
            remojo.Vuelta();
    };
    const ULONGLONG inicio = GetTickCount64(), plazo = ULONGLONG{1000} * Segundos();
    ronda();
    const Cifras antes;
    antes.Decir("start", remojo.Vueltas());
    ULONGLONG siguiente = 60000;
    do {
        ronda();
        const ULONGLONG pasado = GetTickCount64() - inicio;
        if (pasado >= siguiente) {
            char cuando[20];
            std::snprintf(cuando, sizeof cuando, "%d min", static_cast<int>(pasado / 60000));
            Cifras().Decir(cuando, remojo.Vueltas());
            siguiente = (pasado / 60000 + 1) * 60000;
        }
    } while (GetTickCount64() - inicio < plazo);
    const Cifras despues;
    despues.Decir("end", remojo.Vueltas());
    CHECK(despues.propios == antes.propios);
    CHECK(despues.gdi == antes.gdi);
    CHECK(despues.ventanas == antes.ventanas);
    // The platform's caches breathe; a leak in every twentieth turn would be more than this.
    CHECK(despues.monton.bloques - antes.monton.bloques < std::max(20, remojo.Vueltas() / 20));
    CHECK(despues.monton.bytes - antes.monton.bytes < 128L * 1024);
}
