#include "notation/vector_parser.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

namespace tavrelo::notation {
namespace {

constexpr double kTolerance = 1e-9;
constexpr double kRadians = std::numbers::pi / 180;
const double kCos30 = std::sqrt(3.0) / 2;

struct VectorRow {
    const char* text;
    double magnitude, direction, x, y;
    int hour;
    double angle;
};

void ExpectVector(const VectorRow& row) {
    const auto result = ParseVector(row.text);
    ASSERT_TRUE(std::holds_alternative<VectorRecord>(result))
        << row.text << ": " << std::get<text::Refusal>(result).text;
    const VectorRecord& record = std::get<VectorRecord>(result);
    EXPECT_NEAR(record.magnitude, row.magnitude, kTolerance) << row.text;
    EXPECT_NEAR(record.direction, row.direction, kTolerance) << row.text;
    EXPECT_NEAR(record.x, row.x, kTolerance) << row.text;
    EXPECT_NEAR(record.y, row.y, kTolerance) << row.text;
    EXPECT_EQ(record.clock.hour, row.hour) << row.text;
    EXPECT_NEAR(record.clock.angle, row.angle, kTolerance) << row.text;
}

TEST(ParseVector, ReadsEveryFormat) {
    const double m = 5 / kCos30;  // a horizontal component of 5 at 30 degrees
    const VectorRow rows[] = {
        {"p30x,10", 10, 30, 10 * kCos30, 5, 2, 30},
        {"s30y,10", 10, 120, -5, 10 * kCos30, 11, 30},
        {"t30x,2", 2, -150, -2 * kCos30, -1, 8, 30},
        {"c30y,2", 2, -60, 1, -2 * kCos30, 5, 30},
        {"p30x,-10", -10, 30, -10 * kCos30, -5, 2, 30},
        {"p30x,0", 0, 30, 0, 0, 2, 30},
        {"p90x,3", 3, 90, 0, 3, 2, 90},
        {"s0x,10", 10, 180, -10, 0, 10, 0},
        {"t0x,10", 10, -180, -10, 0, 8, 0},
        {"p30x,5h", m, 30, 5, m / 2, 2, 30},
        {"s30x,-5h", m, 150, -5, m / 2, 10, 30},
        {"s30x,5h", m, 150, -5, m / 2, 10, 30},
        {"c30x,5v", 10, -30, 10 * kCos30, -5, 4, 30},
        {"p100x,1h", 1 / std::cos(80 * kRadians), 100, -1, std::tan(80 * kRadians), 2, 100},
        {"3,4", 5, std::atan2(4, 3) / kRadians, 3, 4, 1, 90 - std::atan2(4, 3) / kRadians},
        {" 3 , -4 ", 5, -std::atan2(4, 3) / kRadians, 3, -4, 5, 90 - std::atan2(4, 3) / kRadians},
        {"0,0", 0, 0, 0, 0, 3, 0},
        {"1,1", std::sqrt(2), 45, 1, 1, 2, 45},
        {"230<-34", 230, -34, 230 * std::cos(34 * kRadians), -230 * std::sin(34 * kRadians), 4, 34},
        {"230;-34", 230, -34, 230 * std::cos(34 * kRadians), -230 * std::sin(34 * kRadians), 4, 34},
        {"-2<90", -2, 90, 0, -2, 6, 0},
        {"5<180", 5, 180, -5, 0, 9, 0},
        {"5<-180", 5, -180, -5, 0, 9, 0},
        {"1E3<0", 1000, 0, 1000, 0, 3, 0},
        {"h-55", 55, 180, -55, 0, 9, 0},
        {"h5", 5, 0, 5, 0, 3, 0},
        {"h0", 0, 0, 0, 0, 3, 0},
        {"v0.24", 0.24, 90, 0, 0.24, 12, 0},
        {"v-2", 2, -90, 0, -2, 6, 0},
        {"u156", 1, 156, std::cos(156 * kRadians), std::sin(156 * kRadians), 10, 24},
        {"u-.", 1, 0, 1, 0, 3, 0},
    };
    for (const VectorRow& row : rows)
        ExpectVector(row);
}

TEST(ParseVector, LetsAComponentWithoutDirectionPassUnread) {
    for (const char* text : {"12,5h", "px,5v", ",5h", "12,h", "P30x,5h"})
        EXPECT_TRUE(std::holds_alternative<NoDirection>(ParseVector(text))) << text;
}

TEST(ParseVector, SaysWhyATextIsNoVector) {
    const std::pair<const char*, const char*> rows[] = {
        {"p90x,5h", "Formato incorrecto."},
        {"t90x,5v", "Formato incorrecto."},
        {"p0y,5v", "Formato incorrecto."},
        {"p0x,5v", "Error en la especificación del vector."},
        {"s0x,5v", "Error en la especificación del vector."},
        {"p-5x,5h", "Ángulo negativo."},
        {"p200x,5h", "La dirección debe estar entre -180° y 180°."},
        {"pax,5h", "Error en la especificación del vector."},
        {"p30x,h", "Error en la especificación del vector."},
        {"p30x,ah", "Error en la especificación del vector."},
        {",5", "Falta un elemento en el formato."},
        {"5,", "Falta un elemento en el formato."},
        {"p30x,", "Falta un elemento en el formato."},
        {",", "Falta un elemento en el formato."},
        {"pax,5", "En este formato el ángulo debe conocerse."},
        {"p x,5", "En este formato el ángulo debe conocerse."},
        {"p-30x,5", "En este formato el ángulo debe ser positivo."},
        {"p90.5x,5", "En este formato el ángulo debe estar entre 0° y 90°."},
        {"p30x,F", "Error en la especificación del vector."},
        {"P30x,5", "Error en la especificación del vector."},
        {"1,2,3", "Error en la especificación del vector."},
        {"1,2;3", "Error en la especificación del vector."},
        {"1;2<3", "Error en la especificación del vector."},
        {"F,5", "Error en la especificación del vector."},
        {"1e3,5", "Error en la especificación del vector."},
        {"1<", "Falta un elemento en el formato."},
        {";2", "Falta un elemento en el formato."},
        {"F<30", "Error en la especificación del vector."},
        {"10<200", "La dirección debe estar entre -180° y 180°."},
        {"10<-180.5", "La dirección debe estar entre -180° y 180°."},
        {"10<30:", "Error en la especificación del vector."},
        {"h", "Falta el valor de la componente X."},
        {" h ", "Falta el valor de la componente X."},
        {"v", "Falta el valor de la componente Y."},
        {"u", "Falta el valor del ángulo."},
        {"h-", "Error en la especificación del vector."},
        {"hola", "Error en la especificación del vector."},
        {"va", "Error en la especificación del vector."},
        {"ua", "Error en la especificación del vector."},
        {"u181", "La dirección debe estar entre -180° y 180°."},
        {"xyz", "Formato desconocido."},
        {"5", "Formato desconocido."},
        {"", "Formato desconocido."},
        {"H5", "Formato desconocido."},
        {"1E308,1E308", "Error en la especificación del vector."},
        {"p89.999x,1E308h", "Error en la especificación del vector."},
        {"1E999,1", "Error en la especificación del vector."},
    };
    for (const auto& [text, message] : rows) {
        const auto result = ParseVector(text);
        ASSERT_TRUE(std::holds_alternative<text::Refusal>(result)) << text;
        EXPECT_EQ(std::get<text::Refusal>(result).text, message) << text;
    }
}

TEST(ParseVector, SurvivesLongTexts) {
    const std::string digits(10000, '9');
    for (const std::string& text :
         {digits, "h" + digits, digits + "," + digits, digits + "<" + digits, "p" + digits + "x," + digits,
          "p30x," + digits + "h", std::string(10000, ',')})
        EXPECT_TRUE(std::holds_alternative<text::Refusal>(ParseVector(text))) << text.substr(0, 8);
}

}  // namespace
}  // namespace tavrelo::notation
