#pragma once

#include "window/form1.h"

// The controls that the tool may touch, page by page, under their names in the window.

namespace tavrelo::tools::rigid {

/// What all pages act on.
struct SharedControls {
    explicit SharedControls(window::Form1& form);

    window::TabStrip& tabStat;
    window::ControlArray<window::Button> cmdHelpEstcr;
    window::Picture& pic1;
    window::Grid& gd1;
    window::ControlArray<window::OptionButton> optDCL;      // the body of the page of diagrams
    window::ControlArray<window::OptionButton> optShowDCL;  // the body brought into view last
    window::ListBox& lstDCL;                                // the bodies in view, by their numbers
};

struct ConfigurationControls {
    explicit ConfigurationControls(window::Form1& form);

    window::ControlArray<window::TextBox> txtSegm;  // chain, vector, and magnitudes of the further pairs
    window::ControlArray<window::Label> lblSegm;    // the pairs over their boxes
    window::TextBox& txtRepeat;                     // series of the magnitudes
    window::Label& lblRepeat;
    window::Button& cmdOK;
    window::ControlArray<window::Button> cmdConfig;
    window::TextBox& txtOrigin;
    window::Button& cmdUpdate;
    window::ListBox& lstCoords;
    window::ListBox& lstSeps;
    window::ListBox& lstSysts;  // the letters of the system that spnColor chooses
    window::UpDown& spnColor;
    window::ControlArray<window::Label> lblPoints;  // the letters of each system
    window::TextBox& txtPoints;                     // lines
    window::ControlArray<window::TextBox> txtRefPt;
};

struct DiagramControls {
    explicit DiagramControls(window::Form1& form);

    window::ControlArray<window::TextBox> txtBody;  // body, points, force, and values of the further points
    window::ControlArray<window::Label> lblForceAt;
    window::Button& cmdOK1;
    window::Button& cmdAddForce;
    window::ControlArray<window::Button> cmdDCL;
};

struct EquationControls {
    explicit EquationControls(window::Form1& form);

    window::Button& cmdClearLstDCL;
    window::ControlArray<window::TextBox> txtRefPt;
    window::TextBox& txtSuprEqn;
    window::Button& cmdShowIncsEqns;
    window::ControlArray<window::Button> cmdVMb;
    window::RichTextBox& rtbSolve;
};

}  // namespace tavrelo::tools::rigid
