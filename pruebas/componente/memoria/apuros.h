// One action after another, each refused in turn everything it asks for.
#pragma once

#include "pruebas/componente/memoria/fallos.h"
#include "pruebas/componente/vivo/banco.h"
#include "pruebas/componente/vivo/recuento.h"

#include <functional>
#include <string>

namespace memoria {

using namespace anfitrion;

/// Which requests of one attempt are refused.
struct Negativa {
    Escasez que = Escasez::Memoria;
    bool todos = false; ///< all from the n-th on, as on a machine that has run out for good
};

/// Every kind of refusal, one after the other.
template <class F>
void ConCadaNegativa(F f) {
    for (const Negativa& una :
         {Negativa{Escasez::Memoria, false}, Negativa{Escasez::Memoria, true},
          Negativa{Escasez::Manijas, false}, Negativa{Escasez::Manijas, true}})
        f(una);
}

/// The part of an action during which requests are refused: runs what it is given and answers its
/// status.
using Intento = std::function<HRESULT(const std::function<HRESULT()>&)>;

/// Runs the action without refusals, then with the first request refused, the second and so on
/// until one run needs no more. Each refused attempt ends in success or in a clean status; after
/// each run the module holds as much as before: blocks, drawing objects, windows. The action makes
/// what it needs, hands what is to be tried to its argument, once, and takes everything down again.
/// `perdidos` is how many blocks of its own the platform may lose in a run.
void Apurar(const std::string& que, const Negativa& negativa,
            const std::function<void(const Intento&)>& accion, int perdidos = 0);
/// The platform's edit field of many lines loses some whenever it goes.
int PerdidosDe(const wchar_t* control);

/// The component under refusals and a form to put controls on. Kept until the program ends.
class Mesa {
  public:
    static Mesa& La();

    Componente componente;
    std::unique_ptr<Formulario> forma;

    Puntero<IUnknown> Crear(const wchar_t* clase) {
        return componente.Crear(componente.Clase(clase));
    }

  private:
    Mesa();
    Fallos fallos_;
};

/// The six controls.
inline constexpr const wchar_t* Controles[] = {L"Pincela.Botonazo", L"Pincela.Area",
                                               L"Pincela.Tbox",     L"Pincela.TBoxML",
                                               L"Pincela.TboxSS",   L"Pincela.TboxSSML"};

/// Gives a control something of everything that it can show and keep.
void Adornar(IDispatch* objeto);

} // namespace memoria
