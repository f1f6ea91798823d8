#include "text/value_lists.h"

#include <algorithm>
#include <functional>

namespace tavrelo::text {
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

bool IsInList(const Value& value, std::span<const Value> list) {
    return std::find(list.begin(), list.end(), value) != list.end();
}

double MaxOf(const Value& start, std::span<const Value> list) {
    return ExtremeOf(start, list, std::greater<double>());
}

double MinOf(const Value& start, std::span<const Value> list) {
    return ExtremeOf(start, list, std::less<double>());
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

}  // namespace tavrelo::text
