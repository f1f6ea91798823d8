#include "numeric/compare.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "numeric/checked.h"

namespace tavrelo::numeric {

namespace {

/// The extreme of `start` and the list; an element replaces the running value only when `better` than it.
template <typename Better>
double ExtremeOf(const Value& start, std::span<const Value> list, Better better) {
    double extreme = start.Number();
    for (const Value& element : list) {
        const double number = element.Number();
        if (better(number, extreme)) {
            extreme = number;
        }
    }
    return extreme;
}

}  // namespace

bool NearEq(double a, double b, double tolerance) { return std::abs(a - b) <= tolerance; }

bool WithinPct(double a, double b, double percent) {
    const double share = percent / 100.0;
    const double size = std::abs(a);
    const double reference = std::abs(b);
    return (1.0 - share) * reference <= size && size <= (1.0 + share) * reference;
}

bool IsInList(const Value& value, std::span<const Value> list) {
    return std::find(list.begin(), list.end(), value) != list.end();
}

double MaxOf(const Value& start, std::span<const Value> list) {
    return ExtremeOf(start, list, std::greater<double>());
}

double MinOf(const Value& start, std::span<const Value> list) {
    return ExtremeOf(start, list, std::less<double>());
}

double MaxArr(std::span<const double> list) {
    if (list.empty()) {
        throw RuntimeFailure(FailureCode::SubscriptRange, "largest element of an empty list");
    }
    return *std::max_element(list.begin(), list.end());
}

int RemoveDuplicates(std::vector<std::string>& list) {
    auto kept_end = list.begin();
    for (auto text = list.begin(); text != list.end(); ++text) {
        if (std::find(list.begin(), kept_end, *text) != kept_end) {
            continue;
        }
        if (kept_end != text) {
            *kept_end = std::move(*text);
        }
        ++kept_end;
    }
    std::for_each(kept_end, list.end(), [](std::string& text) { text.clear(); });
    return static_cast<int>(kept_end - list.begin());
}

}  // namespace tavrelo::numeric
