// IDispatch::Invoke of a property against ITypeInfo::Invoke on the same object.
#include "medidas/medida.h"

#include "anfitrion/tardio.h"

namespace medidas {

using namespace anfitrion;

bool MedirInvoke() {
    const auto componente = AbrirComponente();
    const auto boton = componente.Crear(componente.Clase(L"Pincela.Botonazo")).Como<IDispatch>();
    Puntero<ITypeInfo> info;
    Comprobar(boton->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Recibir()), "GetTypeInfo");
    const DISPID numero = Numero(boton.get(), L"AnchoBorde");

    const auto comparar = [&](const char* nombre, WORD modo, DISPPARAMS& parametros,
                              VARIANT* resultado) {
        const auto directa = [&] {
            Comprobar(boton->Invoke(numero, IID_NULL, LOCALE_USER_DEFAULT, modo, &parametros,
                                    resultado, nullptr, nullptr),
                      "IDispatch::Invoke");
        };
        const auto general = [&] {
            Comprobar(
                info->Invoke(boton.get(), numero, modo, &parametros, resultado, nullptr, nullptr),
                "ITypeInfo::Invoke");
        };
        return Informar(nombre, Razon({directa}, {general}, 500), 0.25);
    };

    VARIANT leido{}, valor{};
    DISPPARAMS ninguno{};
    bool bien = comparar("invoke_get", DISPATCH_PROPERTYGET, ninguno, &leido);
    valor.vt = VT_I4;
    valor.lVal = 1;
    DISPID poner = DISPID_PROPERTYPUT;
    DISPPARAMS uno{&valor, &poner, 1, 1};
    bien = comparar("invoke_put", DISPATCH_PROPERTYPUT, uno, nullptr) && bien;
    return bien;
}

} // namespace medidas
