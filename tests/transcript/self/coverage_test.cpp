// Every control of the window is named by a command of some transcript of the project, but for those of the
// list of names that still wait for theirs; and that list holds no name that has one.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>

#include "script.h"
#include "window/layout.h"

namespace tavrelo::transcript {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string, std::less<>>;

std::string ReadFile(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The control that a command names: its second word, without a property.
std::string NameIn(const std::string& command) {
    std::istringstream words(command);
    std::string verb;
    std::string name;
    words >> verb >> name;
    return name.substr(0, name.find('.'));
}

Names NamedControls() {
    Names names;
    for (const auto& entry : fs::recursive_directory_iterator(TRANSCRIPTS_FOLDER)) {
        if (entry.path().extension() != ".transcript")
            continue;
        const Script script = ParseScript(ReadFile(entry.path()));
        for (const Step& step : script.steps)
            names.insert(NameIn(step.command));
    }
    return names;
}

/// One name a line; what stands behind "#" is a comment.
Names WaitingNames() {
    Names names;
    std::istringstream lines(ReadFile(fs::path(TRANSCRIPT_SELF_FOLDER) / "waiting.txt"));
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line.substr(0, line.find('#')));
        for (std::string name; words >> name;)
            names.insert(name);
    }
    return names;
}

std::string Joined(const Names& names) {
    std::string text;
    for (const std::string& name : names)
        text += name + "\n";
    return text;
}

TEST(Coverage, EveryControlIsNamedByATranscript) {
    const Names named = NamedControls();
    const Names waiting = WaitingNames();
    Names forgotten;
    for (const window::ControlRow& row : window::ControlTable())
        if (!named.contains(row.name) && !waiting.contains(row.name))
            forgotten.emplace(row.name);
    EXPECT_TRUE(forgotten.empty()) << "No transcript names\n" << Joined(forgotten);
}

TEST(Coverage, NoNameWaitsInVain) {
    const Names named = NamedControls();
    Names controls;
    for (const window::ControlRow& row : window::ControlTable())
        controls.emplace(row.name);
    Names idle;
    for (const std::string& name : WaitingNames())
        if (named.contains(name) || !controls.contains(name))
            idle.insert(name);
    EXPECT_TRUE(idle.empty()) << "These do not wait for a transcript any more; take them out of waiting.txt\n"
                              << Joined(idle);
}

}  // namespace
}  // namespace tavrelo::transcript
