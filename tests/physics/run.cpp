#include "run.h"

#include <algorithm>
#include <exception>
#include <iomanip>
#include <map>
#include <ostream>

namespace tavrelo::physics {
namespace {

constexpr int kFaultsTold = 3;
constexpr int kNameWidth = 32;
constexpr int kCountWidth = 10;

struct Tally {
    int right = 0;
    int refused = 0;
    int wrong = 0;
    std::map<std::string, int> refusals = {};
};

// No failure may leave a solver: what it cannot solve it refuses.
Verdict Play(const ProblemKind& kind, Problem& problem) {
    try {
        return kind.play(problem);
    } catch (const std::exception& failure) {
        return Wrong(std::string("failed: ") + failure.what());
    }
}

// A refusal with a message that the kind does not know is a fault.
Verdict Judged(const ProblemKind& kind, Verdict verdict) {
    const bool is_listed = std::ranges::find(kind.refusals, verdict.text) != kind.refusals.end();
    if (verdict.kind == Verdict::Kind::Refused && !is_listed)
        return Wrong("refused with \"" + verdict.text + "\"");
    return verdict;
}

void WriteFault(const ProblemKind& kind, std::uint64_t seed, const Problem& problem, const std::string& what,
                std::ostream& out) {
    out << "  WRONG: " << what << "\n    again: physics --kind " << kind.name << " --seed " << seed
        << " --problems 1\n";
    for (const std::string& text : problem.typed)
        out << "    " << text << '\n';
}

}  // namespace

void WriteHeading(std::ostream& out) {
    out << std::left << std::setw(kNameWidth) << "kind" << std::right;
    for (const char* column : {"problems", "right", "refused", "wrong"})
        out << std::setw(kCountWidth) << column;
    out << '\n';
}

bool PlayKind(const ProblemKind& kind, std::uint64_t seed, std::optional<int> problems, std::ostream& out) {
    const int count = problems.value_or(kind.problems);
    Tally tally;
    for (int k = 0; k < count; ++k) {
        const std::uint64_t own_seed = seed + static_cast<std::uint64_t>(k);
        Problem problem{Chance(own_seed)};
        const Verdict verdict = Judged(kind, Play(kind, problem));
        switch (verdict.kind) {
            case Verdict::Kind::Right:
                ++tally.right;
                break;
            case Verdict::Kind::Refused:
                ++tally.refused;
                ++tally.refusals[verdict.text];
                break;
            case Verdict::Kind::Wrong:
                if (++tally.wrong <= kFaultsTold)
                    WriteFault(kind, own_seed, problem, verdict.text, out);
                break;
        }
    }
    out << std::left << std::setw(kNameWidth) << kind.name << std::right;
    for (const int number : {count, tally.right, tally.refused, tally.wrong})
        out << std::setw(kCountWidth) << number;
    out << '\n';
    for (const auto& [message, times] : tally.refusals)
        out << std::setw(kNameWidth + 3 * kCountWidth) << times << "  " << message << '\n';
    const bool too_many = count > 1 && tally.refused > kind.most_refused * count;
    if (too_many)
        out << "  WRONG: more than " << kind.most_refused << " of the problems are refused\n";
    out.flush();  // a run may be long
    return tally.wrong == 0 && !too_many;
}

}  // namespace tavrelo::physics
