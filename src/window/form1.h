#pragma once

#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "numeric/checked.h"
#include "window/controls.h"
#include "window/host.h"
#include "window/layout.h"
#include "window/pointer.h"
#include "window/publics.h"

namespace tavrelo::window {

/// The controls "name(0)", "name(1)", ... of one array; indexes may have gaps.
template <class ControlType>
class ControlArray {
  public:
    using Item = std::pair<int, ControlType*>;
    explicit ControlArray(std::vector<Item> items) : m_items(std::move(items)) {}

    /// Fails with SubscriptRange when there is no control of that index.
    ControlType& operator[](int index) const {
        for (const auto& [key, control] : m_items)
            if (key == index)
                return *control;
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "control array");
    }
    /// Pairs of index and control, in the order of the indexes.
    std::span<const Item> Items() const { return m_items; }
    int Count() const { return static_cast<int>(m_items.size()); }

  private:
    std::vector<Item> m_items;
};

/// A key of the whole window, whatever has the focus.
struct Shortcut {
    KeyStroke stroke;
    std::function<void()> action;  // does what the user could do by the mouse, through `User...` members
};

/// The window model: every control of every tool under its name, made from the table of layout.h, plus what
/// the controls share: focus, pointer, end of the program. It knows no tool; a tool binds by name the
/// controls that it may touch.
class Form1 {
  public:
    explicit Form1(const Host& host);
    Form1(const Form1&) = delete;
    Form1& operator=(const Form1&) = delete;

    /// The control of that name ("rtbCalc", "cmdParts(0)", "Form2"), or null.
    Control* Find(std::string_view name) const;
    /// The control of that name and kind, for the parts of the program that bind what they need once, when
    /// they are made. Fails with Internal when there is none.
    template <class ControlType>
    ControlType& Get(std::string_view name) const {
        auto* control = dynamic_cast<ControlType*>(Find(name));
        if (!control)
            FailOn(name);
        return *control;
    }
    /// All controls "name(0)", "name(1)", ..., in the order of the table; fails as Get.
    template <class ControlType>
    ControlArray<ControlType> GetArray(std::string_view name) const {
        std::vector<std::pair<int, ControlType*>> items;
        for (const auto& [index, control] : FindArray(name)) {
            items.emplace_back(index, dynamic_cast<ControlType*>(control));
            if (!items.back().second)
                FailOn(name);
        }
        if (items.empty())
            FailOn(name);
        return ControlArray<ControlType>(std::move(items));
    }
    /// The program's window and its dialog.
    Window& Main() const { return Get<Window>(kMainName); }
    Window& Dialog() const { return Get<Window>(kDialogName); }
    /// All controls in reading order.
    std::span<Control* const> Controls() const { return m_order; }

    /// Gives the panels the places of an arrangement.
    void Arrange(Arrangement arrangement);
    /// The one in force; nothing before the first tool.
    std::optional<Arrangement> CurrentArrangement() const { return m_arrangement; }

    /// The control with the focus, or null.
    Control* Focus() const { return m_focus; }
    /// The program moves the focus; nothing happens when the control cannot be used now.
    void SetFocus(Control& control);
    /// The user moved the focus; as every `User...`, no failure of a handler leaves it.
    void UserFocused(Control& control);

    /// Shape of the window's pointer, see PointerShape.
    int Pointer() const { return m_pointer; }
    void SetPointer(int shape);

    /// Unloads both windows; nothing can be done any more.
    void End();
    bool HasEnded() const { return m_ended; }
    Event OnEnd;

    /// Brings a window that is already in view to the front.
    std::function<void(Window&)> OnRaise;

    /// Told about every change of every control; set by the view.
    ChangeListener OnChange;

    /// The keys of the whole window; the program fills them when it is made.
    std::vector<Shortcut> shortcuts;

    /// Says in one short Spanish sentence what an action has just changed, for those who do not see it
    /// happen: "Fuerza 2 añadida: ...". Once for each action; what boxes and reports tell is not said again.
    void Announce(std::string_view sentence) const;
    /// Told what is announced; set by the view.
    std::function<void(std::string_view)> OnAnnounce;

    Boxes& boxes;
    Clipboard& clipboard;
    Printer& printer;
    Files& files;

    /// The program's shared state.
    Publics publics;

  private:
    static constexpr std::string_view kMainName = "Form1";
    static constexpr std::string_view kDialogName = "Form2";

    void MakeControl(const ControlRow& row);
    Control* MustFind(std::string_view name) const;
    [[noreturn]] static void FailOn(std::string_view name);
    std::vector<std::pair<int, Control*>> FindArray(std::string_view name) const;
    void MakeControls();
    void MoveFocus(Control& control);
    /// All option buttons of one array exclude each other.
    void LinkOptions();
    /// Gives the controls that fill a page its size.
    void FillPages();
    /// Tells the view of the controls that are called otherwise in another arrangement.
    void TellNames();

    ControlLinks m_links;
    std::map<std::string, std::unique_ptr<Control>, std::less<>> m_controls;
    std::vector<Control*> m_order;
    std::optional<Arrangement> m_arrangement;
    Control* m_focus = nullptr;
    int m_pointer = kPointerDefault;
    bool m_ended = false;
};

}  // namespace tavrelo::window
