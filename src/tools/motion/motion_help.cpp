#include "tools/motion/motion_help.h"

#include <span>

#include "tools/motion/motion_panels.h"

namespace tavrelo::tools::motion {
namespace {

constexpr std::string_view kHelpFile = "\\socorro.txt";
constexpr std::string_view kProcedureFile = "\\ayudaprocs.txt";
constexpr std::string_view kProjectileFile = "\\HelpTP.txt";

// By the row of `imgProcs`.
constexpr std::string_view kMotionRowTags[] = {"EQN", "SUS", "SUSV0A", "GRAF", "DIST"};
constexpr std::string_view kProjectileRowTags[] = {"PLANTEAR", "SUST", "SUSTV0Q", "SUSTV0Q", "DIST"};
// By the entry of `cboProcs`.
constexpr std::string_view kMotionEntryTags[] = {"EQN3",    "DELTAS", "ALCANCE", "ALCANCE", "ALCANCE",
                                                 "ALCANCE", "PXQV",   "LIGAR",   "ALG",     "ALG",
                                                 "ALG",     "ALG",    "ALG"};
constexpr std::string_view kProjectileEntryTags[] = {"3PTS", "RCH", "TVR", "DIST", "ALCPI", "INT", "CHOQUE",
                                                     "BOMB", "ALG", "ALG", "ALG",  "ALG",   "ALG"};

enum HelpButton { kConfiguration, kRow, kEntry };

std::optional<TopicPlace> At(std::span<const std::string_view> tags, int index, std::string_view file) {
    if (index < 0 || index >= static_cast<int>(tags.size()))
        return std::nullopt;
    return TopicPlace{file, tags[static_cast<std::size_t>(index)]};
}

}  // namespace

std::optional<TopicPlace> HelpOfButton(int button, int tool, int row, int entry) {
    const bool projectile = tool == kProjectileHelpTool;
    switch (button) {
        case kConfiguration:
            return projectile ? TopicPlace{kProjectileFile, "TABLA"} : TopicPlace{kHelpFile, "CONFIGTABLE"};
        case kRow:
            return projectile ? At(kProjectileRowTags, row - 1, kProjectileFile)
                              : At(kMotionRowTags, row - 1, kProcedureFile);
        case kEntry:
            return projectile ? At(kProjectileEntryTags, entry, kProjectileFile)
                              : At(kMotionEntryTags, entry, kProcedureFile);
        default:
            return std::nullopt;
    }
}

}  // namespace tavrelo::tools::motion
