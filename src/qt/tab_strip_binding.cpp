#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QTabBar>

#include "qt/accessible.h"
#include "qt/accessible_tabs.h"
#include "qt/bindings.h"
#include "qt/flat_parts.h"
#include "qt/fonts.h"
#include "qt/text.h"

namespace tavrelo::qt {
namespace {

constexpr int kTabHeight = 24;
constexpr int kTabMargin = 9;  // left and right of a caption

/// Tabs just as wide as their captions, so that three fit over the narrowest page.
class TightTabBar : public QTabBar, public TellsOfItself {
  public:
    TightTabBar(QWidget& parent, const ViewContext& context) : QTabBar(&parent), m_context(context) {
        setDrawBase(false);
        setExpanding(false);
        setUsesScrollButtons(false);
        setElideMode(Qt::ElideNone);
        setFocusPolicy(Qt::TabFocus);
    }

    QAccessibleInterface* NewAccessible() override { return new AccessibleTabs(*this); }

  protected:
    QSize tabSizeHint(int index) const override {
        const int text_width = fontMetrics().horizontalAdvance(tabText(index));
        return {text_width + 2 * m_context.Scaled(kTabMargin), m_context.Scaled(kTabHeight)};
    }
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton)
            QTabBar::mousePressEvent(event);
    }

  private:
    const ViewContext& m_context;
};

/// The tabs over the page whose controls are children of this widget.
class TabStripWidget : public QWidget, public TellsOfItself {
  public:
    TabStripWidget(QWidget& parent, const ViewContext& context)
        : QWidget(&parent), m_context(context), m_tabs(*this, context) {
        setFocusProxy(&m_tabs);
        setFocusPolicy(Qt::TabFocus);
        setAutoFillBackground(true);
        connect(&m_tabs, &QTabBar::currentChanged, this, [this] {
            QAccessibleEvent event(this, QAccessible::NameChanged);
            QAccessible::updateAccessibility(&event);
        });
    }

    QTabBar& Tabs() { return m_tabs; }

    QAccessibleInterface* NewAccessible() override { return new AccessiblePage(*this, m_tabs); }

  protected:
    void resizeEvent(QResizeEvent*) override {
        m_tabs.setGeometry(0, 0, width(), m_context.Scaled(kTabHeight));
    }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QRect page = rect().adjusted(0, m_context.Scaled(kTabHeight) - 1, -1, -1);
        painter.setPen(palette().color(QPalette::Mid));
        painter.setBrush(palette().color(QPalette::AlternateBase));
        painter.drawRect(page);
    }

  private:
    const ViewContext& m_context;
    TightTabBar m_tabs;
};

class TabStripBinding : public Binding {
  public:
    TabStripBinding(window::TabStrip& strip, TabStripWidget& widget, ViewContext& context)
        : Binding(strip, widget, context), m_strip(strip), m_tabs(widget.Tabs()) {
        m_tabs.installEventFilter(this);
        connect(&m_tabs, &QTabBar::tabBarClicked, this, [this](int tab) {
            if (tab >= 0)
                ReportPick(tab);
        });
        // By keys and by the wheel; a click has told already.
        connect(&m_tabs, &QTabBar::currentChanged, this, [this](int tab) {
            if (tab >= 0 && tab != m_strip.Current())
                ReportPick(tab);
        });
    }

  protected:
    void ShowState() override {
        Binding::ShowState();
        // A tab behind is the darkest ground of a light look and the lightest of a dark one.
        const QPalette look = QApplication::palette();
        const QColor behind = ShadeOf(kHeading, look);
        const text::Color fore = m_strip.ForeColor();
        const bool is_plain = fore == text::kBlack && IsDark(look);
        const text::Color shown = is_plain ? ToColor(look.color(QPalette::WindowText))
                                           : ShownOn(ToColor(behind), fore, Context().text_look);
        for (int tab = 0; tab < m_tabs.count(); ++tab)
            m_tabs.setTabTextColor(tab, ToQColor(shown));
    }

    void ShowContent() override {
        while (m_tabs.count() > 0)
            m_tabs.removeTab(m_tabs.count() - 1);
        for (const std::string& caption : m_strip.Tabs())
            m_tabs.addTab(ToCaption(caption));
        ShowState();
        ShowSelection();
    }

    void ShowSelection() override { m_tabs.setCurrentIndex(m_strip.Current()); }

  private:
    void ReportPick(int tab) {
        Report([this, tab] { m_strip.UserPick(tab); });
    }

    window::TabStrip& m_strip;
    QTabBar& m_tabs;
};

}  // namespace

std::unique_ptr<Binding> NewTabStripBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto& strip = dynamic_cast<window::TabStrip&>(control);
    return std::make_unique<TabStripBinding>(strip, *new TabStripWidget(parent, context), context);
}

}  // namespace tavrelo::qt
