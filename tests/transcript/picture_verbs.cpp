#include <cmath>
#include <numbers>
#include <optional>

#include "shell/menu_bar.h"
#include "vectors/clock_direction.h"
#include "vectors/clock_face.h"
#include "vectors/direction_clock.h"
#include "verbs.h"

namespace tavrelo::transcript {
namespace {

constexpr int kToolButtons = 9;
constexpr double kToolButtonWidth = 555;   // twips
constexpr double kToolButtonHeight = 480;  // twips
constexpr double kNumeralRadius = 48;      // of the clock, pixels
constexpr double kDegreesPerHour = 30;

/// A number that must lie between 1 and `most`.
int CountedNumber(Arguments& arguments, int most) {
    const int number = arguments.WholeNumber();
    if (number < 1 || number > most)
        throw ScriptError("there is no number " + std::to_string(number));
    return number;
}

shell::MouseStroke Place(double x, double y) {
    shell::MouseStroke stroke;
    stroke.x = x;
    stroke.y = y;
    return stroke;
}

shell::MouseStroke ReadPlace(Arguments& arguments) {
    const double x = arguments.Number();
    return Place(x, arguments.Number());
}

void Click(Session& session, shell::Picture& picture, const shell::MouseStroke& stroke) {
    if (session.Reach(picture))
        session.driver.Drag(picture, stroke, stroke);
}

void ReadButton(Arguments& arguments, shell::MouseStroke& stroke) {
    if (arguments.NextWord() != "right")
        return;
    arguments.Word();
    stroke.button = shell::MouseButton::Right;
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
    const auto groups = shell::RoutineGroups();
    for (std::size_t group = 0; group < groups.size(); ++group)
        for (std::size_t icon = 0; icon < groups[group].icons.size(); ++icon)
            if (groups[group].icons[icon].routine == routine)
                return {static_cast<int>(group), static_cast<int>(icon)};
    throw ScriptError("there is no routine " + std::to_string(routine));
}

shell::MouseStroke MenuCell(int column, int row_top) {
    return Place(column * shell::kMenuCellWidth + shell::kMenuCellWidth / 2.0,
                 row_top + shell::kMenuCellHeight / 2.0);
}

/// How far the clock is turned with the axes, degrees.
double ClockRotation(const shell::Form1& window) {
    return window.publics.CurrentTool == shell::Tool::Particle ? vectors::GetRotAngle(window) : 0;
}

}  // namespace

void PressTool(Session& session, Arguments& arguments) {
    const int button = CountedNumber(arguments, kToolButtons);
    arguments.ExpectEnd();
    Click(session, session.Window().Image1, Place((button - 0.5) * kToolButtonWidth, kToolButtonHeight / 2));
}

void PickRoutine(Session& session, Arguments& arguments) {
    const RoutinePlace place = FindRoutine(arguments.WholeNumber());
    arguments.ExpectEnd();
    shell::Picture& menu = session.Window().picBar;
    if (!session.Reach(menu))
        return;
    Click(session, menu, MenuCell(place.group, 0));
    Click(session, menu, MenuCell(place.icon, shell::kMenuSecondRow));
}

void PressHour(Session& session, Arguments& arguments) {
    const int hour = CountedNumber(arguments, vectors::kHours);
    arguments.ExpectEnd();
    const double degrees = kDegreesPerHour * (vectors::kHourRight - hour) + ClockRotation(session.Window());
    const double radians = degrees * std::numbers::pi / 180;
    Click(session, session.Window().picClock,
          Place(vectors::kClockRadius + kNumeralRadius * std::cos(radians),
                vectors::kClockRadius - kNumeralRadius * std::sin(radians)));
}

void ClickPicture(Session& session, Arguments& arguments) {
    auto& picture = session.FindAs<shell::Picture>(arguments.Word());
    shell::MouseStroke stroke = ReadPlace(arguments);
    ReadButton(arguments, stroke);
    ReadHeldKey(arguments, "shift", stroke.shift);
    ReadHeldKey(arguments, "ctrl", stroke.ctrl);
    ReadHeldKey(arguments, "alt", stroke.alt);
    arguments.ExpectEnd();
    Click(session, picture, stroke);
}

void DragOnPicture(Session& session, Arguments& arguments) {
    auto& picture = session.FindAs<shell::Picture>(arguments.Word());
    shell::MouseStroke from = ReadPlace(arguments);
    const shell::MouseStroke end = ReadPlace(arguments);
    ReadButton(arguments, from);
    ReadHeldKey(arguments, "shift", from.shift);
    arguments.ExpectEnd();
    shell::MouseStroke to = from;
    to.x = end.x;
    to.y = end.y;
    if (session.Reach(picture))
        session.driver.Drag(picture, from, to);
}

void HoverPicture(Session& session, Arguments& arguments) {
    auto& picture = session.FindAs<shell::Picture>(arguments.Word());
    const shell::MouseStroke place = ReadPlace(arguments);
    arguments.ExpectEnd();
    if (session.Reach(picture))
        session.driver.Hover(picture, {place.x, place.y});
}

}  // namespace tavrelo::transcript
