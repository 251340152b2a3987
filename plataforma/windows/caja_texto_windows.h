// Edit field: the platform's edit window, and what it holds while there is no window.
#pragma once

#include "plataforma/windows/apartamento.h"
#include "plataforma/windows/campo_edicion.h"
#include "plataforma/windows/nucleo.h"
#include "plataforma/windows/objetos_fuente.h"

namespace pincela::windows {

class CajaTextoWindows final : public CajaTexto,
                               public CampoEdicion,
                               public ElementoVisual,
                               private OyenteFuente {
  public:
    CajaTextoWindows(Nucleo& nucleo, bool multilinea);
    ~CajaTextoWindows();

    // CajaTexto: text and selection
    Texto Text() const override;
    void PonText(const Texto& texto) override;
    std::int32_t SelStart() const override;
    void PonSelStart(std::int32_t inicio) override;
    std::int32_t SelLength() const override;
    void PonSelLength(std::int32_t largo) override;
    Texto SelText() const override;
    std::int32_t MaxLength() const override { return maximo_; }
    void PonMaxLength(std::int32_t largo) override;

    // CajaTexto: looks
    std::int32_t Alignment() const override { return alineacion_; }
    void PonAlignment(std::int32_t alineacion) override;
    std::int32_t Appearance() const override { return apariencia_; }
    void PonAppearance(std::int32_t apariencia) override;
    bool Locked() const override { return bloqueada_; }
    void PonLocked(bool valor) override;
    bool Enabled() const override { return habilitada_; }
    void PonEnabled(bool valor) override;
    Fuente Font() const override { return fuente_.fuente(); }
    void PonFont(const Fuente& fuente) override;
    Color ForeColor() const override { return colorLetra_; }
    void PonForeColor(Color color) override;
    Color BackColor() const override { return colorFondo_; }
    void PonBackColor(Color color) override;
    Texto ToolTipText() const override { return globo_; }
    void PonToolTipText(const Texto& texto) override { globo_ = texto; }
    void PonNombreAccesible(const Texto& nombre) override;

    void Move(float izquierda, float arriba, float ancho, float alto) override;
    Manejador hWnd() override { return reinterpret_cast<Manejador>(ventana_); }
    void SetFocus() override;
    bool EsActivo() const override { return ventana_ && ::GetFocus() == ventana_; }
    void PonOyente(OyenteEdicion* oyente) override { oyente_ = oyente; }

    // CampoEdicion
    void CrearVentana() override;
    void SoltarVentana() override;
    HWND ventana() const override { return ventana_; }
    bool Habilitado() const override { return habilitada_; }
    Texto NombreAccesible() const override { return anotada_ ? Texto() : nombre_; }
    void Orden(WORD codigo) override;
    HBRUSH Colorear(HDC dc) override;

    // ElementoVisual
    void Dibujar(const Destino& destino) const override;
    void PppCambiado() override;
    Zona Lugar() const override { return lugar_; }
    Texto Globo() const override { return globo_; }

  private:
    static LRESULT CALLBACK Procedimiento(HWND ventana, UINT mensaje, WPARAM w, LPARAM l, UINT_PTR,
                                          DWORD_PTR yo) noexcept;
    LRESULT Recibir(UINT mensaje, WPARAM w, LPARAM l) noexcept;
    /// True when the message ends here; `w` may have changed for the platform's own handling.
    bool Procesar(UINT mensaje, WPARAM& w, LPARAM l, LRESULT& resultado);
    bool ProcesarFoco(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado);
    bool ProcesarTecla(UINT mensaje, WPARAM& w);
    bool CambiaElTexto(UINT mensaje, WPARAM w, LPARAM l) const;
    void InsertarTabulador();
    LRESULT CodigoDeDialogo(LPARAM l) const;
    /// False when the message is not for the platform's field.
    bool ProcesarRaton(UINT mensaje, WPARAM w, LPARAM l);
    template <class Accion>
    bool Decir(Accion&& accion);

    void FuenteCambiada() override;
    RefFuenteGdi FuenteDeVentana() const;
    void PonFuenteEnVentana(RefFuenteGdi nueva);
    void Repintar();
    void Rehacer();
    void Nombrar();
    void DesplazarHasta(LRESULT primera);
    void DibujarBarra(const Destino& destino, RECT& campo) const;
    void Seleccionar(std::int32_t inicio, std::int32_t largo);
    RECT Rectangulo() const;
    DWORD Estilo() const;

    Nucleo& nucleo_;
    const bool multilinea_;
    OyenteEdicion* oyente_ = nullptr;
    std::shared_ptr<const void> vida_ = std::make_shared<char>();

    HWND ventana_ = nullptr;
    bool callada_ = false;  // changes of ours are not the user's
    bool editando_ = false; // the listener has agreed to the change that is being made
    bool directo_ = false;  // what arrives was told already, in the window before this one
    bool anotada_ = false;  // the platform keeps the field's name
    bool izquierdoAbajo_ = false;
    bool focoDicho_ = false; // the listener was told that the field has the focus

    // What the field holds while it has no window.
    Texto texto_;
    std::int32_t inicio_ = 0, largo_ = 0;
    // Selection asked for before the text it needs.
    std::int32_t inicioPedido_ = -1, largoPedido_ = -1;

    std::int32_t maximo_ = 0;
    std::int32_t alineacion_ = 0;
    std::int32_t apariencia_ = 1;
    bool bloqueada_ = false, habilitada_ = true;
    SuscripcionFuente fuente_;
    RefFuenteGdi manija_;
    Color colorLetra_ = TextoDeVentana, colorFondo_ = FondoDeVentana;
    DuenoPincel pincel_;
    COLORREF colorPincel_ = CLR_INVALID;
    Texto globo_, nombre_;
    Zona lugar_;
};

} // namespace pincela::windows
