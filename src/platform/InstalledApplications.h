#pragma once

#include <QString>

#include <vector>

namespace veldmark {

// An application that the user would find in a menu of the desktop.
struct InstalledApplication {
    QString path; // of its desktop entry on Linux and of its bundle on macOS
    QString name; // in the user's language
    QString icon; // a name of the icon theme, or a path; may be empty
};

// All of them, sorted by name as the user's language sorts, letter case aside. An entry in the
// user's own folder stands for the system's of the same name; entries that are hidden or meant for
// other desktops are left out. Reads folders and files: for a list that is opened, not for every
// redraw. On macOS: the bundles in /Applications, its Utilities and the user's own Applications;
// there the system's own file dialogue is the way to choose one in a window. Main thread.
std::vector<InstalledApplication> installedApplications();

} // namespace veldmark
