#include "anfitrion/formulario_texto.h"

#include "anfitrion/bolsa_memoria.h"
#include "anfitrion/unidades.h"
#include "anfitrion/valor_texto.h"

#include <algorithm>
#include <optional>

namespace anfitrion {

ErrorDeFormulario::ErrorDeFormulario(int enLinea, std::wstring que)
    : std::runtime_error("línea " + std::to_string(enLinea) + ": " + Estrechar(que)),
      linea(enLinea), texto(L"Línea " + std::to_wstring(enLinea) + L": " + que) {}

std::wstring ClaseDe(IUnknown* objeto) {
    const auto info = Puntero<IUnknown>(objeto).Como<IProvideClassInfo>();
    Puntero<ITypeInfo> tipo;
    Puntero<ITypeLib> biblioteca;
    UINT lugar = 0;
    Cadena nombre, dueno;
    if (!info || FAILED(info->GetClassInfo(tipo.Recibir())) ||
        FAILED(tipo->GetContainingTypeLib(biblioteca.Recibir(), &lugar)) ||
        FAILED(tipo->GetDocumentation(MEMBERID_NIL, nombre.Recibir(), nullptr, nullptr, nullptr)) ||
        FAILED(
            biblioteca->GetDocumentation(MEMBERID_NIL, dueno.Recibir(), nullptr, nullptr, nullptr)))
        return L"?";
    return dueno.Texto() + L"." + nombre.Texto();
}

namespace {

/// One control as the text has it, with what stands on it.
struct Bloque {
    int linea;
    std::wstring clase, nombre;
    RECT lugar;
    Puntero<BolsaMemoria> bolsa;
    std::vector<Bloque> dentro;
    CLSID identificador{};
};

struct Documento {
    std::optional<SIZE> medida; ///< of the form, in pixels of this screen
    std::vector<Bloque> bloques;
};

class Lector {
  public:
    explicit Lector(std::wstring_view texto) : resto_(texto) {}

    Documento Leer() {
        Documento documento;
        int puntos = 0;
        while (Siguiente()) {
            if (!documento.medida && documento.bloques.empty() && EmpiezaPor(L"Formulario"))
                documento.medida = LeerCabecera(puntos);
            else
                documento.bloques.push_back(LeerBloque());
        }
        if (const int aqui = PuntosPorPulgada(); puntos && puntos != aqui) {
            const auto escala = [&](LONG medida) { return MulDiv(medida, aqui, puntos); };
            *documento.medida = {escala(documento.medida->cx), escala(documento.medida->cy)};
            Escalar(documento.bloques, escala);
        }
        return documento;
    }

  private:
    [[noreturn]] void Fallar(const std::wstring& que) const {
        throw ErrorDeFormulario(linea_, que);
    }

    template <class Escala>
    static void Escalar(std::vector<Bloque>& bloques, const Escala& escala) {
        for (Bloque& bloque : bloques) {
            RECT& r = bloque.lugar;
            r = {escala(r.left), escala(r.top), escala(r.right), escala(r.bottom)};
            Escalar(bloque.dentro, escala);
        }
    }

    /// The next line with something on it, without blanks around it.
    bool Siguiente() {
        while (!resto_.empty()) {
            const std::size_t fin = std::min(resto_.find(L'\n'), resto_.size());
            renglon_ = resto_.substr(0, fin);
            resto_.remove_prefix(std::min(fin + 1, resto_.size()));
            ++linea_;
            const std::size_t primero = renglon_.find_first_not_of(L" \t\r\xFEFF");
            if (primero == std::wstring_view::npos || renglon_[primero] == L'\'')
                continue;
            renglon_ = renglon_.substr(primero, renglon_.find_last_not_of(L" \t\r") + 1 - primero);
            return true;
        }
        return false;
    }

    bool EmpiezaPor(std::wstring_view palabra) const {
        return renglon_.substr(0, renglon_.find(L' ')) == palabra;
    }

    std::wstring Palabra() {
        const std::size_t fin = std::min(renglon_.find(L' '), renglon_.size());
        const std::wstring palabra(renglon_.substr(0, fin));
        renglon_.remove_prefix(std::min(fin + 1, renglon_.size()));
        if (palabra.empty())
            Fallar(L"falta una palabra");
        return palabra;
    }

    LONG Medida() {
        double medida = 0;
        try {
            medida = LeerNumero(Palabra());
        } catch (const ErrorDeValor& error) {
            Fallar(error.texto);
        }
        if (!(medida >= -32768 && medida <= 32767))
            Fallar(L"la medida está fuera de rango");
        return static_cast<LONG>(medida);
    }

    SIZE LeerCabecera(int& puntos) {
        Palabra();
        const SIZE medida{Medida(), Medida()};
        puntos = Medida();
        if (medida.cx < 1 || medida.cy < 1 || puntos < 1)
            Fallar(L"la medida está fuera de rango");
        return medida;
    }

    Bloque LeerBloque() {
        Bloque bloque{linea_, {}, {}, {}, Hacer<BolsaMemoria>(), {}};
        bloque.clase = Palabra();
        bloque.nombre = Palabra();
        bloque.lugar.left = Medida();
        bloque.lugar.top = Medida();
        bloque.lugar.right = bloque.lugar.left + Medida();
        bloque.lugar.bottom = bloque.lugar.top + Medida();
        if (++honda_ > HonduraMaxima)
            Fallar(L"hay demasiados controles unos dentro de otros");
        while (Siguiente()) {
            if (renglon_ == L"Fin") {
                --honda_;
                return bloque;
            }
            // A key is one word; a control's line has a name in its place.
            const std::size_t igual = renglon_.find(L" = ");
            if (igual != std::wstring_view::npos && igual == renglon_.find(L' '))
                LeerPar(bloque, igual);
            else if (std::count(renglon_.begin(), renglon_.end(), L' ') == 5)
                bloque.dentro.push_back(LeerBloque());
            else
                Fallar(L"se espera «clave = valor», un control o «Fin»");
        }
        Fallar(L"falta «Fin»");
    }

    void LeerPar(const Bloque& bloque, std::size_t igual) const {
        try {
            bloque.bolsa->Poner(std::wstring(renglon_.substr(0, igual)),
                                LeerValor(renglon_.substr(igual + 3)));
        } catch (const ErrorDeValor& error) {
            Fallar(error.texto);
        }
    }

    static constexpr int HonduraMaxima = 32;

    std::wstring_view resto_, renglon_;
    int linea_ = 0;
    int honda_ = 0;
};

bool MismoNombre(const std::wstring& a, const std::wstring& b) {
    return lstrcmpiW(a.c_str(), b.c_str()) == 0;
}

/// Class identifiers, and names that are told once.
void Resolver(std::vector<Bloque>& bloques, const Componente& componente,
              std::vector<std::wstring>& nombres) {
    for (Bloque& bloque : bloques) {
        if (std::any_of(nombres.begin(), nombres.end(),
                        [&](const auto& uno) { return MismoNombre(uno, bloque.nombre); }))
            throw ErrorDeFormulario(bloque.linea, L"el nombre está repetido: " + bloque.nombre);
        nombres.push_back(bloque.nombre);
        try {
            bloque.identificador = componente.Clase(bloque.clase);
        } catch (const FalloCom&) {
            throw ErrorDeFormulario(bloque.linea, L"no se conoce la clase " + bloque.clase);
        }
        Resolver(bloque.dentro, componente, nombres);
    }
}

Documento Entender(std::wstring_view texto, const Componente& componente) {
    Documento documento = Lector(texto).Leer();
    std::vector<std::wstring> nombres;
    Resolver(documento.bloques, componente, nombres);
    return documento;
}

std::wstring EscribirPares(const BolsaMemoria& bolsa, const std::wstring& sangria) {
    std::wstring texto;
    for (const auto& [clave, valor] : bolsa.Valores())
        if (const std::wstring escrito = EscribirValor(valor); !escrito.empty())
            texto += sangria + clave + L" = " + escrito + L"\r\n";
    return texto;
}

/// What a control saves of itself; empty when it can't.
Puntero<BolsaMemoria> Guardado(const ControlAlojado& control) {
    const auto guardable = control.Como<IPersistPropertyBag>();
    auto bolsa = Hacer<BolsaMemoria>();
    if (!guardable || FAILED(guardable->Save(bolsa.get(), FALSE, FALSE)))
        return {};
    return bolsa;
}

void Escribir(const ControlAlojado& control, const std::wstring& sangria, std::wstring& texto) {
    const auto bolsa = Guardado(control);
    if (!bolsa)
        return;
    const RECT r = control.Rectangulo();
    texto += sangria + ClaseDe(control.Objeto()) + L" " + control.Nombre();
    for (const LONG medida : {r.left, r.top, Ancho(r), Alto(r)})
        texto += L" " + std::to_wstring(medida);
    texto += L"\r\n" + EscribirPares(*bolsa.get(), sangria + L"  ");
    for (const auto& otro : control.Forma().ControlesEn(&control))
        Escribir(*otro, sangria + L"  ", texto);
    texto += sangria + L"Fin\r\n";
}

/// Brings the controls of a form in line with those of a text.
class Conciliador {
  public:
    Conciliador(Formulario& forma, const Componente& componente)
        : forma_(forma), componente_(componente) {}

    void Conciliar(const Documento& documento) {
        if (documento.medida)
            forma_.PonerMedida(*documento.medida);
        Nombrar(documento.bloques);
        for (const auto& control : std::vector(forma_.Controles()))
            if (control->Abierto() &&
                std::none_of(nombrados_.begin(), nombrados_.end(), [&](const auto& nombre) {
                    return MismoNombre(nombre, control->Nombre());
                }))
                forma_.Quitar(*control);
        Poner(documento.bloques, nullptr);
        forma_.Ordenar(orden_);
    }

  private:
    void Nombrar(const std::vector<Bloque>& bloques) {
        for (const Bloque& bloque : bloques) {
            nombrados_.push_back(bloque.nombre);
            Nombrar(bloque.dentro);
        }
    }

    void Poner(const std::vector<Bloque>& bloques, ControlAlojado* dentro) {
        for (const Bloque& bloque : bloques) {
            auto control = forma_.Control(bloque.nombre);
            if (control &&
                (ClaseDe(control->Objeto()) != bloque.clase || control->Dentro().get() != dentro)) {
                forma_.Quitar(*control);
                control.reset();
            }
            if (control)
                Cambiar(*control, bloque);
            else
                control = forma_.Agregar(componente_, bloque.identificador, bloque.nombre,
                                         bloque.lugar, {.bolsa = bloque.bolsa.get()}, dentro);
            orden_.push_back(control);
            Poner(bloque.dentro, control.get());
        }
    }

    void Cambiar(ControlAlojado& control, const Bloque& bloque) const {
        control.PonerNombre(bloque.nombre);
        if (!EqualRect(&control.Rectangulo(), &bloque.lugar))
            control.Mover(bloque.lugar);
        const auto guardado = Guardado(control);
        if (guardado &&
            EscribirPares(*guardado.get(), {}) == EscribirPares(*bloque.bolsa.get(), {}))
            return;
        Comprobar(control.Como<IPersistPropertyBag>()->Load(bloque.bolsa.get(), nullptr),
                  "IPersistPropertyBag::Load");
    }

    Formulario& forma_;
    const Componente& componente_;
    std::vector<std::wstring> nombrados_;
    std::vector<std::shared_ptr<ControlAlojado>> orden_;
};

void Agregar(Formulario& forma, const Componente& componente, const std::vector<Bloque>& bloques,
             ControlAlojado* dentro, std::vector<std::shared_ptr<ControlAlojado>>& nuevos) {
    for (const Bloque& bloque : bloques) {
        const auto control =
            forma.Agregar(componente, bloque.identificador, forma.NombreLibre(bloque.nombre),
                          bloque.lugar, {.bolsa = bloque.bolsa.get()}, dentro);
        nuevos.push_back(control);
        std::vector<std::shared_ptr<ControlAlojado>> interiores;
        Agregar(forma, componente, bloque.dentro, control.get(), interiores);
    }
}

} // namespace

std::wstring EscribirFormulario(const Formulario& forma) {
    const SIZE medida = forma.Medida();
    return L"Formulario " + std::to_wstring(medida.cx) + L" " + std::to_wstring(medida.cy) + L" " +
           std::to_wstring(PuntosPorPulgada()) + L"\r\n" +
           EscribirControles(forma.ControlesEn(nullptr));
}

std::wstring EscribirControles(const std::vector<std::shared_ptr<ControlAlojado>>& controles) {
    std::wstring texto;
    for (const auto& control : controles)
        Escribir(*control, {}, texto);
    return texto;
}

void LeerFormulario(Formulario& forma, const Componente& componente, std::wstring_view texto) {
    const Documento documento = Entender(texto, componente);
    const std::wstring antes = EscribirFormulario(forma);
    try {
        Conciliador(forma, componente).Conciliar(documento);
    } catch (const FalloCom&) {
        Conciliador(forma, componente).Conciliar(Entender(antes, componente));
        throw;
    }
}

std::vector<std::shared_ptr<ControlAlojado>> AgregarControles(Formulario& forma,
                                                              const Componente& componente,
                                                              std::wstring_view texto,
                                                              ControlAlojado* dentro) {
    const Documento documento = Entender(texto, componente);
    std::vector<std::shared_ptr<ControlAlojado>> nuevos;
    try {
        Agregar(forma, componente, documento.bloques, dentro, nuevos);
    } catch (const FalloCom&) {
        for (const auto& control : nuevos)
            forma.Quitar(*control);
        throw;
    }
    return nuevos;
}

} // namespace anfitrion
