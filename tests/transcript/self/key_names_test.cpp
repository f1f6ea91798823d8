#include "key_names.h"

#include <gtest/gtest.h>

#include "script.h"

namespace tavrelo::transcript {
namespace {

using window::Key;

struct Case {
    const char* name;
    Key key;
    char32_t character;
    bool shift, ctrl, alt;
};

constexpr Case kCases[] = {
    {"Enter", Key::Enter, 0, false, false, false},
    {"Shift+Enter", Key::Enter, 0, true, false, false},
    {"F12", Key::F12, 0, false, false, false},
    {"Alt+Left", Key::Left, 0, false, false, true},
    {"a", Key::Character, U'a', false, false, false},
    {"A", Key::Character, U'A', true, false, false},
    {"Shift+a", Key::Character, U'A', true, false, false},
    {"Shift+ñ", Key::Character, U'Ñ', true, false, false},
    {"Ctrl+C", Key::Character, U'c', false, true, false},
    {"Ctrl+c", Key::Character, U'c', false, true, false},
    {"Ctrl+Shift+C", Key::Character, U'c', true, true, false},
    {"+", Key::Character, U'+', false, false, false},
    {"Ctrl++", Key::Character, U'+', false, true, false},
    {"(", Key::Character, U'(', false, false, false},
};

TEST(KeyNames, NameStrokes) {
    for (const Case& row : kCases) {
        const window::KeyStroke stroke = StrokeNamed(row.name);
        EXPECT_EQ(stroke.key, row.key) << row.name;
        EXPECT_EQ(stroke.character, row.character) << row.name;
        EXPECT_EQ(stroke.shift, row.shift) << row.name;
        EXPECT_EQ(stroke.ctrl, row.ctrl) << row.name;
        EXPECT_EQ(stroke.alt, row.alt) << row.name;
    }
}

TEST(KeyNames, RefuseOtherNames) {
    for (const char* name : {"F5", "enter", "Ctrl+", "Meta+a", "ab"})
        EXPECT_THROW(StrokeNamed(name), ScriptError) << name;
}

TEST(KeyNames, TypedCapitalsHoldShift) {
    EXPECT_TRUE(StrokeOf(U'F').shift);
    EXPECT_FALSE(StrokeOf(U'f').shift);
    EXPECT_FALSE(StrokeOf(U'5').shift);
}

}  // namespace
}  // namespace tavrelo::transcript
