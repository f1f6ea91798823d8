#include "mechanics/forces/unknowns.h"

#include <algorithm>

#include "text/utf8.h"

namespace tavrelo::mechanics::forces {
namespace {

constexpr std::string_view kCosMark = "cos ";
constexpr std::string_view kSenMark = "sen ";

AngleFunction FunctionAt(std::string_view text) {
    if (text.starts_with(kCosMark))
        return AngleFunction::Cos;
    return text.starts_with(kSenMark) ? AngleFunction::Sen : AngleFunction::None;
}

// Where the angle function of a text stands: at its start or behind the blank after a magnitude.
std::size_t FunctionPosition(std::string_view text) {
    if (FunctionAt(text) != AngleFunction::None)
        return 0;
    const std::size_t cos = text.find(" " + std::string(kCosMark));
    const std::size_t sen = text.find(" " + std::string(kSenMark));
    const std::size_t blank = std::min(cos, sen);
    return blank == std::string_view::npos ? blank : blank + 1;
}

}  // namespace

UnknownTerm ReadUnknown(std::string_view text) {
    const std::size_t position = FunctionPosition(text);
    if (position == std::string_view::npos)
        return {std::string(text), AngleFunction::None, {}};
    return {text::Trim(text.substr(0, position)), FunctionAt(text.substr(position)),
            std::string(text.substr(position + kCosMark.size()))};
}

bool SameUnknown(std::string_view a, std::string_view b) {
    return SameUnknown(ReadUnknown(a), ReadUnknown(b));
}

}  // namespace tavrelo::mechanics::forces
