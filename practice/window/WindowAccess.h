#pragma once

class EditorWindow;

/// What those learn of windows who have them read to them: a dialog is one, and keeps what is below it from
/// being used, although Qt has no modal windows here.
void makeWindowsAccessible();

/// Tells that the window is blocked now, or no more.
void tellOfBlocking(EditorWindow *window);
