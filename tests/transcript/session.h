#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "driver.h"
#include "script.h"

namespace tavrelo::transcript {

/// What the commands of one transcript act on, and the lines that the command at hand shows.
class Session {
  public:
    explicit Session(Driver& driver) : driver(driver) {}

    window::Form1& Window() { return driver.Program().Window(); }

    void Show(std::string line) { m_lines.push_back(std::move(line)); }
    void Show(const std::vector<std::string>& lines) {
        m_lines.insert(m_lines.end(), lines.begin(), lines.end());
    }
    /// The boxes that opened since the last call are shown.
    void ShowBoxes() { Show(driver.World().box_log.TakeLines()); }
    std::vector<std::string> TakeLines() { return std::exchange(m_lines, {}); }

    /// The control of that name; fails with ScriptError when there is none.
    window::Control& Find(std::string_view name);
    /// The control of that name, of that kind; fails with ScriptError when the command does not fit it.
    template <class ControlType>
    ControlType& FindAs(std::string_view name) {
        auto* control = dynamic_cast<ControlType*>(&Find(name));
        if (!control)
            FailMisfit(name);
        return *control;
    }
    [[noreturn]] static void FailMisfit(std::string_view name);

    /// True when the student can get at a control; else the command shows that it is out of reach.
    bool Reach(const window::Control& control);

    Driver& driver;

  private:
    std::vector<std::string> m_lines;
};

}  // namespace tavrelo::transcript
