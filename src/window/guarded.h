#pragma once

#include <concepts>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "window/form1.h"
#include "window/guard.h"

// The way in which a tool gives a control its handlers: each comes under the guard, so that whatever fails
// inside ends in a box with the message (none for an empty one), and the program goes on. For example
//
//     OnClick(form, m_controls.parts, [this](int index) { RunCommand(index); });
//     OnEnter(form, m_controls.vector, [this] { EnterForce(); });
//     On(form, m_controls.grid.OnSelChange, [this] { ShowSize(); });

namespace tavrelo::window {

/// The one who may put a function into a control's handler.
struct HandlerAccess {
    template <class Signature>
    static void Put(Handler<Signature>& event, std::function<Signature> function) {
        event.m_function = std::move(function);
    }
};

/// Gives any event of a control its handler. One that answers (whether it consumed a key) answers no when it
/// fails.
template <class Result, class... Args, class Work>
void On(Form1& form, Handler<Result(Args...)>& event, Work work,
        std::string_view message = text::kCommandFailed) {
    const auto guarded = [&boxes = form.boxes, work = std::move(work),
                          text = std::string(message)](Args... args) {
        if constexpr (std::is_void_v<Result>) {
            Guard(boxes, text, [&] { work(args...); });
        } else {
            Result result{};
            Guard(boxes, text, [&] { result = work(args...); });
            return result;
        }
    };
    HandlerAccess::Put<Result(Args...)>(event, guarded);
}

/// A click on a button, option, check box, label, list or tab strip.
template <std::derived_from<Control> ControlType, class Work>
void OnClick(Form1& form, ControlType& control, Work work, std::string_view message = text::kCommandFailed) {
    On(form, control.OnClick, std::move(work), message);
}

/// A click on any control of an array; the handler takes its index.
template <class ControlType, class Work>
void OnClick(Form1& form, const ControlArray<ControlType>& controls, const Work& work,
             std::string_view message = text::kCommandFailed) {
    for (const auto& [index, control] : controls.Items())
        On(
            form, control->OnClick, [work, index = index] { work(index); }, message);
}

/// The key Enter in a box. It is consumed, also by a handler that fails; every other key goes to the box.
void OnEnter(Form1& form, TextControl& box, Event work, std::string_view message = text::kCommandFailed);

/// The key Enter in any box of an array; the handler takes its index.
template <class ControlType, class Work>
void OnEnter(Form1& form, const ControlArray<ControlType>& boxes, const Work& work,
             std::string_view message = text::kCommandFailed) {
    for (const auto& [index, box] : boxes.Items())
        OnEnter(
            form, *box, [work, index = index] { work(index); }, message);
}

}  // namespace tavrelo::window
