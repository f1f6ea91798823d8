#include <algorithm>
#include <iterator>

#include "qt/bindings.h"

namespace tavrelo::qt {
namespace {

using window::ControlKind;

struct Maker {
    ControlKind kind;
    std::unique_ptr<Binding> (*make)(window::Control&, QWidget&, ViewContext&);
};

constexpr Maker kMakers[] = {
    {ControlKind::Frame, NewFrameBinding},     {ControlKind::Label, NewLabelBinding},
    {ControlKind::Button, NewButtonBinding},   {ControlKind::OptionButton, NewOptionBinding},
    {ControlKind::CheckBox, NewCheckBinding},  {ControlKind::TextBox, NewTextBinding},
    {ControlKind::Grid, NewGridBinding},       {ControlKind::RichTextBox, NewRichTextBinding},
    {ControlKind::Picture, NewPictureBinding}, {ControlKind::ComboBox, NewComboBinding},
    {ControlKind::ListBox, NewListBinding},    {ControlKind::TabStrip, NewTabStripBinding},
    {ControlKind::UpDown, NewUpDownBinding},   {ControlKind::Shape, NewShapeBinding},
};

}  // namespace

std::unique_ptr<Binding> NewBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    const auto* maker = std::ranges::find(kMakers, control.Kind(), &Maker::kind);
    Q_ASSERT(maker != std::end(kMakers));
    return maker->make(control, parent, context);
}

}  // namespace tavrelo::qt
