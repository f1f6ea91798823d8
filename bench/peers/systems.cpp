// A system of twenty equations beside Eigen, whose factors need no told order of additions.

#include <Eigen/Dense>
#include <cstdio>
#include <random>
#include <vector>

#include "numeric/linear_systems.h"
#include "race.h"

namespace {

using namespace tavrelo;

constexpr std::size_t kUnknowns = 20;

}  // namespace

int main() {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> element(-10, 10);
    Eigen::MatrixXd peer(kUnknowns, kUnknowns);
    numeric::SquareMatrix given(kUnknowns);
    for (std::size_t i = 0; i < kUnknowns; ++i) {
        for (std::size_t j = 0; j < kUnknowns; ++j) {
            given(i, j) = element(random);
            peer(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(j)) = given(i, j);
        }
    }
    const Eigen::VectorXd peer_right_side = Eigen::VectorXd::Ones(kUnknowns);
    const std::vector<double> right_side(kUnknowns, 1.0);
    const std::vector<double> times = bench::Race({{"ours",
                                                    [&] {
                                                        numeric::SquareMatrix a = given;
                                                        std::vector<double> b = right_side;
                                                        numeric::SolveLinear(a, b);
                                                        bench::Keep(b[0]);
                                                    }},
                                                   {"Eigen", [&] {
                                                        const Eigen::VectorXd x =
                                                            peer.partialPivLu().solve(peer_right_side);
                                                        bench::Keep(x[0]);
                                                    }}});
    const bench::Table table({"Beside Eigen, ns", "Tavrelo", "Eigen", "ratio"});
    table.Row(
        "LU factors and solution, 20 by 20",
        {bench::Nanoseconds(times[0]), bench::Nanoseconds(times[1]), bench::Ratio(times[0] / times[1])});
}
