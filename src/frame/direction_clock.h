#pragma once

#include <array>
#include <string>
#include <vector>

#include "window/form1.h"

namespace tavrelo::frame {

struct DirectionClockControls {
    window::Form1& form;
    window::Picture& picClock = form.Get<window::Picture>("picClock");
    window::TextBox& txtVector = form.Get<window::TextBox>("txtVector");
    window::TextBox& txtAngle = form.Get<window::TextBox>("txtAngle");
    window::TextBox& txtAtan = form.Get<window::TextBox>("txtAtan");
    window::Button& cmdInc = form.Get<window::Button>("cmdInc");
    window::Label& lbltxtAngle = form.Get<window::Label>("lbltxtAngle");
};

/// The panel in which a direction is picked instead of typed: the clock `picClock` for the hour, `txtAngle`,
/// `txtAtan` and `cmdInc` for the acute angle. It writes the start of a vector's text into `txtVector`, ready
/// for the magnitude. Enter in `txtVector` goes to the tool in use.
class DirectionClock {
  public:
    explicit DirectionClock(window::Form1& form);

    /// Enter in `txtVector` runs this while that tool is in use.
    void GiveVectorTo(window::Tool tool, window::Event taker);

    int ClockSel() const { return m_hour; }
    /// The axes of the particle's diagram turn, and with them the clock while that tool is in use; degrees.
    void TurnAxes(double degrees);
    /// How far the clock is turned now: 0 outside the particle tool.
    double Rotation() const;
    /// Hour 3 and angle 0, as at the start.
    void Reset();
    /// Draws the face anew.
    void Draw();

  private:
    void EnterVector();
    std::vector<window::PictureCell> HourCells() const;
    void FaceMouseDown(const window::MouseStroke& stroke);
    void EnterAngle();
    void EnterSlope();
    void AddStep();
    void TakeTipAngle();
    /// Writes the text of hour and angle into `txtVector` when the hour takes an angle; else says so.
    void OfferWithAngle(double angle);
    void Offer(double angle);

    window::Form1& m_form;
    DirectionClockControls m_controls{m_form};
    std::array<window::Event, window::kToolCount> m_takers;
    int m_hour;
    double m_axes = 0;  // how far those of the particle are turned, degrees
};

}  // namespace tavrelo::frame
