#include "frame/help_files.h"

#include <gtest/gtest.h>

#include "numeric/checked.h"

namespace tavrelo::frame {
namespace {

class OneFile : public window::Files {
  public:
    explicit OneFile(std::string bytes) : m_bytes(std::move(bytes)) {}
    std::string Read(std::string_view) const override { return m_bytes; }

  private:
    std::string m_bytes;
};

std::string Topic(const std::string& file, std::string_view tag) {
    return ReadTopic(OneFile(file), "\\Ayuda.txt", tag);
}

TEST(Topics, StandBetweenTheirTagAndTheStop) {
    const std::string file =
        "fuera\r\n[UNO]\r\nprimera\r\nsegunda\r\n[STOP]\r\n[DOS]\nsola\n[STOP]\n[NADA]\n[STOP]\n";
    EXPECT_EQ(Topic(file, "UNO"), "primera\r\nsegunda");
    EXPECT_EQ(Topic(file, "DOS"), "sola");
    EXPECT_EQ(Topic(file, "NADA"), "");
}

TEST(Topics, TheFirstOfEqualTagsWinsAndATagInsideIsText) {
    EXPECT_EQ(Topic("[A]\nuno\n[STOP]\n[A]\ndos\n[STOP]\n", "A"), "uno");
    EXPECT_EQ(Topic("[A]\n[B]\nuno\n[STOP]\n", "A"), "[B]\r\nuno");
}

TEST(Topics, FailWithoutTheirTagOrStop) {
    for (const char* file :
         {"", "[B]\nuno\n[STOP]\n", "[A]\nuno\n", " [A]\nuno\n[STOP]\n", "[a]\nuno\n[STOP]\n"})
        EXPECT_THROW(Topic(file, "A"), numeric::RuntimeFailure) << file;
}

}  // namespace
}  // namespace tavrelo::frame
