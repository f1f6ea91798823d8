#pragma once

#include <QImage>
#include <string>

#include "window/surface.h"

namespace tavrelo::transcript {

/// Samples a painted picture, `zoom` times the size of its recording, where the recording says that there is
/// ink: along lines and outlines, in the middle of filled shapes, within the box of each run of a text.
/// Places that a later operation may have covered, that lie outside, or whose ink is that of the background
/// say nothing. Tells the first operation that was not found as it should be; empty when all were.
std::string MissingInk(const QImage& painted, double zoom, const window::Recorder& recording);

}  // namespace tavrelo::transcript
