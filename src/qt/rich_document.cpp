#include "qt/rich_document.h"

#include <QFontMetricsF>
#include <QTextBlock>
#include <algorithm>

#include "qt/fonts.h"
#include "qt/text.h"
#include "text/utf8.h"
#include "window/geometry.h"

namespace tavrelo::qt {
namespace {

// What a run has in the program, kept beside what is shown of it.
enum RunProperty : int {
    kFontName = QTextFormat::UserProperty,
    kFontSize,
    kOffset,
};

constexpr std::string_view kLineEnd = "\r\n";

/// The offset as a percentage of the font's height, positive upward.
double BaselinePercent(const text::Run& run, const QFont& font, double scale) {
    const QFontMetricsF metrics(font);
    const double pixels = scale * run.offset / window::kTwipsPerPixel;
    return 100 * pixels / (metrics.ascent() + metrics.descent());
}

text::Run ToRun(const QTextCharFormat& format, const QString& text) {
    text::Run run;
    run.text = ToUtf8(text);
    run.font.name = ToUtf8(format.property(kFontName).toString());
    run.font.size = format.property(kFontSize).toDouble();
    run.font.bold = format.fontWeight() >= QFont::Bold;
    run.font.italic = format.fontItalic();
    run.font.underline = format.fontUnderline();
    run.color = text::Color{format.foreground().color().rgb() & 0xffffff};
    run.offset = format.property(kOffset).toInt();
    return run;
}

text::Run WithText(const text::Run& run, std::string text) {
    text::Run result = run;
    result.text = std::move(text);
    return result;
}

/// A format of plain standard properties.
QTextCharFormat ToExchangeFormat(const text::Run& run) {
    constexpr double kTextSize = 10;
    QTextCharFormat format;
    format.setFontFamilies({QStringLiteral("Times New Roman"), ToQString(text::FontFamily(run.font.name))});
    format.setFontPointSize(run.offset == 0 ? run.font.size : kTextSize);
    format.setFontWeight(run.font.bold ? QFont::Bold : QFont::Normal);
    format.setFontItalic(run.font.italic);
    format.setFontUnderline(run.font.underline);
    format.setForeground(ToQColor(run.color));
    if (run.offset != 0)
        format.setVerticalAlignment(run.offset > 0 ? QTextCharFormat::AlignSuperScript
                                                   : QTextCharFormat::AlignSubScript);
    return format;
}

}  // namespace

QTextCharFormat ToCharFormat(const text::Run& run, double scale, TextLook look) {
    const QFont font = ToQFont(run.font, scale);
    QTextCharFormat format;
    format.setFont(font);
    format.setForeground(ToQColor(ShownOn(text::kWhite, run.color, look)));
    if (run.offset != 0)
        format.setBaselineOffset(BaselinePercent(run, font, scale));
    format.setProperty(kFontName, ToQString(run.font.name));
    format.setProperty(kFontSize, run.font.size);
    format.setProperty(kOffset, run.offset);
    return format;
}

void InsertRuns(QTextCursor& cursor, const text::RichText& text, double scale, TextLook look) {
    cursor.beginEditBlock();
    for (const text::Run& run : text.Runs())
        cursor.insertText(ToQString(text::ReplaceAll(run.text, kLineEnd, "\n")),
                          ToCharFormat(run, scale, look));
    cursor.endEditBlock();
}

text::RichText ReadRuns(const QTextDocument& document) {
    text::RichText text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.position() > 0)
            text.Append(ToRun(block.charFormat(), ToQString(kLineEnd)));
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
            text.Append(ToRun(fragment.fragment().charFormat(), fragment.fragment().text()));
    }
    return text;
}

text::RichText Piece(const text::RichText& text, std::size_t start, std::size_t length) {
    text::RichText piece;
    std::size_t position = 0;
    for (const text::Run& run : text.Runs()) {
        const std::u32string characters = text::ToCodePoints(run.text);
        const std::size_t first = std::clamp(start, position, position + characters.size()) - position;
        const std::size_t last =
            std::clamp(start + length, position, position + characters.size()) - position;
        piece.Append(WithText(run, text::ToUtf8(characters.substr(first, last - first))));
        position += characters.size();
    }
    return piece;
}

QString ToHtml(const text::RichText& text) {
    QTextDocument document;
    QTextCursor cursor(&document);
    for (const text::Run& run : text.Runs())
        cursor.insertText(ToQString(text::ReplaceAll(run.text, kLineEnd, "\n")), ToExchangeFormat(run));
    return document.toHtml();
}

}  // namespace tavrelo::qt
