#include "qt/fonts.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "qt/text.h"

namespace tavrelo::qt {
namespace {

constexpr double kPointsPerInch = 72;
constexpr double kUsualDotsPerInch = 96;

double ToPoints(double pixels) { return pixels * kPointsPerInch / ScreenDotsPerInch(); }

/// Sizes are given in points because only these may be broken numbers.
void SetPixels(QFont& font, double pixels) {
    font.setPointSizeF(ToPoints(pixels));
    font.setHintingPreference(QFont::PreferNoHinting);
}

}  // namespace

double ScreenDotsPerInch() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchY() : kUsualDotsPerInch;
}

QFont ToQFont(const text::Font& font, double scale) {
    QFont result(QStringList{ToQString(text::FontFamily(font.name)), QStringLiteral("FreeSerif")});
    SetPixels(result, text::PixelsOf(font.size) * scale);
    result.setBold(font.bold);
    result.setItalic(font.italic);
    result.setUnderline(font.underline);
    return result;
}

double FontStretch(const text::Font& font, double scale) {
    const double pixels = text::PixelsOf(font.size) * scale;
    return pixels / std::max(1.0, std::round(pixels));
}

double InterfacePoints() { return ToPoints(kInterfacePixels); }

QFont InterfaceFont(double scale) {
    QFont result(QStringList{ToQString(text::FontFamily(text::kInterfaceFont)), QStringLiteral("FreeSans")});
    SetPixels(result, kInterfacePixels * scale);
    return result;
}

}  // namespace tavrelo::qt
