#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "mechanics/points/table.h"
#include "window/controls.h"

namespace tavrelo::frame {

/// The texts that a tool gives the panel of points.
struct PointsTexts {
    std::span<const std::string_view> row_labels;      // of the table
    std::span<const std::string_view> configurations;  // beside the buttons `cmdTable`, from the first
    std::string_view split_tip;                        // tooltip of the second of these buttons
    std::span<const std::string_view> procedure_rows;  // of `imgProcs`
    std::span<const std::string_view> procedure_list;  // of `cboProcs`
    int first_icon = 0;                                // cell of the bitmap for the first of these buttons
};

/// What the panel of points shows for a tool apart from the tool's problem; kept while another tool is in
/// use.
struct PointsView {
    window::Recording strip;   // empty: nothing was drawn yet
    int configuration = -1;    // underlined; -1 for none
    int procedure_row = 1;     // the framed one, from 1
    int procedure_entry = -1;  // of the list, from 0; -1 for none
    bool asks_data = true;     // the entry takes data from `txtProcs`
    bool has_accept = true;    // and the button beside it
    std::string data;          // typed into `txtProcs`
    int row = 0;               // current cell of the table
    int column = 1;
};

/// How to begin with the table.
inline constexpr std::string_view kPointsInvitation =
    "Elige la configuración de la tabla y escribe los datos.";

/// The help buttons of the panel, by their index.
enum class PointsHelp { Configuration, Row, Entry };

/// Where a help topic stands.
struct TopicPlace {
    std::string_view file;
    std::string_view tag;
};

/// What a tool does with the events of the panel of points while it is in use. The panel has shown what the
/// user chose before it calls.
class PointsTool {
  public:
    virtual ~PointsTool() = default;

    virtual const PointsTexts& Texts() const = 0;
    virtual mechanics::points::Table& Table() = 0;
    virtual void EraseTable() = 0;
    virtual std::optional<TopicPlace> HelpTopic(PointsHelp button) const = 0;

    /// A button `cmdTable`: the strip is empty again and the choice underlined.
    virtual void Configure(int configuration) = 0;
    virtual void PressStrip(const window::MouseStroke& stroke) = 0;
    virtual void ReleaseStrip(const window::MouseStroke& stroke) = 0;
    /// What can be pressed on the strip as it is.
    virtual std::vector<window::PictureCell> StripCells() const = 0;
    /// The point of a column of the table, as the strip calls it: "2", "0 del móvil 2".
    virtual std::string PointName(int column) const = 0;
    virtual void EnterCell() {}
    virtual void ChooseRow(int row) = 0;      // from 1
    virtual void ChooseEntry(int entry) = 0;  // from 0
    /// The button `cmdProcs`.
    virtual void RunEntry() = 0;
    virtual void NewProblem() = 0;
    virtual void SwapPictures() = 0;
    virtual void EraseEquations() = 0;

    PointsView view;
};

}  // namespace tavrelo::frame
