#include "mechanics/kinematics/rewriting.h"

#include <cstddef>

namespace tavrelo::mechanics::kinematics {
namespace {

/// The letters of a formula of motion, and the variables of the language in the same places.
constexpr std::string_view kLetters = "txv";
constexpr std::string_view kVariables = "XYZ";

struct Mend {
    std::string_view broken;
    std::string_view name;
};
// In this order: the second one mends "aXan" too, the third "acoX".
constexpr Mend kMends[] = {
    {"eYp", "exp"}, {"Xan", "tan"}, {"coX", "cot"}, {"aXan", "atan"}, {"acoX", "acot"},
};

void ReplaceAll(std::string& text, const Mend& mend) {
    for (std::size_t at = text.find(mend.broken); at != std::string::npos;
         at = text.find(mend.broken, at + mend.name.size()))
        text.replace(at, mend.broken.size(), mend.name);
}

std::string_view First(std::string_view letters, int count) {
    return letters.substr(0, static_cast<std::size_t>(count));
}

std::string Rewrite(std::string_view formula, int variables) {
    std::string text = RenameVariables(formula, variables);
    for (const char variable : First(kVariables, variables))
        text.append("+0*").push_back(variable);
    return text;
}

}  // namespace

std::string RenameVariables(std::string_view formula, int variables) {
    std::string text(formula);
    for (char& character : text) {
        const std::size_t letter = First(kLetters, variables).find(character);
        if (letter != std::string_view::npos)
            character = kVariables[letter];
    }
    for (const Mend& mend : kMends)
        ReplaceAll(text, mend);
    return text;
}

std::string Rewrite1(std::string_view formula) { return Rewrite(formula, 1); }
std::string Rewrite2(std::string_view formula) { return Rewrite(formula, 2); }
std::string Rewrite3(std::string_view formula) { return Rewrite(formula, 3); }

}  // namespace tavrelo::mechanics::kinematics
