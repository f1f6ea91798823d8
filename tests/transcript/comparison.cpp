#include "comparison.h"

#include <algorithm>
#include <span>

#include "text_lines.h"

namespace tavrelo::transcript {
namespace {

using Wanted = std::span<const ShownLine>;
using Got = std::span<const std::string>;

constexpr std::string_view kAnyText = "| ...";

bool IsBoxText(std::string_view line) { return line.starts_with('|'); }

bool IsAnyText(const ShownLine& wanted) { return WithoutTrailingBlanks(wanted.text) == kAnyText; }

bool Matches(const ShownLine& wanted, const std::string& got) {
    return WithoutTrailingBlanks(wanted.text) == got || (IsAnyText(wanted) && IsBoxText(got));
}

/// True when the whole of both sides agrees; "| ..." takes as many lines of a box as there are.
bool AllMatch(Wanted wanted, Got got) {
    if (wanted.empty())
        return got.empty();
    if (!got.empty() && Matches(wanted.front(), got.front()) && AllMatch(wanted.subspan(1), got.subspan(1)))
        return true;
    if (!IsAnyText(wanted.front()))
        return false;
    return AllMatch(wanted.subspan(1), got) ||
           (!got.empty() && IsBoxText(got.front()) && AllMatch(wanted, got.subspan(1)));
}

/// Drops what agrees at both ends, so that a missing line does not make all behind it differ.
void TrimAgreement(Wanted& wanted, Got& got) {
    while (!wanted.empty() && !got.empty() && Matches(wanted.front(), got.front())) {
        wanted = wanted.subspan(1);
        got = got.subspan(1);
    }
    while (!wanted.empty() && !got.empty() && Matches(wanted.back(), got.back())) {
        wanted = wanted.first(wanted.size() - 1);
        got = got.first(got.size() - 1);
    }
}

}  // namespace

std::vector<Difference> Compare(const Step& step, const std::vector<std::string>& shown) {
    const std::vector<std::string> significant = SignificantLines(shown);
    Wanted wanted = step.expected;
    Got got = significant;
    if (AllMatch(wanted, got))
        return {};
    TrimAgreement(wanted, got);
    std::vector<Difference> differences;
    for (std::size_t k = 0; k < std::max(wanted.size(), got.size()); ++k) {
        Difference difference{step.line_number, std::nullopt, std::nullopt};
        if (k < wanted.size()) {
            difference.line_number = wanted[k].line_number;
            difference.wanted = wanted[k].text;
        }
        if (k < got.size())
            difference.got = got[k];
        differences.push_back(std::move(difference));
    }
    return differences;
}

}  // namespace tavrelo::transcript
