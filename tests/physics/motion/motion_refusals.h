#pragma once

#include <string_view>

/// The messages with which a problem of motion may be refused, by kind.
namespace tavrelo::physics {

inline constexpr std::string_view kPointRefusals[] = {
    "El móvil no alcanza esta posición.",
    "Dato no aplicable al movimiento uniforme.",
};

inline constexpr std::string_view kTurnRefusals[] = {
    "Dato no aplicable al movimiento uniforme.",
};

inline constexpr std::string_view kIntervalRefusals[] = {
    "Esta rutina no se aplica cuando la aceleración es cero.",
    "Estás poniendo dt = 0.",
    "Estás poniendo dv = 0.",
    "No podemos tener tf = ti. Correspondería a dx = 0 y dv = 0.",
    "Datos no aplicables al movimiento uniforme.",
    "La velocidad es constante, igual a la inicial.",
    "La velocidad no puede cambiar en el movimiento uniforme.",
    "El factor \"C\" no puede ser igual a 1. Correspondería a dt = 0 ó dx = 0.",
    "El factor \"C\" no puede ser 0.",
    "No hay solución.",
};

inline constexpr std::string_view kSpeedRefusals[] = {
    "No aplicable dado que se conoce la aceleración.",
    "Sólo manejo este caso cuando t0 = 0.",
    "No hay solución para v",
    "No hay solución para la velocidad.",
    "Caso especial no aplicable al movimiento uniforme.",
    "No puedes tomar C = 1 en este procedimiento.",
    "Los tiempos inicial y final son iguales",
    "El factor C no puede ser +1 ni -1 en este caso.",
    "Estás sustituyendo el tiempo del punto base.",
    "El intervalo considerado tiene duración cero.",
    "No existe solución para  v",
    "El factor \"C\" no puede ser 0.",
    "Existe solución si se cumple que",
};

inline constexpr std::string_view kAccelerationRefusals[] = {
    "Sólo manejo este caso cuando t0 = 0.",
    "Existe solución solamente si",
    "No existe solución. Datos inconsistentes.",
    "No hay solución para la aceleración.",
    "Ninguna de estas subrutinas es aplicable al movimiento uniforme.",
    "No puedes tomar C = 1 en este procedimiento.",
    "Estás sustituyendo el tiempo del punto base.",
    "Estás igualando los tiempos inicial y final.",
    "Estás poniendo igual a cero la duración \"dt\" del intervalo.",
    "Estás sustituyendo la posición del punto base.",
    "Estás poniendo el desplazamiento \"dx\" igual a cero.",
    "No existe valor de aceleración\nque cumpla las condiciones dadas.",
    "El factor \"C\" no puede ser 0.",
};

inline constexpr std::string_view kBothRefusals[] = {
    "Sólo manejo este caso cuando t0 = 0.",
    "Estás sustituyendo datos del punto base.",
    "Estás poniendo iguales los tiempos inicial y final.",
    "Estás poniendo dt = 0.",
    "Estás poniendo el desplazamiento igual a cero.",
    "No puedes tomar C = 1 en esta subrutina.",
    "La velocidad v es arbitraria.",
    "No existe solución.",
};

inline constexpr std::string_view kTwoPointsRefusals[] = {
    "Sólo manejo este caso cuando t0 = 0.",
    "Estás sustituyendo datos del punto base.",
    "Estás poniendo iguales los tiempos inicial y final.",
    "Estás poniendo dt = 0.",
    "Estás poniendo el desplazamiento igual a cero.",
    "No puedes tomar C = 1 en esta subrutina.",
    "La velocidad v es arbitraria.",
    "No existe solución.",
    "El coeficiente del sistema es cero.",
    "No hay solución.",
    "No pude ejecutar la instrucción.",
};

inline constexpr std::string_view kIntervalLineRefusals[] = {
    "Datos de más, de menos, o inconsistentes",
    "Valor 0 no permitido",
    "Valor 0 de dt no permitido.",
    "ti no debe ser igual a tf.",
    "Valor 0 de la aceleración no permitido.",
    "Valor 0 de dx no permitido.",
    "Si vi = vf entonces dx = 0.",
    "Si xi = xf entonces vi = -vf. Datos insuficientes.",
    "Si vi = -vf entonces xi = xf. Datos insuficientes.",
    "No puede ser a = 0 ni xi = xf.",
    "No hay solución para vi",
    "No hay solución para vi.",
    "No hay solución para vf.",
    "No hay solución para vi o dt",
    "No pude ejecutar la instrucción.",
};

inline constexpr std::string_view kThreePointsRefusals[] = {
    "El determinante del sistema es cero.",
};

inline constexpr std::string_view kLinkRefusals[] = {
    "Las aceleraciones no pueden ser iguales.",
    "No hay solución.",
    "No pude ejecutar la instrucción.",
};

inline constexpr std::string_view kMeetingRefusals[] = {
    "No hay puntos que cumplan la condición dada.",
    "No hay solución.",
};

inline constexpr std::string_view kRatioRefusals[] = {
    "Condición inaceptable.",     "Procedimiento no aplicable.", "No existe solución para V0.",
    "No existe solución para A.", "No existe solución para T0.", "No pude ejecutar la instrucción.",
};

inline constexpr std::string_view kSystemRefusals[] = {
    "El coeficiente del sistema es cero.",
    "No hay solución.",
    "No pude ejecutar la instrucción.",
};

}  // namespace tavrelo::physics
