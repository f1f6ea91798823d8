#pragma once

#include "window/form1.h"

namespace tavrelo::tools::motion {

/// The two tools that share the motion table, as index + 1.
inline constexpr int kMotionHelpTool = 4;
inline constexpr int kProjectileHelpTool = 5;

inline constexpr int kPointColumns = 9;

/// Sets the width of the point columns of `Gd2` (twips) and the rows of a tool (4: t, x, v; 5: t, x, y, v,
/// θ); empties it.
void ArrangeGd2(window::Form1& form, int col_width, int tool);

/// Clears the strip over the table and draws its light band with the labels 0 to 8; hides the boxes of
/// accelerations.
void DrawTableStrip(window::Form1& form);

/// The configurations that a tool offers, and the captions beside their buttons.
void AdaptCtrls(window::Form1& form, int tool);

/// Paints the rows of procedures of a tool on `imgProcs`.
void DrawProcedureRows(window::Form1& form, int tool);

/// The row of procedures in use, from 1: the one that the frame `shpMrua` surrounds.
int ProcedureRow(const window::Form1& form);
/// Puts the frame around the row at a height of `imgProcs` (twips from its top); outside the rows nothing
/// happens.
void ChooseProcedureRow(window::Form1& form, double y);

/// Fills `cboProcs` for a tool; no row is chosen.
void FillMruaCbo(window::Form1& form, int tool);

}  // namespace tavrelo::tools::motion
