// IOleControl and the ambient properties of the container.
#include "componente/control/objeto_control.h"
#include "componente/control/tardio.h"

#include <vector>

namespace pincela::componente {

bool ObjetoControl::LeerAmbiente(DISPID dispid, VARTYPE tipo, VARIANT* valor) {
    if (!ambiente_)
        return false;
    return LeerTardio(ambiente_, dispid, tipo, valor);
}

void ObjetoControl::OlvidarAmbiente() {
    modoUsuario_ = -1;
    interfazMuerta_ = -1;
    porDefecto_ = -1;
    idioma_.reset();
}

bool ObjetoControl::UserMode() {
    if (modoUsuario_ < 0) {
        // A container that does not know design mode is running.
        modoUsuario_ = 1;
        VarianteCom valor;
        if (LeerAmbiente(DISPID_AMBIENT_USERMODE, VT_BOOL, &valor))
            modoUsuario_ = V_BOOL(&valor) != VARIANT_FALSE;
    }
    return modoUsuario_ != 0;
}

/// The container shows its controls, but keeps them from the user (a program halted in a debugger).
bool ObjetoControl::InterfazMuerta() {
    if (interfazMuerta_ < 0) {
        interfazMuerta_ = 0;
        VarianteCom valor;
        if (LeerAmbiente(DISPID_AMBIENT_UIDEAD, VT_BOOL, &valor))
            interfazMuerta_ = V_BOOL(&valor) != VARIANT_FALSE;
    }
    return interfazMuerta_ != 0;
}

/// In which events are told and property pages shown. Nothing else depends on it: all texts of the
/// component exist in one language, and numbers in texts follow the user's settings, which every
/// control and page of the process shares.
LCID ObjetoControl::Idioma() {
    if (!idioma_) {
        idioma_ = LOCALE_USER_DEFAULT;
        VarianteCom valor;
        if (LeerAmbiente(DISPID_AMBIENT_LOCALEID, VT_I4, &valor) && V_I4(&valor) != 0)
            idioma_ = static_cast<LCID>(V_I4(&valor));
    }
    return *idioma_;
}

bool ObjetoControl::DisplayAsDefault() {
    if (porDefecto_ < 0) {
        porDefecto_ = 0;
        VarianteCom valor;
        if (LeerAmbiente(DISPID_AMBIENT_DISPLAYASDEFAULT, VT_BOOL, &valor))
            porDefecto_ = V_BOOL(&valor) != VARIANT_FALSE;
    }
    return porDefecto_ != 0;
}

Fuente ObjetoControl::AmbientFont() {
    Fuente fuente;
    VarianteCom valor;
    if (LeerAmbiente(DISPID_AMBIENT_FONT, VT_DISPATCH, &valor) && V_DISPATCH(&valor)) {
        // Each control has a font of its own: changing one must not change its neighbours.
        const Ptr<IFont> ajena = Ptr<IFont>::De(V_DISPATCH(&valor));
        Ptr<IFont> propia;
        if (ajena && SUCCEEDED(propia.Pedir([&](IFont** f) { return ajena->Clone(f); })))
            fuente = windows::EnvolverFuente(propia.get());
    }
    if (!fuente)
        fuente = windows::CrearFuente({});
    fuenteAmbiente_ = fuente->Atributos();
    return fuente;
}

void ObjetoControl::CambioDeFuenteAmbiente() {
    if (vida_ != Vida::Viva || !fuenteAmbiente_)
        return;
    const AtributosFuente anterior = *fuenteAmbiente_;
    const Fuente nueva = AmbientFont();
    if (!(nueva->Atributos() == anterior))
        nucleo_->AmbientFontChanged(anterior, nueva);
}

HRESULT ObjetoControl::GetControlInfo(CONTROLINFO* info) {
    if (!info)
        return E_POINTER;
    if (info->cb < sizeof *info)
        return E_INVALIDARG;
    info->hAccel = aceleradores_;
    info->cAccel =
        static_cast<USHORT>(aceleradores_ ? CopyAcceleratorTableW(aceleradores_, nullptr, 0) : 0);
    comeEnter_ = nucleo_->ComeEnter();
    info->dwFlags = comeEnter_ ? CTRLINFO_EATS_RETURN : 0;
    return S_OK;
}

void ObjetoControl::AccessKeysChanged() {
    const Texto teclas = entorno_.superficie().AccessKeys();
    if (teclas == teclasDeAcceso_)
        return;
    teclasDeAcceso_ = teclas;
    if (aceleradores_)
        DestroyAcceleratorTable(std::exchange(aceleradores_, nullptr));
    std::vector<ACCEL> lista;
    for (const char16_t tecla : teclas)
        lista.push_back({FALT, static_cast<WORD>(tecla), static_cast<WORD>(lista.size())});
    if (!lista.empty())
        aceleradores_ = CreateAcceleratorTableW(lista.data(), static_cast<int>(lista.size()));
    if (sitioDeControl_ && vida_ == Vida::Viva)
        Ptr<IOleControlSite>(sitioDeControl_)->OnControlInfoChanged();
}

HRESULT ObjetoControl::OnMnemonic(MSG* mensaje) {
    return Guardar([&] {
        if (!EntradaCongelada() && vida_ == Vida::Viva)
            nucleo_->AccessKeyPress(
                static_cast<std::int16_t>(mensaje ? mensaje->wParam & 0x7FFF : 0));
        return S_OK;
    });
}

HRESULT ObjetoControl::OnAmbientPropertyChange(DISPID dispid) {
    return Guardar([&] {
        // DISPID_UNKNOWN announces that any of them may have changed.
        auto es = [dispid](DISPID una) { return dispid == una || dispid == DISPID_UNKNOWN; };
        const bool eraPorDefecto = porDefecto_ > 0;
        const int eraModoUsuario = modoUsuario_;
        const bool estabaMuerta = interfazMuerta_ > 0;
        if (es(DISPID_AMBIENT_DISPLAYASDEFAULT))
            porDefecto_ = -1;
        if (es(DISPID_AMBIENT_USERMODE))
            modoUsuario_ = -1;
        if (es(DISPID_AMBIENT_UIDEAD))
            interfazMuerta_ = -1;
        if (es(DISPID_AMBIENT_LOCALEID))
            idioma_.reset();
        if (vida_ != Vida::Viva)
            return S_OK;
        if (es(DISPID_AMBIENT_FONT))
            CambioDeFuenteAmbiente();
        if (es(DISPID_AMBIENT_DISPLAYASDEFAULT) && DisplayAsDefault() != eraPorDefecto)
            nucleo_->AmbientChanged();
        // A mode that nobody has asked for can't have begun anything.
        if (es(DISPID_AMBIENT_USERMODE) && eraModoUsuario >= 0 &&
            UserMode() != (eraModoUsuario > 0)) {
            entorno_.SoltarRaton();
            nucleo_->UserModeChanged();
        }
        if (es(DISPID_AMBIENT_UIDEAD) && InterfazMuerta() != estabaMuerta) {
            entorno_.SoltarRaton();
            nucleo_->OlvidarEntrada();
        }
        entorno_.ActualizarFoco();
        // What is transparent shows the container's colours.
        if (es(DISPID_AMBIENT_BACKCOLOR) || es(DISPID_AMBIENT_USERMODE))
            entorno_.ContenedorCambiado();
        return S_OK;
    });
}

HRESULT ObjetoControl::FreezeEvents(BOOL congelar) {
    if (congelar)
        ++congelados_;
    else if (congelados_ > 0)
        --congelados_;
    return S_OK;
}

void ObjetoControl::ErrorEnNotificacion(const ErrorEjecucion& error) noexcept {
    // The platform called, so there is nobody to return a status to: the error is left where a
    // container that looks for it finds it.
    DejarErrorInfo(Datos().interfaz, Datos().nombre, error.Numero());
}

} // namespace pincela::componente
