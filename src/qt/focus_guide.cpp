#include "qt/focus_guide.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

#include "qt/later.h"
#include "window/layout.h"
#include "window/reading_order.h"

namespace tavrelo::qt {
namespace {

constexpr std::size_t kMostVisited = 16;

bool IsGroup(const window::Control& control) {
    const auto* picture = dynamic_cast<const window::Picture*>(&control);
    return picture && picture->HasCells();
}

bool IsOption(const window::Control& control) { return control.Kind() == window::ControlKind::OptionButton; }

/// The panel of the window on which a control lies; the control itself where it lies on none.
const window::Control& PanelOf(const window::Control& control) {
    const window::Control* panel = &control;
    while (panel->Parent() && panel->Parent()->Parent())
        panel = panel->Parent();
    return *panel;
}

bool IsModifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta ||
           key == Qt::Key_AltGr;
}

/// Whether no panel lies over the widget.
bool IsOnTop(const QWidget& widget) {
    const QWidget& window = *widget.window();
    return window.childAt(widget.mapTo(&window, widget.rect().center())) == &widget;
}

/// Whether the user did something to the widget itself, not only on the way to another one.
bool IsAct(const QWidget& widget, const QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress)
        return widget.focusPolicy() & Qt::ClickFocus;
    if (event.type() != QEvent::KeyPress)
        return event.type() == QEvent::InputMethod;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key != Qt::Key_Tab && key != Qt::Key_Backtab && !IsModifier(key);
}

}  // namespace

FocusGuide::FocusGuide(window::Form1& form, FormWindow& main, FormWindow& dialog, Bindings bindings)
    : m_form(form), m_main(main), m_dialog(dialog), m_bindings(std::move(bindings)) {
    for (FormWindow* window : {&main, &dialog}) {
        window->OnTab = [this, window] { OrderTabs(*window); };
        window->OnEscape = [this] { Leave(); };
    }
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* left, QWidget*) { Remember(left); });
    qApp->installEventFilter(this);
}

bool FocusGuide::TakesKeys(const window::Control& control) const {
    const Binding* binding = m_bindings.of_control(control);
    const bool by_tab = binding && (binding->Widget().focusPolicy() & Qt::TabFocus || IsOption(control));
    return by_tab && control.IsUsable() && control.Bounds().left + control.Bounds().width > 0;
}

bool FocusGuide::IsPassedBy(const window::Control& control) const {
    const auto* option = dynamic_cast<const window::OptionButton*>(&control);
    if (!option)
        return false;
    const Binding* focused = FocusedBinding();
    const window::OptionButton* stop = nullptr;
    for (const window::OptionButton* other : option->group) {
        if (!TakesKeys(*other))
            continue;
        if (focused && &focused->Model() == other)
            return other != option;
        if (!stop || other->Checked())
            stop = other;
    }
    return stop != option;
}

std::vector<Binding*> FocusGuide::Stops(const FormWindow& window) const {
    std::vector<Binding*> stops;
    for (const window::Control* control : window::ReadingOrder(m_form)) {
        const bool is_stop = TakesKeys(*control) && !IsPassedBy(*control);
        Binding* binding = is_stop ? m_bindings.of_control(*control) : nullptr;
        if (binding && binding->Widget().window() == &window)
            stops.push_back(binding);
    }
    return stops;
}

void FocusGuide::OrderTabs(const FormWindow& window) const {
    for (const window::Control* control : m_form.Controls())
        if (const Binding* binding = IsOption(*control) ? m_bindings.of_control(*control) : nullptr)
            binding->Widget().setFocusPolicy(IsPassedBy(*control) ? Qt::ClickFocus : Qt::StrongFocus);
    QWidget* previous = nullptr;
    for (Binding* stop : Stops(window)) {
        if (previous)
            QWidget::setTabOrder(previous, &stop->Widget());
        previous = &stop->Widget();
    }
    if (previous && &window == &m_main && OnLastStop)
        OnLastStop(*previous);
}

Binding* FocusGuide::FocusedBinding() const {
    if (Binding* binding = m_bindings.of_widget(QApplication::focusWidget()))
        return binding;
    return m_bindings.of_widget(m_main.focusWidget());
}

window::Control* FocusGuide::FocusedControl() const {
    const Binding* binding = FocusedBinding();
    if (!binding)
        return nullptr;
    return binding->IsResting() ? m_form.Focus() : &binding->Model();
}

void FocusGuide::Remember(QWidget* left) {
    const Binding* binding = m_bindings.of_widget(left);
    if (!binding)
        return;
    std::erase(m_visited, &binding->Model());
    m_visited.push_front(&binding->Model());
    if (m_visited.size() > kMostVisited)
        m_visited.pop_back();
}

/// The button that Escape presses at a control: that of the innermost panel that has one.
window::Button* FocusGuide::CancelOf(const window::Control& control) const {
    for (const window::Control* panel = control.Parent(); panel; panel = panel->Parent())
        for (window::Control* on_panel : m_form.Controls())
            if (on_panel->Parent() == panel && on_panel->Has(window::kCancel) && on_panel->IsUsable())
                return dynamic_cast<window::Button*>(on_panel);
    return nullptr;
}

/// Out of a panel that closes, and out of a group, to where the keys came from.
void FocusGuide::Leave() {
    const Binding* binding = FocusedBinding();
    if (!binding)
        return;
    if (window::Button* cancel = CancelOf(binding->Model()))
        return cancel->UserClick();
    if (!IsGroup(binding->Model()))
        return;
    for (const window::Control* visited : m_visited) {
        if (IsGroup(*visited) || !TakesKeys(*visited))
            continue;
        m_bindings.of_control(*visited)->Widget().setFocus(Qt::OtherFocusReason);
        return;
    }
}

Binding* FocusGuide::Beside(const window::Control& lost, const std::vector<Binding*>& stops) const {
    if (!lost.Parent() || !lost.Parent()->IsShown())
        return nullptr;
    const auto order = window::ReadingOrder(m_form);
    const auto from = std::ranges::find(order, &lost);
    const auto is_beside = [&](const Binding* stop) {
        return stop->Model().Parent() == lost.Parent() &&
               std::find(from, order.end(), &stop->Model()) != order.end();
    };
    const auto behind = std::ranges::find_if(stops, is_beside);
    if (behind != stops.end())
        return *behind;
    const auto on_panel = std::ranges::find_if(
        stops, [&](const Binding* stop) { return stop->Model().Parent() == lost.Parent(); });
    return on_panel == stops.end() ? nullptr : *on_panel;
}

Binding* FocusGuide::RestingPlace(const FormWindow& window) const {
    auto stops = Stops(window);
    // A widget that hands the focus on would not know that the keys only rest.
    std::erase_if(stops, [](const Binding* stop) { return stop->Widget().focusProxy() != nullptr; });
    if (m_lost)
        if (Binding* beside = Beside(*m_lost, stops))
            return beside;
    for (const window::Control* visited : m_visited) {
        // Pictures are passed on the way; one works elsewhere.
        const auto found = std::ranges::find_if(stops, [&](const Binding* stop) {
            return &stop->Model() == visited && visited->Kind() != window::ControlKind::Picture;
        });
        if (found != stops.end())
            return *found;
    }
    return stops.empty() ? nullptr : stops.front();
}

void FocusGuide::RestIfLost() {
    for (FormWindow* window : {&m_main, &m_dialog}) {
        const QWidget* holder = window->focusWidget();
        const bool is_lost = !holder || holder == window || !holder->isVisible() || !holder->isEnabled();
        if (!window->isVisible() || !is_lost)
            continue;
        if (Binding* place = RestingPlace(*window))
            place->Rest();
    }
    m_lost = nullptr;
}

void FocusGuide::RestSoon(const window::Control& lost) {
    m_lost = &lost;
    Later(*this, [this] { RestIfLost(); });
}

std::vector<QAbstractButton*> FocusGuide::ButtonsInView() const {
    std::vector<QAbstractButton*> buttons;
    for (const window::Control* control : window::ReadingOrder(m_form)) {
        const Binding* binding = control->IsShown() ? m_bindings.of_control(*control) : nullptr;
        auto* button = binding ? qobject_cast<QAbstractButton*>(&binding->Widget()) : nullptr;
        if (button && button->isActiveWindow() && !button->text().isEmpty() && IsOnTop(*button))
            buttons.push_back(button);
    }
    return buttons;
}

void FocusGuide::GoToNextPanel(int step) {
    const Binding* focused = FocusedBinding();
    const auto stops = Stops(m_main);
    if (!focused || stops.empty())
        return;
    std::vector<Binding*> firsts;  // of each panel
    for (Binding* stop : stops)
        if (firsts.empty() || &PanelOf(firsts.back()->Model()) != &PanelOf(stop->Model()))
            firsts.push_back(stop);
    const auto here = std::ranges::find_if(
        firsts, [&](const Binding* first) { return &PanelOf(first->Model()) == &PanelOf(focused->Model()); });
    const auto count = static_cast<std::ptrdiff_t>(firsts.size());
    const std::ptrdiff_t from = here == firsts.end() ? 0 : here - firsts.begin();
    Binding* next = firsts[static_cast<std::size_t>((from + step + count) % count)];
    next->Widget().setFocus(Qt::TabFocusReason);
}

bool FocusGuide::eventFilter(QObject* watched, QEvent* event) {
    const auto* widget = event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress ||
                                 event->type() == QEvent::InputMethod
                             ? qobject_cast<const QWidget*>(watched)
                             : nullptr;
    Binding* binding = widget ? m_bindings.of_widget(widget) : nullptr;
    if (binding && binding->IsResting() && IsAct(binding->Widget(), *event))
        binding->Wake();
    return QObject::eventFilter(watched, event);
}

}  // namespace tavrelo::qt
