#pragma once

#include <QPalette>
#include <QString>

namespace tavrelo::qt {

/// What a desktop asks of its programs.
struct DesktopLook {
    bool is_dark = false;
    bool wants_contrast = false;
};

/// Reads a desktop's wishes from its colours and from the names of its themes. Dark is a desktop whose
/// windows are darker than their texts. High contrast is asked for by colours of 19 to 1 or more between a
/// window and its text (usual desktops stay below: black on the toolkit's own grey is 18.4), or by a theme of
/// widgets or icons with "contrast" in its name: GNOME, MATE and Xfce offer theirs as "HighContrast".
DesktopLook LookOfDesktop(const QPalette& palette, const QString& theme_names);

/// The wishes of the desktop that the program runs on; before the program sets colours of its own.
DesktopLook LookOfDesktop();

}  // namespace tavrelo::qt
