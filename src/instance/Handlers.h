#pragma once

#include "instance/Verbs.h"

// What the running instance does when it is asked; Verbs.cpp names them. Each resumes when the work
// is done. Main thread.
namespace veldmark::Handlers {

// What a client hears of the state: in English, and its texts for another language.
QJsonObject stateMessage(const TorController &controller);

QCoro::Task<Outcome> status(Call call);
QCoro::Task<Outcome> watch(Call call); // until the other end goes
QCoro::Task<Outcome> set(Call call);
QCoro::Task<Outcome> connect(Call call);
QCoro::Task<Outcome> disconnect(Call call);
QCoro::Task<Outcome> check(Call call);
QCoro::Task<Outcome> fixDNS(Call call);
QCoro::Task<Outcome> circuits(Call call);
QCoro::Task<Outcome> closeCircuit(Call call);
QCoro::Task<Outcome> newIdentity(Call call);
QCoro::Task<Outcome> launch(Call call);
QCoro::Task<Outcome> downloadTransports(Call call);

} // namespace veldmark::Handlers
