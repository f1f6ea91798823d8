#pragma once

#include <QString>
#include <cstddef>
#include <string>
#include <string_view>

namespace tavrelo::qt {

QString ToQString(std::string_view utf8);
std::string ToUtf8(const QString& text);
/// A caption as widgets with access keys take it: no ampersand of it is one.
QString ToCaption(std::string_view utf8);
/// What a caption made by ToCaption shows.
QString FromCaption(QString caption);

// The model counts characters (code points) and a line end as two, the widgets count UTF-16 units.

/// Characters of the text before a UTF-16 position.
std::size_t CharactersBefore(const QString& text, int utf16_position);
/// UTF-16 position behind that many characters; the end of a shorter text.
int Utf16Position(const QString& text, std::size_t characters);

}  // namespace tavrelo::qt
