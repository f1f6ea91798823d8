#include "runner.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <ostream>

#include "commands.h"
#include "comparison.h"
#include "text_lines.h"

namespace tavrelo::transcript {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kExtension = ".transcript";
constexpr const char* kNothing = "(nothing)";

std::vector<fs::path> TranscriptsBelow(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file() && entry.path().extension() == kExtension)
            files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

std::vector<fs::path> TranscriptsAt(const fs::path& path) {
    return fs::is_directory(path) ? TranscriptsBelow(path) : std::vector{path};
}

/// What a command shows, or why it cannot be carried out.
struct Outcome {
    std::vector<std::string> shown;
    std::string failure;
};

Outcome PerformStep(Session& session, const Step& step) {
    Outcome outcome;
    try {
        Perform(session, step.command);
        outcome.failure = session.driver.World().box_log.Failure();
    } catch (const std::exception& failure) {
        outcome.failure = failure.what();
    }
    outcome.shown = session.TakeLines();
    return outcome;
}

}  // namespace

Runner::Runner(RunOptions options, std::ostream& output, std::ostream& errors)
    : m_options(std::move(options)), m_output(output), m_results(m_options.print ? errors : output) {
    if (!m_options.pictures.empty())
        fs::create_directories(m_options.pictures);
}

void Runner::PlayPath(const std::string& path) {
    const std::vector<fs::path> files = TranscriptsAt(path);
    if (files.empty())
        Fail(path, "there is no transcript in it");
    for (const fs::path& file : files)
        PlayFile(file);
}

void Runner::PlayFile(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (stream)
        PlayText(file.string(), std::string(std::istreambuf_iterator<char>(stream), {}));
    else
        Fail(file.string(), "the file cannot be read");
}

void Runner::PlayText(const std::string& name, std::string_view text) { Count(Play(name, text)); }

void Runner::Fail(const std::string& name, std::string_view message) {
    m_results << name << ": " << message << '\n';
    Count(false);
}

void Runner::Summarize() {
    if (m_options.tree)
        m_results << m_walks << " walks: " << m_tree.objects << " objects, " << m_tree.named << " named, "
                  << m_tree.with_role << " with a role, " << m_tree.reachable << " reachable by keyboard, "
                  << m_tree.read_in_place << " read in place, " << m_tree.alike
                  << " called like another one\n";
    m_results << m_passed << " passed, " << m_failed << " failed\n";
}

void Runner::Count(bool passed) { ++(passed ? m_passed : m_failed); }

bool Runner::Play(const std::string& name, std::string_view text) {
    try {
        const Script script = ParseScript(text);
        const std::unique_ptr<Driver> driver = m_options.make_driver();
        const bool passed = PlaySteps(name, script, *driver);
        if (!m_options.pictures.empty())
            driver->SavePicture((m_options.pictures / fs::path(name).stem()).string() + ".png");
        return passed;
    } catch (const std::exception& failure) {
        m_results << name << ": " << failure.what() << '\n';
        return false;
    }
}

bool Runner::PlaySteps(const std::string& name, const Script& script, Driver& driver) {
    Session session(driver);
    bool passed = true;
    if (m_options.print)
        PrintLines(script.opening_remarks);
    for (const Step& step : script.steps) {
        const Outcome outcome = PerformStep(session, step);
        if (m_options.print)
            PrintStep(step, outcome.shown);
        if (!outcome.failure.empty()) {
            Report(name, step.line_number, outcome.failure);
            return false;
        }
        if (!m_options.print && !Agrees(name, step, outcome.shown))
            passed = false;
        if (m_options.tree && !IsWellTold(name, step, driver))
            passed = false;
    }
    return passed;
}

bool Runner::Agrees(const std::string& name, const Step& step, const std::vector<std::string>& shown) {
    const std::vector<Difference> differences = Compare(step, shown);
    for (const Difference& difference : differences) {
        Report(name, difference.line_number, std::string(kCommandMark) + step.command);
        m_results << "    wanted: " << difference.wanted.value_or(kNothing) << '\n';
        m_results << "    got:    " << difference.got.value_or(kNothing) << '\n';
    }
    return differences.empty();
}

bool Runner::IsWellTold(const std::string& name, const Step& step, Driver& driver) {
    const TreeFindings found = driver.WalkTree();
    ++m_walks;
    m_tree.objects += found.objects;
    m_tree.named += found.named;
    m_tree.with_role += found.with_role;
    m_tree.reachable += found.reachable;
    m_tree.read_in_place += found.read_in_place;
    m_tree.alike += found.alike;
    for (const std::string& complaint : found.complaints)
        Report(name, step.line_number, complaint);
    return found.complaints.empty();
}

void Runner::Report(const std::string& name, int line_number, std::string_view message) {
    m_results << name << ':' << line_number << ": " << message << '\n';
}

void Runner::PrintLines(const std::vector<std::string>& lines) {
    for (const std::string& line : lines)
        m_output << line << '\n';
}

void Runner::PrintStep(const Step& step, const std::vector<std::string>& shown) {
    m_output << kCommandMark << step.command << '\n';
    for (const std::string& line : SignificantLines(shown))
        m_output << EscapedLine(line) << '\n';
    PrintLines(step.remarks);
}

}  // namespace tavrelo::transcript
