#include "pruebas/componente/tipos/listado.h"

#include "anfitrion/com.h"

#include <cstdio>
#include <sstream>

namespace tipos {

const std::vector<Miembro>& MiembrosDe(std::wstring_view clase) {
    if (clase == L"Efectos")
        return MiembrosEfectos;
    if (clase == L"Botonazo")
        return MiembrosBotonazo;
    if (clase == L"Area")
        return MiembrosArea;
    if (clase == L"TBoxML")
        return MiembrosTBoxML;
    if (clase == L"Tbox")
        return MiembrosTbox;
    if (clase == L"ProPColores")
        return MiembrosProPColores;
    if (clase == L"ProPGeneral")
        return MiembrosProPGeneral;
    if (clase == L"ProPColoresArea")
        return MiembrosProPColoresArea;
    return MiembrosTboxSS; // both plain text boxes
}

const std::vector<std::string>& EventosDe(std::wstring_view clase) {
    static const std::string Raton = "(Button: short&, Shift: short&, X: float&, Y: float&)";
    static const std::vector<std::string> boton{"Click()",
                                                "PresTecla(Tecla: short&, Shift: short&)",
                                                "TocoTecla(Tecla: short&)",
                                                "SoltoTecla(Tecla: short&, Shift: short&)",
                                                "MouseSale()",
                                                "MouseDown" + Raton,
                                                "MouseMove" + Raton,
                                                "MouseUp" + Raton,
                                                "Paint()",
                                                "Validate(Cancel: bool&)",
                                                "Resize()"};
    static const std::vector<std::string> area{"Click()",
                                               "PresTecla(Tecla: short&, Shift: short&)",
                                               "TocoTecla(Tecla: short&)",
                                               "SoltoTecla(Tecla: short&, Shift: short&)",
                                               "MouseSale()",
                                               "MouseDown" + Raton,
                                               "MouseMove" + Raton,
                                               "MouseUp" + Raton,
                                               "Paint()",
                                               "Resize()"};
    static const std::vector<std::string> texto{"Change()",
                                                "Click()",
                                                "MouseSale()",
                                                "MouseDown" + Raton,
                                                "MouseMove" + Raton,
                                                "MouseUp" + Raton,
                                                "PresTecla(Tecla: short&, Shift: short&)",
                                                "TocoTecla(Tecla: short&)",
                                                "SoltoTecla(Tecla: short&, Shift: short&)",
                                                "Paint()",
                                                "Validate(Cancel: bool&)",
                                                "Resize()"};
    return clase == L"Botonazo" ? boton : clase == L"Area" ? area : texto;
}

const std::vector<Enumeracion>& Enumeraciones() {
    static const std::vector<Enumeracion> todas{
        {L"TBack",
         L"{0DE26D32-590F-49AC-A55A-B0B78E8EFA80}",
         {{L"Opaco", 1}, {L"Transparente", 0}}},
        {L"TText",
         L"{6EFB45C1-8EDB-41CE-BD60-AD525F49F788}",
         {{L"TextNorm", 0}, {L"Mayuscula", 1}, {L"NumericoEnt", 2}, {L"NumericoDes", 3}}},
        {L"TSombra",
         L"{AA00A1DF-7578-4CBD-B948-6711011B43BD}",
         {{L"Negra", 1}, {L"Gris", 2}, {L"Blanca", 3}, {L"Invertida", 4}}},
        {L"Tamanio",
         L"{C37B02BB-CF4E-482D-A9B1-1D2B539B48D3}",
         {{L"Chico", 1}, {L"Mediano", 2}, {L"Grande", 3}}},
        {L"EfectosBoton",
         L"{0D37A4A8-6E17-4CB0-B796-6E4B3F1DD269}",
         {{L"boton", 0}, {L"BotOculoSobre", 1}, {L"BotVisibSobre", 2}}},
        {L"TLetra",
         L"{540D5CFF-1FCC-43A5-9A6C-6573DD3C6CB1}",
         {{L"Normal", 0}, {L"Levantada", 1}, {L"Undida", 2}, {L"InvesoL", 3}, {L"InvesoU", 4}}},
        {L"TEstilos",
         L"{3FC65C1D-E6D6-40E8-8070-0BC47EFB4511}",
         {{L"CLASICO", 0}, {L"REDONDEADO", 1}}},
        {L"TEstilosR",
         L"{3FC7A711-2270-4B53-B99C-D59912B1B5DE}",
         {{L"Solido", 0}, {L"D_Hori", 1}, {L"D_Vert", 2}, {L"D_Pirami", 3}, {L"D_Diagonal", 4}}},
        {L"ColoresRGB",
         L"{A7C2C96C-0ECF-46A7-9A64-D7526073EAF7}",
         {{L"Rojo", 0}, {L"Verde", 1}, {L"Azul", 2}}},
        {L"TEstilosB",
         L"{8D36FF89-DCC0-409C-9031-0A9F93FEE8FA}",
         {{L"Ninguno", 0}, {L"Normal", 1}, {L"Lineal", 2}, {L"Colores", 3}, {L"Degradados", 4}}},
        {L"Alineaciones",
         L"{5F871854-97C6-4895-9414-8D429981662D}",
         {{L"Izq_Sup", 0},
          {L"Izq_Med", 1},
          {L"Izq_Inf", 2},
          {L"Med_Sup", 3},
          {L"Medio", 4},
          {L"Med_Inf", 5},
          {L"Der_Sup", 6},
          {L"Der_Med", 7},
          {L"Der_Inf", 8}}}};
    return todas;
}

std::vector<std::string> LineasDe(std::wstring_view clase) {
    std::vector<std::string> lineas;
    unsigned ranura = 7;
    for (const Miembro& uno : MiembrosDe(clase)) {
        const std::string tipo = anfitrion::Estrechar(uno.tipo);
        std::istringstream formas(anfitrion::Estrechar(uno.forma));
        for (std::string forma; formas >> forma;) {
            std::string firma = tipo;
            if (forma == "get")
                firma = "() : " + tipo;
            else if (forma != "metodo")
                firma = "(" + tipo + (forma == "put&" ? "&" : "") + ") : void";
            char cabeza[64];
            std::snprintf(cabeza, sizeof cabeza, "%u %s ", ranura++,
                          forma == "put&" ? "put" : forma.c_str());
            char cola[64];
            std::snprintf(cola, sizeof cola, " %08lX flags %X",
                          static_cast<unsigned long>(uno.dispid), uno.banderas);
            lineas.push_back(cabeza + anfitrion::Estrechar(uno.nombre) + firma + cola +
                             (uno.ayuda ? " " + anfitrion::Estrechar(uno.ayuda) : ""));
        }
    }
    return lineas;
}

} // namespace tipos
