#include "app/desktop_look.h"

#include <fontconfig/fontconfig.h>

#include <QGuiApplication>
#include <QtGlobal>
#include <thread>

namespace brinto {

namespace {

// Whether GDK_GL was set here, to be taken back once GTK has read it.
bool g_gtkOpenGlSetHere = false;

// Reads the system's font configuration while the application object starts; joined at exit.
std::jthread g_fontConfiguration;

}  // namespace

void PrepareDesktopLook(LookFor purpose) {
    switch (purpose) {
        case LookFor::Screenshots:
            qputenv("QT_QPA_PLATFORM", "offscreen");
            qunsetenv("QT_QPA_PLATFORMTHEME");
            QGuiApplication::setDesktopSettingsAware(false);
            return;
        case LookFor::Desktop:
            // GTK's platform theme starts GTK, whose display looks for OpenGL visuals: that loads
            // the GL driver (with a software renderer, a compiler), which cost more than half of
            // the theme's start-up here, for palettes and fonts that need no GL at all.
            if (!qEnvironmentVariableIsSet("GDK_GL")) {
                qputenv("GDK_GL", "disable");
                g_gtkOpenGlSetHere = true;
            }
            // The first text the window measures makes Qt read the font configuration: some
            // forty XML files, a tenth of the start with the GTK theme and a quarter without. It
            // needs no application object, so it is read on a second core while the application
            // object connects to the display and the platform theme starts GTK (which reads its
            // style sheet and no fonts). Nothing waits for it: when the window needs the fonts
            // before it is done (a machine with no core to spare), Qt reads the configuration
            // itself, as it would have, and the library keeps whichever was made first.
            g_fontConfiguration = std::jthread([] { FcInit(); });
            return;
    }
}

void DesktopLookStarted() {
    // GTK has read it by now; programs started from here get the environment as it was.
    if (g_gtkOpenGlSetHere) qunsetenv("GDK_GL");
}

}  // namespace brinto
