#include "qt/desktop_look.h"

#include <QApplication>
#include <QIcon>

#include "qt/flat_parts.h"
#include "qt/text_colors.h"
#include "text/contrast.h"

namespace tavrelo::qt {
namespace {

constexpr double kHighContrast = 19;

}  // namespace

DesktopLook LookOfDesktop(const QPalette& palette, const QString& theme_names) {
    const double contrast =
        text::ContrastRatio(ToColor(palette.color(QPalette::Active, QPalette::Window)),
                            ToColor(palette.color(QPalette::Active, QPalette::WindowText)));
    const bool has_theme = theme_names.contains(QStringLiteral("contrast"), Qt::CaseInsensitive);
    return {IsDark(palette), has_theme || contrast >= kHighContrast};
}

DesktopLook LookOfDesktop() {
    const QString widgets = QString::fromLocal8Bit(qgetenv("GTK_THEME"));
    return LookOfDesktop(QApplication::palette(), widgets + QLatin1Char(' ') + QIcon::themeName());
}

}  // namespace tavrelo::qt
