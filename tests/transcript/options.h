#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "driver.h"

namespace tavrelo::transcript {

/// The command line of the runner.
struct Options {
    bool window = false;
    bool print = false;
    bool tree = false;
    std::filesystem::path pictures;
    DriverOptions driver;
    std::vector<std::string> paths;
};

/// Fails with ScriptError on an unknown option, a missing or malformed value and when no path is given.
Options ParseOptions(std::span<const char* const> arguments);

/// How the runner is called.
std::string UsageText();

}  // namespace tavrelo::transcript
