// Who lives in an apartment: a form of its own with all kinds of controls, used as a user and a
// program use them. What is seen and read back must be what was put in here, whatever the other
// apartments are doing.
#pragma once

#include "anfitrion/captura.h"
#include "anfitrion/formulario.h"
#include "pruebas/componente/comun/lamina.h"
#include "pruebas/componente/hilos/hilo.h"

#include <array>
#include <random>
#include <span>

namespace hilos {

using namespace anfitrion;

inline constexpr std::array<const wchar_t*, 6> Controles{L"Botonazo", L"Area",   L"Tbox",
                                                         L"TBoxML",   L"TboxSS", L"TboxSSML"};

/// A look of a control that is always the same, with the size that the platform's font objects say
/// they have: making two of them at once, one may come out with the size of the other.
struct Vista {
    Captura imagen;
    LONGLONG puntos;
    friend bool operator==(const Vista&, const Vista&) = default;
};
/// One for each control.
using Vistas = std::vector<Vista>;

class Habitante {
  public:
    /// `numero`, from 0, decides what it does and where its form stands.
    Habitante(unsigned numero, Faltas& faltas);

    Vistas Retratar();
    /// One round over all controls; `modelos` is what they looked like when they were alone.
    void Vuelta(const Vistas& modelos);

  private:
    using Clases = std::span<const wchar_t* const>;

    std::shared_ptr<ControlAlojado> Agregar(const wchar_t* clase);
    void Usar(Clases clases, const Vistas& modelos);
    Vista Retrato(const wchar_t* clase);
    void Vestir(IDispatch* control);
    void Releer(const wchar_t* clase, ControlAlojado& control);
    void Teclear(const wchar_t* clase, ControlAlojado& control);
    void Guardar(const wchar_t* clase, ControlAlojado& control);
    void Manosear(ControlAlojado& control);
    void Degradar();
    long Menor(long tope) { return static_cast<long>(azar_() % static_cast<unsigned long>(tope)); }
    void Exigir(bool cierto, const std::string& que);

    std::mt19937 azar_;
    Faltas& faltas_;
    Componente componente_;
    Formulario forma_;
    Puntero<IDispatch> efectos_;
    publicado::Lamina lamina_, esperada_;
    long vuelta_ = 0;
    std::wstring propio_; // a text that no other apartment has
};

} // namespace hilos
