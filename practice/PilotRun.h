#pragma once

#include "PilotPlay.h"
#include "pilot/Pilot.h"

class PracticeEditor;

/// The exit status when the companion has no file of the lesson.
constexpr int kLessonLacks = 3;

/// Lets a pilot play @p play, the lesson that @p editor opens; to be called before its start. The pilot lives
/// as long as the editor, tells of its progress on the standard output (in a terminal with a bar), and ends
/// the application: with status 0 when the lesson came to its end and left what its Outcome says and what the
/// script of its name in the folder @p outcomes expects, kLessonLacks, or 1 with a line for each broken step
/// and for what is otherwise on the error output. With an empty @p outcomes there are no scripts; otherwise a
/// numbered lesson has to have one. The title and the answers of @p settings are those of the play. False,
/// with a sentence in @p error, where no pilot can play.
[[nodiscard]] bool letPilotPlay(PracticeEditor *editor, const PilotPlay &play, Pilot::Settings settings,
                                const QString &outcomes, QString *error);
