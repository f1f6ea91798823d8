#include "tools/calculator/catalogue.h"

#include <algorithm>
#include <iterator>

namespace tavrelo::tools::calculator {
namespace {

// Titles and prompts stand as the students know them, slips included.
// clang-format off
constexpr Routine kRoutines[] = {
    {1, "Calcular determinante de orden n <= 20.",
     "{a!1!1, a!1!2, a!1!3, ..., a!1!n, a!2!1, a!2!2, a!2!3, ..., a!2!n, ..., a!n!n}"},
    {2, "Resolver sistema de ecuaciones lineales con n <= 20 incógnitas.",
     "{a!1!1, a!1!2, a!1!3, ..., a!1!n, b!1, a!2!1, a!2!2, a!2!3, ..., a!2!n, b!2, ..., a!n!n, b!n}"},
    {5, "Resolver la ecuación cuadrática Ax¡2 + Bx + C = 0.",
     "{A, B, C)"},
    {6, "Resolver la ecuación cuadrática A(Bx + C)¡2 + Dx + E = 0.",
     "{A, B, C, D, E}"},
    {7, "Resolver la ecuación cúbica Ax¡3 + Bx¡2 + Cx + D = 0.",
     "{A, B, C, D}"},
    {8, "Resolver la ecuación trigonométrica   A cos ;q + B sen ;q + C = 0.",
     "{A, B, C}"},
    {9, "Calcular las raíces \"r!i\" de f(x) = 0 en x #elem [x!1, x!2]   (Bisección).",
     "> f(x), {x!1, x!2}    (Checa f(r!i) para identificar discontinuidades)"},
    {10, "Calcular un triángulo dados 3 datos sobre lados L!i y/o ángulos A!i.",
     "{L!1, A!1, L!2, A!2, L!3, A!3}  (Escribe \"x\" por cada incógnita\")"},
    {11, "Calcular lados y ángulos de un triángulo dados sus vértices.",
     "{x!1, y!1, x!2, y!2, x!3, y!3}   (Coordenadas de los vértices)"},
    {12, "Calcular lados y ángulos de un polígono dados sus vértices.",
     "{x!1, y!1, x!2, y!2, x!3, y!3, ...}   (Coordenadas de los vértices)"},
    {13, "Evaluar la función f(x) en x!1, x!2, x!3, ...",
     "> f(x), {x!1, x!2, x!3, ...}"},
    {14, "Evaluar la función f(x,y) en (x!1, y!1), (x!2, y!2),...",
     "> f(x, y), {x!1, y!1, x!2, y!2,...}"},
    {15, "Evaluar la función f(x,y,z) en (x!1, y!1, z!1), (x!2, y!2, z!2),...",
     "> f(x, y, z), {x!1, y!1, z!1, x!2, y!2, z!2, ...}"},
    {16, "Evaluar f(x) desde x!1 en incrementos de ;Dx hasta x!2.",
     "> f(x), {x!1, x!2, ;Dx}"},
    {17, "Calcular la derivada de f(x) en x!1, x!2, x!3, ...",
     "> f(x), {x!1, x!2, x!3, ...}"},
    {18, "Calcular la segunda derivada de f(x) en el punto x.",
     "> f(x), {x [,;e]}    Lee la ayuda abajo."},
    {19, "Calcular la integral de f(x) en el intervalo [x!1, x!2].",
     "> f(x), {x!1, x!2}   (o bien {x!1, x!2 ,1 [,;e]]}    Lee la ayuda abajo)"},
    {20, "Graficar la función y = f(x) en [x!1, x!2].",
     "> f(x), {x!1, x!2}  (Coordenadas cartesianas)"},
    {21, "Graficar la función r = f(;q) en [;q!1, ;q!2].",
     "> f(;q), {;q!1, ;q!2 [,n]}   (Coordenadas polares. Usa \"x\" en lugar de \";q\")"},
    {22, "Graficar las ecuaciones paramétricas x = f(u), y = g(u).",
     "> f(u) & g(u)  (Usa \"x\" en vez de \"u\").   {u!1, u!2 [,n]}"},
    {23, "Obtener la recta de mínimos cuadrados y = ax + b.",
     "{x!1, y!1, x!2, y!2, x!3, y!3, ...}    (Regresión lineal X-Y)"},
    {24, "Ajustar por mínimos cuadrados a la curva  y = b e¡a¡x.",
     "{x!1, y!1, x!2, y!2, x!3, y!3, ...}    (Regresión lineal X-ln(Y))"},
    {25, "Ajustar por mínimos cuadrados a la curva  y = bx¡a.",
     "{x!1, y!1, x!2, y!2, x!3, y!3, ...}    (Regresión lineal ln(X)-ln(Y))"},
    {26, "Ajustar polinomio de orden n: A!nx¡n + A!n!-!1 x¡n¡-¡1 + ... + A!1 x + A!0.",
     "{x!1, y!1, x!2, y!2, x!3, y!3, ... [, n]}"},
    {27, "Calcular $V!1 + $V!2, $V!2 ;- $V!1, $V!1 #esca $V!2, $V!1 #cruz $V!2.",
     "{$V!1, $V!2}"},
    {28, "Calcular la suma vectorial de N vectores $F!1 + $F!2 + ... + $F!N.",
     "{$F!1, $F!2, $F!3, ..., $F!N}"},
    {29, "Calcular la suma de productos ;S;l!i $F!i.",
     "{;l!1, $F!1, ;l!2, $F!2, ;l!3, $F!3, ..., ;l!N, $F!N}"},
    {30, "Calcular la suma de momentos ;S$r!i #cruz $F!i  c/r al Origen  [o c/r a $r!A].",
     "{$r!1, $F!1, $r!2, $F!2, $r!3, $F!3,..., $r!N, $F!N [, $r!A]}   ($r's = vectores de posición)"},
    {31, "Rotar un vector $V, o los ejes de coordenadas, un ángulo dado ;q.",
     "{$V, ;q, \"v\"}  (rotar vector) o bien {$V, ;q, \"e\"}  (rotar ejes)"},
    {32, "Calcular ;l y ;m de la combinación lineal $V = ;l $a + ;m $b.",
     "{$a, $b, $V}"},
    {33, "Calcular $V dadas sus proyecciones C!a y C!b sobre $a y $b.",
     "{$a, C!a, $b, C!b}    (C!a y C!b en múltiplos de |$a| y |$b|, respectivamente)"},
    {34, "Resultante de un sistema de N fuerzas paralelas (una dimensión).",
     "{x!1, F!1!y , x!2, F!2!y , ..., x!N, F!N!y [, x!L]}"},
    {35, "Resultante de un sistema de fuerzas paralelas (dos dimensiones).",
     "{$r!1, F!1!z , $r!2, F!2!z , ... [$r!L]}"},
    {36, "Resultante de un sistema de N fuerzas coplanarias.",
     "{$r!1, $F!1, $r!2, $F!2, ..., $r!N, $F!N [, $r!L]}"},
    {37, "Resultante de una distribución lineal de fuerzas.",
     "> f(x),  {x!1, x!2}   Densidad lineal de fuerza y límites"},
    {38, "Resolver problema de equilibrio de una partícula.",
     "{$F!1, $F!2, $F!3,..., $F!N}     (Incógs: F!n, F!m   ó   F!n, ;q!m   ó   ;q!n, ;q!m)"},
};
// clang-format on

}  // namespace

const Routine* FindRoutine(int number) {
    const auto found = std::ranges::find(kRoutines, number, &Routine::number);
    return found == std::end(kRoutines) ? nullptr : found;
}

}  // namespace tavrelo::tools::calculator
