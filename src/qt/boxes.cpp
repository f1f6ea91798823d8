#include "qt/boxes.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "qt/accessible.h"
#include "qt/fonts.h"
#include "qt/text.h"
#include "qt/zoom.h"

namespace tavrelo::qt {
namespace {

struct BoxButton {
    window::Buttons box;
    window::Answer answer;
    QMessageBox::StandardButton button;
    const char* caption;
};

// The first one of a box is its default, the last one answers Escape.
constexpr BoxButton kBoxButtons[] = {
    {window::Buttons::Ok, window::Answer::Ok, QMessageBox::Ok, "Aceptar"},
    {window::Buttons::OkCancel, window::Answer::Ok, QMessageBox::Ok, "Aceptar"},
    {window::Buttons::OkCancel, window::Answer::Cancel, QMessageBox::Cancel, "Cancelar"},
    {window::Buttons::YesNo, window::Answer::Yes, QMessageBox::Yes, "Sí"},
    {window::Buttons::YesNo, window::Answer::No, QMessageBox::No, "No"},
};

void AddButtons(QMessageBox& box, window::Buttons buttons) {
    for (const BoxButton& row : kBoxButtons) {
        if (row.box != buttons)
            continue;
        QPushButton* button = box.addButton(row.button);
        button->setText(ToQString(row.caption));
        if (box.buttons().size() == 1)
            box.setDefaultButton(row.button);
        box.setEscapeButton(row.button);
    }
}

/// The answer of a box that ended with a button, or by other means, which count as Escape.
window::Answer AnswerOf(window::Buttons buttons, int button) {
    window::Answer answer = window::Answer::Ok;
    for (const BoxButton& row : kBoxButtons) {
        if (row.box != buttons)
            continue;
        answer = row.answer;
        if (row.button == button)
            break;
    }
    return answer;
}

constexpr int kInputCharacters = 60;  // an input box is at least as wide

/// The window in use: boxes stand over it and are as large as its zoom.
QWidget* WindowInUse() {
    if (QWidget* active = QApplication::activeWindow())
        return active;
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto shown = std::ranges::find_if(windows, &QWidget::isVisible);
    return shown == windows.end() ? nullptr : *shown;
}

/// The room that the screen leaves to the text of a box, beside its frame, its sign and its buttons.
QSize RoomForText(const QWidget& box) {
    constexpr double kWidestShare = 0.8;
    constexpr double kHighestShare = 0.7;
    const QSize screen = box.screen()->availableSize();
    return {qRound(screen.width() * kWidestShare), qRound(screen.height() * kHighestShare)};
}

/// The font of the window in use, or as much of it as a long text can have on the screen.
QFont FontFor(const QString& text, const QWidget& box) {
    constexpr double kStep = 0.9;
    const QSize room = RoomForText(box);
    QFont font = box.parentWidget() ? box.parentWidget()->font() : box.font();
    const auto height = [&] {
        const QRect column(0, 0, room.width(), room.height());
        return QFontMetrics(font).boundingRect(column, Qt::TextWordWrap, text).height();
    };
    while (height() > room.height() && font.pointSizeF() > InterfacePoints() * kSmallestZoom)
        font.setPointSizeF(font.pointSizeF() * kStep);
    return font;
}

/// Lines of the text stay whole as far as the screen has room for them; longer ones are wrapped.
void KeepLines(QLabel& label, const QWidget& box) {
    const int width = label.fontMetrics().size(0, label.text()).width();
    const int widest = RoomForText(box).width();
    label.setWordWrap(width > widest);
    label.setMinimumWidth(std::min(width, widest));
}

/// For readers of the screen an alert, which they read whole as soon as it opens.
class AccessibleMessage : public QAccessibleWidget {
  public:
    explicit AccessibleMessage(QMessageBox& box)
        : QAccessibleWidget(&box, QAccessible::AlertMessage), m_box(box) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Description)
            return m_box.text();
        if (kind != QAccessible::Name || !m_box.windowTitle().isEmpty())
            return QAccessibleWidget::text(kind);
        return m_box.icon() == QMessageBox::Question ? QStringLiteral("Pregunta") : QStringLiteral("Aviso");
    }

  private:
    QMessageBox& m_box;
};

class Message : public QMessageBox, public TellsOfItself {
  public:
    using QMessageBox::QMessageBox;
    QAccessibleInterface* NewAccessible() override { return new AccessibleMessage(*this); }
};

}  // namespace

window::Answer WindowBoxes::ShowMessage(std::string_view text, std::string_view title,
                                        window::Buttons buttons) {
    const auto icon = buttons == window::Buttons::Ok ? QMessageBox::Information : QMessageBox::Question;
    Message box(icon, ToQString(title), ToQString(text), QMessageBox::NoButton, WindowInUse());
    box.setTextFormat(Qt::PlainText);
    box.setFont(FontFor(box.text(), box));
    // A part of the toolkit's own, which may change its name.
    if (auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label")))
        KeepLines(*label, box);
    AddButtons(box, buttons);
    return AnswerOf(buttons, box.exec());
}

std::optional<std::string> WindowBoxes::AskText(std::string_view prompt, std::string_view title) {
    QInputDialog box(WindowInUse());
    box.setWindowTitle(ToQString(title));
    box.setLabelText(ToQString(prompt));
    box.setFont(FontFor(box.labelText(), box));
    if (auto* label = box.findChild<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
        KeepLines(*label, box);
    }
    box.setOkButtonText(QStringLiteral("Aceptar"));
    box.setCancelButtonText(QStringLiteral("Cancelar"));
    box.resize(box.sizeHint().expandedTo({kInputCharacters * box.fontMetrics().averageCharWidth(), 0}));
    if (box.exec() != QDialog::Accepted)
        return std::nullopt;
    return ToUtf8(box.textValue());
}

}  // namespace tavrelo::qt
