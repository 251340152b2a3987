#include "componente/errores_com.h"

#include "componente/com.h"

#include <new>
#include <string>

namespace pincela::componente {

HRESULT SinErrorInfo(HRESULT estado) noexcept {
    SetErrorInfo(0, nullptr);
    return estado;
}

void DejarErrorInfo(REFIID interfaz, const wchar_t* clase, NumeroError numero) noexcept {
    SetErrorInfo(0, nullptr);
    try {
        Ptr<ICreateErrorInfo> creador;
        if (FAILED(CreateErrorInfo(creador.Recibir())))
            return;
        std::wstring origen = std::wstring(NombreDeLaBiblioteca) + L"." + clase;
        Texto descripcion = DescripcionDe(numero);
        creador->SetGUID(interfaz);
        creador->SetSource(origen.data());
        creador->SetDescription(reinterpret_cast<wchar_t*>(descripcion.data()));
        if (auto info = Ptr<IErrorInfo>::De(creador.get()))
            SetErrorInfo(0, info.get());
    } catch (...) {
        // The status alone has to do.
    }
}

HRESULT EstadoDeLaExcepcion(REFIID interfaz, const wchar_t* clase) noexcept {
    try {
        throw;
    } catch (const ErrorEjecucion& error) {
        DejarErrorInfo(interfaz, clase, error.Numero());
        return EstadoDe(error.Numero());
    } catch (const FalloCom& fallo) {
        return SinErrorInfo(fallo.estado);
    } catch (const std::bad_alloc&) {
        return SinErrorInfo(E_OUTOFMEMORY);
    } catch (...) {
        return SinErrorInfo(E_UNEXPECTED);
    }
}

} // namespace pincela::componente
