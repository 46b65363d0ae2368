#pragma once

#include <QString>

#include <vector>

namespace veldmark {

// An application in the desktop's menu.
struct InstalledApplication {
    QString path; // of its desktop entry on Linux and of its bundle on macOS
    QString name; // in the user's language
    QString icon; // a name of the icon theme, or a path; may be empty
};

// All of them, sorted by name with the rules of the user's language, letter case aside. An entry in
// the user's own folder replaces the system's entry of the same name. Hidden entries and those for
// other desktops are left out. Reads folders and files: call it when a list opens, not at every
// redraw. On macOS it returns the bundles in /Applications, its Utilities and the user's own
// Applications; windows there use the system's file dialogue instead. Main thread.
std::vector<InstalledApplication> installedApplications();

// The application with an identity's id (Identities::Identity), hidden from the menu or not. Where
// no desktop entry has the id, its name is the id, and it has neither path nor icon. The name is
// one line without control characters, 60 at most. Reads one file. Main thread.
InstalledApplication applicationOfIdentity(const QString &id);

} // namespace veldmark
