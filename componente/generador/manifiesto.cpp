#include "componente/generador/manifiesto.h"

#include "componente/clases.h"
#include "componente/generador/escritor.h"
#include "componente/puentes.h"

#include <version.h>

#include <cstdio>
#include <string>

namespace pincela::generador {

using namespace pincela::componente;

namespace {

struct NombreDeRasgo {
    DWORD rasgo;
    const char* nombre;
};
constexpr NombreDeRasgo NombresDeRasgos[] = {
    {OLEMISC_RECOMPOSEONRESIZE, "recomposeonresize"},
    {OLEMISC_CANTLINKINSIDE, "cantlinkinside"},
    {OLEMISC_INSIDEOUT, "insideout"},
    {OLEMISC_ACTIVATEWHENVISIBLE, "activatewhenvisible"},
    {OLEMISC_ACTSLIKEBUTTON, "actslikebutton"},
    {OLEMISC_SIMPLEFRAME, "simpleframe"},
    {OLEMISC_SETCLIENTSITEFIRST, "setclientsitefirst"},
};

std::string Escrito(const GUID& guid) {
    wchar_t texto[39];
    StringFromGUID2(guid, texto, 39);
    return {texto, texto + 38};
}

/// Names of classes are plain letters.
std::string Letras(const wchar_t* nombre) {
    std::string letras;
    for (; *nombre; ++nombre)
        letras += static_cast<char>(*nombre);
    return letras;
}

std::string Version() {
    return std::to_string(VersionMayor) + "." + std::to_string(VersionMenor);
}

std::string Rasgos(DWORD rasgos) {
    std::string lista;
    for (const NombreDeRasgo& uno : NombresDeRasgos) {
        if (!(rasgos & uno.rasgo))
            continue;
        lista += (lista.empty() ? "" : ",") + std::string(uno.nombre);
        rasgos &= ~uno.rasgo;
    }
    if (rasgos)
        throw EstadoFallido{E_NOTIMPL, "naming a trait of a class"};
    return lista;
}

std::string Clase(const DatosClase& datos) {
    std::string texto = "    <comClass clsid=\"" + Escrito(datos.clase) + "\" tlbid=\"" +
                        Escrito(GuidDeLaBiblioteca) +
                        "\" threadingModel=\"Apartment\"\n              progid=\"" +
                        Letras(NombreDeLaBiblioteca) + "." + Letras(datos.nombre) + "\"";
    if (datos.genero == Genero::Control)
        texto += "\n              miscStatusContent=\"" + Rasgos(datos.rasgosOle) + "\"";
    return texto + "/>\n";
}

std::string Interfaz(const GUID& interfaz, const std::string& nombre, const GUID& puente) {
    return "  <comInterfaceExternalProxyStub name=\"" + nombre + "\" iid=\"" + Escrito(interfaz) +
           "\"\n      proxyStubClsid32=\"" + Escrito(puente) + "\" baseInterface=\"" +
           Escrito(IID_IDispatch) + "\"\n      tlbid=\"" + Escrito(GuidDeLaBiblioteca) + "\"/>\n";
}

std::string Manifiesto(SYSKIND sistema) {
    std::string clases, interfaces;
    ParaCadaClase([&]<class Tabla>(const DatosClase& datos) {
        clases += Clase(datos);
        interfaces += Interfaz(datos.interfaz, "_" + Letras(datos.nombre), PuenteDual);
        if (datos.genero == Genero::Control)
            interfaces += Interfaz(datos.eventos, "__" + Letras(datos.nombre), PuenteDespacho);
    });
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
           "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n"
           "  <assemblyIdentity type=\"win32\" name=\"" +
           Letras(NombreDeLaBiblioteca) +
           "\" version=\"" PINCELA_VERSION "\" processorArchitecture=\"" +
           (sistema == SYS_WIN64 ? "amd64" : "x86") +
           "\"/>\n  <file name=\"Pincela.ocx\">\n    <typelib tlbid=\"" +
           Escrito(GuidDeLaBiblioteca) + "\" version=\"" + Version() +
           "\" resourceid=\"1\" flags=\"control\" helpdir=\"\"/>\n" + clases + "  </file>\n" +
           interfaces + "</assembly>\n";
}

} // namespace

void EscribirManifiesto(SYSKIND sistema, const wchar_t* ruta) {
    const std::string texto = Manifiesto(sistema);
    FILE* f = _wfopen(ruta, L"wb");
    const bool bien = f && fwrite(texto.data(), 1, texto.size(), f) == texto.size();
    if (!f || fclose(f) != 0 || !bien)
        throw EstadoFallido{STG_E_WRITEFAULT, "writing the manifest"};
}

} // namespace pincela::generador
