#pragma once

#include <QPointF>

#include "box_watcher.h"
#include "driver.h"
#include "qt/boxes.h"
#include "qt/clipboard.h"
#include "qt/grid_view.h"
#include "qt/main_window.h"

namespace tavrelo::transcript {

/// A program in a real window, acted on by mouse and key events and read from its widgets.
class RealWindow : public Driver {
  public:
    explicit RealWindow(const DriverOptions& options);
    ~RealWindow() override;

    app::Program& Program() override { return m_program; }
    RecordedHost& World() override { return m_world; }
    bool IsReachable(const window::Control& control) override;

    void Press(window::Control& control) override;
    void Drag(window::Picture& picture, const window::MouseStroke& from,
              const window::MouseStroke& to) override;
    void Hover(window::Picture& picture, window::Point place) override;
    void GiveFocus(window::Control& control) override;
    void Stroke(window::Control& control, const window::KeyStroke& stroke) override;
    void ReplaceText(window::TextControl& box, const std::string& text) override;
    void PressCell(window::Grid& grid, CellPlace cell) override;
    void DragCells(window::Grid& grid, const window::CellBlock& block) override;
    void DoubleClickCell(window::Grid& grid, CellPlace cell) override;
    void Pick(window::ComboBox& combo, int row) override;
    void Pick(window::TabStrip& tabs, int tab) override;
    void Pick(window::ListBox& list, const std::vector<int>& rows) override;
    void Spin(window::UpDown& control, int value) override;
    void PutOnClipboard(const std::string& text) override;

    Appearance Look(const window::Control& control) override;
    std::string Text(const window::TextBox& box) override;
    std::vector<text::Run> Runs(const window::RichTextBox& box) override;
    window::TextSelection Selection(const window::TextControl& box) override;
    std::vector<std::vector<std::string>> Cells(const window::Grid& grid) override;
    window::CellBlock Selection(const window::Grid& grid) override;
    std::vector<ListRow> Rows(const window::ComboBox& combo) override;
    std::vector<ListRow> Rows(const window::ListBox& list) override;
    std::vector<ListRow> Rows(const window::TabStrip& tabs) override;
    bool IsChecked(const window::OptionButton& option) override;
    bool IsChecked(const window::CheckBox& check) override;
    int FrontTab(const window::TabStrip& tabs) override;
    int Value(const window::UpDown& control) override;
    std::vector<window::DrawOp> Drawing(const window::Picture& picture) override;
    std::vector<std::string> DrawnTexts(const window::Picture& picture) override;
    const window::Control* Focus() override;
    int Pointer() override;
    ClipboardContent OnClipboard() override;
    TreeFindings WalkTree() override;
    void SavePicture(const std::string& path) override;

  private:
    /// The widget of a control; of a window, its frame.
    QWidget& Find(const window::Control& control);
    template <class WidgetType>
    WidgetType& FindAs(const window::Control& control) {
        return dynamic_cast<WidgetType&>(Find(control));
    }
    /// As Find, in the active window.
    QWidget& Activate(const window::Control& control);
    QPointF PlaceOn(const window::Picture& picture, window::Point own) const;
    bool IsVisible(const window::Control& control);
    /// The place of a widget in its panel, pixels at 100 %.
    window::Rect BoundsOf(QWidget& widget);
    /// Fails with ScriptError when the painted picture lacks what was drawn on it.
    void ExpectInk(const window::Picture& picture);
    /// Presses the mouse button on a heading: it only gives the focus.
    void PressHeading(qt::GridView& view, const window::Grid& grid, CellPlace cell);

    RecordedHost m_world;
    qt::Artwork m_artwork{m_world.files};
    qt::WindowBoxes m_boxes;
    qt::SystemClipboard m_clipboard{m_artwork};
    BoxWatcher m_watcher{m_world.box_log};
    app::Program m_program{{m_boxes, m_clipboard, m_world.printer, m_world.files}};
    qt::MainWindow m_window{m_program.Window(), m_artwork};
};

}  // namespace tavrelo::transcript
