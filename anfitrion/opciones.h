// What a container offers to its controls beyond the obligatory.
#pragma once

namespace anfitrion {

/// Each optional piece of a site can be switched off. The defaults are a complete container.
struct OpcionesSitio {
    bool sitioControl = true;      ///< IOleControlSite
    bool ambientes = true;         ///< IDispatch with the ambient properties
    bool avisosPropiedad = true;   ///< connects an IPropertyNotifySink
    bool avisosVista = true;       ///< connects an IAdviseSink (view and object)
    bool marcoSimple = true;       ///< ISimpleFrameSite
    bool contenidos = true;        ///< IVBGetControl: a panel learns what stands on it
    bool servicios = true;         ///< IServiceProvider
    bool sitioExtendido = true;    ///< IOleInPlaceSiteEx besides IOleInPlaceSite
    bool contenedor = true;        ///< GetContainer gives an IOleContainer
    bool controlExtendido = true;  ///< GetExtendedControl gives the container's own properties
    bool marco = true;             ///< GetWindowContext gives an IOleInPlaceFrame
    bool documento = false;        ///< ...and a document window of its own
    bool iniciar = true;           ///< calls InitNew when nothing is loaded
    bool nombresAnfitrion = false; ///< calls SetHostNames
    bool activacionRapida = false; ///< tries IQuickActivate first
    bool cierreDescuidado = false; ///< SetClientSite(NULL) before Close, no InPlaceDeactivate

    /// A container that offers nothing optional at all.
    static OpcionesSitio Pobre() {
        OpcionesSitio o;
        o.sitioControl = o.ambientes = o.avisosPropiedad = o.avisosVista = o.marcoSimple = false;
        o.contenidos = o.servicios = o.sitioExtendido = o.contenedor = o.controlExtendido =
            o.marco = false;
        return o;
    }
};

} // namespace anfitrion
