#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>

#include "test_window.h"
#include "tests.h"

namespace tavrelo::window_test {
namespace {

void TypeCharacter(QWidget& widget, const QString& character) {
    QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, character, Qt::NoModifier);
}

void Commit(QWidget& widget, const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(&widget, &event);
}

/// The particle tool; its vector box has the focus.
struct ParticleWindow : TestWindow {
    ParticleWindow() { PressTool(2); }
    QLineEdit& Box() { return As<QLineEdit>("txtVector"); }
    window::TextBox& Model() { return Form().Get<window::TextBox>("txtVector"); }
    const std::string& Text() { return Model().Text(); }
};

}  // namespace

void TypingTest::LettersOfSpanish() {
    ParticleWindow window;
    TypeCharacter(window.Box(), QStringLiteral("Ñ"));
    TypeCharacter(window.Box(), QStringLiteral("á"));
    QCOMPARE(window.Text(), std::string("Ñá"));
    QCOMPARE(window.Model().Selection().start, std::size_t{2});
}

void TypingTest::DeadKeysAndInputMethods() {
    ParticleWindow window;
    Commit(window.Box(), QStringLiteral("éñ"));
    QCOMPARE(window.Text(), std::string("éñ"));
    std::u32string told;
    window::On(window.Form(), window.Model().OnKeyPress, [&told](char32_t character) {
        told += character;
        return character == U'x';
    });
    Commit(window.Box(), QStringLiteral("ixü"));
    QCOMPARE(told, std::u32string(U"ixü"));
    QCOMPARE(window.Text(), std::string("éñiü"));
}

void TypingTest::InputMethodsIntoACell() {
    TestWindow window;
    window.PressTool(1);
    std::u32string told;
    window::On(window.Form(), window.Form().Get<window::Grid>("gd").OnKeyPress, [&told](char32_t character) {
        told += character;
        return true;
    });
    Commit(window.Widget("gd"), QStringLiteral("5ñ"));
    QCOMPARE(told, std::u32string(U"5ñ"));
}

void TypingTest::ConsumedKeysDoNotType() {
    ParticleWindow window;
    window::TextBox& model = window.Model();
    window::On(window.Form(), model.OnKeyDown,
               [](const window::KeyStroke& stroke) { return stroke.character == U'a'; });
    window::On(window.Form(), model.OnKeyPress, [](char32_t character) { return character == U'b'; });
    std::u32string released;
    window::On(window.Form(), model.OnKeyUp,
               [&released](const window::KeyStroke& stroke) { released += stroke.character; });
    for (const char* key : {"a", "b", "c"})
        TypeCharacter(window.Box(), QString::fromUtf8(key));
    QCOMPARE(window.Text(), std::string("c"));
    QCOMPARE(released, std::u32string(U"abc"));
}

void TypingTest::LongPastesArriveWhole() {
    ParticleWindow window;
    const QString text(10000, QLatin1Char('7'));
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&window.Box(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(window.Text(), qt::ToUtf8(text));
}

void TypingTest::AFullBoxTakesNoMoreInTheFieldAndInTheModel() {
    constexpr int kMost = window::kMostCharacters;
    ParticleWindow window;
    const auto holds = [&window](const QString& text) {
        return window.Box().text() == text && window.Text() == qt::ToUtf8(text);
    };
    const QString letters(kMost - 2, QLatin1Char('7'));
    QApplication::clipboard()->setText(letters);
    QTest::keyClick(&window.Box(), Qt::Key_V, Qt::ControlModifier);
    QApplication::clipboard()->setText(QStringLiteral("😀ñab"));  // in front of the rest, as far as it fits
    window.Box().setCursorPosition(1);
    window.Box().paste();
    const QString full = QStringLiteral("7😀ñ") + letters.mid(1);
    QVERIFY(holds(full));
    QCOMPARE(window.Model().Selection(), (window::TextSelection{3, 0}));
    QCOMPARE(window.Box().cursorPosition(), 4);  // the first sign has two units
    TypeCharacter(window.Box(), QStringLiteral("x"));
    QVERIFY(holds(full));
    QCOMPARE(window.Box().cursorPosition(), 4);
    window.Model().SetText(qt::ToUtf8(full) + "x");
    QVERIFY(holds(full));
    const QString signs = QStringLiteral("😀").repeated(kMost + 5);
    window.Box().selectAll();
    window.Box().insert(signs);
    QVERIFY(holds(signs.left(2 * kMost)));
}

void TypingTest::PastedLinesAreJoined() {
    ParticleWindow window;
    QApplication::clipboard()->setText(QStringLiteral("10<30\r\n20<45\nF1"));
    window.Box().paste();
    QCOMPARE(window.Text(), std::string("10<30 20<45 F1"));
}

void TypingTest::UndoTakesBackWhatWasTyped() {
    ParticleWindow window;
    QTest::keyClicks(&window.Box(), QStringLiteral("12"));
    window.Box().undo();
    QCOMPARE(window.Text(), std::string());
}

void TypingTest::SelectionIsTold() {
    ParticleWindow window;
    window.Model().SetText("añadir");
    window.Box().setSelection(1, 3);
    QCOMPARE(window.Model().Selection(), (window::TextSelection{1, 3}));
    window.Model().Select({2, 2});
    QCOMPARE(window.Box().selectedText(), QStringLiteral("ad"));
}

}  // namespace tavrelo::window_test
