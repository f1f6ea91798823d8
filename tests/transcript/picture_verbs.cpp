#include <cmath>
#include <numbers>
#include <optional>

#include "drawing/clock_face.h"
#include "frame/menu_bar.h"
#include "notation/clock_direction.h"
#include "text/number_text.h"
#include "tools/calculator/routine_table.h"
#include "verbs.h"

namespace tavrelo::transcript {
namespace {

constexpr int kToolButtons = 9;
constexpr double kToolButtonWidth = 555;   // twips
constexpr double kToolButtonHeight = 480;  // twips
constexpr double kNumeralRadius = 48;      // of the clock, pixels
constexpr double kDegreesPerHour = 30;
constexpr std::string_view kRotationPrefix = "Q = ";  // around the degrees on the button of the axes
constexpr std::string_view kDegreeSign = "°";

/// A number that must lie between 1 and `most`.
int CountedNumber(Arguments& arguments, int most) {
    const int number = arguments.WholeNumber();
    if (number < 1 || number > most)
        throw ScriptError("there is no number " + std::to_string(number));
    return number;
}

window::MouseStroke Place(double x, double y) {
    window::MouseStroke stroke;
    stroke.x = x;
    stroke.y = y;
    return stroke;
}

window::MouseStroke ReadPlace(Arguments& arguments) {
    const double x = arguments.Number();
    return Place(x, arguments.Number());
}

void Click(Session& session, window::Picture& picture, const window::MouseStroke& stroke) {
    if (session.Reach(picture))
        session.driver.Drag(picture, stroke, stroke);
}

void ReadButton(Arguments& arguments, window::MouseStroke& stroke) {
    if (arguments.NextWord() != "right")
        return;
    arguments.Word();
    stroke.button = window::MouseButton::Right;
}

void ReadHeldKey(Arguments& arguments, std::string_view name, bool& held) {
    if (arguments.NextWord() != name)
        return;
    arguments.Word();
    held = true;
}

struct RoutinePlace {
    int group;  // both from 0
    int icon;
};

/// The first place of the menu where a routine stands.
RoutinePlace FindRoutine(int routine) {
    const auto groups = tools::calculator::RoutineMenu();
    for (std::size_t group = 0; group < groups.size(); ++group)
        for (std::size_t icon = 0; icon < groups[group].icons.size(); ++icon)
            if (groups[group].icons[icon].routine == routine)
                return {static_cast<int>(group), static_cast<int>(icon)};
    throw ScriptError("there is no routine " + std::to_string(routine));
}

window::MouseStroke MenuCell(int column, int row_top) {
    return Place(column * frame::kMenuCellWidth + frame::kMenuCellWidth / 2.0,
                 row_top + frame::kMenuCellHeight / 2.0);
}

/// How far the clock is turned with the axes, degrees.
double ClockRotation(const window::Form1& window) {
    if (window.publics.CurrentTool != window::Tool::Particle)
        return 0;
    std::string_view caption = window.Get<window::Button>("cmdRotangle").Caption();
    if (!caption.starts_with(kRotationPrefix) || !caption.ends_with(kDegreeSign))
        throw ScriptError("cmdRotangle tells no rotation");
    caption.remove_prefix(kRotationPrefix.size());
    caption.remove_suffix(kDegreeSign.size());
    return text::ToNumber(caption);
}

}  // namespace

void PressTool(Session& session, Arguments& arguments) {
    const int button = CountedNumber(arguments, kToolButtons);
    arguments.ExpectEnd();
    Click(session, session.Window().Get<window::Picture>("Image1"),
          Place((button - 0.5) * kToolButtonWidth, kToolButtonHeight / 2));
}

void PickRoutine(Session& session, Arguments& arguments) {
    const RoutinePlace place = FindRoutine(arguments.WholeNumber());
    arguments.ExpectEnd();
    window::Picture& menu = session.Window().Get<window::Picture>("picBar");
    if (!session.Reach(menu))
        return;
    Click(session, menu, MenuCell(place.group, 0));
    Click(session, menu, MenuCell(place.icon, frame::kMenuSecondRow));
}

void PressHour(Session& session, Arguments& arguments) {
    const int hour = CountedNumber(arguments, notation::kHours);
    arguments.ExpectEnd();
    const double degrees = kDegreesPerHour * (notation::kHourRight - hour) + ClockRotation(session.Window());
    const double radians = degrees * std::numbers::pi / 180;
    Click(session, session.Window().Get<window::Picture>("picClock"),
          Place(drawing::kClockRadius + kNumeralRadius * std::cos(radians),
                drawing::kClockRadius - kNumeralRadius * std::sin(radians)));
}

void ClickPicture(Session& session, Arguments& arguments) {
    auto& picture = session.FindAs<window::Picture>(arguments.Word());
    window::MouseStroke stroke = ReadPlace(arguments);
    ReadButton(arguments, stroke);
    ReadHeldKey(arguments, "shift", stroke.shift);
    ReadHeldKey(arguments, "ctrl", stroke.ctrl);
    ReadHeldKey(arguments, "alt", stroke.alt);
    arguments.ExpectEnd();
    Click(session, picture, stroke);
}

void DragOnPicture(Session& session, Arguments& arguments) {
    auto& picture = session.FindAs<window::Picture>(arguments.Word());
    window::MouseStroke from = ReadPlace(arguments);
    const window::MouseStroke end = ReadPlace(arguments);
    ReadButton(arguments, from);
    ReadHeldKey(arguments, "shift", from.shift);
    arguments.ExpectEnd();
    window::MouseStroke to = from;
    to.x = end.x;
    to.y = end.y;
    if (session.Reach(picture))
        session.driver.Drag(picture, from, to);
}

void HoverPicture(Session& session, Arguments& arguments) {
    auto& picture = session.FindAs<window::Picture>(arguments.Word());
    const window::MouseStroke place = ReadPlace(arguments);
    arguments.ExpectEnd();
    if (session.Reach(picture))
        session.driver.Hover(picture, {place.x, place.y});
}

}  // namespace tavrelo::transcript
