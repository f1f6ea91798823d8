#include "notation/vector_format.h"

#include <array>
#include <cstddef>

#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::notation {
namespace {

constexpr std::string_view kSeparators = ",;<";
constexpr std::string_view kPolarSeparators = ";<";
constexpr std::string_view kQuadrantLetters = "pstc";
constexpr std::string_view kAxisLetters = "xy";
constexpr std::size_t kShortestMarked = 3;  // quadrant letter, one digit, axis letter

struct LetterFormat {
    char letter;
    std::string_view code;
};
constexpr std::array<LetterFormat, 3> kLetterFormats = {{{'h', kHorizontal}, {'v', kVertical}, {'u', kUnit}}};

bool MixesSeparators(std::string_view text) {
    int kinds = 0;
    for (char separator : kSeparators)
        kinds += text.find(separator) != std::string_view::npos;
    return kinds > 1;
}

// Takes the final ":" off a trimmed text and trims what is left.
std::string TakeColon(std::string text, bool& not_colon) {
    not_colon = !text.ends_with(':');
    if (not_colon)
        return text;
    text.pop_back();
    return text::Trim(text);
}

bool EndsInKnownComponent(std::string_view second) {
    const auto component = ReadLetteredComponent(second);
    return component && text::IsNum(component->number);
}

std::string_view CommaCode(const VectorFormat& format) {
    if (!ReadQuadrantMarks(format.first))
        return kComponents;
    return EndsInKnownComponent(format.second) ? kQuadrantComponent : kQuadrantMagnitude;
}

void SplitAt(std::string_view text, std::size_t separator, VectorFormat& format) {
    format.first = text::Trim(text.substr(0, separator));
    format.second = text::Trim(text.substr(separator + 1));
}

void ReadSeparated(std::string_view text, std::size_t separator, VectorFormat& format) {
    SplitAt(text, separator, format);
    if (format.second.find_first_of(kSeparators) != std::string::npos) {
        format.msg = "Formato incorrecto.";
        return;
    }
    if (kPolarSeparators.find(text[separator]) != std::string_view::npos) {
        format.code = kPolar;
        return;
    }
    format.code = CommaCode(format);
}

void ReadLetterFormat(std::string_view text, VectorFormat& format) {
    for (const LetterFormat& candidate : kLetterFormats)
        if (text.starts_with(candidate.letter)) {
            format.second = text::Trim(text.substr(1));
            format.code = candidate.code;
            return;
        }
    format.msg = "Inventaste un nuevo formato";
}

}  // namespace

std::optional<QuadrantMarks> ReadQuadrantMarks(std::string_view first) {
    if (text::CharacterCount(first) < kShortestMarked)
        return {};
    const std::string_view quadrant = first.substr(0, 1);
    const std::string_view axis = first.substr(first.size() - 1);
    if (kQuadrantLetters.find(quadrant) == std::string_view::npos ||
        kAxisLetters.find(axis) == std::string_view::npos)
        return {};
    return QuadrantMarks{quadrant, text::Trim(first.substr(1, first.size() - 2)), axis};
}

std::optional<LetteredComponent> ReadLetteredComponent(std::string_view second) {
    if (!second.ends_with(kHorizontalLetter) && !second.ends_with(kVerticalLetter))
        return {};
    return LetteredComponent{text::Trim(second.substr(0, second.size() - 1)), second.back()};
}

VectorFormat VectorFormatOf(std::string_view text) {
    VectorFormat format;
    const std::string body = TakeColon(text::Trim(text), format.not_colon);
    if (MixesSeparators(body)) {
        format.msg = "Formato incorrecto.";
        return format;
    }
    const std::size_t separator = body.find_first_of(kSeparators);
    if (separator == std::string::npos)
        ReadLetterFormat(body, format);
    else
        ReadSeparated(body, separator, format);
    return format;
}

}  // namespace tavrelo::notation
