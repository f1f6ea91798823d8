#pragma once

#include "qt/binding.h"

// One maker for each kind of control, each in a file of its own.

namespace tavrelo::qt {

std::unique_ptr<Binding> NewFrameBinding(shell::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewShapeBinding(shell::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewLabelBinding(shell::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewButtonBinding(shell::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewOptionBinding(shell::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewCheckBinding(shell::Control& control, QWidget& parent, ViewContext& context);
/// A one-line box for plain text.
std::unique_ptr<Binding> NewTextBinding(shell::Control& control, QWidget& parent, ViewContext& context);
/// A page of formatted text; a box that can be typed into is a line of plain text.
std::unique_ptr<Binding> NewRichTextBinding(shell::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewGridBinding(shell::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewPictureBinding(shell::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewComboBinding(shell::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewListBinding(shell::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewTabStripBinding(shell::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewUpDownBinding(shell::Control& control, QWidget& parent, ViewContext& context);

}  // namespace tavrelo::qt
