#pragma once

#include "pilot/Pilot.h"

class PracticeEditor;

/// Lets a pilot play the lesson that @p editor opens; to be called before its start. The pilot lives as long
/// as the editor, writes its progress to the standard output, and ends the application: with status 0 when
/// the lesson came to its end, else with 1 and a message. False, with a sentence in @p error, where no pilot
/// can play.
[[nodiscard]] bool letPilotPlay(PracticeEditor *editor, const Pilot::Settings &settings, QString *error);
