// The wrapper around a font object of the container, with news of its changes.
#pragma once

#include "plataforma/windows/objetos_windows.h"
#include "plataforma/windows/puntero_com.h"

#include <memory>
#include <vector>

namespace pincela::windows {

/// Who draws with a font and wants to know when somebody changes it.
class OyenteFuente {
  public:
    virtual void FuenteCambiada() = 0;

  protected:
    ~OyenteFuente() = default;
};

class AvisoDeFuente;

class FuenteOle final : public ObjetoFuente, public std::enable_shared_from_this<FuenteOle> {
  public:
    explicit FuenteOle(PunteroCom<IFont> fuente);
    ~FuenteOle() override;

    AtributosFuente Atributos() const override;
    bool EsElMismo(const Objeto& otro) const override;
    IFont* fuente() const { return fuente_.get(); }

    /// Neither owned; each listener leaves before it dies. Whoever calls holds the wrapper: the
    /// font object may answer with anything.
    void Escuchar(OyenteFuente& oyente);
    void DejarDeEscuchar(OyenteFuente& oyente);
    void Avisar();

  private:
    void Conectar();

    PunteroCom<IFont> fuente_;
    PunteroCom<IUnknown> identidad_;
    std::vector<OyenteFuente*> oyentes_;
    PunteroCom<IConnectionPoint> punto_;
    PunteroCom<AvisoDeFuente> aviso_;
    DWORD galleta_ = 0;
};

/// Subscribes one listener to whatever font it holds at the moment.
class SuscripcionFuente {
  public:
    explicit SuscripcionFuente(OyenteFuente& oyente) : oyente_(oyente) {}
    SuscripcionFuente(const SuscripcionFuente&) = delete;
    SuscripcionFuente& operator=(const SuscripcionFuente&) = delete;
    ~SuscripcionFuente() { Poner(nullptr); }

    const Fuente& fuente() const { return fuente_; }
    void Poner(Fuente fuente);
    /// Attributes of the font held; the usual ones when there is none.
    AtributosFuente Atributos() const {
        const Fuente fuente = fuente_; // held: its object may have it replaced
        return fuente ? fuente->Atributos() : AtributosFuente{};
    }

  private:
    OyenteFuente& oyente_;
    Fuente fuente_;
};

} // namespace pincela::windows
