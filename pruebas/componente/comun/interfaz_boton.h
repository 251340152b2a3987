// The default interface of the button as a C++ client declares it, in slot order.
#pragma once

#include <windows.h>

#include <oaidl.h>
#include <ocidl.h>
#include <olectl.h>

namespace publicado {

struct _Botonazo : IDispatch {
    virtual HRESULT STDMETHODCALLTYPE get_EfectoBoton(LONG* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_EfectoBoton(LONG valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_AlinText(LONG* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_AlinText(LONG valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Caption(BSTR* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Caption(BSTR valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_AlinImag(LONG* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_AlinImag(LONG valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Font(IFontDisp** valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE putref_Font(IFontDisp* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ColorLetra(OLE_COLOR* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_ColorLetra(OLE_COLOR valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ColorLetraSobre(OLE_COLOR* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_ColorLetraSobre(OLE_COLOR valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ColorFondo(OLE_COLOR* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_ColorFondo(OLE_COLOR valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ColorFondoSobre(OLE_COLOR* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_ColorFondoSobre(OLE_COLOR valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_MouseIcon(IPictureDisp** valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE putref_MouseIcon(IPictureDisp* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_MousePointer(SHORT* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_MousePointer(SHORT valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ToolTipText(BSTR* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_ToolTipText(BSTR valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_EstilosBord(LONG* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_EstilosBord(LONG valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_EstilosRell(LONG* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_EstilosRell(LONG valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Estilos(LONG* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Estilos(LONG valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_RelX(FLOAT* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_RelX(FLOAT valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_RelY(FLOAT* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_RelY(FLOAT valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ImagNormal(IPictureDisp** valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE putref_ImagNormal(IPictureDisp* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ImagSobre(IPictureDisp** valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE putref_ImagSobre(IPictureDisp* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE Actualizar() = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Expandir(VARIANT_BOOL* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Expandir(VARIANT_BOOL valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Enabled(VARIANT_BOOL* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Enabled(VARIANT_BOOL valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_FocoVisible(VARIANT_BOOL* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_FocoVisible(VARIANT_BOOL valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_FocoConMouse(VARIANT_BOOL* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_FocoConMouse(VARIANT_BOOL valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_AnchoBorde(LONG* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_AnchoBorde(LONG valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_TipoLetra(LONG* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_TipoLetra(LONG valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_CambioProgre(VARIANT_BOOL* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_CambioProgre(VARIANT_BOOL* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_CambioProgrePasos(BYTE* valor) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_CambioProgrePasos(BYTE* valor) = 0;

  protected:
    ~_Botonazo() = default;
};

} // namespace publicado
