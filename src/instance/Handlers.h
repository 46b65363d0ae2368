#pragma once

#include "instance/Verbs.h"

// The running instance's commands, named in Verbs.cpp. Each coroutine resumes when its work is
// done. Main thread.
namespace veldmark::Handlers {

// The state as a client receives it: in English, with its texts for translation.
QJsonObject stateMessage(const TorController &controller);

QCoro::Task<Outcome> status(Call call);
QCoro::Task<Outcome> watch(Call call); // until the client disconnects
QCoro::Task<Outcome> raise(Call call);
QCoro::Task<Outcome> set(Call call);
QCoro::Task<Outcome> connect(Call call);
QCoro::Task<Outcome> climb(Call call);
QCoro::Task<Outcome> disconnect(Call call);
QCoro::Task<Outcome> check(Call call);
QCoro::Task<Outcome> fixDNS(Call call);
QCoro::Task<Outcome> circuits(Call call);
QCoro::Task<Outcome> closeCircuit(Call call);
QCoro::Task<Outcome> newIdentity(Call call);
QCoro::Task<Outcome> launch(Call call);
QCoro::Task<Outcome> downloadTransports(Call call);

} // namespace veldmark::Handlers
