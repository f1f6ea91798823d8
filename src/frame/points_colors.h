#pragma once

#include "text/color.h"

namespace tavrelo::frame {

/// The colour of the labels and curves of a mover's stretch, both from 1: the three stretches of mover 1, and
/// mover 2.
constexpr text::Color StretchColor(int mover, int stretch) {
    if (mover == 2)
        return text::FromBgr(0xC000C0);
    constexpr text::Color kStretches[] = {text::FromBgr(0xC00000), text::FromBgr(0x00C000),
                                          text::FromBgr(0x0000C0)};
    return kStretches[stretch - 1];
}

/// The same in the panel of results, where mover 2 is darker.
constexpr text::Color ResultColor(int mover, int stretch) {
    return mover == 2 ? text::FromBgr(0x800080) : StretchColor(mover, stretch);
}

}  // namespace tavrelo::frame
