// Streams and storages in memory.
#pragma once

#include "anfitrion/com.h"

#include <objidl.h>

#include <vector>

namespace publicado {

using BytesDeFlujo = std::vector<unsigned char>;

inline anfitrion::Puntero<IStream> FlujoDe(const BytesDeFlujo& bytes) {
    anfitrion::Puntero<IStream> flujo;
    anfitrion::Comprobar(CreateStreamOnHGlobal(nullptr, TRUE, flujo.Recibir()), "CreateStream");
    if (!bytes.empty())
        flujo->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
    flujo->Seek({}, STREAM_SEEK_SET, nullptr);
    return flujo;
}

inline ULONGLONG Posicion(IStream* flujo) {
    ULARGE_INTEGER posicion{};
    flujo->Seek({}, STREAM_SEEK_CUR, &posicion);
    return posicion.QuadPart;
}

/// Everything before the present position.
inline BytesDeFlujo BytesDe(IStream* flujo) {
    BytesDeFlujo bytes(static_cast<std::size_t>(Posicion(flujo)));
    flujo->Seek({}, STREAM_SEEK_SET, nullptr);
    ULONG leidos = 0;
    flujo->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &leidos);
    bytes.resize(leidos);
    return bytes;
}

inline anfitrion::Puntero<IStorage> AlmacenNuevo() {
    anfitrion::Puntero<ILockBytes> base;
    anfitrion::Puntero<IStorage> almacen;
    anfitrion::Comprobar(CreateILockBytesOnHGlobal(nullptr, TRUE, base.Recibir()), "CreateILock");
    anfitrion::Comprobar(
        StgCreateDocfileOnILockBytes(
            base.get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, almacen.Recibir()),
        "StgCreateDocfile");
    return almacen;
}

} // namespace publicado
