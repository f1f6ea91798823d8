#pragma once

#include <QObject>
#include <QPalette>
#include <QWidget>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "qt/artwork.h"
#include "qt/text_colors.h"
#include "window/form1.h"

namespace tavrelo::qt {

/// What all bindings of a window share.
struct ViewContext {
    window::Form1& form;
    Artwork& artwork;
    double zoom = 1;
    TextLook text_look = TextLook::Told;
    /// Shows a board or a report in a window of its own.
    std::function<void(const window::Control&)> open_free = {};

    int Scaled(double pixels) const { return qRound(pixels * zoom); }
    /// Edges are scaled, not sizes, so that neighbours still meet.
    QRect Scaled(const window::Rect& rect) const;
};

/// Joins one control of the model with the widget that shows it. Refresh carries a change of the model to the
/// widget, Report what the user did to the model; here, and nowhere else, the echo of one in the other ends.
class Binding : public QObject {
  public:
    /// The widget belongs to its parent widget.
    Binding(window::Control& control, QWidget& widget, ViewContext& context);

    QWidget& Widget() const { return m_widget; }
    window::Control& Model() const { return m_control; }

    /// Shows that aspect of the model.
    void Refresh(window::Change change);
    /// Tells readers of the screen what the control is called now.
    void ShowName();
    /// Shows everything, also after a change of the zoom.
    void RefreshAll();

    /// The widget takes the keys while no control has the program's focus; the model is told only when the
    /// user does something there.
    void Rest();
    bool IsResting() const { return m_is_resting; }
    /// The user acts on a widget at which the keys only rested.
    void Wake();

    /// Whether any change of the content renews the widget as a whole. Of such a one all changes of a handler
    /// are shown together, behind it.
    virtual bool IsRenewedWhole() const { return false; }

  protected:
    /// Place, visibility, enabling, tooltip, colours, underline.
    virtual void ShowState();
    virtual void ShowContent() {}
    virtual void ShowSelection() {}

    /// The palette role that the control's back colour fills.
    virtual QPalette::ColorRole BackRole() const { return QPalette::Window; }

    /// Runs an action of the user's on the model, unless it is only the widget's answer to a refresh.
    template <class Action>
    void Report(Action&& action) {
        if (m_refreshing == 0)
            std::forward<Action>(action)();
    }

    /// What stands behind the control's texts.
    QColor BehindTexts() const;
    /// The colours of the widget before those of the control are added.
    virtual QPalette OwnPalette() const { return {}; }

    const ViewContext& Context() const { return m_context; }
    window::Form1& Form() const { return m_context.form; }
    double Zoom() const { return m_context.zoom; }

    /// Reports the focus; every widget that can take it has this filter.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ShowColors();
    /// The roles of the palette that take the control's text colour.
    std::vector<QPalette::ColorRole> TextRoles() const;
    void ShowUnderline();
    bool IsPageInFront() const;

    window::Control& m_control;
    QWidget& m_widget;
    ViewContext& m_context;
    int m_refreshing = 0;
    bool m_is_resting = false;
    struct Colors {
        text::Color text = text::kBlack;
        text::Color back = window::Control::kNoColor;

        friend bool operator==(const Colors&, const Colors&) = default;
    };
    Colors m_colors;  // as they are shown
};

/// Makes the widget of a control, with its binding.
std::unique_ptr<Binding> NewBinding(window::Control& control, QWidget& parent, ViewContext& context);

}  // namespace tavrelo::qt
