#include "tools/calculator/vector_arguments.h"

namespace tavrelo::tools::calculator {

ReadVectors VectorsAt(const Arguments& arguments, const std::vector<int>& positions) {
    std::vector<mechanics::forces::PlaneVector> read;
    for (const int position : positions) {
        const auto outcome = mechanics::forces::ReadVector(arguments.Text(position));
        if (const auto* refusal = std::get_if<text::Refusal>(&outcome))
            return *refusal;
        read.push_back(std::get<mechanics::forces::PlaneVector>(outcome));
    }
    return read;
}

ReadVectors VectorsFrom(const Arguments& arguments, int first, int step, int end) {
    std::vector<int> positions = {first};
    for (int position = first + step; position < end; position += step)
        positions.push_back(position);
    return VectorsAt(arguments, positions);
}

}  // namespace tavrelo::tools::calculator
