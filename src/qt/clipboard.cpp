#include "qt/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "qt/canvas.h"
#include "qt/text.h"

namespace tavrelo::qt {

std::string SystemClipboard::Text() const { return ToUtf8(QGuiApplication::clipboard()->text()); }

void SystemClipboard::SetText(std::string_view text) {
    QGuiApplication::clipboard()->setText(ToQString(text));
}

void SystemClipboard::SetPicture(const window::Recorder& picture) {
    QGuiApplication::clipboard()->setImage(ToImage(picture, kExportScale, m_artwork));
}

}  // namespace tavrelo::qt
