#pragma once

#include "notation/force_record.h"
#include "text/color.h"

namespace tavrelo::drawing {

/// Arrows of forces: black for a given one, red for one with unknown data, magenta for one that was found.
inline constexpr text::Color kGivenColor = text::Rgb(0, 0, 0);
inline constexpr text::Color kUnknownColor = text::Rgb(0xff, 0, 0);
inline constexpr text::Color kFoundColor = text::Rgb(0xff, 0, 0xff);

constexpr text::Color ColorOf(notation::Knowledge knowledge) {
    switch (knowledge) {
        case notation::Knowledge::Unknown:
            return kUnknownColor;
        case notation::Knowledge::Found:
            return kFoundColor;
        case notation::Knowledge::Given:
            break;
    }
    return kGivenColor;
}

}  // namespace tavrelo::drawing
