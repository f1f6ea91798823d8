#include "tools/particle/describe.h"

#include <gtest/gtest.h>

#include <variant>

#include "mechanics/particle/equilibrium.h"
#include "mechanics/particle/particle_solver.h"
#include "notation/force_parser.h"

namespace tavrelo::tools::particle {
namespace {

constexpr int kDecimals = 3;

ForcesInView Typed(std::initializer_list<const char*> texts, std::optional<double> asked = {}) {
    ForcesInView forces;
    for (const char* text : texts) {
        const auto record = std::get<notation::ForceRecord>(notation::ParseForce(text, kDecimals));
        forces.Add(record, record.clock ? std::nullopt : asked, {});
    }
    return forces;
}

std::string Described(const ForcesInView& forces, double rotation = 0) {
    return DescribeForces(forces, rotation, kDecimals);
}

TEST(DescribeForces, TellsAnEmptyDiagram) {
    EXPECT_EQ(Described({}), "Fuerzas sobre un punto, con ejes x, y. Sin fuerzas.");
}

TEST(DescribeForces, TellsNamesDirectionsAndSizes) {
    EXPECT_EQ(
        Described(Typed({"p30x,F1", "s45x,F2", "v-100"})),
        "Fuerzas sobre un punto, con ejes x, y. Tres fuerzas: F1 a 30 grados, desconocida; F2 a 135 grados, "
        "desconocida; 100 hacia abajo.");
    EXPECT_EQ(Described(Typed({"h5"})),
              "Fuerzas sobre un punto, con ejes x, y. Una fuerza: 5 hacia la derecha.");
}

TEST(DescribeForces, TellsTurnedAxes) {
    EXPECT_EQ(
        Described(Typed({"v2", "h-3"}), -30),
        "Fuerzas sobre un punto, con ejes x, y girados menos 30 grados. Dos fuerzas: 2 hacia arriba; 3 hacia "
        "la izquierda.");
}

TEST(DescribeForces, TellsAnUnknownDirectionAndWhereItIsDrawn) {
    const ForcesInView forces = Typed({"80<A", "R<C"}, 170);
    EXPECT_EQ(DescribeForce(forces, 0, kDecimals), "80 de ángulo desconocido A, dibujada a 170 grados");
    EXPECT_EQ(DescribeForce(forces, 1, kDecimals),
              "R desconocida, de ángulo desconocido C, dibujada a 170 grados");
}

TEST(DescribeForces, TellsComponentsThatAreUnknown) {
    const ForcesInView forces = Typed({"-0.4N,N", "p30x,12:"}, 110);
    EXPECT_EQ(DescribeForce(forces, 0, kDecimals),
              "componente x menos 0.4 N, componente y N, desconocida, dibujada a 110 grados");
    EXPECT_EQ(DescribeForce(forces, 1, kDecimals), "12 a 30 grados, llega al punto");
}

/// By the law of sines F1 = 100 sin 45 / sin 105 = 73.205 and F2 = 100 sin 60 / sin 105 = 89.658.
TEST(DescribeForces, TellsWhatWasFoundUntilItCountsAsGiven) {
    ForcesInView forces = Typed({"p30x,F1", "s45x,F2", "v-100"});
    const auto outcome = mechanics::particle::SolveEquilibrium(forces.Forces(), kDecimals);
    forces.Take(std::get<mechanics::particle::Solution>(outcome).forces);
    EXPECT_EQ(DescribeForce(forces, 0, kDecimals), "F1: 73.205 a 30 grados, hallada");
    EXPECT_EQ(DescribeForce(forces, 1, kDecimals), "F2: 89.658 a 135 grados, hallada");
    EXPECT_EQ(DescribeForce(forces, 2, kDecimals), "100 hacia abajo");
    forces.AcceptFound();
    EXPECT_EQ(DescribeForce(forces, 0, kDecimals), "73.205 a 30 grados");
}

}  // namespace
}  // namespace tavrelo::tools::particle
