#include "frame/preferences.h"

#include <gtest/gtest.h>

#include "../window/test_host.h"

namespace tavrelo::frame {
namespace {

/// A printer that breaks down.
struct BrokenPrinter : window::Printer {
    bool Print(const text::RichText&, const window::PageMargins&) override {
        throw numeric::RuntimeFailure(numeric::FailureCode::Internal, "no paper");
    }
};

TEST(Preferences, AFailureOfThePrinterIsToldAndThePointerComesBack) {
    window::TestHost world;
    BrokenPrinter printer;
    window::Form1 form({world, world, printer, world});
    const Preferences preferences(form);
    form.Get<window::RichTextBox>("rtbReg").SetContent(text::PlainRichText("2+3 = 5", text::kTextFont, 10));
    form.Get<window::OptionButton>("optPrint(0)").UserClick();
    form.Get<window::Button>("cmdPrintRes").UserClick();
    EXPECT_EQ(world.last_message, "Error en la impresión.");
    EXPECT_EQ(form.Pointer(), window::kPointerDefault);
}

TEST(Preferences, DecimalsStayWithinTheirRange) {
    window::TestHost world;
    window::Form1 form(world.host);
    const Preferences preferences(form);
    EXPECT_EQ(form.Get<window::TextBox>("txtNCD").Text(), "3");
    form.Get<window::UpDown>("UpDown1").UserSpin(99);
    EXPECT_EQ(form.publics.Decimals, 10);
    form.Get<window::UpDown>("UpDown1").UserSpin(-1);
    EXPECT_EQ(form.publics.Decimals, 0);
    EXPECT_EQ(form.Get<window::TextBox>("txtNCD").Text(), "0");
}

}  // namespace
}  // namespace tavrelo::frame
