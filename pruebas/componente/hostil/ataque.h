// One case of the attacker: an ordinary container goes through the life of a control, and at one of
// the calls it gets from it does something that no container should do.
//
// Everything follows from two numbers, the seed and the number of the case.
#pragma once

#include "anfitrion/componente.h"
#include "anfitrion/variante.h"

#include <ocidl.h>
#include <olectl.h>

#include <cstring>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace hostil {

using namespace anfitrion;

class Azar {
  public:
    explicit Azar(unsigned semilla) : motor_(semilla) {}
    /// From 0 to `tope` - 1.
    int Menor(int tope) { return static_cast<int>(motor_() % static_cast<unsigned>(tope)); }
    bool Una(int deCada) { return Menor(deCada) == 0; }
    long Entero();
    template <class T, std::size_t N>
    const T& De(const T (&lista)[N]) {
        return lista[Menor(static_cast<int>(N))];
    }

  private:
    std::mt19937 motor_;
};

/// What is done to the control in the middle of one of its calls.
enum class Accion {
    Cerrar,
    CerrarGuardando,
    Soltar,
    QuitarSitio,
    Desactivar,
    DesactivarInterfaz,
    Desconectar,
    Asignar,
    Verbo,
    Guardar,
    Cargar,
    CargarBolsa,
    Fallar,
    CallarNulo,
    CallarBasura,
    DestruirPadre,
    DestruirVentana,
    Bombear,
    CambiarDePadre,
    MensajesDeMuerte,
    Salir,
    Mover,
    OtroSitio,
    Enfocar,
    Ambiente,
    Congelar,
    Desmontar,
    ActivarDeprisa,
    Dibujar,
    Fuente,
    Esconder,
    DestruirHijas,
    Pagina,
    Cuantas
};
const char* Nombre(Accion accion);

/// What a callback of the container leaves in its out-parameters when it lies.
enum class Mentira {
    Nula,   ///< nothing, said to be a success
    Basura, ///< numbers that make no sense, said to be a success
    Veneno, ///< a failure with a pointer to nowhere beside it
};

template <class T>
void Mentir(T** p, Mentira como) {
    if (p)
        *p =
            como == Mentira::Veneno ? reinterpret_cast<T*>(static_cast<UINT_PTR>(0xDEAD)) : nullptr;
}
template <class T>
void Mentir(T* p, Mentira como) {
    if (p)
        std::memset(static_cast<void*>(p), como == Mentira::Nula ? 0 : 0xCC, sizeof *p);
}
/// A window of nobody's.
inline void Mentir(HWND* p, Mentira como) {
    if (p)
        *p =
            como == Mentira::Nula ? nullptr : reinterpret_cast<HWND>(static_cast<UINT_PTR>(0xDEAC));
}
void Mentir(VARIANT* p, Mentira como);

/// Which call is answered how.
struct Emboscada {
    const char* donde = nullptr; ///< the callback's name; null for any
    int cuando = 1;              ///< the how-manieth such call
    bool siempre = false;        ///< and each one that follows
    Accion accion = Accion::Cerrar;
    HRESULT estado = E_FAIL;
    int vistas = 0;
};

/// How often each action was taken in each callback.
using Cobertura = std::map<std::string, int>;

class Ataque {
  public:
    Ataque(const Componente& componente, unsigned semilla, unsigned caso);
    Ataque(const Ataque&) = delete;
    Ataque& operator=(const Ataque&) = delete;
    ~Ataque();

    /// With these acts instead of those that chance has chosen.
    void Tender(std::vector<Emboscada> emboscadas) { emboscadas_ = std::move(emboscadas); }
    void Correr();
    /// In one line.
    std::string Descripcion() const;

    /// The case of this thread; null between cases.
    static Ataque* El();

    /// Called by every callback of every partner. `mentira(Mentira)` fills the out-parameters.
    template <class H, class M>
    HRESULT Responder(const char* donde, H&& honesta, M&& mentira) {
        HRESULT estado = S_OK;
        Mentira como{};
        if (!Tropezar(donde, estado, como))
            return honesta();
        mentira(como);
        return estado;
    }

    // The partners' common state.
    HWND padre = nullptr;
    HWND otra = nullptr; ///< another window of the container
    RECT lugar{10, 10, 130, 60};
    Puntero<IOleInPlaceActiveObject> activo[2]; ///< as the frame and the document know it
    Puntero<IPropertyNotifySink> oyenteDeFuente;
    Azar azar;
    Cobertura cobertura;

  private:
    /// True when the call is to be answered with `estado` and a lie.
    bool Tropezar(const char* donde, HRESULT& estado, Mentira& como);
    void Emboscar();
    void Hacer(Accion accion);

    // The control, seen without holding it: it may go inside any call.
    template <class I>
    I* Ver() {
        I* interfaz = nullptr;
        if (objeto_ &&
            SUCCEEDED(objeto_->QueryInterface(__uuidof(I), reinterpret_cast<void**>(&interfaz))))
            interfaz->Release();
        return interfaz;
    }
    template <class I, class F>
    void Con(F f) {
        if (I* interfaz = Ver<I>())
            f(*interfaz);
    }
    HWND Ventana();

    void Nacer();
    void Paso();
    void Morir();

    void Conectar();
    void Desconectar();
    void SoltarTodo();
    void Asignar();
    void Leer();
    void Guardar();
    void Cargar();
    void Verbo();
    void Mover();
    void Dibujar();
    void Mensajes();
    void Bombear();
    void ActivarDeprisa();
    void PasoDePagina();
    Variante Valor();

    const Componente& componente_;
    const unsigned semilla_, caso_;
    const wchar_t* clase_ = L"";
    std::vector<Emboscada> emboscadas_;
    int dentro_ = 0;

    Puntero<IUnknown> objeto_;
    Puntero<IPropertyPage> pagina_;
    Puntero<IOleClientSite> sitio_, otroSitio_;
    Puntero<IDispatch> eventos_;
    Puntero<IPropertyNotifySink> avisos_;
    Puntero<IAdviseSink> vista_;
    DWORD deEventos_ = 0, deAvisos_ = 0, deOle_ = 0, deDatos_ = 0;
    std::vector<unsigned char> guardado_;
    std::vector<HWND> enganadas_; ///< windows that were told of an end that was none
};

/// Partners of this thread that somebody still holds.
long SociosVivos();

// The partners, see socios.cpp.
Puntero<IOleClientSite> HacerSitio();
Puntero<IDispatch> HacerEventos();
Puntero<IPropertyNotifySink> HacerAvisos();
Puntero<IAdviseSink> HacerVista();
Puntero<IPropertyBag> HacerBolsa();
Puntero<IErrorLog> HacerDiario();
Puntero<IStream> HacerFlujo(std::vector<unsigned char>& bytes);
Puntero<IStorage> HacerAlmacen(std::vector<unsigned char>& bytes);
Puntero<IDispatch> HacerFuente();
Puntero<IDispatch> HacerImagen();
Puntero<IPropertyPageSite> HacerSitioDePagina();

} // namespace hostil
