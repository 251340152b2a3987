// Life of a control's properties: new, restored, saved.
#include "componente/control/bolsas.h"
#include "componente/control/flujo_ajeno.h"
#include "componente/control/objeto_control.h"

namespace pincela::componente {

namespace {

constexpr wchar_t NombreDelFlujo[] = L"Pincela";

HRESULT EstadoDe(Lectura lectura) {
    switch (lectura) {
    case Lectura::Bien:
        return S_OK;
    case Lectura::NoEsNuestro:
        return STG_E_INVALIDHEADER;
    case Lectura::VersionMasNueva:
        return STG_E_OLDDLL;
    case Lectura::Danado:
        break;
    }
    return STG_E_DOCFILECORRUPT;
}

} // namespace

HRESULT ObjetoControl::GetClassID(CLSID* clase) {
    if (!clase)
        return E_POINTER;
    *clase = Datos().clase;
    return S_OK;
}

HRESULT ObjetoControl::IsDirty() {
    return sucio_ ? S_OK : S_FALSE;
}

void ObjetoControl::Preparar() {
    if (vida_ == Vida::SinIniciar)
        Iniciar();
}

void ObjetoControl::Iniciar() {
    vida_ = Vida::Cargando;
    try {
        nucleo_->InitProperties();
    } catch (...) {
        vida_ = Vida::SinIniciar;
        throw;
    }
    TerminarCarga();
    sucio_ = true; // never saved yet
}

void ObjetoControl::TerminarCarga() {
    vida_ = Vida::Viva;
    interfaz_.preparar = nullptr;
    sucio_ = false;
}

void ObjetoControl::Restaurar(BolsaPropiedades& bolsa) {
    const Vida antes = vida_;
    // What the control holds now, to be put back when the new values turn out to be unusable.
    BolsaMemoria respaldo;
    nucleo_->WriteProperties(respaldo);
    const Imagen icono = entorno_.superficie().MouseIcon();
    vida_ = Vida::Cargando;
    try {
        nucleo_->ReadProperties(bolsa);
    } catch (...) {
        NucleoSeguro([&](ControlUsuario& nucleo) { nucleo.ReadProperties(respaldo); });
        entorno_.superficie().PonMouseIcon(icono);
        vida_ = antes;
        throw;
    }
    TerminarCarga();
    if (antes == Vida::Viva)
        AvisarCambio(DISPID_UNKNOWN);
    AvisarVista();
}

void ObjetoControl::CargarBytes(FlujoAjeno flujo) {
    Bytes bytes;
    flujo.Leer(LargoDeCabecera, bytes);
    std::uint32_t largo = 0;
    Exigir(EstadoDe(LeerCabecera(bytes, largo)));
    flujo.Leer(largo, bytes);
    ControlGuardado guardado;
    Exigir(EstadoDe(LeerGuardado(bytes, guardado)));
    BolsaMemoria bolsa(guardado.propiedades);
    const SIZE extensionAntes = extension_;
    const SIZE tamanioAntes = entorno_.Tamano();
    if (!activoEnSitio_) {
        extension_ = {guardado.ancho, guardado.alto};
        entorno_.PonTamano(APixeles(extension_), false);
    }
    try {
        Restaurar(bolsa);
    } catch (...) {
        extension_ = extensionAntes;
        if (!activoEnSitio_)
            entorno_.PonTamano(tamanioAntes, false);
        throw;
    }
}

void ObjetoControl::GuardarBytes(FlujoAjeno flujo) {
    Preparar();
    BolsaMemoria bolsa;
    nucleo_->WriteProperties(bolsa);
    flujo.Escribir(EscribirGuardado({extension_.cx, extension_.cy, bolsa.Guardar()}));
}

HRESULT ObjetoControl::InitNew() {
    return Guardar([&] {
        Preparar();
        return S_OK;
    });
}

HRESULT ObjetoControl::Load(IStream* flujo) {
    if (!flujo)
        return E_POINTER;
    return Guardar([&] {
        CargarBytes(FlujoAjeno(flujo));
        return S_OK;
    });
}

HRESULT ObjetoControl::Save(IStream* flujo, BOOL limpiar) {
    if (!flujo)
        return E_POINTER;
    return Guardar([&] {
        GuardarBytes(FlujoAjeno(flujo));
        if (limpiar)
            sucio_ = false;
        return S_OK;
    });
}

HRESULT ObjetoControl::GetSizeMax(ULARGE_INTEGER* tamanio) {
    if (!tamanio)
        return E_POINTER;
    tamanio->QuadPart = 0;
    return Guardar([&] {
        Ptr<IStream> flujo;
        Exigir(CreateStreamOnHGlobal(nullptr, TRUE, flujo.Recibir()));
        GuardarBytes(FlujoAjeno(flujo.get()));
        return flujo->Seek({}, STREAM_SEEK_CUR, tamanio);
    });
}

HRESULT ObjetoControl::InitNew(IStorage*) {
    return InitNew();
}

HRESULT ObjetoControl::Load(IStorage* almacen) {
    if (!almacen)
        return E_POINTER;
    return Guardar([&] {
        Ptr<IStream> flujo;
        Exigir(flujo.Pedir([&](IStream** abierto) {
            return almacen->OpenStream(NombreDelFlujo, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0,
                                       abierto);
        }));
        CargarBytes(FlujoAjeno(flujo.get()));
        return S_OK;
    });
}

HRESULT ObjetoControl::Save(IStorage* almacen, BOOL) {
    if (!almacen)
        return E_POINTER;
    return Guardar([&] {
        Ptr<IStream> flujo;
        Exigir(flujo.Pedir([&](IStream** creado) {
            return almacen->CreateStream(
                NombreDelFlujo, STGM_CREATE | STGM_WRITE | STGM_SHARE_EXCLUSIVE, 0, 0, creado);
        }));
        GuardarBytes(FlujoAjeno(flujo.get()));
        return S_OK;
    });
}

// The container says when the storage is safe; only then is the control clean.
HRESULT ObjetoControl::SaveCompleted(IStorage*) {
    sucio_ = false;
    return S_OK;
}

HRESULT ObjetoControl::HandsOffStorage() {
    return S_OK;
}

HRESULT ObjetoControl::Load(IPropertyBag* bolsa, IErrorLog* errores) {
    if (!bolsa)
        return E_POINTER;
    return Guardar([&] {
        BolsaCom propia(bolsa, errores);
        Restaurar(propia);
        return S_OK;
    });
}

HRESULT ObjetoControl::Save(IPropertyBag* bolsa, BOOL limpiar, BOOL todas) {
    if (!bolsa)
        return E_POINTER;
    return Guardar([&] {
        Preparar();
        BolsaCom propia(bolsa, nullptr, todas != FALSE);
        nucleo_->WriteProperties(propia);
        if (limpiar)
            sucio_ = false;
        return S_OK;
    });
}

} // namespace pincela::componente
