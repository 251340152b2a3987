// IViewObject2 and IDataObject: the look of a control that is not a window.
#include "componente/control/enumeradores.h"
#include "componente/control/metafichero.h"
#include "componente/control/objeto_control.h"

#include <iterator>

namespace pincela::componente {

HRESULT ObjetoControl::Draw(DWORD aspecto, LONG, void*, DVTARGETDEVICE*, HDC, HDC dibujo,
                            LPCRECTL limites, LPCRECTL, BOOL(STDMETHODCALLTYPE*)(ULONG_PTR),
                            ULONG_PTR) {
    if (aspecto != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    if (!dibujo || !limites)
        return E_INVALIDARG;
    return Guardar([&] {
        Preparar();
        const RECT lugar{limites->left, limites->top, limites->right, limites->bottom};
        std::int32_t anchoElipse = 0, altoElipse = 0;
        nucleo_->Forma(anchoElipse, altoElipse);
        entorno_.Dibujar(dibujo, lugar, {anchoElipse, altoElipse});
        return S_OK;
    });
}

HRESULT ObjetoControl::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colores) {
    if (!colores)
        return E_POINTER;
    *colores = nullptr;
    return S_FALSE;
}

HRESULT ObjetoControl::Freeze(DWORD, LONG, void*, DWORD* congelado) {
    if (congelado)
        *congelado = 0;
    return E_NOTIMPL;
}

HRESULT ObjetoControl::Unfreeze(DWORD) {
    return E_NOTIMPL;
}

HRESULT ObjetoControl::SetAdvise(DWORD aspectos, DWORD banderas, IAdviseSink* sumidero) {
    if (sumidero && !(aspectos & DVASPECT_CONTENT)) // nothing else is ever drawn
        return DV_E_DVASPECT;
    avisoDeVista_ = Ptr<IAdviseSink>(sumidero);
    aspectosDeVista_ = aspectos;
    banderasDeVista_ = banderas;
    entorno_.OlvidarAvisoDeVista(); // a new sink has been told nothing yet
    if (sumidero && (banderas & ADVF_PRIMEFIRST))
        AvisarVista();
    return S_OK;
}

HRESULT ObjetoControl::GetAdvise(DWORD* aspectos, DWORD* banderas, IAdviseSink** sumidero) {
    if (aspectos)
        *aspectos = aspectosDeVista_;
    if (banderas)
        *banderas = banderasDeVista_;
    if (sumidero)
        *sumidero = Ptr<IAdviseSink>(avisoDeVista_).Ceder();
    return S_OK;
}

HRESULT ObjetoControl::GetExtent(DWORD aspecto, LONG, DVTARGETDEVICE*, SIZEL* tamanio) {
    return GetExtent(aspecto, tamanio);
}

bool ObjetoControl::EsOpaca() {
    if (vida_ != Vida::Viva || entorno_.superficie().BackStyle() == 0)
        return false;
    std::int32_t anchoElipse = 0, altoElipse = 0;
    nucleo_->Forma(anchoElipse, altoElipse);
    return anchoElipse == 0 || altoElipse == 0;
}

bool ObjetoControl::VistaCambiada() {
    if (vida_ != Vida::Viva || cerrando_ || (!avisoDeVista_ && !avisosDeDatos_))
        return false;
    AvisarVista();
    return true;
}

void ObjetoControl::AvisarVista() {
    detalle::Sosten sosten(Identidad());
    if (const Ptr<IAdviseSink> sumidero = avisoDeVista_) {
        if (banderasDeVista_ & ADVF_ONLYONCE)
            avisoDeVista_.Soltar();
        sumidero->OnViewChange(DVASPECT_CONTENT, -1);
    }
    if (avisosDeDatos_)
        Ptr<IDataAdviseHolder>(avisosDeDatos_)->SendOnDataChange(this, 0, 0);
}

namespace {

/// The best one first. The classic one is what a class that calls itself insertable owes.
constexpr FORMATETC Formatos[] = {
    {CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF},
    {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT},
};

HRESULT Admitir(const FORMATETC* formato) {
    if (!formato)
        return E_POINTER;
    for (const FORMATETC& uno : Formatos) {
        if (formato->cfFormat != uno.cfFormat)
            continue;
        if (!(formato->tymed & uno.tymed))
            return DV_E_TYMED;
        if (formato->dwAspect != uno.dwAspect)
            return DV_E_DVASPECT;
        return formato->lindex == uno.lindex ? S_OK : DV_E_LINDEX;
    }
    return DV_E_FORMATETC;
}

/// How the platform writes "any data".
bool EsComodin(const FORMATETC& formato) {
    constexpr DWORD cualquiera = static_cast<DWORD>(-1);
    return formato.cfFormat == 0 && !formato.ptd && formato.dwAspect == cualquiera &&
           formato.lindex == -1 && formato.tymed == cualquiera;
}

} // namespace

HRESULT ObjetoControl::GetData(FORMATETC* formato, STGMEDIUM* medio) {
    if (!medio)
        return E_POINTER;
    *medio = {};
    const HRESULT admitido = Admitir(formato);
    if (FAILED(admitido))
        return admitido;
    return formato->cfFormat == CF_ENHMETAFILE ? DarMetafichero(*medio)
                                               : DarMetaficheroClasico(*medio);
}

HRESULT ObjetoControl::DarMetaficheroClasico(STGMEDIUM& medio) {
    return Guardar([&] {
        HRESULT dibujado = S_OK;
        const HMETAFILE metafichero =
            HacerMetafichero(entorno_.Tamano(), [&](HDC dc, const RECTL& limites) {
                return dibujado = Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc,
                                       &limites, nullptr, nullptr, 0);
            });
        const HGLOBAL imagen = EnvolverMetafichero(metafichero, extension_);
        if (!imagen)
            return FAILED(dibujado) ? dibujado : E_OUTOFMEMORY;
        medio.tymed = TYMED_MFPICT;
        medio.hMetaFilePict = imagen;
        return S_OK;
    });
}

HRESULT ObjetoControl::DarMetafichero(STGMEDIUM& medio) {
    const windows::AritmeticaPropia propia; // the platform computes the scale of the picture
    const RECT marco{0, 0, extension_.cx, extension_.cy}; // hundredths of a millimetre
    HDC dc = CreateEnhMetaFileW(nullptr, nullptr, &marco, Datos().nombre);
    if (!dc)
        return E_OUTOFMEMORY;
    const SIZE pixeles = entorno_.Tamano();
    const RECTL limites{0, 0, pixeles.cx, pixeles.cy};
    const HRESULT dibujado =
        Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc, &limites, nullptr, nullptr, 0);
    HENHMETAFILE metafichero = CloseEnhMetaFile(dc);
    if (FAILED(dibujado) || !metafichero) {
        DeleteEnhMetaFile(metafichero);
        return FAILED(dibujado) ? dibujado : E_OUTOFMEMORY;
    }
    medio.tymed = TYMED_ENHMF;
    medio.hEnhMetaFile = metafichero;
    return S_OK;
}

HRESULT ObjetoControl::GetDataHere(FORMATETC*, STGMEDIUM*) {
    return DV_E_FORMATETC;
}
HRESULT ObjetoControl::QueryGetData(FORMATETC* formato) {
    return Admitir(formato);
}

HRESULT ObjetoControl::GetCanonicalFormatEtc(FORMATETC*, FORMATETC* salida) {
    if (!salida)
        return E_POINTER;
    *salida = {};
    return DATA_S_SAMEFORMATETC;
}

HRESULT ObjetoControl::SetData(FORMATETC*, STGMEDIUM*, BOOL) {
    return E_NOTIMPL;
}

HRESULT ObjetoControl::EnumFormatEtc(DWORD direccion, IEnumFORMATETC** lista) {
    if (!lista)
        return E_POINTER;
    *lista = nullptr;
    if (direccion != DATADIR_GET)
        return E_NOTIMPL;
    return Guardar([&] {
        *lista = new Enumerador<IEnumFORMATETC, FORMATETC>(
            Identidad(), {std::begin(Formatos), std::end(Formatos)});
        return S_OK;
    });
}

HRESULT ObjetoControl::DAdvise(FORMATETC* formato, DWORD banderas, IAdviseSink* sumidero,
                               DWORD* galleta) {
    if (!galleta)
        return E_POINTER;
    *galleta = 0;
    if (!sumidero || !formato)
        return E_POINTER;
    const HRESULT admitido = EsComodin(*formato) ? S_OK : Admitir(formato);
    if (FAILED(admitido))
        return admitido;
    if (!avisosDeDatos_) {
        const HRESULT estado = CreateDataAdviseHolder(avisosDeDatos_.Recibir());
        if (FAILED(estado))
            return estado;
    }
    return avisosDeDatos_->Advise(this, formato, banderas, sumidero, galleta);
}

HRESULT ObjetoControl::DUnadvise(DWORD galleta) {
    return avisosDeDatos_ ? avisosDeDatos_->Unadvise(galleta) : OLE_E_NOCONNECTION;
}

HRESULT ObjetoControl::EnumDAdvise(IEnumSTATDATA** lista) {
    if (!lista)
        return E_POINTER;
    *lista = nullptr;
    return avisosDeDatos_ ? avisosDeDatos_->EnumAdvise(lista) : S_OK;
}

} // namespace pincela::componente
