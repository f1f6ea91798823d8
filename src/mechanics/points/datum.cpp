#include "mechanics/points/datum.h"

#include "text/number_text.h"

namespace tavrelo::mechanics::points {

std::variant<text::Refusal, Datum> ReadDatum(const text::Value& stored, std::string_view letters) {
    if (const double* number = stored.IfNumber())
        return Datum(*number);
    const std::string content = stored.Text();
    if (content.empty())
        return Datum(NoDatum{});
    if (text::IsNum(content))
        return Datum(text::ToNumber(content));
    if (content.find_first_of(letters) == std::string::npos)
        return Datum(OtherText{});
    if (const auto reference = notation::ParseCellReference(content))
        return Datum(*reference);
    return text::Refusal{"Error en el dato " + content};
}

}  // namespace tavrelo::mechanics::points
