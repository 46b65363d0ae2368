// The local socket's requests, through a real socket into a whole controller, and veldmarkctl's
// arguments. The answer is always JSON, and the last line of it says "ok".
#include "fuzz/Require.h"

#include "instance/InstanceServer.h"
#include "support/Workbench.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QLocalSocket>

using namespace veldmark;

namespace {

struct Program {
    Workbench bench;
    std::unique_ptr<InstanceServer> server = std::move(*InstanceServer::start(bench.controller()));
};

Program *program = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication application(*argc, *argv);
    program = new Program; // lives as long as the process
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QByteArray request = bytesOf(data, size);
    request.truncate(request.indexOf('\n') < 0 ? request.size() : request.indexOf('\n'));
    // These wait for the network, not for a reader.
    const QString command
        = QJsonDocument::fromJson(request).object().value(QStringLiteral("command")).toString();
    if (command == u"watch" || command == u"connect" || command == u"disconnect")
        return 0;

    QLocalSocket socket;
    socket.connectToServer(program->bench.controller().profile().controlSocket);
    REQUIRE(socket.waitForConnected(10'000));
    socket.write(request + '\n');
    QByteArray answer;
    REQUIRE(until([&] {
        answer += socket.readAll();
        return socket.state() == QLocalSocket::UnconnectedState;
    }));
    QJsonObject last;
    for (const QByteArray &line : answer.split('\n')) {
        if (line.isEmpty())
            continue;
        const QJsonDocument document = QJsonDocument::fromJson(line);
        REQUIRE(document.isObject());
        last = document.object();
    }
    REQUIRE(last.value(QStringLiteral("ok")).isBool());
    REQUIRE(!last.value(QStringLiteral("error")).toString().contains(u'\n'));
    return 0;
}
