#include "qt/free_window.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "qt/accessible.h"
#include "qt/bindings.h"
#include "qt/canvas.h"
#include "qt/picture_menu.h"
#include "qt/rich_text_view.h"
#include "qt/text.h"
#include "window/control_names.h"
#include "window/layout.h"

namespace tavrelo::qt {

FreeWindow::FreeWindow(const window::Control& source, const ViewContext& context)
    : QWidget(nullptr, Qt::Window), m_source(source), m_context(context) {
    constexpr double kFirstShare = 0.6;
    resize((QSizeF(screen()->availableSize()) * kFirstShare).toSize());
    m_late.setSingleShot(true);
    connect(&m_late, &QTimer::timeout, this, [this] {
        if (isVisible())
            Show();
    });
    const auto add = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    add(Qt::Key_Escape, [this] { close(); });
    add(Qt::Key_F11, [this] { SwitchFullScreen(); });
}

void FreeWindow::Open() {
    show();
    raise();
    activateWindow();
}

void FreeWindow::showEvent(QShowEvent* event) {
    Show();
    QWidget::showEvent(event);
}

void FreeWindow::Show() {
    ShowName();
    ShowContent();
}

void FreeWindow::ShowName() {
    const QString name = ToQString(window::AccessibleName(m_context.form, m_source));
    setWindowTitle(name + QStringLiteral(" – Tavrelo"));
    if (View().accessibleName() != name)
        View().setAccessibleName(name);
}

void FreeWindow::SwitchFullScreen() { setWindowState(windowState() ^ Qt::WindowFullScreen); }

namespace {

/// A picture in the middle of white paper, painted from its recording as large as there is room.
class Paper : public QWidget, public TellsOfItself {
  public:
    Paper(const window::Picture& picture, const ViewContext& context, QWidget& parent)
        : QWidget(&parent), m_picture(picture), m_context(context) {
        setFocusPolicy(Qt::StrongFocus);
    }

    void ShowPicture() {
        update();
        const QString words = ToQString(m_picture.Description());
        if (accessibleDescription() != words)
            setAccessibleDescription(words);
    }

    QAccessibleInterface* NewAccessible() override {
        return new QAccessibleWidget(this, QAccessible::Graphic);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        const window::Recorder& recording = m_picture.Canvas();
        const double zoom = std::min(width() / recording.Width(), height() / recording.Height());
        painter.translate((width() - zoom * recording.Width()) / 2,
                          (height() - zoom * recording.Height()) / 2);
        painter.setClipRect(QRectF(0, 0, zoom * recording.Width(), zoom * recording.Height()));
        PaintRecording(painter, recording, zoom, m_context.artwork, m_context.text_look);
    }

  private:
    const window::Picture& m_picture;
    const ViewContext& m_context;
};

class FreePicture : public FreeWindow {
  public:
    FreePicture(const window::Picture& picture, const ViewContext& context)
        : FreeWindow(picture, context), m_picture(picture), m_paper(picture, context, *this) {
        setFocusProxy(&m_paper);
        m_paper.setFocus();
    }

  protected:
    void ShowContent() override { m_paper.ShowPicture(); }
    QWidget& View() override { return m_paper; }

    void resizeEvent(QResizeEvent*) override { m_paper.setGeometry(rect()); }

    void contextMenuEvent(QContextMenuEvent* event) override {
        QMenu menu(this);
        AddPictureActions(menu, m_picture, Context());
        menu.exec(event->globalPos());
    }

  private:
    const window::Picture& m_picture;
    Paper m_paper;
};

/// A report whose letters grow with the width of the window; Ctrl +, Ctrl −, Ctrl 0 and Ctrl with the wheel
/// make them larger or smaller than that.
class FreeReport : public FreeWindow {
  public:
    FreeReport(const window::RichTextBox& box, const ViewContext& context)
        : FreeWindow(box, context), m_box(box), m_view(box, *this) {
        m_view.viewport()->installEventFilter(this);
        setFocusProxy(&m_view);
        const auto add = [this](const QKeySequence& keys, auto action) {
            connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
        };
        add(QKeySequence(Qt::CTRL | Qt::Key_Plus), [this] { Grow(m_steps + 1); });
        add(QKeySequence(Qt::CTRL | Qt::Key_Equal), [this] { Grow(m_steps + 1); });
        add(QKeySequence(Qt::CTRL | Qt::Key_Minus), [this] { Grow(m_steps - 1); });
        add(QKeySequence(Qt::CTRL | Qt::Key_0), [this] { Grow(0); });
    }

  protected:
    void ShowContent() override {
        m_view.ShowText(m_box.Content(), Scale(), Context().text_look);
        m_view.Select(m_box.Selection());
    }
    QWidget& View() override { return m_view; }

    void resizeEvent(QResizeEvent*) override {
        m_view.setGeometry(rect());
        Follow();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Wheel)
            return QObject::eventFilter(watched, event);
        const auto* wheel = static_cast<QWheelEvent*>(event);
        if (!(wheel->modifiers() & Qt::ControlModifier))
            return QObject::eventFilter(watched, event);
        if (wheel->angleDelta().y() != 0)
            Grow(m_steps + (wheel->angleDelta().y() > 0 ? 1 : -1));
        return true;
    }

  private:
    void Grow(int steps) {
        constexpr int kMostSteps = 6;
        m_steps = std::clamp(steps, -kMostSteps, kMostSteps);
        ShowContent();
    }

    double Scale() const {
        constexpr double kLineWidth = 520;  // pixels at 100 %: the longest lines of reports stay whole
        constexpr double kStep = 1.2;
        constexpr double kSmallest = 0.5;
        constexpr double kLargest = 12;
        return std::clamp(width() / kLineWidth * std::pow(kStep, m_steps), kSmallest, kLargest);
    }

    const window::RichTextBox& m_box;
    RichTextView m_view;
    int m_steps = 0;
};

}  // namespace

bool HasFreeWindow(const window::Control& control) {
    if (const auto* picture = dynamic_cast<const window::Picture*>(&control))
        return picture->Has(window::kBoard);
    const auto* box = dynamic_cast<const window::RichTextBox*>(&control);
    return box && box->Locked();
}

std::unique_ptr<FreeWindow> NewFreeWindow(const window::Control& source, const ViewContext& context) {
    if (const auto* picture = dynamic_cast<const window::Picture*>(&source))
        return std::make_unique<FreePicture>(*picture, context);
    return std::make_unique<FreeReport>(dynamic_cast<const window::RichTextBox&>(source), context);
}

}  // namespace tavrelo::qt
