#include "tools/particle/describe.h"

#include <vector>

#include "drawing/force_words.h"
#include "drawing/words.h"
#include "text/number_text.h"

namespace tavrelo::tools::particle {
namespace {

constexpr drawing::Noun kForces{"fuerza", "fuerzas", true};

}  // namespace

std::string DescribeForce(const ForcesInView& forces, std::size_t index, int decimals) {
    const notation::Force& force = forces.Forces()[index];
    const ForceArrow& arrow = forces.Arrows()[index];
    // The label of a magnitude that was a number from the start is that number, and no name.
    const bool is_named = force.knowledge != notation::Knowledge::Given && !text::IsNum(arrow.label);
    const std::string name = is_named ? drawing::LabelWords(arrow.label) : std::string();
    return drawing::ForceWords({force, name, arrow.leaves, arrow.asked_direction}, decimals);
}

std::string DescribeForces(const ForcesInView& forces, double rotation, int decimals) {
    std::string words = "Fuerzas sobre un punto, con ejes x, y";
    if (rotation != 0)
        words += " girados " + drawing::DegreesWords(rotation, decimals);
    if (forces.IsEmpty())
        return words + ". Sin fuerzas.";
    std::vector<std::string> told;
    for (std::size_t k = 0; k < forces.Count(); ++k)
        told.push_back(DescribeForce(forces, k, decimals));
    return words + ". " + drawing::AsSentence(drawing::Counted(forces.Count(), kForces)) + ": " +
           drawing::ListedAtLength(told) + ".";
}

}  // namespace tavrelo::tools::particle
