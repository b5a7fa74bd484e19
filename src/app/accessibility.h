#pragma once
// What screen readers see of the drawn views: one button per key (its full name, a press action)
// and the display's text.
namespace brinto {

// Registers the interfaces of the key and display views with Qt; once is enough.
void InstallAccessibility();

}  // namespace brinto
