#pragma once
// `brinto --screenshot DIR`: every window of the program drawn to DIR/NAME.png, off screen, on a
// calculator in memory filled with a few sample values. The user's database is never opened.
#include <QString>

namespace brinto {

// The file names written, without ".png", in the order they are drawn.
const QStringList& ScreenshotNames();

// Needs a running QApplication; returns the program's exit code (0 when every file was written).
int WriteScreenshots(const QString& directory);

}  // namespace brinto
