#pragma once
// How the program meets the desktop. Menus, dialogs, the tool bar and their fonts follow the
// desktop's look (light or dark palette, system font and size) through Qt's platform theme, the
// one the desktop has (GTK's on GNOME and its kin, KDE's on Plasma) or the one the user chose with
// QT_QPA_PLATFORMTHEME; the calculator's face keeps its own themes. Pictures drawn with
// --screenshot use Qt's own look on every machine, so the guide's pictures do not depend on the
// desktop they were drawn on.

namespace brinto {

enum class LookFor { Desktop, Screenshots };

// Called before the application object is made.
void PrepareDesktopLook(LookFor purpose);

// Called once the application object is made (and the platform theme with it).
void DesktopLookStarted();

}  // namespace brinto
