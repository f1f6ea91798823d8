#include "text/code_page.h"

#include <gtest/gtest.h>

namespace tavrelo::text {
namespace {

TEST(CodePage, GoesBothWays) {
    EXPECT_EQ(FromCodePage("\xD1\xE1\xA1\x80\x96"), "Ñá¡€–");
    EXPECT_EQ(ToCodePage("Ñá¡€–"), "\xD1\xE1\xA1\x80\x96");
    EXPECT_EQ(ToCodePage("θ"), "?");
}

TEST(CodePage, EveryByteComesBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        EXPECT_EQ(ToCodePage(FromCodePage(bytes)), bytes) << byte;
    }
}

}  // namespace
}  // namespace tavrelo::text
