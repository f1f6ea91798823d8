#pragma once

namespace tavrelo::qt {

/// From now on a reader of the screen finds the cells of a picture as its children, each with name, state and
/// place, and can press them. They are made when they are asked for.
void InstallAccessiblePictures();

}  // namespace tavrelo::qt
