#pragma once

#include <array>
#include <optional>
#include <string>

#include "app/tools.h"

namespace tavrelo::sessions {

/// What an act was and what came of it.
struct Deed {
    std::string act;  // as a command of a transcript
    bool refused = false;
    bool confirmed = false;         // a question was answered with Yes
    std::size_t forces_before = 0;  // of the particle
};

/// What can be used and what cannot, told anew beside the program: a walk through the states of the particle
/// tool, and what holds in the others at any time.
class ButtonRules {
  public:
    /// The first control, after a deed, that can be used and should not, or the other way about.
    std::optional<std::string> FindWrong(const app::Program::Tools& tools, const Deed& deed);

  private:
    /// Of the particle tool.
    struct States {
        bool solve = false;
        bool restore = false;  // and to accept what was found
        bool cancel = true;
        bool entry = true;
    };
    States After(const Deed& deed, std::size_t forces) const;
    std::optional<std::string> WrongParticle(const app::Program::Tools& tools, const Deed& deed);

    States m_particle;
};

}  // namespace tavrelo::sessions
