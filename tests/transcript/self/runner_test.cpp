#include "runner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "model_driver.h"

namespace tavrelo::transcript {
namespace {

namespace fs = std::filesystem;

const fs::path kFolder = TRANSCRIPT_SELF_FOLDER;

/// The runner on the window model, with what it wrote.
class Performance {
  public:
    explicit Performance(bool print = false) : m_runner({MakeModelDriver, print, {}}, m_output, m_errors) {}

    Performance& Path(const fs::path& path) {
        m_runner.PlayPath(path.string());
        return *this;
    }
    Performance& Text(std::string_view text) {
        m_runner.PlayText("it", text);
        return *this;
    }
    std::string Output() {
        m_runner.Summarize();
        return m_output.str();
    }
    std::string Printed() const { return m_output.str(); }
    std::string Errors() {
        m_runner.Summarize();
        return m_errors.str();
    }
    bool AllPassed() const { return m_runner.AllPassed(); }

  private:
    std::ostringstream m_output;
    std::ostringstream m_errors;
    Runner m_runner;
};

std::string ReadFile(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<fs::path> FilesOf(const char* folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(kFolder / folder))
        files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

TEST(Runner, PassesGoodTranscripts) {
    Performance run;
    run.Path(kFolder / "good");
    EXPECT_EQ(run.Output(), std::to_string(FilesOf("good").size()) + " passed, 0 failed\n");
    EXPECT_TRUE(run.AllPassed());
}

struct BadFile {
    const char* name;
    const char* report;  // what is told behind the file's name
};

constexpr BadFile kBadFiles[] = {
    {"unknown_control", ":2: there is no control \"cmdNada\"\n"},
    {"unknown_index", ":2: there is no control \"cmdParts(3)\"\n"},
    {"unknown_verb", ":2: there is no command \"shake\"\n"},
    {"unknown_property", ":1: there is no property \"smell\"\n"},
    {"unknown_key", ":2: there is no key \"F5\"\n"},
    {"unknown_global", ":1: there is no global \"Nada\"\n"},
    {"unknown_answer", ":1: there is no answer \"Maybe\"\n"},
    {"unknown_tool", ":1: there is no number 10\n"},
    {"unknown_routine", ":2: there is no routine 99\n"},
    {"unknown_row", ":2: there is no row 3\n"},
    {"misfit_press", ":2: the command does not fit gd\n"},
    {"misfit_mouse", ":2: the command does not fit gd\n"},
    {"misfit_property", ":1: the command does not fit gd\n"},
    {"malformed_number", ":2: \"uno\" is no whole number\n"},
    {"missing_argument", ":2: an argument is missing\n"},
    {"too_much", ":1: \"2\" is too much\n"},
    {"no_line_end", ": the file does not end in a line end\n"},
    {"empty", ": the file is empty\n"},
    {"only_remarks", ": the file has no command\n"},
    {"shown_too_early", ": line 2 stands before the first command\n"},
    {"invalid_utf8", ": the file is not valid UTF-8\n"},
    {"wrong_line", ":5: > show value HelpTool\n    wanted: 2\n    got:    1\n"},
    {"missing_line", ":2: > show value HelpTool\n    wanted: (nothing)\n    got:    1\n"},
    {"line_too_many", ":4: > show value HelpTool\n    wanted: 1\n    got:    (nothing)\n"},
    {"unexpected_box", ":3: > key txtVector Enter\n    wanted: (nothing)\n    got:    box \"Tavrelo\" OK\n"},
    {"unanswered_box", ":2: no answer is queued for box \"Tavrelo\" Yes No\n"},
    {"unanswered_input", ":2: no answer is queued for input \"Tavrelo\"\n"},
    {"unfitting_answer", ":3: the queued answer does not fit box \"Tavrelo\" Yes No\n"},
};

TEST(Runner, TellsWhereABadTranscriptFails) {
    for (const BadFile& row : kBadFiles) {
        const fs::path path = kFolder / "bad" / (std::string(row.name) + ".transcript");
        Performance run;
        run.Path(path);
        const std::string output = run.Output();
        EXPECT_TRUE(output.starts_with(path.string() + row.report)) << row.name << ": " << output;
        EXPECT_TRUE(output.ends_with("\n0 passed, 1 failed\n")) << row.name << ": " << output;
        EXPECT_FALSE(run.AllPassed()) << row.name;
    }
}

TEST(Runner, EveryBadFileIsInTheTable) { EXPECT_EQ(FilesOf("bad").size(), std::size(kBadFiles)); }

TEST(Runner, GoesOnWithTheNextFile) {
    Performance run;
    run.Text("> shake\n").Text("> tool 1\n");
    EXPECT_EQ(run.Output(), "it:1: there is no command \"shake\"\n1 passed, 1 failed\n");
    EXPECT_FALSE(run.AllPassed());
}

TEST(Runner, StartsEveryFileFresh) {
    Performance run;
    run.Text("> tool 9\n").Text("> show value HelpTool\n0\n");
    EXPECT_TRUE(run.AllPassed()) << run.Output();
}

TEST(Runner, FailsOnAPathWithoutTranscripts) {
    for (const char* name : {"nowhere", "."}) {
        const fs::path empty_folder = fs::path(testing::TempDir()) / "no_transcripts";
        fs::create_directories(empty_folder);
        Performance run;
        run.Path(empty_folder / name);
        EXPECT_FALSE(run.AllPassed()) << name;
        EXPECT_TRUE(run.Output().ends_with("0 passed, 1 failed\n")) << name;
    }
}

TEST(Runner, NothingPlayedIsNoSuccess) { EXPECT_FALSE(Performance().AllPassed()); }

TEST(Runner, PrintsWhatTheProgramShows) {
    Performance run(true);
    run.Text("# Opening.\n\n> tool 1\nwrong\n# Between.\n> show value HelpTool\n> show txtExpr\n");
    EXPECT_EQ(run.Printed(),
              "# Opening.\n\n> tool 1\n# Between.\n> show value HelpTool\n1\n> show txtExpr\n");
    EXPECT_EQ(run.Errors(), "1 passed, 0 failed\n");
}

TEST(Runner, WhatItPrintsPasses) {
    for (const fs::path& path : FilesOf("good")) {
        Performance printing(true);
        printing.Path(path);
        Performance playing;
        playing.Text(printing.Printed());
        EXPECT_TRUE(playing.AllPassed()) << path << '\n' << playing.Output();
    }
}

TEST(Runner, PrintsAGoodTranscriptAsItStands) {
    const fs::path path = kFolder / "good" / "out_of_reach.transcript";
    Performance run(true);
    run.Path(path);
    EXPECT_EQ(run.Printed(), ReadFile(path));
}

}  // namespace
}  // namespace tavrelo::transcript
