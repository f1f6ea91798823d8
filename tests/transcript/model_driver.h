#pragma once

#include <memory>

#include "driver.h"

namespace tavrelo::transcript {

/// What the model tells of a control's look.
Appearance LookOf(const window::Control& control);

/// The background of a control that the program gave none.
text::Color OwnBackColor(const window::Control& control);

/// A fresh program without a window: acts on the window model as a view would.
std::unique_ptr<Driver> MakeModelDriver();

}  // namespace tavrelo::transcript
