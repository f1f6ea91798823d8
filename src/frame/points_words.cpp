#include "frame/points_words.h"

namespace tavrelo::frame {
namespace {

using mechanics::points::Configuration;
using mechanics::points::Mover;

std::string Range(int first, int last) {
    return first == last ? std::to_string(first) : std::to_string(first) + " a " + std::to_string(last);
}

std::string MoverWords(int number, const Mover& mover) {
    std::string words = "Móvil " + std::to_string(number) + (mover.points == 1 ? ": punto " : ": puntos ") +
                        Range(0, mover.points - 1);
    if (mover.stretches.size() > 1)
        for (std::size_t k = 0; k < mover.stretches.size(); ++k)
            words += ", tramo " + std::to_string(k + 1) + " de " +
                     Range(mover.stretches[k].first, mover.stretches[k].last);
    return words + ".";
}

}  // namespace

std::string DescribeConfiguration(const Configuration& configuration) {
    std::string words;
    for (int mover = 1; mover <= configuration.MoverCount(); ++mover)
        words += (words.empty() ? "" : " ") + MoverWords(mover, configuration.MoverAt(mover));
    return words;
}

}  // namespace tavrelo::frame
