// physics [--kind NAME] [--seed N] [--problems N] [--list]: plays random problems of mechanics whose answers
// can be judged. NAME is a kind, or a group of kinds ("numeric"). Ends with 1 when an answer is wrong.

#include <cstdlib>
#include <iostream>
#include <stdexcept>

#include "kinds.h"
#include "run.h"

namespace {

using namespace tavrelo::physics;

struct Settings {
    std::string kind;
    std::uint64_t seed = 1;
    std::optional<int> problems;
    bool list = false;
};

Settings Read(int count, char** arguments) {
    Settings settings;
    for (int k = 1; k < count; ++k) {
        const std::string_view option = arguments[k];
        if (option == "--list") {
            settings.list = true;
            continue;
        }
        if (k + 1 == count)
            throw std::invalid_argument("nothing stands behind " + std::string(option));
        const char* value = arguments[++k];
        if (option == "--kind")
            settings.kind = value;
        else if (option == "--seed")
            settings.seed = std::strtoull(value, nullptr, 10);
        else if (option == "--problems")
            settings.problems = std::atoi(value);
        else
            throw std::invalid_argument("there is no option " + std::string(option));
    }
    return settings;
}

bool IsAsked(const ProblemKind& kind, const std::string& name) {
    return name.empty() || kind.name == name || kind.name.starts_with(name + ".");
}

int Run(const Settings& settings) {
    int played = 0, failed = 0;
    if (!settings.list)
        WriteHeading(std::cout);
    for (const ProblemKind& kind : AllKinds()) {
        if (!IsAsked(kind, settings.kind))
            continue;
        ++played;
        if (settings.list)
            std::cout << kind.name << ": " << kind.about << '\n';
        else if (!PlayKind(kind, settings.seed, settings.problems, std::cout))
            ++failed;
    }
    if (played == 0)
        throw std::invalid_argument("there is no kind " + settings.kind);
    return failed == 0 ? 0 : 1;
}

}  // namespace

int main(int count, char** arguments) {
    try {
        return Run(Read(count, arguments));
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 2;
    }
}
