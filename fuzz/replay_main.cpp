// fuzz_NAME FOLDER [SECONDS [SEED]]: runs a fuzz harness without a fuzzer, over every file of a seed folder
// and over mutations of it. The mutations are the same in every run with the same seed, so a failure comes
// back. With a time it goes on until that is over.

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr int kMutationsPerSeed = 2000;
constexpr unsigned kSeed = 20240;
constexpr int kMostEdits = 6;
constexpr std::size_t kMostBytes = 10'000;
/// After this much time the mutations that are left are dropped, so that a slow machine ends too; the count
/// tells.
constexpr std::chrono::seconds kTimeLimit{20};

/// Pieces that get past the first test of a parser more often than single bytes do.
constexpr std::string_view kPieces[] = {"(",
                                        ")",
                                        "-",
                                        "+",
                                        "*",
                                        ",",
                                        ".",
                                        " ",
                                        "1E",
                                        "1.5",
                                        "X",
                                        "y",
                                        ":",
                                        ";",
                                        "!",
                                        "¡",
                                        "/",
                                        "\\",
                                        "#",
                                        "$",
                                        "¬",
                                        "ñ",
                                        "Ñ",
                                        "°",
                                        "=",
                                        "<",
                                        ">",
                                        "[",
                                        "]",
                                        "{",
                                        "}",
                                        "\n",
                                        "\xFF",
                                        "9999999999",
                                        "0",
                                        "p",
                                        std::string_view("\0", 1)};

std::vector<std::filesystem::path> SeedFiles(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    if (std::filesystem::is_directory(folder)) {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.is_regular_file()) {
                files.push_back(entry.path());
            }
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string Contents(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

class Mutator {
  public:
    Mutator(const std::vector<std::string>& seeds, unsigned seed) : m_seeds(seeds), m_random(seed) {}

    std::string Mutate(std::string text) {
        for (std::size_t edits = 1 + Below(kMostEdits); edits > 0; --edits) {
            Edit(text);
        }
        text.resize(std::min(text.size(), kMostBytes));
        return text;
    }

  private:
    /// 0 to `bound` - 1. Only the generator itself is the same everywhere, so no distribution is used.
    std::size_t Below(std::size_t bound) { return m_random() % bound; }

    void Edit(std::string& text) {
        const std::size_t at = Below(text.size() + 1);
        const std::size_t length = std::min(1 + Below(8), text.size() - at);
        switch (Below(6)) {
            case 0:
                text.erase(at, length);
                break;
            case 1:
                text.insert(at, kPieces[Below(std::size(kPieces))]);
                break;
            case 2:
                text.insert(at, 1, static_cast<char>(Below(256)));
                break;
            case 3:
                text.insert(at, text.substr(at, length));
                break;
            case 4:
                Repeat(text, at, length);
                break;
            default:
                Splice(text, at);
                break;
        }
    }

    void Repeat(std::string& text, std::size_t at, std::size_t length) {
        const std::string piece = text.substr(at, length);
        for (std::size_t count = Below(64); count > 0; --count) {
            text.insert(at, piece);
        }
    }

    /// The front of the text with the back of another seed.
    void Splice(std::string& text, std::size_t at) {
        const std::string& other = m_seeds[Below(m_seeds.size())];
        text = text.substr(0, at) + other.substr(Below(other.size() + 1));
    }

    const std::vector<std::string>& m_seeds;
    std::mt19937 m_random;
};

void RunOnce(const std::string& input) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

}  // namespace

int main(int argc, char** argv) {
    constexpr int kMostArguments = 4;
    if (argc < 2 || argc > kMostArguments) {
        std::cerr << "usage: " << argv[0] << " <seed folder> [seconds [random seed]]\n";
        return 1;
    }
    const bool has_time = argc > 2;
    const int rounds = has_time ? std::numeric_limits<int>::max() : kMutationsPerSeed;
    const auto limit = has_time ? std::chrono::seconds(std::atoi(argv[2])) : kTimeLimit;
    const unsigned seed = argc == kMostArguments ? static_cast<unsigned>(std::atoi(argv[3])) : kSeed;
    std::vector<std::string> seeds;
    for (const std::filesystem::path& file : SeedFiles(argv[1])) {
        seeds.push_back(Contents(file));
    }
    if (seeds.empty()) {
        std::cerr << "no seeds in " << argv[1] << "\n";
        return 1;
    }
    for (const std::string& each : seeds) {
        RunOnce(each);
    }
    Mutator mutator(seeds, seed);
    const auto end = std::chrono::steady_clock::now() + limit;
    std::size_t mutations = 0;
    // Round by round, so that a time limit takes from all seeds alike.
    for (int round = 0; round < rounds && std::chrono::steady_clock::now() < end; ++round) {
        for (const std::string& each : seeds) {
            RunOnce(mutator.Mutate(each));
            ++mutations;
        }
    }
    std::cout << seeds.size() << " seeds, " << mutations << " mutations\n";
    return 0;
}
