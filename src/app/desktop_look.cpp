#include "app/desktop_look.h"

#include <QGuiApplication>
#include <QtGlobal>

namespace brinto {

namespace {

// Whether GDK_GL was set here, to be taken back once GTK has read it.
bool g_gtkOpenGlSetHere = false;

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
            return;
    }
}

void DesktopLookStarted() {
    // GTK has read it by now; programs started from here get the environment as it was.
    if (g_gtkOpenGlSetHere) qunsetenv("GDK_GL");
}

}  // namespace brinto
