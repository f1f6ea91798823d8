#include "qt/main_window.h"

#include <QApplication>
#include <QScreen>
#include <QShortcut>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <functional>
#include <utility>

#include "qt/accessible_picture.h"
#include "qt/announcer.h"
#include "qt/flat_parts.h"
#include "qt/fonts.h"
#include "qt/shortcuts.h"
#include "qt/text.h"
#include "qt/zoom.h"
#include "text/contrast.h"
#include "window/control_names.h"
#include "window/layout.h"

namespace tavrelo::qt {
namespace {

constexpr int kWheelStep = 120;

/// Comes back to the window when the handler under way has ended.
constexpr auto kShowLate = QEvent::User;

}  // namespace

MainWindow::MainWindow(window::Form1& form, Artwork& artwork)
    : m_context{form, artwork},
      m_dialog_context{form, artwork},
      m_main(form.Main(), nullptr, Qt::Window),
      m_dialog(form.Dialog(), &m_main, Qt::Dialog),
      m_bar(m_main),
      m_guide(form, m_main, m_dialog,
              {[this](const window::Control& control) { return MadeBindingOf(control); },
               [this](const QWidget* widget) { return BindingOf(widget); }}) {
    for (window::Control* control : form.Controls())
        if (control->Kind() != window::ControlKind::Window)
            m_unmade.push_back(control);
    m_main.SetBar(m_bar);
    m_main.setMinimumSize(m_main.SizeAt(kSmallestZoom) + QSize(0, BarHeight(kSmallestZoom)));
    m_main.setWindowIcon(QIcon(artwork.Piece("tavrelo", QRectF(0, 0, 64, 64), 1, 1)));
    MakeShortcuts();
    SetZoom(FirstZoom(m_main.OwnSize(), m_main.Room().size()));
    m_main.OnResize = [this] { FollowFrame(); };
    m_main.OnWindowState = [this] { m_asked_size = QSize(); };
    m_bar.OnZoom = [this](double zoom) { SetZoom(zoom); };
    m_context.open_free = [this](const window::Control& source) { OpenFree(source); };
    m_bar.OnContrast = [this](bool is_on) { SetContrast(is_on); };
    m_bar.OnFit = [this] { FitToFrame(); };
    m_guide.OnLastStop = [this](QWidget& last) { m_bar.FollowByTab(&last); };
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        // What is under a pressed button must not move away.
        if (now && QApplication::mouseButtons() == Qt::NoButton)
            m_main.BringIntoView(*now);
    });
    form.OnChange = [this](window::Control& control, window::Change change) { OnChange(control, change); };
    form.OnAnnounce = [announcer = new Announcer(m_main)](std::string_view sentence) {
        announcer->Say(ToQString(sentence));
    };
    form.OnRaise = [this](window::Window&) {
        m_dialog.raise();
        m_dialog.activateWindow();
    };
    InstallAccessiblePictures();
    qApp->installEventFilter(this);
}

MainWindow::~MainWindow() {
    m_main.OnResize = nullptr;
    m_main.OnWindowState = nullptr;
    m_context.form.OnChange = nullptr;
    m_context.form.OnAnnounce = nullptr;
    m_context.form.OnRaise = nullptr;
}

void MainWindow::MakeWidgets() {
    const auto is_in_view = [](const window::Control* control) {
        return control->IsShown() && control->Bounds().left + control->Bounds().width > 0;
    };
    const auto first_shown = std::stable_partition(m_unmade.begin(), m_unmade.end(), std::not_fn(is_in_view));
    const std::vector<window::Control*> shown(first_shown, m_unmade.end());
    if (shown.empty())
        return;
    for (window::Control* control : shown)
        BindingOf(*control);
}

QWidget& MainWindow::ParentWidgetOf(const window::Control& control) {
    if (control.Parent() == &m_context.form.Main())
        return m_main.Page();
    if (control.Parent() == &m_context.form.Dialog())
        return m_dialog.Page();
    return BindingOf(*control.Parent()).Widget();
}

Binding& MainWindow::BindingOf(window::Control& control) {
    if (const auto found = m_bindings.find(&control); found != m_bindings.end())
        return *found->second;
    QWidget& parent = ParentWidgetOf(control);
    Binding& binding = *(m_bindings[&control] = NewBinding(control, parent, ContextOf(control)));
    m_by_widget[&binding.Widget()] = &binding;
    std::erase(m_unmade, &control);
    binding.RefreshAll();
    Stack(control, binding.Widget());
    return binding;
}

void MainWindow::Stack(const window::Control& control, QWidget& widget) {
    const auto controls = m_context.form.Controls();
    const auto is_over = [&](const window::Control* other) {
        return other != &control && other->Parent() == control.Parent() && m_bindings.contains(other);
    };
    const auto over = std::find_if(std::ranges::find(controls, &control), controls.end(), is_over);
    if (over != controls.end())
        widget.stackUnder(&m_bindings.at(*over)->Widget());
    for (const window::Control* raised : controls)
        if (raised->Has(window::kRaised) && m_bindings.contains(raised))
            m_bindings.at(raised)->Widget().raise();
}

void MainWindow::MakeShortcuts() {
    const auto add = [this](const QKeySequence& keys, auto action) {
        auto* shortcut = new QShortcut(keys, &m_main);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    const auto middle = [this] { return QRectF(m_main.rect()).center(); };
    add(QKeySequence(Qt::CTRL | Qt::Key_Plus), [this, middle] { StepZoom(+1, middle()); });
    add(QKeySequence(Qt::CTRL | Qt::Key_Equal), [this, middle] { StepZoom(+1, middle()); });
    add(QKeySequence(Qt::CTRL | Qt::Key_Minus), [this, middle] { StepZoom(-1, middle()); });
    add(QKeySequence(Qt::CTRL | Qt::Key_0), [this] { SetZoom(1); });
    add(QKeySequence(Qt::Key_F9), [this] { OpenFreeInUse(); });
    MakeProgramShortcuts(m_context.form, m_main, m_guide);
}

void MainWindow::Show() {
    MakeWidgets();
    ShowWindows();
    if (window::Control* focus = m_context.form.Focus())
        OnChange(*focus, window::Change::Focus);
    m_guide.RestIfLost();
}

void MainWindow::ShowWindows() {
    m_main.ShowState(m_context.form.Pointer());
    m_dialog.ShowState(m_context.form.Pointer());
}

QWidget& MainWindow::WidgetOf(window::Control& control) {
    ShowLateChanges();
    if (&control == &m_context.form.Main())
        return m_main;
    if (&control == &m_context.form.Dialog())
        return m_dialog;
    return BindingOf(control).Widget();
}

Binding* MainWindow::MadeBindingOf(const window::Control& control) const {
    const auto found = m_bindings.find(&control);
    return found == m_bindings.end() ? nullptr : found->second.get();
}

Binding* MainWindow::BindingOf(const QWidget* widget) const {
    for (; widget; widget = widget->parentWidget())
        if (const auto found = m_by_widget.find(widget); found != m_by_widget.end())
            return found->second;
    return nullptr;
}

void MainWindow::OnChange(window::Control& control, window::Change change) {
    FollowInFreeWindows(control, change);
    const bool may_show = change == window::Change::State || change == window::Change::Selection;
    if (may_show)
        DropLostFocus();
    if (control.Kind() == window::ControlKind::Window) {
        ShowWindows();
        m_guide.RestSoon(control);
    }
    if (control.Kind() != window::ControlKind::Window &&
        (change == window::Change::Focus || m_bindings.contains(&control)))
        ShowChange(BindingOf(control), change);
    if (control.Kind() == window::ControlKind::Label && change == window::Change::State)
        RenameAfter(control);
    if (control.Kind() == window::ControlKind::TabStrip && change == window::Change::Selection)
        RefreshPages(control);
    if (may_show)
        MakeWidgets();
}

void MainWindow::ShowChange(Binding& binding, window::Change change) {
    const bool is_inside = change == window::Change::Content || change == window::Change::Selection;
    if (!is_inside || !binding.IsRenewedWhole())
        return binding.Refresh(change);
    if (m_late.empty())
        QCoreApplication::postEvent(this, new QEvent(kShowLate));
    const auto waiting = std::ranges::find(m_late, &binding, &LateChange::binding);
    if (waiting == m_late.end())
        m_late.push_back({&binding, change});
    else if (change == window::Change::Content)
        waiting->change = change;
}

void MainWindow::ShowLateChanges() {
    for (const LateChange& late : std::exchange(m_late, {}))
        late.binding->Refresh(late.change);
}

bool MainWindow::event(QEvent* event) {
    if (event->type() != kShowLate)
        return QObject::event(event);
    ShowLateChanges();
    return true;
}

void MainWindow::RefreshPages(const window::Control& strip) {
    for (const auto& [control, binding] : m_bindings)
        if (control->Parent() == &strip)
            binding->Refresh(window::Change::State);
}

void MainWindow::RenameAfter(const window::Control& label) {
    for (const window::Control* control : window::NamedAfter(m_context.form, label))
        if (const auto made = m_bindings.find(control); made != m_bindings.end())
            made->second->ShowName();
}

void MainWindow::DropLostFocus() {
    for (FormWindow* window : {&m_main, &m_dialog}) {
        const Binding* focused = BindingOf(window->focusWidget());
        if (!focused || focused->Model().IsUsable())
            continue;
        window->setFocus();
        m_guide.RestSoon(focused->Model());
    }
}

double MainWindow::ZoomOf(const QWidget& widget) const {
    return widget.window() == &m_dialog ? m_dialog_context.zoom : m_context.zoom;
}

ViewContext& MainWindow::ContextOf(const window::Control& control) {
    const window::Control* window = &control;
    while (window->Parent())
        window = window->Parent();
    return window == &m_context.form.Dialog() ? m_dialog_context : m_context;
}

void MainWindow::SetZoom(double zoom) {
    constexpr int kAnswerMilliseconds = 300;
    ApplyZoom(zoom);
    if (m_main.isMaximized() || m_main.isFullScreen())
        return;
    m_answer_time.setRemainingTime(kAnswerMilliseconds);
    m_asked_size = m_main.SizeFor(m_context.zoom);
    m_main.ResizeFor(m_context.zoom);
}

void MainWindow::SetContrast(bool is_on) {
    m_context.text_look = is_on ? TextLook::Readable : TextLook::Told;
    m_dialog_context.text_look = m_context.text_look;
    QPalette palette;
    const text::Color window = ToColor(QApplication::palette().color(QPalette::Window));
    if (is_on) {
        palette.setColor(kEdgeRole, StrongEdge(QApplication::palette()));
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            const text::Color told = ToColor(QApplication::palette().color(QPalette::Disabled, role));
            palette.setColor(QPalette::Disabled, role, ToQColor(text::ReadableOn(told, window)));
        }
    }
    m_main.setPalette(palette);
    m_dialog.setPalette(palette);
    m_bar.ShowContrast(is_on);
    for (const auto& [control, binding] : m_bindings)
        binding->RefreshAll();
    for (const auto& [control, window] : m_free_windows)
        window->Follow();
}

void MainWindow::FitToFrame() { ApplyZoom(FittingZoom(m_main.OwnSize(), m_main.size())); }

void MainWindow::FollowFrame() {
    if (m_main.size() == m_asked_size)
        return;
    const bool is_smaller = m_main.size().boundedTo(m_asked_size) == m_main.size();
    if (is_smaller && !m_answer_time.hasExpired())
        return;
    m_asked_size = QSize();
    FitToFrame();
}

void MainWindow::ShowDialogZoom(double zoom) {
    constexpr double kLargestShare = 0.9;
    const QSizeF own = m_dialog.OwnSize();
    const QSizeF room = QSizeF(m_main.Room().size()) * kLargestShare;
    const double largest = std::min(room.width() / own.width(), room.height() / own.height());
    m_dialog_context.zoom = std::min(zoom, largest);
    m_dialog.ShowZoom(m_dialog_context.zoom);
    m_dialog.setFixedSize(m_dialog.SizeAt(m_dialog_context.zoom));
}

void MainWindow::ApplyZoom(double zoom) {
    zoom = std::clamp(zoom, kSmallestZoom, kLargestZoom);
    // Sizes are whole pixels, so the zoom that fits one is only nearly the zoom that made it.
    const bool is_same_size = m_main.SizeAt(zoom) == m_main.SizeAt(m_context.zoom);
    if (is_same_size && m_main.Page().size() == m_main.SizeAt(zoom))
        return;
    m_context.zoom = zoom;
    m_main.ShowZoom(zoom);
    ShowDialogZoom(zoom);
    m_bar.ShowZoom(zoom);
    QToolTip::setFont(InterfaceFont(m_dialog_context.zoom));
    for (const auto& [control, binding] : m_bindings)
        binding->RefreshAll();
}

void MainWindow::StepZoom(int steps, const QPointF& place) {
    const FormWindow::Anchor anchor = m_main.AnchorAt(place);
    SetZoom(SteppedZoom(m_context.zoom, steps));
    m_main.ScrollTo(anchor);
}

FreeWindow& MainWindow::OpenFree(const window::Control& source) {
    std::unique_ptr<FreeWindow>& window = m_free_windows[&source];
    if (!window)
        window = NewFreeWindow(source, m_context);
    window->Open();
    return *window;
}

void MainWindow::OpenFreeInUse() {
    const window::Control* focused = FocusedControl();
    if (focused && HasFreeWindow(*focused)) {
        OpenFree(*focused);
        return;
    }
    const auto is_board = [](const window::Control* control) {
        return control->Kind() == window::ControlKind::Picture && HasFreeWindow(*control) &&
               control->IsShown();
    };
    const auto controls = m_context.form.Controls();
    const auto board = std::ranges::find_if(controls, is_board);
    if (board != controls.end())
        OpenFree(**board);
}

bool MainWindow::OpensByDoubleClick(const QWidget& widget) const {
    const Binding* binding = BindingOf(&widget);
    const auto* picture = binding ? dynamic_cast<const window::Picture*>(&binding->Model()) : nullptr;
    return picture && HasFreeWindow(*picture) && !picture->OnMouseDown;
}

void MainWindow::FollowInFreeWindows(const window::Control& control, window::Change change) {
    const auto window = m_free_windows.find(&control);
    if (window != m_free_windows.end() && change == window::Change::Content)
        window->second->Follow();
    if (&control == &m_context.form.Main() && !control.Visible())
        for (const auto& [source, free_window] : m_free_windows)
            free_window->close();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel && event->type() != QEvent::MouseButtonDblClick)
        return QObject::eventFilter(watched, event);
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::MouseButtonDblClick && widget && OpensByDoubleClick(*widget)) {
        OpenFree(BindingOf(widget)->Model());
        return true;
    }
    if (event->type() != QEvent::Wheel)
        return QObject::eventFilter(watched, event);
    const auto* wheel = static_cast<QWheelEvent*>(event);
    const bool is_ours = widget && (widget->window() == &m_main || widget->window() == &m_dialog);
    if (!is_ours || !(wheel->modifiers() & Qt::ControlModifier))
        return QObject::eventFilter(watched, event);
    m_wheel_turn += wheel->angleDelta().y();
    const int steps = m_wheel_turn / kWheelStep;
    m_wheel_turn -= steps * kWheelStep;
    if (steps != 0)
        StepZoom(steps, m_main.mapFromGlobal(wheel->globalPosition()));
    return true;
}

}  // namespace tavrelo::qt
