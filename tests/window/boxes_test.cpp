#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include "test_window.h"
#include "tests.h"

namespace tavrelo::window_test {

void BoxesTest::ButtonsAreSpanish_data() {
    QTest::addColumn<int>("buttons");
    QTest::addColumn<QString>("pressed");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("captions");
    const QStringList ok{QStringLiteral("Aceptar")};
    const QStringList ok_cancel{QStringLiteral("Aceptar"), QStringLiteral("Cancelar")};
    const QStringList yes_no{QStringLiteral("No"), QStringLiteral("Sí")};
    const auto add = [](const char* name, window::Buttons buttons, const char* pressed, window::Answer answer,
                        const QStringList& captions) {
        QTest::newRow(name) << static_cast<int>(buttons) << QString::fromUtf8(pressed)
                            << static_cast<int>(answer) << captions;
    };
    add("told", window::Buttons::Ok, "Aceptar", window::Answer::Ok, ok);
    add("confirmed", window::Buttons::OkCancel, "Aceptar", window::Answer::Ok, ok_cancel);
    add("given up", window::Buttons::OkCancel, "Cancelar", window::Answer::Cancel, ok_cancel);
    add("yes", window::Buttons::YesNo, "Sí", window::Answer::Yes, yes_no);
    add("no", window::Buttons::YesNo, "No", window::Answer::No, yes_no);
}

void BoxesTest::ButtonsAreSpanish() {
    QFETCH(int, buttons);
    QFETCH(QString, pressed);
    QFETCH(int, answer);
    QFETCH(QStringList, captions);
    QStringList found;
    WhenOpen<QMessageBox>([&](QMessageBox& box) {
        for (QAbstractButton* button : box.buttons())
            found << button->text();
        for (QAbstractButton* button : box.buttons())
            if (button->text() == pressed)
                button->click();
    });
    const auto given =
        qt::WindowBoxes().ShowMessage("¿Seguir?", "Tavrelo", static_cast<window::Buttons>(buttons));
    found.sort();
    QCOMPARE(found, captions);
    QCOMPARE(static_cast<int>(given), answer);
}

void BoxesTest::EscapeRefuses() {
    WhenOpen<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    QVERIFY(qt::WindowBoxes().ShowMessage("", "", window::Buttons::YesNo) == window::Answer::No);
    WhenOpen<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    QVERIFY(qt::WindowBoxes().ShowMessage("", "", window::Buttons::OkCancel) == window::Answer::Cancel);
    WhenOpen<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    QVERIFY(qt::WindowBoxes().ShowMessage("", "", window::Buttons::Ok) == window::Answer::Ok);
}

void BoxesTest::ClosingRefuses() {
    WhenOpen<QMessageBox>([](QMessageBox& box) { box.close(); });
    QVERIFY(qt::WindowBoxes().ShowMessage("", "", window::Buttons::YesNo) == window::Answer::No);
    WhenOpen<QMessageBox>([](QMessageBox& box) { box.done(-1); });
    QVERIFY(qt::WindowBoxes().ShowMessage("", "", window::Buttons::OkCancel) == window::Answer::Cancel);
}

void BoxesTest::TextIsPlain() {
    WhenOpen<QMessageBox>([](QMessageBox& box) {
        QCOMPARE(box.textFormat(), Qt::PlainText);
        QCOMPARE(box.text(), QStringLiteral("10<b>30\nF & G"));
        QCOMPARE(box.windowTitle(), QStringLiteral("Tavrelo"));
        box.accept();
    });
    qt::WindowBoxes().ShowMessage("10<b>30\nF & G", "Tavrelo", window::Buttons::Ok);
}

void BoxesTest::InputBoxAnswers() {
    WhenOpen<QInputDialog>([](QInputDialog& box) {
        QCOMPARE(box.findChild<QLabel*>()->textFormat(), Qt::PlainText);
        QCOMPARE(box.okButtonText(), QStringLiteral("Aceptar"));
        QCOMPARE(box.cancelButtonText(), QStringLiteral("Cancelar"));
        QTest::keyClicks(box.findChild<QLineEdit*>(), QStringLiteral("45"));
        box.accept();
    });
    QCOMPARE(qt::WindowBoxes().AskText("Ángulo", "Tavrelo").value_or("none"), std::string("45"));
    WhenOpen<QInputDialog>([](QInputDialog& box) { box.reject(); });
    QVERIFY(!qt::WindowBoxes().AskText("Ángulo", "Tavrelo").has_value());
}

}  // namespace tavrelo::window_test
