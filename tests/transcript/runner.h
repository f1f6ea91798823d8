#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "driver.h"
#include "script.h"

namespace tavrelo::transcript {

using DriverMaker = std::function<std::unique_ptr<Driver>()>;

/// How a run of transcripts is carried out.
struct RunOptions {
    DriverMaker make_driver;  // a fresh program for every file
    bool print = false;       // write the transcripts with what the program shows, compare nothing
    std::filesystem::path
        pictures;       // folder for a picture of the window at the end of each file; empty: none
    bool tree = false;  // walk what a reader of the screen is told, behind every command
};

/// Plays transcripts and counts them.
class Runner {
  public:
    /// Failures and counts go to `output`; where transcripts are printed they go to `errors` and leave
    /// `output` clean.
    Runner(RunOptions options, std::ostream& output, std::ostream& errors);

    /// Plays a file, or all transcripts of a folder and the folders in it, sorted by path. A path that holds
    /// none fails.
    void PlayPath(const std::string& path);
    /// Plays the text of a file; `name` stands in front of its failures.
    void PlayText(const std::string& name, std::string_view text);

    /// Writes "N passed, N failed".
    void Summarize();
    /// Something was played and nothing failed.
    bool AllPassed() const { return m_failed == 0 && m_passed > 0; }

  private:
    void PlayFile(const std::filesystem::path& file);
    bool Play(const std::string& name, std::string_view text);
    /// Plays up to the end or to the first command that cannot be carried out.
    bool PlaySteps(const std::string& name, const Script& script, Driver& driver);
    bool Agrees(const std::string& name, const Step& step, const std::vector<std::string>& shown);
    /// Whether a reader of the screen can say and reach everything that is in view.
    bool IsWellTold(const std::string& name, const Step& step, Driver& driver);
    void Report(const std::string& name, int line_number, std::string_view message);
    void Fail(const std::string& name, std::string_view message);
    void Count(bool passed);
    void PrintLines(const std::vector<std::string>& lines);
    void PrintStep(const Step& step, const std::vector<std::string>& shown);

    RunOptions m_options;
    std::ostream& m_output;   // of what is printed
    std::ostream& m_results;  // of failures and counts
    TreeFindings m_tree;      // of all walks, added up
    int m_walks = 0;
    int m_passed = 0;
    int m_failed = 0;
};

}  // namespace tavrelo::transcript
