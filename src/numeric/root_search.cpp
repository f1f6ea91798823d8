#include "numeric/root_search.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>
#include <utility>

#include "numeric/checked.h"

namespace tavrelo::numeric {

namespace {

constexpr int kMostHalvings = 40;
constexpr double kNarrowCell = 1e-6;
constexpr double kSmallValue = 1e-10;

struct Sample {
    double x;
    double y;
};

struct Bracket {
    Sample left;
    Sample right;
};

/// Walks the samples from left to right and stops at the cells in which the sign changes.
class SignScan {
  public:
    SignScan(SampledFunction f, double left, double right)
        : m_f(f), m_left(left), m_step(CheckedSubtract(right, left) / kRootCells), m_last(Value(0)) {}

    /// The next change of sign; false at the end.
    bool FindNext(Bracket& bracket);

  private:
    static constexpr int kBlock = static_cast<int>(kSampleBlock);

    // A multiple of the step, not a running sum: the samples stay where the interval's ends put them.
    double Place(int k) const { return m_left + k * m_step; }
    double Value(int k);
    void FillBlock(int first);

    SampledFunction m_f;
    double m_left;
    double m_step;
    std::array<double, kSampleBlock> m_places;
    std::array<double, kSampleBlock> m_values;
    bool m_block_failed = false;
    double m_last;  // the value at the left end of the next cell
    int m_next = 1;
};

void SignScan::FillBlock(int first) {
    const auto count = static_cast<std::size_t>(std::min(kBlock, kRootCells + 1 - first));
    for (std::size_t i = 0; i < count; ++i) {
        m_places[i] = Place(first + static_cast<int>(i));
    }
    try {
        m_f.Column(std::span(m_places).first(count), std::span(m_values).first(count));
        m_block_failed = false;
    } catch (const RuntimeFailure&) {
        m_block_failed = true;
    }
}

/// In a block where a sample fails each is taken by itself, so that only one that is reached does harm.
double SignScan::Value(int k) {
    if (k % kBlock == 0) {
        FillBlock(k);
    }
    return Finite(m_block_failed ? m_f(Place(k)) : m_values[static_cast<std::size_t>(k % kBlock)]);
}

bool SignScan::FindNext(Bracket& bracket) {
    while (m_next <= kRootCells) {
        const int k = m_next++;
        const double value = Value(k);
        const double last = std::exchange(m_last, value);
        if (CheckedMultiply(last, value) < 0.0) {
            bracket = {{Place(k - 1), last}, {Place(k), value}};
            return true;
        }
    }
    return false;
}

/// Whether one more change of sign follows. It is only told, so a failure behind the last root is no matter.
bool HasMore(SignScan& scan) {
    try {
        Bracket bracket;
        return scan.FindNext(bracket);
    } catch (const RuntimeFailure&) {
        return false;
    }
}

struct Brackets {
    std::array<Bracket, kMostRoots> found;
    std::size_t count = 0;
    bool more = false;
};

void FindBrackets(SampledFunction f, double left, double right, Brackets& brackets) {
    SignScan scan(f, left, right);
    Bracket bracket;
    while (brackets.count < brackets.found.size()) {
        if (!scan.FindNext(bracket)) {
            return;
        }
        brackets.found[brackets.count++] = bracket;
    }
    brackets.more = HasMore(scan);
}

/// The root moves from the end with the negative value towards the other one.
double Bisect(SampledFunction f, const Bracket& bracket) {
    const bool rises = bracket.left.y < 0.0;
    double root = rises ? bracket.left.x : bracket.right.x;
    double dx = rises ? bracket.right.x - bracket.left.x : bracket.left.x - bracket.right.x;
    for (int round = 0; round < kMostHalvings; ++round) {
        dx *= 0.5;
        const double middle = root + dx;
        const double value = Finite(f(middle));
        // No branch: which half it is cannot be predicted.
        root += value <= 0.0 ? dx : 0.0;
        if (std::abs(dx) < kNarrowCell || std::abs(value) < kSmallValue) {
            break;
        }
    }
    return root;
}

FoundRoots Search(SampledFunction f, double left, double right) {
    Brackets brackets;
    FindBrackets(f, left, right, brackets);
    FoundRoots found;
    found.more = brackets.more;
    found.roots.reserve(brackets.count);
    found.values.reserve(brackets.count);
    for (const Bracket& bracket : std::span(brackets.found).first(brackets.count)) {
        found.roots.push_back(Bisect(f, bracket));
        found.values.push_back(Finite(f(found.roots.back())));
    }
    return found;
}

}  // namespace

std::string_view TextOf(RootsRefusal refusal) {
    return refusal == RootsRefusal::None ? "No encontré raíces en el intervalo dado."
                                         : "Ocurrió un error en el cálculo de las raíces.";
}

std::variant<RootsRefusal, FoundRoots> FindRoots(SampledFunction f, double a, double b) {
    try {
        FoundRoots found = a <= b ? Search(f, a, b) : Search(f, b, a);
        if (found.roots.empty()) {
            return RootsRefusal::None;
        }
        return found;
    } catch (const RuntimeFailure&) {
        return RootsRefusal::Failed;
    }
}

}  // namespace tavrelo::numeric
