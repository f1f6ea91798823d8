#include "window_driver.h"

#include <QStandardPaths>
#include <cstdio>

#include "qt/application.h"
#include "qt/look.h"
#include "real_window.h"

namespace tavrelo::transcript {
namespace {

constexpr const char* kPlatformVariable = "QT_QPA_PLATFORM";

/// Keeps quiet about what the offscreen platform cannot do.
void FilterMessages(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.startsWith(QLatin1String("This plugin does not support")) &&
        !message.startsWith(QLatin1String("QStandardPaths:")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

}  // namespace

struct WindowSystem::Toolkit {
    Toolkit() {
        qInstallMessageHandler(FilterMessages);
        if (!qEnvironmentVariableIsSet(kPlatformVariable))
            qputenv(kPlatformVariable, "offscreen");
        QStandardPaths::setTestModeEnabled(true);
        application = std::make_unique<qt::Application>(argument_count, arguments);
        QApplication::setQuitOnLastWindowClosed(false);
        qt::SetUpApplication(*application);
    }

    int argument_count = 1;
    char name[11] = "transcript";
    char* arguments[2] = {name, nullptr};
    std::unique_ptr<qt::Application> application;
};

WindowSystem::WindowSystem() : m_toolkit(std::make_unique<Toolkit>()) {}

WindowSystem::~WindowSystem() = default;

std::unique_ptr<Driver> MakeWindowDriver(const DriverOptions& options) {
    if (options.is_dark)
        qt::UseLook(true);
    return std::make_unique<RealWindow>(options);
}

}  // namespace tavrelo::transcript
