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
    bool IsReachable(const shell::Control& control) override;

    void Press(shell::Control& control) override;
    void Drag(shell::Picture& picture, const shell::MouseStroke& from, const shell::MouseStroke& to) override;
    void Hover(shell::Picture& picture, shell::Point place) override;
    void GiveFocus(shell::Control& control) override;
    void Stroke(shell::Control& control, const shell::KeyStroke& stroke) override;
    void ReplaceText(shell::TextControl& box, const std::string& text) override;
    void PressCell(shell::Grid& grid, CellPlace cell) override;
    void DragCells(shell::Grid& grid, const shell::CellBlock& block) override;
    void DoubleClickCell(shell::Grid& grid, CellPlace cell) override;
    void Pick(shell::ComboBox& combo, int row) override;
    void Pick(shell::TabStrip& tabs, int tab) override;
    void Pick(shell::ListBox& list, const std::vector<int>& rows) override;
    void Spin(shell::UpDown& control, int value) override;
    void PutOnClipboard(const std::string& text) override;

    Appearance Look(const shell::Control& control) override;
    std::string Text(const shell::TextBox& box) override;
    std::vector<shell::Run> Runs(const shell::RichTextBox& box) override;
    shell::TextSelection Selection(const shell::TextControl& box) override;
    std::vector<std::vector<std::string>> Cells(const shell::Grid& grid) override;
    shell::CellBlock Selection(const shell::Grid& grid) override;
    std::vector<ListRow> Rows(const shell::ComboBox& combo) override;
    std::vector<ListRow> Rows(const shell::ListBox& list) override;
    bool IsChecked(const shell::OptionButton& option) override;
    bool IsChecked(const shell::CheckBox& check) override;
    int FrontTab(const shell::TabStrip& tabs) override;
    int Value(const shell::UpDown& control) override;
    std::vector<shell::DrawOp> Drawing(const shell::Picture& picture) override;
    std::vector<std::string> DrawnTexts(const shell::Picture& picture) override;
    const shell::Control* Focus() override;
    int Pointer() override;
    ClipboardContent OnClipboard() override;
    void SavePicture(const std::string& path) override;

  private:
    /// The widget of a control; of a window, its frame.
    QWidget& Find(const shell::Control& control);
    template <class WidgetType>
    WidgetType& FindAs(const shell::Control& control) {
        return dynamic_cast<WidgetType&>(Find(control));
    }
    /// As Find, in the active window.
    QWidget& Activate(const shell::Control& control);
    QPointF PlaceOn(const shell::Picture& picture, shell::Point own) const;
    bool IsVisible(const shell::Control& control);
    /// Presses the mouse button on a heading: it only gives the focus.
    void PressHeading(qt::GridView& view, const shell::Grid& grid, CellPlace cell);

    RecordedHost m_world;
    qt::Artwork m_artwork{m_world.files};
    qt::WindowBoxes m_boxes;
    qt::SystemClipboard m_clipboard{m_artwork};
    BoxWatcher m_watcher{m_world.box_log};
    app::Program m_program{{m_boxes, m_clipboard, m_world.printer, m_world.files}};
    qt::MainWindow m_window{m_program.Window(), m_artwork};
};

}  // namespace tavrelo::transcript
