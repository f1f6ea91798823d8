#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "text/color.h"
#include "window/geometry.h"

namespace tavrelo::window {

enum class ControlKind {
    Window,
    Frame,
    Label,
    Button,
    OptionButton,
    CheckBox,
    TextBox,
    RichTextBox,
    Grid,
    Picture,
    ComboBox,
    ListBox,
    TabStrip,
    UpDown,
    Shape,
};

/// What the view has to look at again after a change.
enum class Change {
    State,      // place, visibility, enabling, caption, tooltip, colours, checked, pointer
    Content,    // text, runs, cells, items, drawing
    Selection,  // caret, selected text, current cell, chosen rows, tab in front, value
    Focus,      // this control has the focus now
};

class Control;
using ChangeListener = std::function<void(Control&, Change)>;

/// What a window does for its controls.
struct ControlLinks {
    ChangeListener changed;
    std::function<void()> handler_failed;  // a failure left the handler of something that the user did
};

/// What all controls of the window have in common. The model owns every property; the view shows them and
/// reports what the user did through the `User...` members of the control classes.
class Control {
  public:
    struct Identity {
        std::string name;
        ControlKind kind;
        Control* parent;  // null for a window
        int page;         // page of the parent tab strip, or kAllPages
        int flags = 0;    // of the table, see layout.h
    };
    static constexpr int kAllPages = -1;

    Control(Identity identity, const ControlLinks& links) : m_identity(std::move(identity)), m_links(links) {}
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& Name() const { return m_identity.name; }
    ControlKind Kind() const { return m_identity.kind; }
    Control* Parent() const { return m_identity.parent; }
    int Page() const { return m_identity.page; }
    /// Whether the table gives the control that flag; see layout.h.
    bool Has(int flag) const { return (m_identity.flags & flag) != 0; }

    const Rect& Bounds() const { return m_bounds; }
    void SetBounds(const Rect& bounds) { Set(m_bounds, bounds); }
    const std::string& Caption() const { return m_caption; }
    void SetCaption(std::string caption) { Set(m_caption, std::move(caption)); }
    const std::string& Tooltip() const { return m_tooltip; }
    void SetTooltip(std::string tooltip) { Set(m_tooltip, std::move(tooltip)); }

    /// The control's own visibility; see IsShown.
    bool Visible() const { return m_visible; }
    void SetVisible(bool visible) { Set(m_visible, visible); }
    /// The control's own enabling; see IsUsable.
    bool Enabled() const { return m_enabled; }
    void SetEnabled(bool enabled) { Set(m_enabled, enabled); }
    bool Underlined() const { return m_underlined; }
    void SetUnderlined(bool underlined) { Set(m_underlined, underlined); }
    text::Color ForeColor() const { return m_fore_color; }
    void SetForeColor(text::Color color) { Set(m_fore_color, color); }
    text::Color BackColor() const { return m_back_color; }
    void SetBackColor(text::Color color) { Set(m_back_color, color); }
    bool HasBackColor() const { return m_back_color != kNoColor; }

    /// Visible itself and with all its panels, its tab page in front.
    bool IsShown() const;
    /// Shown, and enabled itself and with all its panels.
    bool IsUsable() const;

    static constexpr text::Color kNoColor{0xff000000};  // the toolkit's own background shows

  protected:
    /// Tells the view; inside a ChangeBatch once for all changes of a kind.
    void Notify(Change change);
    /// Fires the events of something that the user did. No failure leaves it: what a handler's own guard let
    /// pass ends here.
    template <class Events>
    void FireForUser(Events&& events) const {
        try {
            std::forward<Events>(events)();
        } catch (...) {
            m_links.handler_failed();
        }
    }
    template <class T>
    void Set(T& property, T value, Change change = Change::State) {
        if (property == value)
            return;
        property = std::move(value);
        Notify(change);
    }
    /// True when children of that page are in front; a control without pages shows them all.
    virtual bool ShowsPage(int /*page*/) const { return true; }

  private:
    friend class ChangeBatch;

    Identity m_identity;
    const ControlLinks& m_links;
    int m_batches = 0;                // open now
    std::vector<Change> m_held_back;  // by them, each kind once
    Rect m_bounds;
    std::string m_caption;
    std::string m_tooltip;
    bool m_visible = true;
    bool m_enabled = true;
    bool m_underlined = false;
    text::Color m_fore_color = text::kBlack;
    text::Color m_back_color = kNoColor;
};

/// While it lives, the view is told of a control's changes only once, at its end: a block of cells or a
/// report of many portions is painted once.
class ChangeBatch {
  public:
    explicit ChangeBatch(Control& control) : m_control(control) { ++m_control.m_batches; }
    ~ChangeBatch();
    ChangeBatch(const ChangeBatch&) = delete;
    ChangeBatch& operator=(const ChangeBatch&) = delete;

  private:
    Control& m_control;
};

}  // namespace tavrelo::window
