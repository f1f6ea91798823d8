#include <iostream>

#include "model_driver.h"
#include "options.h"
#include "runner.h"
#ifdef TAVRELO_WITH_QT
#include "window_driver.h"
#endif

namespace {

using namespace tavrelo::transcript;

constexpr int kFailed = 1;
constexpr int kMisused = 2;

int PlayAll(const Options& options, DriverMaker make_driver) {
    Runner runner({std::move(make_driver), options.print, options.pictures, options.tree}, std::cout,
                  std::cerr);
    for (const std::string& path : options.paths)
        runner.PlayPath(path);
    runner.Summarize();
    return runner.AllPassed() ? 0 : kFailed;
}

#ifdef TAVRELO_WITH_QT
int PlayInWindow(const Options& options) {
    const WindowSystem system;
    return PlayAll(options, [&options] { return MakeWindowDriver(options.driver); });
}
#else
int PlayInWindow(const Options&) {
    std::cerr << "--window is not available: this build has no window\n";
    return kMisused;
}
#endif

}  // namespace

int main(int count, char** arguments) {
    try {
        const Options options = ParseOptions({arguments + 1, arguments + count});
        return options.window ? PlayInWindow(options) : PlayAll(options, MakeModelDriver);
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n' << UsageText() << '\n';
        return kMisused;
    }
}
