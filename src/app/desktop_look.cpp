#include "app/desktop_look.h"

#include <fontconfig/fontconfig.h>

#include <QGuiApplication>
#include <QtGlobal>
#include <thread>

namespace brinto {

namespace {

// Whether GDK_GL was set here, to be taken back once GTK has read it.
bool g_gtkOpenGlSetHere = false;

// Reads the system's font configuration while the application object starts.
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
            // style sheet and no fonts).
            //
            // The reader looks up variables (HOME, XDG_CONFIG_HOME) meanwhile, and the only change
            // to the environment in that time is the display connection taking out the launcher's
            // startup id. Taking out a variable moves those after it, so a lookup running then
            // could miss one: the id is put last, where taking it out moves nothing else.
            if (const QByteArray startupId = qgetenv("DESKTOP_STARTUP_ID"); !startupId.isNull()) {
                qunsetenv("DESKTOP_STARTUP_ID");
                qputenv("DESKTOP_STARTUP_ID", startupId);
            }
            g_fontConfiguration = std::jthread([] { FcInit(); });
            return;
    }
}

void DesktopLookStarted() {
    // GTK has read it by now; programs started from here get the environment as it was.
    // Usually done long before; when not, the window would wait for the same reading anyway.
    if (g_fontConfiguration.joinable()) g_fontConfiguration.join();
    if (g_gtkOpenGlSetHere) qunsetenv("GDK_GL");
}

}  // namespace brinto
