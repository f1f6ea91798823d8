#pragma once

#include <array>
#include <functional>

#include "mechanics/motion/problem.h"
#include "window/form1.h"

namespace tavrelo::tools::motion {

/// The boxes `txtAccel` over the strip: one for each slot of accelerations, in view while the table has its
/// stretch.
class AccelerationBoxes {
  public:
    explicit AccelerationBoxes(window::Form1& form);

    using Cells = std::array<mechanics::points::Cell, mechanics::motion::kSlots>;
    void Show(const Cells& accelerations);
    /// Puts the boxes of a configuration over their stretches and the others out of view.
    void Place(const mechanics::points::Configuration& configuration);
    /// Gives the focus to the first box.
    void Enter();

    /// The student gave the acceleration of a slot this content.
    std::function<void(std::size_t slot, const mechanics::points::Cell& content)> OnTyped;
    /// The key Enter in the last box in view.
    window::Event OnLeave;

  private:
    void Type(int index);
    void Leave(int index);

    window::Form1& m_form;
    window::ControlArray<window::TextBox> m_boxes = m_form.GetArray<window::TextBox>("txtAccel");
};

}  // namespace tavrelo::tools::motion
