#pragma once

#include <QMenu>

#include "qt/binding.h"

namespace tavrelo::qt {

/// Adds what can be done with a picture: copying its image and saving it.
void AddPictureActions(QMenu& menu, const window::Picture& picture, const ViewContext& context);

}  // namespace tavrelo::qt
