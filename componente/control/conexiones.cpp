// Events and notifications of a control.
#include "componente/control/enumeradores.h"
#include "componente/control/objeto_control.h"

#include <algorithm>

namespace pincela::componente {

namespace {

constexpr unsigned MasArgumentos = 8; // no event has as many

} // namespace

HRESULT ObjetoControl::EnumConnectionPoints(IEnumConnectionPoints** puntos) {
    if (!puntos)
        return E_POINTER;
    *puntos = nullptr;
    return Guardar([&] {
        std::vector<IConnectionPoint*> lista{&eventos_, &notificaciones_};
        *puntos =
            new Enumerador<IEnumConnectionPoints, IConnectionPoint*>(Identidad(), std::move(lista));
        return S_OK;
    });
}

HRESULT ObjetoControl::FindConnectionPoint(REFIID iid, IConnectionPoint** punto) {
    if (!punto)
        return E_POINTER;
    *punto = nullptr;
    for (PuntoDeConexion* uno : {&eventos_, &notificaciones_}) {
        if (uno->Interfaz() == iid) {
            uno->AddRef();
            *punto = uno;
            return S_OK;
        }
    }
    return CONNECT_E_NOCONNECTION;
}

void ObjetoControl::RaiseEvent(DISPID evento, VARIANTARG* argumentos, unsigned cuantos) {
    // Frozen events are lost, as containers expect while they load or change many things at once.
    if (congelados_ > 0 || cerrando_)
        return;
    detalle::Sosten sosten(Identidad());
    const LCID idioma = Idioma();
    eventos_.ParaCadaUno([&](IUnknown* sumidero) {
        // Each sink has a list of its own to spoil; the variables behind it are shared.
        VARIANTARG lista[MasArgumentos] = {};
        std::copy_n(argumentos, std::min(cuantos, MasArgumentos), lista);
        DISPPARAMS parametros{lista, nullptr, std::min(cuantos, MasArgumentos), 0};
        const windows::AritmeticaAjena ajena;
        // A sink that fails does not keep the others from hearing.
        static_cast<IDispatch*>(sumidero)->Invoke(evento, IID_NULL, idioma, DISPATCH_METHOD,
                                                  &parametros, nullptr, nullptr, nullptr);
    });
}

void ObjetoControl::AvisarCambio(DISPID dispid) {
    detalle::Sosten sosten(Identidad());
    notificaciones_.ParaCadaUno([&](IUnknown* sumidero) {
        const windows::AritmeticaAjena ajena;
        static_cast<IPropertyNotifySink*>(sumidero)->OnChanged(dispid);
    });
}

const MiembroTardio* ObjetoControl::MiembroConNombre(VistaTexto nombre) const {
    for (const MiembroTardio& uno : clase_.miembros)
        if (nombre == VistaTexto(reinterpret_cast<const char16_t*>(uno.nombre)))
            return &uno;
    return nullptr;
}

bool ObjetoControl::CanPropertyChange(VistaTexto clave) {
    const MiembroTardio* miembro = MiembroConNombre(clave);
    if (vida_ != Vida::Viva || cerrando_ || !miembro)
        return true;
    detalle::Sosten sosten(Identidad());
    bool puede = true;
    notificaciones_.ParaCadaUno([&](IUnknown* sumidero) {
        const windows::AritmeticaAjena ajena;
        auto* notificado = static_cast<IPropertyNotifySink*>(sumidero);
        puede = puede && notificado->OnRequestEdit(miembro->dispid) != S_FALSE;
    });
    return puede;
}

void ObjetoControl::PropertyChanged(VistaTexto clave) {
    if (vida_ != Vida::Viva || cerrando_)
        return;
    sucio_ = true;
    // A key that no published property bears still tells that something changed.
    const MiembroTardio* miembro = MiembroConNombre(clave);
    AvisarCambio(miembro ? miembro->dispid : DISPID_UNKNOWN);
    if (!cerrando_ && sitioDeControl_ && nucleo_->ComeEnter() != comeEnter_)
        Ptr<IOleControlSite>(sitioDeControl_)->OnControlInfoChanged();
}

} // namespace pincela::componente
