#include "text/value.h"

#include "text/number_text.h"

namespace tavrelo::text {

double Value::Number() const {
    if (const double* number = IfNumber()) {
        return *number;
    }
    if (const std::string* text = IfText()) {
        return ToNumber(*text);
    }
    return 0.0;
}

std::string Value::Text() const {
    if (const double* number = IfNumber()) {
        return NumberToText(*number);
    }
    if (const std::string* text = IfText()) {
        return *text;
    }
    return {};
}

}  // namespace tavrelo::text
