// sessions [--seed N] [--sessions N] [--acts N] [--window]: plays random sessions. A session that goes wrong
// is printed as a transcript and ends the run. With --window each act is done in the model and in the real
// window, which must show the same.

#include <cstdlib>
#include <iostream>
#include <map>
#include <string>
#include <string_view>

#include "model_driver.h"
#include "player.h"
#ifdef TAVRELO_WITH_QT
#include "window_driver.h"
#endif

namespace {

using namespace tavrelo;

struct Settings {
    std::uint64_t seed = 1;
    int sessions = 20;
    int acts = 200;
    bool window = false;
};

Settings Read(int count, char** arguments) {
    Settings settings;
    for (int k = 1; k < count; ++k) {
        const std::string_view option = arguments[k];
        if (option == "--window") {
            settings.window = true;
            continue;
        }
        const long long number = k + 1 < count ? std::atoll(arguments[++k]) : 0;
        if (option == "--seed")
            settings.seed = static_cast<std::uint64_t>(number);
        else if (option == "--sessions")
            settings.sessions = static_cast<int>(number);
        else if (option == "--acts")
            settings.acts = static_cast<int>(number);
        else
            throw transcript::ScriptError("there is no option " + std::string(option));
    }
    return settings;
}

int Play(const Settings& settings, const transcript::DriverMaker& make_peer) {
    for (int k = 0; k < settings.sessions; ++k) {
        const std::uint64_t seed = settings.seed + static_cast<std::uint64_t>(k);
        const auto fault =
            sessions::PlaySession({seed, settings.acts, transcript::MakeModelDriver, make_peer});
        if (!fault)
            continue;
        std::cout << "# Seed " << seed << ": " << fault->reason << '\n';
        for (const std::string& line : fault->transcript)
            std::cout << line << '\n';
        std::cout << k << " passed, 1 failed\n";
        return 1;
    }
    std::cout << settings.sessions << " passed, 0 failed\n";
    return 0;
}

int PlayInWindow(const Settings& settings) {
#ifdef TAVRELO_WITH_QT
    const transcript::WindowSystem system;
    return Play(settings, [] { return transcript::MakeWindowDriver({}); });
#else
    (void)settings;
    std::cerr << "--window is not available: this build has no window\n";
    return 2;
#endif
}

}  // namespace

int main(int count, char** arguments) {
    try {
        const Settings settings = Read(count, arguments);
        return settings.window ? PlayInWindow(settings) : Play(settings, {});
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 2;
    }
}
