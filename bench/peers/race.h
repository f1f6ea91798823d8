#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tavrelo::bench {

/// Work that is timed: it does its thing `items` times a call.
struct Runner {
    std::string name;
    std::function<void()> work;
    double items = 1.0;
};

/// Nanoseconds of processor time an item for each runner: the median of seven rounds. In a round the runners
/// take turns many times, and the fastest turn of each counts, so that what else the machine does hits all of
/// them alike and mostly is not seen.
std::vector<double> Race(const std::vector<Runner>& runners);

double GeometricMean(const std::vector<double>& numbers);

/// A table in Markdown, its first column wide.
class Table {
  public:
    explicit Table(const std::vector<std::string>& heads);
    void Row(std::string_view name, const std::vector<std::string>& cells) const;
};

/// With a sensible number of digits.
std::string Nanoseconds(double number);
/// Two decimals.
std::string Ratio(double number);

/// Keeps a result, so that the compiler does not leave out what computed it.
void Keep(double value);

}  // namespace tavrelo::bench
