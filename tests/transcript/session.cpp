#include "session.h"

namespace tavrelo::transcript {

window::Control& Session::Find(std::string_view name) {
    window::Control* control = Window().Find(name);
    if (!control)
        throw ScriptError("there is no control \"" + std::string(name) + "\"");
    return *control;
}

void Session::FailMisfit(std::string_view name) {
    throw ScriptError("the command does not fit " + std::string(name));
}

bool Session::Reach(const window::Control& control) {
    if (driver.IsReachable(control))
        return true;
    Show("! " + control.Name() + " is not reachable");
    return false;
}

}  // namespace tavrelo::transcript
