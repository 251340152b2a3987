#include "galeria/disenador/foto.h"

#include "anfitrion/formulario_texto.h"
#include "anfitrion/valor_texto.h"

namespace galeria {

using namespace anfitrion;

const std::vector<Propiedad>& Examinador::De(const ControlAlojado& control) {
    const std::wstring clase = ClaseDe(control.Objeto());
    auto suyas = clases_.find(clase);
    if (suyas == clases_.end())
        suyas = clases_.emplace(clase, PropiedadesDe(control.Despacho())).first;
    return suyas->second;
}

namespace {

/// Empty for a property that doesn't answer or has no written form.
std::wstring Escrito(const ControlAlojado& control, const Propiedad& propiedad) {
    try {
        return EscribirValor(Leer(control.Despacho(), propiedad));
    } catch (const FalloCom&) {
        return {};
    }
}

void Reponer(const ControlAlojado& control, const Propiedad& propiedad,
             const std::wstring& escrito) {
    if (Escrito(control, propiedad) == escrito)
        return;
    try {
        Poner(control.Despacho(), propiedad, LeerValor(escrito));
    } catch (const FalloCom&) {
        // It answered with this value once; that it takes it isn't promised.
    }
}

} // namespace

std::vector<std::wstring> NombresElegidos(const Formulario& forma) {
    std::vector<std::wstring> nombres;
    for (const auto& control : forma.Seleccion())
        nombres.push_back(control->Nombre());
    return nombres;
}

Foto Retratar(const Formulario& forma, Examinador& examinador) {
    Foto foto;
    foto.texto = EscribirFormulario(forma);
    for (const auto& control : forma.Controles())
        for (const Propiedad& propiedad : examinador.De(*control))
            if (!propiedad.SoloLectura())
                if (std::wstring escrito = Escrito(*control, propiedad); !escrito.empty())
                    foto.valores.push_back(
                        {control->Nombre(), propiedad.nombre, std::move(escrito)});
    foto.seleccion = NombresElegidos(forma);
    return foto;
}

void Restaurar(Formulario& forma, const Componente& componente, Examinador& examinador,
               const Foto& foto) {
    LeerFormulario(forma, componente, foto.texto);
    for (const Foto::Valor& valor : foto.valores)
        if (const auto control = forma.Control(valor.control))
            for (const Propiedad& propiedad : examinador.De(*control))
                if (propiedad.nombre == valor.propiedad)
                    Reponer(*control, propiedad, valor.escrito);
    std::vector<std::shared_ptr<ControlAlojado>> elegidos;
    for (const std::wstring& nombre : foto.seleccion)
        if (auto control = forma.Control(nombre))
            elegidos.push_back(std::move(control));
    forma.Seleccionar(std::move(elegidos));
}

} // namespace galeria
