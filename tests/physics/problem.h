#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "chance.h"

namespace tavrelo::physics {

/// One problem in the making: where its chances come from, and what of it is told when its answer is wrong.
struct Problem {
    Chance chance;
    std::vector<std::string> typed = {};  // the data as a student types them
    double scale = 1;                     // of its forces, where a kind has them of any size

    const std::string& Type(std::string text) { return typed.emplace_back(std::move(text)); }
};

/// What came of a problem.
struct Verdict {
    enum class Kind {
        Right,    // every answer satisfies the problem
        Refused,  // `text` is the message
        Wrong,    // `text` tells what does not hold
    };
    Kind kind;
    std::string text = {};
};
inline Verdict Right() { return {Verdict::Kind::Right}; }
inline Verdict Refused(std::string_view message) { return {Verdict::Kind::Refused, std::string(message)}; }
inline Verdict Wrong(std::string_view what) { return {Verdict::Kind::Wrong, std::string(what)}; }

/// A kind of problem: makes one from its chances, has it solved, and judges the answers by its own equations.
/// A problem that is known to be solvable and yet refused is Wrong.
struct ProblemKind {
    std::string_view name;  // "group.kind"
    std::string_view about;
    int problems;  // in a check
    Verdict (*play)(Problem& problem);
    std::span<const std::string_view> refusals = {};  // the messages with which a problem may be refused
    double most_refused = 0;                          // the largest part of the problems that may be refused
};

}  // namespace tavrelo::physics
