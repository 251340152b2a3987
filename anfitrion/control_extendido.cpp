#include "anfitrion/control_extendido.h"

#include "anfitrion/control_alojado.h"
#include "anfitrion/unidades.h"
#include "anfitrion/variante.h"

namespace anfitrion {

namespace {

enum : DISPID {
    XNombre = static_cast<DISPID>(0x80010000),
    XObjeto = static_cast<DISPID>(0x80010001),
    XCancela = static_cast<DISPID>(0x80010037),
    XPorDefecto = static_cast<DISPID>(0x80010038),
    XIzquierda = static_cast<DISPID>(0x80010103),
    XArriba = static_cast<DISPID>(0x80010104),
    XAncho = static_cast<DISPID>(0x80010105),
    XAlto = static_cast<DISPID>(0x80010106),
    XVisible = static_cast<DISPID>(0x80010107),
    XParada = static_cast<DISPID>(0x8001010E),
    XOrden = static_cast<DISPID>(0x8001010F),
};

constexpr struct {
    const wchar_t* nombre;
    DISPID numero;
} Miembros[] = {
    {L"Name", XNombre},     {L"Object", XObjeto},  {L"Cancel", XCancela}, {L"Default", XPorDefecto},
    {L"Left", XIzquierda},  {L"Top", XArriba},     {L"Width", XAncho},    {L"Height", XAlto},
    {L"Visible", XVisible}, {L"TabStop", XParada}, {L"TabIndex", XOrden},
};

bool EsPropio(DISPID numero) {
    for (const auto& miembro : Miembros)
        if (miembro.numero == numero)
            return true;
    return false;
}

Variante Dar(const ControlAlojado& c, DISPID numero) {
    const RECT& r = c.Rectangulo();
    switch (numero) {
    case XNombre:
        return c.Nombre();
    case XObjeto:
        return c.Despacho();
    case XCancela:
        return c.cancela;
    case XPorDefecto:
        return c.porDefecto;
    case XIzquierda:
        return r.left;
    case XArriba:
        return r.top;
    case XAncho:
        return Ancho(r);
    case XAlto:
        return Alto(r);
    case XVisible:
        return c.Visible();
    case XParada:
        return c.parada;
    default:
        return c.orden;
    }
}

void Tomar(ControlAlojado& c, DISPID numero, const VARIANT& valor) {
    RECT r = c.Rectangulo();
    switch (numero) {
    case XNombre:
        c.PonerNombre(Texto(valor));
        return;
    case XCancela:
        c.cancela = Logico(valor);
        return;
    case XPorDefecto:
        c.porDefecto = Logico(valor);
        return;
    case XVisible:
        c.PonerVisible(Logico(valor));
        return;
    case XParada:
        c.parada = Logico(valor);
        return;
    case XOrden:
        c.orden = Entero(valor);
        return;
    case XIzquierda:
        OffsetRect(&r, Entero(valor) - r.left, 0);
        break;
    case XArriba:
        OffsetRect(&r, 0, Entero(valor) - r.top);
        break;
    case XAncho:
        r.right = r.left + Entero(valor);
        break;
    case XAlto:
        r.bottom = r.top + Entero(valor);
        break;
    default:
        throw FalloCom(DISP_E_MEMBERNOTFOUND, "solo lectura");
    }
    c.Mover(r);
}

} // namespace

HRESULT ControlExtendido::GetTypeInfoCount(UINT* cuantas) {
    if (!cuantas)
        return E_POINTER;
    *cuantas = 0;
    return S_OK;
}

HRESULT ControlExtendido::GetTypeInfo(UINT, LCID, ITypeInfo** tipo) {
    if (tipo)
        *tipo = nullptr;
    return DISP_E_BADINDEX;
}

HRESULT ControlExtendido::GetIDsOfNames(REFIID iid, LPOLESTR* nombres, UINT cuantos, LCID idioma,
                                        DISPID* numeros) {
    if (!nombres || !numeros || cuantos == 0)
        return E_POINTER;
    for (const auto& miembro : Miembros)
        if (cuantos == 1 && lstrcmpiW(miembro.nombre, nombres[0]) == 0) {
            numeros[0] = miembro.numero;
            return S_OK;
        }
    const auto control = control_.lock();
    const Puntero<IDispatch> interior(control ? control->Despacho() : nullptr);
    if (!interior)
        return E_UNEXPECTED;
    return interior->GetIDsOfNames(iid, nombres, cuantos, idioma, numeros);
}

HRESULT ControlExtendido::Invoke(DISPID numero, REFIID iid, LCID idioma, WORD modo,
                                 DISPPARAMS* parametros, VARIANT* resultado, EXCEPINFO* excepcion,
                                 UINT* malo) {
    const auto control = control_.lock();
    const Puntero<IDispatch> interior(control ? control->Despacho() : nullptr);
    if (!interior)
        return E_UNEXPECTED;
    if (!EsPropio(numero))
        return interior->Invoke(numero, iid, idioma, modo, parametros, resultado, excepcion, malo);
    try {
        if (modo & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
            if (!parametros || parametros->cArgs != 1)
                return DISP_E_BADPARAMCOUNT;
            Tomar(*control, numero, parametros->rgvarg[0]);
        } else if (resultado) {
            Variante valor = Dar(*control, numero);
            VariantInit(resultado);
            std::swap(*resultado, static_cast<VARIANT&>(valor));
        }
        return S_OK;
    } catch (const FalloCom& fallo) {
        return fallo.estado;
    }
}

} // namespace anfitrion
