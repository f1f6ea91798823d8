#pragma once

#include "arguments.h"
#include "session.h"

// The commands of the transcript language, each with the arguments behind its verb. See commands.h for how
// they fail.

namespace tavrelo::transcript {

// On pictures (picture_verbs.cpp).
void PressTool(Session& session, Arguments& arguments);
void PickRoutine(Session& session, Arguments& arguments);
void PressHour(Session& session, Arguments& arguments);
void ClickPicture(Session& session, Arguments& arguments);
void DragOnPicture(Session& session, Arguments& arguments);
void HoverPicture(Session& session, Arguments& arguments);

// On all other controls (control_verbs.cpp).
void Press(Session& session, Arguments& arguments);
void Type(Session& session, Arguments& arguments);
void PressKey(Session& session, Arguments& arguments);
void SetText(Session& session, Arguments& arguments);
void Pick(Session& session, Arguments& arguments);
void Spin(Session& session, Arguments& arguments);

// On grids (grid_verbs.cpp).
void PressCell(Session& session, Arguments& arguments);
void DragBlock(Session& session, Arguments& arguments);
void FillCells(Session& session, Arguments& arguments);
void DoubleClickCell(Session& session, Arguments& arguments);

// On what is around the window (world_verbs.cpp).
void QueueAnswer(Session& session, Arguments& arguments);
void PutOnClipboard(Session& session, Arguments& arguments);
void RemoveFiles(Session& session, Arguments& arguments);
void PutFile(Session& session, Arguments& arguments);
void RenderMarkup(Session& session, Arguments& arguments);

// What stands in the window (show_verb.cpp).
void Show(Session& session, Arguments& arguments);

/// Types characters, one key stroke each, into a control that has the focus.
void TypeCharacters(Session& session, window::Control& control, std::string_view text);

}  // namespace tavrelo::transcript
