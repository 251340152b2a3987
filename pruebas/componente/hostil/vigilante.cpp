#include "pruebas/componente/hostil/vigilante.h"

#include "pruebas/componente/hostil/ataque.h"
#include "pruebas/componente/memoria/fallos.h"
#include "pruebas/componente/vivo/banco.h"
#include "pruebas/componente/vivo/recuento.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <set>

namespace hostil {

namespace {

constexpr const wchar_t* Variable = L"PINCELA_ATAQUE_HIJO";
constexpr DWORD PlazoDeCaso = 120000; // a busy machine is no hang
constexpr int CodigoDeFuga = 7;

/// What both processes see.
struct Tablero {
    volatile unsigned caso; ///< the one that is running
    volatile LONG vueltas;  ///< grows while there is life
    volatile LONG terminado;
    char que[1500]; ///< why the process ended
};

class Compartido {
  public:
    Compartido(const wchar_t* nombre, bool nuevo)
        : h_(nuevo ? CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                        sizeof(Tablero), nombre)
                   : OpenFileMappingW(FILE_MAP_ALL_ACCESS, FALSE, nombre)),
          tablero_(static_cast<Tablero*>(
              h_ ? MapViewOfFile(h_, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(Tablero)) : nullptr)) {}
    Compartido(const Compartido&) = delete;
    Compartido& operator=(const Compartido&) = delete;
    ~Compartido() {
        if (tablero_)
            UnmapViewOfFile(tablero_);
        if (h_)
            CloseHandle(h_);
    }
    Tablero* operator->() const { return tablero_; }
    Tablero& operator*() const { return *tablero_; }

  private:
    HANDLE h_;
    Tablero* tablero_;
};

// The other process

Tablero* tablero = nullptr;

template <class... A>
void Apuntar(const char* formato, A... a) {
    std::snprintf(tablero->que, sizeof tablero->que, formato, a...);
}

std::string DescripcionDelCaso() {
    return Ataque::El() ? Ataque::El()->Descripcion() : "between two cases";
}

/// By its place in the file, where the symbols are looked up.
std::string Lugar(const void* donde) {
    HMODULE modulo = nullptr;
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            static_cast<LPCWSTR>(donde), &modulo))
        return "no module at all";
    char fichero[MAX_PATH] = "", texto[MAX_PATH + 40];
    GetModuleFileNameA(modulo, fichero, MAX_PATH);
    const char* nombre = std::strrchr(fichero, '\\');
    std::snprintf(texto, sizeof texto, "%s+0x%llx", nombre ? nombre + 1 : fichero,
                  static_cast<unsigned long long>(static_cast<const char*>(donde) -
                                                  reinterpret_cast<const char*>(modulo)));
    return texto;
}

[[noreturn]] void Caido(const EXCEPTION_POINTERS& que) {
    const EXCEPTION_RECORD& r = *que.ExceptionRecord;
#ifdef _WIN64
    const auto* pila = reinterpret_cast<void* const*>(que.ContextRecord->Rsp);
#else
    const auto* pila =
        reinterpret_cast<void* const*>(static_cast<UINT_PTR>(que.ContextRecord->Esp));
#endif
    // What on the stack points into the component tells the way there, more or less.
    std::string camino;
    const HMODULE componente = GetModuleHandleW(L"Pincela.ocx");
    for (int i = 0, vistos = 0; i < 400 && vistos < 12; ++i) {
        HMODULE modulo = nullptr;
        if (IsBadReadPtr(pila + i, sizeof *pila))
            break;
        if (GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                   GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                               static_cast<LPCWSTR>(pila[i]), &modulo) &&
            modulo == componente) {
            camino += " " + Lugar(pila[i]).substr(11);
            ++vistos;
        }
    }
    Apuntar("exception %08lX in %s, by%s (%s)", r.ExceptionCode, Lugar(r.ExceptionAddress).c_str(),
            camino.c_str(), DescripcionDelCaso().c_str());
    TerminateProcess(GetCurrentProcess(), 5);
    std::abort();
}

bool EsGrave(DWORD codigo) {
    return codigo == EXCEPTION_ACCESS_VIOLATION || codigo == EXCEPTION_ILLEGAL_INSTRUCTION ||
           codigo == EXCEPTION_PRIV_INSTRUCTION || codigo == EXCEPTION_INT_DIVIDE_BY_ZERO ||
           codigo == EXCEPTION_STACK_OVERFLOW;
}

// The platform swallows what happens inside a window procedure: whoever is at fault is seen here,
// first. Elsewhere the platform tries addresses and is used to their being bad.
LONG WINAPI AlOcurrir(EXCEPTION_POINTERS* que) {
    const void* donde = que->ExceptionRecord->ExceptionAddress;
    HMODULE modulo = nullptr;
    const bool enModulo = GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                                 GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                                             static_cast<LPCWSTR>(donde), &modulo);
    if (EsGrave(que->ExceptionRecord->ExceptionCode) &&
        (!enModulo || modulo == GetModuleHandleW(L"Pincela.ocx")))
        Caido(*que);
    return EXCEPTION_CONTINUE_SEARCH;
}
LONG WINAPI SinDuenio(EXCEPTION_POINTERS* que) {
    Caido(*que);
}

using Cuentas = std::map<std::string, int>;

/// One case, and what it leaves behind; empty when that is nothing.
std::string Correr(const Componente& componente, const Encargo& e, unsigned caso,
                   Cuentas& cobertura) {
    InterlockedIncrement(&tablero->vueltas);
    const int ventanas = vivo::Ventanas();
    std::string descripcion;
    {
        Ataque ataque(componente, e.semilla, caso);
        ataque.Correr();
        descripcion = ataque.Descripcion();
        for (const auto& [par, veces] : ataque.cobertura)
            cobertura[par] += veces;
    }
    if (e.relato)
        std::printf("case %u: %s\n", caso, descripcion.c_str());
    std::string quejas;
    if (SociosVivos() > 0)
        quejas += "; holds " + std::to_string(SociosVivos()) + " of the container's objects";
    if (e.hilos == 1 && !componente.PuedeDescargarse())
        quejas += "; objects of the component are left";
    if (const int mas = vivo::Ventanas() - ventanas; mas > 0)
        quejas += "; " + std::to_string(mas) + " windows more";
    return quejas.empty() ? quejas : quejas.substr(2) + " (" + descripcion + ")";
}

/// What is kept for good is kept once; what is lost is lost again, each time.
template <class Contar>
bool SePierde(Contar contar, const std::function<void()>& otraVez) {
    for (int vez = 0; vez < 3; ++vez) {
        const long antes = contar();
        otraVez();
        if (contar() <= antes)
            return false;
    }
    return true;
}

/// Live drawing objects of each kind.
std::map<DWORD, int> ObjetosPorClase() {
    std::map<DWORD, int> clases;
    for (unsigned i = 1; i < 0x10000; ++i)
        ++clases[GetObjectType(reinterpret_cast<HGDIOBJ>(static_cast<UINT_PTR>(i)))];
    clases.erase(0);
    return clases;
}
std::string Diferencia(const std::map<DWORD, int>& antes) {
    std::string texto;
    for (const auto& [clase, cuantos] : ObjetosPorClase())
        if (const auto uno = antes.find(clase); uno == antes.end() || uno->second != cuantos)
            texto += " kind " + std::to_string(clase) + ": " +
                     std::to_string(cuantos - (uno == antes.end() ? 0 : uno->second));
    return texto;
}

class Ejecutor {
  public:
    explicit Ejecutor(const Encargo& e) : e_(e) {
        vivo::AbrirOle();
        // The file stays loaded, as it does in a program.
        static const Componente& abierto =
            *new Componente(Componente::DeFichero(vivo::RutaComponente()));
        componente_ = &abierto;
        if (e.hilos == 1) {
            static const memoria::Fallos& cuenta =
                *new memoria::Fallos(GetModuleHandleW(L"Pincela.ocx"));
            if (!cuenta.Contando())
                std::abort();
            memoria::Fallos::Envenenar(400);
        }
    }

    int UnHilo() {
        Cuentas calentar;
        for (unsigned caso = 0; caso < 60; ++caso) { // the platform's caches, and our own
            tablero->caso = e_.desde;
            Correr(*componente_, e_, 4000000000u + caso, calentar);
        }
        int gdi = vivo::ObjetosGdi();
        constexpr unsigned Tanda = 16;
        for (unsigned caso = e_.desde; caso < e_.hasta; ++caso) {
            tablero->caso = caso;
            const long bloques = memoria::Fallos::BloquesVivos();
            if (const auto quejas = Correr(*componente_, e_, caso, cobertura_); !quejas.empty())
                return Fuga(caso, quejas);
            if (memoria::Fallos::BloquesVivos() > bloques &&
                SePierde(&memoria::Fallos::BloquesVivos, [&] { Repetir(caso, caso + 1); }))
                return Fuga(caso, "blocks of the component are lost");
            const bool fin = caso + 1 == e_.hasta;
            if (!fin && (caso - e_.desde + 1) % Tanda)
                continue;
            const unsigned primero = caso + 1 - std::min(Tanda, caso + 1 - e_.desde);
            if (vivo::ObjetosGdi() > gdi &&
                SePierde(&vivo::ObjetosGdi, [&] { Repetir(primero, caso + 1); }))
                for (unsigned c = primero; c <= caso; ++c) {
                    const auto antes = ObjetosPorClase();
                    if (SePierde(&vivo::ObjetosGdi, [&] { Repetir(c, c + 1); }))
                        return Fuga(c, "drawing objects are lost:" + Diferencia(antes));
                }
            gdi = std::max(gdi, vivo::ObjetosGdi());
            Contar();
        }
        return 0;
    }

    int Hilos() {
        std::vector<HANDLE> hilos;
        for (unsigned i = 0; i < e_.hilos; ++i) {
            auto* mio = new std::pair<Ejecutor*, unsigned>(this, i);
            hilos.push_back(CreateThread(nullptr, 0, &Ejecutor::EmpezarHilo, mio, 0, nullptr));
        }
        int codigo = 0;
        for (const HANDLE hilo : hilos) {
            WaitForSingleObject(hilo, INFINITE);
            DWORD suyo = 0;
            GetExitCodeThread(hilo, &suyo);
            codigo = std::max(codigo, static_cast<int>(suyo));
            CloseHandle(hilo);
        }
        return codigo;
    }

  private:
    static DWORD WINAPI EmpezarHilo(void* p) {
        const std::unique_ptr<std::pair<Ejecutor*, unsigned>> par(
            static_cast<std::pair<Ejecutor*, unsigned>*>(p));
        return par->first->Hilo(par->second);
    }

    DWORD Hilo(unsigned cual) {
        OleInitialize(nullptr);
        int codigo = 0;
        Cuentas cobertura;
        for (unsigned caso = e_.desde + cual; caso < e_.hasta && !codigo; caso += e_.hilos) {
            tablero->caso = caso;
            if (const auto quejas = Correr(*componente_, e_, caso, cobertura); !quejas.empty())
                codigo = Fuga(caso, quejas);
        }
        OleUninitialize();
        return static_cast<DWORD>(codigo);
    }
    void Repetir(unsigned desde, unsigned hasta) {
        Cuentas repetida;
        for (unsigned caso = desde; caso < hasta; ++caso)
            Correr(*componente_, e_, caso, repetida);
    }
    int Fuga(unsigned caso, const std::string& quejas) {
        tablero->caso = caso;
        Apuntar("%s", quejas.c_str());
        Contar();
        return CodigoDeFuga;
    }
    void Contar() {
        for (const auto& [par, veces] : cobertura_)
            std::printf("+%s=%d\n", par.c_str(), veces);
        std::fflush(stdout);
        cobertura_.clear();
    }

    Encargo e_;
    const Componente* componente_;
    Cuentas cobertura_;
};

// The process that watches

struct Proceso {
    HANDLE salida = INVALID_HANDLE_VALUE;
    wchar_t ruta[MAX_PATH] = L"";
    PROCESS_INFORMATION info{};

    explicit Proceso(const std::wstring& nombre, const Encargo& e) {
        SECURITY_ATTRIBUTES heredable{sizeof heredable, nullptr, TRUE};
        wchar_t carpeta[MAX_PATH], programa[MAX_PATH], pedido[200];
        GetTempPathW(MAX_PATH, carpeta);
        GetTempFileNameW(carpeta, L"ata", 0, ruta);
        salida = CreateFileW(ruta, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                             &heredable, CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY, nullptr);
        swprintf(pedido, 200, L"%ls %u %u %u %u %d", nombre.c_str(), e.semilla, e.desde, e.hasta,
                 e.hilos, e.relato);
        SetEnvironmentVariableW(Variable, pedido);
        GetModuleFileNameW(nullptr, programa, MAX_PATH);
        std::wstring orden = L"\"" + std::wstring(programa) + L"\" -ns -tc=\"";
        for (const char* c = CasoDelHijo; *c; ++c)
            orden += static_cast<wchar_t>(*c);
        orden += L"\"";
        STARTUPINFOW inicio{};
        inicio.cb = sizeof inicio;
        inicio.dwFlags = STARTF_USESTDHANDLES;
        inicio.hStdOutput = inicio.hStdError = salida;
        CreateProcessW(nullptr, orden.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                       nullptr, &inicio, &info);
    }
    Proceso(const Proceso&) = delete;
    Proceso& operator=(const Proceso&) = delete;
    ~Proceso() {
        CloseHandle(info.hProcess);
        CloseHandle(info.hThread);
        CloseHandle(salida);
        DeleteFileW(ruta);
    }

    /// False when it had to be stopped.
    bool Esperar(const Tablero& t) const {
        LONG vueltas = t.vueltas;
        DWORD quieto = 0;
        constexpr DWORD Paso = 200;
        while (WaitForSingleObject(info.hProcess, Paso) == WAIT_TIMEOUT) {
            quieto = t.vueltas == vueltas ? quieto + Paso : 0;
            vueltas = t.vueltas;
            if (quieto >= PlazoDeCaso) {
                TerminateProcess(info.hProcess, 9);
                WaitForSingleObject(info.hProcess, 5000);
                return false;
            }
        }
        return true;
    }
    std::string Texto() const {
        std::string texto;
        SetFilePointer(salida, 0, nullptr, FILE_BEGIN);
        char trozo[4096];
        for (DWORD leidos = 0; ReadFile(salida, trozo, sizeof trozo, &leidos, nullptr) && leidos;)
            texto.append(trozo, leidos);
        return texto;
    }
};

/// Adds up what the other process told of its acts; the rest of its words are shown.
void Sumar(const std::string& texto, bool mostrar, Cuentas& cuentas) {
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t fin = std::min(texto.find('\n', i), texto.size());
        const std::string linea = texto.substr(i, fin - i);
        i = fin + 1;
        if (const std::size_t igual = linea.rfind('='); linea[0] == '+' && igual < linea.size())
            cuentas[linea.substr(1, igual - 1)] += std::atoi(linea.c_str() + igual + 1);
        else if (mostrar)
            std::printf("%s\n", linea.c_str());
    }
}

} // namespace

Informe Vigilar(const Encargo& encargo) {
    Informe informe;
    Cuentas cuentas;
    const std::wstring nombre = L"PincelaAtaque" + std::to_wstring(GetCurrentProcessId());
    const Compartido compartido(nombre.c_str(), true);
    Encargo resto = encargo;
    constexpr unsigned PorProceso = 2000;
    while (resto.desde < encargo.hasta) {
        resto.hasta = std::min(encargo.hasta, resto.desde + PorProceso);
        std::memset(&*compartido, 0, sizeof(Tablero));
        compartido->caso = resto.desde;
        const Proceso proceso(nombre, resto);
        const bool aTiempo = proceso.Esperar(*compartido);
        ++informe.procesos;
        Sumar(proceso.Texto(), encargo.relato, cuentas);
        if (compartido->terminado) {
            resto.desde = resto.hasta;
            continue;
        }
        DWORD codigo = 0;
        GetExitCodeProcess(proceso.info.hProcess, &codigo);
        const unsigned caso = compartido->caso;
        informe.fallos.push_back(
            "seed " + std::to_string(encargo.semilla) + ", case " + std::to_string(caso) + ": " +
            (aTiempo ? codigo == CodigoDeFuga ? "leak: " : "crash: " : "hang: ") +
            (compartido->que[0] ? compartido->que : "exit code " + std::to_string(codigo)));
        std::printf("%s\n", informe.fallos.back().c_str());
        std::fflush(stdout);
        if (caso + 1 <= resto.desde && compartido->vueltas == 0)
            break; // it does not even start
        resto.desde = caso + 1;
    }
    informe.casos = resto.desde - encargo.desde;
    informe.distintas = cuentas.size();
    for (const auto& [par, veces] : cuentas)
        informe.emboscadas += static_cast<unsigned>(veces);
    return informe;
}

int Ejecutar() {
    wchar_t pedido[200] = L"", nombre[100] = L"";
    GetEnvironmentVariableW(Variable, pedido, 200);
    Encargo e;
    int relato = 0;
    if (swscanf(pedido, L"%99ls %u %u %u %u %d", nombre, &e.semilla, &e.desde, &e.hasta, &e.hilos,
                &relato) != 6)
        return 1;
    e.relato = relato != 0;
    const Compartido compartido(nombre, false);
    tablero = &*compartido;
    AddVectoredExceptionHandler(1, &AlOcurrir);
    SetUnhandledExceptionFilter(&SinDuenio);
    std::set_terminate([] {
        Apuntar("an exception got out (%s)", DescripcionDelCaso().c_str());
        TerminateProcess(GetCurrentProcess(), 6);
    });
    Ejecutor ejecutor(e);
    const int codigo = e.hilos > 1 ? ejecutor.Hilos() : ejecutor.UnHilo();
    compartido->terminado = codigo == 0;
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(codigo)); // nothing of it is wanted
    return codigo;
}

} // namespace hostil
