#include <gtest/gtest.h>

#include <string>

#include "notation/force_parser.h"

namespace tavrelo::notation {
namespace {

constexpr int kDecimals = 3;

constexpr const char* kUnreadable = "Error en la especificación del vector.";
constexpr const char* kMissing = "Falta un elemento en el formato.";
constexpr const char* kNoMagnitude = "Magnitud negativa o cero.";
constexpr const char* kLongSymbol = "El símbolo debe constar de una literal y uno o dos subíndices.";
constexpr const char* kLongComponent =
    "El símbolo debe constar de una literal y uno o dos subíndices entre 0 y 9.";
constexpr const char* kOutOfRange = "La dirección debe estar entre -180° y 180°.";
constexpr const char* kAngleFactor = "No se permiten factores para el ángulo.";

struct RefusalRow {
    const char* text;
    const char* message;
};

std::string RefusalOf(const std::string& text) {
    const auto result = ParseForce(text, kDecimals);
    const auto* refusal = std::get_if<text::Refusal>(&result);
    return refusal ? refusal->text : "accepted";
}

TEST(ParseForceRefuses, TextsWithoutAFormat) {
    const RefusalRow rows[] = {
        {"xyz", "Inventaste un nuevo formato"}, {"5", "Inventaste un nuevo formato"},
        {"", "Inventaste un nuevo formato"},    {":", "Inventaste un nuevo formato"},
        {"1,2;3", "Formato incorrecto."},       {"1,2<3", "Formato incorrecto."},
        {"1;2<3", "Formato incorrecto."},       {"1,2,3", "Formato incorrecto."},
    };
    for (const RefusalRow& row : rows)
        EXPECT_EQ(RefusalOf(row.text), row.message) << row.text;
}

TEST(ParseForceRefuses, MissingParts) {
    const RefusalRow rows[] = {
        {"p30x,", kMissing},
        {",5", kMissing},
        {"5,", kMissing},
        {",", kMissing},
        {"<30", kMissing},
        {"5;", kMissing},
        {"pax,", kMissing},
        {"p30x,:", kMissing},
        {"h", "Falta el valor de la componente X."},
        {"h-", "Falta el valor de la componente X."},
        {"h:", "Falta el valor de la componente X."},
        {"v", "Falta el valor de la componente Y."},
        {"v-", "Falta el valor de la componente Y."},
        {"u", "Falta el valor del ángulo."},
        {"u :", "Falta el valor del ángulo."},
    };
    for (const RefusalRow& row : rows)
        EXPECT_EQ(RefusalOf(row.text), row.message) << row.text;
}

TEST(ParseForceRefuses, AnglesOfTheQuadrantFormats) {
    const RefusalRow rows[] = {
        {"pax,10", "En este formato el ángulo debe conocerse."},
        {"p x,10", "En este formato el ángulo debe conocerse."},
        {"p3,x,10", "Formato incorrecto."},
        {"pay,5h", "En este formato el ángulo debe conocerse."},
        {"p-30x,10", "En este formato el ángulo debe ser positivo."},
        {"s-1x,5v", "En este formato el ángulo debe ser positivo."},
        {"p90.5x,10", "En este formato el ángulo debe estar entre 0° y 90°."},
        {"c91y,5v", "En este formato el ángulo debe estar entre 0° y 90°."},
        {"p90x,5h", "El ángulo no debe ser 90° ó -90°."},
        {"t90x,5v", "El ángulo no debe ser 90° ó -90°."},
        {"c0y,5h", "El ángulo no debe ser 90° ó -90°."},
        {"p0x,5v", kUnreadable},
        {"s0x,5v", kUnreadable},
    };
    for (const RefusalRow& row : rows)
        EXPECT_EQ(RefusalOf(row.text), row.message) << row.text;
}

TEST(ParseForceRefuses, MagnitudesThatAreNotPositive) {
    for (const char* text : {"p30x,0", "p30x,-5", "p30x,-F", "p30x,0F", "p30x,0h", "0,0", "0<30", "-5<30",
                             "-5<200", "0<a", "h0", "v0", "v-0", "h-.", "-3<a"})
        EXPECT_EQ(RefusalOf(text), kNoMagnitude) << text;
    EXPECT_EQ(RefusalOf("-F<30"), "La magnitud no debe tener signo negativo en este formato.");
    EXPECT_EQ(RefusalOf("-F<a"), "La magnitud no debe tener signo negativo en este formato.");
}

TEST(ParseForceRefuses, LongSymbols) {
    const RefusalRow rows[] = {
        {"p30x,FABC", kLongSymbol},  {"p30x,2FABC", kLongSymbol},
        {"FABC<30", kLongSymbol},    {"FABC;a", kLongSymbol},
        {"FABC,1", kLongComponent},  {"1,FABC", kLongComponent},
        {"P30x,10", kLongComponent}, {"FABC,F", kLongComponent},
        {"p30x,-FABC", kLongSymbol},  // the length is looked at first
    };
    for (const RefusalRow& row : rows)
        EXPECT_EQ(RefusalOf(row.text), row.message) << row.text;
}

TEST(ParseForceRefuses, DirectionsOutOfRangeAndFactorsOfAngles) {
    const RefusalRow rows[] = {
        {"10<200", kOutOfRange}, {"10<-180.5", kOutOfRange}, {"F<181", kOutOfRange}, {"u200", kOutOfRange},
        {"20<2a", kAngleFactor}, {"F<-a", kAngleFactor},     {"u2a", kAngleFactor},  {"u-a", kAngleFactor},
    };
    for (const RefusalRow& row : rows)
        EXPECT_EQ(RefusalOf(row.text), row.message) << row.text;
}

TEST(ParseForceRefuses, PartsThatAreNeitherNumberNorSymbol) {
    for (const char* text : {"p30x,--", "p30x,--F", "1-2,3", "p30x,-", "-,5", "5,1.2.3", "u-", "h--", "v5-",
                             "10<-", "h1+5", "1..2<30"})
        EXPECT_EQ(RefusalOf(text), kUnreadable) << text;
}

TEST(ParseForceRefuses, NumbersThatOverflow) {
    const std::string digits(400, '9');
    for (const std::string& text :
         {"h" + digits, "p30x," + digits, digits + ",1", "1<" + digits, "u" + digits, digits + "F<30",
          std::string("1E308,1E308"), std::string("p89.999x,1E308h")})
        EXPECT_EQ(RefusalOf(text), kUnreadable) << text.substr(0, 8);
}

TEST(ParseForceRefuses, NothingByThrowing) {
    for (char filler : {'9', 'F', '-', '.', ',', '<', ':', ' ', 'h', '\0', '\x80', '\xff'}) {
        const std::string long_text(10000, filler);
        for (const std::string& text :
             {long_text, "p30x," + long_text, "h" + long_text, long_text + "<" + long_text,
              "p" + long_text + "x,5h", "u" + long_text, long_text + ":"})
            EXPECT_NO_THROW(ParseForce(text, kDecimals)) << filler;
    }
}

}  // namespace
}  // namespace tavrelo::notation
