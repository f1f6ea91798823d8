#include "notation/unknown_term.h"

#include "text/symbols.h"
#include "text/utf8.h"

namespace tavrelo::notation {

bool SameUnknown(const UnknownTerm& a, const UnknownTerm& b) {
    return a.function == b.function && text::SameSymbol(a.magnitude, b.magnitude) &&
           text::SameSymbol(a.angle, b.angle);
}

const char* NameOf(AngleFunction function) {
    switch (function) {
        case AngleFunction::Cos:
            return "cos";
        case AngleFunction::Sen:
            return "sen";
        case AngleFunction::None:
            break;
    }
    return "";
}

std::string TextOf(const UnknownTerm& unknown) {
    if (!unknown.HasAngle())
        return unknown.magnitude;
    const std::string term = std::string(NameOf(unknown.function)) + " " + unknown.angle;
    return unknown.HasBoth() ? unknown.magnitude + " " + term : term;
}

std::size_t LengthOf(const UnknownTerm& unknown) { return text::CharacterCount(TextOf(unknown)); }

}  // namespace tavrelo::notation
