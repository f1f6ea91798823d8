#pragma once

#include <string_view>

/// The messages with which a problem of projectiles may be refused, by kind.
namespace tavrelo::physics {

inline constexpr std::string_view kThrownPointRefusals[] = {
    "No hay solución.",
    "No hay solución. Verifica los datos.",
};

inline constexpr std::string_view kLaunchSpeedRefusals[] = {
    "Estás poniendo el ángulo igual al ángulo de lanzamiento.",
    "Estás poniendo el tiempo igual al tiempo inicial.",
    "Estás poniendo x igual a la del punto inicial.",
    "Estás poniendo la coordenada x igual a la del punto inicial.",
    "El ángulo alfa no puede ser 90° ni -90°.",
    "No hay solución para v0.",
    "No hay solución.",
    "Error en los datos.",
};

inline constexpr std::string_view kLaunchAngleRefusals[] = {
    "Estás poniendo el tiempo igual al tiempo inicial.",
    "Estás poniendo x igual a la del punto inicial.",
    "Estás poniendo la coordenada x igual a la del punto inicial.",
    "El ángulo alfa no puede ser 90° ni -90°.",
    "No hay solución.",
    "Juego de datos no válido, en vista de la relación vi^2 - v0^2",
};

inline constexpr std::string_view kHorizontalSpeedRefusals[] = {
    "Estás poniendo el tiempo igual al tiempo inicial.",
    "Estás poniendo la coordenada x igual a la del punto inicial.",
    "El ángulo alfa no puede ser 90° ni -90°.",
    "No hay solución para v0x.",
    "Estos datos no son aplicables en vista de la relación",
    "El punto de máxima altura ocurre cuando t",
    "El punto de máxima altura está en y",
    "Esta rutina no es aplicable para alfa",
    "No encontré raíces en el intervalo dado. Si deseas modificar el intervalo de búsqueda, usa la rutina "
    "\"Calcular raíces\" de la calculadora .",
};

inline constexpr std::string_view kVerticalSpeedRefusals[] = {
    "Estás poniendo el tiempo igual al tiempo inicial.",
    "Estás poniendo x igual a la del punto inicial.",
    "Estás poniendo la coordenada x igual a la del punto inicial.",
    "El ángulo alfa no puede ser 90° ni -90°.",
    "No hay solución.",
    "v0x no puede ser cero.",
    "Estos datos no son aplicables en vista de la relación",
};

inline constexpr std::string_view kWholeFlightRefusals[] = {
    "No hay solución.",
    "Datos no válidos.",
};

inline constexpr std::string_view kTwoThrownPointsRefusals[] = {
    "Falló la rutina.",
    "No hay solución.",
    "Datos no válidos.",
};

inline constexpr std::string_view kInclineRefusals[] = {
    "La trayectoria del móvil 1 no interseca la recta.",
    "Resuelve el problema de otra manera.",
};

inline constexpr std::string_view kCrossingRefusals[] = {
    "Las trayectorias no se intersecan.",
    "Maneja este caso con otra rutina.",
};

inline constexpr std::string_view kPathRefusals[] = {
    "No pude calcular la distancia recorrida.",
};

inline constexpr std::string_view kCollisionRefusals[] = {
    "No existe solución.",
    "No hay solución.",
    "El tiempo del choque debe ser mayor que el tiempo inicial del móvil 2.",
};

inline constexpr std::string_view kInterceptionRefusals[] = {
    "No hay solución.",
    "El límite superior debe ser mayor que t0.",
};

}  // namespace tavrelo::physics
