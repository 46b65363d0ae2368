#pragma once

#include "log/TorLogLine.h"
#include "ui/Snapshot.h"

#include <vector>

namespace veldmark::Scenes {

struct Scene {
    QString name; // also the file name of its picture
    Snapshot snapshot;
};

// Every phase of a session, in each mode and with each verdict that changes what the panel shows.
std::vector<Scene> panel();
// The verified strict session for the scenes of the other windows.
Snapshot protectedSession();
Findings findings(); // of a computer on which a connect can't work
// `count` circuits over a few dozen relays, the first two of them linked legs.
std::vector<CircuitInfo> circuits(int count);
QList<TorLogLine> log(int count);
QString report(); // a short one

} // namespace veldmark::Scenes
