#pragma once
// What screen readers see of the drawn views: one button per key (its full name, a press action)
// and the display's text.
#include <functional>

class QAccessibleEvent;

namespace brinto {

// Registers the interfaces of the key and display views with Qt; once is enough.
void InstallAccessibility();

// Sends an event to screen readers. A watcher, when one is set, sees it first: Qt drops events
// while no screen reader listens, as on the offscreen platform the tests use.
void SendAccessibilityEvent(QAccessibleEvent& event);
// Sets the watcher; an empty function removes it.
void WatchAccessibilityEvents(std::function<void(QAccessibleEvent&)> watcher);

}  // namespace brinto
