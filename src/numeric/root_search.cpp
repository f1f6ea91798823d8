#include "numeric/root_search.h"

#include <cmath>
#include <cstddef>
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
    SignScan(RealFunction f, double left, double right)
        : m_f(f), m_left(left), m_step(CheckedSubtract(right, left) / kRootCells), m_last(Take(0)) {}

    /// The next change of sign; false at the end.
    bool FindNext(Bracket& bracket);

  private:
    // A multiple of the step, not a running sum: the samples stay where the interval's ends put them.
    Sample Take(int k) const {
        const double x = m_left + k * m_step;
        return {x, Finite(m_f(x))};
    }

    RealFunction m_f;
    double m_left;
    double m_step;
    Sample m_last;
    int m_next = 1;
};

bool SignScan::FindNext(Bracket& bracket) {
    while (m_next <= kRootCells) {
        bracket = {m_last, Take(m_next++)};
        m_last = bracket.right;
        if (CheckedMultiply(bracket.left.y, bracket.right.y) < 0.0) {
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

std::vector<Bracket> FindBrackets(RealFunction f, double left, double right, bool& more) {
    SignScan scan(f, left, right);
    std::vector<Bracket> brackets;
    Bracket bracket;
    while (brackets.size() < static_cast<std::size_t>(kMostRoots)) {
        if (!scan.FindNext(bracket)) {
            return brackets;
        }
        brackets.push_back(bracket);
    }
    more = HasMore(scan);
    return brackets;
}

/// The root moves from the end with the negative value towards the other one.
double Bisect(RealFunction f, const Bracket& bracket) {
    const bool rises = bracket.left.y < 0.0;
    double root = rises ? bracket.left.x : bracket.right.x;
    double dx = rises ? bracket.right.x - bracket.left.x : bracket.left.x - bracket.right.x;
    for (int round = 0; round < kMostHalvings; ++round) {
        dx *= 0.5;
        const double middle = root + dx;
        const double value = Finite(f(middle));
        if (value <= 0.0) {
            root = middle;
        }
        if (std::abs(dx) < kNarrowCell || std::abs(value) < kSmallValue) {
            break;
        }
    }
    return root;
}

FoundRoots Search(RealFunction f, double left, double right) {
    FoundRoots found;
    for (const Bracket& bracket : FindBrackets(f, left, right, found.more)) {
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

std::variant<RootsRefusal, FoundRoots> FindRoots(RealFunction f, double a, double b) {
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
