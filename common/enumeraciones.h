// The vocabulary shared by every control: enumerations and the curvature record.
//
// All are 32-bit and none is validated: a value outside its enumeration is stored and saved as
// it stands, and each control says what it draws.
#pragma once

#include <cstdint>

namespace pincela {

/// Background of text boxes and panel. Listed out of value order on purpose.
enum class TBack : std::int32_t { Opaco = 1, Transparente = 0 };

/// What a text box accepts as typed input.
enum class TText : std::int32_t { TextNorm, Mayuscula, NumericoEnt, NumericoDes };

/// Colour of the shadow under an edit field.
enum class TSombra : std::int32_t { Negra = 1, Gris, Blanca, Invertida };

/// Three-step size of borders and margins; its number is used directly as pixels.
enum class Tamanio : std::int32_t { Chico = 1, Mediano, Grande };

/// How a button shows its border against its background.
enum class EfectosBoton : std::int32_t { boton, BotOculoSobre, BotVisibSobre };

/// Lettering effect: placement of the two shadow copies of a caption.
enum class TLetra : std::int32_t { Normal, Levantada, Undida, InvesoL, InvesoU };

/// Shape of the window.
enum class TEstilos : std::int32_t { CLASICO, REDONDEADO };

/// Fill style.
enum class TEstilosR : std::int32_t { Solido, D_Hori, D_Vert, D_Pirami, D_Diagonal };

/// Channel of a colour.
enum class ColoresRGB : std::int32_t { Rojo, Verde, Azul };

/// Border style.
enum class TEstilosB : std::int32_t { Ninguno, Normal, Lineal, Colores, Degradados };

/// Nine places, column by column: left column first, top to bottom in each.
enum class Alineaciones : std::int32_t {
    Izq_Sup,
    Izq_Med,
    Izq_Inf,
    Med_Sup,
    Medio,
    Med_Inf,
    Der_Sup,
    Der_Med,
    Der_Inf
};

enum class Horizontal { Izquierda, Centro, Derecha };
enum class Vertical { Arriba, Centro, Abajo };

/// True for the nine places themselves; the two classes below are defined only for those.
constexpr bool EsLugar(Alineaciones lugar) {
    return lugar >= Alineaciones::Izq_Sup && lugar <= Alineaciones::Der_Inf;
}
constexpr Horizontal ClaseHorizontal(Alineaciones lugar) {
    return static_cast<Horizontal>(static_cast<std::int32_t>(lugar) / 3);
}
constexpr Vertical ClaseVertical(Alineaciones lugar) {
    return static_cast<Vertical>(static_cast<std::int32_t>(lugar) % 3);
}

/// Curvature of a rounded shape: the corner ellipse as a fraction of width and height.
struct tRectRedo {
    float RelX = 0;
    float RelY = 0;
};
static_assert(sizeof(tRectRedo) == 8 && alignof(tRectRedo) == 4);

} // namespace pincela
