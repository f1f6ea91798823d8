#include "commands.h"

#include <algorithm>
#include <string>

#include "arguments.h"
#include "verbs.h"

namespace tavrelo::transcript {
namespace {

struct Verb {
    std::string_view name;
    void (*perform)(Session& session, Arguments& arguments);
};

constexpr Verb kVerbs[] = {
    {"tool", PressTool},      {"routine", PickRoutine},
    {"hour", PressHour},      {"press", Press},
    {"mouse", ClickPicture},  {"drag", DragOnPicture},
    {"hover", HoverPicture},  {"type", Type},
    {"key", PressKey},        {"set", SetText},
    {"cell", PressCell},      {"block", DragBlock},
    {"fill", FillCells},      {"dblclick", DoubleClickCell},
    {"pick", Pick},           {"spin", Spin},
    {"answer", QueueAnswer},  {"clipboard", PutOnClipboard},
    {"files", RemoveFiles},   {"file", PutFile},
    {"markup", RenderMarkup}, {"show", Show},
};

const Verb& FindVerb(std::string_view name) {
    const auto* found = std::ranges::find(kVerbs, name, &Verb::name);
    if (found == std::end(kVerbs))
        throw ScriptError("there is no command \"" + std::string(name) + "\"");
    return *found;
}

}  // namespace

void Perform(Session& session, std::string_view command) {
    Arguments arguments(command);
    const Verb& verb = FindVerb(arguments.Word());
    if (session.Window().HasEnded()) {
        session.Show("! the program has ended");
        return;
    }
    verb.perform(session, arguments);
    session.ShowBoxes();
}

}  // namespace tavrelo::transcript
