#pragma once

#include <string>
#include <vector>

namespace tavrelo::physics {

/// A sum that should vanish, kept with the size of its largest term.
class Sum {
  public:
    void Add(double term);
    double Value() const { return m_value; }
    double Largest() const { return m_largest; }
    /// At most 0.001 and a thousandth of the largest term; a billionth of that term is left to rounding.
    bool Vanishes() const;
    /// The same in a problem whose largest term is `largest_of_all`: a billionth of that is left to rounding.
    bool VanishesBeside(double largest_of_all) const;
    /// At most the given part of the largest term: for what is reckoned in one stroke.
    bool VanishesWithin(double part) const;
    /// "1.5 of 20": what is left, and of which largest term.
    std::string Told() const;

  private:
    double m_value = 0;
    double m_largest = 0;
};

/// The sum of the terms.
Sum SumOf(const std::vector<double>& terms);

/// Whether two numbers agree within a part of the larger of `scale` and the second one.
bool Agree(double found, double expected, double part, double scale = 0);

/// Sine and cosine of degrees, exact at the axes.
double SinDegrees(double degrees);
double CosDegrees(double degrees);

/// A number with all its digits, for telling a fault.
std::string Digits(double number);

}  // namespace tavrelo::physics
