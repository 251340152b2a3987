// Restoring 500 buttons from the stream of a form against reading the same bytes and assigning the
// same properties one by one.
//
// Making the controls is on neither side: both begin with 500 that were just made and end with 500
// that show the same. A container that does not load a control has to initialise it before it
// assigns anything, so that belongs to the other side.
#include "medidas/dual.h"
#include "medidas/medida.h"

#include "anfitrion/tardio.h"

#include <ocidl.h>
#include <olectl.h>

#include <array>

namespace medidas {

namespace {

using namespace anfitrion;

constexpr int Cuantos = 500;

Puntero<IFontDisp> Negrita() {
    wchar_t nombre[] = L"Arial";
    FONTDESC descripcion{};
    descripcion.cbSizeofstruct = sizeof descripcion;
    descripcion.lpstrName = nombre;
    descripcion.cySize.int64 = 100000;
    descripcion.sWeight = FW_BOLD;
    Puntero<IFontDisp> fuente;
    Comprobar(OleCreateFontIndirect(&descripcion, __uuidof(IFontDisp), fuente.RecibirVoid()),
              "OleCreateFontIndirect");
    return fuente;
}

/// What a saved button differs in from a new one, assigned as a compiled program does.
class Asignacion {
  public:
    explicit Asignacion(IDispatch* boton)
        : caption_(boton, L"Caption", INVOKE_PROPERTYPUT),
          toolTipText_(boton, L"ToolTipText", INVOKE_PROPERTYPUT),
          colorLetra_(boton, L"ColorLetra", INVOKE_PROPERTYPUT),
          colorFondo_(boton, L"ColorFondo", INVOKE_PROPERTYPUT),
          colorFondoSobre_(boton, L"ColorFondoSobre", INVOKE_PROPERTYPUT),
          anchoBorde_(boton, L"AnchoBorde", INVOKE_PROPERTYPUT),
          tipoLetra_(boton, L"TipoLetra", INVOKE_PROPERTYPUT),
          alinText_(boton, L"AlinText", INVOKE_PROPERTYPUT),
          font_(boton, L"Font", INVOKE_PROPERTYPUTREF) {}

    void operator()(IDispatch* boton) const {
        caption_(boton, titulo_.get());
        toolTipText_(boton, globo_.get());
        colorLetra_(boton, 0x804000);
        colorFondo_(boton, 0xC0E0E0);
        colorFondoSobre_(boton, 0xE0F0F0);
        anchoBorde_(boton, 2);
        tipoLetra_(boton, 1);
        alinText_(boton, 1);
        font_(boton, Negrita().get());
    }

  private:
    Cadena titulo_{L"&Guardar cambios"};
    Cadena globo_{L"Guarda lo que cambió"};
    Funcion<BSTR> caption_, toolTipText_;
    Funcion<OLE_COLOR> colorLetra_, colorFondo_, colorFondoSobre_;
    Funcion<LONG> anchoBorde_, tipoLetra_, alinText_;
    Funcion<IFontDisp*> font_;
};

using Botones = std::array<Puntero<IDispatch>, Cuantos>;

void Volver(IStream* flujo) {
    Comprobar(flujo->Seek({}, STREAM_SEEK_SET, nullptr), "Seek");
}

void Leer(IStream* flujo, std::vector<char>& bytes) {
    ULONG leidos = 0;
    Comprobar(flujo->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &leidos), "Read");
    if (leidos != bytes.size())
        throw FalloCom(STG_E_READFAULT, "the stream is short");
}

} // namespace

bool MedirCargar() {
    const auto componente = AbrirComponente();
    const CLSID clase = componente.Clase(L"Pincela.Botonazo");
    Botones botones;
    const auto hacer = [&] {
        for (auto& boton : botones)
            boton = componente.Crear(clase).Como<IDispatch>();
    };
    const auto soltar = [&] { botones = {}; };
    const auto iniciar = [](IDispatch* boton) {
        Comprobar(Puntero<IDispatch>(boton).Como<IPersistStreamInit>()->InitNew(), "InitNew");
    };

    const auto modelo = componente.Crear(clase).Como<IDispatch>();
    const Asignacion asignar(modelo.get());
    iniciar(modelo.get());
    asignar(modelo.get());
    Puntero<IStream> flujo;
    Comprobar(CreateStreamOnHGlobal(nullptr, TRUE, flujo.Recibir()), "CreateStreamOnHGlobal");
    for (int i = 0; i < Cuantos; ++i)
        Comprobar(modelo.Como<IPersistStreamInit>()->Save(flujo.get(), FALSE), "Save");
    ULARGE_INTEGER total{};
    Comprobar(flujo->Seek({}, STREAM_SEEK_CUR, &total), "Seek");
    std::vector<char> bytes(static_cast<std::size_t>(total.QuadPart) / Cuantos);

    const Lado medido{[&] {
                          Volver(flujo.get());
                          for (const auto& boton : botones)
                              Comprobar(boton.Como<IPersistStreamInit>()->Load(flujo.get()),
                                        "Load");
                      },
                      hacer, soltar};
    const Lado vara{[&] {
                        Volver(flujo.get());
                        for (const auto& boton : botones) {
                            Leer(flujo.get(), bytes);
                            iniciar(boton.get());
                            asignar(boton.get());
                        }
                    },
                    hacer, soltar};
    return Informar("cargar", Razon(medido, vara, 1, 31), 1.0);
}

} // namespace medidas
