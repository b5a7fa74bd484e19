#pragma once
// `brinto --screenshot DIR`: every window of the program drawn to DIR/NAME.png, off screen, on a
// calculator in memory filled with a few sample values. The user's database is never opened.
#include <QString>

namespace brinto {

// Needs a running QApplication; returns the program's exit code (0 when every file was written).
int WriteScreenshots(const QString& directory);

}  // namespace brinto
