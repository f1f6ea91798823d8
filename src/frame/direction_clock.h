#pragma once

#include <functional>
#include <string>

#include "window/form1.h"

namespace tavrelo::frame {

/// The panel in which a direction is picked instead of typed: the clock `picClock` for the hour, `txtAngle`,
/// `txtAtan` and `cmdInc` for the acute angle. It writes the start of a vector's text into `txtVector`, ready
/// for the magnitude.
class DirectionClock {
  public:
    explicit DirectionClock(window::Form1& form);

    int ClockSel() const { return m_hour; }
    /// The rotation of the axes in degrees, as the caption of `cmdRotangle` tells it; 0 outside the particle
    /// tool.
    double Rotation() const;
    /// Hour 3 and angle 0, as at the start.
    void Reset();
    /// Draws the face anew.
    void Draw();

  private:
    void FaceMouseDown(const window::MouseStroke& stroke);
    void EnterAngle();
    void EnterSlope();
    void AddStep();
    void TakeTipAngle();
    /// Writes the text of hour and angle into `txtVector` when the hour takes an angle; else says so.
    void OfferWithAngle(double angle);
    void Offer(double angle);

    window::Form1& m_form;
    int m_hour;
};

/// GetRotAngle: the number behind "Q = " in the caption of `cmdRotangle`, degrees.
double GetRotAngle(const window::Form1& form);
std::string RotationCaption(double degrees);
/// The tip of `lbltxtAngle` for a rotation.
std::string AngleTip(double degrees);

}  // namespace tavrelo::frame
