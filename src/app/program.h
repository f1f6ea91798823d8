#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "window/form1.h"

namespace tavrelo::app {

/// The whole program below the view: the window model with every tool wired to it. Several can live in one
/// process.
class Program {
  public:
    /// Makes the window and runs the start of the program, welcome page included. The host must outlive it.
    explicit Program(const window::Host& host);
    ~Program();

    window::Form1& Window();
    /// The tools and what stands around them (app/tools.h), to look at.
    struct Tools;
    const Tools& Parts() const { return *m_tools; }

    /// The text of a global of the program by its name ("Decimals", "CurrentTool"; truth as "yes" or "no");
    /// nothing for a name that the program does not have.
    std::optional<std::string> GlobalValue(std::string_view name) const;

  private:
    void NameGlobals();

    window::Form1 m_form;
    std::unique_ptr<Tools> m_tools;
    std::map<std::string, std::function<std::string()>, std::less<>> m_globals;
};

}  // namespace tavrelo::app
