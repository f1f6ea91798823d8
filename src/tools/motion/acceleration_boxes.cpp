#include "tools/motion/acceleration_boxes.h"

#include "frame/points_strip.h"
#include "tools/motion/motion_strip.h"
#include "window/guarded.h"

namespace tavrelo::tools::motion {

AccelerationBoxes::AccelerationBoxes(window::Form1& form) : m_form(form) {
    for (const auto& [index, box] : m_boxes.Items())
        On(m_form, box->OnChange, [this, index = index] { Type(index); });
    OnEnter(m_form, m_boxes, [this](int index) { Leave(index); });
}

void AccelerationBoxes::Type(int index) {
    window::TextBox& box = m_boxes[index];
    const mechanics::points::Cell content = mechanics::motion::TypedAcceleration(box.Text());
    if (OnTyped)
        OnTyped(static_cast<std::size_t>(index), content);
    // "g" has become a number.
    if (content.stored.HoldsNumber())
        box.SetText(content.shown);
}

void AccelerationBoxes::Leave(int index) {
    if (const auto refusal = mechanics::motion::CheckAcceleration(m_boxes[index].Text()))
        return m_form.boxes.Tell(refusal->text);
    for (const auto& [next, box] : m_boxes.Items())
        if (next > index && box->Visible())
            return m_form.SetFocus(*box);
    if (OnLeave)
        OnLeave();
}

void AccelerationBoxes::Show(const Cells& accelerations) {
    for (const auto& [index, box] : m_boxes.Items()) {
        const std::string& shown = accelerations[static_cast<std::size_t>(index)].shown;
        if (box->Text() != shown)
            box->SetText(shown);
    }
}

void AccelerationBoxes::Place(const mechanics::points::Configuration& configuration) {
    for (const auto& [index, box] : m_boxes.Items())
        box->SetVisible(false);
    for (const AccelerationSpan& span : SpansOf(configuration)) {
        window::TextBox& box = m_boxes[static_cast<int>(span.slot)];
        window::Rect place = box.Bounds();
        place.left = frame::AccelerationBoxLeft(span.first_column, span.points);
        box.SetBounds(place);
        box.SetVisible(true);
    }
}

void AccelerationBoxes::Enter() { m_form.SetFocus(m_boxes[0]); }

}  // namespace tavrelo::tools::motion
