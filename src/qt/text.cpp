#include "qt/text.h"

namespace tavrelo::qt {

QString ToQString(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string ToUtf8(const QString& text) { return text.toUtf8().toStdString(); }

QString ToCaption(std::string_view utf8) {
    return ToQString(utf8).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString FromCaption(QString caption) { return caption.replace(QLatin1String("&&"), QLatin1String("&")); }

std::size_t CharactersBefore(const QString& text, int utf16_position) {
    std::size_t characters = 0;
    for (int i = 0; i < utf16_position && i < text.size(); ++i)
        if (!text[i].isLowSurrogate())
            ++characters;
    return characters;
}

int Utf16Position(const QString& text, std::size_t characters) {
    int position = 0;
    while (characters > 0 && position < text.size()) {
        position += text[position].isHighSurrogate() ? 2 : 1;
        --characters;
    }
    return std::min(position, static_cast<int>(text.size()));
}

}  // namespace tavrelo::qt
