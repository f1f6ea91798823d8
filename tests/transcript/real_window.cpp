#include "real_window.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QTabBar>
#include <QTest>
#include <QToolButton>
#include <algorithm>

#include "qt/text.h"
#include "script.h"

// What a student does to a real window.

namespace tavrelo::transcript {
namespace {

using qt::ToQString;
using window::Key;

struct KeyCode {
    Key key;
    Qt::Key code;
};
constexpr KeyCode kKeyCodes[] = {
    {Key::Enter, Qt::Key_Return},  {Key::Backspace, Qt::Key_Backspace},
    {Key::Delete, Qt::Key_Delete}, {Key::Insert, Qt::Key_Insert},
    {Key::Left, Qt::Key_Left},     {Key::Right, Qt::Key_Right},
    {Key::Up, Qt::Key_Up},         {Key::Down, Qt::Key_Down},
    {Key::Home, Qt::Key_Home},     {Key::End, Qt::Key_End},
    {Key::Tab, Qt::Key_Tab},       {Key::Escape, Qt::Key_Escape},
    {Key::F10, Qt::Key_F10},       {Key::F11, Qt::Key_F11},
    {Key::F12, Qt::Key_F12},
};

/// The code of the key that types a character: its capital, as far as keyboards number them.
Qt::Key CodeOf(char32_t character) {
    constexpr char32_t kLastNumbered = 0xff;
    const char32_t capital = QChar::toUpper(character);
    return capital <= kLastNumbered ? static_cast<Qt::Key>(capital) : Qt::Key_unknown;
}

Qt::KeyboardModifiers ModifiersOf(bool shift, bool ctrl, bool alt) {
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, shift);
    modifiers.setFlag(Qt::ControlModifier, ctrl);
    modifiers.setFlag(Qt::AltModifier, alt);
    return modifiers;
}

/// The text that a key event carries: none for a command, a control character for the keys that have one.
QString TextOf(const window::KeyStroke& stroke) {
    if (stroke.ctrl || stroke.alt)
        return {};
    switch (stroke.key) {
        case Key::Character:
            return QString::fromUcs4(&stroke.character, 1);
        case Key::Enter:
            return QStringLiteral("\r");
        case Key::Backspace:
            return QStringLiteral("\b");
        default:
            return {};
    }
}

/// What happens to a mouse button, where and with which keys held. Places may be parts of a pixel.
struct MouseAct {
    QEvent::Type type;
    QPointF place;
    Qt::MouseButton button = Qt::LeftButton;
    Qt::KeyboardModifiers modifiers = {};
};

void SendMouse(QWidget& widget, const MouseAct& act) {
    const bool is_move = act.type == QEvent::MouseMove;
    const bool is_up = act.type == QEvent::MouseButtonRelease;
    QMouseEvent event(act.type, act.place, widget.mapToGlobal(act.place), is_move ? Qt::NoButton : act.button,
                      is_up ? Qt::NoButton : act.button, act.modifiers);
    QCoreApplication::sendEvent(&widget, &event);
}

bool IsHeading(const window::Grid& grid, CellPlace cell) {
    return cell.row < grid.FixedRows() || cell.col < grid.FixedCols();
}

}  // namespace

RealWindow::RealWindow(const DriverOptions& options) {
    constexpr double kPercent = 100;
    QApplication::clipboard()->clear();
    if (options.has_contrast)
        m_window.SetContrast(true);
    m_window.SetZoom(options.zoom_percent / kPercent);
    m_window.Show();
    if (options.is_maximised)
        m_window.Frame().setWindowState(Qt::WindowMaximized);
    QApplication::setActiveWindow(&m_window.Frame());
    QCoreApplication::processEvents();
}

RealWindow::~RealWindow() {
    // What the transcript left behind is painted once, as a student would see it.
    QCoreApplication::processEvents();
}

QWidget& RealWindow::Find(const window::Control& control) {
    return m_window.WidgetOf(*m_program.Window().Find(control.Name()));
}

QWidget& RealWindow::Activate(const window::Control& control) {
    QWidget& widget = Find(control);
    if (QApplication::activeWindow() != widget.window())
        QApplication::setActiveWindow(widget.window());
    return widget;
}

bool RealWindow::IsReachable(const window::Control& control) {
    const QWidget& widget = Find(control);
    return widget.isVisible() && widget.isEnabled();
}

void RealWindow::Press(window::Control& control) {
    QWidget& widget = Activate(control);
    QTest::mouseClick(&widget, Qt::LeftButton);
}

QPointF RealWindow::PlaceOn(const window::Picture& picture, window::Point own) const {
    const window::Point pixels = picture.ToPixels(own);
    return QPointF(pixels.x, pixels.y) * m_window.Zoom();
}

void RealWindow::Drag(window::Picture& picture, const window::MouseStroke& from,
                      const window::MouseStroke& to) {
    QWidget& widget = Activate(picture);
    MouseAct act{QEvent::MouseButtonPress, PlaceOn(picture, {from.x, from.y})};
    if (from.button == window::MouseButton::Right)
        act.button = Qt::RightButton;
    act.modifiers = ModifiersOf(from.shift, from.ctrl, from.alt);
    SendMouse(widget, act);
    const QPointF end = PlaceOn(picture, {to.x, to.y});
    if (end != act.place)
        SendMouse(widget, {QEvent::MouseMove, end, act.button, act.modifiers});
    SendMouse(widget, {QEvent::MouseButtonRelease, end, act.button, act.modifiers});
}

void RealWindow::Hover(window::Picture& picture, window::Point place) {
    SendMouse(Activate(picture), {QEvent::MouseMove, PlaceOn(picture, place), Qt::NoButton});
}

void RealWindow::GiveFocus(window::Control& control) {
    QWidget& widget = Activate(control);
    if (!widget.hasFocus())
        widget.setFocus(Qt::OtherFocusReason);
}

void RealWindow::Stroke(window::Control& control, const window::KeyStroke& stroke) {
    const auto* named = std::ranges::find(kKeyCodes, stroke.key, &KeyCode::key);
    const Qt::Key code = named != std::end(kKeyCodes) ? named->code : CodeOf(stroke.character);
    const auto modifiers = ModifiersOf(stroke.shift, stroke.ctrl, stroke.alt);
    QTest::sendKeyEvent(QTest::Click, &Activate(control), code, TextOf(stroke), modifiers);
}

void RealWindow::ReplaceText(window::TextControl& box, const std::string& text) {
    auto& field = FindAs<QLineEdit>(box);
    if (field.isReadOnly())
        return;
    field.selectAll();
    field.insert(ToQString(text));
}

void RealWindow::PressHeading(qt::GridView& view, const window::Grid& grid, CellPlace cell) {
    const bool is_top = cell.row < grid.FixedRows();
    QHeaderView& heading = is_top ? *view.horizontalHeader() : *view.verticalHeader();
    const int section = is_top ? cell.col - grid.FixedCols() : cell.row - grid.FixedRows();
    const int start = heading.sectionViewportPosition(std::max(section, 0)) + 1;
    QTest::mouseClick(heading.viewport(), Qt::LeftButton, {}, is_top ? QPoint(start, 1) : QPoint(1, start));
}

void RealWindow::PressCell(window::Grid& grid, CellPlace cell) {
    Activate(grid);
    auto& view = FindAs<qt::GridView>(grid);
    if (IsHeading(grid, cell))
        PressHeading(view, grid, cell);
    else
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.BringIntoView(cell.row, cell.col));
}

void RealWindow::DragCells(window::Grid& grid, const window::CellBlock& block) {
    Activate(grid);
    auto& view = FindAs<qt::GridView>(grid);
    const CellPlace first = {block.first_row, block.first_col};
    if (IsHeading(grid, first))
        return PressHeading(view, grid, first);
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, view.BringIntoView(first.row, first.col));
    const QPoint last = view.BringIntoView(std::max(block.last_row, grid.FixedRows()),
                                           std::max(block.last_col, grid.FixedCols()));
    SendMouse(*view.viewport(), {QEvent::MouseMove, last});
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, last);
}

void RealWindow::DoubleClickCell(window::Grid& grid, CellPlace cell) {
    PressCell(grid, cell);
    if (IsHeading(grid, cell))
        return;
    auto& view = FindAs<qt::GridView>(grid);
    const QPoint place = view.BringIntoView(cell.row, cell.col);
    SendMouse(*view.viewport(), {QEvent::MouseButtonDblClick, place});
    SendMouse(*view.viewport(), {QEvent::MouseButtonRelease, place});
}

void RealWindow::Pick(window::ComboBox& combo, int row) {
    Activate(combo);
    auto& widget = FindAs<QComboBox>(combo);
    widget.setFocus(Qt::MouseFocusReason);
    widget.showPopup();
    widget.view()->setCurrentIndex(widget.model()->index(row, 0));
    QTest::keyClick(widget.view(), Qt::Key_Return);
}

void RealWindow::Pick(window::TabStrip& tabs, int tab) {
    auto& bar = *Activate(tabs).findChild<QTabBar*>();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
}

void RealWindow::Pick(window::ListBox& list, const std::vector<int>& rows) {
    Activate(list);
    auto& widget = FindAs<QListWidget>(list);
    const auto click = [&widget](int row, Qt::KeyboardModifiers modifiers) {
        widget.scrollToItem(widget.item(row));
        const QPoint place = widget.visualItemRect(widget.item(row)).center();
        QTest::mouseClick(widget.viewport(), Qt::LeftButton, modifiers, place);
    };
    if (rows.empty())
        for (const QListWidgetItem* item : widget.selectedItems())
            click(widget.row(item), Qt::ControlModifier);
    for (const int row : rows)
        click(row, row == rows.front() ? Qt::NoModifier : Qt::ControlModifier);
}

void RealWindow::Spin(window::UpDown& control, int value) {
    QWidget& widget = Activate(control);
    const int step = value > Value(control) ? 1 : -1;
    for (int before = Value(control); before != value; before = Value(control)) {
        if (auto* box = qobject_cast<QSpinBox*>(&widget))
            box->stepBy(step);
        else
            widget.findChildren<QToolButton*>().at(step > 0 ? 0 : 1)->click();
        if (Value(control) == before)
            return;
    }
}

void RealWindow::PutOnClipboard(const std::string& text) {
    QApplication::clipboard()->setText(ToQString(text));
}

void RealWindow::SavePicture(const std::string& path) {
    QCoreApplication::processEvents();
    if (!QTest::qWaitFor([this] { return m_window.Bar().IsFilled(); }))
        throw ScriptError("the bar below the page stays empty");
    m_window.Frame().grab().save(ToQString(path));
}

}  // namespace tavrelo::transcript
