#include "qt/look.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QTabBar>
#include <QTableView>
#include <QTextBlock>
#include <QTextEdit>
#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <numeric>
#include <set>
#include <utility>

#include "qt/canvas.h"
#include "qt/desktop_look.h"
#include "qt/flat_parts.h"
#include "qt/fonts.h"
#include "qt/picture_view.h"
#include "test_window.h"
#include "tests.h"
#include "text/contrast.h"
#include "text/markup.h"

// Colours: of the desktop, of texts in both looks, of the dark look.

namespace tavrelo::window_test {
namespace {

using qt::TextLook;
using qt::ToColor;

constexpr int kTools = 6;

/// Gives the application the dark look as long as it lives.
struct DarkDesktop {
    DarkDesktop() { qt::UseLook(true); }
    ~DarkDesktop() { qt::UseLook(false); }
};

struct ShownText {
    text::Color color;
    text::Color ground;
    std::string where;

    double Contrast() const { return text::ContrastRatio(color, ground); }
};

/// What is painted behind a widget: its own background or that of the panel it stands on, from a pixel of it.
text::Color GroundOf(const QWidget& widget) {
    for (const QWidget* panel = &widget; panel; panel = panel->parentWidget())
        if (panel != &widget && panel->findChild<QTabBar*>({}, Qt::FindDirectChildrenOnly))
            return ToColor(panel->palette().color(QPalette::AlternateBase));
        else if (panel->autoFillBackground() || panel->isWindow())
            return ToColor(panel->palette().color(panel->backgroundRole()));
    return text::kWhite;
}

void AddCaption(std::vector<ShownText>& texts, const QWidget& widget, const std::string& name) {
    if (const auto* tabs = widget.findChild<QTabBar*>({}, Qt::FindDirectChildrenOnly)) {
        const QPalette look = QApplication::palette();
        for (const QRgb shade : {qt::kPage, qt::kHeading})
            texts.push_back({ToColor(tabs->tabTextColor(0)), ToColor(qt::ShadeOf(shade, look)), name});
    }
    const bool is_label = qobject_cast<const QLabel*>(&widget);
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (!is_label && !button)
        return;
    const auto group = widget.isEnabled() ? QPalette::Active : QPalette::Disabled;
    const bool is_push = button && !button->isCheckable();
    const auto role = is_push ? QPalette::ButtonText : QPalette::WindowText;
    const text::Color ground = is_push ? ToColor(widget.palette().color(QPalette::Button)) : GroundOf(widget);
    texts.push_back({ToColor(widget.palette().color(group, role)), ground, name});
}

void AddReport(std::vector<ShownText>& texts, const QTextEdit& view, const std::string& name) {
    const text::Color paper = ToColor(view.palette().color(QPalette::Base));
    for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next())
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
            texts.push_back({ToColor(fragment.fragment().charFormat().foreground().color()), paper, name});
}

void AddPicture(std::vector<ShownText>& texts, const window::Picture& picture, TextLook look) {
    qt::TextGrounds grounds;
    for (const window::DrawOp& op : picture.Canvas().Operations()) {
        grounds.Note(op);
        const auto* printed = std::get_if<window::TextOp>(&op);
        if (!printed)
            continue;
        for (const text::PlacedRun& run : printed->runs) {
            const text::Color ground = grounds.Below(*printed, run, picture.Canvas().BackColor);
            texts.push_back({ShownOn(ground, run.color, look), ground, picture.Name()});
        }
    }
}

void AddCells(std::vector<ShownText>& texts, const QTableView& view, const std::string& name) {
    for (int row = 0; row < view.model()->rowCount(); ++row)
        for (int col = 0; col < view.model()->columnCount(); ++col) {
            const QModelIndex cell = view.model()->index(row, col);
            const QVariant back = cell.data(Qt::BackgroundRole);
            const QVariant fore = cell.data(Qt::ForegroundRole);
            texts.push_back({ToColor(fore.isValid() ? fore.value<QBrush>().color()
                                                    : view.palette().color(QPalette::Text)),
                             ToColor(back.isValid() ? back.value<QBrush>().color()
                                                    : view.palette().color(QPalette::Base)),
                             name});
        }
}

/// The texts of every control that the window shows.
std::vector<ShownText> ShownTexts(TestWindow& window) {
    const TextLook look = window.view.HasContrast() ? TextLook::Readable : TextLook::Told;
    std::vector<ShownText> texts;
    for (window::Control* control : window.Form().Controls()) {
        if (!control->IsShown() || control->Kind() == window::ControlKind::Window)
            continue;
        QWidget& widget = window.view.WidgetOf(*control);
        AddCaption(texts, widget, control->Name());
        if (const auto* view = qobject_cast<QTextEdit*>(&widget))
            AddReport(texts, *view, control->Name());
        if (const auto* view = qobject_cast<QTableView*>(&widget))
            AddCells(texts, *view, control->Name());
        if (const auto* picture = dynamic_cast<window::Picture*>(control))
            AddPicture(texts, *picture, look);
        if (control->Kind() == window::ControlKind::TextBox)
            texts.push_back({ToColor(widget.palette().color(QPalette::Text)),
                             ToColor(widget.palette().color(QPalette::Base)), control->Name()});
    }
    return texts;
}

/// A line in each colour that reports can have.
text::RichText AllColors() {
    std::string marked;
    for (const char code : std::string_view("0123456789ABCDEF"))
        marked += std::string("/") + code + "Texto en color/ ";
    return text::RenderMarkup(text::kTextFont, 10, marked);
}

/// The texts of all tools, with a report in all colours, a drawn force, and the help panel.
std::vector<ShownText> TextsOfAllPanels(TestWindow& window) {
    std::vector<ShownText> texts = ShownTexts(window);
    const auto add = [&] { std::ranges::move(ShownTexts(window), std::back_inserter(texts)); };
    for (int tool = 1; tool <= kTools; ++tool) {
        window.PressTool(tool);
        for (const char* box : {"rtbCalc", "rtbSolve"})
            window.Form().Get<window::RichTextBox>(box).SetContent(AllColors());
        for (const char* strip : {"tabCalc", "tabStat", "tabMrua"})
            for (const int tab : {0, 1, 2}) {
                window.Form().Get<window::TabStrip>(strip).UserPick(tab);
                add();
            }
    }
    window.PressTool(8);
    window.PressTool(7);
    add();
    return texts;
}

const ShownText& Lowest(const std::vector<ShownText>& texts) {
    return *std::ranges::min_element(texts, {}, &ShownText::Contrast);
}

void Tell(const char* look, const std::vector<ShownText>& texts) {
    const ShownText& lowest = Lowest(texts);
    std::printf("%s: %zu texts, the lowest contrast %.2f to 1: #%06x on #%06x in %s\n", look, texts.size(),
                lowest.Contrast(), lowest.color.rgb, lowest.ground.rgb, lowest.where.c_str());
}

void AddLooks(std::initializer_list<std::pair<int, const char*>> places) {
    QTest::addColumn<bool>("is_dark");
    QTest::addColumn<bool>("has_contrast");
    QTest::addColumn<int>("tool");
    QTest::addColumn<QByteArray>("control");
    for (const bool is_dark : {false, true})
        for (const bool has_contrast : {false, true})
            for (const auto& [tool, control] : places)
                QTest::addRow("%s, %s%s", control, is_dark ? "dark" : "light",
                              has_contrast ? ", contrast" : "")
                    << is_dark << has_contrast << tool << QByteArray(control);
}

/// A control of a tool in one of the looks, painted with all that lies behind it.
class ControlInLook {
  public:
    ControlInLook() {
        QFETCH(bool, is_dark);
        QFETCH(bool, has_contrast);
        QFETCH(int, tool);
        QFETCH(QByteArray, control);
        qt::UseLook(is_dark);
        m_window = std::make_unique<TestWindow>();
        m_window->view.SetContrast(has_contrast);
        m_window->PressTool(tool);
        const window::Control& model = *m_window->Form().Find(control.constData());
        auto* pages = dynamic_cast<window::TabStrip*>(model.Parent());
        if (pages && model.Page() != window::Control::kAllPages)
            pages->UserPick(model.Page());
        QWidget& widget = m_window->Widget(control.constData());
        auto* tabs = widget.findChild<QTabBar*>({}, Qt::FindDirectChildrenOnly);
        m_widget = tabs ? tabs : &widget;
        m_window->Widget(control == "Image1" ? "pic" : "Image1").setFocus();
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(m_widget, &leave);
        m_widget->setAttribute(Qt::WA_UnderMouse, false);
    }
    ~ControlInLook() { qt::UseLook(false); }
    ControlInLook(const ControlInLook&) = delete;
    ControlInLook& operator=(const ControlInLook&) = delete;

    QWidget& Widget() { return *m_widget; }
    QImage Picture() {
        QCoreApplication::processEvents();
        const QRect place(m_widget->mapTo(m_widget->window(), QPoint()), m_widget->size());
        return m_widget->window()->grab(place).toImage();
    }
    /// The pointer goes to a place.
    void Point(const QPoint& place) {
        m_widget->setAttribute(Qt::WA_UnderMouse);
        const QPointF on_screen = m_widget->mapToGlobal(QPointF(place));
        QMouseEvent move(QEvent::MouseMove, place, on_screen, Qt::NoButton, Qt::NoButton, {});
        QHoverEvent hover(QEvent::HoverMove, place, on_screen, QPointF(-1, -1));
        QCoreApplication::sendEvent(m_widget, &move);
        QCoreApplication::sendEvent(m_widget, &hover);
        m_widget->update();
    }

  private:
    std::unique_ptr<TestWindow> m_window;
    QWidget* m_widget = nullptr;
};

/// The colour of most of a picture; shades of one colour count together.
QRgb GroundOf(const QImage& image) {
    constexpr QRgb kCoarse = 0xffe0e0e0;
    std::map<QRgb, std::map<QRgb, int>> pixels;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++pixels[image.pixel(x, y) & kCoarse][image.pixel(x, y)];
    const auto count = [](const auto& shade) { return shade.second; };
    const auto count_all = [](const auto& shades) {
        return std::accumulate(shades.second.begin(), shades.second.end(), 0,
                               [](int sum, const auto& shade) { return sum + shade.second; });
    };
    const auto& shades = std::ranges::max_element(pixels, {}, count_all)->second;
    return std::ranges::max_element(shades, {}, count)->first;
}

/// How many pixels of a picture differ from those of the one before and stand out from its ground.
int VisibleChanges(const QImage& before, const QImage& after) {
    const text::Color ground = ToColor(GroundOf(before));
    int count = 0;
    for (int y = 0; y < after.height(); ++y)
        for (int x = 0; x < after.width(); ++x)
            if (before.pixel(x, y) != after.pixel(x, y) &&
                text::ContrastRatio(ToColor(after.pixel(x, y)), ground) >= text::kVisibleContrast)
                ++count;
    return count;
}

constexpr int kLeastLine = 30;  // pixels of a mark that is seen

}  // namespace

void LookTest::FocusStandsOut_data() {
    AddLooks({{1, "Image1"},
              {1, "picBar"},
              {1, "picOpt"},
              {1, "gd"},
              {1, "cmdCalculate"},
              {1, "rtbExpr"},
              {1, "rtbCalc"},
              {1, "tabCalc"},
              {2, "picClock"},
              {2, "txtVector"},
              {2, "gdEqui"},
              {4, "Gd2"},
              {4, "picAccel"},
              {6, "pic1"},
              {6, "chkGraph(0)"}});
}

void LookTest::FocusStandsOut() {
    ControlInLook control;
    const QImage without = control.Picture();
    control.Widget().setFocus(Qt::TabFocusReason);
    const int count = VisibleChanges(without, control.Picture());
    QVERIFY2(count >= kLeastLine, qPrintable(QString::number(count)));
}

void LookTest::BoxesAndChoicesHaveEdges_data() {
    AddLooks({{6, "chkGraph(0)"}, {2, "txtVector"}, {2, "rtbCalc"}});
}

void LookTest::BoxesAndChoicesHaveEdges() {
    constexpr int kMark = 14;       // pixels of the mark of a check box
    constexpr double kQuiet = 1.7;  // on a light desktop, while no contrast is asked for
    QFETCH(bool, is_dark);
    QFETCH(bool, has_contrast);
    ControlInLook control;
    const double least = is_dark || has_contrast ? text::kVisibleContrast : kQuiet;
    const text::Color ground = ToColor(QApplication::palette().color(QPalette::Window));
    const QImage image = control.Picture();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < kMark; ++x)
            count += text::ContrastRatio(ToColor(image.pixel(x, y)), ground) >= least ? 1 : 0;
    QVERIFY2(count >= kLeastLine, qPrintable(QString::number(count)));
}

void LookTest::WhatIsPointedAtAndPressedStandsOut_data() {
    AddLooks({{1, "Image1"},
              {1, "picBar"},
              {1, "picOpt"},
              {1, "cmdCalculate"},
              {1, "tabCalc"},
              {2, "picClock"},
              {4, "picAccel"},
              {4, "imgProcs"},
              {6, "chkGraph(0)"}});
}

namespace {

/// Not the tab in front, which needs no pointing at. Of the cells of a picture the second one that can be
/// pressed: the first one may be where the keys are.
QPoint PlaceToPointAt(QWidget& widget) {
    if (const auto* tabs = qobject_cast<QTabBar*>(&widget))
        return tabs->tabRect(1).center();
    std::vector<QPoint> places;
    if (const auto* picture = dynamic_cast<qt::PictureView*>(&widget))
        for (const window::PictureCell& cell : picture->Cells())
            if (cell.enabled) {
                const window::Point middle = window::MiddleOf(cell.bounds);
                places.push_back(QPointF(middle.x, middle.y).toPoint());
            }
    return places.size() > 1 ? places[1] : QPoint(12, 12);
}

}  // namespace

void LookTest::WhatIsPointedAtAndPressedStandsOut() {
    ControlInLook control;
    QWidget& widget = control.Widget();
    const QImage without = control.Picture();
    const auto* tabs = qobject_cast<QTabBar*>(&widget);
    const QPoint place = PlaceToPointAt(widget);
    control.Point(place);
    const QImage hovered = control.Picture();
    const int count = VisibleChanges(without, hovered);
    QVERIFY2(count >= kLeastLine, qPrintable(QString::number(count)));
    if (tabs)
        return;
    // What a press asks or tells in a box is of no interest here.
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [] {
        if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            box->reject();
    });
    closer.start(1);
    QTest::mousePress(&widget, Qt::LeftButton, {}, place);
    const bool is_pressed = control.Picture() != hovered;
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, QPoint(-5, -5));
    QVERIFY(is_pressed);
}

void LookTest::MenusCanBeRead_data() { AddLooks({{1, "pic"}}); }

void LookTest::MenusCanBeRead() {
    ControlInLook control;
    QImage plain;
    QImage chosen;
    WhenOpen<QMenu>([&](QMenu& menu) {
        plain = menu.grab().toImage();
        menu.setActiveAction(menu.actions().first());
        chosen = menu.grab().toImage();
        menu.close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, control.Widget().mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&control.Widget(), &event);
    const text::Color ground = ToColor(GroundOf(plain));
    int readable = 0;
    for (int y = 0; y < plain.height(); ++y)
        for (int x = 0; x < plain.width(); ++x)
            readable +=
                text::ContrastRatio(ToColor(plain.pixel(x, y)), ground) >= text::kReadableContrast ? 1 : 0;
    constexpr int kLeastLetters = 300;  // pixels
    QVERIFY2(readable >= kLeastLetters, qPrintable(QString::number(readable)));
    QVERIFY(VisibleChanges(plain, chosen) >= kLeastLine);
}

void LookTest::TheFocusOfACellStandsOutFromItsGround() {
    for (const bool is_dark : {false, true})
        for (const QRgb ground :
             {qt::kPaper, qt::kChoice, qt::kFadedChoice, qt::kHeading, qt::kDisabledFace}) {
            const QColor shown = qt::ShadeOf(ground, is_dark);
            QVERIFY(text::ContrastRatio(ToColor(qt::FocusOn(shown)), ToColor(shown)) >=
                    text::kVisibleContrast);
        }
    // The colours that the program gives to cells, and the worst ground there can be.
    for (const QRgb ground : {0xffffffe0, 0xffe2f2e2, 0xffffff00, 0xff00ffff, 0xff767676})
        QVERIFY(text::ContrastRatio(ToColor(qt::FocusOn(QColor(ground))), ToColor(QColor(ground))) >=
                text::kVisibleContrast);
}

void LookTest::EveryTextCanBeReadInTheContrastLook() {
    TestWindow window;
    const std::vector<ShownText> told = TextsOfAllPanels(window);
    Tell("default look", told);
    window.view.SetContrast(true);
    const std::vector<ShownText> readable = TextsOfAllPanels(window);
    Tell("contrast look", readable);
    QVERIFY(Lowest(told).Contrast() < text::kReadableContrast);
    for (const ShownText& shown : readable)
        QVERIFY2(shown.Contrast() >= text::kReadableContrast, shown.where.c_str());
}

void LookTest::EveryTextCanBeReadOnADarkDesktop() {
    const DarkDesktop desktop;
    TestWindow window;
    window.view.SetContrast(true);
    const std::vector<ShownText> readable = TextsOfAllPanels(window);
    Tell("dark desktop, contrast look", readable);
    for (const ShownText& shown : readable)
        QVERIFY2(shown.Contrast() >= text::kReadableContrast, shown.where.c_str());
}

void LookTest::TheModelKeepsItsColors() {
    TestWindow window;
    window.PressTool(2);
    const auto& tabs = window.Form().Get<window::TabStrip>("tabCalc");
    const text::Color told = tabs.ForeColor();
    auto* bar = window.Widget("tabCalc").findChild<QTabBar*>();
    QCOMPARE(ToColor(bar->tabTextColor(0)), told);
    window.view.SetContrast(true);
    QCOMPARE(tabs.ForeColor(), told);
    QVERIFY(ToColor(bar->tabTextColor(0)) != told);
    window.view.SetContrast(false);
    QCOMPARE(ToColor(bar->tabTextColor(0)), told);
}

void LookTest::LinesKeepTheirColors() {
    TestWindow window;
    window::Recorder& drawing = window.Form().Get<window::Picture>("pic").Canvas();
    drawing.Cls();
    drawing.Line(30, 50, 60, 50, text::Rgb(0, 255, 255));
    drawing.CurrentX = 30;
    drawing.CurrentY = 80;
    drawing.ForeColor = text::Rgb(0, 255, 255);
    drawing.CurrentFont.size = 40;
    drawing.Print("HHH");
    window.view.SetContrast(true);
    const QImage image = window.Widget("pic").grab().toImage();
    QCOMPARE(image.pixelColor(45, 50), QColor(0, 255, 255));
    // Nowhere in the letters is the colour that cannot be read, and somewhere its darker shade.
    const QRgb shade = qt::ToQColor(text::ReadableOn(text::Rgb(0, 255, 255), text::kWhite)).rgb();
    bool has_shade = false;
    for (int y = 80; y < 160; ++y)
        for (int x = 30; x < 250; ++x) {
            QVERIFY(image.pixelColor(x, y) != QColor(0, 255, 255));
            has_shade = has_shade || image.pixel(x, y) == shade;
        }
    QVERIFY(has_shade);
}

void LookTest::TheMarkerIsOutlined() {
    TestWindow window;
    window.PressTool(2);
    const auto corner = [&] { return window.Widget("linMarker").grab().toImage().pixelColor(0, 0); };
    QCOMPARE(corner(), QColor(255, 255, 0));
    window.view.SetContrast(true);
    QCOMPARE(corner(), QColor(Qt::black));
    QCOMPARE(window.Widget("linMarker").grab().toImage().pixelColor(18, 1), QColor(255, 255, 0));
}

void LookTest::TheOutlineOfTheMarkerIsSeenOnADarkDesktop() {
    const DarkDesktop desktop;
    TestWindow window;
    window.PressTool(2);
    window.view.SetContrast(true);
    QVERIFY(!text::IsDark(ToColor(window.Widget("linMarker").grab().toImage().pixelColor(0, 0))));
}

void LookTest::TheSwitchTurnsContrastOnAndOff() {
    TestWindow window;
    QToolButton& button = window.view.Bar().Contrast();
    QVERIFY(button.isVisible());
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(window.view.HasContrast());
    QVERIFY(button.isChecked());
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(!window.view.HasContrast());
}

void LookTest::TheDesktopIsFollowed() {
    const auto colors = [](QRgb window, QRgb text) {
        QPalette palette;
        palette.setColor(QPalette::Window, QColor::fromRgb(window));
        palette.setColor(QPalette::WindowText, QColor::fromRgb(text));
        return palette;
    };
    const auto look = [&](QRgb window, QRgb text, const char* themes = "") {
        const qt::DesktopLook found = qt::LookOfDesktop(colors(window, text), QString::fromLatin1(themes));
        return std::pair(found.is_dark, found.wants_contrast);
    };
    QCOMPARE(look(0xffefefef, 0xff000000), std::pair(false, false));
    QCOMPARE(look(0xff2a2e32, 0xfffcfcfc), std::pair(true, false));
    QCOMPARE(look(0xffffffff, 0xff000000), std::pair(false, true));
    QCOMPARE(look(0xff000000, 0xffffffff), std::pair(true, true));
    QCOMPARE(look(0xfffdfdfc, 0xff272c2e, " HighContrast"), std::pair(false, true));
    QCOMPARE(look(0xfff6f5f4, 0xff2e3436, "Adwaita Adwaita"), std::pair(false, false));
}

void LookTest::BoardsAndReportsStayWhitePaper() {
    const DarkDesktop desktop;
    TestWindow window;
    window.PressTool(2);
    for (const char* board : {"pic1", "rtbCalc"}) {
        const QImage image = window.Widget(board).grab().toImage();
        QCOMPARE(image.pixelColor(image.width() - 40, image.height() - 10), QColor(Qt::white));
    }
    QVERIFY(qt::IsDark(window.view.Frame().palette()));
    QVERIFY(text::IsDark(ToColor(window.Widget("txtVector").palette().color(QPalette::Base))));
    // On the tint of the expression line the sign before it stays dark.
    QVERIFY(!text::IsDark(GroundOf(window.Widget("lblExpr"))));
    QVERIFY(text::IsDark(ToColor(window.Widget("lblExpr").palette().color(QPalette::WindowText))));
}

}  // namespace tavrelo::window_test
