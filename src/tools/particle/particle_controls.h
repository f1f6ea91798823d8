#pragma once

#include "window/form1.h"

namespace tavrelo::tools::particle {

/// The controls of the window that the tool may touch.
struct ParticleControls {
    window::Form1& form;
    // The entry of forces, which the direction clock shares.
    window::Frame& fraDirec = form.Get<window::Frame>("fraDirec");
    window::Label& lblVorF = form.Get<window::Label>("lblVorF");
    window::TextBox& txtVector = form.Get<window::TextBox>("txtVector");
    window::TextBox& txtAngle = form.Get<window::TextBox>("txtAngle");
    window::TextBox& txtAtan = form.Get<window::TextBox>("txtAtan");
    // The table and its commands.
    window::Grid& gdEqui = form.Get<window::Grid>("gdEqui");
    window::ControlArray<window::Button> cmdParts = form.GetArray<window::Button>("cmdParts");
    window::Button& cmdRotangle = form.Get<window::Button>("cmdRotangle");
    window::ControlArray<window::Button> cmdExampleEstp = form.GetArray<window::Button>("cmdExampleEstp");
    // What all tools show their results on.
    window::TabStrip& tabCalc = form.Get<window::TabStrip>("tabCalc");
    window::RichTextBox& rtbCalc = form.Get<window::RichTextBox>("rtbCalc");
    window::Picture& pic1 = form.Get<window::Picture>("pic1");
};

}  // namespace tavrelo::tools::particle
