// IDispatch::Invoke of a property against ITypeInfo::Invoke on the same object.
#include "medidas/medida.h"

#include "anfitrion/tardio.h"

namespace medidas {

namespace {

constexpr DISPID AnchoBorde = 0x68030003;

} // namespace

bool MedirInvoke() {
    const auto componente = AbrirComponente();
    const auto objeto = componente.Crear(componente.Clase(L"Pincela.Botonazo"));
    IDispatch* boton = nullptr;
    if (FAILED(objeto->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&boton))))
        return false;
    ITypeInfo* info = nullptr;
    boton->GetTypeInfo(0, LOCALE_USER_DEFAULT, &info);
    VARIANT resultado{};
    DISPPARAMS ninguno{};
    bool bien = info != nullptr;
    bien = bien && Informar("invoke_get",
                            Razon(
                                [&] {
                                    boton->Invoke(AnchoBorde, IID_NULL, 0, DISPATCH_PROPERTYGET,
                                                  &ninguno, &resultado, nullptr, nullptr);
                                },
                                [&] {
                                    info->Invoke(boton, AnchoBorde, DISPATCH_PROPERTYGET, &ninguno,
                                                 &resultado, nullptr, nullptr);
                                },
                                2000),
                            0.25);
    VARIANT valor{};
    valor.vt = VT_I4;
    valor.lVal = 1;
    DISPID poner = DISPID_PROPERTYPUT;
    DISPPARAMS uno{&valor, &poner, 1, 1};
    bien = bien && Informar("invoke_put",
                            Razon(
                                [&] {
                                    boton->Invoke(AnchoBorde, IID_NULL, 0, DISPATCH_PROPERTYPUT,
                                                  &uno, nullptr, nullptr, nullptr);
                                },
                                [&] {
                                    info->Invoke(boton, AnchoBorde, DISPATCH_PROPERTYPUT, &uno,
                                                 nullptr, nullptr, nullptr);
                                },
                                2000),
                            0.25);
    if (info)
        info->Release();
    boton->Release();
    return bien;
}

} // namespace medidas
