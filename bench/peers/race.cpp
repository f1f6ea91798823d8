#include "race.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <limits>
#include <numeric>

namespace tavrelo::bench {

namespace {

constexpr int kRounds = 7;
constexpr int kTurns = 15;
/// Long against the clock's own cost, short against the time slices of the system.
constexpr double kTurnSeconds = 200e-6;

double ProcessorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

double SecondsOf(const Runner& runner, int calls) {
    const double start = ProcessorSeconds();
    for (int i = 0; i < calls; ++i) {
        runner.work();
    }
    return (ProcessorSeconds() - start) / calls;
}

/// How many calls make a turn.
int CallsOf(const Runner& runner) {
    int calls = 1;
    while (SecondsOf(runner, calls) * calls < kTurnSeconds && calls < (1 << 20)) {
        calls *= 2;
    }
    return calls;
}

}  // namespace

std::vector<double> Race(const std::vector<Runner>& runners) {
    std::vector<int> calls;
    for (const Runner& runner : runners) {
        calls.push_back(CallsOf(runner));
    }
    std::vector<std::vector<double>> rounds(runners.size());
    for (int round = 0; round < kRounds; ++round) {
        std::vector<double> fastest(runners.size(), std::numeric_limits<double>::max());
        for (int turn = 0; turn < kTurns; ++turn) {
            for (std::size_t k = 0; k < runners.size(); ++k) {
                fastest[k] = std::min(fastest[k], SecondsOf(runners[k], calls[k]));
            }
        }
        for (std::size_t k = 0; k < runners.size(); ++k) {
            rounds[k].push_back(fastest[k] * 1e9 / runners[k].items);
        }
    }
    std::vector<double> medians;
    for (std::vector<double>& times : rounds) {
        std::nth_element(times.begin(), times.begin() + kRounds / 2, times.end());
        medians.push_back(times[kRounds / 2]);
    }
    return medians;
}

double GeometricMean(const std::vector<double>& numbers) {
    const double sum = std::accumulate(numbers.begin(), numbers.end(), 0.0,
                                       [](double total, double number) { return total + std::log(number); });
    return std::exp(sum / static_cast<double>(numbers.size()));
}

Table::Table(const std::vector<std::string>& heads) {
    for (std::size_t k = 0; k < heads.size(); ++k) {
        std::printf(k == 0 ? "| %-46s |" : " %s |", heads[k].c_str());
    }
    std::printf("\n|");
    for (std::size_t k = 0; k < heads.size(); ++k) {
        std::printf(k == 0 ? " --- |" : " ---: |");
    }
    std::printf("\n");
}

void Table::Row(std::string_view name, const std::vector<std::string>& cells) const {
    std::printf("| %-46s |", std::string(name).c_str());
    for (const std::string& cell : cells) {
        std::printf(" %8s |", cell.c_str());
    }
    std::printf("\n");
    std::fflush(stdout);
}

std::string Nanoseconds(double number) {
    char text[32];
    std::snprintf(text, sizeof text, number < 100.0 ? "%.1f" : "%.0f", number);
    return text;
}

std::string Ratio(double number) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", number);
    return text;
}

void Keep(double value) {
    [[maybe_unused]] static volatile double kept = 0.0;
    kept = value;
}

}  // namespace tavrelo::bench
