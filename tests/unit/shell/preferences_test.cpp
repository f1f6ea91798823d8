#include "shell/preferences.h"

#include <gtest/gtest.h>

#include "test_host.h"

namespace tavrelo::shell {
namespace {

/// A printer that breaks down.
struct BrokenPrinter : Printer {
    bool Print(const RichText&, const PageMargins&) override {
        throw numeric::RuntimeFailure(numeric::FailureCode::Internal, "no paper");
    }
};

TEST(Preferences, AFailureOfThePrinterIsToldAndThePointerComesBack) {
    TestHost world;
    BrokenPrinter printer;
    Form1 form({world, world, printer, world});
    const Preferences preferences(form);
    form.rtbReg.SetContent(PlainRichText("2+3 = 5", kTextFont, 10));
    form.optPrint[0].UserClick();
    form.cmdPrintRes.UserClick();
    EXPECT_EQ(world.last_message, "Error en la impresión.");
    EXPECT_EQ(form.Pointer(), kPointerDefault);
}

TEST(Preferences, DecimalsStayWithinTheirRange) {
    TestHost world;
    Form1 form(world.host);
    const Preferences preferences(form);
    EXPECT_EQ(form.txtNCD.Text(), "3");
    form.UpDown1.UserSpin(99);
    EXPECT_EQ(form.publics.Decimals, 10);
    form.UpDown1.UserSpin(-1);
    EXPECT_EQ(form.publics.Decimals, 0);
    EXPECT_EQ(form.txtNCD.Text(), "0");
}

}  // namespace
}  // namespace tavrelo::shell
