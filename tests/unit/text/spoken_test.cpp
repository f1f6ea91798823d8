#include "text/spoken.h"

#include <gtest/gtest.h>

#include "text/markup.h"

namespace tavrelo::text {
namespace {

struct Reading {
    const char* markup;
    const char* spoken;
};

void ExpectReadings(std::span<const Reading> readings) {
    for (const Reading& each : readings)
        EXPECT_EQ(SpokenText(RenderMarkup(kTextFont, 10, each.markup)), each.spoken) << each.markup;
}

TEST(SpokenText, ReadsTheEquationsOfForces) {
    constexpr Reading kReadings[] = {
        {";SF!x =  0.866 F!1 ;- 0.707 F!2 = 0",
         "sigma F sub x igual a 0.866 F sub 1 menos 0.707 F sub 2 igual a 0"},
        {";SF!y =  ;- F!1!2 + 20 sen A = 0",
         "sigma F sub y igual a menos F sub 12 más 20 seno de A igual a 0"},
        {";SF!x =  2 R!1 cos C!1 + 40 = 0",
         "sigma F sub x igual a 2 R sub 1 coseno de C sub 1 más 40 igual a 0"},
        {";SF!x = 0    ;SF!y = 0", "sigma F sub x igual a 0, sigma F sub y igual a 0"},
        {"C!1 = -143.13°", "C sub 1 igual a menos 143.13 grados"},
        {"(8.66, 5) = (10 #angu 30)", "abre paréntesis 8.66, 5 cierra paréntesis igual a 10 con ángulo 30"},
        {";SM!A: 6 B ;- 120 ;- 138.564 = 0", "sigma M sub A: 6 B menos 120 menos 138.564 igual a 0"},
        {"x: A!x + 20 = 0", "x: A sub x más 20 igual a 0"},
        {"M!A = ;-400", "M sub A igual a menos 400"},
        {"No hay incógnitas.", "No hay incógnitas."},
    };
    ExpectReadings(kReadings);
}

TEST(SpokenText, ReadsTheEquationsOfMotion) {
    constexpr Reading kReadings[] = {
        {"t!0 = 0, x!0 = 0, v!0 = ?, a = 2",
         "t sub 0 igual a 0, x sub 0 igual a 0, v sub 0 igual a incógnita, a igual a 2"},
        {"t!2 = 4, x'!2 = 19, v''!2 = 8, a' = ;-2",
         "t sub 2 igual a 4, x prima sub 2 igual a 19, v biprima sub 2 igual a 8, a prima igual a menos 2"},
        {"Datos: ;Dt = 3, ;Dx = 30", "Datos: delta t igual a 3, delta x igual a 30"},
        {"v¡2 = v!0¡2 + 2 a (x ;- x!0)",
         "v al cuadrado igual a v sub 0 al cuadrado más 2 a por abre paréntesis x menos x sub 0 cierra "
         "paréntesis"},
        {"4 v!0 + 8 a = 36", "4 v sub 0 más 8 a igual a 36"},
        {"o bien   v!0 = #mame 7, a = 0", "o bien, v sub 0 igual a más menos 7, a igual a 0"},
        {"d = 13", "d igual a 13"},
        {"x = t¡3", "x igual a t al cubo"},
    };
    ExpectReadings(kReadings);
}

TEST(SpokenText, ReadsTheEquationsOfProjectiles) {
    constexpr Reading kReadings[] = {
        {"En t = 0: x = 0, y = 10, v!0 = 20, ;q = 30°",
         "En t igual a 0: x igual a 0, y igual a 10, v sub 0 igual a 20, theta igual a 30 grados"},
        {"y = ;- 4.9 t¡2 + 10 t + 10", "y igual a menos 4.9 t al cuadrado más 10 t más 10"},
        {"x = 20 cos ;q t", "x igual a 20 coseno de theta por t"},
        {"y = 10 + 0.577 x ;- (6.533//v!0¡2) x¡2",
         "y igual a 10 más 0.577 x menos fracción 6.533 entre v sub 0 al cuadrado fin de fracción por x al "
         "cuadrado"},
        {"y = tan ;q x ;- (0.012//cos¡2 ;q) x¡2",
         "y igual a tangente de theta por x menos fracción 0.012 entre coseno al cuadrado de theta fin de "
         "fracción "
         "por x al cuadrado"},
        {"y = (v!0!y//12) (x ;- 5)",
         "y igual a fracción v sub 0 y entre 12 fin de fracción por abre paréntesis x menos 5 cierra "
         "paréntesis"},
        {";q!0!1 = 72.127°, ;q!0!2 = 44.438°",
         "theta sub 0 1 igual a 72.127 grados, theta sub 0 2 igual a 44.438 grados"},
        {"v!0!x¡4 ;- 400 v!0!x¡2 = 0", "v sub 0 x elevado a 4 menos 400 v sub 0 x al cuadrado igual a 0"},
        {"$r!c = (23.565, 13.605), t!c = 2.357",
         "vector r sub c igual a abre paréntesis 23.565, 13.605 cierra paréntesis, t sub c igual a 2.357"},
        {"v!0 =  19.209 y ;q = 51.34°", "v sub 0 igual a 19.209 y theta igual a 51.34 grados"},
    };
    ExpectReadings(kReadings);
}

TEST(SpokenText, ReadsWhatTheCalculatorReports) {
    constexpr Reading kReadings[] = {
        {"A!n x¡n + A!n!-!1 x", "A sub n x elevado a n más A sub n menos 1 x"},
        {"| 2 ;-1 3 |", "renglón 2, menos 1, 3"},
        {";D = ;-53", "delta igual a menos 53"},
        {"3 x!1 + ;-1 x!2 = 12", "3 x sub 1 más negativo 1 x sub 2 igual a 12"},
        {"x!1,!2 = ;-1 #mame 2 i", "x sub 1 y 2 igual a menos 1 más menos 2 i"},
        {"2 (x ;- 3)¡2 ;- x + 1 = 0",
         "2 por abre paréntesis x menos 3 cierra paréntesis al cuadrado menos x más 1 igual a 0"},
        {"x!1 = 1.732,   f(x!1) = 0", "x sub 1 igual a 1.732, f de x sub 1 igual a 0"},
        {"3 cos ;q + 4 sen ;q ;- 2 = 0", "3 coseno de theta más 4 seno de theta menos 2 igual a 0"},
        {";S x¡2 = 14, ;S xy = 21", "sigma x al cuadrado igual a 14, sigma x y igual a 21"},
        {"$V = ;l $a + ;m $b = (8.66, 5)   ó   (10 #angu 30°)",
         "vector V igual a lambda vector a más mu vector b igual a abre paréntesis 8.66, 5 cierra "
         "paréntesis, ó, 10 "
         "con ángulo 30 grados"},
        {"$V!1 #esca $V!2, $V!1 #cruz $V!2",
         "vector V sub 1 punto vector V sub 2, vector V sub 1 cruz vector V sub 2"},
        {"{$a, C!a}   (en múltiplos de |$a|)",
         "abre llave vector a, C sub a cierra llave, (en múltiplos de magnitud de vector a)"},
        {"1.5E-05 y 2E+20", "1.5 por 10 elevado a menos 5 y 2 por 10 elevado a 20"},
        {"-----", ""},
    };
    ExpectReadings(kReadings);
}

TEST(SpokenText, ReadsTypedFormulas) {
    const Reading readings[] = {
        {"x^2-3", "x al cuadrado menos 3"},
        {"t^3", "t al cubo"},
        {"2^n (x)", "2 elevado a n por abre paréntesis x cierra paréntesis"},
        {"2^(n", "2 elevado a abre paréntesis n"},  // nothing closes it
        {"√2", "raíz de 2"},
        {"√(x", "raíz de abre paréntesis x"},
        {"y = sen", "y igual a sen"},
        {"1 + 2 + ...", "1 más 2 más puntos suspensivos"},
        {"2^(n+1)*3", "2 elevado a n más 1 fin de exponente por 3"},
        {"√(3²+4²)", "raíz de 3 al cuadrado más 4 al cuadrado fin de raíz"},
        {"R(3^2+4^2)", "raíz de 3 al cuadrado más 4 al cuadrado fin de raíz"},
        {"sen(30)", "seno de 30"},
        {"2*COS(x+1)", "2 por coseno de abre paréntesis x más 1 cierra paréntesis"},
        {"1° y 2°", "1 grado y 2 grados"},
        {"x<=2, y>=3, z<>4", "x menor o igual que 2, y mayor o igual que 3, z distinto de 4"},
        {"> f(x), {1 , 2}", "f de x, abre llave 1, 2 cierra llave"},
        {"≤ 5 ⇒ x ≈ 2", "menor o igual que 5 implica x aproximadamente igual a 2"},
    };
    for (const Reading& each : readings)
        EXPECT_EQ(SpokenText(each.markup), each.spoken);
}

/// Prose keeps its signs: hyphens, brackets and strokes between words are no operators.
TEST(SpokenText, LeavesProseAsItStands) {
    constexpr const char* kProse[] = {
        "Elige un tema (el que quieras) de la lista: \"Ayuda\".",
        "cuerpo-rígido",
        "x-ésimo",
        "¿Cuál? ¡Ésta!",
        "La tensión sube a la derecha...",
    };
    for (const char* text : kProse)
        EXPECT_EQ(SpokenText(std::string_view(text)), text);
    EXPECT_EQ(SpokenText("con V0 y/o θ"), "con V 0 y o theta");
    EXPECT_EQ(SpokenText("c/r al Origen"), "con respecto al Origen");
}

TEST(SpokenText, TellsTheCapitalWhereTheSmallLetterIsThereToo) {
    EXPECT_EQ(SpokenText("x − X = 0"), "x menos X mayúscula igual a 0");
    EXPECT_EQ(SpokenText("X = 15 t"), "X igual a 15 t");
    EXPECT_EQ(SpokenText("x = 1\nX = 2"), "x igual a 1\nX mayúscula igual a 2");
    // A conjunction and a preposition are no quantities.
    EXPECT_EQ(SpokenText("A = 2 a la derecha"), "A igual a 2 a la derecha");
}

TEST(SpokenText, ReadsTheLinesOfAPicture) {
    const Font font{std::string(kTextFont), 10};
    EXPECT_EQ(SpokenText(LayOutMarkup("x = 15 t, y = ;- 4.9 t¡2 + v!0 t", font, kBlack)),
              "x igual a 15 t, y igual a menos 4.9 t al cuadrado más v sub 0 t");
    EXPECT_EQ(SpokenText(LayOutMarkup("$V!1 #cruz $V!2", font, kBlack)),
              "vector V sub 1 cruz vector V sub 2");
}

}  // namespace
}  // namespace tavrelo::text
